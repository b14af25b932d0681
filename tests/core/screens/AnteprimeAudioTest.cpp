#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <QThread>

#include "core/screens/AnteprimeAudio.h"
#include "support/screens/BancoSchermi.h"

// The real players, on devices that are no hardware.

namespace kvr5 {
namespace {

class RealSound : public testing::Test {
 protected:
  RealSound() {
    b.ScriviMp3("a.mp3");  // a fifth of a second
    Use("dummy");
  }
  ~RealSound() override {
    Use("dummy");
    for (const char* name : {"SDL_DISKAUDIOFILE", "SDL_DISKAUDIODELAY"}) qunsetenv(name);
  }
  static void Use(const char* driver) { qputenv("SDL_AUDIODRIVER", driver); }
  /// A quick device that writes what it is given into a file, whose path it is.
  std::string UseFile() const {
    const std::string heard = (b.Cartella.Host() / "heard.raw").string();
    Use("disk");
    qputenv("SDL_DISKAUDIOFILE", heard.c_str());
    qputenv("SDL_DISKAUDIODELAY", "1");
    return heard;
  }
  std::unique_ptr<Anteprima> Player() {
    auto player = sound.Nuova();
    player->SuNotifica = [this](int code) {
      EXPECT_EQ(code, Anteprima::kFinita);
      EXPECT_EQ(QThread::currentThread(), qApp->thread());
      ++ends;
    };
    return player;
  }
  void Plays(Anteprima& player) {
    ASSERT_EQ(player.Open(b.Percorso("a.mp3")).Number(), 0);
    ASSERT_EQ(player.Play().Number(), 0);
  }
  /// Plays to the end, which is on its way to the event loop then.
  void PlaysUnheard(Anteprima& player) {
    std::filesystem::remove(UseFile());
    Plays(player);
    constexpr std::uintmax_t kBeyond = 200000;  // bytes; the file gives 37,000
    QElapsedTimer waited;
    waited.start();
    while (std::filesystem::file_size(UseFile()) < kBeyond && !waited.hasExpired(10000)) {
      QThread::yieldCurrentThread();
    }
    ASSERT_GE(std::filesystem::file_size(UseFile()), kBeyond) << "the end was never reached";
    EXPECT_EQ(ends, 0) << "no event has run";
  }
  static void RunEvents() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
  }
  std::string Log() const { return b.Cartella.Read("program/Logs/20061020.log"); }

  test::BancoSchermi b;
  AnteprimeAudio sound{b.C};
  int ends = 0;
};

TEST_F(RealSound, TheEndOfAFileIsToldOnceFromTheEventLoop) {
  const auto player = Player();
  for (int round = 1; round <= 2; ++round) {
    Plays(*player);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ends == round; }));
  }
  RunEvents();
  EXPECT_EQ(ends, 2);
}

TEST_F(RealSound, NothingIsToldAfterAStopOrAClose) {
  const auto player = Player();
  PlaysUnheard(*player);
  player->Stop();
  RunEvents();
  EXPECT_EQ(ends, 0);
  PlaysUnheard(*player);
  player->Close();
  RunEvents();
  EXPECT_EQ(ends, 0);
  PlaysUnheard(*player);
  EXPECT_NE(player->Open(b.Percorso("gone.mp3")).Number(), 0) << "another file, too";
  RunEvents();
  EXPECT_EQ(ends, 0);
}

TEST_F(RealSound, NothingIsToldByAPlayerThatIsGone) {
  auto player = Player();
  PlaysUnheard(*player);
  player.reset();
  RunEvents();
  EXPECT_EQ(ends, 0);
}

TEST_F(RealSound, WhoHearsOfTheEndMayLetThePlayerGo) {
  auto player = Player();
  player->SuNotifica = [&](int) {
    ++ends;
    player.reset();
  };
  Plays(*player);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ends == 1; }));
  EXPECT_EQ(player, nullptr);
}

TEST_F(RealSound, TheOtherPlayerPlaysOn) {
  UseFile();
  const auto first = Player();
  const auto second = Player();
  Plays(*first);
  Plays(*second);
  first->Stop();
  first->Close();
  EXPECT_TRUE(QTest::qWaitFor([&] { return ends == 1; }));
}

TEST_F(RealSound, AHostWithoutADeviceIsToldOnceInTheLog) {
  Use("none of this name");
  const auto first = Player();
  const auto second = Player();
  for (const auto& player : {first.get(), second.get(), first.get()}) {
    EXPECT_EQ(player->Open(b.Percorso("a.mp3")).Number(), errors::DeviceUnavailable);
    EXPECT_EQ(player->Play().Number(), errors::DeviceUnavailable);
    player->Stop();
    player->Close();
  }
  const std::string log = Log();
  EXPECT_TRUE(
      log.starts_with("08:05:09 Nothing can be listened to in this program: Device "
                      "unavailable"))
      << log;
  EXPECT_EQ(std::ranges::count(log, '\n'), 1);
}

TEST_F(RealSound, AFileThatIsNoneIsNothingForTheLog) {
  b.Cartella.Write("words.mp3", std::string(5000, 'w'));
  const auto player = Player();
  EXPECT_EQ(player->Open(b.Percorso("words.mp3")).Number(), errors::TypeMismatch);
  EXPECT_EQ(player->Open(b.Percorso("gone.mp3")).Number(), errors::FileNotFound);
  EXPECT_FALSE(b.Cartella.Exists("program/Logs/20061020.log"));
}

}  // namespace
}  // namespace kvr5
