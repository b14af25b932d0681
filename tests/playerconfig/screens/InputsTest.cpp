#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>

#include "platform/db/Connection.h"
#include "playerconfig/screens/BancoHub.h"

// Ticking inputs, and giving their combination a file.

namespace kvr5 {
namespace {

class Inputs : public test::Hub {
 protected:
  void SetUp() override {
    Progetto(4, 1);
    for (const char* name : {"a.mp3", "b.mp3", "L'été.mp3"}) {
      b.ScriviMp3(std::string("music/") + name, name[0]);
    }
    UltimaCartella("music");
  }
  void Conferma() { Clic("cmdOkFileMp3"); }
  QColor Lamp(int number) {
    QWidget& lamp = Trova<QWidget>("shaIn_" + std::to_string(number));
    return lamp.grab().toImage().pixelColor(5, 9);
  }
  std::string Music() const { return b.Percorso("music") + "\\"; }
};

TEST_F(Inputs, TheTickedOnesNameTheFileOnTheCard) {
  Apri(0);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - ");
  Spunta(1);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 1.mp3");
  Spunta(3);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 5.mp3");
  for (const int input : {2, 4, 5, 6, 7, 8}) Spunta(input);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 255.mp3");
  for (int input = 1; input <= 8; ++input) Spunta(input);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - ");
}

TEST_F(Inputs, ATickLightsItsLamp) {
  Apri(0);
  EXPECT_EQ(Lamp(8), QColor(Qt::white));
  Spunta(8);
  EXPECT_EQ(Lamp(8), QColor(Qt::red));
  EXPECT_EQ(Lamp(7), QColor(Qt::white));
  Spunta(8);
  EXPECT_EQ(Lamp(8), QColor(Qt::white));
}

TEST_F(Inputs, AreTickedByTheKeyboardToo) {
  Apri(0);
  QTest::keyClick(&Trova<QCheckBox>("chkIn_2"), Qt::Key_Space);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 2.mp3");
}

TEST_F(Inputs, AConfirmedFileIsRememberedWhereItIs) {
  Apri(0);
  Spunta(1);
  Spunta(3);
  EXPECT_EQ(Testo("lblFileAssociato"), "Plays: ") << "no file yet";
  EXPECT_FALSE(SiVede("fraFileAssociato"));
  ScegliFile("L'été.mp3");
  Conferma();
  EXPECT_EQ(Riga(5), "L'été.mp3|" + Music() + "|5.mp3|1");
  EXPECT_EQ(Testo("lblFileAssociato"), "Plays: L'été.mp3");
  EXPECT_TRUE(SiVede("fraFileAssociato"));
  EXPECT_FALSE(b.Cartella.Exists("program/Projects/Hall/5.mp3")) << "nothing is copied yet";
  auto& list = Trova<QListWidget>("lstAssegnati");
  ASSERT_EQ(list.count(), 1);
  EXPECT_EQ(list.item(0)->text().toStdString(), "5   IN1+IN3   L'été.mp3");
}

TEST_F(Inputs, ASecondFileTakesThePlaceOfTheFirst) {
  Apri(0);
  Spunta(2);
  ScegliFile("a.mp3");
  Conferma();
  ScegliFile("b.mp3");
  Conferma();
  EXPECT_EQ(Riga(2), "b.mp3|" + Music() + "|2.mp3|1");
  EXPECT_EQ(Righe(), 1);
  EXPECT_EQ(Trova<QListWidget>("lstAssegnati").count(), 1);
}

TEST_F(Inputs, TheBlankLineTakesTheAssignmentAway) {
  b.AggiungiRiga("inputcfg.mdb", 1, 2, "a.mp3", Music(), "2.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 3, "b.mp3", Music(), "3.mp3");
  Apri(0);
  Spunta(2);
  EXPECT_TRUE(SiVede("fraFileAssociato"));
  ScegliFile(" ");
  EXPECT_TRUE(SiVede("cmdOkFileMp3"));
  Conferma();
  EXPECT_EQ(Riga(2), "");
  EXPECT_EQ(Righe(), 1) << "the others stay";
  EXPECT_FALSE(SiVede("fraFileAssociato"));
  EXPECT_EQ(Trova<QListWidget>("lstAssegnati").count(), 1);
}

TEST_F(Inputs, WhereTheButtonWouldTakeAnAssignmentAwayItSaysSo) {
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "elsewhere.mp3", "C:\\far\\away\\", "1.mp3");
  Apri(0);
  Spunta(1);
  EXPECT_EQ(Testo("lblOkFileMp3"), "Remove file") << "the folder shown lacks its file";
  ScegliFile("a.mp3");
  EXPECT_EQ(Testo("lblOkFileMp3"), "Confirm");
  ScegliFile(" ");
  EXPECT_EQ(Testo("lblOkFileMp3"), "Remove file");
  Spunta(2);
  EXPECT_EQ(Testo("lblOkFileMp3"), "Confirm") << "a free combination";
}

TEST_F(Inputs, TheBlankLineOfAFreeCombinationChangesNothing) {
  b.AggiungiRiga("inputcfg.mdb", 1, 3, "b.mp3", Music(), "3.mp3");
  Apri(0);
  Spunta(1);
  ScegliFile(" ");
  Conferma();
  EXPECT_EQ(Righe(), 1);
  EXPECT_EQ(Riga(3), "b.mp3|" + Music() + "|3.mp3|1");
}

TEST_F(Inputs, WithoutATickNothingCanBeConfirmed) {
  Apri(0);
  ScegliFile("a.mp3");
  EXPECT_FALSE(SiVede("cmdOkFileMp3"));
  ScegliFile(" ");
  EXPECT_FALSE(SiVede("cmdOkFileMp3"));
}

TEST_F(Inputs, AnAssignedCombinationBringsItsFileIntoTheList) {
  b.AggiungiRiga("inputcfg.mdb", 1, 3, "b.mp3", Music(), "3.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 4, "elsewhere.mp3", "C:\\Other\\", "4.mp3");
  Apri(0);
  Spunta(1);
  Spunta(2);
  auto& files = Trova<QComboBox>("cmbFileMp3");
  EXPECT_EQ(files.currentText(), QStringLiteral("b.mp3"));
  EXPECT_EQ(Testo("lblVersioneMpeg"), "MPEG 1 Layer 3") << "and its figures";
  Spunta(1);
  Spunta(2);
  Spunta(3);
  EXPECT_EQ(files.currentText(), QStringLiteral(" ")) << "this folder lacks the file";
  EXPECT_EQ(Testo("lblFileAssociato"), "Plays: elsewhere.mp3");
}

TEST_F(Inputs, ALongNameIsCutAndTheWholeOfItIsTheToolTip) {
  const std::string shorter(32 - 4, 'n');  // 38 characters with what stands in front
  b.AggiungiRiga("inputcfg.mdb", 1, 1, shorter + ".mp3", Music(), "1.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 2, shorter + "n.mp3", Music(), "2.mp3");
  Apri(0);
  Spunta(1);
  ASSERT_EQ(Testo("lblFileAssociato").size(), 7U + 32U);
  Spunta(1);
  Spunta(2);
  EXPECT_TRUE(SiVede("lblEtichettaTroppoLunga"));
  EXPECT_EQ(Trova<QWidget>("lblFileAssociato").toolTip().toStdString(),
            "Plays: " + shorter + "n.mp3");
}

TEST_F(Inputs, AClickOnAnAssignmentTicksItsInputs) {
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", Music(), "5.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 192, "b.mp3", Music(), "192.mp3");
  Apri(0);
  Spunta(2);
  ClicRiga(Trova<QListWidget>("lstAssegnati"), 1);
  for (int input = 1; input <= 8; ++input) {
    EXPECT_EQ(Trova<QCheckBox>("chkIn_" + std::to_string(input)).isChecked(), input > 6);
  }
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 192.mp3");
  EXPECT_EQ(Testo("lblFileAssociato"), "Plays: b.mp3");
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), QStringLiteral("b.mp3"));
  EXPECT_EQ(Lamp(8), QColor(Qt::red));
  EXPECT_EQ(Lamp(2), QColor(Qt::white));
}

TEST_F(Inputs, TheListFollowsTheTicks) {
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", Music(), "5.mp3");
  Apri(1);
  auto& list = Trova<QListWidget>("lstAssegnati");
  EXPECT_EQ(list.currentRow(), -1);
  Spunta(1);
  EXPECT_EQ(list.currentRow(), -1);
  Spunta(3);
  EXPECT_EQ(list.currentRow(), 0);
  Spunta(3);
  EXPECT_EQ(list.currentRow(), -1);
}

TEST_F(Inputs, AnAssignmentOfTheLinksInputsIsMarkedAndTicksNothing) {
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "a.mp3", Music(), "1.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 17, "b.mp3", Music(), "17.mp3");
  b.Cartella.Write("program/Projects/Hall/Config.cfg", "[Config]\r\nUse485=1\r\n");
  Apri(1);
  auto& list = Trova<QListWidget>("lstAssegnati");
  ASSERT_EQ(list.count(), 2);
  EXPECT_TRUE(list.item(1)->text().endsWith(QLatin1String("in use by the RS-485 link")))
      << list.item(1)->text().toStdString();
  ClicRiga(list, 1);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - ") << "not that of input 1";
  EXPECT_EQ(list.currentRow(), -1);
  ClicRiga(list, 0);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 1.mp3");
}

TEST_F(Inputs, TheListSeesWhatBecameOfItsFilesWhileAnotherWindowWasInFront) {
  b.ScriviMp3("music/a.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", Music(), "5.mp3");
  Apri(1);
  EXPECT_EQ(Testo("lblCifre"), "1 file");
  std::filesystem::remove(b.Cartella.Host() / "music/a.mp3");
  QEvent activation(QEvent::WindowActivate);
  QCoreApplication::sendEvent(hub, &activation);
  EXPECT_EQ(Testo("lblCifre"), "1 file, 1 missing");
}

TEST_F(Inputs, ATableThatIsLockedIsNoEmptyOneAndComesBack) {
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

TEST_F(Inputs, NothingIsTakenAwayThatCouldNotBeSeen) {
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
  EXPECT_EQ(Riga(1), "");
  EXPECT_EQ(Testo("lblOkFileMp3"), "Confirm") << "nothing is left to remove";
}

TEST_F(Inputs, TheArrowKeysBringTheirRowIntoViewAndAConfirmedOneIsSeen) {
  for (int code = 1; code <= 200; ++code) {
    b.AggiungiRiga("inputcfg.mdb", 1, code, "a.mp3", Music(), std::to_string(code) + ".mp3");
  }
  Apri(0);
  auto& list = Trova<QListWidget>("lstAssegnati");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_End);
  EXPECT_TRUE(list.viewport()->rect().intersects(list.visualItemRect(list.item(199))));
  for (const int input : {1, 2, 3, 4, 5, 6, 7, 8}) Spunta(input);
  list.verticalScrollBar()->setValue(0);
  ScegliFile("b.mp3");
  Conferma();
  ASSERT_EQ(list.count(), 201);
  EXPECT_TRUE(list.viewport()->rect().intersects(list.visualItemRect(list.item(200))));
}

TEST_F(Inputs, TheLinksMarksComeAndGoWithAnActivation) {
  b.AggiungiRiga("inputcfg.mdb", 1, 17, "a.mp3", Music(), "17.mp3");
  Apri(1);
  const auto row = [this] { return Trova<QListWidget>("lstAssegnati").item(0)->text(); };
  EXPECT_EQ(row(), "17   IN1+IN5   a.mp3");
  for (const bool link : {true, false}) {
    b.C.Stato.Usa485 = link;
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(hub, &activation);
    EXPECT_EQ(row().endsWith(QLatin1String("in use by the RS-485 link")), link);
  }
}

TEST_F(Inputs, ALongListStaysWhereItWasScrolledTo) {
  for (int code = 1; code <= 255; ++code) {
    b.AggiungiRiga("inputcfg.mdb", 1, code, "a.mp3", Music(), std::to_string(code) + ".mp3");
  }
  Apri(1);
  auto& list = Trova<QListWidget>("lstAssegnati");
  for (const bool ticked : {false, true}) {
    if (ticked) Spunta(1);
    list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum() / 2);
    const int before = list.verticalScrollBar()->value();
    ASSERT_GT(before, 0);
    const QString row = list.item(150)->text();
    if (ticked) {
      b.ScriviMp3("music/a.mp3");
    } else {
      std::filesystem::remove(b.Cartella.Host() / "music/a.mp3");
    }
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(hub, &activation);
    EXPECT_NE(list.item(150)->text(), row) << "it was filled anew";
    EXPECT_EQ(list.verticalScrollBar()->value(), before) << ticked;
  }
}

TEST_F(Inputs, AnAssignmentWhoseFileIsGoneIsMarked) {
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "gone.mp3", Music(), "5.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 6, "a.mp3", Music(), "6.mp3");
  Apri(0);
  auto& list = Trova<QListWidget>("lstAssegnati");
  EXPECT_EQ(list.item(0)->text().toStdString(), "5   IN1+IN3   gone.mp3\nmissing");
  EXPECT_FALSE(list.item(0)->icon().isNull());
  EXPECT_EQ(list.item(1)->text().toStdString(), "6   IN2+IN3   a.mp3");
  EXPECT_EQ(Testo("lblCifre"), "2 files, 1 missing");
}

TEST_F(Inputs, AllCombinationsHaveAFileEach) {
  for (int code = 255; code >= 1; --code) {
    b.AggiungiRiga("inputcfg.mdb", 1, code, "a.mp3", Music(), std::to_string(code) + ".mp3");
  }
  Apri(0);
  auto& list = Trova<QListWidget>("lstAssegnati");
  ASSERT_EQ(list.count(), 255);
  EXPECT_EQ(list.item(0)->text().left(10).toStdString(), "1   IN1   ");
  ClicRiga(list, 254);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 255.mp3");
  ScegliFile("b.mp3");
  Conferma();
  EXPECT_EQ(Riga(255), "b.mp3|" + Music() + "|255.mp3|1");
  EXPECT_EQ(Righe(), 255);
}

TEST_F(Inputs, AFolderThatVanishesBetweenTwoClicksLeavesNothingToConfirm) {
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  EXPECT_TRUE(SiVede("cmdOkFileMp3"));
  std::filesystem::remove_all(b.Cartella.Host() / "music");
  ScegliFile("b.mp3");
  EXPECT_FALSE(SiVede("cmdOkFileMp3"));
  EXPECT_EQ(Righe(), 0);
}

TEST_F(Inputs, AFileThatNoPathCanHoldIsShownButCannotBePicked) {
  b.ScriviMp3("music/a|1.mp3");
  Apri(0);
  auto& files = Trova<QComboBox>("cmbFileMp3");
  const int at = files.findText(QStringLiteral("a|1.mp3"));
  ASSERT_GE(at, 0);
  EXPECT_FALSE(files.model()->flags(files.model()->index(at, 0)) & Qt::ItemIsEnabled);
  EXPECT_NE(files.itemData(at, Qt::ToolTipRole).toString(), QString());
}

TEST_F(Inputs, AnotherFolderBringsItsFiles) {
  b.ScriviMp3("music/more/c.mp3");
  b.Cartella.Write("music/more/notes.txt", "x");
  Apri(0);
  auto& folders = Trova<QListWidget>("DirDirectoryMp3");
  ASSERT_EQ(folders.item(1)->text(), QStringLiteral("more"));
  folders.setCurrentRow(1);
  QTest::keyClick(&folders, Qt::Key_Return);
  auto& files = Trova<QComboBox>("cmbFileMp3");
  ASSERT_EQ(files.count(), 2);
  EXPECT_EQ(files.itemText(0), QStringLiteral(" "));
  EXPECT_EQ(files.currentText(), QStringLiteral("c.mp3")) << "the first file is picked";
  QTest::keyClick(&folders, Qt::Key_Backspace);
  EXPECT_EQ(files.count(), 4);
}

TEST_F(Inputs, AFolderThatIsGoneIsNotEntered) {
  std::filesystem::create_directories(b.Cartella.Host() / "music" / "more");
  Apri(0);
  std::filesystem::remove(b.Cartella.Host() / "music" / "more");
  auto& folders = Trova<QListWidget>("DirDirectoryMp3");
  folders.setCurrentRow(1);
  QTest::keyClick(&folders, Qt::Key_Return);
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").count(), 4);
}

TEST_F(Inputs, WithoutADatabaseNothingIsKeptAndTheLogSaysWhy) {
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall/inputcfg.mdb");
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  Conferma();
  ScegliFile(" ");
  Conferma();
  EXPECT_EQ(Trova<QListWidget>("lstAssegnati").count(), 0);
  EXPECT_FALSE(b.Cartella.Exists("program/Projects/Hall/inputcfg.mdb"));
  EXPECT_NE(b.Cartella.Read("program/Logs/20061020.log").find("File: a.mp3"), std::string::npos);
}

TEST_F(Inputs, ADamagedDatabaseIsNoMoreThanAnEmptyOne) {
  b.Cartella.Write("program/Projects/Hall/inputcfg.mdb", std::string(9000, '\x5A'));
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  Conferma();
  EXPECT_EQ(Trova<QListWidget>("lstAssegnati").count(), 0);
  EXPECT_TRUE(hub->isVisible());
  EXPECT_EQ(b.Cartella.Read("program/Projects/Hall/inputcfg.mdb"), std::string(9000, '\x5A'));
}

struct Model {
  std::int16_t Type;
  std::int16_t Mode;
  std::int16_t Config;
};

class OfEveryModel : public test::Hub, public testing::WithParamInterface<Model> {};

TEST_P(OfEveryModel, InputsAreTickedConfirmedListedAndFreed) {
  Progetto(GetParam().Type, GetParam().Mode, GetParam().Config);
  b.ScriviMp3("music/a.mp3");
  UltimaCartella("music");
  Apri(0);
  Spunta(1);
  Spunta(3);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 5.mp3");
  ScegliFile("a.mp3");
  Clic("cmdOkFileMp3");
  EXPECT_EQ(Riga(5), "a.mp3|" + b.Percorso("music") + "\\|5.mp3|1");
  EXPECT_EQ(Trova<QListWidget>("lstAssegnati").count(), 1);
  ScegliFile(" ");
  Clic("cmdOkFileMp3");
  EXPECT_EQ(Riga(5), "");
  EXPECT_EQ(Righe(), 0);
  EXPECT_EQ(Testo("lblCifre"), "No file yet. Tick inputs, pick a file, confirm.");
}

INSTANTIATE_TEST_SUITE_P(Models, OfEveryModel,
                         testing::Values(Model{1, 0, 0}, Model{2, 0, 0}, Model{2, 0, 1},
                                         Model{3, 1, 0}, Model{4, 1, 0}),
                         [](const auto& each) {
                           return "Type" + std::to_string(each.param.Type) + "Mode" +
                                  std::to_string(each.param.Mode) + "Config" +
                                  std::to_string(each.param.Config);
                         });

}  // namespace
}  // namespace kvr5
