#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "playerconfig/screens/BancoHub.h"

// What the hub has at work when it gives the card out of its hands.

namespace kvr5 {
namespace {

using testing::Contains;
using Lines = std::vector<std::string>;

/// The services of a test that tell when the card is handed over.
class ServiziConConsegna : public test::ServiziFinti {
 public:
  using ServiziFinti::ServiziFinti;
  void EspelliScheda() override {
    ServiziFinti::EspelliScheda();
    if (SuConsegna) SuConsegna();
  }
  std::function<void()> SuConsegna;
};

class CardHandover : public test::Hub {
 protected:
  ~CardHandover() override { Chiudi(); }  // before its services go

  void Open() {
    UltimaCartella("music");
    hub = new frmPlayerConfig(b.A, card);
    hub->Mostra();
    ASSERT_TRUE(test::Pronta(*hub));
  }
  QAction& Entry(const char* text) {
    for (QAction* entry : hub->Barra->menuAltro.actions()) {
      if (entry->text() == QLatin1String(text)) return *entry;
    }
    throw std::runtime_error(text);
  }
  /// What the players were told up to the moment at which the card is ejected.
  Lines ToldUntilEjected() {
    Lines told;
    b.Suono.Comandi.clear();
    card.SuConsegna = [&] { told = b.Suono.Comandi; };
    Entry("Eject card").trigger();
    EXPECT_EQ(card.Espulsioni, 1);
    return told;
  }

  ServiziConConsegna card{b.C};
};

TEST_F(CardHandover, WhatPlaysOfTheFolderFallsSilentBeforeTheCardIsEjected) {
  Progetto(4, 1);
  b.ScriviMp3("music/a.mp3", 1);
  card.Espellibile = true;
  Open();
  ScegliFile("a.mp3");
  Clic("cmdPlayMp3");
  ASSERT_THAT(b.Suono.Comandi, Contains("1 Play"));
  const Lines told = ToldUntilEjected();
  EXPECT_THAT(told, Contains("1 Stop"));
  EXPECT_THAT(told, Contains("1 Close")) << "an open file keeps a card from being ejected";
}

TEST_F(CardHandover, SoDoesWhatPlaysOfTheTickedInputs) {
  Progetto(4, 1);
  b.ScriviMp3("music/a.mp3", 1);
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "a.mp3", b.Percorso("music") + "\\", "1.mp3");
  card.Espellibile = true;
  Open();
  Spunta(1);
  Clic("cmdMp3Preview_Play");
  ASSERT_THAT(b.Suono.Comandi, Contains("2 Play"));
  const Lines told = ToldUntilEjected();
  EXPECT_THAT(told, Contains("2 Stop"));
  EXPECT_THAT(told, Contains("2 Close"));
}

TEST_F(CardHandover, ACountThatWasToBeginWaitsUntilTheHubIsBackFromTheCopyByHand) {
  Progetto(4, 5);
  b.ScriviMp3("music/a.mp3", 1);
  const auto add = [this](int pos) {
    b.AggiungiRiga("playlist.mdb", 1, pos, "a.mp3", b.Percorso("music") + "\\",
                   "P01-00" + std::to_string(pos) + ".mp3");
  };
  const auto says = [this](const char* words) {
    return QTest::qWaitFor([&] { return Testo("lblSommario").starts_with(words); });
  };
  add(1);
  Open();
  ASSERT_TRUE(says("1 list, 1 track")) << Testo("lblSommario");
  add(2);
  Clic("picCancellaFlash");  // at its end the project is counted anew, a little later
  hub->Seriali->cmdCopiaFileManuale->click();
  ASSERT_EQ(card.CopieManuali, 1);
  QWidget bar;  // in the place of the one that stands there meanwhile
  bar.show();
  ASSERT_TRUE(test::Pronta(bar));
  // A beat that is set after the count's and takes longer comes after it.
  bool later = false;
  QTimer::singleShot(400, hub, [&later] { later = true; });
  ASSERT_TRUE(QTest::qWaitFor([&later] { return later; }));
  EXPECT_TRUE(Testo("lblSommario").starts_with("1 list, 1 track")) << Testo("lblSommario");
  bar.hide();
  hub->Mostra();
  EXPECT_TRUE(says("1 list, 2 tracks")) << Testo("lblSommario");
}

}  // namespace
}  // namespace kvr5
