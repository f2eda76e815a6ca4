#include <gtest/gtest.h>

#include "qzbase/runtime/WildcardPattern.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

TEST(WildcardPattern, DecidesWhatFits) {
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  const struct {
    const char16_t *text, *fits, *doesNotFit;
  } rows[] = {{u"", u"**", u"?"},           {u"a", u"a*", u""},          {u"RUN7.DAT", u"run#.dat", u"run7#.dat"},
              {u"aab", u"*ab", u"*aa"},     {u"abcbd", u"a*b?", u"a*b"}, {u"a*", u"a[*]", u"a[?]"},
              {u"B", u"[a-c]", u"[c-d]"},   {u"-", u"[a-]", u"[a-c]"},   {u"d", u"[!a-cx]", u"[!-d]"},
              {u"!", u"[!]", u"[!!]"},      {u"ab", u"a[]b", u"a[ ]b"},  {u"a]", u"a]", u"a[[]"},
              {u"\u00C4", u"\u00E4", u"a"}, {u"b-", u"[a-c-]*", u"##"}};
  for (const auto& [text, fits, doesNotFit] : rows) {
    EXPECT_TRUE(runtime::FitsWildcards(text, fits)) << ToUtf8(text) << " " << ToUtf8(fits);
    EXPECT_FALSE(runtime::FitsWildcards(text, doesNotFit)) << ToUtf8(text) << " " << ToUtf8(doesNotFit);
  }
  for (const char16_t* fault : {u"a[b", u"a[c-a]"})
    EXPECT_EQ(ErrorOf([&] { runtime::FitsWildcards(u"ab", fault); }), NumberOf(runtime::RuntimeError::InvalidPattern));
  EXPECT_FALSE(runtime::FitsWildcards(std::u16string(20'000, u'a'), u"*a*a*a*a*a*a*b"));  // soon
}

}  // namespace
}  // namespace qzbase::tests
