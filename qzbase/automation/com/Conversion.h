// Between the platform's variants and the library's own.
//
//   from  references are followed; an object of this library is itself, another one a HostObject; a record is a Record
//         numbers of other kinds (bytes, 64-bit, currency, decimal) become the nearest own kind
//   to    each own kind its own VARTYPE; a Record becomes a VT_RECORD
//
// What a by-reference argument is to hold is made first and stored only when the whole call has succeeded.
#pragma once

#include <optional>
#include <string>

#include "qzbase/automation/com/Handles.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::automation::com {

// What becomes of a number with more digits than the nearest own kind has.
enum class Digits { All, Nearest };  // error 6, or the nearest number

// The variant behind references to variants.
const VARIANT* SeenThrough(const VARIANT& pVariant);
bool IsOmitted(const VARIANT& pVariant) noexcept;  // also behind them

// A copy of its own, with no reference left; the caller's to clear.
VARIANT CopyOf(const VARIANT& pVariant);

runtime::Variant FromVariant(const VARIANT& pVariant, Digits pDigits);

// For a variable whose value may go to another one: what the library's variants cannot hold just as it is, such as
// arrays, is an object that `ToVariant` makes the same value of again.
runtime::Variant WholeVariant(const VARIANT& pVariant);

// The result is the caller's to clear.
VARIANT ToVariant(const runtime::Variant& pValue);

// The same in a given VARTYPE, which is no array and no reference. Raises the errors of the conversion.
VARIANT ToVariantOf(const runtime::Variant& pValue, VARTYPE pType);

// The text of a number of a kind that the library does not have.
std::optional<std::u16string> ForeignText(const VARIANT& pVariant);

// A host's object where none is taken: a script's array for an array, else the value of its default member.
void TakeHostValue(runtime::Variant& pValue, bool pIsArray);

// The new value of one by-reference argument: a script's variable takes a value of any kind, but an array in it keeps
// the type of its elements; a typed variable takes its own type. An array of fixed size keeps its memory: error 10
// where the size differs or it is locked.
class WriteBack {
 public:
  WriteBack() = default;
  WriteBack(const WriteBack&) = delete;
  WriteBack& operator=(const WriteBack&) = delete;

  // `pVariable` is the variable itself, or a typed reference to it.
  void Prepare(VARIANT& pVariable, const runtime::Variant& pValue);
  void Commit() noexcept;

 private:
  VARIANT* target_ = nullptr;
  OwnedVariant fresh_;
};

}  // namespace qzbase::automation::com
