// Calls as no sane host makes them: arguments of every kind, by reference and not, arrays of odd shapes, host objects
// that answer nonsense, call back and let go; with memory failing now and then. Nothing crashes, and nothing is left
// alive afterwards.
//
//   --gtest_random_seed=7    other calls
#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <exception>
#include <random>
#include <thread>

#include <gtest/gtest.h>

#include "qzbase/automation/com/Conversion.h"
#include "qzbase/runtime/Attempt.h"
#include "tests/automation/calls/HostCalls.h"
#include "tests/support/AllocationMeter.h"

extern "C" void WINAPI SetOaNoCache();

namespace qzbase::tests {
namespace {

using namespace automation;
using namespace automation::com;
using namespace runtime;

// ---- The platform's memory, of which texts and arrays are made: counted, and failing with the program's own.

class PlatformMemory final : public IMallocSpy {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID pId, void** pResult) override {
    const bool isKnown = pId == IID_IUnknown || pId == IID_IMallocSpy;
    *pResult = isKnown ? this : nullptr;
    return isKnown ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }

  SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T pSize) override {
    if (mayFail && FailsNow()) return 0;
    return pSize == 0 ? 1 : pSize;
  }
  void* STDMETHODCALLTYPE PostAlloc(void* pMemory) override {
    if (pMemory) ++alive;
    return pMemory;
  }
  void* STDMETHODCALLTYPE PreFree(void* pMemory, BOOL) override {
    if (pMemory) --alive;
    return pMemory;
  }
  void STDMETHODCALLTYPE PostFree(BOOL) override {}
  SIZE_T STDMETHODCALLTYPE PreRealloc(void* pMemory, SIZE_T pSize, void** pNew, BOOL) override {
    *pNew = pMemory;
    return pSize;
  }
  void* STDMETHODCALLTYPE PostRealloc(void* pMemory, BOOL) override { return pMemory; }
  void* STDMETHODCALLTYPE PreGetSize(void* pMemory, BOOL) override { return pMemory; }
  SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T pSize, BOOL) override { return pSize; }
  void* STDMETHODCALLTYPE PreDidAlloc(void* pMemory, BOOL) override { return pMemory; }
  int STDMETHODCALLTYPE PostDidAlloc(void*, BOOL, int pAnswer) override { return pAnswer; }
  void STDMETHODCALLTYPE PreHeapMinimize() override {}
  void STDMETHODCALLTYPE PostHeapMinimize() override {}

  std::atomic<std::ptrdiff_t> alive = 0;
  bool mayFail = true;
};

PlatformMemory& Platform() {
  static PlatformMemory memory;
  return memory;
}

// ---- One careless caller, in an apartment of its own.

class Caller {
 public:
  Caller(const ClassEntry& pEntry, unsigned pSeed);
  ~Caller();
  Caller(const Caller&) = delete;
  Caller& operator=(const Caller&) = delete;

  void CallSomething(bool pMemoryFails);
  void CallLateBound(std::size_t pArguments, std::size_t pFailAt);

  std::size_t Below(std::size_t pEnd) { return random_() % pEnd; }
  bool OneIn(std::size_t pCount) { return Below(pCount) == 0; }
  // A host may let go of an object while that is being called.
  void LetGo() noexcept {
    if (OuterFace* last = std::exchange(face_, nullptr)) last->Release();
  }

  VARIANT AnyScalar();
  VARIANT AnyObject();
  VARIANT AnyArray(VARTYPE pElement);
  VARIANT AnyVariant(const TypeDesc& pRight);

  int depth = 0;     // of calls within calls
  int accepted = 0;  // calls

 private:
  void CallEarlyBound(std::size_t pFailAt);
  OuterFace& Face() {
    if (!face_) face_ = NewFace(entry_);
    return *face_;
  }

  const ClassEntry& entry_;
  std::mt19937 random_;
  std::vector<MemberCall> members_;
  OuterFace* face_ = nullptr;
};

// The member that is being called, for the message of a crash.
std::string calling;

// A host's object that does whatever can be done.
class Stranger final : public IDispatch {
 public:
  explicit Stranger(Caller& pCaller) : caller_(pCaller) { ++alive; }
  ~Stranger() { --alive; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID pId, void** pResult) override {
    const bool isKnown = pId == IID_IUnknown || pId == IID_IDispatch;
    *pResult = isKnown ? this : nullptr;
    if (isKnown) AddRef();
    return isKnown ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* pIds) override {
    *pIds = 1;
    return caller_.OneIn(5) ? DISP_E_UNKNOWNNAME : S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* pArguments, VARIANT* pResult,
                                   EXCEPINFO* pException, UINT*) override;

  static inline std::atomic<long> alive = 0;

 private:
  Caller& caller_;
  ULONG references_ = 1;
};

HRESULT Stranger::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* pArguments, VARIANT* pResult, EXCEPINFO* pException,
                         UINT*) {
  const ScopedAllocationFailure none(0);  // what hosts do without memory is not the question
  for (UINT i = 0; i < pArguments->cArgs; ++i) {
    const VARIANT& argument = pArguments->rgvarg[i];
    if (argument.vt != (VT_BYREF | VT_VARIANT) || !caller_.OneIn(3)) continue;
    ClearVariant(*argument.pvarVal);
    *argument.pvarVal = caller_.OneIn(4) ? caller_.AnyArray(VT_VARIANT) : caller_.AnyScalar();
  }
  switch (caller_.Below(8)) {
    case 0:
      if (caller_.depth < 2) caller_.CallLateBound(caller_.Below(3), 0);
      return S_OK;
    case 1:
      caller_.LetGo();
      return S_OK;
    case 2:
      if (!pException) return DISP_E_EXCEPTION;
      pException->bstrDescription = SysAllocString(L"nonsense");
      pException->scode = static_cast<SCODE>(caller_.Below(3) * 0x7FFFFFFF);
      pException->wCode = static_cast<WORD>(caller_.Below(2) * 40000);
      return DISP_E_EXCEPTION;
    case 3:
      return caller_.OneIn(2) ? E_FAIL : DISP_E_MEMBERNOTFOUND;
    case 4:
      if (pResult) pResult->vt = VT_BYREF | VT_VARIANT;  // a reference to nothing
      return S_OK;
    case 5:
      if (pResult) *pResult = caller_.AnyObject();
      return S_OK;
    default:
      if (pResult) *pResult = caller_.AnyScalar();
      return S_OK;
  }
}

// ---- Values of all kinds.

VARIANT Caller::AnyScalar() {
  static constexpr std::array kTypes{VT_EMPTY, VT_NULL,  VT_I2,   VT_I4,   VT_R4,   VT_R8,   VT_CY,
                                     VT_DATE,  VT_ERROR, VT_BOOL, VT_I1,   VT_UI1,  VT_UI2,  VT_UI4,
                                     VT_I8,    VT_UI8,   VT_INT,  VT_UINT, VT_BSTR, VT_BSTR, VT_DECIMAL};
  static constexpr std::array<LONGLONG, 8> kNumbers{0, 1, 2, -1, 7, 300, -70000, DISP_E_PARAMNOTFOUND};
  VARIANT value{};
  const VARENUM type = kTypes[Below(kTypes.size())];
  value.llVal = kNumbers[Below(kNumbers.size())];
  if (type == VT_R8 && OneIn(3)) value.llVal = static_cast<LONGLONG>(random_()) << 32;
  if (type == VT_R8 && OneIn(3)) value.dblVal = 2.5;
  if (type == VT_DECIMAL) VarDecFromI4(static_cast<LONG>(value.llVal), &value.decVal);
  if (type == VT_BSTR) {
    static constexpr std::array kTexts{L"", L"7", L"1E5", L"a;b", L"{a,b}", L"x y"};
    value.llVal = 0;
    if (!OneIn(8)) value.bstrVal = SysAllocString(kTexts[Below(kTexts.size())]);
    if (OneIn(20)) value.bstrVal = (SysFreeString(value.bstrVal), SysAllocStringLen(nullptr, 5000));
  }
  value.vt = static_cast<VARTYPE>(type);
  return value;
}

VARIANT Caller::AnyObject() {
  VARIANT value{};
  value.vt = OneIn(4) ? VT_UNKNOWN : VT_DISPATCH;
  if (OneIn(6)) return value;
  const auto classes = Classes();
  try {
    value.pdispVal = OneIn(2) ? new Stranger(*this) : NewFace(*classes[Below(classes.size())])->AsDispatch();
  } catch (const std::exception&) {
    value.pdispVal = nullptr;  // no memory
  }
  return value;
}

VARIANT Caller::AnyArray(VARTYPE pElement) {
  VARIANT value{};
  value.vt = static_cast<VARTYPE>(VT_ARRAY | pElement);
  if (OneIn(6)) return value;
  std::array<SAFEARRAYBOUND, 3> bounds;
  for (SAFEARRAYBOUND& each : bounds) each = {static_cast<ULONG>(Below(4)), static_cast<LONG>(Below(4)) - 1};
  value.parray = SafeArrayCreate(pElement, OneIn(4) ? 3 : 1, bounds.data());
  if (!value.parray) return value;
  if (OneIn(6)) value.parray->fFeatures |= FADF_FIXEDSIZE;
  if (pElement == VT_VARIANT && value.parray->cDims == 1)
    for (ULONG i = 0; i < bounds[0].cElements; ++i) static_cast<VARIANT*>(value.parray->pvData)[i] = AnyScalar();
  return value;
}

VARIANT Caller::AnyVariant(const TypeDesc& pRight) {
  static constexpr std::array<VARTYPE, 9> kElements{VT_I2,  VT_I4,   VT_R8,   VT_BSTR, VT_VARIANT,
                                                    VT_UI1, VT_BOOL, VT_DATE, VT_CY};
  switch (Below(10)) {
    case 0:
      return AnyObject();
    case 1:
      return AnyArray(kElements[Below(kElements.size())]);
    case 2:
    case 3:
      return AnyScalar();
    default:
      return ToVariant(RightValue(pRight));
  }
}

// ---- Calls.

// The platform's own descriptions of records do not survive it.
void LetPlatformFail(const MemberCall& pMember) {
  bool hasRecord = pMember.Member().result.base == BaseType::Record;
  for (const ParameterDesc& each : pMember.entry->members->Parameters(pMember.Member()))
    hasRecord = hasRecord || each.type.base == BaseType::Record;
  Platform().mayFail = !hasRecord;
}

enum class Form { Value, Variable, TypedVariable, Nothing };

VARIANT Reference(int pType, void* pPlace) {
  VARIANT reference{};
  reference.vt = static_cast<VARTYPE>(VT_BYREF | pType);
  reference.byref = pPlace;
  return reference;
}

// A variable of the caller's, and how it is passed: by value, as a reference to it or to what is in it, or to nothing.
class CarelessArgument {
 public:
  CarelessArgument(VARIANT pVariable, Form pForm) : type_(pVariable.vt) {
    variable.value = passed = pVariable;
    if (pForm == Form::Variable) passed = Reference(VT_VARIANT, &variable.value);
    if (pForm == Form::Nothing) passed = Reference(VT_VARIANT, nullptr);
    if (pForm != Form::TypedVariable || type_ <= VT_NULL) return;
    if (type_ == VT_RECORD)
      passed.vt |= VT_BYREF;
    else
      passed = Reference(type_, type_ == VT_DECIMAL ? static_cast<void*>(&variable.value) : &variable.value.llVal);
  }
  ~CarelessArgument() {
    if (type_ == VT_DECIMAL && passed.vt == (VT_BYREF | VT_DECIMAL))
      variable.value.vt = VT_DECIMAL;  // it lies there too
  }
  CarelessArgument(const CarelessArgument&) = delete;
  CarelessArgument& operator=(const CarelessArgument&) = delete;

  OwnedVariant variable;
  VARIANT passed;

 private:
  const VARTYPE type_;
};

void Free(EXCEPINFO& pException) {
  SysFreeString(pException.bstrSource);
  SysFreeString(pException.bstrDescription);
  SysFreeString(pException.bstrHelpFile);
}

Caller::Caller(const ClassEntry& pEntry, unsigned pSeed) : entry_(pEntry), random_(pSeed) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  members_ = MembersOf(pEntry);
  std::erase_if(members_,
                [](const MemberCall& pEach) { return pEach.Member().name == "RegisterError"; });  // shows a box
}

Caller::~Caller() {
  LetGo();
  SetErrorInfo(0, nullptr);  // the apartment ends with the thread: what the library still holds goes before
}

void Caller::CallLateBound(std::size_t pExtra, std::size_t pFailAt) {
  const MemberCall& member = members_[Below(members_.size())];
  calling = member.Name() + ", late bound";
  const auto parameters = entry_.members->Parameters(member.Member());
  std::deque<CarelessArgument> arguments;
  std::vector<VARIANT> passed;
  const std::size_t count = parameters.size() + pExtra - (OneIn(8) && !parameters.empty() ? 1 : 0);
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t at = count - 1 - i;  // the last one comes first
    TypeDesc type;
    type.base = BaseType::Long;
    if (at < parameters.size()) type = parameters[at].type;
    passed.push_back(arguments.emplace_back(AnyVariant(type), static_cast<Form>(Below(OneIn(10) ? 4 : 3))).passed);
  }
  DISPID put = OneIn(20) ? 1 : DISPID_PROPERTYPUT;
  const bool isPut = member.Member().IsPut() && !passed.empty();
  DISPPARAMS list{passed.data(), isPut ? &put : nullptr, static_cast<UINT>(count), isPut ? 1U : 0U};
  const auto kind = static_cast<WORD>(OneIn(10) ? Below(16) : static_cast<std::size_t>(member.Kind()));
  OwnedVariant result;
  EXCEPINFO exception{};
  HRESULT answer = S_OK;
  OuterFace& face = Face();
  ++depth;
  {
    LetPlatformFail(member);
    const ScopedAllocationFailure failure(pFailAt);
    answer = face.AsDispatch()->Invoke(member.Member().id, IID_NULL, 0, kind, &list,
                                       OneIn(10) ? nullptr : &result.value, OneIn(10) ? nullptr : &exception, nullptr);
  }
  --depth;
  accepted += answer == S_OK;
  Free(exception);
}

void Caller::CallEarlyBound(std::size_t pFailAt) {
  const MemberCall& member = members_[Below(members_.size())];
  calling = member.Name() + ", early bound";
  std::deque<CarelessArgument> arguments;
  std::deque<VARIANT> pointers;
  std::vector<VARTYPE> types;
  std::vector<VARIANT*> passed;
  for (const ParameterDesc& parameter : entry_.members->Parameters(member.Member())) {
    const VARTYPE type = TypeOf(parameter.type);
    const auto element = static_cast<VARTYPE>(type & VT_TYPEMASK);
    VARIANT value = (type & VT_ARRAY) != 0 ? AnyArray(OneIn(4) ? VARTYPE{VT_I2} : element)
                    : type == VT_DISPATCH  ? AnyObject()
                    : type == VT_VARIANT   ? AnyVariant(parameter.type)
                                           : ToVariant(RightValue(parameter.type));
    if (type == VT_UI1) value.vt = VT_UI1;
    VARIANT& variable = arguments.emplace_back(value, Form::Value).variable.value;
    VARIANT& pointer = pointers.emplace_back();
    pointer.vt = VT_I8;
    void* place = type == VT_VARIANT  ? static_cast<void*>(&variable)
                  : type == VT_RECORD ? variable.pvRecord
                                      : &variable.llVal;
    pointer.llVal = OneIn(30) ? 0 : reinterpret_cast<LONGLONG>(place);
    const bool byPointer = parameter.IsByRef() || type == VT_RECORD;
    types.push_back(byPointer ? VARTYPE{VT_I8} : type);
    passed.push_back(byPointer ? &pointer : &variable);
  }
  alignas(16) std::byte native[256]{};
  VARIANT result{};
  result.vt = VT_I8;
  result.llVal = reinterpret_cast<LONGLONG>(native);
  const TypeDesc& resultType = member.Member().result;
  if (resultType.base != BaseType::Void) {
    types.push_back(VT_I8);
    passed.push_back(&result);
  }
  OuterFace& face = Face();
  VARIANT answer{};
  ++depth;
  {
    LetPlatformFail(member);
    const ScopedAllocationFailure failure(pFailAt);
    DispCallFunc(face.AsDispatch(), (7 + member.row) * sizeof(void*), CC_STDCALL, VT_I4,
                 static_cast<UINT>(types.size()), types.data(), passed.data(), &answer);
  }
  --depth;
  accepted += answer.lVal == S_OK;
  if (answer.lVal == S_OK) Attempt([&] { ShowResult(resultType, native); });  // which frees it
}

void Caller::CallSomething(bool pMemoryFails) {
  if (OneIn(20)) LetGo();
  const std::size_t failAt = pMemoryFails && OneIn(2) ? 1 + Below(16) : 0;
  if (OneIn(3)) return CallEarlyBound(failAt);
  CallLateBound(OneIn(10) ? 1 : 0, failAt);
}

// ---- The law.

struct Alive {
  std::ptrdiff_t blocks = BlocksAlive();
  std::ptrdiff_t ofPlatform = Platform().alive;
  long strangers = Stranger::alive;
};

// What every member answers, in a thread that nobody has called in.
std::vector<CallOutcome> Answers(const ClassEntry& pEntry) {
  std::vector<CallOutcome> answers;
  std::thread([&] {
    const Ref<Object> object = pEntry.create();
    for (const MemberCall& each : MembersOf(pEntry)) answers.push_back(CallNatively(*object, WithRightArguments(each)));
  }).join();
  return answers;
}

void CallCarelessly(const ClassEntry& pEntry, bool pMemoryFails) {
  std::thread([&] {
    Caller caller(pEntry, GTEST_FLAG_GET(random_seed));
    for (int i = 0; i < 5000; ++i) caller.CallSomething(pMemoryFails);
    EXPECT_GT(caller.accepted, 500) << pEntry.identity->name;
  }).join();
}

void ExpectNothingLeft(bool pMemoryFails) {
  SetOaNoCache();
  CoRegisterMallocSpy(&Platform());
  std::set_terminate([] {
    std::printf("the program ended in %s\n", calling.c_str());
    std::fflush(stdout);
    std::abort();
  });
  for (const ClassEntry* entry : Classes()) {
    const auto answers = Answers(*entry);
    CallCarelessly(*entry, pMemoryFails);  // what the process keeps for good is made here
    const Alive before;
    CallCarelessly(*entry, pMemoryFails);
    const Alive after;
    EXPECT_EQ(after.blocks, before.blocks) << entry->identity->name;
    EXPECT_EQ(after.ofPlatform, before.ofPlatform) << entry->identity->name;
    EXPECT_EQ(after.strangers, before.strangers) << entry->identity->name;
    EXPECT_EQ(Answers(*entry), answers) << entry->identity->name;
  }
  CoRevokeMallocSpy();
}

TEST(CarelessCaller, LeavesNothingBehind) {
  ExpectNothingLeft(false);
}

TEST(CarelessCaller, LeavesNothingBehindWithoutMemory) {
  ExpectNothingLeft(true);
}

}  // namespace
}  // namespace qzbase::tests
