// A value of its own for every thread, made at the thread's first use and destroyed when the thread ends.
//
// A slot of the operating system and not `thread_local`: on Windows the library lives in a DLL that hosts load and
// unload at will, and objects with destructors in `thread_local` storage would keep it mapped or outlive it.
#pragma once

#include <cstdint>
#include <memory>

namespace qzbase::os {

// One untyped slot. `pDestroy` is called with the thread's pointer at the thread's end and, for the thread that
// destroys the slot, at that moment. The pointer is taken out of the slot before: whoever asks for it from there finds
// none, and what he sets is destroyed next. That is done four times at most; a value that always leaves another one
// behind would be destroyed for ever.
class ThreadSlot {
 public:
  static constexpr int kMostRounds = 4;

  explicit ThreadSlot(void (*pDestroy)(void*));
  ~ThreadSlot();
  ThreadSlot(const ThreadSlot&) = delete;
  ThreadSlot& operator=(const ThreadSlot&) = delete;

  void* Get() const noexcept;
  void Set(void* pValue);

 private:
  void (*destroy_)(void*);
  std::uintptr_t key_ = 0;
};

// The typed face: `static PerThread<State> state; state->member`.
template <class T>
class PerThread {
 public:
  T& operator*() { return Value(); }
  T* operator->() { return &Value(); }

 private:
  T& Value() {
    if (void* value = slot_.Get()) return *static_cast<T*>(value);
    auto fresh = std::make_unique<T>();
    slot_.Set(fresh.get());
    return *fresh.release();
  }

  ThreadSlot slot_{[](void* pValue) { delete static_cast<T*>(pValue); }};
};

}  // namespace qzbase::os
