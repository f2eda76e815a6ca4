// Growth and sorting of the typed vectors.
#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "qzbase/data/CDblVector.h"

namespace {

using namespace qzbase;

// The element is the unit of time, so that a constant cost shows as a constant number for every count and block size.
void AddValueLimit(benchmark::State& pState) {
  const std::int64_t count = pState.range(0);
  for (auto _ : pState) {
    std::vector<double> values;
    for (std::int64_t i = 0; i < count; ++i) values.push_back(static_cast<double>(i));
    benchmark::DoNotOptimize(values.data());
  }
}
BENCHMARK(AddValueLimit)->Name("AddValue1000000/limit")->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(AddValueLimit)->Name("AddValue100000/limit")->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(AddValueLimit)->Name("AddValue10000/limit")->Arg(10'000)->Unit(benchmark::kMillisecond);

void AddValue(benchmark::State& pState) {
  const std::int64_t count = pState.range(0);
  for (auto _ : pState) {
    CDblVector vector;
    vector.LetBlockSize(static_cast<std::int32_t>(pState.range(1)));
    for (std::int64_t i = 0; i < count; ++i) vector.AddValue(static_cast<double>(i));
    benchmark::DoNotOptimize(vector.Size());
  }
}
BENCHMARK(AddValue)->Name("AddValue1000000/block")->Args({1'000'000, 1})->Unit(benchmark::kMillisecond);
BENCHMARK(AddValue)->Name("AddValue1000000/block")->Args({1'000'000, 31})->Unit(benchmark::kMillisecond);
BENCHMARK(AddValue)->Name("AddValue1000000/block")->Args({1'000'000, 1024})->Unit(benchmark::kMillisecond);
BENCHMARK(AddValue)->Name("AddValue1000000/block")->Args({1'000'000, 1'000'000})->Unit(benchmark::kMillisecond);
BENCHMARK(AddValue)->Name("AddValue100000/block")->Args({100'000, 1})->Unit(benchmark::kMillisecond);
BENCHMARK(AddValue)->Name("AddValue100000/block")->Args({100'000, 16})->Unit(benchmark::kMillisecond);
BENCHMARK(AddValue)->Name("AddValue10000/block")->Args({10'000, 1})->Unit(benchmark::kMillisecond);
BENCHMARK(AddValue)->Name("AddValue10000/block")->Args({10'000, 16})->Unit(benchmark::kMillisecond);

runtime::Array<double> RandomValues() {
  std::mt19937_64 random(7);
  std::normal_distribution<double> values(0, 1000);
  runtime::Array<double> array(1, 100'000);
  for (double& value : array.Elements()) value = values(random);
  return array;
}

void SortLimit(benchmark::State& pState) {
  const auto array = RandomValues();
  for (auto _ : pState) {
    pState.PauseTiming();
    std::vector<double> values = array.Elements();
    pState.ResumeTiming();
    std::stable_sort(values.begin(), values.end());
    benchmark::DoNotOptimize(values.data());
  }
}
BENCHMARK(SortLimit)->Name("Sort/limit")->Unit(benchmark::kMillisecond);

void Sort(benchmark::State& pState) {
  const auto array = RandomValues();
  CDblVector vector;
  for (auto _ : pState) {
    pState.PauseTiming();
    vector.SetFromArray(array);
    pState.ResumeTiming();
    vector.Sort();
    benchmark::DoNotOptimize(vector.Value(1));
  }
}
BENCHMARK(Sort)->Name("Sort/CDblVector")->Unit(benchmark::kMillisecond);

}  // namespace
