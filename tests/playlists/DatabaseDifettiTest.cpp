#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <random>

#include "playerconfig/ContoBrani.h"
#include "playlists/AggiungiScelti.h"
#include "playlists/AliasPlaylist.h"
#include "playlists/BancoSalva.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/ImportaPlaylist.h"
#include "playlists/NomiPlaylist.h"
#include "playlists/RighePlaylist.h"

namespace kvr5 {
namespace {

using testing::IsEmpty;

/// Every command there is, in an editor that has no database.
class WithoutDatabase : public test::BancoSalva {
 protected:
  std::filesystem::path Real() const {
    return b.Cartella.Host() / "program/Projects/Hall/playlist.mdb";
  }
  void ExpectNothing() {
    EXPECT_FALSE(editor.rsList().IsOpen());
    EXPECT_EQ(editor.Quanti(), 0);
    EXPECT_FALSE(editor.Piena());
    EXPECT_THAT(RigheDellaGriglia(editor), IsEmpty());
    EXPECT_FALSE(VaiAllaRiga(editor, 1));
    EXPECT_EQ(ProssimaPosizione(editor), 1);
    EXPECT_EQ(ProssimoNScheduler(editor), 1);
    EXPECT_EQ(CercaPlaylistPerNome(editor, "A"), -1);
    EXPECT_EQ(ContaPlaylist(editor), 0);
    EXPECT_FALSE(ScriviReport(editor));
  }
  void DoEverything() {
    b.ScriviMp3("music/a.mp3");
    b.Cartella.Write("music/l.m3u", "a.mp3\r\n");
    modMp3Infos reader(b.C.Files);
    ExpectNothing();
    AggiungiTuttiFiles(editor, reader, Musica(), {"a.mp3"});
    ImportaPlaylist(editor, reader, b.Percorso("music\\l.m3u"));
    RimuoviFile(editor);
    RimuoviTuttiFile(editor);
    RimuoviRighe(editor, {1, 2});
    SpostaSu(editor);
    SpostaGiu(editor);
    SpostaRighe(editor, {1, 2}, true);
    SpostaRighe(editor, {1, 2}, false);
    Random(editor, CasoDaSeme(1));
    RiordinaPosizione(editor);
    AssegnaAlias(editor);
    AggiungiTestata(editor, "A", 1);
    EliminaPlaylist(editor, 1);
    editor.AggiornaGrigliaPlaylist();
    editor.AggiornaContatoreFile();
    for (int i = -1; i < 9; ++i) editor.ScegliVoce(i);
    editor.ImpostaTesto("1 Playlist");
    for (const int input : {1, 2, 3}) editor.SpuntaIngresso(input, true);
    ExpectNothing();
  }
  void AddPickedFiles() {
    b.ScriviMp3("music/a.mp3");
    modMp3Infos reader(b.C.Files);
    EXPECT_EQ(AggiungiFile(editor, Musica(), "a.mp3"), EsitoAggiunta::NonScritto);
    EXPECT_EQ(AggiungiScelti(editor, reader, {b.Percorso("music\\a.mp3")}).Aggiunti, 0U);
    EXPECT_TRUE(PuoImportare(editor));
  }
};

/// A playlist.mdb that can't be read.
struct Damage {
  const char* What;
  std::function<void(const std::filesystem::path&)> Make;
};

void Spoil(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

void MakeOther(const std::filesystem::path& path, const char* schema) {
  std::filesystem::remove(path);
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, schema, nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(other);
}

class DamagedDatabase : public WithoutDatabase, public testing::WithParamInterface<Damage> {
 protected:
  void Prepare(std::int16_t type, std::int16_t mode) {
    Progetto(type, mode);
    Riempi(200);
    GetParam().Make(Real());
    before_.reset();
    if (std::filesystem::is_regular_file(Real())) before_ = Read("playlist.mdb");
    Ignora(b.Disco.CreateFolder(b.Percorso("program/Logs")));
  }
  void ExpectUntouched() {
    EXPECT_EQ(std::filesystem::is_regular_file(Real()), before_.has_value());
    if (before_) {
      EXPECT_TRUE(Read("playlist.mdb") == *before_);
    }
    EXPECT_FALSE(Exists("tmpPlaylist.mdb"));
    EXPECT_FALSE(Exists("tmpPlaylist.mdb-journal"));
  }

 private:
  std::optional<std::string> before_;
};

TEST_P(DamagedDatabase, ShowsNothingAndTakesNothingAndACancelLeavesItAsItWas) {
  for (const auto& [type, mode] :
       std::vector<std::pair<std::int16_t, std::int16_t>>{{2, 0}, {3, 7}, {4, 5}}) {
    Prepare(type, mode);
    editor.Carica();
    DoEverything();
    AddPickedFiles();
    editor.Chiudi();
    ExpectUntouched();
    EXPECT_TRUE(b.Finestre.Silenzio()) << "mode " << mode;
  }
}

TEST_P(DamagedDatabase, OfNamedListsHasNoneAndTakesNone) {
  Prepare(3, 9);
  editor.Carica();
  EXPECT_TRUE(editor.SelettoreVuoto());
  DoEverything();
  RimuoviPlaylist(editor);
  AggiungiPlaylist(editor, [&] { b.C.Stato.NomePlaylistScelta = "A"; });
  EXPECT_TRUE(editor.SelettoreVuoto());
  editor.Chiudi();
  ExpectUntouched();
}

TEST_P(DamagedDatabase, IsSavedAsItWasWithoutAQuestion) {
  Prepare(4, 5);
  editor.Carica();
  SalvaPlaylist(editor, progress);
  editor.Chiudi();
  ExpectUntouched();
  EXPECT_FALSE(progress.Caricata());
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, DamagedDatabase,
    testing::Values(
        Damage{"Missing", [](const auto& path) { std::filesystem::remove(path); }},
        Damage{"Empty", [](const auto& path) { Spoil(path, ""); }},
        Damage{"Cut",
               [](const auto& path) {
                 std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
               }},
        Damage{"Random",
               [](const auto& path) {
                 std::mt19937 random(1);
                 std::string bytes(20000, '\0');
                 for (char& each : bytes) each = static_cast<char>(random());
                 Spoil(path, bytes);
               }},
        Damage{"Zeros", [](const auto& path) { Spoil(path, std::string(8192, '\0')); }},
        Damage{"OfAnotherSchema",
               [](const auto& path) { MakeOther(path, "CREATE TABLE List(ID INTEGER, X TEXT)"); }},
        Damage{"WithoutTables", [](const auto& path) { MakeOther(path, "CREATE TABLE T(X)"); }},
        Damage{"AFolder",
               [](const auto& path) {
                 std::filesystem::remove(path);
                 std::filesystem::create_directory(path);
               }}),
    [](const auto& each) { return std::string(each.param.What); });

TEST_F(WithoutDatabase, OneThatAnotherProgramIsChangingIsLeftToItAndTold) {
  Progetto(4, 5);
  Riempi(3);
  Ignora(b.Disco.CreateFolder(b.Percorso("program/Logs")));
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(Real().c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE; DELETE FROM List", nullptr, nullptr, nullptr),
            SQLITE_OK);
  editor.Carica();
  ASSERT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_TRUE(b.Copia.Guasti[0].File.ends_with("playlist.mdb"));
  DoEverything();
  AddPickedFiles();
  editor.Chiudi();
  ASSERT_EQ(sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr), SQLITE_OK);
  ASSERT_EQ(sqlite3_close(other), SQLITE_OK);
  EXPECT_EQ(Tutti("playlist.mdb").size(), 3U);
}

TEST_F(WithoutDatabase, AnEditorThatWasNotLoadedTakesNothing) {
  Progetto(4, 5);
  Ignora(b.Disco.CreateFolder(b.Percorso("program/Logs")));
  Riempi(3);
  const std::string before = Read("playlist.mdb");
  DoEverything();
  AddPickedFiles();
  SalvaPlaylist(editor, progress);
  AggiungiPlaylist(editor, [&] { b.C.Stato.NomePlaylistScelta = "A"; });
  editor.Chiudi();
  EXPECT_TRUE(Read("playlist.mdb") == before);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(WithoutDatabase, AnEditorThatWasClosedTakesNothing) {
  Progetto(3, 9);
  Nome("Only", 1);
  Ignora(b.Disco.CreateFolder(b.Percorso("program/Logs")));
  Riempi(3);
  b.Cartella.Write("program/Projects/Hall/1.m3u", "old");
  const std::string before = Read("playlist.mdb");
  editor.Carica();
  editor.Chiudi();
  AddPickedFiles();
  b.Finestre.Rispondi(Risposta::Si);
  RimuoviPlaylist(editor);
  b.Finestre.Prossimo();
  DoEverything();
  SalvaPlaylist(editor, progress);
  AggiungiPlaylist(editor, [&] { b.C.Stato.NomePlaylistScelta = "A"; });
  editor.Chiudi();
  EXPECT_TRUE(Read("playlist.mdb") == before);
  EXPECT_EQ(Read("1.m3u"), "old");
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(WithoutDatabase, AProjectFolderThatVanishesIsNoHarm) {
  Progetto(4, 5);
  Riempi(3);
  editor.Carica();
  std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/Hall");
  b.ScriviMp3("music/a.mp3");
  modMp3Infos reader(b.C.Files);
  AggiungiTuttiFiles(editor, reader, Musica(), {"a.mp3"});
  b.Finestre.Rispondi(Risposta::Si);
  SalvaPlaylist(editor, progress);
  editor.Chiudi();
  b.Finestre.Prossimo();
  EXPECT_FALSE(Exists("playlist.mdb"));
}

}  // namespace
}  // namespace kvr5
