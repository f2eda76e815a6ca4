#include "Client.h"

#include <algorithm>
#include <cstdio>

namespace qzbase::tests {
namespace {

// One apartment for the program's main thread, as a host has it.
class MainApartment : public testing::Environment {
 public:
  void SetUp() override { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  void TearDown() override { CoUninitialize(); }
};

[[maybe_unused]] auto* const mainApartment = testing::AddGlobalTestEnvironment(new MainApartment);

std::string ResultText(HRESULT pResult) {
  char text[16];
  std::snprintf(text, sizeof text, "%08lX", static_cast<unsigned long>(pResult));
  return text;
}

std::string ValueText(const VARIANT& pValue) {
  if (pValue.vt == VT_RECORD) return "record";  // not every system frees the copy that it would make
  OwnedVariant text;
  if (FAILED(VariantChangeTypeEx(&text.value, const_cast<VARIANT*>(&pValue), LOCALE_INVARIANT, 0, VT_BSTR)))
    return "no text";
  return Taken(text.Release().bstrVal);
}

}  // namespace

DISPID MemberId(IDispatch* pObject, const wchar_t* pName) {
  auto* name = const_cast<wchar_t*>(pName);
  DISPID id = DISPID_UNKNOWN;
  pObject->GetIDsOfNames(IID_NULL, &name, 1, 0, &id);
  return id;
}

std::string CallById(IDispatch* pObject, DISPID pMember, WORD pFlags, std::vector<VARIANT> pArguments,
                     std::vector<DISPID> pNamed, VARIANT* pResult) {
  std::reverse(pArguments.begin(), pArguments.end());
  if ((pFlags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0)
    pNamed.insert(pNamed.begin(), DISPID_PROPERTYPUT);
  DISPPARAMS parameters{pArguments.data(), pNamed.data(), static_cast<UINT>(pArguments.size()),
                        static_cast<UINT>(pNamed.size())};
  EXCEPINFO exception{};
  OwnedVariant own;
  VARIANT& value = pResult ? *pResult : own.value;
  const HRESULT result = pObject->Invoke(pMember, IID_NULL, 0, pFlags, &parameters, &value, &exception, nullptr);
  if (result == S_OK) return ValueText(value);
  if (result != DISP_E_EXCEPTION) return ResultText(result);
  EXPECT_EQ(0, exception.wCode);
  const bool isOwn = HRESULT_FACILITY(exception.scode) == FACILITY_CONTROL;
  return (isOwn ? std::to_string(exception.scode & 0xFFFF) : ResultText(exception.scode)) + "|" +
         Taken(exception.bstrSource) + "|" + Taken(exception.bstrDescription);
}

std::string ThreadError(GUID* pInterface) {
  ComRef<IErrorInfo> info;
  if (GetErrorInfo(0, info.Put()) != S_OK) return "none";
  BSTR source = nullptr;
  BSTR description = nullptr;
  info->GetSource(&source);
  info->GetDescription(&description);
  if (pInterface) info->GetGUID(pInterface);
  return Taken(source) + "|" + Taken(description);
}

ScriptFunction Returns(VARIANT pValue) {
  return
      [pValue](const DISPPARAMS&, VARIANT* pResult) mutable { return pResult ? VariantCopy(pResult, &pValue) : S_OK; };
}

HRESULT ScriptObject::QueryInterface(REFIID pId, void** pResult) {
  const bool isKnown = pId == IID_IUnknown || pId == IID_IDispatch;
  *pResult = isKnown ? this : nullptr;
  if (!isKnown) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

HRESULT ScriptObject::GetIDsOfNames(REFIID, LPOLESTR* pNames, UINT, LCID, DISPID* pIds) {
  const auto found = std::find_if(members_.begin(), members_.end(),
                                  [&](const Member& pEach) { return _wcsicmp(pEach.first.c_str(), *pNames) == 0; });
  *pIds = found == members_.end() ? DISPID_UNKNOWN : static_cast<DISPID>(found - members_.begin() + 1);
  return found == members_.end() ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT ScriptObject::Invoke(DISPID pMember, REFIID, LCID, WORD, DISPPARAMS* pArguments, VARIANT* pResult,
                             EXCEPINFO* pException, UINT*) {
  if (pMember == DISPID_VALUE) pMember = MemberId(this, L"");
  if (pMember < 1 || static_cast<std::size_t>(pMember) > members_.size()) return DISP_E_MEMBERNOTFOUND;
  const HRESULT result = members_[static_cast<std::size_t>(pMember - 1)].second(*pArguments, pResult);
  if (result == DISP_E_EXCEPTION) {
    pException->scode = scode;
    pException->bstrSource = SysAllocString(L"Script");
    pException->bstrDescription = SysAllocString(L"went wrong");
  }
  return result;
}

}  // namespace qzbase::tests
