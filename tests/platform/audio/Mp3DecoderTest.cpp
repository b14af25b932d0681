#include <gtest/gtest.h>

#include <random>

#include "platform/HostFileSystem.h"
#include "platform/audio/Mp3Decoder.h"
#include "platform/audio/Tone.h"
#include "road/Encoder.h"
#include "support/FaultyFileSystem.h"
#include "support/TempFolder.h"

namespace kvr5 {
namespace {

using test::Sound;

class Decoding : public testing::Test {
 protected:
  /// Encodes a tone of two seconds; skips the test where no encoder is.
  void Encode(const std::string& name, const std::string& options, int hertz = 440) {
    if (!test::EncodeMp3((folder.Host() / name).string(), options, hertz)) {
      GTEST_SKIP() << "the encoder lame isn't there";
    }
  }
  std::unique_ptr<Mp3Decoder> Open(const std::string& name, int error = 0) {
    auto decoder = Mp3Decoder::Open(faulty, folder.System(name));
    EXPECT_EQ(decoder.Err().Number(), error) << name;
    return decoder ? std::move(decoder.Value()) : nullptr;
  }
  static Sound All(Mp3Decoder& decoder) {
    Sound sound;
    std::array<std::int16_t, 2000> piece{};
    while (const std::size_t got = decoder.Read(piece)) {
      for (std::size_t i = 0; i + 1 < got; i += 2) sound.push_back({piece[i], piece[i + 1]});
    }
    return sound;
  }
  Sound All(const std::string& name) {
    const auto decoder = Open(name);
    return decoder ? All(*decoder) : Sound();
  }

  test::TempFolder folder;
  PathMap paths;
  HostFileSystem files{paths};
  test::FaultyFileSystem faulty{files};
};

TEST_F(Decoding, GivesWhatWasEncodedFromItsFirstToItsLastSample) {
  Encode("a.mp3", "-b 128 --cbr");
  if (IsSkipped()) return;
  const auto decoder = Open("a.mp3");
  ASSERT_NE(decoder, nullptr);
  EXPECT_EQ(decoder->Rate(), 44100);
  const Sound sound = All(*decoder);
  EXPECT_EQ(sound.size(), 2U * 44100U) << "what the encoder adds at both ends is taken off";
  EXPECT_LT(test::DifferenceFromTone(sound, 440), 60) << "half a hundredth of its level";
  std::array<std::int16_t, 10> more{};
  EXPECT_EQ(decoder->Read(more), 0U) << "the end stays the end";
}

TEST_F(Decoding, OneChannelIsHeardOnBothSides) {
  Encode("a.mp3", "-b 64 --cbr");
  if (IsSkipped()) return;
  EXPECT_TRUE(test::IsMono(All("a.mp3")));
}

TEST_F(Decoding, EveryRateIsTold) {
  for (const auto& [options, rate] : {std::pair("-b 128 --resample 48", 48000),
                                      {"-V 2 --resample 32", 32000},
                                      {"-b 64 --resample 22.05", 22050},
                                      {"-b 32 --resample 8", 8000}}) {
    Encode("a.mp3", options);
    if (IsSkipped()) return;
    const auto decoder = Open("a.mp3");
    ASSERT_NE(decoder, nullptr);
    EXPECT_EQ(decoder->Rate(), rate);
    EXPECT_NEAR(test::Frequency(All(*decoder), rate), 440, 2) << options;
  }
}

TEST_F(Decoding, ARateThatChangesOnTheWayIsBroughtToTheFirst) {
  Encode("a.mp3", "-b 128 --cbr");
  Encode("b.mp3", "-b 64 --cbr --resample 22.05");
  if (IsSkipped()) return;
  folder.Write("both.mp3", folder.Read("a.mp3") + folder.Read("b.mp3"));
  const Sound sound = All("both.mp3");
  EXPECT_NEAR(static_cast<double>(sound.size()), 4 * 44100, 6000) << "both halves, and their gap";
  for (const int second : {1, 3}) {
    const Sound part(sound.begin() + second * 44100, sound.begin() + second * 44100 + 22050);
    EXPECT_NEAR(test::Frequency(part, 44100), 440, 4);
  }
}

TEST_F(Decoding, TagsInFrontArePassedOver) {
  Encode("a.mp3", "-b 128 --cbr");
  if (IsSkipped()) return;
  // ID3v2.3 with a body of 200,000 bytes, seven bits to a byte of its length.
  std::string tag("ID3\x03\x00\x00\x00\x0C\x1A\x40", 10);
  tag.resize(10 + 200000, '\0');
  folder.Write("tagged.mp3", tag + folder.Read("a.mp3"));
  EXPECT_EQ(All("tagged.mp3").size(), 2U * 44100U);
}

TEST_F(Decoding, ADamagedPlaceInTheMiddleIsPassedOver) {
  Encode("a.mp3", "-b 128 --cbr");
  if (IsSkipped()) return;
  std::string bytes = folder.Read("a.mp3");
  bytes.replace(bytes.size() / 2, 5000, std::string(5000, '\x11'));
  folder.Write("a.mp3", bytes);
  EXPECT_GT(All("a.mp3").size(), 44100U * 3 / 2);
}

TEST_F(Decoding, WhatIsNoMp3Fails) {
  folder.Write("empty.mp3", "");
  folder.Write("words.mp3", std::string(40000, 'w'));
  folder.Write("zeros.mp3", std::string(40000, '\0'));
  folder.Write("cut.mp3", std::string("\xFF\xFB\x90\x64", 4));
  std::filesystem::create_directory(folder.Host() / "folder.mp3");
  for (const char* name : {"empty.mp3", "words.mp3", "zeros.mp3", "cut.mp3"}) {
    Open(name, errors::TypeMismatch);
  }
  Open("missing.mp3", errors::FileNotFound);
  Open("nowhere\\a.mp3", errors::PathNotFound);
  Open("folder.mp3", errors::PathFileAccess);
}

TEST_F(Decoding, AFileThatCantBeReadAnyFurtherEndsThere) {
  Encode("a.mp3", "-b 128 --cbr");
  if (IsSkipped()) return;
  const auto decoder = Open("a.mp3");
  ASSERT_NE(decoder, nullptr);
  faulty.FailReadsAfter("", folder.Read("a.mp3").size() / 2, errors::DeviceUnavailable);
  const Sound sound = All(*decoder);
  EXPECT_GT(sound.size(), 44100U / 2);
  EXPECT_LT(sound.size(), 2U * 44100U);
  faulty.FailReadsAfter("", 0, errors::DeviceUnavailable);
  Open("a.mp3", errors::TypeMismatch);
}

TEST_F(Decoding, NoBytesBreakIt) {
  Encode("a.mp3", "-b 64 --cbr");
  if (IsSkipped()) return;
  const std::string whole = folder.Read("a.mp3");
  std::mt19937 random(7);
  const auto any = [&random](std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
  };
  for (int round = 0; round < 60; ++round) {
    std::string bytes = whole.substr(any(whole.size() / 2));
    for (std::size_t i = any(400); i > 0; --i)
      bytes[any(bytes.size())] = static_cast<char>(any(256));
    folder.Write("odd.mp3", bytes);
    const auto decoder = Mp3Decoder::Open(files, folder.System("odd.mp3"));
    if (decoder) {
      EXPECT_LT(All(*decoder.Value()).size(), 100U * 44100U);
    }
  }
}

}  // namespace
}  // namespace kvr5
