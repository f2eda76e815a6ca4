// 8-bit text and UTF-8.
#include <gtest/gtest.h>

#include "qzbase/os/CodePage.h"
#include "qzbase/os/Utf8.h"

namespace qzbase::tests {
namespace {

TEST(CodePage, EveryByteComesBackOrIsNoCharacter) {
  for (int i = 0; i < 256; ++i) {
    const std::string byte(1, static_cast<char>(i));
    const std::u16string text = os::FromCodePage(byte);
    ASSERT_EQ(text.size(), 1u) << i;
    EXPECT_EQ(os::ToCodePage(text), text == u"\uFFFD" ? "?" : byte) << i;
  }
}

TEST(CodePage, HasOneByteForEachCharacterWhateverItIs) {
  EXPECT_EQ(os::ToCodePage(u"VE#1"), "VE#1");
  EXPECT_EQ(os::ToCodePage(u"a\u20AC\u00E4"), "a\x80\xE4");
  EXPECT_EQ(os::ToCodePage(u"\u4E2D\U0001F600b"), "???b");
}

TEST(Utf8, GoesBothWaysAndReplacesWhatIsIllFormed) {
  const std::u16string text = u"a\u00E9\u20AC\U0001F600";
  EXPECT_EQ(os::ToUtf8(text), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(os::FromUtf8(os::ToUtf8(text)), text);
  EXPECT_EQ(os::ToUtf8(std::u16string(1, char16_t{0xD800}) + u"x"), "\xEF\xBF\xBDx");
  // A lone tail, an overlong form, a surrogate, a cut sequence, a point beyond the last.
  EXPECT_EQ(os::FromUtf8("\x80z\xC0\xAFz\xED\xA0\x80z\xE2\x82"),
            u"\uFFFDz\uFFFD\uFFFDz\uFFFD\uFFFD\uFFFDz\uFFFD\uFFFD");
  EXPECT_EQ(os::FromUtf8("\xF5\x80\x80\x80").front(), u'\uFFFD');
}

}  // namespace
}  // namespace qzbase::tests
