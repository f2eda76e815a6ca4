// Records across the border, early and late bound, single and in arrays.
#include "Client.h"

namespace qzbase::tests {
namespace {

void Clear(TErrDesc& pRecord) {
  SysFreeString(pRecord.ID);
  SysFreeString(pRecord.Module);
  SysFreeString(pRecord.Msg);
  pRecord = {};
}

std::u16string TextField(const VARIANT& pRecord, const wchar_t* pName) {
  OwnedVariant field;
  EXPECT_EQ(S_OK, pRecord.pRecInfo->GetField(pRecord.pvRecord, pName, &field.value));
  EXPECT_EQ(VT_BSTR, field.value.vt);
  return std::u16string(automation::com::TextIn(field.value.bstrVal));
}

TEST(RecordBorder, EarlyBoundRecordsLieAsTheHeaderSays) {
  const auto errors = Create<_GCError>(__uuidof(GCError));
  TErrDesc record{};
  ASSERT_EQ(S_OK, errors->get_EDesc(3, &record));
  EXPECT_EQ(1003, record.Code);
  EXPECT_STREQ(L"InvRange", record.ID);
  EXPECT_STREQ(L"Format", record.Module);
  EXPECT_EQ(VARIANT_TRUE, record.AddInfo);
  record.Code = 2003;
  OwnedVariant nothing;
  EXPECT_EQ(S_OK, errors->SetEDesc(3, &record, &nothing.value));
  Clear(record);
  ASSERT_EQ(S_OK, errors->get_EDesc(3, &record));
  EXPECT_EQ(2003, record.Code);
  record.Code = 1003;
  EXPECT_EQ(S_OK, errors->SetEDesc(3, &record, &nothing.value));
  Clear(record);

  EXPECT_EQ(ErrorResult(9), errors->get_EDesc(999, &record));
  EXPECT_EQ(nullptr, record.ID);
}

TEST(RecordBorder, LateBoundRecordsCarryTheirDescription) {
  const auto errors = Create<_GCError>(__uuidof(GCError));
  Answer answer;
  CallByName(answer, errors.Get(), L"EDesc", DISPATCH_PROPERTYGET, {Long(3)});
  ASSERT_EQ(S_OK, answer.result);
  ASSERT_EQ(VT_RECORD, answer.value.value.vt);
  VARIANT& record = answer.value.value;
  EXPECT_EQ(u"InvRange", TextField(record, L"ID"));
  ULONG size = 0;
  EXPECT_EQ(S_OK, record.pRecInfo->GetSize(&size));
  EXPECT_EQ(sizeof(TErrDesc), size);

  // Handed back by value, as a variable, which then holds another record, and by its own reference, which stays.
  Answer set;
  CallByName(set, errors.Get(), L"SetEDesc", DISPATCH_METHOD, {Long(3), record});
  EXPECT_EQ(S_OK, set.result);
  CallByName(set, errors.Get(), L"SetEDesc", DISPATCH_METHOD, {Long(3), Variable(record)});
  EXPECT_EQ(S_OK, set.result);
  VARIANT byReference = record;
  byReference.vt = VT_BYREF | VT_RECORD;
  CallByName(set, errors.Get(), L"SetEDesc", DISPATCH_METHOD, {Long(3), byReference});
  EXPECT_EQ(S_OK, set.result);
  EXPECT_EQ(u"InvRange", TextField(record, L"ID"));

  // A record of another kind does not pass for this one.
  Answer other;
  CallByName(other, errors.Get(), L"ErrCode", DISPATCH_METHOD, {record});
  EXPECT_EQ(ErrorResult(13), other.scode);
}

TEST(RecordBorder, ArraysOfRecordsGoBothWays) {
  const auto errors = Create<_GCError>(__uuidof(GCError));
  SAFEARRAY* all = nullptr;
  ASSERT_EQ(S_OK, errors->GetErrors(&all));
  ASSERT_NE(nullptr, all);
  ASSERT_LE(10U, all->rgsabound[0].cElements);
  EXPECT_EQ(1, all->rgsabound[0].lLbound);
  EXPECT_STREQ(L"InvRange", static_cast<TErrDesc*>(all->pvData)[2].ID);
  EXPECT_EQ(S_OK, errors->SetErrors(&all));
  SafeArrayDestroy(all);

  Answer late;
  CallByName(late, errors.Get(), L"GetErrors", DISPATCH_METHOD);
  ASSERT_EQ(VT_ARRAY | VT_RECORD, late.value.value.vt);
  EXPECT_STREQ(L"InvRange", static_cast<TErrDesc*>(late.value.value.parray->pvData)[2].ID);
  Answer set;
  CallByName(set, errors.Get(), L"SetErrors", DISPATCH_METHOD, {Variable(late.value.value)});
  EXPECT_EQ(S_OK, set.result);
  LONG count = 0;
  EXPECT_EQ(S_OK, errors->NrRegisteredErrors(&count));
  EXPECT_LE(10, count);
}

}  // namespace
}  // namespace qzbase::tests
