// Calls by name through IDispatch: names, arguments, values and what comes back when a call is wrong.
#include <cstring>

#include "Client.h"

namespace qzbase::tests {
namespace {

TEST(LateBinding, NamesAreFoundIgnoringCase) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  EXPECT_EQ(MemberId(vector.Get(), L"SIZE"), MemberId(vector.Get(), L"size"));
  wchar_t member[] = L"insertvalue";
  wchar_t second[] = L"PVALUE";
  wchar_t unknown[] = L"pNothing";
  LPOLESTR names[] = {member, second, unknown};
  DISPID ids[3] = {};
  EXPECT_EQ(S_OK, vector->GetIDsOfNames(IID_NULL, names, 2, 0, ids));
  EXPECT_EQ(1, ids[1]);
  EXPECT_EQ(DISP_E_UNKNOWNNAME, vector->GetIDsOfNames(IID_NULL, names, 3, 0, ids));
  EXPECT_EQ(DISPID_UNKNOWN, ids[2]);
}

TEST(LateBinding, ArgumentsMayBeNamedAndOmitted) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const DISPID insert = MemberId(vector.Get(), L"InsertValue");
  Answer answer;
  CallById(answer, vector.Get(), insert, DISPATCH_METHOD, {Long(0), Double(2)});
  CallById(answer, vector.Get(), insert, DISPATCH_METHOD, {Double(1), Long(1)}, {0, 1});  // backwards, by name
  CallById(answer, vector.Get(), insert, DISPATCH_METHOD, {Long(0), Omitted()});
  CallById(answer, vector.Get(), insert, DISPATCH_METHOD, {Long(0)});
  CallByName(answer, vector.Get(), L"GetString", DISPATCH_METHOD | DISPATCH_PROPERTYGET);
  ASSERT_EQ(VT_BSTR, answer.value.value.vt);
  EXPECT_STREQ(L"(1;2;-9.9999999999E+300;-9.9999999999E+300)", answer.value.value.bstrVal);
  CallByName(answer, vector.Get(), L"Value", DISPATCH_PROPERTYPUT, {Long(2), Double(5)});
  EXPECT_EQ(S_OK, answer.result);
  CallByName(answer, vector.Get(), L"Value", DISPATCH_PROPERTYGET, {Long(2)});
  EXPECT_EQ(5, answer.value.value.dblVal);
}

TEST(LateBinding, FaultsOfACallAreThePlatformsOwnResults) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  struct Row {
    DISPID member;
    WORD flags;
    std::vector<VARIANT> arguments;
    std::vector<DISPID> named;
    HRESULT expected;
  };
  const DISPID size = MemberId(vector.Get(), L"Size");
  const DISPID add = MemberId(vector.Get(), L"AddValue");
  const Row rows[] = {
      {999, DISPATCH_METHOD, {}, {}, DISP_E_MEMBERNOTFOUND},
      {DISPID_NEWENUM, DISPATCH_PROPERTYGET, {}, {}, DISP_E_MEMBERNOTFOUND},
      {add, DISPATCH_PROPERTYGET, {}, {}, DISP_E_MEMBERNOTFOUND},
      {size, DISPATCH_PROPERTYGET, {Long(1)}, {}, DISP_E_BADPARAMCOUNT},
      {add, DISPATCH_METHOD, {Long(1), Long(2)}, {}, DISP_E_BADPARAMCOUNT},
      {add, DISPATCH_METHOD, std::vector<VARIANT>(40, Long(1)), {}, DISP_E_BADPARAMCOUNT},
      {add, DISPATCH_METHOD, {}, {}, DISP_E_PARAMNOTOPTIONAL},
      {add, DISPATCH_METHOD, {Omitted()}, {}, DISP_E_PARAMNOTOPTIONAL},
      {add, DISPATCH_METHOD, {Long(1)}, {-77}, DISP_E_PARAMNOTFOUND},
  };
  for (const Row& row : rows) {
    Answer answer;
    CallById(answer, vector.Get(), row.member, row.flags, row.arguments, row.named);
    EXPECT_EQ(row.expected, answer.result) << row.member << " with " << row.arguments.size();
  }
}

TEST(LateBinding, ErrorsCarryNumberSourceAndText) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const auto errors = Create<_GCError>(__uuidof(GCError));
  const OwnedText text = Bstr(u"x");
  const OwnedText server = Bstr(u"Server");
  errors->SetServerId(server.Get());
  VARIANT nothing{};
  nothing.vt = VT_NULL;
  struct Row {
    IDispatch* object;
    const wchar_t* member;
    std::vector<VARIANT> arguments;
    int number;
    std::u16string source;
    std::u16string description;
  };
  const Row rows[] = {
      {vector.Get(), L"DeleteValue", {Long(-40)}, 9, u"QZBase.CDblVector", u"Subscript out of range"},
      {vector.Get(), L"AddValue", {Text(text)}, 13, u"QZBase.CDblVector", u"Type mismatch"},
      {vector.Get(), L"AddValue", {nothing}, 94, u"QZBase.CDblVector", u"Invalid use of Null"},
      {vector.Get(),
       L"CopyFrom",
       {nothing},
       91,
       u"QZBase.CDblVector",
       u"Object variable or With block variable not set"},
      {vector.Get(), L"CopyFrom", {Dispatch(errors.Get())}, 13, u"QZBase.CDblVector", u"Type mismatch"},
      {errors.Get(), L"Throw", {Long(1002), Text(text)}, 1002, u"Server", u"x"},
  };
  for (const Row& row : rows) {
    Answer answer;
    CallByName(answer, row.object, row.member, DISPATCH_METHOD, row.arguments);
    EXPECT_EQ(DISP_E_EXCEPTION, answer.result) << row.member;
    EXPECT_EQ(ErrorResult(row.number), answer.scode) << row.member;
    EXPECT_EQ(0, answer.code);
    EXPECT_EQ(row.source, answer.source) << row.member;
    EXPECT_EQ(row.description, answer.description) << row.member;
  }
}

// Max gives back one of its arguments as it came in, of whatever kind.
TEST(LateBinding, WholeVariantsStayWhole) {
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
  const VARIANT rows[] = {given(VT_UI1, 200),
                          given(VT_I1, 0x7F),
                          given(VT_UI2, 0xFFFF),
                          given(VT_UI4, 0xFFFFFFFF),
                          given(VT_I8, (1LL << 60) + 1),
                          given(VT_CY, 25000),
                          decimal};
  for (const VARIANT& row : rows) {
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
  EXPECT_EQ(ErrorResult(6), vector->AddValue(given(VT_I8, (1LL << 60) + 1)));
  // One that is left out is the default, early bound too.
  EXPECT_EQ(S_OK, vector->InsertValue(1, Omitted()));
  OwnedVariant first;
  EXPECT_EQ(S_OK, vector->get_Value(1, &first.value));
  EXPECT_EQ(VT_R8, first.value.vt);
  EXPECT_EQ(-9.9999999999e300, first.value.dblVal);
}

// What a member only reads, or does not change, is not touched.
TEST(LateBinding, UnchangedVariablesAreNotTouched) {
  const auto strings = Create<_GCStrings>(__uuidof(GCStrings));
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  const OwnedText delimiter = Bstr(u";");
  VARIANT number{};
  number.vt = VT_UI1;
  number.bVal = 100;
  Answer answer;
  CallByName(answer, math.Get(), L"Log10", DISPATCH_METHOD, {Variable(number)});
  EXPECT_EQ(VT_UI1, number.vt);
  VARIANT money{};
  money.vt = VT_CY;
  money.cyVal.int64 = 50000;
  CallByName(answer, strings.Get(), L"InitEnumRange", DISPATCH_METHOD, {Variable(money)});
  EXPECT_EQ(VT_BSTR, money.vt);  // changed
  VariantClear(&money);
}

TEST(LateBinding, ByReferenceArgumentsOfEveryTypeComeBack) {
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  LONG number = 1;
  SHORT small = 2;
  double real = 3;
  LONGLONG wide = 4;
  CY money{};
  money.int64 = 50000;
  VARIANT script = Long(6);
  VARIANT arguments[6] = {};
  arguments[0].vt = VT_BYREF | VT_I4;
  arguments[0].plVal = &number;
  arguments[1].vt = VT_BYREF | VT_I2;
  arguments[1].piVal = &small;
  arguments[2].vt = VT_BYREF | VT_R8;
  arguments[2].pdblVal = &real;
  arguments[3].vt = VT_BYREF | VT_I8;
  arguments[3].pllVal = &wide;
  arguments[4].vt = VT_BYREF | VT_CY;
  arguments[4].pcyVal = &money;
  arguments[5] = Variable(script);
  Answer answer;
  for (const VARIANT& argument : arguments) {
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
  CallByName(answer, math.Get(), L"Inc", DISPATCH_METHOD, {arguments[1]});
  EXPECT_EQ(ErrorResult(6), answer.scode);
  EXPECT_EQ(32767, small);
}

TEST(LateBinding, TextsAreExchangedWithoutLeavingTheOldOnes) {
  const auto strings = Create<_GCStrings>(__uuidof(GCStrings));
  const OwnedText delimiter = Bstr(u";");
  BSTR source = SysAllocString(L"a;b;c");
  VARIANT typed{};
  typed.vt = VT_BYREF | VT_BSTR;
  typed.pbstrVal = &source;
  OwnedVariant script;
  script.value.vt = VT_BSTR;
  script.value.bstrVal = SysAllocString(L"d;e");
  Answer answer;
  CallByName(answer, strings.Get(), L"GetNextToken", DISPATCH_METHOD, {typed, Text(delimiter)});
  EXPECT_STREQ(L"a", answer.value.value.bstrVal);
  EXPECT_EQ(u"b;c", Taken(source));
  CallByName(answer, strings.Get(), L"GetNextToken", DISPATCH_METHOD, {Variable(script.value), Text(delimiter)});
  EXPECT_STREQ(L"e", script.value.bstrVal);
}

}  // namespace
}  // namespace qzbase::tests
