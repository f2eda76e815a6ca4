// One walk over every member of every class: a call natively by name, late bound and early bound has the same result,
// the same error and leaves the same behind in the caller's variables. A null pointer is refused. It names no member.
#include <thread>

#include <gtest/gtest.h>

#include "tests/automation/calls/HostCalls.h"

namespace qzbase::tests {
namespace {

using namespace automation;
using namespace runtime;

// In a thread of its own, so that no call sees what another one has done to the thread's state. Without an apartment:
// none of these calls needs one, and making it takes longer than all else.
template <class Body>
CallOutcome Alone(Body pBody) {
  CallOutcome outcome;
  std::thread([&] { outcome = pBody(); }).join();
  return outcome;
}

template <class Make, class HostCall>
CallOutcome ByHost(Make pMake, HostCall pHostCall) {
  return Alone([&] {
    const MemberCall call = pMake();
    com::OuterFace* face = NewFace(*call.entry);
    const CallOutcome outcome = pHostCall(*face, call);
    face->Release();
    return outcome;
  });
}

template <class Make>
void ExpectAgreement(Make pMake, const char* pWhat, bool pCanBeEarly) {
  const CallOutcome native = Alone([&] {
    const MemberCall call = pMake();
    return CallNatively(*call.entry->create(), call);
  });
  const auto expect = [&](const CallOutcome& pOther, const char* pBinding) {
    EXPECT_EQ(native.answer, pOther.answer) << pWhat << ", " << pBinding;
    EXPECT_EQ(native.arguments, pOther.arguments) << pWhat << ", " << pBinding;
  };
  expect(ByHost(pMake, CallLate), "late");
  if (pCanBeEarly) expect(ByHost(pMake, [](auto& pFace, auto& pCall) { return CallEarly(pFace, pCall); }), "early");
}

void ExpectNullRefused(const MemberCall& pMember, std::size_t pAt) {
  const auto call = [pAt](auto& pFace, auto& pCall) { return CallEarly(pFace, pCall, pAt); };
  EXPECT_EQ("null pointer", ByHost([&] { return WithRightArguments(pMember); }, call).answer) << pAt;
}

void Walk(const MemberCall& pMember) {
  SCOPED_TRACE(pMember.Name());
  ExpectAgreement([&] { return WithRightArguments(pMember); }, "right arguments", true);
  const auto parameters = pMember.entry->members->Parameters(pMember.Member());
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const ParameterDesc& parameter = parameters[i];
    const auto with = [&, i](CallArgument pArgument) {
      MemberCall call = WithRightArguments(pMember);
      call.arguments[i] = std::move(pArgument);
      return call;
    };
    const bool isObject = parameter.type.base == BaseType::Object || parameter.type.base == BaseType::Class;
    const bool hasDefault = parameter.IsOptional() && !parameter.IsByRef();
    ExpectAgreement([&] { return with({Variant(), true}); }, "omitted", hasDefault);
    ExpectAgreement([&] { return with({WrongValue(parameter.type)}); }, "wrong kind", false);
    ExpectAgreement([&] { return with({Variant(nullptr)}); }, "unset", isObject && !parameter.type.isArray);
    if (parameter.IsByRef()) ExpectNullRefused(pMember, i);
  }
  if (pMember.Member().result.base != BaseType::Void) ExpectNullRefused(pMember, parameters.size());
  if (parameters.empty()) return;
  for (unsigned seed = 0; seed < 3; ++seed)
    ExpectAgreement([&] { return WithRandomArguments(pMember, seed); }, "random arguments", false);
}

TEST(Calls, AgreeHoweverTheyAreMade) {
  for (const MemberCall& member : AllMembers()) Walk(member);
}

}  // namespace
}  // namespace qzbase::tests
