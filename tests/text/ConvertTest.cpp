#include <cmath>
#include <limits>
#include <string>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "qzbase/core/QZColor.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CVector.h"
#include "qzbase/desc/TEntryDesc.h"
#include "qzbase/runtime/NumberPattern.h"
#include "qzbase/text/GCConvert.h"
#include "qzbase/text/ModString.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Date;
using runtime::Variant;

constexpr auto kUnknownType = static_cast<QZVarType>(99);
const Date kEvening = runtime::MakeDate({.year = 2031, .month = 11, .day = 28, .hour = 20, .minute = 15, .second = 42});

class Converting : public testing::Test {
  runtime::ScopedLocale locale_{TestLocale("en-US")};
};

TEST_F(Converting, ValuesToTexts) {
  const std::tuple<Variant, QZVarType, const char16_t*, const char16_t*> rows[] = {
      {{}, EVTDouble, u"", u"~"},
      {{}, EVTObject, u"", u"~"},
      {u"x", EVTObject, u"", u""},
      {true, EVTBoolean, u"{Yes;No}", u"Yes"},
      {false, EVTBoolean, u"{Yes}", u"false"},
      {kInvalidDouble, EVTDouble, u"0.0", u"~"},
      {u"1234.5", EVTDouble, u"#,##0.00", u"1,234.50"},
      {1235.0, EVTDouble, u"sf3", u"1240"},
      {1.5, EVTDouble, u"SF 4.9x", u"1.500"},
      {kInvalidLong, EVTLong, u"", u"-2147483636"},
      {kInvalidDate, EVTDate, u"yyyy", u"~"},
      {kEvening, EVTDate, u"", u"11/28/2031 8:15:42 PM"},
      {qzRed, EVTColor, u"0.0", u"255"},
      {2, EVTEnum, u"{Off;Low;High}", u"Low"},
      {kInvalidEnum, EVTEnum, u"{Off;Low;High}", u""}};
  for (const auto& [value, type, format, expected] : rows)
    EXPECT_EQ(ToUtf8(GCConvert::ValueToString(value, type, format)), ToUtf8(expected));
  EXPECT_EQ(GCConvert::TimeToString(kEvening), u"8:15:42 PM");
  EXPECT_EQ(ErrorOf([] { GCConvert::ValueToString(u"x", EVTDouble, u""); }), kTypeMismatch);
  EXPECT_EQ(GCConvert::CheckNrOutFormat(u"0,0"), NumberOf(BuiltInError::InvOutFormat));
  EXPECT_EQ(GCConvert::CheckNrOutFormat(u"0.0"), 0);
}

TEST_F(Converting, SignificantFigures) {
  const std::tuple<double, std::int32_t, const char16_t*> rows[] = {
      {0, 3, u"0.000"},       {kInvalidDouble, 3, u"~"}, {1000, 4, u"1000"},
      {999.5, 3, u"1000"},    {-1.005, 3, u"-1.01"},     {0.0123, 3, u"0.012"},
      {0.001, 3, u"0.00100"}, {98765, 0, u"100000"},     {123456, 20, u"123456.00000000000000"}};
  for (const auto& [value, figures, text] : rows)
    for (const std::string_view locale : {"en-US", "de-DE"}) {
      const runtime::ScopedLocale scope(TestLocale(locale));
      const std::u16string expected = ModString::ReplaceAll(text, u".", TestLocale(locale).decimal);
      EXPECT_EQ(ToUtf8(GCConvert::DoubleToStringSF(value, figures)), ToUtf8(expected)) << locale;
    }
  for (const double value : {1e300, std::numeric_limits<double>::infinity(), std::nan("")})
    EXPECT_EQ(ErrorOf([&] { GCConvert::DoubleToStringSF(value, 700); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { GCConvert::DoubleToStringSF(0.01, std::numeric_limits<std::int32_t>::max()); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { GCConvert::DoubleToString(1, u"SF3000000000"); }), kOverflow);
}

TEST_F(Converting, DelimitersAndPatternsOfTheLocale) {
  os::LocaleRules shortYear = TestLocale("sv-SE");
  shortYear.shortDate = u"yy-MM-dd";
  const std::tuple<os::LocaleRules, const char*, const char*> rows[] = {{TestLocale("en-US"), "MM/DD/YYYY", "1,234.5"},
                                                                        {TestLocale("de-DE"), "DD.MM.YYYY", "1.234.5"},
                                                                        {shortYear, "YY-MM-DD", "1\u00A0234.5"}};
  for (const auto& [rules, date, plain] : rows) {
    const runtime::ScopedLocale scope(rules);
    EXPECT_EQ(GCConvert::WindowsDecimalDelim(), rules.decimal);
    EXPECT_EQ(GCConvert::WindowsThousandDelim(), rules.thousands);
    EXPECT_EQ(ToUtf8(GCConvert::WindowsDateFormat()), date);
    EXPECT_EQ(GCConvert::WindowsTimeFormat(), u"HH:NN");
    EXPECT_EQ(ToUtf8(GCConvert::DoubleToString(1234.5, u"#,##0.0", false)), plain);
    EXPECT_EQ(GCConvert::DoubleToString(0.5, u"SF3", false), u"0.50");
  }
}

TEST_F(Converting, ChecksByTypeAndRange) {
  const std::int32_t format = NumberOf(BuiltInError::InvFormat), range = NumberOf(BuiltInError::InvRange),
                     empty = NumberOf(BuiltInError::EmptyText);
  const struct {
    const char16_t* text;
    QZVarType type;
    const char16_t *range, *step, *format;
    std::int32_t error;
  } rows[] = {{u"0.3", EVTDouble, u"[0;1]", u"0.1", u"", 0},
              {u"0.35", EVTDouble, u"[0;1]", u"0.1", u"", range},
              {u"1,000", EVTDouble, u"", u"", u"", format},
              {u"1e400", EVTDouble, u"", u"", u"", format},
              {u"AUTO", EVTDouble, u"[0;1] 'auto'", u"", u"", 0},
              {u"5", EVTLong, u"[0;1]", u"", u"", range},
              {u"5", EVTLong, u"[0;1]", u"", u"0", 0},
              {u"5", EVTDate, u"", u"", u"", format},
              {u"yes", EVTBoolean, u"", u"", u"", range},
              {u"Low", EVTEnum, u"", u"", u"{Low;High}", 0},
              {u"low", EVTEnum, u"", u"", u"{Low;High}", range},
              {u"", EVTString, u"", u"", u"", 0},
              {u"", EVTString, u"{*;a}", u"", u"", 0},
              {u"", EVTString, u"{a;*}", u"", u"", 0},
              {u"x", EVTString, u"*", u"", u"", 0},
              {u"", EVTString, u"*", u"", u"", empty},
              {u"x", EVTString, u"{a;*;b}", u"", u"", range},
              {u"x", kUnknownType, u"[0;1]", u"", u"", 0}};
  for (const auto& row : rows) {
    const auto check = [&](const char16_t* pText, bool pNone) {
      return ErrorOf([&] { GCConvert::CheckValue(pText, row.type, row.range, row.step, row.format, true, pNone); });
    };
    EXPECT_EQ(check(row.text, true), row.error) << ToUtf8(row.text) << " " << ToUtf8(row.range);
    EXPECT_EQ(check(u"~", true), 0);
    EXPECT_EQ(check(u"~", false), NumberOf(BuiltInError::InValue));
  }

  ModError::SetAddErrInfo(u"kept");
  EXPECT_NE(ErrorOf([] { GCConvert::CheckDate(u"x"); }), 0);
  EXPECT_EQ(runtime::LastError().description, u"kept");
  TEntryDesc desc;
  desc.LetVarType(EVTDouble);
  desc.LetRange(u"[0;1]");
  EXPECT_EQ(ErrorOf([&] { GCConvert::CheckValueED(u"5", desc); }), range);
  EXPECT_EQ(runtime::LastError().description, u"5 [0;1]");

  std::int32_t& code = ModError::Registry().Entry(ModError::IndexOf(BuiltInError::InValue).Value).Code;
  const std::int32_t kept = std::exchange(code, 0);  // the error raises nothing now, and the check goes on
  EXPECT_EQ(ErrorOf([] { GCConvert::CheckLong(u"~", false); }), format);
  EXPECT_EQ(ErrorOf([] { GCConvert::CheckValue(u"~", EVTDouble, u"", u"", u"", true, false); }), format);
  code = kept;
}

TEST_F(Converting, NumbersByTheDelimitersOfTheLocale) {
  // The last is the number as it is read, whether it passes the checks or not.
  const std::tuple<const char*, const char16_t*, bool, bool, bool, double> rows[] = {
      {"en-US", u"1,000.5", true, false, false, 1000.5},
      {"en-US", u"2147483647", true, true, true, 2147483647},
      {"en-US", u"-2147483647", true, true, true, -2147483647},
      {"en-US", u"-2147483648", true, true, false, -2147483648.0},
      {"en-US", u"21474836473E-1", true, true, false, 2147483647.3},
      {"en-US", u"-21474836464E-1", true, true, true, -2147483646.4},
      {"en-US", u"", true, false, false, kInvalidDouble},
      {"de-DE", u"1.5", true, false, false, 15},
      {"de-DE", u"1,5", false, true, false, 1.5},
      {"sv-SE", u"1\u00A0000", true, false, false, 1000},
      {"de-CH", u"1\u2019000", false, false, false, 1000}};
  const std::int32_t error = NumberOf(BuiltInError::InvFormat);
  for (const auto& [locale, text, isLocalized, isDouble, isLong, number] : rows) {
    const runtime::ScopedLocale scope(TestLocale(locale));
    SCOPED_TRACE(locale + (" " + ToUtf8(text)));
    const auto check = [text = text, isLocalized = isLocalized] { GCConvert::CheckDouble(text, false, isLocalized); };
    EXPECT_EQ(ErrorOf(check), isDouble ? 0 : error);
    EXPECT_EQ(ErrorOf([text = text] { GCConvert::CheckLong(text); }), isLong ? 0 : error);
    EXPECT_EQ(GCConvert::StringToDouble(text, isLocalized), number);
  }
  os::LocaleRules alike = TestLocale("en-US");
  alike.thousands = alike.decimal;
  const runtime::ScopedLocale scope(alike);
  EXPECT_EQ(ErrorOf([] { GCConvert::CheckDouble(u"1.5"); }), 0);
}

TEST_F(Converting, TextsToValues) {
  const std::tuple<const char16_t*, QZVarType, const char16_t*, Variant> rows[] = {
      {u"YES", EVTBoolean, u"{Yes;No}", true},
      {u"ye", EVTBoolean, u"{Yes;No}", false},
      {u"2.5", EVTLong, u"", 2},
      {u"3000000000", EVTLong, u"", kInvalidLong},
      {u"high", EVTEnum, u"{Low;High}", -1},
      {u"x", kUnknownType, u"", {}},
      {u"20311128201542", EVTDate, u"yyyymmddhhnnss", kEvening},
      {u"28.11.31 20-15-42 9", EVTDate, u"DD.MM.YY HH:NN:SS D", kEvening},       // six fields
      {u"27 28.11.31 20:15", EVTDate, u"DD DD.MM.YY HH:NN", Date{48180.84375}},  // the later day
      {u"30.10.1897 ", EVTDate, u"DD.MM.YYYY", Date{729694}},                    // in 3897
      {u"32.13.2030 24", EVTDate, u"DD.MM.YYYY HH", Date{47881}},                // 2031-02-02: all parts are carried on
      {u"12.2031", EVTDate, u"MM.YYYY", Date{48182}},                            // day 0 of December
      {u"12:00", EVTDate, u"HH:NN", Date{36494.5}},                              // the unnamed parts count from 0
      {u"28.11.", EVTDate, u"DD.MM.YY", kInvalidDate},
      {u"28.Nov.31", EVTDate, u"DD.MMM.YY", kInvalidDate},
      {u"28.11.9999 99999", EVTDate, u"DD.MM.YYYY HHHHH", kInvalidDate},
      {u"28.11.2031 -99999", EVTDate, u"DD.MM.YYYY HHHHHH", kInvalidDate},
      {u"32.12.9999", EVTDate, u"DD.MM.YYYY", kInvalidDate}};
  for (const auto& [text, type, format, expected] : rows)
    EXPECT_EQ(CorpusValueText(GCConvert::StringToValue(text, type, format)), CorpusValueText(expected)) << ToUtf8(text);
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

TEST_F(Converting, NamesAndNoValuesOfTypesAndKindsOfRanges) {
  const std::tuple<const char16_t*, QZVarType, QZVarType, const char*> rows[] = {
      {u"BOOLEAN", EVTBoolean, EVTBoolean, "BOOL:0"},
      {u"number", EVTDouble, EVTDouble, "R8:fe6ddd4ba9ff4aa6"},
      {u"Integer", EVTLong, EVTInvalid, "I4:-2147483636"},
      {u"Text", EVTString, EVTString, "BSTR:~"},
      {u"Date", EVTDate, EVTDate, "DATE:0000000000000000"},
      {u"Color", EVTColor, EVTInvalid, "I4:-1"},
      {u"Enum", EVTEnum, EVTEnum, "I2:-1"},
      {u"", EVTInvalid, EVTInvalid, "I2:0"}};
  for (const auto& [name, type, fixed, invalid] : rows) {
    EXPECT_EQ(GCConvert::StringToVarType(name), type);
    EXPECT_EQ(GCConvert::CnvQZVarType(name), fixed);
    EXPECT_TRUE(runtime::EqualText(GCConvert::VarTypeToString(type), name));
    EXPECT_EQ(CorpusValueText(GCConvert::InvalidValue(type)), invalid);
  }
  EXPECT_EQ(GCConvert::VarTypeToString(EVTObject) + GCConvert::VarTypeToString(kUnknownType), u"");
  for (const char16_t* range : {u"{a;b}", u"{a;b;}", u"{a}", u"{a;b", u"[a;b}"}) {
    const std::u16string text = range;
    EXPECT_EQ(CorpusValueText(GCConvert::IsBooleanRange(text)), CorpusValueText(text == u"{a;b}"));
    EXPECT_EQ(CorpusValueText(GCConvert::IsEnumRange(text)), CorpusValueText(text[0] == u'{' && text.back() == u'}'));
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
