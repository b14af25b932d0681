#include <QElapsedTimer>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <optional>
#include <utility>

#include "core/screens/FinestraCopia.h"
#include "core/screens/frmSiNo.h"
#include "flashcard/screens/frmSelectFlash.h"
#include "projects/screens/frmCaricaProgetto.h"
#include "projects/screens/frmRichiestaNomeForm.h"
#include "road/screens/BancoGuasti.h"

// What goes wrong while a card is read back, in the whole program.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using test::Clicca;
using test::Pilota;
using Names = std::vector<std::string>;

class ReadbackFaults : public test::Guasti {
 protected:
  void SetUp() override {
    Guasti::SetUp();
    b.CreaProgetto("Hall", 4, 1);
    fs::rename(Host("program/Projects/Hall"), Host("made"));
    for (const auto& each : fs::directory_iterator(Host("made"))) {
      fs::copy(each.path(), Host("card") / each.path().filename());
    }
    b.ScriviMp3("card/5.mp3", 5, 40);
  }
  void Descriptor(const std::string& name) {
    const std::string key = "ProjectName=";
    std::string text = b.Cartella.Read("card/Config.cfg");
    const std::size_t at = text.find(key) + key.size();
    b.Cartella.Write("card/Config.cfg", text.replace(at, text.find('\r', at) - at, name));
  }
  frmCaricaProgetto& List() {
    return dynamic_cast<frmCaricaProgetto&>(Schermo("frmCaricaProgetto"));
  }
  using TakesBox = std::function<void(frmSiNo&)>;
  /// From the menu to the list, and takes the card E there; `box`: what is done with the notice
  /// that has to come.
  void ReadCard(const TakesBox& box = {}) {
    Clic("frmMain", "picCaricaDaDisco");
    Again(box);
  }
  void Again(const TakesBox& box = {}) {
    const Pilota<frmSelectFlash> card([](frmSelectFlash& dialog) { Clicca(dialog, "picOk"); });
    std::optional<Pilota<frmSiNo>> notice;
    if (box) notice.emplace(box);
    Clicca(*List().picLoadFlash);
  }
  Names Projects() const {
    Names names;
    for (const auto& each : fs::directory_iterator(Host("program/Projects"))) {
      names.push_back(each.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }
  void ExpectListInUse() {
    frmCaricaProgetto& list = List();
    EXPECT_TRUE(list.isEnabled());
    EXPECT_FALSE(test::PuntatoreOccupato());
    test::Tasto(list, Qt::Key_Escape);
    EXPECT_TRUE(Schermo("frmMain").isVisible());
  }
  static RiquadroCopia* CopyWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* copy = dynamic_cast<RiquadroCopia*>(window);
      if (copy != nullptr && copy->isVisible()) return copy;
    }
    return nullptr;
  }
  /// Runs the reading with a look at each turn of the event loop.
  void ReadUnder(const std::function<void()>& look, const TakesBox& box = {}) {
    Clic("frmMain", "picCaricaDaDisco");
    const QPointer<QWidget> list = &List();  // it goes when the project is open
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
      if (list && !list->isEnabled()) look();
    });
    watch.start(0);
    Again(box);
  }
  /// Presses the cancel of the copy's window as soon as that is there. The disk is slow: the copy
  /// takes until then.
  void ReadAndCancel() {
    bool held = false;
    bool pressed = false;
    ReadUnder(
        [&] {
          if (RiquadroCopia* window = CopyWindow(); window != nullptr && !pressed) {
            pressed = true;
            EXPECT_FALSE(window->isModal());
            Clicca(*window, "cmdAnnulla");
          }
          if (std::exchange(held, true)) return;
          QElapsedTimer copying;
          copying.start();
          EXPECT_TRUE(QTest::qWaitFor([&] { return copying.hasExpired(500); }));
        },
        Cancelled);
    EXPECT_TRUE(pressed);
  }
  static void Cancelled(frmSiNo& box) {
    EXPECT_EQ(box.windowTitle(), "Open from card");
    EXPECT_TRUE(box.lblNota->text().startsWith(QLatin1String("Cancelled:")));
    EXPECT_EQ(box.lblNota->palette().color(QPalette::WindowText), QColor(255, 128, 0));
    EXPECT_EQ(CopyWindow(), nullptr);
    Clicca(*box.cmdSi);
  }
};

TEST_F(ReadbackFaults, ACancelInTheCopysWindowIsToldAndTheListIsThereAgain) {
  ReadAndCancel();
  EXPECT_EQ(Projects(), Names{"Hall"}) << "what was made stays";
  EXPECT_TRUE(b.Nomi("program/Projects/Hall").size() < b.Nomi("card").size());
  ExpectListInUse();
}

TEST_F(ReadbackFaults, AfterTheCancelTheSameCardAsksForAnotherNameAndComesWhole) {
  ReadAndCancel();
  {
    const Pilota<frmSelectFlash> card([](frmSelectFlash& dialog) { Clicca(dialog, "picOk"); });
    const Pilota<frmRichiestaNomeForm> name([](frmRichiestaNomeForm& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "This project exists: give another name");
      EXPECT_EQ(dialog.txtNomeProgetto->selectedText(), "Hall");
      test::Scrivi(dialog, "Hall 2");
      test::Tasto(dialog, Qt::Key_Return);
    });
    Clicca(*List().picLoadFlash);
  }
  EXPECT_EQ(test::Scritta(Hub(), "lblProgetto"), "Hall (Hall 2)");
  EXPECT_EQ(b.Nomi("program/Projects/Hall 2"), b.Nomi("card"));
  TornaAlMenu();
}

TEST_F(ReadbackFaults, TheListTakesNoPressWhileTheCopyIsAtWork) {
  bool pressed = false;
  ReadUnder([&] {
    if (std::exchange(pressed, true)) return;
    frmCaricaProgetto* list = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* found = dynamic_cast<frmCaricaProgetto*>(window);
      if (found != nullptr && found->isVisible()) list = found;
    }
    ASSERT_NE(list, nullptr);
    for (const char* name : {"picLoadFlash", "picLoad", "picindietro"}) Clicca(*list, name);
    list->close();
  });
  EXPECT_TRUE(pressed);
  EXPECT_EQ(test::Scritta(Hub(), "lblProgetto"), "Hall") << "what was read is opened all the same";
  EXPECT_EQ(Projects(), Names{"Hall"});
  TornaAlMenu();
}

TEST_F(ReadbackFaults, ACardPulledOutAtAnyMomentLeavesTheListOrTheHubAtWork) {
  int met = 0;
  for (int beat = 0; beat < 12; ++beat) {
    SCOPED_TRACE(beat);
    int left = beat;
    std::string told;
    {
      const test::Risponditore boxes;
      ReadUnder([&] {
        if (left-- == 0) fs::rename(Host("card"), Host("away"));
      });
      told = boxes.Titoli();
    }
    const bool gone = fs::exists(Host("away"));
    met += gone && !told.empty() ? 1 : 0;
    EXPECT_FALSE(test::PuntatoreOccupato());
    QWidget* list = nullptr;
    QWidget* hub = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible() && window->objectName() == "frmCaricaProgetto") list = window;
      if (window->isVisible() && window->objectName() == "frmPlayerConfig") hub = window;
    }
    ASSERT_TRUE((list == nullptr) != (hub == nullptr));
    if (hub != nullptr) {
      TornaAlMenu();
    } else {
      ExpectListInUse();
    }
    if (gone) {
      EXPECT_FALSE(fs::exists(Host("card"))) << "nothing may stand in its place";
      fs::rename(Host("away"), Host("card"));
    }
    fs::remove_all(Host("program/Projects/Hall"));
  }
  EXPECT_GT(met, 1) << "the copy itself must have been met";
}

TEST_F(ReadbackFaults, AHostileNameMakesNoFolderAnywhere) {
  const std::string outside = (b.Cartella.Host() / "outside").string();
  Clic("frmMain", "picCaricaDaDisco");
  for (const std::string& name :
       {std::string("..\\..\\outside"), std::string("../../outside"), outside, std::string(".."),
        std::string("."), std::string("C:"), std::string("\\outside"), std::string("NUL"),
        std::string("a|b"), std::string("a*"), std::string("Hall."), std::string("a?b")}) {
    SCOPED_TRACE(name);
    Descriptor(name);
    const Names before = b.Nomi("");
    Again([](frmSiNo& notice) {
      EXPECT_EQ(notice.windowTitle(), "Project folder not created");
      EXPECT_TRUE(notice.lblNota->text().contains(QLatin1String("System code:52")));
      Clicca(*notice.cmdSi);
    });
    EXPECT_EQ(Projects(), Names{});
    EXPECT_FALSE(b.Cartella.Exists("outside"));
    EXPECT_EQ(b.Nomi(""), before);
    ASSERT_TRUE(List().isEnabled());
  }
  ExpectListInUse();
}

TEST_F(ReadbackFaults, ANameOfMarkupIsShownAsItIs) {
  Descriptor("A&B <b>x");
  ReadCard([](frmSiNo& notice) { Clicca(*notice.cmdSi); });
  EXPECT_EQ(Projects(), Names{}) << "no folder can have it";
  Descriptor("A&B 'x'");
  Again();
  EXPECT_EQ(test::Scritta(Hub(), "lblProgetto"), "A&B 'x'");
  EXPECT_EQ(Projects(), Names{"A&B 'x'"});
  TornaAlMenu();
}

TEST_F(ReadbackFaults, FoldersInFoldersComeAlongAndLinksDoNot) {
  b.Cartella.Write("card/more/deep/deeper/notes.doc", "kept");
  b.Cartella.Write("outside/secret.txt", "secret");
  fs::create_directories(Host("card/empty"));
  fs::create_symlink(Host("outside/secret.txt"), Host("card/link.txt"));
  fs::create_directory_symlink(Host("outside"), Host("card/linked"));
  ReadCard();
  Hub();
  const std::string copy = "program/Projects/Hall/";
  EXPECT_EQ(b.Cartella.Read(copy + "more/deep/deeper/notes.doc"), "kept");
  EXPECT_TRUE(fs::is_directory(Host(copy + "empty")));
  EXPECT_FALSE(fs::exists(fs::symlink_status(Host(copy + "link.txt"))));
  EXPECT_FALSE(fs::exists(Host(copy + "linked/secret.txt")));
  TornaAlMenu();
}

TEST_F(ReadbackFaults, AFolderInThePlaceOfAFileOfTheProjectIsToldWhenItIsOpened) {
  fs::remove(Host("card/Config.txt"));
  b.Cartella.Write("card/Config.txt/x", "a folder");
  const test::Risponditore boxes;
  ReadCard();
  EXPECT_EQ(boxes.Titoli(), "Project not complete");
  ExpectListInUse();
}

TEST_F(ReadbackFaults, ACardWithoutADescriptorOrANameIsToldAndLeavesNothing) {
  const std::string descriptor = b.Cartella.Read("card/Config.cfg");
  fs::remove(Host("card/Config.cfg"));
  {
    const test::Risponditore boxes;
    ReadCard();
    EXPECT_EQ(boxes.Titoli(), "Project not complete");
  }
  b.Cartella.Write("card/Config.cfg", descriptor);
  Descriptor("");
  {
    const test::Risponditore boxes;
    Again();
    EXPECT_EQ(boxes.Titoli(), "Project not complete");
  }
  EXPECT_EQ(Projects(), Names{});
  ExpectListInUse();
}

TEST_F(ReadbackFaults, TheNameDialogOfTheProgramCanBeLeftWithoutAFolder) {
  fs::create_directory(Host("program/Projects/Hall"));
  Clic("frmMain", "picCaricaDaDisco");
  for (const bool byKey : {true, false}) {
    const Pilota<frmSelectFlash> card([](frmSelectFlash& dialog) { Clicca(dialog, "picOk"); });
    const Pilota<frmRichiestaNomeForm> name([byKey](frmRichiestaNomeForm& dialog) {
      if (byKey) {
        test::Tasto(dialog, Qt::Key_Escape);
      } else {
        dialog.close();
      }
    });
    Clicca(*List().picLoadFlash);
    EXPECT_TRUE(name.Usato());
    EXPECT_EQ(programma->C().Stato.ProjectName, "");
  }
  EXPECT_EQ(Projects(), Names{"Hall"});
  ExpectListInUse();
}

}  // namespace
}  // namespace kvr5
