#include "qzbase/os/posix/FileName.h"

#include <algorithm>
#include <cstddef>

#include "qzbase/os/Utf8.h"

namespace qzbase::os {
namespace {

constexpr char16_t kByte = 0xDC00;  // and the byte that is no text

constexpr char16_t OfByte(unsigned char pByte) {
  return static_cast<char16_t>(kByte + pByte);
}

constexpr bool IsByte(char16_t pUnit) {
  return pUnit == OfByte('\\') || (pUnit >= OfByte(0x80) && pUnit <= OfByte(0xFF));
}

bool HasDrive(std::u16string_view pName) noexcept {
  const auto letter = pName.empty() ? u' ' : static_cast<char16_t>(pName[0] | 0x20);
  return pName.size() > 1 && pName[1] == u':' && letter >= u'a' && letter <= u'z';
}

std::u16string_view AsFarAsRead(std::u16string_view pName) {
  pName = pName.substr(0, pName.find(u'\0'));
  return HasDrive(pName) ? pName.substr(2) : pName;
}

// Text in UTF-8, and the bytes between.
std::string BytesOf(std::u16string_view pText) {
  std::string bytes;
  std::size_t done = 0;
  for (std::size_t i = 0; i < pText.size(); ++i) {
    if (!IsByte(pText[i]) || (i > done && IsHighSurrogate(pText[i - 1]))) continue;
    bytes += ToUtf8(pText.substr(done, i - done));
    bytes += static_cast<char>(pText[i] - kByte);
    done = i + 1;
  }
  return bytes += ToUtf8(pText.substr(done));
}

}  // namespace

std::u16string TextOfName(std::string_view pName) {
  std::u16string text = FromUtf8(pName, &OfByte);
  std::replace(text.begin(), text.end(), u'\\', OfByte('\\'));
  return text;
}

std::string NativeName(std::u16string_view pName) {
  std::u16string name(AsFarAsRead(pName));
  std::replace(name.begin(), name.end(), u'\\', u'/');
  while (name.size() > 1 && name.ends_with(u'/')) name.pop_back();
  return BytesOf(name);
}

bool EndsWithSeparator(std::u16string_view pName) {
  const std::u16string_view name = AsFarAsRead(pName);
  return name.ends_with(u'\\') || name.ends_with(u'/');
}

}  // namespace qzbase::os
