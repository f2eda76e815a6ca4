#include <algorithm>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/core/GCError.h"
#include "qzbase/locale/GCResource.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/text/GCConvert.h"
#include "qzbase/text/GCStrings.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::CallKind;
using runtime::RuntimeError;
using runtime::Variant;

constexpr std::int32_t kOutOfStack = NumberOf(RuntimeError::OutOfStackSpace);

// Items between ";", with "|" for NUL.
void LoadTexts(const char16_t* pMsg, const char16_t* pErrMsg) {
  const auto fill = [](CStrVector& pVector, std::u16string pItems) {
    std::replace(pItems.begin(), pItems.end(), u'|', u'\0');
    pVector.SetFromString(pItems);
  };
  CStrVector messages, errors;
  fill(messages, pMsg);
  fill(errors, pErrMsg);
  GCResource::SetLocalizedStrings(messages, &errors);
}

TEST(Strings, EveryTextIsTranslatedOnItsThread) {
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  EXPECT_EQ(GCResource::LocalizedString(u"X"), u"X");
  EXPECT_EQ(GCConvert::StringToVarType(u"Zahl"), EVTInvalid);
  LoadTexts(u"X|Wert;Bare;InvRange|Bereich;Number|Zahl;allowed range|erlaubt;To|bis;Or|oder",
            u"System|Stop|Abbruch;|EmptyText|fehlt;Format|InvRange|by ID;App|Foreign|no one's;Odd");
  const std::int32_t range = NumberOf(BuiltInError::InvRange);
  EXPECT_EQ(ErrorOf([] { ModError::RaiseBuiltIn(BuiltInError::InvRange, u"7"); }), range);
  const std::pair<std::u16string, std::u16string> rows[] = {
      {GCResource::LocalizedString(u"X", u"Y"), u"Wert"},
      {GCResource::LocalizedString(u"x", u"Y"), u"Y"},
      {GCResource::LocalizedString(u"Bare", u"Y"), u""},
      {GCError::ErrorMessage(NumberOf(BuiltInError::Stop)), u"Abbruch"},
      {GCError::ErrorMessage(NumberOf(BuiltInError::EmptyText)), u"fehlt"},
      {GCError::ErrorMessage(range), u"Bereich (7)"},
      {GCError::EDesc(3).Msg, u"by ID"},
      {GCConvert::VarTypeToString(EVTDouble), u"Zahl"},
      {GCStrings::HumanReadable(u"[1;2]"), u"erlaubt 1 bis 2"},
      {GCStrings::HumanReadable(u"{1;2}"), u"erlaubt 1 oder 2"},
  };
  for (const auto& [actual, expected] : rows) EXPECT_EQ(ToUtf8(actual), ToUtf8(expected));
  EXPECT_EQ(GCConvert::StringToVarType(u"zahl"), EVTDouble);

  // Another text for a key is refused and ends the call.
  EXPECT_EQ(ErrorOf([] { LoadTexts(u"System.Stop|Ende;X|Wert;X|W2;Last|2", u"Format|EmptyText|leer"); }),
            NumberOf(BuiltInError::LocKeyExists));
  EXPECT_EQ(runtime::LastError().description, u"X: Wert | W2");
  EXPECT_EQ(GCResource::LocalizedString(u"X") + GCResource::LocalizedString(u"Last"), u"WertLast");
  EXPECT_EQ(GCError::ErrorMessage(NumberOf(BuiltInError::Stop)), u"Ende");
  EXPECT_EQ(GCError::EDesc(4).Msg, u"fehlt");
  CStrVector last;
  last.AddValue(u"Last");
  EXPECT_EQ(ErrorOf([&] { GCResource::SetLocalizedStrings(last, nullptr); }), kObjectNotSet);
  EXPECT_EQ(GCResource::LocalizedString(u"Last"), u"");  // the texts are in
  std::thread([] { EXPECT_EQ(GCResource::LocalizedString(u"X"), u"X"); }).join();
}

// ---- The tree.

using NodeRef = runtime::Ref<CLocalGUI>;

NodeRef Node(std::u16string_view pID, const std::vector<NodeRef>& pChildren = {}) {
  auto node = New<CLocalGUI>();
  node->LetID(pID);
  for (const NodeRef& child : pChildren) node->AddChild(child);
  return node;
}

NodeRef Chain(std::int32_t pLevels) {
  NodeRef node = Node(u"leaf");
  for (std::int32_t level = 1; level < pLevels; ++level) node = Node(u"n", {node});
  return node;
}

TEST(LocalGUI, ChildrenAreFoundInOrderAndShared) {
  const NodeRef deep = Node(u"OPTION1_2");
  const NodeRef twin = Node(u"Twin", {Node(u"root")});
  const NodeRef root = Node(u"Root", {Node(u"Frame", {deep, twin}), Node(u"TWIN"), Node(u"frame")});
  EXPECT_EQ(root->FindChild(u"Option1", u"2"), deep);
  EXPECT_EQ(root->FindChild(u"twin", u""), twin);
  EXPECT_EQ(root->FindChild(u"Root", u""), twin->Child(1));
  EXPECT_EQ(root->ChildIndex(u"FRAME"), 1);
  EXPECT_EQ(root->ChildIndex(u"option1_2"), -1);
  root->LetChild(2, deep);
  EXPECT_EQ(root->Child(2), deep);
  EXPECT_EQ(ErrorOf([&] { root->AddChild(nullptr); }), NumberOf(RuntimeError::ObjectNotSet));
}

TEST(LocalGUI, CountsMakeAndDropSlots) {
  CLocalGUI node;
  EXPECT_TRUE(node.Child(1) == nullptr && node.PropertyValue(1).empty());
  node.AddProperty(u"Caption", u"A");
  node.AddProperty(u"caption", u"B");
  EXPECT_EQ(node.PropertyValueByID(u"CAPTION"), u"A");
  node.LetNrProperties(0);
  EXPECT_EQ(node.PropertyID(1), u"Caption");
  EXPECT_EQ(node.PropertyIndex(u"Caption"), -1);
  node.LetNrChildren(2);
  const NodeRef first = node.Child(1);
  node.Child(2)->LetID(u"dropped");
  node.LetNrChildren(0);
  EXPECT_EQ(ErrorOf([&] { node.Child(2); }), kSubscript);
  node.LetNrChildren(2);
  EXPECT_TRUE(node.Child(1) == first && node.Child(2)->ID().empty());
  node.LetNrChildren(-1);
  EXPECT_EQ(ErrorOf([&] { node.AddChild(first); }), kSubscript);
  const ScopedMemoryLimit limit(1'000'000);
  EXPECT_EQ(ErrorOf([&] { node.LetNrChildren(1'000'000'000); }), kOutOfMemory);
  EXPECT_EQ(node.NrChildren(), 0);
}

TEST(LocalGUI, TreesOfTooManyLevelsRaise) {
  const NodeRef loop = Node(u"loop");
  loop->AddChild(loop);
  const std::pair<NodeRef, std::int32_t> rows[] = {
      {Chain(1000), 0}, {Chain(1001), kOutOfStack}, {Chain(50'000), kOutOfStack}, {loop, kOutOfStack}};
  for (const auto& row : rows) {
    CBuffer buffer;
    EXPECT_EQ(ErrorOf([&] { row.first->SaveToBuffer(&buffer); }), row.second);
    EXPECT_EQ(ErrorOf([&] { row.first->FindChild(u"none", u""); }), row.second);
    EXPECT_EQ(ErrorOf([&] { CLocalGUI().LoadFromBuffer(&buffer); }), row.second);  // as far as it was saved
  }
  loop->LetChild(1, Node(u"leaf"));
}

std::string SavedHex(const CLocalGUI& pNode) {
  CBuffer buffer;
  pNode.SaveToBuffer(&buffer);
  return ToHex(buffer.ByteArray().Elements());
}

TEST(LocalGUI, Record) {
  const NodeRef form = Node(u"Form1", {Node(u"Frame", {Node(u"Option1_2")}), Node(u"List1")});
  form->LetPropertyType(u"Form");
  form->AddProperty(u"Caption", u"\u00DCbersicht");
  form->AddProperty(u"Tag", u"");
  form->Child(2)->AddProperty(u"List(3)", u"Blau");
  const std::string golden = ReadTestFile("golden/CLocalGUI.bin");
  EXPECT_EQ(SavedHex(*form), ToHex(Storage(Bytes(golden.begin(), golden.end())).Elements()));

  CBuffer buffer;
  form->SaveToBuffer(&buffer);
  const NodeRef loaded = Chain(3);
  loaded->AddProperty(u"gone", u"");
  loaded->LoadFromBuffer(&buffer);
  EXPECT_EQ(SavedHex(*loaded), SavedHex(*form));
  Node(u"")->SaveToBuffer(&buffer);
  loaded->LoadFromBuffer(&buffer);
  EXPECT_TRUE(loaded->Child(1) == nullptr && loaded->PropertyID(1).empty());
}

// Each node of a chain counts on all the children that the rest of the buffer allows.
TEST(LocalGUI, CountsOfNestedNodesAreTakenTogether) {
  CBuffer buffer;
  for (int level = 0; level < 900; ++level) {
    for (int text = 0; text < 2; ++text) buffer.AddString(u"");
    for (const std::int32_t count : {0, 4000}) buffer.AddLong(count);
  }
  const std::size_t before = RequestedBytes();
  EXPECT_EQ(ErrorOf([&] { CLocalGUI().LoadFromBuffer(&buffer); }), kOutOfMemory);
  EXPECT_LT(RequestedBytes() - before, std::size_t{4} * 1024 * 1024);
}

// ---- Forms.

// A form, control or collection. What is assigned is logged, and "Missing" is not there.
struct Host : runtime::Object {
  explicit Host(Variant pName) : name(std::move(pName)) {}

  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) override {
    if (pKind == CallKind::Let && pName != u"Missing") {
      log.append(pName);
      for (const Variant& argument : pArguments) log.append(u" ").append(runtime::ToText(argument));
      log += u';';
      return {};
    }
    if (pName == u"Name" && !name.IsEmpty()) return name;
    if (pName == u"Index" && !index.IsEmpty()) return index;
    if (pName == u"Controls" && controls) return controls;
    if (pName == u"Count") return static_cast<std::int32_t>(items.size());
    if (pName == itemName) return items.at(static_cast<std::size_t>(runtime::ToLong(pArguments[0])));
    return Object::Invoke(pName, pKind, pArguments);
  }

  Variant name, index;
  runtime::Ref<Host> controls;
  std::vector<Variant> items;
  std::u16string itemName, log;
};

TEST(Forms, SetGUIPropertyTakesAnIndex) {
  const std::pair<std::u16string, std::string> rows[] = {
      {u"Caption", "Caption v;"}, {u"List(3)", "List 3 v;"},    {u"List(2.5)x", "List 2 v;"},
      {u"List( 3x", "List 3 v;"}, {u"List(abc)", "List 0 v;"},  {u"L(-1)(2)", "L -1 v;"},
      {u"List(1E10)", "error 6"}, {u"Missing(1)", "error 438"},
  };
  for (const auto& row : rows) {
    Host control(u"C");
    const std::int32_t error = ErrorOf([&] { GCResource::SetGUIProperty(control, row.first, u"v"); });
    EXPECT_EQ(error == 0 ? ToUtf8(control.log) : "error " + std::to_string(error), row.second);
  }
}

TEST(Forms, LocalizeFormGoesOnBehindEveryFailure) {
  const NodeRef list = Node(u"list");
  const NodeRef option = Node(u"Option_2");
  const NodeRef nameless = Node(u"");
  const NodeRef main = Node(u"main", {nameless, Node(u"Frame", {list, option})});
  nameless->AddProperty(u"Caption", u"not for controls without a name");
  main->AddProperty(u"Caption", u"Haupt");
  list->AddProperty(u"Missing", u"x");
  list->AddProperty(u"List(0)", u"Rot");
  option->AddProperty(u"Caption", u"Zwei");
  GCResource::LocalizedGUI()->AddChild(main);

  for (const std::u16string_view itemName : {u"", u"Item"}) {
    const auto form = New<Host>(u"Main");
    const auto first = New<Host>(u"List");
    const auto second = New<Host>(u"Option");
    const auto third = New<Host>(Variant());
    second->index = 2;
    form->controls = New<Host>(Variant());
    form->controls->itemName = itemName;
    form->controls->items = {nullptr, u"no control", first, New<Host>(u"Option"), third, second};
    GCResource::LocalizeForm(form.get());
    EXPECT_EQ(ToUtf8(form->log + u"/" + first->log + u"/" + second->log), "Caption Haupt;/List 0 Rot;/Caption Zwei;");
    EXPECT_EQ(third->log, u"");
  }
  GCResource::LocalizeForm(nullptr);
}

}  // namespace
}  // namespace qzbase::tests
