#include <gtest/gtest.h>

#include <QAbstractButton>

#include "playerconfig/screens/BancoHub.h"

// The ways from the hub to the screens of parameters.

namespace kvr5 {
namespace {

class Ways : public test::Hub {
 protected:
  /// Presses each button that leads to a screen of parameters, seen or not.
  void PressAll() {
    for (const char* name : {"picConfiguraFade", "cmdConfigureExtra", "cmdConfigure232",
                             "cmdConfigure232bis", "picConfig485", "picConfig485bis"}) {
      ++pressed_;
      Trova<QAbstractButton>(name).click();
    }
  }
  void ExpectNoneOpened() const {
    EXPECT_EQ(pressed_, 6) << "they were pressed amid the work";
    EXPECT_EQ(b.Schermi.TempiFade, 0);
    EXPECT_EQ(b.Schermi.PannelliExtra, 0);
    EXPECT_TRUE(b.Schermi.Seriali.empty());
  }
  void ExpectOpenAgain() {
    PressAll();
    EXPECT_EQ(b.Schermi.TempiFade, 1);
    EXPECT_EQ(b.Schermi.PannelliExtra, 1);
    EXPECT_EQ(b.Schermi.Seriali.size(), 4U);
  }

 private:
  int pressed_ = 0;
};

TEST_F(Ways, LeadToTheFadesOnEveryModel) {
  Progetto(1, 0);
  Apri();
  Clic("picConfiguraFade");
  EXPECT_EQ(b.Schermi.TempiFade, 1);
  test::Clicca(Trova<QWidget>("lblConfiguraFade"));
  EXPECT_EQ(b.Schermi.TempiFade, 2) << "its label does the same";
}

TEST_F(Ways, LeadToTheExtrasOfAKvr5) {
  Progetto(4, 2);
  Apri();
  Clic("cmdConfigureExtra");
  EXPECT_EQ(b.Schermi.PannelliExtra, 1);
}

TEST_F(Ways, AreOpenToTheKeyboard) {
  Progetto(4, 1);
  Apri();
  for (const char* name : {"cmdConfigureExtra", "picConfiguraFade"}) {
    Trova<QWidget>(name).setFocus();
    test::Tasto(*hub, Qt::Key_Space);
  }
  EXPECT_EQ(b.Schermi.PannelliExtra, 1);
  EXPECT_EQ(b.Schermi.TempiFade, 1);
}

TEST_F(Ways, HiddenButtonsLeadToTheSerialLinkInItsTwoForms) {
  Progetto(4, 1);
  Apri();
  for (const char* name :
       {"cmdConfigure232", "cmdConfigure232bis", "picConfig485", "picConfig485bis"}) {
    EXPECT_FALSE(SiVede(name)) << name;
    Trova<QAbstractButton>(name).click();
  }
  EXPECT_EQ(b.Schermi.Seriali, (std::vector{true, true, false, false}));
}

TEST_F(Ways, AreShutWhileTheProjectIsSaved) {
  Progetto(4, 1);
  Apri();
  b.Schermi.SuDomanda = [this] { PressAll(); };
  {
    const auto closing = test::RispondiMessaggio("cmdOk");
    Clic("picSave");
  }
  ExpectNoneOpened();
  b.Schermi.SuDomanda = {};
  ExpectOpenAgain();
}

TEST_F(Ways, AreShutWhileTheProjectIsRecorded) {
  Progetto(4, 1);
  Apri();
  servizi.SuRegistra = [this] { PressAll(); };
  Clic("picRecordFlash");
  ExpectNoneOpened();
  ExpectOpenAgain();
}

}  // namespace
}  // namespace kvr5
