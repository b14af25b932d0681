#include <gtest/gtest.h>

#include <csignal>

#include "platform/audio/Devices.h"
#include "platform/audio/Mp3Player.h"

namespace kvr5 {
namespace {

using test::Ends;
using test::Sound;

class Playing : public test::Devices {
 protected:
  void SetUp() override {
    if (!Encode("a.mp3")) GTEST_SKIP() << "the encoder lame isn't there";
    HearInto("heard.raw");
  }
};

TEST_F(Playing, ComesToItsEndInItsOwnTimeAndSaysSo) {
  Use("dummy");
  Mp3Player player(files, host);
  const Ends ends(player);
  ASSERT_EQ(Open(player, "a.mp3"), 0);
  EXPECT_FALSE(player.Play());
  EXPECT_TRUE(Eventually([&] { return ends.Count == 1; }));
}

TEST_F(Playing, AllOfTheFileIsHeard) {
  Mp3Player player(files, host);
  const Ends ends(player);
  ASSERT_EQ(Open(player, "a.mp3"), 0);
  ASSERT_FALSE(player.Play());
  ASSERT_TRUE(Eventually([&] { return ends.Count == 1; }));
  player.Close();
  const Sound sound = test::Trimmed(Heard("heard.raw"));
  EXPECT_NEAR(static_cast<double>(sound.size()), 2 * 44100, 8);
  EXPECT_LT(test::DifferenceFromTone(sound, 440), 60) << "half a hundredth of its level";
  EXPECT_TRUE(test::IsMono(sound)) << "on both sides";
}

TEST_F(Playing, TheEndIsToldOnceAndNothingIsHeardBehindIt) {
  Mp3Player player(files, host);
  const Ends ends(player);
  ASSERT_EQ(Open(player, "a.mp3"), 0);
  ASSERT_FALSE(player.Play());
  ASSERT_TRUE(Eventually([&] { return ends.Count == 1; }));
  const auto length = Length("heard.raw");
  EXPECT_TRUE(Eventually([&] { return Length("heard.raw") > length + 100000; }));
  EXPECT_FALSE(player.Play());
  EXPECT_TRUE(Eventually([&] { return Length("heard.raw") > length + 200000; }));
  player.Close();
  EXPECT_EQ(ends.Count, 1);
  EXPECT_NEAR(static_cast<double>(test::Trimmed(Heard("heard.raw")).size()), 2 * 44100, 8);
}

TEST_F(Playing, NothingIsHeardBeforeItPlays) {
  Mp3Player player(files, host);
  ASSERT_EQ(Open(player, "a.mp3"), 0);
  EXPECT_TRUE(Eventually([&] { return Length("heard.raw") > 20000; }));
  player.Close();
  EXPECT_TRUE(test::Trimmed(Heard("heard.raw")).empty());
}

TEST_F(Playing, AStopSilencesItAtOnceAndKeepsThePlace) {
  Mp3Player player(files, host);
  const Ends ends(player);
  ASSERT_EQ(Open(player, "a.mp3"), 0);
  ASSERT_FALSE(player.Play());
  ASSERT_TRUE(Eventually([&] { return Length("heard.raw") > 100000; }));
  player.Stop();
  const auto stopped = Length("heard.raw");
  ASSERT_TRUE(Eventually([&] { return Length("heard.raw") > stopped + 100000; }));
  Sound tail = Heard("heard.raw");
  tail.erase(tail.begin(), tail.begin() + static_cast<std::ptrdiff_t>(stopped / 4 + 2 * 1024));
  EXPECT_TRUE(test::Trimmed(tail).empty()) << "but for what the device had";
  EXPECT_EQ(ends.Count, 0);
  ASSERT_FALSE(player.Play());
  EXPECT_TRUE(Eventually([&] { return ends.Count == 1; }));
  player.Close();
  Sound sound = Heard("heard.raw");
  std::erase_if(sound, [](const test::Frame& each) { return each.Left == 0; });
  EXPECT_NEAR(static_cast<double>(sound.size()), 2 * 44100, 1000) << "nothing twice, nothing lost";
}

TEST_F(Playing, TwoAreHeardAtOnceAndOneEndsWithoutTheOther) {
  ASSERT_TRUE(Encode("b.mp3", 880));
  Mp3Player first(files, host);
  Mp3Player second(files, host);
  const Ends ends(first);
  const Ends others(second);
  ASSERT_EQ(Open(first, "a.mp3"), 0);
  HearInto("second.raw");
  ASSERT_EQ(Open(second, "b.mp3"), 0);
  ASSERT_FALSE(first.Play());
  ASSERT_FALSE(second.Play());
  ASSERT_TRUE(Eventually([&] { return Length("second.raw") > 50000; }));
  second.Stop();
  second.Close();
  EXPECT_TRUE(Eventually([&] { return ends.Count == 1; }));
  first.Close();
  EXPECT_EQ(others.Count, 0);
  EXPECT_LT(test::DifferenceFromTone(test::Trimmed(Heard("heard.raw")), 440), 60);
  EXPECT_LT(test::DifferenceFromTone(test::Trimmed(Heard("second.raw")), 880), 60);
}

TEST_F(Playing, AnotherFileTakesThePlaceOfTheOneThatPlays) {
  ASSERT_TRUE(Encode("b.mp3", 880));
  Mp3Player player(files, host);
  const Ends ends(player);
  ASSERT_EQ(Open(player, "a.mp3"), 0);
  ASSERT_FALSE(player.Play());
  HearInto("second.raw");
  ASSERT_EQ(Open(player, "b.mp3"), 0);
  ASSERT_FALSE(player.Play());
  ASSERT_TRUE(Eventually([&] { return ends.Count == 1; }));
  player.Close();
  EXPECT_LT(test::DifferenceFromTone(test::Trimmed(Heard("second.raw")), 880), 60);
}

TEST_F(Playing, ACloseInTheMiddleIsTheEndOfItAndNoneIsTold) {
  for (int round = 0; round < 20; ++round) {
    Mp3Player player(files, host);
    const Ends ends(player);
    ASSERT_EQ(Open(player, "a.mp3"), 0);
    ASSERT_FALSE(player.Play());
    if (round % 2 == 0) player.Close();  // else by going away
    EXPECT_EQ(player.Play().Number(), round % 2 == 0 ? errors::DeviceUnavailable : 0);
    EXPECT_EQ(ends.Count, 0);
  }
}

TEST_F(Playing, AFileThatIsCutShortWhileItPlaysEndsThere) {
  Mp3Player player(files, host);
  const Ends ends(player);
  ASSERT_EQ(Open(player, "a.mp3"), 0);
  std::filesystem::resize_file(folder.Host() / "a.mp3", 10000);
  ASSERT_FALSE(player.Play());
  EXPECT_TRUE(Eventually([&] { return ends.Count == 1; }));
  player.Close();
  const Sound sound = test::Trimmed(Heard("heard.raw"));
  EXPECT_GT(sound.size(), 44100U / 4);
  EXPECT_LT(sound.size(), 44100U);
}

TEST_F(Playing, AFileWhoseDiskIsPulledOutEndsThere) {
  Mp3Player player(faulty, host);
  const Ends ends(player);
  ASSERT_EQ(Open(player, "a.mp3"), 0);
  faulty.FailReadsAfter("", 10000, errors::DeviceUnavailable);
  ASSERT_FALSE(player.Play());
  EXPECT_TRUE(Eventually([&] { return ends.Count == 1; }));
}

TEST_F(Playing, ARateThatChangesOnTheWayGoesOnToTheEnd) {
  ASSERT_TRUE(Encode("b.mp3", 440, "--resample 22.05"));
  folder.Write("both.mp3", folder.Read("a.mp3") + folder.Read("b.mp3"));
  Mp3Player player(files, host);
  const Ends ends(player);
  ASSERT_EQ(Open(player, "both.mp3"), 0);
  ASSERT_FALSE(player.Play());
  ASSERT_TRUE(Eventually([&] { return ends.Count == 1; }));
  player.Close();
  const Sound sound = test::Trimmed(Heard("heard.raw"));
  ASSERT_GT(sound.size(), 4U * 44100U - 6000U);
  EXPECT_NEAR(test::Frequency({sound.end() - 44100, sound.end() - 22050}, 44100), 440, 4);
}

TEST_F(Playing, WhatCantBeOpenedCantBePlayedAndTheNextCan) {
  folder.Write("empty.mp3", "");
  folder.Write("words.mp3", std::string(20000, 'w'));
  Mp3Player player(files, host);
  EXPECT_EQ(player.Play().Number(), errors::DeviceUnavailable) << "nothing is open";
  EXPECT_EQ(Open(player, "empty.mp3"), errors::TypeMismatch);
  EXPECT_EQ(Open(player, "words.mp3"), errors::TypeMismatch);
  EXPECT_EQ(Open(player, "missing.mp3"), errors::FileNotFound);
  EXPECT_EQ(Open(player, "nowhere\\a.mp3"), errors::PathNotFound);
  EXPECT_EQ(player.Play().Number(), errors::DeviceUnavailable);
  player.Stop();
  player.Close();
  player.Close();
  EXPECT_EQ(Open(player, "a.mp3"), 0);
  EXPECT_FALSE(player.Play());
  EXPECT_NE(Open(player, "words.mp3"), 0);
  EXPECT_EQ(player.Play().Number(), errors::DeviceUnavailable) << "the one before is closed";
}

TEST_F(Playing, AHostWithoutSoundSaysSoEachTimeUntilThereIsSome) {
  Use("none of this name");
  Mp3Player player(files, host);
  for (int round = 0; round < 2; ++round) {
    const Error error = player.Open(folder.System("a.mp3"));
    EXPECT_EQ(error.Number(), errors::DeviceUnavailable);
    EXPECT_TRUE(error.Description().starts_with("Device unavailable: ")) << error.Description();
    EXPECT_EQ(player.Play().Number(), errors::DeviceUnavailable);
  }
  EXPECT_EQ(Open(player, "missing.mp3"), errors::FileNotFound) << "that comes first";
  Use("dummy");
  EXPECT_EQ(Open(player, "a.mp3"), 0);
}

TEST_F(Playing, ADeviceThatCantBeOpenedIsNoSound) {
  setenv("SDL_DISKAUDIOFILE", (folder.Host() / "no folder/heard.raw").c_str(), 1);
  Mp3Player player(files, host);
  EXPECT_EQ(Open(player, "a.mp3"), errors::DeviceUnavailable);
  EXPECT_EQ(player.Play().Number(), errors::DeviceUnavailable);
}

TEST_F(Playing, TheKeyThatEndsTheProgramGoesOnDoingSo) {
  Mp3Player player(files, host);
  ASSERT_EQ(Open(player, "a.mp3"), 0);
  for (const int signal : {SIGINT, SIGTERM}) {
    struct sigaction now {};
    ASSERT_EQ(sigaction(signal, nullptr, &now), 0);
    EXPECT_EQ(now.sa_handler, SIG_DFL);
  }
}

}  // namespace
}  // namespace kvr5
