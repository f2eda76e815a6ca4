#include <algorithm>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/os/MessageBox.h"
#include "qzbase/platform/GCBase.h"
#include "qzbase/runtime/Convert.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::CallKind;
using runtime::RuntimeError;
using runtime::Variant;

// A control of a host: the properties that it was given, and a list of lines if it has a height.
class Control : public runtime::Object {
 public:
  explicit Control(std::map<std::u16string, Variant> pProperties = {}) : properties(std::move(pProperties)) {}

  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) override {
    const bool isList = properties.contains(u"Height");
    if (isList && pName == u"ListCount") return static_cast<std::int32_t>(lines.size());
    if (isList && pName == u"AddItem") return lines.push_back(runtime::ToText(pArguments[0])), Variant();
    if (isList && pName == u"RemoveItem") return lines.erase(lines.begin() + runtime::ToLong(pArguments[0])), Variant();
    const auto property = properties.find(std::u16string(pName));
    if (property == properties.end()) runtime::Raise(RuntimeError::MemberNotFound);
    if (pKind == CallKind::Let) property->second = pArguments[0];
    return property->second;
  }

  Variant& operator[](const char16_t* pName) { return properties.at(pName); }

  std::map<std::u16string, Variant> properties;
  std::vector<std::u16string> lines;
};

runtime::Ref<Control> FontOf(const char16_t* pName, Variant pSize) {
  using Properties = std::map<std::u16string, Variant>;
  return New<Control>(Properties{{u"Name", pName},
                                 {u"Size", pSize},
                                 {u"Bold", true},
                                 {u"Italic", false},
                                 {u"Underline", true},
                                 {u"Strikethrough", std::int16_t{-1}}});
}

// A font that is called by the numbers of its members, which it notes.
struct NumberedFont : Control {
  using Control::Control;
  Variant InvokeNumbered(const runtime::NumberedMember& pMember, CallKind pKind,
                         std::span<Variant> pArguments) override {
    called += std::to_string(pMember.number) + (pKind == CallKind::Let ? "=" : " ");
    return Control::InvokeNumbered(pMember, pKind, pArguments);
  }
  std::string called;
};

TEST(Display, HooksAndBoxes) {
  std::u16string boxes;
  os::SetMessageHook([&](auto pText, auto pCaption) { ((boxes += pText) += u'/') += pCaption; });
  const auto control = New<Control>(std::map<std::u16string, Variant>{{u"Caption", u"-"}, {u"Text", u"-"}});
  using Text = const char16_t*;
  const std::tuple<runtime::Ref<runtime::Object>, std::int32_t, Text, Text, Text, Text> rows[] = {
      {control, 1, u"a", u"a", u"-", u""},       {control, 2, u"b", u"a", u"b", u""},
      {control, 1, u"", u"", u"b", u""},         {nullptr, 1, u"c", u"", u"b", u""},
      {control, 0, u"", u"", u"b", u""},         {control, 0, u"d", u"", u"b", u"d/QZBase"},
      {New<Control>(), 2, u"e", u"", u"b", u""},
  };  // has no such property
  for (const auto isError : {true, false}) {
    (isError ? GCBase::SetMsgDisplay : GCBase::SetErrorDisplay)(nullptr, 1);  // the other one shows nothing
    (*control)[u"Caption"] = (*control)[u"Text"] = u"-";
    for (const auto& [display, type, text, caption, property, box] : rows) {
      boxes.clear();
      (isError ? GCBase::SetErrorDisplay : GCBase::SetMsgDisplay)(display, type);
      (isError ? GCBase::DisplayError : GCBase::DisplayMessage)(text);
      EXPECT_EQ(runtime::ToText((*control)[u"Caption"]), caption) << ToUtf8(text);
      EXPECT_EQ(runtime::ToText((*control)[u"Text"]), property) << ToUtf8(text);
      EXPECT_EQ(boxes, box);
    }
  }
  os::SetMessageHook({});
}

TEST(Display, DebugLines) {
  const Variant font = FontOf(u"tahoma", 11.25);
  const std::tuple<std::map<std::u16string, Variant>, std::int32_t, std::int32_t, std::int32_t, std::int32_t> rows[] = {
      {{{u"Height", 1000.4}}, 0, 1, 1, 0},  // 4 lines are visible
      {{{u"Height", 1000.4}}, 0, 5, 5, 1},
      {{{u"Height", 1000}, {u"Font", font}}, 0, 5, 5, 3},  // 2 lines
      {{{u"Height", 1000}, {u"FontName", u"TAHOMA"}, {u"FontSize", 11.5}}, -1, 5, 5, 3},
      {{{u"Height", 1000}, {u"Font", FontOf(u"Tahoma", 11)}}, 0, 5, 5, 1},
      {{{u"Height", 1000}, {u"Font", FontOf(u"Tahoma", 12)}}, 0, 5, 5, 1},
      {{{u"Height", 1000}, {u"Font", FontOf(u"Arial", 11.5)}}, 0, 5, 5, 1},
      {{{u"Height", 1000}}, 3, 9, 4, 0},  // dropped before the new one comes
      {{{u"Height", 1000}}, 0, 305, 301, 297},
      {{{u"Height", u"x"}}, 2, 5, 3, 0},  // only what fails is left out
      {{}, 0, 1, 0, 0}};                  // no list at all
  for (const auto& [properties, maxLines, lines, kept, top] : rows) {
    const auto list = New<Control>(properties);
    list->properties[u"TopIndex"] = 0;
    GCBase::SetDbgWindow(list, maxLines);
    for (std::int32_t i = 1; i <= lines; ++i) GCBase::ShowDebugLine(i == lines ? u"last" : u"line");
    EXPECT_EQ(static_cast<std::int32_t>(list->lines.size()), kept);
    EXPECT_EQ(runtime::ToLong((*list)[u"TopIndex"]), top) << lines;
    EXPECT_EQ(kept == 0 ? u"last" : list->lines.back(), u"last");
  }
  GCBase::SetDbgWindow(nullptr);
  GCBase::ShowDebugLine(u"to nobody");
}

TEST(Fonts, GoIntoRecordsAndBack) {
  const auto font = FontOf(u"Arial", 8.5);
  EXPECT_EQ(GCBase::FontStyle(*font, 255), (TFontStyle{u"Arial", 8, 13, 255}));
  (*font)[u"Size"] = 9.5;
  EXPECT_EQ(GCBase::LabelStyle(*font), (TLabelStyle{u"Arial", 10, 13, 0, 16777215, 1, 0, 0}));
  EXPECT_EQ(GCBase::LabelStyle(*font, 1, 2, 3, 4, 5), (TLabelStyle{u"Arial", 10, 13, 1, 5, 2, 3, 4}));
  GCBase::SetFontFromFontStyle(*font, {u"Courier", 7, 2, 255});
  EXPECT_EQ(GCBase::FontStyle(*font), (TFontStyle{u"Courier", 7, 2, 0}));
  GCBase::SetFontFromLabelStyle(*font, {u"Tahoma", 10.5, 5, 1, 2, 3, 4, 5});
  EXPECT_EQ(GCBase::FontStyle(*font), (TFontStyle{u"Tahoma", 10, 5, 0}));
  NumberedFont numbered(font->properties);
  EXPECT_EQ(GCBase::FontStyle(numbered), GCBase::FontStyle(*font));
  GCBase::SetFontFromFontStyle(numbered, {u"Courier", 7, 2, 255});
  EXPECT_EQ(numbered.called, "0 2 3 4 5 6 0=2=3=4=5=6=");
  EXPECT_EQ(ErrorOf([&] { GCBase::SetFontFromLabelStyle(*font, {u"", 3e9, 0, 0, 0, 0, 0, 0}); }), kOverflow);
  EXPECT_EQ(ErrorOf([&] { GCBase::FontStyle(*New<Control>()); }), NumberOf(RuntimeError::MemberNotFound));
}

}  // namespace
}  // namespace qzbase::tests
