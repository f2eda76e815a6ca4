// Objects of hosts that the library calls by name.
#include "ScriptObject.h"

namespace qzbase::tests {
namespace {

ScriptFunction Returns(VARIANT pValue) {
  return [pValue](WORD, const DISPPARAMS&, VARIANT* pResult) mutable {
    return pResult ? VariantCopy(pResult, &pValue) : S_OK;
  };
}

ScriptFunction Fails(HRESULT pResult) {
  return [pResult](WORD, const DISPPARAMS&, VARIANT*) { return pResult; };
}

const VARIANT& Given(const DISPPARAMS& pArguments, UINT pAt) {
  const VARIANT* argument = &pArguments.rgvarg[pArguments.cArgs - 1 - pAt];
  return argument->vt == (VT_BYREF | VT_VARIANT) ? *argument->pvarVal : *argument;
}

// A registry of a script: it knows one error and collects what it is given.
class HostObject : public testing::TestWithParam<bool> {
 protected:
  std::vector<ScriptObject::Member> Members(const OwnedText& pId, const OwnedText& pModule) {
    description_ = std::make_unique<ScriptObject>(std::vector<ScriptObject::Member>{{L"Code", Returns(Long(1500))},
                                                                                    {L"ID", Returns(Text(pId))},
                                                                                    {L"Module", Returns(Text(pModule))},
                                                                                    {L"Msg", Returns(Text(pId))},
                                                                                    {L"AddInfo", Returns(Long(0))}});
    return {{L"ErrIndex",
             [](WORD, const DISPPARAMS& pArguments, VARIANT* pResult) {
               *pResult = Long(std::wstring(Given(pArguments, 1).bstrVal) == L"InvRange" ? 1 : 0);
               return S_OK;
             }},
            {L"RegisterError",
             [this](WORD, const DISPPARAMS& pArguments, VARIANT*) {
               registered_.emplace_back(Given(pArguments, 1).bstrVal);
               EXPECT_EQ(4U, pArguments.cArgs);
               EXPECT_EQ(VT_BOOL, Given(pArguments, 3).vt);
               return S_OK;
             }},
            {L"NrRegisteredErrors", Returns(Long(1))},
            {L"EDesc", Returns(Dispatch(description_.get()))}};
  }

  LONG CodeOf(const ComRef<_GCError>& pErrors, LONG pAt) {
    TErrDesc record{};
    EXPECT_EQ(S_OK, pErrors->get_EDesc(pAt, &record));
    Taken(record.ID);
    Taken(record.Module);
    Taken(record.Msg);
    return record.Code;
  }

  std::vector<std::wstring> registered_;
  std::unique_ptr<ScriptObject> description_;
};

TEST_P(HostObject, IsCalledByNameAndLetGo) {
  const auto errors = Create<_GCError>(__uuidof(GCError));
  const OwnedText id = Bstr(u"InvRange");
  const OwnedText module = Bstr(u"Format");
  ScriptObject client(Members(id, module), GetParam());
  IDispatch* passed = &client;
  ASSERT_EQ(S_OK, errors->SynchErrors(&passed));
  LONG count = 0;
  EXPECT_EQ(S_OK, errors->NrRegisteredErrors(&count));
  EXPECT_EQ(static_cast<std::size_t>(count - 1), registered_.size());
  EXPECT_EQ(1500, CodeOf(errors, 3));
  EXPECT_EQ(1U, client.References());
  EXPECT_EQ(1U, description_->References());
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutIDispatchEx, HostObject, testing::Bool());

TEST(HostErrors, BecomeTheNumbersThatTheyStandFor) {
  const auto errors = Create<_GCError>(__uuidof(GCError));
  struct Row {
    HRESULT result;
    HRESULT scode;
    HRESULT expected;
  };
  const Row rows[] = {{DISP_E_MEMBERNOTFOUND, S_OK, ErrorResult(438)},
                      {DISP_E_TYPEMISMATCH, S_OK, ErrorResult(13)},
                      {DISP_E_OVERFLOW, S_OK, ErrorResult(6)},
                      {DISP_E_BADPARAMCOUNT, S_OK, ErrorResult(450)},
                      {DISP_E_PARAMNOTOPTIONAL, S_OK, ErrorResult(449)},
                      {DISP_E_BADINDEX, S_OK, ErrorResult(9)},
                      {E_INVALIDARG, S_OK, ErrorResult(5)},
                      {E_OUTOFMEMORY, S_OK, ErrorResult(7)},
                      {HRESULT(0x80004005), S_OK, HRESULT(0x80004005)},
                      {DISP_E_EXCEPTION, ErrorResult(1234), ErrorResult(1234)},
                      {DISP_E_EXCEPTION, DISP_E_OVERFLOW, ErrorResult(6)},
                      {DISP_E_EXCEPTION, HRESULT(0x80040201), HRESULT(0x80040201)}};
  for (const Row& row : rows) {
    ScriptObject client({{L"ErrIndex", Fails(row.result)}});
    client.scode = row.scode;
    IDispatch* passed = &client;
    EXPECT_EQ(row.expected, errors->SynchErrors(&passed)) << std::hex << row.result;
    const ThreadError error;
    if (row.result == DISP_E_EXCEPTION) {
      EXPECT_EQ(u"Script", error.source);
      EXPECT_EQ(u"went wrong", error.description);
    }
    EXPECT_EQ(1U, client.References());
  }
  ScriptObject empty({});
  IDispatch* passed = &empty;
  EXPECT_EQ(ErrorResult(438), errors->SynchErrors(&passed));
}

// Scripts of some hosts pass arrays as objects with a length, and texts and numbers as objects with a value.
TEST(HostObjects, ServeAsArraysAndValues) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  ScriptObject array({{L"length", Returns(Long(3))}, {L"0", Returns(Long(4))}, {L"2", Returns(Double(0.5))}});
  ScriptObject number({{L"", Returns(Double(2.5))}});
  Answer answer;
  CallByName(answer, vector.Get(), L"AddValue", DISPATCH_METHOD, {Dispatch(&number)});
  EXPECT_EQ(S_OK, answer.result);
  CallByName(answer, vector.Get(), L"SetFromArray", DISPATCH_METHOD, {Dispatch(&array)});
  EXPECT_EQ(S_OK, answer.result);
  CallByName(answer, vector.Get(), L"GetString", DISPATCH_METHOD);
  EXPECT_STREQ(L"(4;0;0.5)", answer.value.value.bstrVal);
  EXPECT_EQ(1U, array.References());
  EXPECT_EQ(1U, number.References());
}

TEST(HostObjects, ComeBackAsTheyWere) {
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  ScriptObject object({});
  OwnedVariant left;
  OwnedVariant right;
  left.value = Dispatch(&object, VT_UNKNOWN);
  object.AddRef();
  EXPECT_EQ(S_OK, math->Swap(&left.value, &right.value));
  EXPECT_EQ(VT_UNKNOWN, right.value.vt);
  EXPECT_EQ(&object, right.value.punkVal);
  VariantClear(&right.value);
  EXPECT_EQ(1U, object.References());
}

}  // namespace
}  // namespace qzbase::tests
