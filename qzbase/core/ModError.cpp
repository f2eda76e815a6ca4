#include "qzbase/core/ModError.h"

#include <algorithm>
#include <array>
#include <exception>

#include "qzbase/core/LocalizedText.h"
#include "qzbase/os/MessageBox.h"
#include "qzbase/os/ThreadSlot.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::ModError {
namespace {

using runtime::Raise;
using runtime::RuntimeError;
using runtime::Variant;

void ReportFailedRegistration(std::u16string_view pModule, std::u16string_view pID) {
  std::u16string text = u"Error register errors (";
  text.append(pModule).append(u".").append(pID).append(u")");
  os::ShowCriticalMessage(text, u"Critical error!");
}

TErrIndex RegisterOrReport(ErrorRegistry& pRegistry, std::u16string_view pModule, std::u16string_view pID,
                           std::u16string_view pMsg, bool pAddInfo) {
  try {
    return {pRegistry.Register(pModule, pID, pMsg, pAddInfo)};
  } catch (const std::exception&) {
    ReportFailedRegistration(pModule, pID);
    return {-1};
  }
}

// The state of one thread. Its making is the library's start-up on that thread.
struct ThreadState {
  ThreadState() {
    std::transform(kBuiltInErrors.begin(), kBuiltInErrors.end(), builtIn.begin(), [this](const BuiltInErrorRow& pRow) {
      return RegisterOrReport(registry, pRow.module, pRow.id, pRow.message, pRow.addInfo);
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
  return RegisterOrReport(Registry(), pModule, pID, pMsg, pAddInfo);
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
  try {
    if (pErrCode < ErrorRegistry::kCodeBase) return std::u16string(runtime::StandardErrorText(pErrCode));
    if (const TErrDesc* error = Registry().FindCode(pErrCode)) return RegisteredMessage(*error);
    return u"unknown error:" + runtime::NumberText(pErrCode);
  } catch (const std::exception&) {
    return {};
  }
}

namespace {

// The record that a late-bound call returned; its fields are properties.
runtime::Object& RecordOf(const Variant& pResult) {
  const auto* record = pResult.If<runtime::Ref<runtime::Object>>();
  if (!record) Raise(RuntimeError::TypeMismatch);
  if (!*record) Raise(RuntimeError::ObjectNotSet);
  return **record;
}

// The client gets every error that it lacks, numbered in its own sequence. The count is read once: a client that works
// on this very registry may grow it. For the same reason the entry is copied before the client is called.
void RegisterWithClient(runtime::Object& pClient) {
  const ErrorRegistry& registry = Registry();
  const std::int32_t count = registry.Count();
  for (std::int32_t i = registry.First(); i <= count; ++i) {
    const TErrDesc own = registry.Entry(i);
    if (runtime::ToLong(pClient.Call(u"ErrIndex", own.Module, own.ID)) < 1)
      pClient.Call(u"RegisterError", own.Module, own.ID, own.Msg, own.AddInfo);
  }
}

void TakeClientCodes(runtime::Object& pClient) {
  const std::int32_t count = runtime::ToLong(pClient.Call(u"NrRegisteredErrors"));
  for (std::int32_t i = 1; i <= count; ++i) {
    const Variant result = pClient.Get(u"EDesc", i);
    runtime::Object& theirs = RecordOf(result);
    const std::u16string module = runtime::ToText(theirs.Get(u"Module"));
    const std::u16string id = runtime::ToText(theirs.Get(u"ID"));
    const std::int32_t position = FindErrIndex(module, id);
    if (position > 0) Registry().Entry(position).Code = runtime::ToLong(theirs.Get(u"Code"));
  }
}

}  // namespace

void SynchErrors(runtime::Object& pClient) {
  RegisterWithClient(pClient);
  TakeClientCodes(pClient);
}

}  // namespace qzbase::ModError
