#pragma once

#include <benchmark/benchmark.h>

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

/// The whole `main` of a program of such benchmarks, which are registered by then.
int RunRatioBenchmarks(int argc, char** argv);

}  // namespace quorvane
