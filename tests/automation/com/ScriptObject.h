// An object as script hosts hand them in: members by name, made of functions.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <dispex.h>

#include "Client.h"

namespace qzbase::tests {

// Gets the arguments last one first, as they come, and fills in the result.
using ScriptFunction = std::function<HRESULT(WORD pFlags, const DISPPARAMS& pArguments, VARIANT* pResult)>;

class ScriptObject : public IDispatchEx {
 public:
  struct Member {
    std::wstring name;  // empty for the default member
    ScriptFunction function;
  };

  explicit ScriptObject(std::vector<Member> pMembers, bool pNamesOnlyExtended = false)
      : members_(std::move(pMembers)), namesOnlyExtended_(pNamesOnlyExtended) {}
  virtual ~ScriptObject() = default;

  ULONG References() const noexcept { return references_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID pId, void** pResult) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override { return --references_; }  // the test owns it

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* pNames, UINT, LCID, DISPID* pIds) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID pMember, REFIID, LCID, WORD pFlags, DISPPARAMS* pArguments, VARIANT* pResult,
                                   EXCEPINFO* pException, UINT*) override;

  HRESULT STDMETHODCALLTYPE GetDispID(BSTR pName, DWORD pFlags, DISPID* pId) override;
  HRESULT STDMETHODCALLTYPE InvokeEx(DISPID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     IServiceProvider*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE DeleteMemberByName(BSTR, DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeleteMemberByDispID(DISPID) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberProperties(DISPID, DWORD, DWORD*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberName(DISPID, BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNextDispID(DWORD, DISPID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNameSpaceParent(IUnknown**) override { return E_NOTIMPL; }

  // What a call that fails with DISP_E_EXCEPTION says.
  HRESULT scode = S_OK;

 private:
  DISPID Find(const wchar_t* pName) const;

  std::vector<Member> members_;
  bool namesOnlyExtended_;
  ULONG references_ = 1;
};

}  // namespace qzbase::tests
