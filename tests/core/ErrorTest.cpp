// The table of errors, what is raised and shown by it, and two tables made to agree.
#include <limits>
#include <string>
#include <thread>
#include <tuple>

#include <gtest/gtest.h>

#include "qzbase/core/GCError.h"
#include "qzbase/os/MessageBox.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::Array;
using runtime::CallKind;
using runtime::RuntimeError;
using runtime::Variant;

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

// Runs on a thread of its own, so with a registry, a server identifier and an additional information as start-up leaves
// them.
template <class Body>
void OnFreshThread(Body pBody) {
  std::thread(pBody).join();
}

TEST(ErrorRegistry, RegistersAndFinds) {
  using Name = std::tuple<const char16_t*, const char16_t*, std::int32_t>;
  const Name registrations[] = {
      {u"App", u"Err1", 11}, {u"App", u"Err1", 12},  // the same again makes a second entry
      {u"Err1", u"App", 11},                         // exchanged names are the first entry
      {u"Stop", u"", 7},     {u"stop", u"", 13},     // an empty name finds the other one, exactly compared
      {u"", u"System", 14}};                         // but no module is an identifier
  const Name lookUps[] = {{u"App", u"Err1", 11}, {u"", u"Stop", 7},           {u"Format", u"Stop", 0},
                          {u"App", u"err1", 0},  {u"format", u"InvRange", 0}, {u"Format", u"", 0}};
  OnFreshThread([&] {
    std::u16string names;
    for (std::int32_t i = 1; i <= GCError::NrRegisteredErrors(); ++i) {
      EXPECT_EQ(GCError::ErrCode({i}), 1000 + i);
      EXPECT_EQ(GCError::EDesc(i).AddInfo, i == 3 || i == 9);
      names += GCError::ErrModule({i}) + u"." + GCError::ErrID({i}) + u" ";
    }
    EXPECT_EQ(ToUtf8(names),
              "Format.InValue Format.InvFormat Format.InvRange Format.EmptyText Format.InvOutFormat "
              "Format.InvRangeString System.Stop System.InvWinPasswd Resource.LocKeyExists Buffer.InvVarType ");
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
  for (const std::int32_t bound : {kMost - 1000, -1}) {
    OnFreshThread([&] {
      std::u16string shown;
      os::SetMessageHook([&](auto pText, auto pCaption) { shown.append(pCaption).append(pText); });
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
  const std::tuple<std::int32_t, std::u16string_view, std::u16string_view> rows[] = {
      {1003, u"*", u"[1;5]"},   // the text set before
      {1003, u"* ", u"* "},     // only the star alone keeps it
      {1003, u"*", u"* "},      // and the text thrown stays
      {1001, u"", u""},         // an empty text clears it
      {9, u"other", u"other"},  // any number can be thrown
      {-5, u"*", u"other"}};
  OnFreshThread([&] {
    GCError::SetServerId(u"Server");
    GCError::SetAddErrInfo(u"[1;5]");
    for (const auto& row : rows) {
      EXPECT_EQ(ErrorOf([&] { GCError::Throw(std::get<0>(row), std::get<1>(row)); }), std::get<0>(row));
      EXPECT_EQ(runtime::LastError().source, u"Server");
      EXPECT_EQ(runtime::LastError().description, std::get<2>(row));
    }
    EXPECT_EQ(ErrorOf([] { GCError::Throw(0, u"not stored"); }), 0);
    EXPECT_EQ(GCError::ErrorMessage(1003), u"Number out of range (other)");
  });
}

TEST(ErrorRaise, MakesTheMessageOfANumber) {
  OnFreshThread([] {
    runtime::ClearLastError();
    GCError::SetAddErrInfo(u"150 [0;100]");
    GCError::RegisterError(u"App", u"NoText", u"");            // 1011
    GCError::RegisterError(u"App", u"NoTextInfo", u"", true);  // 1012
    GCError::SetServerId(u"Own");
    const std::tuple<std::int32_t, std::u16string, bool> rows[] = {
        {9, u"Subscript out of range", false},
        {-1, GCError::ErrorMessage(999), false},
        {1000, u"unknown error:1000", false},
        {1001, u"No valid entry entered, please enter valid entry", true},
        {1003, u"Number out of range (150 [0;100])", false},
        {1011, u"App.NoText", true},
        {1012, u"NoTextInfo (150 [0;100])", false}};
    // The source is that of the thread's last error, whichever that is, and not the own server identifier.
    for (const auto& [code, message, namesSource] : rows) EXPECT_EQ(GCError::ErrorMessage(code), message);
    runtime::SetLastError({9, u"Server", u""});
    for (const auto& [code, message, namesSource] : rows)
      EXPECT_EQ(GCError::ErrorMessage(code), (namesSource ? u"Server: " : u"") + message);
    TErrDesc renumbered = GCError::EDesc(12);
    renumbered.Code = 4711;
    EXPECT_TRUE(GCError::SetEDesc(12, renumbered).IsEmpty());
    EXPECT_EQ(GCError::ErrorMessage(4711), u"NoTextInfo (150 [0;100])");
    GCError::UpdateErrMessage(11, u"Now with text");
    EXPECT_EQ(GCError::ErrorMessage(1011), u"Server: Now with text");
  });
}

// The error object of another process: one with a registry of its own.
struct Client : runtime::Object {
  ErrorRegistry registry;
  Variant brokenRecord;  // returned instead of every record, unless empty

  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) override {
    if (pName == u"EDesc" && !brokenRecord.IsEmpty()) return brokenRecord;
    std::swap(registry, ModError::Registry());
    Variant answer = GCError().Invoke(pName, pKind, pArguments);
    std::swap(registry, ModError::Registry());
    return answer;
  }
};

TEST(ErrorSynch, GivesBothSidesTheNumbersOfTheClient) {
  OnFreshThread([] {
    Client client;
    client.registry.Register(u"ClientApp", u"Extra", u"", false);  // shifts everything behind it
    client.registry.Register(u"System", u"Stop", u"their text", false);
    GCError::RegisterError(u"ServerApp", u"Own", u"own text", true);
    GCError::SynchErrors(client);

    EXPECT_EQ(client.registry.Count(), 12);  // its own two, nine built-in ones and the server's
    EXPECT_EQ(GCError::NrRegisteredErrors(), 11);
    for (const TErrDesc& own : GCError::GetErrors()) {
      const std::int32_t theirs = client.registry.Find(own.Module, own.ID);
      ASSERT_GT(theirs, 0);
      EXPECT_EQ(own.Code, client.registry.Entry(theirs).Code);
    }
    EXPECT_EQ(client.registry.Entry(12), (TErrDesc{1012, u"Own", u"ServerApp", u"own text", true}));
    EXPECT_EQ(GCError::EDesc(7), (TErrDesc{1002, u"Stop", u"System", u"User interrupt", false}));
    // Built-in errors are raised and shown under the numbers that they have now.
    EXPECT_EQ(GCError::ErrorMessage(1002), u"User interrupt");
    EXPECT_EQ(GCError::ErrorMessage(1001), u"unknown error:1001");
    EXPECT_EQ(ErrorOf([] { ModError::RaiseBuiltIn(BuiltInError::Stop, u"why"); }), 1002);
    EXPECT_EQ(runtime::LastError().description, u"why");

    client.brokenRecord = nullptr;
    EXPECT_EQ(ErrorOf([&] { GCError::SynchErrors(client); }), kObjectNotSet);
    client.brokenRecord = 5;
    EXPECT_EQ(ErrorOf([&] { GCError::SynchErrors(client); }), kTypeMismatch);
    runtime::Object nothing;
    EXPECT_EQ(ErrorOf([&] { GCError::SynchErrors(nothing); }), NumberOf(RuntimeError::MemberNotFound));
  });
}

TEST(ErrorSynch, WalksARegistryAtTheEndOf32Bits) {
  OnFreshThread([] {
    Client client;
    client.registry.Register(u"M", u"b", u"", false);
    GCError::SetErrors(Array<TErrDesc>(kMost - 1, {{1, u"a", u"M", u"", false}, {2, u"b", u"M", u"", false}}));
    GCError::SynchErrors(client);
    EXPECT_EQ(GCError::EDesc(kMost - 1).Code, 1002);
    EXPECT_EQ(GCError::EDesc(kMost).Code, 1001);
  });
}

}  // namespace
}  // namespace qzbase::tests
