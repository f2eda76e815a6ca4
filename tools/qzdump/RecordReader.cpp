#include "tools/qzdump/RecordReader.h"

#include <algorithm>
#include <array>
#include <bit>

#include "qzbase/core/QZVarType.h"
#include "qzbase/os/CodePage.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/persist/RecordMarkers.h"
#include "qzbase/runtime/DatePattern.h"
#include "qzbase/runtime/NumberText.h"

using namespace qzbase;

namespace {

constexpr std::array<std::uint8_t, 5> kMagic = {0x03, 0x26, 0xA6, 0x15, 0xAB};
constexpr std::size_t kHeader = kMagic.size() + 1;
constexpr std::size_t kShownBytes = 16;

std::uint64_t Number(std::span<const std::uint8_t> pBytes) {
  std::uint64_t number = 0;
  for (std::size_t i = pBytes.size(); i > 0; --i) number = number << 8 | pBytes[i - 1];
  return number;
}

std::int32_t Long(std::span<const std::uint8_t> pBytes) {
  return static_cast<std::int32_t>(Number(pBytes));
}

std::string Double(std::span<const std::uint8_t> pBytes) {
  const auto value = std::bit_cast<double>(Number(pBytes));
  return value == kInvalidDouble ? "no value" : os::ToUtf8(runtime::NumberText(value));
}

std::string DateText(std::span<const std::uint8_t> pBytes) {
  const runtime::Date date{std::bit_cast<double>(Number(pBytes))};
  if (date.days == 0) return "no date";
  return runtime::IsInCalendar(date) ? os::ToUtf8(runtime::FormatDate(date, u"yyyy-mm-dd hh:nn:ss")) : Double(pBytes);
}

std::string Text(std::span<const std::uint8_t> pBytes) {
  std::u16string text;
  for (std::size_t i = 0; i + 1 < pBytes.size(); i += 2) text += static_cast<char16_t>(Number(pBytes.subspan(i, 2)));
  return '"' + os::ToUtf8(text) + '"';
}

std::string Hex(std::span<const std::uint8_t> pBytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string hex = std::to_string(pBytes.size()) + " bytes:";
  for (const std::uint8_t byte : pBytes.first(std::min(pBytes.size(), kShownBytes)))
    hex.append(1, ' ').append(1, kDigits[byte / 16]).append(1, kDigits[byte % 16]);
  return pBytes.size() > kShownBytes ? hex + " ..." : hex;
}

std::string Tag(std::span<const std::uint8_t> pBytes) {
  return os::ToUtf8(os::FromCodePage(std::string(pBytes.begin(), pBytes.end())));
}

std::string Color(std::span<const std::uint8_t> pBytes) {
  return std::to_string(Long(pBytes));
}

std::string Boolean(std::span<const std::uint8_t> pBytes) {
  return pBytes[0] != 0 ? "true" : "false";
}

// How a marker's payload is read: of a fixed size, or behind a count where the size is 0.
struct Kind {
  RecordMarker marker;
  std::string_view name;
  std::size_t size;
  std::string (*show)(std::span<const std::uint8_t> pBytes);
};

constexpr Kind kKinds[] = {
    {RecordMarker::Tag, "tag", 0, &Tag},        {RecordMarker::Data, "data", 0, &Hex},
    {RecordMarker::String, "text", 0, &Text},   {RecordMarker::Double, "double", 8, &Double},
    {RecordMarker::Long, "long", 4, &Color},    {RecordMarker::Boolean, "boolean", 1, &Boolean},
    {RecordMarker::Date, "date", 8, &DateText}, {RecordMarker::Byte, "byte", 1, &Hex},
    {RecordMarker::Color, "colour", 4, &Color},
};

}  // namespace

RecordReader::RecordReader(std::span<const std::uint8_t> pBytes) : bytes_(pBytes) {
  hasMarkers_ = bytes_.size() >= kHeader && std::equal(kMagic.begin(), kMagic.end(), bytes_.begin()) &&
                bytes_[kMagic.size()] != 0;
  if (hasMarkers_) cursor_ = kHeader;
}

std::span<const std::uint8_t> RecordReader::Take(std::size_t pCount) {
  isWhole_ = pCount <= Left();
  const auto taken = bytes_.subspan(cursor_, std::min(pCount, Left()));
  cursor_ += taken.size();
  return taken;
}

bool RecordReader::Next(Record& pRecord) {
  const bool atEnd = Left() == 0 || (Left() == 1 && bytes_.back() == 0);  // the array of a buffer has one byte more
  if (!hasMarkers_ || atEnd || !isWhole_) return false;
  pRecord = {.offset = cursor_, .kind = {}, .text = {}};
  pRecord.text = ReadPayload(Take(1)[0], pRecord);
  return true;
}

std::string RecordReader::ReadPayload(std::uint8_t pMarker, Record& pRecord) {
  const auto* kind = std::find_if(std::begin(kKinds), std::end(kKinds), [pMarker](const Kind& pKind) {
    return static_cast<std::uint8_t>(pKind.marker) == pMarker;
  });
  if (kind == std::end(kKinds)) {
    isWhole_ = false;
    return "no record begins with the byte " + std::to_string(pMarker);
  }
  std::size_t size = kind->size;
  if (size == 0) {
    const auto count = Take(4);
    if (isWhole_) size = static_cast<std::uint32_t>(Number(count));
  }
  const auto payload = isWhole_ ? Take(size) : std::span<const std::uint8_t>();
  if (!isWhole_) return "a " + std::string(kind->name) + " that was cut short";
  pRecord.kind = kind->name;
  return kind->show(payload);
}
