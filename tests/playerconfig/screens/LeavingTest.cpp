#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "playerconfig/screens/BancoHub.h"

// Leaving the hub: one question, three answers.

namespace kvr5 {
namespace {

using test::RispondiMessaggioConTasto;

using test::RispondiMessaggio;

class LeavingHub : public test::Hub {
 protected:
  void SetUp() override {
    Progetto(4, 1);
    Apri();
  }
  /// Exit, answered with this button of the question; what it asked.
  std::string Leave(const char* button) {
    std::string asked;
    const auto answer = RispondiMessaggio(button, [&](const QString& title, const QString& text) {
      asked = (title + "|" + text).toStdString();
    });
    Clic("picEsci");
    return asked;
  }
};

TEST_F(LeavingHub, IsAskedAboutInFourLines) {
  EXPECT_EQ(Leave("cmdCancel"),
            "Leave project|Leave the project? Assignments stay; levels and options that aren't "
            "saved are lost.\nYes: main menu\n"
            "No: end the program\nCancel: stay, to save first");
}

TEST_F(LeavingHub, CancelStays) {
  Leave("cmdCancel");
  ASSERT_TRUE(hub);
  EXPECT_TRUE(hub->isVisible());
  EXPECT_EQ(b.C.Stato.PlayerType, 4);
  EXPECT_TRUE(b.Schermi.Mostrate.empty() && b.Schermi.Fini == 0);
  Spunta(1);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 1.mp3") << "and goes on working";
}

TEST_F(LeavingHub, YesLeadsToTheMenu) {
  Leave("cmdYes");
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Menu});
  EXPECT_EQ(b.C.Stato.PlayerType, 1);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(hub) << "it is gone, with its database";
}

TEST_F(LeavingHub, NoEndsTheProgram) {
  Leave("cmdNo");
  EXPECT_EQ(b.Schermi.Fini, 1);
  EXPECT_TRUE(b.Schermi.Mostrate.empty());
  EXPECT_EQ(b.C.Stato.PlayerType, 4) << "the menu never comes";
}

TEST_F(LeavingHub, TheWindowsOwnButtonAsksTheSame) {
  const auto answer = RispondiMessaggio("cmdCancel");
  hub->close();
  EXPECT_TRUE(hub->isVisible());
}

TEST_F(LeavingHub, CancelIsWhatEnterAndEscGive) {
  {
    const auto answer = RispondiMessaggioConTasto(Qt::Key_Return);
    Clic("picEsci");
  }
  EXPECT_TRUE(hub->isVisible());
  const auto answer = RispondiMessaggioConTasto(Qt::Key_Escape);
  Clic("picEsci");
  EXPECT_TRUE(hub->isVisible());
  EXPECT_TRUE(b.Schermi.Mostrate.empty() && b.Schermi.Fini == 0);
}

TEST_F(LeavingHub, DuringARecordingIsAskedAboutWhenThatEnds) {
  bool asked = true;
  servizi.SuRegistra = [&] {
    Clic("picEsci");
    asked = QApplication::activeModalWidget() != nullptr;
  };
  const auto answer = RispondiMessaggio("cmdYes");
  Clic("picRecordFlash");
  EXPECT_FALSE(asked);
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Menu});
}

TEST_F(LeavingHub, ARecordingIsNotStartedTwice) {
  servizi.SuRegistra = [&] { Clic("picRecordFlash"); };
  Clic("picRecordFlash");
  EXPECT_EQ(servizi.Registrazioni, 1);
  EXPECT_TRUE(hub->isVisible());
  EXPECT_TRUE(hub->isEnabled());
}

}  // namespace
}  // namespace kvr5
