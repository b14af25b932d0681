#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>

#include "playerconfig/screens/BancoHub.h"

// Ticking inputs, and giving their combination a file.

namespace kvr5 {
namespace {

class Inputs : public test::HubConMusica {
 protected:
  QColor Lamp(int number) {
    QWidget& lamp = Trova<QWidget>("shaIn_" + std::to_string(number));
    return lamp.grab().toImage().pixelColor(5, 9);
  }
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

TEST_F(Inputs, AFolderThatNoPathCanHoldSaysSoAndCannotBeEntered) {
  b.Cartella.Write("music/AC|DC/c.mp3", "");
  Apri(0);
  auto& folders = *hub->fraFileName->DirDirectoryMp3;
  const auto found = folders.findItems("AC|DC", Qt::MatchExactly);
  ASSERT_EQ(found.size(), 1);
  EXPECT_FALSE(found.front()->flags().testFlag(Qt::ItemIsEnabled));
  EXPECT_TRUE(found.front()->toolTip().endsWith("Rename this folder to use it."));
}

TEST_F(Inputs, FilesThatCameMeanwhileAreListedAndWhatWasPickedStaysPicked) {
  Apri(0);
  auto& files = Trova<QComboBox>("cmbFileMp3");
  ScegliFile("b.mp3");
  Attiva();
  b.ScriviMp3("music/aa.mp3");
  std::filesystem::create_directory(b.Cartella.Host() / "music/New");
  Attiva();
  EXPECT_NE(files.findText("aa.mp3"), -1);
  EXPECT_EQ(files.currentText(), "b.mp3");
  EXPECT_FALSE(hub->fraFileName->DirDirectoryMp3->findItems("New", Qt::MatchExactly).isEmpty());
  std::filesystem::remove(b.Cartella.Host() / "music/b.mp3");
  Attiva();
  EXPECT_EQ(files.currentText(), " ");
}

TEST_F(Inputs, TheFileOfTheTickedInputsIsPickedAsSoonAsItIsThere) {
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "late.mp3", Music(), "1.mp3");
  Apri(0);
  Spunta(1);
  Attiva();
  EXPECT_EQ(Testo("lblOkFileMp3"), "Remove file");
  b.ScriviMp3("music/late.mp3");
  Attiva();
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), "late.mp3");
  EXPECT_EQ(Testo("lblOkFileMp3"), "Confirm");
}

TEST_F(Inputs, AConfirmByTheKeyboardKeepsItThere) {
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  auto& ok = Trova<QWidget>("cmdOkFileMp3");
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
    ok.setFocus();
    QTest::keyClick(&ok, key);
    EXPECT_EQ(hub->focusWidget(), &ok);
  }
  EXPECT_NE(Riga(1), "");
  Spunta(1);
  EXPECT_FALSE(ok.isVisible());
  EXPECT_NE(hub->focusWidget(), &Trova<QWidget>("picEsci")) << "a stray Enter would leave";
}

TEST_F(Inputs, AFileThatIsRefusedLaterTakesTheKeyboardNoFurtherThanTheList) {
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  Trova<QWidget>("cmdOkFileMp3").setFocus();
  b.Cartella.Write("music/a.mp3", "no music");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !SiVede("cmdOkFileMp3"); }));
  EXPECT_EQ(hub->focusWidget(), &Trova<QWidget>("cmbFileMp3"));
}

TEST_F(Inputs, TheBlankLineStaysPickedWhateverComesIntoTheFolder) {
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "a.mp3", Music(), "1.mp3");
  Apri(0);
  Attiva();
  Spunta(1);
  ScegliFile(" ");
  b.ScriviMp3("music/z.mp3");
  Attiva();
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), " ");
}

TEST_F(Inputs, AConfirmOfAFileThatIsGoneNeverBecomesARemovalUnderTheKeyboard) {
  Apri(0);
  Attiva();
  Spunta(1);
  ScegliFile("b.mp3");
  Conferma();
  Trova<QWidget>("cmdOkFileMp3").setFocus();
  std::filesystem::remove(b.Cartella.Host() / "music/b.mp3");
  Attiva();
  EXPECT_EQ(Testo("lblOkFileMp3"), "Remove file");
  EXPECT_EQ(hub->focusWidget(), &Trova<QWidget>("cmbFileMp3"));
}

TEST_F(Inputs, AClickOnALampOrANameTicksItsBox) {
  Apri(0);
  Clic("shaIn_1");
  Clic("lblIn_3");
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 5.mp3");
  Clic("lblIn_1");
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 4.mp3");
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

struct ModelWithInputs {
  std::int16_t Type;
  std::int16_t Mode;
  std::int16_t Config;
};

class OfEveryModel : public test::Hub, public testing::WithParamInterface<ModelWithInputs> {};

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
                         testing::Values(ModelWithInputs{1, 0, 0}, ModelWithInputs{2, 0, 0},
                                         ModelWithInputs{2, 0, 1}, ModelWithInputs{3, 1, 0},
                                         ModelWithInputs{4, 1, 0}),
                         [](const auto& each) {
                           return "Type" + std::to_string(each.param.Type) + "Mode" +
                                  std::to_string(each.param.Mode) + "Config" +
                                  std::to_string(each.param.Config);
                         });

}  // namespace
}  // namespace kvr5
