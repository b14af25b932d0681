#include "core/Lingua.h"
#include "schedule/AggiungiSpotScelti.h"
#include "schedule/BancoPalinsesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Files that are picked together, or dropped on a slot.
class PickedSpots : public test::BancoPalinsesto {
 protected:
  void SetUp() override {
    Progetto(4, 2);
    for (const char* name : {"a", "b", "c", "d"}) {
      b.ScriviMp3(std::string("music/") + name + ".mp3");
    }
    segment = Segmento(0, "00.10");
  }
  std::string Host(const std::string& name) const { return (b.Cartella.Host() / name).string(); }
  /// "name: why" of what wasn't taken.
  Righe Add(int slot, const std::vector<std::string>& files) {
    Righe words;
    for (const FileNonPreso& each : AggiungiSpotScelti(editor, reader, slot, files)) {
      words.push_back(each.Nome + ": " + each.Motivo);
    }
    return words;
  }
  std::string Word(const char* key) { return TestoLingua(b.C, key); }

  std::int64_t segment = 0;
  modMp3Infos reader{b.C.Files};
};

TEST_F(PickedSpots, ComeIntoTheFreeSlotsInTheirOrder) {
  Spot(0, segment, 1, "x.mp3");
  Apri();
  EXPECT_THAT(Add(1, {Host("music/b.mp3"), b.Percorso("music\\a.mp3"), Host("music/c.mp3")}),
              IsEmpty());
  EXPECT_THAT(Dettaglio(), ElementsAre("1 x.mp3", "2 b.mp3", "3 a.mp3", "4 c.mp3"));
  EXPECT_EQ(editor.Modifiche(), 3);
}

TEST_F(PickedSpots, TheFirstTakesThePlaceOfTheSlotsSpotTheOthersComeBehindAll) {
  for (int pos = 1; pos <= 3; ++pos) Spot(0, segment, pos, "x" + std::to_string(pos) + ".mp3");
  Apri();
  EXPECT_THAT(Add(1, {Host("music/a.mp3"), Host("music/b.mp3")}), IsEmpty());
  EXPECT_THAT(Dettaglio(), ElementsAre("1 x1.mp3", "2 a.mp3", "3 x3.mp3", "4 b.mp3"));
}

TEST_F(PickedSpots, FarBehindTheLastComeToTheFirstFreeSlot) {
  Apri();
  EXPECT_THAT(Add(7, {Host("music/a.mp3")}), IsEmpty());
  EXPECT_THAT(Dettaglio(), ElementsAre("1 a.mp3"));
}

TEST_F(PickedSpots, ThatAreNoMusicAreNamedWithTheirReasonAndTheOthersTaken) {
  b.Cartella.Write("music/noise.mp3", std::string(2048, 'x'));
  b.Cartella.Write("music/sound.wav", b.Cartella.Read("music/a.mp3"));
  Apri();
  EXPECT_THAT(Add(0, {Host("music/noise.mp3"), Host("music"), Host("music/sound.wav"),
                      Host("music/gone.mp3"), Host("music/d.mp3")}),
              ElementsAre("noise.mp3: " + Word("0130040"), "music: " + Word("0050101"),
                          "sound.wav: " + Word("0050005"), "gone.mp3: " + Word("0130258")));
  EXPECT_THAT(Dettaglio(), ElementsAre("1 d.mp3"));
}

TEST_F(PickedSpots, ThatFindNoPlaceAreNamed) {
  for (int pos = 1; pos <= 7; ++pos) Spot(0, segment, pos, "x.mp3");
  Apri();
  EXPECT_THAT(Add(7, {Host("music/a.mp3"), Host("music/b.mp3"), Host("music/c.mp3")}),
              ElementsAre("b.mp3: " + Word("0140101"), "c.mp3: " + Word("0140101")));
  EXPECT_EQ(editor.QuantiSpot(), 8);
}

TEST_F(PickedSpots, OnAFullDayEndWithOneBox) {
  for (int i = 0; i < kLimiteSpot - 1; ++i) Spot(0, segment + 1 + i / 8, i % 8 + 1, "x.mp3");
  Apri();
  EXPECT_THAT(Add(0, {Host("music/a.mp3"), Host("music/b.mp3"), Host("music/c.mp3")}), IsEmpty());
  EXPECT_THAT(Dettaglio(), ElementsAre("1 a.mp3"));
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, Word("0140013"));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(PickedSpots, LeaveTheVerdictOnThePanesFileAsItWas) {
  Apri();
  for (const bool valid : {false, true}) {
    editor.FileMp3Valido = valid;
    Add(0, {Host("music/a.mp3")});
    EXPECT_EQ(editor.FileMp3Valido, valid);
  }
}

TEST_F(PickedSpots, WithoutASegmentAddNothing) {
  Esegui("DELETE * FROM [HEAD]");
  Apri();
  Add(0, {Host("music/a.mp3")});
  EXPECT_THAT(Tutti(), IsEmpty());
}

}  // namespace
}  // namespace kvr5
