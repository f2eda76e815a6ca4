// Texts that users type, and texts that they are shown: the library beside the least code that gives the same answer
// ("limit") and beside ICU.
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

// Values on the grid of 0.25 between 0 and 1000, as a user types them with a decimal comma.
std::vector<std::u16string> TypedTexts() {
  std::mt19937_64 random(3);
  std::uniform_int_distribution<int> quarter(0, 4000);
  std::vector<std::u16string> texts;
  texts.reserve(kTexts);
  for (std::size_t i = 0; i < kTexts; ++i) {
    char bytes[32];
    const double value = quarter(random) / 4.0;
    const auto end = std::to_chars(bytes, bytes + sizeof bytes, value, std::chars_format::fixed);
    std::u16string& text = texts.emplace_back(bytes, end.ptr);
    for (char16_t& c : text)
      if (c == u'.') c = u',';
  }
  return texts;
}

std::vector<double> ShownValues() {
  std::mt19937_64 random(5);
  std::uniform_real_distribution<double> value(-10'000, 10'000);
  std::vector<double> values(kTexts);
  for (double& each : values) each = value(random);
  return values;
}

double FromTyped(std::u16string_view pText) {
  char bytes[64];
  char* end = bytes;
  for (const char16_t c : pText) *end++ = c == u',' ? '.' : static_cast<char>(c);
  double value = 0;
  std::from_chars(bytes, end, value);
  return value;
}

// ---- A number against a range and a step.

bool SameText(double pLeft, double pRight) {
  char left[32];
  char right[32];
  const auto endLeft = std::to_chars(left, left + sizeof left, pLeft, std::chars_format::general, 15);
  const auto endRight = std::to_chars(right, right + sizeof right, pRight, std::chars_format::general, 15);
  return std::string_view(left, endLeft.ptr) == std::string_view(right, endRight.ptr);
}

bool IsAllowed(std::u16string_view pText, std::u16string_view pRange, std::u16string_view pStep) {
  if (pText.find_first_not_of(u"0123456789,-") != std::u16string_view::npos) return false;
  const double value = FromTyped(pText);
  const std::size_t middle = pRange.find(u';');
  const double low = FromTyped(pRange.substr(1, middle - 1));
  const double high = FromTyped(pRange.substr(middle + 1, pRange.size() - middle - 2));
  const double steps = (value - low) / FromTyped(pStep);
  return low <= value && value <= high && SameText(std::nearbyint(steps), steps);
}

void CheckLimit(benchmark::State& pState) {
  const auto texts = TypedTexts();
  for (auto _ : pState)
    for (const auto& text : texts) benchmark::DoNotOptimize(IsAllowed(text, u"[0;1000]", u"0.25"));
}
BENCHMARK(CheckLimit)->Name("CheckNumber/limit")->Unit(benchmark::kMillisecond);

void Check(benchmark::State& pState) {
  const auto texts = TypedTexts();
  const runtime::ScopedLocale comma(CommaRules());
  TEntryDesc desc;
  desc.LetVarType(EVTDouble);
  desc.LetRange(u"[0;1000]");
  desc.LetInterval(u"0.25");
  for (auto _ : pState)
    for (const auto& text : texts) GCConvert::CheckValueED(text, desc);
}
BENCHMARK(Check)->Name("CheckNumber/CheckValueED")->Unit(benchmark::kMillisecond);

// ---- A number to text.

std::unique_ptr<icu::DecimalFormat> IcuFormat(const char16_t* pPattern, int pSignificant = 0) {
  UErrorCode status = U_ZERO_ERROR;
  auto format = std::make_unique<icu::DecimalFormat>(
      icu::UnicodeString(pPattern), new icu::DecimalFormatSymbols(icu::Locale("de", "DE"), status), status);
  if (pSignificant > 0) {
    format->setSignificantDigitsUsed(true);
    format->setMinimumSignificantDigits(pSignificant);
    format->setMaximumSignificantDigits(pSignificant);
  }
  return format;
}

void FormatLimit(benchmark::State& pState, std::chars_format pForm, int pDigits) {
  const auto values = ShownValues();
  for (auto _ : pState)
    for (const double value : values) {
      char bytes[64];
      const auto end = std::to_chars(bytes, bytes + sizeof bytes, value, pForm, pDigits);
      std::u16string text(bytes, end.ptr);
      if (const auto point = text.find(u'.'); point != std::u16string::npos) text[point] = u',';
      benchmark::DoNotOptimize(text.data());
    }
}

void FormatIcu(benchmark::State& pState, const char16_t* pPattern, int pSignificant) {
  const auto values = ShownValues();
  const auto format = IcuFormat(pPattern, pSignificant);
  for (auto _ : pState)
    for (const double value : values) {
      icu::UnicodeString text;
      format->format(value, text);
      benchmark::DoNotOptimize(text.getBuffer());
    }
}

void FormatLibrary(benchmark::State& pState, const char16_t* pFormat) {
  const auto values = ShownValues();
  const runtime::ScopedLocale comma(CommaRules());
  for (auto _ : pState)
    for (const double value : values) benchmark::DoNotOptimize(GCConvert::DoubleToString(value, pFormat));
}

BENCHMARK_CAPTURE(FormatLimit, fixed, std::chars_format::fixed, 2)
    ->Name("FormatFixed/limit")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FormatLibrary, fixed, u"0.00")->Name("FormatFixed/DoubleToString")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FormatIcu, fixed, u"0.00", 0)->Name("FormatFixed/ICU")->Unit(benchmark::kMillisecond);

BENCHMARK_CAPTURE(FormatLimit, figures, std::chars_format::general, 3)
    ->Name("FormatFigures/limit")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FormatLibrary, figures, u"SF3")->Name("FormatFigures/DoubleToString")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FormatIcu, figures, u"0", 3)->Name("FormatFigures/ICU")->Unit(benchmark::kMillisecond);

// ---- Text to a number.

void ReadLimit(benchmark::State& pState) {
  const auto texts = TypedTexts();
  for (auto _ : pState)
    for (const auto& text : texts) benchmark::DoNotOptimize(FromTyped(text));
}
BENCHMARK(ReadLimit)->Name("ReadTyped/limit")->Unit(benchmark::kMillisecond);

void Read(benchmark::State& pState) {
  const auto texts = TypedTexts();
  const runtime::ScopedLocale comma(CommaRules());
  for (auto _ : pState)
    for (const auto& text : texts) benchmark::DoNotOptimize(GCConvert::StringToDouble(text));
}
BENCHMARK(Read)->Name("ReadTyped/StringToDouble")->Unit(benchmark::kMillisecond);

void ReadIcu(benchmark::State& pState) {
  const auto texts = TypedTexts();
  const auto format = IcuFormat(u"0.00");
  for (auto _ : pState)
    for (const auto& text : texts) {
      icu::Formattable value;
      UErrorCode status = U_ZERO_ERROR;
      format->parse(icu::UnicodeString(false, text.data(), static_cast<std::int32_t>(text.size())), value, status);
      benchmark::DoNotOptimize(value.getDouble());
    }
}
BENCHMARK(ReadIcu)->Name("ReadTyped/ICU")->Unit(benchmark::kMillisecond);

// ---- An item of an enumeration of ten.

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
