#include <limits>
#include <thread>

#include <gtest/gtest.h>

#include "qzbase/core/ErrorRegistry.h"
#include "qzbase/core/GCError.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/Object.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using runtime::CallKind;
using runtime::RuntimeError;
using runtime::Variant;

// An entry as it crosses the border: an object whose fields are properties.
struct ErrorRecordObject : runtime::Object {
  TErrDesc error;

  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) override {
    if (pKind == CallKind::Get && pName == u"Code") return error.Code;
    if (pKind == CallKind::Get && pName == u"Module") return error.Module;
    if (pKind == CallKind::Get && pName == u"ID") return error.ID;
    return Object::Invoke(pName, pKind, pArguments);
  }
};

// The error object of another process, with a registry of its own.
struct Client : runtime::Object {
  ErrorRegistry registry;
  Variant brokenRecord;  // returned instead of every record, unless empty

  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) override {
    const auto text = [&](std::size_t pIndex) { return runtime::ToText(pArguments[pIndex]); };
    if (pName == u"ErrIndex") return registry.Find(text(0), text(1));
    if (pName == u"NrRegisteredErrors") return registry.Count();
    if (pName == u"RegisterError")
      return registry.Register(text(0), text(1), text(2), runtime::ToBoolean(pArguments[3]));
    if (pName == u"EDesc" && pKind == CallKind::Get) {
      if (!brokenRecord.IsEmpty()) return brokenRecord;
      const auto record = runtime::New<ErrorRecordObject>();
      record->error = registry.Entry(runtime::ToLong(pArguments[0]));
      return record;
    }
    return Object::Invoke(pName, pKind, pArguments);
  }
};

TEST(ErrorSynch, GivesBothSidesTheNumbersOfTheClient) {
  std::thread([] {
    Client client;
    client.registry.Register(u"ClientApp", u"Extra", u"", false);  // shifts everything behind it
    client.registry.Register(u"System", u"Stop", u"their text", false);
    GCError::RegisterError(u"ServerApp", u"Own", u"own text", true);

    GCError::SynchErrors(client);

    EXPECT_EQ(client.registry.Count(), 12);  // its own two, nine built-in ones and the server's
    EXPECT_EQ(GCError::NrRegisteredErrors(), 11);
    for (std::int32_t i = 1; i <= GCError::NrRegisteredErrors(); ++i) {
      const TErrDesc own = GCError::EDesc(i);
      const std::int32_t theirs = client.registry.Find(own.Module, own.ID);
      ASSERT_GT(theirs, 0);
      EXPECT_EQ(own.Code, client.registry.Entry(theirs).Code);
    }
    EXPECT_EQ(client.registry.Entry(12), (TErrDesc{1012, u"Own", u"ServerApp", u"own text", true}));
    EXPECT_EQ(GCError::EDesc(7), (TErrDesc{1002, u"Stop", u"System", u"User interrupt", false}));
    EXPECT_EQ(GCError::ErrorMessage(1002), u"User interrupt");
    EXPECT_EQ(GCError::ErrorMessage(1001), u"unknown error:1001");
    EXPECT_EQ(ErrorOf([] { ModError::RaiseBuiltIn(BuiltInError::Stop); }), 1002);
  }).join();
}

TEST(ErrorSynch, WalksARegistryAtTheEndOf32Bits) {
  std::thread([] {
    Client client;
    client.registry.Register(u"M", u"b", u"", false);
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    GCError::SetErrors(runtime::Array<TErrDesc>(kMost - 1, {{1, u"a", u"M", u"", false}, {2, u"b", u"M", u"", false}}));
    GCError::SynchErrors(client);
    EXPECT_EQ(GCError::EDesc(kMost - 1).Code, 1002);
    EXPECT_EQ(GCError::EDesc(kMost).Code, 1001);
  }).join();
}

TEST(ErrorSynch, RefusesAClientThatIsNone) {
  runtime::Object nothing;
  EXPECT_EQ(ErrorOf([&] { GCError::SynchErrors(nothing); }), NumberOf(RuntimeError::MemberNotFound));
  Client client;
  client.brokenRecord = nullptr;
  EXPECT_EQ(ErrorOf([&] { GCError::SynchErrors(client); }), NumberOf(RuntimeError::ObjectNotSet));
  client.brokenRecord = 5;
  EXPECT_EQ(ErrorOf([&] { GCError::SynchErrors(client); }), kTypeMismatch);
}

}  // namespace
}  // namespace qzbase::tests
