// Finds a member by its name, ignoring case, without allocating: a hash table that the compiler makes.
//
// Names are plain ASCII words, so that case is that of the letters A to Z in every locale.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace qzbase::automation {

constexpr char16_t FoldCase(char16_t pCharacter) noexcept {
  return pCharacter >= u'A' && pCharacter <= u'Z' ? static_cast<char16_t>(pCharacter + (u'a' - u'A')) : pCharacter;
}

// Either name may be of 8-bit or of 16-bit characters. Most callers write a name as it is: all differences are gathered
// first, and only where they are in case alone the letters are looked at.
template <class Left, class Right>
constexpr bool EqualNames(std::basic_string_view<Left> pLeft, std::basic_string_view<Right> pRight) noexcept {
  if (pLeft.size() != pRight.size()) return false;
  constexpr int kCaseBit = u'a' ^ u'A';
  int differences = 0;
  for (std::size_t i = 0; i < pLeft.size(); ++i) differences |= pLeft[i] ^ pRight[i];
  if ((differences & ~kCaseBit) != 0) return false;
  for (std::size_t i = 0; differences != 0 && i < pLeft.size(); ++i)
    if (FoldCase(static_cast<char16_t>(pLeft[i])) != FoldCase(static_cast<char16_t>(pRight[i]))) return false;
  return true;
}

// Length and three letters tell most names of a class apart, at the same cost for long ones. Letters hash alike in
// either case; so do some marks, which no name has.
template <class Character>
constexpr std::uint32_t HashName(std::basic_string_view<Character> pName) noexcept {
  if (pName.empty()) return 0;
  const auto letter = [&](std::size_t pAt) { return std::uint32_t{static_cast<char16_t>(pName[pAt])} | 0x20U; };
  const std::uint32_t hash = static_cast<std::uint32_t>(pName.size()) * 7 + letter(0) * 31 +
                             letter(pName.size() / 2) * 131 + letter(pName.size() - 1) * 523;
  return hash ^ (hash >> 5);
}

// Buckets hold the position of a name plus 1, 0 being empty. A name's bucket is the first free one from its hash on; at
// least half of all are empty.
template <std::size_t kNames>
using NameBuckets = std::array<std::uint16_t, std::bit_ceil(2 * kNames + 1)>;

// `pNameAt(i)` is the name at a position; of equal names the first one is found.
template <std::size_t kNames, class NameAt>
constexpr NameBuckets<kNames> MakeNameBuckets(NameAt pNameAt) {
  NameBuckets<kNames> buckets{};
  for (std::size_t i = 0; i < kNames; ++i) {
    std::size_t at = HashName(pNameAt(i)) % buckets.size();
    while (buckets[at] != 0 && pNameAt(buckets[at] - 1U) != pNameAt(i)) at = (at + 1) % buckets.size();
    if (buckets[at] == 0) buckets[at] = static_cast<std::uint16_t>(i + 1);
  }
  return buckets;
}

// The position of a name, -1 if there is none.
template <class NameAt>
constexpr std::int32_t FindName(std::span<const std::uint16_t> pBuckets, std::u16string_view pName, NameAt pNameAt) {
  const std::size_t mask = pBuckets.size() - 1;  // a power of two
  for (std::size_t at = HashName(pName) & mask; pBuckets[at] != 0; at = (at + 1) & mask)
    if (EqualNames(pNameAt(pBuckets[at] - 1U), pName)) return pBuckets[at] - 1;
  return -1;
}

}  // namespace qzbase::automation
