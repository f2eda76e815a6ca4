// Number patterns: any pattern formats any number or refuses it with the invalid-argument error.
#include "fuzz/Expect.h"
#include "fuzz/Input.h"
#include "qzbase/runtime/Format.h"

using namespace qzbase;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t pSize) {
  fuzz::Input input(pData, pSize);
  const auto& rules = fuzz::ChooseLocale(input.Take<std::uint8_t>());
  const auto value = input.Take<double>();
  const std::u16string pattern = input.TakeText(pSize);
  for (const runtime::Variant& variant : {runtime::Variant(value), runtime::Variant(pattern)})
    fuzz::Succeeds({5, 6, 13}, [&] {
      fuzz::Require(runtime::Format(variant, pattern, rules).size() <= 1000 + 400 * (pattern.size() + 1));
    });
  return 0;
}
