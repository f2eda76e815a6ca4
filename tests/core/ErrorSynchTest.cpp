#include <cstdint>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "qzbase/core/ErrorRegistry.h"
#include "qzbase/core/GCError.h"
#include "qzbase/core/ModError.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::tests {
namespace {

using runtime::CallKind;
using runtime::Ref;
using runtime::RuntimeError;
using runtime::Variant;

// An entry as it crosses the border: an object whose fields are properties.
class ErrorRecordObject : public runtime::Object {
 public:
  explicit ErrorRecordObject(TErrDesc pError) : error_(std::move(pError)) {}

  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) override {
    if (pKind == CallKind::Get && pName == u"Code") return error_.Code;
    if (pKind == CallKind::Get && pName == u"Module") return error_.Module;
    if (pKind == CallKind::Get && pName == u"ID") return error_.ID;
    return Object::Invoke(pName, pKind, pArguments);
  }

 private:
  TErrDesc error_;
};

// The error object of another process, with a registry of its own.
class Client : public runtime::Object {
 public:
  ErrorRegistry registry;
  Variant brokenRecord;  // returned instead of every record, unless empty

  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) override {
    if (pName == u"ErrIndex") return registry.Find(Text(pArguments[0]), Text(pArguments[1]));
    if (pName == u"NrRegisteredErrors") return registry.Count();
    if (pName == u"RegisterError")
      return registry.Register(Text(pArguments[0]), Text(pArguments[1]), Text(pArguments[2]),
                               runtime::ToBoolean(pArguments[3]));
    if (pName == u"EDesc" && pKind == CallKind::Get) {
      if (!brokenRecord.IsEmpty()) return brokenRecord;
      return runtime::New<ErrorRecordObject>(registry.Entry(runtime::ToLong(pArguments[0])));
    }
    return Object::Invoke(pName, pKind, pArguments);
  }

 private:
  static std::u16string Text(const Variant& pValue) { return runtime::ToText(pValue); }
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
    EXPECT_THROW(ModError::RaiseBuiltIn(BuiltInError::Stop), runtime::AutomationError);
    EXPECT_EQ(runtime::LastError().number, 1002);
  }).join();
}

TEST(ErrorSynch, RefusesAClientThatIsNone) {
  const auto errorWith = [](runtime::Object& pClient) {
    try {
      GCError::SynchErrors(pClient);
    } catch (const runtime::AutomationError& error) {
      return static_cast<RuntimeError>(error.Number());
    }
    return RuntimeError{};
  };
  runtime::Object nothing;
  EXPECT_EQ(errorWith(nothing), RuntimeError::MemberNotFound);
  Client client;
  client.brokenRecord = nullptr;
  EXPECT_EQ(errorWith(client), RuntimeError::ObjectNotSet);
  client.brokenRecord = 5;
  EXPECT_EQ(errorWith(client), RuntimeError::TypeMismatch);
}

}  // namespace
}  // namespace qzbase::tests
