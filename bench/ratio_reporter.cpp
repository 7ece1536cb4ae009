#include "ratio_reporter.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace quorvane {
namespace {

constexpr std::string_view kFast = "fast/";
constexpr std::string_view kPlain = "plain/";

}  // namespace

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Iteration || run.error_occurred || run.iterations == 0) continue;
    const double milliseconds =
        run.cpu_accumulated_time * 1e3 / static_cast<double>(run.iterations);
    const auto [place, isNew] = quickest_.try_emplace(run.run_name.function_name, milliseconds);
    if (!isNew) place->second = std::min(place->second, milliseconds);
  }
}

void RatioReporter::Finalize() {
  ConsoleReporter::Finalize();
  std::printf("\n%-36s %10s %10s %13s\n", "quickest run", "fast, ms", "plain, ms", "times faster");
  for (const auto& [name, fast] : quickest_) {
    if (!name.starts_with(kFast)) continue;
    const std::string what = name.substr(kFast.size());
    std::printf("%-36s %10.2f", what.c_str(), fast);
    const auto plain = quickest_.find(std::string(kPlain) + what);
    if (plain != quickest_.end())
      std::printf(" %10.2f %13.1f", plain->second, plain->second / fast);
    std::printf("\n");
  }
}

void Register(const std::string& name, const std::function<void(benchmark::State&)>& measure,
              double targetMilliseconds) {
  const auto run = [measure, targetMilliseconds](benchmark::State& state) {
    measure(state);
    if (targetMilliseconds > 0) state.counters["TargetMilliseconds"] = targetMilliseconds;
  };
  benchmark::RegisterBenchmark(name.c_str(), run)
      ->Unit(benchmark::kMillisecond)
      ->MinTime(0.2)
      ->Repetitions(3);
}

void RegisterStep(const std::string& name, const std::function<void()>& step,
                  double targetMilliseconds) {
  const auto measure = [step](benchmark::State& state) {
    for (auto _ : state) step();
  };
  Register(name, measure, targetMilliseconds);
}

int RunRatioBenchmarks(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  return 0;
}

}  // namespace quorvane
