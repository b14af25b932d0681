#include "core/Lingua.h"
#include "core/Parole.h"
#include "schedule/AvvisiPalinsesto.h"
#include "schedule/BancoPalinsesto.h"
#include "schedule/SalvaPalinsesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;

/// What a recording would get wrong, told before the save.
class ScheduleWarnings : public test::BancoPalinsesto {
 protected:
  /// A spot whose file is in the folder "music"; its ID.
  std::int64_t Add(int day, std::int64_t segment, int pos, const std::string& name,
                   const std::string& alias = "", bool atHome = false) {
    Spot(day, segment, pos, name, atHome ? Hall() : b.Percorso("music") + "\\", alias);
    return ++last_;
  }
  void Copy(const std::string& alias) const { b.ScriviMp3("program/Projects/Hall/" + alias); }
  /// Opens the editor as the screen does.
  void Open() {
    Apri();
    copies.Leggi(editor);
  }
  AvvisiPalinsesto Look() {
    if (editor.Copia() == nullptr) Open();
    return AvvisiPalinsesto(editor, copies);
  }
  void Save(Risposta answer) {
    b.Finestre.Rispondi(answer);
    FinestraProgresso progress(b.C);
    SalvaPalinsesto(editor, progress);
    editor.Chiudi();
    b.Finestre.Prossimo();
  }
  std::string Old(const char* name) { return ConValori(TestoLingua(b.C, "0140102"), {name}); }
  std::string Rename() { return TestoLingua(b.C, "0140132"); }
  std::string Twice(const char* name) { return ConValori(TestoLingua(b.C, "0140103"), {name}); }

  CopieDegliSpot copies;

 private:
  std::int64_t last_ = 0;
};

TEST_F(ScheduleWarnings, AreNoneForFilesThatStandInOneSpotEach) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  const auto a = Add(0, segment, 1, "a.mp3");
  const auto c = Add(0, segment, 2, "c.mp3");
  const AvvisiPalinsesto warnings = Look();
  for (const auto id : {a, c}) {
    EXPECT_FALSE(warnings.Ripetuto(id));
    EXPECT_FALSE(warnings.CopiaVecchia(id));
  }
  EXPECT_EQ(warnings.Parole(b.C), "");
}

TEST_F(ScheduleWarnings, NameAFileOfSeveralSpotsAndMarkAllButTheFirst) {
  Progetto(3, 3);
  const auto early = Segmento(1, "08.00");
  const auto late = Segmento(2, "07.00");
  const auto first = Add(1, early, 1, "gong.mp3");
  const auto again = Add(1, early, 2, "GONG.mp3");
  const auto other = Add(2, late, 1, "gong.mp3");
  const auto single = Add(2, late, 2, "news.mp3");
  const AvvisiPalinsesto warnings = Look();
  EXPECT_FALSE(warnings.Ripetuto(first));
  EXPECT_TRUE(warnings.Ripetuto(again)) << "the card doesn't mind the case";
  EXPECT_TRUE(warnings.Ripetuto(other));
  EXPECT_FALSE(warnings.Ripetuto(single));
  EXPECT_EQ(warnings.Parole(b.C), Twice("GONG.mp3"));
}

TEST_F(ScheduleWarnings, MarkTheSpotsOfADayWhoseFilesADuplicateHasTaken) {
  Progetto(3, 3);
  const auto segment = Segmento(1, "08.00");
  const auto spot = Add(1, segment, 1, "gong.mp3");
  Open();
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  EXPECT_TRUE(Look().Ripetuto(spot)) << "the copy belongs to day 0, which comes first";
}

TEST_F(ScheduleWarnings, AreGoneOnceTheOthersHaveACopyOfTheirOwn) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  Add(0, segment, 1, "gong.mp3");
  Add(0, segment, 2, "gong.mp3");
  Open();
  EXPECT_EQ(Look().Parole(b.C), Twice("gong.mp3"));
  EXPECT_EQ(Aggiungi(1, "gong 2.mp3"), EsitoSpot::Aggiunto);
  EXPECT_EQ(Look().Parole(b.C), "");
}

TEST_F(ScheduleWarnings, OfASpotWhoseOwnCopyIsInTheProjectWantItsNameAlone) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  const auto first = Add(0, segment, 1, "gong.mp3", "F0-0011.mp3", true);
  const auto second = Add(0, segment, 2, "gong.mp3", "F0-0012.mp3", true);
  Copy("F0-0011.mp3");
  Copy("F0-0012.mp3");
  EXPECT_EQ(Look().Parole(b.C), Rename());
  EXPECT_TRUE(Look().SenzaNome());
  for (const auto id : {first, second}) {
    EXPECT_FALSE(Look().CopiaVecchia(id));
    EXPECT_FALSE(Look().Ripetuto(id));
  }
  b.ScriviMp3("program/Projects/Hall/gong.mp3");
  EXPECT_EQ(Look().Parole(b.C), "");
}

TEST_F(ScheduleWarnings, MarkSpotsThatHaveChangedPlacesAboveTheirCopies) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  const auto gong = Add(0, segment, 1, "gong.mp3", "F0-0011.mp3", true);
  const auto news = Add(0, segment, 2, "news.mp3", "F0-0012.mp3", true);
  Copy("F0-0011.mp3");
  Copy("F0-0012.mp3");
  Open();
  SpostaSpot(editor, 0, true);
  const AvvisiPalinsesto warnings = Look();
  EXPECT_TRUE(warnings.CopiaVecchia(gong));
  EXPECT_TRUE(warnings.CopiaVecchia(news));
  EXPECT_EQ(warnings.Parole(b.C), Rename() + "\n" + Old("news.mp3"));
  SpostaSpot(editor, 1, false);
  EXPECT_EQ(Look().Parole(b.C), Rename());
}

TEST_F(ScheduleWarnings, MarkASpotThatTakesThePlaceOfAnOtherWhoseCopyIsThere) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  const auto gong = Add(0, segment, 1, "gong.mp3", "F0-0011.mp3", true);
  Copy("f0-0011.MP3");
  Open();
  b.ScriviMp3("music/news.mp3", 7);
  EXPECT_FALSE(Look().CopiaVecchia(gong));
  EXPECT_EQ(Aggiungi(0, "news.mp3", b.Percorso("music")), EsitoSpot::Aggiunto);
  EXPECT_TRUE(Look().CopiaVecchia(gong));
  EXPECT_THAT(Look().Parole(b.C), testing::HasSubstr(Old("news.mp3")));
}

/// A project whose three spots were saved with Yes, each from a file of its own, and whose sources
/// are gone since.
class CopiesOfSpots : public ScheduleWarnings {
 protected:
  void SetUp() override {
    Progetto(4, 2);
    const auto segment = Segmento(0, "00.10");
    int pos = 0;
    for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) {
      b.ScriviMp3(std::string("music/") + name, ++pos);
      music.push_back(b.Cartella.Read(std::string("music/") + name));
      Add(0, segment, pos, name);
    }
    Open();
    Save(Risposta::Si);
    std::filesystem::remove_all(b.Cartella.Host() / "music");
    Open();
  }
  std::vector<std::string> music;
};

TEST_F(CopiesOfSpots, GetTheirNamesAndMayChangePlacesThen) {
  EXPECT_EQ(Look().Parole(b.C), Rename());
  copies.RidaiNomi(editor);
  EXPECT_EQ(Leggi("b.mp3"), music[1]);
  EXPECT_EQ(Look().Parole(b.C), "");
  SpostaSpot(editor, 0, true);
  EXPECT_EQ(Look().Parole(b.C), Old("b.mp3"));
  Save(Risposta::Si);
  EXPECT_TRUE(b.Copia.Guasti.empty());
  EXPECT_EQ(Leggi("F0-0011.mp3"), music[1]);
  EXPECT_EQ(Leggi("F0-0012.mp3"), music[0]);
  EXPECT_EQ(Leggi("F0-0013.mp3"), music[2]);
}

TEST_F(CopiesOfSpots, WithoutTheirNamesStopASecondYes) {
  Save(Risposta::Si);
  ASSERT_EQ(b.Copia.Guasti.size(), 1U) << "the copy finds no a.mp3 in the project";
}

TEST_F(CopiesOfSpots, WithTheirNamesLetASecondYesBringNewFilesIn) {
  copies.RidaiNomi(editor);
  b.ScriviMp3("music/d.mp3", 9);
  Aggiungi(3, "d.mp3", b.Percorso("music"));
  Save(Risposta::Si);
  EXPECT_TRUE(b.Copia.Guasti.empty());
  EXPECT_EQ(Leggi("F0-0014.mp3"), b.Cartella.Read("music/d.mp3"));
  EXPECT_EQ(Leggi("F0-0011.mp3"), music[0]);
}

TEST_F(CopiesOfSpots, KeepTheProjectWholeWhereTheEditorIsLeftAfterwards) {
  const std::string before = Leggi("scheduler.mdb");
  copies.RidaiNomi(editor);
  editor.Chiudi();
  EXPECT_EQ(Leggi("scheduler.mdb"), before);
  for (std::size_t i = 0; i < music.size(); ++i) {
    EXPECT_EQ(Leggi("F0-001" + std::to_string(i + 1) + ".mp3"), music[i]);
  }
}

TEST_F(CopiesOfSpots, OfAProjectFromACardLeadTheirRowsHome) {
  editor.Chiudi();
  Esegui("UPDATE [List] SET [FilePath]='C:\\Elsewhere\\'");
  Open();
  EXPECT_EQ(Look().Parole(b.C), Rename());
  copies.RidaiNomi(editor);
  EXPECT_THAT(Colonna("FilePath", "tmpScheduler.mdb"), testing::Each(Hall()));
  EXPECT_THAT(Colonna("FilePath"), testing::Each("C:\\Elsewhere\\"));
  EXPECT_EQ(editor.Modifiche(), 3);
  EXPECT_EQ(Look().Parole(b.C), "");
}

TEST_F(CopiesOfSpots, OfTwoFilesOfOneNameGetNamesThatDiffer) {
  editor.Chiudi();
  Esegui("UPDATE [List] SET [FileName]='same.mp3' WHERE [Pos]<3");
  Open();
  copies.RidaiNomi(editor);
  EXPECT_EQ(Leggi("same.mp3"), music[0]);
  EXPECT_EQ(Leggi("same (2).mp3"), music[1]);
  EXPECT_EQ(Leggi("c.mp3"), music[2]);
  EXPECT_FALSE(Look().SenzaNome());
  SpostaSpot(editor, 0, true);
  Save(Risposta::Si);
  EXPECT_TRUE(b.Copia.Guasti.empty());
  EXPECT_EQ(Leggi("F0-0011.mp3"), music[1]);
  EXPECT_EQ(Leggi("F0-0012.mp3"), music[0]);
}

TEST_F(CopiesOfSpots, DontTakeTheNameOfAnotherFileOfTheProject) {
  editor.Chiudi();
  Esegui("UPDATE [List] SET [FilePath]='C:\\Elsewhere\\'");
  b.Cartella.Write("program/Projects/Hall/b.mp3", "the file of an input");
  Open();
  copies.RidaiNomi(editor);
  EXPECT_EQ(Leggi("b.mp3"), "the file of an input");
  EXPECT_EQ(Leggi("b (2).mp3"), music[1]);
  EXPECT_THAT(Griglia(), ElementsAre("00:10:00 a.mp3 b (2).mp3 c.mp3"));
}

TEST_F(CopiesOfSpots, OfASpotThatWasReplacedAndSavedWithNoAreNotItsOwn) {
  b.ScriviMp3("music/new.mp3", 9, 20);
  Aggiungi(0, "new.mp3", b.Percorso("music"));
  Save(Risposta::No);
  Open();
  EXPECT_TRUE(Look().CopiaVecchia(1)) << "the card would get the one before";
  EXPECT_FALSE(copies.Propria(1, b.Percorso("music") + "\\", "new.mp3"));
  copies.RidaiNomi(editor);
  EXPECT_FALSE(Ha("new.mp3")) << "the copy isn't of this file";
  EXPECT_THAT(Griglia(), ElementsAre("00:10:00 new.mp3 b.mp3 c.mp3"));
  Save(Risposta::Si);
  EXPECT_EQ(Leggi("F0-0011.mp3"), b.Cartella.Read("music/new.mp3"));
  Open();
  EXPECT_FALSE(Look().CopiaVecchia(1)) << "now it is";
}

TEST_F(CopiesOfSpots, OfASpotThatIsReplacedMeanwhileDontLeadItAstray) {
  editor.Chiudi();
  Esegui("UPDATE [List] SET [FilePath]='C:\\Elsewhere\\'");
  Open();
  b.ScriviMp3("music/new.mp3", 9);
  Aggiungi(0, "new.mp3", b.Percorso("music"));
  copies.RidaiNomi(editor);
  EXPECT_THAT(Colonna("FilePath", "tmpScheduler.mdb"),
              ElementsAre(b.Percorso("music") + "\\", Hall(), Hall()));
}

TEST_F(CopiesOfSpots, ThatAreTheFilesThemselvesWantNothing) {
  editor.Chiudi();
  Esegui("UPDATE [List] SET [FileName]=[Alias]");
  Open();
  EXPECT_EQ(Look().Parole(b.C), "");
}

TEST_F(ScheduleWarnings, OfAStaleCopyOfASharedFileAreBoth) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  Add(0, segment, 1, "gong.mp3");
  const auto both = Add(0, segment, 2, "gong.mp3");
  b.ScriviMp3("music/gong.mp3");
  Copy("F0-0012.mp3");
  const AvvisiPalinsesto warnings = Look();
  EXPECT_TRUE(warnings.Ripetuto(both));
  EXPECT_TRUE(warnings.CopiaVecchia(both));
  EXPECT_TRUE(warnings.Copiabili());
}

TEST_F(ScheduleWarnings, TakeTheSpotThatARecordingComesToFirst) {
  Progetto(4, 2);
  const auto early = Segmento(0, "00.10");
  const auto late = Segmento(0, "00.20");
  Add(0, early, 1, "a.mp3");
  const auto second = Add(0, early, 2, "gong.mp3");
  const auto first = Add(0, late, 1, "gong.mp3");
  const AvvisiPalinsesto warnings = Look();
  EXPECT_FALSE(warnings.Ripetuto(first)) << "it goes by the place, whatever the segment";
  EXPECT_TRUE(warnings.Ripetuto(second));
  EXPECT_FALSE(warnings.Copiabili()) << "there is no such file to be copied";
}

TEST_F(CopiesOfSpots, WhoseNamesNoCardHoldsAreLeftAsTheyAre) {
  editor.Chiudi();
  Esegui("UPDATE [List] SET [FileName]='what?.mp3'");
  Open();
  EXPECT_FALSE(Look().SenzaNome());
  copies.RidaiNomi(editor);
  EXPECT_TRUE(b.Copia.Guasti.empty());
}

TEST_F(ScheduleWarnings, NameBothKinds) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  Add(0, segment, 1, "old.mp3");
  Add(0, segment, 2, "gong.mp3");
  Add(0, segment, 3, "gong.mp3");
  Copy("F0-0011.mp3");
  EXPECT_EQ(Look().Parole(b.C), Twice("gong.mp3") + "\n" + Old("old.mp3"));
}

TEST_F(ScheduleWarnings, AreNoneWithoutADatabase) {
  Progetto(4, 2);
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall/scheduler.mdb");
  EXPECT_EQ(Look().Parole(b.C), "");
  EXPECT_EQ(AvvisiPalinsesto().Parole(b.C), "");
}

}  // namespace
}  // namespace kvr5
