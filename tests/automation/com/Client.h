// What the tests of the server use as its clients: the interfaces of the generated header, created through the manifest
// beside the program, calls by name, and objects as script hosts hand them in.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "QZBase.h"
#include "qzbase/automation/com/Handles.h"

namespace qzbase::tests {

using automation::com::ComRef;
using automation::com::OwnedSafeArray;
using automation::com::OwnedText;
using automation::com::OwnedVariant;

// Results of the server's own errors.
constexpr HRESULT ErrorResult(int pNumber) {
  return static_cast<HRESULT>(0x800A0000U | static_cast<unsigned>(pNumber));
}

// An apartment for as long as it lives.
class Apartment {
 public:
  Apartment() { EXPECT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))); }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

template <class Interface>
ComRef<Interface> Create(REFCLSID pClass) {
  ComRef<Interface> result;
  EXPECT_EQ(S_OK, CoCreateInstance(pClass, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface), result.PutVoid()));
  return result;
}

inline OwnedText Bstr(std::u16string_view pText) {
  return OwnedText(pText);
}

// Takes over a text that a call returned.
inline std::u16string Taken(BSTR pText) {
  const std::u16string text(automation::com::TextIn(pText));
  SysFreeString(pText);
  return text;
}

inline std::u16string Shown(const ComRef<_CDblVector>& pVector) {
  BSTR text = nullptr;
  EXPECT_EQ(S_OK, pVector->GetString(&text));
  return Taken(text);
}

template <class Number>
OwnedSafeArray ArrayOf(VARTYPE pType, LONG pLower, const std::vector<Number>& pNumbers) {
  SAFEARRAYBOUND bounds{static_cast<ULONG>(pNumbers.size()), pLower};
  OwnedSafeArray result(SafeArrayCreate(pType, 1, &bounds));
  std::copy(pNumbers.begin(), pNumbers.end(), static_cast<Number*>(result.Get()->pvData));
  return result;
}

template <class Number>
std::vector<Number> NumbersIn(SAFEARRAY* pArray) {
  if (!pArray) return {};
  const auto* first = static_cast<const Number*>(pArray->pvData);
  return {first, first + pArray->rgsabound[0].cElements};
}

// The error of the thread's last early-bound call.
struct ThreadError {
  ThreadError() {
    ComRef<IErrorInfo> info;
    isSet = GetErrorInfo(0, info.Put()) == S_OK;
    if (!isSet) return;
    BSTR text = nullptr;
    info->GetSource(&text);
    source = Taken(std::exchange(text, nullptr));
    info->GetDescription(&text);
    description = Taken(text);
    info->GetGUID(&guid);
  }

  bool isSet = false;
  std::u16string source;
  std::u16string description;
  GUID guid{};
};

// ---- Variants and calls by name.

inline VARIANT Long(LONG pValue) {
  VARIANT result{};
  result.vt = VT_I4;
  result.lVal = pValue;
  return result;
}
inline VARIANT Double(double pValue) {
  VARIANT result{};
  result.vt = VT_R8;
  result.dblVal = pValue;
  return result;
}
inline VARIANT Text(const OwnedText& pText) {
  VARIANT result{};
  result.vt = VT_BSTR;
  result.bstrVal = pText.Get();
  return result;
}
inline VARIANT Dispatch(IUnknown* pObject, VARTYPE pType = VT_DISPATCH) {
  VARIANT result{};
  result.vt = pType;
  result.punkVal = pObject;
  return result;
}
// As scripts pass their variables.
inline VARIANT Variable(VARIANT& pVariable) {
  VARIANT result{};
  result.vt = VT_BYREF | VT_VARIANT;
  result.pvarVal = &pVariable;
  return result;
}

// What a late-bound call answered.
struct Answer {
  HRESULT result = S_OK;
  HRESULT scode = S_OK;
  WORD code = 0;
  std::u16string source;
  std::u16string description;
  OwnedVariant value;
};

DISPID MemberId(IDispatch* pObject, const wchar_t* pName);

// Arguments are in the order of the parameters; the new value of a put is the last one.
void CallById(Answer& pAnswer, IDispatch* pObject, DISPID pMember, WORD pFlags, std::vector<VARIANT> pArguments,
              std::vector<DISPID> pNamed = {});
void CallByName(Answer& pAnswer, IDispatch* pObject, const wchar_t* pName, WORD pFlags,
                std::vector<VARIANT> pArguments = {});

// ---- Objects of hosts: members by name, made of functions. Ids count from 1; a member without a name is the default.

// Gets the arguments last one first, as they come, and fills in the result.
using ScriptFunction = std::function<HRESULT(const DISPPARAMS& pArguments, VARIANT* pResult)>;

ScriptFunction Returns(VARIANT pValue);

class ScriptObject : public IDispatch {
 public:
  struct Member {
    std::wstring name;
    ScriptFunction function;
  };

  explicit ScriptObject(std::vector<Member> pMembers) : members_(std::move(pMembers)) {}
  virtual ~ScriptObject() = default;

  ULONG References() const noexcept { return references_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID pId, void** pResult) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override { return --references_; }  // the test owns it

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* pNames, UINT, LCID, DISPID* pIds) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID pMember, REFIID, LCID, WORD, DISPPARAMS* pArguments, VARIANT* pResult,
                                   EXCEPINFO* pException, UINT*) override;

  // What a call that fails with DISP_E_EXCEPTION says.
  HRESULT scode = S_OK;

 private:
  std::vector<Member> members_;
  ULONG references_ = 1;
};

}  // namespace qzbase::tests
