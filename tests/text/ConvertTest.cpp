// What the rows of calls.tsv do not say of values and their texts.
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CVector.h"
#include "qzbase/desc/TEntryDesc.h"
#include "qzbase/text/GCConvert.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Variant;

class Converting : public testing::Test {
  runtime::ScopedLocale locale_{TestLocale("en-US")};
};

TEST_F(Converting, ChecksSayWhatIsWrong) {
  const std::int32_t format = NumberOf(BuiltInError::InvFormat);
  ModError::SetAddErrInfo(u"kept");
  EXPECT_EQ(ErrorOf([] { GCConvert::CheckDate(u"x"); }), format);
  EXPECT_EQ(runtime::LastError().description, u"kept");
  TEntryDesc desc;
  desc.LetVarType(EVTDouble);
  desc.LetRange(u"[0;1]");
  EXPECT_EQ(ErrorOf([&] { GCConvert::CheckValueED(u"5", desc); }), NumberOf(BuiltInError::InvRange));
  EXPECT_EQ(runtime::LastError().description, u"5 [0;1]");

  std::int32_t& code = ModError::Registry().Entry(ModError::IndexOf(BuiltInError::InValue).Value).Code;
  const std::int32_t kept = std::exchange(code, 0);  // the error raises nothing now, and the check goes on
  EXPECT_EQ(ErrorOf([] { GCConvert::CheckLong(u"~", false); }), format);
  EXPECT_EQ(ErrorOf([] { GCConvert::CheckValue(u"~", EVTDouble, u"", u"", u"", true, false); }), format);
  code = kept;
}

TEST_F(Converting, LocalesOfTheirOwn) {
  os::LocaleRules rules = TestLocale("en-US");
  rules.shortDate = u"yy-MM-dd";
  rules.thousands = rules.decimal;
  const runtime::ScopedLocale scope(rules);
  EXPECT_EQ(GCConvert::WindowsDateFormat(), u"YY-MM-DD");
  EXPECT_EQ(GCConvert::WindowsDecimalDelim() + GCConvert::WindowsThousandDelim(), u"..");
  EXPECT_EQ(ErrorOf([] { GCConvert::CheckDouble(u"1.5"); }), 0);
}

// Tables of a hundred thousand cells are shown and checked cell by cell: nothing but a long result takes memory.
TEST_F(Converting, CellsCostNoMemory) {
  std::size_t before = RequestedBytes();
  EXPECT_EQ(GCConvert::ValueToString(1234.5, EVTDouble, u"0.00").size(), 7U);
  EXPECT_EQ(GCConvert::ValueToString(1234.5, EVTDouble, u"SF3").size(), 4U);
  EXPECT_EQ(RequestedBytes(), before);
  for (const std::string_view locale : {"en-US", "de-DE"}) {
    const runtime::ScopedLocale scope(TestLocale(locale));
    for (int i = 0; i < 2; ++i) {  // at the first time the locale's order is made
      before = RequestedBytes();
      GCConvert::CheckValue(u"123456789.3", EVTDouble, u"[0;1000000000;'as before']", u"0.1", u"", false);
      GCConvert::CheckValue(u"As Before", EVTDouble, u"[0;1000000000;'as before']", u"");
      GCConvert::CheckValue(u"1000000000", EVTLong, u"[0.1;2E9]", u"0.3");
      GCConvert::CheckValue(u"28 November 2031 20:15", EVTDate, u"", u"");
      GCConvert::CheckValue(u"a long item of the list", EVTString, u"{some other item;A long item of the list}", u"");
      EXPECT_EQ(GCConvert::StringToDouble(u"123456789.3", false), 123456789.3);
    }
    EXPECT_EQ(RequestedBytes(), before) << locale;
  }
}

TEST_F(Converting, VectorsOfValuesAndOfDoubles) {
  CVector values;
  for (const Variant& value : {Variant(1.5), Variant(), Variant(u"2.5"), Variant(u"x"), Variant(runtime::Null()),
                               Variant(nullptr), Variant(kInvalidLong), Variant(kInvalidDate), Variant(true)}) {
    values.LetSize(values.Size() + 1);
    values.LetValue(values.Size(), value);
  }
  const auto doubles = GCConvert::VectorToDblVector(values);
  const auto back = GCConvert::DblVectorToVector(*doubles);
  EXPECT_EQ(back->VarType(), EVTDouble);
  ASSERT_EQ(back->Size(), values.Size());
  for (std::int32_t i = 1; i <= values.Size(); ++i) {
    const double expected = i == 1 ? 1.5 : i == 3 ? 2.5 : i == 9 ? -1 : kInvalidDouble;
    EXPECT_EQ(doubles->Value(i), expected) << i;
    EXPECT_EQ(CorpusValueText(back->Value(i)), CorpusValueText(expected)) << i;
  }
}

}  // namespace
}  // namespace qzbase::tests
