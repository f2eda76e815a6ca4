#include "qzbase/runtime/PatternPieces.h"

#include <algorithm>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::runtime {
namespace {

// The marks of more than one letter that make a date pattern.
constexpr std::u16string_view kDateWords[] = {u"ttttt", u"AM/PM", u"AMPM", u"A/P"};

std::size_t DateWordLength(std::u16string_view pRest) noexcept {
  for (const std::u16string_view word : kDateWords)
    if (EqualName(pRest.substr(0, word.size()), word)) return word.size();
  return 0;
}

// The length of "E+" or "E-" and the places behind it; 0 when the letter stands alone.
std::size_t ExponentLength(std::u16string_view pRest) noexcept {
  if (pRest.size() < 2 || (pRest[1] != u'+' && pRest[1] != u'-')) return 0;
  return std::min(pRest.find_first_not_of(u"0#", 2), pRest.size());
}

struct KindOfCharacters {
  PieceKind kind;
  std::u16string_view characters;
};

constexpr KindOfCharacters kKinds[] = {
    {PieceKind::ZeroPlace, u"0"},       {PieceKind::DigitPlace, u"#"},
    {PieceKind::Point, u"."},           {PieceKind::Comma, u","},
    {PieceKind::Percent, u"%"},         {PieceKind::NextSection, u";"},
    {PieceKind::DateDelimiter, u"/:"},  {PieceKind::DateLetter, u"cdhmnqswyCDHMNQSWY"},
    {PieceKind::CharacterPlace, u"@&"}, {PieceKind::TextMode, u"<>!"},
};

constexpr std::array<PieceKind, 128> kKindOfAscii = [] {
  std::array<PieceKind, 128> kinds{};  // literals
  for (const KindOfCharacters& row : kKinds)
    for (const char16_t character : row.characters) kinds[character] = row.kind;
  return kinds;
}();

PieceKind KindOfCharacter(char16_t pCharacter) noexcept {
  return pCharacter < kKindOfAscii.size() ? kKindOfAscii[pCharacter] : PieceKind::Literal;
}

}  // namespace

bool PieceReader::Next(Piece& pPiece) noexcept {
  if (position_ >= pattern_.size()) return false;
  const std::u16string_view rest = pattern_.substr(position_);
  switch (rest.front()) {
    case u'"':
      pPiece = TakeQuoted();
      return true;
    case u'\\':
      ++position_;
      pPiece = Take(PieceKind::Literal, std::min<std::size_t>(1, rest.size() - 1));
      return true;
    case u'E':
    case u'e':
      if (const std::size_t length = ExponentLength(rest)) return pPiece = Take(PieceKind::Exponent, length), true;
      break;
    case u'A':
    case u'a':
    case u'T':
    case u't':
      if (const std::size_t length = DateWordLength(rest)) return pPiece = Take(PieceKind::DateLetter, length), true;
      break;
    default:
      break;
  }
  pPiece = Take(KindOfCharacter(rest.front()), 1);
  return true;
}

Piece PieceReader::Take(PieceKind pKind, std::size_t pLength) noexcept {
  const Piece piece{pKind, pattern_.substr(position_, pLength)};
  position_ += pLength;
  return piece;
}

// A quote that is not closed reaches to the end.
Piece PieceReader::TakeQuoted() noexcept {
  ++position_;
  const std::size_t end = std::min(pattern_.find(u'"', position_), pattern_.size());
  const Piece piece = Take(PieceKind::Literal, end - position_);
  position_ = std::min(end + 1, pattern_.size());
  return piece;
}

PatternSections::PatternSections(std::u16string_view pPattern) {
  if (pPattern.find(u';') == std::u16string_view::npos) {
    sections_[0] = pPattern;
    return;
  }
  PieceReader reader(pPattern);
  std::size_t index = 0;
  std::size_t begin = 0;
  for (Piece piece; reader.Next(piece);) {
    if (piece.kind != PieceKind::NextSection) continue;
    sections_[index] = pPattern.substr(begin, reader.Position() - 1 - begin);
    begin = reader.Position();
    if (++index == kMaxSections) Raise(RuntimeError::InvalidArgument);
  }
  sections_[index] = pPattern.substr(begin);
}

namespace {

PatternKind KindOfSection(std::u16string_view pSection) noexcept {
  PieceReader reader(pSection);
  PatternKind kind = PatternKind::Literal;
  for (Piece piece; reader.Next(piece);) {
    switch (piece.kind) {
      case PieceKind::ZeroPlace:
      case PieceKind::DigitPlace:
      case PieceKind::Point:
        return PatternKind::Number;
      case PieceKind::DateLetter:
        return PatternKind::Date;
      case PieceKind::DateDelimiter:
        kind = PatternKind::Date;
        break;  // unless a placeholder follows: "/0"
      case PieceKind::CharacterPlace:
      case PieceKind::TextMode:
        return PatternKind::Text;
      default:
        break;
    }
  }
  return kind;
}

}  // namespace

// After a section for numbers come only such: in "0;[Red]0" the "d" is no date letter. Text patterns are known by their
// first section.
PatternKind PatternSections::Kind(std::size_t pIndex) const noexcept {
  for (std::size_t index = 0; index < pIndex; ++index)
    if (KindOfSection(sections_[index]) == PatternKind::Number) return PatternKind::Number;
  const PatternKind kind = KindOfSection(sections_[pIndex]);
  return kind == PatternKind::Text && pIndex > 0 ? PatternKind::Literal : kind;
}

std::size_t PatternSections::IndexFor(double pValue) const noexcept {
  const std::size_t index = pValue > 0 ? 0 : pValue < 0 ? 1 : 2;
  return sections_[index].empty() ? 0 : index;
}

}  // namespace qzbase::runtime
