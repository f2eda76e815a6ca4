#include <limits>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "qzbase/core/GCError.h"
#include "qzbase/os/MessageBox.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Array;

// Runs on a thread of its own, so with a registry, a server identifier and an additional information as start-up leaves
// them.
template <class Body>
void OnFreshThread(Body pBody) {
  std::thread(pBody).join();
}

struct Name {
  const char16_t *module, *id;
  std::int32_t position;
};

TEST(ErrorRegistry, StartsWithTheBuiltInErrorsInOrder) {
  const TErrDesc rows[] = {
      {1001, u"InValue", u"Format", u"No valid entry entered, please enter valid entry", false},
      {1002, u"InvFormat", u"Format", u"Invalid number format", false},
      {1003, u"InvRange", u"Format", u"Number out of range", true},
      {1004, u"EmptyText", u"Format", u"Text must contain at least one character", false},
      {1005, u"InvOutFormat", u"Format", u"Detected \",\" in number out-format! Please use \".\" as decimal delimiter.",
       false},
      {1006, u"InvRangeString", u"Format", u"Invalid range string", false},
      {1007, u"Stop", u"System", u"User interrupt", false},
      {1008, u"InvWinPasswd", u"System", u"Invalid password", false},
      {1009, u"LocKeyExists", u"Resource", u"Localization key of string does already exist", true},
      {1010, u"InvVarType", u"Buffer", u"Buffer inconsistent: Invalid var type detected", false},
  };
  OnFreshThread([&] {
    EXPECT_EQ(GCError::GetErrors(), Array<TErrDesc>(1, {std::begin(rows), std::end(rows)}));
    for (std::int32_t position = 1; position <= GCError::NrRegisteredErrors(); ++position)
      EXPECT_EQ(ModError::IndexOf(static_cast<BuiltInError>(position - 1)), TErrIndex{position});
    EXPECT_EQ(GCError::ErrCode({3}), 1003);
    EXPECT_EQ(GCError::ErrID({3}), u"InvRange");
    EXPECT_EQ(GCError::ErrModule({3}), u"Format");
  });
}

TEST(ErrorRegistry, RegistersAndFinds) {
  const Name registrations[] = {
      {u"App", u"Err1", 11}, {u"App", u"Err1", 12},  // the same again makes a second entry
      {u"Err1", u"App", 11},                         // exchanged names are the first entry
      {u"Stop", u"", 7},     {u"stop", u"", 13},     // an empty name finds the other one, exactly compared
      {u"", u"System", 14},                          // but no module is an identifier
  };
  const Name lookUps[] = {{u"App", u"Err1", 11}, {u"", u"Stop", 7},           {u"Format", u"Stop", 0},
                          {u"App", u"err1", 0},  {u"format", u"InvRange", 0}, {u"Format", u"", 0}};
  OnFreshThread([&] {
    for (const auto& [module, id, position] : registrations)
      EXPECT_EQ(GCError::RegisterError(module, id, u"message").Value, position);
    EXPECT_EQ(GCError::NrRegisteredErrors(), 14);
    EXPECT_EQ(GCError::EDesc(12), (TErrDesc{1012, u"Err1", u"App", u"message", false}));
    for (const auto& [module, id, position] : lookUps) EXPECT_EQ(GCError::ErrIndex(module, id), position);
  });
}

TEST(ErrorRegistry, RefusesPositionsThatAreNotThere) {
  OnFreshThread([] {
    EXPECT_EQ(GCError::ErrCode({0}), 0);  // no error
    for (const std::int32_t position : {-1, 0, 11}) {
      EXPECT_EQ(ErrorOf([&] { GCError::ErrCode({position}); }), position == 0 ? 0 : kSubscript);
      EXPECT_EQ(ErrorOf([&] { GCError::ErrID({position == 0 ? 12 : position}); }), kSubscript);
      EXPECT_EQ(ErrorOf([&] { GCError::ErrModule({position == 0 ? 12 : position}); }), kSubscript);
      EXPECT_EQ(ErrorOf([&] { ModError::ErrCodeOf({position}); }), kSubscript);
      EXPECT_EQ(ErrorOf([&] { GCError::EDesc(position); }), kSubscript);
      EXPECT_EQ(ErrorOf([&] { GCError::SetEDesc(position, {}); }), kSubscript);
      EXPECT_EQ(ErrorOf([&] { GCError::UpdateErrMessage(position, u"x"); }), kSubscript);
    }
  });
}

TEST(ErrorRegistry, IsReplacedWithTheBoundsOfTheArray) {
  const TErrDesc first{5001, u"a", u"M", u"", false}, second{5002, u"b", u"M", u"", false};
  OnFreshThread([&] {
    // The entry below position 1 is there but is not found by name.
    GCError::SetErrors(Array<TErrDesc>(0, {first, second}));
    EXPECT_EQ(GCError::NrRegisteredErrors(), 1);
    EXPECT_EQ(GCError::EDesc(0), first);
    EXPECT_EQ(GCError::ErrIndex(u"M", u"a"), 0);
    EXPECT_EQ(GCError::ErrIndex(u"M", u"b"), 1);

    // An array that begins behind position 1 has no entry there, and look-ups do not trip over it.
    GCError::SetErrors(Array<TErrDesc>(3, {first}));
    EXPECT_EQ(GCError::ErrIndex(u"M", u"a"), 3);
    EXPECT_EQ(GCError::RegisterError(u"M", u"b", u"").Value, 4);
    EXPECT_EQ(GCError::ErrCode({4}), 1004);

    EXPECT_EQ(ErrorOf([] { GCError::SetErrors({}); }), kSubscript);
    EXPECT_EQ(GCError::NrRegisteredErrors(), 4);
  });
}

TEST(ErrorRegistry, ShowsAFailedRegistration) {
  // The number would leave the 32-bit range; the position would be below 1.
  for (const std::int32_t bound : {std::numeric_limits<std::int32_t>::max() - 1, -3}) {
    OnFreshThread([&] {
      std::u16string shown;
      os::SetMessageHook(
          [&](std::u16string_view pText, std::u16string_view pCaption) { shown.append(pCaption).append(pText); });
      GCError::SetErrors(Array<TErrDesc>(bound, {TErrDesc{}}));
      EXPECT_EQ(GCError::RegisterError(u"App", u"Err1", u"").Value, -1);
      EXPECT_EQ(shown, u"Critical error!Error register errors (App.Err1)");
      EXPECT_EQ(GCError::NrRegisteredErrors(), bound);
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

TEST(ErrorRaise, CarriesNumberSourceAndAdditionalInformation) {
  const struct {
    std::int32_t code;
    std::u16string_view addInfo, description;
  } rows[] = {
      {1003, u"*", u"[1;5]"},   // the text set before
      {1003, u"* ", u"* "},     // only the star alone keeps it
      {1003, u"*", u"* "},      // and the text thrown stays
      {1001, u"", u""},         // an empty text clears it
      {9, u"other", u"other"},  // any number can be thrown
      {-5, u"*", u"other"},
  };
  OnFreshThread([&] {
    GCError::SetServerId(u"Server");
    GCError::SetAddErrInfo(u"[1;5]");
    for (const auto& row : rows) {
      try {
        GCError::Throw(row.code, row.addInfo);
        ADD_FAILURE() << row.code;
      } catch (const runtime::AutomationError& error) {
        EXPECT_EQ(error.Number(), row.code);
        EXPECT_EQ(error.Source(), u"Server");
        EXPECT_EQ(error.Description(), row.description);
      }
    }
    EXPECT_EQ(ErrorOf([] { GCError::Throw(0, u"not stored"); }), 0);
    EXPECT_EQ(GCError::ErrorMessage(1003), u"Number out of range (other)");
  });
}

TEST(ErrorRaise, RaisesABuiltInErrorUnderTheNumberItHasNow) {
  OnFreshThread([] {
    const std::int32_t position = GCError::ErrIndex(u"Buffer", u"InvVarType");
    TErrDesc error = GCError::EDesc(position);
    error.Code = 4711;
    EXPECT_TRUE(GCError::SetEDesc(position, error).IsEmpty());
    EXPECT_EQ(ErrorOf([] { ModError::RaiseBuiltIn(BuiltInError::InvVarType, u"tag 99"); }), 4711);
    EXPECT_EQ(runtime::LastError().description, u"tag 99");
    EXPECT_EQ(GCError::ErrorMessage(4711), u"Buffer inconsistent: Invalid var type detected");
    EXPECT_EQ(GCError::ErrorMessage(1010), u"unknown error:1010");
  });
}

TEST(ErrorRaise, MakesTheMessageOfANumber) {
  OnFreshThread([] {
    runtime::ClearLastError();
    GCError::SetAddErrInfo(u"150 [0;100]");
    GCError::RegisterError(u"App", u"NoText", u"");            // 1011
    GCError::RegisterError(u"App", u"NoTextInfo", u"", true);  // 1012
    GCError::SetServerId(u"Own");
    const struct {
      std::int32_t code;
      std::u16string message;
      bool namesSource = false;
    } rows[] = {
        {9, u"Subscript out of range"},
        {-1, GCError::ErrorMessage(999)},
        {1000, u"unknown error:1000"},
        {1001, u"No valid entry entered, please enter valid entry", true},
        {1003, u"Number out of range (150 [0;100])"},
        {1011, u"App.NoText", true},
        {1012, u"NoTextInfo (150 [0;100])"},
    };
    // The source is that of the thread's last error, whichever that is, and not the own server identifier.
    for (const auto& row : rows) EXPECT_EQ(GCError::ErrorMessage(row.code), row.message);
    runtime::SetLastError({9, u"Server", u""});
    for (const auto& row : rows)
      EXPECT_EQ(GCError::ErrorMessage(row.code), (row.namesSource ? u"Server: " : u"") + row.message);

    GCError::UpdateErrMessage(11, u"Now with text");
    EXPECT_EQ(GCError::ErrorMessage(1011), u"Server: Now with text");
  });
}

}  // namespace
}  // namespace qzbase::tests
