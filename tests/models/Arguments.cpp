// The values that the driver draws: few enough to meet one another, and all the edges.
#include <cmath>

#include "tests/models/BufferModel.h"
#include "tests/models/World.h"

namespace qzbase::models {

namespace {

constexpr Long kLeast = std::numeric_limits<Long>::min(), kMost = std::numeric_limits<Long>::max();

template <class T, std::size_t kCount>
Pair OneOf(World& pWorld, const T (&pValues)[kCount]) {
  const Variant value(pValues[pWorld.Choose(kCount)]);
  return {value, value};
}

template <class T>
T One(World& pWorld) {
  return Argument<T>::From(std::span(&pWorld.Keep(Argument<T>::Draw(pWorld).model), 1), 0);
}

}  // namespace

template <>
Pair Argument<At>::Draw(World& pWorld) {
  return OneOf<Long>(pWorld, {1, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 4, 4, 5, 0, 0, -1, 6, 16, 17, 18, kLeast, kMost});
}
template <>
Pair Argument<Count>::Draw(World& pWorld) {
  if (pWorld.Choose(20) == 0) return OneOf<Long>(pWorld, {kLeast, kMost, kLeast + 1, kMost - 15, -3, 200});
  if (pWorld.Choose(400) == 0) return OneOf<Long>(pWorld, {65'534, 65'535, 65'537});  // two to a block: 32,768 blocks
  return OneOf<Long>(pWorld, {0, 1, 1, 2, 2, 2, 3, 3, 3, 4, 5, 6, 15, 16, 17, 33, -1});
}
template <>
Pair Argument<Block>::Draw(World& pWorld) {
  return OneOf<Long>(pWorld, {1, 1, 1, 2, 2, 3, 3, 16, 16, 200, 0, -3, kLeast, kMost});
}
template <>
Pair Argument<Long>::Draw(World& pWorld) {
  return OneOf<Long>(pWorld, {0, 1, 2, 2, 3, 4, -1, -3, 16, 256, kInvalidLong, kLeast, kMost});
}
template <>
Pair Argument<Byte>::Draw(World& pWorld) {
  return OneOf<std::int16_t>(pWorld, {0, 1, 5, 255});
}
template <>
Pair Argument<bool>::Draw(World& pWorld) {
  return OneOf<bool>(pWorld, {false, true});
}
template <>
Pair Argument<double>::Draw(World& pWorld) {
  return OneOf<double>(pWorld, {0, -0.0, 1, 1, 2, 2, 2.5, 3, -1, 0.1, 1e15, 1.7e308, -1.7e308, 5e-324, kInvalidDouble,
                                std::nan(""), HUGE_VAL, -HUGE_VAL});
}
template <>
Pair Argument<Date>::Draw(World& pWorld) {
  return OneOf<Date>(pWorld, {{0}, {1.5}, {-1.25}, {45000}, {2958465.99}, {1e10}});
}
template <>
Pair Argument<Text>::Draw(World& pWorld) {
  return OneOf<const char16_t*>(
      pWorld, {u"",        u"",    u"a",      u"A",       u"a",           u"b",   u"a1",    u"~",       u"1",
               u"10",      u"2.6", u"-1e3",   u"(1;2;3)", u"({1;x;2.5})", u"(",   u"{",     u"1;;True", u"stra\u00DFe",
               u"strasse", u"#9",  u"\u2126", u"\u00AD",  u"2,6",         u"SF3", u"{a;b}", u"abcd",    u"abcde"});
}
template <>
Pair Argument<QZVarType>::Draw(World& pWorld) {
  return OneOf<Long>(pWorld, {1, 2, 3, 4, 5, 6, 7, 8, 0, 2, 3, 4, 9, -1, kMost});
}
template <>
Pair Argument<Ref<runtime::Object>>::Draw(World& pWorld) {
  return DrawObject(pWorld, pWorld.AnyLeaf());
}

template <>
Pair Argument<Variant>::Draw(World& pWorld) {
  switch (pWorld.Choose(18)) {
    case 0:
      return {};
    case 1:
      return {runtime::Null(), runtime::Null()};
    case 2:
      return {std::int16_t{2}, std::int16_t{2}};
    case 3:
      return {2.5f, 2.5f};
    case 4:
      return DrawObject(pWorld, Buffer::kTable());
    case 5:
      return {Array<double>(0, 1), Array<double>(0, 1)};
    case 6:
      return Argument<Date>::Draw(pWorld);
    case 7:
      return Argument<bool>::Draw(pWorld);
    default:
      switch (pWorld.Choose(3)) {
        case 0:
          return Argument<double>::Draw(pWorld);
        case 1:
          return Argument<Long>::Draw(pWorld);
        default:
          return Argument<Text>::Draw(pWorld);
      }
  }
}

template <class T>
Pair Argument<Array<T>>::Draw(World& pWorld) {
  constexpr Long kLowers[] = {0, 0, 0, 1, 1, -1, 2, kMost - 20, kLeast};
  Array<T> array;
  if (pWorld.Choose(12) > 0) {
    const Long lower = kLowers[pWorld.Choose(std::size(kLowers))];
    std::vector<T> elements(static_cast<std::size_t>(pWorld.Choose(pWorld.Choose(4) > 0 ? 5 : 18)));
    for (std::size_t i = 0; i < elements.size(); ++i) elements[i] = One<T>(pWorld);
    array = {lower, std::move(elements)};
  }
  return {array, array};
}
template struct Argument<Array<double>>;
template struct Argument<Array<Long>>;
template struct Argument<Array<Text>>;
template struct Argument<Array<bool>>;

// Bytes that a buffer may be made of: with and without a header, with records that were cut or lie about their counts.
template <>
Pair Argument<Array<Byte>>::Draw(World& pWorld) {
  Array<Byte> array;
  if (pWorld.Choose(12) > 0) {
    std::vector<Byte> bytes;
    if (pWorld.Choose(4) > 0) bytes = {0x03, 0x26, 0xA6, 0x15, 0xAB, static_cast<Byte>(pWorld.Choose(8) > 0)};
    for (Long i = pWorld.Choose(16); i > 0; --i) {
      constexpr Byte kBytes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 0, 65, 128, 255};
      bytes.push_back(kBytes[pWorld.Choose(std::size(kBytes))]);
    }
    if (pWorld.Choose(8) == 0) bytes.resize(bytes.size() / 2);
    array = {pWorld.Choose(8) == 0 ? pWorld.Choose(3) - 1 : 0, std::move(bytes)};
  }
  return {array, array};
}

}  // namespace qzbase::models
