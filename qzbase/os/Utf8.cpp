#include "qzbase/os/Utf8.h"

#include <cstddef>
#include <optional>

namespace qzbase::os {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf8(std::string& pBytes, char32_t pPoint) {
  const auto tail = [&](int pShift) { pBytes += static_cast<char>(0x80 | ((pPoint >> pShift) & 0x3F)); };
  if (pPoint < 0x80) {
    pBytes += static_cast<char>(pPoint);
  } else if (pPoint < 0x800) {
    pBytes += static_cast<char>(0xC0 | (pPoint >> 6));
    tail(0);
  } else if (pPoint < 0x10000) {
    pBytes += static_cast<char>(0xE0 | (pPoint >> 12));
    tail(6), tail(0);
  } else {
    pBytes += static_cast<char>(0xF0 | (pPoint >> 18));
    tail(12), tail(6), tail(0);
  }
}

// Reads the code point at `pAt` and moves past it; nothing for a byte with which no well-formed sequence
// begins.
std::optional<char32_t> TakePoint(std::string_view pBytes, std::size_t& pAt) {
  const auto byte = [&](std::size_t pIndex) { return static_cast<unsigned char>(pBytes[pIndex]); };
  const unsigned char first = byte(pAt++);
  if (first < 0x80) return first;
  const std::size_t tails = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
  if (first < 0xC2 || first > 0xF4 || pBytes.size() - pAt < tails) return std::nullopt;
  char32_t point = first & (0x3Fu >> tails);
  for (std::size_t i = 0; i < tails; ++i) {
    if ((byte(pAt + i) & 0xC0) != 0x80) return std::nullopt;
    point = (point << 6) | (byte(pAt + i) & 0x3Fu);
  }
  constexpr char32_t kLeast[] = {0x80, 0x800, 0x10000};
  if (point < kLeast[tails - 1] || point > 0x10FFFF || (point & 0xFFFFF800) == 0xD800) return std::nullopt;
  pAt += tails;
  return point;
}

}  // namespace

std::string ToUtf8(std::u16string_view pText) {
  std::string bytes;
  bytes.reserve(pText.size());
  for (std::size_t i = 0; i < pText.size(); ++i) {
    char32_t point = pText[i];
    if (IsHighSurrogate(pText[i]) && i + 1 < pText.size() && IsLowSurrogate(pText[i + 1])) {
      point = 0x10000 + ((point & 0x3FF) << 10) + (pText[++i] & 0x3FFu);
    } else if ((point & 0xF800) == 0xD800) {
      point = kReplacement;
    }
    AppendUtf8(bytes, point);
  }
  return bytes;
}

std::u16string FromUtf8(std::string_view pBytes) {
  return FromUtf8(pBytes, [](unsigned char) { return static_cast<char16_t>(kReplacement); });
}

std::u16string FromUtf8(std::string_view pBytes, char16_t (*pIllFormed)(unsigned char pByte)) {
  std::u16string text;
  text.reserve(pBytes.size());
  for (std::size_t i = 0; i < pBytes.size();) {
    const auto first = static_cast<unsigned char>(pBytes[i]);
    const std::optional<char32_t> point = TakePoint(pBytes, i);
    if (!point) {
      text += pIllFormed(first);
    } else if (*point < 0x10000) {
      text += static_cast<char16_t>(*point);
    } else {
      text += static_cast<char16_t>(0xD7C0 + (*point >> 10));
      text += static_cast<char16_t>(0xDC00 + (*point & 0x3FF));
    }
  }
  return text;
}

}  // namespace qzbase::os
