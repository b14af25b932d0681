#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QApplication>
#include <QListWidget>
#include <QTest>

#include "platform/db/Connection.h"
#include "road/screens/BancoGuasti.h"

// A second copy of the program at work on the project that stands open.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

class SecondProgram : public test::Guasti {
 protected:
  void SetUp() override {
    Guasti::SetUp();
    CreaHall();
    ScegliScheda();
    ASSERT_FALSE(other.Open(b.Percorso(DelProgetto("inputcfg.mdb"))));
  }
  void Sql(const char* statement) {
    ASSERT_EQ(sqlite3_exec(other.Handle(), statement, nullptr, nullptr, nullptr), SQLITE_OK)
        << statement;
  }
  std::string Shown() {
    QString all;
    const QListWidget& rows = *Hub().Assegnazioni->lstAssegnati;
    for (int row = 0; row < rows.count(); ++row) all += rows.item(row)->text() + QLatin1Char('|');
    return all.toStdString();
  }
  static constexpr const char* kBoth = "1   IN1   a.mp3|5   IN1+IN3   b.mp3|";

  Connection other{b.Disco};
};

TEST_F(SecondProgram, ThatWritesKeepsAnInputFromBeingConfirmedButNothingElse) {
  Sql("BEGIN IMMEDIATE");
  Assegna({2}, "c.mp3");
  EXPECT_EQ(Shown(), kBoth) << "what isn't kept isn't shown as kept";
  Assegna({1}, "c.mp3");
  EXPECT_EQ(Shown(), kBoth);
  EXPECT_EQ(test::Scritta(Hub(), "lblFileAssociato"), "Plays: a.mp3");
  Assegna({1, 3}, " ");
  EXPECT_EQ(Shown(), kBoth);
  Sql("COMMIT");
  Assegna({2}, "c.mp3");
  EXPECT_EQ(Riga(2), "c.mp3");
  LasciaHall();
}

TEST_F(SecondProgram, ThatWritesDoesNotKeepTheProjectFromTheCard) {
  Sql("BEGIN IMMEDIATE");
  EXPECT_EQ(Registra(), "");
  EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/b.mp3"));
  Sql("COMMIT");
  Assegna({2}, "c.mp3");
  EXPECT_EQ(Riga(2), "c.mp3");
  LasciaHall();
}

TEST_F(SecondProgram, ThatIsJustStoringLeavesTheHubToTheLaterTries) {
  const QPalette before = Hub().Assegnazioni->lblCifre->palette();
  Sql("BEGIN EXCLUSIVE");
  Assegna({2}, "c.mp3");
  Registra();
  EXPECT_EQ(Shown(), "") << "what can't be read can't be changed either";
  PremiTutto();
  Sql("COMMIT");
  EXPECT_EQ(Registra(), "");
  EXPECT_EQ(Shown(), kBoth);
  EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/b.mp3"));
  Assegna({2}, "c.mp3");
  EXPECT_EQ(Riga(2), "c.mp3");
  EXPECT_EQ(Hub().Assegnazioni->lblCifre->palette(), before) << "no longer a warning";
  LasciaHall();
}

TEST_F(SecondProgram, LetsTheHubBeLeftWhileItWrites) {
  Sql("BEGIN EXCLUSIVE");
  LasciaHall();
  Sql("COMMIT");
  ApriHall();
  EXPECT_EQ(Shown(), kBoth);
}

TEST_F(SecondProgram, ThatFreesAnInputLeavesItToBeAssignedAgain) {
  Sql("DELETE FROM [List] WHERE [Pos]=5");
  Assegna({1, 3}, "c.mp3");
  EXPECT_EQ(Riga(5), "c.mp3");
  EXPECT_EQ(Shown(), "1   IN1   a.mp3|5   IN1+IN3   c.mp3|");
}

TEST_F(SecondProgram, ThatAssignsAnInputIsOverwrittenByTheLastWord) {
  Sql("UPDATE [List] SET [FileName]='theirs.mp3' WHERE [Pos]=5");
  Assegna({1, 3}, "c.mp3");
  EXPECT_EQ(Riga(5), "c.mp3");
  Sql("INSERT INTO [List] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],[IDSched]) "
      "VALUES(2,'theirs.mp3','C:\\','2.mp3',1,0)");
  Assegna({2}, "a.mp3");
  EXPECT_EQ(Riga(2), "a.mp3") << "one row, not two";
}

TEST_F(SecondProgram, ThatAssignsAnInputIsSeenBeforeItIsFreed) {
  Sql("INSERT INTO [List] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],[IDSched]) "
      "VALUES(2,'theirs.mp3','C:\\','2.mp3',1,0)");
  Assegna({2}, " ");
  EXPECT_EQ(Riga(2), "theirs.mp3");
  EXPECT_NE(Shown(), kBoth);
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  test::Clicca(Hub(), "cmdOkFileMp3");
  EXPECT_EQ(Riga(2), "");
  EXPECT_EQ(Shown(), kBoth);
}

TEST_F(SecondProgram, ThatDropsTheTableLeavesAnEmptyListAndTheHubAtWork) {
  Sql("DROP TABLE [List]");
  Assegna({2}, "c.mp3");
  Registra();
  PremiTutto();
  LasciaHall();
}

TEST_F(SecondProgram, ThatChangesTheDeviceFileIsNotOverwrittenByTheRecording) {
  const std::string theirs = "[Config]\r\nLOUT=3\r\nIMOD=1\r\n";
  b.Cartella.Write(DelProgetto("Config.txt"), theirs);
  EXPECT_EQ(Registra(), "");
  EXPECT_EQ(b.Cartella.Read("card/Config.txt"), theirs);
  LasciaHall();
  EXPECT_EQ(b.Cartella.Read(DelProgetto("Config.txt")), theirs);
  ApriHall();
  EXPECT_EQ(Hub().fraOutputLevel->sliVolume->value(), 3);
}

TEST_F(SecondProgram, ThatDeletesTheDescriptorIsToldByTheRecordingAlone) {
  fs::remove(Host(DelProgetto("Config.cfg")));
  Assegna({2}, "c.mp3");
  EXPECT_EQ(Riga(2), "c.mp3");
  EXPECT_EQ(Registra(), "Copy stopped");
  EXPECT_TRUE(b.Cartella.Same("card/2.mp3", "music/c.mp3")) << "the rest comes to the card";
  EXPECT_FALSE(b.Cartella.Exists(DelProgetto("Config.cfg")));
  LasciaHall();
  Clic("frmMain", "picCaricaDaDisco");
  EXPECT_FALSE(test::Controllo(Schermo("frmCaricaProgetto"), "picOpen").isEnabled());
}

}  // namespace
}  // namespace kvr5
