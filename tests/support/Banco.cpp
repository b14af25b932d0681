#include "support/Banco.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "projects/CartellaProgetto.h"
#include "projects/NuovoProgetto.h"

namespace kvr5::test {

namespace fs = std::filesystem;

Banco::Banco()
    : C{Disco, Finestre, Messaggi, Copia, Ora, Programma, Cartella.System("program"), {}, {}, {}} {
  Prepara();
}

Banco::Banco(const std::function<FileSystem&(FileSystem&)>& wrap)
    : C{wrap(Disco), Finestre, Messaggi, Copia, Ora, Programma, Cartella.System("program"),
        {},          {},       {}} {
  Prepara();
}

Banco::Banco(Dialoghi& finestre, Eventi& messaggi, CopyObserver& copia, Processo& programma)
    : C{Disco, finestre, messaggi, copia, Ora, programma, Cartella.System("program"), {}, {}, {}} {
  Prepara();
}

void Banco::Prepara() {
  const fs::path staged = KVR5_STAGED_PROGRAM;
  const fs::path program = Cartella.Host() / "program";
  fs::create_directories(program / "Projects");
  fs::create_directories(Cartella.Host() / "card");
  for (const char* name : {"Defaults", "Language", "Pictures", "Report"}) {
    fs::copy(staged / name, program / name, fs::copy_options::recursive);
  }
  fs::copy(staged / "source.mdb", program / "source.mdb");
  C.Stato.CartellaProgetti = Percorso("program/Projects");
  C.Stato.FileLingua = Percorso("program/Language/English.lan");
}

std::vector<std::string> Banco::Nomi(const std::string& folder) const {
  std::vector<std::string> names;
  const fs::path root = Cartella.Host() / folder;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    if (!entry.is_directory()) names.push_back(fs::relative(entry.path(), root).string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

void Banco::ScriviMp3(const std::string& name, int seed, int frames) const {
  constexpr std::size_t kFrame = 417;  // 1152 / 8 * 128000 / 44100, without padding
  std::string bytes;
  for (int i = 0; i < frames; ++i) {
    std::string frame("\xFF\xFB\x90\x64", 4);
    frame.resize(kFrame, static_cast<char>(seed & 0x7F));
    bytes += frame;
  }
  Cartella.Write(name, bytes);
}

void Banco::CreaProgetto(const std::string& name, std::int16_t playerType, std::int16_t playerMode,
                         std::int16_t playerConfig) {
  auto& state = C.Stato;
  state.PlayerType = playerType;
  state.PlayerMode = playerMode;
  state.PlayerConfig = playerConfig;
  state.PlayerName =
      std::array{"", "Veskadro", "Zub", "Ostrel", "KVR5"}.at(static_cast<std::size_t>(playerType));
  state.PlayerConfigDesc = "test";
  // No window comes while a project is staged, whatever the ports of the test are.
  Contesto quiet{C.Files, Finestre, Messaggi, Copia, C.Ora, C.Programma, C.CartellaProgramma,
                 C.Luogo, C.Stato,  {}};
  ASSERT_EQ(PreparaCartella(quiet, name, false), EsitoNuovo::Creato);
  RiempiCartella(quiet);
  C.Stato = quiet.Stato;
  if (playerType == 3 && playerMode == 1) Finestre.Prossimo();
}

void Banco::AggiungiRiga(const std::string& database, int nPlaylist, int pos,
                         const std::string& fileName, const std::string& filePath,
                         const std::string& alias, int idSched) {
  Connection connection(C.Files);
  ASSERT_EQ(connection.Open(FileDelProgetto(C, database)).Number(), 0);
  Recordset rows;
  ASSERT_FALSE(rows.Open(connection, "SELECT * FROM [List] ORDER BY [Pos] ASC"));
  ASSERT_FALSE(rows.AddNew());
  ASSERT_FALSE(rows.Set("FileName", fileName));
  ASSERT_FALSE(rows.Set("FilePath", filePath));
  if (!alias.empty()) {
    ASSERT_FALSE(rows.Set("Alias", alias));
  }
  ASSERT_FALSE(rows.Set("Pos", std::int64_t{pos}));
  ASSERT_FALSE(rows.Set("NPlaylist", std::int64_t{nPlaylist}));
  ASSERT_FALSE(rows.Set("IDSched", std::int64_t{idSched}));
  ASSERT_FALSE(rows.Update());
}

void Banco::InterrompiModifica(const std::string& database) {
  const std::filesystem::path path = Disco.HostPath(FileDelProgetto(C, database));
  const std::string name = std::filesystem::relative(path, Cartella.Host()).string();
  const std::string whole = Cartella.Read(name);
  std::string half;
  std::string journal;
  {
    Connection connection(Disco);
    ASSERT_FALSE(connection.Open(FileDelProgetto(C, database)));
    const Transaction run(connection);
    for (int i = 0; i < 2000; ++i) {  // more than is held in memory
      Ignora(connection.Execute(
          "INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],[IDSched]) "
          "VALUES(1,'" +
          std::string(2000, 'n') + "','C:\\','P.mp3',1,0)"));
    }
    half = Cartella.Read(name);
    journal = Cartella.Read(name + "-journal");
  }
  ASSERT_TRUE(half != whole) << "nothing of the run had reached the disk";
  Cartella.Write(name, half);
  Cartella.Write(name + "-journal", journal);
}

}  // namespace kvr5::test
