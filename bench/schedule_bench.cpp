// How long the editor of the schedule takes to open, to change the day and to save a full week,
// each beside the work that can't be avoided; and whether the time of a row grows with their
// number. The contenders take turns and the quickest round of each counts.
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "Silent.h"
#include "core/Aiuti.h"
#include "platform/db/Walk.h"
#include "projects/NuovoProgetto.h"
#include "schedule/RighePalinsesto.h"
#include "schedule/SalvaPalinsesto.h"

namespace {

using namespace kvr5;
namespace fs = std::filesystem;

constexpr int kDays = 7;
constexpr int kSegments = 61;
constexpr int kSpots = 8;
constexpr int kRounds = 15;
constexpr std::uint8_t kNo = 2;

template <typename Work>
double Seconds(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The quickest of several times.
struct Best {
  double S = std::numeric_limits<double>::max();
  void Take(double seconds) { S = std::min(S, seconds); }
};

/// A weekly schedule on the disk that is measured; each round works on the same database.
class Week {
 public:
  /// As many spots, eight a segment, the segments divided among the days.
  explicit Week(int spots) {
    auto& state = C().Stato;
    state.CartellaProgetti = bench_.System(folder_.Path);
    state.FileLingua = C().CartellaProgramma + "\\Language\\English.lan";
    state.PlayerType = 4;
    state.PlayerName = "KVR5";
    if (CreaProgettoKvr5(C(), "job", 2, {}) != EsitoNuovo::Creato) std::abort();
    state.PlayerType = 3;  // the editor looks at these alone
    state.PlayerMode = 3;
    fs::create_directories(folder_.Path / "music");
    fs::copy_file(Database(), Master());
    Fill(spots);
    Restore();
  }

  Contesto& C() { return bench_.C; }
  std::string System(const fs::path& path) { return bench_.System(path); }
  fs::path Database() const { return folder_.Path / "job/scheduler.mdb"; }

  /// Puts the database back, nothing of the round before left to be written.
  void Restore() {
    fs::copy_file(Master(), Database(), fs::copy_options::overwrite_existing);
    sync();
  }

  double Save() {
    Restore();
    EditorPalinsesto editor(C());
    editor.Carica();
    editor.PrimoGiorno();
    FinestraProgresso progress(C());
    bench_.User.Answer = kNo;
    return Seconds([&] { SalvaPalinsesto(editor, progress); });
  }

  /// What a save leaves in the database and the files, written once and flushed: the rows straight
  /// to SQLite by one prepared statement, or by the program's own layer.
  double WriteOnce(bool byLayer) {
    const fs::path to = folder_.Path / "once";
    fs::remove_all(to);
    fs::create_directories(to);
    std::vector<std::pair<std::string, std::string>> files;
    for (int day = 1; day <= kDays; ++day) {
      const std::string name = std::to_string(day) + ".pal";
      files.emplace_back(name, Bytes(folder_.Path / "job" / name));
    }
    files.emplace_back("Scheduler.htm", Bytes(folder_.Path / "job/Scheduler.htm"));
    fs::copy_file(fs::path(KVR5_STAGED_PROGRAM) / "source.mdb", to / "new.mdb");
    Connection saved(bench_.Files);
    if (saved.Open(System(Database()))) std::abort();
    const auto statements = Statements(saved);
    const auto spots = Spots(saved);
    saved.Close();
    sync();
    return Seconds([&] {
      Connection connection(bench_.Files);
      if (connection.Open(System(to / "new.mdb"))) std::abort();
      {
        const Transaction all(connection);
        for (const std::string& each : statements) {
          if (byLayer || each.starts_with(kHead)) Ignora(connection.Execute(each));
        }
        if (!byLayer) Insert(connection, spots);
      }
      connection.Close();
      for (const auto& [name, bytes] : files) WriteFlushed(to / name, bytes);
    });
  }

 private:
  fs::path Master() const { return folder_.Path / "master.mdb"; }

  void Fill(int spots) {
    Connection connection(bench_.Files);
    if (connection.Open(System(Master()))) std::abort();
    const Transaction all(connection);
    const int segments = (spots + kSpots - 1) / kSpots;
    const int each = (segments + kDays - 1) / kDays;
    const std::string music = System(folder_.Path / "music") + "\\";
    for (int i = 0; i < segments; ++i) {
      const std::string day = std::to_string(i / each + 1);
      const int minute = i % each * 23;
      Run(connection, "INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(" + day + ",#" +
                          RiempiZeri(std::to_string(minute / 60), 2) + "." +
                          RiempiZeri(std::to_string(minute % 60), 2) + "#)");
      for (int pos = 1; pos <= kSpots && i * kSpots + pos <= spots; ++pos) {
        Run(connection,
            "INSERT INTO [List] ([FileName],[FilePath],[Pos],[NPlaylist],[IDSched]) VALUES('spot " +
                std::to_string(i * kSpots + pos) + ".mp3','" + music + "'," + std::to_string(pos) +
                "," + day + "," + std::to_string(i + 1) + ")");
      }
    }
  }
  static void Run(Connection& connection, const std::string& statement) {
    if (connection.Execute(statement)) std::abort();
  }

  static constexpr const char* kHead = "INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(";
  static constexpr std::array kColumns{"FileName", "FilePath",  "Alias",
                                       "Pos",      "NPlaylist", "IDSched"};
  using Columns = std::vector<std::string>;

  static std::vector<Columns> Spots(Connection& connection) {
    std::vector<Columns> spots;
    Recordset rows;
    Ignora(rows.Open(connection, "SELECT * FROM [List] ORDER BY [ID]"));
    Ignora(WalkRows(rows, [&] {
      Columns& spot = spots.emplace_back();
      for (const char* column : kColumns) spot.push_back(rows.Text(column));
      return true;
    }));
    return spots;
  }
  static void Insert(Connection& connection, const std::vector<Columns>& spots) {
    sqlite3_stmt* add = nullptr;
    sqlite3_prepare_v2(connection.Handle(),
                       "INSERT INTO List (FileName,FilePath,Alias,Pos,NPlaylist,IDSched) "
                       "VALUES (?,?,?,?,?,?)",
                       -1, &add, nullptr);
    for (const Columns& each : spots) {
      for (std::size_t i = 0; i < each.size(); ++i) {
        sqlite3_bind_text(add, static_cast<int>(i) + 1, each[i].c_str(), -1, SQLITE_STATIC);
      }
      if (sqlite3_step(add) != SQLITE_DONE) std::abort();
      sqlite3_reset(add);
    }
    sqlite3_finalize(add);
  }

  /// The rows of both tables as the layer's own statements.
  static std::vector<std::string> Statements(Connection& connection) {
    std::vector<std::string> statements;
    Recordset rows;
    Ignora(rows.Open(connection, "SELECT * FROM [HEAD] ORDER BY [ID]"));
    Ignora(WalkRows(rows, [&] {
      statements.push_back(kHead + rows.Text("NScheduler") + ",#" + rows.Text("StartTime") + "#)");
      return true;
    }));
    rows.Close();
    Ignora(rows.Open(connection, "SELECT * FROM [List] ORDER BY [ID]"));
    Ignora(WalkRows(rows, [&] {
      statements.push_back(
          "INSERT INTO [LIST] ([FileName],[FilePath],[Alias],[Pos],[NPlaylist],[IDSched]) "
          "VALUES('" +
          rows.Text("FileName") + "','" + rows.Text("FilePath") + "','" + rows.Text("Alias") +
          "'," + rows.Text("Pos") + "," + rows.Text("NPlaylist") + "," + rows.Text("IDSched") +
          ")");
      return true;
    }));
    return statements;
  }
  static std::string Bytes(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  static void WriteFlushed(const fs::path& path, const std::string& bytes) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (file < 0 || write(file, bytes.data(), bytes.size()) < 0 || fsync(file) != 0) std::abort();
    close(file);
  }

  bench::WorkFolder folder_;
  bench::Bench bench_;
};

/// Reads all columns of the rows of a query.
std::size_t Read(Connection& connection, const std::string& query,
                 std::initializer_list<const char*> columns) {
  std::size_t bytes = 0;
  Recordset rows;
  if (rows.Open(connection, query)) std::abort();
  Ignora(WalkRows(rows, [&] {
    for (const char* column : columns) bytes += rows.Text(column).size();
    return true;
  }));
  return bytes;
}

/// The segments and spots of a day, or with "" of the week, read once.
double ReadRows(Connection& connection, const std::string& day) {
  const auto where = [&](const char* column) {
    return day.empty() ? std::string() : std::string(" WHERE [") + column + "]=" + day;
  };
  std::size_t bytes = 0;
  const double seconds = Seconds([&] {
    bytes += Read(
        connection,
        "SELECT * FROM [HEAD]" + where("NScheduler") + " ORDER BY [NScheduler],[StartTime] ASC",
        {"ID", "NScheduler", "StartTime"});
    bytes += Read(
        connection,
        "SELECT * FROM [List]" + where("NPlaylist") + " ORDER BY [NPlaylist],[IDSched],[Pos] ASC",
        {"ID", "FileName", "FilePath", "Alias", "Pos", "NPlaylist", "IDSched"});
  });
  if (bytes == 0) std::abort();
  return seconds;
}

void CompareOpening() {
  Week week(kDays * kSegments * kSpots);
  Best open;
  Best change;
  Best all;
  Best one;
  Best copy;
  for (int round = 0; round < kRounds; ++round) {
    sync();
    EditorPalinsesto editor(week.C());
    SettimanaPalinsesto glance;
    open.Take(Seconds([&] {
      editor.Carica();
      editor.PrimoGiorno();
      const auto rows = RigheDellaGriglia(editor);
      glance.Leggi(editor);
      glance.Rinnova(editor.GiornoCorrente(), rows);
    }));
    for (std::int16_t day = 2; day <= kDays; ++day) {
      change.Take(Seconds([&] {
        editor.ScegliGiorno(day);
        const auto rows = RigheDellaGriglia(editor);
        glance.Rinnova(day, rows);
        if (rows.size() != kSegments || rows.back().Spot.size() != kSpots) std::abort();
      }));
      one.Take(ReadRows(editor.ConnessionePalinsesto(), std::to_string(day)));
    }
    editor.Chiudi();
    sync();
    CopiaDiLavoro working(week.C(), "scheduler.mdb", "tmpScheduler.mdb");
    const double copied = Seconds([&] { working.Apri(); });
    copy.Take(copied);
    all.Take(copied + ReadRows(working.Connessione(), ""));
  }
  std::printf(
      "a week of %d segments and %d spots opened %.2f ms, its rows read %.2f ms (of it the copy, "
      "on "
      "both sides, %.2f ms): ratio %.2f (limit 3)\n",
      kDays * kSegments, kDays * kSegments * kSpots, open.S * 1e3, all.S * 1e3, copy.S * 1e3,
      open.S / all.S);
  std::printf("another day of it %.2f ms, its rows read %.2f ms: ratio %.2f (limit 3)\n",
              change.S * 1e3, one.S * 1e3, change.S / one.S);
}

/// Saving without copies. What is the same for few rows as for many (seven files, the report's
/// head, the database copied and flushed) is taken off by the difference to the smallest number.
void CompareSaves() {
  std::map<int, Best> curve;
  std::map<int, Best> once;
  std::map<int, Best> layer;
  for (const int spots : {100, 400, 800, 1600, kDays * kSegments * kSpots}) {
    Week week(spots);
    for (int round = 0; round < kRounds; ++round) {
      curve[spots].Take(week.Save());
      once[spots].Take(week.WriteOnce(false));
      layer[spots].Take(week.WriteOnce(true));
    }
  }
  for (const auto& [spots, best] : curve) {
    std::printf(
        "save of %d spots %.2f ms (%.1f us each), written once %.2f ms: ratio %.2f (limit 4), by "
        "the "
        "database layer %.2f ms: ratio %.2f",
        spots, best.S * 1e3, best.S / spots * 1e6, once[spots].S * 1e3, best.S / once[spots].S,
        layer[spots].S * 1e3, best.S / layer[spots].S);
    const auto& [least, first] = *curve.begin();
    if (spots > least) {
      std::printf("; each beyond the first %d: %.2f us", least,
                  (best.S - first.S) / (spots - least) * 1e6);
    }
    std::printf("\n");
  }
}

}  // namespace

int main() {
  CompareOpening();
  CompareSaves();
  return 0;
}
