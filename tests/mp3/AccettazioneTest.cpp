#include <gtest/gtest.h>

#include "mp3/Accettazione.h"
#include "mp3/Mp3Maker.h"

namespace kvr5::test {
namespace {

InfoMp3 Record(std::int32_t bitrate, std::int32_t sampleRate = 44100, std::int32_t version = 3,
               std::uint8_t layer = 3) {
  return {.Valid = true,
          .Version = version,
          .Layer = layer,
          .Bitrate = bitrate,
          .SampleRate = sampleRate,
          .Channels = 2};
}

TEST(Accettazione, BitrateFrom60To320) {
  for (const int kbit : {60, 64, 128, 320}) {
    EXPECT_TRUE(BuonoPerEditor(Record(kbit * 1000))) << kbit;
    EXPECT_TRUE(BuonoPerIngressi(Record(kbit * 1000))) << kbit;
  }
  for (const int kbit : {-128, 0, 56, 59, 321, 384}) {
    EXPECT_FALSE(BuonoPerEditor(Record(kbit * 1000))) << kbit;
    EXPECT_FALSE(BuonoPerIngressi(Record(kbit * 1000))) << kbit;
    EXPECT_EQ(MotivoPerEditor(Record(kbit * 1000), {}), RifiutoMp3::BitrateFuori);
  }
}

TEST(Accettazione, HalfAKilobitGoesToTheEvenOne) {
  EXPECT_TRUE(BuonoPerEditor(Record(59500)));
  EXPECT_FALSE(BuonoPerEditor(Record(59499)));
  EXPECT_TRUE(BuonoPerEditor(Record(320500)));
  EXPECT_FALSE(BuonoPerEditor(Record(320501)));
}

TEST(Accettazione, SampleRateFrom22050To44100) {
  EXPECT_TRUE(BuonoPerEditor(Record(128000, 44100)));
  EXPECT_TRUE(BuonoPerEditor(Record(128000, 32000)));
  EXPECT_TRUE(BuonoPerIngressi(Record(128000, 32000)));
  EXPECT_TRUE(BuonoPerEditor(Record(128000, 24000, 2)));
  EXPECT_TRUE(BuonoPerEditor(Record(128000, 22050, 2)));
  for (const int rate : {0, 8000, 12000, 16000, 48000}) {
    EXPECT_EQ(MotivoPerEditor(Record(128000, rate), {}), RifiutoMp3::FrequenzaFuori) << rate;
  }
}

TEST(Accettazione, OnlyLayerThree) {
  for (const std::uint8_t layer : {std::uint8_t{1}, std::uint8_t{2}}) {
    EXPECT_FALSE(BuonoPerEditor(Record(128000, 44100, 3, layer)));
    EXPECT_EQ(MotivoPerIngressi(Record(128000, 44100, 3, layer), {}), RifiutoMp3::NonLayer3);
  }
}

TEST(Accettazione, InputsTakeMpeg1Only) {
  const InfoMp3 mpeg2 = Record(64000, 22050, 2);
  EXPECT_TRUE(BuonoPerEditor(mpeg2));
  EXPECT_FALSE(BuonoPerIngressi(mpeg2));
  EXPECT_EQ(MotivoPerIngressi(mpeg2, {}), RifiutoMp3::NonMpeg1);
  EXPECT_FALSE(BuonoPerIngressi(Record(64000, 32000, 0)));
}

TEST(Accettazione, NoRecordIsNoStream) {
  EXPECT_FALSE(BuonoPerEditor({}));
  EXPECT_FALSE(BuonoPerIngressi({}));
  EXPECT_FALSE(BuonoInMassa({}, {}));
  EXPECT_EQ(MotivoPerEditor({}, {}), RifiutoMp3::NessunFlusso);
}

TEST(Accettazione, RunsOverListsRefuseAFileOnWhichSomethingFailed) {
  const InfoMp3 good = Record(128000);
  const ErroriMp3 failures{{"RilevaTagId3.TAG", 63}};
  EXPECT_TRUE(BuonoInMassa(good, {}));
  EXPECT_FALSE(BuonoInMassa(good, failures));
  EXPECT_EQ(MotivoInMassa(good, {}, failures), RifiutoMp3::ErroreInAnalisi);
  EXPECT_EQ(MotivoInMassa(Record(0), {}, failures), RifiutoMp3::BitrateFuori);
  EXPECT_EQ(MotivoInMassa(good, {}, {}), RifiutoMp3::Nessuno);
}

class MotivoTest : public ReaderTest {
 protected:
  RifiutoMp3 MotivoOf(const std::string& name, const std::string& bytes) {
    const InfoMp3 info = Read(name, bytes);
    return MotivoPerEditor(info, reader_.Ricerca());
  }
  const std::string stream_ = Stream({}, 20000);
};

TEST_F(MotivoTest, SyncInTheTagHidesTheFirstFrame) {
  const std::string cover = Id3v2Tag("APIC\xFF\xD8\xFF\xE0 JFIF");
  EXPECT_EQ(MotivoOf("cover.mp3", cover + stream_), RifiutoMp3::TagNascondeFrame);
  const std::string title = Id3v2Tag(std::string("TIT2\xFF\xFE\x41\0\x42\0", 10));
  EXPECT_EQ(MotivoOf("title.mp3", title + stream_), RifiutoMp3::TagNascondeFrame);
}

TEST_F(MotivoTest, TagThatFillsTheSearchHidesTheFirstFrame) {
  EXPECT_EQ(MotivoOf("long_tag.mp3", Id3v2Tag(std::string(16384 - 10, 't')) + stream_),
            RifiutoMp3::TagNascondeFrame);
  EXPECT_EQ(MotivoOf("longest_good_tag.mp3", Id3v2Tag(std::string(16383 - 10, 't')) + stream_),
            RifiutoMp3::Nessuno);
}

TEST_F(MotivoTest, TagBeforeSomethingElseIsNotToBlame) {
  const std::string tag = Id3v2Tag(std::string(100, 't'));
  EXPECT_EQ(MotivoOf("tag_and_nothing.mp3", tag + std::string(20000, 'x')),
            RifiutoMp3::NessunFlusso);
  EXPECT_EQ(MotivoOf("longest_tag_and_nothing.mp3",
                     Id3v2Tag(std::string(16383 - 10, 't')) + std::string(20000, 'x')),
            RifiutoMp3::NessunFlusso);
  EXPECT_EQ(MotivoOf("tag_and_layer_2.mp3", tag + Stream({.LayerBits = 2}, 20000)),
            RifiutoMp3::NonLayer3);
  EXPECT_EQ(MotivoOf("tag_and_bad_header.mp3", tag + Stream({.BitrateIndex = 15}, 20000)),
            RifiutoMp3::NessunFlusso);
}

TEST_F(MotivoTest, FooterBelongsToTheTag) {
  std::string tag = Id3v2Tag("TIT2");
  tag[5] = '\x10';
  tag += std::string("3DI\xFF\xE0\0\0\0\0\0", 10);
  EXPECT_EQ(MotivoOf("tag_with_a_footer.mp3", tag + stream_), RifiutoMp3::TagNascondeFrame);
}

TEST_F(MotivoTest, GoodFileHasNone) {
  EXPECT_EQ(MotivoOf("good.mp3", stream_), RifiutoMp3::Nessuno);
  // a look-up that finds nothing forgets the tag of the file before
  Read("long_tag.mp3", Id3v2Tag(std::string(16384, 't')));
  reader_.LeggiInfoMp3(folder_.System("missing.mp3"));
  EXPECT_EQ(MotivoPerEditor({}, reader_.Ricerca()), RifiutoMp3::NessunFlusso);
}

}  // namespace
}  // namespace kvr5::test
