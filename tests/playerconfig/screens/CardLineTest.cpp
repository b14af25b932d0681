#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>

#include "core/screens/Tema.h"
#include "playerconfig/screens/BancoHub.h"

// The line of the chosen card, and the sign that settings are unsaved.

namespace kvr5 {
namespace {

class CardLine : public test::Hub {
 protected:
  void Open(const char* root) {
    Progetto(4, 1);
    b.C.Stato.PercorsoMemoryCard = root;
    Apri();
  }
  static Drive Card() {
    Drive drive;
    drive.Letter = 'E';
    drive.Label = "SHOP";
    drive.Size = 2000000000;
    drive.Free = 1500000000;
    return drive;
  }
};

TEST_F(CardLine, WithoutACardSaysThatNoneIsChosen) {
  Open("");
  EXPECT_EQ(Testo("lblPathMemoryCard"), "Memory card:");
  EXPECT_EQ(Testo("lblStatoScheda"), "none chosen");
  EXPECT_EQ(Trova<QWidget>("picRecordFlash").toolTip().toStdString(),
            "Writes the saved project to the card");
}

TEST_F(CardLine, ShowsTheCardsStateFromTheLoadAndItsPathOnceItIsChosen) {
  servizi.Scheda = Card();
  Open("E:\\");
  EXPECT_EQ(Testo("lblPathMemoryCard"), "Memory card:");
  EXPECT_EQ(Testo("lblStatoScheda"), "E:\\ ready, SHOP, 1.9 GB, 1.4 GB free")
      << "where a recording would go";
  EXPECT_EQ(Trova<QWidget>("picRecordFlash").toolTip().toStdString(),
            "Writes the saved project to E:\\");
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_EQ(Testo("lblPathMemoryCard"), "Memory card: E:\\");
  EXPECT_EQ(Testo("lblStatoScheda"), "ready, SHOP, 1.9 GB, 1.4 GB free");
}

TEST_F(CardLine, TellsWhereTheCardLiesInTheSystemsOwnWords) {
  b.Percorsi.Bind('E', "/media/anna/SHOP");
  servizi.Scheda = Card();
  Open("E:\\");
  const auto tip = [this] { return Trova<QWidget>("lblPathMemoryCard").toolTip().toStdString(); };
  EXPECT_TRUE(tip().starts_with("/media/anna/SHOP\nChoose the memory card.")) << tip();
  b.C.Stato.PercorsoMemoryCard.clear();
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_TRUE(tip().starts_with("Choose the memory card.")) << tip();
}

TEST_F(CardLine, ShowsAPathThatLooksLikeMarkupAsItIs) {
  b.Percorsi.Bind('E', "/media/<b>SHOP");
  servizi.Scheda = Card();
  Open("E:\\");
  const auto tip = Trova<QWidget>("lblPathMemoryCard").toolTip().toStdString();
  EXPECT_TRUE(tip.starts_with("/media/&lt;b&gt;SHOP<br>Choose")) << tip;
}

TEST_F(CardLine, ACardThatIsLockedOrGoneSaysSo) {
  servizi.Scheda = Card();
  servizi.Scheda->ReadOnly = true;
  Open("E:\\");
  EXPECT_TRUE(Testo("lblStatoScheda").starts_with("E:\\ locked: open its lock"))
      << Testo("lblStatoScheda");
  servizi.Scheda->HasMedium = false;
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_EQ(Testo("lblStatoScheda"), "taken out: put it back in");
  servizi.Scheda.reset();
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_EQ(Testo("lblStatoScheda"), "taken out: put it back in");
}

TEST_F(CardLine, FollowsTheCardWhileItIsTakenOutAndPutBack) {
  servizi.Scheda = Card();
  Open("E:\\");
  servizi.Scheda.reset();
  EXPECT_TRUE(QTest::qWaitFor(
      [this] { return Testo("lblStatoScheda") == "E:\\ taken out: put it back in"; }));
  servizi.Scheda = Card();
  EXPECT_TRUE(QTest::qWaitFor(
      [this] { return Testo("lblStatoScheda") == "E:\\ ready, SHOP, 1.9 GB, 1.4 GB free"; }));
}

TEST_F(CardLine, WarnsOfOtherFilesOnACardThatWasRecorded) {
  servizi.Scheda = Card();
  servizi.Intera = true;
  servizi.Estranei = 7;
  Open("E:\\");
  auto& state = Trova<QLabel>("lblStatoScheda");
  Clic("picRecordFlash");
  EXPECT_NE(Testo("lblStatoScheda").find(", other files on it: 7, SHOP"), std::string::npos)
      << Testo("lblStatoScheda");
  EXPECT_EQ(state.palette().color(QPalette::WindowText), Tema::Corrente().Avviso);
  EXPECT_TRUE(state.accessibleDescription().startsWith(QLatin1String("The player may also play")));
  EXPECT_EQ(state.toolTip(), state.text() + '\n' + state.accessibleDescription());
  servizi.Svuotata = false;
  Clic("picCancellaFlash");
  EXPECT_NE(Testo("lblStatoScheda").find("other files on it: 7"), std::string::npos)
      << "they are still there after a no";
  servizi.Scheda->ReadOnly = true;
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_TRUE(Testo("lblStatoScheda").starts_with("locked: ")) << Testo("lblStatoScheda");
  servizi.Scheda->ReadOnly = false;
  servizi.Estranei = 0;
  Clic("picRecordFlash");
  EXPECT_EQ(Testo("lblStatoScheda").find("other files"), std::string::npos);
  EXPECT_EQ(state.palette().color(QPalette::WindowText), Tema::Corrente().Buono);
  EXPECT_EQ(state.toolTip(), "");
}

TEST_F(CardLine, TellsThatACardWasRecordedWholeUntilAnotherIsChosenOrItIsGone) {
  servizi.Scheda = Card();
  Open("E:\\");
  Clic("picRecordFlash");
  EXPECT_EQ(Testo("lblStatoScheda"), "E:\\ ready, SHOP, 1.9 GB, 1.4 GB free") << "not whole";
  servizi.Intera = true;
  const std::string sign = "ready, recorded today ";
  const auto told = [&] { return Testo("lblStatoScheda").find(sign) != std::string::npos; };
  const auto record = [&] {
    Clic("picRecordFlash");
    EXPECT_TRUE(told()) << Testo("lblStatoScheda");
  };
  record();
  EXPECT_TRUE(Testo("lblStatoScheda").ends_with(", SHOP, 1.9 GB, 1.4 GB free"));
  b.C.Stato.PercorsoMemoryCard = "F:\\";
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_FALSE(told()) << "another card";
  b.C.Stato.PercorsoMemoryCard = "E:\\";
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_FALSE(told()) << "it was forgotten";
  record();
  servizi.Scheda.reset();
  hub->AggiornaPercorsoMemoryCard();
  servizi.Scheda = Card();
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_FALSE(told()) << "it was taken out: may be another one";
  record();
  Clic("picCancellaFlash");
  EXPECT_FALSE(told()) << "erased";
  record();
  servizi.Intera = false;
  Clic("picRecordFlash");
  EXPECT_FALSE(told()) << "a second one broke off";
  servizi.Intera = true;
  record();
  Trova<QAbstractButton>("cmdCopiaFileManuale").click();
  EXPECT_FALSE(told()) << "what is done by hand isn't known";
}

TEST_F(CardLine, ADoubleClickEnterAndTheButtonLetACardBeChosen) {
  Open("");
  QTest::mouseDClick(&Trova<QWidget>("lblPathMemoryCard"), Qt::LeftButton);
  QTest::keyClick(&Trova<QWidget>("lblPathMemoryCard"), Qt::Key_Return);
  Clic("cmdScegliScheda");
  QTest::mouseDClick(&Trova<QWidget>("lblStatoScheda"), Qt::LeftButton);  // all of the line
  QMouseEvent right(QEvent::MouseButtonDblClick, QPointF(5, 5), QPointF(5, 5), Qt::RightButton,
                    Qt::RightButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&Trova<QWidget>("lblStatoScheda"), &right);
  EXPECT_EQ(b.Schermi.SchedePer, std::vector(4, Schermata::Configurazione));
}

TEST_F(CardLine, AnotherCardCanBeChosenAtAnyTime) {
  servizi.Scheda = Card();
  Open("E:\\");
  servizi.SuRegistra = [this] { Clic("cmdScegliScheda"); };
  Clic("picRecordFlash");
  EXPECT_EQ(servizi.Registrazioni, 1);
  EXPECT_EQ(b.Schermi.SchedePer.size(), 1U);
}

TEST_F(CardLine, AChosenCardIsShownAtOnce) {
  Open("");
  b.C.Stato.PercorsoMemoryCard = "E:\\";
  servizi.Scheda = Card();
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_EQ(Testo("lblPathMemoryCard"), "Memory card: E:\\");
  EXPECT_EQ(Testo("lblStatoScheda"), "ready, SHOP, 1.9 GB, 1.4 GB free");
}

TEST_F(CardLine, TheGaugeSetsWhatTheProjectTakesAgainstTheCard) {
  servizi.Scheda = Card();
  Progetto(4, 1);
  b.ScriviMp3("music/a.mp3", 0, 8);
  const auto bytes = b.Cartella.Read("music/a.mp3").size();
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", b.Percorso("music") + "\\", "5.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 6, "a.mp3", b.Percorso("music") + "\\", "6.mp3");
  b.C.Stato.PercorsoMemoryCard = "E:\\";
  Apri();
  ASSERT_TRUE(QTest::qWaitFor([this] { return SiVede("picSpazio"); }));
  const auto part = [this] { return Trova<Barra>("picSpazio").Parte(); };
  EXPECT_NEAR(part(), static_cast<double>(bytes) / 2e9, 1e-9)
      << "a source that two inputs have counts once";
  EXPECT_EQ(Testo("lblSpazio"), "3 KB of 1.9 GB");
  const auto& sign = Trova<QWidget>("lblSpazio");
  EXPECT_FALSE(sign.autoFillBackground());
  servizi.Scheda->Free = 0;
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_FALSE(sign.autoFillBackground()) << "it may be full of this very project";
  servizi.Scheda->Size = 2 * bytes;
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_NEAR(part(), 0.5, 0.001);
  servizi.Scheda->Size = bytes - 1;
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_EQ(part(), 1.0);
  EXPECT_TRUE(sign.autoFillBackground()) << "it can't fit: sign, words and fill";
  EXPECT_TRUE(Testo("lblSpazio").starts_with("too small: ")) << Testo("lblSpazio");
  servizi.Scheda.reset();
  hub->AggiornaPercorsoMemoryCard();
  EXPECT_FALSE(SiVede("picSpazio")) << "without a card there is no room";
}

TEST_F(CardLine, AProjectWithoutFilesHasNoGauge) {
  servizi.Scheda = Card();
  Open("E:\\");
  QTest::qWait(50);
  EXPECT_FALSE(SiVede("picSpazio"));
}

class UnsavedSign : public test::Hub {
 protected:
  bool Shown() { return SiVede("lblNonSalvato"); }
  void Key(const char* control, Qt::Key key) { QTest::keyClick(&Trova<QWidget>(control), key); }
};

TEST_F(UnsavedSign, AFreshProjectHasNone) {
  Progetto(4, 1);
  Apri();
  EXPECT_FALSE(Shown());
}

TEST_F(UnsavedSign, ComesWithAChangeAndGoesWhenItIsTakenBack) {
  Progetto(4, 1);
  Apri();
  Key("sliVolume", Qt::Key_Up);
  EXPECT_TRUE(Shown());
  Key("sliVolume", Qt::Key_Down);
  EXPECT_FALSE(Shown());
  Clic("optMICP_ContinuosPlay");
  EXPECT_TRUE(Shown());
  Clic("optMICP_Zero");
  EXPECT_FALSE(Shown());
  Clic("u_dTPCM_su");
  EXPECT_TRUE(Shown());
  Clic("optTPCM_Off");
  EXPECT_FALSE(Shown());
}

TEST_F(UnsavedSign, AFileThatASaveWouldChangeRaisesItAtOnce) {
  Progetto(4, 1);
  Parametro("MIRS", "0");
  Apri();
  EXPECT_TRUE(Shown());
}

TEST_F(UnsavedSign, AssignmentsAreKeptAtOnceAndRaiseNone) {
  Progetto(4, 1);
  b.ScriviMp3("music/a.mp3");
  UltimaCartella("music");
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  Clic("cmdOkFileMp3");
  EXPECT_FALSE(Shown());
}

}  // namespace
}  // namespace kvr5
