// The first seven slots of every dual interface: IUnknown and IDispatch, the same for all classes.
#pragma once

#include "qzbase/automation/com/OuterFace.h"

namespace qzbase::automation::com {

struct DispatchSlots {
  HRESULT(STDMETHODCALLTYPE* queryInterface)(DualInterface*, REFIID, void**) noexcept;
  ULONG(STDMETHODCALLTYPE* addRef)(DualInterface*) noexcept;
  ULONG(STDMETHODCALLTYPE* release)(DualInterface*) noexcept;
  HRESULT(STDMETHODCALLTYPE* getTypeInfoCount)(DualInterface*, UINT*) noexcept;
  HRESULT(STDMETHODCALLTYPE* getTypeInfo)(DualInterface*, UINT, LCID, ITypeInfo**) noexcept;
  HRESULT(STDMETHODCALLTYPE* getIdsOfNames)(DualInterface*, REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept;
  HRESULT(STDMETHODCALLTYPE* invoke)
  (DualInterface*, DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) noexcept;
};

HRESULT STDMETHODCALLTYPE DualQueryInterface(DualInterface* pSelf, REFIID pId, void** pResult) noexcept;
ULONG STDMETHODCALLTYPE DualAddRef(DualInterface* pSelf) noexcept;
ULONG STDMETHODCALLTYPE DualRelease(DualInterface* pSelf) noexcept;
HRESULT STDMETHODCALLTYPE DualGetTypeInfoCount(DualInterface* pSelf, UINT* pCount) noexcept;
HRESULT STDMETHODCALLTYPE DualGetTypeInfo(DualInterface* pSelf, UINT pIndex, LCID pLocale,
                                          ITypeInfo** pResult) noexcept;
HRESULT STDMETHODCALLTYPE DualGetIdsOfNames(DualInterface* pSelf, REFIID pReserved, LPOLESTR* pNames, UINT pCount,
                                            LCID pLocale, DISPID* pIds) noexcept;
HRESULT STDMETHODCALLTYPE DualInvoke(DualInterface* pSelf, DISPID pMember, REFIID pReserved, LCID pLocale, WORD pFlags,
                                     DISPPARAMS* pParameters, VARIANT* pResult, EXCEPINFO* pException,
                                     UINT* pFaultAt) noexcept;

inline constexpr DispatchSlots kDispatchSlots = {
    DualQueryInterface, DualAddRef, DualRelease, DualGetTypeInfoCount, DualGetTypeInfo, DualGetIdsOfNames, DualInvoke};

}  // namespace qzbase::automation::com
