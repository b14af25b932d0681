#include <sqlite3.h>

#include <map>

#include "platform/db/Connection.h"
#include "playlists/screens/BancoEditor.h"

// What the editor shows when it comes up.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What the editor shows for a model and mode. `Comes` is the list that it comes up on.
struct Case {
  std::int16_t Type, Mode;
  bool Multiple;
  int Comes;
  std::vector<std::string> Entries;
  std::vector<int> Data;
  bool Selector, Inputs, AddRemove;
};

std::vector<std::string> Numbers(int first, int last) {
  std::vector<std::string> all;
  for (int i = first; i <= last; ++i) all.push_back(std::to_string(i) + " Playlist");
  return all;
}

const std::vector<std::string> kDays = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                        "Friday", "Saturday", "Sunday"};
const std::vector<std::string> kMainAndSix = {
    "Main playlist",    "1 Extra playlist", "2 Extra playlist", "3 Extra playlist",
    "4 Extra playlist", "5 Extra playlist", "6 Extra playlist"};
const std::vector<int> kSeven = {0, 1, 2, 3, 4, 5, 6};
const std::vector<int> kEight = {0, 1, 2, 3, 4, 5, 6, 7};
const std::vector<int> kFromZeroAgain = {0, 0, 1, 2, 3, 4, 5};

class EditorComesUp : public test::BancoEditor, public testing::WithParamInterface<Case> {};

TEST_P(EditorComesUp, AsModelAndModeTell) {
  const Case& c = GetParam();
  Progetto(c.Type, c.Mode);
  for (int list = 0; list <= 8; ++list) Brano(list, 1, "L" + std::to_string(list) + ".mp3");
  Apri();
  EXPECT_EQ(SiVede("picfraSelezionePlaylist"), c.Selector);
  EXPECT_EQ(SiVede("cmbPlaylist"), c.Selector);
  EXPECT_EQ(SiVede("picFraIngresso"), c.Inputs);
  EXPECT_EQ(SiVede("chkIn_1"), c.Inputs);
  EXPECT_EQ(SiVede("picfraAddRemovePL"), c.AddRemove);
  std::vector<std::string> entries;
  std::vector<int> data;
  for (int i = 0; i < Selettore().count(); ++i) {
    entries.push_back(Selettore().itemText(i).toStdString());
    data.push_back(Selettore().itemData(i).toInt());
  }
  EXPECT_EQ(entries, c.Entries);
  EXPECT_EQ(data, c.Data);
  EXPECT_EQ(Selettore().currentIndex(), c.Entries.empty() ? -1 : 0);
  EXPECT_EQ(form->Editor().PlaylistCorrente(), c.Comes);
  EXPECT_EQ(form->Editor().Disposizione().PlaylistMultiple, c.Multiple);
  EXPECT_THAT(Griglia(), ElementsAre("1 L" + std::to_string(c.Comes) + ".mp3"));
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: 1");
  EXPECT_EQ(Testo("lblModifiche"), "");
  EXPECT_FALSE(test::PuntatoreOccupato());
}

INSTANTIATE_TEST_SUITE_P(
    All, EditorComesUp,
    testing::Values(Case{1, 0, true, 0, {}, {}, false, false, false},
                    Case{2, 0, false, 1, {}, {}, false, false, false},
                    Case{3, 4, false, 1, {}, {}, false, false, false},
                    Case{3, 5, true, 1, Numbers(0, 7), kEight, true, false, false},
                    Case{3, 6, true, 1, kDays, kSeven, true, false, false},
                    Case{3, 7, true, 1, Numbers(0, 7), kEight, true, true, false},
                    Case{3, 8, true, 0, kMainAndSix, kFromZeroAgain, true, false, false},
                    Case{3, 9, true, 0, {}, {}, true, false, true},
                    Case{3, 2, true, 0, {}, {}, false, false, false},
                    Case{4, 4, false, 1, {}, {}, false, false, false},
                    Case{4, 5, true, 1, Numbers(1, 7), kSeven, true, false, false},
                    Case{4, 6, true, 1, Numbers(1, 7), kSeven, true, false, false},
                    Case{4, 7, true, 1, Numbers(1, 7), kSeven, true, false, false},
                    Case{4, 1, true, 0, {}, {}, false, false, false}),
    [](const auto& each) {
      return "Type" + std::to_string(each.param.Type) + "Mode" + std::to_string(each.param.Mode);
    });

class LoadedEditor : public test::BancoEditor {};

TEST_F(LoadedEditor, OfNamedListsComesUpOnTheSecondByItsPlaceNotItsNumber) {
  Progetto(3, 9);
  Nome("Zoo", 1);
  Nome("Ape", 7);
  Nome("Mew", 5);
  for (int list = 1; list <= 7; ++list) Brano(list, 1, "L" + std::to_string(list) + ".mp3");
  Apri();
  EXPECT_EQ(Selettore().currentText(), "Mew");
  EXPECT_EQ(Selettore().itemData(0).toInt(), 7);
  EXPECT_EQ(Selettore().itemData(1).toInt(), 5);
  EXPECT_EQ(Selettore().itemData(2).toInt(), 1);
  EXPECT_THAT(Nomi(), ElementsAre("L2.mp3")) << "the second place is list 2, whatever its number";
}

TEST_F(LoadedEditor, OfOneNamedListStaysOnIt) {
  Progetto(3, 9);
  Nome("Only", 1);
  Brano(1, 1, "L1.mp3");
  Apri();
  EXPECT_EQ(Selettore().count(), 1);
  EXPECT_EQ(Selettore().currentText(), "Only");
  EXPECT_THAT(Nomi(), ElementsAre("L1.mp3"));
}

TEST_F(LoadedEditor, ThrowsAwayWhatACrashLeft) {
  Progetto(4, 5);
  Brano(1, 1, "old.mp3");
  std::filesystem::copy(b.Cartella.Host() / "program/Projects/Hall/playlist.mdb",
                        b.Cartella.Host() / "program/Projects/Hall/TMPPLAYLIST.MDB");
  Brano(1, 2, "new.mp3");
  Apri();
  EXPECT_FALSE(Ha("TMPPLAYLIST.MDB")) << "by its name without regard to case";
  EXPECT_TRUE(Ha("tmpPlaylist.mdb"));
  EXPECT_THAT(Griglia(), ElementsAre("1 old.mp3", "2 new.mp3"));
}

TEST_F(LoadedEditor, HasEveryControlUnderItsName) {
  Progetto(4, 5);
  Apri();
  for (const char* name : {"grdPlaylist",
                           "lblPlaylistFiles",
                           "cmbPlaylist",
                           "picfraSelezionePlaylist",
                           "lblSelectPlaylist",
                           "picFraIngresso",
                           "chkIn_1",
                           "chkIn_2",
                           "chkIn_3",
                           "shaIn_1",
                           "shaIn_2",
                           "shaIn_3",
                           "lblPlaylistNumber_1",
                           "lblPlaylistNumber_2",
                           "lblPlaylistNumber_3",
                           "lblIngressi",
                           "picfraAddRemovePL",
                           "lblAddRemovePlaylist",
                           "picAggiungiPL",
                           "lblAggiungi",
                           "picRimuoviPL",
                           "lblRimuovi",
                           "DirDirectoryMp3",
                           "picDisk",
                           "filMp3",
                           "lblMp3_Dir",
                           "cmdAggiungiFile",
                           "cmdAggiungiTuttiFiles",
                           "cmdRimuoviFile",
                           "cmdRimuoviTuttiFile",
                           "cmdSpostaSu",
                           "cmdSpostaGiu",
                           "cmdRandom",
                           "lblRandom",
                           "cmdPlayMp3",
                           "cmdStopMp3",
                           "lblAnteprima",
                           "cmdPlayFileSx",
                           "cmdStopFileSx",
                           "lblAnteprimaSx",
                           "lblVersioneMpeg",
                           "lblBitrate",
                           "lblFreq",
                           "lblDurata",
                           "lblBadFileType",
                           "lblFileInfo",
                           "picImporta",
                           "lblImporta",
                           "picSave",
                           "lblSave",
                           "picReport",
                           "lblReport",
                           "picAnnulla",
                           "lblAnnulla",
                           "lblAttendere"}) {
    EXPECT_NE(form->findChild<QWidget*>(QLatin1String(name)), nullptr) << name;
  }
  EXPECT_EQ(form->objectName(), "frmPlaylistEditor");
  EXPECT_EQ(form->Brani->tmrAttendere.interval(), 500);
  EXPECT_EQ(form->fraFileInfo->tmrInfoMp3.interval(), 500);
}

TEST_F(LoadedEditor, HasTheCaptionsOfItsDesignBefore) {
  Progetto(4, 5);
  form = new frmPlaylistEditor(b.A, progresso);
  EXPECT_EQ(form->windowTitle(), "Playlist Editor");
  const std::map<const char*, const char*> captions = {
      {"lblPlaylistFiles", "Plailist Files"},
      {"lblSelectPlaylist", "Select Playlist"},
      {"lblIngressi", "Inputs"},
      {"lblAddRemovePlaylist", "Add/Remove playlist"},
      {"lblAggiungi", "Add"},
      {"lblRimuovi", "Remove"},
      {"lblMp3_Dir", "MP3 Directory"},
      {"lblRandom", "Random"},
      {"lblAnteprima", "Preview"},
      {"lblAnteprimaSx", "Preview"},
      {"lblVersioneMpeg", "Version"},
      {"lblBitrate", "Bitrate"},
      {"lblFreq", "Freq/mono"},
      {"lblDurata", "Len"},
      {"lblBadFileType", "BadFileType"},
      {"lblFileInfo", "FileInfo"},
      {"lblImporta", "Import"},
      {"lblSave", "Save"},
      {"lblReport", "Report"},
      {"lblAnnulla", "Cancel"},
      {"lblAttendere", "..Wait..."}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(Testo(name), caption) << name;
  EXPECT_FALSE(Ha("tmpPlaylist.mdb")) << "nothing is opened yet";
}

TEST_F(LoadedEditor, SpeaksItsLanguage) {
  Progetto(4, 5);
  Apri();
  EXPECT_EQ(form->windowTitle(), "Playlists");
  EXPECT_EQ(Testo("lblSelectPlaylist"), "Playlist");
  EXPECT_EQ(Testo("lblSave"), "Save");
  EXPECT_EQ(Testo("lblAnnulla"), "Leave without saving");
  EXPECT_EQ(Testo("lblAttendere"), "One moment…");
  EXPECT_EQ(Grid().model()->headerData(ModelloBrani::Nome, Qt::Horizontal).toString(), "Tracks");
  EXPECT_EQ(Testo("lblProgetto"), "Hall");
}

TEST_F(LoadedEditor, ShowsTheFolderThatWasUsedLastAndLeavesTheSettingAlone) {
  Progetto(4, 5);
  Musica({"10.mp3", "2.mp3", "B.mp3", "a.mp3"});
  b.Cartella.Write("music/no.txt", "");
  const std::string settings = b.Cartella.Read("program/KVR5Software.ini");
  Apri();
  EXPECT_EQ(form->fraFile->DirDirectoryMp3->Percorso(), b.Percorso("music"));
  EXPECT_THAT(Pannello(), ElementsAre("2.mp3", "10.mp3", "a.mp3", "B.mp3"));
  EXPECT_EQ(b.Cartella.Read("program/KVR5Software.ini"), settings);
  EXPECT_FALSE(SiVede("cmdAggiungiFile"));
  EXPECT_TRUE(SiVede("grdPlaylist"));
  EXPECT_FALSE(SiVede("lblAttendere"));
}

TEST_F(LoadedEditor, OfADatabaseThatIsMissingOrDamagedIsEmptyAndDoesNothingHarmful) {
  const auto use = [this] {
    Musica({"a.mp3"});
    Apri();
    EXPECT_THAT(Griglia(), IsEmpty());
    EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: 0");
    for (const char* name : {"cmdAggiungiTuttiFiles", "cmdRimuoviFile", "cmdRimuoviTuttiFile",
                             "cmdSpostaSu", "cmdSpostaGiu", "cmdRandom", "cmdPlayMp3"}) {
      Clic(name);
    }
    DoppioFile("a.mp3");
    test::ScegliColMouse(Selettore(), 3);
    EXPECT_THAT(Griglia(), IsEmpty());
    EXPECT_EQ(Testo("lblModifiche"), "") << "nothing was changed";
    Clic("picAnnulla");
    EXPECT_TRUE(SiChiude());
    EXPECT_FALSE(Ha("tmpPlaylist.mdb"));
    EXPECT_TRUE(b.Finestre.Silenzio());
    Dimentica();
  };
  Progetto(4, 5);
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall/playlist.mdb");
  use();
  for (const char* bytes : {"", "no database", "SQLite format 3"}) {
    SCOPED_TRACE(bytes);
    b.Cartella.Write("program/Projects/Hall/playlist.mdb", bytes);
    use();
    EXPECT_EQ(Leggi("playlist.mdb"), bytes);
  }
  Connection other(b.Disco);
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall/playlist.mdb");
  sqlite3* strange = nullptr;
  const std::string path = (b.Cartella.Host() / "program/Projects/Hall/playlist.mdb").string();
  ASSERT_EQ(sqlite3_open(path.c_str(), &strange), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(strange, "CREATE TABLE other(x)", nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(strange);
  use();
}

TEST_F(LoadedEditor, OfADatabaseThatCannotBeReadSaysSo) {
  Progetto(4, 5);
  Apri();
  const QImage noTrack = Grid().grab().toImage();
  Dimentica();
  b.Cartella.Write("program/Projects/Hall/playlist.mdb", "no database");
  Apri();
  EXPECT_NE(Grid().grab().toImage(), noTrack) << "other words than those of an empty list";
  EXPECT_FALSE(form->picSave->isEnabled()) << "it would delete the lists";
  Clic("picAnnulla");
  EXPECT_TRUE(SiChiude());
  EXPECT_EQ(Leggi("playlist.mdb"), "no database");
}

TEST_F(LoadedEditor, OfALockedDatabaseComesUpAndLeavesItAlone) {
  Progetto(4, 5);
  Brano(1, 1, "a.mp3");
  const std::string before = Leggi("playlist.mdb");
  Connection other(b.Disco);
  ASSERT_FALSE(other.Open(b.Percorso("program/Projects/Hall/playlist.mdb")));
  ASSERT_EQ(sqlite3_exec(other.Handle(), "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  Apri();
  Clic("cmdRimuoviFile");
  Clic("picAnnulla");
  EXPECT_TRUE(SiChiude());
  other.Close();
  EXPECT_TRUE(Leggi("playlist.mdb") == before);
}

TEST_F(LoadedEditor, OfADatabaseThatACrashLeftHalfChangedShowsItAsItWas) {
  Progetto(4, 5);
  Brano(1, 1, "a.mp3");
  b.InterrompiModifica("playlist.mdb");
  ASSERT_TRUE(Ha("playlist.mdb-journal"));
  Apri();
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3"));
  EXPECT_FALSE(Ha("playlist.mdb-journal"));
}

TEST_F(LoadedEditor, ShowsListsOfAnySize) {
  for (const int rows : {500, 5000}) {
    Progetto(4, 5);
    Brani(1, rows);
    Apri();
    EXPECT_EQ(Grid().model()->rowCount(), rows);
    EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: " + std::to_string(rows));
    EXPECT_EQ(Cella(rows - 1, ModelloBrani::Posto), QString::number(rows));
    EXPECT_TRUE(Contato());
    EXPECT_THAT(Testo("lblTotali"), testing::EndsWith(" missing"));
    Grid().setFocus();
    Premi(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(Corrente(), rows - 1);
    Dimentica();
  }
}

TEST_F(LoadedEditor, KeepsRowsOfNumbersThatTheModeDoesNotOffer) {
  Progetto(4, 5);
  Brano(99, 1, "far.mp3");
  Brano(1, 1, "a.mp3");
  Apri();
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3"));
  b.Finestre.Rispondi(Risposta::No);
  Clic("picSave");
  EXPECT_TRUE(SiChiude());
  b.Finestre.Prossimo();
  EXPECT_THAT(Tutti("playlist.mdb"), ElementsAre("1-1 a.mp3", "99-1 far.mp3"));
  EXPECT_EQ(Leggi("99.m3u"), "P99-001\r\n");
}

TEST_F(LoadedEditor, OpensItsHelpByKeyAndButton) {
  Progetto(4, 5);
  Apri();
  const std::string help = b.Percorso("program\\Help\\English.htm");
  Premi(Qt::Key_F1);
  Clic("picHelp");
  EXPECT_THAT(b.Documenti.Aperti, testing::Each(help));
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
  EXPECT_TRUE(form->isVisible());
}

}  // namespace
}  // namespace kvr5
