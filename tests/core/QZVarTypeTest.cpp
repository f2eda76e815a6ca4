#include <gtest/gtest.h>

#include "qzbase/core/QZVarType.h"
#include "qzbase/runtime/Compare.h"

namespace qzbase::tests {
namespace {

using runtime::Date;
using runtime::Variant;

TEST(QZVarType, HasAnInvalidValueForEachType) {
  const Variant expected[] = {std::int16_t{0},  false,           -9.9999999999e+300, -2147483636,    u"~", Date{0},
                              std::int32_t{-1}, std::int16_t{0}, std::int16_t{-1},   std::int16_t{0}};
  for (int type = EVTInvalid; type <= EVTEnum + 1; ++type) {
    const Variant value = InvalidValueOf(static_cast<QZVarType>(type));
    EXPECT_EQ(value.Kind(), expected[type].Kind()) << type;
    EXPECT_EQ(runtime::Compare(value, expected[type]), runtime::Order::Equal) << type;
  }
}

TEST(QZVarType, FollowsFromTheKindOfAValue) {
  struct Row {
    Variant value;
    QZVarType type;
  };
  const Row rows[] = {
      {Variant(), EVTInvalid},
      {runtime::Null{}, EVTInvalid},
      {std::int16_t{1}, EVTLong},
      {1, EVTLong},
      {1.0f, EVTDouble},
      {1.0, EVTDouble},
      {Date{1}, EVTDate},
      {u"", EVTString},
      {true, EVTBoolean},
      {nullptr, EVTInvalid},
      {runtime::Array<double>(), EVTInvalid},
  };
  for (const Row& row : rows) EXPECT_EQ(VarTypeOf(row.value), row.type) << static_cast<int>(row.value.Kind());
}

}  // namespace
}  // namespace qzbase::tests
