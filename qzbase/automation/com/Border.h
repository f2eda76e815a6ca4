// The form that each C++ type has in memory at the border, for slots, array elements and record fields alike.
//
//   Border<T>::Native         VARIANT_BOOL, BYTE, SHORT, LONG, FLOAT, DOUBLE, DATE, BSTR, VARIANT, IDispatch*,
//   SAFEARRAY*,
//                             the record's own layout
//   Border<T>::kVarType       the VARTYPE of such an element
//   Border<T>::From(native)   the value; the native stays with its owner. Raises what does not convert
//   Border<T>::To(value)      a new native, owned by the caller
//   Border<T>::Clear(native)  frees what it owns
//
// Natives are plain memory: all zeroes is a valid, empty one.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>

#include "qzbase/automation/VariantValue.h"
#include "qzbase/automation/com/Conversion.h"
#include "qzbase/automation/com/Handles.h"
#include "qzbase/automation/com/ObjectBorder.h"

namespace qzbase::automation::com {

template <class T>
struct Border;

namespace detail {

// Numbers and dates: the same bytes on both sides.
template <class T, class NativeType, VARTYPE kType>
struct SameBytes {
  using Native = NativeType;
  static constexpr VARTYPE kVarType = kType;
  static constexpr bool kIsSameBytes = true;
  static_assert(sizeof(Native) == sizeof(T));

  static T From(Native pNative) noexcept { return T{pNative}; }
  static Native To(T pValue) noexcept {
    if constexpr (std::is_same_v<T, runtime::Date>)
      return pValue.days;
    else
      return pValue;
  }
  static void Clear(Native&) noexcept {}
};

template <class T>
inline constexpr bool kIsSameBytes = requires {
  Border<T>::kIsSameBytes;
};

}  // namespace detail

template <>
struct Border<std::uint8_t> : detail::SameBytes<std::uint8_t, BYTE, VT_UI1> {};
template <>
struct Border<std::int16_t> : detail::SameBytes<std::int16_t, SHORT, VT_I2> {};
template <>
struct Border<std::int32_t> : detail::SameBytes<std::int32_t, LONG, VT_I4> {};
template <>
struct Border<float> : detail::SameBytes<float, FLOAT, VT_R4> {};
template <>
struct Border<double> : detail::SameBytes<double, DOUBLE, VT_R8> {};
template <>
struct Border<runtime::Date> : detail::SameBytes<runtime::Date, DATE, VT_DATE> {};

template <>
struct Border<bool> {
  using Native = VARIANT_BOOL;
  static constexpr VARTYPE kVarType = VT_BOOL;
  static bool From(Native pNative) noexcept { return pNative != VARIANT_FALSE; }
  static Native To(bool pValue) noexcept { return pValue ? VARIANT_TRUE : VARIANT_FALSE; }
  static void Clear(Native&) noexcept {}
};

template <class E>
requires std::is_enum_v<E>
struct Border<E> {
  using Native = LONG;
  static constexpr VARTYPE kVarType = VT_I4;
  static E From(Native pNative) noexcept { return static_cast<E>(pNative); }
  static Native To(E pValue) noexcept { return static_cast<LONG>(pValue); }
  static void Clear(Native&) noexcept {}
};

template <>
struct Border<std::u16string> {
  using Native = BSTR;
  static constexpr VARTYPE kVarType = VT_BSTR;
  static std::u16string From(Native pNative) { return std::u16string(TextIn(pNative)); }
  static Native To(std::u16string_view pValue) { return OwnedText(pValue).Release(); }
  static void Clear(Native& pNative) noexcept { SysFreeString(std::exchange(pNative, nullptr)); }
};

template <>
struct Border<runtime::Variant> {
  using Native = VARIANT;
  static constexpr VARTYPE kVarType = VT_VARIANT;
  static runtime::Variant From(const Native& pNative) { return FromVariant(pNative, Digits::All); }
  static Native To(const runtime::Variant& pValue) { return ToVariant(pValue); }
  static void Clear(Native& pNative) noexcept { ClearVariant(pNative); }
};

template <class C>
struct Border<runtime::Ref<C>> {
  using Native = IDispatch*;
  static constexpr VARTYPE kVarType = VT_DISPATCH;
  static runtime::Ref<C> From(Native pNative) {
    runtime::Ref<runtime::Object> object = FromDispatch(pNative);
    if constexpr (std::is_same_v<std::remove_const_t<C>, runtime::Object>) {
      return object;
    } else {
      auto result = std::dynamic_pointer_cast<C>(object);
      if (object && !result) runtime::Raise(runtime::RuntimeError::TypeMismatch);
      return result;
    }
  }
  static Native To(const runtime::Ref<C>& pValue) {
    return ToDispatch(std::const_pointer_cast<std::remove_const_t<C>>(pValue));
  }
  static void Clear(Native& pNative) noexcept {
    if (IDispatch* last = std::exchange(pNative, nullptr)) last->Release();
  }
};

// An array of fixed length within a record.
template <class E, std::size_t kCount>
struct Border<std::array<E, kCount>> {
  using Native = std::array<typename Border<E>::Native, kCount>;

  static std::array<E, kCount> From(const Native& pNative) {
    std::array<E, kCount> result;
    for (std::size_t i = 0; i < kCount; ++i) result[i] = Border<E>::From(pNative[i]);
    return result;
  }
  static Native To(const std::array<E, kCount>& pValue) {
    static_assert(detail::kIsSameBytes<E> || sizeof(E) <= sizeof(LONG), "elements that own something leak on errors");
    Native result;
    for (std::size_t i = 0; i < kCount; ++i) result[i] = Border<E>::To(pValue[i]);
    return result;
  }
  static void Clear(Native&) noexcept {}
};

// A native that is freed unless it is handed on.
template <class T>
class OwnedNative {
 public:
  using Native = typename Border<T>::Native;

  OwnedNative() = default;
  explicit OwnedNative(Native pNative) noexcept : native_(pNative) {}
  OwnedNative(OwnedNative&& pOther) noexcept : native_(pOther.Release()) {}
  OwnedNative& operator=(OwnedNative&& pOther) noexcept {
    std::swap(native_, pOther.native_);
    return *this;
  }
  ~OwnedNative() { Border<T>::Clear(native_); }

  const Native& Get() const noexcept { return native_; }
  Native Release() noexcept { return std::exchange(native_, Native{}); }

 private:
  Native native_{};
};

}  // namespace qzbase::automation::com
