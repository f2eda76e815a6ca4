// The recogniser of numbers: no text may crash it, and what it reads must be written and read back alike.
#include <cmath>
#include <cstdlib>

#include "fuzz/Input.h"
#include "qzbase/runtime/AutomationError.h"
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
  try {
    runtime::LeadingNumber(text);
  } catch (const runtime::AutomationError& error) {
    if (!error.Is(runtime::RuntimeError::Overflow)) std::abort();
  }

  double number = 0;
  if (runtime::ReadNumber(text, number, rules) != ReadResult::Read) return 0;
  const std::u16string shown = runtime::NumberText(number, rules);
  double again = 0;
  const ReadResult result = runtime::ReadNumber(shown, again, rules);
  // The greatest doubles round up to a text beyond the range.
  if (result == ReadResult::Overflow && std::fabs(number) > 1.797693134862315e308) return 0;
  if (result != ReadResult::Read || runtime::NumberText(again, rules) != shown) std::abort();
  return 0;
}
