// Two error registries aligned by name. The client's lives on another thread, as in another process or apartment: a
// stand-in on this thread passes every call on to it.
#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

#include <gtest/gtest.h>

#include "qzbase/automation/ClassTable.h"
#include "qzbase/runtime/Convert.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

// A thread with the library's state of its own, which runs one task at a time while its caller waits.
class Worker {
 public:
  Worker() : thread_([this] { Loop(); }) {}
  ~Worker() {
    Hand({});
    thread_.join();
  }

  // What the task throws, arrives here.
  void Run(const std::function<void()>& pTask) {
    std::exception_ptr error;
    Hand([&] {
      try {
        pTask();
      } catch (...) {
        error = std::current_exception();
      }
    });
    if (error) std::rethrow_exception(error);
  }

 private:
  // Returns when the task is done; an empty one ends the thread.
  void Hand(std::function<void()> pTask) {
    std::unique_lock lock(mutex_);
    task_ = std::move(pTask);
    pending_ = true;
    changed_.notify_all();
    changed_.wait(lock, [this] { return !pending_; });
  }

  void Loop() {
    for (bool goesOn = true; goesOn;) {
      std::unique_lock lock(mutex_);
      changed_.wait(lock, [this] { return pending_; });
      goesOn = static_cast<bool>(task_);
      if (goesOn) task_();
      pending_ = false;
      changed_.notify_all();
    }
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  std::function<void()> task_;
  bool pending_ = false;
  std::thread thread_;
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
  const std::pair<Variant, std::int32_t> rows[] = {{Variant(noErrors), 438}, {Variant(nullptr), 91}, {Variant(1), 13}};
  for (const auto& [client, expected] : rows) {
    try {
      server->Call(u"SynchErrors", client);
      ADD_FAILURE() << "no error " << expected;
    } catch (const AutomationError& error) {
      EXPECT_EQ(error.Number(), expected);
    }
  }
}

}  // namespace
}  // namespace qzbase::tests
