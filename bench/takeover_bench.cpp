// Taking over a playlist database of the Jet engine, beside writing the same rows as a new database
// by bare prepared SQLite; and whether a row costs more where there are many: what each costs
// beyond that of a file without rows, which waits for the disk a few times whatever it holds. The
// contenders take turns and the quickest round of each counts.
#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>

#include "Silent.h"
#include "platform/db/Connection.h"
#include "projects/Subentro.h"
#include "support/ScriviJet.h"

namespace {

using namespace kvr5;
namespace fs = std::filesystem;

constexpr int kRounds = 9;
using Rows = std::vector<std::vector<DbValue>>;

double Seconds(const auto& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

Rows Tracks(std::int64_t count) {
  Rows rows;
  for (std::int64_t i = 1; i <= count; ++i) {
    const std::string number = std::to_string(i);
    rows.push_back({i, "Track number " + number + ".mp3", "C:\\Music\\Shop\\Morning\\",
                    "P01-" + number + ".mp3", i % 500 + 1, i / 500 + 1, std::int64_t{0}});
  }
  return rows;
}

/// The rows as a new database of ours, by nothing but SQLite: what can't be avoided.
void WriteBare(bench::Bench& bench, const fs::path& path, const Rows& rows) {
  fs::copy_file(KVR5_STAGED_PROGRAM "/source.mdb", path);
  Connection connection(bench.Files);
  if (connection.Open(bench.System(path))) std::abort();
  sqlite3* const handle = connection.Handle();
  sqlite3_stmt* add = nullptr;
  sqlite3_prepare_v2(handle, "INSERT INTO List VALUES(?,?,?,?,?,?,?)", -1, &add, nullptr);
  sqlite3_exec(handle, "BEGIN", nullptr, nullptr, nullptr);
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      const int parameter = static_cast<int>(i) + 1;
      if (const auto* number = std::get_if<std::int64_t>(&row[i])) {
        sqlite3_bind_int64(add, parameter, *number);
      } else {
        sqlite3_bind_text(add, parameter, std::get<std::string>(row[i]).c_str(), -1, SQLITE_STATIC);
      }
    }
    if (sqlite3_step(add) != SQLITE_DONE) std::abort();
    sqlite3_reset(add);
  }
  sqlite3_finalize(add);
  sqlite3_exec(handle, "COMMIT", nullptr, nullptr, nullptr);
}

/// The quickest of the rounds of both contenders, in seconds.
struct Times {
  double TakenOver = std::numeric_limits<double>::max();
  double Written = std::numeric_limits<double>::max();
};

Times Measure(bench::Bench& bench, const fs::path& project, std::int64_t count) {
  const Rows rows = Tracks(count);
  const std::string original = test::FileJet(rows, {});
  Times times;
  for (int round = 0; round < kRounds; ++round) {
    fs::remove_all(project / "Originals");
    std::ofstream(project / "playlist.mdb", std::ios::binary) << original;
    times.TakenOver = std::min(times.TakenOver, Seconds([&] {
                                 const auto end = SubentraNeiDatabase(bench.C).Fine;
                                 if (end != FineSubentro::Compiuto) std::abort();
                               }));
    fs::remove(project / "bare.mdb");
    times.Written =
        std::min(times.Written, Seconds([&] { WriteBare(bench, project / "bare.mdb", rows); }));
  }
  return times;
}

const char* Verdict(double ratio, double limit) {
  return ratio <= limit ? "" : "  TOO MUCH";
}

}  // namespace

int main() {
  constexpr double kRatioLimit = 4;
  constexpr double kGrowthLimit = 1.3;
  constexpr std::int64_t kMany = 20'000;
  bench::Bench bench;
  const bench::WorkFolder folder;
  const fs::path project = folder.Path / "project";
  fs::create_directories(project);
  bench.C.Stato.CartellaProgetto = bench.System(project);
  const double none = Measure(bench, project, 0).TakenOver;
  std::printf("no rows: taken over in %.1f ms\n", none * 1e3);
  double least = std::numeric_limits<double>::max();
  double most = 0;
  for (const std::int64_t count : {200, 2'000, 20'000}) {
    const Times times = Measure(bench, project, count);
    const double row = (times.TakenOver - none) / static_cast<double>(count);
    const double ratio = times.TakenOver / times.Written;
    least = std::min(least, row);
    most = std::max(most, row);
    std::printf("%6lld rows: taken over in %.1f ms, written in %.1f ms, ratio %.2f",
                static_cast<long long>(count), times.TakenOver * 1e3, times.Written * 1e3, ratio);
    if (count == kMany) std::printf(" (limit %.0f)%s", kRatioLimit, Verdict(ratio, kRatioLimit));
    std::printf("; a row costs %.2f us\n", row * 1e6);
  }
  std::printf("the dearest row costs %.2f x the cheapest (limit %.1f)%s\n", most / least,
              kGrowthLimit, Verdict(most / least, kGrowthLimit));
  return 0;
}
