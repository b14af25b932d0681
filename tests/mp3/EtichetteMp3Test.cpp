#include <gtest/gtest.h>

#include "mp3/EtichetteMp3.h"

namespace kvr5::test {
namespace {

const Locale kEnglish;
const Locale kItalian{.Lcid = 1040, .DecimalMark = ",", .GroupMark = "."};

InfoMp3 Record() {
  return {.Valid = true,
          .Version = 3,
          .Layer = 3,
          .Bitrate = 128000,
          .SampleRate = 44100,
          .Channels = 2,
          .ChannelMode = 1,
          .Duration = 3725};
}

InfoMp3 Mpeg2Record() {
  InfoMp3 info = Record();
  info.Version = 2;
  info.SampleRate = 22050;
  return info;
}

TEST(EtichetteMp3, TellVersionRatesChannelsAndLength) {
  const EtichetteMp3 labels = ComponiEtichette(Record(), 1536U << 10, kEnglish);
  EXPECT_EQ(labels.lblVersioneMpeg, "MPEG 1 Layer 3");
  EXPECT_EQ(labels.lblBitrate, "Bitrate: 128kbit (CBR)");
  EXPECT_EQ(labels.lblFreq, "44100 - 2 Ch (Joint Stereo)");
  EXPECT_EQ(labels.lblDurata, "01.02.05  1,536 Kb");
}

TEST(EtichetteMp3, TellVbr) {
  InfoMp3 info = Record();
  info.IsVbr = true;
  EXPECT_EQ(ComponiEtichette(info, 0, kEnglish).lblBitrate, "Bitrate: 128kbit (VBR)");
}

TEST(EtichetteMp3, UseTheMarksOfTheLocale) {
  InfoMp3 info = Record();
  info.Bitrate = 128500;
  const EtichetteMp3 labels = ComponiEtichette(info, 1536U << 10, kItalian);
  EXPECT_EQ(labels.lblBitrate, "Bitrate: 128,5kbit (CBR)");
  EXPECT_EQ(labels.lblDurata, "01.02.05  1.536 Kb");
}

TEST(EtichetteMp3, HalfAKilobyteRoundsUp) {
  EXPECT_EQ(ComponiEtichette(Record(), 2560, kEnglish).lblDurata, "01.02.05  3 Kb");
  EXPECT_EQ(ComponiEtichette(Record(), 511, kEnglish).lblDurata, "01.02.05  0 Kb");
}

TEST(EtichetteMp3, ShowTheLengthOfAFileBeyond2Gigabytes) {
  EXPECT_EQ(ComponiEtichette(Record(), 3ULL << 30, kEnglish).lblDurata, "01.02.05  3,145,728 Kb");
}

TEST(PannelloMp3, IsEmptyWhenCleared) {
  EXPECT_EQ(PulisciInfoMp3().Etichette, EtichetteMp3());
  EXPECT_FALSE(PulisciInfoMp3().lblBadFileType);
}

class PannelloTest : public testing::TestWithParam<SchermoMp3> {};

TEST_P(PannelloTest, GoodFileHasFiguresAndNoWarning) {
  const PannelloMp3 panel = MostraInfoMp3(GetParam(), Record(), 4096, kEnglish);
  EXPECT_EQ(panel.Etichette, ComponiEtichette(Record(), 4096, kEnglish));
  EXPECT_FALSE(panel.lblBadFileType);
  EXPECT_EQ(panel.Verdetto, VerdettoMp3::Buono);
}

TEST_P(PannelloTest, NoRecordHasTheWarningAlone) {
  const PannelloMp3 panel = MostraInfoMp3(GetParam(), {}, 4096, kEnglish);
  EXPECT_EQ(panel.Etichette, EtichetteMp3());
  EXPECT_TRUE(panel.lblBadFileType);
  EXPECT_EQ(panel.Verdetto, VerdettoMp3::NonLetto);
}

TEST_P(PannelloTest, LayerTwoHasTheWarningAlone) {
  InfoMp3 info = Record();
  info.Layer = 2;
  const PannelloMp3 panel = MostraInfoMp3(GetParam(), info, 4096, kEnglish);
  EXPECT_EQ(panel.Etichette, EtichetteMp3());
  EXPECT_TRUE(panel.lblBadFileType);
  EXPECT_EQ(panel.Verdetto, VerdettoMp3::Rifiutato);
}

INSTANTIATE_TEST_SUITE_P(BothScreens, PannelloTest,
                         testing::Values(SchermoMp3::Editor, SchermoMp3::Ingressi));

TEST(PannelloMp3, RefusedRateShowsItsFiguresOnTheHubOnly) {
  InfoMp3 info = Record();
  info.Bitrate = 59000;
  PannelloMp3 panel = MostraInfoMp3(SchermoMp3::Editor, info, 4096, kEnglish);
  EXPECT_EQ(panel.Etichette, EtichetteMp3());
  EXPECT_TRUE(panel.lblBadFileType);
  panel = MostraInfoMp3(SchermoMp3::Ingressi, info, 4096, kEnglish);
  EXPECT_EQ(panel.Etichette.lblBitrate, "Bitrate: 59kbit (CBR)");
  EXPECT_TRUE(panel.lblBadFileType);
  EXPECT_EQ(panel.Verdetto, VerdettoMp3::Rifiutato);
}

TEST(PannelloMp3, Mpeg2IsGoodForListsAndShownWithTheWarningOnTheHub) {
  PannelloMp3 panel = MostraInfoMp3(SchermoMp3::Editor, Mpeg2Record(), 4096, kEnglish);
  EXPECT_EQ(panel.Verdetto, VerdettoMp3::Buono);
  EXPECT_FALSE(panel.lblBadFileType);
  panel = MostraInfoMp3(SchermoMp3::Ingressi, Mpeg2Record(), 4096, kEnglish);
  EXPECT_EQ(panel.Verdetto, VerdettoMp3::Rifiutato);
  EXPECT_TRUE(panel.lblBadFileType);
  EXPECT_EQ(panel.Etichette.lblVersioneMpeg, "MPEG 2 Layer 3");
}

}  // namespace
}  // namespace kvr5::test
