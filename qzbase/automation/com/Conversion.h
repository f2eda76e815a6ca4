// Between the platform's variants and the library's own.
//
//   from  numbers of other kinds (bytes, 64-bit, currency, decimal) become the nearest own kind
//         references are followed, an omitted argument is empty
//         a record becomes a Record, an object of this library itself, another object a HostObject
//   to    each own kind its own VARTYPE; a Record becomes a VT_RECORD
//
// What a by-reference argument is to hold is made first and stored only when the whole call has succeeded.
#pragma once

#include "qzbase/automation/com/Handles.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::automation::com {

runtime::Variant FromVariant(const VARIANT& pVariant);

// The result is the caller's to clear.
VARIANT ToVariant(const runtime::Variant& pValue);

// The same in a given VARTYPE, which is no array and no reference. Raises the errors of the conversion.
VARIANT ToVariantOf(const runtime::Variant& pValue, VARTYPE pType);

bool IsOmitted(const VARIANT& pVariant) noexcept;

// The new value of one argument of a late-bound call, for the variable that the argument refers to: a script's variable
// takes a value of any kind, but an array in it keeps the type of its elements; a typed variable takes its own type. An
// array of fixed size keeps its memory: error 10 where the size differs.
class WriteBack {
 public:
  WriteBack() = default;
  WriteBack(const WriteBack&) = delete;
  WriteBack& operator=(const WriteBack&) = delete;

  // An argument that is no reference takes nothing.
  void Prepare(VARIANT& pArgument, const runtime::Variant& pValue);
  void Commit() noexcept;

 private:
  VARIANT* target_ = nullptr;
  OwnedVariant fresh_;
};

}  // namespace qzbase::automation::com
