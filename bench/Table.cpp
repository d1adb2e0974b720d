#include "Table.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <vector>

namespace kestrel::bench {
namespace {

struct Row {
  std::string work;
  std::string against;
  Asked asked;
};

std::vector<Row> rows;
std::vector<std::string> notes;

/// Collects the times of all rounds, of the processor or, for work that has several, by the clock, in
/// milliseconds, under the benchmarks' names.
class Collector final : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs)
      if (run.run_type == Run::RT_Iteration)
        times_[run.run_name.function_name].push_back(
            (run.run_name.time_type.empty() ? run.cpu_accumulated_time : run.real_accumulated_time) * 1e3 /
            static_cast<double>(run.iterations));
  }

  double Median(const std::string& name) {
    std::vector<double>& times = times_[name];
    if (times.empty()) return 0;
    std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
    return times[times.size() / 2];
  }

 private:
  std::map<std::string, std::vector<double>> times_;
};

std::string FastName(const Row& row) {
  return row.work + " (" + row.against + ")";
}

std::string OtherName(const Row& row) {
  return row.work + ": " + row.against;
}

void Register(const std::string& name, const Asked& asked, std::function<void()> work) {
  auto* const registered =
      benchmark::RegisterBenchmark(name.c_str(), [work = std::move(work)](benchmark::State& state) {
        for (auto round : state) work();
      });
  if (asked.ByClock) registered->UseRealTime();
}

std::string Verdict(const Asked& asked, double ratio, double milliseconds) {
  char text[80] = "";
  bool reached = true;
  std::string all;
  if (asked.Ratio > 0) {
    std::snprintf(text, sizeof text, "%g times", asked.Ratio);
    all = text;
    reached = ratio >= asked.Ratio;
  }
  if (asked.Milliseconds > 0) {
    std::snprintf(text, sizeof text, "%s%g ms", all.empty() ? "" : ", ", asked.Milliseconds);
    all += text;
    reached = reached && milliseconds <= asked.Milliseconds;
  }
  return all.empty() ? "" : all + (reached ? ": reached" : ": NOT reached");
}

}  // namespace

void AddRow(const std::string& work, const std::string& against, const Asked& asked,
            std::function<void()> fast, std::function<void()> other) {
  rows.push_back({work, against, asked});
  Register(FastName(rows.back()), asked, std::move(fast));
  Register(OtherName(rows.back()), asked, std::move(other));
}

void AddRow(const std::string& work, const Asked& asked, std::function<void()> fast) {
  rows.push_back({work, "", asked});
  Register(FastName(rows.back()), asked, std::move(fast));
}

void AddNote(const std::string& text) {
  notes.push_back(text);
}

void MeasureAndPrint(int argc, char** argv) {
  std::vector<char*> arguments(argv, argv + argc);
  static char repetitions[] = "--benchmark_repetitions=31";
  static char interleaving[] = "--benchmark_enable_random_interleaving=true";
  static char minimum[] = "--benchmark_min_time=0.03";
  arguments.insert(arguments.begin() + 1, {repetitions, interleaving, minimum});
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);

  std::printf("| work | ms | against | ms | ratio | asked |\n|---|---|---|---|---|---|\n");
  for (const Row& row : rows) {
    const double fast = collector.Median(FastName(row));
    if (fast == 0) continue;
    const double other = row.against.empty() ? 0 : collector.Median(OtherName(row));
    std::printf("| %s | %.4g | %s | ", row.work.c_str(), fast, row.against.c_str());
    if (other > 0) std::printf("%.4g", other);
    std::printf(" | ");
    if (other > 0) std::printf("%.1f", other / fast);
    std::printf(" | %s |\n", Verdict(row.asked, other / fast, fast).c_str());
  }
  for (const std::string& note : notes) std::printf("\n%s\n", note.c_str());
}

void Keep(const void* result) {
  benchmark::DoNotOptimize(result);
  benchmark::ClobberMemory();
}

}  // namespace kestrel::bench
