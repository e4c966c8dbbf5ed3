// Tells the benchmarks' results as the tables of docs/performance.md: an operation a row, beside the peer
// where there is one, and how cost grows.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

class TableReporter : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    /// Prints the tables. A benchmark that no table names is an error.
    void Finalize() override;

  private:
    std::map<std::string, double> seconds;  // by the benchmark's name with its argument, as "Search/20"
};
