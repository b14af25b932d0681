#include <gmock/gmock.h>

#include "platform/Error.h"
#include "platform/FileOps.h"
#include "playlists/BancoSalva.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/CopieDeiBrani.h"

// Copies in the project's folder that have the names of the card, as opening a card leaves them.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CopieDeiBraniTest : public test::BancoSalva {
 protected:
  void SetUp() override { Progetto(4, 5); }

  /// A track as it comes from a card: its file is known by its copy alone.
  void FromCard(int pos, const std::string& name, const std::string& folder = "D:\\Old\\") {
    const std::string alias = "P01-00" + std::to_string(pos) + ".mp3";
    b.AggiungiRiga("playlist.mdb", 1, pos, name, folder, alias);
    b.Cartella.Write("program/Projects/Hall/" + alias, "sound of " + name);
  }
  void Open() {
    editor.Carica();
    copies.Leggi(editor);
  }
  bool Warned() { return !copies.Parole(b.C).empty(); }
  /// The copies with names of the card that the project has.
  Righe OnDisk() {
    Righe names;
    for (const auto& file : ListMatching(b.C.Files, FileDelProgetto(b.C, "P*.mp3"))) {
      names.push_back(file.Name);
    }
    return names;
  }
  /// Saves the editor as it is, with No, and leaves it.
  void SaveAndLeave() {
    b.Finestre.Rispondi(Risposta::No);
    SalvaPlaylist(editor, progress);
    copies.TogliSuperate(b.C);
    editor.Chiudi();
    b.Finestre.Prossimo();
  }

  CopieDeiBrani copies;
};

TEST_F(CopieDeiBraniTest, OfACardGetTheNamesOfTheirFilesAndTheRowsFindThem) {
  FromCard(1, "a.mp3");
  FromCard(2, "b.mp3");
  Open();
  EXPECT_TRUE(Warned());
  copies.RidaiNomi(editor);
  EXPECT_FALSE(Warned());
  EXPECT_EQ(Read("a.mp3"), "sound of a.mp3");
  EXPECT_EQ(Read("b.mp3"), "sound of b.mp3");
  EXPECT_EQ(editor.Modifiche(), 2);
  EXPECT_THAT(OnDisk(), ElementsAre("P01-001.mp3", "P01-002.mp3")) << "needed until a save";
  SaveAndLeave();
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall(), Hall()));
  EXPECT_THAT(OnDisk(), IsEmpty());
}

TEST_F(CopieDeiBraniTest, NoLongerStandForOtherTracksOnceTheOrderWasChanged) {
  FromCard(1, "a.mp3");
  FromCard(2, "b.mp3");
  Open();
  copies.RidaiNomi(editor);
  Va(2);
  SpostaSu(editor);
  SaveAndLeave();
  EXPECT_THAT(Tutti("playlist.mdb"), ElementsAre("1-1 b.mp3", "1-2 a.mp3"));
  EXPECT_THAT(Column("Alias"), ElementsAre("P01-001.mp3", "P01-002.mp3"));
  EXPECT_THAT(OnDisk(), IsEmpty()) << "a recording would take them";
}

TEST_F(CopieDeiBraniTest, OfATrackInSeveralPlacesServeAllOfThem) {
  FromCard(1, "a.mp3");
  b.AggiungiRiga("playlist.mdb", 2, 1, "A.MP3", "D:\\old", "P01-001.mp3");
  Open();
  copies.RidaiNomi(editor);
  SaveAndLeave();
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall(), Hall()));
  EXPECT_THAT(Column("FileName"), ElementsAre("a.mp3", "a.mp3"));
}

TEST_F(CopieDeiBraniTest, TakeANameLikeItWhereAnotherFileHasTheirs) {
  FromCard(1, "a.mp3");
  b.Cartella.Write("program/Projects/Hall/a.mp3", "another");
  Open();
  copies.RidaiNomi(editor);
  SaveAndLeave();
  EXPECT_EQ(Read("a.mp3"), "another");
  EXPECT_EQ(Read("a (2).mp3"), "sound of a.mp3");
  EXPECT_THAT(Column("FileName"), ElementsAre("a (2).mp3"));
}

TEST_F(CopieDeiBraniTest, OfFilesThatAreThereAreDeletedWithoutBeingCopied) {
  b.Cartella.Write("music/a.mp3", "sound of a.mp3");
  FromCard(1, "a.mp3", b.Percorso("music") + "\\");
  Open();
  EXPECT_TRUE(Warned());
  copies.RidaiNomi(editor);
  EXPECT_FALSE(Exists("a.mp3"));
  EXPECT_EQ(editor.Modifiche(), 0);
  SaveAndLeave();
  EXPECT_THAT(Column("FilePath"), ElementsAre(b.Percorso("music") + "\\"));
  EXPECT_THAT(OnDisk(), IsEmpty());
}

TEST_F(CopieDeiBraniTest, ThatAreOlderThanTheirFilesAreNoneOfThem) {
  b.Cartella.Write("music/a.mp3", "another sound, and longer than it was");
  FromCard(1, "a.mp3", b.Percorso("music") + "\\");
  Open();
  EXPECT_FALSE(Warned());
}

TEST_F(CopieDeiBraniTest, ThatARowNamesAsItsFileStay) {
  FromCard(1, "a.mp3");
  b.AggiungiRiga("playlist.mdb", 1, 2, "P01-001.mp3", Hall(), "");
  Open();
  copies.RidaiNomi(editor);
  SaveAndLeave();
  EXPECT_THAT(OnDisk(), ElementsAre("P01-001.mp3"));
}

TEST_F(CopieDeiBraniTest, ThatCannotBeCopiedStayAsTheyAre) {
  FromCard(1, "a.mp3");
  FromCard(2, "b.mp3");
  Open();
  guasti->FailReadsAfter(FileDelProgetto(b.C, "P01-001.mp3"), 1, errors::DeviceIo);
  copies.RidaiNomi(editor);
  EXPECT_FALSE(b.Copia.Guasti.empty()) << "it was told";
  EXPECT_TRUE(Warned());
  SaveAndLeave();
  EXPECT_EQ(Column("FilePath").front(), "D:\\Old\\");
  EXPECT_TRUE(Exists("P01-001.mp3"));
}

TEST_F(CopieDeiBraniTest, AreLeftAloneWithoutTheCommand) {
  FromCard(1, "a.mp3");
  Open();
  SaveAndLeave();
  EXPECT_THAT(OnDisk(), ElementsAre("P01-001.mp3"));
  EXPECT_THAT(Column("FilePath"), ElementsAre("D:\\Old\\"));
}

TEST_F(CopieDeiBraniTest, ThereAreNoneOfNamedLists) {
  Progetto(3, 9);
  FromCard(1, "a.mp3");
  Open();
  EXPECT_FALSE(Warned());
}

}  // namespace
}  // namespace kvr5
