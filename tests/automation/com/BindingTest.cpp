// What hosts see of calls beside their results: errors with their texts, faults of the calls themselves, identity,
// class information, and variables of kinds that the library does not have.
#include <cstring>

#include "Client.h"

namespace qzbase::tests {
namespace {

TEST(Binding, ErrorsCarryNumberSourceAndText) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const auto errors = Create<_GCError>(__uuidof(GCError));
  const OwnedText text(u"x");
  const OwnedText server(u"Server");
  EXPECT_EQ("9|QZBase.CDblVector|Subscript out of range", Call(vector, L"DeleteValue", {Long(-40)}));
  EXPECT_EQ("13|QZBase.CDblVector|Type mismatch", Call(vector, L"AddValue", {Text(text)}));
  EXPECT_EQ("94|QZBase.CDblVector|Invalid use of Null", Call(vector, L"AddValue", {Value(VT_NULL, 0)}));
  errors->SetServerId(server.Get());
  for (const char* number : {"1002", "450", "438"})  // those of calls too are the member's own here
    EXPECT_EQ(number + std::string("|Server|x"), Call(errors, L"Throw", {Long(std::atoi(number)), Text(text)}));

  double value = 3;
  GUID id{};
  EXPECT_EQ(ErrorResult(9), vector->get_Value(99, &value));
  EXPECT_EQ(0, value);  // cleared first
  EXPECT_EQ("QZBase.CDblVector|Subscript out of range", ThreadError(&id));
  EXPECT_TRUE(id == __uuidof(_CDblVector));
  errors->SetServerId(nullptr);  // a null text is an empty one, and stays the source
  EXPECT_EQ(ErrorResult(1003), errors->Throw(1003, text.Get()));
  EXPECT_EQ("|x", ThreadError());
  EXPECT_EQ(HRESULT(0x80070005), errors->Throw(LONG(0x80070005), text.Get()));
}

TEST(Binding, FaultsOfACallAreThePlatformsOwnResults) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const DISPID size = MemberId(vector.Get(), L"SIZE");
  const DISPID add = MemberId(vector.Get(), L"addvalue");
  const struct {
    DISPID member;
    WORD flags;
    std::vector<VARIANT> arguments;
    std::vector<DISPID> named;
    std::string expected;
  } rows[] = {
      {999, DISPATCH_METHOD, {}, {}, "80020003"},
      {DISPID_NEWENUM, DISPATCH_PROPERTYGET, {}, {}, "80020003"},
      {add, DISPATCH_PROPERTYGET, {}, {}, "80020003"},
      {size, DISPATCH_PROPERTYGET, {Long(1)}, {}, "8002000E"},
      {add, DISPATCH_METHOD, {Long(1), Long(2)}, {}, "8002000E"},
      {add, DISPATCH_METHOD, std::vector<VARIANT>(40, Long(1)), {}, "8002000E"},
      {add, DISPATCH_METHOD, {}, {}, "8002000F"},
      {add, DISPATCH_METHOD, {Value(VT_ERROR, DISP_E_PARAMNOTFOUND)}, {}, "8002000F"},
      {add, DISPATCH_METHOD, {Long(1)}, {-77}, "80020004"},
      {add, DISPATCH_METHOD, {Long(1)}, {0}, ""},
      {size, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {}, {}, "1"},
      {size, DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF, {Long(1)}, {}, ""},
      {MemberId(vector.Get(), L"InsertValue"), DISPATCH_METHOD, {Double(7), Long(1)}, {0, 1}, ""},  // backwards
  };
  for (const auto& row : rows)
    EXPECT_EQ(row.expected, CallById(vector.Get(), row.member, row.flags, row.arguments, row.named)) << row.member;
  EXPECT_EQ("(7;1)", Shown(vector));

  wchar_t member[] = L"insertvalue";
  wchar_t second[] = L"PVALUE";
  wchar_t unknown[] = L"pNothing";
  LPOLESTR names[] = {member, second, unknown};
  DISPID ids[3] = {};
  EXPECT_EQ(DISP_E_UNKNOWNNAME, vector->GetIDsOfNames(IID_NULL, names, 3, 0, ids));
  EXPECT_EQ(1, ids[1]);
  EXPECT_EQ(DISPID_UNKNOWN, ids[2]);
  EXPECT_EQ(E_POINTER, vector->QueryInterface(IID_IUnknown, nullptr));
  EXPECT_EQ(E_POINTER, vector->GetTypeInfoCount(nullptr));
  EXPECT_EQ(E_POINTER, vector->GetTypeInfo(0, 0, nullptr));
  EXPECT_EQ(E_POINTER, vector->GetIDsOfNames(IID_NULL, nullptr, 1, 0, nullptr));
  EXPECT_EQ(E_POINTER, vector->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr));
}

GUID IdOf(ITypeInfo& pInfo) {
  TYPEATTR* attributes = nullptr;
  pInfo.GetTypeAttr(&attributes);
  const GUID id = attributes->guid;
  pInfo.ReleaseTypeAttr(attributes);
  return id;
}

TEST(Binding, ObjectsKeepTheirIdentity) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const auto buffer = Create<_CBuffer>(__uuidof(CBuffer));
  VARIANT left = Dispatch(vector.Get());
  VARIANT right = Long(1);
  vector->AddRef();  // the variable's own
  EXPECT_EQ(S_OK, Create<_GCMath>(__uuidof(GCMath))->Swap(&left, &right));
  EXPECT_EQ(vector.Get(), right.pdispVal);
  VariantClear(&right);
  VARIANT_BOOL equal = VARIANT_TRUE;
  EXPECT_EQ(ErrorResult(13), vector->IsEqual(reinterpret_cast<_CDblVector*>(buffer.Get()), &equal));
  EXPECT_EQ(VARIANT_FALSE, equal);

  const auto support = vector.As<ISupportErrorInfo>(IID_ISupportErrorInfo);
  EXPECT_EQ(vector.As<IUnknown>(IID_IUnknown).Get(), support.As<IUnknown>(IID_IUnknown).Get());
  EXPECT_EQ(S_OK, support->InterfaceSupportsErrorInfo(__uuidof(_CDblVector)));
  EXPECT_EQ(S_FALSE, support->InterfaceSupportsErrorInfo(__uuidof(_CBuffer)));
  ComRef<ITypeInfo> face;
  EXPECT_EQ(DISP_E_BADINDEX, vector->GetTypeInfo(1, 0, face.Put()));
  ASSERT_EQ(S_OK, vector->GetTypeInfo(0, 0, face.Put()));
  EXPECT_TRUE(IdOf(*face.Get()) == __uuidof(_CDblVector));
  ComRef<ITypeInfo> info;
  ASSERT_EQ(S_OK, vector.As<IProvideClassInfo>(IID_IProvideClassInfo)->GetClassInfo(info.Put()));
  EXPECT_TRUE(IdOf(*info.Get()) == __uuidof(CDblVector));

  ComRef<IClassFactory> factory;
  ASSERT_EQ(S_OK,
            CoGetClassObject(__uuidof(CBuffer), CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, factory.PutVoid()));
  void* made = &factory;
  EXPECT_EQ(CLASS_E_NOAGGREGATION, factory->CreateInstance(buffer.Get(), IID_IUnknown, &made));
  EXPECT_EQ(nullptr, made);
  EXPECT_EQ(E_NOINTERFACE, factory->CreateInstance(nullptr, IID_IStream, &made));
  EXPECT_EQ(E_POINTER, factory->CreateInstance(nullptr, IID_IUnknown, nullptr));
}

// Max gives back one of its arguments as it came in, of whatever kind, and Swap does with both.
TEST(Binding, WholeVariantsStayWhole) {
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  VARIANT decimal{};
  VarDecFromR8(2.5, &decimal.decVal);
  decimal.vt = VT_DECIMAL;
  const VARIANT wide = Value(VT_I8, (1LL << 60) + 1);
  for (const VARIANT& row : {Value(VT_UI1, 200), Value(VT_I1, 0x7F), Value(VT_UI2, 0xFFFF), Value(VT_UI4, 0xFFFFFFFF),
                             wide, Value(VT_CY, 25000LL), decimal}) {
    VARIANT zero = Long(0);
    OwnedVariant early;
    OwnedVariant late;
    EXPECT_EQ(S_OK, math->Max(row, zero, &early.value)) << row.vt;
    EXPECT_EQ(0, std::memcmp(&row, &early.value, sizeof row)) << row.vt;
    Call(math, L"Max", {row, zero}, &late.value);
    EXPECT_EQ(0, std::memcmp(&row, &late.value, sizeof row)) << row.vt;
    VARIANT left = row;
    EXPECT_EQ(S_OK, math->Swap(&left, &zero)) << row.vt;
    EXPECT_EQ(VT_I4, left.vt);
    EXPECT_EQ(0, std::memcmp(&row, &zero, sizeof row)) << row.vt;
  }
  // A container keeps what its own kinds can hold, and refuses what would lose digits.
  const auto vector = Create<_CVector>(__uuidof(CVector));
  EXPECT_EQ(S_OK, vector->AddValue(Value(VT_I8, 1LL << 40)));
  EXPECT_EQ(ErrorResult(6), vector->AddValue(wide));
}

TEST(Binding, VariablesOfEveryTypeComeBack) {
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  LONG number = 1;
  SHORT small = 2;
  double real = 3;
  LONGLONG wide = 4;
  LONGLONG money = 50000;
  VARIANT script = Long(6);
  EXPECT_EQ("2", Call(math, L"Inc", {Reference(VT_I4, number)}));
  EXPECT_EQ("3", Call(math, L"Inc", {Reference(VT_I2, small)}));
  EXPECT_EQ("4", Call(math, L"Inc", {Reference(VT_R8, real)}));
  EXPECT_EQ("5", Call(math, L"Inc", {Reference(VT_I8, wide)}));
  EXPECT_EQ("6", Call(math, L"Inc", {Reference(VT_CY, money)}));
  EXPECT_EQ("7", Call(math, L"Inc", {Variable(script)}));
  EXPECT_EQ(2, number);
  EXPECT_EQ(3, small);
  EXPECT_EQ(4, real);
  EXPECT_EQ(5, wide);
  EXPECT_EQ(60000, money);
  EXPECT_EQ(7, script.lVal);
  small = 32767;  // the new value does not fit into the variable
  EXPECT_EQ("6|QZBase.GCMath|Overflow", Call(math, L"Inc", {Reference(VT_I2, small)}));
  EXPECT_EQ(32767, small);
  VARIANT byte = Value(VT_UI1, 100);  // what a member only reads keeps its kind
  EXPECT_EQ("2", Call(math, L"Log10", {Variable(byte)}));
  EXPECT_EQ(VT_UI1, byte.vt);

  const OwnedText delimiter(u";");
  BSTR source = SysAllocString(L"a;b;c");
  const auto strings = Create<_GCStrings>(__uuidof(GCStrings));
  EXPECT_EQ("a", Call(strings, L"GetNextToken", {Reference(VT_BSTR, source), Text(delimiter)}));
  EXPECT_EQ("b;c", Taken(source));
}

}  // namespace
}  // namespace qzbase::tests
