#pragma once

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "Silent.h"
#include "core/FinestraProgresso.h"
#include "flashcard/Registrazione.h"
#include "platform/db/Connection.h"
#include "projects/CartellaProgetto.h"
#include "projects/NuovoProgetto.h"

namespace kvr5::bench {

namespace fs = std::filesystem;

/// A file that the player takes: a few frames of MPEG 1 Layer III, then noise of its own.
inline void WriteMusic(const fs::path& path, std::size_t bytes, unsigned seed) {
  constexpr std::size_t kFrame = 417;
  constexpr std::size_t kFrames = 8;
  std::string head;
  for (std::size_t i = 0; i < kFrames; ++i) {
    head += "\xFF\xFB\x90\x64";
    head.resize((i + 1) * kFrame, static_cast<char>(seed & 0x7FU));
  }
  std::string piece(std::size_t{1} << 20U, '\0');
  for (auto& each : piece) each = static_cast<char>((seed = seed * 1664525U + 1013904223U) >> 24U);
  piece.replace(0, head.size(), head);
  std::ofstream out(path, std::ios::binary);
  for (std::size_t left = bytes; left > 0;) {
    const std::size_t part = std::min(left, piece.size());
    out.write(piece.data(), static_cast<std::streamsize>(part));
    left -= part;
  }
}

/// A playlist project of `count` files of `bytes` each, and a folder for the card.
class RecordingJob {
 public:
  RecordingJob(int count, std::size_t bytes) {
    for (const char* name : {"music", "card", "copy", "projects"}) {
      fs::create_directories(Folder(name));
    }
    auto& state = bench_.C.Stato;
    state.CartellaProgetti = bench_.System(Folder("projects"));
    state.PercorsoMemoryCard = bench_.System(Folder("card")) + "\\";
    state.PlayerType = 4;
    state.PlayerName = "KVR5";
    if (CreaProgettoKvr5(bench_.C, "job", 5, {}) != EsitoNuovo::Creato) std::abort();
    Connection connection(bench_.Files);
    Ignora(connection.Open(FileDelProgetto(bench_.C, "playlist.mdb")));
    for (int i = 1; i <= count; ++i) AddTrack(connection, i, bytes);
    connection.Close();
    sync();
  }

  fs::path Folder(const std::string& name) const { return folder_.Path / name; }

  double Record() {
    Empty("card");
    TabellaIngressi inputs(bench_.C);
    FinestraProgresso progress(bench_.C);
    const auto start = Clock::now();
    const auto outcome = RegistraProgettoSuFlash(bench_.C, inputs, progress, bench_.User);
    if (outcome.Fine != FineRegistrazione::Compiuta) std::abort();
    return Since(start);
  }

  double Copy() {
    Empty("copy");
    const std::string to = "'" + Folder("copy").string() + "'";
    return Run("cp '" + Folder("music").string() + "'/*.mp3 " + to + " && sync -f " + to);
  }

  /// Seconds that a command line takes; one that fails ends the bench.
  static double Run(const std::string& command) {
    const auto start = Clock::now();
    if (std::system(command.c_str()) != 0) std::abort();
    return Since(start);
  }

  /// Takes the files out of a folder, nothing of which is left to be written.
  void Empty(const char* name) const {
    for (const auto& entry : fs::directory_iterator(Folder(name))) fs::remove_all(entry);
    sync();
  }

 private:
  using Clock = std::chrono::steady_clock;

  static double Since(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
  }

  void AddTrack(Connection& connection, int number, std::size_t bytes) {
    const std::string name = std::to_string(number) + ".mp3";
    WriteMusic(Folder("music") / name, bytes, static_cast<unsigned>(number));
    Ignora(connection.Execute(
        "INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],[IDSched]) VALUES(" +
        std::to_string(number) + ",'" + name + "','" + bench_.System(Folder("music")) + "\\','" +
        name + "',1,0)"));
  }

  WorkFolder folder_;
  Bench bench_;
};

}  // namespace kvr5::bench
