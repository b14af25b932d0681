#include "schedule/BancoPalinsesto.h"
#include "schedule/CopieRipetuti.h"
#include "schedule/SalvaPalinsesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;

/// Spots that share their files, and get each its own.
class SharedFiles : public test::BancoPalinsesto {
 protected:
  void SetUp() override {
    Progetto(4, 2);
    first = Segmento(0, "00.10");
    second = Segmento(0, "00.20");
    b.ScriviMp3("music/gong.mp3", 1);
    b.ScriviMp3("music/it's.mp3", 2);
    gong = b.Cartella.Read("music/gong.mp3");
  }
  void Add(std::int64_t segment, int pos, const std::string& name) {
    Spot(0, segment, pos, name, Music());
  }
  std::string Music() const { return b.Percorso("music") + "\\"; }
  AvvisiPalinsesto Look() {
    copies.Leggi(editor);
    return {editor, copies};
  }
  void Mend() { CopiaRipetuti(editor, Look()); }

  std::int64_t first = 0, second = 0;
  std::string gong;
  CopieDegliSpot copies;
};

TEST_F(SharedFiles, GetACopyInTheProjectForEachSpotButTheFirst) {
  Add(first, 1, "gong.mp3");
  Add(first, 2, "it's.mp3");
  Add(second, 1, "gong.mp3");
  Add(second, 2, "it's.mp3");
  Add(second, 3, "gong.mp3");
  Apri();
  Mend();
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 gong.mp3", "0/1/2 it's.mp3", "0/2/1 gong (2).mp3",
                                   "0/2/2 it's (2).mp3", "0/2/3 gong (3).mp3"));
  EXPECT_THAT(Colonna("FilePath", "tmpScheduler.mdb"),
              ElementsAre(Music(), Music(), Hall(), Hall(), Hall()));
  EXPECT_EQ(Leggi("gong (2).mp3"), gong);
  EXPECT_EQ(Leggi("gong (3).mp3"), gong);
  EXPECT_EQ(editor.Modifiche(), 3);
  EXPECT_FALSE(Look().Copiabili());
  EXPECT_THAT(Griglia(), ElementsAre("00:10:00 gong.mp3 it's.mp3",
                                     "00:20:00 gong (2).mp3 it's (2).mp3 gong (3).mp3"))
      << "shown at once";
}

TEST_F(SharedFiles, TakeNamesThatAreFree) {
  b.Cartella.Write("program/Projects/Hall/GONG (2).mp3", "another");
  Add(first, 1, "gong.mp3");
  Add(second, 1, "gong.mp3");
  Apri();
  Mend();
  EXPECT_EQ(Leggi("GONG (2).mp3"), "another");
  EXPECT_EQ(Leggi("gong (3).mp3"), gong);
  EXPECT_THAT(Griglia(), ElementsAre("00:10:00 gong.mp3", "00:20:00 gong (3).mp3"));
}

TEST_F(SharedFiles, ReachTheCardUnderEachNameThen) {
  Add(first, 1, "gong.mp3");
  Add(second, 1, "gong.mp3");
  Apri();
  Mend();
  b.Finestre.Rispondi(Risposta::Si);
  FinestraProgresso progress(b.C);
  SalvaPalinsesto(editor, progress);
  editor.Chiudi();
  b.Finestre.Prossimo();
  EXPECT_TRUE(b.Copia.Guasti.empty());
  EXPECT_EQ(Leggi("F0-0011.mp3"), gong);
  EXPECT_EQ(Leggi("F0-0021.mp3"), gong);
}

TEST_F(SharedFiles, ThatAreMissingAreLeftAsTheyAre) {
  Add(first, 1, "gone.mp3");
  Add(second, 1, "gone.mp3");
  Apri();
  Mend();
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 gone.mp3", "0/2/1 gone.mp3"));
  EXPECT_EQ(editor.Modifiche(), 0);
  EXPECT_TRUE(b.Copia.Guasti.empty());
}

TEST_F(SharedFiles, WhoseCopyWasCancelledAreLeftAsTheyAre) {
  Add(first, 1, "gong.mp3");
  Add(second, 1, "gong.mp3");
  Apri();
  b.Copia.Volte = 0;
  b.Copia.AnnullaAlla = 1;
  Mend();
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 gong.mp3", "0/2/1 gong.mp3"));
  EXPECT_FALSE(Ha("gong (2).mp3"));
}

TEST_F(SharedFiles, AreNotTouchedWhereThereAreNone) {
  Add(first, 1, "gong.mp3");
  Apri();
  Mend();
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 gong.mp3"));
  EXPECT_THAT(Tutti("scheduler.mdb"), ElementsAre("0/1/1 gong.mp3"));
}

TEST_F(SharedFiles, LeaveTheDatabaseAsItWasWhereTheEditorIsLeft) {
  Add(first, 1, "gong.mp3");
  Add(second, 1, "gong.mp3");
  const std::string before = Leggi("scheduler.mdb");
  Apri();
  Mend();
  editor.Chiudi();
  EXPECT_EQ(Leggi("scheduler.mdb"), before);
}

}  // namespace
}  // namespace kvr5
