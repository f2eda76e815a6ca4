#include <chrono>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "qzbase/os/Events.h"
#include "qzbase/platform/GCBase.h"
#include "qzbase/platform/SystemInfo.h"
#include "qzbase/platform/TimeStamps.h"
#include "qzbase/platform/Waits.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Array;
using runtime::Date;
using runtime::MakeDate;
using runtime::RuntimeError;
using runtime::Variant;

TEST(SystemServices, TextsOfGuids) {
  const std::pair<TGuid, const char16_t*> rows[] = {
      {{}, u"{00000000-0000-0000-0000-000000000000}"},
      {{0x0A1B2C3D, 1, 0xFF, {10, 11, 12, 13, 14, 15, 16, 17}}, u"{0A1B2C3D-0001-00FF-0A0B-0C0D0E0F1011}"},
      {{-1, -2, -32768, {0, 255, 0, 255, 1, 16, 160, 0}}, u"{FFFFFFFF-FFFE-8000-00FF-00FF0110A000}"},
  };
  for (const auto& [guid, text] : rows) EXPECT_EQ(GCBase::GUIDString(guid), text);
  EXPECT_NE(GCBase::GetGUID(), GCBase::GetGUID());
  EXPECT_EQ(GCBase::GetGUIDString()[15], u'4');  // random ones
}

TEST(SystemServices, BytesAreEqualWithEqualBounds) {
  const struct {
    Array<std::uint8_t> left, right;
    bool equal;
  } rows[] = {
      {{0, FromHex("01 02 03 04")}, {0, FromHex("01 02 03 04")}, true},
      {{0, FromHex("01 02 03 04")}, {1, FromHex("01 02 03 04")}, false},
      {{0, FromHex("01 02 03 04")}, {0, FromHex("01 02 03 05")}, false},
      {{0, FromHex("01 02 03")}, {0, FromHex("01 02 03 04")}, false},
      {{3, 2}, {3, 2}, true},  // allocated, without bytes
      {{}, {}, false},
      {{}, {0, -1}, false},
  };
  for (const auto& [left, right, equal] : rows) EXPECT_EQ(GCBase::IsBinaryEqual(left, right), equal);
}

TEST(SystemServices, TextsOfSystems) {
  using os::Platform;
  const struct {
    std::optional<os::SystemVersion> system;
    const char* expected;
  } rows[] = {
      {std::nullopt, "undefined||"},
      {{{Platform::Win32s, 3, 1, u"x"}}, "Win32s||"},
      {{{Platform::Windows95, 4, 0, u"x"}}, "Win95|4.00|"},
      {{{Platform::Windows95, 4, 10, u"x"}}, "Win98|4.10|"},
      {{{Platform::WindowsNt, 5, 1, u"Service Pack 2"}}, "WinNT|5.01|Service Pack 2"},
      {{{Platform::Linux, 6, 1, u"x"}}, "undefined||"},
  };
  for (const auto& [system, expected] : rows) {
    std::u16string id = u"spoiled", version = u"spoiled", service = u"spoiled";
    ModBase::FullOSInfo(system, id, version, service);
    EXPECT_EQ(ToUtf8(id) + "|" + ToUtf8(version) + "|" + ToUtf8(service), expected);
  }
}

TEST(SystemServices, SizesOfValues) {
  const runtime::ScopedLocale locale(TestLocale("de-DE"));
  const std::pair<Variant, std::int32_t> rows[] = {{u"", 4}, {u"123", 7}, {123, 3}, {-1.5, 4}, {true, 4}, {{}, 0}};
  for (const auto& [value, size] : rows) EXPECT_EQ(GCBase::SizeOf(value), size);
  EXPECT_EQ(ErrorOf([] { GCBase::SizeOf(runtime::Null{}); }), NumberOf(RuntimeError::InvalidUseOfNull));
  EXPECT_EQ(ErrorOf([] { GCBase::SizeOf(nullptr); }), NumberOf(RuntimeError::ObjectNotSet));
  EXPECT_EQ(ErrorOf([] { GCBase::SizeOf(runtime::New<GCBase>()); }), kTypeMismatch);
}

TEST(SystemServices, TheClockCountsOnAndRoundsHalfToEven) {
  const std::pair<std::uint32_t, std::int32_t> rows[] = {
      {0, 0},
      {5, 0},
      {6, 1},
      {15, 2},
      {25, 2},
      {2147483647, 214748365},
      {2147483648, 214748365},  // negative from here on
      {4294967280, 429496728},
      {4294967290, 429496729},
      {4294967291, 0},
  };
  for (const auto& [ticks, centiSecs] : rows) EXPECT_EQ(ModBase::CentiSecsOf(ticks), centiSecs) << ticks;
}

// Counts the rounds of a wait; the third one runs `inThird`.
struct Waits : testing::Test {
  void SetUp() override {
    os::SetEventHook([this] {
      EXPECT_TRUE(GCBase::SystemWaiting());
      if (++rounds == 3) inThird();
    });
  }
  void TearDown() override {
    os::SetEventHook({});
    GCBase::LetStopFlag(false);
  }

  int rounds = 0;
  std::function<void()> inThird = [] {};
};

TEST_F(Waits, EndInTime) {
  const std::int32_t start = GCBase::TimeInCentiSecs();
  GCBase::WaitSecs(0.03);
  EXPECT_GE(GCBase::TimeInCentiSecs(), start + 3);
  rounds = 0;
  GCBase::WaitSecs(0);
  GCBase::WaitSecs(-1);
  GCBase::WaitUntil(GCBase::TimeInCentiSecs());
  GCBase::SleepSecs(-1);
  GCBase::SleepSecs(0.001);
  EXPECT_EQ(ErrorOf([] { GCBase::WaitSecs(21474836.48); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { GCBase::SleepSecs(2147483.648); }), kOverflow);
  EXPECT_EQ(rounds, 0);
  EXPECT_FALSE(GCBase::SystemWaiting());
}

TEST_F(Waits, SleepDoesNotLookAtTheStopFlag) {
  GCBase::LetStopFlag(true);
  const std::int32_t start = GCBase::TimeInCentiSecs();
  GCBase::SleepSecs(0.04);
  EXPECT_GE(GCBase::TimeInCentiSecs(), start + 3);  // both ends are rounded
  EXPECT_EQ(rounds, 0);
}

TEST(SystemServices, TheDebugModeIsTheThreadsOwn) {
  GCBase::LetDebugMode(-7);
  std::thread([] { EXPECT_EQ(GCBase::DebugMode(), 0); }).join();
  EXPECT_EQ(GCBase::DebugMode(), -7);
  GCBase::LetDebugMode(0);
}

TEST_F(Waits, EndWhenAnEventSetsTheStopFlagOrRaises) {
  constexpr std::int32_t kNever = 2147483647;
  EXPECT_EQ(GCBase::CheckStopFlag(), 0);
  inThird = [] { GCBase::LetStopFlag(true); };
  GCBase::WaitUntil(kNever);
  EXPECT_EQ(rounds, 3);
  GCBase::WaitSecs(60);
  EXPECT_EQ(rounds, 3);  // the flag was still set
  EXPECT_EQ(GCBase::CheckStopFlag(), NumberOf(BuiltInError::Stop));
  EXPECT_EQ(ModError::Registry().Entry(GCBase::ErrStop().Value).Msg, u"User interrupt");
  GCBase::LetStopFlag(false);
  rounds = 0;
  inThird = [] { ModError::RaiseBuiltIn(BuiltInError::Stop); };
  EXPECT_EQ(ErrorOf([] { GCBase::WaitSecs(60); }), NumberOf(BuiltInError::Stop));
  EXPECT_FALSE(GCBase::SystemWaiting());
}

TEST(TimeStamps, AddTheBiasOfTheSeason) {
  using Season = os::ZoneBias::Season;
  const struct {
    std::optional<os::ZoneBias> zone;
    Date universal;
  } rows[] = {
      {std::nullopt, {}},
      {{{Season::Unknown, -60, 7, -60}}, MakeDate({2024, 2, 29, 22, 30, 15})},
      {{{Season::Standard, -60, 7, -60}}, MakeDate({2024, 2, 29, 22, 37, 15})},
      {{{Season::Daylight, -60, 7, -60}}, MakeDate({2024, 2, 29, 21, 30, 15})},
      {{{Season::Unknown, 300, 0, 0}}, MakeDate({2024, 3, 1, 4, 30, 15})},
  };
  for (const auto& [zone, universal] : rows) {
    const TTimeStamp stamp = ModBase::TimeStampOf({2024, 2, 29, 23, 30, 15}, zone);
    EXPECT_EQ(stamp.LocalTime, MakeDate({2024, 2, 29, 23, 30, 15}));
    EXPECT_EQ(stamp.UniversalTime, universal);
  }
  // The time of day counts upward before day 0 too.
  EXPECT_EQ(ModBase::DateOf({1899, 12, 28, 6, 0, 0}).days, -2.25);
  EXPECT_EQ(ModBase::DateOf({}), Date());
  constexpr double kEpoch = 25569;  // 1970-01-01
  const std::chrono::duration<double, std::ratio<86400>> now = std::chrono::system_clock::now().time_since_epoch();
  EXPECT_NEAR(GCBase::NewTimeStamp().UniversalTime.days, kEpoch + now.count(), 61.0 / 86400);
}

}  // namespace
}  // namespace qzbase::tests
