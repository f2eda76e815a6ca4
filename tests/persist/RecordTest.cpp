#include <utility>

#include <gtest/gtest.h>

#include "qzbase/persist/Record.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

TEST(Records, HaveTheVersionOfTheDigitsInTheirTag) {
  const std::pair<const char16_t*, std::int32_t> rows[] = {{u"VD#2", 2},
                                                           {u"VD#12#3", 12},
                                                           {u"VD", 0},
                                                           {u"#", 0},
                                                           {u"VD#x1", 0},
                                                           {u"VD# 1", 0},
                                                           {u"VD#-1", 0},
                                                           {u"VD#9E9", 9},
                                                           {u"#1.9", 1},
                                                           {u"VD#1E999", 1},
                                                           {u"#2147483647", 2147483647},
                                                           {u"#2147483648", 2147483647},
                                                           {u"#99999999999999999999999", 2147483647}};
  for (const auto& [tag, version] : rows) EXPECT_EQ(TagVersion(tag), version) << ToUtf8(tag);
}

}  // namespace
}  // namespace qzbase::tests
