#include <fstream>

#include "playlists/BancoSalva.h"
#include "playlists/BraniPlaylist.h"
#include "support/SmallVolume.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

/// Saves of a project on a real volume of two megabytes.
class SaveOnASmallVolume : public test::BancoSalva {
 protected:
  void SetUp() override {
    volume_ = test::SmallVolume::InMemory(b.Cartella.Host() / "program/Projects", 2);
    if (!volume_->IsMounted()) GTEST_SKIP() << volume_->Why();
    Progetto(4, 5);
    constexpr int kFrames = 2100;  // of 417 bytes: 855 KB
    for (int i = 1; i <= 3; ++i) {
      const std::string name = std::to_string(i) + ".mp3";
      b.ScriviMp3("music/" + name, i, kFrames);
      Brano(1, i, name, Musica() + "\\");
    }
    editor.Carica();
  }
  void TearDown() override {
    editor.Chiudi();
    if (volume_->IsMounted()) {
      EXPECT_TRUE(volume_->Unmount());
    }
  }
  /// Takes up all the room that is left.
  void Fill() const {
    std::ofstream filler(b.Cartella.Host() / "program/Projects/filler", std::ios::binary);
    const std::string block(4096, 'f');
    while (filler.write(block.data(), static_cast<std::streamsize>(block.size())).flush()) {
    }
  }

 private:
  std::unique_ptr<test::SmallVolume> volume_;
};

TEST_F(SaveOnASmallVolume, TellsThatTheFilesFoundNoRoomAndCommits) {
  b.Finestre.Rispondi(Risposta::Si);
  SalvaPlaylist(editor, progress);
  editor.Chiudi();
  b.Finestre.Prossimo();
  ASSERT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_EQ(b.Copia.Guasti[0].Cause.Number(), errors::DiskFull);
  EXPECT_FALSE(b.Copia.Guasti[0].Source);
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/1.mp3", "music/1.mp3"));
  EXPECT_FALSE(Exists("3.mp3")) << "nor half of it";
  EXPECT_EQ(Read("1.m3u"), "P01-001\r\nP01-002\r\nP01-003\r\n");
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall(), Hall(), Hall()));
}

TEST_F(SaveOnASmallVolume, WithoutAnyRoomLosesTheListsAndKeepsTheDatabase) {
  b.Finestre.SuBox = [this](const test::BoxVisto&) { Fill(); };
  b.Finestre.Rispondi(Risposta::No);
  SalvaPlaylist(editor, progress);
  editor.Chiudi();
  b.Finestre.Prossimo();
  EXPECT_EQ(Read("1.m3u"), "");
  EXPECT_THAT(b.Copia.Guasti, SizeIs(0)) << "the old one's room was enough for the new one";
  EXPECT_THAT(Tutti("playlist.mdb"), ElementsAre("1-1 1.mp3", "1-2 2.mp3", "1-3 3.mp3"));
}

TEST_F(SaveOnASmallVolume, WhereTheTracksThemselvesFindNoRoomKeepsThoseThatDid) {
  Fill();
  modMp3Infos reader(b.C.Files);
  AggiungiTuttiFiles(editor, reader, Musica(), Righe(400, "1.mp3"));
  const Righe grid = Griglia();
  EXPECT_LT(grid.size(), 403U);
  b.Finestre.Rispondi(Risposta::No);
  SalvaPlaylist(editor, progress);
  editor.Chiudi();
  b.Finestre.Prossimo();
  EXPECT_THAT(Tutti("playlist.mdb"), SizeIs(grid.size()));
}

}  // namespace
}  // namespace kvr5
