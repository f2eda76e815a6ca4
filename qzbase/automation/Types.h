// What a C++ type is to callers by automation: the types of parameters, results and fields, deduced from signatures.
//
//   std::u16string_view, std::u16string     Text          CBuffer&, CBuffer*, Ref<CBuffer>    Class "CBuffer"
//   std::int16_t, std::int32_t, float, ...  Integer, ...  runtime::Object&, Ref<...>          Object (any)
//   QZVarType                               Enumeration   runtime::Array<E>                   E, array
//   TErrDesc                                Record
//
// A class, record or enumeration can be used once it has an identity, a name and its GUIDs (Identities.h).
#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

#include "qzbase/runtime/Array.h"
#include "qzbase/runtime/Date.h"
#include "qzbase/runtime/Object.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::automation {

enum class IdentityKind : std::uint8_t {
  None,
  ObjectClass,  // created for each use
  GlobalClass,  // its members can be called without creating an object
  Record,
  Enumeration,
};

struct Identity {
  IdentityKind kind = IdentityKind::None;
  std::string_view name;           // "CBuffer"; the interface of a class has a leading underscore
  std::string_view guid;           // "01234567-89AB-...": of the class, the record or the enumeration
  std::string_view interfaceGuid;  // of a class
  std::string_view help;           // one line
};

// Specialised once for every class, record and enumeration of the public face.
template <class T>
inline constexpr Identity identity{};

enum class BaseType : std::uint8_t {
  Void,
  Boolean,
  Byte,
  Integer,  // 16-bit signed
  Long,     // 32-bit signed
  Single,
  Double,
  Date,
  Text,
  Variant,
  Object,  // of any class
  Class,   // of the class named
  Record,
  Enumeration,  // 32-bit signed
};

struct TypeDesc {
  BaseType base = BaseType::Void;
  bool isArray = false;
  std::uint8_t fixedLength = 0;  // of an array within a record, from index 0
  std::string_view name;         // of a class, record or enumeration

  constexpr bool operator==(const TypeDesc&) const = default;
};

template <class... T>
struct TypeList {
  static constexpr std::size_t kSize = sizeof...(T);
};

namespace detail {

template <class... List>
struct Joined;
template <class... T>
struct Joined<TypeList<T...>> {
  using Type = TypeList<T...>;
};
template <class... T, class... U, class... List>
struct Joined<TypeList<T...>, TypeList<U...>, List...> : Joined<TypeList<T..., U...>, List...> {};
template <class Lists>
struct JoinedOf;
template <class... List>
struct JoinedOf<TypeList<List...>> : Joined<List...> {};

}  // namespace detail

// The members of all lists of a list.
template <class Lists>
using JoinLists = typename detail::JoinedOf<Lists>::Type;

// The parts of a member function, static function or free function.
template <class Function>
struct Signature;
template <class Function>
struct Signature<const Function> : Signature<Function> {};
template <class R, class... P>
struct Signature<R (*)(P...)> {
  using Result = R;
  using Parameters = TypeList<P...>;
  static constexpr bool kIsStatic = true;
};
template <class R, class... P>
struct Signature<R (*)(P...) noexcept> : Signature<R (*)(P...)> {};
template <class C, class R, class... P>
struct Signature<R (C::*)(P...)> {
  using Result = R;
  using Parameters = TypeList<P...>;
  static constexpr bool kIsStatic = false;
};
template <class C, class R, class... P>
struct Signature<R (C::*)(P...) const> : Signature<R (C::*)(P...)> {};
template <class C, class R, class... P>
struct Signature<R (C::*)(P...) noexcept> : Signature<R (C::*)(P...)> {};
template <class C, class R, class... P>
struct Signature<R (C::*)(P...) const noexcept> : Signature<R (C::*)(P...)> {};

namespace detail {

template <class T>
inline constexpr BaseType kPlainType = BaseType::Void;
template <>
inline constexpr BaseType kPlainType<bool> = BaseType::Boolean;
template <>
inline constexpr BaseType kPlainType<std::uint8_t> = BaseType::Byte;
template <>
inline constexpr BaseType kPlainType<std::int16_t> = BaseType::Integer;
template <>
inline constexpr BaseType kPlainType<std::int32_t> = BaseType::Long;
template <>
inline constexpr BaseType kPlainType<float> = BaseType::Single;
template <>
inline constexpr BaseType kPlainType<double> = BaseType::Double;
template <>
inline constexpr BaseType kPlainType<runtime::Date> = BaseType::Date;
template <>
inline constexpr BaseType kPlainType<std::u16string> = BaseType::Text;
template <>
inline constexpr BaseType kPlainType<std::u16string_view> = BaseType::Text;
template <>
inline constexpr BaseType kPlainType<runtime::Variant> = BaseType::Variant;
template <>
inline constexpr BaseType kPlainType<runtime::Object> = BaseType::Object;

template <class T>
inline constexpr bool kIsArray = false;
template <class E>
inline constexpr bool kIsArray<runtime::Array<E>> = true;
template <class T>
inline constexpr std::size_t kFixedLength = 0;
template <class E, std::size_t kCount>
inline constexpr std::size_t kFixedLength<std::array<E, kCount>> = kCount;
template <class T>
inline constexpr bool kIsRef = false;
template <class T>
inline constexpr bool kIsRef<runtime::Ref<T>> = true;

template <class T>
inline constexpr bool kNever = false;

constexpr TypeDesc Plain(BaseType pBase) {
  TypeDesc type;
  type.base = pBase;
  return type;
}

constexpr TypeDesc Named(const Identity& pIdentity) {
  TypeDesc type = Plain(pIdentity.kind == IdentityKind::Record        ? BaseType::Record
                        : pIdentity.kind == IdentityKind::Enumeration ? BaseType::Enumeration
                                                                      : BaseType::Class);
  type.name = pIdentity.name;
  return type;
}

}  // namespace detail

template <class T>
concept RecordType = identity<T>
.kind == IdentityKind::Record;

// A class whose objects are passed: by reference (they must be set), or by pointer or `Ref` (they may be unset).
template <class T>
concept ObjectType = std::same_as<T, runtime::Object> || identity<T>
.kind == IdentityKind::ObjectClass || identity<T>.kind == IdentityKind::GlobalClass;

// The type of a parameter, result or field as declared.
template <class Declared>
constexpr TypeDesc Describe() {
  using T = std::remove_cvref_t<Declared>;
  if constexpr (std::is_void_v<T>) {
    return {};
  } else if constexpr (detail::kPlainType<T> != BaseType::Void) {
    return detail::Plain(detail::kPlainType<T>);
  } else if constexpr (detail::kIsArray<T> || detail::kFixedLength<T> != 0) {
    TypeDesc type = Describe<typename T::value_type>();
    type.isArray = true;
    type.fixedLength = detail::kFixedLength<T>;
    return type;
  } else if constexpr (detail::kIsRef<T>) {
    return Describe<typename T::element_type>();
  } else if constexpr (std::is_pointer_v<T>) {
    return Describe<std::remove_pointer_t<T>>();
  } else if constexpr (identity<T>.kind != IdentityKind::None) {
    return detail::Named(identity<T>);
  } else {
    static_assert(detail::kNever<T>, "automation does not know this type: give it an identity in Identities.h");
  }
}

// The type that holds a value of a declared type.
template <class Declared>
using ValueOf = std::conditional_t<std::is_same_v<std::remove_cvref_t<Declared>, std::u16string_view>, std::u16string,
                                   std::remove_cvref_t<Declared>>;

}  // namespace qzbase::automation
