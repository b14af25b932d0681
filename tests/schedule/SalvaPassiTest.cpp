#include "schedule/BancoSalvaPalinsesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The steps of a save, looked at while it runs.
class SaveStepByStep : public test::BancoSalvaPalinsesto {
 protected:
  /// Three spots in two segments.
  void SetUp() override {
    Progetto(3, 3);
    Segmento(1, "01.00");
    Segmento(1, "02.00");
    Traccia(1, 1, 1, "a.mp3");
    Traccia(1, 2, 1, "b.mp3");
    Traccia(1, 2, 3, "c.mp3");
    Apri();
  }
  /// Calls `look` each time that events run in the step of this text.
  void During(const char* key, const std::function<void()>& look) {
    b.Messaggi.Accade = [this, key, look] {
      if (progresso.TestoOperazione() == Parola(key)) look();
    };
  }
};

TEST_F(SaveStepByStep, ShowsFiveSteps) {
  SalvaAperto();
  Righe expected;
  int value = 0;
  for (const char* key : {"0140030", "0140031", "0140032", "0140033", "0140034"}) {
    expected.push_back(Parola(key) + " " + std::to_string(value) + "/5");
    expected.push_back(Parola(key) + " " + std::to_string(++value) + "/5");
  }
  EXPECT_EQ(progresso.Seen, expected);
  EXPECT_FALSE(progresso.Caricata());
}

TEST_F(SaveStepByStep, WritesTheReportBeforeAnySpotIsNamedOrNumbered) {
  bool looked = false;
  During("0140031", [&] {
    looked = true;
    EXPECT_NE(Leggi("Scheduler.htm").find("b.mp3<BR>"), std::string::npos);
    EXPECT_TRUE(Leggi("Scheduler.htm").ends_with("</HTML>\r\n"));
    EXPECT_THAT(Colonna("Alias", "tmpScheduler.mdb"), ElementsAre("", "", ""));
    EXPECT_THAT(Colonna("Pos", "tmpScheduler.mdb"), ElementsAre("1", "1", "3"));
  });
  SalvaAperto();
  EXPECT_TRUE(looked);
}

TEST_F(SaveStepByStep, ThePageLacksASpotThatIsBroughtToAPlaceOnlyThen) {
  editor.Chiudi();
  Sql("UPDATE List SET Pos=9 WHERE Pos=3");
  Salva();
  EXPECT_EQ(Leggi("Scheduler.htm").find("c.mp3"), std::string::npos);
  EXPECT_EQ(Leggi("1.pal"), "01:00\tF1-0011\t\r\n02:00\tF1-0021\t\tF1-0022\t\r\n");
}

TEST_F(SaveStepByStep, NumbersTheSpotsBeforeItNamesThem) {
  bool looked = false;
  During("0140032", [&] {
    if (looked) return;
    looked = true;
    EXPECT_THAT(Colonna("Pos", "tmpScheduler.mdb"), ElementsAre("1", "1", "2"));
    EXPECT_THAT(Colonna("Alias", "tmpScheduler.mdb"), ElementsAre("", "", ""));
  });
  SalvaAperto();
  EXPECT_TRUE(looked);
}

TEST_F(SaveStepByStep, WritesTheFilesBeforeItAsks) {
  b.Finestre.SuBox = [&](const test::BoxVisto&) {
    EXPECT_EQ(Leggi("1.pal"), "01:00\tF1-0011\t\r\n02:00\tF1-0021\t\tF1-0022\t\r\n");
    EXPECT_TRUE(Ha("7.pal"));
    EXPECT_THAT(Alias(), ElementsAre("", "", "")) << "nothing is committed yet";
  };
  SalvaAperto();
}

TEST_F(SaveStepByStep, AsksInTheseWordsWhileTheWindowIsAway) {
  b.Finestre.SuBox = [&](const test::BoxVisto&) {
    EXPECT_FALSE(progresso.Visibile());
    EXPECT_TRUE(progresso.Caricata());
  };
  b.Finestre.Rispondi(Risposta::No);
  SalvaPalinsesto(editor, progresso);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, Parola("0140035"));
  EXPECT_EQ(box.Testo, Parola("0140036") + "\r\n" + Parola("0140037"));
  EXPECT_TRUE(box.SiNo);
  EXPECT_FALSE(box.Toglie) << "the keyboard begins on yes";
  EXPECT_FALSE(box.SoloOk);
}

TEST_F(SaveStepByStep, CommitsWithTheWindowAndCopiesTheFilesWithoutIt) {
  Righe seen;
  b.Copia.SuProgresso = [&](const CopyState& state) {
    const std::string now = state.File.substr(state.File.rfind('\\') + 1) +
                            (progresso.Visibile() ? " shown" : " away") +
                            (progresso.Caricata() ? "" : ", unloaded");
    if (seen.empty() || seen.back() != now) seen.push_back(now);
  };
  SalvaAperto(Risposta::Si);
  EXPECT_THAT(seen, ElementsAre("tmpScheduler.mdb shown", "a.mp3 away, unloaded",
                                "b.mp3 away, unloaded", "c.mp3 away, unloaded"));
}

TEST_F(SaveStepByStep, CountsEachSpotWhileNamingAndWritingAndAnewWhileListing) {
  Righe counts;
  b.Messaggi.Accade = [&] {
    const std::string now = progresso.TestoNumFile();
    if (progresso.NumFileVisibile() && (counts.empty() || counts.back() != now))
      counts.push_back(now);
  };
  SalvaAperto(Risposta::Si);
  ASSERT_FALSE(counts.empty());
  std::erase(counts, "1/1");  // of a window that counts nothing yet
  EXPECT_THAT(counts, ElementsAre("1/3", "2/3", "3/3", "4/3", "5/3", "6/3", "1/3", "2/3", "3/3"));
}

TEST_F(SaveStepByStep, HasTheWaitPointerUntilItsEnd) {
  b.Messaggi.Accade = [&] { EXPECT_EQ(b.Messaggi.Ora, Puntatore::Attesa); };
  SalvaAperto(Risposta::Si);
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(SaveStepByStep, ClosesTheRowsFirst) {
  During("0140030", [&] {
    EXPECT_FALSE(editor.rsSegmenti().IsOpen());
    EXPECT_FALSE(editor.rsDettaglio().IsOpen());
  });
  SalvaAperto();
}

TEST_F(SaveStepByStep, ClosesTheConnectionBeforeItCommits) {
  bool looked = false;
  b.Copia.SuProgresso = [&](const CopyState&) {
    looked = true;
    EXPECT_FALSE(editor.ConnessionePalinsesto().IsOpen());
    EXPECT_FALSE(Ha("scheduler.mdb")) << "the old one goes before the new one comes";
  };
  SalvaAperto();
  EXPECT_TRUE(looked);
}

TEST_F(SaveStepByStep, ACancelOfTheWindowIsNotHeeded) {
  During("0140032", [&] { progresso.Annulla(); });
  SalvaAperto(Risposta::Si);
  EXPECT_THAT(Alias(), ElementsAre("F1-0011.mp3", "F1-0021.mp3", "F1-0022.mp3"));
  EXPECT_TRUE(Ha("F1-0022.mp3"));
}

TEST_F(SaveStepByStep, OfAClosedEditorDoesNothing) {
  editor.Chiudi();
  const std::string before = Leggi("scheduler.mdb");
  SalvaPalinsesto(editor, progresso);
  EXPECT_TRUE(Leggi("scheduler.mdb") == before);
  EXPECT_FALSE(Ha("1.pal"));
  EXPECT_THAT(progresso.Seen, IsEmpty());
}

}  // namespace
}  // namespace kvr5
