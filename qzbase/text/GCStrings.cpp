#include "qzbase/text/GCStrings.h"

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/TextCompare.h"
#include "qzbase/text/EnumRange.h"
#include "qzbase/text/ModString.h"
#include "qzbase/text/RangeString.h"
#include "qzbase/text/WordReplace.h"

namespace qzbase {
namespace {

// How many characters in front of the trailing digits.
std::size_t RootLength(std::u16string_view pName) {
  std::size_t length = pName.size();
  while (length > 0 && runtime::IsDigitText(pName.substr(length - 1, 1))) --length;
  return length;
}

}  // namespace

std::u16string GCStrings::StripUnit(std::u16string_view VarName) {
  const std::size_t bracket = runtime::FindText(VarName, u"[");
  return std::u16string(bracket == std::u16string_view::npos ? VarName
                                                             : ModString::TrimBlanks(VarName.substr(0, bracket)));
}

std::u16string GCStrings::FormatUnit(std::u16string_view Unit) {
  if (Unit.empty()) return {};
  return std::u16string(u" [").append(Unit).append(u"]");
}

std::int32_t GCStrings::ParseString(std::u16string_view Source, std::u16string_view delim,
                                    runtime::Array<std::u16string>& Item) {
  return ModString::SplitList(Source, delim, Item);
}

std::u16string GCStrings::GetNextLine(std::u16string_view Source, std::int32_t& ActPos) {
  if (ActPos < 1) runtime::Raise(runtime::RuntimeError::InvalidArgument);
  const auto start = static_cast<std::size_t>(ActPos) - 1;
  if (start >= Source.size()) return {};
  const std::size_t end = runtime::FindText(Source, u"\r", start);
  if (end == std::u16string_view::npos) return {};
  ActPos += static_cast<std::int32_t>(end - start) + 1;
  return std::u16string(Source.substr(start, end - start));
}

std::u16string GCStrings::StripFirstToken(std::u16string_view pSrc, std::u16string_view pDelim) {
  ModString::TakeToken(pSrc, pDelim);
  return std::u16string(pSrc);
}

std::u16string GCStrings::GetNextToken(std::u16string& Source, std::u16string_view delim) {
  return ModString::TakeToken(Source, delim);
}

std::u16string GCStrings::ReplaceWord(std::u16string_view pString, std::u16string_view pOld, std::u16string_view pNew) {
  return qzbase::ReplaceWord(pString, pOld, pNew);
}

std::u16string GCStrings::NrDelimReplace(std::u16string_view Source, std::u16string_view OldDelim,
                                         std::u16string_view NewDelim) {
  return ReplaceNumberDelimiter(Source, OldDelim, NewDelim);
}

std::u16string GCStrings::StrReplace(std::u16string_view Source, std::u16string_view OldStr,
                                     std::u16string_view NewStr) {
  return ModString::ReplaceAll(Source, OldStr, NewStr);
}

std::u16string GCStrings::GetNameIndex(std::u16string_view Name) {
  return std::u16string(Name.substr(RootLength(Name)));
}

std::u16string GCStrings::IndexFormat(std::u16string_view Index) {
  return std::u16string(Index.size(), u'0');
}

std::u16string GCStrings::GetNameRoot(std::u16string_view Name) {
  return std::u16string(Name.substr(0, RootLength(Name)));
}

std::u16string GCStrings::GetChar(std::u16string_view InVal, std::int32_t Pos) {
  if (Pos < 1) return {};
  const auto index = static_cast<std::size_t>(Pos) - 1;
  return index < InVal.size() ? std::u16string(1, InVal[index]) : std::u16string();
}

void GCStrings::InitEnumRange(std::u16string& pRange) {
  ModString::InitEnumRange(pRange);
}

void GCStrings::FinalizeEnumRange(std::u16string& pRange) {
  ModString::FinalizeEnumRange(pRange);
}

std::u16string GCStrings::MakeEnumRange(const runtime::Array<std::u16string>& Item, std::u16string_view FirstItem) {
  return ModString::MakeEnumRange(Item, FirstItem);
}

std::int32_t GCStrings::ParseEnumRange(std::u16string_view Range, runtime::Array<std::u16string>& Item) {
  return ModString::ParseEnumRange(Range, Item);
}

std::int32_t GCStrings::EnumOrd(std::u16string_view Item, std::u16string_view Range) {
  return ModString::EnumOrd(Item, Range);
}

std::u16string GCStrings::EnumVal(std::int32_t ItemNr, std::u16string_view Range) {
  return ModString::EnumVal(ItemNr, Range);
}

std::u16string GCStrings::MakeValueList(const runtime::Array<double>& Value) {
  return ModString::MakeValueList(Value);
}

std::int32_t GCStrings::ParseValueList(std::u16string_view List, runtime::Array<double>& Value) {
  return ModString::ParseValueList(List, Value);
}

bool GCStrings::IsMember(std::u16string_view Value, std::u16string_view Range) {
  return ModString::IsMember(Value, Range);
}

bool GCStrings::IsList(std::u16string_view Range) {
  return ModString::IsList(Range);
}

bool GCStrings::IsCombo(std::u16string_view Range) {
  return ModString::IsCombo(Range);
}

std::int32_t GCStrings::CheckRangeStringValid(std::u16string_view Range) {
  return ModString::CheckRangeStringValid(Range);
}

std::u16string GCStrings::HumanReadable(std::u16string_view Range) {
  return ModString::HumanReadable(Range);
}

bool GCStrings::IsInRange(double Value, std::u16string_view Range, std::u16string_view Step) {
  return ModString::IsInRange(Value, Range, Step);
}

}  // namespace qzbase
