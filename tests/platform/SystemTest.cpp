#include <chrono>
#include <string>
#include <thread>
#include <tuple>

#include <gtest/gtest.h>

#include "qzbase/os/Events.h"
#include "qzbase/platform/GCBase.h"
#include "qzbase/platform/SystemInfo.h"
#include "qzbase/platform/TimeStamps.h"
#include "qzbase/platform/Waits.h"
#include "qzbase/runtime/Convert.h"
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

TEST(Factories, ShareNothingWithTheirArguments) {
  const auto changed = runtime::New<TVarDesc>();
  changed->LetID(u"V");
  changed->LetUnit(u"m");
  const auto entry = GCBase::EntryDesc(changed.get());
  changed->LetID(u"W");
  EXPECT_EQ(entry->VarDesc()->ID() + entry->VarDesc()->Unit() + entry->CtrlDesc()->ID(), u"Vm");
  const auto control = GCBase::NewFormulaDesc(u"F", u"N", EVTLong, u"A+1")->CtrlDesc();
  EXPECT_EQ(GCBase::EntryDesc(nullptr, control.get())->CtrlDesc()->GetString(), control->GetString());
}

TEST(SystemServices, TextsOfGuids) {
  const TGuid guid{-1, -2, 255, {0, 255, 0, 255, 1, 16, 160, 0}};
  EXPECT_EQ(GCBase::GUIDString(guid), u"{FFFFFFFF-FFFE-00FF-00FF-00FF0110A000}");
  EXPECT_NE(GCBase::GetGUID(), GCBase::GetGUID());
  EXPECT_EQ(GCBase::GetGUIDString()[15], u'4');  // random ones
}

TEST(SystemServices, BytesAreEqualWithEqualBounds) {
  const Array<std::uint8_t> bytes(0, FromHex("01 02 03 04")),
      others[] = {{1, bytes.Elements()}, {0, FromHex("01 02 03 05")}, {0, FromHex("01 02 03")}, {}};
  for (const auto& other : others) EXPECT_FALSE(GCBase::IsBinaryEqual(bytes, other));
  EXPECT_TRUE(GCBase::IsBinaryEqual(bytes, bytes));
  EXPECT_TRUE(GCBase::IsBinaryEqual({3, 2}, {3, 2}));  // allocated, without bytes
  EXPECT_FALSE(GCBase::IsBinaryEqual({}, {}) || GCBase::IsBinaryEqual({}, {0, -1}));
}

TEST(SystemServices, TextsOfSystems) {
  using os::Platform;
  const std::pair<std::optional<os::SystemVersion>, const char*> rows[] = {
      {std::nullopt, "undefined||"},
      {{{Platform::Win32s, 3, 1, u"x"}}, "Win32s||"},
      {{{Platform::Windows95, 4, 0, u"x"}}, "Win95|4.00|"},
      {{{Platform::Windows95, 4, 10, u"x"}}, "Win98|4.10|"},
      {{{Platform::WindowsNt, 5, 1, u"Service Pack 2"}}, "WinNT|5.01|Service Pack 2"},
      {{{Platform::Linux, 6, 1, u"x"}}, "undefined||"}};
  for (const auto& [system, expected] : rows) {
    std::u16string id = u"spoiled", version = u"spoiled", service = u"spoiled";
    ModBase::FullOSInfo(system, id, version, service);
    EXPECT_EQ(ToUtf8(id) + "|" + ToUtf8(version) + "|" + ToUtf8(service), expected);
  }
}

TEST(SystemServices, TheClockCountsOnAndRoundsHalfToEven) {
  const std::pair<std::uint32_t, std::int32_t> rows[] = {{5, 0},
                                                         {6, 1},
                                                         {15, 2},
                                                         {25, 2},
                                                         {2147483647, 214748365},
                                                         {2147483648, 214748365},  // negative now
                                                         {4294967290, 429496729},
                                                         {4294967291, 0}};
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
    EXPECT_FALSE(GCBase::SystemWaiting());
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
  GCBase::LetStopFlag(true);
  GCBase::SleepSecs(0.04);                          // without a look at the flag
  EXPECT_GE(GCBase::TimeInCentiSecs(), start + 6);  // the ends are rounded
  EXPECT_EQ(ErrorOf([] { GCBase::WaitSecs(21474836.48); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { GCBase::SleepSecs(2147483.648); }), kOverflow);
  EXPECT_EQ(rounds, 0);
}

TEST_F(Waits, EndWhenAnEventSetsTheStopFlagOrRaises) {
  EXPECT_EQ(GCBase::CheckStopFlag(), 0);
  inThird = [] { GCBase::LetStopFlag(true); };
  GCBase::WaitUntil(2147483647);
  GCBase::WaitSecs(60);
  EXPECT_EQ(rounds, 3);  // the flag was still set
  EXPECT_EQ(GCBase::CheckStopFlag(), NumberOf(BuiltInError::Stop));
  EXPECT_EQ(GCBase::ErrStop(), ModError::IndexOf(BuiltInError::Stop));
  GCBase::LetStopFlag(false);
  rounds = 0;
  inThird = [] { ModError::RaiseBuiltIn(BuiltInError::Stop); };
  EXPECT_EQ(ErrorOf([] { GCBase::WaitSecs(60); }), NumberOf(BuiltInError::Stop));
}

TEST(SystemServices, TheDebugModeIsTheThreadsOwn) {
  GCBase::LetDebugMode(-7);
  std::thread([] { EXPECT_EQ(GCBase::DebugMode(), 0); }).join();
  EXPECT_EQ(GCBase::DebugMode(), -7);
  GCBase::LetDebugMode(0);
}

TEST(TimeStamps, AddTheBiasOfTheSeason) {
  using Season = os::ZoneBias::Season;
  const std::pair<std::optional<os::ZoneBias>, Date> rows[] = {
      {std::nullopt, {}},
      {{{Season::Unknown, -60, 7, -60}}, MakeDate({2024, 2, 29, 22, 30, 15})},
      {{{Season::Standard, -60, 7, -60}}, MakeDate({2024, 2, 29, 22, 37, 15})},
      {{{Season::Daylight, -60, 7, -60}}, MakeDate({2024, 2, 29, 21, 30, 15})},
      {{{Season::Unknown, 300, 0, 0}}, MakeDate({2024, 3, 1, 4, 30, 15})}};
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
