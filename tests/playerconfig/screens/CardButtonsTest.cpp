#include <gtest/gtest.h>

#include <QMenu>
#include <QTest>
#include <algorithm>

#include "playerconfig/screens/BancoHub.h"

// The hub's buttons that work on the card: erase, verify, copy by hand, eject.

namespace kvr5 {
namespace {

using test::Clicca;
using test::RispondiMessaggio;

/// The services of a test, with something to do while the card is at work.
class CardServices : public test::ServiziFinti {
 public:
  using ServiziFinti::ServiziFinti;
  bool ChiediScheda() override {
    const bool given = ServiziFinti::ChiediScheda();
    if (SuChiedi) SuChiedi();
    return given;
  }
  bool SvuotaScheda() override {
    const bool erased = ServiziFinti::SvuotaScheda();
    if (SuSvuota) SuSvuota();
    return erased;
  }
  void VerificaScheda() override {
    ServiziFinti::VerificaScheda();
    if (SuVerifica) SuVerifica();
  }
  void EspelliScheda() override {
    ServiziFinti::EspelliScheda();
    if (SuEspelli) SuEspelli();
  }
  std::function<void()> SuChiedi, SuSvuota, SuVerifica, SuEspelli;
};

/// What was done with the card so far: recordings, erasures, verifications, copies by hand, ejects.
using Done = std::array<int, 5>;

class CardButtons : public test::Hub {
 protected:
  ~CardButtons() override { Chiudi(); }  // before its services go

  void SetUp() override {
    Progetto(4, 1);
    b.ScriviMp3("music/a.mp3", 1);
    UltimaCartella("music");
    b.C.Stato.PercorsoMemoryCard = "E:\\";
    card.Scheda = Card(1500000000);
    hub = new frmPlayerConfig(b.A, card);
    hub->Mostra();
    ASSERT_TRUE(test::Pronta(*hub));
  }
  static Drive Card(std::uint64_t free) {
    Drive drive;
    drive.Letter = 'E';
    drive.Label = "SHOP";
    drive.Size = 2000000000;
    drive.Free = free;
    return drive;
  }
  Done What() const {
    return {card.Registrazioni, card.Svuotamenti, card.Verifiche, card.CopieManuali,
            card.Espulsioni};
  }
  /// The entry of More; null where there is none of that name.
  QAction* Entry(const char* text) {
    const auto entries = hub->Barra->menuAltro.actions();
    const auto at = std::ranges::find(entries, QString::fromUtf8(text), &QAction::text);
    return at == entries.end() ? nullptr : *at;
  }
  /// Opens More by its button and clicks an entry.
  void More(const char* text) {
    Clic("picAltro");
    QMenu& menu = hub->Barra->menuAltro;
    ASSERT_TRUE(QTest::qWaitFor([&menu] { return menu.isVisible(); }));
    QAction* entry = Entry(text);
    ASSERT_NE(entry, nullptr) << text;
    ASSERT_TRUE(entry->isVisible()) << text;
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(entry).center());
  }
  /// Whether More offers an entry.
  bool Offers(const char* text) {
    Clic("picAltro");
    QMenu& menu = hub->Barra->menuAltro;
    EXPECT_TRUE(QTest::qWaitFor([&menu] { return menu.isVisible(); }));
    const bool shown = Entry(text) != nullptr && Entry(text)->isVisible();
    menu.close();
    return shown;
  }
  /// Presses all that works on the card, as a person can while events run.
  void PressAll() {
    for (const char* name :
         {"picRecordFlash", "picCancellaFlash", "lblCancellaFlash", "picVerifica", "lblVerifica"}) {
      Clic(name);
    }
    for (const char* text : {"Copy by hand…", "Eject card"}) Entry(text)->trigger();
    QCoreApplication::processEvents();
  }

  CardServices card{b.C};
};

TEST_F(CardButtons, EraseIsPressedByItsButtonItsLabelAndTheKeys) {
  Clic("picCancellaFlash");
  Clic("lblCancellaFlash");
  hub->Barra->picCancellaFlash->setFocus();
  test::Tasto(*hub, Qt::Key_Space);
  test::Tasto(*hub, Qt::Key_Return);
  EXPECT_EQ(What(), (Done{0, 4, 0, 0, 0}));
  EXPECT_EQ(card.Richieste, 0) << "the erasing asks for the card itself";
  EXPECT_EQ(hub->Barra->picCancellaFlash->GenereOra(), Coppia::Genere::Pericolo);
}

TEST_F(CardButtons, VerifyIsPressedByItsButtonItsLabelAndTheKeys) {
  Clic("picVerifica");
  Clic("lblVerifica");
  hub->Barra->picVerifica->setFocus();
  test::Tasto(*hub, Qt::Key_Space);
  test::Tasto(*hub, Qt::Key_Return);
  EXPECT_EQ(What(), (Done{0, 0, 4, 0, 0}));
  EXPECT_EQ(Testo("lblVerifica"), "Verify card");
  EXPECT_EQ(hub->Barra->picVerifica->toolTip().toStdString(),
            "Compares the card with the project, file by file");
}

TEST_F(CardButtons, WithoutACardNeitherVerifyNorCopyByHandDoesAnything) {
  card.HaScheda = false;
  Clic("picVerifica");
  More("Copy by hand…");
  EXPECT_EQ(card.Richieste, 2) << "each asks for it";
  EXPECT_EQ(What(), Done{});
  EXPECT_TRUE(hub->isVisible());
}

TEST_F(CardButtons, CopyByHandHidesTheHubAndOpensTheBarOnce) {
  card.SuChiedi = [this] { EXPECT_TRUE(hub->isVisible()) << "while the card is asked for"; };
  More("Copy by hand…");
  EXPECT_EQ(What(), (Done{0, 0, 0, 1, 0}));
  EXPECT_FALSE(hub->isVisible());
  EXPECT_TRUE(hub->Caricata()) << "no question is asked, nothing is closed";
  hub->Mostra();
  EXPECT_TRUE(hub->isVisible());
  EXPECT_EQ(Testo("lblProgetto"), "Hall");
}

TEST_F(CardButtons, TheHiddenCommandOfTheFrameDoesTheSameAsTheEntry) {
  hub->Seriali->cmdCopiaFileManuale->click();
  EXPECT_EQ(What(), (Done{0, 0, 0, 1, 0}));
  EXPECT_FALSE(hub->isVisible());
}

TEST_F(CardButtons, ACloseThatWasAskedForWhileTheCardWasChosenIsForgottenByTheCopyByHand) {
  card.SuChiedi = [this] { hub->close(); };
  More("Copy by hand…");
  QCoreApplication::processEvents();
  EXPECT_EQ(card.CopieManuali, 1);
  EXPECT_TRUE(hub->Caricata()) << "nobody is asked about a hub that isn't seen";
}

TEST_F(CardButtons, WhatPlaysFallsSilentWhenTheCardIsHandedOver) {
  ScegliFile("a.mp3");
  Clic("cmdPlayMp3");
  b.Suono.Comandi.clear();
  More("Copy by hand…");
  EXPECT_TRUE(std::ranges::any_of(b.Suono.Comandi, [](const std::string& each) {
    return each.ends_with("Stop") || each.ends_with("Close");
  })) << testing::PrintToString(b.Suono.Comandi);
}

TEST_F(CardButtons, EjectIsOfferedOnlyWhereTheHostCanDoIt) {
  EXPECT_FALSE(Offers("Eject card"));
  card.Espellibile = true;
  EXPECT_TRUE(Offers("Eject card")) << "asked anew each time";
  card.Espellibile = false;
  EXPECT_FALSE(Offers("Eject card"));
}

TEST_F(CardButtons, EjectTakesTheCardOffAndTheLineSaysSoAtOnce) {
  card.Espellibile = true;
  card.SuEspelli = [this] { card.Scheda.reset(); };
  EXPECT_EQ(Entry("Eject card")->toolTip().toStdString(),
            "Eject the card, so that it can be taken out safely");
  More("Eject card");
  EXPECT_EQ(What(), (Done{0, 0, 0, 0, 1}));
  EXPECT_EQ(Testo("lblStatoScheda"), "E:\\ taken out: put it back in");
}

TEST_F(CardButtons, NothingOfThemRunsWhileARecordingIsAtWork) {
  card.SuRegistra = [this] { PressAll(); };
  Clic("picRecordFlash");
  EXPECT_EQ(What(), (Done{1, 0, 0, 0, 0}));
  EXPECT_EQ(card.Richieste, 0);
  EXPECT_TRUE(hub->isVisible());
}

TEST_F(CardButtons, NorWhileAnotherOfThemIs) {
  card.SuSvuota = card.SuVerifica = card.SuEspelli = [this] { PressAll(); };
  Clic("picCancellaFlash");
  EXPECT_EQ(What(), (Done{0, 1, 0, 0, 0}));
  Clic("picVerifica");
  EXPECT_EQ(What(), (Done{0, 1, 1, 0, 0}));
  card.Espellibile = true;
  More("Eject card");
  EXPECT_EQ(What(), (Done{0, 1, 1, 0, 1}));
  EXPECT_EQ(card.Richieste, 1) << "that of the verification";
}

TEST_F(CardButtons, NorWhileASaveIs) {
  b.Schermi.SuDomanda = [this] { PressAll(); };
  b.Schermi.AnnullaSalvataggio = true;
  Clic("picSave");
  EXPECT_EQ(b.Schermi.Domande, 1);
  EXPECT_EQ(What(), Done{});
}

TEST_F(CardButtons, EachCanBePressedAgainAfterItsEnd) {
  for (int i = 0; i < 2; ++i) {
    Clic("picCancellaFlash");
    Clic("picVerifica");
    Clic("picRecordFlash");
  }
  EXPECT_EQ(What(), (Done{2, 2, 2, 0, 0}));
}

TEST_F(CardButtons, AfterAnErasingTheLineTellsTheRoomThatThereIsNow) {
  EXPECT_EQ(Testo("lblStatoScheda"), "E:\\ ready, SHOP, 1.9 GB, 1.4 GB free");
  card.SuSvuota = [this] { card.Scheda = Card(1990000000); };
  Clic("picCancellaFlash");
  EXPECT_EQ(Testo("lblStatoScheda"), "E:\\ ready, SHOP, 1.9 GB, 1.9 GB free");
  EXPECT_EQ(Trova<QWidget>("picRecordFlash").toolTip().toStdString(),
            "Writes the saved project to E:\\");
}

TEST_F(CardButtons, ACardThatWentWhileItWasErasedIsToldByTheLineAtOnce) {
  card.SuSvuota = [this] { card.Scheda.reset(); };
  Clic("picCancellaFlash");
  EXPECT_EQ(Testo("lblStatoScheda"), "E:\\ taken out: put it back in");
}

TEST_F(CardButtons, ACardThatWentWhileItWasVerifiedIsToldByTheLineAtOnce) {
  card.SuVerifica = [this] { card.Scheda.reset(); };
  Clic("picVerifica");
  EXPECT_EQ(Testo("lblStatoScheda"), "E:\\ taken out: put it back in");
}

TEST_F(CardButtons, ACardThatIsChosenOnTheWayIsNamedByTheLineAndTheRecordingsToolTip) {
  b.C.Stato.PercorsoMemoryCard.clear();
  card.Scheda.reset();
  hub->AggiornaPercorsoMemoryCard();
  card.SuChiedi = [this] {
    b.C.Stato.PercorsoMemoryCard = "E:\\";
    card.Scheda = Card(1500000000);
    hub->AggiornaPercorsoMemoryCard();  // as the card dialog does
  };
  Clic("picVerifica");
  EXPECT_EQ(Testo("lblPathMemoryCard"), "Memory card: E:\\");
  EXPECT_EQ(Testo("lblStatoScheda"), "ready, SHOP, 1.9 GB, 1.4 GB free");
  EXPECT_EQ(Trova<QWidget>("picRecordFlash").toolTip().toStdString(),
            "Writes the saved project to E:\\");
}

TEST_F(CardButtons, AProjectThatComesFromACardNamesThatCardFromTheStart) {
  Chiudi();
  hub = new frmPlayerConfig(b.A, card);
  hub->ApreDaFlash = 2;
  hub->Mostra();
  ASSERT_TRUE(test::Pronta(*hub));
  EXPECT_EQ(Testo("lblStatoScheda"), "E:\\ ready, SHOP, 1.9 GB, 1.4 GB free");
  EXPECT_EQ(Trova<QWidget>("picRecordFlash").toolTip().toStdString(),
            "Writes the saved project to E:\\");
}

TEST_F(CardButtons, ACloseThatIsAskedForDuringAnErasingComesAtItsEnd) {
  bool during = false;
  card.SuSvuota = [this, &during] {
    hub->close();
    QCoreApplication::processEvents();
    during = hub->isVisible();
  };
  const auto question = RispondiMessaggio("cmdYes");
  Clic("picCancellaFlash");
  EXPECT_TRUE(QTest::qWaitFor([this] { return hub == nullptr || !hub->isVisible(); }));
  EXPECT_TRUE(during);
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Menu});
}

TEST_F(CardButtons, TheErasingLeavesTheUnsavedSettingsUnsaved) {
  QTest::keyClick(&Trova<QWidget>("sliVolume"), Qt::Key_Up);
  ASSERT_TRUE(SiVede("lblNonSalvato"));
  const std::string before = Config();
  Clic("picCancellaFlash");
  Clic("picVerifica");
  EXPECT_TRUE(SiVede("lblNonSalvato"));
  EXPECT_EQ(Config(), before);
}

}  // namespace
}  // namespace kvr5
