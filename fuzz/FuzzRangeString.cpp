// Range strings: whatever a range is, nothing raises but the reading of numbers that are too large; enumerations, their
// items and the tests of them agree with each other.
//
// Input: the locale, a number, then a text, a step and the range, one a line.
#include <cmath>

#include "fuzz/Expect.h"
#include "fuzz/Input.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/ShownNumber.h"
#include "qzbase/text/ModString.h"
#include "qzbase/text/RangeString.h"

using namespace qzbase;
using namespace qzbase::ModString;
using fuzz::Require;
using fuzz::Succeeds;
using runtime::Array;

namespace {

constexpr std::int32_t kOverflow = 6;

void CheckItems(std::u16string_view pText, std::u16string_view pRange) {
  Array<std::u16string> items;
  const std::int32_t count = ParseEnumRange(pRange, items);
  for (std::int32_t i = 1; i <= count; ++i) {
    Require(EnumVal(i, pRange) == items[i]);
    const std::int32_t first = EnumOrd(items[i], pRange);
    Require(first >= 1 && first <= i && items[first] == items[i]);
    Require(IsMember(items[i], pRange) || !HasBraces(pRange));
  }
  Require(EnumVal(0, pRange).empty() && EnumVal(count + 1, pRange).empty());
  if (const std::int32_t position = EnumOrd(pText, pRange); position != -1) Require(EnumVal(position, pRange) == pText);
  Require(!(IsList(pRange) && IsCombo(pRange)));
  if (count == 0) return;

  Array<std::u16string> again;
  Require(ParseEnumRange(MakeEnumRange(items), again) == count && again == items);
}

// Lists are written for the user, so only where "." is the decimal point they read back.
void CheckNumbers(std::u16string_view pRange) {
  Array<double> values;
  Array<double> again;
  if (!Succeeds({kOverflow}, [&] { ParseValueList(pRange, values); })) return;
  const std::u16string list = MakeValueList(values);
  if (!Succeeds({kOverflow}, [&] { ParseValueList(list, again); })) return;
  for (std::int32_t i = 1; i <= values.Size() && runtime::ThreadLocale().decimal == u"."; ++i)
    Require(runtime::ShowSame(values[i], again[i]));
}

// What is called valid is what the other members can do with it.
void CheckValid(std::u16string_view pRange) {
  if (pRange.starts_with(u'{') && pRange.ends_with(u'}') && pRange.find(u'[') == std::u16string_view::npos) {
    Array<std::u16string> items;
    const std::int32_t count = ParseEnumRange(pRange, items);
    bool isValid = count > 0 && !items[1].empty();
    for (std::int32_t i = 2; i < count; ++i) isValid = isValid && !items[i].empty();
    Require(isValid == (CheckRangeStringValid(pRange) == 0));
  }
  if (!pRange.starts_with(u'[') || CheckRangeStringValid(pRange) != 0) return;
  std::u16string_view inside = pRange.substr(1, pRange.size() - 2);
  for (int i = 0; i < 2; ++i) {
    double bound = 0;
    Succeeds({}, [&] { bound = runtime::LeadingNumber(TakeToken(inside, u";")); });
    Require(IsInRange(bound, pRange, u""));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t pSize) {
  fuzz::Input input(pData, pSize);
  const runtime::ScopedLocale locale(fuzz::ChooseLocale(input.Take<std::uint8_t>()));
  const auto number = input.Take<double>();
  const std::u16string text = input.TakeLine();
  const std::u16string step = input.TakeLine();
  const std::u16string range = input.TakeText(pSize);

  Succeeds({}, [&] {
    CheckItems(text, range);
    CheckNumbers(range);
    CheckValid(TrimBlanks(range));
    IsMember(text, range);
    const std::size_t length = HumanReadable(range).size();
    Require(length <= 14 + 4 * range.size() && (length == 0) == range.empty());
  });
  Succeeds({kOverflow}, [&] { IsInRange(number, range, step); });
  Succeeds({kOverflow}, [&] { IsInRange(std::round(number), range, step); });
  return 0;
}
