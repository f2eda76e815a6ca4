#include "qzbase/runtime/TextPattern.h"

#include <cstddef>
#include <cstdint>
#include <utility>

#include "qzbase/runtime/PatternPieces.h"

namespace qzbase::runtime {
namespace {

enum class LetterCase : std::uint8_t { AsIs, Small, Capital };

struct TextShape {
  std::size_t places = 0;
  LetterCase letters = LetterCase::AsIs;
  bool fromFirstPlace = false;
};

TextShape ReadShape(std::u16string_view pSection) noexcept {
  TextShape shape;
  PieceReader reader(pSection);
  for (Piece piece; reader.Next(piece);) {
    if (piece.kind == PieceKind::CharacterPlace) ++shape.places;
    if (piece.kind != PieceKind::TextMode) continue;
    if (piece.text == u"!")
      shape.fromFirstPlace = true;
    else
      shape.letters = piece.text == u"<" ? LetterCase::Small : LetterCase::Capital;
  }
  return shape;
}

// The alphabets of the Latin-1, Greek and Cyrillic ranges and the pairs of the Latin extension: every small letter
// between `first` and `last`, in steps, has its capital `distance` before it.
struct LetterRange {
  char16_t first, last;
  int step;
  int distance;
};

constexpr LetterRange kLetterRanges[] = {
    {u'\u00FF', u'\u00FF', 1, -121}, {u'a', u'z', 1, 32},           {u'\u00E0', u'\u00F6', 1, 32},
    {u'\u00F8', u'\u00FE', 1, 32},   {u'\u0101', u'\u012F', 2, 1},  {u'\u0133', u'\u0137', 2, 1},
    {u'\u013A', u'\u0148', 2, 1},    {u'\u014B', u'\u0177', 2, 1},  {u'\u017A', u'\u017E', 2, 1},
    {u'\u03B1', u'\u03C1', 1, 32},   {u'\u03C3', u'\u03CB', 1, 32}, {u'\u0430', u'\u044F', 1, 32},
    {u'\u0450', u'\u045F', 1, 80},
};

char16_t WithCase(char16_t pCharacter, LetterCase pLetters) noexcept {
  if (pLetters == LetterCase::AsIs) return pCharacter;
  for (const LetterRange& range : kLetterRanges) {
    const int shift = pLetters == LetterCase::Small ? range.distance : 0;
    const int small = pCharacter + shift;
    if (small < range.first || small > range.last || (small - range.first) % range.step != 0) continue;
    return static_cast<char16_t>(pLetters == LetterCase::Small ? small : small - range.distance);
  }
  return pCharacter;
}

class TextPrinter {
 public:
  TextPrinter(std::u16string_view pText, const TextShape& pShape) noexcept : rest_(pText), letters_(pShape.letters) {
    if (!pShape.fromFirstPlace && pShape.places > pText.size()) emptyPlaces_ = pShape.places - pText.size();
  }

  std::u16string Print(std::u16string_view pSection) {
    PieceReader reader(pSection);
    for (Piece piece; reader.Next(piece);) {
      if (piece.kind == PieceKind::CharacterPlace)
        PrintPlace(piece.text == u"@");
      else if (piece.kind != PieceKind::TextMode)
        result_ += piece.text;
    }
    while (!rest_.empty()) PrintNext();
    return std::move(result_);
  }

 private:
  void PrintPlace(bool pBlankWhenEmpty) {
    if (emptyPlaces_ == 0 && !rest_.empty()) return PrintNext();
    if (emptyPlaces_ > 0) --emptyPlaces_;
    if (pBlankWhenEmpty) result_ += u' ';
  }

  void PrintNext() {
    result_ += WithCase(rest_.front(), letters_);
    rest_.remove_prefix(1);
  }

  std::u16string result_;
  std::u16string_view rest_;
  LetterCase letters_;
  std::size_t emptyPlaces_ = 0;  // before the text begins
};

}  // namespace

std::u16string FormatText(std::u16string_view pText, std::u16string_view pPattern) {
  const PatternSections sections(pPattern);
  const bool second = pText.empty() && !sections.Section(1).empty();
  const std::u16string_view section = sections.Section(second ? 1 : 0);
  return TextPrinter(pText, ReadShape(section)).Print(section);
}

}  // namespace qzbase::runtime
