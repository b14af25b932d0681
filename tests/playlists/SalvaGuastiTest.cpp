#include <filesystem>

#include "playlists/BancoSalva.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Saves on a disk that fills up, in each of their phases.
class SaveOnAFullDisk : public test::BancoSalva {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    Track(1, 1, "a.mp3");
    Track(1, 2, "b.mp3");
    Track(2, 1, "c.mp3");
  }
  std::string Of(const std::string& name) const { return FileDelProgetto(b.C, name); }
  /// Nothing more can be written below this path.
  void FillUp(const std::string& path, std::uint64_t bytes = 0) {
    guasti->FailWritesAfter(path, bytes, errors::DiskFull);
  }
  void FillUpAtTheQuestion() {
    b.Finestre.SuBox = [this](const test::BoxVisto&) { FillUp(b.Percorso("program/Projects")); };
  }
  /// The disk is full once the working copy is copied to its place.
  void FillUpAtTheCommit() {
    b.Copia.SuProgresso = [this](const CopyState& state) {
      if (state.File.ends_with("tmpPlaylist.mdb")) FillUp(b.Percorso("program/Projects"));
    };
  }
  /// As Save, with the faults beginning behind the load.
  void SaveWith(const std::function<void()>& fault, Risposta answer = Risposta::No) {
    editor.Carica();
    fault();
    b.Finestre.Rispondi(answer);
    SalvaPlaylist(editor, progress);
    b.Finestre.SuBox = nullptr;
    b.Copia.SuProgresso = nullptr;
    b.Finestre.Prossimo();
    EXPECT_TRUE(b.Finestre.Silenzio()) << "nothing is told but by the copy window";
    EXPECT_FALSE(progress.Caricata());
    guasti->Repair();
    editor.Chiudi();
    EXPECT_FALSE(Exists("tmpPlaylist.mdb"));
    EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente);
  }
};

TEST_F(SaveOnAFullDisk, WithoutRoomForTheReportDoesAllElse) {
  SaveWith([this] { FillUp(Of("Playlist.htm"), 50); });
  EXPECT_LE(Read("Playlist.htm").size(), 50U);
  EXPECT_EQ(Read("1.m3u"), "P01-001\r\nP01-002\r\n");
  EXPECT_EQ(Read("2.m3u"), "P02-001\r\n");
  EXPECT_THAT(Column("Alias"), ElementsAre("P01-001.mp3", "P01-002.mp3", "P02-001.mp3"));
  EXPECT_THAT(b.Copia.Guasti, IsEmpty());
}

TEST_F(SaveOnAFullDisk, WithoutRoomForOneListWritesTheOthersAndCommits) {
  SaveWith([this] { FillUp(Of("1.m3u"), 4); });
  EXPECT_LE(Read("1.m3u").size(), 4U);
  EXPECT_EQ(Read("2.m3u"), "P02-001\r\n");
  EXPECT_NE(Read("1_LOCAL_.m3u"), "");
  EXPECT_THAT(Column("Alias"), ElementsAre("P01-001.mp3", "P01-002.mp3", "P02-001.mp3"));
  EXPECT_THAT(b.Copia.Guasti, IsEmpty());
}

TEST_F(SaveOnAFullDisk, WithoutRoomForAListOfTheOneSetWritesTheOthersAndCommits) {
  b.C.Stato.PlayerMode = 4;
  SaveWith([this] { FillUp(Of("PLAYLIST.TXT")); });
  EXPECT_EQ(Read("PLAYLIST.TXT"), "");
  EXPECT_EQ(Read("PLAYLIST.M3U"), "P01-001\r\nP01-002\r\nP02-001\r\n");
  EXPECT_THAT(Column("Alias"), SizeIs(3));
  EXPECT_THAT(b.Copia.Guasti, IsEmpty());
}

TEST_F(SaveOnAFullDisk, FromTheQuestionOnLosesTheListsAndTheDatabaseAndTellsTheCopy) {
  SaveWith([this] { FillUpAtTheQuestion(); });
  EXPECT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_EQ(b.Copia.Guasti.at(0).Cause.Number(), errors::DiskFull);
  EXPECT_FALSE(Exists("playlist.mdb")) << "the old one had gone before";
  EXPECT_TRUE(b.Cartella.Exists("music/a.mp3"));
}

TEST_F(SaveOnAFullDisk, FromTheQuestionOnTellsBothCopiesAfterAYes) {
  SaveWith([this] { FillUpAtTheQuestion(); }, Risposta::Si);
  ASSERT_THAT(b.Copia.Guasti, SizeIs(2));
  EXPECT_TRUE(b.Copia.Guasti[0].File.ends_with("a.mp3"));
  EXPECT_FALSE(Exists("a.mp3"));
  EXPECT_FALSE(Exists("playlist.mdb"));
}

TEST_F(SaveOnAFullDisk, WithoutRoomForTheFilesTellsItAndRepointsEveryTrackAllTheSame) {
  SaveWith(
      [this] {
        b.Copia.SuProgresso = [this](const CopyState& state) {
          guasti->Repair();
          if (state.File.ends_with("b.mp3")) FillUp(b.Percorso("program/Projects/Hall"));
        };
      },
      Risposta::Si);
  ASSERT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_EQ(b.Copia.Guasti[0].Cause.Number(), errors::DiskFull);
  EXPECT_FALSE(b.Copia.Guasti[0].Source);
  EXPECT_FALSE(Exists("b.mp3"));
  EXPECT_FALSE(Exists("c.mp3")) << "the failure ends that copy";
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall(), Hall(), Hall()));
  EXPECT_EQ(Read("1.m3u"), "P01-001\r\nP01-002\r\n");
}

TEST_F(SaveOnAFullDisk, WithoutRoomForTheDatabaseLeavesTheProjectWithoutOne) {
  SaveWith([this] { FillUpAtTheCommit(); });
  ASSERT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_EQ(b.Copia.Guasti[0].Cause.Number(), errors::DiskFull);
  EXPECT_FALSE(Exists("playlist.mdb"));
  EXPECT_EQ(Read("1.m3u"), "P01-001\r\nP01-002\r\n") << "the lists had been written";
  EXPECT_EQ(Read("2.m3u"), "P02-001\r\n");
  editor.Carica();
  EXPECT_EQ(Griglia(), Righe{"closed"}) << "the next one comes up empty";
}

TEST_F(SaveOnAFullDisk, ACancelAmidTheCommitIsNotHeeded) {
  SaveWith([this] { b.Copia.AnnullaAlla = 1; });
  EXPECT_THAT(Tutti("playlist.mdb"), ElementsAre("1-1 a.mp3", "1-2 b.mp3", "2-1 c.mp3"))
      << "the old one had gone before";
}

TEST_F(SaveOnAFullDisk, WithoutRoomForTheWorkingCopyComesUpEmptyAndSavesNothing) {
  const std::string before = Read("playlist.mdb");
  FillUp(b.Percorso("program/Projects"), 100);
  editor.Carica();
  EXPECT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_EQ(Griglia(), Righe{"closed"});
  SalvaPlaylist(editor, progress);
  editor.Chiudi();
  guasti->Repair();
  EXPECT_TRUE(Read("playlist.mdb") == before);
}

TEST_F(SaveOnAFullDisk, ThatIsWriteProtectedLeavesTheDatabaseAsItWas) {
  const std::string before = Read("playlist.mdb");
  b.Cartella.Write("program/Projects/Hall/9.m3u", "old");
  SaveWith([this] { guasti->Protect(b.Percorso("program/Projects/Hall")); });
  EXPECT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_TRUE(Read("playlist.mdb") == before);
  EXPECT_EQ(Read("9.m3u"), "old");
}

}  // namespace
}  // namespace kvr5
