#include <QCheckBox>
#include <QWheelEvent>

#include "playlists/screens/BancoEditor.h"
#include "support/screens/Scelte.h"

// Which list is edited: by the selector, and by the boxes of the inputs.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Selecting : public test::BancoEditor {
 protected:
  /// Opens a project whose lists 0 to 8 have one track each, named after its list.
  void ApriListe(std::int16_t type, std::int16_t mode) {
    Progetto(type, mode);
    for (int list = 0; list <= 8; ++list) Brano(list, 1, "L" + std::to_string(list) + ".mp3");
    Apri();
  }
  void ExpectShown(int list) {
    EXPECT_THAT(Griglia(), ElementsAre("1 L" + std::to_string(list) + ".mp3"));
    EXPECT_EQ(form->Editor().PlaylistCorrente(), list);
  }
  QCheckBox& Box(int input) { return Trova<QCheckBox>(("chkIn_" + std::to_string(input)).c_str()); }
  /// The boxes as "1-3".
  std::string Ticked() {
    std::string all;
    for (int input = 1; input <= 3; ++input) {
      if (Box(input).isChecked()) all += (all.empty() ? "" : "-") + std::to_string(input);
    }
    return all;
  }
  /// What a lamp shows.
  QImage Lamp(int input) {
    return Trova<QWidget>(("shaIn_" + std::to_string(input)).c_str()).grab().toImage();
  }
};

TEST_F(Selecting, ByTheMouseFollowsThePlaceInTheList) {
  ApriListe(4, 5);
  for (const int entry : {2, 6, 0}) {
    test::ScegliColMouse(Selettore(), entry);
    ExpectShown(entry + 1);
  }
}

TEST_F(Selecting, ByTheKeyboardDoesTheSame) {
  ApriListe(3, 5);
  Selettore().setFocus();
  Premi(Qt::Key_Down);
  ExpectShown(2);
  Premi(Qt::Key_End);
  ExpectShown(8);
  Premi(Qt::Key_Up);
  ExpectShown(7);
}

TEST_F(Selecting, IsLeftAloneByTheWheel) {
  ApriListe(4, 5);
  const QPointF place = Selettore().rect().center();
  QWheelEvent down(place, Selettore().mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&Selettore(), &down);
  ExpectShown(1);
}

TEST_F(Selecting, TheSameEntryAgainReadsTheListAfresh) {
  ApriListe(4, 5);
  Musica({"z.mp3"});
  Attiva();
  Analizza("z.mp3");
  Clic("cmdAggiungiFile");
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: 1") << "it lags";
  test::ScegliColMouse(Selettore(), 0);
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: 2");
  EXPECT_THAT(Griglia(), ElementsAre("1 L1.mp3", "2 z.mp3"));
}

TEST_F(Selecting, OfAnOstrelInModeEightAddsNothing) {
  ApriListe(3, 8);
  test::ScegliColMouse(Selettore(), 1);
  ExpectShown(1);
  test::ScegliColMouse(Selettore(), 6);
  ExpectShown(6);
  test::ScegliColMouse(Selettore(), 0);
  ExpectShown(0);
}

TEST_F(Selecting, OfNamedListsFollowsThePlaceInTheAlphabet) {
  Progetto(3, 9);
  Nome("Zoo", 1);
  Nome("Ape", 3);
  Nome("Mew", 2);
  for (int list = 1; list <= 3; ++list) Brano(list, 1, "L" + std::to_string(list) + ".mp3");
  Apri();
  test::ScegliVoce(Selettore(), "Zoo");
  ExpectShown(3);
  test::ScegliVoce(Selettore(), "Ape");
  ExpectShown(1);
}

TEST_F(Selecting, SetsTheBoxesToTheBitsOfThePlace) {
  ApriListe(3, 7);
  EXPECT_EQ(Ticked(), "");
  test::ScegliColMouse(Selettore(), 5);
  EXPECT_EQ(Ticked(), "1-3");
  ExpectShown(6);
  Selettore().setFocus();
  Premi(Qt::Key_Down);
  EXPECT_EQ(Ticked(), "2-3");
  ExpectShown(7);
  test::ScegliColMouse(Selettore(), 0);
  EXPECT_EQ(Ticked(), "");
  ExpectShown(1);
}

TEST_F(Selecting, ByTheBoxesEndsOneBeyondTheirSum) {
  ApriListe(3, 7);
  test::Clicca(Box(1));
  EXPECT_EQ(Selettore().currentIndex(), 1);
  ExpectShown(2);
  test::Clicca(Box(2));
  EXPECT_EQ(Selettore().currentIndex(), 3) << "the sum";
  ExpectShown(4);
  test::Clicca(Box(3));
  ExpectShown(8);
  test::Clicca(Box(1));
  EXPECT_EQ(Selettore().currentIndex(), 6);
  ExpectShown(7);
  EXPECT_EQ(Ticked(), "2-3");
}

TEST_F(Selecting, ByTheBoxesWorksFromTheKeyboardAndByTheirLabels) {
  ApriListe(3, 7);
  Box(3).setFocus();
  Premi(Qt::Key_Space);
  ExpectShown(5);
  test::Clicca(Trova<QWidget>("lblPlaylistNumber_1"));
  EXPECT_EQ(Ticked(), "1-3");
  ExpectShown(6);
}

TEST_F(Selecting, LightsTheLampsOfTheBoxesThatAreTicked) {
  ApriListe(3, 7);
  const QImage dark = Lamp(1);
  test::Clicca(Box(1));
  const QImage lit = Lamp(1);
  EXPECT_NE(lit, dark);
  test::ScegliColMouse(Selettore(), 4);
  EXPECT_EQ(Lamp(1), dark);
  EXPECT_EQ(Lamp(3).pixelColor(3, Lamp(3).height() / 2), lit.pixelColor(3, lit.height() / 2))
      << "the same red";
  EXPECT_EQ(Ticked(), "3");
}

TEST_F(Selecting, AnotherListKeepsWhatWasChangedInTheFirst) {
  ApriListe(4, 5);
  ClicRiga(0);
  Clic("cmdRimuoviFile");
  EXPECT_THAT(Griglia(), IsEmpty());
  test::ScegliColMouse(Selettore(), 1);
  ExpectShown(2);
  test::ScegliColMouse(Selettore(), 0);
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_EQ(Testo("lblModifiche"), "1 change unsaved");
}

}  // namespace
}  // namespace kvr5
