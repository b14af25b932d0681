#include <QAccessible>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTest>
#include <filesystem>
#include <map>

#include "core/Lingua.h"
#include "core/screens/Testo.h"
#include "flashcard/screens/ProvaVerifica.h"
#include "support/screens/Frattempo.h"

// The window that compares the card with the open project.

namespace kvr5 {
namespace {

using namespace test;
namespace fs = std::filesystem;
using Rows = std::vector<std::string>;

constexpr std::uintmax_t kLarge = 64U << 20U;     // bytes that take many pieces to compare
constexpr std::uintmax_t kVeryLarge = 1U << 30U;  // and that take longer than a look at the state

class VerificaDellaScheda : public ProvaVerifica {
 protected:
  /// A picture of the report; it takes no room on the disk.
  void AddLarge(std::uintmax_t size = kLarge) const {
    for (const char* folder : {"card", "program/Projects/Hall"}) {
      b.Cartella.Write(std::string(folder) + "/large.jpg", "");
      fs::resize_file(Host(std::string(folder) + "/large.jpg"), size);
    }
  }
  frmVerifica& Start() {
    forma->FormChiamante = Schermata::Configurazione;
    return Apri();
  }
  bool AtWork() { return !forma->picRipeti->isEnabled(); }
  /// Waits until the work is over.
  frmVerifica& Finish() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return !AtWork(); }, 20000));
    return *forma;
  }
  /// Runs `what` while the large file is compared: events run after each piece of it.
  Frattempo During(std::function<void()> what) {
    constexpr int kPieces = 30;
    return Frattempo([this, left = kPieces]() mutable { return AtWork() && left-- == 0; },
                     std::move(what));
  }
  Rows Found() {
    Rows rows;
    const auto& model = *forma->grdRiscontri->model();
    for (int row = 0; row < model.rowCount(); ++row) {
      std::string line;
      for (int column = 0; column < model.columnCount(); ++column) {
        line += (column > 0 ? "|" : "") + Std(model.index(row, column).data().toString());
      }
      rows.push_back(line);
    }
    return rows;
  }
  std::string Words(const char* key) { return TestoLingua(b.C, key); }
  /// Four files were compared, and nothing was found.
  void ExpectAllWell() {
    ExpectOver();
    EXPECT_EQ(Found(), Rows{});
    EXPECT_TRUE(forma->lblBuono->isVisible());
    EXPECT_FALSE(forma->lblEsito->isVisible());
    EXPECT_TRUE(forma->lblBuono->text().startsWith(
        QLatin1String("The card holds what the project holds. Files compared: 4, ")))
        << forma->lblBuono->text().toStdString();
  }
  /// These words of warning, and none of praise.
  void ExpectWarning(const std::string& words) {
    EXPECT_FALSE(forma->lblBuono->isVisible());
    EXPECT_TRUE(forma->lblEsito->isVisible());
    EXPECT_EQ(forma->lblEsito->text().toStdString(), words);
  }
  void ExpectOver() {
    EXPECT_FALSE(forma->picAvanzamento->isVisible());
    EXPECT_FALSE(forma->lblFile->isVisible());
    EXPECT_FALSE(forma->lblQuanto->isVisible());
    EXPECT_EQ(Scritta(*forma, "lblChiudi"), "Close");
    // A key pressed too often mustn't close a list that nobody has read.
    QWidget* list = forma->grdRiscontri;
    EXPECT_EQ(forma->focusWidget(), forma->grdRiscontri->model()->rowCount() > 0
                                        ? list
                                        : static_cast<QWidget*>(forma->picChiudi));
  }
  /// Each file of the project and of the card, with its bytes and its time.
  std::map<std::string, std::string> Photo() const {
    std::map<std::string, std::string> files;
    for (const std::string folder : {"card", "program", "music"}) {
      for (const std::string& name : b.Nomi(folder)) {
        const auto when = last_write_time(Host(folder) / name).time_since_epoch().count();
        files[folder + "/" + name] = b.Cartella.Read(folder + "/" + name) + std::to_string(when);
      }
    }
    return files;
  }
};

TEST_F(VerificaDellaScheda, BeginsByItselfAndSaysThatAllIsWell) {
  frmVerifica& form = Start();
  EXPECT_EQ(form.windowTitle(), "Verify card");
  EXPECT_EQ(Scritta(form, "lblTitolo"), "Card " + b.Percorso("card") + "\\ and project Hall");
  Finish();
  ExpectAllWell();
}

TEST_F(VerificaDellaScheda, TellsEachFindingWithItsFileAndWhatToDo) {
  fs::remove(Host("card/Config.txt"));
  b.Cartella.Write("card/Config.cfg", "other");
  b.Cartella.Write("card/5.mp3", "no music");
  b.Cartella.Write("card/9.mp3", "left");
  b.Cartella.Write("card/1.m3u", "P01-001\r\n");
  Start();
  Finish();
  EXPECT_EQ(Found(), (Rows{"Not on the card|Config.txt|" + Words("0130288"),
                           "Differs from the project|Config.cfg|" + Words("0130289"),
                           "Differs from the project|5.mp3|" + Words("0130289"),
                           "Not for this player|5.mp3|" + Words("0130292"),
                           "In a list, not on the card|P01-001.mp3|" + Words("0130291"),
                           "Not of this project|1.m3u|" + Words("0130290"),
                           "Not of this project|9.mp3|" + Words("0130290")}));
  EXPECT_TRUE(Words("0130288").starts_with("Record the card again."));
  ExpectWarning("The card isn't as the project. Findings: 7");
  ExpectOver();
  EXPECT_EQ(forma->grdRiscontri->currentIndex().row(), 0);
}

TEST_F(VerificaDellaScheda, ShowsWhichFileItComparesAndHowFarItIs) {
  AddLarge(kVeryLarge);
  double part = 0;
  std::string amount;
  {
    frmVerifica* form = nullptr;
    const Frattempo further([&] { return form != nullptr && form->picAvanzamento->Parte() > 0; },
                            [&] {
                              part = form->picAvanzamento->Parte();
                              amount = Scritta(*form, "lblQuanto");
                              EXPECT_EQ(form->lblFile->text().toStdString(),
                                        Host("card/large.jpg").string());
                              EXPECT_TRUE(form->picAvanzamento->isVisible());
                              EXPECT_FALSE(form->picRipeti->isEnabled());
                              EXPECT_EQ(Scritta(*form, "lblChiudi"), "Stop");
                            });
    form = &*forma;
    Start();
    Finish();
  }
  EXPECT_GT(part, 0.0);
  EXPECT_LT(part, 1.0);
  EXPECT_TRUE(QString::fromStdString(amount).contains(QLatin1String("File 4 of 5"))) << amount;
  EXPECT_TRUE(QString::fromStdString(amount).endsWith(QLatin1String("of 1 GB"))) << amount;
}

TEST_F(VerificaDellaScheda, StopKeepsWhatWasFoundUntilItIsClosed) {
  AddLarge();
  fs::remove(Host("card/Config.txt"));
  const auto stop = During([this] { Clicca(*forma->picChiudi); });
  Start();
  Finish();
  EXPECT_EQ(Found(), Rows{"Not on the card|Config.txt|" + Words("0130288")});
  ExpectWarning("Stopped: not all was compared. Findings so far: 1");
  ExpectOver();
  EXPECT_TRUE(b.Schermi.Mostrate.empty()) << "it stays";
  Clicca(*forma->picChiudi);
  EXPECT_FALSE(forma.Caricata());
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
}

TEST_F(VerificaDellaScheda, EscStopsTheWorkAndThenCloses) {
  AddLarge();
  const auto stop = During([this] {
    forma->activateWindow();
    Tasto(*forma, Qt::Key_Escape);
  });
  Start();
  Finish();
  ExpectWarning("Stopped: not all was compared. Findings so far: 0");
  ASSERT_TRUE(forma.Caricata());
  Tasto(*forma, Qt::Key_Escape);
  EXPECT_FALSE(forma.Caricata());
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
}

TEST_F(VerificaDellaScheda, TheWindowsOwnButtonDuringTheWorkStopsItAndClosesInOne) {
  AddLarge();
  fs::remove(Host("card/5.mp3"));  // which comes after it
  Rows found{"not looked at"};
  b.Schermi.SuMostra = [&](Schermata /*screen*/) { found = Found(); };
  const auto stop = During([this] { forma->close(); });
  Start();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !forma.Caricata(); }));
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
  EXPECT_EQ(found, Rows{}) << "the rest was not compared";
}

TEST_F(VerificaDellaScheda, ShownModallyItsCallerGoesOnWhenItIsClosed) {
  forma->FormChiamante = Schermata::Configurazione;
  const Frattempo user([this] { return forma->lblBuono->isVisible(); },
                       [this] { Clicca(*forma, "lblChiudi"); });
  forma->MostraModale();
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
}

TEST_F(VerificaDellaScheda, VerifyAgainForgetsTheOldFindingsAndLooksAfresh) {
  fs::remove(Host("card/5.mp3"));
  Start();
  Finish();
  ASSERT_EQ(Found().size(), 1U);
  fs::copy(Host("music/a.mp3"), Host("card/5.mp3"));
  Clicca(*forma->picRipeti);
  Finish();
  ExpectAllWell();
  fs::remove(Host("card/5.mp3"));
  Clicca(*forma, "lblRipeti");
  Finish();
  EXPECT_EQ(Found().size(), 1U);
  ExpectWarning("The card isn't as the project. Findings: 1");
}

TEST_F(VerificaDellaScheda, AStoppedOneCanBeDoneAgainToItsEnd) {
  AddLarge();
  {
    const auto stop = During([this] { Clicca(*forma->picChiudi); });
    Start();
    Finish();
  }
  Clicca(*forma->picRipeti);
  Finish();
  EXPECT_TRUE(forma->lblBuono->isVisible());
}

TEST_F(VerificaDellaScheda, VerifyAgainDuringTheWorkDoesNothing) {
  AddLarge();
  fs::remove(Host("card/Config.txt"));
  const auto again = During([this] {
    Clicca(*forma->picRipeti);
    forma->picRipeti->click();
    EXPECT_EQ(Found().size(), 1U) << "the findings stay";
  });
  Start();
  Finish();
  EXPECT_EQ(Found().size(), 1U);
}

TEST_F(VerificaDellaScheda, TheKeyboardReachesTheListAndEveryButton) {
  fs::remove(Host("card/Config.txt"));
  fs::remove(Host("card/5.mp3"));
  frmVerifica& form = Start();
  Finish();
  std::vector<std::string> stops;
  for (int i = 0; i < 4; ++i) {
    stops.push_back(form.focusWidget()->objectName().toStdString());
    Tasto(form, Qt::Key_Tab);
  }
  EXPECT_EQ(stops, (std::vector<std::string>{"grdRiscontri", "picRipeti", "picChiudi", "picHelp"}));
  EXPECT_EQ(form.focusWidget(), form.grdRiscontri);
  Tasto(form, Qt::Key_Down);
  EXPECT_EQ(form.grdRiscontri->currentIndex().row(), 1);
  Tasto(form, Qt::Key_F1);
  EXPECT_EQ(b.Documenti.Aperti.size(), 1U);
  form.picRipeti->setFocus();
  Tasto(form, Qt::Key_Return);
  Finish();
  EXPECT_EQ(Found().size(), 2U);
  Tasto(form, Qt::Key_Return);
  EXPECT_TRUE(forma.Caricata()) << "what was found is still to be read";
  form.picChiudi->setFocus();
  Tasto(form, Qt::Key_Return);
  EXPECT_FALSE(forma.Caricata());
}

TEST_F(VerificaDellaScheda, AScreenReaderHearsNamesAndFindings) {
  fs::remove(Host("card/Config.txt"));
  frmVerifica& form = Start();
  Finish();
  EXPECT_EQ(form.picAvanzamento->accessibleName(), "Progress");
  EXPECT_EQ(form.grdRiscontri->accessibleName(), "Finding");
  const auto& model = *form.grdRiscontri->model();
  EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), "Finding");
  EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), "File");
  EXPECT_EQ(model.headerData(2, Qt::Horizontal).toString(), "What to do");
  for (Coppia* each : {form.picRipeti, form.picChiudi, form.picHelp}) {
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(each);
    ASSERT_NE(heard, nullptr);
    EXPECT_FALSE(heard->text(QAccessible::Name).isEmpty()) << each->objectName().toStdString();
  }
}

TEST_F(VerificaDellaScheda, LongNamesLeaveTheWindowAsItIsAndAreWholeInTheirToolTip) {
  const std::string name(200, 'w');
  b.Cartella.Write("card/" + name + ".mp3", "left");
  b.C.Stato.ProjectName = std::string(99, 'W');
  frmVerifica& form = Start();
  const QSize before = form.size();
  Finish();
  QCoreApplication::processEvents();
  EXPECT_EQ(form.size(), before);
  EXPECT_LE(form.minimumSizeHint().width(), 880);
  const auto cell = form.grdRiscontri->model()->index(0, ModelloRiscontri::File);
  EXPECT_EQ(cell.data().toString().toStdString(), name + ".mp3");
  EXPECT_TRUE(cell.data(Qt::ToolTipRole)
                  .toString()
                  .remove(QChar(0x200B))
                  .contains(QString::fromStdString(name)));
  EXPECT_TRUE(Scritta(form, "lblTitolo").ends_with(b.C.Stato.ProjectName));
}

TEST_F(VerificaDellaScheda, ANameOfSeveralLinesTakesOneRow) {
  b.Cartella.Write("card/a\nb.mp3", "left");
  Start();
  Finish();
  ASSERT_EQ(Found().size(), 1U);
  EXPECT_EQ(Found()[0].find('\n'), std::string::npos);
}

TEST_F(VerificaDellaScheda, TwoThousandFindingsComeQuicklyAndTheirListCanBeUsed) {
  constexpr int kMany = 2000;
  for (int i = 0; i < kMany; ++i) b.Cartella.Write("card/x" + std::to_string(i) + ".mp3", "left");
  QElapsedTimer since;
  since.start();
  frmVerifica& form = Start();
  Finish();
  EXPECT_LT(since.elapsed(), 4000);
  ASSERT_EQ(form.grdRiscontri->model()->rowCount(), kMany);
  ExpectWarning("The card isn't as the project. Findings: 2000");
  form.grdRiscontri->setFocus();
  since.start();
  for (int i = 0; i < 50; ++i) Tasto(form, Qt::Key_PageDown);
  EXPECT_GT(form.grdRiscontri->currentIndex().row(), 200);
  Tasto(form, Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(form.grdRiscontri->currentIndex().row(), kMany - 1);
  const QScrollBar& bar = *form.grdRiscontri->verticalScrollBar();
  EXPECT_EQ(bar.value(), bar.maximum());
  EXPECT_LT(since.elapsed(), 3000);
}

TEST_F(VerificaDellaScheda, NothingIsWritten) {
  fs::remove(Host("card/Config.txt"));
  b.Cartella.Write("card/9.mp3", "left");
  const auto before = Photo();
  Start();
  Finish();
  Clicca(*forma->picRipeti);
  Finish();
  Clicca(*forma->picChiudi);
  EXPECT_TRUE(Photo() == before);
}

TEST_F(VerificaDellaScheda, ACardThatIsNotThereIsToldAndFoundWhenItIsBack) {
  fs::rename(Host("card"), Host("away"));
  Start();
  Finish();
  ExpectWarning("The card can't be read. Put it in, then verify again.");
  EXPECT_EQ(Found(), Rows{});
  fs::rename(Host("away"), Host("card"));
  Clicca(*forma->picRipeti);
  Finish();
  EXPECT_TRUE(forma->lblBuono->isVisible());
}

TEST_F(VerificaDellaScheda, ACardThatGoesDuringTheWorkIsNoCardThatIsWell) {
  AddLarge();
  b.Cartella.Write("card/zz.jpg", "same");
  b.Cartella.Write("program/Projects/Hall/zz.jpg", "same");
  const auto gone = During([this] { fs::rename(Host("card"), Host("away")); });
  Start();
  Finish();
  ExpectWarning("The card can't be read. Put it in, then verify again.");
}

TEST_F(VerificaDellaScheda, SpeaksItalianToo) {
  b.C.Stato.FileLingua = b.Percorso("program/Language/Italiano.lan");
  fs::remove(Host("card/Config.txt"));
  frmVerifica& form = Start();
  Finish();
  EXPECT_EQ(Found().at(0).find("Not on the card"), std::string::npos);
  EXPECT_NE(Scritta(form, "lblChiudi"), "Close");
  EXPECT_NE(Scritta(form, "lblRipeti"), "Verify again");
}

}  // namespace
}  // namespace kvr5
