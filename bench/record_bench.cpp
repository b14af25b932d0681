// Recording 200 files of 5 MB to a folder on the same disk, against cp of the same files followed
// by a sync of the file system; and the peak memory of a recording for small and large files.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>

#include "Silent.h"
#include "core/FinestraProgresso.h"
#include "flashcard/Registrazione.h"
#include "platform/db/Connection.h"
#include "projects/CartellaProgetto.h"
#include "projects/NuovoProgetto.h"

namespace {

using namespace kvr5;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

void WriteFile(const fs::path& path, std::size_t bytes, unsigned seed) {
  std::string piece(1 << 20, '\0');
  for (auto& each : piece) each = static_cast<char>((seed = seed * 1664525U + 1013904223U) >> 24);
  std::ofstream out(path, std::ios::binary);
  for (std::size_t left = bytes; left > 0;) {
    const std::size_t part = std::min(left, piece.size());
    out.write(piece.data(), static_cast<std::streamsize>(part));
    left -= part;
  }
}

/// A playlist project of `count` files of `bytes` each, and a folder for the card.
class Job {
 public:
  Job(int count, std::size_t bytes) {
    for (const char* name : {"music", "card", "copy", "projects"}) {
      fs::create_directories(folder_.Path / name);
    }
    auto& state = bench_.C.Stato;
    state.CartellaProgetti = bench_.System(folder_.Path / "projects");
    state.PercorsoMemoryCard = bench_.System(folder_.Path / "card") + "\\";
    state.PlayerType = 4;
    state.PlayerName = "KVR5";
    if (CreaProgettoKvr5(bench_.C, "job", 5, {}) != EsitoNuovo::Creato) std::abort();
    Connection connection(bench_.Files);
    Ignora(connection.Open(FileDelProgetto(bench_.C, "playlist.mdb")));
    for (int i = 1; i <= count; ++i) {
      const std::string name = std::to_string(i) + ".mp3";
      WriteFile(folder_.Path / "music" / name, bytes, static_cast<unsigned>(i));
      Ignora(connection.Execute(
          "INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],[IDSched]) "
          "VALUES(" +
          std::to_string(i) + ",'" + name + "','" + bench_.System(folder_.Path / "music") +
          "\\','" + name + "',1,0)"));
    }
    sync();
  }

  double Record() {
    Empty("card");
    TabellaIngressi inputs(bench_.C);
    FinestraProgresso progress(bench_.C);
    const auto start = Clock::now();
    const auto outcome = RegistraProgettoSuFlash(bench_.C, inputs, progress, bench_.User);
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    if (outcome.Fine != FineRegistrazione::Compiuta) std::abort();
    return seconds;
  }

  double Copy() {
    Empty("copy");
    const std::string to = (folder_.Path / "copy").string();
    const std::string command =
        "cp '" + (folder_.Path / "music").string() + "'/*.mp3 '" + to + "' && sync -f '" + to + "'";
    const auto start = Clock::now();
    if (std::system(command.c_str()) != 0) std::abort();
    return std::chrono::duration<double>(Clock::now() - start).count();
  }

 private:
  void Empty(const char* name) {
    for (const auto& entry : fs::directory_iterator(folder_.Path / name)) fs::remove_all(entry);
    sync();
  }

  bench::WorkFolder folder_;
  bench::Bench bench_;
};

void CompareWithCp() {
  constexpr int kRounds = 5;
  Job job(200, 5'000'000);
  double record = job.Record();
  double copy = job.Copy();
  for (int round = 1; round < kRounds; ++round) {
    record = std::min(record, job.Record());
    copy = std::min(copy, job.Copy());
  }
  std::printf("200 files of 5 MB: recording %.2f s, cp and sync %.2f s: ratio %.2f (limit 1.15)\n",
              record, copy, record / copy);
}

/// Peak memory in MB of a recording of its own process.
double PeakMemory(int count, std::size_t bytes) {
  int pipes[2];
  if (pipe(pipes) != 0) std::abort();
  const pid_t child = fork();
  if (child == 0) {
    {
      Job job(count, bytes);
      job.Record();
      rusage usage{};
      getrusage(RUSAGE_SELF, &usage);
      if (write(pipes[1], &usage.ru_maxrss, sizeof usage.ru_maxrss) < 0) _exit(1);
    }
    _exit(0);
  }
  long kilobytes = 0;
  if (read(pipes[0], &kilobytes, sizeof kilobytes) != sizeof kilobytes) std::abort();
  waitpid(child, nullptr, 0);
  close(pipes[0]);
  close(pipes[1]);
  return static_cast<double>(kilobytes) / 1024;
}

void CompareMemory() {
  const double small = PeakMemory(20, 100'000);
  const double large = PeakMemory(20, 50'000'000);
  std::printf("peak memory: files of 0.1 MB %.1f MB, of 50 MB %.1f MB: ratio %.2f\n", small, large,
              large / small);
}

}  // namespace

int main() {
  CompareMemory();
  CompareWithCp();
  return 0;
}
