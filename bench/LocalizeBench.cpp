// Translated texts: a look-up among ten ("limit") and the same one among ten thousand.
#include <cstdint>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "qzbase/core/LocalizedText.h"
#include "qzbase/core/StringTable.h"
#include "qzbase/runtime/NumberText.h"

namespace {

using namespace qzbase;

// The table of a thread only grows: the benchmark of ten texts comes first. The texts sought are spread over it.
void LookUp(benchmark::State& pState) {
  const auto size = static_cast<std::int32_t>(pState.range(0));
  std::vector<std::u16string> keys;
  keys.reserve(static_cast<std::size_t>(size));
  for (std::int32_t i = 0; i < size; ++i) {
    keys.push_back(u"Message." + runtime::NumberText(i));
    ThreadStrings().Add(keys.back(), u"The translation of a message");
  }
  const std::size_t step = keys.size() / 10;
  for (auto _ : pState)
    for (std::size_t i = 0; i < keys.size(); i += step) benchmark::DoNotOptimize(LocalizedText(keys[i]));
}
BENCHMARK(LookUp)->Name("LocalizedText/limit")->Arg(10);
BENCHMARK(LookUp)->Name("LocalizedText/among")->Arg(10'000);

}  // namespace
