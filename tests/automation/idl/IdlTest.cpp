// What is refused although it compiles. That the tables have no such faults is checked by the program itself.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/automation/idl/CatalogCheck.h"

namespace qzbase::tests {
namespace {

using namespace automation;
using namespace automation::idl;

constexpr Identity kEnumeration = {IdentityKind::Enumeration, "Sample", "E1", {}, "A sample."};
constexpr Identity kRecord = {IdentityKind::Record, "SampleRecord", "R1", {}, "A record."};

// Each row adds one name to a class that has no faults.
TEST(CatalogCheck, FindsWhatCompilersDoNot) {
  const auto classes = LibraryCatalog().classes.first(1);  // GCError
  const struct {
    EnumItem item;
    std::vector<std::string> faults;
  } rows[] = {
      {{"Small", 3}, {}},
      {{"throw", 3}, {"GCError.Throw: \"Throw\" is spelt \"throw\" at Sample.throw"}},
      {{"PDESC", 3}, {"GCError.SetEDesc(pDesc): \"pDesc\" is spelt \"PDESC\" at Sample.PDESC"}},
      {{"Sample", 3}, {"Sample.Sample: \"Sample\" exists already"}},
      {{"QZBASE", 3}, {"Sample.QZBASE: \"QZBASE\" is spelt \"QZBase\" at the library"}},
  };
  for (const auto& row : rows) {
    const EnumItem items[] = {row.item};
    const EnumDesc enumerations[] = {{&kEnumeration, items}};
    EXPECT_EQ(row.faults, FaultsOf({classes, {}, enumerations})) << row.item.name;
  }
}

TEST(CatalogCheck, FindsTypesThatAutomationLacks) {
  TypeDesc type{BaseType::Class, false, 0, "GCError"};
  const auto faults = [&] {
    const FieldDesc fields[] = {{"Count", "A count.", type}};
    const RecordDesc records[] = {{&kRecord, fields}};
    return FaultsOf({{}, records, {}}).size();
  };
  EXPECT_EQ(0U, faults());
  type.isArray = true;
  EXPECT_EQ(1U, faults());
}

}  // namespace
}  // namespace qzbase::tests
