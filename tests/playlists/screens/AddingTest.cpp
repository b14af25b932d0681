#include <QTest>
#include <QUrl>

#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "playlists/screens/BancoEditor.h"
#include "projects/CartellaProgetto.h"

// Files added one by one, as many as are selected, and as they are dropped.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class AddingFiles : public test::BancoEditor {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    Musica({"a.mp3", "b.mp3", "c.mp3"});
  }
  std::string Outcome() { return SiVede("lblEsito") ? Testo("lblEsito") : ""; }
};

TEST_F(AddingFiles, ByTheButtonComeLastAndAreCurrent) {
  Brano(1, 1, "old.mp3");
  Apri();
  Analizza("a.mp3");
  Clic("cmdAggiungiFile");
  EXPECT_THAT(Griglia(), ElementsAre("1 old.mp3", "2 a.mp3"));
  EXPECT_EQ(Corrente(), 1);
  EXPECT_THAT(Tutti("tmpPlaylist.mdb"), ElementsAre("1-1 old.mp3", "1-2 a.mp3"));
  EXPECT_THAT(Tutti("playlist.mdb"), ElementsAre("1-1 old.mp3"));
  EXPECT_EQ(Cella(1, ModelloBrani::Nome, Qt::ToolTipRole).toStdString(), Host("a.mp3"));
  Clic("cmdAggiungiFile");
  EXPECT_THAT(Nomi(), ElementsAre("old.mp3", "a.mp3", "a.mp3")) << "any number of times";
}

TEST_F(AddingFiles, LeavesTheCountBehindUntilTheListIsReadAgain) {
  Apri();
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: 0");
  Analizza("a.mp3");
  Clic("cmdAggiungiFile");
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: 0");
  test::ScegliColMouse(Selettore(), 1);
  test::ScegliColMouse(Selettore(), 0);
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: 1");
}

TEST_F(AddingFiles, CountsTheChanges) {
  Apri();
  EXPECT_EQ(Testo("lblModifiche"), "");
  Analizza("a.mp3");
  Clic("cmdAggiungiFile");
  EXPECT_EQ(Testo("lblModifiche"), "1 change unsaved");
  Clic("cmdAggiungiFile");
  EXPECT_EQ(Testo("lblModifiche"), "2 changes unsaved");
}

TEST_F(AddingFiles, ByADoubleClickWaitsForNoTimer) {
  Apri();
  DoppioFile("b.mp3");
  EXPECT_THAT(Nomi(), ElementsAre("b.mp3"));
  EXPECT_FALSE(form->fraFileInfo->tmrInfoMp3.isActive()) << "it was read at once";
  EXPECT_TRUE(SiVede("cmdAggiungiFile"));
  EXPECT_EQ(Testo("lblVersioneMpeg"), "MPEG 1 Layer 3");
}

TEST_F(AddingFiles, ByEnterInThePaneDoesTheSameOncePerPress) {
  Apri();
  ClicFile("b.mp3");
  Premi(Qt::Key_Return);
  EXPECT_THAT(Nomi(), ElementsAre("b.mp3"));
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  for (int i = 0; i < 3; ++i) QCoreApplication::sendEvent(&Pane(), &held);
  EXPECT_THAT(Nomi(), ElementsAre("b.mp3")) << "a key held down is one press";
  Premi(Qt::Key_Enter);
  EXPECT_THAT(Nomi(), ElementsAre("b.mp3", "b.mp3"));
}

TEST_F(AddingFiles, ARefusedFileIsNotAddedByADoubleClickEither) {
  b.Cartella.Write("music/bad.mp3", std::string(3000, 'x'));
  Apri();
  DoppioFile("bad.mp3");
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_TRUE(SiVede("lblBadFileType"));
}

TEST_F(AddingFiles, SeveralSelectedOnesComeInTheOrderOfThePane) {
  Apri();
  Analizza("c.mp3");
  ClicFile("a.mp3", Qt::ControlModifier);
  ASSERT_TRUE(Attesa());
  Clic("cmdAggiungiFile");
  EXPECT_THAT(Nomi(), ElementsAre("a.mp3", "c.mp3"));
  EXPECT_EQ(Outcome(), "");
}

TEST_F(AddingFiles, AllOfThePaneSelectedByItsKeyCanBeAdded) {
  Apri();
  Pane().setFocus();
  Premi(Qt::Key_A, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return SiVede("cmdAggiungiFile"); }));
  Clic("cmdAggiungiFile");
  EXPECT_THAT(Nomi(), ElementsAre("a.mp3", "b.mp3", "c.mp3"));
}

TEST_F(AddingFiles, OfSeveralSelectedOnesTellWhichWereNotTaken) {
  b.Cartella.Write("music/bad.mp3", std::string(3000, 'x'));
  b.Cartella.Write("music/worse.mp3", std::string(3000, 'x'));
  Apri();
  ClicFile("a.mp3");
  ClicFile("worse.mp3", Qt::ShiftModifier);
  ClicFile("a.mp3", Qt::ControlModifier);
  ClicFile("a.mp3", Qt::ControlModifier);
  ASSERT_TRUE(Attesa());
  ASSERT_TRUE(SiVede("cmdAggiungiFile"));
  Clic("cmdAggiungiFile");
  EXPECT_THAT(Nomi(), ElementsAre("a.mp3", "b.mp3", "c.mp3"));
  EXPECT_THAT(Outcome(), HasSubstr("Not taken: bad.mp3. "));
  EXPECT_THAT(Outcome(), HasSubstr("And 1 more."));
  Clic("cmdAggiungiTuttiFiles");
  EXPECT_EQ(Outcome(), "") << "the next command takes the words away";
}

TEST_F(AddingFiles, ToAFullListAreTold) {
  Brani(1, 499);
  Apri();
  Analizza("a.mp3");
  Clic("cmdAggiungiFile");
  EXPECT_EQ(Griglia().back(), "500 a.mp3");
  Clic("cmdAggiungiFile");
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "This playlist is full; its tracks stay");
  EXPECT_EQ(box.Testo, "Limit: 500 tracks");
  EXPECT_TRUE(box.SoloOk);
  EXPECT_EQ(box.TestoOk, "OK");
  EXPECT_EQ(Griglia().size(), 500U);
  DoppioFile("b.mp3");
  b.Finestre.Prossimo();
  Lascia(Grid(), {Host("a.mp3"), Host("b.mp3")});
  EXPECT_TRUE(b.Finestre.Prossimo().SoloOk);
  EXPECT_TRUE(b.Finestre.Silenzio()) << "once for all of them";
  EXPECT_EQ(Griglia().size(), 500U);
}

TEST_F(AddingFiles, WithoutANamedListAreTold) {
  Progetto(3, 9);
  Apri();
  Analizza("a.mp3");
  Clic("cmdAggiungiFile");
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "No playlist yet");
  EXPECT_EQ(box.Testo, "Make a playlist first: press Add and give it a name.");
  EXPECT_TRUE(box.SoloOk);
  EXPECT_EQ(box.TestoOk, "OK");
  Lascia(Grid(), {Host("a.mp3"), Host("b.mp3")});
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "No playlist yet");
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_THAT(Griglia(), IsEmpty());
}

TEST_F(AddingFiles, GoToTheListThatIsSelected) {
  Apri();
  test::ScegliColMouse(Selettore(), 4);
  DoppioFile("a.mp3");
  EXPECT_THAT(Tutti("tmpPlaylist.mdb"), ElementsAre("5-1 a.mp3"));
}

TEST_F(AddingFiles, DroppedOnTheListComeInTheirOrder) {
  Apri();
  EXPECT_TRUE(Trova<QWidget>("fraBrani").acceptDrops());
  Lascia(Grid(), {Host("c.mp3"), Host("a.mp3")});
  EXPECT_THAT(Nomi(), ElementsAre("c.mp3", "a.mp3")) << "the grid lets them through to its frame";
  Lascia(Trova<QWidget>("fraBrani"), {Host("b.mp3")});
  EXPECT_THAT(Nomi(), ElementsAre("c.mp3", "a.mp3", "b.mp3"));
  EXPECT_EQ(Testo("lblModifiche"), "3 changes unsaved");
  EXPECT_TRUE(std::filesystem::exists(Host("a.mp3"))) << "the files stay where they are";
}

TEST_F(AddingFiles, DroppedOnesAreTakenByTheRuleOfThePane) {
  b.Cartella.Write("music/bad.mp3", std::string(3000, 'x'));
  b.ScriviMp3("music/song.wav");
  std::filesystem::create_directories(b.Cartella.Host() / "music/Jazz.mp3");
  Apri();
  Lascia(Grid(), {Host("bad.mp3")});
  EXPECT_THAT(Outcome(), HasSubstr("Not taken: bad.mp3. "));
  Lascia(Grid(), {Host("song.wav")});
  EXPECT_THAT(Outcome(), HasSubstr("Not taken: song.wav. "));
  Lascia(Grid(), {Host("Jazz.mp3")});
  EXPECT_THAT(Outcome(), HasSubstr("This is a folder: open it in the list on the left."));
  Lascia(Grid(), {Host("gone.mp3")});
  EXPECT_THAT(Outcome(), HasSubstr("This file isn't there any more"));
  EXPECT_THAT(Griglia(), IsEmpty());
  Lascia(Grid(), {Host("a.mp3"), Host("bad.mp3"), Host("b.mp3")});
  EXPECT_THAT(Nomi(), ElementsAre("a.mp3", "b.mp3"));
  EXPECT_THAT(Outcome(), HasSubstr("bad.mp3"));
  Lascia(Grid(), {Host("c.mp3")});
  EXPECT_EQ(Outcome(), "");
  Lascia(Grid(), {Host("bad.mp3")});
  test::ScegliColMouse(Selettore(), 2);
  EXPECT_EQ(Outcome(), "") << "it was of another list";
}

TEST_F(AddingFiles, WhatIsNoFileIsNotAccepted) {
  Apri();
  Lascia(Grid(), QList<QUrl>{QUrl("https://example.org/a.mp3")});
  EXPECT_EQ(Outcome(), "");
  Lascia(Grid(), QList<QUrl>{});
  Lascia(Pane(), {Host("a.mp3")});
  EXPECT_THAT(Griglia(), IsEmpty()) << "nor is the pane a place for them";
  Lascia(Grid(), QList<QUrl>{QUrl("https://example.org/a.mp3"),
                             QUrl::fromLocalFile(QString::fromStdString(Host("b.mp3")))});
  EXPECT_THAT(Nomi(), ElementsAre("b.mp3"));
}

TEST_F(AddingFiles, DroppedInNumbersHideTheGridMeanwhile) {
  Musica(20);
  Apri();
  QList<QUrl> all;
  for (int i = 1; i <= 20; ++i) {
    all.append(QUrl::fromLocalFile(
        QString::fromStdString(Host(std::to_string(1000 + i).substr(1) + ".mp3"))));
  }
  b.Finestre.Rispondi(Risposta::No);
  const test::Frattempo save([this] { return InLista() >= 3; },
                             [this] {
                               EXPECT_FALSE(SiVede("grdPlaylist"));
                               EXPECT_TRUE(SiVede("lblAttendere"));
                               Clic("picSave");
                             });
  Lascia(Grid(), all);
  EXPECT_TRUE(SiChiude());
  b.Finestre.Prossimo();
  EXPECT_THAT(Tutti("playlist.mdb"), testing::SizeIs(20)) << "and a save comes at their end";
}

TEST_F(AddingFiles, KeepTheirNamesHoweverOdd) {
  const Righe odd = {"100%.mp3",
                     "O'Neil.mp3",
                     "'; DROP TABLE List; --.mp3",
                     "[x] {y}.mp3",
                     "\xF0\x9F\x8E\xB5 città.mp3",
                     std::string(246, 'n') + ".mp3"};
  for (const auto& each : odd) b.ScriviMp3("music/" + each);
  Apri();
  for (const auto& each : odd) Lascia(Grid(), {Host(each)});
  EXPECT_EQ(Nomi(), odd);
  Clic("cmdSpostaSu");
  Clic("cmdSpostaGiu");
  Clic("cmdRandom");
  Righe shuffled = Nomi();
  EXPECT_THAT(shuffled, testing::UnorderedElementsAreArray(odd));
  ClicRiga(0);
  Clic("cmdRimuoviFile");
  shuffled.erase(shuffled.begin());
  EXPECT_EQ(Nomi(), shuffled);
}

}  // namespace
}  // namespace kvr5
