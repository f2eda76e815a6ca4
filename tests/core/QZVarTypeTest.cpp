#include <gtest/gtest.h>

#include "qzbase/core/QZVarType.h"
#include "qzbase/runtime/Compare.h"

namespace qzbase::tests {
namespace {

using runtime::Date;
using runtime::Variant;

TEST(QZVarType, HasANameAndAnInvalidValue) {
  const struct {
    QZVarType type;
    std::u16string_view name;
    Variant invalid;
  } rows[] = {
      {EVTDouble, u"Number", -9.9999999999e+300},
      {EVTLong, u"Integer", -2147483636},
      {EVTDate, u"Date", Date{0}},
      {EVTColor, u"Color", std::int32_t{-1}},
      {EVTEnum, u"Enum", std::int16_t{-1}},
      {static_cast<QZVarType>(9), u"", std::int16_t{0}},
  };
  for (const auto& row : rows) {
    const Variant value = InvalidValueOf(row.type);
    EXPECT_EQ(NameOf(row.type), row.name);
    EXPECT_EQ(value.Kind(), row.invalid.Kind()) << row.type;
    EXPECT_EQ(runtime::Compare(value, row.invalid), runtime::Order::Equal) << row.type;
  }
  EXPECT_EQ(VarTypeOf(Variant(nullptr)), EVTInvalid);
  EXPECT_EQ(VarTypeOf(Variant(1.0)), EVTDouble);
}

}  // namespace
}  // namespace qzbase::tests
