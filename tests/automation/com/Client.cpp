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

}  // namespace qzbase::tests
