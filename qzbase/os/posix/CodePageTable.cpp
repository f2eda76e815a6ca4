#include "qzbase/os/CodePageTable.h"

#include <algorithm>

namespace qzbase::os {
namespace {

// Windows-1252 differs from Latin-1 in these 32 bytes only; five of them stay the control characters they were.
constexpr char16_t kFirstRows[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

}  // namespace

const CodePageTable& UpperHalf() {
  static constexpr CodePageTable table = [] {
    CodePageTable result{};
    std::copy(std::begin(kFirstRows), std::end(kFirstRows), result.begin());
    for (std::size_t i = std::size(kFirstRows); i < result.size(); ++i) result[i] = static_cast<char16_t>(0x80 + i);
    return result;
  }();
  return table;
}

}  // namespace qzbase::os
