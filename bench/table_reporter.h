#pragma once

#include <benchmark/benchmark.h>

#include <ostream>
#include <string>
#include <vector>

namespace kov {

/// Collects the figures of all benchmarks, to be printed as one table: benchmark, unit, figure, the
/// baseline's figure and the ratio of the two, above 1 where the engine is better.
class TableReporter final : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override;

  /// True when no benchmark gave a figure.
  bool empty() const { return rows_.empty(); }
  void print(std::ostream& out) const;

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
