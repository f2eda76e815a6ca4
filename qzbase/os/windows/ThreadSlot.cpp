// Implementation notes. A fibre-local slot is a thread-local one that calls back when the thread ends, in programs and
// in libraries alike, and when the slot is freed. The callback is given the value alone, so every value is kept with
// its destroyer.
#include "qzbase/os/ThreadSlot.h"

#include <system_error>

#include <windows.h>

namespace qzbase::os {
namespace {

struct Entry {
  void (*destroy)(void*);
  void* value;
};

void WINAPI DestroyEntry(void* pEntry) {
  const std::unique_ptr<Entry> entry(static_cast<Entry*>(pEntry));
  if (entry && entry->value != nullptr) entry->destroy(entry->value);
}

[[noreturn]] void ThrowLastError(const char* pWhat) {
  throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), pWhat);
}

Entry* EntryOf(std::uintptr_t pKey) noexcept {
  // Reading a slot resets the thread's last error, which the caller may be about to ask for.
  const DWORD lastError = GetLastError();
  auto* entry = static_cast<Entry*>(FlsGetValue(static_cast<DWORD>(pKey)));
  SetLastError(lastError);
  return entry;
}

}  // namespace

ThreadSlot::ThreadSlot(void (*pDestroy)(void*)) : destroy_(pDestroy) {
  const DWORD key = FlsAlloc(&DestroyEntry);
  if (key == FLS_OUT_OF_INDEXES) ThrowLastError("no thread slot left");
  key_ = key;
}

ThreadSlot::~ThreadSlot() {
  FlsFree(static_cast<DWORD>(key_));
}

void* ThreadSlot::Get() const noexcept {
  const Entry* entry = EntryOf(key_);
  return entry != nullptr ? entry->value : nullptr;
}

void ThreadSlot::Set(void* pValue) {
  if (Entry* entry = EntryOf(key_)) {
    entry->value = pValue;
    return;
  }
  auto entry = std::make_unique<Entry>(Entry{destroy_, pValue});
  if (!FlsSetValue(static_cast<DWORD>(key_), entry.get())) ThrowLastError("cannot set a thread slot");
  entry.release();
}

}  // namespace qzbase::os
