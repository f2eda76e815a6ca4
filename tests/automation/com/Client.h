// What the tests of the server use as its clients: the interfaces of the generated header, created through the manifest
// beside the program, calls by name, and objects as script hosts hand them in.
#pragma once

#include <cstring>
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

template <class Interface>
ComRef<Interface> Create(REFCLSID pClass) {
  ComRef<Interface> result;
  EXPECT_EQ(S_OK, CoCreateInstance(pClass, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface), result.PutVoid()));
  return result;
}

// Takes over a text that a call returned; all of them are plain.
inline std::string Taken(BSTR pText) {
  const OwnedText text = OwnedText::Owning(pText);
  const std::u16string_view units = automation::com::TextIn(text.Get());
  return {units.begin(), units.end()};
}

inline std::string Shown(const ComRef<_CDblVector>& pVector) {
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

// ---- Variants.

template <class Native>
VARIANT Value(VARTYPE pType, Native pNative) {
  VARIANT result{};
  result.vt = pType;
  static_assert(sizeof pNative <= sizeof result.llVal);
  std::memcpy(&result.llVal, &pNative, sizeof pNative);
  return result;
}
inline VARIANT Long(LONG pValue) {
  return Value(VT_I4, pValue);
}
inline VARIANT Double(double pValue) {
  return Value(VT_R8, pValue);
}
inline VARIANT Text(const OwnedText& pText) {
  return Value(VT_BSTR, pText.Get());
}
inline VARIANT Dispatch(IUnknown* pObject) {
  return Value(VT_DISPATCH, pObject);
}
template <class Native>
VARIANT Reference(VARTYPE pType, Native& pNative) {
  return Value(static_cast<VARTYPE>(VT_BYREF | pType), &pNative);
}
// As scripts pass their variables.
inline VARIANT Variable(VARIANT& pVariable) {
  return Reference(VT_VARIANT, pVariable);
}

// ---- Calls by name: "" or the result as text, "number|source|description" of an error that was raised, or the
// platform's own result of a call that is wrong: "80020003".

DISPID MemberId(IDispatch* pObject, const wchar_t* pName);

// Arguments are in the order of the parameters; the new value of a put is the last one.
std::string CallById(IDispatch* pObject, DISPID pMember, WORD pFlags, std::vector<VARIANT> pArguments,
                     std::vector<DISPID> pNamed = {}, VARIANT* pResult = nullptr);

template <class Interface>
std::string Call(const ComRef<Interface>& pObject, const wchar_t* pName, std::vector<VARIANT> pArguments = {},
                 VARIANT* pResult = nullptr) {
  return CallById(pObject.Get(), MemberId(pObject.Get(), pName), DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                  std::move(pArguments), {}, pResult);
}

// Source, description and interface of the error of the thread's last early-bound call: "source|description".
std::string ThreadError(GUID* pInterface = nullptr);

// ---- Objects of hosts: members by name, made of functions. Ids count from 1; a member without a name is the default.

// Gets the arguments last one first, as they come, and fills in the result.
using ScriptFunction = std::function<HRESULT(const DISPPARAMS& pArguments, VARIANT* pResult)>;

ScriptFunction Returns(VARIANT pValue);

class ScriptObject : public IDispatch {
 public:
  using Member = std::pair<std::wstring, ScriptFunction>;

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
