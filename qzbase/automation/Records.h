// The fields of the records and the items of the enumerations of the public face.
//
//   template <>
//   inline constexpr auto fields<TErrIndex> = record(field<&TErrIndex::Value>("Value", "The position, from 1."));
//
//   template <>
//   inline constexpr auto items<QZVarType> = enumeration<QZVarType>({{"EVTInvalid", EVTInvalid}, ...});
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <tuple>

#include "qzbase/automation/Types.h"

namespace qzbase::automation {

// Specialised once per record and enumeration.
template <class R>
inline constexpr auto fields = nullptr;
template <class E>
inline constexpr auto items = nullptr;

struct FieldDesc {
  std::string_view name;
  std::string_view help;
  TypeDesc type;
};

template <auto kPointer>
struct Field {
  const char* name;
  const char* help;
};

template <auto kPointer>
constexpr Field<kPointer> field(const char* pName, const char* pHelp) {
  return {pName, pHelp};
}

template <class Pointer>
struct FieldType;
template <class R, class T>
struct FieldType<T R::*> {
  using Type = T;
};

template <auto... kPointers>
struct RecordTable {
  static constexpr std::size_t kSize = sizeof...(kPointers);
  template <std::size_t kField>
  static constexpr auto kPointer = std::get<kField>(std::tuple(kPointers...));

  std::array<FieldDesc, kSize> fields;
};

template <auto... kPointers>
constexpr RecordTable<kPointers...> record(Field<kPointers>... pFields) {
  return {{FieldDesc{pFields.name, pFields.help, Describe<typename FieldType<decltype(kPointers)>::Type>()}...}};
}

struct RecordDesc {
  const Identity* identity = nullptr;
  std::span<const FieldDesc> fields;
};

template <class R>
inline constexpr RecordDesc recordDesc = {&identity<R>, fields<R>.fields};

struct EnumItem {
  std::string_view name;
  std::int32_t value = 0;
};

template <class E>
struct TypedEnumItem {
  const char* name;
  E value;
};

template <class E, std::size_t kCount>
constexpr std::array<EnumItem, kCount> enumeration(const TypedEnumItem<E> (&pItems)[kCount]) {
  std::array<EnumItem, kCount> result;
  for (std::size_t i = 0; i < kCount; ++i) result[i] = {pItems[i].name, static_cast<std::int32_t>(pItems[i].value)};
  return result;
}

struct EnumDesc {
  const Identity* identity = nullptr;
  std::span<const EnumItem> items;
};

template <class E>
inline constexpr EnumDesc enumDesc = {&identity<E>, items<E>};

}  // namespace qzbase::automation
