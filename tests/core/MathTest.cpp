#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/core/Arithmetic.h"
#include "qzbase/core/GCMath.h"
#include "qzbase/core/QZVarType.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/runtime/NumberText.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::ScopedLocale;
using runtime::Variant;

constexpr double kMax = std::numeric_limits<double>::max();
constexpr std::int32_t kMostLong = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeastLong = std::numeric_limits<std::int32_t>::min();

TEST(Math, RoundsWhatIsDisplayed) {
  const struct {
    const char* locale;
    double value, floor, ceil, round;
  } rows[] = {
      {"en-US", -2.7, -2, -1, -3},  // cut towards zero, then one more
      {"en-US", 0.5, 0, 1, 1},      // halves away from zero
      {"en-US", -2.5, -2, -1, -3},
      {"en-US", 3, 3, 3, 3},
      {"en-US", 2.9999999999999996, 3, 4, 3},              // displayed as 3, which is not the value
      {"en-US", 2.4999999999999996, 2, 3, 3},              // displayed as 2.5
      {"en-US", 99999999999999.96, 1e14, 1e14 + 1, 1e14},  // the 15 digits round up
      {"en-US", 1234567890123456.0, 1.23456789012346e15, 1.23456789012346e15 + 1, 1.23456789012346e15},
      {"en-US", 1e-20, 0, 1, 0},
      {"de-DE", -2.7, -2, -1, -2},        // the reader stops at the comma
      {"de-DE", 1.5e20, 1, 2, 1},         // 1,5E+20: the mantissa alone
      {"de-DE", 1e20, 1e20, 1e20, 1e20},  // 1E+20 has no comma
      {"de-DE", -1.0 / 30, -3, -2, -3},   // -3,33333333333333E-02
  };
  for (const auto& row : rows) {
    const ScopedLocale locale(TestLocale(row.locale));
    EXPECT_EQ(GCMath::Floor(row.value), row.floor) << row.locale << " " << row.value;
    EXPECT_EQ(GCMath::Ceil(row.value), row.ceil) << row.locale << " " << row.value;
    EXPECT_EQ(GCMath::Round(row.value), row.round) << row.locale << " " << row.value;
  }
}

// Most numbers are rounded without their text being made; the results must be those of the text.
TEST(Math, RoundsByTheShortWayAsByTheText) {
  for (const char* name : {"en-US", "de-DE", "fr-FR"}) {
    const ScopedLocale locale(TestLocale(name));
    std::uint64_t random = 88172645463325252u;
    for (int i = 0; i < 20000; ++i) {
      random ^= random << 13, random ^= random >> 7, random ^= random << 17;
      const double scaled = static_cast<double>(static_cast<std::int64_t>(random) >> 8) / PowerOfTen(i % 17);
      const double value = i % 5 == 0 ? std::nearbyint(scaled) : scaled;
      const double displayed = runtime::LeadingNumber(runtime::NumberText(value));
      ASSERT_EQ(GCMath::Floor(value), std::trunc(displayed)) << name << " " << value;
      ASSERT_EQ(GCMath::Round(value), std::trunc(displayed + (value > 0 ? 0.5 : value < 0 ? -0.5 : 0.0))) << value;
    }
  }
}

TEST(Math, RoundsToDecimalsAndFiguresWithoutRaising) {
  struct Row {
    double value;
    std::int32_t places;
    double expected;
  };
  const ScopedLocale locale(TestLocale("en-US"));
  const Row decimals[] = {{1.231, 2, 1.24}, {-1.231, 2, -1.22}, {1234, -2, 1300},
                          {1200, -2, 1200}, {1.15, 2, 1.16},  // 114.99999999999999 is displayed as 115
                          {5, 309, 0},      {5, -400, 0},       {1e300, 20, 0},
                          {kMax, 0, 0},     {5, kLeastLong, 0}};
  for (const auto& [value, places, expected] : decimals)
    EXPECT_DOUBLE_EQ(GCMath::RoundUp(value, places), expected) << value << " " << places;

  // Below 1 one figure fewer survives; of 1000 the logarithm falls short. Where a power or a product overflows it stays
  // 0, and so does the result.
  const Row figures[] = {{0, 3, 0},         {98765, 2, 99000}, {-98765, 2, -99000}, {0.0123, 2, 0.01},
                         {0.0163, 2, 0.02}, {1000, 1, 1000},   {1500, 0, 0},        {6500, 0, 10000},
                         {123, 400, 0},     {1e300, 310, 0},   {123, -400, 0},      {123, kLeastLong, 0}};
  for (const auto& [value, places, expected] : figures)
    EXPECT_DOUBLE_EQ(GCMath::RoundSigFigs(value, places), expected) << value << " " << places;
}

TEST(Math, ComputesLogarithmPowerAndArcCosine) {
  EXPECT_EQ(GCMath::Log10(1000), 2.9999999999999996);  // the quotient of the logarithms, not the rounded logarithm
  EXPECT_DOUBLE_EQ(GCMath::Pow(2, 0.5), std::sqrt(2.0));
  EXPECT_EQ(GCMath::Pow(2, -5000), 0);
  for (const double value : {0.0, 0.3, -0.999}) EXPECT_NEAR(GCMath::ACos(value), std::acos(value), 1e-13);
  EXPECT_EQ(PowerOfTen(308), 1e308);
  EXPECT_EQ(PowerOfTen(-5), 1e-5);
  EXPECT_EQ(PowerOfTen(-323), 1e-323);
  EXPECT_EQ(PowerOfTen(-324), 0);
}

TEST(Math, RaisesTheArithmeticErrors) {
  const ScopedLocale locale(TestLocale("en-US"));
  const std::pair<std::function<double()>, std::int32_t> rows[] = {
      {[] { return GCMath::Log10(0); }, kInvalidArgument},
      {[] { return GCMath::Pow(0, 2); }, kInvalidArgument},
      {[] { return GCMath::Pow(-2, 2); }, kInvalidArgument},
      {[] { return GCMath::Pow(10, 309); }, kOverflow},
      {[] { return GCMath::Pow(1e-300, kMax); }, kOverflow},
      {[] { return GCMath::ACos(1); }, kDivisionByZero},
      {[] { return GCMath::ACos(-1); }, kDivisionByZero},
      {[] { return GCMath::ACos(1.1); }, kInvalidArgument},
      {[] { return GCMath::ACos(-1e200); }, kInvalidArgument},
      {[] { return GCMath::Floor(kMax); }, kOverflow},  // displayed greater than it is
      {[] { return PowerOfTen(309); }, kOverflow},
  };
  for (const auto& row : rows) EXPECT_EQ(ErrorOf(row.first), row.second) << &row - rows;
}

TEST(Math, StepsAndSwaps) {
  std::int32_t most = kMostLong - 1, least = kLeastLong + 1;
  EXPECT_EQ(GCMath::Inc(most), kMostLong);
  EXPECT_EQ(ErrorOf([&] { GCMath::Inc(most); }), kOverflow);
  EXPECT_EQ(most, kMostLong);
  EXPECT_EQ(GCMath::Dec(least), kLeastLong);
  EXPECT_EQ(ErrorOf([&] { GCMath::Dec(least); }), kOverflow);
  EXPECT_EQ(least, kLeastLong);

  Variant text(u"text"), number(1.5);
  GCMath::Swap(text, number);
  GCMath::Swap(text, text);
  EXPECT_EQ(*text.If<double>(), 1.5);
  EXPECT_EQ(*number.If<std::u16string>(), u"text");
}

TEST(Math, ChoosesTheGreaterAndTheLesser) {
  const ScopedLocale locale(TestLocale("en-US"));
  // Ties go to the first, texts are greater than numbers, empty equals the empty text; with null nothing is true.
  const struct {
    Variant first, second;
    bool maxIsFirst, minIsFirst;
  } rows[] = {
      {3, 4.5, false, true},
      {4.5, 3, true, false},
      {3, 3.0, true, true},
      {u"a", 5, true, false},
      {{}, u"", true, true},
      {runtime::Null{}, 3, false, false},
      {3, runtime::Null{}, false, false},
  };
  for (const auto& row : rows) {
    const auto kindOf = [&](bool pFirst) { return (pFirst ? row.first : row.second).Kind(); };
    EXPECT_EQ(GCMath::Max(row.first, row.second).Kind(), kindOf(row.maxIsFirst)) << &row - rows;
    EXPECT_EQ(GCMath::Min(row.first, row.second).Kind(), kindOf(row.minIsFirst)) << &row - rows;
  }
  EXPECT_EQ(ErrorOf([] { GCMath::Max(nullptr, 1); }), kTypeMismatch);
}

TEST(Math, MeanOfAVector) {
  const struct {
    std::vector<double> values;
    double mean, deviation;
  } rows[] = {
      {{1, 2, 3, 4}, 2.5, std::sqrt(1.25)},
      {{}, kInvalidDouble, kInvalidDouble},
      {{1, kInvalidDouble, 3}, kInvalidDouble, kInvalidDouble},
  };
  for (const auto& row : rows) {
    CDblVector values;
    for (const double value : row.values) values.AddValue(value);
    double mean = 1, deviation = 1;
    EXPECT_EQ(GCMath::CalcMean(&values, mean, deviation), 0) << &row - rows;
    EXPECT_DOUBLE_EQ(mean, row.mean) << &row - rows;
    EXPECT_DOUBLE_EQ(deviation, row.deviation) << &row - rows;
  }
}

}  // namespace
}  // namespace qzbase::tests
