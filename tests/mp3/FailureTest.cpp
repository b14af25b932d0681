#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "mp3/Accettazione.h"
#include "mp3/Mp3Maker.h"

// Files that can't be read, have odd lengths or rates, and what is asked of the disk.

namespace kvr5::test {
namespace {

namespace fs = std::filesystem;

using FailureTest = ReaderTest;

TEST_F(FailureTest, MissingFileGivesZerosAndIsNotMade) {
  EXPECT_EQ(reader_.LeggiInfoMp3(folder_.System("missing.mp3")), InfoMp3());
  EXPECT_EQ(reader_.LeggiInfoMp3(folder_.System("no folder\\missing.mp3")), InfoMp3());
  EXPECT_EQ(reader_.LeggiInfoMp3(""), InfoMp3());
  EXPECT_TRUE(reader_.Errori().empty());
  EXPECT_TRUE(fs::is_empty(folder_.Host()));
}

TEST_F(FailureTest, FolderAndHiddenFileAreNotFound) {
  fs::create_directory(folder_.Host() / "folder.mp3");
  EXPECT_EQ(reader_.LeggiInfoMp3(folder_.System("folder.mp3")), InfoMp3());
  EXPECT_EQ(Read(".hidden.mp3", Plain()), InfoMp3());
  EXPECT_EQ(files_.Reads, 0);
}

TEST_F(FailureTest, FileThatDoesNotOpenGivesZeros) {
  files_.RefuseOpen = true;
  EXPECT_EQ(Read("refused.mp3", Plain()), InfoMp3());
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"LeggiInfoMp3.Open", 70}}));
}

TEST_F(FailureTest, FirstReadThatFailsGivesZeros) {
  files_.FailingRead = 1;
  EXPECT_EQ(Read("broken_from_the_start.mp3", Plain()), InfoMp3());
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"TrovaIntestazione.Get", 57}}));
  EXPECT_EQ(files_.OpenFiles, 0);
}

TEST_F(FailureTest, EndThatCanNotBeReadHasNoClosingTag) {
  files_.FailingRead = 2;
  const InfoMp3 info = Read("broken_end.mp3", Plain() + "TAG" + std::string(125, ' '));
  EXPECT_TRUE(info.Valid);
  EXPECT_FALSE(info.HasId3v1);
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"RilevaTagId3.TAG", 57}}));
  EXPECT_TRUE(BuonoPerEditor(info));
  EXPECT_FALSE(BuonoInMassa(info, reader_.Errori()));
}

TEST_F(FailureTest, FrameThatCanNotBeReadHasNoTag) {
  files_.FailingRead = 3;
  const std::string tagged = With(Plain(3000), 36, XingTag("Xing", 1000, 500000));
  EXPECT_FALSE(Read("broken_first_frame.mp3", std::string(16370, 'x') + tagged).IsVbr);
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"LeggiIntestazione.Get", 57}}));
}

TEST_F(FailureTest, ReadAtTheBuffersEndThatFailsFindsNothing) {
  for (const int failing : {2, 3, 4}) {
    files_.Reads = 0;
    files_.FailingRead = failing;
    EXPECT_EQ(Read("broken_at_the_buffers_end.mp3", std::string(16383, 'x') + Plain()), InfoMp3());
    EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"TrovaIntestazione.Get", 57}}));
  }
}

TEST_F(FailureTest, EachCallStartsWithoutErrors) {
  Read("short.mp3", Plain(10));
  EXPECT_FALSE(reader_.Errori().empty());
  Read("long.mp3", Plain());
  EXPECT_TRUE(reader_.Errori().empty());
}

TEST_F(FailureTest, FreeFormatHasNoRateAndKeepsTheFiguresBefore) {
  Read("plain_before.mp3", Stream({.BitrateIndex = 1}, 20001));  // 32 kbit/s, 5 s
  const InfoMp3 info = Read("free_format.mp3", Stream({.BitrateIndex = 0}, 20000));
  EXPECT_TRUE(info.Valid);
  EXPECT_EQ(info.Bitrate, 0);
  EXPECT_EQ(info.Frames, -39998);
  EXPECT_EQ(info.Duration, 5);
  EXPECT_EQ(info.FileBytes, 20000);
  EXPECT_EQ(reader_.Errori(),
            (ErroriMp3{{"LeggiIntestazione.ReDim", 9}, {"CalcolaCbr.Duration", 11}}));
  EXPECT_FALSE(BuonoPerEditor(info));
}

TEST_F(FailureTest, FreeFormatIsReadIntoTheFrameOfTheFileBefore) {
  const std::string tag = XingTag("Xing", 1000, 500000);
  const std::string free = With(Stream({.BitrateIndex = 0}, 20000), 36, tag);
  EXPECT_FALSE(Read("free_format_with_a_tag_first.mp3", free).IsVbr);
  Read("plain_before.mp3", Plain());
  EXPECT_TRUE(Read("free_format_with_a_tag.mp3", free).IsVbr);
  // a shorter file leaves the rest of that frame, tag and all
  EXPECT_TRUE(Read("free_format_of_30_bytes.mp3", Stream({.BitrateIndex = 0}, 30)).IsVbr);
}

TEST_F(FailureTest, FrameThatIsSizedIsClearedFirst) {
  Read("tagged_before.mp3", With(Plain(), 36, XingTag("Xing", 1000, 500000)));
  EXPECT_FALSE(Read("only_a_header.mp3", Plain(4)).IsVbr);
}

TEST_F(FailureTest, Mpeg25WithoutASampleRateIsNeverGood) {
  const InfoMp3 info = Read("mpeg_25_bitrate_index_9.mp3", Stream({.Version = 0}, 20000));
  EXPECT_TRUE(info.Valid);
  EXPECT_EQ(info.SampleRate, 0);
  EXPECT_FALSE(BuonoPerEditor(info));
}

TEST_F(FailureTest, EveryLengthFromNothingToAFrame) {
  for (std::size_t size = 0; size <= 130; ++size) {
    SCOPED_TRACE(size);
    const InfoMp3 info = Read("head_of_a_file.mp3", Plain(20000).substr(0, size));
    EXPECT_EQ(info.Valid, size >= 2);
    if (size >= 4) {
      EXPECT_EQ(info.FileBytes, static_cast<int>(size) - 1);
    }
    EXPECT_FALSE(Read("zeros.mp3", std::string(size, '\0')).Valid);
  }
}

// Lengths are signed 32-bit numbers: what hangs on one of 2 GiB or more overflows.
class HugeFileTest : public FailureTest {
 protected:
  InfoMp3 ReadStretched(const std::string& name, const std::string& head, std::uintmax_t size) {
    folder_.Write(name, head);
    fs::resize_file(folder_.Host() / name, size);
    return reader_.LeggiInfoMp3(folder_.System(name));
  }
};

TEST_F(HugeFileTest, LengthThatJustFits) {
  const InfoMp3 info = ReadStretched("just_under_2_gigabytes.mp3", Plain(), 0x7FFFFFFFU);
  EXPECT_EQ(info.FileBytes, 0x7FFFFFFE);
  EXPECT_EQ(info.Duration, 134218);
  EXPECT_TRUE(reader_.Errori().empty());
}

TEST_F(HugeFileTest, LengthBeyond31BitsKeepsTheFiguresBefore) {
  Read("before.mp3", Plain(32001));
  for (const std::uintmax_t size : {0x80000000ULL, 3ULL << 30, (1ULL << 32) + 20000}) {
    const InfoMp3 info = ReadStretched("two_gigabytes_and_more.mp3", Plain(), size);
    EXPECT_TRUE(info.Valid);
    EXPECT_EQ(info.Bitrate, 128000);
    EXPECT_EQ(info.FileBytes, 32000);
    EXPECT_EQ(info.Duration, 2);
    EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"RilevaTagId3.TAG", 6}, {"CalcolaCbr.audio", 6}}));
    EXPECT_FALSE(BuonoInMassa(info, reader_.Errori()));
  }
}

TEST_F(HugeFileTest, TagWithoutAByteCountHasNoLengthToTake) {
  const std::string head = With(Plain(), 36, XingTag("Xing", 1000, 0));
  ReadStretched("3_gigabytes_without_byte_count.mp3", head, 3ULL << 30);
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"RilevaTagId3.TAG", 6},
                                         {"LeggiTagVbr.FileBytes", 6},
                                         {"LeggiTagVbr.Duration", 6}}));
}

TEST_F(HugeFileTest, FreeFormatBeyondABillionBytesOverflowsInFrames) {
  ReadStretched("free_format_of_1_gigabyte.mp3", Stream({.BitrateIndex = 0}, 100), (1U << 30) + 10);
  EXPECT_EQ(reader_.Errori(), (ErroriMp3{{"LeggiIntestazione.ReDim", 9},
                                         {"CalcolaCbr.Frames", 6},
                                         {"CalcolaCbr.Duration", 11}}));
}

using AccessTest = ReaderTest;

TEST_F(AccessTest, OrdinaryFileTakesItsStartAndTheClosingTag) {
  Read("ordinary.mp3", With(Plain(), 36, XingTag("Xing", 1000, 500000)));
  EXPECT_EQ(files_.Reads, 2);
  EXPECT_EQ(files_.Wanted, 4096U + 3U);
  EXPECT_EQ(files_.OpenFiles, 0);
}

TEST_F(AccessTest, ShortFileTakesOneRead) {
  Read("short.mp3", Plain(4095));
  EXPECT_EQ(files_.Reads, 1);
}

TEST_F(AccessTest, LeadInTakesTheWholeBufferOnce) {
  Read("lead_in.mp3", std::string(5000, 'x') + Plain());
  EXPECT_EQ(files_.Reads, 3);
  EXPECT_EQ(files_.Wanted, 16384U + 3U);
}

TEST_F(AccessTest, FileWithoutASyncTakesTheWholeBufferAndNoMore) {
  Read("no_sync.mp3", std::string(100000, 'x'));
  EXPECT_EQ(files_.Reads, 2);
  EXPECT_EQ(files_.Wanted, 16384U);
}

TEST_F(AccessTest, FrameBeyondTheBufferIsReadAlone) {
  Read("frame_beyond_the_buffer.mp3", std::string(16300, 'x') + Plain());
  EXPECT_EQ(files_.Reads, 4);
  EXPECT_EQ(files_.Wanted, 16384U + 418U + 3U);
}

// The buffer is loaded in two steps; where the first one ends must not show.
TEST_F(AccessTest, HeaderAroundTheFirstStepIsFoundWhole) {
  const std::string tagged =
      With(Stream({.ChannelMode = 2}, 9000), 36, XingTag("Xing", 1000, 500000));
  for (std::size_t at = 4096 - 60; at < 4096 + 4; ++at) {
    SCOPED_TRACE(at);
    const InfoMp3 info = Read("header_around_the_first_step.mp3", std::string(at, 'x') + tagged);
    EXPECT_EQ(info.HeaderOffset, static_cast<int>(at));
    EXPECT_EQ(info.ChannelMode, 2);
    EXPECT_EQ(info.FileBytes, 500000);
    EXPECT_TRUE(reader_.Errori().empty());
  }
}

TEST_F(AccessTest, FileThatEndsAroundTheFirstStep) {
  for (std::size_t size = 4096 - 3; size < 4096 + 4; ++size) {
    SCOPED_TRACE(size);
    const InfoMp3 info =
        Read("file_ends_around_the_first_step.mp3", std::string(4088, 'x') + Plain(size - 4088));
    EXPECT_TRUE(info.Valid);
    EXPECT_EQ(info.FileBytes, static_cast<int>(size) - 4089);
    EXPECT_FALSE(Read("no_sync.mp3", std::string(size, 'x')).Valid);
  }
}

}  // namespace
}  // namespace kvr5::test
