#include <string>

#include <gtest/gtest.h>

#include "qzbase/platform/GCBase.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

struct Factories : testing::Test {
  runtime::ScopedLocale locale{TestLocale("en-US")};
};

TEST_F(Factories, FillDescriptors) {
  constexpr const char* kPlainControl =
      "Type:1|SaveMask:True|Range:|Interval:|Width:1000|Visible:True|Removable:False|Locked:False|";
  const auto changed = runtime::New<TVarDesc>();
  changed->LetID(u"V");
  const auto entry = GCBase::EntryDesc(changed.get());
  changed->LetID(u"W");
  const auto formula = GCBase::NewFormulaDesc(u"F", u"N", EVTLong, u"A+1", u"m", u"0");
  const std::pair<std::u16string, std::string> rows[] = {
      {GCBase::NewVarDesc(u"V", EVTLong)->GetString(),
       "ID:V|Name:|Unit:|Type:3|Format:|IsFormula:False|Description:|NrDims:0|Tag:|UserDefined:False|"},
      {GCBase::NewVarDesc(u"V", EVTLong, u"N", u"m", u"0")->GetString(),
       "ID:V|Name:N|Unit:m|Type:3|Format:0|IsFormula:False|Description:|NrDims:0|Tag:|UserDefined:False|"},
      {GCBase::NewCtrlDesc(u"C", ECTList)->GetString(),
       "ID:C|Type:5|SaveMask:True|Range:|Interval:|Width:1000|Visible:True|Removable:False|Locked:False|"},
      {GCBase::NewEntryDesc(u"E", EVTDouble)->GetString(),
       std::string("ID:E|") + kPlainControl +
           "ID:E|Name:E|Unit:|Type:2|Format:|IsFormula:False|Description:|NrDims:0|Tag:|UserDefined:False|"},
      {GCBase::NewVectorDesc(u"E", EVTLong, u"N", u"m", ECTCombo, u"0", u"[0;9]", u"3", false, true, true)->GetString(),
       "ID:E|Type:2|SaveMask:False|Range:[0;9]|Interval:3|Width:1000|Visible:True|Removable:True|Locked:False|"
       "ID:E|Name:N|Unit:m|Type:3|Format:0|IsFormula:False|Description:|NrDims:1|Tag:|UserDefined:True|"},
      {formula->GetString(),
       "ID:F|Type:1|SaveMask:False|Range:|Interval:|Width:1000|Visible:True|Removable:True|Locked:False|"
       "ID:F|Name:N|Unit:m|Type:3|Format:0|IsFormula:True|Description:A+1|NrDims:0|Tag:|UserDefined:True|"},
      {entry->GetString(),
       std::string("ID:|") + kPlainControl +
           "ID:V|Name:V|Unit:|Type:4|Format:|IsFormula:False|Description:|NrDims:0|Tag:|UserDefined:False|"},
      {GCBase::EntryDesc(nullptr, formula->CtrlDesc().get())->CtrlDesc()->GetString(),
       "ID:F|Type:1|SaveMask:False|Range:|Interval:|Width:1000|Visible:True|Removable:True|Locked:False|"},
  };
  for (const auto& [actual, expected] : rows) EXPECT_EQ(ToUtf8(actual), expected);
}

TEST_F(Factories, FillVectors) {
  EXPECT_EQ(ToUtf8(GCBase::LngVector(-7)->GetString()), "(-7)");
  EXPECT_EQ(ToUtf8(GCBase::DblVector(1.5)->GetString()), "(1.5)");
  EXPECT_EQ(ToUtf8(GCBase::StrVector(u"a;b")->GetString()), "(a;b)");  // a list
  const auto vector = GCBase::Vector(runtime::Variant(u"a;b"));
  EXPECT_EQ(vector->Size(), 1);
  EXPECT_EQ(runtime::ToText(vector->Value(1)), u"a;b");
}

}  // namespace
}  // namespace qzbase::tests
