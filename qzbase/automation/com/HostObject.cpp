// Implementation notes. Arguments of methods are passed by reference, as scripts pass their variables; those of
// properties by value. The class instances of some script hosts find their members through IDispatchEx alone.
#include "qzbase/automation/com/HostObject.h"

#include <string>
#include <vector>

#include <dispex.h>

#include "qzbase/automation/VariantValue.h"
#include "qzbase/automation/com/Conversion.h"
#include "qzbase/automation/com/ErrorBorder.h"

namespace qzbase::automation::com {
namespace {

using runtime::CallKind;
using runtime::Variant;

constexpr GUID kDispatchEx = {0xA6EF9860, 0xC720, 0x11D0, {0x93, 0x37, 0x00, 0xA0, 0xC9, 0x0D, 0xCA, 0xA9}};

// What a host has answered; it may be any nonsense, such as a reference to nothing.
Variant FromHost(const VARIANT& pVariant) {
  try {
    return FromVariant(pVariant, Digits::All);
  } catch (const NullPointer&) {
    runtime::Raise(runtime::RuntimeError::ObjectNotSet);
  }
}

// The arguments of one call, last one first as the platform wants them.
class HostArguments {
 public:
  HostArguments(std::span<Variant> pValues, bool pByReference) : given_(pValues), values_(pValues.size()) {
    for (std::size_t i = 0; i < pValues.size(); ++i) values_[i].value = ToVariant(pValues[i]);
    passed_.reserve(values_.size());
    for (std::size_t i = values_.size(); i-- > 0;) passed_.push_back(values_[i].value);
    if (pByReference) before_ = passed_;
    if (pByReference)
      for (std::size_t i = 0; i < values_.size(); ++i) passed_[values_.size() - 1 - i] = Reference(values_[i].value);
  }

  VARIANT* Data() noexcept { return passed_.data(); }
  UINT Count() const noexcept { return static_cast<UINT>(passed_.size()); }

  // The arguments that the object has changed.
  void StoreChanges() {
    for (std::size_t i = 0; i < before_.size(); ++i) {
      const std::size_t at = before_.size() - 1 - i;
      if (MayDiffer(before_[i], values_[at].value)) given_[at] = FromHost(values_[at].value);
    }
  }

 private:
  // A new text may lie where the old one did, and an array or record changes in place.
  static bool MayDiffer(const VARIANT& pBefore, const VARIANT& pAfter) noexcept {
    const bool mayChangeInPlace = pAfter.vt == VT_BSTR || pAfter.vt == VT_RECORD || (pAfter.vt & VT_ARRAY) != 0;
    return mayChangeInPlace || pBefore.vt != pAfter.vt || pBefore.llVal != pAfter.llVal;
  }

  static VARIANT Reference(VARIANT& pVariable) noexcept {
    VARIANT reference{};
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = &pVariable;
    return reference;
  }

  std::span<Variant> given_;
  std::vector<OwnedVariant> values_;
  std::vector<VARIANT> passed_;
  std::vector<VARIANT> before_;
};

bool IsPut(CallKind pKind) noexcept {
  return pKind == CallKind::Let || pKind == CallKind::Set;
}

}  // namespace

HostObject::HostObject(ComRef<IDispatch> pDispatch) : dispatch_(std::move(pDispatch)), thread_(GetCurrentThreadId()) {}

HostObject::~HostObject() {
  // Only its own apartment may release it. The state of a thread may outlive that, and the code behind the object may
  // be unloaded by then, so that it is left alone.
  APTTYPE type{};
  APTTYPEQUALIFIER qualifier{};
  const bool isAtHome = GetCurrentThreadId() == thread_ && !IsModuleEnding() &&
                        CoGetApartmentType(&type, &qualifier) != CO_E_NOTINITIALIZED;
  if (!isAtHome) dispatch_.Release();
}

DISPID HostObject::FindMember(std::u16string_view pName) const {
  if (pName.empty()) return DISPID_VALUE;
  const OwnedText name(pName);
  BSTR names = name.Get();
  DISPID id = DISPID_UNKNOWN;
  HRESULT result = dispatch_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
  if (result == E_NOTIMPL)
    if (const auto extended = dispatch_.As<IDispatchEx>(kDispatchEx))
      result = extended->GetDispID(name.Get(), fdexNameCaseInsensitive, &id);
  CheckResult(result);
  return id;
}

Variant HostObject::Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) {
  return InvokeId(FindMember(pName), pKind, pArguments);
}

Variant HostObject::InvokeNumbered(const runtime::NumberedMember& pMember, CallKind pKind,
                                   std::span<Variant> pArguments) {
  return InvokeId(pMember.number, pKind, pArguments);
}

Variant HostObject::InvokeId(DISPID pMember, CallKind pKind, std::span<Variant> pArguments) {
  const ComRef<IDispatch> held = dispatch_;  // the call may let go of this object
  HostArguments arguments(pArguments, pKind == CallKind::Method || pKind == CallKind::MethodOrGet);
  DISPID newValue = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{arguments.Data(), nullptr, arguments.Count(), 0};
  if (IsPut(pKind)) {
    parameters.rgdispidNamedArgs = &newValue;
    parameters.cNamedArgs = 1;
  }
  OwnedVariant answer;
  EXCEPINFO exception{};
  UINT faultAt = 0;
  const auto call = [&](CallKind pFlags) {
    return held->Invoke(pMember, IID_NULL, LOCALE_USER_DEFAULT, static_cast<WORD>(pFlags), &parameters,
                        IsPut(pKind) ? nullptr : &answer.value, &exception, &faultAt);
  };
  HRESULT result = call(pKind);
  // What is to be read may be a function. Not asked for in one call, which some script hosts take for a call of
  // whatever the property holds.
  if (result == DISP_E_MEMBERNOTFOUND && pKind == CallKind::Get) result = call(CallKind::MethodOrGet);
  if (result == DISP_E_EXCEPTION) RaiseException(exception);
  CheckResult(result);
  arguments.StoreChanges();
  return FromHost(answer.value);
}

runtime::Array<Variant> HostObject::Elements() {
  const auto count = VariantValue<std::int32_t>::From(Get(u"length"));
  std::vector<Variant> elements;
  for (std::int32_t i = 0; i < count; ++i) {
    const std::string digits = std::to_string(i);
    try {
      elements.push_back(Get(std::u16string(digits.begin(), digits.end())));
    } catch (const runtime::AutomationError& error) {
      if (!error.Is(runtime::RuntimeError::MemberNotFound)) throw;
      elements.emplace_back();  // a hole
    }
  }
  return {0, std::move(elements)};
}

}  // namespace qzbase::automation::com
