#include "Ratios.hpp"

#include "Data.hpp"

#include <algorithm>
#include <iomanip>
#include <iterator>
#include <ostream>

namespace {

struct Row
{
  std::string operation;
  std::string first;
  std::string second;
  char const* target = "";
};

Row const rows[] = {
    {"construct", "library", "copy", "at most 1.5, country"},
    {"construct", "table", "library", "at least 10, country"},
    {"construct", "tenfold", "library", "at most 13, country"},
    {"construct", "tenfold copy", "copy"},
    {"construct", "walk", "library"},
    {"construct, refused", "library", "accepted", "at most 1.5, country"},
    {"find, absent", "library", "floor", "at most 1.2"},
    {"find, absent", "table", "library"},
    {"find, last bank", "library", "floor", "at most 1.2"},
    {"find, last bank", "table", "library"},
    {"add a number", "library", "floor", "at most 1.3"},
    {"add a number", "table", "library"},
    {"update, 1,000 numbers", "library", "floor", "at most 1.3"},
    {"add a bank", "library", "floor", "at most 1.3"},
    {"add every bank", "table", "library"},
    {"rename", "10,000 accounts", "10 accounts", "at most 1.5"},
    {"rename", "table", "10 accounts"},
    {"names", "library", "copy", "at most 1.3"},
    {"names", "table", "library"},
    {"==", "library", "floor", "at most 1.3"},
    {"write", "library", "floor", "at most 1.5, firm"},
};

constexpr auto legend = R"(
floor  a loop by hand over the same maps, which walks, searches and stores as the operation must; for
       a number added it writes the log message as well, and nobody reads it in either case
copy   a copy of the map that is moved into the registry, or of the set of names
tenfold  with ten times the banks: where even a copy takes far more than ten times as long, the
       processor's cache has become too small
walk   the rules of the registry to the letter: each number is searched in each other bank
table  a database in memory: two tables with unique names and numbers, prepared statements, and one
       transaction for each operation; find gives no more than the name of the bank
A registry that is refused has a number at both of its last two banks; it and the accepted one are
measured with the end of their banks, all else without the end of what it gives.
)";

} // namespace

void Ratios::ReportRuns(std::vector<Run> const& runs)
{
  std::vector<Run> measured;
  std::copy_if(runs.begin(), runs.end(), std::back_inserter(measured),
               [](auto const& run) { return run.run_type == Run::RT_Iteration; });
  for (auto const& run : measured) {
    auto& times = times_[run.run_name.function_name];
    for (auto const& [contestant, time] : run.counters) {
      auto const [known, isNew] = times.emplace(contestant, time.value);
      known->second = std::min<double>(known->second, time.value);
    }
  }
  ConsoleReporter::ReportRuns(measured);
}

void Ratios::write(std::ostream& stream) const
{
  stream << legend << "\nRatios of the least times\n"
         << std::left << std::setw(26) << "operation" << std::setw(28) << "ratio" << std::right;
  for (auto const& size : sizes) {
    stream << std::setw(11) << size.name;
  }
  stream << "   target\n" << std::fixed << std::setprecision(2);
  for (auto const& row : rows) {
    stream << std::left << std::setw(26) << row.operation << std::setw(28)
           << row.first + " / " + row.second << std::right;
    for (auto const& size : sizes) {
      auto const measured = times_.find(row.operation + '/' + size.name);
      auto const times =
          measured == times_.end() ? std::map<std::string, double>() : measured->second;
      stream << std::setw(11);
      if (times.contains(row.first) && times.contains(row.second)) {
        stream << times.at(row.first) / times.at(row.second);
      } else {
        stream << '-';
      }
    }
    stream << "   " << row.target << '\n';
  }
}
