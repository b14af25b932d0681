#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>

#include "platform/db/Connection.h"
#include "playerconfig/screens/BancoHub.h"

// The list of all assigned combinations.

namespace kvr5 {
namespace {

class Assignments : public test::HubConMusica {};

TEST_F(Assignments, TheAssignmentsStandInColumns) {
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "a.mp3", Music(), "1.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 255, "a.mp3", "C:\\gone\\", "255.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 64, "a.mp3", Music() + "sub\\", "64.mp3");
  Apri(0);
  auto& list = Trova<QListWidget>("lstAssegnati");
  ASSERT_EQ(list.count(), 3);
  const QImage whole = list.viewport()->grab().toImage();
  // Where the last ink of a row's first line lies: behind the name, which is the same in all.
  const auto end = [&](int row) {
    const QRect line = list.visualItemRect(list.item(row));
    const QRgb paper = whole.pixel(line.right() - 3, line.top() + 14);
    for (int x = line.right() - 4; x > line.left(); --x) {
      for (int y = line.top() + 4; y < line.top() + 24; ++y) {
        if (whole.pixel(x, y) != paper) return x;
      }
    }
    return 0;
  };
  EXPECT_GT(end(0), 100);
  EXPECT_EQ(end(1), end(0)) << "beside a short code and a short row of inputs";
  EXPECT_EQ(end(2), end(0)) << "beside the longest";
}

TEST_F(Assignments, AClickOnAnAssignmentTicksItsInputs) {
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
}

TEST_F(Assignments, TheListFollowsTheTicks) {
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

TEST_F(Assignments, AnAssignmentOfTheLinksInputsIsMarkedAndTicksNothing) {
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

TEST_F(Assignments, TheListSeesWhatBecameOfItsFilesWhileAnotherWindowWasInFront) {
  b.ScriviMp3("music/a.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", Music(), "5.mp3");
  Apri(1);
  EXPECT_EQ(Testo("lblCifre"), "1 file");
  std::filesystem::remove(b.Cartella.Host() / "music/a.mp3");
  QEvent activation(QEvent::WindowActivate);
  QCoreApplication::sendEvent(hub, &activation);
  EXPECT_EQ(Testo("lblCifre"), "1 file, 1 missing");
}

TEST_F(Assignments, TheArrowKeysBringTheirRowIntoViewAndAConfirmedOneIsSeen) {
  for (int code = 1; code <= 200; ++code) {
    b.AggiungiRiga("inputcfg.mdb", 1, code, "a.mp3", Music(), std::to_string(code) + ".mp3");
  }
  Apri(0);
  auto& list = Trova<QListWidget>("lstAssegnati");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_End);
  EXPECT_TRUE(list.viewport()->rect().intersects(list.visualItemRect(list.item(199))));
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 200.mp3");
  for (const int input : {1, 2, 3, 5, 6}) Spunta(input);
  list.verticalScrollBar()->setValue(0);
  ScegliFile("b.mp3");
  Conferma();
  ASSERT_EQ(list.count(), 201);
  EXPECT_TRUE(list.viewport()->rect().intersects(list.visualItemRect(list.item(200))));
}

TEST_F(Assignments, TheLinksMarksComeAndGoWithAnActivation) {
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

TEST_F(Assignments, ALongListStaysWhereItWasScrolledTo) {
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

TEST_F(Assignments, WhatIsHighlightedIsWhatIsTickedHoweverTheUserCameThere) {
  for (const int code : {1, 5, 12}) {
    b.AggiungiRiga("inputcfg.mdb", 1, code, "a.mp3", Music(), std::to_string(code) + ".mp3");
  }
  Apri(1);
  auto& list = Trova<QListWidget>("lstAssegnati");
  const auto title = [this] { return Testo("lblfraFileName"); };
  ClicRiga(list, 0);
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(title(), "File on the card - 5.mp3");
  QTest::keyClick(&list, Qt::Key_End);
  EXPECT_EQ(title(), "File on the card - 12.mp3");
  // Pressed on one row, let go on another.
  QTest::mousePress(list.viewport(), Qt::LeftButton, {},
                    list.visualItemRect(list.item(0)).center());
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(2)).center());
  EXPECT_EQ(title(), "File on the card - " + std::to_string(1) + ".mp3");
  EXPECT_TRUE(list.item(0)->isSelected());
  // The toolkit takes the highlight from a row that is clicked with this key.
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier,
                    list.visualItemRect(list.item(0)).center());
  EXPECT_TRUE(list.item(0)->isSelected());
  EXPECT_EQ(title(), "File on the card - 1.mp3");
}

TEST_F(Assignments, ComingToTheListByTabTicksNothing) {
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", Music(), "5.mp3");
  Apri(0);
  ASSERT_TRUE(test::Pronta(*hub));
  Spunta(2);
  auto& list = Trova<QListWidget>("lstAssegnati");
  Trova<QWidget>("chkIn_8").setFocus();
  for (int i = 0; i < 4 && !list.hasFocus(); ++i) QTest::keyClick(hub->focusWidget(), Qt::Key_Tab);
  ASSERT_TRUE(list.hasFocus());
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 2.mp3");
  EXPECT_TRUE(list.selectedItems().isEmpty());
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 5.mp3");
}

TEST_F(Assignments, ARowThatNoTicksMakeCannotBeChosen) {
  b.AggiungiRiga("inputcfg.mdb", 1, 0, "a.mp3", Music(), "0.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 4, "b.mp3", Music(), "4.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 256, "a.mp3", Music(), "256.mp3");
  Apri(1);
  auto& list = Trova<QListWidget>("lstAssegnati");
  ASSERT_EQ(list.count(), 3);
  ClicRiga(list, 1);
  list.setFocus();
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Home, Qt::Key_Down, Qt::Key_End}) {
    QTest::keyClick(&list, key);
    EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 4.mp3");
  }
  ClicRiga(list, 0);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 4.mp3");
  EXPECT_EQ(list.currentRow(), 1);
}

TEST_F(Assignments, ANameWithALineBreakStaysInItsLine) {
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "a\nmissing.mp3", Music(), "5.mp3");
  Apri(1);
  const QString row = Trova<QListWidget>("lstAssegnati").item(0)->text();
  EXPECT_EQ(row.count('\n'), 1) << "before its mark: " << row.toStdString();
}

TEST_F(Assignments, AFileThatLiesElsewhereIsOneClickAway) {
  b.ScriviMp3("other/far.mp3");
  b.ScriviMp3("other/a.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "far.mp3", b.Percorso("other") + "\\", "1.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 2, "a.mp3", Music(), "2.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 3, "gone.mp3", b.Percorso("other") + "\\", "3.mp3");
  Apri(0);
  auto& list = Trova<QListWidget>("lstAssegnati");
  ClicRiga(list, 1);
  EXPECT_FALSE(SiVede("cmdVaiAlFile")) << "it is in the folder that is shown";
  ClicRiga(list, 2);
  EXPECT_FALSE(SiVede("cmdVaiAlFile")) << "there is no way to a missing one";
  ClicRiga(list, 0);
  EXPECT_EQ(Testo("lblOkFileMp3"), "Remove file");
  ASSERT_TRUE(SiVede("cmdVaiAlFile"));
  EXPECT_EQ(Trova<QWidget>("cmdVaiAlFile").toolTip().toStdString(),
            "Show its folder: " + (b.Cartella.Host() / "other").string());
  Trova<QWidget>("cmdVaiAlFile").setFocus();
  QTest::keyClick(&Trova<QWidget>("cmdVaiAlFile"), Qt::Key_Space);
  EXPECT_EQ(hub->fraFileName->DirDirectoryMp3->Percorso(), b.Percorso("other"));
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), QStringLiteral("far.mp3"));
  EXPECT_EQ(Testo("lblOkFileMp3"), "Confirm");
  EXPECT_FALSE(SiVede("cmdVaiAlFile"));
  EXPECT_EQ(hub->focusWidget(), &Trova<QWidget>("cmbFileMp3"));
  EXPECT_EQ(Riga(1), "far.mp3|" + b.Percorso("other") + "\\|1.mp3|1") << "nothing has changed";
  ClicRiga(list, 1);
  EXPECT_TRUE(SiVede("cmdVaiAlFile")) << "the folder before is another one by now";
  Clic("cmdOkFileMp3");
  EXPECT_FALSE(SiVede("cmdVaiAlFile")) << "of what was taken away";
}

TEST_F(Assignments, TheWayToAFileIsOfferedAsLongAsItLeadsThere) {
  b.ScriviMp3("other/far.mp3");
  b.ScriviMp3("third/far.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "far.mp3", b.Percorso("other") + "\\", "1.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 2, "", b.Percorso("other") + "\\", "2.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 3, "*.mp3", b.Percorso("other") + "\\", "3.mp3");
  Apri(0);
  Attiva();
  auto& list = Trova<QListWidget>("lstAssegnati");
  for (const int nameless : {1, 2}) {
    ClicRiga(list, nameless);
    EXPECT_FALSE(SiVede("cmdVaiAlFile")) << nameless;
  }
  ClicRiga(list, 0);
  ASSERT_TRUE(SiVede("cmdVaiAlFile"));
  ScegliFile("b.mp3");
  std::filesystem::remove(b.Cartella.Host() / "other/far.mp3");
  Clic("cmdVaiAlFile");
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), "b.mp3") << "nothing to go to";
  EXPECT_EQ(Testo("lblOkFileMp3"), "Confirm");
  EXPECT_FALSE(SiVede("cmdVaiAlFile"));
  b.ScriviMp3("other/far.mp3");
  Attiva();
  EXPECT_TRUE(SiVede("cmdVaiAlFile")) << "it is back";
  {
    Connection other(b.Disco);
    ASSERT_FALSE(other.Open(b.Percorso("program/Projects/Hall/inputcfg.mdb")));
    ASSERT_FALSE(other.Execute("UPDATE [List] SET [FilePath]='" + b.Percorso("third") +
                               "\\' WHERE [Pos]=1"));
  }
  Attiva();
  Clic("cmdVaiAlFile");
  EXPECT_EQ(hub->fraFileName->DirDirectoryMp3->Percorso(), b.Percorso("third"));
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), "far.mp3");
}

}  // namespace
}  // namespace kvr5
