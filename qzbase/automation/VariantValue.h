// Between variants and the C++ types that cross the automation border.
//
// For each type `VariantValue` says how a variant becomes a value of it and the other way round:
//
//   Peek(variant)           the value inside when it is of exactly this type, else null: nothing is copied
//   From(variant)           the value converted; raises 13 (type mismatch), 6 (overflow), 94 (null) or 91 (unset)
//   To(value)               as a variant of the nearest kind: bytes as 16-bit, enumerations as 32-bit integers
//   ToLike(variant, value)  for arrays: the same for a caller's variable, which keeps the type of its elements
//
// A record travels as an object (RecordObject.h), an array of records as an array of objects. An empty variable is an
// unallocated array and an unset object; null is an unset object too.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "qzbase/automation/Types.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::automation {

template <class T>
struct VariantValue;

namespace detail {

// A type that is an alternative of the variant, or converts like one.
template <class T, T (*kConvert)(const runtime::Variant&, const runtime::LocaleRules&)>
struct PlainValue {
  static const T* Peek(const runtime::Variant& pVariant) noexcept { return pVariant.If<T>(); }
  static T From(const runtime::Variant& pVariant) { return kConvert(pVariant, runtime::ThreadLocale()); }
  static runtime::Variant To(T pValue) { return runtime::Variant(std::move(pValue)); }
};

}  // namespace detail

template <>
struct VariantValue<bool> : detail::PlainValue<bool, runtime::ToBoolean> {};
template <>
struct VariantValue<std::int16_t> : detail::PlainValue<std::int16_t, runtime::ToInteger> {};
template <>
struct VariantValue<std::int32_t> : detail::PlainValue<std::int32_t, runtime::ToLong> {};
template <>
struct VariantValue<float> : detail::PlainValue<float, runtime::ToSingle> {};
template <>
struct VariantValue<double> : detail::PlainValue<double, runtime::ToDouble> {};
template <>
struct VariantValue<runtime::Date> : detail::PlainValue<runtime::Date, runtime::ToDate> {};
template <>
struct VariantValue<std::u16string> : detail::PlainValue<std::u16string, runtime::ToText> {};

template <>
struct VariantValue<std::uint8_t> : detail::PlainValue<std::uint8_t, runtime::ToByte> {
  static const std::uint8_t* Peek(const runtime::Variant&) noexcept { return nullptr; }
  static runtime::Variant To(std::uint8_t pValue) { return runtime::Variant(std::int16_t{pValue}); }
};

template <>
struct VariantValue<runtime::Variant> {
  static const runtime::Variant* Peek(const runtime::Variant& pVariant) noexcept { return &pVariant; }
  static runtime::Variant From(const runtime::Variant& pVariant) { return pVariant; }
  static runtime::Variant To(runtime::Variant pValue) { return pValue; }
};

template <class E>
requires std::is_enum_v<E>
struct VariantValue<E> {
  static_assert(std::is_same_v<std::underlying_type_t<E>, std::int32_t>);
  static const E* Peek(const runtime::Variant&) noexcept { return nullptr; }
  static E From(const runtime::Variant& pVariant) {
    const std::int32_t* number = pVariant.If<std::int32_t>();
    return static_cast<E>(number ? *number : runtime::ToLong(pVariant));
  }
  static runtime::Variant To(E pValue) { return runtime::Variant(pValue); }
};

// ---- Objects.

// The object in a variant, null when it is unset. Raises 13 for an object of another class and for what is no object.
template <ObjectType C>
C* ObjectIn(const runtime::Variant& pVariant) {
  if (pVariant.IsEmpty() || pVariant.IsNull()) return nullptr;
  const auto* object = pVariant.If<runtime::Ref<runtime::Object>>();
  if (!object) runtime::Raise(runtime::RuntimeError::TypeMismatch);
  if constexpr (std::is_same_v<C, runtime::Object>) {
    return object->get();
  } else {
    C* result = dynamic_cast<C*>(object->get());
    if (*object && !result) runtime::Raise(runtime::RuntimeError::TypeMismatch);
    return result;
  }
}

template <class C>
struct VariantValue<runtime::Ref<C>> {
  static const runtime::Ref<C>* Peek(const runtime::Variant& pVariant) noexcept {
    if constexpr (std::is_same_v<C, runtime::Object>) return pVariant.If<runtime::Ref<C>>();
    return nullptr;
  }
  static runtime::Ref<C> From(const runtime::Variant& pVariant) {
    C* object = ObjectIn<std::remove_const_t<C>>(pVariant);
    return object ? runtime::Ref<C>(*pVariant.If<runtime::Ref<runtime::Object>>(), object) : nullptr;
  }
  static runtime::Variant To(runtime::Ref<C> pValue) {
    return runtime::Variant(std::const_pointer_cast<std::remove_const_t<C>>(std::move(pValue)));
  }
};

// ---- Arrays.

namespace detail {

// The type of the elements by which a variant holds an array of `E`.
template <class E>
using StoredElement =
    std::conditional_t<std::is_enum_v<E>, std::int32_t,
                       std::conditional_t<kPlainType<E> == BaseType::Void, runtime::Ref<runtime::Object>, E>>;

template <class To, class From>
runtime::Array<To> ConvertElements(const runtime::Array<From>& pArray) {
  if (!pArray.IsAllocated()) return {};
  std::vector<To> elements;
  elements.reserve(pArray.Elements().size());
  for (const auto& element : pArray.Elements()) {
    if constexpr (std::is_same_v<From, runtime::Variant>)
      elements.push_back(VariantValue<To>::From(element));
    else
      elements.push_back(VariantValue<To>::From(VariantValue<From>::To(element)));
  }
  return {pArray.LowerBound(), std::move(elements)};
}

}  // namespace detail

template <class E>
struct VariantValue<runtime::Array<E>> {
  using Stored = detail::StoredElement<E>;

  static const runtime::Array<E>* Peek(const runtime::Variant& pVariant) noexcept {
    const runtime::AnyArray* array = pVariant.IfArray();
    if constexpr (std::is_same_v<E, Stored>) return array ? std::get_if<runtime::Array<E>>(array) : nullptr;
    return nullptr;
  }

  static runtime::Array<E> From(const runtime::Variant& pVariant) {
    if (pVariant.IsEmpty()) return {};
    const runtime::AnyArray* array = pVariant.IfArray();
    if (!array) runtime::Raise(runtime::RuntimeError::TypeMismatch);
    if (const auto* same = Peek(pVariant)) return *same;
    return std::visit([](const auto& pArray) { return detail::ConvertElements<E>(pArray); }, *array);
  }

  static runtime::Variant To(runtime::Array<E> pValue) {
    if constexpr (std::is_same_v<E, Stored>)
      return runtime::Variant(std::move(pValue));
    else
      return runtime::Variant(detail::ConvertElements<Stored>(pValue));
  }

  static runtime::Variant ToLike(const runtime::Variant& pVariable, runtime::Array<E> pValue) {
    const runtime::AnyArray* array = pVariable.IfArray();
    if (!array || std::holds_alternative<runtime::Array<Stored>>(*array)) return To(std::move(pValue));
    return std::visit(
        [&]<class Element>(const runtime::Array<Element>&) {
          return runtime::Variant(detail::ConvertElements<Element>(pValue));
        },
        *array);
  }
};

// An array of fixed length within a record: error 10 for any other length.
template <class E, std::size_t kCount>
struct VariantValue<std::array<E, kCount>> {
  static std::array<E, kCount> From(const runtime::Variant& pVariant) {
    const runtime::Array<E> source = VariantValue<runtime::Array<E>>::From(pVariant);
    if (source.Elements().size() != kCount) runtime::Raise(runtime::RuntimeError::ArrayFixed);
    std::array<E, kCount> result;
    std::copy(source.begin(), source.end(), result.begin());
    return result;
  }
  static runtime::Variant To(const std::array<E, kCount>& pValue) {
    return runtime::Variant(runtime::Array<E>(0, std::vector<E>(pValue.begin(), pValue.end())));
  }
};

}  // namespace qzbase::automation
