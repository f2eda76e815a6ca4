// A Windows program that uses the server twice: through the generated header, and by names alone.
#include <cstdio>

#include <QZBase.h>

namespace {

void Check(HRESULT pResult) {
  if (SUCCEEDED(pResult)) return;
  IErrorInfo* info = nullptr;
  BSTR text = nullptr;
  if (GetErrorInfo(0, &info) == S_OK) {
    info->GetDescription(&text);
    info->Release();
  }
  std::printf("error %u: %ls\n", static_cast<unsigned>(HRESULT_CODE(pResult)), text ? text : L"");
  SysFreeString(text);
}

// Early bound: each call is one through the interface's table.
void WithHeader() {
  _CDblVector* vector = nullptr;
  Check(CoCreateInstance(__uuidof(CDblVector), nullptr, CLSCTX_ALL, __uuidof(_CDblVector),
                         reinterpret_cast<void**>(&vector)));
  if (!vector) return;
  BSTR text = SysAllocString(L"(3;1;2)");
  Check(vector->SetFromString(text));
  SysFreeString(text);
  Check(vector->Sort(VARIANT_TRUE));
  double first = 0;
  Check(vector->get_Value(1, &first));
  std::printf("first: %g\n", first);
  Check(vector->get_Value(1000, &first));
  vector->Release();
}

// Late bound: neither header nor type library, as scripts do.
void WithoutHeader() {
  CLSID id;
  IDispatch* vector = nullptr;
  Check(CLSIDFromProgID(L"QZBase.CDblVector", &id));
  Check(CoCreateInstance(id, nullptr, CLSCTX_ALL, IID_IDispatch, reinterpret_cast<void**>(&vector)));
  if (!vector) return;
  wchar_t name[] = L"AddValue";
  LPOLESTR names = name;
  DISPID member = DISPID_UNKNOWN;
  Check(vector->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &member));
  VARIANT value;
  value.vt = VT_R8;
  value.dblVal = 2.5;
  DISPPARAMS arguments{&value, nullptr, 1, 0};
  EXCEPINFO fault{};
  const HRESULT result =
      vector->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &arguments, nullptr, &fault, nullptr);
  std::printf("added: %s\n", SUCCEEDED(result) ? "yes" : "no");
  vector->Release();
}

}  // namespace

int main() {
  Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
  WithHeader();
  WithoutHeader();
  CoUninitialize();
}
