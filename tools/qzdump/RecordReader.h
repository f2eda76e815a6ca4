// Walks through the records of a saved buffer (docs/buffer-format.md) without trusting any of them.
//
// It reads the bytes itself and not through CBuffer, whose readers have to be told what comes next.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

struct Record {
  std::size_t offset = 0;  // of its marker
  std::string_view kind;   // "tag", "long", ...; empty for bytes that are no record
  std::string text;        // what it holds, in UTF-8
};

class RecordReader {
 public:
  explicit RecordReader(std::span<const std::uint8_t> pBytes);

  // Whether the bytes begin with the header of a buffer whose records have markers.
  bool HasMarkers() const noexcept { return hasMarkers_; }

  // False at the end of the bytes. The last record is one without a kind where the bytes from there on are none.
  bool Next(Record& pRecord);

 private:
  std::size_t Left() const noexcept { return bytes_.size() - cursor_; }
  std::string ReadPayload(std::uint8_t pMarker, Record& pRecord);
  std::span<const std::uint8_t> Take(std::size_t pCount);

  std::span<const std::uint8_t> bytes_;
  std::size_t cursor_ = 0;
  bool hasMarkers_ = false;
  bool isWhole_ = true;  // nothing was cut so far
};
