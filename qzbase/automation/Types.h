// What a C++ type is at the automation border: the types of parameters, results and fields, deduced from signatures.
//
//   std::u16string_view                     Text          const CBuffer&, CBuffer&      Class "CBuffer", must be set
//   std::u16string&                         Text, by ref  CBuffer*, Ref<CBuffer>        Class "CBuffer", may be unset
//   std::int16_t, std::int32_t, float, ...  Integer, ...  runtime::Object&              Object (any), must be set
//   QZVarType                               Enumeration   Ref<runtime::Object>          Object (any), may be unset
//   TErrDesc, const TErrDesc&               Record        runtime::Array<E>             E, array
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
  Class,        // created for each use
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

constexpr Identity ObjectClass(const char* pName, const char* pGuid, const char* pInterfaceGuid, const char* pHelp) {
  return {IdentityKind::Class, pName, pGuid, pInterfaceGuid, pHelp};
}
constexpr Identity GlobalClass(const char* pName, const char* pGuid, const char* pInterfaceGuid, const char* pHelp) {
  return {IdentityKind::GlobalClass, pName, pGuid, pInterfaceGuid, pHelp};
}
constexpr Identity RecordNamed(const char* pName, const char* pGuid, const char* pHelp) {
  return {IdentityKind::Record, pName, pGuid, {}, pHelp};
}
constexpr Identity EnumerationNamed(const char* pName, const char* pGuid, const char* pHelp) {
  return {IdentityKind::Enumeration, pName, pGuid, {}, pHelp};
}

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
  bool isByRef = false;          // the caller's variable may change
  bool mustBeSet = false;        // an unset object raises error 91 before the member is called
  std::uint8_t fixedLength = 0;  // of an array within a record, from index 0
  std::string_view name;         // of a class, record or enumeration

  // The same kind of value, however it is passed.
  constexpr bool SameValueAs(const TypeDesc& pOther) const {
    return base == pOther.base && isArray == pOther.isArray && fixedLength == pOther.fixedLength && name == pOther.name;
  }
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

}  // namespace detail

// The members of all lists of a list.
template <class Lists>
using JoinLists = typename decltype([]<class... List>(TypeList<List...>) {
  return detail::Joined<List...>{};
}(Lists()))::Type;

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
.kind == IdentityKind::Class || identity<T>.kind == IdentityKind::GlobalClass;

// The type of a value, stripped of const and reference.
template <class T>
constexpr TypeDesc DescribeValue() {
  if constexpr (std::is_void_v<T>) {
    return {};
  } else if constexpr (detail::kPlainType<T> != BaseType::Void) {
    return detail::Plain(detail::kPlainType<T>);
  } else if constexpr (detail::kIsArray<T> || detail::kFixedLength<T> != 0) {
    TypeDesc type = DescribeValue<typename T::value_type>();
    type.isArray = true;
    type.fixedLength = detail::kFixedLength<T>;
    return type;
  } else if constexpr (detail::kIsRef<T>) {
    return DescribeValue<std::remove_const_t<typename T::element_type>>();
  } else if constexpr (std::is_pointer_v<T>) {
    return DescribeValue<std::remove_const_t<std::remove_pointer_t<T>>>();
  } else if constexpr (identity<T>.kind != IdentityKind::None) {
    return detail::Named(identity<T>);
  } else {
    static_assert(detail::kNever<T>, "automation does not know this type: give it an identity in Identities.h");
  }
}

// The type of a parameter or result as declared.
template <class Declared>
constexpr TypeDesc Describe() {
  using Value = std::remove_cvref_t<Declared>;
  TypeDesc type = DescribeValue<Value>();
  if constexpr (ObjectType<Value>)
    type.mustBeSet = true;
  else
    type.isByRef = std::is_lvalue_reference_v<Declared> && !std::is_const_v<std::remove_reference_t<Declared>>;
  return type;
}

}  // namespace qzbase::automation
