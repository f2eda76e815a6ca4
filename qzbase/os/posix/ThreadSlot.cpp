// Implementation notes. When a thread ends, the system itself empties the slot before it calls, and calls again for
// what was set from there.
#include "qzbase/os/ThreadSlot.h"

#include <system_error>

#include <pthread.h>

namespace qzbase::os {

static_assert(sizeof(pthread_key_t) <= sizeof(std::uintptr_t));

ThreadSlot::ThreadSlot(void (*pDestroy)(void*)) : destroy_(pDestroy) {
  pthread_key_t key{};
  if (const int error = pthread_key_create(&key, pDestroy))
    throw std::system_error(error, std::generic_category(), "no thread slot left");
  key_ = key;
}

ThreadSlot::~ThreadSlot() {
  for (int round = 0; round < kMostRounds; ++round) {
    void* value = Get();
    if (value == nullptr) break;
    pthread_setspecific(static_cast<pthread_key_t>(key_), nullptr);
    destroy_(value);
  }
  pthread_key_delete(static_cast<pthread_key_t>(key_));
}

void* ThreadSlot::Get() const noexcept {
  return pthread_getspecific(static_cast<pthread_key_t>(key_));
}

void ThreadSlot::Set(void* pValue) {
  if (const int error = pthread_setspecific(static_cast<pthread_key_t>(key_), pValue))
    throw std::system_error(error, std::generic_category(), "cannot set a thread slot");
}

}  // namespace qzbase::os
