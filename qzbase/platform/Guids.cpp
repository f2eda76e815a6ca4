#include "qzbase/platform/Guids.h"

#include <optional>
#include <span>
#include <type_traits>

#include "qzbase/os/Guid.h"

namespace qzbase::ModBase {
namespace {

template <class Number>
void AppendHex(std::u16string& pText, Number pValue) {
  const auto bits = static_cast<std::make_unsigned_t<Number>>(pValue);
  for (int shift = 8 * static_cast<int>(sizeof bits) - 4; shift >= 0; shift -= 4)
    pText += u"0123456789ABCDEF"[(bits >> shift) & 0xF];
}

}  // namespace

TGuid GetGUID() {
  const std::optional<os::Guid> guid = os::NewGuid();
  if (!guid) return {};
  return {static_cast<std::int32_t>(guid->data1), static_cast<std::int16_t>(guid->data2),
          static_cast<std::int16_t>(guid->data3), guid->data4};
}

std::u16string GUIDString(const TGuid& GUID) {
  std::u16string text = u"{";
  AppendHex(text, GUID.Data1);
  AppendHex(text += u'-', GUID.Data2);
  AppendHex(text += u'-', GUID.Data3);
  text += u'-';
  for (const std::uint8_t byte : std::span(GUID.Data4).first<2>()) AppendHex(text, byte);
  text += u'-';
  for (const std::uint8_t byte : std::span(GUID.Data4).subspan<2>()) AppendHex(text, byte);
  return text + u'}';
}

}  // namespace qzbase::ModBase
