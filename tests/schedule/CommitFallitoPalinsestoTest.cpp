#include <fstream>

#include "schedule/BancoSalvaPalinsesto.h"
#include "schedule/OrarioSegmento.h"
#include "support/SmallVolume.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

/// Changes that the device doesn't take: the list stays as it was.
class ScheduleChangeThatFails : public test::BancoSalvaPalinsesto {
 protected:
  /// A segment at 01.00 with a.mp3 to c.mp3, and one at 02.00.
  void SetUp() override {
    Progetto(3, 3);
    Segmento(1, "01.00");
    Segmento(1, "02.00");
    for (int i = 1; i <= 3; ++i) Spot(1, 1, i, std::string(1, static_cast<char>('`' + i)) + ".mp3");
    Apri();
  }
  /// Every commit but the first `good` fails from now on.
  void Fail(int good = 0) {
    good_ = good;
    sqlite3_commit_hook(
        editor.ConnessionePalinsesto().Handle(),
        [](void* left) { return --*static_cast<int*>(left) < 0 ? 1 : 0; }, &good_);
  }
  void Repair() { sqlite3_commit_hook(editor.ConnessionePalinsesto().Handle(), nullptr, nullptr); }
  void DropBoxes() {
    while (!b.Finestre.Silenzio()) b.Finestre.Prossimo();
  }
  void ExpectAsItWas() {
    Repair();
    EXPECT_THAT(Segmenti(), ElementsAre("1 1 01:00:00", "2 1 02:00:00"));
    EXPECT_THAT(Tutti(), ElementsAre("1/1/1 a.mp3", "1/1/2 b.mp3", "1/1/3 c.mp3"));
    EXPECT_THAT(Griglia(), ElementsAre("01:00:00 a.mp3 b.mp3 c.mp3", "02:00:00"));
    EXPECT_EQ(editor.SegmentoCorrente(), 1);
    EXPECT_THAT(Dettaglio(), ElementsAre("1 a.mp3", "2 b.mp3", "3 c.mp3"));
    EXPECT_EQ(Orario(), "01.00");
    EXPECT_EQ(editor.Slot(), AggiornaSlotSpot(3, 2, false));
  }

 private:
  int good_ = 0;
};

TEST_F(ScheduleChangeThatFails, OfANewSegmentAddsNone) {
  Fail();
  AggiungiSegmento(editor);
  EXPECT_TRUE(b.Finestre.Silenzio());
  ExpectAsItWas();
}

TEST_F(ScheduleChangeThatFails, OfADuplicateAddsNone) {
  Fail();
  DuplicaSegmento(editor);
  DropBoxes();
  ExpectAsItWas();
}

TEST_F(ScheduleChangeThatFails, OfTheSpotsOfADuplicateLeavesItWithoutThem) {
  Fail(1);
  DuplicaSegmento(editor);
  Repair();
  DropBoxes();
  EXPECT_THAT(Segmenti(), ElementsAre("1 1 01:00:00", "2 1 02:00:00", "3 1 01:00:00"));
  EXPECT_THAT(Tutti(), SizeIs(3));
}

TEST_F(ScheduleChangeThatFails, OfARemovalKeepsTheSegmentAndItsSpots) {
  Fail();
  b.Finestre.Rispondi(Risposta::Si);
  RimuoviSegmento(editor);
  b.Finestre.Prossimo();
  ExpectAsItWas();
}

TEST_F(ScheduleChangeThatFails, OfATimeKeepsTheOldOne) {
  Fail();
  editor.txtOre = "23";
  LasciaOre(editor);
  DropBoxes();
  ExpectAsItWas();
}

TEST_F(ScheduleChangeThatFails, OfASpotAddsNone) {
  Fail();
  EXPECT_EQ(Aggiungi(3, "d.mp3"), EsitoSpot::NonScritto);
  ExpectAsItWas();
}

TEST_F(ScheduleChangeThatFails, OfAReplacementKeepsTheOldSpot) {
  Fail();
  EXPECT_EQ(Aggiungi(1, "d.mp3"), EsitoSpot::NonScritto);
  ExpectAsItWas();
}

TEST_F(ScheduleChangeThatFails, OfARemovedSpotKeepsIt) {
  Fail();
  RimuoviSpot(editor, 1);
  ExpectAsItWas();
}

TEST_F(ScheduleChangeThatFails, OfAMoveKeepsTheOrder) {
  Fail();
  SpostaSpot(editor, 0, true);
  SpostaSpot(editor, 2, false);
  ExpectAsItWas();
}

TEST_F(ScheduleChangeThatFails, OfAMoveIsNotCountedAsAChange) {
  Fail();
  SpostaSpot(editor, 0, true);
  EXPECT_EQ(editor.Modifiche(), 0);
}

TEST_F(ScheduleChangeThatFails, OfAnyOtherKindIsNotCountedAsAChange) {
  Fail();
  AggiungiSegmento(editor);
  DuplicaSegmento(editor);
  b.Finestre.Rispondi(Risposta::Si);
  RimuoviSegmento(editor);
  editor.txtOre = "23";
  LasciaOre(editor);
  Aggiungi(3, "d.mp3");
  Aggiungi(1, "d.mp3");
  RimuoviSpot(editor, 1);
  DropBoxes();
  EXPECT_EQ(editor.Modifiche(), 0);
}

TEST_F(ScheduleChangeThatFails, OfTheNamesSavesTheSpotsWithoutThem) {
  Fail();
  SalvaAperto();
  EXPECT_THAT(Tutti("scheduler.mdb"), ElementsAre("1/1/1 a.mp3", "1/1/2 b.mp3", "1/1/3 c.mp3"));
  EXPECT_THAT(Alias(), ElementsAre("", "", ""));
  EXPECT_EQ(Leggi("1.pal"), "01:00\t\t\t\t\t\t\r\n");
}

/// A project on a real volume of two megabytes.
class ScheduleOnASmallVolume : public test::BancoSalvaPalinsesto {
 protected:
  void SetUp() override {
    volume_ = test::SmallVolume::InMemory(b.Cartella.Host() / "program/Projects", 2);
    if (!volume_->IsMounted()) GTEST_SKIP() << volume_->Why();
    Progetto(3, 3);
    Segmento(1, "01.00");
    constexpr int kFrames = 2100;  // of 417 bytes: 855 KB
    for (int i = 1; i <= 3; ++i) {
      const std::string name = std::to_string(i) + ".mp3";
      b.ScriviMp3("music/" + name, i, kFrames);
      Spot(1, 1, i, name, In("music"));
    }
    Apri();
  }
  void TearDown() override {
    editor.Chiudi();
    if (volume_->IsMounted()) {
      EXPECT_TRUE(volume_->Unmount());
    }
  }
  std::filesystem::path Filler() const { return b.Cartella.Host() / "program/Projects/filler"; }
  /// Takes up all the room that is left.
  void Fill() const {
    std::ofstream filler(Filler(), std::ios::binary);
    const std::string block(4096, 'f');
    while (filler.write(block.data(), static_cast<std::streamsize>(block.size())).flush()) {
    }
  }
  Righe Names() { return Colonna("FileName"); }

 private:
  std::unique_ptr<test::SmallVolume> volume_;
};

TEST_F(ScheduleOnASmallVolume, TellsThatTheFilesFoundNoRoomAndCommits) {
  SalvaAperto(Risposta::Si);
  ASSERT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_EQ(b.Copia.Guasti[0].Cause.Number(), errors::DiskFull);
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/F1-0011.mp3", "music/1.mp3"));
  EXPECT_FALSE(Ha("F1-0013.mp3")) << "nor half of it";
  EXPECT_EQ(Leggi("1.pal"), "01:00\tF1-0011\t\tF1-0012\t\tF1-0013\t\r\n");
  EXPECT_THAT(Names(), ElementsAre("1.mp3", "2.mp3", "3.mp3"));
}

TEST_F(ScheduleOnASmallVolume, ThatIsFullFromAnyStepOnKeepsTheSpotsOrTellsTheCopy) {
  for (const char* key : {"0140030", "0140031", "0140032", "0140033", "0140034"}) {
    SCOPED_TRACE(key);
    bool filled = false;
    b.Messaggi.Accade = [&] {
      if (filled || progresso.TestoOperazione() != Parola(key)) return;
      filled = true;
      Fill();
    };
    SalvaAperto();
    b.Messaggi.Accade = nullptr;
    EXPECT_TRUE(filled);
    ASSERT_TRUE(std::filesystem::remove(Filler()));
    ASSERT_TRUE(Ha("scheduler.mdb") || !b.Copia.Guasti.empty());
    if (Ha("scheduler.mdb")) {
      EXPECT_THAT(Names(), ElementsAre("1.mp3", "2.mp3", "3.mp3"));
    }
    Apri();
  }
}

TEST_F(ScheduleOnASmallVolume, ThatIsFullTakesNoMoreAndLosesNothing) {
  Fill();
  int added = 0;
  for (int i = 0; i < 60; ++i) {
    const int before = editor.QuantiSegmenti();
    AggiungiSegmento(editor);
    if (editor.QuantiSegmenti() == before) continue;
    ++added;
    for (int slot = 0; slot < 8; ++slot) Aggiungi(slot, "x.mp3", std::string(500, 'd'));
  }
  editor.VaiAlSegmento(1);
  EXPECT_THAT(Dettaglio(), ElementsAre("1 1.mp3", "2 2.mp3", "3 3.mp3"));
  EXPECT_EQ(editor.QuantiSegmenti(), added + 1);
  EXPECT_THAT(Segmenti(), SizeIs(static_cast<std::size_t>(added) + 1));
  EXPECT_LT(Tutti().size(), 3U + 480U) << "not all found room";
}

}  // namespace
}  // namespace kvr5
