#include <QMenu>
#include <QTest>
#include <QTimer>
#include <algorithm>

#include "core/screens/RiquadroMessaggio.h"
#include "flashcard/screens/frmCopiaManuale.h"
#include "flashcard/screens/frmSelectFlash.h"
#include "flashcard/screens/frmVerifica.h"
#include "road/screens/BancoGuasti.h"
#include "road/screens/Scrivania.h"
#include "support/screens/Frattempo.h"

// Erasing, verifying and handing over a card through the real screens.

namespace kvr5 {
namespace {

using test::Clicca;
using test::Pilota;
using Names = std::vector<std::string>;

const std::string kFirst = "Delete all files of the card E:\\  ?";
const std::string kSecond =
    "Check the drive: E:\\\nFiles can't be recovered; folders, hidden and read-only files stay. "
    "Delete now?";
const std::string kErased =
    "The card's files are deleted. Folders, hidden and read-only files stayed.";
const std::string kNothing = "Nothing was deleted: this card holds no file that can be erased.";
const std::string kFailed =
    "The card wasn't erased. Check that it is in and its lock is open, then repeat.";

class CardRoad : public test::Guasti {
 protected:
  using Box = Pilota<RiquadroMessaggio>;

  void SetUp() override {
    Guasti::SetUp();
    CreaHall();
  }
  void Fill() {
    for (const char* name : {"Config.cfg", "old.mp3", ".hidden", "more/deep/notes.doc"}) {
      b.Cartella.Write(std::string("card/") + name, "x");
    }
  }
  /// A box of the erasing that says `text`, and what is done with it.
  static Box Says(const std::string& text, std::function<void(RiquadroMessaggio&)> then) {
    return Box([text, then = std::move(then)](RiquadroMessaggio& box) {
      EXPECT_EQ(box.windowTitle(), "Erase card");
      EXPECT_EQ(test::Scritta(box, "lblTesto"), text);
      then(box);
    });
  }
  static void Yes(RiquadroMessaggio& box) { Clicca(box, "cmdYes"); }
  static void Ok(RiquadroMessaggio& box) { Clicca(box, "cmdOk"); }
  void Press() { Clic("frmPlayerConfig", "picCancellaFlash"); }
  /// Erases with two yes; the closing words are `told`.
  void Erase(const std::string& told, const std::function<void()>& beforeTheSecondYes = {}) {
    const auto first = Says(kFirst, Yes);
    const auto second = Says(kSecond, [&](RiquadroMessaggio& box) {
      if (beforeTheSecondYes) beforeTheSecondYes();
      Yes(box);
    });
    const auto closing = Says(told, Ok);
    Press();
  }
  /// Verifies; the findings, "Finding file", and the window is closed.
  Names Verify() {
    Names found;
    const auto over = [] {
      return Window<frmVerifica>() != nullptr && Window<frmVerifica>()->picRipeti->isEnabled();
    };
    const test::Frattempo look(over, [&] {
      const auto& rows = *Window<frmVerifica>()->grdRiscontri->model();
      for (int row = 0; row < rows.rowCount(); ++row) {
        found.push_back(rows.index(row, 0).data().toString().toStdString() + " " +
                        rows.index(row, 1).data().toString().toStdString());
      }
      Clicca(*Window<frmVerifica>()->picChiudi);
    });
    Clic("frmPlayerConfig", "picVerifica");
    return found;
  }
  template <class T>
  static T* Window() {
    for (QWidget* each : QApplication::topLevelWidgets()) {
      auto* form = dynamic_cast<T*>(each);
      if (form != nullptr && form->isVisible()) return form;
    }
    return nullptr;
  }
  static QAction* Entry(QMenu& menu, const char* text) {
    const auto entries = menu.actions();
    return *std::ranges::find(entries, QString::fromUtf8(text), &QAction::text);
  }
  /// Opens More by its button.
  QMenu& OpenMore() {
    frmPlayerConfig& hub = Hub();
    Clicca(*hub.Barra->picAltro);
    QMenu& menu = hub.Barra->menuAltro;
    EXPECT_TRUE(QTest::qWaitFor([&menu] { return menu.isVisible(); }));
    return menu;
  }
  /// The same, and clicks an entry.
  void More(const char* text) {
    QMenu& menu = OpenMore();
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(Entry(menu, text)).center());
  }
};

TEST_F(CardRoad, ErasingAsksTwiceAndLeavesFoldersAndHiddenFiles) {
  Fill();
  ScegliScheda();
  Erase(kErased);
  EXPECT_EQ(b.Nomi("card"), (Names{".hidden", "more/deep/notes.doc"}));
  EXPECT_TRUE(Stato().starts_with("ready")) << Stato();
  Erase(kNothing);
  EXPECT_EQ(b.Nomi("card").size(), 2U);
  EXPECT_FALSE(test::PuntatoreOccupato());
}

TEST_F(CardRoad, EachQuestionIsANoByDefaultByEscAndByTheWindowsOwnButton) {
  Fill();
  ScegliScheda();
  const Names before = b.Nomi("card");
  for (const std::function<void(RiquadroMessaggio&)>& leave :
       std::vector<std::function<void(RiquadroMessaggio&)>>{
           [](RiquadroMessaggio& box) { test::Tasto(box, Qt::Key_Return); },
           [](RiquadroMessaggio& box) { test::Tasto(box, Qt::Key_Escape); },
           [](RiquadroMessaggio& box) { box.close(); },
           [](RiquadroMessaggio& box) { Clicca(box, "cmdNo"); }}) {
    {
      const auto first = Says(kFirst, leave);
      Press();
    }
    {
      const auto first = Says(kFirst, Yes);
      const auto second = Says(kSecond, leave);
      Press();
    }
    EXPECT_EQ(b.Nomi("card"), before);
    EXPECT_TRUE(Hub().isVisible());
  }
}

TEST_F(CardRoad, WithoutACardErasingAsksForItAndLeavingTheDialogTouchesNothing) {
  Fill();
  const Names before = b.Nomi("card");
  {
    const Pilota<frmSelectFlash> card([](frmSelectFlash& dialog) { Clicca(dialog, "picCancel"); });
    Press();
  }
  EXPECT_EQ(b.Nomi("card"), before);
  const Pilota<frmSelectFlash> card([](frmSelectFlash& dialog) { Clicca(dialog, "picOk"); });
  Erase(kErased);
  EXPECT_EQ(b.Nomi("card").size(), 2U);
  EXPECT_EQ(test::Scritta(Hub(), "lblPathMemoryCard"), "Memory card: E:\\");
  EXPECT_EQ(Hub().Barra->picRecordFlash->toolTip(), "Writes the saved project to E:\\");
}

TEST_F(CardRoad, ACardThatWasTakenOutBeforeTheSecondYesIsToldAndItsEmptyPlaceLosesNothing) {
  Fill();
  ScegliScheda();
  Erase(kFailed, [this] { b.Cartella.Write("program/Drives.ini", ""); });
  EXPECT_EQ(b.Nomi("card").size(), 4U);
  EXPECT_EQ(Stato(), "taken out: put it back in");
  LasciaHall();
}

TEST_F(CardRoad, AnErasedCardIsRecordedAgainAndVerified) {
  b.Cartella.Write("card/old.mp3", "left");
  ScegliScheda();
  EXPECT_EQ(Registra(), "");
  EXPECT_NE(Stato().find(", other files on it: 1, "), std::string::npos) << Stato();
  EXPECT_EQ(Verify(), Names{"Not of this project old.mp3"});
  Erase(kErased);
  EXPECT_EQ(Verify().size(), 5U);
  EXPECT_EQ(Registra(), "");
  EXPECT_EQ(Stato().find("other files"), std::string::npos) << Stato();
  EXPECT_EQ(Verify(), Names{});
  LasciaHall();
}

TEST_F(CardRoad, VerifyWithoutACardAsksForItAndShowsNothingWhenThatIsLeft) {
  const Pilota<frmSelectFlash> card([](frmSelectFlash& dialog) { Clicca(dialog, "picCancel"); });
  Clic("frmPlayerConfig", "picVerifica");
  EXPECT_EQ(Window<frmVerifica>(), nullptr);
  EXPECT_TRUE(Hub().isVisible());
}

TEST_F(CardRoad, VerifyTellsOfACardThatIsOutAndTheHubIsThereBehindIt) {
  ScegliScheda();
  std::filesystem::remove_all(Host("card"));
  std::string told;
  {
    const auto over = [] {
      return Window<frmVerifica>() != nullptr && Window<frmVerifica>()->lblEsito->isVisible();
    };
    const test::Frattempo look(over, [&] {
      told = test::Scritta(*Window<frmVerifica>(), "lblEsito");
      Clicca(*Window<frmVerifica>()->picChiudi);
    });
    Clic("frmPlayerConfig", "picVerifica");
  }
  EXPECT_EQ(told, "The card can't be read. Put it in, then verify again.");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Stato() == "taken out: put it back in"; }));
  LasciaHall();
}

TEST_F(CardRoad, NothingOfThemBeginsWhileARecordingIsAtWork) {
  ScegliScheda();
  int presses = 0;
  frmPlayerConfig& hub = Hub();
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
    ++presses;
    for (Coppia* each : {hub.Barra->picCancellaFlash, hub.Barra->picVerifica}) each->click();
    for (const char* text : {"Copy by hand…", "Eject card"}) {
      Entry(hub.Barra->menuAltro, text)->trigger();
    }
    EXPECT_EQ(Window<frmVerifica>(), nullptr);
    EXPECT_EQ(Window<frmCopiaManuale>(), nullptr);
    watch.stop();
  });
  watch.start(0);
  EXPECT_EQ(Registra(), "") << "no box but those of the recording";
  watch.stop();
  EXPECT_GT(presses, 0);
  EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/b.mp3"));
  EXPECT_TRUE(Hub().isVisible());
}

class CopyByHand : public CardRoad {
 protected:
  frmCopiaManuale& Bar() { return dynamic_cast<frmCopiaManuale&>(Schermo("frmCopiaManuale")); }
  void ExpectBack() {
    EXPECT_TRUE(Hub().isVisible());
    EXPECT_EQ(Window<frmCopiaManuale>(), nullptr);
  }

  test::Scrivania desktop;
};

TEST_F(CopyByHand, HidesTheHubBehindTheBarWhoseButtonBringsItBack) {
  ScegliScheda();
  const frmPlayerConfig* hub = &Hub();
  More("Copy by hand…");
  EXPECT_EQ(test::Scritta(Bar(), "lblScheda"),
            "Copy your files to the card E:\\, " + Host("card").string() + ".");
  EXPECT_FALSE(hub->isVisible());
  EXPECT_EQ(desktop.Aperti, Names{Host("card").string()}) << "once";
  b.Cartella.Write("card/mine.mp3", "mine");
  Clicca(*Bar().picTorna);
  ExpectBack();
  EXPECT_EQ(Verify().back(), "Not of this project mine.mp3");
  LasciaHall();
}

TEST_F(CopyByHand, ClosingTheBarBringsTheHubBackTooAndTheCardLineFollowsTheCard) {
  ScegliScheda();
  More("Copy by hand…");
  std::filesystem::remove_all(Host("card"));
  Bar().close();
  ExpectBack();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Stato() == "taken out: put it back in"; }));
  LasciaHall();
}

TEST_F(CopyByHand, TheDialogThatAsksForTheCardDoesNotBringTheHubBack) {
  const frmPlayerConfig* hub = &Hub();
  {
    const Pilota<frmSelectFlash> card([](frmSelectFlash& dialog) { Clicca(dialog, "picOk"); });
    More("Copy by hand…");
    Bar();
  }
  EXPECT_FALSE(hub->isVisible());
  Clicca(*Bar().picTorna);
  ExpectBack();
}

TEST_F(CopyByHand, LeavingThatDialogLeavesTheHubAsItIs) {
  const Pilota<frmSelectFlash> card([](frmSelectFlash& dialog) { Clicca(dialog, "picCancel"); });
  More("Copy by hand…");
  QCoreApplication::processEvents();
  ExpectBack();
  EXPECT_EQ(desktop.Aperti, Names{});
  LasciaHall();
}

TEST_F(CopyByHand, AFolderOfThisComputerIsNoCardThatCanBeEjected) {
  ScegliScheda();
  QMenu& menu = OpenMore();
  EXPECT_FALSE(Entry(menu, "Eject card")->isVisible());
  EXPECT_TRUE(Entry(menu, "Copy by hand…")->isVisible());
  menu.close();
}

}  // namespace
}  // namespace kvr5
