#include "tests/support/AllocationMeter.h"

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t requestedBytes = 0;
thread_local std::size_t mostBytes = SIZE_MAX;
thread_local std::size_t untilFailure = 0;  // 0: none is to come
thread_local bool hasFailed = false;
std::atomic<std::ptrdiff_t> blocks = 0;

void* Allocate(std::size_t pSize) noexcept {
  if (pSize > mostBytes || qzbase::tests::FailsNow()) return nullptr;
  requestedBytes += pSize;
  void* memory = std::malloc(pSize > 0 ? pSize : 1);
  if (memory) ++blocks;
  return memory;
}

void Free(void* pMemory) noexcept {
  if (pMemory) --blocks;
  std::free(pMemory);
}

}  // namespace

void* operator new(std::size_t pSize) {
  if (void* memory = Allocate(pSize)) return memory;
  throw std::bad_alloc();
}

void* operator new(std::size_t pSize, const std::nothrow_t&) noexcept {
  return Allocate(pSize);
}

void operator delete(void* pMemory) noexcept {
  Free(pMemory);
}

void operator delete(void* pMemory, std::size_t) noexcept {
  Free(pMemory);
}

namespace qzbase::tests {

std::size_t RequestedBytes() noexcept {
  return requestedBytes;
}

ScopedMemoryLimit::ScopedMemoryLimit(std::size_t pBytes) noexcept {
  mostBytes = pBytes;
}

ScopedMemoryLimit::~ScopedMemoryLimit() {
  mostBytes = SIZE_MAX;
}

ScopedAllocationFailure::ScopedAllocationFailure(std::size_t pAt) noexcept {
  untilFailure = pAt;
  hasFailed = false;
}

ScopedAllocationFailure::~ScopedAllocationFailure() {
  untilFailure = 0;
}

bool ScopedAllocationFailure::HasFailed() const noexcept {
  return hasFailed;
}

bool FailsNow() noexcept {
  if (untilFailure == 0 || --untilFailure != 0) return false;
  hasFailed = true;
  return true;
}

std::ptrdiff_t BlocksAlive() noexcept {
  return blocks;
}

}  // namespace qzbase::tests
