#include <cmath>
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

TEST(Math, ComputesToTheLastBit) {
  EXPECT_EQ(GCMath::Log10(1000), 2.9999999999999996);  // the quotient of the logarithms, not the rounded logarithm
  EXPECT_DOUBLE_EQ(GCMath::Pow(2, 0.5), std::sqrt(2.0));
  for (const double value : {0.3, -0.999}) EXPECT_NEAR(GCMath::ACos(value), std::acos(value), 1e-13);
  for (const auto& [exponent, power] : {std::pair(308, 1e308), {-5, 1e-5}, {-323, 1e-323}, {-324, 0.0}})
    EXPECT_EQ(PowerOfTen(exponent), power);
  EXPECT_EQ(ErrorOf([] { PowerOfTen(309); }), kOverflow);
}

TEST(Math, ChoosesTheGreaterAndTheLesser) {
  const ScopedLocale locale(TestLocale("en-US"));
  // Ties go to the first, texts are greater than numbers, empty equals the empty text; with null nothing is true.
  const std::tuple<Variant, Variant, bool, bool> rows[] = {{3, 4.5, false, true},
                                                           {4.5, 3, true, false},
                                                           {3, 3.0, true, true},
                                                           {u"a", 5, true, false},
                                                           {{}, u"", true, true},
                                                           {runtime::Null{}, 3, false, false},
                                                           {3, runtime::Null{}, false, false}};
  for (const auto& [first, second, maxIsFirst, minIsFirst] : rows) {
    const auto kind = first.Kind(), other = second.Kind();
    EXPECT_EQ(GCMath::Max(first, second).Kind(), maxIsFirst ? kind : other);
    EXPECT_EQ(GCMath::Min(first, second).Kind(), minIsFirst ? kind : other);
  }
  EXPECT_EQ(ErrorOf([] { GCMath::Max(nullptr, 1); }), kTypeMismatch);
}

}  // namespace
}  // namespace qzbase::tests
