// Values of a thread's own, and the critical message that a thread's hook takes.
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/os/MessageBox.h"
#include "qzbase/os/ThreadSlot.h"

namespace qzbase::tests {
namespace {

std::atomic<int> alive = 0;

struct Counted {
  Counted() { ++alive; }
  ~Counted() { --alive; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  int value = 0;
};

TEST(PerThread, GivesEachThreadItsOwnAndDestroysItOnce) {
  {
    os::PerThread<Counted> perThread;
    EXPECT_EQ(alive, 0) << "made before its first use";
    perThread->value = 7;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i)
      threads.emplace_back([&perThread] {
        EXPECT_EQ(perThread->value, 0);
        perThread->value = 1;
        EXPECT_GE(alive, 2);
      });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(perThread->value, 7);
    EXPECT_EQ(alive, 1);
  }
  EXPECT_EQ(alive, 0) << "the slot's end is the end of the last value";
}

TEST(CriticalMessage, GoesToTheHookOfTheThread) {
  std::u16string seen;
  os::SetCriticalMessageHook([&](std::u16string_view pText, std::u16string_view pCaption) {
    seen = std::u16string(pCaption) + u"|" + std::u16string(pText);
    os::SetCriticalMessageHook({});  // a hook may take itself away
  });
  os::ShowCriticalMessage(u"text", u"caption");
  EXPECT_EQ(seen, u"caption|text");
}

}  // namespace
}  // namespace qzbase::tests
