// Who is who on the public face: names and GUIDs of the library, its classes, records and enumerations.
//
// A GUID is made once and never changed, and no name is given another one: they are in people's registries, type
// libraries and programs. A class that ceases to be leaves its row behind as a comment.
//
// A new class is announced here and put into the list of its room; its members have their table in members/.
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/automation/Types.h"

namespace qzbase {

class GCError;
class GCMath;
class GCStrings;
class CBuffer;
class CDblVector;
class CLngVector;
class CStrVector;
class CBoolVector;

struct TErrDesc;
struct TErrIndex;
struct TPoint;
struct TTimeStamp;
struct TGuid;
struct TCurveStyle;
struct TLabelStyle;
struct TFontStyle;

enum QZVarType : std::int32_t;
enum QZCtrlType : std::int32_t;
enum QZColor : std::int32_t;
enum TRegKey : std::int32_t;
enum GraphLabel : std::int32_t;
enum GraphAxis : std::int32_t;
enum BorderType : std::int32_t;
enum GraphType3D : std::int32_t;

}  // namespace qzbase

namespace qzbase::automation {

inline constexpr std::string_view kLibraryName = "QZBase";
inline constexpr std::string_view kLibraryGuid = "6EFF960B-E38B-43CB-BC3D-1B9EC8E43D36";
inline constexpr std::string_view kLibraryVersion = "1.0";
inline constexpr std::string_view kLibraryHelp = "QZBase: typed values, containers, descriptors and one binary format.";

// One row each.
// clang-format off

template <> inline constexpr Identity identity<GCError> = GlobalClass("GCError",
    "B7F4B227-D078-4F20-9568-D7EB82B16793", "124D0522-2CD2-4531-8788-EB7C14F15F9F",
    "Numbers, describes and raises registered errors.");
template <> inline constexpr Identity identity<GCMath> = GlobalClass("GCMath",
    "5C96E50E-EC42-4466-AE9C-F7B7B5972864", "B28B9277-CB39-412E-B7B6-AF5BC84C0A5F",
    "Rounding, logarithm, power, comparison and statistics.");
template <> inline constexpr Identity identity<GCStrings> = GlobalClass("GCStrings",
    "BB4F49EF-D3E5-47D1-A087-06977AEAEFD3", "816AAB5D-5EFF-4F6C-B307-1020C1198034",
    "Tokens, lines, words, units and name indices.");
template <> inline constexpr Identity identity<CBuffer> = ObjectClass("CBuffer",
    "6565B8DF-CA64-49A4-82C1-091CD789EC5B", "0ED1242A-4D87-4FDE-B3EA-D773E0D5E0BD",
    "A tagged buffer of bytes in which every object saves and loads itself.");
template <> inline constexpr Identity identity<CDblVector> = ObjectClass("CDblVector",
    "28DCD05E-E71B-4FA1-8563-433FE9051713", "D3DE15BF-C3D2-441B-8F7C-2FD68996D070",
    "A one-based list of doubles.");
template <> inline constexpr Identity identity<CLngVector> = ObjectClass("CLngVector",
    "B524E144-E8AD-4B73-BC82-D403C22D2FF5", "8D8F8D77-E6E1-4B14-9CAD-4117DCC7078F",
    "A one-based list of 32-bit integers.");
template <> inline constexpr Identity identity<CStrVector> = ObjectClass("CStrVector",
    "57FD3E58-BF92-4944-A977-75CF2FA6209E", "E80A681D-41A5-4F03-B124-26139305D334",
    "A one-based list of texts.");
template <> inline constexpr Identity identity<CBoolVector> = ObjectClass("CBoolVector",
    "B9619841-E96E-4A14-9B61-3F6F9BB5EA71", "B57172FF-0369-4A91-8339-9A7EC1926FA5",
    "A one-based list of booleans.");

template <> inline constexpr Identity identity<TErrDesc> = RecordNamed("TErrDesc",
    "89FD365E-0127-48BE-9771-30964EA46B62", "A registered error.");
template <> inline constexpr Identity identity<TErrIndex> = RecordNamed("TErrIndex",
    "9A30B0F5-F074-4449-8DCB-BBE5AF17C302", "The position of an entry of the error registry.");
template <> inline constexpr Identity identity<TPoint> = RecordNamed("TPoint",
    "7BC3AC09-E5E7-4310-911D-E277D98C8B59", "A point of a curve.");
template <> inline constexpr Identity identity<TTimeStamp> = RecordNamed("TTimeStamp",
    "930F9CBF-F0BF-46D0-8C54-8EBB29AE0190", "One instant, in universal and in local time.");
template <> inline constexpr Identity identity<TGuid> = RecordNamed("TGuid",
    "EA36107A-546A-4B14-A021-EC0925D8099C", "A globally unique identifier.");
template <> inline constexpr Identity identity<TCurveStyle> = RecordNamed("TCurveStyle",
    "AAEE1D77-22F9-416E-80D3-8F230505C94D", "How a curve is drawn.");
template <> inline constexpr Identity identity<TLabelStyle> = RecordNamed("TLabelStyle",
    "EE9DB986-5A16-45FD-8AB4-812E218D118D", "How a label of a graph is drawn.");
template <> inline constexpr Identity identity<TFontStyle> = RecordNamed("TFontStyle",
    "E90C40F2-7239-4473-BDFE-AE561AF51F2A", "A font as it is chosen in a dialog.");

template <> inline constexpr Identity identity<QZVarType> = EnumerationNamed("QZVarType",
    "40B2FB57-2C2C-4ABE-AC97-3DB3044B7A7E", "The value types.");
template <> inline constexpr Identity identity<QZCtrlType> = EnumerationNamed("QZCtrlType",
    "733F6CFB-C5A4-4E65-88E3-7298B8F51972", "The kinds of control that edit a value.");
template <> inline constexpr Identity identity<QZColor> = EnumerationNamed("QZColor",
    "A5977DDB-4C4B-4EE3-B77D-15A2D5963327", "The colours that have names.");
template <> inline constexpr Identity identity<TRegKey> = EnumerationNamed("TRegKey",
    "016B73A0-FC43-4076-8A86-C775AD23B622", "The roots of the registry store.");
template <> inline constexpr Identity identity<GraphLabel> = EnumerationNamed("GraphLabel",
    "4D5FE513-71DF-4E5F-A558-1A1897CF7969", "The labels of a graph.");
template <> inline constexpr Identity identity<GraphAxis> = EnumerationNamed("GraphAxis",
    "E73C1908-2FB1-45A5-AABB-CB82AC2CF0E0", "The axes of a graph.");
template <> inline constexpr Identity identity<BorderType> = EnumerationNamed("BorderType",
    "7FB27C51-AC10-4B4F-8CF0-10E2BA3D5FBE", "The borders of a graph or table.");
template <> inline constexpr Identity identity<GraphType3D> = EnumerationNamed("GraphType3D",
    "2EF50079-6AF3-4765-913D-BE3D537888EF", "The kinds of a 3-D graph.");

// clang-format on

// Classes by room: the tables of a room are compiled together.
using CoreClasses = TypeList<GCError, GCMath>;
using TextClasses = TypeList<GCStrings>;
using PersistClasses = TypeList<CBuffer>;
using DataClasses = TypeList<CDblVector, CLngVector, CStrVector, CBoolVector>;

using AllClasses = JoinLists<CoreClasses, TextClasses, PersistClasses, DataClasses>;
using AllRecords = TypeList<TErrDesc, TErrIndex, TPoint, TTimeStamp, TGuid, TCurveStyle, TLabelStyle, TFontStyle>;
using AllEnumerations =
    TypeList<QZVarType, QZCtrlType, QZColor, TRegKey, GraphLabel, GraphAxis, BorderType, GraphType3D>;

}  // namespace qzbase::automation
