#include <gtest/gtest.h>

#include "mp3/ParoleRifiuto.h"
#include "mp3/TabelleMp3.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

class RefusalWords : public testing::Test {
 protected:
  void SetUp() override {
    info.Valid = true;
    info.Version = versione_mpeg::Mpeg1;
    info.Layer = 3;
    info.Bitrate = 128000;
    info.SampleRate = 44100;
  }
  /// The words for the file as the editors judge it.
  std::string Words() { return ParoleRifiuto(b.C, MotivoPerEditor(info, search), info); }

  test::Banco b;
  InfoMp3 info;
  RicercaMp3 search{0, 0};
};

TEST_F(RefusalWords, OfAGoodFileAreNone) {
  EXPECT_EQ(Words(), "");
}

TEST_F(RefusalWords, NameTheSampleRateAndItsLimits) {
  info.SampleRate = 48000;
  EXPECT_EQ(Words(), "48,000 Hz; the player takes 22,050 to 44,100 Hz");
  b.C.Luogo.GroupMark = ".";
  EXPECT_EQ(Words(), "48.000 Hz; the player takes 22.050 to 44.100 Hz");
}

TEST_F(RefusalWords, NameTheBitRateAndItsLimits) {
  info.Bitrate = 56000;
  EXPECT_EQ(Words(), "56 kbit/s; the player takes 60 to 320 kbit/s");
  info.Bitrate = 0;
  EXPECT_EQ(Words(), "0 kbit/s; the player takes 60 to 320 kbit/s");
}

TEST_F(RefusalWords, NameTheLayer) {
  info.Layer = 2;
  EXPECT_EQ(Words(), "Layer 2; the player takes Layer 3");
}

TEST_F(RefusalWords, NameTheVersionOnInputs) {
  info.Version = versione_mpeg::Mpeg2;
  info.SampleRate = 22050;
  EXPECT_EQ(Words(), "") << "lists take it";
  EXPECT_EQ(ParoleRifiuto(b.C, MotivoPerIngressi(info, search), info),
            "MPEG 2; the inputs take MPEG 1");
}

TEST_F(RefusalWords, SayThatThereIsNoAudio) {
  info = {};
  search.Sincronia = -1;
  EXPECT_EQ(Words(), "No MPEG audio was found at the file's beginning");
}

TEST_F(RefusalWords, OfATagThatHidesTheFrameTellTheCure) {
  info = {};
  search = {100, 5000};
  EXPECT_NE(Words().find("hides where its sound begins"), std::string::npos);
  EXPECT_NE(Words().find("Save the file without tags"), std::string::npos);
}

TEST_F(RefusalWords, OfAFigureThatCannotBeHadAreThere) {
  EXPECT_NE(ParoleRifiuto(b.C, RifiutoMp3::ErroreInAnalisi, info), "");
}

TEST_F(RefusalWords, ComeFromTheLanguageFile) {
  b.Cartella.Write("words.lan", "[Strings]\r\n0130045=%1 (%2-%3)\r\n");
  b.C.Stato.FileLingua = b.Percorso("words.lan");
  info.SampleRate = 16000;
  EXPECT_EQ(Words(), "16,000 (22,050-44,100)");
}

}  // namespace
}  // namespace kvr5
