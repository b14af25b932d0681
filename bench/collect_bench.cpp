// Building the copy list of a playlist: the time of a row must not grow with the number of rows.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <memory>
#include <vector>

#include "Silent.h"
#include "flashcard/RaccoltaMp3.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"

namespace {

using namespace kvr5;

/// A playlist database of `rows` rows, each of a file of its own: every other one with a copy
/// under its alias in the project, the others at their source.
class Playlist {
 public:
  explicit Playlist(int rows) {
    namespace fs = std::filesystem;
    fs::create_directories(folder_.Path / "project");
    fs::create_directories(folder_.Path / "music");
    fs::copy(fs::path(KVR5_STAGED_PROGRAM) / "source.mdb", folder_.Path / "project/playlist.mdb");
    bench_.C.Stato.CartellaProgetto = bench_.System(folder_.Path / "project");
    bench_.C.Stato.PercorsoMemoryCard = "E:\\";
    Fill(rows);
  }

  std::size_t Collect() {
    Connection connection(bench_.Files);
    Recordset rows;
    Ignora(connection.Open(bench_.C.Stato.CartellaProgetto + "\\playlist.mdb"));
    Ignora(rows.Open(connection, "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC"));
    ListaCopia list;
    if (!RaccogliMp3(bench_.C, Passata::Playlist, rows, list, "playlist.mdb",
                     bench_.C.Stato.PercorsoMemoryCard)
             .Riuscita)
      std::abort();
    return list.ListaSorgenti().size();
  }

 private:
  void Fill(int count) {
    Connection connection(bench_.Files);
    Ignora(connection.Open(bench_.C.Stato.CartellaProgetto + "\\playlist.mdb"));
    const Transaction transaction(connection);
    const std::string music = bench_.System(folder_.Path / "music") + "\\";
    for (int i = 0; i < count; ++i) {
      const std::string name = "track " + std::to_string(i) + ".mp3";
      const std::string alias =
          "P" + std::to_string(1 + i / 500) + "-" + std::to_string(1 + i % 500) + ".mp3";
      std::ofstream(folder_.Path / (i % 2 == 0 ? "music/" + name : "project/" + alias)) << "x";
      if (connection.Execute("INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],"
                             "[NPlaylist],[IDSched]) VALUES(" +
                             std::to_string(1 + i % 500) + ",'" + name + "','" + music + "','" +
                             alias + "'," + std::to_string(1 + i / 500) + ",0)")) {
        std::abort();
      }
    }
  }

  bench::WorkFolder folder_;
  bench::Bench bench_;
};

void BuildList(benchmark::State& state) {
  const auto rows = static_cast<int>(state.range(0));
  Playlist playlist(rows);
  for (auto _ : state) benchmark::DoNotOptimize(playlist.Collect());
  state.counters["us_per_row"] =
      benchmark::Counter(static_cast<double>(state.iterations()) * rows,
                         benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(BuildList)->Arg(1000)->Arg(5000)->Arg(20000)->Repetitions(5)->UseRealTime()->Unit(
    benchmark::kMillisecond);

/// Prints the usual table and, at the end, the ratio of the best times of a row.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const auto& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const double rows = std::stod(run.run_name.args);
      const double row = run.GetAdjustedRealTime() / rows;
      auto& best = best_.try_emplace(rows, row).first->second;
      best = std::min(best, row);
    }
  }
  void Finalize() override {
    if (best_.size() < 2) return;
    std::printf("time of a row, %.0f rows to %.0f rows: ratio %.2f (limit 1.30)\n",
                best_.rbegin()->first, best_.begin()->first,
                best_.rbegin()->second / best_.begin()->second);
  }

 private:
  std::map<double, double> best_;
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}
