#include <gtest/gtest.h>

#include <string>

#include "mp3/Accettazione.h"
#include "mp3/Mp3Maker.h"

// What one file leaves to the next in the same process, and what it doesn't.

namespace kvr5::test {
namespace {

constexpr std::size_t kFrame = 418;

/// Bytes without frames: all three figures that divide by them fail.
const ErroriMp3 kNoFrames{
    {"LeggiTagVbr.rate", 11}, {"LeggiTagVbr.Duration", 11}, {"LeggiTagVbr.Bitrate", 11}};

class CarriedState : public ReaderTest {
 protected:
  /// The file before: constant rate, 128 kbit/s unless told, of 16,001 bytes.
  void ReadPlainBefore(int bitrateIndex = 9) {
    Read("plain_before.mp3", Stream({.BitrateIndex = bitrateIndex}, 16001));
  }
  /// The file before: a tag of 1000 frames and 500,000 bytes, 153 kbit/s, 26 s, late in its frame.
  void ReadTaggedBefore() {
    Read("tagged_before.mp3", With(Stream({}, 20000), 300, XingTag("Xing", 1000, 500000)));
  }
};

TEST_F(CarriedState, XingWithoutFramesAfterAFileOfTheSameRateIsCbr) {
  ReadPlainBefore();
  const InfoMp3 info =
      Read("xing_without_frames.mp3", With(Stream({}, 32001), 36, XingTag("Xing", 0, 500000)));
  EXPECT_FALSE(info.IsVbr);
  EXPECT_EQ(info.Bitrate, 128000);
  EXPECT_EQ(info.FileBytes, 32000) << "all figures are made anew";
  EXPECT_EQ(info.Frames, 77);
  EXPECT_EQ(info.Duration, 2);
  EXPECT_EQ(reader_.Errori(), kNoFrames);
  EXPECT_TRUE(BuonoPerEditor(info));
  EXPECT_FALSE(BuonoInMassa(info, reader_.Errori()));
}

TEST_F(CarriedState, XingWithoutFramesAfterAFileOfAnotherRateIsVbrWithThatRate) {
  ReadPlainBefore(11);
  const InfoMp3 info =
      Read("xing_without_frames.mp3", With(Stream({}, 32001), 36, XingTag("Xing", 0, 500000)));
  EXPECT_TRUE(info.IsVbr);
  EXPECT_EQ(info.Bitrate, 192000);
  EXPECT_EQ(info.FileBytes, 500000);
  EXPECT_EQ(info.Frames, 0);
  EXPECT_EQ(info.Duration, 1) << "of the file before";
  EXPECT_EQ(reader_.Errori(), kNoFrames);
}

TEST_F(CarriedState, VbriWithoutFramesAfterAFileOfTheSameRateIsVbr) {
  ReadPlainBefore();
  const InfoMp3 info =
      Read("vbri_without_frames.mp3", With(Stream({}, 32001), 36, VbriTag(0, 500000)));
  EXPECT_TRUE(info.IsVbr);
  EXPECT_EQ(info.Bitrate, 128000);
  EXPECT_EQ(info.FileBytes, 500000);
  EXPECT_EQ(reader_.Errori(), kNoFrames);
}

// A sync across the end of the buffer doesn't say where the scan met it: the first frame is as
// long as that of the file before was, whole or one byte short.
TEST_F(CarriedState, HeaderAcrossTheBuffersEndTakesTheFramesLengthAsItWasBefore) {
  const std::string tag = XingTag("Xing", 1000, 500000 + 7);
  const std::string split =
      std::string(kBuffer - 1, 'x') + With(Stream({}, 20000), kFrame - tag.size(), tag);
  constexpr int kWhole = 500000 + 7;
  constexpr int kShort = kWhole & ~0xFF;  // without the tag's last byte
  EXPECT_EQ(Read("split_sync_first.mp3", split).FileBytes, kShort);
  Read("header_behind_a_byte.mp3", "x" + Stream({}, 2000));
  EXPECT_EQ(Read("split_sync.mp3", split).FileBytes, kWhole);
  EXPECT_EQ(Read("split_sync_again.mp3", split).FileBytes, kWhole);
  Read("header_at_the_start.mp3", Stream({}, 2000));
  EXPECT_EQ(Read("split_sync_last.mp3", split).FileBytes, kShort);
}

TEST_F(CarriedState, FileWithoutASyncLeavesTheFramesLengthAsItWas) {
  const std::string tag = XingTag("Xing", 1000, 500000 + 7);
  const std::string split =
      std::string(kBuffer - 1, 'x') + With(Stream({}, 20000), kFrame - tag.size(), tag);
  Read("header_behind_a_byte.mp3", "x" + Stream({}, 2000));
  Read("no_sync.mp3", std::string(40000, 'x'));
  EXPECT_EQ(Read("split_sync.mp3", split).FileBytes, 500000 + 7);
}

TEST_F(CarriedState, ClosingTagIsForgottenWhereThereIsNoPlaceForOne) {
  const std::string tagged = Stream({}, 2000) + "TAG" + std::string(125, ' ');
  ASSERT_TRUE(Read("closing_tag.mp3", tagged).HasId3v1);
  EXPECT_FALSE(Read("too_short_for_one.mp3", Stream({}, 127)).HasId3v1);
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"RilevaTagId3.TAG", 63}}));
}

TEST_F(CarriedState, ClosingTagIsForgottenWhereTheEndCanNotBeRead) {
  const std::string tagged = Stream({}, 20000) + "TAG" + std::string(125, ' ');
  ASSERT_TRUE(Read("closing_tag.mp3", tagged).HasId3v1);
  files_.FailingRead = files_.Reads + 2;
  EXPECT_FALSE(Read("broken_end.mp3", tagged).HasId3v1);
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"RilevaTagId3.TAG", 57}}));
}

TEST_F(CarriedState, OpeningTagIsForgotten) {
  ASSERT_TRUE(Read("opening_tag.mp3", Id3v2Tag("TIT2") + Stream({}, 2000)).HasId3v2);
  EXPECT_FALSE(Read("no_opening_tag.mp3", Stream({}, 2000)).HasId3v2);
}

// MPEG 2.5 of a bit rate that tells no sample rate: nothing in no time.
TEST_F(CarriedState, NoSamplesAtNoSampleRateAreAnOverflow) {
  ReadPlainBefore();
  const InfoMp3 info =
      Read("vbri_without_frames_and_sample_rate.mp3",
           With(Stream({.Version = 0, .BitrateIndex = 8}, 20000), 36, VbriTag(0, 500000)));
  EXPECT_TRUE(info.IsVbr);
  EXPECT_EQ(info.SampleRate, 0);
  EXPECT_EQ(info.Bitrate, 128000) << "of the file before";
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"LeggiIntestazione.ReDim", 9},
                                         {"LeggiTagVbr.rate", 6},
                                         {"LeggiTagVbr.Duration", 11},
                                         {"LeggiTagVbr.Bitrate", 11}}));
}

TEST_F(CarriedState, SamplesAtNoSampleRateAreADivisionByZero) {
  ReadPlainBefore();
  Read("vbri_without_sample_rate.mp3",
       With(Stream({.Version = 0, .BitrateIndex = 8}, 20000), 36, VbriTag(100, 500000)));
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"LeggiIntestazione.ReDim", 9},
                                         {"LeggiTagVbr.rate", 11},
                                         {"LeggiTagVbr.Duration", 11}}));
}

TEST_F(CarriedState, NoBytesAtARateOfNothingAreAnOverflowInTheDurationAlone) {
  const InfoMp3 info =
      Read("vbri_few_negative_frames_no_bytes.mp3",
           With(Stream({}, 20000), 36, VbriTag(static_cast<std::uint32_t>(-100), 0)));
  EXPECT_TRUE(info.IsVbr);
  EXPECT_EQ(info.Bitrate, 0);
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"LeggiTagVbr.Duration", 6}}));
}

// Free format can't size its frame: what it doesn't fill is the frame of the file before.
TEST_F(CarriedState, FreeFormatTakesTheFiguresOfAStaleTag) {
  ReadTaggedBefore();
  const InfoMp3 info = Read("free_format_of_200_bytes.mp3", Stream({.BitrateIndex = 0}, 200));
  EXPECT_TRUE(info.IsVbr);
  EXPECT_EQ(info.Bitrate, 153000) << "a free-format file whose rate comes from a tag";
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"LeggiIntestazione.ReDim", 9}}));
  EXPECT_TRUE(BuonoPerEditor(info));
  EXPECT_TRUE(BuonoPerIngressi(info));
  EXPECT_FALSE(BuonoInMassa(info, reader_.Errori()));
}

TEST_F(CarriedState, FreeFormatThatFillsTheFrameHasNoStaleTag) {
  ReadTaggedBefore();
  const InfoMp3 info = Read("free_format_of_500_bytes.mp3", Stream({.BitrateIndex = 0}, 500));
  EXPECT_FALSE(info.IsVbr);
  EXPECT_EQ(info.Bitrate, 0);
  EXPECT_EQ(reader_.Errori(),
            (ErroriMp3{{"LeggiIntestazione.ReDim", 9}, {"CalcolaCbr.Duration", 11}}));
  EXPECT_FALSE(BuonoPerEditor(info));
}

TEST_F(CarriedState, FreeFormatWhoseStaleTagComesToNothingIsCbr) {
  // 100 bytes in 1000 frames are 31 bit/s, rounded to none: the rate of free format
  Read("tagged_before.mp3", With(Stream({}, 20000), 300, XingTag("Xing", 1000, 100)));
  const InfoMp3 info = Read("free_format_of_200_bytes.mp3", Stream({.BitrateIndex = 0}, 200));
  EXPECT_FALSE(info.IsVbr);
  EXPECT_EQ(info.Bitrate, 0);
  EXPECT_EQ(reader_.Errori().back(), (ErroreMp3{"CalcolaCbr.Duration", 11}));
  EXPECT_FALSE(BuonoPerEditor(info));
}

}  // namespace
}  // namespace kvr5::test
