#include <gtest/gtest.h>

#include "core/SelezioneFlash.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

/// The dialog of a test: what it leaves in the state, and when.
class Dialogo : public SelezioneFlash {
 public:
  explicit Dialogo(test::Banco& b) : b_(b) {}
  void Scegli() override {
    ++Times;
    EventsBefore = b_.Messaggi.Volte;
    b_.C.Stato.SelezioneFlashAnnullata = Cancelled;
    if (!Card.empty()) b_.C.Stato.PercorsoMemoryCard = Card;
  }
  bool Presente() const override { return false; }

  int Times = 0;
  int EventsBefore = -1;
  bool Cancelled = false;
  std::string Card;

 private:
  test::Banco& b_;
};

class ScelteDellaScheda : public testing::Test {
 protected:
  test::Banco b;
  StatoApplicazione& s = b.C.Stato;
  Dialogo dialogo{b};
};

TEST_F(ScelteDellaScheda, AConfirmedCardIsChosen) {
  dialogo.Card = "E:\\";
  EXPECT_TRUE(ScegliScheda(b.C, dialogo));
  EXPECT_EQ(s.PercorsoMemoryCard, "E:\\");
}

TEST_F(ScelteDellaScheda, ACancelledDialogGivesTheWorkUpThoughACardWasChosenBefore) {
  s.PercorsoMemoryCard = "E:\\";
  dialogo.Cancelled = true;
  EXPECT_FALSE(ScegliScheda(b.C, dialogo));
  EXPECT_EQ(s.PercorsoMemoryCard, "E:\\");
}

TEST_F(ScelteDellaScheda, ADialogThatFoundNoCardGivesTheWorkUpWhereNoneWasChosenBefore) {
  EXPECT_FALSE(ScegliScheda(b.C, dialogo));
  s.PercorsoMemoryCard = "E:\\";
  EXPECT_TRUE(ScegliScheda(b.C, dialogo)) << "the old one stands";
}

TEST_F(ScelteDellaScheda, EventsRunOnceAfterTheDialogAndBeforeTheLook) {
  b.Messaggi.Accade = [this] { s.PercorsoMemoryCard = "F:\\"; };
  EXPECT_TRUE(ScegliScheda(b.C, dialogo));
  EXPECT_EQ(dialogo.EventsBefore, 0);
  EXPECT_EQ(b.Messaggi.Volte, 1);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(ScelteDellaScheda, ACardThatIsChosenAlreadyIsNotAskedFor) {
  s.PercorsoMemoryCard = "E:\\";
  s.SelezioneFlashAnnullata = true;  // of an earlier dialog
  EXPECT_TRUE(ScegliSchedaSeManca(b.C, dialogo));
  EXPECT_EQ(dialogo.Times, 0);
  EXPECT_EQ(b.Messaggi.Volte, 0);
}

TEST_F(ScelteDellaScheda, WhereNoneIsChosenTheDialogDecides) {
  dialogo.Cancelled = true;
  EXPECT_FALSE(ScegliSchedaSeManca(b.C, dialogo));
  dialogo.Cancelled = false;
  EXPECT_FALSE(ScegliSchedaSeManca(b.C, dialogo));
  dialogo.Card = "E:\\";
  EXPECT_TRUE(ScegliSchedaSeManca(b.C, dialogo));
  EXPECT_EQ(dialogo.Times, 3);
}

}  // namespace
}  // namespace kvr5
