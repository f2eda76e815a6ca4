// Arrays and records across the border, early and late bound.
#include "Client.h"

namespace qzbase::tests {
namespace {

template <class Number>
std::vector<Number> NumbersIn(SAFEARRAY* pArray) {
  const auto* first = static_cast<const Number*>(pArray->pvData);
  return {first, first + pArray->rgsabound[0].cElements};
}

TEST(ArrayBorder, TypedArraysAreTakenAsTheyAreEarlyBound) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
  const OwnedSafeArray numbers = ArrayOf<double>(VT_R8, -3, {1, 2, 4});
  const OwnedSafeArray longs = ArrayOf<LONG>(VT_I4, 0, {1});
  const OwnedSafeArray grid(SafeArrayCreate(VT_R8, 2, bounds));
  for (const auto& [array, result] :
       {std::pair{numbers.Get(), S_OK}, std::pair{longs.Get(), ErrorResult(13)}, std::pair{grid.Get(), ErrorResult(13)},
        std::pair{static_cast<SAFEARRAY*>(nullptr), ErrorResult(9)}}) {
    SAFEARRAY* passed = array;
    EXPECT_EQ(result, vector->SetFromArray(&passed));
    EXPECT_EQ(array, passed);
    EXPECT_EQ("(1;2;4)", Shown(vector));
  }
  SAFEARRAY* own = nullptr;
  EXPECT_EQ(S_OK, vector->GetArray(&own));
  EXPECT_EQ(1, own->rgsabound[0].lLbound);
  EXPECT_EQ(4, NumbersIn<double>(own)[2]);
  SafeArrayDestroy(own);
}

// A script's array holds variants and comes behind one or two references; those of others are of any kind of number.
TEST(ArrayBorder, ArraysOfAnyNumberAreConvertedLateBound) {
  const OwnedSafeArray mixed = ArrayOf<VARIANT>(VT_VARIANT, 0, {Long(1), Value(VT_BSTR, SysAllocString(L"-2"))});
  SAFEARRAY* array = mixed.Get();
  VARIANT variable = Value(VT_ARRAY | VT_VARIANT, array);
  VARIANT outer = Variable(variable);
  const std::pair<VARTYPE, OwnedSafeArray> typed[] = {
      {VT_I4, ArrayOf<LONG>(VT_I4, 5, {1, -2})},     {VT_I2, ArrayOf<SHORT>(VT_I2, 0, {1, -2})},
      {VT_I8, ArrayOf<LONGLONG>(VT_I8, 0, {1, -2})}, {VT_CY, ArrayOf<LONGLONG>(VT_CY, 0, {10000, -20000})},
      {VT_R4, ArrayOf<float>(VT_R4, 0, {1, -2})},    {VT_I1, ArrayOf<signed char>(VT_I1, 0, {1, -2})}};
  std::vector<VARIANT> arguments = {variable, Variable(variable), Variable(outer),
                                    Reference(VT_ARRAY | VT_VARIANT, array)};
  for (const auto& [type, each] : typed) arguments.push_back(Value(static_cast<VARTYPE>(VT_ARRAY | type), each.Get()));
  for (const VARIANT& argument : arguments) {
    const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
    EXPECT_EQ("", Call(vector, L"SetFromArray", {argument})) << argument.vt;
    EXPECT_EQ("(1;-2)", Shown(vector)) << argument.vt;
  }
  EXPECT_EQ(VT_ARRAY | VT_VARIANT, variable.vt);
}

// `Dim names() As String`: no array yet, but a type of elements.
TEST(ArrayBorder, ArraysWithoutDimensionsKeepTheirElementType) {
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  VARIANT none = Value(VT_ARRAY | VT_I4, static_cast<SAFEARRAY*>(nullptr));
  VARIANT two = Value(VT_ARRAY | VT_R8, ArrayOf<double>(VT_R8, 0, {1, 2}).Release());
  EXPECT_EQ("", Call(math, L"Swap", {Variable(none), Variable(two)}));
  EXPECT_EQ(VT_ARRAY | VT_R8, none.vt);
  EXPECT_EQ(VT_ARRAY | VT_I4, two.vt);
  EXPECT_EQ(nullptr, two.parray);
  VariantClear(&none);

  const OwnedText text(u"a;b");
  const OwnedText delimiter(u";");
  SAFEARRAY* names = nullptr;
  const auto strings = Create<_GCStrings>(__uuidof(GCStrings));
  EXPECT_EQ("2", Call(strings, L"ParseString", {Text(text), Text(delimiter), Reference(VT_ARRAY | VT_BSTR, names)}));
  const OwnedSafeArray filled(names);
  VARTYPE type = VT_EMPTY;
  EXPECT_EQ(S_OK, SafeArrayGetVartype(names, &type));
  EXPECT_EQ(VT_BSTR, type);
}

// Swap gives each variable what the other one held; here the variables are arrays of fixed types.
TEST(ArrayBorder, ArraysComeBackInTheCallersOwnElementType) {
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  SAFEARRAY* shorts = ArrayOf<SHORT>(VT_I2, 0, {1, 2}).Release();
  SAFEARRAY* doubles = ArrayOf<double>(VT_R8, 1, {3, 4, 5}).Release();
  const auto swap = [&](const char* pResult, const std::vector<SHORT>& pShorts, const std::vector<double>& pDoubles) {
    const std::vector variables = {Reference(VT_ARRAY | VT_I2, shorts), Reference(VT_ARRAY | VT_R8, doubles)};
    EXPECT_EQ(pResult, Call(math, L"Swap", variables).substr(0, 2));
    EXPECT_EQ(pShorts, NumbersIn<SHORT>(shorts));
    EXPECT_EQ(pDoubles, NumbersIn<double>(doubles));
  };
  swap("", {3, 4, 5}, {1, 2});
  // An array of fixed size is filled in place, or not at all.
  shorts->fFeatures |= FADF_FIXEDSIZE;
  const void* const memory = shorts->pvData;
  swap("10", {3, 4, 5}, {1, 2});
  SafeArrayDestroy(doubles);
  doubles = ArrayOf<double>(VT_R8, 1, {7, 8, 9}).Release();
  swap("", {7, 8, 9}, {3, 4, 5});
  EXPECT_EQ(memory, shorts->pvData);
  // So is a locked one.
  shorts->fFeatures &= static_cast<USHORT>(~FADF_FIXEDSIZE);
  SafeArrayDestroy(doubles);
  doubles = ArrayOf<double>(VT_R8, 1, {1}).Release();
  SafeArrayLock(shorts);
  swap("10", {7, 8, 9}, {1});
  SafeArrayUnlock(shorts);
  SafeArrayDestroy(shorts);
  SafeArrayDestroy(doubles);
}

TEST(RecordBorder, LateBoundRecordsCarryTheirDescription) {
  const auto errors = Create<_GCError>(__uuidof(GCError));
  OwnedVariant desc;
  VARIANT& record = desc.value;
  Call(errors, L"EDesc", {Long(3)}, &record);
  ASSERT_EQ(VT_RECORD, record.vt);
  ULONG size = 0;
  EXPECT_EQ(S_OK, record.pRecInfo->GetSize(&size));
  EXPECT_EQ(sizeof(TErrDesc), size);
  // Handed back by value, as a variable, which then holds another record, and by its own reference, which stays.
  VARIANT byReference = record;
  byReference.vt = VT_BYREF | VT_RECORD;
  for (const VARIANT& each : {record, Variable(record), byReference}) {
    EXPECT_EQ("", Call(errors, L"SetEDesc", {Long(3), each})) << each.vt;
    EXPECT_STREQ(L"InvRange", static_cast<TErrDesc*>(record.pvRecord)->ID);
  }
  // A record of another kind does not pass for this one.
  EXPECT_EQ("13|QZBase.GCError|Type mismatch", Call(errors, L"ErrCode", {record}));
}

// They lie as the header says.
TEST(RecordBorder, ArraysOfRecordsGoBothWays) {
  const auto errors = Create<_GCError>(__uuidof(GCError));
  OwnedVariant all;
  Call(errors, L"GetErrors", {}, &all.value);
  ASSERT_EQ(VT_ARRAY | VT_RECORD, all.value.vt);
  EXPECT_EQ(1, all.value.parray->rgsabound[0].lLbound);
  TErrDesc& third = static_cast<TErrDesc*>(all.value.parray->pvData)[2];
  EXPECT_STREQ(L"InvRange", third.ID);
  EXPECT_STREQ(L"Format", third.Module);
  EXPECT_EQ(VARIANT_TRUE, third.AddInfo);
  TErrIndex index{3};
  LONG code = 0;
  third.Code = 2003;
  EXPECT_EQ(S_OK, errors->SetErrors(&all.value.parray));
  EXPECT_EQ(S_OK, errors->ErrCode(&index, &code));
  EXPECT_EQ(2003, code);
  third.Code = 1003;
  EXPECT_EQ("", Call(errors, L"SetErrors", {Variable(all.value)}));
  EXPECT_EQ(S_OK, errors->ErrCode(&index, &code));
  EXPECT_EQ(1003, code);
}

}  // namespace
}  // namespace qzbase::tests
