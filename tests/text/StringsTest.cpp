// What the rows of calls.tsv do not say of texts and range strings.
#include <string>

#include <gtest/gtest.h>

#include "qzbase/runtime/Locale.h"
#include "qzbase/text/GCStrings.h"
#include "qzbase/text/RangeString.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using runtime::Array;

TEST(Strings, ListsHaveAnyBounds) {
  Array<std::u16string> items(0, {u"x;y"});
  EXPECT_EQ(GCStrings::ParseString(items[0], u";", items), 2);  // the source is one of the items
  EXPECT_EQ(items, Array<std::u16string>(1, {u"x", u"y"}));
  EXPECT_EQ(GCStrings::MakeEnumRange(Array<std::u16string>(-3, {u"x", u"y;"}), u"none"), u"{none;x;y;}");
  EXPECT_EQ(GCStrings::MakeEnumRange(Array<std::u16string>(1, 0), u"none"), u"{none}");
  const Array<double> values(0, {1.5, -2, 1e20});
  for (const auto& [locale, list] : {std::pair("en-US", u"{1.5;-2;1E+20}"), {"de-DE", u"{1,5;-2;1E+20}"}}) {
    const runtime::ScopedLocale scope(TestLocale(locale));
    EXPECT_EQ(GCStrings::MakeValueList(values), list);  // for the user
  }
  EXPECT_EQ(GCStrings::MakeValueList({}), u"{}");
}

// Ten times the text may not cost a hundred times the copying: a million delimiters end within the test's time.
TEST(Strings, TakeTimeInProportionToTheText) {
  std::u16string text;
  for (int i = 0; i < 300'000; ++i) text += u"1,2;";
  Array<std::u16string> items;
  EXPECT_EQ(GCStrings::ParseString(text, u";", items), 300'001);
  for (const auto replace : {&GCStrings::StrReplace, &GCStrings::NrDelimReplace, &GCStrings::ReplaceWord})
    EXPECT_EQ(replace(text, u",", u"--").size(), text.size() + 300'000);
}

// The tests that are made for every cell of a table. The first ones make what their thread keeps.
TEST(Strings, RangesCostNoMemory) {
  std::size_t before = 0;
  for (int round = 0; round < 2; ++round) {
    before = RequestedBytes();
    EXPECT_TRUE(ModString::IsInRange(0.7, u"[0.1;1000000000]", u"0.1"));
    EXPECT_EQ(ModString::EnumOrd(u"a long item in the list", u"{some other long item;a long item in the list}"), 2);
  }
  EXPECT_EQ(RequestedBytes(), before);
}

}  // namespace
}  // namespace qzbase::tests
