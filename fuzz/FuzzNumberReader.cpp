// The recogniser of numbers: no text may crash it, and what it reads must be written and read back alike.
#include <cmath>

#include "fuzz/Expect.h"
#include "fuzz/Input.h"
#include "qzbase/runtime/NumberReader.h"
#include "qzbase/runtime/NumberText.h"

using namespace qzbase;
using runtime::ReadResult;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t pSize) {
  fuzz::Input input(pData, pSize);
  const auto& rules = fuzz::ChooseLocale(input.Take<std::uint8_t>());
  const std::u16string text = input.TakeText(pSize);

  std::int32_t whole = 0;
  runtime::ReadNumber(text, whole, rules);
  fuzz::Succeeds({6}, [&] { runtime::LeadingNumber(text); });

  double number = 0;
  if (runtime::ReadNumber(text, number, rules) != ReadResult::Read) return 0;
  const std::u16string shown = runtime::NumberText(number, rules);
  double again = 0;
  const ReadResult result = runtime::ReadNumber(shown, again, rules);
  // The greatest doubles round up to a text beyond the range.
  if (result == ReadResult::Overflow && std::fabs(number) > 1.797693134862315e308) return 0;
  fuzz::Require(result == ReadResult::Read && runtime::NumberText(again, rules) == shown);
  return 0;
}
