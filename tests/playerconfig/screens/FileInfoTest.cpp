#include <gtest/gtest.h>

#include <QComboBox>
#include <QTest>
#include <QTimer>

#include "playerconfig/screens/BancoHub.h"

// The panel about the picked file, and which file can be confirmed.

namespace kvr5 {
namespace {

class FileInfo : public test::Hub {
 protected:
  void SetUp() override {
    Progetto(4, 1);
    UltimaCartella("music");
  }
  /// Frames of these header bytes, each of this size.
  void Scrivi(const std::string& name, const std::string& header, std::size_t size,
              int frames = 40) {
    std::string bytes;
    for (int i = 0; i < frames; ++i) {
      std::string frame = header;
      frame.resize(size, 'U');
      bytes += frame;
    }
    b.Cartella.Write("music/" + name, bytes);
  }
  bool Ok() { return SiVede("cmdOkFileMp3"); }
  bool Refused() { return SiVede("lblBadFileType"); }
  std::string Figures() {
    return Testo("lblVersioneMpeg") + "|" + Testo("lblBitrate") + "|" + Testo("lblFreq");
  }
  QTimer& Timer() { return hub->fraFileInfo->tmrInfoMp3; }
};

constexpr const char* kNoFigures = "||";

TEST_F(FileInfo, AGoodFileShowsItsFiguresAndCanBeConfirmed) {
  b.ScriviMp3("music/a.mp3", 0, 100);
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  EXPECT_EQ(Figures(), "MPEG 1 Layer 3|Bitrate: 128kbit (CBR)|44100 - 2 Ch (Joint Stereo)");
  EXPECT_TRUE(Testo("lblDurata").ends_with("  41 Kb")) << Testo("lblDurata");
  EXPECT_FALSE(Refused());
  EXPECT_TRUE(Ok());
  EXPECT_TRUE(Trova<QWidget>("cmdOkFileMp3").isEnabled());
}

TEST_F(FileInfo, TheThirdNumeralComesAndGoesWithTheButtonItLeadsTo) {
  b.ScriviMp3("music/a.mp3", 0, 100);
  Apri(0);
  const auto numeral = [this] {
    for (const auto* badge : hub->fraFileName->findChildren<QLabel*>()) {
      if (badge->toolTip() == QLatin1String("Confirm")) return badge->isVisible();
    }
    return false;
  };
  EXPECT_FALSE(numeral());
  Spunta(1);
  ScegliFile("a.mp3");
  EXPECT_TRUE(Ok());
  EXPECT_TRUE(numeral());
  Spunta(1);
  EXPECT_FALSE(Ok());
  EXPECT_FALSE(numeral());
  Spunta(1);
  ScegliFile(" ");
  EXPECT_TRUE(Ok());
  EXPECT_FALSE(numeral()) << "to take away is no step";
}

TEST_F(FileInfo, ARemovalCallsForAttentionOnlyWhereTheBlankLineWasPicked) {
  b.ScriviMp3("music/a.mp3", 0, 100);
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "far.mp3", "C:\\far\\", "1.mp3");
  Apri(0);
  Spunta(1);
  const auto& ok = Trova<Coppia>("cmdOkFileMp3");
  EXPECT_EQ(Testo("lblOkFileMp3"), "Remove file");
  EXPECT_EQ(ok.GenereOra(), Coppia::Genere::Quieto) << "the folder merely lacks the file";
  ScegliFile("a.mp3");
  EXPECT_EQ(ok.GenereOra(), Coppia::Genere::Normale);
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").toolTip(), "a.mp3");
  ScegliFile(" ");
  EXPECT_EQ(ok.GenereOra(), Coppia::Genere::Pericolo);
  EXPECT_EQ(Trova<QComboBox>("cmbFileMp3").toolTip(), "");
}

TEST_F(FileInfo, TheListOfFilesSaysWhatToPickOrThatThereIsNone) {
  b.Cartella.Write("music/readme.txt", "");
  b.ScriviMp3("music/Jazz/a.mp3");
  Apri(0);
  const CasellaInvito& list = *hub->fraFileName->cmbFileMp3;
  EXPECT_EQ(list.Invito(), "no MP3 file here");
  const QImage none = hub->fraFileName->cmbFileMp3->grab().toImage();
  hub->fraFileName->DirDirectoryMp3->ImpostaPercorso(b.Percorso("music\\Jazz"));
  EXPECT_EQ(list.Invito(), "Pick a file (1 here)");
  ScegliFile(" ");
  EXPECT_NE(hub->fraFileName->cmbFileMp3->grab().toImage(), none) << "the words are seen";
  EXPECT_EQ(list.currentText(), " ") << "they are no text of the list";
  EXPECT_EQ(list.accessibleDescription(), list.Invito());
  ScegliFile("a.mp3");
  EXPECT_EQ(list.accessibleDescription(), "") << "heard only while they are seen";
  EXPECT_EQ(list.currentText(), "a.mp3");
}

TEST_F(FileInfo, LongFiguresLeaveTheColumnsWhereTheyAre) {
  b.ScriviMp3("music/a.mp3", 0, 100);
  Apri(0);
  hub->resize(1024, 640);
  QCoreApplication::processEvents();
  const QRect before = hub->fraFileInfo->geometry();
  ScegliFile("a.mp3");
  hub->fraFileInfo->Mostra(QString(60, QLatin1Char('M')), QString(60, QLatin1Char('M')),
                           QString(60, QLatin1Char('M')), QString(60, QLatin1Char('M')));
  QCoreApplication::processEvents();
  EXPECT_EQ(hub->fraFileInfo->geometry(), before);
}

TEST_F(FileInfo, TheFirstFileOfTheFolderIsToldFromTheStart) {
  b.ScriviMp3("music/a.mp3");
  Apri(0);
  EXPECT_EQ(Testo("lblVersioneMpeg"), "MPEG 1 Layer 3");
  EXPECT_FALSE(Ok()) << "nothing is ticked";
  Spunta(1);
  EXPECT_TRUE(Ok()) << "the tick asks anew";
}

TEST_F(FileInfo, WhatIsNoLayer3IsRefusedWithoutFigures) {
  b.Cartella.Write("music/a.mp3", std::string(5000, 'x'));
  b.Cartella.Write("music/b.mp3", "");
  Scrivi("c.mp3", "\xFF\xFD\x80\x64", 417);
  Apri(0);
  Spunta(1);
  for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) {
    ScegliFile(name);
    EXPECT_EQ(Figures(), kNoFigures) << name;
    EXPECT_TRUE(Refused()) << name;
    EXPECT_FALSE(Ok()) << name;
  }
  EXPECT_EQ(Testo("lblBadFileType"),
            "The player can't play this file. It takes MPEG 1 Layer 3, 60 to 320 kbit/s, 32,000 "
            "or 44,100 Hz.");
}

TEST_F(FileInfo, AnotherVersionIsRefusedWithItsFigures) {
  Scrivi("a.mp3", "\xFF\xF3\x80\xC4", 208);
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  EXPECT_EQ(Figures().substr(0, 15), "MPEG 2 Layer 3|");
  EXPECT_NE(Testo("lblFreq").find("22050"), std::string::npos);
  EXPECT_TRUE(Refused());
  EXPECT_FALSE(Ok());
}

TEST_F(FileInfo, BitRateAndSampleRateOutOfRangeAreRefusedWithTheirFigures) {
  Scrivi("a.mp3", "\xFF\xFB\x40\x64", 182);   // 56 kbit/s
  Scrivi("b.mp3", "\xFF\xFB\x94\x64", 384);   // 48,000 Hz
  Scrivi("c.mp3", "\xFF\xFB\x50\x64", 208);   // 64 kbit/s
  Scrivi("d.mp3", "\xFF\xFB\xE0\x64", 1044);  // 320 kbit/s
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  EXPECT_EQ(Testo("lblBitrate"), "Bitrate: 56kbit (CBR)");
  EXPECT_TRUE(Refused());
  EXPECT_FALSE(Ok());
  ScegliFile("b.mp3");
  EXPECT_EQ(Testo("lblFreq").substr(0, 5), "48000");
  EXPECT_TRUE(Refused());
  EXPECT_FALSE(Ok());
  for (const char* good : {"c.mp3", "d.mp3"}) {
    ScegliFile(good);
    EXPECT_FALSE(Refused()) << good;
    EXPECT_TRUE(Ok()) << good;
  }
}

TEST_F(FileInfo, TheReasonOfARefusalIsItsToolTip) {
  Scrivi("a.mp3", "\xFF\xFB\x94\x64", 384);
  // A tag whose text looks like a header: the search stops there, in front of the real one.
  std::string tagged = std::string("ID3\x03\0\0\0\0\0\x7F", 10) + std::string(40, ' ') + "\xFF\xFB";
  tagged.resize(10 + 127, ' ');
  b.ScriviMp3("music/good.mp3");
  b.Cartella.Write("music/b.mp3", tagged + b.Cartella.Read("music/good.mp3"));
  Apri(0);
  const QWidget& warning = Trova<QWidget>("lblBadFileType");
  const auto reason = [&] {
    EXPECT_EQ(warning.accessibleDescription(), warning.toolTip());
    return warning.toolTip().toStdString();
  };
  ScegliFile("a.mp3");
  EXPECT_EQ(reason(), "48,000 Hz; the player takes 22,050 to 44,100 Hz");
  ScegliFile("b.mp3");
  EXPECT_EQ(
      reason(),
      "The tag (title, picture) at the start of this file hides where its sound begins. Save the "
      "file without tags, then choose it again.");
  ScegliFile("good.mp3");
  EXPECT_FALSE(Refused());
  EXPECT_EQ(reason(), "");
}

TEST_F(FileInfo, APickedFileThatIsGoneShowsNoOthersFiguresAndSaysSo) {
  b.ScriviMp3("music/a.mp3", 0, 100);
  b.ScriviMp3("music/b.mp3", 0, 100);
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  ASSERT_NE(Figures(), kNoFigures);
  std::filesystem::remove(b.Cartella.Host() / "music/b.mp3");
  ScegliFile("b.mp3");
  EXPECT_EQ(Figures(), kNoFigures);
  EXPECT_TRUE(Refused());
  EXPECT_EQ(Trova<QWidget>("lblBadFileType").toolTip(),
            "This file isn't there any more, or it can't be read.");
  EXPECT_FALSE(Ok());
}

TEST_F(FileInfo, TheBlankLineClearsThePanel) {
  Scrivi("a.mp3", "\xFF\xFB\x94\x64", 384);
  Apri(0);
  ScegliFile("a.mp3");
  ASSERT_TRUE(Refused());
  ScegliFile(" ");
  EXPECT_EQ(Figures(), kNoFigures);
  EXPECT_FALSE(Refused());
}

TEST_F(FileInfo, IsReadOnceMoreHalfASecondAfterTheLastPick) {
  b.ScriviMp3("music/a.mp3");
  b.ScriviMp3("music/b.mp3");
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  ScegliFile("b.mp3");
  ASSERT_TRUE(Timer().isActive());
  EXPECT_TRUE(Timer().isSingleShot());
  EXPECT_EQ(Timer().interval(), 500);
  b.Cartella.Write("music/b.mp3", "not music any more");
  EXPECT_TRUE(Ok());
  EXPECT_TRUE(QTest::qWaitFor([this] { return Refused(); }));
  EXPECT_FALSE(Ok());
  EXPECT_FALSE(Timer().isActive());
}

TEST_F(FileInfo, AFileThatVanishesBeforeTheTickIsRefused) {
  b.ScriviMp3("music/a.mp3");
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  std::filesystem::remove(b.Cartella.Host() / "music" / "a.mp3");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Refused(); }));
  EXPECT_EQ(Figures(), kNoFigures);
  EXPECT_FALSE(Ok());
}

TEST_F(FileInfo, APickThatComesWhileEventsRunIsTheOneThatIsJudged) {
  b.ScriviMp3("music/a.mp3");
  b.Cartella.Write("music/b.mp3", "no music");
  Apri(0);
  Spunta(1);
  auto& files = Trova<QComboBox>("cmbFileMp3");
  ScegliFile(" ");
  QTimer::singleShot(0, &files, [&files] { QTest::keyClick(&files, Qt::Key_Down); });
  QTest::keyClick(&files, Qt::Key_Down);  // a.mp3, and b.mp3 within its events
  ASSERT_EQ(files.currentText(), QStringLiteral("b.mp3"));
  EXPECT_TRUE(Refused());
  EXPECT_FALSE(Ok()) << "b.mp3 would be assigned";
}

TEST_F(FileInfo, AFileThatWasStillBeingCopiedIsJudgedAgainWhenTheHubComesBack) {
  b.ScriviMp3("whole.mp3", 0, 100);
  b.Cartella.Write("music/a.mp3", "");
  b.ScriviMp3("music/b.mp3");
  Apri(0);
  const auto activate = [this] {
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(hub, &activation);
  };
  activate();
  Spunta(1);
  ScegliFile("b.mp3");
  ScegliFile("a.mp3");
  ASSERT_TRUE(Refused());
  b.Cartella.Write("music/a.mp3", b.Cartella.Read("whole.mp3"));
  activate();
  EXPECT_FALSE(Refused());
  EXPECT_NE(Figures(), kNoFigures);
  EXPECT_TRUE(Ok());
  b.Cartella.Write("music/a.mp3", std::string(5000, 'x'));
  activate();
  EXPECT_TRUE(Refused());
  EXPECT_FALSE(Ok());
}

}  // namespace
}  // namespace kvr5
