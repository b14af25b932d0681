#include <QTest>
#include <algorithm>

#include "core/screens/Tema.h"
#include "playlists/screens/BancoEditor.h"

// Rows taken off the list and put in order.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Ordering : public test::BancoEditor {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    for (int i = 1; i <= 5; ++i) {
      Brano(1, i, std::string(1, static_cast<char>('a' + i - 1)) + ".mp3");
    }
    Apri();
  }
  /// The names without their endings, "abcde".
  std::string Order() const {
    std::string all;
    for (const std::string& each : Nomi()) all += each.front();
    return all;
  }
  void Keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Grid().setFocus();
    Premi(key, modifiers);
  }
  /// Selects these rows with the mouse; the last one is current.
  void Select(std::initializer_list<int> rows) {
    bool first = true;
    for (const int row : rows) {
      ClicRiga(row, std::exchange(first, false) ? Qt::NoModifier : Qt::ControlModifier);
    }
  }
  std::string Copy() {
    std::string all;
    for (const std::string& each : Tutti("tmpPlaylist.mdb")) all += each.substr(2) + " ";
    return all;
  }
};

TEST_F(Ordering, ARemovedRowIsFollowedByTheOneThatTookItsPlace) {
  ClicRiga(2);
  Clic("cmdRimuoviFile");
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 b.mp3", "3 d.mp3", "4 e.mp3"));
  EXPECT_EQ(Corrente(), 2);
  EXPECT_THAT(Scelte(), ElementsAre(2));
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: 4");
  EXPECT_EQ(Testo("lblModifiche"), "1 change unsaved");
  EXPECT_TRUE(b.Finestre.Silenzio()) << "no question";
  Clic("cmdRimuoviFile");
  Clic("cmdRimuoviFile");
  EXPECT_EQ(Order(), "ab");
  EXPECT_EQ(Corrente(), 1) << "the last one where none came after it";
}

TEST_F(Ordering, TheFirstRowIsCurrentAtTheLoad) {
  EXPECT_EQ(Corrente(), 0);
  Clic("cmdRimuoviFile");
  EXPECT_EQ(Order(), "bcde");
}

TEST_F(Ordering, DelRemovesWhatIsSelected) {
  Select({1, 3});
  Keys(Qt::Key_Delete);
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 c.mp3", "3 e.mp3"));
  EXPECT_EQ(Corrente(), 1);
  EXPECT_EQ(Testo("lblModifiche"), "2 changes unsaved");
  EXPECT_EQ(form->focusWidget(), &Grid());
  Premi(Qt::Key_Delete);
  EXPECT_EQ(Order(), "ae");
}

TEST_F(Ordering, ADelThatIsHeldDownRemovesOnce) {
  ClicRiga(0);
  Keys(Qt::Key_Delete);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, {}, true);
  for (int i = 0; i < 3; ++i) QCoreApplication::sendEvent(&Grid(), &held);
  EXPECT_EQ(Order(), "bcde");
}

TEST_F(Ordering, TheButtonRemovesAllThatIsSelectedToo) {
  ClicRiga(1);
  ClicRiga(4, Qt::ShiftModifier);
  Clic("cmdRimuoviFile");
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3"));
  EXPECT_THAT(Tutti("tmpPlaylist.mdb"), ElementsAre("1-1 a.mp3"));
}

TEST_F(Ordering, AllRowsSelectedCanBeRemoved) {
  Keys(Qt::Key_A, Qt::ControlModifier);
  Premi(Qt::Key_Delete);
  EXPECT_THAT(Griglia(), IsEmpty());
  Premi(Qt::Key_Delete);
  Clic("cmdRimuoviFile");
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_EQ(Testo("lblModifiche"), "5 changes unsaved");
}

TEST_F(Ordering, ARowMovesByOnePlaceAndStaysCurrent) {
  ClicRiga(2);
  Clic("cmdSpostaSu");
  EXPECT_EQ(Order(), "acbde");
  EXPECT_EQ(Corrente(), 1);
  EXPECT_THAT(Scelte(), ElementsAre(1));
  Clic("cmdSpostaGiu");
  Clic("cmdSpostaGiu");
  EXPECT_EQ(Order(), "abdce");
  EXPECT_EQ(Corrente(), 3);
  EXPECT_EQ(Copy(), "1 a.mp3 2 b.mp3 3 d.mp3 4 c.mp3 5 e.mp3 ");
}

TEST_F(Ordering, TheEndsOfTheListStopIt) {
  ClicRiga(0);
  Clic("cmdSpostaSu");
  Keys(Qt::Key_Up, Qt::AltModifier);
  ClicRiga(4);
  Clic("cmdSpostaGiu");
  Keys(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Order(), "abcde");
  EXPECT_EQ(Testo("lblModifiche"), "") << "that was no change";
}

TEST_F(Ordering, AltAndTheArrowsMoveAndGoOnWhileHeldDown) {
  ClicRiga(4);
  Keys(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Order(), "abced");
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Up, Qt::AltModifier, {}, true);
  for (int i = 0; i < 9; ++i) QCoreApplication::sendEvent(&Grid(), &held);
  EXPECT_EQ(Order(), "eabcd");
  EXPECT_EQ(Corrente(), 0);
  Keys(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Order(), "aebcd");
  EXPECT_EQ(form->focusWidget(), &Grid());
}

TEST_F(Ordering, SeveralRowsMoveTogetherAndStaySelected) {
  Select({1, 3});
  Keys(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Order(), "badce");
  EXPECT_THAT(Scelte(), ElementsAre(0, 2));
  Premi(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Order(), "bdace") << "the first one has come to the end";
  EXPECT_THAT(Scelte(), ElementsAre(0, 1));
  Premi(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Order(), "bdace");
  for (int i = 0; i < 3; ++i) Clic("cmdSpostaGiu");
  EXPECT_EQ(Order(), "acebd");
  EXPECT_THAT(Scelte(), ElementsAre(3, 4));
  EXPECT_EQ(Copy(), "1 a.mp3 2 c.mp3 3 e.mp3 4 b.mp3 5 d.mp3 ");
}

TEST_F(Ordering, AMoveThatCameToNothingLeavesNoSelectionForTheNextCommand) {
  Select({0, 1});
  Keys(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Order(), "abcde");
  EXPECT_THAT(Scelte(), ElementsAre(0, 1));
  DoppioFile("c.mp3");
  EXPECT_EQ(Order(), "abcdec");
  EXPECT_THAT(Scelte(), ElementsAre(5));
}

TEST_F(Ordering, TheArrowsAloneGoFromRowToRow) {
  ClicRiga(0);
  Keys(Qt::Key_Down);
  Premi(Qt::Key_Down);
  EXPECT_EQ(Corrente(), 2);
  Clic("cmdRimuoviFile");
  EXPECT_EQ(Order(), "abde") << "the row that the keys came to";
}

TEST_F(Ordering, AShuffleGivesTheSameRowsANewOrder) {
  Dimentica();
  Brani(2, 60);
  Musica(60);
  Apri();
  test::ScegliColMouse(Selettore(), 3);
  Clic("cmdAggiungiTuttiFiles");
  const Righe before = Nomi();
  ASSERT_THAT(before, SizeIs(65));
  Clic("cmdRandom");
  Righe after = Nomi();
  EXPECT_NE(after, before);
  for (int i = 0; i < 65; ++i) EXPECT_EQ(Cella(i, ModelloBrani::Posto), QString::number(i + 1));
  std::ranges::sort(after);
  Righe sorted = before;
  std::ranges::sort(sorted);
  EXPECT_EQ(after, sorted);
  EXPECT_TRUE(SiVede("grdPlaylist"));
  EXPECT_FALSE(form->Brani->tmrAttendere.isActive());
}

TEST_F(Ordering, AShuffleHidesTheGridAndTakesACloseAtItsEnd) {
  const test::Frattempo leave([this] { return !SiVede("grdPlaylist"); },
                              [this] {
                                EXPECT_TRUE(SiVede("lblAttendere"));
                                Clic("picAnnulla");
                                EXPECT_TRUE(form->isVisible());
                              });
  Clic("cmdRandom");
  EXPECT_TRUE(SiChiude());
  EXPECT_FALSE(Ha("tmpPlaylist.mdb"));
}

TEST_F(Ordering, RemoveAllAsksBefore) {
  b.Finestre.Rispondi(Risposta::No);
  Clic("cmdRimuoviTuttiFile");
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Empty the playlist");
  EXPECT_EQ(box.Testo, "Take all tracks off this playlist? The files stay where they are.");
  EXPECT_TRUE(box.SiNo);
  EXPECT_FALSE(box.SoloOk);
  EXPECT_EQ(Order(), "abcde");
  b.Finestre.Rispondi(Risposta::Annulla);
  Clic("cmdRimuoviTuttiFile");
  b.Finestre.Prossimo();
  EXPECT_EQ(Order(), "abcde");
  b.Finestre.Rispondi(Risposta::Si);
  Clic("cmdRimuoviTuttiFile");
  b.Finestre.Prossimo();
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: 0");
  EXPECT_TRUE(std::filesystem::exists(Host("a.mp3")));
  Clic("cmdRimuoviTuttiFile");
  EXPECT_TRUE(b.Finestre.Silenzio()) << "nothing is left to ask about";
}

TEST_F(Ordering, RemoveAllLeavesTheOtherLists) {
  Dimentica();
  Brano(2, 1, "other.mp3");
  Apri();
  b.Finestre.Rispondi(Risposta::Si);
  Clic("cmdRimuoviTuttiFile");
  b.Finestre.Prossimo();
  EXPECT_THAT(Tutti("tmpPlaylist.mdb"), ElementsAre("2-1 other.mp3"));
}

class Figures : public test::BancoEditor {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    b.ScriviMp3("music/a.mp3", 0, 2000);  // 52 seconds, 814 KB
    for (const auto& [pos, name] : {std::pair{1, "a.mp3"}, {2, "gone.mp3"}, {3, "a.mp3"}}) {
      b.AggiungiRiga("playlist.mdb", 1, pos, name, Music(), "");
    }
    Apri();
    ASSERT_TRUE(Contato());
  }
  QVariant Role(int row, int role) const {
    return Grid().model()->index(row, ModelloBrani::Nome).data(role);
  }
};

TEST_F(Figures, TellTimeOfAllTracksAndBytesOfEachFileOnce) {
  EXPECT_EQ(Cella(0, ModelloBrani::Durata), "0:52");
  EXPECT_EQ(Cella(0, ModelloBrani::Grandezza), Cella(2, ModelloBrani::Grandezza));
  EXPECT_EQ(Testo("lblTotali"),
            "1:44, " + Cella(0, ModelloBrani::Grandezza).toStdString() + ", 1 missing");
}

TEST_F(Figures, MarkAMissingFileAndTellWhereItWas) {
  const QColor error = Tema::Corrente().Errore;
  EXPECT_EQ(Role(1, Qt::ForegroundRole).value<QColor>(), error);
  EXPECT_FALSE(Role(1, Qt::DecorationRole).value<QIcon>().isNull());
  EXPECT_EQ(Cella(1, ModelloBrani::Durata), "missing");
  EXPECT_EQ(Cella(1, ModelloBrani::Grandezza), "");
  EXPECT_EQ(Role(1, Qt::ToolTipRole).toString().toStdString(), "It was here: " + Host("gone.mp3"));
  EXPECT_FALSE(Role(0, Qt::ForegroundRole).value<QColor>() == error);
  EXPECT_TRUE(Role(0, Qt::DecorationRole).isNull());
  EXPECT_EQ(Role(0, Qt::ToolTipRole).toString().toStdString(), Host("a.mp3"));
  EXPECT_THAT(Griglia(), SizeIs(3)) << "it is kept";
}

TEST_F(Figures, MarkTheNameThatDifferentFilesHave) {
  EXPECT_FALSE(SiVede("lblDoppi"));
  std::filesystem::create_directories(b.Cartella.Host() / "music/other");
  b.ScriviMp3("music/other/a.mp3", 1);
  form->Brani->SuFile({Host("other/a.mp3")});
  ASSERT_TRUE(QTest::qWaitFor([&] { return SiVede("lblDoppi"); }));
  EXPECT_THAT(Testo("lblDoppi"), testing::HasSubstr("called a.mp3"));
  const QColor warning = Tema::Corrente().Avviso;
  EXPECT_EQ(Role(0, Qt::ForegroundRole).value<QColor>(), warning);
  EXPECT_FALSE(Role(0, Qt::DecorationRole).isNull());
  EXPECT_THAT(Role(0, Qt::ToolTipRole).toString().toStdString(),
              testing::HasSubstr("called a.mp3"));
  EXPECT_NE(Role(1, Qt::ForegroundRole).value<QColor>(), warning) << "it is missing";
  Clic("cmdRimuoviFile");  // the row that was added is the current one
  EXPECT_TRUE(QTest::qWaitFor([&] { return !SiVede("lblDoppi"); }));
}

TEST_F(Figures, ComeAlsoAfterADropOfWhichNothingWasTaken) {
  b.Cartella.Write("music/one.txt", "x");
  b.Cartella.Write("music/two.txt", "x");
  form->Brani->lblTotali->clear();
  form->Brani->SuFile({Host("one.txt"), Host("two.txt")});
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Testo("lblTotali").empty(); }));
}

TEST_F(Figures, FollowWhatComesBackWhileAnotherWindowIsInFront) {
  b.ScriviMp3("music/gone.mp3");
  std::filesystem::remove(Host("a.mp3"));
  Attiva();
  EXPECT_TRUE(QTest::qWaitFor(
      [this] { return QString::fromStdString(Testo("lblTotali")).endsWith("2 missing"); }));
  EXPECT_TRUE(Role(1, Qt::DecorationRole).isNull());
  EXPECT_EQ(Cella(0, ModelloBrani::Durata), "missing");
}

TEST_F(Figures, OfAnotherListGoAtOnce) {
  test::ScegliColMouse(Selettore(), 1);
  EXPECT_EQ(Testo("lblTotali"), "");
  test::ScegliColMouse(Selettore(), 0);
  EXPECT_TRUE(Contato());
}

TEST_F(Figures, FollowTheRows) {
  ClicRiga(1);
  Clic("cmdRimuoviFile");
  EXPECT_TRUE(QTest::qWaitFor(
      [this] { return !QString::fromStdString(Testo("lblTotali")).contains("missing"); }));
  EXPECT_THAT(Testo("lblTotali"), testing::StartsWith("1:44, "));
  b.Finestre.Rispondi(Risposta::Si);
  Clic("cmdRimuoviTuttiFile");
  b.Finestre.Prossimo();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Testo("lblTotali").empty(); }));
}

}  // namespace
}  // namespace kvr5
