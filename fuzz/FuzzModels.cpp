// The containers beside small models of them (tests/models): the first byte says which, each eight bytes behind it are
// a call. What is left of a failure is what `test_models` prints for it.
#include <cstdio>

#include "fuzz/Expect.h"
#include "fuzz/Input.h"
#include "qzbase/runtime/Locale.h"
#include "tests/models/Families.h"
#include "tests/models/World.h"

using namespace qzbase;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t pSize) {
  fuzz::Input input(pData, pSize);
  const auto choice = input.Take<std::uint8_t>();
  const std::vector<models::Family>& families = models::Families();
  const runtime::ScopedLocale locale(fuzz::ChooseLocale(choice / 128));
  std::vector<std::uint64_t> sequence;
  while (!input.IsEmpty()) sequence.push_back(input.Take<std::uint64_t>());
  const models::Family& family = families[choice % families.size()];
  const std::string difference = models::Run(family, sequence);
  if (!difference.empty()) std::fputs(models::Run(family, sequence, true).c_str(), stderr);
  fuzz::Require(difference.empty());
  return 0;
}
