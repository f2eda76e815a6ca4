// Two error registries aligned by name. The client's lives on another thread, as in another process or apartment: a
// stand-in on this thread passes every call on to it.
#include <condition_variable>
#include <functional>
#include <future>
#include <mutex>
#include <stop_token>
#include <thread>
#include <utility>

#include <gtest/gtest.h>

#include "qzbase/automation/ClassTable.h"
#include "qzbase/runtime/Convert.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

// A thread with the library's state of its own, which runs one task at a time while its caller waits.
class Worker {
 public:
  // What the task throws, arrives here.
  void Run(const std::function<void()>& pTask) {
    std::packaged_task<void()> task(pTask);
    std::future<void> done = task.get_future();
    {
      const std::lock_guard lock(mutex_);
      task_ = std::move(task);
    }
    changed_.notify_one();
    done.get();
  }

 private:
  void Loop(const std::stop_token& pStop) {
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, pStop, [this] { return task_.valid(); })) std::exchange(task_, {})();
  }

  std::mutex mutex_;
  std::condition_variable_any changed_;
  std::packaged_task<void()> task_;
  std::jthread thread_{[this](const std::stop_token& pStop) { Loop(pStop); }};
};

class StandIn : public Object {
 public:
  StandIn(Worker& pWorker, Ref<Object> pObject) : worker_(pWorker), object_(std::move(pObject)) {}

  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) override {
    Variant result;
    worker_.Run([&] { result = object_->Invoke(pName, pKind, pArguments); });
    return result;
  }

 private:
  Worker& worker_;
  Ref<Object> object_;
};

std::u16string Field(const Variant& pRecord, std::u16string_view pName) {
  return ToText((*pRecord.If<Ref<Object>>())->Get(pName));
}

TEST(SynchErrors, GivesBothSidesTheClientsNumbers) {
  Worker worker;
  const Ref<Object> server = automation::CreateObject(u"QZBase.GCError");
  const Ref<Object> client = New<StandIn>(worker, automation::CreateObject(u"QZBase.GCError"));

  // The client numbers its built-in errors otherwise, and knows one that the server does not; so does the server.
  const std::int32_t builtIns = ToLong(client->Call(u"NrRegisteredErrors"));
  for (std::int32_t i = 1; i <= builtIns; ++i) {
    Variant desc = client->Get(u"EDesc", i);
    (*desc.If<Ref<Object>>())->Let(u"Code", 2000 + i);
    client->Call(u"SetEDesc", i, desc);
  }
  client->Call(u"RegisterError", u"Client", u"Own", u"Of the client");
  server->Call(u"RegisterError", u"Server", u"Own", u"Of the server", true);

  server->Call(u"SynchErrors", client);

  EXPECT_EQ(ToLong(client->Call(u"NrRegisteredErrors")), builtIns + 2);
  EXPECT_EQ(ToLong(server->Call(u"NrRegisteredErrors")), builtIns + 1) << "the client's own error is not taken over";
  const std::int32_t onClient = ToLong(client->Call(u"ErrIndex", u"Server", u"Own"));
  ASSERT_EQ(onClient, builtIns + 2);
  EXPECT_EQ(Field(client->Get(u"EDesc", onClient), u"Msg"), u"Of the server");
  EXPECT_EQ(Field(client->Get(u"EDesc", onClient), u"AddInfo"), u"True");
  for (std::int32_t i = 1; i <= builtIns + 1; ++i) {
    const Variant own = server->Get(u"EDesc", i);
    const std::int32_t theirs = ToLong(client->Call(u"ErrIndex", Field(own, u"Module"), Field(own, u"ID")));
    EXPECT_EQ(Field(own, u"Code"), Field(client->Get(u"EDesc", theirs), u"Code")) << i;
  }
  EXPECT_EQ(ToText(server->Call(u"ErrorMessage", 2007)), u"User interrupt");
}

TEST(SynchErrors, FailsWithTheClientsError) {
  Worker worker;
  const Ref<Object> server = automation::CreateObject(u"QZBase.GCError");
  const Ref<Object> noErrors = New<StandIn>(worker, automation::CreateObject(u"QZBase.CBuffer"));
  EXPECT_EQ(ErrorOf([&] { server->Call(u"SynchErrors", Variant(noErrors)); }), 438);
  EXPECT_EQ(ErrorOf([&] { server->Call(u"SynchErrors", Variant(nullptr)); }), 91);
  EXPECT_EQ(ErrorOf([&] { server->Call(u"SynchErrors", 1); }), 13);
}

}  // namespace
}  // namespace qzbase::tests
