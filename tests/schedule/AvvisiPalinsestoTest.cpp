#include "core/Lingua.h"
#include "core/Parole.h"
#include "schedule/AvvisiPalinsesto.h"
#include "schedule/BancoPalinsesto.h"
#include "schedule/SalvaPalinsesto.h"

namespace kvr5 {
namespace {

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
  AvvisiPalinsesto Look() {
    if (editor.Copia() == nullptr) Apri();
    return AvvisiPalinsesto(editor);
  }
  std::string Old(const char* name) { return ConValori(TestoLingua(b.C, "0140102"), {name}); }
  std::string Twice(const char* name) { return ConValori(TestoLingua(b.C, "0140103"), {name}); }

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
  Apri();
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  EXPECT_TRUE(Look().Ripetuto(spot)) << "the copy belongs to day 0, which comes first";
}

TEST_F(ScheduleWarnings, AreGoneOnceTheOthersHaveACopyOfTheirOwn) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  Add(0, segment, 1, "gong.mp3");
  Add(0, segment, 2, "gong.mp3");
  Apri();
  EXPECT_EQ(Look().Parole(b.C), Twice("gong.mp3"));
  EXPECT_EQ(Aggiungi(1, "gong 2.mp3"), EsitoSpot::Aggiunto);
  EXPECT_EQ(Look().Parole(b.C), "");
}

TEST_F(ScheduleWarnings, AreNoneForASpotWhoseOwnCopyIsInTheProject) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  Add(0, segment, 1, "gong.mp3", "F0-0011.mp3", true);
  Add(0, segment, 2, "gong.mp3", "F0-0012.mp3", true);
  Copy("F0-0011.mp3");
  Copy("F0-0012.mp3");
  EXPECT_EQ(Look().Parole(b.C), "");
}

TEST_F(ScheduleWarnings, MarkSpotsThatHaveChangedPlacesAboveTheirCopies) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  const auto gong = Add(0, segment, 1, "gong.mp3", "F0-0011.mp3", true);
  const auto news = Add(0, segment, 2, "news.mp3", "F0-0012.mp3", true);
  Copy("F0-0011.mp3");
  Copy("F0-0012.mp3");
  Apri();
  SpostaSpot(editor, 0, true);
  const AvvisiPalinsesto warnings = Look();
  EXPECT_TRUE(warnings.CopiaVecchia(gong));
  EXPECT_TRUE(warnings.CopiaVecchia(news));
  EXPECT_EQ(warnings.Parole(b.C), Old("news.mp3"));
  SpostaSpot(editor, 1, false);
  EXPECT_EQ(Look().Parole(b.C), "");
}

TEST_F(ScheduleWarnings, MarkASpotThatTakesThePlaceOfAnOtherWhoseCopyIsThere) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  const auto gong = Add(0, segment, 1, "gong.mp3", "F0-0011.mp3", true);
  Copy("f0-0011.MP3");
  Apri();
  EXPECT_EQ(Look().Parole(b.C), "");
  b.ScriviMp3("music/news.mp3", 7);
  EXPECT_EQ(Aggiungi(0, "news.mp3", b.Percorso("music")), EsitoSpot::Aggiunto);
  EXPECT_TRUE(Look().CopiaVecchia(gong));
  EXPECT_EQ(Look().Parole(b.C), Old("news.mp3"));
}

TEST_F(ScheduleWarnings, KeepTheirPromiseThatYesMendsIt) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  Add(0, segment, 1, "gong.mp3", "F0-0011.mp3", true);
  b.Cartella.Write("program/Projects/Hall/F0-0011.mp3", "the old one");
  b.ScriviMp3("music/news.mp3", 7);
  Apri();
  Aggiungi(0, "news.mp3", b.Percorso("music"));
  EXPECT_NE(Look().Parole(b.C), "");
  b.Finestre.Rispondi(Risposta::Si);
  FinestraProgresso progress(b.C);
  SalvaPalinsesto(editor, progress);
  editor.Chiudi();
  b.Finestre.Prossimo();
  EXPECT_EQ(Leggi("F0-0011.mp3"), b.Cartella.Read("music/news.mp3"));
  Apri();
  EXPECT_EQ(Look().Parole(b.C), "");
}

TEST_F(ScheduleWarnings, NameBothKinds) {
  Progetto(4, 2);
  const auto segment = Segmento(0, "00.10");
  Add(0, segment, 1, "old.mp3");
  Add(0, segment, 2, "gong.mp3");
  Add(0, segment, 3, "gong.mp3");
  Copy("F0-0011.mp3");
  EXPECT_EQ(Look().Parole(b.C), Old("old.mp3") + "\n" + Twice("gong.mp3"));
}

TEST_F(ScheduleWarnings, AreNoneWithoutADatabase) {
  Progetto(4, 2);
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall/scheduler.mdb");
  EXPECT_EQ(Look().Parole(b.C), "");
  EXPECT_EQ(AvvisiPalinsesto().Parole(b.C), "");
}

}  // namespace
}  // namespace kvr5
