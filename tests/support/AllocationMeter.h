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

// While it lives, the allocation of that number on its thread fails, counted from 1. The text of `std::bad_alloc` and
// the exception itself need none.
class ScopedAllocationFailure {
 public:
  explicit ScopedAllocationFailure(std::size_t pAt) noexcept;
  ~ScopedAllocationFailure();
  ScopedAllocationFailure(const ScopedAllocationFailure&) = delete;
  ScopedAllocationFailure& operator=(const ScopedAllocationFailure&) = delete;
  bool HasFailed() const noexcept;
};

// For allocators of others that are to fail alike: whether this allocation does.
bool FailsNow() noexcept;

// Blocks of operator new that have not been given back, on all threads.
std::ptrdiff_t BlocksAlive() noexcept;

}  // namespace qzbase::tests
