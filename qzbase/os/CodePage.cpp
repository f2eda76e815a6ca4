#include "qzbase/os/CodePage.h"

#include <algorithm>

#include "qzbase/os/CodePageTable.h"

namespace qzbase::os {
namespace {

constexpr char16_t kNoCharacter = 0xFFFD;

char ByteOf(char16_t pUnit, const CodePageTable& pUpper) {
  if (pUnit < 0x80) return static_cast<char>(pUnit);
  const auto found = std::find(pUpper.begin(), pUpper.end(), pUnit);
  if (found == pUpper.end() || pUnit == kNoCharacter) return '?';
  return static_cast<char>(0x80 + (found - pUpper.begin()));
}

}  // namespace

std::string ToCodePage(std::u16string_view pText) {
  const CodePageTable& upper = UpperHalf();
  std::string bytes(pText.size(), '\0');
  std::transform(pText.begin(), pText.end(), bytes.begin(), [&](char16_t unit) { return ByteOf(unit, upper); });
  return bytes;
}

std::u16string FromCodePage(std::string_view pBytes) {
  const CodePageTable& upper = UpperHalf();
  std::u16string text(pBytes.size(), u'\0');
  std::transform(pBytes.begin(), pBytes.end(), text.begin(), [&](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x80 ? static_cast<char16_t>(byte) : upper[byte - 0x80u];
  });
  return text;
}

}  // namespace qzbase::os
