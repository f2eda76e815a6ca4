// Runs the benchmarks and prints, for every subject, how many times longer the library takes than its limit.
//
// A subject is measured by two or more benchmarks of one run: "Subject/limit" does the least work that gives the same
// bytes or values, every other "Subject/..." goes through the library. Only the ratios mean anything; times depend on
// the machine.
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace {

class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& pRuns) override {
    ConsoleReporter::ReportRuns(pRuns);
    for (const Run& run : pRuns)
      if (run.run_type == Run::RT_Iteration) times_[run.benchmark_name()] = run.GetAdjustedCPUTime();
  }

  void Finalize() override {
    std::printf("\n%-44s %s\n", "subject", "times its limit");
    for (const auto& [name, time] : times_) {
      const std::string limitName = name.substr(0, name.find('/')) + "/limit";
      const auto limit = times_.lower_bound(limitName);
      if (limit == times_.end() || !limit->first.starts_with(limitName) || limit->first == name) continue;
      std::printf("%-44s %8.2f\n", name.c_str(), time / limit->second);
    }
  }

 private:
  std::map<std::string, double> times_;
};

}  // namespace

int main(int pCount, char** pArguments) {
  benchmark::Initialize(&pCount, pArguments);
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}
