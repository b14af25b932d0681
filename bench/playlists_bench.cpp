// How long the editor of playlists takes to add a folder, to import a list, to open and to save,
// each beside the work that can't be avoided; and whether the time of a row grows with their
// number. The contenders take turns and the quickest round of each counts.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <map>

#include "PlaylistProject.h"
#include "core/ListaCopia.h"
#include "mp3/modMp3Infos.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/ImportaPlaylist.h"
#include "projects/CopiaDiLavoro.h"

namespace {

using namespace kvr5;
using bench::PlaylistProject;
using bench::Seconds;
using bench::Sources;

constexpr std::int16_t kOstrel = 3;
constexpr std::int16_t kKvr5 = 4;
constexpr std::int16_t kNamed = 9;
constexpr std::uint8_t kYes = 1;
constexpr std::uint8_t kNo = 2;
constexpr int kRounds = 15;

/// The quickest of several times.
struct Best {
  double S = std::numeric_limits<double>::max();
  void Take(double seconds) { S = std::min(S, seconds); }
};

/// `count` good files of 42 KB: 100 frames of MPEG 1 Layer III, 128 kbit/s, 44,100 Hz.
std::vector<std::string> MakeMp3s(PlaylistProject& project, int count) {
  std::string bytes;
  for (int i = 0; i < 100; ++i) bytes += std::string("\xFF\xFB\x90\x64", 4) + std::string(413, 'x');
  std::vector<std::string> names;
  for (int i = 0; i < count; ++i) {
    names.push_back("song " + std::to_string(i) + ".mp3");
    std::ofstream(project.Music() / names.back(), std::ios::binary) << bytes;
  }
  sync();
  return names;
}

/// Has the host drop what it keeps of the files, as if they had not been read for long.
void Forget(const PlaylistProject& project, const std::vector<std::string>& names) {
  for (const auto& name : names) {
    const int file = open((project.Music() / name).c_str(), O_RDONLY | O_CLOEXEC);
    posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
    close(file);
  }
}

/// The analysis of all files and nothing else.
double Analyse(PlaylistProject& project, const std::vector<std::string>& names) {
  modMp3Infos reader(project.C().Files);
  const std::string folder = project.System(project.Music()) + "\\";
  return Seconds([&] {
    for (const auto& name : names) {
      if (reader.LeggiInfoMp3(folder + name).Duration == 0) std::abort();
    }
  });
}

/// Runs `work` on an opened editor; aborts when it doesn't end with `rows` rows.
template <typename Work>
double InEditor(PlaylistProject& project, int rows, Work work) {
  project.Restore();
  EditorPlaylist editor(project.C());
  modMp3Infos reader(project.C().Files);
  editor.Carica();
  const double seconds = Seconds([&] { work(editor, reader); });
  if (editor.Quanti() != rows) std::abort();
  return seconds;
}

std::string WriteList(PlaylistProject& project, int lines, int there) {
  const std::filesystem::path path = project.Music() / "list.m3u";
  std::ofstream out(path, std::ios::binary);
  const std::string folder = project.System(project.Music()) + "\\";
  const int every = lines / there;
  for (int i = 0; i < lines; ++i) {
    const bool good = i % every == 0 && i / every < there;
    out << folder << (good ? "song " : "missing ") << (good ? i / every : i) << ".mp3\r\n";
  }
  return project.System(path);
}

/// A folder added and a list imported, against the analysis of the same files.
void CompareAnalysis(bool warm) {
  constexpr int kFiles = 500;
  PlaylistProject project(kKvr5, 5);
  const auto names = MakeMp3s(project, kFiles);
  const std::string list = WriteList(project, kFiles, kFiles);
  Best add;
  Best imported;
  Best alone;
  for (int round = 0; round < kRounds; ++round) {
    if (!warm) Forget(project, names);
    alone.Take(Analyse(project, names));
    if (!warm) Forget(project, names);
    add.Take(InEditor(project, kFiles, [&](auto& editor, auto& reader) {
      AggiungiTuttiFiles(editor, reader, project.System(project.Music()), names);
    }));
    if (!warm) Forget(project, names);
    imported.Take(InEditor(project, kFiles, [&](auto& editor, auto& reader) {
      ImportaPlaylist(editor, reader, list);
    }));
  }
  const char* cache = warm ? "in the host's cache" : "not in the cache";
  std::printf("500 files %s, analysis %.2f ms:\n", cache, alone.S * 1e3);
  std::printf("  folder added  %7.2f ms: ratio %.2f (limit 1.5)\n", add.S * 1e3, add.S / alone.S);
  std::printf("  list imported %7.2f ms: ratio %.2f\n", imported.S * 1e3, imported.S / alone.S);
}

/// Prints the time of a row for each number of rows. Where it falls the cost of the list files,
/// as many for few rows as for many, is shared by more of them.
void PrintCurve(const char* what, const std::map<int, Best>& curve) {
  std::printf("%s:", what);
  double least = std::numeric_limits<double>::max();
  double most = 0;
  for (const auto& [rows, best] : curve) {
    const double row = best.S / rows;
    std::printf(" %dk %.2f us,", rows / 1000, row * 1e6);
    least = std::min(least, row);
    most = std::max(most, row);
  }
  const double grown = curve.rbegin()->second.S / curve.rbegin()->first /
                       (curve.begin()->second.S / curve.begin()->first);
  std::printf(" largest to smallest %.2f (limit 1.3), last to first %.2f\n", most / least, grown);
}

/// Lists of which one line in a hundred names a file that is there.
void CompareImports() {
  PlaylistProject project(kKvr5, 5);
  MakeMp3s(project, 500);
  std::map<int, Best> curve;
  for (int round = 0; round < kRounds; ++round) {
    for (const int lines : {1000, 5000, 20000, 50000}) {
      const std::string list = WriteList(project, lines, lines / 100);
      curve[lines].Take(InEditor(project, lines / 100, [&](auto& editor, auto& reader) {
        ImportaPlaylist(editor, reader, list);
      }));
    }
  }
  PrintCurve("import, a line of", curve);
}

/// Saving without copies: the time of a row, and of the whole beside writing it once, straight to
/// SQLite and by the program's own layer.
void CompareSaves(const char* what, std::int16_t model, std::int16_t mode, int lists) {
  std::map<int, Best> curve;
  std::map<int, Best> once;
  std::map<int, Best> layer;
  for (const int rows : {5000, 10000, 20000, 50000}) {
    PlaylistProject project(model, mode);
    project.Fill(rows, lists);
    for (int round = 0; round < 5; ++round) {
      curve[rows].Take(project.Save(kNo));
      once[rows].Take(project.WriteOnce(false));
      layer[rows].Take(project.WriteOnce(true));
    }
    const auto saved = project.SavedTracks();
    if (static_cast<int>(saved.size()) != rows || saved.back().Alias.empty()) std::abort();
  }
  PrintCurve(what, curve);
  for (const auto& [rows, best] : curve) {
    std::printf(
        "  %dk: save %.1f ms, written once %.1f ms: ratio %.2f (limit 4); the rows by the database "
        "layer's statements %.1f ms: ratio %.2f\n",
        rows / 1000, best.S * 1e3, once[rows].S * 1e3, best.S / once[rows].S, layer[rows].S * 1e3,
        best.S / layer[rows].S);
  }
}

/// Saving with the answer "yes" where nothing gets copied: no row comes onto the copy list, or all
/// do and the copy is cancelled at its first file.
void CompareCopyList(const char* what, Sources sources) {
  std::map<int, Best> curve;
  for (const int rows : {5000, 10000, 20000}) {
    PlaylistProject project(kKvr5, 5);
    project.Fill(rows, 99, sources);
    for (int round = 0; round < 5; ++round) {
      curve[rows].Take(project.Save(kYes, false));
      if (project.C().Stato.AnnullatoDaUtente != (sources == Sources::Elsewhere)) std::abort();
    }
  }
  PrintCurve(what, curve);
}

/// The membership test of the copy list by itself, where rows of an imported list are relative:
/// such a path may stand anywhere in another one.
void CompareRelativeRows() {
  constexpr int kTracks = 20;
  std::map<int, Best> curve;
  for (const int rows : {5000, 10000, 20000, 50000}) {
    for (int round = 0; round < 3; ++round) {
      ListaCopia list;
      curve[rows].Take(Seconds([&] {
        for (int i = 0; i < rows; ++i) {
          const std::string file = "album" + std::to_string(i / kTracks) + "\\track " +
                                   std::to_string(i % kTracks) + ".mp3";
          if (!list.Contiene(file)) list.Aggiungi(file, "C:\\Hall\\" + file);
        }
      }));
    }
  }
  PrintCurve("copy list of relative rows, a row of", curve);
}

/// Opening the editor on a list of 500 rows against reading them from a copy that is made the same
/// way: the copy counts on both sides.
void CompareOpening(int rows, int lists) {
  PlaylistProject project(kKvr5, 5);
  project.Fill(rows, lists);
  project.Restore();
  Best open;
  Best read;
  Best copy;
  for (int round = 0; round < 2 * kRounds; ++round) {
    sync();
    EditorPlaylist editor(project.C());
    open.Take(Seconds([&] { editor.Carica(); }));
    editor.Chiudi();
    sync();
    CopiaDiLavoro working(project.C(), "playlist.mdb", "tmpPlaylist.mdb");
    std::size_t bytes = 0;
    const double copied = Seconds([&] { working.Apri(); });
    const double walked = Seconds([&] {
      Recordset all;
      Ignora(all.Open(working.Connessione(),
                      "SELECT * FROM [List] WHERE [NPlaylist]=1 ORDER BY [Pos] ASC"));
      Ignora(WalkRows(all, [&] {
        for (const char* column : {"ID", "FileName", "FilePath", "Alias", "Pos", "NPlaylist"}) {
          bytes += all.Text(column).size();
        }
        return true;
      }));
    });
    if (bytes == 0) std::abort();
    copy.Take(copied);
    read.Take(copied + walked);
  }
  std::printf(
      "editor opened on 500 of %d rows %.2f ms, the rows read %.2f ms (of it the copy, on both "
      "sides, %.2f ms): ratio %.2f (limit 2)\n",
      rows, open.S * 1e3, read.S * 1e3, copy.S * 1e3, open.S / read.S);
}

}  // namespace

int main() {
  CompareAnalysis(true);
  CompareAnalysis(false);
  CompareImports();
  CompareOpening(500, 1);
  CompareOpening(49500, 99);
  CompareSaves("save of numbered lists, a row of", kKvr5, 5, 99);
  CompareSaves("save of named lists, a row of", kOstrel, kNamed, 99);
  CompareSaves("save of the one list, a row of", kKvr5, 4, 1);
  CompareCopyList("save, the files at home, a row of", Sources::AtHome);
  CompareCopyList("save, all on the copy list, a row of", Sources::Elsewhere);
  CompareRelativeRows();
  return 0;
}
