// Arrays across the border, early and late bound.
#include "Client.h"

namespace qzbase::tests {
namespace {

std::u16string Shown(const ComRef<_CDblVector>& pVector) {
  BSTR text = nullptr;
  EXPECT_EQ(S_OK, pVector->GetString(&text));
  return Taken(text);
}

TEST(ArrayBorder, TypedArraysKeepBoundsAndElements) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  SAFEARRAY* numbers = ArrayOf<double>(VT_R8, -3, {1, 2, 4}).Release();
  EXPECT_EQ(S_OK, vector->SetFromArray(&numbers));
  EXPECT_EQ(u"(1;2;4)", Shown(vector));
  SafeArrayDestroy(numbers);
  EXPECT_EQ(S_OK, vector->GetArray(&numbers));
  LONG lower = 0;
  SafeArrayGetLBound(numbers, 1, &lower);
  EXPECT_EQ(1, lower);
  EXPECT_EQ(4, NumbersIn<double>(numbers)[2]);
  SafeArrayDestroy(numbers);
}

TEST(ArrayBorder, OtherElementsAndDimensionsAreRefusedEarlyBound) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  SAFEARRAY* longs = ArrayOf<LONG>(VT_I4, 0, {1}).Release();
  EXPECT_EQ(ErrorResult(13), vector->SetFromArray(&longs));
  SafeArrayDestroy(longs);
  SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
  SAFEARRAY* grid = SafeArrayCreate(VT_R8, 2, bounds);
  EXPECT_EQ(ErrorResult(13), vector->SetFromArray(&grid));
  SafeArrayDestroy(grid);
  SAFEARRAY* none = nullptr;
  EXPECT_EQ(ErrorResult(9), vector->SetFromArray(&none));
  EXPECT_EQ(nullptr, none);
}

// A script's array: variants, behind one or two references. It may come back as another one with such elements.
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
  struct Row {
    VARTYPE type;
    OwnedSafeArray array;
  };
  Row rows[] = {{VT_I4, ArrayOf<LONG>(VT_I4, 5, {1, -2})},     {VT_I2, ArrayOf<SHORT>(VT_I2, 0, {1, -2})},
                {VT_I8, ArrayOf<LONGLONG>(VT_I8, 0, {1, -2})}, {VT_CY, ArrayOf<LONGLONG>(VT_CY, 0, {10000, -20000})},
                {VT_R4, ArrayOf<float>(VT_R4, 0, {1, -2})},    {VT_I1, ArrayOf<signed char>(VT_I1, 0, {1, -2})}};
  for (const Row& row : rows) {
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
  CallByName(answer, math.Get(), L"Swap", DISPATCH_METHOD, {left, right});
  EXPECT_EQ(S_OK, answer.result);
  EXPECT_EQ((std::vector<SHORT>{3, 4, 5}), NumbersIn<SHORT>(shorts));
  EXPECT_EQ((std::vector<double>{1, 2}), NumbersIn<double>(doubles));

  // An array of fixed size is filled in place, or not at all.
  shorts->fFeatures |= FADF_FIXEDSIZE;
  const void* const memory = shorts->pvData;
  CallByName(answer, math.Get(), L"Swap", DISPATCH_METHOD, {left, right});
  EXPECT_EQ(DISP_E_EXCEPTION, answer.result);
  EXPECT_EQ(ErrorResult(10), answer.scode);
  EXPECT_EQ((std::vector<SHORT>{3, 4, 5}), NumbersIn<SHORT>(shorts));
  EXPECT_EQ((std::vector<double>{1, 2}), NumbersIn<double>(doubles));
  SafeArrayDestroy(doubles);
  doubles = ArrayOf<double>(VT_R8, 1, {7, 8, 9}).Release();
  CallByName(answer, math.Get(), L"Swap", DISPATCH_METHOD, {left, right});
  EXPECT_EQ(S_OK, answer.result);
  EXPECT_EQ((std::vector<SHORT>{7, 8, 9}), NumbersIn<SHORT>(shorts));
  EXPECT_EQ(memory, shorts->pvData);
  shorts->fFeatures &= static_cast<USHORT>(~FADF_FIXEDSIZE);
  SafeArrayDestroy(shorts);
  SafeArrayDestroy(doubles);
}

TEST(ArrayBorder, BytesGoThroughABuffer) {
  const auto buffer = Create<_CBuffer>(__uuidof(CBuffer));
  SAFEARRAY* bytes = ArrayOf<BYTE>(VT_UI1, 0, {1, 2, 255}).Release();
  EXPECT_EQ(S_OK, buffer->AddData(&bytes));
  SafeArrayDestroy(bytes);
  EXPECT_EQ(S_OK, buffer->ResetPos());
  Answer answer;
  CallByName(answer, buffer.Get(), L"NextData", DISPATCH_METHOD);
  ASSERT_EQ(VT_ARRAY | VT_UI1, answer.value.value.vt);
  EXPECT_EQ((std::vector<BYTE>{1, 2, 255}), NumbersIn<BYTE>(answer.value.value.parray));
}

}  // namespace
}  // namespace qzbase::tests
