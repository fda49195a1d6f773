#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>

/// Shows the operations that ran and keeps the least time of each contestant for a table of ratios.
class Ratios : public benchmark::ConsoleReporter
{
public:
  Ratios() : ConsoleReporter(OO_Tabular) {}

  void ReportRuns(std::vector<Run> const& runs) override;

  /// For each size, writes how many times as long as the second contestant the first takes, beside what the
  /// library aims at.
  void write(std::ostream& stream) const;

private:
  std::map<std::string, std::map<std::string, double>> times_;
};
