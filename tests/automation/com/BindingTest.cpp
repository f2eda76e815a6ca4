// What hosts see of calls beside their results: errors with their texts, faults of the calls themselves, identity,
// class information, and values of kinds that only some of them have.
#include <cstring>

#include "Client.h"

namespace qzbase::tests {
namespace {

VARIANT Null() {
  VARIANT result{};
  result.vt = VT_NULL;
  return result;
}

TEST(Binding, ErrorsCarryNumberSourceAndText) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const auto errors = Create<_GCError>(__uuidof(GCError));
  const OwnedText text = Bstr(u"x");
  const OwnedText server = Bstr(u"Server");
  const OwnedText nothing = Bstr(u"");
  const struct {
    IDispatch* object;
    const wchar_t* member;
    std::vector<VARIANT> arguments;
    int number;
    std::u16string source;
    std::u16string description;
  } rows[] = {
      {vector.Get(), L"DeleteValue", {Long(-40)}, 9, u"QZBase.CDblVector", u"Subscript out of range"},
      {vector.Get(), L"AddValue", {Text(text)}, 13, u"QZBase.CDblVector", u"Type mismatch"},
      {vector.Get(), L"AddValue", {Null()}, 94, u"QZBase.CDblVector", u"Invalid use of Null"},
      {vector.Get(),
       L"CopyFrom",
       {Null()},
       91,
       u"QZBase.CDblVector",
       u"Object variable or With block variable not set"},
      {errors.Get(), L"Throw", {Long(1002), Text(text)}, 1002, u"Server", u"x"},
  };
  errors->SetServerId(server.Get());
  for (const auto& row : rows) {
    Answer answer;
    CallByName(answer, row.object, row.member, DISPATCH_METHOD, row.arguments);
    EXPECT_EQ(DISP_E_EXCEPTION, answer.result) << row.member;
    EXPECT_EQ(ErrorResult(row.number), answer.scode) << row.member;
    EXPECT_EQ(0, answer.code);
    EXPECT_EQ(row.source, answer.source) << row.member;
    EXPECT_EQ(row.description, answer.description) << row.member;
  }

  double value = 3;
  EXPECT_EQ(ErrorResult(9), vector->get_Value(99, &value));
  EXPECT_EQ(0, value);  // cleared first
  const ThreadError outside;
  EXPECT_EQ(u"QZBase.CDblVector", outside.source);
  EXPECT_EQ(u"Subscript out of range", outside.description);
  EXPECT_TRUE(outside.guid == __uuidof(_CDblVector));
  errors->SetServerId(nothing.Get());
  EXPECT_EQ(ErrorResult(1003), errors->Throw(1003, text.Get()));
  const ThreadError raised;
  EXPECT_TRUE(raised.isSet);
  EXPECT_EQ(u"", raised.source);
  EXPECT_EQ(u"x", raised.description);
  EXPECT_EQ(HRESULT(0x80070005), errors->Throw(LONG(0x80070005), text.Get()));
}

TEST(Binding, FaultsOfACallAreThePlatformsOwnResults) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const DISPID size = MemberId(vector.Get(), L"SIZE");
  const DISPID add = MemberId(vector.Get(), L"addvalue");
  VARIANT omitted{};
  omitted.vt = VT_ERROR;
  omitted.scode = DISP_E_PARAMNOTFOUND;
  const struct {
    DISPID member;
    WORD flags;
    std::vector<VARIANT> arguments;
    std::vector<DISPID> named;
    HRESULT expected;
  } rows[] = {
      {999, DISPATCH_METHOD, {}, {}, DISP_E_MEMBERNOTFOUND},
      {DISPID_NEWENUM, DISPATCH_PROPERTYGET, {}, {}, DISP_E_MEMBERNOTFOUND},
      {add, DISPATCH_PROPERTYGET, {}, {}, DISP_E_MEMBERNOTFOUND},
      {size, DISPATCH_PROPERTYGET, {Long(1)}, {}, DISP_E_BADPARAMCOUNT},
      {add, DISPATCH_METHOD, {Long(1), Long(2)}, {}, DISP_E_BADPARAMCOUNT},
      {add, DISPATCH_METHOD, std::vector<VARIANT>(40, Long(1)), {}, DISP_E_BADPARAMCOUNT},
      {add, DISPATCH_METHOD, {}, {}, DISP_E_PARAMNOTOPTIONAL},
      {add, DISPATCH_METHOD, {omitted}, {}, DISP_E_PARAMNOTOPTIONAL},
      {add, DISPATCH_METHOD, {Long(1)}, {-77}, DISP_E_PARAMNOTFOUND},
      {add, DISPATCH_METHOD, {Long(1)}, {0}, S_OK},
      {size, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {}, {}, S_OK},
      {size, DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF, {Long(1)}, {}, S_OK},
      {MemberId(vector.Get(), L"InsertValue"), DISPATCH_METHOD, {Double(7), Long(1)}, {0, 1}, S_OK},  // backwards
  };
  for (const auto& row : rows) {
    Answer answer;
    CallById(answer, vector.Get(), row.member, row.flags, row.arguments, row.named);
    EXPECT_EQ(row.expected, answer.result) << row.member << " with " << row.arguments.size();
  }
  EXPECT_EQ(u"(7;1)", Shown(vector));

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

TEST(Binding, ObjectsKeepTheirIdentity) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const auto buffer = Create<_CBuffer>(__uuidof(CBuffer));
  VARIANT left = Dispatch(vector.Get());
  VARIANT right = Long(1);
  vector->AddRef();  // the variable's own
  EXPECT_EQ(S_OK, Create<_GCMath>(__uuidof(GCMath))->Swap(&left, &right));
  EXPECT_EQ(vector.Get(), right.pdispVal);
  VariantClear(&right);
  const auto support = vector.As<ISupportErrorInfo>(IID_ISupportErrorInfo);
  ASSERT_TRUE(support);
  EXPECT_EQ(vector.As<IUnknown>(IID_IUnknown).Get(), support.As<IUnknown>(IID_IUnknown).Get());
  EXPECT_EQ(S_OK, support->InterfaceSupportsErrorInfo(__uuidof(_CDblVector)));
  EXPECT_EQ(S_FALSE, support->InterfaceSupportsErrorInfo(__uuidof(_CBuffer)));
  VARIANT_BOOL equal = VARIANT_TRUE;
  EXPECT_EQ(ErrorResult(13), vector->IsEqual(reinterpret_cast<_CDblVector*>(buffer.Get()), &equal));
  EXPECT_EQ(VARIANT_FALSE, equal);

  ComRef<IClassFactory> factory;
  ASSERT_EQ(S_OK,
            CoGetClassObject(__uuidof(CBuffer), CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, factory.PutVoid()));
  void* made = &factory;
  EXPECT_EQ(CLASS_E_NOAGGREGATION, factory->CreateInstance(buffer.Get(), IID_IUnknown, &made));
  EXPECT_EQ(nullptr, made);
  EXPECT_EQ(E_NOINTERFACE, factory->CreateInstance(nullptr, IID_IStream, &made));
  EXPECT_EQ(E_POINTER, factory->CreateInstance(nullptr, IID_IUnknown, nullptr));
}

TEST(Binding, ClassInformationComesFromTheTypeLibrary) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const auto idOf = [](ITypeInfo& pInfo) {
    TYPEATTR* attributes = nullptr;
    pInfo.GetTypeAttr(&attributes);
    const GUID id = attributes->guid;
    pInfo.ReleaseTypeAttr(attributes);
    return id;
  };
  ComRef<ITypeInfo> face;
  ASSERT_EQ(S_OK, vector->GetTypeInfo(0, 0, face.Put()));
  EXPECT_TRUE(idOf(*face.Get()) == __uuidof(_CDblVector));
  EXPECT_EQ(DISP_E_BADINDEX, vector->GetTypeInfo(1, 0, face.Put()));
  ComRef<ITypeInfo> info;
  ASSERT_EQ(S_OK, vector.As<IProvideClassInfo>(IID_IProvideClassInfo)->GetClassInfo(info.Put()));
  EXPECT_TRUE(idOf(*info.Get()) == __uuidof(CDblVector));
}

// Max gives back one of its arguments as it came in, of whatever kind.
TEST(Binding, WholeVariantsStayWhole) {
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  const auto given = [](VARTYPE pType, LONGLONG pBits) {
    VARIANT result{};
    result.vt = pType;
    result.llVal = pBits;
    return result;
  };
  VARIANT decimal{};
  VarDecFromR8(2.5, &decimal.decVal);
  decimal.vt = VT_DECIMAL;
  const VARIANT wide = given(VT_I8, (1LL << 60) + 1);
  for (const VARIANT& row : {given(VT_UI1, 200), given(VT_I1, 0x7F), given(VT_UI2, 0xFFFF), given(VT_UI4, 0xFFFFFFFF),
                             wide, given(VT_CY, 25000), decimal}) {
    VARIANT zero = Long(0);
    OwnedVariant early;
    EXPECT_EQ(S_OK, math->Max(row, zero, &early.value)) << row.vt;
    EXPECT_EQ(0, std::memcmp(&row, &early.value, sizeof row)) << row.vt;
    Answer late;
    CallByName(late, math.Get(), L"Max", DISPATCH_METHOD, {row, zero});
    EXPECT_EQ(0, std::memcmp(&row, &late.value.value, sizeof row)) << row.vt;
    VARIANT left = row;
    VARIANT right = zero;
    EXPECT_EQ(S_OK, math->Swap(&left, &right)) << row.vt;
    EXPECT_EQ(VT_I4, left.vt);
    EXPECT_EQ(0, std::memcmp(&row, &right, sizeof row)) << row.vt;
  }
  // A container keeps what its own kinds can hold, and refuses what would lose digits.
  const auto vector = Create<_CVector>(__uuidof(CVector));
  EXPECT_EQ(S_OK, vector->AddValue(given(VT_I8, 1LL << 40)));
  EXPECT_EQ(ErrorResult(6), vector->AddValue(wide));
}

template <class Native>
VARIANT Reference(VARTYPE pType, Native& pNative) {
  VARIANT result{};
  result.vt = static_cast<VARTYPE>(VT_BYREF | pType);
  result.byref = &pNative;
  return result;
}

TEST(Binding, VariablesOfEveryTypeComeBack) {
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  LONG number = 1;
  SHORT small = 2;
  double real = 3;
  LONGLONG wide = 4;
  CY money{};
  money.int64 = 50000;
  VARIANT script = Long(6);
  Answer answer;
  for (const VARIANT& argument : {Reference(VT_I4, number), Reference(VT_I2, small), Reference(VT_R8, real),
                                  Reference(VT_I8, wide), Reference(VT_CY, money), Variable(script)}) {
    CallByName(answer, math.Get(), L"Inc", DISPATCH_METHOD, {argument});
    EXPECT_EQ(S_OK, answer.result) << argument.vt;
  }
  EXPECT_EQ(2, number);
  EXPECT_EQ(3, small);
  EXPECT_EQ(4, real);
  EXPECT_EQ(5, wide);
  EXPECT_EQ(60000, money.int64);
  EXPECT_EQ(7, script.lVal);

  small = 32767;  // the new value does not fit into the variable
  CallByName(answer, math.Get(), L"Inc", DISPATCH_METHOD, {Reference(VT_I2, small)});
  EXPECT_EQ(ErrorResult(6), answer.scode);
  EXPECT_EQ(32767, small);
  VARIANT byte{};  // what a member only reads keeps its kind
  byte.vt = VT_UI1;
  byte.bVal = 100;
  CallByName(answer, math.Get(), L"Log10", DISPATCH_METHOD, {Variable(byte)});
  EXPECT_EQ(VT_UI1, byte.vt);

  const auto strings = Create<_GCStrings>(__uuidof(GCStrings));
  const OwnedText delimiter = Bstr(u";");
  BSTR source = SysAllocString(L"a;b;c");
  CallByName(answer, strings.Get(), L"GetNextToken", DISPATCH_METHOD, {Reference(VT_BSTR, source), Text(delimiter)});
  EXPECT_STREQ(L"a", answer.value.value.bstrVal);
  EXPECT_EQ(u"b;c", Taken(source));
}

}  // namespace
}  // namespace qzbase::tests
