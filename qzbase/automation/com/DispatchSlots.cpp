#include "qzbase/automation/com/DispatchSlots.h"

#include "qzbase/automation/ArgumentList.h"
#include "qzbase/automation/Invoke.h"
#include "qzbase/automation/com/Conversion.h"
#include "qzbase/automation/com/ErrorBorder.h"

namespace qzbase::automation::com {
namespace {

using runtime::CallKind;
using runtime::Raise;
using runtime::RuntimeError;

OuterFace& FaceBehind(DualInterface* pSelf) noexcept {
  return *static_cast<OuterFace*>(pSelf);
}

bool IsPut(WORD pFlags) noexcept {
  return (pFlags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
}

void Check(const DISPPARAMS& pGiven) {
  if (pGiven.cArgs > kMaxParameters || pGiven.cNamedArgs > pGiven.cArgs) Raise(RuntimeError::WrongNumberOfArguments);
  const bool isIncomplete =
      (pGiven.cArgs != 0 && !pGiven.rgvarg) || (pGiven.cNamedArgs != 0 && !pGiven.rgdispidNamedArgs);
  if (isIncomplete) throw NullPointer();
}

// The new value of a put has a name of its own, wherever it stands; some hosts pass it as the last one without.
bool EndsWithObject(const DISPPARAMS& pGiven) {
  const VARIANT* value = pGiven.cArgs != 0 ? &pGiven.rgvarg[0] : nullptr;
  for (UINT i = 0; i < pGiven.cNamedArgs; ++i)
    if (pGiven.rgdispidNamedArgs[i] == DISPID_PROPERTYPUT) value = &pGiven.rgvarg[i];
  const int type = value ? SeenThrough(*value)->vt & ~VT_BYREF : VT_EMPTY;
  return type == VT_DISPATCH || type == VT_UNKNOWN || type == VT_RECORD;
}

VARIANT* NullIfOmitted(VARIANT& pGiven) noexcept {
  return IsOmitted(pGiven) ? nullptr : &pGiven;
}

void Place(ArgumentList<VARIANT>& pList, const DISPPARAMS& pGiven, bool pIsPut) {
  const UINT positional = pGiven.cArgs - pGiven.cNamedArgs;
  const bool endsWithValue = pIsPut && pGiven.cNamedArgs == 0 && positional != 0;
  for (UINT i = 0; i < positional; ++i) {
    VARIANT* given = NullIfOmitted(pGiven.rgvarg[pGiven.cArgs - 1 - i]);
    if (endsWithValue && i + 1 == positional)
      pList.PlaceLast(given);
    else
      pList.Place(i, given);
  }
  for (UINT i = 0; i < pGiven.cNamedArgs; ++i) {
    VARIANT* given = NullIfOmitted(pGiven.rgvarg[i]);
    if (pIsPut && pGiven.rgdispidNamedArgs[i] == DISPID_PROPERTYPUT)
      pList.PlaceLast(given);
    else
      pList.PlaceNamed(pGiven.rgdispidNamedArgs[i], given);
  }
}

HRESULT Call(OuterFace& pFace, DISPID pMember, WORD pFlags, const DISPPARAMS& pGiven, VARIANT* pResult,
             EXCEPINFO* pException) noexcept {
  const MemberTable& members = *pFace.Class().entry->members;
  bool isReached = false;
  try {
    Check(pGiven);
    const auto kind = static_cast<CallKind>(
        pFlags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET | DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF));
    const std::size_t row = SelectRow(members, pMember, kind, IsPut(pFlags) && EndsWithObject(pGiven));
    ArgumentList<VARIANT> list(members, members.rows[row]);
    Place(list, pGiven, IsPut(pFlags));
    VARIANT* const* arguments = list.Complete();
    isReached = true;
    pFace.Class().functions[row](*pFace.Object(), arguments, pResult);
    return S_OK;
  } catch (...) {
    return isReached ? ReportLate(&pFace.Class(), pException) : ReportCallFault();
  }
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
  const ServerClass& served = FaceBehind(pSelf).Class();
  return Guard(&served, [&] {
    *pResult = TypeInfoOf(served.interfaceId).Release();
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
  if (pResult) *pResult = VARIANT{};
  if (pFaultAt) *pFaultAt = 0;
  if (pReserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (!pParameters) return NullPointerResult();
  const HeldFace face(pSelf);
  return Call(face.Get(), pMember, pFlags, *pParameters, pResult, pException);
}

}  // namespace qzbase::automation::com
