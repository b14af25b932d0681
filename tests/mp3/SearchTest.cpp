#include <gtest/gtest.h>

#include <string>

#include "mp3/Mp3Maker.h"

// How the first frame is found, and what makes a file one without.

namespace kvr5::test {
namespace {

using SearchTest = ReaderTest;

TEST_F(SearchTest, HeaderAtTheStart) {
  const InfoMp3 info = Read("header_at_the_start.mp3", Plain());
  EXPECT_EQ(info, (InfoMp3{.Valid = true,
                           .Version = 3,
                           .Layer = 3,
                           .Bitrate = 128000,
                           .SampleRate = 44100,
                           .Channels = 2,
                           .ChannelMode = 1,
                           .Original = true,
                           .Frames = 48,
                           .FileBytes = 19999,
                           .Duration = 1,
                           .HeaderOffset = 0}));
  EXPECT_TRUE(reader_.Errori().empty());
}

TEST_F(SearchTest, FlagsOfTheHeaderReachTheRecord) {
  const InfoMp3 info =
      Read("private_copy_with_emphasis.mp3",
           Stream({.Private = 1, .ChannelMode = 3, .Original = 0, .Emphasis = 3}, 20000));
  EXPECT_TRUE(info.Private);
  EXPECT_FALSE(info.Original);
  EXPECT_EQ(info.ChannelMode, 3);
  EXPECT_EQ(info.Channels, 1);
  EXPECT_EQ(info.Emphasis, 3);
}

TEST_F(SearchTest, ProtectionBitIsNotActedOn) {
  EXPECT_TRUE(Read("with_a_checksum.mp3", Stream({.Protection = 0}, 20000)).Valid);
}

TEST_F(SearchTest, HeaderBehindATagFreeOfSyncs) {
  const std::string tag = Id3v2Tag(std::string(300, 't'));
  const InfoMp3 info = Read("frame_behind_an_id3v2_tag.mp3", tag + Plain());
  EXPECT_TRUE(info.Valid);
  EXPECT_TRUE(info.HasId3v2);
  EXPECT_EQ(info.HeaderOffset, 310);
}

TEST_F(SearchTest, JpegMarkerInATagHidesTheGoodFrames) {
  const std::string tag = Id3v2Tag("APIC" + std::string("\xFF\xD8\xFF\xE0\0\x10JFIF", 10));
  EXPECT_EQ(Read("jpeg_marker_in_the_id3v2_tag.mp3", tag + Plain()), InfoMp3());
  EXPECT_EQ(reader_.Ricerca().Sincronia, 16);
  EXPECT_EQ(reader_.Ricerca().LunghezzaId3v2, 24);
}

TEST_F(SearchTest, ByteOrderMarkInATagIsTakenForAHeader) {
  const std::string tag = Id3v2Tag("TIT2" + std::string("\xFF\xFE\x41\0\x42\0", 6));
  const InfoMp3 info = Read("byte_order_mark_in_the_id3v2_tag.mp3", tag + Plain());
  EXPECT_TRUE(info.Valid);
  EXPECT_EQ(info.Layer, 1);
  EXPECT_EQ(info.HeaderOffset, 14);
}

TEST_F(SearchTest, NoSecondCandidateBehindARefusedHeader) {
  const std::string good = Plain();
  for (const HeaderBits& bad : {HeaderBits{.Version = 1}, HeaderBits{.LayerBits = 0},
                                HeaderBits{.BitrateIndex = 15}, HeaderBits{.SampleRateIndex = 3}}) {
    EXPECT_EQ(Read("refused_header_before_a_good_one.mp3", bad.Bytes() + good), InfoMp3());
  }
}

TEST_F(SearchTest, OnlyTheFirst16KilobytesAreSearched) {
  EXPECT_EQ(Read("lead_in_as_long_as_the_buffer.mp3", std::string(kBuffer, 'x') + Plain()),
            InfoMp3());
  EXPECT_EQ(reader_.Ricerca().Sincronia, -1);
  const std::string tag = Id3v2Tag(std::string(kBuffer, 't'));
  EXPECT_EQ(Read("id3v2_tag_longer_than_the_buffer.mp3", tag + Plain()), InfoMp3());
  EXPECT_EQ(reader_.Ricerca().LunghezzaId3v2, 16394);
}

TEST_F(SearchTest, EmptyFileAndZerosHaveNoFrame) {
  EXPECT_EQ(Read("empty.mp3", ""), InfoMp3());
  EXPECT_EQ(Read("zeros.mp3", std::string(40000, '\0')), InfoMp3());
  EXPECT_EQ(Read("one_byte_of_255.mp3", "\xFF"), InfoMp3());
}

TEST_F(SearchTest, TheSecondOfTwoSyncsWinsAtTheStart) {
  const InfoMp3 info = Read("sync_after_a_stray_255.mp3", "\xFF" + Plain());
  EXPECT_TRUE(info.Valid);
  EXPECT_EQ(info.HeaderOffset, 1);
}

TEST_F(SearchTest, SyncNeedsTheTopThreeBits) {
  const InfoMp3 info = Read("byte_255_that_is_no_sync.mp3", "x\xFF\xDF\xFF\x7F" + Plain());
  EXPECT_EQ(info.HeaderOffset, 5);
}

TEST_F(SearchTest, HeaderAtEachPlaceBeforeTheBuffersEnd) {
  for (std::size_t at = kBuffer - 8; at <= kBuffer - 4; ++at) {
    const InfoMp3 info =
        Read("header_near_the_buffers_end.mp3", std::string(at, 'x') + Plain(2000));
    EXPECT_TRUE(info.Valid);
    EXPECT_EQ(info.HeaderOffset, static_cast<int>(at));
    EXPECT_TRUE(reader_.Errori().empty());
  }
}

TEST_F(SearchTest, HeaderCutByOneByteKeepsTheLastFieldsDecoded) {
  Read("before.mp3", Stream({.ChannelMode = 3, .Original = 1, .Emphasis = 1}, 2000));
  const InfoMp3 info = Read("header_cut_by_one_byte.mp3",
                            std::string(kBuffer - 3, 'x') + Stream({.BitrateIndex = 11}, 2000));
  EXPECT_TRUE(info.Valid);
  EXPECT_EQ(info.Bitrate, 192000);
  EXPECT_EQ(info.ChannelMode, 3);
  EXPECT_EQ(info.Emphasis, 1);
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"LeggiIntestazione.ChannelMode", 9},
                                         {"LeggiIntestazione.ModeExtension", 9},
                                         {"LeggiIntestazione.Copyright", 9},
                                         {"LeggiIntestazione.Original", 9},
                                         {"LeggiIntestazione.Emphasis", 9}}));
}

TEST_F(SearchTest, HeaderCutByTwoBytesKeepsTheFieldsEvenOfARefusedHeader) {
  Read("before_refused.mp3", Stream({.Version = 1, .BitrateIndex = 5, .SampleRateIndex = 2}, 2000));
  const InfoMp3 info =
      Read("header_cut_by_two_bytes.mp3", std::string(kBuffer - 2, 'x') + Plain(2000));
  EXPECT_TRUE(info.Valid);
  EXPECT_EQ(info.Bitrate, 64000);
  EXPECT_EQ(info.SampleRate, 32000);
  EXPECT_EQ(reader_.Errori().size(), 9U);
  EXPECT_EQ(reader_.Errori().front(), (ErroreMp3{"LeggiIntestazione.BitrateIndex", 9}));
}

TEST_F(SearchTest, HeaderAcrossTheBuffersEndIsFound) {
  const InfoMp3 info =
      Read("sync_across_the_buffers_end.mp3", std::string(kBuffer - 1, 'x') + Plain());
  EXPECT_TRUE(info.Valid);
  EXPECT_EQ(info.HeaderOffset, 16383);
  EXPECT_EQ(info.FileBytes, 19999);
  EXPECT_TRUE(reader_.Errori().empty());
}

TEST_F(SearchTest, Id3v1BeforeAHeaderAcrossTheBuffersEnd) {
  const std::string lead = With(std::string(kBuffer - 1, 'x'), kBuffer - 1 - 28, "TAG");
  EXPECT_TRUE(Read("id3v1_before_the_split_sync.mp3", lead + Plain(100)).HasId3v1);
  EXPECT_FALSE(Read("no_id3v1_before_the_split_sync.mp3", lead + Plain(101)).HasId3v1);
}

TEST_F(SearchTest, HeaderAcrossTheEndTakesWhatTheFileLacksFromTheFirstLoad) {
  // of the reloaded buffer only two bytes come from the file; the third and fourth are the old ones
  const std::string lead = With(std::string(kBuffer - 1, 'x'), 2, "\x90\xC0");
  const InfoMp3 info = Read("file_ends_after_the_split_sync.mp3", lead + "\xFF\xFB");
  EXPECT_TRUE(info.Valid);
  EXPECT_EQ(info.Bitrate, 128000);
  EXPECT_EQ(info.Channels, 1);
  EXPECT_EQ(info.FileBytes, 1);
}

TEST_F(SearchTest, Byte255AtTheBuffersEndWithoutASyncBehindIt) {
  const std::string lead = std::string(kBuffer - 1, 'x') + "\xFF";
  EXPECT_EQ(Read("stray_255_at_the_buffers_end.mp3", lead + "x" + Plain()), InfoMp3());
  EXPECT_EQ(Read("file_ends_with_255_at_the_buffers_end.mp3", lead), InfoMp3());
}

TEST_F(SearchTest, Id3v1AtThe128thByteFromTheEnd) {
  const std::string tag = "TAG" + std::string(125, ' ');
  EXPECT_TRUE(Read("id3v1.mp3", Plain() + tag).HasId3v1);
  EXPECT_TRUE(Read("id3v1_in_the_buffer.mp3", Plain(500) + tag).HasId3v1);
  EXPECT_FALSE(Read("id3v1_one_byte_late.mp3", Plain() + tag + " ").HasId3v1);
  EXPECT_FALSE(Read("id3v1_in_lower_case.mp3", Plain() + "tag" + tag.substr(3)).HasId3v1);
}

TEST_F(SearchTest, Id3v1CountsAsAudio) {
  const InfoMp3 info = Read("id3v1_counted.mp3", Plain() + "TAG" + std::string(125, ' '));
  EXPECT_EQ(info.FileBytes, 20127);
}

TEST_F(SearchTest, FileTooShortForTheClosingTag) {
  for (const std::size_t size : {4U, 126U, 127U}) {
    EXPECT_FALSE(Read("shorter_than_an_id3v1_tag.mp3", Plain(size)).HasId3v1);
    EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"RilevaTagId3.TAG", 63}})) << size;
  }
  EXPECT_TRUE(
      Read("as_long_as_an_id3v1_tag.mp3", With(Plain(128), 0, "TAG\xFF\xFB\x90\x44")).HasId3v1);
  EXPECT_TRUE(reader_.Errori().empty());
}

TEST_F(SearchTest, TagAtTheVeryStartOfAShortFileIsNoClosingTag) {
  EXPECT_FALSE(Read("tag_at_the_start_of_a_short_file.mp3", "TAG" + Plain(100)).HasId3v1);
}

}  // namespace
}  // namespace kvr5::test
