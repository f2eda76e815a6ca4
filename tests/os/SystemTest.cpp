// The system's small services: code page, year, locales and message boxes.
#include <chrono>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "qzbase/os/Clock.h"
#include "qzbase/os/CodePage.h"
#include "qzbase/os/MessageBox.h"
#include "qzbase/os/MessageDisplay.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using os::FromCodePage;
using os::NamedLocaleRules;
using os::ToCodePage;

TEST(CodePage, EveryCharacterIsOneByteAndComesBackFromIt) {
  std::u16string all;
  for (unsigned unit = 0; unit < 0x10000; ++unit) all += static_cast<char16_t>(unit);
  const std::string bytes = ToCodePage(all);
  ASSERT_EQ(bytes.size(), all.size());
  const std::u16string back = FromCodePage(bytes);
  for (std::size_t unit = 0; unit < all.size(); ++unit) {
    const auto byte = static_cast<unsigned char>(bytes[unit]);
    ASSERT_TRUE(unit < 0x80 ? byte == unit : back[unit] == all[unit] || byte == '?') << unit;
  }
  std::string each;
  for (int byte = 0; byte < 256; ++byte) each += static_cast<char>(byte);
  const std::u16string text = FromCodePage(each);
  ASSERT_EQ(text.size(), each.size());
  for (std::size_t i = 0; i < each.size(); ++i)
    EXPECT_TRUE(ToCodePage(text)[i] == each[i] || text[i] == u'\uFFFD') << i;
  // A pair of surrogates is two characters, and there is no near match: "a" would be another name.
  EXPECT_EQ(ToCodePage(u"a\U0001F600b\u6F22\uFFFD\u0101"), "a??b???");
  EXPECT_EQ(ToCodePage(u"") + ToUtf8(FromCodePage("")), "");
}

TEST(CodePage, WesternEurope) {
  if (FromCodePage("\x80") != u"\u20AC") GTEST_SKIP() << "this system has another code page";
  EXPECT_EQ(ToCodePage(u"\u20ACuro \u201Ex\u201C \u0160\u017E\u0178 \u00E4\u00FF\u00A0"),
            "\x80uro \x84x\x93 \x8A\x9E\x9F \xE4\xFF\xA0");
  EXPECT_EQ(FromCodePage("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
}

// The local year is the year of some moment within a day of now.
TEST(Clock, CurrentYear) {
  using namespace std::chrono;
  const auto yearIn = [](days pDays) {
    return static_cast<int>(year_month_day(floor<days>(system_clock::now() + pDays)).year());
  };
  EXPECT_TRUE(os::CurrentYear() == yearIn(days(-1)) || os::CurrentYear() == yearIn(days(1)));
}

// The system's locales equal the table in every field, on all systems.
TEST(LocaleRules, AgreeWithTheTable) {
  for (const std::string_view name : kLocaleNames) EXPECT_EQ(NamedLocaleRules(name), TestLocale(name)) << name;
  for (const std::string_view name : {"", "xx-unknown", "no such locale", "\xC3\xA4"})
    EXPECT_EQ(NamedLocaleRules(name), os::LocaleRules()) << name;
  const os::LocaleRules hindi = NamedLocaleRules("hi-IN");
  EXPECT_TRUE(hindi.firstGroup == 3 && hindi.furtherGroups == 2);
}

TEST(MessageBox, TheHookOfTheThreadTakesItsPlace) {
  std::u16string seen;
  os::SetMessageHook([&](auto pText, auto pCaption) { (((seen += pCaption) += u"/") += pText) += u";"; });
  os::ShowCriticalMessage(u"T1", u"C1");
  std::thread([&] {
    os::SetMessageHook([&](auto pText, auto) { (seen += u"other/") += pText; });
    os::ShowCriticalMessage(u"T2;", u"C2");
  }).join();
  os::ShowCriticalMessage(u"T3", u"C3");
  // A hook may take itself away.
  os::SetMessageHook([&](auto, auto) {
    os::SetMessageHook([&](auto, auto) { seen += u"second"; });
    seen += u"first ";
  });
  os::ShowCriticalMessage(u"a", u"b");
  os::ShowCriticalMessage(u"a", u"b");
  os::SetMessageHook({});
  EXPECT_EQ(seen, u"C1/T1;other/T2;C3/T3;first second");
}

TEST(MessageBox, WithoutADesktopOneLineIsPrinted) {
  testing::internal::CaptureStderr();
  os::PrintMessage(u"Gr\u00F6\u00DFe", u"Caption");
  EXPECT_EQ(testing::internal::GetCapturedStderr().substr(0, 16), ToUtf8(u"Caption: Gr\u00F6\u00DFe"));
}

}  // namespace
}  // namespace qzbase::tests
