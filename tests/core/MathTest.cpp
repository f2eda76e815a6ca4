#include <cmath>
#include <functional>
#include <limits>
#include <tuple>

#include <gtest/gtest.h>

#include "qzbase/core/Arithmetic.h"
#include "qzbase/core/GCMath.h"
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

// What is rounded is the text of a number as far as a reader comes that stops at a comma, though for most numbers no
// text is made. Halves go away from zero, and the number that is displayed as another one counts as not whole.
void CheckRounding(double pValue) {
  const double displayed = runtime::LeadingNumber(runtime::NumberText(pValue));
  const double whole = std::trunc(displayed);
  EXPECT_EQ(GCMath::Floor(pValue), whole) << pValue;
  EXPECT_EQ(GCMath::Ceil(pValue), whole == pValue ? whole : whole + 1) << pValue;
  EXPECT_EQ(GCMath::Round(pValue), std::trunc(displayed + (pValue > 0 ? 0.5 : pValue < 0 ? -0.5 : 0.0))) << pValue;
}

TEST(Math, RoundsWhatIsDisplayed) {
  const std::tuple<const char*, double, double, double, double> rows[] = {
      {"en-US", -2.7, -2, -1, -3},             // cut towards zero, then one more
      {"en-US", 2.9999999999999996, 3, 4, 3},  // displayed as 3, which is not the value
      {"en-US", 2.4999999999999996, 2, 3, 3},  // displayed as 2.5
      {"de-DE", -2.7, -2, -1, -2},             // the reader stops at the comma
      {"de-DE", 1.5e20, 1, 2, 1},              // 1,5E+20: the mantissa alone
      {"de-DE", -1.0 / 30, -3, -2, -3}};       // -3,33333333333333E-02
  for (const auto& [name, value, floor, ceil, round] : rows) {
    const ScopedLocale locale(TestLocale(name));
    EXPECT_EQ(GCMath::Floor(value), floor) << name << " " << value;
    EXPECT_EQ(GCMath::Ceil(value), ceil) << name << " " << value;
    EXPECT_EQ(GCMath::Round(value), round) << name << " " << value;
  }
  for (const char* name : {"en-US", "de-DE", "fr-FR"}) {
    const ScopedLocale locale(TestLocale(name));
    for (const double value : {0.5, -2.5, 3.0, 99999999999999.96, 1234567890123456.0, 1e-20, 1e20})
      CheckRounding(value);
    std::uint64_t random = 88172645463325252u;
    for (int i = 0; i < 20000 && !testing::Test::HasFailure(); ++i) {
      random ^= random << 13, random ^= random >> 7, random ^= random << 17;
      const double scaled = static_cast<double>(static_cast<std::int64_t>(random) >> 8) / PowerOfTen(i % 17);
      CheckRounding(i % 5 == 0 ? std::nearbyint(scaled) : scaled);
    }
  }
}

TEST(Math, RoundsToDecimalsAndFiguresWithoutRaising) {
  using Row = std::tuple<double, std::int32_t, double>;
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
  for (const auto& [exponent, power] : {std::pair(308, 1e308), {-5, 1e-5}, {-323, 1e-323}, {-324, 0.0}})
    EXPECT_EQ(PowerOfTen(exponent), power);
}

TEST(Math, RaisesTheArithmeticErrors) {
  const ScopedLocale locale(TestLocale("en-US"));
  std::int32_t most = kMostLong - 1, least = kLeastLong + 1;
  EXPECT_EQ(GCMath::Inc(most), kMostLong);
  EXPECT_EQ(GCMath::Dec(least), kLeastLong);
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
      {[&] { return GCMath::Inc(most); }, kOverflow},
      {[&] { return GCMath::Dec(least); }, kOverflow}};
  for (const auto& row : rows) EXPECT_EQ(ErrorOf(row.first), row.second) << &row - rows;
  EXPECT_TRUE(most == kMostLong && least == kLeastLong);
}

TEST(Math, ChoosesTheGreaterAndTheLesserAndSwaps) {
  const ScopedLocale locale(TestLocale("en-US"));
  // Ties go to the first, texts are greater than numbers, empty equals the empty text; with null nothing is true.
  const std::tuple<Variant, Variant, bool, bool> rows[] = {{3, 4.5, false, true},
                                                           {4.5, 3, true, false},
                                                           {3, 3.0, true, true},
                                                           {u"a", 5, true, false},
                                                           {{}, u"", true, true},
                                                           {runtime::Null{}, 3, false, false},
                                                           {3, runtime::Null{}, false, false}};
  for (auto [first, second, maxIsFirst, minIsFirst] : rows) {
    const auto kind = first.Kind(), other = second.Kind();
    EXPECT_EQ(GCMath::Max(first, second).Kind(), maxIsFirst ? kind : other);
    EXPECT_EQ(GCMath::Min(first, second).Kind(), minIsFirst ? kind : other);
    GCMath::Swap(first, second);
    GCMath::Swap(first, first);
    EXPECT_TRUE(first.Kind() == other && second.Kind() == kind);
  }
  EXPECT_EQ(ErrorOf([] { GCMath::Max(nullptr, 1); }), kTypeMismatch);
}

}  // namespace
}  // namespace qzbase::tests
