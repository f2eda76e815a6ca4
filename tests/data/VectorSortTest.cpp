#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/data/CStrVector.h"
#include "qzbase/data/VectorSort.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Variant;

// The sort that defines the order, word by word.
template <class T, class Greater>
std::vector<T> InsertionSorted(const std::vector<T>& pValues, bool pAscending, Greater pGreater) {
  std::vector<T> sorted;
  for (const T& value : pValues) {
    auto place = sorted.begin();
    while (place != sorted.end() && !(pAscending ? pGreater(*place, value) : pGreater(value, *place))) ++place;
    sorted.insert(place, value);
  }
  return sorted;
}

// Tells the two zeros apart.
std::string Shown(const std::vector<double>& pValues) {
  std::string text;
  for (const double value : pValues) text += (std::signbit(value) ? '-' : '+') + std::to_string(std::fabs(value)) + ' ';
  return text;
}

std::string Shown(const std::vector<Variant>& pValues) {
  std::string text;
  for (const Variant& value : pValues) text += CorpusValueText(value) + ' ';
  return text;
}

// Lists of these values in any order and number.
template <class T, class Greater>
void ExpectInsertionSort(const std::vector<T>& pFrom, int pRounds, Greater pGreater) {
  std::mt19937 random(1);
  for (int round = 0; round < pRounds; ++round) {
    std::vector<T> values(random() % 12);
    for (T& value : values) value = pFrom[random() % pFrom.size()];
    for (const bool ascending : {true, false}) {
      std::vector<T> sorted = values;
      SortElements(sorted, ascending);
      ASSERT_EQ(Shown(sorted), Shown(InsertionSorted(values, ascending, pGreater))) << Shown(values);
    }
  }
}

TEST(SortElements, OrdersAnythingAsTheInsertionSortDoes) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  ExpectInsertionSort<double>({kNaN, -kNaN, 0.0, -0.0, kInfinity, -kInfinity, 1, 2, 3, -1, kNaN, 1}, 5'000,
                              std::greater<>());
  const auto greater = [](const Variant& pLeft, const Variant& pRight) {
    return CompareInSort(pLeft, pRight) == runtime::Order::Greater;
  };
  using namespace std::string_view_literals;
  const std::vector<Variant> kinds[] = {
      {{}, 0, 1.0, true, u"", u"B", u"a", runtime::Null(), runtime::Date{1}, kNaN},
      {{}, 0, -0.0, 1.0f, true, runtime::Date{1}, std::int16_t{-2}, kInfinity},
      {u"", u"ab", u"ab\0"sv, u"abcd", u"abcde", u"abcdf", u"B", u"\uFFFF"},
  };
  for (const auto& values : kinds) ExpectInsertionSort<Variant>(values, 1'000, greater);
}

TEST(SortElements, SortsWhatStandsBeforeAnObject) {
  std::vector<Variant> values = {u"a", u"B", nullptr, 1};
  EXPECT_EQ(ErrorOf([&] { SortElements(values, true); }), kTypeMismatch);
  values.resize(2);
  EXPECT_EQ(Shown(values), "BSTR:B BSTR:a ");
}

TEST(SortElements, RewritesTextsAsWholeNumbers) {
  const struct {
    const char16_t* values;
    bool ascending;
    const char* sorted;
    std::int32_t error;
  } rows[] = {
      {u"10;9;2,6", true, "(3;9;10)", 0},
      {u"10;9;2,6", false, "(10;9;3)", 0},
      {u"10;9,4;x;1", true, "(9;10;x;1)", kTypeMismatch},
      {u"3;2;3e9;1", true, "(2;3;3e9;1)", kOverflow},
  };
  const runtime::ScopedLocale locale(TestLocale("de-DE"));
  for (const auto& row : rows) {
    CStrVector vector;
    vector.SetFromString(row.values);
    EXPECT_EQ(ErrorOf([&] { vector.Sort(row.ascending); }), row.error);
    EXPECT_EQ(ToUtf8(vector.GetString()), row.sorted);
  }
}

}  // namespace
}  // namespace qzbase::tests
