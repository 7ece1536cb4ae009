#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace quorvane {

/// Shows results as they come, and at the end how long every "fast/…" benchmark takes and how many
/// times faster it is than the "plain/…" one of the same name, if there is one. Of repeated runs
/// the quickest counts: it is the one that other programs disturbed least.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

 private:
  std::map<std::string, double> quickest_;  // milliseconds of processor time, by benchmark
};

/// Registers a benchmark that runs at least three times 0.2 seconds and tells milliseconds.
/// @param measure           has the loop over the state, and what comes before it
/// @param targetMilliseconds  told beside the result; 0: there is none
void Register(const std::string& name, const std::function<void(benchmark::State&)>& measure,
              double targetMilliseconds = 0);

/// The same for a step that needs nothing but to be repeated.
void RegisterStep(const std::string& name, const std::function<void()>& step,
                  double targetMilliseconds = 0);

/// The whole `main` of a program of such benchmarks, which are registered by then.
int RunRatioBenchmarks(int argc, char** argv);

}  // namespace quorvane
