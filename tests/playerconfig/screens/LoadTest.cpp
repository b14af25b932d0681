#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "playerconfig/screens/BancoHub.h"
#include "support/screens/Scelte.h"

// The load of the hub: by which way a project came, and what is damaged or missing in it.

namespace kvr5 {
namespace {

using test::RispondiCartella;
using test::RispondiMessaggio;

class Loading : public test::Hub {
 protected:
  std::string Folder() { return hub->fraFileName->DirDirectoryMp3->Percorso(); }
  void Put(const std::string& name, const std::string& bytes = "x") {
    b.Cartella.Write("program/Projects/Hall/" + name, bytes);
  }
  bool There(const std::string& name) { return b.Cartella.Exists("program/Projects/Hall/" + name); }
};

TEST_F(Loading, TellsTheProjectInTitleAndHead) {
  Progetto(4, 1);
  Apri();
  EXPECT_EQ(hub->windowTitle().toStdString(), "KVR5 - Player configuration - Hall");
  EXPECT_EQ(Testo("lblProgetto"), "Hall");
  EXPECT_EQ(b.C.Stato.FileReport, b.Percorso("program/Projects/Hall/Hall.htm"));
  EXPECT_TRUE(b.C.Stato.SalvaMp3Ingressi);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "the plain pointer";
}

TEST_F(Loading, ANewProjectStartsInTheFolderThatWasUsedLast) {
  Progetto(4, 1);
  b.ScriviMp3("music/a.mp3");
  UltimaCartella("music");
  Apri(0);
  EXPECT_EQ(Folder(), b.Percorso("music"));
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").currentText(), QStringLiteral("a.mp3"));
}

TEST_F(Loading, ANewProjectWithoutALastFolderStartsAtTheRoot) {
  Progetto(4, 1);
  b.Cartella.Write("program/KVR5Software.ini", "[Path]\r\n");
  Apri(0);
  EXPECT_EQ(Folder(), "C:\\");
}

TEST_F(Loading, AProjectOfTheListStartsInItsOwnFolder) {
  Progetto(4, 1);
  UltimaCartella("music");
  b.ScriviMp3("music/a.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "own.mp3", "C:\\", "5.mp3");
  Put("5.mp3");
  Apri(1);
  EXPECT_EQ(Folder(), b.Percorso("program/Projects/Hall"));
  EXPECT_TRUE(There("5.mp3")) << "its files keep their names";
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").itemText(1), QStringLiteral("5.mp3"));
}

TEST_F(Loading, AProjectOfACardGetsItsNamesBackBeforeItsFilesAreListed) {
  Progetto(4, 1);
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "own.mp3", "C:\\", "5.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 6, "gone.mp3", "C:\\", "6.mp3");
  Put("5.mp3");
  Apri(2);
  EXPECT_TRUE(There("own.mp3"));
  EXPECT_FALSE(There("5.mp3"));
  auto& files = Trova<QComboBox>("cmbFileMp3");
  ASSERT_EQ(files.count(), 2);
  EXPECT_EQ(files.itemText(1), QStringLiteral("own.mp3"));
}

TEST_F(Loading, AScheduledProjectOfACardHasOnlyItsPlaylistLookedAt) {
  Progetto(4, 2);
  std::filesystem::copy(b.Cartella.Host() / "program/source.mdb",
                        b.Cartella.Host() / "program/Projects/Hall/playlist.mdb");
  std::filesystem::copy(b.Cartella.Host() / "program/source.mdb",
                        b.Cartella.Host() / "program/Projects/Hall/inputcfg.mdb");
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "own.mp3", "C:\\", "5.mp3");
  b.AggiungiRiga("playlist.mdb", 1, 7, "track.mp3", "C:\\", "P01-007.mp3");
  Put("5.mp3");
  Put("P01-0007.mp3");
  Apri(2);
  EXPECT_TRUE(There("5.mp3"));
  EXPECT_TRUE(There("track.mp3"));
}

TEST_F(Loading, TheLinkIsReadFromTheDescriptorOfAKvr5) {
  Progetto(4, 1);
  b.Cartella.Write("program/Projects/Hall/Config.cfg", "[Config]\r\nUse485=1\r\n");
  Apri();
  EXPECT_TRUE(b.C.Stato.Usa485);
}

TEST_F(Loading, WithoutItsDeviceFileAProjectWarnsOnceAndOpensAllTheSame) {
  Progetto(4, 1);
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall/Config.txt");
  const auto warning = RispondiMessaggio("cmdOk");
  Apri();
  EXPECT_EQ(Testo("lblVolume_DB"), "0 dB");
  EXPECT_EQ(Config(), "[Config]\r\n");
  EXPECT_TRUE(SiVede("lblNonSalvato")) << "what is shown is kept nowhere";
}

TEST_F(Loading, AChangeThatACrashLeftHalfDoneIsTakenBack) {
  Progetto(4, 1);
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "own.mp3", "C:\\", "5.mp3");
  b.InterrompiModifica("inputcfg.mdb");
  Apri();
  EXPECT_EQ(Trova<QListWidget>("lstAssegnati").count(), 1);
}

TEST_F(Loading, ANewFolderIsChosenWithTheBrowserAndKept) {
  Progetto(4, 1);
  b.ScriviMp3("music/a.mp3");
  UltimaCartella("program");
  Apri();
  const auto browser = RispondiCartella((b.Cartella.Host() / "music").string());
  Clic("picDisk");
  EXPECT_EQ(Folder(), b.Percorso("music"));
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").count(), 2);
  EXPECT_EQ(b.Cartella.Read("program/KVR5Software.ini"),
            "[Path]\r\nLastMp3Dir=" + b.Percorso("music") + "\r\n");
}

TEST_F(Loading, ADoubleClickOnTheFoldersNameBrowsesToo) {
  Progetto(4, 1);
  UltimaCartella("program");
  Apri();
  std::string title;
  const test::Pilota<QFileDialog> browser([&](QFileDialog& chooser) {
    title = chooser.windowTitle().toStdString();
    chooser.reject();
  });
  QTest::mouseDClick(&Trova<QWidget>("lblMp3_Dir"), Qt::LeftButton);
  EXPECT_EQ(title, "Choose the folder with the MP3 files");
}

TEST_F(Loading, ShowsTheBusyPointerUntilItIsDone) {
  Progetto(4, 1);
  b.Cartella.Write("program/Projects/Hall/Config.cfg", "");
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall/Config.txt");
  bool busy = false;
  const auto box = test::RispondiMessaggio("cmdOk", [&](const QString&, const QString&) {
    busy = QGuiApplication::overrideCursor() != nullptr;
  });
  Apri();
  EXPECT_TRUE(busy) << "in the middle of the load";
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Loading, TheSecondFramesOfTheLinksSayWhatTheFirstOnesSay) {
  Progetto(4, 1);
  Apri();
  for (const char* name : {"lblRS232", "lblConfig232", "lbl485", "lblConfigPorta485",
                           "lblConfigure232", "lblConfig485"}) {
    const std::string twin = std::string(name) + "bis";
    EXPECT_NE(Testo(name), "");
    EXPECT_EQ(Testo(twin.c_str()), Testo(name)) << name;
  }
  EXPECT_EQ(Trova<Riquadro>("fra232bis").Titolo(), Trova<Riquadro>("fra232").Titolo());
  EXPECT_EQ(Trova<Riquadro>("fra485bis").Titolo(), Trova<Riquadro>("fra485").Titolo());
}

TEST_F(Loading, F1ChangesNothingOfTheControlThatHasTheFocus) {
  Progetto(4, 1);
  Apri();
  auto& time = Trova<QLineEdit>("lstTPCM");
  time.setFocus();
  const QString text = time.text();
  QTest::keyClick(&time, Qt::Key_F1);
  EXPECT_EQ(time.text(), text);
  EXPECT_TRUE(time.hasFocus());
  EXPECT_EQ(b.Documenti.Aperti.size(), 1U);
}

TEST_F(Loading, F1OpensTheHelpWhereverTheFocusIs) {
  Progetto(4, 1);
  Apri();
  for (const char* name : {"lstTPCM", "chkIn_1", "cmbFileMp3", "sliBass", "picEsci"}) {
    b.Documenti.Aperti.clear();
    QWidget& control = Trova<QWidget>(name);
    control.setFocus();
    QTest::keyClick(&control, Qt::Key_F1);
    ASSERT_EQ(b.Documenti.Aperti.size(), 1U) << name;
    EXPECT_TRUE(b.Documenti.Aperti[0].starts_with(b.Percorso("program/Help") + "\\"));
  }
  Clic("picHelp");
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
}

}  // namespace
}  // namespace kvr5
