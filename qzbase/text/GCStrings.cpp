#include "qzbase/text/GCStrings.h"

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/TextCompare.h"
#include "qzbase/text/ModString.h"
#include "qzbase/text/WordReplace.h"

namespace qzbase {
namespace {

constexpr std::size_t kNotFound = std::u16string_view::npos;

std::u16string_view TrimBlanks(std::u16string_view pText) {
  const std::size_t first = pText.find_first_not_of(u' ');
  return first == kNotFound ? std::u16string_view() : pText.substr(first, pText.find_last_not_of(u' ') - first + 1);
}

// How many characters in front of the trailing digits.
std::size_t RootLength(std::u16string_view pName) {
  std::size_t length = pName.size();
  while (length > 0 && runtime::IsDigitText(pName.substr(length - 1, 1))) --length;
  return length;
}

}  // namespace

std::u16string GCStrings::StripUnit(std::u16string_view VarName) {
  const std::size_t bracket = runtime::FindText(VarName, u"[");
  return std::u16string(bracket == kNotFound ? VarName : TrimBlanks(VarName.substr(0, bracket)));
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
  if (end == kNotFound) return {};
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

}  // namespace qzbase
