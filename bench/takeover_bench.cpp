// Taking over a playlist database of the Jet engine, beside writing the same rows as a new database
// by bare prepared SQLite; and whether a row costs more where there are many. The contenders take
// turns and the quickest round of each counts.
#include <sqlite3.h>

#include <array>
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

}  // namespace

int main() {
  bench::Bench bench;
  const bench::WorkFolder folder;
  const fs::path project = folder.Path / "project";
  fs::create_directories(project);
  bench.C.Stato.CartellaProgetto = bench.System(project);
  std::array<double, 2> each{};
  constexpr std::array kCounts{200, 20'000};
  for (std::size_t size = 0; size < kCounts.size(); ++size) {
    const Rows rows = Tracks(kCounts[size]);
    const std::string original = test::FileJet(rows, {});
    double takeover = std::numeric_limits<double>::max();
    double bare = takeover;
    for (int round = 0; round < kRounds; ++round) {
      fs::remove_all(project / "Originals");
      std::ofstream(project / "playlist.mdb", std::ios::binary) << original;
      takeover = std::min(takeover, Seconds([&] {
                            if (SubentraNeiDatabase(bench.C).Fine != FineSubentro::Compiuto)
                              std::abort();
                          }));
      fs::remove(project / "bare.mdb");
      bare = std::min(bare, Seconds([&] { WriteBare(bench, project / "bare.mdb", rows); }));
    }
    each[size] = takeover / kCounts[size];
    std::printf("%d rows: taken over in %.1f ms, written in %.1f ms: ratio %.2f (limit 4)\n",
                kCounts[size], takeover * 1e3, bare * 1e3, takeover / bare);
  }
  std::printf("a row of 200: %.2f us, of 20,000: %.2f us\n", each[0] * 1e6, each[1] * 1e6);
  return 0;
}
