#pragma once

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "Silent.h"
#include "core/FinestraProgresso.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/db/Walk.h"
#include "playlists/EditorPlaylist.h"
#include "playlists/SalvaPlaylist.h"
#include "projects/CartellaProgetto.h"
#include "projects/NuovoProgetto.h"

namespace kvr5::bench {

namespace fs = std::filesystem;

template <typename Work>
double Seconds(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// A row of the table of tracks.
struct Track {
  std::string FileName;
  std::string FilePath;
  std::string Alias;
  std::int64_t Pos = 0;
  std::int64_t NPlaylist = 0;
};

/// Adds rows as quickly as SQLite takes them: one statement, one transaction. "" is Null.
inline void Insert(Connection& connection, const std::vector<Track>& tracks) {
  const Transaction all(connection);
  sqlite3_stmt* add = nullptr;
  sqlite3_prepare_v2(connection.Handle(),
                     "INSERT INTO List (FileName,FilePath,Alias,Pos,NPlaylist,IDSched) "
                     "VALUES (?,?,?,?,?,0)",
                     -1, &add, nullptr);
  for (const Track& each : tracks) {
    int column = 0;
    for (const std::string* text : {&each.FileName, &each.FilePath, &each.Alias}) {
      const char* value = text->empty() ? nullptr : text->c_str();
      sqlite3_bind_text(add, ++column, value, -1, SQLITE_STATIC);
    }
    sqlite3_bind_int64(add, ++column, each.Pos);
    sqlite3_bind_int64(add, ++column, each.NPlaylist);
    if (sqlite3_step(add) != SQLITE_DONE) std::abort();
    sqlite3_reset(add);
  }
  sqlite3_finalize(add);
}

/// The same by the program's own layer, a statement a row.
inline void InsertByLayer(Connection& connection, const std::vector<Track>& tracks) {
  const Transaction all(connection);
  for (const Track& each : tracks) {
    if (connection.Execute("INSERT INTO [LIST] ([FileName],[FilePath],[Alias],[Pos],[NPlaylist],"
                           "[IDSched]) VALUES('" +
                           each.FileName + "','" + each.FilePath + "','" + each.Alias + "'," +
                           std::to_string(each.Pos) + "," + std::to_string(each.NPlaylist) +
                           ",0)")) {
      std::abort();
    }
  }
}

inline std::vector<Track> AllTracks(Connection& connection) {
  std::vector<Track> tracks;
  Recordset rows;
  Ignora(rows.Open(connection, "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC"));
  Ignora(WalkRows(rows, [&] {
    tracks.push_back({rows.Text("FileName"), rows.Text("FilePath"), rows.Text("Alias"),
                      rows.Number("Pos"), rows.Number("NPlaylist")});
    return true;
  }));
  return tracks;
}

/// Where the files of the tracks are.
enum class Sources {
  Elsewhere,  ///< in a folder of music
  AtHome,     ///< in the project's folder
};

/// A project of playlists on the disk that is measured, for one program. Each round works on the
/// same database, whatever the one before did.
class PlaylistProject {
 public:
  PlaylistProject(std::int16_t model, std::int16_t mode) {
    auto& state = C().Stato;
    state.CartellaProgetti = bench_.System(folder_.Path);
    state.FileLingua = C().CartellaProgramma + "\\Language\\English.lan";
    state.PlayerType = 4;
    state.PlayerName = "KVR5";
    if (CreaProgettoKvr5(C(), "job", 5, {}) != EsitoNuovo::Creato) std::abort();
    state.PlayerType = model;  // the editor looks at these alone
    state.PlayerMode = mode;
    fs::create_directories(Music());
    fs::copy_file(Database(), Master());
  }

  Contesto& C() { return bench_.C; }
  Silent& User() { return bench_.User; }
  fs::path Music() const { return folder_.Path / "music"; }
  std::string System(const fs::path& host) { return bench_.System(host); }

  /// Gives the project that many tracks, each of a file of its own and without an alias.
  void Fill(int rows, int lists, Sources sources = Sources::Elsewhere) {
    const fs::path folder = sources == Sources::AtHome ? folder_.Path / "job" : Music();
    const std::string stored = System(folder) + "\\";
    const int each = (rows + lists - 1) / lists;
    std::vector<Track> tracks;
    for (int i = 0; i < rows; ++i) {
      const std::string name = "track " + std::to_string(i) + ".mp3";
      fs::create_hard_link(Master(), folder / name);  // quicker to make and to remove than files
      tracks.push_back({name, stored, "", i % each + 1, i / each + 1});
    }
    Connection connection(bench_.Files);
    if (connection.Open(System(Master()))) std::abort();
    Insert(connection, tracks);
    for (int i = 1; i <= lists && C().Stato.PlayerMode == 9; ++i) {
      const std::string number = std::to_string(i);
      Ignora(connection.Execute("INSERT INTO [HEAD] ([Descript],[NScheduler]) VALUES('List " +
                                number + "'," + number + ")"));
    }
  }

  /// Puts the database back, nothing of the round before left to be written.
  void Restore() {
    fs::copy_file(Master(), Database(), fs::copy_options::overwrite_existing);
    sync();
  }

  /// With `copies` false the copy of the MP3 files is cancelled at its first file.
  double Save(std::uint8_t answer, bool copies = true) {
    Restore();
    EditorPlaylist editor(C());
    editor.Carica();
    FinestraProgresso progress(C());
    User().Answer = answer;
    User().Copies = copies;
    const double seconds = Seconds([&] { SalvaPlaylist(editor, progress); });
    User().Copies = true;
    return seconds;
  }

  /// What a save leaves in the database and the lists, written once and flushed.
  double WriteOnce(bool byLayer) {
    const fs::path to = folder_.Path / "once";
    fs::remove_all(to);
    fs::create_directories(to);
    const auto lists = Lists();
    const auto tracks = SavedTracks();
    fs::copy_file(fs::path(KVR5_STAGED_PROGRAM) / "source.mdb", to / "new.mdb");
    sync();
    return Seconds([&] {
      Connection connection(bench_.Files);
      if (connection.Open(System(to / "new.mdb"))) std::abort();
      byLayer ? InsertByLayer(connection, tracks) : Insert(connection, tracks);
      connection.Close();
      for (const auto& [name, bytes] : lists) WriteFlushed(to / name, bytes);
    });
  }

  std::vector<Track> SavedTracks() {
    Connection connection(bench_.Files);
    if (connection.Open(System(Database()))) std::abort();
    return AllTracks(connection);
  }

 private:
  fs::path Database() const { return folder_.Path / "job/playlist.mdb"; }
  fs::path Master() const { return folder_.Path / "master.mdb"; }

  std::vector<std::pair<std::string, std::string>> Lists() const {
    std::vector<std::pair<std::string, std::string>> lists;
    for (const auto& entry : fs::directory_iterator(folder_.Path / "job")) {
      const std::string name = entry.path().filename().string();
      if (!name.ends_with(".m3u") && !name.starts_with("PLAYLIST")) continue;
      std::ifstream in(entry.path(), std::ios::binary);
      lists.emplace_back(name, std::string{std::istreambuf_iterator<char>(in), {}});
    }
    return lists;
  }
  static void WriteFlushed(const fs::path& path, const std::string& bytes) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (file < 0 || write(file, bytes.data(), bytes.size()) < 0 || fsync(file) != 0) std::abort();
    close(file);
  }

  WorkFolder folder_;
  Bench bench_;
};

}  // namespace kvr5::bench
