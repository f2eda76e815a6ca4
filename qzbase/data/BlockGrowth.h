// The rule by which storage grows and shrinks in blocks.
//
//   block size 16    0 to 16 elements   16 slots
//                    17 to 32           32 slots
//   block size 1     n elements         n slots, at least one
#pragma once

#include <cstdint>

namespace qzbase {

// The slots that storage of `pCapacity` slots is to have once it holds `pSize` elements.
//
// The block count at hand is a 16-bit number: once storage has more than 32,767 blocks, every further call raises error
// 6 (overflow), as does a capacity past 32 bits. A block size of 0 raises error 11 (division by zero). A negative one
// gives a capacity below 1, which no storage can have.
std::int32_t BlockCapacity(std::int32_t pCapacity, std::int32_t pSize, std::int32_t pBlockSize);

}  // namespace qzbase
