// Growth, copying, comparing and sorting of the typed vectors.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <numeric>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CLngVector.h"

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

// ---- One million elements at once, into memory that is there already and into fresh one.

constexpr std::int32_t kMany = 1'000'000;

template <class T>
std::vector<T> Counted() {
  std::vector<T> values(kMany);
  std::iota(values.begin(), values.end(), T{1});
  return values;
}

template <class Vector>
void FillVector(Vector& pVector) {
  pVector.LetBlockSize(1024);
  pVector.SetFromArray({1, Counted<typename Vector::Type>()});
}

template <class T>
void CopyLimit(benchmark::State& pState) {
  const std::vector<T> from = Counted<T>();
  std::vector<T> to(kMany);
  for (auto _ : pState) {
    std::memcpy(to.data(), from.data(), kMany * sizeof(T));
    benchmark::ClobberMemory();
  }
}

template <class Vector>
void SetFromArray(benchmark::State& pState) {
  const runtime::Array<typename Vector::Type> array(1, Counted<typename Vector::Type>());
  Vector vector;
  FillVector(vector);
  for (auto _ : pState) {
    vector.SetFromArray(array);
    benchmark::ClobberMemory();
  }
}

template <class Vector>
void CopyFrom(benchmark::State& pState) {
  Vector from;
  Vector to;
  FillVector(from);
  FillVector(to);
  for (auto _ : pState) {
    to.CopyFrom(from);
    benchmark::ClobberMemory();
  }
}

template <class T>
void FreshLimit(benchmark::State& pState) {
  const std::vector<T> from = Counted<T>();
  for (auto _ : pState) {
    const std::vector<T> to(from);
    benchmark::DoNotOptimize(to.data());
  }
}

template <class Vector>
void FreshSetFromArray(benchmark::State& pState) {
  const runtime::Array<typename Vector::Type> array(1, Counted<typename Vector::Type>());
  for (auto _ : pState) {
    Vector vector;
    vector.SetFromArray(array);
    benchmark::DoNotOptimize(vector.Value(1));
  }
}

template <class Vector>
void GetCopy(benchmark::State& pState) {
  Vector vector;
  FillVector(vector);
  for (auto _ : pState) benchmark::DoNotOptimize(vector.GetCopy());
}

template <class Vector>
void GetArray(benchmark::State& pState) {
  Vector vector;
  FillVector(vector);
  for (auto _ : pState) benchmark::DoNotOptimize(vector.GetArray());
}

template <class T>
void IsEqualLimit(benchmark::State& pState) {
  const std::vector<T> left = Counted<T>();
  const std::vector<T> right = Counted<T>();
  for (auto _ : pState) benchmark::DoNotOptimize(std::memcmp(left.data(), right.data(), kMany * sizeof(T)));
}

template <class Vector>
void IsEqual(benchmark::State& pState) {
  Vector left;
  Vector right;
  FillVector(left);
  FillVector(right);
  for (auto _ : pState) benchmark::DoNotOptimize(left.IsEqual(right));
}

BENCHMARK_TEMPLATE(CopyLimit, double)->Name("CopyDoubles/limit")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(SetFromArray, CDblVector)->Name("CopyDoubles/SetFromArray")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(CopyFrom, CDblVector)->Name("CopyDoubles/CopyFrom")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(FreshLimit, double)->Name("FreshDoubles/limit")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(FreshSetFromArray, CDblVector)->Name("FreshDoubles/SetFromArray")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(GetCopy, CDblVector)->Name("FreshDoubles/GetCopy")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(GetArray, CDblVector)->Name("FreshDoubles/GetArray")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(IsEqualLimit, double)->Name("EqualDoubles/limit")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(IsEqual, CDblVector)->Name("EqualDoubles/IsEqual")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(CopyLimit, std::int32_t)->Name("CopyLongs/limit")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(SetFromArray, CLngVector)->Name("CopyLongs/SetFromArray")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(CopyFrom, CLngVector)->Name("CopyLongs/CopyFrom")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(FreshLimit, std::int32_t)->Name("FreshLongs/limit")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(FreshSetFromArray, CLngVector)->Name("FreshLongs/SetFromArray")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(GetCopy, CLngVector)->Name("FreshLongs/GetCopy")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(GetArray, CLngVector)->Name("FreshLongs/GetArray")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(IsEqualLimit, std::int32_t)->Name("EqualLongs/limit")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(IsEqual, CLngVector)->Name("EqualLongs/IsEqual")->Unit(benchmark::kMicrosecond);

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
