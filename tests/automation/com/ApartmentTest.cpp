// Objects are handed to the apartment of another thread as proxies, which are called like them.
#include <thread>

#include "Client.h"

namespace qzbase::tests {
namespace {

// Runs `pBody` in an apartment of its own, with a proxy of an object, while this thread answers calls.
template <class Interface, class Body>
void WithProxy(IUnknown* pObject, Body pBody) {
  IStream* stream = nullptr;
  ASSERT_EQ(S_OK, CoMarshalInterThreadInterfaceInStream(__uuidof(Interface), pObject, &stream));
  HANDLE done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  std::thread thread([&] {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    {
      ComRef<Interface> proxy;
      ASSERT_EQ(S_OK, CoGetInterfaceAndReleaseStream(stream, __uuidof(Interface), proxy.PutVoid()));
      EXPECT_NE(pObject, proxy.Get());
      pBody(proxy);
    }
    CoUninitialize();
    SetEvent(done);
  });
  DWORD signalled = 0;
  EXPECT_EQ(S_OK, CoWaitForMultipleHandles(0, 60000, 1, &done, &signalled));
  thread.join();
  CloseHandle(done);
}

TEST(Apartments, AProxyIsCalledLikeAnObject) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  vector->put_Size(5);
  WithProxy<_CDblVector>(vector.Get(), [](const ComRef<_CDblVector>& pProxy) {
    LONG size = 0;
    double value = 0;
    EXPECT_EQ(S_OK, pProxy->get_Size(&size));
    EXPECT_EQ(5, size);
    EXPECT_EQ(ErrorResult(9), pProxy->get_Value(99, &value));
    // Source and description come along only where the system carries them between apartments.
    const std::string error = ThreadError();
    EXPECT_TRUE(error == "none" || error == "QZBase.CDblVector|Subscript out of range") << error;
  });
}

TEST(Apartments, AHostsObjectIsCalledThroughItsProxy) {
  ScriptObject array({{L"length", Returns(Long(2))}, {L"0", Returns(Long(4))}, {L"1", Returns(Double(0.5))}});
  WithProxy<IDispatch>(&array, [](const ComRef<IDispatch>& pProxy) {
    const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
    EXPECT_EQ("", Call(vector, L"SetFromArray", {Dispatch(pProxy.Get())}));
    EXPECT_EQ("(4;0.5)", Shown(vector));
  });
  EXPECT_EQ(1U, array.References());
}

}  // namespace
}  // namespace qzbase::tests
