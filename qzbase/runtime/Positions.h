// The positions from a first to a last one, for loops:
//
//   for (const std::int32_t i : Positions(1, list.Size())) ...
//
// They end also where the last one is the greatest number of 32 bits, at which `i <= last` never becomes false. There
// are none where the last lies before the first.
#pragma once

#include <cstdint>

namespace qzbase::runtime {

class Positions {
 public:
  constexpr Positions(std::int32_t pFirst, std::int32_t pLast)
      : first_(pFirst), end_(pLast < pFirst ? first_ : std::int64_t{pLast} + 1) {}

  struct Iterator {
    std::int64_t at;
    constexpr std::int32_t operator*() const { return static_cast<std::int32_t>(at); }
    constexpr Iterator& operator++() { return ++at, *this; }
    constexpr bool operator==(const Iterator&) const = default;
  };
  constexpr Iterator begin() const { return {first_}; }
  constexpr Iterator end() const { return {end_}; }

 private:
  std::int64_t first_;
  std::int64_t end_;
};

}  // namespace qzbase::runtime
