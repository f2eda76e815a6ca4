#include "tests/automation/calls/HostCalls.h"

#include <cstring>
#include <deque>

#include "qzbase/automation/com/Conversion.h"
#include "qzbase/automation/com/ErrorBorder.h"
#include "qzbase/automation/com/ObjectBorder.h"
#include "qzbase/automation/com/RecordBorder.h"

namespace qzbase::tests {

using namespace automation;
using namespace automation::com;
using namespace runtime;

VARTYPE TypeOf(const TypeDesc& pType) {
  static constexpr VARTYPE kTypes[] = {VT_EMPTY, VT_BOOL, VT_UI1,     VT_I2,       VT_I4,       VT_R4,     VT_R8,
                                       VT_DATE,  VT_BSTR, VT_VARIANT, VT_DISPATCH, VT_DISPATCH, VT_RECORD, VT_I4};
  const VARTYPE type = kTypes[static_cast<std::size_t>(pType.base)];
  return pType.isArray ? static_cast<VARTYPE>(VT_ARRAY | type) : type;
}

namespace {

std::string ErrorText(HRESULT pResult, HRESULT pCode) {
  if (pResult == S_OK) return "";
  if (pResult == E_POINTER) return "null pointer";
  return "error " + std::to_string(NumberOfResult(pResult == DISP_E_EXCEPTION ? pCode : pResult));
}

// What a slot takes: memory for the native, and the value or pointer that is passed.
class SlotPassed {
 public:
  SlotPassed(const CallArgument& pGiven, const ParameterDesc& pParameter) : type_(TypeOf(pParameter.type)) {
    native_.value = ToVariant(pGiven.isOmitted ? DefaultOf(pParameter) : pGiven.value);
    if (type_ == VT_VARIANT && pGiven.isOmitted) {
      native_.value.vt = VT_ERROR;
      native_.value.scode = DISP_E_PARAMNOTFOUND;
    } else if (type_ != VT_VARIANT && (type_ & VT_ARRAY) == 0 && type_ != VT_RECORD) {
      OwnedVariant given;
      given.value = native_.Release();
      native_.value = ToVariantOf(FromVariant(given.value, Digits::All), type_);
    }
    const bool byPointer = pParameter.IsByRef() || type_ == VT_RECORD;
    passed_ = native_.value;
    if (!byPointer) {
      if (type_ == VT_VARIANT) passed_.vt = VT_VARIANT;
      return;
    }
    passed_.vt = VT_I8;
    passed_.llVal = reinterpret_cast<LONGLONG>(type_ == VT_VARIANT  ? static_cast<void*>(&native_.value)
                                               : type_ == VT_RECORD ? native_.value.pvRecord
                                                                    : &native_.value.llVal);
  }

  VARTYPE Type() const noexcept { return passed_.vt; }
  VARIANT* Passed() noexcept { return type_ == VT_VARIANT && passed_.vt == VT_VARIANT ? &native_.value : &passed_; }
  std::string Shown() const { return Show(FromVariant(native_.value, Digits::Nearest)); }

 private:
  VARTYPE type_;
  OwnedVariant native_;
  VARIANT passed_{};
};

}  // namespace

std::string ShowResult(const TypeDesc& pType, std::byte* pNative) {
  OwnedVariant result;
  if (pType.base == BaseType::Void) return Show({});
  if (pType.base == BaseType::Record && !pType.isArray) {
    const Ref<Object> record = *RightValue(pType).If<Ref<Object>>();
    const ServerRecord* served = FindServerRecord(static_cast<const Record&>(*record));
    const Ref<Record> loaded = served->load(pNative);
    RecordInfoOf(*served)->RecordClear(pNative);
    return Show(Variant(loaded));
  }
  if (pType.base == BaseType::Variant) {
    std::memcpy(&result.value, pNative, sizeof(VARIANT));
  } else {
    result.value.vt = TypeOf(pType);
    std::memcpy(&result.value.llVal, pNative, sizeof(LONGLONG));
  }
  return Show(FromVariant(result.value, Digits::Nearest));
}

OuterFace* NewFace(const ClassEntry& pEntry) {
  return static_cast<OuterFace*>(reinterpret_cast<DualInterface*>(ToDispatch(pEntry.create())));
}

CallOutcome CallLate(OuterFace& pFace, const MemberCall& pCall) {
  const std::size_t count = pCall.arguments.size();
  std::vector<OwnedVariant> variables(count);
  std::vector<VARIANT> passed(count);
  for (std::size_t i = 0; i < count; ++i) {
    VARIANT& argument = passed[count - 1 - i];
    if (pCall.arguments[i].isOmitted) {
      argument.vt = VT_ERROR;
      argument.scode = DISP_E_PARAMNOTFOUND;
      continue;
    }
    variables[i].value = ToVariant(pCall.arguments[i].value);
    argument = variables[i].value;
    if (!pCall.Parameter(i).IsByRef()) continue;
    argument.vt = VT_BYREF | VT_VARIANT;
    argument.pvarVal = &variables[i].value;
  }
  DISPID put = DISPID_PROPERTYPUT;
  const bool isPut = pCall.Member().IsPut();
  DISPPARAMS parameters{passed.data(), isPut ? &put : nullptr, static_cast<UINT>(count), isPut ? 1U : 0U};
  OwnedVariant result;
  EXCEPINFO exception{};
  const HRESULT answer = pFace.AsDispatch()->Invoke(pCall.Member().id, IID_NULL, 0, static_cast<WORD>(pCall.Kind()),
                                                    &parameters, &result.value, &exception, nullptr);
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  CallOutcome outcome{ErrorText(answer, exception.scode)};
  if (answer == S_OK) outcome.answer = Show(FromVariant(result.value, Digits::Nearest));
  for (std::size_t i = 0; i < count; ++i)
    outcome.arguments.push_back(Show(pCall.arguments[i].isOmitted ? pCall.arguments[i].value
                                                                  : FromVariant(variables[i].value, Digits::Nearest)));
  return outcome;
}

CallOutcome CallEarly(OuterFace& pFace, const MemberCall& pCall, std::size_t pNullAt) {
  const MemberDesc& member = pCall.Member();
  std::deque<SlotPassed> slots;
  std::vector<VARTYPE> types;
  std::vector<VARIANT*> passed;
  for (std::size_t i = 0; i < pCall.arguments.size(); ++i) {
    SlotPassed& slot = slots.emplace_back(pCall.arguments[i], pCall.Parameter(i));
    types.push_back(slot.Type());
    passed.push_back(slot.Passed());
  }
  alignas(16) std::byte native[256]{};
  VARIANT pointer{};
  pointer.vt = VT_I8;
  pointer.llVal = reinterpret_cast<LONGLONG>(native);
  if (member.result.base != BaseType::Void) {
    types.push_back(VT_I8);
    passed.push_back(&pointer);
  }
  if (pNullAt < passed.size()) passed[pNullAt]->llVal = 0;
  SetErrorInfo(0, nullptr);
  VARIANT answer{};
  DispCallFunc(pFace.AsDispatch(), (7 + pCall.row) * sizeof(void*), CC_STDCALL, VT_I4, static_cast<UINT>(types.size()),
               types.data(), passed.data(), &answer);
  CallOutcome outcome{ErrorText(answer.lVal, answer.lVal)};
  if (answer.lVal == S_OK) outcome.answer = ShowResult(member.result, native);
  for (std::size_t i = 0; i < pCall.arguments.size(); ++i)
    outcome.arguments.push_back(pCall.arguments[i].isOmitted ? Show(pCall.arguments[i].value) : slots[i].Shown());
  return outcome;
}

}  // namespace qzbase::tests
