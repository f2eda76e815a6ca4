// The platform's variants as values of C++ types that are known to the compiler.
#pragma once

#include <cstring>
#include <type_traits>
#include <utility>

#include "qzbase/automation/com/Border.h"
#include "qzbase/automation/com/Conversion.h"
#include "qzbase/automation/com/ErrorBorder.h"

namespace qzbase::automation::com {

// Where a variant holds just a `T`, else null.
template <class T>
const typename Border<T>::Native* NativeIn(const VARIANT& pVariant) {
  auto type = static_cast<VARTYPE>(pVariant.vt & ~VT_BYREF);
  if (type == VT_INT) type = VT_I4;
  if (type == VT_UNKNOWN) type = VT_DISPATCH;
  if (type != Border<T>::kVarType) return nullptr;
  const void* place = (pVariant.vt & VT_BYREF) != 0 ? pVariant.byref : &pVariant.llVal;
  if (!place) throw NullPointer();
  return static_cast<const typename Border<T>::Native*>(place);
}

// A value of another kind.
template <class T>
T ConvertVariant(const VARIANT& pVariant) {
  if constexpr (std::is_same_v<T, std::u16string>)
    if (auto text = ForeignText(pVariant)) return std::move(*text);
  runtime::Variant value = FromVariant(pVariant, Digits::Nearest);
  if constexpr (!automation::detail::kIsRef<T> && !RecordType<T>) TakeHostValue(value, automation::detail::kIsArray<T>);
  return VariantValue<T>::From(value);
}

template <class T>
void Put(VARIANT& pVariant, typename Border<T>::Native pNative) noexcept {
  static_assert(sizeof pNative <= sizeof pVariant.llVal);
  std::memcpy(&pVariant.llVal, &pNative, sizeof pNative);
  pVariant.vt = Border<T>::kVarType;
}

// A result in its own type, which a byte too has here.
template <class T>
VARIANT ValueToVariant(T pValue) {
  if constexpr (sizeof(typename Border<T>::Native) <= sizeof(LONGLONG) && Border<T>::kVarType < VT_RECORD) {
    VARIANT result{};
    Put<T>(result, Border<T>::To(pValue));
    return result;
  } else {
    return ToVariant(VariantValue<T>::To(std::move(pValue)));
  }
}

}  // namespace qzbase::automation::com
