// Late-bound calls by hosts: their variants become the library's own, the call goes through automation/Invoke.h, and
// the by-reference arguments go back.
#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <new>
#include <span>
#include <utility>

#include "qzbase/automation/Invoke.h"
#include "qzbase/automation/com/Conversion.h"
#include "qzbase/automation/com/DispatchSlots.h"
#include "qzbase/automation/com/ErrorBorder.h"
#include "qzbase/automation/com/HostObject.h"

namespace qzbase::automation::com {
namespace {

using runtime::CallKind;
using runtime::Raise;
using runtime::RuntimeError;
using runtime::Variant;

OuterFace& FaceBehind(DualInterface* pSelf) noexcept {
  return *static_cast<OuterFace*>(pSelf);
}

bool IsPut(WORD pFlags) noexcept {
  return (pFlags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
}

// A host's object where the parameter takes none: a script's array for an array, else the value of its default member.
void AdaptHostObject(Variant& pArgument, const TypeDesc& pType) {
  const bool takesObjects = pType.base == BaseType::Object || pType.base == BaseType::Class ||
                            pType.base == BaseType::Record || pType.base == BaseType::Variant;
  const auto* object = pArgument.If<runtime::Ref<runtime::Object>>();
  if (!object || (takesObjects && !pType.isArray)) return;
  const auto host = std::dynamic_pointer_cast<HostObject>(*object);
  if (host) pArgument = pType.isArray ? Variant(host->Elements()) : host->Get(u"");
}

// The arguments of one call, in the order of the parameters: as many as are given, with null for what is left out in
// between; the new value of a let or set is the last one.
class CallArguments {
 public:
  CallArguments(const DISPPARAMS& pGiven, bool pIsPut) : isPut_(pIsPut) {
    if (pGiven.cArgs > kMaxParameters || pGiven.cNamedArgs > pGiven.cArgs) Raise(RuntimeError::WrongNumberOfArguments);
    const bool isIncomplete =
        (pGiven.cArgs != 0 && !pGiven.rgvarg) || (pGiven.cNamedArgs != 0 && !pGiven.rgdispidNamedArgs);
    if (isIncomplete) throw NullPointer();
    for (UINT i = pGiven.cArgs; i > pGiven.cNamedArgs; --i) Place(count_, pGiven.rgvarg[i - 1]);
    for (UINT i = 0; i < pGiven.cNamedArgs; ++i) PlaceNamed(pGiven.rgdispidNamedArgs[i], pGiven.rgvarg[i]);
    if (newValue_) Place(count_, *newValue_);
  }
  ~CallArguments() { std::destroy_n(Values(), made_); }
  CallArguments(const CallArguments&) = delete;
  CallArguments& operator=(const CallArguments&) = delete;

  std::span<Variant* const> List() const noexcept { return std::span(list_).first(count_); }

  void Adapt(std::span<const ParameterDesc> pParameters) {
    for (std::size_t i = 0; i < count_; ++i)
      if (list_[i])
        if (const ParameterDesc* parameter = ParameterAt(i, pParameters)) AdaptHostObject(*list_[i], parameter->type);
  }

  // Changes the variables behind by-reference arguments, all or none of them.
  void StoreChanges(std::span<const ParameterDesc> pParameters) {
    const auto isByRef = [](const ParameterDesc& pParameter) { return pParameter.type.isByRef; };
    if (std::none_of(pParameters.begin(), pParameters.end(), isByRef)) return;
    std::array<WriteBack, kMaxParameters> changes;
    for (std::size_t i = 0; i < count_; ++i) {
      const ParameterDesc* parameter = ParameterAt(i, pParameters);
      if (list_[i] && parameter && parameter->type.isByRef) changes[i].Prepare(*from_[i], *list_[i]);
    }
    for (WriteBack& change : changes) change.Commit();
  }

 private:
  Variant* Values() noexcept { return reinterpret_cast<Variant*>(storage_); }

  void Place(std::size_t pAt, VARIANT& pGiven) {
    if (pAt >= kMaxParameters || (pAt < count_ && from_[pAt])) Raise(RuntimeError::WrongNumberOfArguments);
    if (!IsOmitted(pGiven)) {
      list_[pAt] = new (Values() + made_) Variant(FromVariant(pGiven));
      ++made_;
    }
    from_[pAt] = &pGiven;
    count_ = std::max(count_, pAt + 1);
  }

  void PlaceNamed(DISPID pName, VARIANT& pGiven) {
    if (isPut_ && pName == DISPID_PROPERTYPUT)
      newValue_ = &pGiven;
    else if (pName < 0)
      Raise(RuntimeError::NamedArgumentNotFound);
    else
      Place(static_cast<std::size_t>(pName), pGiven);
  }

  const ParameterDesc* ParameterAt(std::size_t pAt, std::span<const ParameterDesc> pParameters) const noexcept {
    if (isPut_ && pAt + 1 == count_) return &pParameters.back();
    return pAt < pParameters.size() ? &pParameters[pAt] : nullptr;
  }

  const bool isPut_;
  VARIANT* newValue_ = nullptr;
  std::size_t count_ = 0;
  std::size_t made_ = 0;
  std::array<Variant*, kMaxParameters> list_{};
  std::array<VARIANT*, kMaxParameters> from_{};
  alignas(Variant) std::byte storage_[kMaxParameters * sizeof(Variant)];
};

void Call(OuterFace& pFace, DISPID pMember, WORD pFlags, const DISPPARAMS& pParameters, VARIANT* pResult) {
  const ClassEntry& entry = *pFace.Class().entry;
  CallArguments arguments(pParameters, IsPut(pFlags));
  const auto kind = static_cast<CallKind>(
      pFlags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET | DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF));
  const std::size_t row = SelectRow(*entry.members, pMember, kind, arguments.List());
  const auto parameters = entry.members->Parameters(entry.members->rows[row]);
  arguments.Adapt(parameters);
  const Variant result = InvokeRow(entry, *pFace.Object(), row, arguments.List());
  OwnedVariant answer;
  if (pResult) answer.value = ToVariant(result);
  arguments.StoreChanges(parameters);
  if (pResult) *pResult = answer.Release();
}

}  // namespace

HRESULT STDMETHODCALLTYPE DualQueryInterface(DualInterface* pSelf, REFIID pId, void** pResult) noexcept {
  return FaceBehind(pSelf).QueryInterface(pId, pResult);
}

ULONG STDMETHODCALLTYPE DualAddRef(DualInterface* pSelf) noexcept {
  return FaceBehind(pSelf).AddRef();
}

ULONG STDMETHODCALLTYPE DualRelease(DualInterface* pSelf) noexcept {
  return FaceBehind(pSelf).Release();
}

HRESULT STDMETHODCALLTYPE DualGetTypeInfoCount(DualInterface*, UINT* pCount) noexcept {
  if (!pCount) return E_POINTER;
  *pCount = 1;
  return S_OK;
}

HRESULT STDMETHODCALLTYPE DualGetTypeInfo(DualInterface* pSelf, UINT pIndex, LCID, ITypeInfo** pResult) noexcept {
  if (!pResult) return E_POINTER;
  *pResult = nullptr;
  if (pIndex != 0) return DISP_E_BADINDEX;
  const Face& face = FaceBehind(pSelf).Class();
  return Guard(&face, [&] {
    *pResult = TypeInfoOf(face.interfaceId).Release();
    return S_OK;
  });
}

HRESULT STDMETHODCALLTYPE DualGetIdsOfNames(DualInterface* pSelf, REFIID pReserved, LPOLESTR* pNames, UINT pCount, LCID,
                                            DISPID* pIds) noexcept {
  if (pReserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (!pNames || !pIds) return E_POINTER;
  const MemberTable& members = *FaceBehind(pSelf).Class().entry->members;
  bool allKnown = true;
  for (UINT i = 0; i < pCount; ++i) {
    if (!pNames[i]) return E_POINTER;
    const std::u16string_view name = AsText(pNames[i]);
    pIds[i] = i == 0 ? members.Find(name) : members.FindParameter(pIds[0], name);
    allKnown = allKnown && pIds[i] >= 0;
  }
  return allKnown ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT STDMETHODCALLTYPE DualInvoke(DualInterface* pSelf, DISPID pMember, REFIID pReserved, LCID, WORD pFlags,
                                     DISPPARAMS* pParameters, VARIANT* pResult, EXCEPINFO* pException,
                                     UINT* pFaultAt) noexcept {
  if (pResult) VariantInit(pResult);
  if (pFaultAt) *pFaultAt = 0;
  if (pReserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (!pParameters) return E_POINTER;
  OuterFace& face = FaceBehind(pSelf);
  const auto whileCalled = ComRef<ISupportErrorInfo>::Share(&face);  // the call may let go of the last other reference
  try {
    Call(face, pMember, pFlags, *pParameters, pResult);
    return S_OK;
  } catch (...) {
    return ReportLate(&face.Class(), pException);
  }
}

}  // namespace qzbase::automation::com
