#include "qzbase/automation/com/ErrorBorder.h"

#include <new>
#include <string>
#include <utility>

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/com/ServerClasses.h"

namespace qzbase::automation::com {
namespace {

using runtime::AutomationError;
using runtime::ErrorRecord;
using runtime::RuntimeError;

constexpr std::int32_t kLastPlainNumber = 65535;
constexpr HRESULT kControlFacility = static_cast<HRESULT>(0x800A0000);

struct KnownResult {
  HRESULT result;
  RuntimeError error;
};

// The first row of an error is the one that is handed out.
constexpr KnownResult kKnownResults[] = {
    {DISP_E_MEMBERNOTFOUND, RuntimeError::MemberNotFound},
    {DISP_E_UNKNOWNNAME, RuntimeError::MemberNotFound},
    {DISP_E_PARAMNOTFOUND, RuntimeError::NamedArgumentNotFound},
    {DISP_E_PARAMNOTOPTIONAL, RuntimeError::ArgumentNotOptional},
    {DISP_E_BADPARAMCOUNT, RuntimeError::WrongNumberOfArguments},
    {DISP_E_TYPEMISMATCH, RuntimeError::TypeMismatch},
    {DISP_E_OVERFLOW, RuntimeError::Overflow},
    {DISP_E_BADINDEX, RuntimeError::SubscriptOutOfRange},
    {DISP_E_DIVBYZERO, RuntimeError::DivisionByZero},
    {DISP_E_ARRAYISLOCKED, RuntimeError::ArrayFixed},
    {E_INVALIDARG, RuntimeError::InvalidArgument},
    {E_OUTOFMEMORY, RuntimeError::OutOfMemory},
    {E_ACCESSDENIED, RuntimeError::PermissionDenied},
};

HRESULT ResultOfNumber(std::int32_t pNumber) noexcept {
  if (pNumber >= 1 && pNumber <= kLastPlainNumber) return kControlFacility | pNumber;
  return static_cast<HRESULT>(static_cast<std::uint32_t>(pNumber) | 0x80000000U);
}

ErrorRecord StandardRecord(RuntimeError pError) {
  const auto number = static_cast<std::int32_t>(pError);
  return {number, {}, std::u16string(runtime::StandardErrorText(number)), true};
}

// The one place where exceptions become errors. Rethrows what is no error but a fault of the caller.
ErrorRecord CurrentError() {
  try {
    throw;
  } catch (const AutomationError& error) {
    return error.Record();
  } catch (const NullPointer&) {
    throw;
  } catch (const std::bad_alloc&) {
    return StandardRecord(RuntimeError::OutOfMemory);
  } catch (...) {
    return StandardRecord(RuntimeError::InternalError);
  }
}

void CompleteSource(ErrorRecord& pError, const ServerClass* pClass) {
  if (!pError.isRuntime) return;
  pError.source = pClass ? ProgId(*pClass) : Widen(kLibraryName);
}

void SetThreadError(const ErrorRecord& pError, const ServerClass* pClass) {
  ComRef<ICreateErrorInfo> fresh;
  if (FAILED(CreateErrorInfo(fresh.Put()))) return;
  const OwnedText source(pError.source);
  const OwnedText description(pError.description);
  fresh->SetGUID(pClass ? pClass->interfaceId : GUID_NULL);
  fresh->SetSource(source.Get());
  fresh->SetDescription(description.Get());
  if (const auto info = fresh.As<IErrorInfo>(IID_IErrorInfo)) SetErrorInfo(0, info.Get());
}

void FillIn(EXCEPINFO& pInfo, const ErrorRecord& pError) {
  pInfo = {};
  pInfo.scode = ResultOfNumber(pError.number);
  OwnedText source(pError.source);
  pInfo.bstrDescription = OwnedText(pError.description).Release();
  pInfo.bstrSource = source.Release();
}

// Calls `pReport` with the current error; what fails meanwhile leaves the bare number.
template <class Report>
HRESULT ReportCurrent(const ServerClass* pClass, Report pReport) noexcept {
  ErrorRecord error{static_cast<std::int32_t>(RuntimeError::OutOfMemory), {}, {}, true};
  try {
    error = CurrentError();
    CompleteSource(error, pClass);
    return pReport(error);
  } catch (const NullPointer&) {
    return NullPointerResult();
  } catch (...) {
    SetErrorInfo(0, nullptr);
    return ResultOfNumber(error.number);
  }
}

}  // namespace

HRESULT NullPointerResult() noexcept {
  SetErrorInfo(0, nullptr);
  return E_POINTER;
}

HRESULT ReportEarly(const ServerClass* pClass) noexcept {
  return ReportCurrent(pClass, [pClass](const ErrorRecord& pError) {
    SetThreadError(pError, pClass);
    return ResultOfNumber(pError.number);
  });
}

HRESULT ReportLate(const ServerClass* pClass, EXCEPINFO* pInfo) noexcept {
  const HRESULT result = ReportCurrent(pClass, [pInfo](const ErrorRecord& pError) {
    if (pInfo) FillIn(*pInfo, pError);
    return DISP_E_EXCEPTION;
  });
  if (result == DISP_E_EXCEPTION || result == E_POINTER) return result;
  if (pInfo) *pInfo = {};
  if (pInfo) pInfo->scode = result;
  return DISP_E_EXCEPTION;
}

HRESULT ReportCallFault() noexcept {
  try {
    throw;
  } catch (const AutomationError& error) {
    for (const KnownResult& known : kKnownResults)
      if (error.Is(known.error)) return known.result;
    return ResultOfNumber(error.Number());
  } catch (const NullPointer&) {
    return NullPointerResult();
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

std::int32_t NumberOfResult(HRESULT pResult) noexcept {
  if (HRESULT_FACILITY(pResult) == FACILITY_CONTROL) return HRESULT_CODE(pResult);
  for (const KnownResult& known : kKnownResults)
    if (known.result == pResult) return static_cast<std::int32_t>(known.error);
  return pResult;
}

void RaiseResult(HRESULT pResult) {
  const std::int32_t number = NumberOfResult(pResult);
  runtime::Raise(ErrorRecord{number, {}, std::u16string(runtime::StandardErrorText(number)), true});
}

void RaiseException(EXCEPINFO& pInfo) {
  if (pInfo.pfnDeferredFillIn) pInfo.pfnDeferredFillIn(&pInfo);
  const OwnedText source = OwnedText::Owning(pInfo.bstrSource);
  const OwnedText description = OwnedText::Owning(pInfo.bstrDescription);
  SysFreeString(pInfo.bstrHelpFile);
  ErrorRecord error;
  error.number = pInfo.wCode != 0 ? pInfo.wCode : NumberOfResult(pInfo.scode);
  pInfo = {};
  error.source = TextIn(source.Get());
  error.description = TextIn(description.Get());
  if (error.description.empty()) error.description = runtime::StandardErrorText(error.number);
  runtime::Raise(std::move(error));
}

}  // namespace qzbase::automation::com
