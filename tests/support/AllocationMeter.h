// How much memory the program has asked for, so that tests can bound what a call costs.
//
//   const std::size_t before = RequestedBytes();
//   vector.LoadFromBuffer(&buffer);
//   EXPECT_LT(RequestedBytes() - before, 1024 * 1024);
#pragma once

#include <cstddef>

namespace qzbase::tests {

// All bytes asked of operator new on the calling thread so far, given back or not. A program that calls this has every
// operator new replaced by a counting one.
std::size_t RequestedBytes() noexcept;

}  // namespace qzbase::tests
