#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QUrl>

#include "playlists/screens/BancoEditor.h"

// The pane of files: its folders, what is told of a picked file, and finding one.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoFigures = "||";
/// MPEG 1 Layer II; MPEG 1 Layer III of 48,000 Hz, 56 kbit/s, 320 kbit/s; MPEG 2 of 64 kbit/s.
constexpr const char* kLayer2 = "\xFF\xFD\x90\x64";
constexpr const char* k48000 = "\xFF\xFB\x94\x64";
constexpr const char* k56 = "\xFF\xFB\x40\x64";
constexpr const char* k320 = "\xFF\xFB\xE0\x64";
constexpr const char* kMpeg2 = "\xFF\xF3\x80\xC4";

class FilePane : public test::BancoEditor {
 protected:
  void SetUp() override { Progetto(4, 5); }
  bool Add() { return SiVede("cmdAggiungiFile"); }
  bool Refused() { return SiVede("lblBadFileType"); }
  ElencoCartelle& Folders() const { return *form->fraFile->DirDirectoryMp3; }
  /// The place of a folder in the list.
  QPoint PlaceOf(const char* folder) const {
    const auto found = Folders().findItems(QLatin1String(folder), Qt::MatchExactly);
    EXPECT_EQ(found.size(), 1) << folder;
    return Folders().visualItemRect(found.front()).center();
  }
  void WriteJazz() const {
    Musica({"a.mp3"});
    b.ScriviMp3("music/Jazz/j.mp3");
  }
  std::string Jazz() const { return b.Percorso("music\\Jazz"); }
};

TEST_F(FilePane, AGoodFileShowsItsFiguresAndCanBeAdded) {
  b.ScriviMp3("music/a.mp3", 0, 100);
  Apri();
  EXPECT_FALSE(Add());
  ClicFile("a.mp3");
  EXPECT_FALSE(Add()) << "not at once";
  EXPECT_EQ(Cifre(), kNoFigures);
  ASSERT_TRUE(Attesa());
  EXPECT_EQ(Cifre(), "MPEG 1 Layer 3|Bitrate: 128kbit (CBR)|44100 - 2 Ch (Joint Stereo)");
  EXPECT_THAT(Testo("lblDurata"), testing::EndsWith("  41 Kb"));
  EXPECT_FALSE(Refused());
  EXPECT_TRUE(Add());
  EXPECT_TRUE(Trova<QWidget>("cmdAggiungiFile").isEnabled());
}

TEST_F(FilePane, TakesMoreThanTheInputsDo) {
  Flusso("mpeg2.mp3", kMpeg2, 209);
  Flusso("320.mp3", k320, 1044);
  Apri();
  Analizza("mpeg2.mp3");
  EXPECT_TRUE(Add());
  EXPECT_EQ(Testo("lblVersioneMpeg"), "MPEG 2 Layer 3");
  Analizza("320.mp3");
  EXPECT_TRUE(Add());
}

TEST_F(FilePane, ARefusedFileShowsTheWarningAndNoFigures) {
  Flusso("layer2.mp3", kLayer2, 417);
  Flusso("48000.mp3", k48000, 384);
  Flusso("56.mp3", k56, 182);
  Apri();
  for (const char* file : {"layer2.mp3", "48000.mp3", "56.mp3"}) {
    SCOPED_TRACE(file);
    Analizza(file);
    EXPECT_TRUE(Refused());
    EXPECT_EQ(Cifre(), kNoFigures);
    EXPECT_FALSE(Add());
    EXPECT_FALSE(form->fraFileInfo->lblBadFileType->toolTip().isEmpty()) << "and why";
    EXPECT_TRUE(Trova<QWidget>("cmdAggiungiFile").isEnabled()) << "as the click left it";
  }
  EXPECT_THAT(Testo("lblBadFileType"), testing::StartsWith("The player can't play this file."));
}

TEST_F(FilePane, WhatIsNoMp3DisablesTheButtonUntilAGoodFileComes) {
  b.Cartella.Write("music/b.mp3", std::string(3000, 'x'));
  Musica({"a.mp3"});
  Apri();
  Analizza("a.mp3");
  Analizza("b.mp3");
  EXPECT_TRUE(Refused());
  EXPECT_FALSE(Add());
  EXPECT_FALSE(Trova<QWidget>("cmdAggiungiFile").isEnabled());
  Analizza("a.mp3");
  EXPECT_FALSE(Refused());
  EXPECT_TRUE(Add());
  EXPECT_TRUE(Trova<QWidget>("cmdAggiungiFile").isEnabled());
}

TEST_F(FilePane, AFileThatVanishesBetweenClickAndTickIsRefused) {
  Musica({"a.mp3"});
  Apri();
  ClicFile("a.mp3");
  std::filesystem::remove(b.Cartella.Host() / "music/a.mp3");
  ASSERT_TRUE(Attesa());
  EXPECT_TRUE(Refused());
  EXPECT_EQ(form->fraFileInfo->lblBadFileType->toolTip(),
            "This file isn't there any more, or it can't be read.");
  EXPECT_FALSE(Add());
}

TEST_F(FilePane, OfQuickClicksTheLastFileAloneIsRead) {
  Musica({"a.mp3", "c.mp3"});
  Flusso("b.mp3", kLayer2, 417);
  Apri();
  Analizza("a.mp3");
  ASSERT_TRUE(Add());
  int read = 0;
  QObject::connect(&form->fraFileInfo->tmrInfoMp3, &QTimer::timeout, form, [&] { ++read; });
  ClicFile("b.mp3");
  EXPECT_FALSE(Add());
  EXPECT_EQ(Cifre(), kNoFigures);
  ClicFile("c.mp3");
  ClicFile("b.mp3");
  ClicFile("b.mp3");
  EXPECT_EQ(read, 0);
  ASSERT_TRUE(Attesa());
  EXPECT_EQ(read, 1);
  EXPECT_TRUE(Refused());
}

TEST_F(FilePane, TheKeyboardPicksAsTheMouseDoes) {
  Musica({"a.mp3", "b.mp3", "c.mp3"});
  Apri();
  Pane().setFocus();
  Premi(Qt::Key_Home);
  int read = 0;
  QObject::connect(&form->fraFileInfo->tmrInfoMp3, &QTimer::timeout, form, [&] { ++read; });
  Premi(Qt::Key_Down);
  Premi(Qt::Key_Down);
  EXPECT_FALSE(Add());
  EXPECT_TRUE(QTest::qWaitFor([this] { return Add(); }));
  EXPECT_EQ(read, 1);
  EXPECT_EQ(form->fraFile->Corrente(), "c.mp3");
}

TEST_F(FilePane, APickStopsWhatPlaysAndHidesTheButton) {
  Musica({"a.mp3", "b.mp3"});
  Apri();
  Analizza("a.mp3");
  Clic("cmdPlayFileSx");
  b.Suono.Comandi.clear();
  ClicFile("b.mp3");
  EXPECT_THAT(b.Suono.Comandi, ElementsAre("1 Stop", "1 Close", "2 Stop", "2 Close"));
  EXPECT_FALSE(Add());
  ASSERT_TRUE(Attesa());
  b.Suono.Comandi.clear();
  ClicFile("b.mp3");
  EXPECT_FALSE(Add()) << "the same file, too";
  EXPECT_THAT(b.Suono.Comandi, testing::SizeIs(4));
}

TEST_F(FilePane, APickThatIsTakenBackTakesTheButtonAlong) {
  Musica({"a.mp3", "b.mp3"});
  Apri();
  Analizza("a.mp3");
  ASSERT_TRUE(Add());
  ClicFile("a.mp3", Qt::ControlModifier);
  QCoreApplication::processEvents();  // it goes when the mouse is let go
  EXPECT_FALSE(Add());
  EXPECT_EQ(Cifre(), kNoFigures);
  EXPECT_FALSE(form->fraFileInfo->tmrInfoMp3.isActive());
  Analizza("b.mp3");
  QTest::mouseClick(Pane().viewport(), Qt::LeftButton, {},
                    Pane().viewport()->rect().bottomRight() - QPoint(5, 5));
  QCoreApplication::processEvents();
  EXPECT_FALSE(Add()) << "so does a click beside the files";
}

TEST_F(FilePane, DragsTheSelectedFilesInTheirOrder) {
  Musica({"a.mp3", "b.mp3", "c.mp3", "città è.mp3"});
  Apri();
  ClicFile("città è.mp3");
  ClicFile("a.mp3", Qt::ControlModifier);
  ClicFile("c.mp3", Qt::ControlModifier);
  EXPECT_TRUE(Pane().dragEnabled());
  const std::unique_ptr<QMimeData> dragged(
      Pane().model()->mimeData(Pane().selectionModel()->selectedIndexes()));
  ASSERT_TRUE(dragged->hasFormat(QStringLiteral("text/uri-list")));
  std::vector<std::string> files;
  for (const QUrl& each : dragged->urls()) files.push_back(each.toLocalFile().toStdString());
  EXPECT_THAT(files, ElementsAre(Host("a.mp3"), Host("c.mp3"), Host("città è.mp3")));
  EXPECT_EQ(Pane().model()->supportedDragActions(), Qt::CopyAction);
}

TEST_F(FilePane, GoesToAnotherFolderByDoubleClickEnterAndBackspace) {
  WriteJazz();
  Apri();
  EXPECT_THAT(Pannello(), ElementsAre("a.mp3"));
  test::CliccaDoppio(*Folders().viewport(), PlaceOf("Jazz"));
  EXPECT_THAT(Pannello(), ElementsAre("j.mp3"));
  EXPECT_EQ(UltimaCartella(), Jazz());
  Folders().setFocus();
  Premi(Qt::Key_Backspace);
  EXPECT_THAT(Pannello(), ElementsAre("a.mp3"));
  EXPECT_EQ(UltimaCartella(), b.Percorso("music"));
  Folders().setCurrentItem(Folders().findItems("Jazz", Qt::MatchExactly).front());
  Premi(Qt::Key_Return);
  EXPECT_THAT(Pannello(), ElementsAre("j.mp3"));
  EXPECT_EQ(UltimaCartella(), Jazz());
}

TEST_F(FilePane, KeepsTheFolderAtAClickInTheListToo) {
  WriteJazz();
  b.Cartella.Write("program/KVR5Software.ini",
                   "[Path]\r\nLastMp3Dir=" + b.Percorso("music\\gone") + "\r\n");
  Apri();
  EXPECT_EQ(Folders().Percorso(), b.Percorso("music")) << "the nearest that is there";
  EXPECT_EQ(UltimaCartella(), b.Percorso("music\\gone"));
  Musica({"b.mp3"});
  QTest::mouseClick(Folders().viewport(), Qt::LeftButton, {}, PlaceOf("Jazz"));
  EXPECT_EQ(UltimaCartella(), b.Percorso("music"));
  EXPECT_THAT(Pannello(), ElementsAre("a.mp3", "b.mp3"));
}

TEST_F(FilePane, LosesItsPickWithTheFolder) {
  WriteJazz();
  Apri();
  Analizza("a.mp3");
  ASSERT_TRUE(Add());
  test::CliccaDoppio(*Folders().viewport(), PlaceOf("Jazz"));
  EXPECT_FALSE(Add());
  EXPECT_EQ(Cifre(), kNoFigures);
  ClicFile("j.mp3");
  Folders().setFocus();
  Premi(Qt::Key_Backspace);
  EXPECT_FALSE(form->fraFileInfo->tmrInfoMp3.isActive()) << "nothing is left to be read";
}

TEST_F(FilePane, GoesWhereTheBrowserLeads) {
  WriteJazz();
  Apri();
  b.Finestre.ScegliCartella("");
  Clic("picDisk");
  b.Finestre.ScegliCartella("  ");
  Clic("picDisk");
  b.Finestre.ScegliCartella(b.Percorso("nowhere"));
  Clic("picDisk");
  EXPECT_THAT(Pannello(), ElementsAre("a.mp3"));
  EXPECT_EQ(UltimaCartella(), b.Percorso("music"));
  b.Finestre.ScegliCartella(Jazz());
  Clic("picDisk");
  EXPECT_THAT(Pannello(), ElementsAre("j.mp3"));
  EXPECT_EQ(UltimaCartella(), Jazz());
  EXPECT_EQ(b.Finestre.Sfogliate.back().Titolo, "Choose the folder with the MP3 files");
  EXPECT_EQ(b.Finestre.Sfogliate.back().Inizio, b.Percorso("music"));
}

TEST_F(FilePane, SeesFilesThatCameWhileAnotherWindowWasInFront) {
  Musica({"a.mp3", "b.mp3"});
  Apri();
  Analizza("a.mp3");
  Musica({"c.mp3"});
  Attiva();
  EXPECT_THAT(Pannello(), ElementsAre("a.mp3", "b.mp3", "c.mp3"));
  EXPECT_EQ(form->fraFile->Corrente(), "a.mp3");
  EXPECT_TRUE(Add()) << "the pick stays";
}

class Finding : public FilePane {
 protected:
  void SetUp() override {
    FilePane::SetUp();
    Musica({"Blue.mp3", "blues 2.mp3", "green.mp3", "red.mp3"});
    Apri();
  }
  QLineEdit& Field() { return Trova<QLineEdit>("txtCerca"); }
  std::string Found() const { return form->fraFile->Corrente(); }
};

TEST_F(Finding, BeginsWithItsKeyAndGoesToTheFirstThatHasIt) {
  Grid().setFocus();
  Premi(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(form->focusWidget(), &Field());
  test::Scrivi(*form, "UE");
  EXPECT_EQ(Found(), "Blue.mp3");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Add(); })) << "it is picked as by a click";
}

TEST_F(Finding, GoesOnWithEnterAndAroundTheEnd) {
  Premi(Qt::Key_F, Qt::ControlModifier);
  test::Scrivi(*form, "blue");
  EXPECT_EQ(Found(), "Blue.mp3");
  Premi(Qt::Key_Return);
  EXPECT_EQ(Found(), "blues 2.mp3");
  Premi(Qt::Key_Return);
  EXPECT_EQ(Found(), "Blue.mp3");
  EXPECT_EQ(form->focusWidget(), &Field());
  EXPECT_THAT(Griglia(), IsEmpty()) << "the key adds nothing here";
}

TEST_F(Finding, SaysWhereThereIsNone) {
  Premi(Qt::Key_F, Qt::ControlModifier);
  const QColor usual = Field().palette().color(QPalette::Text);
  test::Scrivi(*form, "black");
  EXPECT_NE(Field().palette().color(QPalette::Text), usual);
  EXPECT_EQ(Field().toolTip(), "No file of this folder has this in its name");
  Field().selectAll();
  test::Scrivi(*form, "red");
  EXPECT_EQ(Field().palette().color(QPalette::Text), usual);
  EXPECT_EQ(Found(), "red.mp3");
}

}  // namespace
}  // namespace kvr5
