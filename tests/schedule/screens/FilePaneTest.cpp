#include <QTest>

#include "schedule/screens/BancoPalinsestoSchermo.h"

// What the pane of files does here that it doesn't elsewhere: no button, but a verdict that is
// kept.

namespace kvr5 {
namespace {

constexpr const char* kNoFigures = "|||";

class ScheduleFilePane : public test::BancoPalinsestoSchermo {
 protected:
  void SetUp() override {
    Progetto(3, 2);
    Segmento(0, "08.30");
    b.ScriviMp3("music/a.mp3", 0, 100);
    Musica({"b.mp3"});
    Guasta("bad.mp3");
  }
  bool Valid() const { return form->Editor().FileMp3Valido; }
  std::string Figures() {
    return Testo("lblVersioneMpeg") + "|" + Testo("lblBitrate") + "|" + Testo("lblFreq") + "|" +
           Testo("lblDurata");
  }
};

TEST_F(ScheduleFilePane, WaitsASecondBeforeItReadsAFile) {
  Apri();
  EXPECT_EQ(form->fraFileInfo->tmrInfoMp3.interval(), 1000);
  EXPECT_TRUE(form->fraFileInfo->tmrInfoMp3.isSingleShot());
  ClicFile("a.mp3");
  EXPECT_TRUE(form->fraFileInfo->tmrInfoMp3.isActive());
  EXPECT_FALSE(Valid());
  EXPECT_EQ(Figures(), kNoFigures);
  ASSERT_TRUE(Attesa());
  EXPECT_TRUE(Valid());
  EXPECT_EQ(Testo("lblVersioneMpeg"), "MPEG 1 Layer 3");
  EXPECT_EQ(Testo("lblBitrate"), "Bitrate: 128kbit (CBR)");
  EXPECT_EQ(Testo("lblFreq"), "44100 - 2 Ch (Joint Stereo)");
  EXPECT_THAT(Testo("lblDurata"), testing::EndsWith("  41 Kb"));
}

TEST_F(ScheduleFilePane, ARefusedFileIsNotValidUntilAGoodOneComes) {
  Apri();
  Analizza("a.mp3");
  Analizza("bad.mp3");
  EXPECT_FALSE(Valid());
  EXPECT_TRUE(SiVede("lblBadFileType"));
  EXPECT_EQ(Figures(), kNoFigures);
  Clic("picAggiungiSpot", 0);
  EXPECT_THAT(Dettaglio(), testing::IsEmpty());
  Analizza("b.mp3");
  EXPECT_TRUE(Valid());
  EXPECT_FALSE(SiVede("lblBadFileType"));
}

TEST_F(ScheduleFilePane, OfQuickClicksTheLastFileAloneIsRead) {
  Apri();
  int read = 0;
  QObject::connect(&form->fraFileInfo->tmrInfoMp3, &QTimer::timeout, form, [&] { ++read; });
  for (const char* file : {"a.mp3", "bad.mp3", "a.mp3", "b.mp3"}) ClicFile(file);
  EXPECT_EQ(read, 0);
  ASSERT_TRUE(Attesa());
  EXPECT_EQ(read, 1);
  EXPECT_TRUE(Valid());
  EXPECT_THAT(Testo("lblDurata"), testing::EndsWith("  3 Kb"));
}

TEST_F(ScheduleFilePane, AFileThatVanishesBetweenClickAndTickIsRefused) {
  Apri();
  ClicFile("a.mp3");
  std::filesystem::remove(Host("a.mp3"));
  ASSERT_TRUE(Attesa());
  EXPECT_FALSE(Valid());
  EXPECT_TRUE(SiVede("lblBadFileType"));
}

TEST_F(ScheduleFilePane, AnotherFolderTakesTheVerdictAway) {
  b.ScriviMp3("other/j.mp3");
  Apri();
  Analizza("a.mp3");
  ASSERT_TRUE(Valid());
  b.Finestre.ScegliCartella(b.Percorso("other"));
  Clic("picDisk");
  EXPECT_FALSE(Valid());
  EXPECT_EQ(Figures(), kNoFigures);
  EXPECT_EQ(UltimaCartella(), b.Percorso("other"));
  Clic("picAggiungiSpot", 0);
  EXPECT_THAT(Dettaglio(), testing::IsEmpty());
}

TEST_F(ScheduleFilePane, ABrowserThatIsCancelledLeavesTheFolder) {
  Apri();
  for (const std::string& folder : {std::string(), std::string("  "), b.Percorso("nowhere")}) {
    b.Finestre.ScegliCartella(folder);
    Clic("picDisk");
  }
  EXPECT_EQ(form->fraFile->DirDirectoryMp3->Percorso(), b.Percorso("music"));
  EXPECT_EQ(UltimaCartella(), b.Percorso("music"));
}

TEST_F(ScheduleFilePane, AFileThatIsReplacedAfterItsVerdictIsWhatItWasJudged) {
  Apri();
  Analizza("a.mp3");
  ClicFile("bad.mp3");
  EXPECT_FALSE(Valid()) << "from the click on";
  Clic("picAggiungiSpot", 0);
  EXPECT_THAT(Dettaglio(), testing::IsEmpty()) << "the verdict on a.mp3 doesn't count for it";
}

}  // namespace
}  // namespace kvr5
