#include <QTest>
#include <utility>

#include "playlists/screens/BancoEditor.h"

// Listening to a file of the pane, and to a row of the list.

namespace kvr5 {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

const Lines kStop = {"1 Stop", "1 Close", "2 Stop", "2 Close"};

class EditorListening : public test::BancoEditor {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    Brano(1, 1, "a.mp3");
    Brano(1, 2, "L'été.mp3");
  }
  Lines Told() { return std::exchange(b.Suono.Comandi, {}); }
  static Lines AfterStop(Lines more) {
    Lines all = kStop;
    all.insert(all.end(), more.begin(), more.end());
    return all;
  }
  bool Plays(const char* name) {
    return Trova<Coppia>(name).accessibleName().endsWith(QLatin1String(", playing"));
  }
  void Space() {
    Grid().setFocus();
    Premi(Qt::Key_Space);
  }
};

TEST_F(EditorListening, AFileOfThePaneIsPlayedAndStopped) {
  Apri();
  ClicFile("L'été.mp3");
  Told();
  Clic("cmdPlayFileSx");
  EXPECT_EQ(Told(), AfterStop({"1 Open " + Music() + "L'été.mp3", "1 Play"}));
  EXPECT_TRUE(Plays("cmdPlayFileSx"));
  EXPECT_FALSE(Plays("cmdPlayMp3"));
  Clic("cmdStopFileSx");
  EXPECT_EQ(Told(), kStop);
  EXPECT_FALSE(Plays("cmdPlayFileSx"));
  EXPECT_FALSE(test::PuntatoreOccupato());
}

TEST_F(EditorListening, ARowIsPlayedAndStopped) {
  Apri();
  ClicRiga(1);
  Told();
  Clic("cmdPlayMp3");
  EXPECT_EQ(Told(), AfterStop({"2 Open " + Music() + "L'été.mp3", "2 Play"}));
  EXPECT_TRUE(Plays("cmdPlayMp3"));
  EXPECT_FALSE(Plays("cmdPlayFileSx"));
  Clic("cmdStopMp3");
  EXPECT_EQ(Told(), kStop);
  EXPECT_FALSE(Plays("cmdPlayMp3"));
}

TEST_F(EditorListening, EachStopsTheOther) {
  Apri();
  ClicFile("a.mp3");
  Clic("cmdPlayFileSx");
  Clic("cmdPlayMp3");
  EXPECT_FALSE(Plays("cmdPlayFileSx"));
  EXPECT_TRUE(Plays("cmdPlayMp3"));
  Clic("cmdPlayFileSx");
  EXPECT_TRUE(Plays("cmdPlayFileSx"));
  EXPECT_FALSE(Plays("cmdPlayMp3"));
  Clic("cmdStopMp3");
  EXPECT_FALSE(Plays("cmdPlayFileSx")) << "any stop stops both";
}

TEST_F(EditorListening, SpaceInTheListPlaysAndStops) {
  Apri();
  ClicRiga(0);
  Told();
  Space();
  EXPECT_EQ(Told(), AfterStop({"2 Open " + Music() + "a.mp3", "2 Play"}));
  EXPECT_THAT(Scelte(), ElementsAre(0)) << "the selection stays";
  Space();
  EXPECT_EQ(Told(), kStop);
  EXPECT_FALSE(Plays("cmdPlayMp3"));
}

TEST_F(EditorListening, SpaceOnAnotherRowPlaysThat) {
  Apri();
  ClicRiga(0);
  Space();
  Premi(Qt::Key_Down);
  Told();
  Space();
  EXPECT_EQ(Told(), AfterStop({"2 Open " + Music() + "L'été.mp3", "2 Play"}));
}

TEST_F(EditorListening, EndsWithTheFile) {
  Apri();
  Clic("cmdPlayMp3");
  b.Suono.Finisce(2, 2);
  EXPECT_TRUE(Plays("cmdPlayMp3")) << "not at another notification";
  Told();
  b.Suono.Finisce(2);
  EXPECT_EQ(Told(), kStop);
  EXPECT_FALSE(Plays("cmdPlayMp3"));
  ClicFile("a.mp3");
  Clic("cmdPlayFileSx");
  b.Suono.Finisce(1);
  EXPECT_FALSE(Plays("cmdPlayFileSx"));
}

TEST_F(EditorListening, OfAMissingRowIsToldInABox) {
  Apri();
  std::filesystem::remove(Host("a.mp3"));
  Told();
  Clic("cmdPlayMp3");
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "File missing");
  EXPECT_EQ(box.Testo,
            "Nothing is played: this file isn't where it was. Look for it, or take it off the "
            "list:\r\n" +
                Host("a.mp3"));
  EXPECT_TRUE(box.SoloOk);
  EXPECT_EQ(box.TestoOk, "OK");
  EXPECT_THAT(Told(), IsEmpty());
  EXPECT_FALSE(Plays("cmdPlayMp3"));
  Space();
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "File missing");
}

TEST_F(EditorListening, AFileOfThePaneThatIsGoneIsTriedAllTheSame) {
  Apri();
  ClicFile("a.mp3");
  std::filesystem::remove(Host("a.mp3"));
  b.Suono.SuOpen = Error(errors::FileNotFound);
  Told();
  Clic("cmdPlayFileSx");
  EXPECT_THAT(Told(), Contains("1 Open " + Music() + "a.mp3"));
  EXPECT_TRUE(Trova<Coppia>("cmdPlayFileSx").accessibleName().endsWith(", silent"));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(EditorListening, NothingPickedAndNoRowsIsNothingToPlay) {
  Dimentica();
  Progetto(4, 6);
  Apri();
  Told();
  Clic("cmdPlayFileSx");
  Clic("cmdPlayMp3");
  Space();
  EXPECT_THAT(Told(), IsEmpty());
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(EditorListening, TheExternalPlayerHasNoStop) {
  b.C.Stato.UsaPlayerEsterno = true;
  Apri();
  EXPECT_FALSE(SiVede("cmdStopFileSx"));
  EXPECT_FALSE(SiVede("cmdStopMp3"));
  ClicFile("a.mp3");
  Clic("cmdPlayFileSx");
  ClicRiga(1);
  Clic("cmdPlayMp3");
  EXPECT_THAT(b.Documenti.Aperti, ElementsAre(Music() + "a.mp3", Music() + "L'été.mp3"));
  EXPECT_THAT(b.Documenti.Parametri, ElementsAre(" /PLAY", " /PLAY"));
  EXPECT_FALSE(Plays("cmdPlayFileSx"));
  EXPECT_FALSE(Plays("cmdPlayMp3"));
}

TEST_F(EditorListening, GoesOnWhileTheListIsEdited) {
  Apri();
  Clic("cmdPlayMp3");
  Told();
  ClicRiga(1);
  Clic("cmdSpostaSu");
  Clic("cmdRimuoviFile");
  EXPECT_THAT(Told(), IsEmpty());
  EXPECT_TRUE(Plays("cmdPlayMp3"));
}

TEST_F(EditorListening, IsNotEndedByGoingToThePaneWithoutAPick) {
  Apri();
  b.ScriviMp3("other/z.mp3");
  b.Finestre.ScegliCartella(b.Percorso("other"));
  Clic("picDisk");
  Clic("cmdPlayMp3");
  Told();
  Pane().setFocus();
  QCoreApplication::processEvents();
  EXPECT_THAT(Told(), IsEmpty());
  EXPECT_TRUE(Plays("cmdPlayMp3"));
}

TEST_F(EditorListening, AStopWorksAmidALongRun) {
  Apri();
  Clic("cmdPlayMp3");
  Musica(20);
  Attiva();
  const test::Frattempo stop([this] { return InLista() >= 4; },
                             [this] {
                               Told();
                               Clic("cmdStopMp3");
                               EXPECT_EQ(Told(), kStop);
                               EXPECT_FALSE(Plays("cmdPlayMp3"));
                             });
  Clic("cmdAggiungiTuttiFiles");
  EXPECT_EQ(Griglia().size(), 24U);
}

}  // namespace
}  // namespace kvr5
