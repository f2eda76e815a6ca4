// The pieces that patterns are made of, for numbers and for texts alike.
//
//   #,##0.00 "kg";\-0   ->   # , # # 0 . 0 0, literal " ", literal "kg", next section, literal "-", 0
//
// A pattern has up to four sections, divided by ";". What a section is for (numbers, dates, texts) is said by the first
// placeholder in it; the letters of other kinds are literals from then on: "0.00 mm" is a number pattern. Nothing is
// stored: a pattern is short, and reading it again is cheaper than keeping a list.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qzbase::runtime {

enum class PieceKind : std::uint8_t {
  Literal,         // text in quotes, a character behind "\" or one that means nothing
  ZeroPlace,       // "0"
  DigitPlace,      // "#"
  Point,           // "."
  Comma,           // ","
  Percent,         // "%"
  Exponent,        // "E+00", "e-0": the places belong to the piece
  DateLetter,      // one of c d h m n q s w y, "ttttt", "am/pm", "a/p", "ampm"
  DateDelimiter,   // "/", ":"
  CharacterPlace,  // "@", "&"
  TextMode,        // "<", ">", "!"
  NextSection,     // ";"
};

struct Piece {
  PieceKind kind = PieceKind::Literal;
  std::u16string_view text;  // what stands in the pattern, without quotes and "\"
};

class PieceReader {
 public:
  explicit PieceReader(std::u16string_view pPattern) noexcept : pattern_(pPattern) {}

  // False at the end of the pattern.
  bool Next(Piece& pPiece) noexcept;

  // Where the next piece begins, counted from 0.
  std::size_t Position() const noexcept { return position_; }

 private:
  Piece Take(PieceKind pKind, std::size_t pLength) noexcept;
  Piece TakeQuoted() noexcept;

  std::u16string_view pattern_;
  std::size_t position_ = 0;
};

enum class PatternKind : std::uint8_t { Literal, Number, Date, Text };

class PatternSections {
 public:
  static constexpr std::size_t kMaxSections = 4;

  // Keeps the view. Raises error 5 when the pattern has more than four sections.
  explicit PatternSections(std::u16string_view pPattern);

  // Sections are counted from 0; one that is missing is empty.
  std::u16string_view Section(std::size_t pIndex) const noexcept { return sections_[pIndex]; }
  PatternKind Kind(std::size_t pIndex) const noexcept;

  // The section of a number: 0 positive, 1 negative, 2 zero; 0 also for one whose own section is missing or empty.
  std::size_t IndexFor(double pValue) const noexcept;

 private:
  std::array<std::u16string_view, kMaxSections> sections_{};
};

}  // namespace qzbase::runtime
