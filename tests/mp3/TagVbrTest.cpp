#include <gtest/gtest.h>

#include <string>

#include "mp3/Mp3Maker.h"
#include "mp3/TagVbr.h"

namespace kvr5::test {
namespace {

using TagVbrTest = ReaderTest;

std::string Frame() {
  return Stream({}, 17000);
}

TEST(FlagXing, AreTheStoredOnesUpTo15) {
  for (std::uint32_t flags = 0; flags < 16; ++flags) EXPECT_EQ(FlagXing(flags << 24), flags);
}

TEST(FlagXing, ChangePlacesAbove15) {
  EXPECT_EQ(FlagXing(0x10000000U), 0x00000001U);  // stored 00 00 00 10: "10000000" backwards
  EXPECT_EQ(FlagXing(0x00000300U), 0x003U);       // stored 00 03 00 00: "300" backwards
  EXPECT_EQ(FlagXing(0x12345678U), 0x87654321U);
  EXPECT_EQ(FlagXing(0), 0U);
}

TEST(CercaTagVbr, TagAtTheFirstByteDoesNotCount) {
  const std::string first = XingTag("Xing", 1, 1) + "--------" + XingTag("Info", 2, 2);
  const auto tag = CercaTagVbr(first);
  ASSERT_TRUE(tag);
  EXPECT_EQ(tag->Frames, 2);
  EXPECT_FALSE(CercaTagVbr(XingTag("VBRI", 1, 1)));
  EXPECT_FALSE(CercaTagVbr({}));
}

TEST_F(TagVbrTest, InfoWithTheFramesOwnRateLeavesTheFileCbr) {
  // 41,796 bytes in 100 frames of 1152 samples at 44,100 Hz are 128 kbit/s
  const InfoMp3 info =
      Read("info_of_a_cbr_file.mp3", With(Frame(), 36, XingTag("Info", 100, 41796)));
  EXPECT_FALSE(info.IsVbr);
  EXPECT_EQ(info.Bitrate, 128000);
  EXPECT_EQ(info.FileBytes, 16999);
  EXPECT_EQ(info.Frames, 41);
  EXPECT_EQ(info.Duration, 1);
}

TEST_F(TagVbrTest, XingWithTheFramesOwnRateLeavesTheFileCbrToo) {
  EXPECT_FALSE(
      Read("xing_of_a_cbr_file.mp3", With(Frame(), 36, XingTag("Xing", 100, 41796))).IsVbr);
}

TEST_F(TagVbrTest, VbriWithTheFramesOwnRateIsVbr) {
  const InfoMp3 info = Read("vbri_of_a_constant_rate.mp3", With(Frame(), 36, VbriTag(100, 41796)));
  EXPECT_TRUE(info.IsVbr);
  EXPECT_EQ(info.Bitrate, 128000);
  EXPECT_EQ(info.Frames, 100);
  EXPECT_EQ(info.FileBytes, 41796);
  EXPECT_EQ(info.Duration, 3);
}

TEST_F(TagVbrTest, XingWithAnotherRateIsVbr) {
  const InfoMp3 info =
      Read("xing_of_a_vbr_file.mp3", With(Frame(), 36, XingTag("Xing", 1000, 500000)));
  EXPECT_TRUE(info.IsVbr);
  EXPECT_EQ(info.Bitrate, 153000);  // 153.125
  EXPECT_EQ(info.Duration, 26);
}

TEST_F(TagVbrTest, DurationGoesByTheRoundedBytesPerSecond) {
  // 575 frames of 1152 at 44,100 Hz last 15.02 s; 8 bytes by that is 0.53, rounded 1, so 8 s
  EXPECT_EQ(
      Read("few_bytes_in_many_frames.mp3", With(Frame(), 36, XingTag("Xing", 575, 8))).Duration, 8);
}

TEST_F(TagVbrTest, DivisorsAreTheSameForEveryLayer) {
  const HeaderBits layer1{.LayerBits = 3};  // 288 kbit/s, frames of 384 samples
  const InfoMp3 info =
      Read("xing_in_layer_1.mp3", With(Stream(layer1, 17000), 36, XingTag("Xing", 100, 41796)));
  EXPECT_EQ(info.Bitrate, 128000);
  EXPECT_EQ(info.Duration, 1);  // 0.87
}

TEST_F(TagVbrTest, Mpeg25IsReckonedLikeMpeg2) {
  const HeaderBits mpeg25{.Version = 0, .BitrateIndex = 2};  // 16 kbit/s, 8,000 Hz
  const InfoMp3 info =
      Read("xing_in_mpeg_25.mp3", With(Stream(mpeg25, 17000), 100, XingTag("Xing", 100, 18000)));
  EXPECT_EQ(info.Bitrate, 20000);
}

TEST_F(TagVbrTest, IsFoundAnywhereInTheFrameAndOnlyThere) {
  const std::string tag = XingTag("Xing", 1000, 500000);
  for (const std::size_t at : {16U, 36U, 121U, 300U, 401U}) {
    EXPECT_TRUE(Read("xing_at_an_odd_place.mp3", With(Frame(), at, tag)).IsVbr) << at;
  }
  EXPECT_FALSE(Read("xing_in_the_second_frame.mp3", With(Frame(), 420, tag)).IsVbr);
  EXPECT_FALSE(Read("xing_in_lower_case.mp3", With(Frame(), 36, "xing" + tag.substr(4))).IsVbr);
}

TEST_F(TagVbrTest, FirstFrameIsOneByteShortUnlessTheScanMetItAhead) {
  // the frame is 418 bytes; the least byte of the tag's second count is its last one
  const std::string tag = XingTag("Xing", 1000, 500000 + 7);
  const std::string stream = With(Frame(), 418 - tag.size(), tag);
  EXPECT_EQ(Read("xing_at_the_frames_end.mp3", stream).FileBytes, (500000 + 7) & ~0xFF);
  EXPECT_EQ(Read("xing_at_the_frames_end_behind_a_byte.mp3", "x" + stream).FileBytes, 500000 + 7);
}

TEST_F(TagVbrTest, BringsAsManyBytesAsStandBeforeIt) {
  const std::string stream = Stream(kMpeg2Mono, 17000);
  // 13 bytes: name, flags, frames, and the first byte of the second count
  InfoMp3 info =
      Read("xing_at_13_first_byte_zero.mp3", With(stream, 13, XingTag("Xing", 300, 0x00ABCDEF)));
  EXPECT_EQ(info.Frames, 300);
  EXPECT_EQ(info.FileBytes, 17000);
  info = Read("xing_at_13_first_byte_one.mp3", With(stream, 13, XingTag("Xing", 300, 0x01ABCDEF)));
  EXPECT_EQ(info.FileBytes, 0x01000000);
}

TEST_F(TagVbrTest, TooNearTheStartItHasNoFlags) {
  for (const std::size_t at : {4U, 6U, 7U}) {
    folder_.Write("xing_without_its_flags.mp3", With(Frame(), at, XingTag("Xing", 300, 9000)));
    modMp3Infos fresh(files_);
    EXPECT_FALSE(fresh.LeggiInfoMp3(folder_.System("xing_without_its_flags.mp3")).IsVbr) << at;
  }
}

TEST_F(TagVbrTest, XingGoesBeforeInfoBeforeVbriWhereverTheyStand) {
  const std::string xing = XingTag("Xing", 1000, 500000);
  const std::string info = XingTag("Info", 2000, 500000);
  const std::string vbri = VbriTag(3000, 500000);
  const std::string noXing = With(With(Frame(), 30, vbri), 60, info);
  EXPECT_EQ(Read("vbri_before_info.mp3", noXing).Frames, 2000);
  EXPECT_EQ(Read("vbri_before_info_before_xing.mp3", With(noXing, 90, xing)).Frames, 1000);
}

TEST_F(TagVbrTest, CountsOfZeroLeaveTheFileCbr) {
  const InfoMp3 info =
      Read("xing_with_counts_of_zero.mp3", With(Frame(), 36, XingTag("Xing", 0, 0)));
  EXPECT_FALSE(info.IsVbr);
  EXPECT_EQ(info.FileBytes, 16999);
}

TEST_F(TagVbrTest, MissingByteCountIsTheFilesLength) {
  const InfoMp3 info =
      Read("xing_without_byte_count.mp3", With(Frame(), 36, XingTag("Xing", 50, 0)));
  EXPECT_TRUE(info.IsVbr);
  EXPECT_EQ(info.FileBytes, 17000);
}

TEST_F(TagVbrTest, FlagsOfZeroKeepTheCountsOfTheFileBefore) {
  const std::string silent = With(Frame(), 36, XingTag("Xing", 7, 7, 0));
  EXPECT_FALSE(Read("xing_with_no_flags_first.mp3", silent).IsVbr);
  Read("xing_before.mp3", With(Frame(), 36, XingTag("Xing", 1000, 500000)));
  const InfoMp3 info = Read("xing_with_no_flags.mp3", silent);
  EXPECT_TRUE(info.IsVbr);
  EXPECT_EQ(info.Frames, 1000);
  EXPECT_EQ(info.FileBytes, 500000);
}

TEST_F(TagVbrTest, OneFlagMovesTheOtherCountForward) {
  Read("xing_before.mp3", With(Frame(), 36, XingTag("Xing", 1000, 500000)));
  const InfoMp3 info =
      Read("xing_with_bytes_only.mp3", With(Frame(), 36, XingTag("Xing", 400000, 7, 2)));
  EXPECT_EQ(info.Frames, 1000);
  EXPECT_EQ(info.FileBytes, 400000);
}

TEST_F(TagVbrTest, NoFramesFailsAndKeepsTheRateOfTheFileBefore) {
  Read("plain_before.mp3", Stream({.BitrateIndex = 11}, 17000));
  const InfoMp3 info = Read("vbri_without_frames.mp3", With(Frame(), 36, VbriTag(0, 500000)));
  EXPECT_TRUE(info.IsVbr);
  EXPECT_EQ(info.Bitrate, 192000);
  EXPECT_EQ(info.Duration, 1);
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"LeggiTagVbr.rate", 11},
                                         {"LeggiTagVbr.Duration", 11},
                                         {"LeggiTagVbr.Bitrate", 11}}));
}

TEST_F(TagVbrTest, SamplesBeyond32BitsOverflow) {
  // 1,864,135 frames of 1152 samples are the last that fit
  EXPECT_TRUE(Read("vbri_most_frames.mp3", With(Frame(), 36, VbriTag(1864135, 700000000))).IsVbr);
  EXPECT_TRUE(reader_.Errori().empty());
  Read("vbri_one_frame_too_many.mp3", With(Frame(), 36, VbriTag(1864136, 700000000)));
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"LeggiTagVbr.rate", 6}, {"LeggiTagVbr.Duration", 11}}));
}

TEST_F(TagVbrTest, RateBeyond32BitsOverflows) {
  const InfoMp3 info =
      Read("vbri_one_frame_of_2_gigabytes.mp3", With(Frame(), 36, VbriTag(1, 0x7FFFFFFF)));
  EXPECT_EQ(info.Bitrate, 0);
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"LeggiTagVbr.rate", 6},
                                         {"LeggiTagVbr.Duration", 11},
                                         {"LeggiTagVbr.Bitrate", 6}}));
}

TEST_F(TagVbrTest, NothingByNothingIsAnOverflow) {
  Read("vbri_negative_frames_no_bytes.mp3", With(Frame(), 36, VbriTag(0x80000000U, 0)));
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"LeggiTagVbr.rate", 6}, {"LeggiTagVbr.Duration", 6}}));
}

TEST_F(TagVbrTest, CountsAbove31BitsAreNegative) {
  const InfoMp3 info =
      Read("vbri_negative_bytes.mp3", With(Frame(), 36, VbriTag(100, 0xFFFF0000U)));
  EXPECT_EQ(info.FileBytes, -65536);
  EXPECT_EQ(info.Bitrate, -201000);  // -200.704
}

}  // namespace
}  // namespace kvr5::test
