#include "qzbase/automation/com/ErrorBorder.h"

#include <new>
#include <string>
#include <utility>

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/com/Faces.h"

namespace qzbase::automation::com {
namespace {

using runtime::AutomationError;
using runtime::ErrorRecord;
using runtime::RuntimeError;

constexpr std::int32_t kFirstRegisteredError = 1001;
constexpr std::int32_t kLastPlainNumber = 65535;
constexpr HRESULT kControlFacility = static_cast<HRESULT>(0x800A0000);

struct KnownResult {
  HRESULT result;
  RuntimeError error;
  bool isCallFault;  // the late-bound call itself went wrong
};

// The first row of an error is the one that is handed out.
constexpr KnownResult kKnownResults[] = {
    {DISP_E_MEMBERNOTFOUND, RuntimeError::MemberNotFound, true},
    {DISP_E_UNKNOWNNAME, RuntimeError::MemberNotFound, true},
    {DISP_E_PARAMNOTFOUND, RuntimeError::NamedArgumentNotFound, true},
    {DISP_E_PARAMNOTOPTIONAL, RuntimeError::ArgumentNotOptional, true},
    {DISP_E_BADPARAMCOUNT, RuntimeError::WrongNumberOfArguments, true},
    {DISP_E_TYPEMISMATCH, RuntimeError::TypeMismatch, false},
    {DISP_E_OVERFLOW, RuntimeError::Overflow, false},
    {DISP_E_BADINDEX, RuntimeError::SubscriptOutOfRange, false},
    {DISP_E_DIVBYZERO, RuntimeError::DivisionByZero, false},
    {DISP_E_ARRAYISLOCKED, RuntimeError::ArrayFixed, false},
    {E_INVALIDARG, RuntimeError::InvalidArgument, false},
    {E_OUTOFMEMORY, RuntimeError::OutOfMemory, false},
    {E_ACCESSDENIED, RuntimeError::PermissionDenied, false},
};

HRESULT ResultOfNumber(std::int32_t pNumber) noexcept {
  if (pNumber >= 1 && pNumber <= kLastPlainNumber) return kControlFacility | pNumber;
  return static_cast<HRESULT>(static_cast<std::uint32_t>(pNumber) | 0x80000000U);
}

ErrorRecord StandardRecord(RuntimeError pError) {
  const auto number = static_cast<std::int32_t>(pError);
  return {number, {}, std::u16string(runtime::StandardErrorText(number))};
}

// The one place where exceptions become errors. Rethrows what is no error but a fault of the caller.
ErrorRecord CurrentError() {
  try {
    throw;
  } catch (const AutomationError& error) {
    return {error.Number(), error.Source(), error.Description()};
  } catch (const NullPointer&) {
    throw;
  } catch (const std::bad_alloc&) {
    return StandardRecord(RuntimeError::OutOfMemory);
  } catch (...) {
    return StandardRecord(RuntimeError::InternalError);
  }
}

void CompleteSource(ErrorRecord& pError, const Face* pFace) {
  if (!pError.source.empty() || pError.number >= kFirstRegisteredError) return;
  pError.source = pFace ? ProgId(*pFace) : Widen(kLibraryName);
}

void SetThreadError(const ErrorRecord& pError, const Face* pFace) {
  ComRef<ICreateErrorInfo> fresh;
  if (FAILED(CreateErrorInfo(fresh.Put()))) return;
  const OwnedText source(pError.source);
  const OwnedText description(pError.description);
  fresh->SetGUID(pFace ? pFace->interfaceId : GUID_NULL);
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

// The platform's own result where an error is a fault of the call, else S_OK.
HRESULT CallFault(const ErrorRecord& pError) noexcept {
  if (!pError.source.empty()) return S_OK;
  for (const KnownResult& known : kKnownResults)
    if (known.isCallFault && static_cast<std::int32_t>(known.error) == pError.number) return known.result;
  return S_OK;
}

// Calls `pReport` with the current error; what fails meanwhile, leaves the bare result.
template <class Report>
HRESULT ReportCurrent(const Face* pFace, Report pReport) noexcept {
  HRESULT result = ResultOfNumber(static_cast<std::int32_t>(RuntimeError::OutOfMemory));
  try {
    ErrorRecord error = CurrentError();
    result = ResultOfNumber(error.number);
    const HRESULT fault = CallFault(error);
    CompleteSource(error, pFace);
    return pReport(error, result, fault);
  } catch (const NullPointer&) {
    return E_POINTER;
  } catch (...) {
    return result;
  }
}

}  // namespace

HRESULT ReportEarly(const Face* pFace) noexcept {
  return ReportCurrent(pFace, [pFace](const ErrorRecord& pError, HRESULT pResult, HRESULT) {
    SetThreadError(pError, pFace);
    return pResult;
  });
}

HRESULT ReportLate(const Face* pFace, EXCEPINFO* pInfo) noexcept {
  return ReportCurrent(pFace, [pInfo](const ErrorRecord& pError, HRESULT, HRESULT pFault) {
    if (pFault != S_OK) return pFault;
    if (pInfo) FillIn(*pInfo, pError);
    return DISP_E_EXCEPTION;
  });
}

std::int32_t NumberOfResult(HRESULT pResult) noexcept {
  if (HRESULT_FACILITY(pResult) == FACILITY_CONTROL) return HRESULT_CODE(pResult);
  for (const KnownResult& known : kKnownResults)
    if (known.result == pResult) return static_cast<std::int32_t>(known.error);
  return pResult;
}

void RaiseResult(HRESULT pResult) {
  const std::int32_t number = NumberOfResult(pResult);
  runtime::Raise(ErrorRecord{number, {}, std::u16string(runtime::StandardErrorText(number))});
}

void RaiseException(EXCEPINFO& pInfo) {
  if (pInfo.pfnDeferredFillIn) pInfo.pfnDeferredFillIn(&pInfo);
  ErrorRecord error;
  error.number = pInfo.wCode != 0 ? pInfo.wCode : NumberOfResult(pInfo.scode);
  error.source = TextIn(pInfo.bstrSource);
  error.description = TextIn(pInfo.bstrDescription);
  if (error.description.empty()) error.description = runtime::StandardErrorText(error.number);
  SysFreeString(pInfo.bstrSource);
  SysFreeString(pInfo.bstrDescription);
  SysFreeString(pInfo.bstrHelpFile);
  pInfo = {};
  runtime::Raise(std::move(error));
}

}  // namespace qzbase::automation::com
