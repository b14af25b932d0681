#include <gtest/gtest.h>
#include <mpg123.h>

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <vector>

#include "mp3/Accettazione.h"
#include "mp3/modMp3Infos.h"
#include "support/Banco.h"

// The test signal that lies beside the program.

namespace kvr5 {
namespace {

TEST(Analyzer, IsASweepOfTenSecondsThatEveryPlayerTakes) {
  test::Banco b;
  std::filesystem::copy_file(std::string(KVR5_STAGED_PROGRAM) + "/Analyzer.mp3",
                             b.Cartella.Host() / "Analyzer.mp3");
  modMp3Infos reader(b.C.Files);
  const InfoMp3 info = reader.LeggiInfoMp3(b.Percorso("Analyzer.mp3"));
  EXPECT_TRUE(BuonoPerIngressi(info));
  EXPECT_TRUE(BuonoPerEditor(info));
  EXPECT_EQ(info.Bitrate, 64000);
  EXPECT_EQ(info.SampleRate, 44100);
  EXPECT_EQ(info.Channels, 1);
  EXPECT_FALSE(info.IsVbr);
  EXPECT_EQ(info.Duration, 10);
}

/// The loudness of each half second, as the root of the mean square, of 32767.
std::vector<double> Loudness(const std::string& file) {
  mpg123_init();
  const std::unique_ptr<mpg123_handle, void (*)(mpg123_handle*)> handle(
      mpg123_new(nullptr, nullptr), mpg123_delete);
  mpg123_param(handle.get(), MPG123_ADD_FLAGS, MPG123_QUIET, 0);
  mpg123_open(handle.get(), file.c_str());
  std::vector<double> loudness;
  std::vector<std::int16_t> samples(44100 / 2);
  for (;;) {
    std::size_t bytes = 0;
    const int end = mpg123_read(handle.get(), samples.data(), samples.size() * 2, &bytes);
    if (end == MPG123_NEW_FORMAT) continue;
    if (bytes < samples.size() * 2) return loudness;
    double sum = 0;
    for (const std::int16_t each : samples) sum += static_cast<double>(each) * each;
    loudness.push_back(std::sqrt(sum / static_cast<double>(samples.size())));
  }
}

TEST(Analyzer, IsAsLoudFromItsLowestToItsHighestPitch) {
  const auto loudness = Loudness(std::string(KVR5_STAGED_PROGRAM) + "/Analyzer.mp3");
  ASSERT_EQ(loudness.size(), 20U);
  constexpr double kSine = 0.5 * 32767 / 1.4142135623730951;
  // The first half second begins with the silence of the encoder.
  for (const double each : loudness) EXPECT_NEAR(each, kSine, kSine * 0.15);
}

}  // namespace
}  // namespace kvr5
