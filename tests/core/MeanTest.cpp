#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <limits>

#include <gtest/gtest.h>

#include "qzbase/core/GCMath.h"
#include "qzbase/core/QZVarType.h"
#include "qzbase/data/CDblVector.h"

namespace qzbase::tests {
namespace {

TEST(Mean, OfAVector) {
  constexpr double kMax = std::numeric_limits<double>::max();
  const struct {
    std::initializer_list<double> values;
    std::int32_t error;
    double mean;
    double deviation;
    const char* why;
  } rows[] = {
      {{1, 2, 3, 4}, 0, 2.5, std::sqrt(1.25), ""},
      {{-7}, 0, -7, 0, ""},
      {{}, 0, kInvalidDouble, kInvalidDouble, "empty"},
      {{1, kInvalidDouble, 3}, 0, kInvalidDouble, kInvalidDouble, "a value is missing"},
      {{kMax, kMax}, 6, kInvalidDouble, kInvalidDouble, "the sum overflows"},
      {{1e200, -1e200}, 6, 0, kInvalidDouble, "the mean is known when a square overflows"},
  };
  for (const auto& row : rows) {
    CDblVector values;
    for (const double value : row.values) values.AddValue(value);
    double mean = 1;
    double deviation = 1;
    EXPECT_EQ(GCMath::CalcMean(values, mean, deviation), row.error) << row.why;
    EXPECT_DOUBLE_EQ(mean, row.mean) << row.why;
    EXPECT_DOUBLE_EQ(deviation, row.deviation) << row.why;
  }
}

}  // namespace
}  // namespace qzbase::tests
