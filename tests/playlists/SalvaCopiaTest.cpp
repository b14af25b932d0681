#include <filesystem>

#include "core/Lingua.h"
#include "playlists/BancoSalva.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/NomiPlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Saves and the MP3 files that they bring into the project, or don't.
class FilesBroughtIn : public test::BancoSalva {
 protected:
  std::string In(const char* folder) const { return b.Percorso(folder) + "\\"; }
  /// The pairs that were copied, the database's own commit left out.
  Righe Copied() {
    Righe names = std::move(copied_);
    std::erase_if(names, [](const auto& each) { return each.ends_with("tmpPlaylist.mdb"); });
    return names;
  }
  /// As Save, and keeps the sources of all copies.
  void SaveAndWatch(Risposta answer) {
    editor.Carica();
    b.Copia.SuProgresso = [this](const CopyState& state) {
      if (copied_.empty() || copied_.back() != state.File) copied_.push_back(state.File);
    };
    b.Finestre.Rispondi(answer);
    SalvaPlaylist(editor, progress);
    b.Copia.SuProgresso = nullptr;
    editor.Chiudi();
    b.Finestre.Prossimo();
  }

 private:
  Righe copied_;
};

TEST_F(FilesBroughtIn, AreAskedForInTheseWords) {
  Progetto(4, 5);
  Track(1, 1, "a.mp3");
  editor.Carica();
  b.Finestre.Rispondi(Risposta::No);
  SalvaPlaylist(editor, progress);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, TestoLingua(b.C, "0050019"));
  EXPECT_EQ(box.Testo, TestoLingua(b.C, "0050020") + "\r\n" + TestoLingua(b.C, "0050023"));
  EXPECT_TRUE(box.SiNo);
  EXPECT_FALSE(box.Toglie) << "the keyboard begins on yes";
  EXPECT_FALSE(box.SoloOk);
}

TEST_F(FilesBroughtIn, StayWhereTheyAreAfterANoAndWhereTheQuestionIsClosed) {
  for (const Risposta answer : {Risposta::No, Risposta::Annulla}) {
    Progetto(4, 5);
    Track(1, 1, "a.mp3");
    SaveAndWatch(answer);
    EXPECT_THAT(Copied(), IsEmpty());
    EXPECT_THAT(Column("FilePath"), ElementsAre(In("music")));
    EXPECT_FALSE(Exists("a.mp3"));
    EXPECT_EQ(b.C.Stato.RispostaSiNo, answer == Risposta::No ? 2 : 0);
  }
}

TEST_F(FilesBroughtIn, ThatAreThereAlreadyAreNotListed) {
  Progetto(4, 5);
  b.ScriviMp3("program/Projects/Hall/a.mp3", 1);
  Brano(1, 1, "a.mp3", Hall());
  SaveAndWatch(Risposta::Si);
  EXPECT_THAT(Copied(), IsEmpty());
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall()));
  EXPECT_TRUE(Exists("a.mp3"));
}

TEST_F(FilesBroughtIn, ThatAreThereUnderAnotherSpellingOfTheFolderStayWhole) {
  Progetto(4, 5);
  b.ScriviMp3("program/Projects/Hall/a.mp3", 1);
  b.ScriviMp3("music/same.mp3", 1);
  Brano(1, 1, "a.mp3", b.Percorso("program/Projects/HALL") + "\\");
  SaveAndWatch(Risposta::Si);
  EXPECT_THAT(b.Copia.Guasti, IsEmpty());
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/a.mp3", "music/same.mp3"));
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall())) << "the case counts there";
}

TEST_F(FilesBroughtIn, OfOneNameFromTwoFoldersHaveTwoNamesForTheCardAndTheLastOneStays) {
  Progetto(4, 5);
  b.ScriviMp3("music/a.mp3", 1);
  b.ScriviMp3("other/a.mp3", 2);
  Brano(1, 1, "a.mp3", In("music"));
  Brano(1, 2, "a.mp3", In("other"));
  SaveAndWatch(Risposta::Si);
  EXPECT_THAT(Copied(), ElementsAre(In("music") + "a.mp3", In("other") + "a.mp3"));
  EXPECT_THAT(Column("Alias"), ElementsAre("P01-001.mp3", "P01-002.mp3"));
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/a.mp3", "other/a.mp3"));
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall(), Hall()));
}

TEST_F(FilesBroughtIn, OfOneFileInTwoSpellingsComeOnceAndShareTheirName) {
  Progetto(4, 5);
  b.ScriviMp3("music/a.mp3", 1);
  Brano(1, 1, "a.mp3", In("music"));
  Brano(1, 2, "A.MP3", In("MUSIC"));
  SaveAndWatch(Risposta::Si);
  EXPECT_THAT(Copied(), SizeIs(1));
  EXPECT_THAT(Column("Alias"), ElementsAre("P01-001.mp3", "P01-001.mp3"));
}

TEST_F(FilesBroughtIn, AFileWhosePathBeginsAListedOneCountsAsListed) {
  Progetto(4, 5);
  Track(1, 1, "a.mp3.mp3");
  Track(1, 2, "a.mp3");
  SaveAndWatch(Risposta::Si);
  EXPECT_THAT(Copied(), ElementsAre(In("music") + "a.mp3.mp3"));
  EXPECT_FALSE(Exists("a.mp3"));
}

TEST_F(FilesBroughtIn, OfAProjectWithAnApostropheInItsPathKeepTheirFolders) {
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{4, 5}) {
    const std::string name = "It's " + std::to_string(mode);
    b.CreaProgetto(name, 4, 5);
    b.C.Stato.PlayerMode = mode;
    Track(1, 1, "a.mp3");
    SaveAndWatch(Risposta::Si);
    EXPECT_TRUE(b.Cartella.Exists("program/Projects/" + name + "/a.mp3")) << "copied all the same";
    EXPECT_THAT(Column("FilePath"), ElementsAre(In("music")));
  }
}

TEST_F(FilesBroughtIn, AreNoLongerListedOnceCancelledButAllLinesAreWritten) {
  Progetto(2, 0);
  for (int i = 1; i <= 4; ++i) Track(1, i, std::to_string(i) + ".mp3");
  b.Messaggi.Accade = [this, done = false]() mutable {
    if (done || progress.TestoNumFile() != "2/4" || !progress.NumFileVisibile()) return;
    done = true;
    progress.Annulla();
  };
  SaveAndWatch(Risposta::Si);
  EXPECT_EQ(Read("PLAYLIST.TXT"), "P01-001\r\nP01-002\r\nP01-003\r\nP01-004\r\n");
  EXPECT_EQ(Read("PLAYLIST_LOCAL_.M3U"), "1.mp3\r\n2.mp3\r\n3.mp3\r\n4.mp3\r\n");
  EXPECT_THAT(Copied(), ElementsAre(In("music") + "1.mp3"));
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall(), Hall(), Hall(), Hall()));
}

TEST_F(FilesBroughtIn, ACancelFromBeforeTheListsIsLost) {
  Progetto(2, 0);
  Track(1, 1, "a.mp3");
  Track(1, 2, "b.mp3");
  b.Messaggi.Accade = [this] {
    if (progress.TestoOperazione() == TestoLingua(b.C, "0070012")) progress.Annulla();
  };
  b.Finestre.SuBox = [this](const test::BoxVisto&) {
    EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente);
    b.Messaggi.Accade = nullptr;
  };
  SaveAndWatch(Risposta::Si);
  EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente) << "the window was loaded anew";
  EXPECT_THAT(Copied(), SizeIs(2));
}

TEST_F(FilesBroughtIn, OfNumberedListsAreListedWhateverWasCancelledBefore) {
  Progetto(4, 5);
  Track(1, 1, "a.mp3");
  Track(1, 2, "b.mp3");
  b.Finestre.SuBox = [this](const test::BoxVisto&) { b.C.Stato.AnnullatoDaUtente = true; };
  SaveAndWatch(Risposta::Si);
  EXPECT_THAT(Copied(), SizeIs(2));
}

TEST_F(FilesBroughtIn, OneThatIsMissingIsToldAndEveryTrackIsRepointed) {
  Progetto(4, 5);
  Track(1, 1, "a.mp3");
  Brano(1, 2, "gone.mp3", In("music"));
  SaveAndWatch(Risposta::Si);
  ASSERT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_TRUE(b.Copia.Guasti[0].Source);
  EXPECT_EQ(b.Copia.Guasti[0].File, In("music") + "gone.mp3");
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall(), Hall()));
}

TEST_F(FilesBroughtIn, WithoutAQuestionGoByTheAnswerToTheLastOne) {
  // Mode 9 asks where a named list has tracks; here there are those of a number without a name.
  for (const Risposta answer : {Risposta::Si, Risposta::No}) {
    Progetto(3, 9);
    Nome("Only", 1);
    Brano(1, 1, "a.mp3");
    Track(7, 1, "nameless.mp3");
    editor.Carica();
    b.Finestre.Rispondi(answer);
    RimuoviTuttiFile(editor);
    b.Finestre.Prossimo();
    if (answer == Risposta::No) EliminaPlaylist(editor, 1);
    SalvaPlaylist(editor, progress);
    editor.Chiudi();
    EXPECT_TRUE(b.Finestre.Silenzio());
    EXPECT_THAT(Column("FilePath"), ElementsAre(answer == Risposta::Si ? Hall() : In("music")));
  }
}

TEST_F(FilesBroughtIn, ASecondSaveWritesTheSameLists) {
  Progetto(4, 5);
  Track(1, 1, "a.mp3");
  Track(1, 2, "a.mp3", "other");
  SaveAndWatch(Risposta::No);
  const std::string device = Read("1.m3u");
  const std::string local = Read("1_LOCAL_.m3u");
  SaveAndWatch(Risposta::No);
  EXPECT_EQ(Read("1.m3u"), device);
  EXPECT_EQ(Read("1_LOCAL_.m3u"), local);
}

TEST_F(FilesBroughtIn, NumberAHundredHasAnAliasOfThreeDigits) {
  Progetto(4, 5);
  Track(100, 1, "a.mp3");
  Track(0, 1, "b.mp3");
  SaveAndWatch(Risposta::No);
  EXPECT_EQ(Read("100.m3u"), "P100-001\r\n");
  EXPECT_EQ(Read("0.m3u"), "P00-001\r\n");
}

TEST_F(FilesBroughtIn, OneFileInTwoListsHasTheNameOfItsFirstPlace) {
  Progetto(4, 5);
  for (int i = 1; i <= 6; ++i) {
    Track(1, i, i == 3 ? "x.mp3" : "a" + std::to_string(i) + ".mp3");
    Track(2, i, "b" + std::to_string(i) + ".mp3");
  }
  Track(2, 7, "x.mp3");
  SaveAndWatch(Risposta::No);
  EXPECT_EQ(Column("Alias").at(2), "P01-003.mp3");
  EXPECT_EQ(Column("Alias").back(), "P01-003.mp3");
  EXPECT_TRUE(Read("2.m3u").ends_with("P02-006\r\nP01-003\r\n"));
}

TEST_F(FilesBroughtIn, OfModeNineAreListedByNameAndKeepTheirOwn) {
  Progetto(3, 9);
  Nome("Noon", 1);
  Nome("Early", 2);
  Track(1, 1, "n.mp3");
  Track(2, 1, "e.mp3");
  SaveAndWatch(Risposta::Si);
  EXPECT_THAT(Copied(), ElementsAre(In("music") + "e.mp3", In("music") + "n.mp3"));
  EXPECT_EQ(Read("Noon.m3u"), "n\r\n");
  EXPECT_TRUE(Exists("n.mp3"));
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall(), Hall()));
}

}  // namespace
}  // namespace kvr5
