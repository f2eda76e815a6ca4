#include "ScriptObject.h"

namespace qzbase::tests {
namespace {

constexpr GUID kDispatchEx = {0xA6EF9860, 0xC720, 0x11D0, {0x93, 0x37, 0x00, 0xA0, 0xC9, 0x0D, 0xCA, 0xA9}};

}  // namespace

HRESULT ScriptObject::QueryInterface(REFIID pId, void** pResult) {
  const bool isKnown = pId == IID_IUnknown || pId == IID_IDispatch || (namesOnlyExtended_ && pId == kDispatchEx);
  *pResult = isKnown ? this : nullptr;
  if (!isKnown) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

// Ids count from 1; the default member has 0.
DISPID ScriptObject::Find(const wchar_t* pName) const {
  for (std::size_t i = 0; i < members_.size(); ++i)
    if (_wcsicmp(members_[i].name.c_str(), pName) == 0) return static_cast<DISPID>(i + 1);
  return DISPID_UNKNOWN;
}

HRESULT ScriptObject::GetIDsOfNames(REFIID, LPOLESTR* pNames, UINT, LCID, DISPID* pIds) {
  if (namesOnlyExtended_) return E_NOTIMPL;
  *pIds = Find(*pNames);
  return *pIds == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT ScriptObject::GetDispID(BSTR pName, DWORD, DISPID* pId) {
  *pId = Find(pName);
  return *pId == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT ScriptObject::Invoke(DISPID pMember, REFIID, LCID, WORD pFlags, DISPPARAMS* pArguments, VARIANT* pResult,
                             EXCEPINFO* pException, UINT*) {
  const DISPID member = pMember == DISPID_VALUE ? Find(L"") : pMember;
  if (member < 1 || static_cast<std::size_t>(member) > members_.size()) return DISP_E_MEMBERNOTFOUND;
  const HRESULT result = members_[static_cast<std::size_t>(member - 1)].function(pFlags, *pArguments, pResult);
  if (result == DISP_E_EXCEPTION) {
    pException->scode = scode;
    pException->bstrSource = SysAllocString(L"Script");
    pException->bstrDescription = SysAllocString(L"went wrong");
  }
  return result;
}

}  // namespace qzbase::tests
