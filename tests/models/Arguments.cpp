// The values that the driver draws: few enough to meet one another, and all the edges.
#include <cmath>
#include <limits>

#include "tests/models/BufferModel.h"
#include "tests/models/World.h"

namespace qzbase::models {

namespace {

constexpr Long kLeast = std::numeric_limits<Long>::min(), kMost = std::numeric_limits<Long>::max();

// In the order of `Drawn`.
const std::vector<Variant> kValues[] = {
    {1, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 4, 4, 5, 0, 0, -1, 6, 16, 17, 18, kLeast, kMost},
    {0, 0, 1, 1, 1, 1, 1,  2,  2,  2,  2,  2,  2,   3,  3,      3,     3,          3,         3,
     4, 4, 4, 5, 5, 6, 15, 15, 16, 16, 17, 33, 200, -1, kLeast, kMost, kMost - 15, kLeast + 1},
    {1, 1, 1, 2, 2, 3, 3, 16, 16, 200, 0, -3, kLeast, kMost},
    {1, 2, 3, 4, 5, 6, 7, 8, 0, 2, 3, 4, 9, -1, kMost},
    {0, 1, 2, 2, 3, 4, -1, -3, 16, 256, kInvalidLong, kLeast, kMost},
    {std::int16_t{0}, std::int16_t{1}, std::int16_t{5}, std::int16_t{255}},
    {false, true},
    {0.0, -0.0, 1.0, 1.0, 2.0, 2.0, 2.5, 3.0, -1.0, 0.1, 1e15, 1.7e308, -1.7e308, 5e-324, kInvalidDouble, std::nan(""),
     HUGE_VAL, -HUGE_VAL},
    {Date{0}, Date{1.5}, Date{-1.25}, Date{45000}, Date{2958465.99}, Date{1e10}},
    {u"",        u"",    u"a",      u"A",       u"a",           u"b",   u"a1",    u"~",       u"1",
     u"10",      u"2.6", u"-1e3",   u"(1;2;3)", u"({1;x;2.5})", u"(",   u"{",     u"1;;True", u"stra\u00DFe",
     u"strasse", u"#9",  u"\u2126", u"\u00AD",  u"2,6",         u"SF3", u"{a;b}", u"abcd",    u"abcde"},
    {Variant(), runtime::Null(), 2.5f, Array<double>(0, 1), std::int16_t{2}},
};

template <class T>
T One(World& pWorld) {
  return *Argument<T>::Draw(pWorld).model.template If<T>();
}

// With a size and a lower bound.
template <class T>
Pair DrawArray(World& pWorld, std::vector<T> pElements) {
  constexpr Long kLowers[] = {0, 0, 0, 0, 0, 1, 1, -1, 2, kMost - 20, kLeast};
  const Long lower = kLowers[pWorld.Choose(std::size(kLowers))];
  const Array<T> array = pWorld.Choose(12) == 0 ? Array<T>() : Array<T>(lower, std::move(pElements));
  return {array, array};
}

}  // namespace

Pair DrawOneOf(World& pWorld, std::size_t pKind) {
  if (pKind == KindOf<Something>()) return DrawObject(pWorld, nullptr);
  if (pKind == KindOf<Variant>()) {
    if (pWorld.Choose(18) == 0) return DrawObject(pWorld, &Buffer::kTable());
    const std::size_t kinds[] = {KindOf<Variant>(), KindOf<Date>(), KindOf<bool>(), KindOf<double>(), KindOf<double>(),
                                 KindOf<Long>(),    KindOf<Long>(), KindOf<Text>(), KindOf<Text>()};
    pKind = kinds[pWorld.Choose(std::size(kinds))];
  }
  const std::vector<Variant>& values = kValues[pKind];
  const Variant& value = values[static_cast<std::size_t>(pWorld.Choose(values.size()))];
  return {value, value};
}

template <class T>
Pair Argument<Array<T>>::Draw(World& pWorld) {
  std::vector<T> elements(static_cast<std::size_t>(pWorld.Choose(pWorld.Choose(4) > 0 ? 5 : 18)));
  for (std::size_t i = 0; i < elements.size(); ++i) elements[i] = One<T>(pWorld);
  return DrawArray(pWorld, std::move(elements));
}
template struct Argument<Array<double>>;
template struct Argument<Array<Long>>;
template struct Argument<Array<Text>>;
template struct Argument<Array<bool>>;

// Bytes that a buffer may be made of: with and without a header, with records that were cut or lie about their counts.
template <>
Pair Argument<Array<Byte>>::Draw(World& pWorld) {
  std::vector<Byte> bytes;
  if (pWorld.Choose(4) > 0) bytes = {0x03, 0x26, 0xA6, 0x15, 0xAB, static_cast<Byte>(pWorld.Choose(8) > 0)};
  for (Long i = pWorld.Choose(16); i > 0; --i) {
    constexpr Byte kBytes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 0, 65, 128, 255};
    bytes.push_back(kBytes[pWorld.Choose(std::size(kBytes))]);
  }
  if (pWorld.Choose(8) == 0) bytes.resize(bytes.size() / 2);
  return DrawArray(pWorld, std::move(bytes));
}

}  // namespace qzbase::models
