// The recogniser of dates: no text may crash it, and what it reads lies in the calendar, and what is written
// for it reads back equal.
#include "fuzz/Expect.h"
#include "fuzz/Input.h"
#include "qzbase/runtime/DateReader.h"
#include "qzbase/runtime/DateText.h"

using namespace qzbase;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t pSize) {
  fuzz::Input input(pData, pSize);
  const auto& rules = fuzz::ChooseLocale(input.Take<std::uint8_t>());
  runtime::Date date;
  if (!runtime::ReadDate(input.TakeText(pSize), date, rules)) return 0;
  fuzz::Require(date.days > runtime::kFirstDate - 1 && date.days < runtime::kLastDate);
  runtime::Date again;
  fuzz::Require(runtime::ReadDate(runtime::DateText(date, rules), again, rules) && again == date);
  return 0;
}
