#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "mp3/Intestazione.h"
#include "mp3/Mp3Maker.h"
#include "mp3/TabelleMp3.h"

namespace kvr5::test {
namespace {

constexpr int kLayer1 = 3;
constexpr int kLayer2 = 2;
constexpr int kLayer3 = 1;

Intestazione Decoded(const HeaderBits& bits) {
  Intestazione header;
  ErroriMp3 failures;
  header.Decodifica(bits.Bytes(), 0, failures);
  EXPECT_TRUE(failures.empty());
  return header;
}

TEST(TabelleMp3, NamesTheChannelModes) {
  EXPECT_EQ(NomeModoCanale(0), "Stereo");
  EXPECT_EQ(NomeModoCanale(1), "Joint Stereo");
  EXPECT_EQ(NomeModoCanale(2), "Dual Channel");
  EXPECT_EQ(NomeModoCanale(3), "Single Channel");
  for (const int other : {-1, 4, 255}) EXPECT_EQ(NomeModoCanale(other), "");
}

TEST(TabelleMp3, NamesTheVersions) {
  EXPECT_EQ(NomeVersioneMpeg(0), "MPEG 2.5");
  EXPECT_EQ(NomeVersioneMpeg(2), "MPEG 2");
  EXPECT_EQ(NomeVersioneMpeg(3), "MPEG 1");
  for (const int other : {-1, 1, 4}) EXPECT_EQ(NomeVersioneMpeg(other), "");
}

TEST(TabelleMp3, NamesTheEmphasis) {
  EXPECT_EQ(NomiEnfasi.at(0), "No Emphasis");
  EXPECT_EQ(NomiEnfasi.at(1), "50/15 ms");
  EXPECT_EQ(NomiEnfasi.at(2), "");
  EXPECT_EQ(NomiEnfasi.at(3), "CCIT J.17");
}

TEST(TabelleMp3, CountsTheLayerBitsBackwards) {
  EXPECT_EQ(StratoMpeg(1), 3);
  EXPECT_EQ(StratoMpeg(2), 2);
  EXPECT_EQ(StratoMpeg(3), 1);
  EXPECT_EQ(StratoMpeg(0), 0);
}

TEST(TabelleMp3, OnlyASingleChannelIsMono) {
  for (const int mode : {0, 1, 2}) EXPECT_EQ(NumeroCanali(mode), 2);
  EXPECT_EQ(NumeroCanali(3), 1);
  EXPECT_EQ(NumeroCanali(4), 0);
}

TEST(TabelleMp3, SamplesOfAFrame) {
  for (const int version : {0, 2, 3}) {
    EXPECT_EQ(CampioniPerFrame(version, kLayer1), 384);
    EXPECT_EQ(CampioniPerFrame(version, kLayer2), 1152);
    EXPECT_EQ(CampioniPerFrame(version, 0), 0);
  }
  EXPECT_EQ(CampioniPerFrame(3, kLayer3), 1152);
  EXPECT_EQ(CampioniPerFrame(2, kLayer3), 576);
  EXPECT_EQ(CampioniPerFrame(0, kLayer3), 576);
}

// One row an index, as the standards print it: MPEG 1 Layers I, II, III, then the lower sampling
// frequencies' Layer I and Layers II and III.
constexpr std::array<std::array<int, 5>, 15> kBitrates{{{0, 0, 0, 0, 0},
                                                        {32, 32, 32, 32, 8},
                                                        {64, 48, 40, 48, 16},
                                                        {96, 56, 48, 56, 24},
                                                        {128, 64, 56, 64, 32},
                                                        {160, 80, 64, 80, 40},
                                                        {192, 96, 80, 96, 48},
                                                        {224, 112, 96, 112, 56},
                                                        {256, 128, 112, 128, 64},
                                                        {288, 160, 128, 144, 80},
                                                        {320, 192, 160, 160, 96},
                                                        {352, 224, 192, 176, 112},
                                                        {384, 256, 224, 192, 128},
                                                        {416, 320, 256, 224, 144},
                                                        {448, 384, 320, 256, 160}}};

TEST(TabelleMp3, BitratesOfTheStandards) {
  for (int index = 0; index < 15; ++index) {
    SCOPED_TRACE(index);
    const auto& row = kBitrates.at(static_cast<std::size_t>(index));
    EXPECT_EQ(BitrateFrame(3, kLayer1, index), row[0] * 1000);
    EXPECT_EQ(BitrateFrame(3, kLayer2, index), row[1] * 1000);
    EXPECT_EQ(BitrateFrame(3, kLayer3, index), row[2] * 1000);
    for (const int version : {0, 2}) {
      EXPECT_EQ(BitrateFrame(version, kLayer1, index), row[3] * 1000);
      EXPECT_EQ(BitrateFrame(version, kLayer2, index), row[4] * 1000);
      EXPECT_EQ(BitrateFrame(version, kLayer3, index), row[4] * 1000);
    }
  }
  EXPECT_EQ(BitrateFrame(3, kLayer3, 15), 0);
  EXPECT_EQ(BitrateFrame(3, kLayer3, -1), 0);
  EXPECT_EQ(BitrateFrame(3, 0, 9), 0);
}

TEST(TabelleMp3, SampleRatesByTheirIndex) {
  constexpr std::array<int, 4> kMpeg1{44100, 48000, 32000, 0};
  constexpr std::array<int, 4> kMpeg2{22050, 24000, 16000, 0};
  for (int index = 0; index < 4; ++index) {
    EXPECT_EQ(FrequenzaCampionamento(3, 9, index), kMpeg1.at(static_cast<std::size_t>(index)));
    EXPECT_EQ(FrequenzaCampionamento(2, 9, index), kMpeg2.at(static_cast<std::size_t>(index)));
  }
  EXPECT_EQ(FrequenzaCampionamento(1, 0, 0), 0);
}

TEST(TabelleMp3, SampleRateOfMpeg25GoesByTheBitrateIndex) {
  constexpr std::array<int, 3> kMpeg25{11025, 12000, 8000};
  for (int bitrateIndex = 0; bitrateIndex < 16; ++bitrateIndex) {
    const int expected = bitrateIndex < 3 ? kMpeg25.at(static_cast<std::size_t>(bitrateIndex)) : 0;
    for (int index = 0; index < 4; ++index) {
      EXPECT_EQ(FrequenzaCampionamento(0, bitrateIndex, index), expected) << bitrateIndex;
    }
  }
}

TEST(TabelleMp3, TurnsTheFourBytesRound) {
  EXPECT_EQ(InvertiByte(0x12345678U), 0x78563412U);
  EXPECT_EQ(InvertiByte(0x000000FFU), 0xFF000000U);
  EXPECT_EQ(InvertiByte(0), 0U);
}

TEST(LunghezzaFrame, IsRoundedNotTruncated) {
  EXPECT_EQ(LunghezzaFrame(Decoded({})), 418);                      // 417.96
  EXPECT_EQ(LunghezzaFrame(Decoded(kMpeg2Mono)), 209);              // 208.98
  EXPECT_EQ(LunghezzaFrame(Decoded({.BitrateIndex = 14})), 1045);   // 1044.9
  EXPECT_EQ(LunghezzaFrame(Decoded({.SampleRateIndex = 1})), 384);  // exactly
}

// No combination of the tables lies halfway between two lengths.
TEST(LunghezzaFrame, IsTheNearestLengthInEveryCombination) {
  for (const int version : {0, 2, 3}) {
    for (int combination = 0; combination < 3 * 15 * 3; ++combination) {
      const auto header = Decoded({.Version = version,
                                   .LayerBits = 1 + combination % 3,
                                   .BitrateIndex = combination / 3 % 15,
                                   .SampleRateIndex = combination / 45});
      if (header.SampleRate() == 0 || header.Bitrate() == 0) continue;
      const double exact = header.Campioni() / 8.0 * header.Bitrate() / header.SampleRate();
      EXPECT_LT(std::abs(LunghezzaFrame(header) - exact), 0.5) << combination;
    }
  }
}

TEST(LunghezzaFrame, PaddingAddsAByteAndFourInLayerOne) {
  const auto added = [](int layerBits) {
    return LunghezzaFrame(Decoded({.LayerBits = layerBits, .Padding = 1})) -
           LunghezzaFrame(Decoded({.LayerBits = layerBits}));
  };
  EXPECT_EQ(added(kLayer1), 4);
  EXPECT_EQ(added(kLayer2), 1);
  EXPECT_EQ(added(kLayer3), 1);
}

TEST(LunghezzaFrame, IsZeroWithoutARateAndPaddingAddsNothing) {
  EXPECT_EQ(LunghezzaFrame(Decoded({.BitrateIndex = 0})), 0);
  EXPECT_EQ(LunghezzaFrame(Decoded({.BitrateIndex = 0, .Padding = 1})), 0);
  EXPECT_EQ(LunghezzaFrame(Decoded({.Version = 0, .BitrateIndex = 9, .Padding = 1})), 0);
}

TEST(Intestazione, DecodesEveryField) {
  const auto header = Decoded({.Version = 2,
                               .LayerBits = 3,
                               .Protection = 0,
                               .BitrateIndex = 10,
                               .SampleRateIndex = 2,
                               .Padding = 1,
                               .Private = 1,
                               .ChannelMode = 2,
                               .ModeExtension = 3,
                               .Copyright = 1,
                               .Original = 0,
                               .Emphasis = 2});
  EXPECT_EQ(header.Version, 2);
  EXPECT_EQ(header.LayerBits, 3);
  EXPECT_EQ(header.Protection, 0);
  EXPECT_EQ(header.BitrateIndex, 10);
  EXPECT_EQ(header.SampleRateIndex, 2);
  EXPECT_EQ(header.Padding, 1);
  EXPECT_EQ(header.Private, 1);
  EXPECT_EQ(header.ChannelMode, 2);
  EXPECT_EQ(header.ModeExtension, 3);
  EXPECT_EQ(header.Copyright, 1);
  EXPECT_EQ(header.Original, 0);
  EXPECT_EQ(header.Emphasis, 2);
}

TEST(Intestazione, RefusesTheReservedValuesAndNothingElse) {
  EXPECT_TRUE(Decoded({}).Accettabile());
  EXPECT_TRUE(Decoded({.BitrateIndex = 0}).Accettabile());
  EXPECT_TRUE(Decoded({.Protection = 0, .Emphasis = 2}).Accettabile());
  EXPECT_FALSE(Decoded({.Version = 1}).Accettabile());
  EXPECT_FALSE(Decoded({.LayerBits = 0}).Accettabile());
  EXPECT_FALSE(Decoded({.BitrateIndex = 15}).Accettabile());
  EXPECT_FALSE(Decoded({.SampleRateIndex = 3}).Accettabile());
}

}  // namespace
}  // namespace kvr5::test
