#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "qzbase/core/Arithmetic.h"
#include "qzbase/core/GCMath.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/runtime/NumberText.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using runtime::AutomationError;
using runtime::RuntimeError;
using runtime::ScopedLocale;
using runtime::Variant;

constexpr double kMax = std::numeric_limits<double>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

RuntimeError ErrorOf(const std::function<void()>& pCall) {
  try {
    pCall();
  } catch (const AutomationError& error) {
    return static_cast<RuntimeError>(error.Number());
  }
  return RuntimeError{};
}

TEST(Math, RoundsWhatIsDisplayed) {
  const struct {
    const char* locale;
    double value;
    double floor;
    double ceil;
    double round;
    const char* why;
  } rows[] = {
      {"en-US", 2.7, 2, 3, 3, ""},
      {"en-US", -2.7, -2, -1, -3, "cut towards zero, then one more"},
      {"en-US", -2.5, -2, -1, -3, "halves away from zero"},
      {"en-US", 0.5, 0, 1, 1, ""},
      {"en-US", -0.5, 0, 1, -1, ""},
      {"en-US", 3, 3, 3, 3, ""},
      {"en-US", 3.000001, 3, 4, 3, ""},
      {"en-US", 1.4999, 1, 2, 1, ""},
      {"en-US", 0, 0, 0, 0, ""},
      {"en-US", 2.9999999999999996, 3, 4, 3, "displayed as 3, which is not the value"},
      {"en-US", 3.0000000000000004, 3, 4, 3, "displayed as 3"},
      {"en-US", 2.4999999999999996, 2, 3, 3, "displayed as 2.5"},
      {"en-US", 99999999999999.96, 100000000000000, 100000000000001, 100000000000000, "the 15 digits round up"},
      {"en-US", 1234567890123456.0, 1.23456789012346e15, 1.23456789012346e15 + 1, 1.23456789012346e15, "16 digits"},
      {"en-US", 1.5e20, 1.5e20, 1.5e20, 1.5e20, ""},
      {"en-US", 1e-20, 0, 1, 0, ""},
      {"de-DE", 2.7, 2, 3, 2, "the reader stops at the comma"},
      {"de-DE", -2.7, -2, -1, -2, ""},
      {"de-DE", 0.96875, 0, 1, 0, ""},
      {"de-DE", 1.5e20, 1, 2, 1, "1,5E+20: the mantissa alone"},
      {"de-DE", 1e20, 1e20, 1e20, 1e20, "1E+20 has no comma"},
      {"de-DE", 1.0 / 30, 3, 4, 3, "3,33333333333333E-02"},
      {"de-DE", -1.0 / 30, -3, -2, -3, ""},
  };
  for (const auto& row : rows) {
    const ScopedLocale locale(TestLocale(row.locale));
    EXPECT_EQ(GCMath::Floor(row.value), row.floor) << row.locale << " " << row.value << " " << row.why;
    EXPECT_EQ(GCMath::Ceil(row.value), row.ceil) << row.locale << " " << row.value << " " << row.why;
    EXPECT_EQ(GCMath::Round(row.value), row.round) << row.locale << " " << row.value << " " << row.why;
  }
}

// Most numbers are rounded without their text being made; the results must be those of the text.
TEST(Math, RoundsByTheShortWayAsByTheText) {
  for (const char* name : {"en-US", "de-DE", "fr-FR"}) {
    const ScopedLocale locale(TestLocale(name));
    std::uint64_t random = 88172645463325252u;
    for (int i = 0; i < 20000; ++i) {
      random ^= random << 13, random ^= random >> 7, random ^= random << 17;
      const int digits = i % 17;
      const auto mantissa = static_cast<double>(static_cast<std::int64_t>(random) >> 8);
      const double value = i % 5 == 0 ? std::nearbyint(mantissa / PowerOfTen(digits)) : mantissa / PowerOfTen(digits);
      const double displayed = runtime::LeadingNumber(runtime::NumberText(value));
      ASSERT_EQ(GCMath::Floor(value), std::trunc(displayed)) << name << " " << value;
      ASSERT_EQ(GCMath::Round(value), std::trunc(displayed + (value > 0 ? 0.5 : value < 0 ? -0.5 : 0.0))) << value;
    }
  }
}

TEST(Math, RoundsToDecimalsAndFiguresWithoutRaising) {
  const ScopedLocale locale(TestLocale("en-US"));
  const struct {
    double value;
    std::int32_t decimals;
    double expected;
  } roundUp[] = {{1.231, 2, 1.24}, {-1.231, 2, -1.22}, {1234, -2, 1300},
                 {1200, -2, 1200}, {1.15, 2, 1.16},  // 114.99999999999999 is displayed as 115
                 {5, 309, 0},      {5, -400, 0},       {1e300, 20, 0},
                 {kMax, 0, 0},     {0, 3, 0},          {5, std::numeric_limits<std::int32_t>::min(), 0}};
  for (const auto& row : roundUp)
    EXPECT_DOUBLE_EQ(GCMath::RoundUp(row.value, row.decimals), row.expected) << row.value << " " << row.decimals;

  const struct {
    double value;
    std::int32_t figures;
    double expected;
    const char* why;
  } figures[] = {
      {0, 3, 0, ""},
      {98765, 2, 99000, ""},
      {-98765, 2, -99000, ""},
      {1234.5, 2, 1200, ""},
      {0.0123, 2, 0.01, "below 1 one figure fewer survives"},
      {0.0163, 2, 0.02, ""},
      {1000, 1, 1000, "the logarithm falls short"},
      {1500, 0, 0, ""},
      {6500, 0, 10000, ""},
      {123, 400, 0, "the power overflows and stays 0, so the division fails"},
      {123, -400, 0, ""},
      {1e300, 310, 0, "the product overflows and stays 0"},
      {123, std::numeric_limits<std::int32_t>::min(), 0, "no 32-bit exponent"},
  };
  for (const auto& row : figures)
    EXPECT_DOUBLE_EQ(GCMath::RoundSigFigs(row.value, row.figures), row.expected) << row.value << " " << row.why;
}

TEST(Math, ComputesLogarithmPowerAndArcCosine) {
  EXPECT_EQ(std::bit_cast<std::uint64_t>(GCMath::PI()), 0x400921FB54442D11u);
  EXPECT_EQ(GCMath::Log10(1000), 2.9999999999999996);  // the quotient of the logarithms, not the rounded logarithm
  EXPECT_DOUBLE_EQ(GCMath::Log10(0.01), -2);
  EXPECT_DOUBLE_EQ(GCMath::Pow(2, 0.5), std::sqrt(2.0));
  EXPECT_DOUBLE_EQ(GCMath::Pow(2, -1), 0.5);
  EXPECT_EQ(GCMath::Pow(2, -5000), 0);
  EXPECT_NEAR(GCMath::ACos(0), std::acos(0.0), 1e-14);
  EXPECT_NEAR(GCMath::ACos(0.3), std::acos(0.3), 1e-14);
  EXPECT_NEAR(GCMath::ACos(-0.999), std::acos(-0.999), 1e-13);
}

TEST(Math, RaisesTheArithmeticErrors) {
  const ScopedLocale locale(TestLocale("en-US"));
  const struct {
    const char* what;
    std::function<double()> call;
    RuntimeError error;
  } rows[] = {
      {"log 0", [] { return GCMath::Log10(0); }, RuntimeError::InvalidArgument},
      {"log -1", [] { return GCMath::Log10(-1); }, RuntimeError::InvalidArgument},
      {"0 ^ 2", [] { return GCMath::Pow(0, 2); }, RuntimeError::InvalidArgument},
      {"-2 ^ 2", [] { return GCMath::Pow(-2, 2); }, RuntimeError::InvalidArgument},
      {"10 ^ 309", [] { return GCMath::Pow(10, 309); }, RuntimeError::Overflow},
      {"0.5 ^ 1e308", [] { return GCMath::Pow(1e-300, kMax); }, RuntimeError::Overflow},
      {"acos 1", [] { return GCMath::ACos(1); }, RuntimeError::DivisionByZero},
      {"acos -1", [] { return GCMath::ACos(-1); }, RuntimeError::DivisionByZero},
      {"acos 1.1", [] { return GCMath::ACos(1.1); }, RuntimeError::InvalidArgument},
      {"acos -1e200", [] { return GCMath::ACos(-1e200); }, RuntimeError::InvalidArgument},
      {"floor max", [] { return GCMath::Floor(kMax); }, RuntimeError::Overflow},  // displayed greater than it is
      {"10 ^ 309", [] { return PowerOfTen(309); }, RuntimeError::Overflow},
  };
  for (const auto& row : rows) EXPECT_EQ(ErrorOf(row.call), row.error) << row.what;

  EXPECT_EQ(PowerOfTen(308), 1e308);
  EXPECT_EQ(PowerOfTen(-5), 1e-5);
  EXPECT_EQ(PowerOfTen(-323), 1e-323);
  EXPECT_EQ(PowerOfTen(-324), 0);
}

TEST(Math, StepsAndSwaps) {
  std::int32_t value = std::numeric_limits<std::int32_t>::max() - 1;
  EXPECT_EQ(GCMath::Inc(value), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(ErrorOf([&] { GCMath::Inc(value); }), RuntimeError::Overflow);
  EXPECT_EQ(value, std::numeric_limits<std::int32_t>::max());
  value = std::numeric_limits<std::int32_t>::min() + 1;
  EXPECT_EQ(GCMath::Dec(value), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ErrorOf([&] { GCMath::Dec(value); }), RuntimeError::Overflow);
  EXPECT_EQ(value, std::numeric_limits<std::int32_t>::min());

  Variant text(u"text");
  Variant number(1.5);
  GCMath::Swap(text, number);
  EXPECT_EQ(*text.If<double>(), 1.5);
  EXPECT_EQ(*number.If<std::u16string>(), u"text");
  GCMath::Swap(text, text);
  EXPECT_EQ(*text.If<double>(), 1.5);
}

TEST(Math, ChoosesTheGreaterAndTheLesser) {
  const ScopedLocale locale(TestLocale("en-US"));
  const struct {
    Variant first;
    Variant second;
    bool maxIsFirst;
    bool minIsFirst;
    const char* why;
  } rows[] = {
      {3, 4.5, false, true, ""},
      {4.5, 3, true, false, ""},
      {3, 3.0, true, true, "ties go to the first"},
      {u"a", 5, true, false, "texts are greater than numbers"},
      {{}, u"", true, true, "empty equals the empty text"},
      {runtime::Null{}, 3, false, false, "with null nothing is true"},
      {3, runtime::Null{}, false, false, "with null nothing is true"},
  };
  for (const auto& row : rows) {
    const auto kindOf = [&](bool pFirst) { return (pFirst ? row.first : row.second).Kind(); };
    EXPECT_EQ(GCMath::Max(row.first, row.second).Kind(), kindOf(row.maxIsFirst)) << row.why;
    EXPECT_EQ(GCMath::Min(row.first, row.second).Kind(), kindOf(row.minIsFirst)) << row.why;
  }
  EXPECT_EQ(ErrorOf([] { GCMath::Max(nullptr, 1); }), RuntimeError::TypeMismatch);
}

}  // namespace
}  // namespace qzbase::tests
