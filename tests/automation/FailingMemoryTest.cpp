// Every member of every class while each of its allocations fails in turn: it raises 7, or it does without the memory
// and answers all the same; and nothing stays behind.
#include <set>
#include <thread>

#include <gtest/gtest.h>

#include "tests/automation/CallValues.h"
#include "tests/support/AllocationMeter.h"

namespace qzbase::tests {
namespace {

using namespace automation;
using namespace runtime;

// They drop errors on purpose, and do less without memory.
const std::set<std::string_view> kDropErrors = {"ErrorMessage", "StrVector", "SetFromString"};

// An object that has been worked with: every member of its class was called once.
void Use(const ClassEntry& pEntry, Object& pObject) {
  for (const MemberCall& each : MembersOf(pEntry)) CallNatively(pObject, WithRightArguments(each));
}

struct Attempted {
  CallOutcome outcome;
  bool hasFailed = false;  // whether the allocation of that number was reached
};

// Calls a member of an object in a thread of its own while the allocation of that number fails.
Attempted CallFailingAt(std::size_t pAt, const MemberCall& pMember, bool pIsUsed) {
  Attempted result;
  std::thread([&] {
    MemberCall call = WithRightArguments(pMember);
    const Ref<Object> object = call.entry->create();
    if (pIsUsed) Use(*call.entry, *object);
    std::vector<Variant*> arguments;
    for (CallArgument& each : call.arguments) arguments.push_back(&each.value);
    Variant answer;
    std::int32_t error = 0;
    {
      const ScopedAllocationFailure failure(pAt);
      try {
        answer = InvokeById(*call.entry, *object, call.Member().id, call.Kind(), arguments);
      } catch (const std::exception& raised) {
        error = ErrorNumberOf(raised);
      }
      result.hasFailed = failure.HasFailed();
    }
    result.outcome.answer = error != 0 ? "error " + std::to_string(error) : Show(answer);
    for (const CallArgument& each : call.arguments) result.outcome.arguments.push_back(Show(each.value));
  }).join();
  return result;
}

// Until no allocation of that number is reached any more.
void FailAtEach(const MemberCall& pMember, bool pIsUsed) {
  const CallOutcome right = CallFailingAt(0, pMember, pIsUsed).outcome;  // what is kept for good is made here
  bool hasFailed = true;
  for (std::size_t at = 1; hasFailed; ++at) {
    const std::ptrdiff_t before = BlocksAlive();
    bool isExpected = kDropErrors.contains(pMember.Member().name);
    {
      const Attempted attempted = CallFailingAt(at, pMember, pIsUsed);
      hasFailed = attempted.hasFailed;
      isExpected |= attempted.outcome == right || attempted.outcome.answer == "error 7";
    }
    EXPECT_EQ(BlocksAlive(), before) << pMember.Name() << ", allocation " << at;
    EXPECT_TRUE(isExpected) << pMember.Name() << ", allocation " << at;
  }
}

TEST(FailingMemory, IsErrorSevenAndLosesNothing) {
  for (const MemberCall& member : AllMembers()) {
    FailAtEach(member, false);
    FailAtEach(member, true);
  }
}

}  // namespace
}  // namespace qzbase::tests
