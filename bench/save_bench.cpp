// Saving a project without copies, against writing the same bytes once, each file flushed; and the
// time that a row of the project report takes, in a large project and in a small one.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

#include "Silent.h"
#include "core/FinestraProgresso.h"
#include "platform/db/Connection.h"
#include "playerconfig/Salvataggio.h"
#include "projects/CartellaProgetto.h"
#include "projects/NuovoProgetto.h"
#include "reports/ReportProgetto.h"

namespace {

using namespace kvr5;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

class NothingCopied : public DomandaSalva {
 public:
  explicit NothingCopied(Contesto& context) : context_(context) {}
  bool Annulla() override { return context_.Stato.SalvaMp3Ingressi = false; }

 private:
  Contesto& context_;
};

template <typename Work>
double Seconds(Work work) {
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double>(Clock::now() - start).count();
}

/// A project of inputs, and beside them a report of playlists to be merged.
class Job {
 public:
  Job(int inputs, int tracks) {
    auto& state = bench_.C.Stato;
    state.CartellaProgetti = bench_.System(folder_.Path);
    state.PlayerType = 4;
    state.PlayerName = "KVR5";
    if (CreaProgettoKvr5(bench_.C, "job", 1, {}) != EsitoNuovo::Creato) std::abort();
    Connection connection(bench_.Files);
    Ignora(connection.Open(FileDelProgetto(bench_.C, "inputcfg.mdb")));
    const Transaction transaction(connection);
    for (int i = 1; i <= inputs; ++i) {
      const std::string code = std::to_string(i);
      Ignora(connection.Execute(
          "INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],[IDSched]) VALUES(" +
          code + ",'gong " + code + ".mp3','C:\\Music\\','" + code + ".mp3',1,0)"));
    }
    std::ofstream page(Project() / "Playlist.htm");
    page << "<BODY>\r\n";
    for (int i = 0; i < tracks; ++i) page << "track number " << i << ".mp3<BR>\r\n";
    page << "</BODY>\r\n</HTML>\r\n";
  }

  void Open() {
    inputs_.Apri();
    controls_.Leggi(bench_.C);
  }
  double Save() {
    FinestraProgresso progress(bench_.C);
    NothingCopied question(bench_.C);
    // A value changes each time: a file that holds all values already isn't written.
    controls_["LOUT"].Numero = (controls_["LOUT"].Numero + 1) % 20;
    return Seconds([&] {
      if (SalvaConfigurazione(bench_.C, {controls_, inputs_, false}, progress, question) !=
          FineSalvataggio::Compiuto) {
        std::abort();
      }
    });
  }
  double Report() {
    return Seconds([&] { ScriviReportProgetto(bench_.C, {&inputs_.Cursore(), false}); });
  }
  /// What a save leaves, written once by the host's own calls.
  double WriteOnce() {
    std::vector<std::pair<fs::path, std::string>> files;
    for (const char* name : {"Config.cfg", "Config.txt", "job.htm"}) {
      std::ifstream in(Project() / name, std::ios::binary);
      files.emplace_back(folder_.Path / name, std::string{std::istreambuf_iterator<char>(in), {}});
    }
    return Seconds([&] {
      for (const auto& [path, bytes] : files) {
        const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (file < 0 || write(file, bytes.data(), bytes.size()) < 0 || fsync(file) != 0) {
          std::abort();
        }
        close(file);
      }
    });
  }

 private:
  fs::path Project() const { return folder_.Path / "job"; }

  bench::WorkFolder folder_;
  bench::Bench bench_;
  ControlliHub controls_;
  TabellaIngressi inputs_{bench_.C};
};

void CompareSave() {
  constexpr int kRounds = 15;
  Job job(255, 0);
  job.Open();
  double save = job.Save();
  double once = job.WriteOnce();
  for (int round = 1; round < kRounds; ++round) {
    save = std::min(save, job.Save());
    once = std::min(once, job.WriteOnce());
  }
  std::printf("save without copies %.2f ms, its bytes once %.2f ms: ratio %.2f (limit 3)\n",
              save * 1e3, once * 1e3, save / once);
}

double PerRow(int inputs, int tracks) {
  constexpr int kRounds = 15;
  Job job(inputs, tracks);
  job.Open();
  double best = job.Report();
  for (int round = 1; round < kRounds; ++round) best = std::min(best, job.Report());
  return best / (inputs + tracks);
}

void CompareRows() {
  const double small = PerRow(85, 1166);
  const double large = PerRow(255, 3500);
  std::printf("report: %.2f us a row of 3,755, %.2f us of 1,251: ratio %.2f (limit 1.3)\n",
              large * 1e6, small * 1e6, large / small);
}

}  // namespace

int main() {
  CompareSave();
  CompareRows();
  return 0;
}
