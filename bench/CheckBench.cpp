// Texts that users type, and texts that they are shown: the library beside the least code that gives the same answer
// ("limit") and beside ICU.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>
#include <unicode/dcfmtsym.h>
#include <unicode/decimfmt.h>

#include "qzbase/desc/TEntryDesc.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/text/GCConvert.h"
#include "qzbase/text/GCStrings.h"

namespace {

using namespace qzbase;

constexpr std::size_t kTexts = 100'000;

runtime::LocaleRules CommaRules() {
  runtime::LocaleRules rules;
  rules.decimal = u",";
  rules.thousands = u".";
  return rules;
}

// Values between 0 and 1000 on a grid of so many parts, as a user types them with a decimal comma.
std::vector<std::u16string> TypedTexts(int pParts) {
  std::mt19937_64 random(3);
  std::uniform_int_distribution<int> part(0, 1000 * pParts);
  std::vector<std::u16string> texts;
  texts.reserve(kTexts);
  for (std::size_t i = 0; i < kTexts; ++i) {
    char bytes[32];
    const double value = static_cast<double>(part(random)) / pParts;
    const auto end = std::to_chars(bytes, bytes + sizeof bytes, value, std::chars_format::fixed);
    std::u16string& text = texts.emplace_back(bytes, end.ptr);
    for (char16_t& c : text)
      if (c == u'.') c = u',';
  }
  return texts;
}

// Not-a-number for what is no number.
double FromTyped(std::u16string_view pText) {
  char bytes[64];
  if (pText.size() > sizeof bytes) return std::nan("");
  char* end = bytes;
  for (const char16_t c : pText) *end++ = c == u',' ? '.' : static_cast<char>(c);
  double value = 0;
  return std::from_chars(bytes, end, value).ptr == end ? value : std::nan("");
}

using Icu = std::unique_ptr<icu::DecimalFormat>;

Icu IcuFormat(const icu::Locale& pLocale, const char16_t* pPattern, int pFigures = 0) {
  UErrorCode status = U_ZERO_ERROR;
  auto format = std::make_unique<icu::DecimalFormat>(icu::UnicodeString(pPattern),
                                                     new icu::DecimalFormatSymbols(pLocale, status), status);
  if (pFigures > 0) {
    format->setSignificantDigitsUsed(true);
    format->setMinimumSignificantDigits(pFigures);
    format->setMaximumSignificantDigits(pFigures);
  }
  return format;
}

double FromIcu(const icu::DecimalFormat& pFormat, std::u16string_view pText) {
  icu::Formattable value;
  UErrorCode status = U_ZERO_ERROR;
  pFormat.parse(icu::UnicodeString(false, pText.data(), static_cast<std::int32_t>(pText.size())), value, status);
  return value.getDouble(status);
}

// ---- A number against a range and a step: quarters are whole steps as they stand, of tenths the texts have to tell.

bool SameText(double pLeft, double pRight) {
  char left[32];
  char right[32];
  const auto endLeft = std::to_chars(left, left + sizeof left, pLeft, std::chars_format::general, 15);
  const auto endRight = std::to_chars(right, right + sizeof right, pRight, std::chars_format::general, 15);
  return std::string_view(left, endLeft.ptr) == std::string_view(right, endRight.ptr);
}

// `pTyped` reads what the user types, `pPlain` the numbers of the range.
template <class Typed, class Plain>
bool IsAllowed(std::u16string_view pText, std::u16string_view pRange, std::u16string_view pStep, Typed pTyped,
               Plain pPlain) {
  const double value = pTyped(pText);
  const std::size_t middle = pRange.find(u';');
  const double low = pPlain(pRange.substr(1, middle - 1));
  const double high = pPlain(pRange.substr(middle + 1, pRange.size() - middle - 2));
  if (!(low <= value && value <= high)) return false;
  const double steps = (value - low) / pPlain(pStep);
  const double whole = std::nearbyint(steps);
  return whole == steps || SameText(whole, steps);
}

constexpr std::u16string_view kRange = u"[0;1000]";

void CheckLimit(benchmark::State& pState, int pParts, std::u16string_view pStep) {
  const auto texts = TypedTexts(pParts);
  for (auto _ : pState)
    for (const auto& text : texts)
      if (!IsAllowed(text, kRange, pStep, FromTyped, FromTyped)) pState.SkipWithError("refused");
}

void CheckLibrary(benchmark::State& pState, int pParts, std::u16string_view pStep) {
  const auto texts = TypedTexts(pParts);
  const runtime::ScopedLocale comma(CommaRules());
  TEntryDesc desc;
  desc.LetVarType(EVTDouble);
  desc.LetRange(kRange);
  desc.LetInterval(pStep);
  for (auto _ : pState)
    for (const auto& text : texts) GCConvert::CheckValueED(text, desc);  // raises where it refuses
}

void CheckIcu(benchmark::State& pState, int pParts, std::u16string_view pStep) {
  const auto texts = TypedTexts(pParts);
  const Icu comma = IcuFormat(icu::Locale("de", "DE"), u"0.00");
  const Icu plain = IcuFormat(icu::Locale::getRoot(), u"0.00");
  const auto typed = [&](std::u16string_view pText) { return FromIcu(*comma, pText); };
  const auto number = [&](std::u16string_view pText) { return FromIcu(*plain, pText); };
  for (auto _ : pState)
    for (const auto& text : texts)
      if (!IsAllowed(text, kRange, pStep, typed, number)) pState.SkipWithError("refused");
}

BENCHMARK_CAPTURE(CheckLimit, quarters, 4, u"0.25")->Name("CheckQuarters/limit")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CheckLibrary, quarters, 4, u"0.25")
    ->Name("CheckQuarters/CheckValueED")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CheckIcu, quarters, 4, u"0.25")->Name("CheckQuarters/ICU")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CheckLimit, tenths, 10, u"0.1")->Name("CheckTenths/limit")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CheckLibrary, tenths, 10, u"0.1")->Name("CheckTenths/CheckValueED")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CheckIcu, tenths, 10, u"0.1")->Name("CheckTenths/ICU")->Unit(benchmark::kMillisecond);

// ---- A number to text. Every text is compared with that of the library once.

std::vector<double> ShownValues() {
  std::mt19937_64 random(5);
  std::uniform_real_distribution<double> value(-10'000, 10'000);
  std::vector<double> values(kTexts);
  for (double& each : values) each = value(random);
  return values;
}

std::u16string FixedText(double pValue, int pDecimals) {
  char bytes[64];
  const auto end = std::to_chars(bytes, bytes + sizeof bytes, pValue, std::chars_format::fixed, pDecimals);
  std::u16string text(bytes, end.ptr);
  if (pDecimals > 0) text[text.size() - static_cast<std::size_t>(pDecimals) - 1] = u',';
  return text;
}

std::u16string FiguresText(double pValue, int pFigures) {
  constexpr double kPowers[] = {1e-4, 1e-3, 1e-2, 1e-1, 1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8};
  const int decimals = pFigures - static_cast<int>(std::log10(std::fabs(pValue))) - 1;
  const double power = kPowers[4 + decimals];
  return FixedText(std::round(pValue * power) / power, std::max(decimals, 0));
}

template <class ToText>
void Format(benchmark::State& pState, std::u16string_view pFormat, ToText pToText) {
  const auto values = ShownValues();
  const runtime::ScopedLocale comma(CommaRules());
  for (const double value : values)
    if (pToText(value) != GCConvert::DoubleToString(value, pFormat)) return pState.SkipWithError("another text");
  for (auto _ : pState)
    for (const double value : values) benchmark::DoNotOptimize(pToText(value));
}

void FormatLibrary(benchmark::State& pState, std::u16string_view pFormat) {
  Format(pState, pFormat, [&](double pValue) { return GCConvert::DoubleToString(pValue, pFormat); });
}

void FormatIcu(benchmark::State& pState, const Icu& pFormat) {
  const auto values = ShownValues();
  for (auto _ : pState)
    for (const double value : values) {
      icu::UnicodeString text;
      pFormat->format(value, text);
      benchmark::DoNotOptimize(text.getBuffer());
    }
}

void FixedLimit(benchmark::State& pState) {
  Format(pState, u"0.00", [](double pValue) { return FixedText(pValue, 2); });
}
void FixedIcu(benchmark::State& pState) {
  FormatIcu(pState, IcuFormat(icu::Locale("de", "DE"), u"0.00"));
}
BENCHMARK(FixedLimit)->Name("FormatFixed/limit")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FormatLibrary, fixed, u"0.00")->Name("FormatFixed/DoubleToString")->Unit(benchmark::kMillisecond);
BENCHMARK(FixedIcu)->Name("FormatFixed/ICU")->Unit(benchmark::kMillisecond);

void FiguresLimit(benchmark::State& pState) {
  Format(pState, u"SF3", [](double pValue) { return FiguresText(pValue, 3); });
}
void FiguresIcu(benchmark::State& pState) {
  FormatIcu(pState, IcuFormat(icu::Locale("de", "DE"), u"0", 3));
}
BENCHMARK(FiguresLimit)->Name("FormatFigures/limit")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FormatLibrary, figures, u"SF3")->Name("FormatFigures/DoubleToString")->Unit(benchmark::kMillisecond);
BENCHMARK(FiguresIcu)->Name("FormatFigures/ICU")->Unit(benchmark::kMillisecond);

// ---- Text to a number.

void ReadLimit(benchmark::State& pState) {
  const auto texts = TypedTexts(4);
  for (auto _ : pState)
    for (const auto& text : texts) benchmark::DoNotOptimize(FromTyped(text));
}
BENCHMARK(ReadLimit)->Name("ReadTyped/limit")->Unit(benchmark::kMillisecond);

void Read(benchmark::State& pState) {
  const auto texts = TypedTexts(4);
  const runtime::ScopedLocale comma(CommaRules());
  for (auto _ : pState)
    for (const auto& text : texts) benchmark::DoNotOptimize(GCConvert::StringToDouble(text));
}
BENCHMARK(Read)->Name("ReadTyped/StringToDouble")->Unit(benchmark::kMillisecond);

void ReadIcu(benchmark::State& pState) {
  const auto texts = TypedTexts(4);
  const Icu comma = IcuFormat(icu::Locale("de", "DE"), u"0.00");
  for (auto _ : pState)
    for (const auto& text : texts) benchmark::DoNotOptimize(FromIcu(*comma, text));
}
BENCHMARK(ReadIcu)->Name("ReadTyped/ICU")->Unit(benchmark::kMillisecond);

// ---- An item of an enumeration of ten. ICU has nothing of the kind.

constexpr std::u16string_view kWords = u"{zero;one;two;three;four;five;six;seven;eight;nine}";
constexpr std::u16string_view kSought[] = {u"zero", u"nine", u"four", u"seven", u"ten"};

std::int32_t Position(std::u16string_view pItem, std::u16string_view pRange) {
  pRange = pRange.substr(1, pRange.size() - 2);
  for (std::int32_t position = 1;; ++position) {
    const std::size_t end = pRange.find(u';');
    if (pRange.substr(0, end) == pItem) return position;
    if (end == std::u16string_view::npos) return -1;
    pRange.remove_prefix(end + 1);
  }
}

void WordLimit(benchmark::State& pState) {
  for (auto _ : pState)
    for (const auto word : kSought) benchmark::DoNotOptimize(Position(word, kWords));
}
BENCHMARK(WordLimit)->Name("EnumOrd/limit");

void Word(benchmark::State& pState) {
  for (auto _ : pState)
    for (const auto word : kSought) benchmark::DoNotOptimize(GCStrings::EnumOrd(word, kWords));
}
BENCHMARK(Word)->Name("EnumOrd/EnumOrd");

}  // namespace
