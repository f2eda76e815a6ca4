// Members that raise nothing leave the thread's last error as it was, whatever fails inside and whatever a host has
// done to the table of errors: it may be the very error that is being shown.
#include <cmath>
#include <limits>
#include <thread>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/core/GCError.h"
#include "qzbase/core/GCMath.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CVector.h"
#include "qzbase/locale/GCResource.h"
#include "qzbase/os/MessageBox.h"
#include "qzbase/platform/GCBase.h"
#include "qzbase/text/GCConvert.h"
#include "qzbase/text/GCStrings.h"

namespace qzbase::tests {
namespace {

constexpr double kGreatest = std::numeric_limits<double>::max();
constexpr double kInvalid = -9.9999999999e+300;

// A host's object all of whose members fail.
struct Failing : runtime::Object {
  runtime::Variant Invoke(std::u16string_view, runtime::CallKind, std::span<runtime::Variant>) override {
    runtime::Raise({5000, u"Host", u"member"});
  }
};

const std::pair<const char*, void (*)()> kCalls[] = {
    {"RoundUp", [] { EXPECT_EQ(GCMath::RoundUp(kGreatest, 400), 0); }},
    {"RoundSigFigs", [] { GCMath::RoundSigFigs(kGreatest, std::numeric_limits<std::int32_t>::max()); }},
    {"CalcMean",
     [] {
       const std::tuple<std::vector<double>, std::int32_t, double, double> rows[] = {
           {{1, 2, 3, 4}, 0, 2.5, std::sqrt(1.25)},
           {{}, 0, kInvalid, kInvalid},
           {{1, kInvalid, 3}, 0, kInvalid, kInvalid},
           {{kGreatest, kGreatest}, 6, kInvalid, kInvalid},
           {{1e200, -1e200}, 6, 0, kInvalid}};  // known already when a square overflows
       double mean = 1, deviation = 1;
       for (const auto& [values, error, expected, spread] : rows) {
         CDblVector vector;
         for (const double value : values) vector.AddValue(value);
         EXPECT_EQ(GCMath::CalcMean(&vector, mean, deviation), error);
         EXPECT_DOUBLE_EQ(mean, expected);
         EXPECT_DOUBLE_EQ(deviation, spread);
       }
       EXPECT_EQ(GCMath::CalcMean(nullptr, mean, deviation), 91);
       EXPECT_EQ(mean, kInvalid);
     }},
    {"RegisterError", [] { EXPECT_EQ(GCError::RegisterError(u"App", u"New", u"").Value, -1); }},
    {"ErrorMessage", [] { EXPECT_EQ(GCError::ErrorMessage(1003), u"unknown error:1003"); }},
    {"IsInRange",
     [] { EXPECT_FALSE(GCStrings::IsInRange(1, u"[0;1E999]", u"") || GCStrings::IsInRange(1, u"1E999", u"")); }},
    {"CheckRangeStringValid", [] { EXPECT_EQ(GCStrings::CheckRangeStringValid(u"["), 1006); }},
    {"CheckNrOutFormat", [] { EXPECT_EQ(GCConvert::CheckNrOutFormat(u"0,0"), 1005); }},
    {"VectorToDblVector",
     [] {
       CVector values;
       for (const runtime::Variant& value : {runtime::Variant(nullptr), runtime::Variant(runtime::Null{})})
         values.AddValue(value);
       EXPECT_EQ(GCConvert::VectorToDblVector(values)->NrValid(), 0);
     }},
    {"SetFromString",
     [] {
       CDblVector vector;
       vector.LetBlockSize(1);
       vector.SetFromString(u"1;" + std::u16string(40'000, u';'));  // more blocks than there may be
       EXPECT_EQ(vector.Value(1), 1);
     }},
    {"LocalizeForm", [] { GCResource::LocalizeForm(New<Failing>().get()); }},
    {"ShowDebugLine", [] { GCBase::ShowDebugLine(u"line"); }},
    {"DisplayError", [] { GCBase::DisplayError(u"text"); }},
    {"CheckStopFlag", [] { EXPECT_EQ(GCBase::CheckStopFlag(), 1007); }},
    {"WindowsCheckUser",
     [] { EXPECT_EQ(GCBase::WindowsCheckUser(u"", std::u16string_view(u"no\0user", 7), u""), 1008); }}};

TEST(SwallowedError, LeavesTheLastErrorAlone) {
  std::thread([] {
    os::SetMessageHook([](auto, auto) {});
    GCBase::SetDbgWindow(New<Failing>());
    GCBase::SetErrorDisplay(New<Failing>(), 1);
    GCBase::LetStopFlag(true);
    // The entries of the built-in errors are gone, and there is no room for another one.
    GCError::SetErrors(runtime::Array<TErrDesc>(std::numeric_limits<std::int32_t>::max() - 1, {{}, {}}));
    for (const auto& [name, call] : kCalls) {
      runtime::SetLastError({1, u"source", u"shown"});
      EXPECT_NO_THROW(call()) << name;
      EXPECT_EQ(runtime::LastError().number, 1) << name;
      EXPECT_EQ(runtime::LastError().description, u"shown") << name;
    }
    // Numbers of 0 are none to be returned either.
    GCError::SetErrors(runtime::Array<TErrDesc>(1, 10));
    EXPECT_EQ(GCBase::CheckStopFlag(), 1007);
  }).join();
}

}  // namespace
}  // namespace qzbase::tests
