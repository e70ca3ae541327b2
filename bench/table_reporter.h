#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace kov {

/// Collects the figures of all benchmarks and prints them as one table: benchmark, unit, figure, the
/// baseline's figure and the ratio of the two, above 1 where the engine is better.
class TableReporter final : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

  /// False when no benchmark ran.
  bool any() const { return !rows_.empty(); }

 private:
  struct Row {
    std::string name;
    std::string unit;
    double figure = 0.0;
    double literal = 0.0;
  };

  Row& row(const std::string& name, const std::string& unit);

  std::vector<Row> rows_;
};

}  // namespace kov
