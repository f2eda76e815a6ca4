#include <string>

#include <gtest/gtest.h>

#include "qzbase/desc/TEntryDesc.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

constexpr std::int32_t kNotSet = NumberOf(runtime::RuntimeError::ObjectNotSet);

struct Descriptors : testing::Test {
  runtime::ScopedLocale locale{TestLocale("en-US")};
};

std::string GoldenBytes(const std::string& pName) {
  return ReadTestFile("golden/" + pName + ".bin");
}

void Fill(TVarDesc& pDesc) {
  pDesc.LetID(u"Temp");
  pDesc.LetVarType(EVTDouble);
  pDesc.LetName(u"Temperature");
  pDesc.LetUnit(u"\u00B0C");
  pDesc.LetOutFormat(u"0.00");
  pDesc.LetDescription(u"A*B");
  pDesc.LetTag(u"app");
  pDesc.LetIsFormula(true);
  pDesc.LetNrDims(255);
  pDesc.LetUserDefined(true);
}

void Fill(TCtrlDesc& pDesc) {
  pDesc.LetID(u"Temp");
  pDesc.LetCtrlType(ECTCombo);
  pDesc.LetRange(u"[0;100]");
  pDesc.LetInterval(u"0.5");
  pDesc.LetWidth(1200);
  pDesc.LetRemovable(true);
  pDesc.LetVisible(false);
  pDesc.LetLocked(true);
}

void Fill(TEntryDesc& pDesc) {
  Fill(*pDesc.VarDesc());
  Fill(*pDesc.CtrlDesc());
}

constexpr const char* kVarText =
    "ID:Temp|Name:Temperature|Unit:\u00B0C|Type:2|Format:0.00|IsFormula:True|Description:A*B|NrDims:255|Tag:app|"
    "UserDefined:True|";
constexpr const char* kCtrlText =
    "ID:Temp|Type:2|SaveMask:True|Range:[0;100]|Interval:0.5|Width:1200|Visible:False|Removable:True|Locked:True|";

// Every field in its place: in the record, in the text, in the copy.
template <class Desc>
void CheckRecord(const std::string& pName, const std::string& pText) {
  SCOPED_TRACE(pName);
  const auto desc = runtime::New<Desc>();
  Fill(*desc);
  EXPECT_EQ(ToUtf8(desc->GetString()), pText);
  CBuffer buffer;
  buffer.AddLong(1);  // gone unless the record is appended
  desc->SaveToBuffer(&buffer);
  const std::string golden = GoldenBytes(pName);
  EXPECT_EQ(buffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));

  desc->SaveToBuffer(&buffer, true);
  const auto loaded = runtime::New<Desc>();
  loaded->LoadFromBuffer(&buffer);
  EXPECT_EQ(ToUtf8(loaded->GetString()), pText);
  loaded->CopyFrom(Desc());
  EXPECT_FALSE(loaded->IsEqual(*desc));
  loaded->LoadFromBuffer(&buffer, true);  // the second record
  EXPECT_TRUE(loaded->IsEqual(*desc));
  EXPECT_EQ(buffer.NextTag(), u"");
  desc->CopyFrom(*desc);
  desc->SaveToBuffer(nullptr);
  desc->LoadFromBuffer(nullptr);
  EXPECT_EQ(ToUtf8(desc->GetCopy()->GetString()), pText);
}

TEST_F(Descriptors, SaveTheGoldenBytesAndLoadThem) {
  CheckRecord<TVarDesc>("TVarDesc", kVarText);
  CheckRecord<TCtrlDesc>("TCtrlDesc", kCtrlText);
  CheckRecord<TEntryDesc>("TEntryDesc", std::string(kCtrlText) + kVarText);
}

TEST_F(Descriptors, LoadTheFirstVersion) {
  const auto load = [](auto& pDesc, const std::string& pBytes) {
    CBuffer buffer;
    buffer.LetByteArray(Storage(Bytes(pBytes.begin(), pBytes.end())));
    pDesc.LoadFromBuffer(&buffer);
    EXPECT_EQ(buffer.NextTag(), u"");
  };
  TVarDesc var;
  load(var, GoldenBytes("TVarDesc.1"));
  EXPECT_FALSE(var.UserDefined());  // kept
  var.LetUserDefined(true);
  load(var, GoldenBytes("TVarDesc.1"));
  EXPECT_EQ(ToUtf8(var.GetString()), kVarText);

  TCtrlDesc ctrl;
  ctrl.LetRange(u"[1;2]");
  ctrl.LetInterval(u"1");
  load(ctrl, GoldenBytes("TCtrlDesc.1"));  // has no mask: range and step stay
  EXPECT_EQ(
      ToUtf8(ctrl.GetString()),
      "ID:Temp|Type:2|SaveMask:False|Range:[1;2]|Interval:1|Width:1200|Visible:False|Removable:True|Locked:True|");
  EXPECT_TRUE(ctrl.UserDefined());
  load(ctrl, GoldenBytes("TCtrlDesc"));
  EXPECT_FALSE(ctrl.UserDefined());

  // The flag goes to the value part, which loses its name.
  constexpr std::string_view kHeader = "\x03\x26\xA6\x15\xAB\x01";
  constexpr std::string_view kTag("\x01\x04\0\0\0ED#1", 9);
  TEntryDesc entry;
  load(entry, std::string(kHeader).append(kTag) + GoldenBytes("TVarDesc.1").substr(kHeader.size()) +
                  GoldenBytes("TCtrlDesc.1").substr(kHeader.size()) + std::string("\x01\x03\0\0\0\\ED", 8));
  EXPECT_TRUE(entry.UserDefined());
  EXPECT_EQ(entry.Name(), u"Temp");
}

TEST_F(Descriptors, NameThemselvesByTheirIdentifier) {
  TVarDesc desc;
  desc.LetID(u"x");
  EXPECT_EQ(desc.Name(), u"x");
  desc.LetName(u"\u00AD");  // nothing, by text comparison
  EXPECT_EQ(desc.Name(), u"x");
  EXPECT_NE(desc.GetCopy()->GetString().find(u"|Name:x|"), std::u16string::npos);
  desc.LetName(u"Name");
  CBuffer buffer;
  desc.SaveToBuffer(&buffer);
  EXPECT_EQ(ToUtf8(desc.GetString()),
            "ID:x|Name:|Unit:|Type:4|Format:|IsFormula:False|Description:|NrDims:0|Tag:|UserDefined:False|");
}

// What makes a descriptor unequal to a filled one, if anything does.
template <class Desc>
struct Difference {
  void (*change)(Desc& pLeft, Desc& pRight);
  bool equal;
};

template <class Desc, std::size_t kRows>
void CheckDifferences(const Difference<Desc> (&pRows)[kRows]) {
  for (const auto& row : pRows) {
    Desc left, right;
    Fill(left);
    Fill(right);
    row.change(left, right);
    EXPECT_EQ(left.IsEqual(right), row.equal) << &row - pRows;
  }
}

TEST_F(Descriptors, CompareWhatCounts) {
  CheckDifferences<TVarDesc>({
      {[](TVarDesc& l, TVarDesc&) { l.LetID(u"TEMP"); }, true},
      {[](TVarDesc& l, TVarDesc&) { l.LetID(u"Temp2"); }, false},
      {[](TVarDesc& l, TVarDesc&) { l.LetName(u"other"); }, false},
      {[](TVarDesc& l, TVarDesc& r) { l.LetName(u"temp"), r.LetName(u""); }, true},   // the getter's
      {[](TVarDesc& l, TVarDesc& r) { l.LetName(u""), r.LetName(u"Temp"); }, false},  // the stored one
      {[](TVarDesc& l, TVarDesc&) { l.LetUserDefined(false); }, false},
      {[](TVarDesc& l, TVarDesc& r) { l.LetUserDefined(false), r.LetUserDefined(false), l.LetName(u"other"); }, true},
      {[](TVarDesc& l, TVarDesc&) { l.LetUnit(u"\u00B0c"); }, true},
      {[](TVarDesc& l, TVarDesc&) { l.LetVarType(static_cast<QZVarType>(99)); }, false},
      {[](TVarDesc& l, TVarDesc&) { l.LetTag(u""); }, false},
  });
  CheckDifferences<TCtrlDesc>({
      {[](TCtrlDesc& l, TCtrlDesc&) { l.LetUserDefined(true); }, true},
      {[](TCtrlDesc& l, TCtrlDesc&) { l.LetRange(u""); }, false},
      {[](TCtrlDesc& l, TCtrlDesc&) { l.LetSaveMask(false); }, false},
      {[](TCtrlDesc& l, TCtrlDesc& r) { l.LetSaveMask(false), r.LetSaveMask(false), l.LetInterval(u""); }, true},
      {[](TCtrlDesc& l, TCtrlDesc&) { l.LetLocked(false); }, false},
  });
  TCtrlDesc marked;
  marked.LetUserDefined(true);
  marked.LetSaveMask(false);
  marked.LetRange(u"[0;1]");
  EXPECT_FALSE(marked.GetCopy()->UserDefined());
  EXPECT_EQ(marked.GetCopy()->Range(), u"[0;1]");  // copied, though neither saved nor compared
}

TEST_F(Descriptors, KeepWhatWasDoneBeforeAnError) {
  TVarDesc desc;
  CBuffer buffer;
  Fill(desc);
  for (const std::int32_t dims : {256, -1}) {
    desc.LetNrDims(dims);
    EXPECT_EQ(ErrorOf([&] { desc.SaveToBuffer(&buffer); }), kOverflow);
    EXPECT_EQ(ToUtf8(buffer.GetString()), "/VD#2;Temp;Temperature;\u00B0C;2;0.00;True;A*B;");
  }
  buffer.Clear();
  for (const char16_t* text : {u"new", u"name", u"unit"}) buffer.AddString(text);
  buffer.AddString(u"no type");
  EXPECT_EQ(ErrorOf([&] { desc.LoadFromBuffer(&buffer); }), NumberOf(BuiltInError::InvVarType));
  EXPECT_EQ(desc.ID() + desc.Name() + desc.Unit(), u"newnameunit");
  EXPECT_EQ(desc.VarType(), EVTDouble);
}

TEST_F(Descriptors, ShareTheirParts) {
  TEntryDesc entry;
  entry.LetID(u"Entry");
  EXPECT_EQ(entry.CtrlDesc()->ID(), u"Entry");
  entry.CtrlDesc()->LetUserDefined(true);
  EXPECT_FALSE(entry.UserDefined());
  const auto var = runtime::New<TVarDesc>();
  entry.SetVarDesc(var);
  var->LetTag(u"shared");
  EXPECT_EQ(entry.Tag(), u"shared");

  CBuffer buffer;
  const TEntryDesc whole;
  const auto expectNotSet = [&] {
    EXPECT_EQ(ErrorOf([&] { entry.LetID(u"x"); }), kNotSet);
    EXPECT_EQ(ErrorOf([&] { entry.CopyFrom(whole); }), kNotSet);
    EXPECT_EQ(ErrorOf([&] { entry.SaveToBuffer(&buffer); }), kNotSet);
    EXPECT_EQ(ErrorOf([&] { entry.LoadFromBuffer(&buffer); }), kNotSet);
    entry.SaveToBuffer(nullptr);
  };
  entry.SetCtrlDesc(nullptr);
  EXPECT_EQ(ErrorOf([&] { whole.IsEqual(entry); }), 0);  // the value parts differ
  expectNotSet();
  entry.SetCtrlDesc(runtime::New<TCtrlDesc>());
  entry.SetVarDesc(nullptr);
  expectNotSet();
}

}  // namespace
}  // namespace qzbase::tests
