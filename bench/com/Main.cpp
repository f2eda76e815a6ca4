// An indexed get of the Windows server through its slot, by id and by name, against a plain virtual call; and the
// creation of an object. The best of several rounds counts; only the ratios mean anything.
//
// The framework of the other benchmarks is not packaged for this system, so this program times by itself.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>

#include "PlainValues.h"
#include <QZBase.h>

namespace {

constexpr int kRounds = 7;
constexpr LONG kIndices = 8;

// Nanoseconds a call.
template <class Call>
double Measure(int pCalls, Call pCall) {
  double best = std::numeric_limits<double>::infinity();
  for (int round = 0; round < kRounds; ++round) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < pCalls; ++i) pCall(i % kIndices + 1);
    const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
    best = std::min(best, time.count() / pCalls);
  }
  return best;
}

DISPID MemberId(IDispatch* pObject) {
  wchar_t name[] = L"Value";
  LPOLESTR names = name;
  DISPID id = DISPID_UNKNOWN;
  pObject->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
  return id;
}

double LateGet(IDispatch* pObject, DISPID pMember, LONG pIndex) {
  VARIANT index;
  index.vt = VT_I4;
  index.lVal = pIndex;
  DISPPARAMS arguments{&index, nullptr, 1, 0};
  VARIANT result;
  pObject->Invoke(pMember, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &arguments, &result, nullptr, nullptr);
  return result.dblVal;
}

_CDblVector* Create(IClassFactory* pFactory) {
  _CDblVector* vector = nullptr;
  pFactory->CreateInstance(nullptr, __uuidof(_CDblVector), reinterpret_cast<void**>(&vector));
  return vector;
}

void Show(const char* pWhat, double pTime, double pLimit) {
  std::printf("%-24s %9.1f ns %8.2f\n", pWhat, pTime, pTime / pLimit);
}

}  // namespace

int main() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  IClassFactory* factory = nullptr;
  CoGetClassObject(__uuidof(CDblVector), CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                   reinterpret_cast<void**>(&factory));
  _CDblVector* vector = factory ? Create(factory) : nullptr;
  if (!vector) {
    std::fprintf(stderr, "the server cannot be loaded\n");
    return 1;
  }
  Values& plain = PlainValues();
  volatile double sink = 0;
  double value = 0;
  const DISPID member = MemberId(vector);

  const double limit = Measure(10'000'000, [&](LONG pIndex) {
    plain.Get(pIndex, &value);
    sink = value;
  });
  std::printf("%-24s %12s %8s\n", "an indexed get", "a call", "ratio");
  Show("plain virtual call", limit, limit);
  Show("slot",
       Measure(10'000'000,
               [&](LONG pIndex) {
                 vector->get_Value(pIndex, &value);
                 sink = value;
               }),
       limit);
  Show("late bound, by id", Measure(1'000'000, [&](LONG pIndex) { sink = LateGet(vector, member, pIndex); }), limit);
  Show("late bound, by name",
       Measure(1'000'000, [&](LONG pIndex) { sink = LateGet(vector, MemberId(vector), pIndex); }), limit);
  Show("an object made", Measure(100'000, [&](LONG) { Create(factory)->Release(); }), limit);
  vector->Release();
  factory->Release();
  CoUninitialize();
  return 0;
}
