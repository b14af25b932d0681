#pragma once

#include <stdlib.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "core/Contesto.h"
#include "core/SelezioneFlash.h"
#include "platform/HostFileSystem.h"

namespace kvr5::bench {

/// A folder for one run, below the working folder so that it lies on the disk that is measured.
class WorkFolder {
 public:
  WorkFolder() {
    std::string pattern = (std::filesystem::current_path() / "kvr5-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no work folder");
    Path = pattern;
  }
  ~WorkFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(Path, ignored);
  }
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;

  std::filesystem::path Path;
};

/// A user who says nothing and is told nothing; gives one answer to each question.
class Silent : public Dialoghi,
               public Eventi,
               public CopyObserver,
               public Processo,
               public SelezioneFlash {
 public:
  Risposta MostraMessaggio(const Messaggio& /*messaggio*/) override { return Risposta::Ok; }
  std::uint8_t MostraSiNo(const BoxSiNo& /*box*/) override { return Answer; }
  std::string SfogliaCartella(const std::string& /*titolo*/,
                              const std::string& /*inizio*/) override {
    return {};
  }
  std::string ScegliFile(const std::string& /*titolo*/, const FiltroFile& /*filtro*/,
                         const std::string& /*inizio*/) override {
    return {};
  }
  void LasciaCorrere() override {}
  void ImpostaPuntatore(Puntatore /*puntatore*/) override {}
  bool Progress(const CopyState& /*state*/) override { return Copies; }
  void Failed(const CopyFailure& failure) override {
    throw std::runtime_error("a copy failed: " + failure.File);
  }
  [[noreturn]] void Termina(MotivoFine /*motivo*/) override { std::abort(); }
  void Scegli() override {}
  bool Presente() const override { return true; }

  std::uint8_t Answer = 1;  ///< yes
  bool Copies = true;       ///< false: cancels each copy at its first file
};

/// The real disk and a silent user.
struct Bench {
  PathMap Paths;
  HostFileSystem Files{Paths};
  Silent User;
  OrologioDiSistema Clock;
  Contesto C;

  Bench() : C{Files, User, User, User, Clock, User, "", {}, {}, {}} {
    C.CartellaProgramma = System(KVR5_STAGED_PROGRAM);
  }
  std::string System(const std::filesystem::path& host) {
    return Files.SystemPath(host.string()).Value();
  }
};

}  // namespace kvr5::bench
