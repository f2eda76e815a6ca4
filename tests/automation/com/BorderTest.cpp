// Arrays and records across the border, early and late bound.
#include "Client.h"

namespace qzbase::tests {
namespace {

TEST(ArrayBorder, TypedArraysKeepBoundsAndElements) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  OwnedSafeArray numbers = ArrayOf<double>(VT_R8, -3, {1, 2, 4});
  SAFEARRAY* passed = numbers.Get();
  EXPECT_EQ(S_OK, vector->SetFromArray(&passed));
  EXPECT_EQ(u"(1;2;4)", Shown(vector));
  EXPECT_EQ(S_OK, vector->GetArray(&passed));
  numbers = OwnedSafeArray(passed);
  EXPECT_EQ(1, passed->rgsabound[0].lLbound);
  EXPECT_EQ(4, NumbersIn<double>(passed)[2]);
}

TEST(ArrayBorder, OtherElementsAndDimensionsAreRefusedEarlyBound) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
  const OwnedSafeArray longs = ArrayOf<LONG>(VT_I4, 0, {1});
  const OwnedSafeArray grid(SafeArrayCreate(VT_R8, 2, bounds));
  for (SAFEARRAY* each : {longs.Get(), grid.Get()}) EXPECT_EQ(ErrorResult(13), vector->SetFromArray(&each));
  SAFEARRAY* none = nullptr;
  EXPECT_EQ(ErrorResult(9), vector->SetFromArray(&none));
  EXPECT_EQ(nullptr, none);
}

// A script's array: variants, behind one or two references.
TEST(ArrayBorder, ScriptArraysOfAnyNumberAreConverted) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  OwnedVariant script;
  VARIANT& variable = script.value;
  variable.parray = SafeArrayCreateVector(VT_VARIANT, 0, 3);
  variable.vt = VT_ARRAY | VT_VARIANT;
  auto* elements = static_cast<VARIANT*>(variable.parray->pvData);
  elements[0] = Long(7);
  elements[1] = Double(0.5);
  elements[2].vt = VT_BSTR;
  elements[2].bstrVal = SysAllocString(L"8");
  VARIANT outer = Variable(variable);
  VARIANT direct{};
  direct.vt = VT_BYREF | VT_ARRAY | VT_VARIANT;
  direct.pparray = &variable.parray;
  Answer answer;
  for (const VARIANT& argument : {variable, Variable(variable), Variable(outer), direct}) {
    vector->put_Size(0);
    CallByName(answer, vector.Get(), L"SetFromArray", DISPATCH_METHOD, {argument});
    EXPECT_EQ(S_OK, answer.result) << argument.vt;
    EXPECT_EQ(u"(7;0.5;8)", Shown(vector)) << argument.vt;
    EXPECT_EQ(VT_ARRAY | VT_VARIANT, variable.vt);
  }
}

TEST(ArrayBorder, ElementKindsOfOthersBecomeTheNearestOwn) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const struct {
    VARTYPE type;
    OwnedSafeArray array;
  } rows[] = {{VT_I4, ArrayOf<LONG>(VT_I4, 5, {1, -2})},     {VT_I2, ArrayOf<SHORT>(VT_I2, 0, {1, -2})},
              {VT_I8, ArrayOf<LONGLONG>(VT_I8, 0, {1, -2})}, {VT_CY, ArrayOf<LONGLONG>(VT_CY, 0, {10000, -20000})},
              {VT_R4, ArrayOf<float>(VT_R4, 0, {1, -2})},    {VT_I1, ArrayOf<signed char>(VT_I1, 0, {1, -2})}};
  for (const auto& row : rows) {
    VARIANT argument{};
    argument.vt = static_cast<VARTYPE>(VT_ARRAY | row.type);
    argument.parray = row.array.Get();
    Answer answer;
    CallByName(answer, vector.Get(), L"SetFromArray", DISPATCH_METHOD, {argument});
    EXPECT_EQ(S_OK, answer.result) << row.type;
    EXPECT_EQ(u"(1;-2)", Shown(vector)) << row.type;
  }
}

// Swap gives each variable what the other one held; here the variables are arrays of fixed types.
TEST(ArrayBorder, ArraysComeBackInTheCallersOwnElementType) {
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  SAFEARRAY* shorts = ArrayOf<SHORT>(VT_I2, 0, {1, 2}).Release();
  SAFEARRAY* doubles = ArrayOf<double>(VT_R8, 1, {3, 4, 5}).Release();
  VARIANT left{};
  left.vt = VT_BYREF | VT_ARRAY | VT_I2;
  left.pparray = &shorts;
  VARIANT right{};
  right.vt = VT_BYREF | VT_ARRAY | VT_R8;
  right.pparray = &doubles;
  Answer answer;
  const auto swapAndExpect = [&](HRESULT pResult, const std::vector<SHORT>& pShorts,
                                 const std::vector<double>& pDoubles) {
    CallByName(answer, math.Get(), L"Swap", DISPATCH_METHOD, {left, right});
    EXPECT_EQ(pResult, answer.scode);
    EXPECT_EQ(pShorts, NumbersIn<SHORT>(shorts));
    EXPECT_EQ(pDoubles, NumbersIn<double>(doubles));
  };
  swapAndExpect(S_OK, {3, 4, 5}, {1, 2});

  // An array of fixed size is filled in place, or not at all; so is a locked one.
  shorts->fFeatures |= FADF_FIXEDSIZE;
  const void* const memory = shorts->pvData;
  swapAndExpect(ErrorResult(10), {3, 4, 5}, {1, 2});
  SafeArrayDestroy(doubles);
  doubles = ArrayOf<double>(VT_R8, 1, {7, 8, 9}).Release();
  swapAndExpect(S_OK, {7, 8, 9}, {3, 4, 5});
  EXPECT_EQ(memory, shorts->pvData);
  shorts->fFeatures &= static_cast<USHORT>(~FADF_FIXEDSIZE);
  SafeArrayLock(shorts);
  swapAndExpect(ErrorResult(10), {7, 8, 9}, {3, 4, 5});
  SafeArrayUnlock(shorts);
  SafeArrayDestroy(shorts);
  SafeArrayDestroy(doubles);
}

std::u16string IdIn(TErrDesc& pRecord) {
  SysFreeString(pRecord.Module);
  SysFreeString(pRecord.Msg);
  return Taken(pRecord.ID);
}

TEST(RecordBorder, EarlyBoundRecordsLieAsTheHeaderSays) {
  const auto errors = Create<_GCError>(__uuidof(GCError));
  TErrDesc record{};
  OwnedVariant nothing;
  ASSERT_EQ(S_OK, errors->get_EDesc(3, &record));
  EXPECT_EQ(1003, record.Code);
  EXPECT_STREQ(L"Format", record.Module);
  EXPECT_EQ(VARIANT_TRUE, record.AddInfo);
  for (const LONG code : {2003, 1003}) {
    record.Code = code;
    EXPECT_EQ(S_OK, errors->SetEDesc(3, &record, &nothing.value));
    EXPECT_EQ(u"InvRange", IdIn(record));
    ASSERT_EQ(S_OK, errors->get_EDesc(3, &record));
    EXPECT_EQ(code, record.Code);
  }
  IdIn(record);
  EXPECT_EQ(ErrorResult(9), errors->get_EDesc(999, &record));
  EXPECT_EQ(nullptr, record.ID);
}

TEST(RecordBorder, LateBoundRecordsCarryTheirDescription) {
  const auto errors = Create<_GCError>(__uuidof(GCError));
  Answer answer;
  CallByName(answer, errors.Get(), L"EDesc", DISPATCH_PROPERTYGET, {Long(3)});
  ASSERT_EQ(VT_RECORD, answer.value.value.vt);
  VARIANT& record = answer.value.value;
  ULONG size = 0;
  EXPECT_EQ(S_OK, record.pRecInfo->GetSize(&size));
  EXPECT_EQ(sizeof(TErrDesc), size);

  // Handed back by value, as a variable, which then holds another record, and by its own reference, which stays.
  VARIANT byReference = record;
  byReference.vt = VT_BYREF | VT_RECORD;
  for (const VARIANT& each : {record, Variable(record), byReference}) {
    Answer set;
    CallByName(set, errors.Get(), L"SetEDesc", DISPATCH_METHOD, {Long(3), each});
    EXPECT_EQ(S_OK, set.result) << each.vt;
    OwnedVariant field;
    EXPECT_EQ(S_OK, record.pRecInfo->GetField(record.pvRecord, L"ID", &field.value));
    EXPECT_STREQ(L"InvRange", field.value.bstrVal);
  }

  // A record of another kind does not pass for this one.
  Answer other;
  CallByName(other, errors.Get(), L"ErrCode", DISPATCH_METHOD, {record});
  EXPECT_EQ(ErrorResult(13), other.scode);
}

TEST(RecordBorder, ArraysOfRecordsGoBothWays) {
  const auto errors = Create<_GCError>(__uuidof(GCError));
  Answer late;
  CallByName(late, errors.Get(), L"GetErrors", DISPATCH_METHOD);
  ASSERT_EQ(VT_ARRAY | VT_RECORD, late.value.value.vt);
  auto* first = static_cast<TErrDesc*>(late.value.value.parray->pvData);
  EXPECT_EQ(1, late.value.value.parray->rgsabound[0].lLbound);
  EXPECT_STREQ(L"InvRange", first[2].ID);
  first[2].Code = 2003;
  EXPECT_EQ(S_OK, errors->SetErrors(&late.value.value.parray));
  TErrIndex index{3};
  LONG code = 0;
  EXPECT_EQ(S_OK, errors->ErrCode(&index, &code));
  EXPECT_EQ(2003, code);
  first[2].Code = 1003;
  Answer set;
  CallByName(set, errors.Get(), L"SetErrors", DISPATCH_METHOD, {Variable(late.value.value)});
  EXPECT_EQ(S_OK, errors->ErrCode(&index, &code));
  EXPECT_EQ(1003, code);
}

}  // namespace
}  // namespace qzbase::tests
