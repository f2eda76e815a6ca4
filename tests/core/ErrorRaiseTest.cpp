#include <cstdint>
#include <optional>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "qzbase/core/GCError.h"
#include "qzbase/core/ModError.h"
#include "qzbase/runtime/AutomationError.h"

namespace qzbase::tests {
namespace {

using runtime::AutomationError;

// A registry, a server identifier and an additional information as start-up leaves them.
class ErrorRaise : public testing::Test {
 protected:
  static void Run(void (*pBody)()) { std::thread(pBody).join(); }
};

std::optional<AutomationError> Thrown(std::int32_t pCode, std::u16string_view pAddInfo) {
  try {
    GCError::Throw(pCode, pAddInfo);
  } catch (const AutomationError& error) {
    return error;
  }
  return std::nullopt;
}

TEST_F(ErrorRaise, CarriesNumberSourceAndAdditionalInformation) {
  Run([] {
    const struct {
      std::int32_t code;
      const char16_t* addInfo;
      const char16_t* description;
      const char* why;
    } rows[] = {
        {1003, u"*", u"[1;5]", "the text set before"},
        {1003, u"* ", u"* ", "only the star alone keeps it"},
        {1003, u"*", u"* ", "and the text thrown stays"},
        {1001, u"", u"", "an empty text clears it"},
        {9, u"runtime's own", u"runtime's own", "any number can be thrown"},
        {-5, u"*", u"runtime's own", "negative ones too"},
    };
    GCError::SetServerId(u"Server");
    GCError::SetAddErrInfo(u"[1;5]");
    for (const auto& row : rows) {
      const auto error = Thrown(row.code, row.addInfo);
      ASSERT_TRUE(error) << row.why;
      EXPECT_EQ(error->Number(), row.code) << row.why;
      EXPECT_EQ(error->Source(), u"Server") << row.why;
      EXPECT_EQ(error->Description(), row.description) << row.why;
    }
    EXPECT_FALSE(Thrown(0, u"not stored"));
    EXPECT_EQ(Thrown(1001, u"*")->Description(), u"runtime's own");
  });
}

TEST_F(ErrorRaise, RaisesABuiltInErrorUnderTheNumberItHasNow) {
  Run([] {
    const std::int32_t position = GCError::ErrIndex(u"Buffer", u"InvVarType");
    TErrDesc error = GCError::EDesc(position);
    error.Code = 4711;
    EXPECT_TRUE(GCError::SetEDesc(position, error).IsEmpty());
    try {
      ModError::RaiseBuiltIn(BuiltInError::InvVarType, u"tag 99");
      FAIL() << "nothing raised";
    } catch (const AutomationError& raised) {
      EXPECT_EQ(raised.Number(), 4711);
      EXPECT_EQ(raised.Description(), u"tag 99");
    }
    EXPECT_EQ(GCError::ErrorMessage(4711), u"Buffer inconsistent: Invalid var type detected");
    EXPECT_EQ(GCError::ErrorMessage(1010), u"unknown error:1010");
  });
}

TEST_F(ErrorRaise, MakesTheMessageOfANumber) {
  Run([] {
    runtime::ClearLastError();
    GCError::SetAddErrInfo(u"150 [0;100]");
    GCError::RegisterError(u"App", u"NoText", u"");            // 1011
    GCError::RegisterError(u"App", u"NoTextInfo", u"", true);  // 1012
    const auto general = GCError::ErrorMessage(999);
    const struct {
      std::int32_t code;
      std::u16string plain;
      std::u16string withSource;
    } rows[] = {
        {9, u"Subscript out of range", u"Subscript out of range"},
        {0, general, general},
        {-1, general, general},
        {1000, u"unknown error:1000", u"unknown error:1000"},
        {5000, u"unknown error:5000", u"unknown error:5000"},
        {1001, u"No valid entry entered, please enter valid entry",
         u"Server: No valid entry entered, please enter valid entry"},
        {1003, u"Number out of range (150 [0;100])", u"Number out of range (150 [0;100])"},
        {1011, u"App.NoText", u"Server: App.NoText"},
        {1012, u"NoTextInfo (150 [0;100])", u"NoTextInfo (150 [0;100])"},
    };
    for (const auto& row : rows) EXPECT_EQ(GCError::ErrorMessage(row.code), row.plain);

    // The source is that of the thread's last error, whichever that is, and not the own server identifier.
    GCError::SetServerId(u"Own");
    for (const auto& row : rows) EXPECT_EQ(GCError::ErrorMessage(row.code), row.plain);
    runtime::SetLastError({9, u"Server", u""});
    for (const auto& row : rows) EXPECT_EQ(GCError::ErrorMessage(row.code), row.withSource);

    GCError::UpdateErrMessage(11, u"Now with text");
    EXPECT_EQ(GCError::ErrorMessage(1011), u"Server: Now with text");
  });
}

}  // namespace
}  // namespace qzbase::tests
