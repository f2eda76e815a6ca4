// Who is who: names and GUIDs of the library, its classes, records and enumerations, each named once, in these lists.
//
// A GUID is made once and never changed, and no name is given another one: they are in people's registries, type
// libraries and programs. A class that ceases to be leaves its row behind as a comment.
//
// A new class gets a row here; its members have their table in the file of its room in members/.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

#include "qzbase/automation/Types.h"

// clang-format off

// Room, kind, class, GUID, GUID of its interface, help. The classes of a room stand together.
#define QZBASE_CLASSES(ROW) \
  ROW(Core, GlobalClass, GCError, "B7F4B227-D078-4F20-9568-D7EB82B16793", "124D0522-2CD2-4531-8788-EB7C14F15F9F", \
      "Numbers, describes and raises registered errors.") \
  ROW(Core, GlobalClass, GCMath, "5C96E50E-EC42-4466-AE9C-F7B7B5972864", "B28B9277-CB39-412E-B7B6-AF5BC84C0A5F", \
      "Rounding, logarithm, power, comparison and statistics.") \
  ROW(Text, GlobalClass, GCStrings, "BB4F49EF-D3E5-47D1-A087-06977AEAEFD3", "816AAB5D-5EFF-4F6C-B307-1020C1198034", \
      "Tokens, lines, words, units and name indices.") \
  ROW(Text, GlobalClass, GCConvert, "7527444D-D80A-44E7-B67B-695011D509D2", "3C073CE0-6910-44FE-9580-79D333F5E9A1", \
      "Values to texts and texts to values, checked.") \
  ROW(Persist, ObjectClass, CBuffer, "6565B8DF-CA64-49A4-82C1-091CD789EC5B", "0ED1242A-4D87-4FDE-B3EA-D773E0D5E0BD", \
      "A tagged buffer of bytes in which every object saves and loads itself.") \
  ROW(Persist, GlobalClass, GCRegistry, "E7189813-BE36-4B3E-BF63-B20BCA9DE8B8", "C7EAE775-9E7D-437F-9878-17A364E89802", \
      "Settings in the registry store: buffers, numbers and texts.") \
  ROW(Desc, ObjectClass, TVarDesc, "539F286B-E926-4D2A-A09F-3990F1C66CA3", "B3317D65-187D-40D3-8FC5-665CC8BCBD77", \
      "What a value is: identifier, type, name, unit, format.") \
  ROW(Desc, ObjectClass, TCtrlDesc, "EC52F028-7D25-4085-B8A9-D35A3272FA87", "A1C23CA2-4B3C-43AB-A71A-F50B9D663EF8", \
      "How the control that edits a value behaves.") \
  ROW(Desc, ObjectClass, TEntryDesc, "03053FDA-D8EE-4AB3-B482-E7ACD8F80664", "E63D5819-D53B-40F7-808D-DF4ABC19D960", \
      "One entry of data: a value and its control.") \
  ROW(Desc, ObjectClass, CVarDescs, "666EB3F9-0009-40D2-9217-36E06E282389", "12DC0FD2-3682-4B26-A157-AABA9154BECD", \
      "A list of value descriptors.") \
  ROW(Desc, ObjectClass, CEntryDescs, "0C36F695-899B-4484-A822-9199D1C21E6D", "76ACC99B-7500-4FCC-9069-AC683EDEA389", \
      "A list of entry descriptors.") \
  ROW(Desc, ObjectClass, CTypedInfo, "0FE5B71B-51A0-4639-8764-F8B1F304190A", "01014518-ABB5-4ECD-91CE-8D58CB5D7C5A", \
      "A list of values, each with its descriptor.") \
  ROW(Data, ObjectClass, CDblVector, "28DCD05E-E71B-4FA1-8563-433FE9051713", "D3DE15BF-C3D2-441B-8F7C-2FD68996D070", \
      "A one-based list of doubles.") \
  ROW(Data, ObjectClass, CLngVector, "B524E144-E8AD-4B73-BC82-D403C22D2FF5", "8D8F8D77-E6E1-4B14-9CAD-4117DCC7078F", \
      "A one-based list of 32-bit integers.") \
  ROW(Data, ObjectClass, CStrVector, "57FD3E58-BF92-4944-A977-75CF2FA6209E", "E80A681D-41A5-4F03-B124-26139305D334", \
      "A one-based list of texts.") \
  ROW(Data, ObjectClass, CBoolVector, "B9619841-E96E-4A14-9B61-3F6F9BB5EA71", "B57172FF-0369-4A91-8339-9A7EC1926FA5", \
      "A one-based list of booleans.") \
  ROW(Data, ObjectClass, CVector, "E8B18168-704B-4E3F-A719-BF9268B87455", "5AE769E4-C0F3-441F-912C-02824570556A", \
      "A one-based list of values with a declared type.") \
  ROW(Data, ObjectClass, CObjVector, "AF97DE59-9848-479C-876E-AD800365F857", "931F1633-1A76-455D-B09B-21F707E1994C", \
      "A one-based list of objects with keys.") \
  ROW(Data, ObjectClass, CDblVectors, "21DE4C7D-6CAE-4508-963E-87D2D49D35F6", "582F017A-4420-4F5F-BD8D-F1324B307530", \
      "A one-based list of vectors of doubles.") \
  ROW(Data, ObjectClass, CDblMatrix, "11FA18D7-EBC5-4E92-8666-001A87254838", "E36D0AED-49F9-414D-87DA-12D213250721", \
      "A matrix of doubles, kept by rows.") \
  ROW(Data, ObjectClass, CMatrix, "A0369158-F7AE-4A26-8CB1-06CE533477E2", "6D7BDAB7-B271-41AC-B3F2-68FF7A988259", \
      "A matrix of values, kept by rows.") \
  ROW(Data, ObjectClass, CEntryData, "FDFEC795-9110-4C61-83BA-6DBF2AE0A7D3", "21B02995-C027-47B8-BDE8-EDA8CF219EE8", \
      "Columns of typed values with one number of rows.") \
  ROW(Data, ObjectClass, CTable, "CACC92F7-98E5-4BF4-BF4F-75CDB8F7BAAB", "974CE9FF-E1E2-48B4-8025-E9490F4D1B31", \
      "A named table whose columns are described.") \
  ROW(Layout, ObjectClass, CLayoutGraph, "8FCF2084-B110-4172-AF7D-46EFE051E15A", "2E99BF19-FD3E-4155-B8ED-2CE3D82D21EB", \
      "How a graph is drawn.") \
  ROW(Layout, ObjectClass, CLayoutGraph3D, "5AC58052-B81C-480A-AF1C-090B4DF7EE06", "A7588BA3-49A5-4DD8-B543-3C96DC8901CA", \
      "How a surface or contour graph is drawn.") \
  ROW(Layout, ObjectClass, CLayoutTable, "5F7D93D4-B37A-45AA-AC13-A3C0493A7A40", "46B91459-FF33-4D8A-A0C8-2BC2ED0B18AC", \
      "How a table is shown.") \
  ROW(Platform, GlobalClass, GCBase, "343E5B0A-A06B-4740-ABE1-4E12309B912A", "946CB5C2-4C21-4043-88AE-E78344277F58", \
      "Makes descriptors and vectors; facts and services of the system.") \
  ROW(Platform, GlobalClass, GCFileUtil, "F731EB64-BAAE-4126-AB75-B336A72C13DF", "6BCC86B2-190E-445B-A0D8-721624ABF6C8", \
      "Names of files, and small services of the file system.") \
  ROW(Locale, GlobalClass, GCResource, "9F5372BD-81F8-4C40-8C95-6A4C66FCBE3B", "AE9F2D86-B8DB-49C6-81D1-71B86ED2FDD8", \
      "Translated texts and messages, and localised forms.") \
  ROW(Locale, ObjectClass, CLocalGUI, "09EF0B15-C161-47D0-B8C4-B1AE9ABDCA74", "19B8D40F-27F7-45BD-9ED0-B8B719F71D34", \
      "A node of the tree of localised forms.")

// Record, GUID, help.
#define QZBASE_RECORDS(ROW) \
  ROW(TErrDesc, "89FD365E-0127-48BE-9771-30964EA46B62", "A registered error.") \
  ROW(TErrIndex, "9A30B0F5-F074-4449-8DCB-BBE5AF17C302", "The position of an entry of the error registry.") \
  ROW(TPoint, "7BC3AC09-E5E7-4310-911D-E277D98C8B59", "A point of a curve.") \
  ROW(TTimeStamp, "930F9CBF-F0BF-46D0-8C54-8EBB29AE0190", "One instant, in universal and in local time.") \
  ROW(TGuid, "EA36107A-546A-4B14-A021-EC0925D8099C", "A globally unique identifier.") \
  ROW(TCurveStyle, "AAEE1D77-22F9-416E-80D3-8F230505C94D", "How a curve is drawn.") \
  ROW(TLabelStyle, "EE9DB986-5A16-45FD-8AB4-812E218D118D", "How a label of a graph is drawn.") \
  ROW(TFontStyle, "E90C40F2-7239-4473-BDFE-AE561AF51F2A", "A font as it is chosen in a dialog.")

// Enumeration, GUID, help.
#define QZBASE_ENUMERATIONS(ROW) \
  ROW(QZVarType, "40B2FB57-2C2C-4ABE-AC97-3DB3044B7A7E", "The value types.") \
  ROW(QZCtrlType, "733F6CFB-C5A4-4E65-88E3-7298B8F51972", "The kinds of control that edit a value.") \
  ROW(QZColor, "A5977DDB-4C4B-4EE3-B77D-15A2D5963327", "The colours that have names.") \
  ROW(TRegKey, "016B73A0-FC43-4076-8A86-C775AD23B622", "The roots of the registry store.") \
  ROW(GraphLabel, "4D5FE513-71DF-4E5F-A558-1A1897CF7969", "The labels of a graph.") \
  ROW(GraphAxis, "E73C1908-2FB1-45A5-AABB-CB82AC2CF0E0", "The axes of a graph.") \
  ROW(BorderType, "7FB27C51-AC10-4B4F-8CF0-10E2BA3D5FBE", "The borders of a graph or table.") \
  ROW(GraphType3D, "2EF50079-6AF3-4765-913D-BE3D537888EF", "The kinds of a 3-D graph.")

// clang-format on

namespace qzbase {

#define DECLARE_CLASS(pRoom, pKind, pName, ...) class pName;
#define DECLARE_RECORD(pName, ...) struct pName;
#define DECLARE_ENUMERATION(pName, ...) enum pName : std::int32_t;
QZBASE_CLASSES(DECLARE_CLASS)
QZBASE_RECORDS(DECLARE_RECORD)
QZBASE_ENUMERATIONS(DECLARE_ENUMERATION)
#undef DECLARE_CLASS
#undef DECLARE_RECORD
#undef DECLARE_ENUMERATION

}  // namespace qzbase

namespace qzbase::automation {

inline constexpr std::string_view kLibraryName = "QZBase";
inline constexpr std::string_view kLibraryGuid = "6EFF960B-E38B-43CB-BC3D-1B9EC8E43D36";
inline constexpr std::string_view kLibraryVersion = "1.0";
inline constexpr std::string_view kLibraryHelp = "QZBase: typed values, containers, descriptors and one binary format.";

#define IDENTIFY_CLASS(pRoom, pKind, pName, ...) \
  template <>                                    \
  inline constexpr Identity identity<pName> = {IdentityKind::pKind, #pName, __VA_ARGS__};
#define IDENTIFY_RECORD(pName, pGuid, pHelp) \
  template <>                                \
  inline constexpr Identity identity<pName> = {IdentityKind::Record, #pName, pGuid, {}, pHelp};
#define IDENTIFY_ENUMERATION(pName, pGuid, pHelp) \
  template <>                                     \
  inline constexpr Identity identity<pName> = {IdentityKind::Enumeration, #pName, pGuid, {}, pHelp};
QZBASE_CLASSES(IDENTIFY_CLASS)
QZBASE_RECORDS(IDENTIFY_RECORD)
QZBASE_ENUMERATIONS(IDENTIFY_ENUMERATION)
#undef IDENTIFY_CLASS
#undef IDENTIFY_RECORD
#undef IDENTIFY_ENUMERATION

// The tables of a room are compiled together.
enum class Room : std::uint8_t { Core, Text, Persist, Desc, Data, Layout, Platform, Locale };

#define LIST_CLASS(pRoom, pKind, pName, ...) , std::conditional_t<kOnly == Room::pRoom, TypeList<pName>, TypeList<>>
#define LIST_ANY_CLASS(pRoom, pKind, pName, ...) , TypeList<pName>
#define LIST_NAME(pName, ...) , TypeList<pName>
template <Room kOnly>
using ClassesOf = JoinLists<TypeList<TypeList<> QZBASE_CLASSES(LIST_CLASS)>>;
using AllClasses = JoinLists<TypeList<TypeList<> QZBASE_CLASSES(LIST_ANY_CLASS)>>;
using AllRecords = JoinLists<TypeList<TypeList<> QZBASE_RECORDS(LIST_NAME)>>;
using AllEnumerations = JoinLists<TypeList<TypeList<> QZBASE_ENUMERATIONS(LIST_NAME)>>;
#undef LIST_CLASS
#undef LIST_ANY_CLASS
#undef LIST_NAME

// What `pBody.operator()<room>()` answers for every room.
template <class Body>
constexpr auto ForEachRoom(Body pBody) {
  return [&]<std::size_t... kRoom>(std::index_sequence<kRoom...>) {
    return std::array{pBody.template operator()<static_cast<Room>(kRoom)>()...};
  }
  (std::make_index_sequence<static_cast<std::size_t>(Room::Locale) + 1>());
}

}  // namespace qzbase::automation
