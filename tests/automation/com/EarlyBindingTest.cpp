// Early-bound calls through the generated header: slots, by-reference arguments, identity, errors, careless callers.
#include "Client.h"

namespace qzbase::tests {
namespace {

TEST(EarlyBinding, EverySlotOfAVectorIsItsOwn) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const OwnedText text = Bstr(u"(3;1;2)");
  ASSERT_EQ(S_OK, vector->SetFromString(text.Get()));
  LONG number = -7;
  double value = -7;
  QZVarType type{};
  EXPECT_EQ(S_OK, vector->VarType(&type));
  EXPECT_EQ(EVTDouble, type);
  EXPECT_EQ(S_OK, vector->get_Size(&number));
  EXPECT_EQ(3, number);
  EXPECT_EQ(S_OK, vector->put_Value(2, 1.5));
  EXPECT_EQ(S_OK, vector->get_Value(2, &value));
  EXPECT_EQ(1.5, value);
  EXPECT_EQ(S_OK, vector->InsertValue(1, 9));
  EXPECT_EQ(S_OK, vector->Index(9, 1, &number));
  EXPECT_EQ(1, number);
  EXPECT_EQ(S_OK, vector->Sort(VARIANT_TRUE));
  EXPECT_EQ(S_OK, vector->Max(&value));
  EXPECT_EQ(9, value);
  EXPECT_EQ(S_OK, vector->NrValid(&number));
  EXPECT_EQ(4, number);
  BSTR shown = nullptr;
  EXPECT_EQ(S_OK, vector->GetString(&shown));
  EXPECT_EQ(u"(1.5;2;3;9)", Taken(shown));
  EXPECT_EQ(S_OK, vector->put_BlockSize(8));  // the last slot
}

TEST(EarlyBinding, ObjectsKeepTheirIdentity) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const auto buffer = Create<_CBuffer>(__uuidof(CBuffer));
  ASSERT_EQ(S_OK, vector->AddValue(4));
  EXPECT_EQ(S_OK, vector->SaveToBuffer(buffer.Get(), VARIANT_FALSE));
  ComRef<_CDblVector> copy;
  ASSERT_EQ(S_OK, vector->GetCopy(copy.Put()));
  EXPECT_NE(vector.Get(), copy.Get());
  VARIANT_BOOL equal = VARIANT_FALSE;
  EXPECT_EQ(S_OK, vector->IsEqual(copy.Get(), &equal));
  EXPECT_EQ(VARIANT_TRUE, equal);

  // The same object in and out again is the same one for its holder.
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  VARIANT left = Dispatch(vector.Get());
  VARIANT right = Long(1);
  vector->AddRef();  // the variable's own
  EXPECT_EQ(S_OK, math->Swap(&left, &right));
  EXPECT_EQ(VT_I4, left.vt);
  ASSERT_EQ(VT_DISPATCH, right.vt);
  EXPECT_EQ(vector.Get(), right.pdispVal);
  VariantClear(&right);

  const auto asUnknown = vector.As<IUnknown>(IID_IUnknown);
  const auto support = vector.As<ISupportErrorInfo>(IID_ISupportErrorInfo);
  ASSERT_TRUE(support);
  EXPECT_EQ(asUnknown.Get(), support.As<IUnknown>(IID_IUnknown).Get());
  EXPECT_EQ(S_OK, support->InterfaceSupportsErrorInfo(__uuidof(_CDblVector)));
  EXPECT_EQ(S_FALSE, support->InterfaceSupportsErrorInfo(__uuidof(_CBuffer)));
}

TEST(EarlyBinding, ByReferenceArgumentsChangeOnlyOnSuccess) {
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  LONG number = 41;
  LONG result = 0;
  EXPECT_EQ(S_OK, math->Inc(&number, &result));
  EXPECT_EQ(42, number);
  EXPECT_EQ(42, result);
  number = 0x7FFFFFFF;
  EXPECT_EQ(ErrorResult(6), math->Inc(&number, &result));
  EXPECT_EQ(0x7FFFFFFF, number);
  EXPECT_EQ(0, result);  // cleared first

  const auto strings = Create<_GCStrings>(__uuidof(GCStrings));
  const OwnedText delimiter = Bstr(u";");
  BSTR source = Bstr(u"a;b").Release();
  BSTR token = nullptr;
  EXPECT_EQ(S_OK, strings->GetNextToken(&source, delimiter.Get(), &token));
  EXPECT_EQ(u"a", Taken(token));
  EXPECT_EQ(u"b", Taken(source));
}

TEST(EarlyBinding, ErrorsCarryNumberSourceTextAndInterface) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  double value = 3;
  EXPECT_EQ(ErrorResult(9), vector->get_Value(99, &value));
  EXPECT_EQ(0, value);
  const ThreadError outside;
  ASSERT_TRUE(outside.isSet);
  EXPECT_EQ(u"QZBase.CDblVector", outside.source);
  EXPECT_EQ(u"Subscript out of range", outside.description);
  EXPECT_TRUE(outside.guid == __uuidof(_CDblVector));

  const auto errors = Create<_GCError>(__uuidof(GCError));
  const OwnedText server = Bstr(u"Server");
  const OwnedText nothing = Bstr(u"");
  const OwnedText detail = Bstr(u"detail");
  for (const auto& [id, expected] : {std::pair{&server, u"Server"}, std::pair{&nothing, u""}}) {
    EXPECT_EQ(S_OK, errors->SetServerId(id->Get()));
    EXPECT_EQ(ErrorResult(1003), errors->Throw(1003, detail.Get()));
    const ThreadError raised;
    EXPECT_EQ(expected, raised.source);
    EXPECT_EQ(u"detail", raised.description);
  }
  EXPECT_EQ(HRESULT(0x80070005), errors->Throw(LONG(0x80070005), detail.Get()));
}

TEST(EarlyBinding, UnsetAndForeignObjectsRaiseErrors) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const auto buffer = Create<_CBuffer>(__uuidof(CBuffer));
  auto* wrong = reinterpret_cast<_CDblVector*>(buffer.Get());
  VARIANT_BOOL equal = VARIANT_TRUE;
  EXPECT_EQ(ErrorResult(91), vector->IsEqual(nullptr, &equal));
  EXPECT_EQ(VARIANT_FALSE, equal);
  EXPECT_EQ(ErrorResult(13), vector->IsEqual(wrong, &equal));
  EXPECT_EQ(S_OK, vector->SaveToBuffer(nullptr, VARIANT_FALSE));  // may be unset
}

TEST(EarlyBinding, NullPointersGiveAnErrorAndNoCrash) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  const auto errors = Create<_GCError>(__uuidof(GCError));
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  LONG number = 0;
  double value = 0;
  TErrDesc record{};
  OwnedVariant variant;
  const HRESULT results[] = {
      vector->get_Size(nullptr),
      vector->SetFromArray(nullptr),
      vector->GetArray(nullptr),
      vector->GetCopy(nullptr),
      errors->get_EDesc(1, nullptr),
      errors->ErrCode(nullptr, &number),
      errors->SetEDesc(1, nullptr, &variant.value),
      errors->SetEDesc(1, &record, nullptr),
      errors->SynchErrors(nullptr),
      math->Log10(nullptr, &value),
      math->Swap(&variant.value, nullptr),
      math->Inc(nullptr, &number),
      vector->QueryInterface(IID_IUnknown, nullptr),
      vector->GetTypeInfoCount(nullptr),
      vector->GetTypeInfo(0, 0, nullptr),
      vector->GetIDsOfNames(IID_NULL, nullptr, 1, 0, nullptr),
      vector->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
  };
  for (std::size_t i = 0; i < std::size(results); ++i) EXPECT_EQ(E_POINTER, results[i]) << "call " << i;
  EXPECT_EQ(S_OK, vector->SetFromString(nullptr));  // a null text is an empty one
}

TEST(EarlyBinding, ClassInformationComesFromTheTypeLibrary) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  ComRef<ITypeInfo> info;
  ASSERT_EQ(S_OK, vector->GetTypeInfo(0, 0, info.Put()));
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(S_OK, info->GetTypeAttr(&attributes));
  EXPECT_TRUE(attributes->guid == __uuidof(_CDblVector));
  info->ReleaseTypeAttr(attributes);
  EXPECT_EQ(DISP_E_BADINDEX, vector->GetTypeInfo(1, 0, info.Put()));

  const auto provider = vector.As<IProvideClassInfo>(IID_IProvideClassInfo);
  ASSERT_TRUE(provider);
  ComRef<ITypeInfo> classInfo;
  ASSERT_EQ(S_OK, provider->GetClassInfo(classInfo.Put()));
  ASSERT_EQ(S_OK, classInfo->GetTypeAttr(&attributes));
  EXPECT_TRUE(attributes->guid == __uuidof(CDblVector));
  classInfo->ReleaseTypeAttr(attributes);
}

TEST(EarlyBinding, ObjectsCannotBeAggregated) {
  ComRef<IUnknown> outer = Create<_CBuffer>(__uuidof(CBuffer)).As<IUnknown>(IID_IUnknown);
  ComRef<IClassFactory> factory;
  ASSERT_EQ(S_OK,
            CoGetClassObject(__uuidof(CBuffer), CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, factory.PutVoid()));
  void* made = &factory;
  EXPECT_EQ(CLASS_E_NOAGGREGATION, factory->CreateInstance(outer.Get(), IID_IUnknown, &made));
  EXPECT_EQ(nullptr, made);
  EXPECT_EQ(E_NOINTERFACE, factory->CreateInstance(nullptr, IID_IStream, &made));
  EXPECT_EQ(E_POINTER, factory->CreateInstance(nullptr, IID_IUnknown, nullptr));
}

}  // namespace
}  // namespace qzbase::tests
