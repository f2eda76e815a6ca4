#include <string>

#include <gtest/gtest.h>

#include "qzbase/os/CodePage.h"

namespace qzbase::tests {
namespace {

using os::FromCodePage;
using os::ToCodePage;

TEST(CodePage, EveryCharacterIsOneByte) {
  std::u16string all;
  for (unsigned unit = 0; unit < 0x10000; ++unit) all += static_cast<char16_t>(unit);
  const std::string bytes = ToCodePage(all);
  ASSERT_EQ(bytes.size(), all.size());
  for (std::size_t unit = 0; unit < 0x80; ++unit) EXPECT_EQ(static_cast<unsigned char>(bytes[unit]), unit);
  // What has a byte comes back from it; all else is a question mark.
  const std::u16string back = FromCodePage(bytes);
  for (std::size_t unit = 0; unit < all.size(); ++unit)
    ASSERT_TRUE(back[unit] == all[unit] || bytes[unit] == '?') << unit;
}

TEST(CodePage, EveryByteOfACharacterComesBack) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  const std::u16string text = FromCodePage(bytes);
  ASSERT_EQ(text.size(), bytes.size());
  const std::string back = ToCodePage(text);
  for (std::size_t i = 0; i < bytes.size(); ++i) EXPECT_TRUE(back[i] == bytes[i] || text[i] == u'\uFFFD') << i;
}

TEST(CodePage, OutsideCharacters) {
  EXPECT_EQ(ToCodePage(u""), "");
  EXPECT_EQ(FromCodePage(""), u"");
  EXPECT_EQ(ToCodePage(u"a\U0001F600b"), "a??b");       // a pair of surrogates is two characters
  EXPECT_EQ(ToCodePage(u"\u6F22\uFFFD\u0101"), "???");  // no near match: "a" would be another name
}

TEST(CodePage, WesternEurope) {
  if (FromCodePage("\x80") != u"\u20AC") GTEST_SKIP() << "this system has another code page";
  EXPECT_EQ(ToCodePage(u"\u20ACuro \u201Ex\u201C \u0160\u017E\u0178 \u00E4\u00FF\u00A0"),
            "\x80uro \x84x\x93 \x8A\x9E\x9F \xE4\xFF\xA0");
  EXPECT_EQ(FromCodePage("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
}

}  // namespace
}  // namespace qzbase::tests
