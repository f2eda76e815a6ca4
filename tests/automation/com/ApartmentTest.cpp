// Two apartments: each thread has its own registry of errors, and objects are handed from one to the other as proxies.
#include <thread>

#include "Client.h"

namespace qzbase::tests {
namespace {

// Runs `pBody` in an apartment of its own, while this thread answers calls.
template <class Body>
void InAnotherApartment(Body pBody) {
  HANDLE done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  std::thread thread([&] {
    {
      const Apartment apartment;
      pBody();
    }
    SetEvent(done);
  });
  DWORD signalled = 0;
  EXPECT_EQ(S_OK, CoWaitForMultipleHandles(0, 60000, 1, &done, &signalled));
  thread.join();
  CloseHandle(done);
}

// The same, with a proxy of an object.
template <class Interface, class Body>
void WithProxy(IUnknown* pObject, Body pBody) {
  IStream* stream = nullptr;
  ASSERT_EQ(S_OK, CoMarshalInterThreadInterfaceInStream(__uuidof(Interface), pObject, &stream));
  InAnotherApartment([&] {
    ComRef<Interface> proxy;
    ASSERT_EQ(S_OK, CoGetInterfaceAndReleaseStream(stream, __uuidof(Interface), proxy.PutVoid()));
    EXPECT_NE(pObject, proxy.Get());
    pBody(proxy.Get());
  });
}

TEST(Apartments, EachThreadHasItsOwnRegistry) {
  const auto count = [] {
    LONG result = 0;
    EXPECT_EQ(S_OK, Create<_GCError>(__uuidof(GCError))->NrRegisteredErrors(&result));
    return result;
  };
  const OwnedText text = Bstr(u"MainOnly");
  TErrIndex index{};
  const auto errors = Create<_GCError>(__uuidof(GCError));
  EXPECT_EQ(S_OK, errors->RegisterError(text.Get(), text.Get(), text.Get(), VARIANT_FALSE, &index));
  EXPECT_LT(10, count());
  InAnotherApartment([&] { EXPECT_EQ(10, count()); });
}

TEST(Apartments, AProxyIsCalledLikeAnObject) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  vector->put_Size(5);
  WithProxy<_CDblVector>(vector.Get(), [](_CDblVector* pProxy) {
    LONG size = 0;
    EXPECT_EQ(S_OK, pProxy->get_Size(&size));
    EXPECT_EQ(5, size);
    double value = 0;
    EXPECT_EQ(ErrorResult(9), pProxy->get_Value(99, &value));
    // Source and description come along only where the system carries them between apartments.
    const ThreadError error;
    EXPECT_EQ(error.isSet ? u"QZBase.CDblVector" : u"", error.source);
  });
}

TEST(Apartments, AHostsObjectIsCalledThroughItsProxy) {
  ScriptObject array({{L"length", Returns(Long(2))}, {L"0", Returns(Long(4))}, {L"1", Returns(Double(0.5))}});
  WithProxy<IDispatch>(&array, [](IDispatch* pProxy) {
    const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
    Answer answer;
    CallByName(answer, vector.Get(), L"SetFromArray", DISPATCH_METHOD, {Dispatch(pProxy)});
    EXPECT_EQ(u"(4;0.5)", Shown(vector));
  });
  EXPECT_EQ(1U, array.References());
}

}  // namespace
}  // namespace qzbase::tests
