#include "tests/support/AllocationMeter.h"

#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t requestedBytes = 0;
thread_local std::size_t mostBytes = SIZE_MAX;

}  // namespace

void* operator new(std::size_t pSize, const std::nothrow_t&) noexcept {
  if (pSize > mostBytes) return nullptr;
  requestedBytes += pSize;
  return std::malloc(pSize > 0 ? pSize : 1);
}

void* operator new(std::size_t pSize) {
  if (void* memory = operator new(pSize, std::nothrow)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* pMemory) noexcept {
  std::free(pMemory);
}

void operator delete(void* pMemory, std::size_t) noexcept {
  std::free(pMemory);
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

}  // namespace qzbase::tests
