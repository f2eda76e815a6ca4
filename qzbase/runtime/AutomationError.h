// How every failure travels: number, source and description, as automation hosts know them.
//
// Numbers below 1000 belong to the runtime (`RuntimeError`); registered errors (core/ModError.h) count from 1001. The
// exception carries the three values to the caller, and the thread keeps a record of the error raised last, which
// `ModError::ErrorMessage` reads.
#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <string_view>

namespace qzbase::runtime {

// The runtime's own errors that this library raises. The numbers are known to every host; do not change them.
enum class RuntimeError : std::int32_t {
  InvalidArgument = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  ArrayFixed = 10,
  DivisionByZero = 11,
  TypeMismatch = 13,
  OutOfStackSpace = 28,
  InternalError = 51,
  FileNotFound = 53,
  DeviceIoError = 57,
  DiskFull = 61,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  ObjectNotSet = 91,
  InvalidPattern = 93,
  InvalidUseOfNull = 94,
  CannotCreateObject = 429,
  MemberNotFound = 438,
  NamedArgumentNotFound = 448,
  ArgumentNotOptional = 449,
  WrongNumberOfArguments = 450,
};

struct ErrorRecord {
  std::int32_t number = 0;
  std::u16string source;
  std::u16string description;
  bool isRuntime = false;  // the runtime's own, which has no source: hosts are told the class that was called
};

class AutomationError : public std::exception {
 public:
  explicit AutomationError(ErrorRecord pRecord);

  std::int32_t Number() const noexcept { return record_.number; }
  const std::u16string& Source() const noexcept { return record_.source; }
  const std::u16string& Description() const noexcept { return record_.description; }
  const ErrorRecord& Record() const noexcept { return record_; }
  bool Is(RuntimeError pError) const noexcept { return record_.number == static_cast<std::int32_t>(pError); }

  // "error 9: Subscript out of range", in UTF-8.
  const char* what() const noexcept override { return what_.c_str(); }

 private:
  ErrorRecord record_;
  std::string what_;
};

// Both keep the record as the thread's last error and throw it. A runtime error has its standard text as description
// and no source.
[[noreturn]] void Raise(RuntimeError pError);
[[noreturn]] void Raise(ErrorRecord pRecord);

// The error raised last on the calling thread (number 0: none since `ClearLastError`), good until the next one. Hosts
// that receive an error from elsewhere set it.
const ErrorRecord& LastError();
void SetLastError(ErrorRecord pRecord);
void ClearLastError();

// Brings back at its end the last error that it found, whatever was raised meanwhile.
class LastErrorKept {
 public:
  LastErrorKept();
  ~LastErrorKept();
  LastErrorKept(const LastErrorKept&) = delete;
  LastErrorKept& operator=(const LastErrorKept&) = delete;

 private:
  std::shared_ptr<const ErrorRecord> record_;
};

// The number that an exception has for a caller who is told numbers: its own, 7 where memory did not suffice, 51 for
// what is no error of this library. Never 0.
std::int32_t ErrorNumberOf(const std::exception& pError) noexcept;

// The runtime's standard description of an error number below 1000; numbers without one of their own share a general
// text.
std::u16string_view StandardErrorText(std::int32_t pNumber);

}  // namespace qzbase::runtime
