#include "Client.h"

#include <algorithm>

namespace qzbase::tests {
namespace {

// One apartment for the program's main thread, as a host has it.
class MainApartment : public testing::Environment {
 public:
  void SetUp() override { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  void TearDown() override { CoUninitialize(); }
};

[[maybe_unused]] auto* const mainApartment = testing::AddGlobalTestEnvironment(new MainApartment);

}  // namespace

DISPID MemberId(IDispatch* pObject, const wchar_t* pName) {
  auto* name = const_cast<wchar_t*>(pName);
  DISPID id = DISPID_UNKNOWN;
  pObject->GetIDsOfNames(IID_NULL, &name, 1, 0, &id);
  return id;
}

void CallById(Answer& pAnswer, IDispatch* pObject, DISPID pMember, WORD pFlags, std::vector<VARIANT> pArguments,
              std::vector<DISPID> pNamed) {
  std::reverse(pArguments.begin(), pArguments.end());
  if ((pFlags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0)
    pNamed.insert(pNamed.begin(), DISPID_PROPERTYPUT);
  DISPPARAMS parameters{pArguments.data(), pNamed.data(), static_cast<UINT>(pArguments.size()),
                        static_cast<UINT>(pNamed.size())};
  EXCEPINFO exception{};
  automation::com::ClearVariant(pAnswer.value.value);
  pAnswer.result =
      pObject->Invoke(pMember, IID_NULL, 0, pFlags, &parameters, &pAnswer.value.value, &exception, nullptr);
  pAnswer.scode = exception.scode;
  pAnswer.code = exception.wCode;
  pAnswer.source = Taken(exception.bstrSource);
  pAnswer.description = Taken(exception.bstrDescription);
}

void CallByName(Answer& pAnswer, IDispatch* pObject, const wchar_t* pName, WORD pFlags,
                std::vector<VARIANT> pArguments) {
  CallById(pAnswer, pObject, MemberId(pObject, pName), pFlags, std::move(pArguments));
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
                                  [&](const Member& pEach) { return _wcsicmp(pEach.name.c_str(), *pNames) == 0; });
  *pIds = found == members_.end() ? DISPID_UNKNOWN : static_cast<DISPID>(found - members_.begin() + 1);
  return found == members_.end() ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT ScriptObject::Invoke(DISPID pMember, REFIID, LCID, WORD, DISPPARAMS* pArguments, VARIANT* pResult,
                             EXCEPINFO* pException, UINT*) {
  wchar_t unnamed[] = L"";
  LPOLESTR name = unnamed;
  if (pMember == DISPID_VALUE) GetIDsOfNames(IID_NULL, &name, 1, 0, &pMember);
  if (pMember < 1 || static_cast<std::size_t>(pMember) > members_.size()) return DISP_E_MEMBERNOTFOUND;
  const HRESULT result = members_[static_cast<std::size_t>(pMember - 1)].function(*pArguments, pResult);
  if (result == DISP_E_EXCEPTION) {
    pException->scode = scode;
    pException->bstrSource = SysAllocString(L"Script");
    pException->bstrDescription = SysAllocString(L"went wrong");
  }
  return result;
}

}  // namespace qzbase::tests
