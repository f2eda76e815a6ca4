// Implementation notes. A fibre-local slot is a thread-local one that calls back when the thread ends, in programs and
// in libraries alike, and when the slot is freed. The callback is given the value alone, so every value is kept with
// its destroyer and its slot. Systems differ in whether the slot is empty by then, and none calls again.
#include "qzbase/os/ThreadSlot.h"

#include <system_error>
#include <utility>

#include <windows.h>

namespace qzbase::os {
namespace {

struct Entry {
  std::uintptr_t key;
  void (*destroy)(void*);
  void* value;
};

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

// Where another thread frees the slot, its entry is not the one of the slot.
void Destroy(std::unique_ptr<Entry> pEntry) {
  if (EntryOf(pEntry->key) == pEntry.get()) FlsSetValue(static_cast<DWORD>(pEntry->key), nullptr);
  pEntry->destroy(pEntry->value);
}

void DestroyAll(std::uintptr_t pKey) {
  for (int round = 0; round < ThreadSlot::kMostRounds; ++round) {
    std::unique_ptr<Entry> entry(EntryOf(pKey));
    if (!entry) return;
    Destroy(std::move(entry));
  }
}

void WINAPI DestroyEntry(void* pEntry) {
  if (pEntry == nullptr) return;
  std::unique_ptr<Entry> entry(static_cast<Entry*>(pEntry));
  const std::uintptr_t key = entry->key;
  Destroy(std::move(entry));
  DestroyAll(key);
}

}  // namespace

ThreadSlot::ThreadSlot(void (*pDestroy)(void*)) : destroy_(pDestroy) {
  const DWORD key = FlsAlloc(&DestroyEntry);
  if (key == FLS_OUT_OF_INDEXES) ThrowLastError("no thread slot left");
  key_ = key;
}

ThreadSlot::~ThreadSlot() {
  DestroyAll(key_);
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
  auto entry = std::make_unique<Entry>(Entry{key_, destroy_, pValue});
  if (!FlsSetValue(static_cast<DWORD>(key_), entry.get())) ThrowLastError("cannot set a thread slot");
  entry.release();
}

}  // namespace qzbase::os
