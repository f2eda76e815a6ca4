// Tokens, lines, words, units and name indices; range strings and enumerations.
//
//   StripUnit(u"Temperature [degC]")     "Temperature"
//   GetNameIndex(u"Channel12")           "12"
//   StrReplace(u"aaa", u"a", u"aa")      "aaaaaa"
//   EnumOrd(u"b", u"{a;b;c}")            2
//   IsInRange(0.3, u"[0;1]", u"0.1")     true
//
// Positions count characters and items from 1. Texts raise nothing, but for `GetNextLine` and numbers too large.
// Searches are exact in `ParseString`, `GetNextToken`, `StripFirstToken`, `StrReplace` and `EnumOrd`, and by text
// comparison (the locale's, ignoring case) elsewhere.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/runtime/Array.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class GCStrings : public runtime::Object {
 public:
  // A display name without its unit suffix, and the suffix to append to one: " [degC]", or nothing for no unit.
  static std::u16string StripUnit(std::u16string_view VarName);
  static std::u16string FormatUnit(std::u16string_view Unit);

  // See ModString::SplitList.
  static std::int32_t ParseString(std::u16string_view Source, std::u16string_view delim,
                                  runtime::Array<std::u16string>& Item);

  // The line that starts at `ActPos`, up to the next carriage return, behind which `ActPos` is put. A line feed there
  // begins the next line. Without another carriage return the result is empty and `ActPos` stays: the text behind the
  // last one is no line. Raises error 5 when `ActPos` is below 1.
  static std::u16string GetNextLine(std::u16string_view Source, std::int32_t& ActPos);

  // See ModString::TakeToken: what is left behind the first token; the first token, removed from `Source`.
  static std::u16string StripFirstToken(std::u16string_view pSrc, std::u16string_view pDelim);
  static std::u16string GetNextToken(std::u16string& Source, std::u16string_view delim);

  // See WordReplace.h.
  static std::u16string ReplaceWord(std::u16string_view pString, std::u16string_view pOld, std::u16string_view pNew);
  static std::u16string NrDelimReplace(std::u16string_view Source, std::u16string_view OldDelim,
                                       std::u16string_view NewDelim);

  // See ModString::ReplaceAll.
  static std::u16string StrReplace(std::u16string_view Source, std::u16string_view OldStr, std::u16string_view NewStr);

  // "Channel007": the trailing digits "007", a number format "000" that keeps an index's leading zeros, and the root
  // "Channel".
  static std::u16string GetNameIndex(std::u16string_view Name);
  static std::u16string IndexFormat(std::u16string_view Index);
  static std::u16string GetNameRoot(std::u16string_view Name);

  // The character at a position, or nothing where there is none.
  static std::u16string GetChar(std::u16string_view InVal, std::int32_t Pos);

  // See EnumRange.h: enumerations and lists of numbers, made, read and asked.
  static void InitEnumRange(std::u16string& pRange);
  static void FinalizeEnumRange(std::u16string& pRange);
  static std::u16string MakeEnumRange(const runtime::Array<std::u16string>& Item, std::u16string_view FirstItem = {});
  static std::int32_t ParseEnumRange(std::u16string_view Range, runtime::Array<std::u16string>& Item);
  static std::int32_t EnumOrd(std::u16string_view Item, std::u16string_view Range);
  static std::u16string EnumVal(std::int32_t ItemNr, std::u16string_view Range);
  static std::u16string MakeValueList(const runtime::Array<double>& Value);
  static std::int32_t ParseValueList(std::u16string_view List, runtime::Array<double>& Value);
  static bool IsMember(std::u16string_view Value, std::u16string_view Range);
  static bool IsList(std::u16string_view Range);
  static bool IsCombo(std::u16string_view Range);

  // See RangeString.h: range strings tested and shown; a number tested against a range.
  static std::int32_t CheckRangeStringValid(std::u16string_view Range);
  static std::u16string HumanReadable(std::u16string_view Range);
  static bool IsInRange(double Value, std::u16string_view Range, std::u16string_view Step);
};

}  // namespace qzbase
