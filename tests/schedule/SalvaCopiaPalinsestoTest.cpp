#include "schedule/BancoSalvaPalinsesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Saves and the MP3 files that they bring into the project, or don't.
class SpotFilesBroughtIn : public test::BancoSalvaPalinsesto {
 protected:
  void SetUp() override {
    Progetto(3, 3);
    Segmento(1, "01.00");
    Segmento(2, "02.00");
  }
  /// Saves and keeps the files that are copied behind the commit.
  void SaveAndWatch(Risposta answer = Risposta::Si) {
    b.Copia.SuProgresso = nullptr;
    copiati.clear();
    Apri();
    Guarda();
    SalvaAperto(answer);
    ASSERT_FALSE(copiati.empty());
    EXPECT_TRUE(copiati.front().ends_with("tmpScheduler.mdb")) << "the commit comes first";
    copiati.erase(copiati.begin());
  }
};

TEST_F(SpotFilesBroughtIn, HaveTheNamesOfTheCardAndTheRowsKeepTheirOwn) {
  Traccia(1, 1, 1, "a.mp3");
  Traccia(2, 2, 1, "b.mp3", "other");
  SaveAndWatch();
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/F1-0011.mp3", "music/a.mp3"));
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/F2-0011.mp3", "other/b.mp3"));
  EXPECT_FALSE(Ha("a.mp3"));
  EXPECT_THAT(Colonna("FileName"), ElementsAre("a.mp3", "b.mp3"));
  EXPECT_THAT(Colonna("FilePath"), ElementsAre(Hall(), Hall()));
}

TEST_F(SpotFilesBroughtIn, StayAfterANoAndWhereTheQuestionIsClosed) {
  Traccia(1, 1, 1, "a.mp3");
  for (const Risposta answer : {Risposta::No, Risposta::Annulla}) {
    b.C.Stato.RispostaSiNo = 1;  // to another question
    SaveAndWatch(answer);
    EXPECT_THAT(copiati, IsEmpty());
    EXPECT_THAT(Colonna("FilePath"), ElementsAre(In("music")));
    EXPECT_FALSE(Ha("F1-0011.mp3"));
  }
}

TEST_F(SpotFilesBroughtIn, ComeInOneOperation) {
  for (int i = 1; i <= 5; ++i) Traccia(1, 1, i, std::to_string(i) + ".mp3");
  Apri();
  std::vector<std::size_t> counts;
  b.Copia.SuProgresso = [&](const CopyState& state) {
    if (counts.empty() || counts.back() != state.FileCount) counts.push_back(state.FileCount);
  };
  SalvaAperto(Risposta::Si);
  EXPECT_THAT(counts, ElementsAre(1U, 5U));
}

TEST_F(SpotFilesBroughtIn, OneOfTwoPlacesComesOnceUnderTheFirstName) {
  Traccia(1, 1, 1, "a.mp3");
  Spot(2, 2, 1, "A.MP3", b.Percorso("MUSIC") + "\\");
  SaveAndWatch();
  EXPECT_THAT(copiati, ElementsAre(In("music") + "a.mp3"));
  EXPECT_TRUE(Ha("F1-0011.mp3"));
  EXPECT_FALSE(Ha("F2-0011.mp3"));
  EXPECT_THAT(Colonna("FilePath"), ElementsAre(Hall(), Hall()));
}

TEST_F(SpotFilesBroughtIn, OneWhosePathBeginsAListedOneCountsAsListed) {
  Traccia(1, 1, 1, "a.mp3.mp3");
  Traccia(1, 1, 2, "a.mp3");
  SaveAndWatch();
  EXPECT_THAT(copiati, ElementsAre(In("music") + "a.mp3.mp3"));
  EXPECT_FALSE(Ha("F1-0012.mp3"));
}

TEST_F(SpotFilesBroughtIn, OfOneNameFromTwoFoldersBothCome) {
  b.ScriviMp3("music/a.mp3", 1);
  b.ScriviMp3("other/a.mp3", 2);
  Spot(1, 1, 1, "a.mp3", In("music"));
  Spot(1, 1, 2, "a.mp3", In("other"));
  SaveAndWatch();
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/F1-0011.mp3", "music/a.mp3"));
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/F1-0012.mp3", "other/a.mp3"));
}

TEST_F(SpotFilesBroughtIn, OneThatIsThereUnderItsNameIsNotListed) {
  b.ScriviMp3("program/Projects/Hall/F1-0011.mp3", 1);
  Spot(1, 1, 1, "F1-0011.mp3", Hall());
  SaveAndWatch();
  EXPECT_THAT(copiati, IsEmpty());
  EXPECT_THAT(Colonna("FilePath"), ElementsAre(Hall()));
  EXPECT_TRUE(Ha("F1-0011.mp3"));
}

TEST_F(SpotFilesBroughtIn, OneThatIsThereUnderAnotherNameIsCopiedWithinTheProject) {
  b.ScriviMp3("program/Projects/Hall/song.mp3", 1);
  Spot(1, 1, 1, "song.mp3", Hall());
  SaveAndWatch();
  EXPECT_TRUE(
      b.Cartella.Same("program/Projects/Hall/F1-0011.mp3", "program/Projects/Hall/song.mp3"));
}

TEST_F(SpotFilesBroughtIn, ASecondTimeAreSoughtUnderTheirOwnNameInTheProject) {
  Traccia(1, 1, 1, "a.mp3");
  SaveAndWatch();
  SaveAndWatch();
  ASSERT_THAT(b.Copia.Guasti, SizeIs(1)) << "the rows say a.mp3, the project holds F1-0011.mp3";
  EXPECT_EQ(b.Copia.Guasti[0].File, Hall() + "a.mp3");
  EXPECT_TRUE(Ha("F1-0011.mp3"));
}

TEST_F(SpotFilesBroughtIn, AFolderWithoutItsBackslashIsJoinedAsItIs) {
  b.ScriviMp3("musica.mp3", 1);
  Spot(1, 1, 1, "a.mp3", b.Percorso("music"));
  SaveAndWatch();
  EXPECT_THAT(copiati, ElementsAre(b.Percorso("musica.mp3")));
  EXPECT_TRUE(Ha("F1-0011.mp3"));
}

TEST_F(SpotFilesBroughtIn, AYesRepointsEveryRowAlsoThoseOfNoSegment) {
  Traccia(1, 1, 1, "a.mp3");
  Spot(1, 777, 1, "lost.mp3", "C:\\Lost\\");
  SaveAndWatch();
  EXPECT_THAT(copiati, ElementsAre(In("music") + "a.mp3"));
  EXPECT_THAT(Colonna("FilePath"), ElementsAre(Hall(), Hall()));
}

TEST_F(SpotFilesBroughtIn, WithoutAQuestionAnOldYesDoesNotCount) {
  Spot(1, 777, 1, "lost.mp3", "C:\\Lost\\");
  b.C.Stato.RispostaSiNo = 1;
  SaveAndWatch(Risposta::No);
  EXPECT_THAT(Colonna("FilePath"), ElementsAre("C:\\Lost\\"));
  EXPECT_EQ(b.C.Stato.RispostaSiNo, 0);
}

TEST_F(SpotFilesBroughtIn, OfADuplicateAreBroughtInUnderTheNamesOfDayZero) {
  Traccia(1, 1, 1, "a.mp3");
  Apri();
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  SalvaAperto(Risposta::Si);
  EXPECT_TRUE(Ha("F0-0011.mp3")) << "it comes before those of the days";
  EXPECT_FALSE(Ha("F1-0011.mp3")) << "and the file comes once";
}

TEST_F(SpotFilesBroughtIn, OneThatIsMissingIsToldAndEveryRowIsRepointed) {
  Traccia(1, 1, 1, "a.mp3");
  Spot(1, 1, 2, "gone.mp3", In("music"));
  SaveAndWatch();
  ASSERT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_TRUE(b.Copia.Guasti[0].Source);
  EXPECT_EQ(b.Copia.Guasti[0].File, In("music") + "gone.mp3");
  EXPECT_TRUE(Ha("F1-0011.mp3"));
  EXPECT_THAT(Colonna("FilePath"), ElementsAre(Hall(), Hall()));
}

TEST_F(SpotFilesBroughtIn, WithACancelThoseBehindItStayAndEveryRowIsRepointed) {
  Traccia(1, 1, 1, "a.mp3");
  Traccia(1, 1, 2, "b.mp3");
  Apri();
  b.Copia.SuProgresso = [&](const CopyState& state) {
    b.Copia.AnnullaAlla = state.FileCount == 2 ? b.Copia.Volte : 0;  // not the commit
  };
  SalvaAperto(Risposta::Si);
  EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente);
  EXPECT_FALSE(Ha("F1-0012.mp3"));
  EXPECT_THAT(Colonna("FilePath"), ElementsAre(Hall(), Hall()));
  EXPECT_EQ(Leggi("1.pal"), "01:00\tF1-0011\t\tF1-0012\t\r\n");
}

TEST_F(SpotFilesBroughtIn, ReplaceOldOnesOfTheirName) {
  Traccia(1, 1, 1, "a.mp3");
  b.Cartella.Write("program/Projects/Hall/F1-0011.mp3", "old");
  SaveAndWatch();
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/F1-0011.mp3", "music/a.mp3"));
}

}  // namespace
}  // namespace kvr5
