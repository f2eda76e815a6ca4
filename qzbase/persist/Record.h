// How an object writes itself into a buffer and reads itself back: a frame of two tags round its fields.
//
//   void TVarDesc::SaveToBuffer(CBuffer* pBuffer, bool pAppend) {
//     SaveRecord(pBuffer, pAppend, u"VD#2", [&](CBuffer& buffer) { ... });   // "VD#2", the fields, "\VD"
//   }
//
// The fields that a class saves in one order are written down once, as a list of pointers to members:
//
//   static constexpr auto kFields = Fields(&TCtrlDesc::width_, &TCtrlDesc::visible_, ...);
//
//   SaveFields(buffer, *this, kFields);       each in the record of its type
//   LoadFields(buffer, *this, kFields);       what was read before an error stays
//   CopyFields(*this, pSource, kFields);
//   EqualFields(*this, pCompare, kFields);    texts by text comparison; stops at the first difference
//
// A type whose assignment is more than its `=`, or whose equality more than its `==`, has a `CopyField` or `EqualField`
// of its own. A field whose record is not the one of its type is wrapped: `AsColor(&TLabelStyle::ForeColor)`. Arrays
// save their elements one by one. A structure is a field too, where its own fields are said as its block:
//
//   template <>
//   inline constexpr auto blockOf<TCurveStyle> = Block(u"Style#1", Fields(&TCurveStyle::Color, ...));
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase {

// ---- The frame. Without a buffer nothing happens.

template <class Body>
void SaveRecord(CBuffer* pBuffer, bool pAppend, std::u16string_view pTag, Body pBody) {
  if (pBuffer == nullptr) return;
  if (!pAppend) pBuffer->Clear();
  pBuffer->AddTag(pTag);
  pBody(*pBuffer);
  pBuffer->AddTag(u"\\" + std::u16string(pTag.substr(0, pTag.find(u'#'))));
}

// The tags are read and not compared; the body gets the opening one, from which it may take the version.
template <class Body>
void LoadRecord(CBuffer* pBuffer, bool pAppend, Body pBody) {
  if (pBuffer == nullptr) return;
  if (!pAppend) pBuffer->ResetPos();
  const std::u16string tag = pBuffer->NextTag();
  if constexpr (std::is_invocable_v<Body, CBuffer&, std::u16string_view>)
    pBody(*pBuffer, tag);
  else
    pBody(*pBuffer);
  pBuffer->NextTag();
}

// The digits behind the first "#" of a tag, 0 where there are none; numbers beyond 32 bits are the greatest of them.
std::int32_t TagVersion(std::u16string_view pTag);

// ---- One field.

inline void SaveField(CBuffer& pBuffer, const std::u16string& pValue) {
  pBuffer.AddString(pValue);
}
inline void SaveField(CBuffer& pBuffer, double pValue) {
  pBuffer.AddDouble(pValue);
}
inline void SaveField(CBuffer& pBuffer, bool pValue) {
  pBuffer.AddBoolean(pValue);
}
inline void SaveField(CBuffer& pBuffer, std::int32_t pValue) {
  pBuffer.AddLong(pValue);
}
inline void SaveField(CBuffer& pBuffer, runtime::Date pValue) {
  pBuffer.AddDate(pValue);
}

inline void LoadField(CBuffer& pBuffer, std::u16string& pValue) {
  pValue = pBuffer.NextString();
}
inline void LoadField(CBuffer& pBuffer, double& pValue) {
  pValue = pBuffer.NextDouble();
}
inline void LoadField(CBuffer& pBuffer, bool& pValue) {
  pValue = pBuffer.NextBoolean();
}
inline void LoadField(CBuffer& pBuffer, std::int32_t& pValue) {
  pValue = pBuffer.NextLong();
}
inline void LoadField(CBuffer& pBuffer, runtime::Date& pValue) {
  pValue = pBuffer.NextDate();
}

template <class E>
requires std::is_enum_v<E>
void SaveField(CBuffer& pBuffer, E pValue) {
  pBuffer.AddLong(static_cast<std::int32_t>(pValue));
}
template <class E>
requires std::is_enum_v<E>
void LoadField(CBuffer& pBuffer, E& pValue) {
  pValue = static_cast<E>(pBuffer.NextLong());
}

inline bool EqualField(const std::u16string& pLeft, const std::u16string& pRight) {
  return runtime::EqualText(pLeft, pRight);
}
template <class T>
bool EqualField(const T& pLeft, const T& pRight) {
  return pLeft == pRight;
}

template <class T>
void CopyField(T& pTo, const T& pFrom) {
  pTo = pFrom;
}

// ---- Fields with records of their own.

// A 32-bit integer in one byte: error 6 outside 0 to 255.
template <class Owner>
struct AsByte {
  std::int32_t Owner::*field;
  explicit constexpr AsByte(std::int32_t Owner::*pField) : field(pField) {}
  void Save(CBuffer& pBuffer, const Owner& pOwner) const {
    pBuffer.AddByte(runtime::CheckedNarrow<std::uint8_t>(pOwner.*field));
  }
  void Load(CBuffer& pBuffer, Owner& pOwner) const { pOwner.*field = pBuffer.NextByte(); }
};

template <class Owner>
struct AsColor {
  std::int32_t Owner::*field;
  explicit constexpr AsColor(std::int32_t Owner::*pField) : field(pField) {}
  void Save(CBuffer& pBuffer, const Owner& pOwner) const { pBuffer.AddColor(pOwner.*field); }
  void Load(CBuffer& pBuffer, Owner& pOwner) const { pOwner.*field = pBuffer.NextColor(); }
};

// ---- All fields of a list.

template <class... Field>
constexpr std::tuple<Field...> Fields(Field... pFields) {
  return {pFields...};
}

template <class Owner, class... Field>
void SaveFields(CBuffer& pBuffer, const Owner& pOwner, const std::tuple<Field...>& pFields);
template <class Owner, class... Field>
void LoadFields(CBuffer& pBuffer, Owner& pOwner, const std::tuple<Field...>& pFields);
template <class Owner, class... Field>
bool EqualFields(const Owner& pLeft, const Owner& pRight, const std::tuple<Field...>& pFields);

// ---- Structures.

// A tag for the frame, none for a structure without one, and the fields.
template <class List>
struct Block {
  std::u16string_view tag;
  List fields;
  constexpr Block(std::u16string_view pTag, List pFields) : tag(pTag), fields(pFields) {}
};

template <class T>
inline constexpr auto blockOf = nullptr;

template <class T>
concept IsBlock = !std::is_null_pointer_v<std::remove_const_t<decltype(blockOf<T>)>>;

template <IsBlock T>
void SaveField(CBuffer& pBuffer, const T& pValue) {
  const auto save = [&](CBuffer& pInto) { SaveFields(pInto, pValue, blockOf<T>.fields); };
  blockOf<T>.tag.empty() ? save(pBuffer) : SaveRecord(&pBuffer, true, blockOf<T>.tag, save);
}
template <IsBlock T>
void LoadField(CBuffer& pBuffer, T& pValue) {
  const auto load = [&](CBuffer& pFrom) { LoadFields(pFrom, pValue, blockOf<T>.fields); };
  blockOf<T>.tag.empty() ? load(pBuffer) : LoadRecord(&pBuffer, true, load);
}
template <IsBlock T>
bool EqualField(const T& pLeft, const T& pRight) {
  return EqualFields(pLeft, pRight, blockOf<T>.fields);
}

// ---- Arrays.

template <class T, std::size_t kSize>
void SaveField(CBuffer& pBuffer, const std::array<T, kSize>& pValues) {
  for (const T& value : pValues) SaveField(pBuffer, value);
}
template <class T, std::size_t kSize>
void LoadField(CBuffer& pBuffer, std::array<T, kSize>& pValues) {
  for (T& value : pValues) LoadField(pBuffer, value);
}
template <class T, std::size_t kSize>
bool EqualField(const std::array<T, kSize>& pLeft, const std::array<T, kSize>& pRight) {
  return std::equal(pLeft.begin(), pLeft.end(), pRight.begin(),
                    [](const T& pOne, const T& pOther) { return EqualField(pOne, pOther); });
}

// ---- The lists again.

namespace detail {

template <class Owner, class Field>
auto& FieldOf(Owner& pOwner, const Field& pField) {
  if constexpr (std::is_member_object_pointer_v<Field>)
    return pOwner.*pField;
  else
    return pOwner.*pField.field;
}

template <class Owner, class Field>
void SaveOne(CBuffer& pBuffer, const Owner& pOwner, const Field& pField) {
  if constexpr (std::is_member_object_pointer_v<Field>)
    SaveField(pBuffer, pOwner.*pField);
  else
    pField.Save(pBuffer, pOwner);
}

template <class Owner, class Field>
void LoadOne(CBuffer& pBuffer, Owner& pOwner, const Field& pField) {
  if constexpr (std::is_member_object_pointer_v<Field>)
    LoadField(pBuffer, pOwner.*pField);
  else
    pField.Load(pBuffer, pOwner);
}

}  // namespace detail

template <class Owner, class... Field>
void SaveFields(CBuffer& pBuffer, const Owner& pOwner, const std::tuple<Field...>& pFields) {
  std::apply([&](const auto&... field) { (detail::SaveOne(pBuffer, pOwner, field), ...); }, pFields);
}

template <class Owner, class... Field>
void LoadFields(CBuffer& pBuffer, Owner& pOwner, const std::tuple<Field...>& pFields) {
  std::apply([&](const auto&... field) { (detail::LoadOne(pBuffer, pOwner, field), ...); }, pFields);
}

template <class Owner, class... Field>
void CopyFields(Owner& pTo, const Owner& pFrom, const std::tuple<Field...>& pFields) {
  std::apply(
      [&](const auto&... field) { (CopyField(detail::FieldOf(pTo, field), detail::FieldOf(pFrom, field)), ...); },
      pFields);
}

template <class Owner, class... Field>
bool EqualFields(const Owner& pLeft, const Owner& pRight, const std::tuple<Field...>& pFields) {
  return std::apply(
      [&](const auto&... field) {
        return (EqualField(detail::FieldOf(pLeft, field), detail::FieldOf(pRight, field)) && ...);
      },
      pFields);
}

}  // namespace qzbase
