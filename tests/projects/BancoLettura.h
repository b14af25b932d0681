#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/FinestraProgresso.h"
#include "core/SelezioneFlash.h"
#include "projects/CaricaDaFlash.h"
#include "support/Banco.h"
#include "support/FaultyFileSystem.h"
#include "support/SceltaDaProva.h"

namespace kvr5::test {

/// What lies below a folder: each name with its kind and content.
using Albero = std::map<std::string, std::string>;

/// Reads a tree of the host. Links are entries of their own; of a very large file the length
/// counts. With `tempi` the times of change count too.
inline Albero AlberoDi(const std::filesystem::path& root, bool tempi = false) {
  namespace fs = std::filesystem;
  constexpr std::uintmax_t kMost = std::uintmax_t{16} << 20U;
  Albero tree;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    const fs::path& path = entry.path();
    std::string what = "special";
    if (entry.is_symlink()) {
      what = "link " + fs::read_symlink(path).string();
    } else if (entry.is_directory()) {
      what = "folder";
    } else if (entry.is_regular_file()) {
      what = "file " + std::to_string(entry.file_size());
      if (entry.file_size() <= kMost) {
        std::ifstream in(path, std::ios::binary);
        what.append(std::istreambuf_iterator<char>(in), {});
      }
    }
    if (tempi && !entry.is_symlink()) {
      what += " at " + std::to_string(fs::last_write_time(path).time_since_epoch().count());
    }
    tree[path.lexically_relative(root).string()] = what;
  }
  return tree;
}

/// The names that only one of two trees has, or that differ.
inline std::vector<std::string> Cambiati(const Albero& before, const Albero& after) {
  std::vector<std::string> names;
  for (const auto& [name, what] : before) {
    const auto other = after.find(name);
    if (other == after.end() || other->second != what) names.push_back(name);
  }
  for (const auto& [name, what] : after) {
    if (!before.contains(name)) names.push_back(name);
  }
  return names;
}

/// The tree without what lies at or below some of its names.
inline Albero Senza(Albero tree, const std::vector<std::string>& left) {
  std::erase_if(tree, [&left](const auto& entry) {
    return std::ranges::any_of(left, [&entry](const std::string& name) {
      return entry.first == name || entry.first.starts_with(name + "/");
    });
  });
  return tree;
}

/// The bench over a device that can fail and a volume whose files have attributes.
struct BancoDiScheda {
  std::map<std::string, FatAttributes> Attributi;  ///< by the file's name
  std::optional<HostFileSystem> Volume;
  std::optional<FaultyFileSystem> Guasto;
  Banco B{[this](FileSystem& /*disk*/) -> FileSystem& {
    Volume.emplace(B.Percorsi, [this](const std::string& path, std::uint64_t /*device*/) {
      const auto found = Attributi.find(path.substr(path.rfind('/') + 1));
      return found == Attributi.end() ? std::optional<FatAttributes>() : found->second;
    });
    return Guasto.emplace(*Volume);
  }};
};

/// The list screen of a test: answers the name dialog.
class SchermoDaProva : public SchermoLettura {
 public:
  explicit SchermoDaProva(StatoApplicazione& state) : state_(state) {}
  void ChiediNome(const std::string& nome) override {
    Asked.push_back(nome);
    EXPECT_EQ(state_.ProjectName, "") << "it is emptied before the dialog";
    if (Asking) Asking();
    state_.ProjectName = Answer;
  }
  void Disabilita() override {
    Enabled = false;
    if (Disabling) Disabling();
  }
  void Riabilita() override { Enabled = true; }

  std::vector<std::string> Asked;
  std::string Answer;
  bool Enabled = true;
  std::function<void()> Asking;
  std::function<void()> Disabling;

 private:
  StatoApplicazione& state_;
};

/// A card that is read back into a projects folder that holds nothing yet.
class Lettura : public testing::Test {
 protected:
  void SetUp() override {
    choice.Card = Card();
    s.CartellaProgetto = "C:\\old";
    s.ProjectName = "Old";
  }

  std::string Card() const { return b.Percorso("card") + "\\"; }
  void Put(const std::string& name, const std::string& bytes = "x") const {
    b.Cartella.Write("card/" + name, bytes);
  }
  /// The card's descriptor, `name` in its bytes.
  void Descriptor(const std::string& name) const {
    Put("Config.cfg", "[CONFIG]\r\nProjectName=" + name + "\r\nPlayerType=4\r\nPlayerMode=5\r\n");
  }
  EsitoLettura Read() {
    screen.Enabled = true;
    return CaricaDaFlash(b.C, choice, screen, progress);
  }
  bool Made(const std::string& name) const { return b.Cartella.Exists("program/Projects/" + name); }
  std::filesystem::path Host(const std::string& name) const { return b.Cartella.Host() / name; }
  Albero Tree(bool times = false) const { return AlberoDi(b.Cartella.Host(), times); }
  Albero Copy(const std::string& name) const { return AlberoDi(Host("program/Projects/" + name)); }

  void ExpectBox(const std::string& title, const std::string& text, std::uint32_t colour = 0) {
    const auto box = b.Finestre.Prossimo();
    EXPECT_TRUE(box.SiNo);
    EXPECT_TRUE(box.SoloOk);
    EXPECT_EQ(box.TestoOk, "OK");
    EXPECT_EQ(box.Titolo, title);
    EXPECT_EQ(box.Testo, text);
    EXPECT_EQ(box.Colore, colour);
  }
  void ExpectNoDescriptor() {
    ExpectBox(
        "Project not complete",
        "Missing or incomplete: the file 'config.cfg'\r\nThe folder can't be opened as a project. "
        "Choose another one.");
  }
  void ExpectNoName() {
    ExpectBox("Project not complete", "Missing or incomplete: the file 'config.cfg'");
  }
  void ExpectNoFolder(int number) {
    ExpectBox("Project folder not created",
              "Nothing was copied: the folder for this card's project can't be made.\r\n"
              "Check the projects folder in Folders and settings, then repeat.\r\nSystem code:" +
                  std::to_string(number) + "\r\n" + Error(number).Description());
  }
  void ExpectCancelled() {
    ExpectBox("Open from card",
              "Cancelled: the copy of the project is not complete. Delete its folder before you "
              "open this card again.",
              33023);
  }

  BancoDiScheda bench;
  Banco& b = bench.B;
  StatoApplicazione& s = b.C.Stato;
  SceltaDaProva choice{s};
  SchermoDaProva screen{s};
  FinestraProgresso progress{b.C};
};

}  // namespace kvr5::test
