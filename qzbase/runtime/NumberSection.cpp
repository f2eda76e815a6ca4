// Two walks over the pieces of the section: one counts the places, the other prints them.
//
// - Commas between digit places group the digits by thousands; commas behind the last place of the integer or of the
//   decimals divide the number by thousand each; commas before the first place are literals.
// - Every "%" multiplies by hundred, wherever it stands.
// - Digits that find no place of their own stand with the first place, or before the point when there is none.
// - An exponent pattern fills all its integer places; only zero leaves the optional ones out.
#include "qzbase/runtime/NumberSection.h"

#include <algorithm>

#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/PatternPieces.h"

namespace qzbase::runtime {
namespace {

struct Shape {
  std::int32_t integerPlaces = 0;
  std::int32_t integerDigits = 0;  // printed at least: the places from the first "0" on
  std::int32_t decimalPlaces = 0;
  std::int32_t decimals = 0;  // printed at least: the places up to the last "0"
  std::int32_t scale = 0;     // the number is multiplied by 10 to this power
  bool grouped = false;
  bool exponent = false;
  bool point = false;

  bool HasPlaces() const noexcept { return integerPlaces + decimalPlaces > 0; }
};

class ShapeReader {
 public:
  explicit ShapeReader(std::u16string_view pSection) noexcept {
    PieceReader reader(pSection);
    for (Piece piece; reader.Next(piece);) Read(piece);
    EndPart();
  }

  const Shape& Result() const noexcept { return shape_; }

 private:
  void Read(const Piece& pPiece) noexcept {
    switch (pPiece.kind) {
      case PieceKind::ZeroPlace:
      case PieceKind::DigitPlace:
        return ReadPlace(pPiece.kind == PieceKind::ZeroPlace);
      case PieceKind::Comma:
        if (shape_.HasPlaces()) ++commas_;
        return;
      case PieceKind::Percent:
        shape_.scale += 2;
        return;
      case PieceKind::Point:
        if (!shape_.point) EndPart();
        shape_.point = true;
        return;
      case PieceKind::Exponent:
        shape_.exponent |= shape_.HasPlaces();
        return;
      default:
        return;
    }
  }

  void ReadPlace(bool pZero) noexcept {
    if (commas_ > 0) {
      shape_.grouped = true;
      shape_.scale -= 3 * (commas_ - 1);
      commas_ = 0;
    }
    if (shape_.point) {
      ++shape_.decimalPlaces;
      if (pZero) shape_.decimals = shape_.decimalPlaces;
    } else {
      ++shape_.integerPlaces;
      if (pZero || shape_.integerDigits > 0) ++shape_.integerDigits;
    }
  }

  void EndPart() noexcept {
    shape_.scale -= 3 * commas_;
    commas_ = 0;
  }

  Shape shape_;
  std::int32_t commas_ = 0;  // since the last place
};

// Rounds to the places of the shape. With an exponent the number is first moved so that it fills the integer places;
// the power of ten that was taken out is the result.
std::int32_t Round(DecimalDigits& pDigits, const Shape& pShape) noexcept {
  pDigits.Scale(pShape.scale);
  if (!pShape.exponent || pDigits.IsZero()) {
    pDigits.RoundHalfAway(pShape.decimalPlaces);
    return 0;
  }
  std::int32_t exponent = pDigits.Point() - pShape.integerPlaces;
  pDigits.Scale(-exponent);
  pDigits.RoundHalfAway(pShape.decimalPlaces);
  if (pDigits.Point() > pShape.integerPlaces) {  // 9.99 became 10
    ++exponent;
    pDigits.Scale(-1);
  }
  return exponent;
}

// Characters that the number may need beyond those of its section.
std::size_t RoomForDigits(const DecimalDigits& pDigits, const Shape& pShape) noexcept {
  const std::int32_t extraDigits = std::max(pDigits.Point() - pShape.integerPlaces, 0);
  const std::int32_t delimiters = pShape.grouped ? pDigits.Point() / 3 : 0;
  return static_cast<std::size_t>(extraDigits + std::max(delimiters, 0));
}

class SectionPrinter {
 public:
  SectionPrinter(std::u16string& pText, const DecimalDigits& pDigits, const Shape& pShape, std::int32_t pExponent,
                 const LocaleRules& pRules) noexcept
      : text_(pText),
        digits_(pDigits),
        shape_(pShape),
        rules_(pRules),
        exponent_(pExponent),
        integerDigits_(std::max(pShape.integerDigits, pDigits.Point())),
        decimals_(std::max(pShape.decimals, static_cast<std::int32_t>(pDigits.Digits().size()) - pDigits.Point())) {}

  void Print(const Piece& pPiece) {
    switch (pPiece.kind) {
      case PieceKind::ZeroPlace:
      case PieceKind::DigitPlace:
        return PrintPlace();
      case PieceKind::Comma:
        if (places_ == 0) text_ += pPiece.text;
        return;
      case PieceKind::Point:
        return PrintPoint();
      case PieceKind::Exponent:
        return PrintExponent(pPiece.text);
      default:
        text_ += pPiece.text;
        return;
    }
  }

 private:
  void PrintPlace() {
    ++places_;
    if (pastPoint_) {
      const std::int32_t decimal = places_ - shape_.integerPlaces;
      if (decimal <= decimals_) text_ += static_cast<char16_t>(digits_.DigitAt(-decimal));
    } else {
      PrintIntegerDigits(shape_.integerPlaces - places_);
    }
  }

  // The digits left of the place before, down to that of 10^pPower.
  void PrintIntegerDigits(std::int32_t pPower) {
    const std::int32_t first = places_ <= 1 ? integerDigits_ - 1 : std::min(pPower, integerDigits_ - 1);
    for (std::int32_t power = first; power >= pPower; --power) {
      text_ += static_cast<char16_t>(digits_.DigitAt(power));
      if (shape_.grouped && power > 0 && power % 3 == 0) text_ += rules_.thousands;
    }
  }

  void PrintPoint() {
    if (pastPoint_) {
      text_ += u'.';
      return;
    }
    pastPoint_ = true;
    if (shape_.integerPlaces == 0 && shape_.HasPlaces()) PrintIntegerDigits(0);
    text_ += rules_.decimal;
  }

  // "E+00": always a sign and at least two digits; "E-0": a sign only for negative exponents.
  void PrintExponent(std::u16string_view pPiece) {
    if (places_ == 0 || exponentDone_) {
      text_ += pPiece;
      return;
    }
    exponentDone_ = true;
    text_ += pPiece[0];
    if (exponent_ < 0)
      text_ += u'-';
    else if (pPiece[1] == u'+')
      text_ += u'+';
    const std::size_t begin = text_.size();
    AppendNumberText(text_, exponent_ < 0 ? -exponent_ : exponent_);
    const std::size_t digits = text_.size() - begin;
    const std::size_t places = pPiece.size() - 2;
    if (digits < places) text_.insert(begin, places - digits, u'0');
  }

  std::u16string& text_;
  const DecimalDigits& digits_;
  const Shape& shape_;
  const LocaleRules& rules_;
  std::int32_t exponent_;
  std::int32_t integerDigits_;  // to print in all
  std::int32_t decimals_;
  std::int32_t places_ = 0;  // printed so far
  bool pastPoint_ = false;
  bool exponentDone_ = false;
};

}  // namespace

void AppendNumber(std::u16string& pText, DecimalDigits pDigits, std::u16string_view pSection, SignRule pSign,
                  const LocaleRules& pRules) {
  const Shape shape = ShapeReader(pSection).Result();
  const bool minus = pSign == SignRule::Minus && pDigits.IsNegative() && !pDigits.IsZero() && shape.HasPlaces();
  const std::int32_t exponent = Round(pDigits, shape);
  pText.reserve(pText.size() + pSection.size() + RoomForDigits(pDigits, shape));
  if (minus) pText += u'-';
  SectionPrinter printer(pText, pDigits, shape, exponent, pRules);
  PieceReader reader(pSection);
  for (Piece piece; reader.Next(piece);) printer.Print(piece);
}

}  // namespace qzbase::runtime
