// Numbers to text and back.
#include <charconv>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "qzbase/runtime/NumberPattern.h"
#include "qzbase/runtime/NumberReader.h"
#include "qzbase/runtime/NumberText.h"

namespace {

using namespace qzbase::runtime;

constexpr std::size_t kNumbers = 1'000'000;

// Measured values as applications have them: seven significant digits over twelve decades.
std::vector<double> Numbers() {
  std::mt19937_64 random(11);
  std::uniform_int_distribution<std::int64_t> digits(-9'999'999, 9'999'999);
  std::uniform_int_distribution<int> power(-6, 5);
  constexpr double kPowers[] = {1e-6, 1e-5, 1e-4, 1e-3, 1e-2, 1e-1, 1, 1e1, 1e2, 1e3, 1e4, 1e5};
  std::vector<double> numbers(kNumbers);
  for (double& number : numbers) number = static_cast<double>(digits(random)) * kPowers[power(random) + 6];
  return numbers;
}

// The least work is a text of 16-bit characters in a buffer that is used again.
void DefaultTextLimit(benchmark::State& pState) {
  const auto numbers = Numbers();
  for (auto _ : pState) {
    char buffer[32];
    char16_t text[32];
    for (const double number : numbers) {
      const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::general, 15);
      std::copy(buffer, end.ptr, text);
      benchmark::DoNotOptimize(text);
    }
  }
}
BENCHMARK(DefaultTextLimit)->Name("DefaultText/limit")->Unit(benchmark::kMillisecond);

void DefaultText(benchmark::State& pState) {
  const auto numbers = Numbers();
  const LocaleRules rules;
  for (auto _ : pState) {
    std::u16string text;
    for (const double number : numbers) {
      text.clear();
      AppendNumberText(text, number, rules);
      benchmark::DoNotOptimize(text.data());
    }
  }
}
BENCHMARK(DefaultText)->Name("DefaultText/AppendNumberText")->Unit(benchmark::kMillisecond);

std::vector<std::u16string> NumberTexts() {
  std::vector<std::u16string> texts;
  for (const double number : Numbers()) texts.push_back(NumberText(number, LocaleRules()));
  return texts;
}

void ReadTextLimit(benchmark::State& pState) {
  const auto texts = NumberTexts();
  for (auto _ : pState) {
    double sum = 0;
    for (const std::u16string& text : texts) {
      char buffer[32];
      const auto* end = std::copy(text.begin(), text.end(), buffer);
      double number = 0;
      std::from_chars(buffer, end, number);
      sum += number;
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(ReadTextLimit)->Name("ReadText/limit")->Unit(benchmark::kMillisecond);

void ReadText(benchmark::State& pState) {
  const auto texts = NumberTexts();
  const LocaleRules rules;
  for (auto _ : pState) {
    double sum = 0;
    for (const std::u16string& text : texts) {
      double number = 0;
      ReadNumber(text, number, rules);
      sum += number;
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(ReadText)->Name("ReadText/ReadNumber")->Unit(benchmark::kMillisecond);

void PatternLimit(benchmark::State& pState) {
  const auto numbers = Numbers();
  for (auto _ : pState) {
    for (const double number : numbers) {
      char buffer[64];
      const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::fixed, 2);
      end.ptr[-3] = ',';
      const std::u16string text(buffer, end.ptr);
      benchmark::DoNotOptimize(text.data());
    }
  }
}
BENCHMARK(PatternLimit)->Name("Pattern/limit")->Unit(benchmark::kMillisecond);

void Pattern(benchmark::State& pState) {
  const auto numbers = Numbers();
  LocaleRules rules;
  rules.decimal = u",";
  rules.thousands = u".";
  for (auto _ : pState)
    for (const double number : numbers) benchmark::DoNotOptimize(FormatNumber(number, u"0.00", rules));
}
BENCHMARK(Pattern)->Name("Pattern/FormatNumber")->Unit(benchmark::kMillisecond);

}  // namespace
