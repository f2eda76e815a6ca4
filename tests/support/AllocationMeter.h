// How much memory the program has asked for, so that tests can bound what a call costs, and how much it may have.
//
//   const std::size_t before = RequestedBytes();
//   vector.LoadFromBuffer(&buffer);
//   EXPECT_LT(RequestedBytes() - before, 1024 * 1024);
//
//   const ScopedMemoryLimit limit(1024);
//   EXPECT_EQ(ErrorOf([&] { vector.GetArray(); }), kOutOfMemory);
#pragma once

#include <cstddef>

namespace qzbase::tests {

// All bytes asked of operator new on the calling thread so far, given back or not. A program that calls this has every
// operator new replaced by a counting one.
std::size_t RequestedBytes() noexcept;

// While it lives, operator new on its thread fails for more than so many bytes at once.
class ScopedMemoryLimit {
 public:
  explicit ScopedMemoryLimit(std::size_t pBytes) noexcept;
  ~ScopedMemoryLimit();
  ScopedMemoryLimit(const ScopedMemoryLimit&) = delete;
  ScopedMemoryLimit& operator=(const ScopedMemoryLimit&) = delete;
};

}  // namespace qzbase::tests
