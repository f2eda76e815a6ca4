// A self-describing value: what scripts, descriptors and tables pass about.
//
// This file is storage only. Conversions between kinds are in Convert.h, equality and order in Compare.h, texts in
// Format.h.
#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "qzbase/runtime/Array.h"
#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::runtime {

// The kinds, in the order of the alternatives that hold them.
enum class VariantKind : std::uint8_t {
  Empty,    // no value yet
  Null,     // a value that is not known
  Integer,  // 16-bit signed
  Long,     // 32-bit signed
  Single,
  Double,
  Date,
  String,
  Boolean,
  Object,  // a reference, which may be unset
  Array,
};

struct Null {
  constexpr bool operator==(const Null&) const = default;
};

class Variant;

// The element types that an array inside a variant can have.
using AnyArray =
    std::variant<Array<Variant>, Array<std::uint8_t>, Array<std::int16_t>, Array<std::int32_t>, Array<float>,
                 Array<double>, Array<Date>, Array<std::u16string>, Array<bool>, Array<Ref<Object>>>;

// An array on the heap that copies with its owner.
class ArrayBox {
 public:
  explicit ArrayBox(AnyArray pArray);
  ArrayBox(const ArrayBox& pOther);
  ArrayBox(ArrayBox&&) noexcept;
  ArrayBox& operator=(const ArrayBox& pOther);
  ArrayBox& operator=(ArrayBox&&) noexcept;
  ~ArrayBox();

  AnyArray& operator*() const noexcept { return *array_; }

 private:
  std::unique_ptr<AnyArray> array_;
};

class Variant {
 public:
  Variant() = default;  // empty
  Variant(Null) : value_(Null{}) {}
  Variant(std::int16_t pValue) : value_(pValue) {}
  Variant(std::int32_t pValue) : value_(pValue) {}
  Variant(float pValue) : value_(pValue) {}
  Variant(double pValue) : value_(pValue) {}
  Variant(Date pValue) : value_(pValue) {}
  Variant(std::u16string pValue) : value_(std::move(pValue)) {}
  Variant(std::u16string_view pValue) : value_(std::u16string(pValue)) {}
  Variant(const char16_t* pValue) : value_(std::u16string(pValue)) {}
  template <std::same_as<bool> T>  // exactly bool: pointers and numbers do not slip in
  Variant(T pValue) : value_(pValue) {}
  template <class E>
  requires std::is_enum_v<E> Variant(E pValue) : value_(static_cast<std::int32_t>(pValue)) {}
  template <std::derived_from<Object> T>
  Variant(Ref<T> pObject) : value_(std::in_place_type<Ref<Object>>, std::move(pObject)) {}
  Variant(std::nullptr_t) : value_(Ref<Object>()) {}  // an unset object
  template <class T>
  Variant(Array<T> pArray);

  VariantKind Kind() const noexcept { return static_cast<VariantKind>(value_.index()); }
  bool IsEmpty() const noexcept { return Kind() == VariantKind::Empty; }
  bool IsNull() const noexcept { return Kind() == VariantKind::Null; }

  // The value itself when it is of exactly this type (`std::int16_t`, `std::int32_t`, `float`, `double`, `Date`,
  // `std::u16string`, `bool`, `Ref<Object>`), else null.
  template <class T>
  const T* If() const noexcept {
    return std::get_if<T>(&value_);
  }
  template <class T>
  T* If() noexcept {
    return std::get_if<T>(&value_);
  }

  // The array inside, or null.
  const AnyArray* IfArray() const noexcept;
  AnyArray* IfArray() noexcept;

  // Calls `pVisitor` with the value in its own type (`std::monostate` for empty, `ArrayBox` for an array).
  template <class Visitor>
  decltype(auto) Visit(Visitor&& pVisitor) const {
    return std::visit(std::forward<Visitor>(pVisitor), value_);
  }

 private:
  std::variant<std::monostate, Null, std::int16_t, std::int32_t, float, double, Date, std::u16string, bool, Ref<Object>,
               ArrayBox>
      value_;
};

template <class T>
Variant::Variant(Array<T> pArray) : value_(std::in_place_type<ArrayBox>, AnyArray(std::move(pArray))) {}

// The calls of Object.h.
inline Variant Object::InvokeNumbered(const NumberedMember& pMember, CallKind pKind, std::span<Variant> pArguments) {
  return Invoke(pMember.name, pKind, pArguments);
}

namespace detail {
template <class... Arguments>
Variant InvokeWith(Object& pObject, std::u16string_view pName, CallKind pKind, Arguments&&... pArguments) {
  std::array<Variant, sizeof...(Arguments)> arguments{Variant(std::forward<Arguments>(pArguments))...};
  return pObject.Invoke(pName, pKind, arguments);
}
}  // namespace detail

template <class... Arguments>
Variant Object::Call(std::u16string_view pName, Arguments&&... pArguments) {
  return detail::InvokeWith(*this, pName, CallKind::Method, std::forward<Arguments>(pArguments)...);
}

template <class... Arguments>
Variant Object::Get(std::u16string_view pName, Arguments&&... pArguments) {
  return detail::InvokeWith(*this, pName, CallKind::Get, std::forward<Arguments>(pArguments)...);
}

template <class... Arguments>
void Object::Let(std::u16string_view pName, Arguments&&... pArguments) {
  detail::InvokeWith(*this, pName, CallKind::Let, std::forward<Arguments>(pArguments)...);
}

template <class... Arguments>
void Object::Set(std::u16string_view pName, Arguments&&... pArguments) {
  detail::InvokeWith(*this, pName, CallKind::Set, std::forward<Arguments>(pArguments)...);
}

}  // namespace qzbase::runtime
