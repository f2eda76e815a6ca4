// What is refused although it compiles. That the tables have no such faults is checked by the program itself.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/automation/idl/CatalogCheck.h"
#include "qzbase/automation/idl/IdlText.h"

namespace qzbase::tests {
namespace {

using namespace automation;
using namespace automation::idl;

constexpr Identity kEnumeration = {IdentityKind::Enumeration, "Sample", "E1", {}, "Says \"hello\"."};
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

// The type library of the tables is read back where it is made; these are not in it.
TEST(Idl, GuardsQuotesAndTheSystemsMacros) {
  const EnumItem items[] = {{"LARGE", 2}};
  const EnumDesc enumerations[] = {{&kEnumeration, items}};
  const std::string text = IdlText({{}, {}, enumerations}, IdlUse::TypeLibrary);
  EXPECT_NE(std::string::npos, text.find("cpp_quote(\"#undef LARGE\")")) << text;
  EXPECT_NE(std::string::npos, text.find("helpstring(\"Says \\\"hello\\\".\")")) << text;
  EXPECT_EQ(std::string::npos, IdlText(LibraryCatalog(), IdlUse::Header).find("defaultvalue"));
}

}  // namespace
}  // namespace qzbase::tests
