// The platform's arrays. The library's have one dimension: one of more raises error 13; no array is an unallocated one.
#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "qzbase/automation/com/Border.h"
#include "qzbase/automation/com/ErrorBorder.h"
#include "qzbase/automation/com/RecordBorder.h"

namespace qzbase::automation::com {

// The elements of an array, kept in place meanwhile.
class ArrayAccess {
 public:
  explicit ArrayAccess(SAFEARRAY& pArray);
  ~ArrayAccess();
  ArrayAccess(const ArrayAccess&) = delete;
  ArrayAccess& operator=(const ArrayAccess&) = delete;

  std::int32_t LowerBound() const noexcept { return lower_; }
  std::size_t Count() const noexcept { return count_; }
  std::byte* At(std::size_t pIndex) const noexcept { return data_ + pIndex * array_.cbElements; }
  template <class Native>
  std::span<Native> Elements() const noexcept {
    return {reinterpret_cast<Native*>(data_), count_};
  }

 private:
  SAFEARRAY& array_;
  std::byte* data_ = nullptr;
  std::int32_t lower_ = 0;
  std::size_t count_ = 0;
};

// The type of the elements, or `pDeclared` where the array does not tell.
VARTYPE ElementType(SAFEARRAY& pArray, VARTYPE pDeclared);

// Elements are zero.
OwnedSafeArray NewSafeArray(VARTYPE pType, std::int32_t pLower, std::size_t pCount);
OwnedSafeArray NewRecordArray(const ServerRecord& pClass, std::int32_t pLower, std::size_t pCount);

// ---- Elements of any type.

runtime::Variant FromSafeArray(SAFEARRAY* pArray, VARTYPE pDeclared, Digits pDigits);

// VT_DISPATCH for objects, or VT_RECORD where they are records.
VARTYPE ElementType(const runtime::AnyArray& pArray);
// With elements of a given type. Raises the errors of the conversion.
OwnedSafeArray ToSafeArray(const runtime::AnyArray& pArray, VARTYPE pType);

// Whether a variable's array can only be filled and not be replaced.
bool IsFixed(const SAFEARRAY* pArray) noexcept;
// Error 10 where a fixed array does not take `pFresh`.
void CheckReplaceable(SAFEARRAY* pArray, SAFEARRAY* pFresh);
// Takes over `pFresh`; checked before.
void ReplaceArray(SAFEARRAY*& pArray, SAFEARRAY* pFresh) noexcept;

// ---- Elements of a type known to the compiler: error 13 for any other.

template <class E>
runtime::Array<E> TypedFromSafeArray(SAFEARRAY* pArray) {
  using Native = typename Border<E>::Native;
  if (!pArray) return {};
  if (ElementType(*pArray, Border<E>::kVarType) != Border<E>::kVarType || pArray->cbElements != sizeof(Native))
    runtime::Raise(runtime::RuntimeError::TypeMismatch);
  if constexpr (RecordType<E>) CheckRecordArray(*pArray, serverRecord<E>);
  const ArrayAccess access(*pArray);
  const auto natives = access.Elements<Native>();
  std::vector<E> elements;
  if constexpr (detail::kIsSameBytes<E>) {
    const auto* first = reinterpret_cast<const E*>(natives.data());
    elements.assign(first, first + natives.size());
  } else {
    elements.reserve(natives.size());
    for (const Native& native : natives) elements.push_back(Border<E>::From(native));
  }
  return {access.LowerBound(), std::move(elements)};
}

template <class E>
OwnedSafeArray TypedToSafeArray(const runtime::Array<E>& pArray) {
  using Native = typename Border<E>::Native;
  if (!pArray.IsAllocated()) return OwnedSafeArray();
  const auto& elements = pArray.Elements();
  OwnedSafeArray result = [&] {
    if constexpr (RecordType<E>)
      return NewRecordArray(serverRecord<E>, pArray.LowerBound(), elements.size());
    else
      return NewSafeArray(Border<E>::kVarType, pArray.LowerBound(), elements.size());
  }();
  const ArrayAccess access(*result.Get());
  std::transform(elements.begin(), elements.end(), access.Elements<Native>().begin(),
                 [](const auto& pElement) { return Border<E>::To(pElement); });
  return result;
}

template <class E>
struct Border<runtime::Array<E>> {
  using Native = SAFEARRAY*;
  static constexpr VARTYPE kVarType = VT_ARRAY | Border<E>::kVarType;
  static runtime::Array<E> From(Native pNative) { return TypedFromSafeArray<E>(pNative); }
  static Native To(const runtime::Array<E>& pValue) { return TypedToSafeArray(pValue).Release(); }
  static void Clear(Native& pNative) noexcept {
    if (SAFEARRAY* last = std::exchange(pNative, nullptr)) SafeArrayDestroy(last);
  }
};

}  // namespace qzbase::automation::com
