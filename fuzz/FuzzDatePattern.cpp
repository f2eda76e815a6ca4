// Date patterns: any pattern formats any date or refuses it with the invalid-argument error.
#include "fuzz/Expect.h"
#include "fuzz/Input.h"
#include "qzbase/runtime/DatePattern.h"
#include "qzbase/runtime/DateText.h"

using namespace qzbase;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t pSize) {
  fuzz::Input input(pData, pSize);
  const auto& rules = fuzz::ChooseLocale(input.Take<std::uint8_t>());
  const runtime::Date date{input.Take<double>()};
  const runtime::WeekRule week{input.Take<std::uint8_t>() % 8, input.Take<std::uint8_t>() % 4};
  fuzz::Succeeds({5}, [&] {
    runtime::DateText(date, rules);
    runtime::FormatDate(date, input.TakeText(pSize), rules, week);
  });
  return 0;
}
