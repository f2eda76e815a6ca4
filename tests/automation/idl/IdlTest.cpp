// What is said of a face in the interface definition, and what is refused, shown on a little face of its own.
#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/automation/idl/CatalogCheck.h"
#include "qzbase/automation/idl/IdlText.h"
#include "qzbase/automation/idl/ManifestText.h"

namespace qzbase::tests {

class Sample : public runtime::Object {
 public:
  std::int32_t Size() const;
  void LetSize(std::int32_t pSize);
  void Owner(runtime::Ref<Sample> pOwner);
  double Find(double pValue, double pFrom, std::u16string_view pText, bool pUpwards);
  void Change(runtime::Variant& pValue, runtime::Array<std::u16string>& pTexts);
};

struct SampleRecord {
  std::int32_t count;
};

}  // namespace qzbase::tests

namespace qzbase::automation {

template <>
inline constexpr Identity identity<tests::Sample> = {IdentityKind::GlobalClass, "Sample", "C1", "C2",
                                                     "Says \"hello\"."};
template <>
inline constexpr Identity identity<tests::SampleRecord> = {IdentityKind::Record, "SampleRecord", "R1", {}, "A record."};
template <>
inline constexpr auto fields<tests::SampleRecord> = record(field<&tests::SampleRecord::count>("Count", "A count."));

using tests::Sample;
template <>
inline constexpr auto members<Sample> =
    table(get<&Sample::Size>("Size", "The size.").asDefault(), let<&Sample::LetSize>("Size"),
          set<&Sample::Owner>("Owner", "The owner."),
          method<&Sample::Find>("Find", {"pValue", opt("pFrom", 1.5), opt("pText", u"a\"b"), opt("pUpwards", true)},
                                "Finds."),
          method<&Sample::Change>("Change", {"pValue", "pTexts"}, "Changes."));

}  // namespace qzbase::automation

namespace qzbase::tests {
namespace {

using namespace automation;
using namespace automation::idl;

constexpr ClassDesc kClasses[] = {{&identity<Sample>, &memberTable<Sample>}};
constexpr RecordDesc kRecords[] = {recordDesc<SampleRecord>};
constexpr EnumItem kItems[] = {{"Small", 1}, {"LARGE", 2}};
constexpr Identity kEnumeration = {IdentityKind::Enumeration, "SampleSize", "E1", {}, "Sizes."};
constexpr EnumDesc kEnumerations[] = {{&kEnumeration, kItems}};
constexpr Catalog kCatalog = {kClasses, kRecords, kEnumerations};

TEST(Idl, SaysWhatTheTablesSay) {
  const std::string text = IdlText(kCatalog, IdlUse::TypeLibrary);
  for (const char* each : {
           "interface _Sample : IDispatch {\n"
           "    [id(0), propget, helpstring(\"The size.\")]\n    HRESULT Size([out, retval] long* pResult);\n"
           "    [id(0), propput, helpstring(\"The size.\")]\n    HRESULT Size([in] long pNewValue);\n"
           "    [id(1), propputref, helpstring(\"The owner.\")]\n    HRESULT Owner([in] _Sample* pNewValue);\n",
           "HRESULT Find([in] double pValue, [in, defaultvalue(0)] double pFrom, [in, defaultvalue(\"a\\\"b\")] BSTR "
           "pText, "
           "[in, defaultvalue(-1)] VARIANT_BOOL pUpwards, [out, retval] double* pResult);",
           "HRESULT Change([in, out] VARIANT* pValue, [in, out] SAFEARRAY(BSTR)* pTexts);",
           "[uuid(C1), helpstring(\"Says \\\"hello\\\".\"), appobject]\n  coclass Sample {",
           "struct SampleRecord {\n    long Count;\n  } SampleRecord;",
           "cpp_quote(\"#undef LARGE\")\n  typedef [uuid(E1), helpstring(\"Sizes.\")]\n"
           "  enum SampleSize {\n    Small = 1,\n    LARGE = 2\n  } SampleSize;",
       })
    EXPECT_NE(std::string::npos, text.find(each)) << each << "\nin\n" << text;
  EXPECT_EQ(std::string::npos, IdlText(kCatalog, IdlUse::Header).find("defaultvalue"));
}

TEST(Manifest, NamesTheClass) {
  const std::string text = ManifestText(kCatalog, "x86");
  EXPECT_NE(std::string::npos, text.find("<comClass clsid=\"{C1}\" progid=\"QZBase.Sample\""));
  EXPECT_NE(std::string::npos, text.find("processorArchitecture=\"x86\""));
}

// Each row spoils one name or type of a face that has no faults.
TEST(CatalogCheck, FindsWhatCompilersDoNot) {
  EXPECT_EQ(std::vector<std::string>(), FaultsOf(kCatalog));
  EXPECT_EQ(std::vector<std::string>(), FaultsOf(LibraryCatalog()));

  struct Row {
    EnumItem item;
    std::vector<std::string> faults;
  };
  const Row rows[] = {
      {{"size", 3},
       {"Sample.Size: \"Size\" is spelt \"size\" at SampleSize.size",
        "Sample.Size: \"Size\" is spelt \"size\" at SampleSize.size"}},
      {{"PVALUE", 3},
       {"Sample.Find(pValue): \"pValue\" is spelt \"PVALUE\" at SampleSize.PVALUE",
        "Sample.Change(pValue): \"pValue\" is spelt \"PVALUE\" at SampleSize.PVALUE"}},
      {{"SampleSize", 3}, {"SampleSize.SampleSize: \"SampleSize\" exists already"}},
      {{"QZBASE", 3}, {"SampleSize.QZBASE: \"QZBASE\" is spelt \"QZBase\" at the library"}},
  };
  for (const Row& row : rows) {
    const EnumItem items[] = {row.item};
    const EnumDesc enumerations[] = {{&kEnumeration, items}};
    EXPECT_EQ(row.faults, FaultsOf({kClasses, kRecords, enumerations})) << row.item.name;
  }
}

TEST(CatalogCheck, FindsTypesThatAutomationLacks) {
  const auto faultsOfField = [](TypeDesc pType) {
    const FieldDesc fields[] = {{"Count", "A count.", pType}};
    const RecordDesc records[] = {{&identity<SampleRecord>, fields}};
    return FaultsOf({{}, records, {}}).size();
  };
  TypeDesc type = Describe<runtime::Ref<Sample>>();
  EXPECT_EQ(0U, faultsOfField(type));
  type.isArray = true;
  EXPECT_EQ(1U, faultsOfField(type));
}

}  // namespace
}  // namespace qzbase::tests
