#include "qzbase/core/ModError.h"

#include <algorithm>
#include <array>

#include "qzbase/core/LocalizedText.h"
#include "qzbase/os/MessageBox.h"
#include "qzbase/os/ThreadSlot.h"
#include "qzbase/runtime/Attempt.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/Positions.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::ModError {
namespace {

using runtime::Attempt;
using runtime::Positions;
using runtime::Raise;

void ReportFailedRegistration(std::u16string_view pModule, std::u16string_view pID) {
  std::u16string text = u"Error register errors (";
  text.append(pModule).append(u".").append(pID).append(u")");
  os::ShowCriticalMessage(text, u"Critical error!");
}

// The state of one thread. Its making is the library's start-up on that thread; where memory is short it fails as a
// whole, and the next use of the library tries again.
struct ThreadState {
  ThreadState() {
    std::transform(kBuiltInErrors.begin(), kBuiltInErrors.end(), builtIn.begin(), [this](const BuiltInErrorRow& pRow) {
      return TErrIndex{registry.Register(pRow.module, pRow.id, pRow.message, pRow.addInfo)};
    });
  }

  ErrorRegistry registry;
  std::array<TErrIndex, kBuiltInErrors.size()> builtIn;
  std::u16string addInfo;
  std::u16string serverId;
};

ThreadState& State() {
  static os::PerThread<ThreadState> state;
  return *state;
}

std::u16string RegisteredMessage(const TErrDesc& pError) {
  // The key is the identifier alone here, and no source is named: translations of messages with additional information
  // are stored like that.
  if (pError.AddInfo) return LocalizedText(pError.ID, pError.Msg) + u" (" + State().addInfo + u")";

  std::u16string text = LocalizedText(pError.Module + u"." + pError.ID, pError.Msg);
  if (runtime::EqualText(text, u"")) text = pError.Module + u": " + pError.ID;
  const std::u16string& source = runtime::LastError().source;
  return source.empty() ? text : source + u": " + text;
}

}  // namespace

ErrorRegistry& Registry() {
  return State().registry;
}

TErrIndex RegisterError(std::u16string_view pModule, std::u16string_view pID, std::u16string_view pMsg, bool pAddInfo) {
  ErrorRegistry& registry = Registry();
  const auto position = Attempt([&] { return registry.Register(pModule, pID, pMsg, pAddInfo); });
  if (!position) ReportFailedRegistration(pModule, pID);
  return {position.value_or(-1)};
}

std::int32_t FindErrIndex(std::u16string_view pModule, std::u16string_view pID) {
  return Registry().Find(pModule, pID);
}

std::int32_t ErrCodeOf(TErrIndex pIdx) {
  return Registry().Entry(pIdx.Value).Code;
}

TErrIndex IndexOf(BuiltInError pError) {
  return State().builtIn[static_cast<std::size_t>(pError)];
}

std::int32_t StatusOf(BuiltInError pError) {
  const TErrIndex index = IndexOf(pError);
  const std::int32_t code = Attempt([index] { return ErrCodeOf(index); }).value_or(0);
  return code != 0 ? code : ErrorRegistry::kCodeBase + index.Value;
}

void RaiseErr(std::int32_t pErrCode, std::u16string_view pAddInfo) {
  if (pErrCode == 0) return;
  if (pAddInfo != kKeepAddInfo) SetAddErrInfo(pAddInfo);
  Raise({pErrCode, State().serverId, State().addInfo});
}

void RaiseBuiltIn(BuiltInError pError, std::u16string_view pAddInfo) {
  RaiseErr(ErrCodeOf(IndexOf(pError)), pAddInfo);
}

void SetAddErrInfo(std::u16string_view pInfo) {
  State().addInfo = pInfo;
}

void SetServerId(std::u16string_view pID) {
  State().serverId = pID;
}

std::u16string ErrorMessage(std::int32_t pErrCode) {
  const auto text = [pErrCode] {
    if (pErrCode < ErrorRegistry::kCodeBase) return std::u16string(runtime::StandardErrorText(pErrCode));
    if (const TErrDesc* error = Registry().FindCode(pErrCode)) return RegisteredMessage(*error);
    return u"unknown error:" + runtime::NumberText(pErrCode);
  };
  return Attempt(text).value_or(u"");
}

namespace {

// The client gets every error that it lacks, numbered in its own sequence. The count is read once: a client that works
// on this very registry may grow it. For the same reason the entry is copied before the client is called.
void RegisterWithClient(runtime::Object& pClient) {
  const ErrorRegistry& registry = Registry();
  for (const std::int32_t i : Positions(registry.First(), registry.Count())) {
    const TErrDesc own = registry.Entry(i);
    if (runtime::ToLong(pClient.Call(u"ErrIndex", own.Module, own.ID)) < 1)
      pClient.Call(u"RegisterError", own.Module, own.ID, own.Msg, own.AddInfo);
  }
}

void TakeClientCodes(runtime::Object& pClient) {
  for (const std::int32_t i : Positions(1, runtime::ToLong(pClient.Call(u"NrRegisteredErrors")))) {
    const runtime::Ref<runtime::Object> theirs = runtime::ToObject(pClient.Get(u"EDesc", i));  // a record's fields
    const std::u16string module = runtime::ToText(theirs->Get(u"Module"));
    const std::u16string id = runtime::ToText(theirs->Get(u"ID"));
    const std::int32_t position = FindErrIndex(module, id);
    if (position > 0) Registry().Entry(position).Code = runtime::ToLong(theirs->Get(u"Code"));
  }
}

}  // namespace

void SynchErrors(runtime::Object& pClient) {
  RegisterWithClient(pClient);
  TakeClientCodes(pClient);
}

}  // namespace qzbase::ModError
