#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QTest>

#include "platform/db/Connection.h"
#include "playerconfig/screens/BancoHub.h"

// The table of inputs while another program reads, writes or locks it.

namespace kvr5 {
namespace {

class OtherProgram : public test::HubConMusica {
 protected:
  /// Has the other program do this with the table.
  void Sql(const std::string& statement) {
    if (!other_.IsOpen()) {
      ASSERT_FALSE(other_.Open(b.Percorso("program/Projects/Hall/inputcfg.mdb")));
    }
    ASSERT_EQ(sqlite3_exec(other_.Handle(), statement.c_str(), nullptr, nullptr, nullptr),
              SQLITE_OK)
        << statement;
  }
  void Lock() { Sql("BEGIN EXCLUSIVE"); }
  void Unlock() { other_.Close(); }
  void Adds(int code, const std::string& name) {
    b.AggiungiRiga("inputcfg.mdb", 1, code, name, Music(), std::to_string(code) + ".mp3");
  }
  /// Counts how often a widget is hidden.
  class Hides : public QObject {
   public:
    explicit Hides(QWidget& widget) { widget.installEventFilter(this); }
    int Times = 0;

   protected:
    bool eventFilter(QObject* /*object*/, QEvent* event) override {
      if (event->type() == QEvent::HideToParent) ++Times;
      return false;
    }
  };
  /// As long as a person needs to see what has changed.
  static void LookAtIt() { QTest::qWait(QApplication::doubleClickInterval() + 50); }
  /// The hub with the removal of input 1's file, a.mp3, picked.
  void PickRemoval() {
    Adds(1, "a.mp3");
    Apri(0);
    Attiva();
    Spunta(1);
    ScegliFile(" ");
  }
  std::string Plays() { return SiVede("fraFileAssociato") ? Testo("lblFileAssociato") : ""; }

  Connection other_{b.Disco};
};

TEST_F(OtherProgram, ATableThatIsLockedIsNoEmptyOneAndComesBack) {
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", Music(), "5.mp3");
  Connection other(b.Disco);
  ASSERT_FALSE(other.Open(b.Percorso("program/Projects/Hall/inputcfg.mdb")));
  ASSERT_EQ(sqlite3_exec(other.Handle(), "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  Apri(1);
  Spunta(1);
  Spunta(3);
  EXPECT_FALSE(SiVede("fraFileAssociato"));
  EXPECT_TRUE(Testo("lblCifre").starts_with("The assignments can't be read now"))
      << Testo("lblCifre");
  other.Close();
  QEvent activation(QEvent::WindowActivate);
  QCoreApplication::sendEvent(hub, &activation);
  EXPECT_EQ(Trova<QListWidget>("lstAssegnati").count(), 1);
  EXPECT_EQ(Testo("lblCifre"), "1 file");
  EXPECT_EQ(Testo("lblFileAssociato"), "Plays: a.mp3") << "of what was ticked meanwhile";
}

TEST_F(OtherProgram, NothingIsTakenAwayThatCouldNotBeSeen) {
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "elsewhere.mp3", "C:\\far\\", "1.mp3");
  Connection other(b.Disco);
  ASSERT_FALSE(other.Open(b.Percorso("program/Projects/Hall/inputcfg.mdb")));
  ASSERT_EQ(sqlite3_exec(other.Handle(), "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  Apri(0);
  Spunta(1);
  other.Close();
  ScegliFile(" ");
  Clic("cmdOkFileMp3");
  EXPECT_NE(Riga(1), "") << "the first press shows it";
  EXPECT_EQ(Testo("lblFileAssociato"), "Plays: elsewhere.mp3");
  EXPECT_EQ(Testo("lblOkFileMp3"), "Remove file");
  Clic("cmdOkFileMp3");
  EXPECT_NE(Riga(1), "") << "the second half of a double click doesn't, either";
  LookAtIt();
  Clic("cmdOkFileMp3");
  EXPECT_EQ(Riga(1), "");
  EXPECT_EQ(Testo("lblOkFileMp3"), "Confirm") << "nothing is left to remove";
}

TEST_F(OtherProgram, ThatAssignsWhatIsTickedIsSeenBeforeItsFileIsTakenAway) {
  Apri(0);
  Spunta(1);
  ScegliFile(" ");
  Adds(1, "b.mp3");
  Conferma();
  EXPECT_NE(Riga(1), "");
  EXPECT_EQ(Plays(), "Plays: b.mp3");
  LookAtIt();
  Conferma();
  EXPECT_EQ(Riga(1), "");
}

TEST_F(OtherProgram, ThatChangesTheFileOfWhatIsTickedIsSeenBeforeItIsTakenAway) {
  Adds(1, "a.mp3");
  Apri(0);
  Spunta(1);
  ScegliFile(" ");
  Sql("UPDATE List SET FileName='b.mp3' WHERE Pos=1");
  Conferma();
  EXPECT_NE(Riga(1), "");
  EXPECT_EQ(Plays(), "Plays: b.mp3");
}

TEST_F(OtherProgram, ThatLocksTheTableKeepsItsFilesFromBeingTakenAway) {
  Adds(1, "a.mp3");
  Apri(0);
  Spunta(1);
  ScegliFile(" ");
  Lock();
  Conferma();
  Unlock();
  EXPECT_NE(Riga(1), "");
  EXPECT_TRUE(Testo("lblCifre").starts_with("The assignments can't be read now"));
  const std::string log = b.Cartella.Read("program/Logs/20061020.log");
  EXPECT_NE(log.find("Routine cmdOKFileMp3: err n"), std::string::npos) << log;
}

TEST_F(OtherProgram, ThatChangedWhatIsTickedIsSeenWhenTheHubComesBack) {
  Adds(1, "a.mp3");
  Apri(0);
  Spunta(1);
  EXPECT_EQ(Plays(), "Plays: a.mp3");
  Sql("UPDATE List SET FileName='b.mp3' WHERE Pos=1");
  Attiva();
  EXPECT_EQ(Plays(), "Plays: b.mp3");
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), "b.mp3");
  Sql("DELETE FROM List");
  Attiva();
  EXPECT_EQ(Plays(), "");
}

TEST_F(OtherProgram, ThatFreesTheLastInputIsNoLockedTable) {
  Adds(1, "a.mp3");
  Apri(0);
  Sql("DELETE FROM List");
  Spunta(1);
  EXPECT_EQ(Plays(), "");
  EXPECT_EQ(Trova<QListWidget>("lstAssegnati").count(), 0);
  EXPECT_FALSE(Testo("lblCifre").starts_with("The assignments can't be read now"));
}

TEST_F(OtherProgram, ThatLetsTheTableGoIsNoticedWithoutTheUser) {
  Adds(5, "a.mp3");
  Lock();
  Apri(1);
  EXPECT_TRUE(Testo("lblCifre").starts_with("The assignments can't be read now"));
  Unlock();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Testo("lblCifre") == "1 file"; }, 8000));
}

TEST_F(OtherProgram, ThatOnlyWritesLeavesWhatWasPickedToBeConfirmedOnceMore) {
  Adds(1, "a.mp3");
  Apri(0);
  Spunta(1);
  ScegliFile("b.mp3");
  Sql("BEGIN IMMEDIATE");
  Conferma();
  EXPECT_EQ(Plays(), "Plays: a.mp3");
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), "b.mp3");
  EXPECT_EQ(Testo("lblOkFileMp3"), "Confirm");
  Sql("COMMIT");
  Conferma();
  EXPECT_EQ(Plays(), "Plays: b.mp3");
}

TEST_F(OtherProgram, ThatLocksTheTableLeavesAFileThatCouldNotBeConfirmedToBeConfirmed) {
  Adds(1, "a.mp3");
  Sql("UPDATE List SET FilePath='C:\\old\\', FileName='old.mp3' WHERE Pos=1");
  Unlock();
  b.ScriviMp3("music/New/x.mp3");
  Apri(0);
  Spunta(1);
  hub->fraFileName->DirDirectoryMp3->ImpostaPercorso(b.Percorso("music/New"));
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), "x.mp3") << "picked by nobody yet";
  Lock();
  Conferma();
  Unlock();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Testo("lblCifre") == "1 file, 1 missing"; }, 8000));
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), "x.mp3");
  EXPECT_EQ(Testo("lblOkFileMp3"), "Confirm") << "never a removal in its place";
  Conferma();
  EXPECT_EQ(Plays(), "Plays: x.mp3");
}

TEST_F(OtherProgram, ThatOnlyWritesLeavesARemovalToBePressedOnceMore) {
  Adds(1, "a.mp3");
  Apri(0);
  Spunta(1);
  ScegliFile(" ");
  Sql("BEGIN IMMEDIATE");
  Conferma();
  EXPECT_EQ(Plays(), "Plays: a.mp3");
  EXPECT_EQ(Testo("lblOkFileMp3"), "Remove file") << "not a confirm in its place";
  Sql("COMMIT");
  Conferma();
  EXPECT_EQ(Riga(1), "");
}

TEST_F(OtherProgram, ThatLetsTheTableGoTakesTheKeyboardOffAButtonThatDoesSomethingElse) {
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "far.mp3", "C:\\far\\", "1.mp3");
  Lock();
  Apri(0);
  Spunta(1);
  EXPECT_EQ(Testo("lblOkFileMp3"), "Confirm");
  Trova<QWidget>("cmdOkFileMp3").setFocus();
  Unlock();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Testo("lblOkFileMp3") == "Remove file"; }, 8000));
  EXPECT_EQ(hub->focusWidget(), &Trova<QWidget>("cmbFileMp3"));
  Conferma();
  EXPECT_NE(Riga(1), "") << "a click that was on its way";
}

TEST_F(OtherProgram, AClickThatBringsTheHubBackDoesNotPressAButtonThatChangedWithIt) {
  Apri(0);
  Attiva();
  Spunta(1);
  ScegliFile("b.mp3");
  Conferma();
  std::filesystem::remove(b.Cartella.Host() / "music/b.mp3");
  Attiva();
  Conferma();
  EXPECT_NE(Riga(1), "");
}

TEST_F(OtherProgram, ThatChangesAFileIsSeenBeforeTheClickThatBringsTheHubBackRemovesIt) {
  for (const char* name : {"b.mp3", "far.mp3"}) {  // in the folder that is shown, and elsewhere
    SCOPED_TRACE(name);
    PickRemoval();
    Sql(std::string("UPDATE List SET FileName='") + name + "' WHERE Pos=1");
    Trova<QWidget>("cmdOkFileMp3").setFocus();
    Attiva();
    EXPECT_EQ(hub->focusWidget(), &Trova<QWidget>("cmbFileMp3"));
    Conferma();
    EXPECT_NE(Riga(1), "");
    Sql("DELETE FROM List");
    Unlock();
    Chiudi();
  }
}

TEST_F(OtherProgram, ThatMovesAFileToAnotherFolderIsSeenBeforeItIsTakenAway) {
  Adds(1, "a.mp3");
  b.ScriviMp3("other/a.mp3");
  Apri(0);
  Spunta(1);
  ScegliFile(" ");
  Sql("UPDATE List SET FilePath='" + b.Percorso("other") + "\\' WHERE Pos=1");
  Conferma();
  EXPECT_NE(Riga(1), "");
  LookAtIt();
  EXPECT_TRUE(SiVede("cmdVaiAlFile"));
  ScegliFile(" ");
  Conferma();
  EXPECT_EQ(Riga(1), "");
}

TEST_F(OtherProgram, APressThatBeganTooSoonDoesNothingHoweverLateItEnds) {
  PickRemoval();
  Sql("UPDATE List SET FileName='b.mp3' WHERE Pos=1");
  Attiva();
  QWidget& ok = Trova<QWidget>("cmdOkFileMp3");
  QTest::mousePress(&ok, Qt::LeftButton);
  LookAtIt();
  QTest::mouseRelease(&ok, Qt::LeftButton);
  EXPECT_NE(Riga(1), "");
  QTest::mouseClick(&ok, Qt::LeftButton);
  EXPECT_EQ(Riga(1), "") << "the next one does";
}

TEST_F(OtherProgram, ATickOfTheUsersOwnLetsTheNextClickCountAtOnce) {
  Adds(2, "a.mp3");
  PickRemoval();
  Sql("UPDATE List SET FileName='b.mp3' WHERE Pos=1");
  Attiva();
  Conferma();
  ASSERT_NE(Riga(1), "") << "held up";
  Spunta(1);
  Spunta(2);
  ScegliFile(" ");
  Conferma();
  EXPECT_EQ(Riga(2), "");
}

TEST_F(OtherProgram, ThatPutsAFileIntoTheFolderDoesNotTakeTheButtonFromUnderTheClick) {
  Apri(0);
  Attiva();
  Spunta(1);
  ScegliFile("b.mp3");
  b.ScriviMp3("music/0.mp3");
  const Hides hides(Trova<QWidget>("cmdOkFileMp3"));
  Attiva();
  EXPECT_EQ(hides.Times, 0);
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), "b.mp3");
  EXPECT_NE(Trova<QComboBox>("cmbFileMp3").findText("0.mp3"), -1);
  Conferma();
  EXPECT_EQ(Plays(), "Plays: b.mp3");
}

TEST_F(OtherProgram, ThatChangesAFileDuringARecordingIsSeenBeforeItIsTakenAway) {
  PickRemoval();
  servizi.SuRegistra = [this] { Sql("UPDATE List SET FileName='b.mp3' WHERE Pos=1"); };
  Clic("picRecordFlash");
  Conferma();
  EXPECT_NE(Riga(1), "");
  LookAtIt();
  EXPECT_EQ(Plays(), "Plays: b.mp3");
  Conferma();
  EXPECT_EQ(Riga(1), "");
}

TEST_F(OtherProgram, ThatAssignsAgainWhatWasRemovedIsPicked) {
  Adds(1, "a.mp3");
  Apri(0);
  Spunta(1);
  ScegliFile(" ");
  Conferma();
  EXPECT_EQ(Riga(1), "");
  Adds(1, "b.mp3");
  Attiva();
  EXPECT_EQ(Plays(), "Plays: b.mp3");
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), "b.mp3");
}

TEST_F(OtherProgram, ThatLetsTheTableGoDropsNothingThatWasPickedMeanwhile) {
  Adds(1, "a.mp3");
  Apri(0);
  Lock();
  Spunta(1);
  ScegliFile("b.mp3");
  Unlock();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Plays() == "Plays: a.mp3"; }, 8000));
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), "b.mp3");
}

TEST_F(OtherProgram, ThatLetsTheTableGoHasTheAssignedFilePickedAndNoneThatNobodyPicked) {
  Adds(1, "b.mp3");
  Lock();
  Apri(0);
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), "a.mp3") << "the folder's first";
  Spunta(1);
  Unlock();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Plays() == "Plays: b.mp3"; }, 8000));
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), "b.mp3");
}

TEST_F(OtherProgram, ThatHeldTheTableForAMomentLeavesTheGaugeAsItWas) {
  Adds(1, "a.mp3");
  servizi.Scheda = Drive{};
  servizi.Scheda->Letter = 'E';
  servizi.Scheda->Size = 2000000000;
  b.C.Stato.PercorsoMemoryCard = "E:\\";
  Apri(1);
  ASSERT_TRUE(QTest::qWaitFor([this] { return SiVede("lblSpazio"); }));
  const std::string room = Testo("lblSpazio");
  b.ScriviMp3("music/b.mp3", 0, 400);
  Adds(2, "b.mp3");
  Lock();
  Attiva();
  QTest::qWait(1000);
  EXPECT_EQ(Testo("lblSpazio"), room);
  Unlock();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Testo("lblSpazio") != room; }, 8000))
      << "and then it is counted anew";
}

}  // namespace
}  // namespace kvr5
