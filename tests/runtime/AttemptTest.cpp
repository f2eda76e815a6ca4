#include <limits>
#include <new>
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/runtime/Attempt.h"
#include "qzbase/runtime/Positions.h"

namespace qzbase::runtime {
namespace {

TEST(Attempt, TellsHowTheCallEndedAndKeepsTheLastError) {
  const struct {
    void (*call)();
    std::int32_t error;
  } rows[] = {
      {[] {}, 0},
      {[] {
         SetLastError({2, u"a host's own", u""});
       },
       0},
      {[] { Raise(RuntimeError::Overflow); }, 6},
      {[] {
         Raise({1003, u"Server", u"text"});
       },
       1003},
      {[] {
         Raise({0, u"", u"without a number"});
       },
       51},
      {[] { throw std::bad_alloc(); }, 7},
      {[] { throw std::length_error(""); }, 7},
      {[] { throw std::runtime_error("of another library"); }, 51},
  };
  for (const auto& [call, error] : rows) {
    SetLastError({1, u"source", u"shown"});
    const auto nested = [call = call] {
      if (!Attempt(call)) Attempt([] { Raise(RuntimeError::TypeMismatch); });
      EXPECT_EQ(LastError().number, 1);
      call();
      return 5;
    };
    EXPECT_EQ(Attempt(nested), error == 0 ? std::optional(5) : std::nullopt);
    EXPECT_EQ(Attempt(call).Error(), error);
    EXPECT_EQ(LastError().source, u"source");
  }
  ClearLastError();
  Attempt(rows[2].call);
  EXPECT_EQ(LastError().number, 0);
}

TEST(Positions, EndAlsoAtTheEndsOf32Bits) {
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  const struct {
    std::int32_t first, last;
    std::vector<std::int32_t> expected;
  } rows[] = {{1, 3, {1, 2, 3}}, {1, 0, {}},          {kMost, kMost, {kMost}},   {kMost - 1, kMost, {kMost - 1, kMost}},
              {1, kLeast, {}},   {kMost, kLeast, {}}, {kLeast, kLeast, {kLeast}}};
  for (const auto& [first, last, expected] : rows) {
    std::vector<std::int32_t> walked;
    for (const std::int32_t position : Positions(first, last)) walked.push_back(position);
    EXPECT_EQ(walked, expected) << first << " to " << last;
  }
}

}  // namespace
}  // namespace qzbase::runtime
