#include <cstdint>
#include <limits>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/core/GCError.h"
#include "qzbase/core/ModError.h"
#include "qzbase/os/MessageBox.h"
#include "qzbase/runtime/AutomationError.h"

namespace qzbase::tests {
namespace {

using runtime::Array;
using runtime::AutomationError;
using runtime::RuntimeError;

// Runs on a thread of its own, so with a registry as start-up leaves it.
template <class Body>
void OnFreshThread(Body pBody) {
  std::thread(pBody).join();
}

template <class Call>
std::int32_t ErrorOf(Call pCall) {
  try {
    pCall();
  } catch (const AutomationError& error) {
    return error.Number();
  }
  return 0;
}

const std::int32_t kSubscript = static_cast<std::int32_t>(RuntimeError::SubscriptOutOfRange);

TEST(ErrorRegistry, StartsWithTheBuiltInErrorsInOrder) {
  const struct {
    const char16_t* module;
    const char16_t* id;
    const char16_t* message;
    bool addInfo;
  } rows[] = {
      {u"Format", u"InValue", u"No valid entry entered, please enter valid entry", false},
      {u"Format", u"InvFormat", u"Invalid number format", false},
      {u"Format", u"InvRange", u"Number out of range", true},
      {u"Format", u"EmptyText", u"Text must contain at least one character", false},
      {u"Format", u"InvOutFormat", u"Detected \",\" in number out-format! Please use \".\" as decimal delimiter.",
       false},
      {u"Format", u"InvRangeString", u"Invalid range string", false},
      {u"System", u"Stop", u"User interrupt", false},
      {u"System", u"InvWinPasswd", u"Invalid password", false},
      {u"Resource", u"LocKeyExists", u"Localization key of string does already exist", true},
      {u"Buffer", u"InvVarType", u"Buffer inconsistent: Invalid var type detected", false},
  };
  OnFreshThread([&] {
    EXPECT_EQ(GCError::NrRegisteredErrors(), 10);
    std::int32_t position = 0;
    for (const auto& row : rows) {
      ++position;
      EXPECT_EQ(GCError::EDesc(position), (TErrDesc{1000 + position, row.id, row.module, row.message, row.addInfo}));
      EXPECT_EQ(ModError::IndexOf(static_cast<BuiltInError>(position - 1)), TErrIndex{position});
      EXPECT_EQ(GCError::ErrID({position}), row.id);
      EXPECT_EQ(GCError::ErrModule({position}), row.module);
    }
    EXPECT_EQ(GCError::GetErrors().LowerBound(), 1);
    EXPECT_EQ(GCError::GetErrors().UpperBound(), 10);
  });
}

TEST(ErrorRegistry, RegistersAndFinds) {
  OnFreshThread([] {
    const struct {
      const char16_t* module;
      const char16_t* id;
      std::int32_t index;
      const char* why;
    } registrations[] = {
        {u"App", u"Err1", 11, "new"},
        {u"App", u"Err1", 12, "the same again makes a second entry"},
        {u"Err1", u"App", 11, "exchanged names are the first entry"},
        {u"Stop", u"", 7, "an empty identifier finds the module's name among the identifiers"},
        {u"stop", u"", 13, "exactly compared"},
        {u"", u"System", 14, "no module is called so"},
    };
    for (const auto& row : registrations)
      EXPECT_EQ(GCError::RegisterError(row.module, row.id, u"message").Value, row.index) << row.why;
    EXPECT_EQ(GCError::NrRegisteredErrors(), 14);
    EXPECT_EQ(GCError::EDesc(12), (TErrDesc{1012, u"Err1", u"App", u"message", false}));

    const struct {
      const char16_t* module;
      const char16_t* id;
      std::int32_t position;
    } lookUps[] = {{u"App", u"Err1", 11}, {u"", u"Stop", 7},           {u"Format", u"Stop", 0},
                   {u"App", u"err1", 0},  {u"format", u"InvRange", 0}, {u"Format", u"", 0}};
    for (const auto& row : lookUps) EXPECT_EQ(GCError::ErrIndex(row.module, row.id), row.position);
  });
}

TEST(ErrorRegistry, RefusesPositionsThatAreNotThere) {
  OnFreshThread([] {
    EXPECT_EQ(GCError::ErrCode({3}), 1003);
    EXPECT_EQ(GCError::ErrCode({0}), 0);
    EXPECT_EQ(ErrorOf([] { ModError::ErrCodeOf({0}); }), kSubscript);
    for (const std::int32_t position : {-1, 11}) {
      EXPECT_EQ(ErrorOf([&] { GCError::ErrCode({position}); }), kSubscript);
      EXPECT_EQ(ErrorOf([&] { GCError::ErrID({position}); }), kSubscript);
      EXPECT_EQ(ErrorOf([&] { GCError::ErrModule({position}); }), kSubscript);
    }
    for (const std::int32_t position : {-1, 0, 11}) {
      EXPECT_EQ(ErrorOf([&] { GCError::EDesc(position); }), kSubscript);
      EXPECT_EQ(ErrorOf([&] { GCError::SetEDesc(position, {}); }), kSubscript);
      EXPECT_EQ(ErrorOf([&] { GCError::UpdateErrMessage(position, u"x"); }), kSubscript);
    }
  });
}

TEST(ErrorRegistry, IsReplacedWithTheBoundsOfTheArray) {
  const auto named = [](const char16_t* pID, std::int32_t pCode) { return TErrDesc{pCode, pID, u"M", u"", false}; };
  OnFreshThread([&] {
    GCError::SetErrors(Array<TErrDesc>(1, {named(u"a", 5001), named(u"b", 5002), named(u"c", 5003)}));
    EXPECT_EQ(GCError::NrRegisteredErrors(), 3);
    EXPECT_EQ(GCError::ErrCode({2}), 5002);
    EXPECT_EQ(GCError::RegisterError(u"M", u"d", u"").Value, 4);
    EXPECT_EQ(GCError::ErrCode({4}), 1004);

    // The entry below position 1 is there but is not found by name.
    GCError::SetErrors(Array<TErrDesc>(0, {named(u"a", 5001), named(u"b", 5002)}));
    EXPECT_EQ(GCError::NrRegisteredErrors(), 1);
    EXPECT_EQ(GCError::EDesc(0).ID, u"a");
    EXPECT_EQ(GCError::ErrIndex(u"M", u"a"), 0);
    EXPECT_EQ(GCError::ErrIndex(u"M", u"b"), 1);

    // An array that begins behind position 1 has no entry there, and look-ups do not trip over it.
    GCError::SetErrors(Array<TErrDesc>(3, {named(u"a", 5001)}));
    EXPECT_EQ(GCError::ErrIndex(u"M", u"a"), 3);
    EXPECT_EQ(GCError::RegisterError(u"M", u"b", u"").Value, 4);

    EXPECT_EQ(ErrorOf([] { GCError::SetErrors({}); }), kSubscript);
    EXPECT_EQ(GCError::NrRegisteredErrors(), 4);
  });
}

TEST(ErrorRegistry, ShowsAFailedRegistration) {
  const struct {
    std::int32_t bound;
    const char* why;
  } rows[] = {{std::numeric_limits<std::int32_t>::max() - 1, "the number would leave the 32-bit range"},
              {-3, "the position would be below 1"}};
  for (const auto& row : rows) {
    OnFreshThread([&] {
      std::vector<std::pair<std::u16string, std::u16string>> shown;
      os::SetCriticalMessageHook(
          [&](std::u16string_view pText, std::u16string_view pCaption) { shown.emplace_back(pText, pCaption); });
      GCError::SetErrors(Array<TErrDesc>(row.bound, {TErrDesc{}}));

      EXPECT_EQ(GCError::RegisterError(u"App", u"Err1", u"").Value, -1) << row.why;
      ASSERT_EQ(shown.size(), 1u) << row.why;
      EXPECT_EQ(shown[0].first, u"Error register errors (App.Err1)");
      EXPECT_EQ(shown[0].second, u"Critical error!");
      EXPECT_EQ(GCError::NrRegisteredErrors(), row.bound);
    });
  }
}

TEST(ErrorRegistry, BelongsToItsThread) {
  OnFreshThread([] {
    GCError::RegisterError(u"App", u"Err1", u"");
    GCError::SetAddErrInfo(u"mine");
    OnFreshThread([] {
      EXPECT_EQ(GCError::NrRegisteredErrors(), 10);
      EXPECT_EQ(GCError::ErrorMessage(1003), u"Number out of range ()");
    });
    EXPECT_EQ(GCError::NrRegisteredErrors(), 11);
    EXPECT_EQ(GCError::ErrorMessage(1003), u"Number out of range (mine)");
  });
}

}  // namespace
}  // namespace qzbase::tests
