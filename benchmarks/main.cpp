// Runs all benchmarks, or those named on the command line ("step_back" takes all whose names begin so),
// prints a table and writes it as JSON. Ends with 1 when a limit was missed or a benchmark failed.

#include <fmt/format.h>

#include <QApplication>
#include <QLoggingCategory>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "Bench.h"

using namespace kinalyx::bench;

namespace {

struct Row {
  std::string name;
  Target target;
  Figure figure;
  std::string failure;

  bool HasBaseline() const { return figure.baseline > 0; }
  double Ratio() const { return HasBaseline() ? figure.value / figure.baseline : 0; }
  bool Meets(double mark) const {
    if (!failure.empty()) return false;
    switch (target.of) {
      case Target::Of::Ratio: return HasBaseline() && Ratio() <= mark;
      case Target::Of::AtMost: return figure.value <= mark;
      case Target::Of::AtLeast: return figure.value >= mark;
    }
    return false;
  }
};

void Print(const Row& row, int nameWidth) {
  const auto optional = [](bool present, double value) { return present ? fmt::format("{:.3f}", value) : "-"; };
  const char* sign = row.target.of == Target::Of::AtLeast ? ">=" : "<=";
  fmt::print("{:<{}}  {:>10}  {:<6}  {:>10}  {:>7}  {:>2}{:>6}  {:>6}  {}\n", row.name, nameWidth,
             optional(row.failure.empty(), row.figure.value), row.figure.unit,
             optional(row.HasBaseline(), row.figure.baseline), optional(row.HasBaseline(), row.Ratio()), sign,
             row.target.limit, row.target.goal,
             !row.failure.empty()           ? "FAILED: " + row.failure
             : !row.Meets(row.target.limit) ? "MISSED"
             : row.Meets(row.target.goal)   ? "goal"
                                            : "ok");
  std::fflush(stdout);
}

bool WriteJson(const std::string& path, const std::vector<Row>& rows) {
  std::error_code ignored;
  if (const auto folder = std::filesystem::path(path).parent_path(); !folder.empty())
    std::filesystem::create_directories(folder, ignored);
  std::ofstream file(path);
  file << "[";
  const char* separator = "\n";
  for (const Row& row : rows) {
    if (!row.failure.empty()) continue;
    const auto optional = [&](double value) { return row.HasBaseline() ? fmt::format("{:.6g}", value) : "null"; };
    file << separator
         << fmt::format(R"(  {{"name": "{}", "value": {:.6g}, "unit": "{}", "baseline": {}, "ratio": {}}})", row.name,
                        row.figure.value, row.figure.unit, optional(row.figure.baseline), optional(row.Ratio()));
    separator = ",\n";
  }
  file << "\n]\n";
  file.close();
  return file.good();
}

}  // namespace

int main(int argc, char** argv) {
  if (!std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY")) setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QLoggingCategory::setFilterRules("qt.qpa.*=false");
  QApplication application(argc, argv);

  std::string json = "build/bench.json";
  std::vector<std::string> wanted;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument == "--json" && i + 1 < argc) {
      json = argv[++i];
    } else if (argument == "--list") {
      for (const Benchmark& benchmark : Known()) fmt::print("{}\n", benchmark.name);
      return 0;
    } else if (argument.starts_with("-")) {
      fmt::print(stderr, "usage: {} [--json <file>] [--list] [name...]\n", argv[0]);
      return 2;
    } else {
      wanted.push_back(argument);
    }
  }

  std::vector<Benchmark> chosen;
  for (const Benchmark& benchmark : Known()) {
    bool take = wanted.empty();
    for (const std::string& name : wanted) take = take || benchmark.name.starts_with(name);
    if (take) chosen.push_back(benchmark);
  }
  if (chosen.empty()) {
    fmt::print(stderr, "no such benchmark; --list shows them\n");
    return 2;
  }

  std::size_t nameWidth = 4;
  for (const Benchmark& benchmark : chosen) nameWidth = std::max(nameWidth, benchmark.name.size());
  fmt::print("{:<{}}  {:>10}  {:<6}  {:>10}  {:>7}  {:>8}  {:>6}  {}\n", "name", nameWidth, "value", "unit", "baseline",
             "ratio", "limit", "goal", "ok");

  bool allKept = true;
  std::vector<Row> rows;
  for (const Benchmark& benchmark : chosen) {
    Row row{benchmark.name, benchmark.target, {}, {}};
    try {
      row.figure = benchmark.run();
    } catch (const std::exception& error) {
      row.failure = error.what();
    }
    Print(row, static_cast<int>(nameWidth));
    allKept = allKept && row.Meets(row.target.limit);
    rows.push_back(std::move(row));
  }
  if (!WriteJson(json, rows)) {
    fmt::print(stderr, "cannot write {}\n", json);
    return 1;
  }
  return allKept ? 0 : 1;
}
