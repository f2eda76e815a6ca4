#include <atomic>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/os/ThreadSlot.h"

namespace qzbase::tests {
namespace {

std::atomic<int> made{0};
std::atomic<int> destroyed{0};

struct Counted {
  Counted() { ++made; }
  ~Counted() { ++destroyed; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  int value = 0;
};

class ThreadSlot : public testing::Test {
 protected:
  void SetUp() override { made = destroyed = 0; }
};

TEST_F(ThreadSlot, EveryThreadHasItsOwnValueUntilItEnds) {
  constexpr int kThreads = 8;
  os::PerThread<Counted> slot;
  slot->value = -1;
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  std::atomic<int> wrong{0};
  for (int i = 0; i < kThreads; ++i)
    threads.emplace_back([&] {
      for (int k = 0; k < 1000; ++k) wrong += slot->value++ != k;
    });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(slot->value, -1);
  EXPECT_EQ(made, kThreads + 1);
  EXPECT_EQ(destroyed, kThreads);
}

TEST_F(ThreadSlot, TheSlotTakesTheValueOfItsThreadAlong) {
  {
    os::PerThread<Counted> used;
    os::PerThread<Counted> unused;
    used->value = 1;
  }
  EXPECT_EQ(made, 1);
  EXPECT_EQ(destroyed, 1);
}

// Asks for its own slot while it is destroyed, as the state of a host may that calls the library from there.
struct Asking : Counted {
  ~Asking() {
    if (value != 0) found += (*slot)->value + 10;
  }
  static inline os::PerThread<Asking>* slot = nullptr;
  static inline std::atomic<int> found{0};
};

TEST_F(ThreadSlot, AValueIsOutOfItsSlotBeforeItIsDestroyed) {
  const auto slot = std::make_unique<os::PerThread<Asking>>();
  Asking::slot = slot.get();
  std::thread([&] { (*slot)->value = 1; }).join();
  EXPECT_EQ(Asking::found, 10) << "at the thread's end";
  {
    os::PerThread<Asking> own;
    Asking::slot = &own;
    own->value = 1;
  }
  EXPECT_EQ(Asking::found, 20) << "at the slot's end";
  EXPECT_EQ(made, 4);
  EXPECT_EQ(destroyed, 4);
}

TEST_F(ThreadSlot, SlotsComeAndGo) {
  // More than a process may have at once.
  for (int i = 0; i < 5000; ++i) {
    os::PerThread<Counted> slot;
    ASSERT_EQ(slot->value, 0);
    slot->value = i + 1;
  }
  EXPECT_EQ(destroyed, 5000);
}

}  // namespace
}  // namespace qzbase::tests
