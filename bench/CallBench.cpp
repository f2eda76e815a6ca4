// Members called by name or id against a plain virtual call, and objects created by name against plain ones.
#include <array>
#include <cstdint>
#include <memory>

#include <benchmark/benchmark.h>

#include "qzbase/automation/ClassTable.h"
#include "qzbase/data/CDblVector.h"

namespace {

using namespace qzbase;
using namespace qzbase::automation;
using runtime::CallKind;
using runtime::Object;
using runtime::Variant;

constexpr std::int32_t kIndices = 8;

class Values {
 public:
  virtual ~Values() = default;
  virtual double Value(std::int32_t pIndex) const = 0;
};

class StoredValues final : public Values {
 public:
  double Value(std::int32_t pIndex) const override { return values_[static_cast<std::size_t>(pIndex)]; }

 private:
  std::array<double, kIndices + 1> values_{};
};

// Gets one value after the other.
void Get(benchmark::State& pState, auto pGet) {
  std::int32_t index = 0;
  for (auto _ : pState) {
    index = index % kIndices + 1;
    benchmark::DoNotOptimize(pGet(index));
  }
}

void LateGetLimit(benchmark::State& pState) {
  std::unique_ptr<Values> values = std::make_unique<StoredValues>();
  benchmark::DoNotOptimize(values);
  Get(pState, [&](std::int32_t pIndex) { return values->Value(pIndex); });
}
BENCHMARK(LateGetLimit)->Name("LateGet/limit");

void LateGetId(benchmark::State& pState) {
  const auto vector = CreateObject(u"QZBase.CDblVector");
  const ClassEntry& entry = *ClassOf(*vector);
  const MemberId id = entry.members->Find(u"Value");
  Get(pState, [&](std::int32_t pIndex) {
    Variant index(pIndex);
    const std::array<Variant*, 1> arguments = {&index};
    return InvokeById(entry, *vector, id, CallKind::Get, arguments);
  });
}
BENCHMARK(LateGetId)->Name("LateGet/id");

void LateGetName(benchmark::State& pState) {
  const auto vector = CreateObject(u"QZBase.CDblVector");
  Get(pState, [&](std::int32_t pIndex) { return vector->Get(u"Value", pIndex); });
}
BENCHMARK(LateGetName)->Name("LateGet/name");

void CreateLimit(benchmark::State& pState) {
  for (auto _ : pState) benchmark::DoNotOptimize(New<CDblVector>());
}
BENCHMARK(CreateLimit)->Name("Create/limit");

void CreateByName(benchmark::State& pState) {
  for (auto _ : pState) benchmark::DoNotOptimize(CreateObject(u"QZBase.CDblVector"));
}
BENCHMARK(CreateByName)->Name("Create/name");

}  // namespace
