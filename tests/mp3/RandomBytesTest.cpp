#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "mp3/EtichetteMp3.h"
#include "mp3/Mp3Maker.h"

// Bytes of any kind: the reader comes to an end, stays within its reads, and tells either nothing
// or something that makes sense.

namespace kvr5::test {
namespace {

namespace fs = std::filesystem;

class RandomBytesTest : public ReaderTest {
 protected:
  std::size_t Below(std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
  }
  char Byte() { return static_cast<char>(Below(256)); }

  void CheckRecord(const InfoMp3& info, std::size_t size) {
    if (!info.Valid) {
      EXPECT_EQ(info, InfoMp3());
      return;
    }
    static const std::set<int> kRates{0,     8000,  11025, 12000, 16000,
                                      22050, 24000, 32000, 44100, 48000};
    EXPECT_TRUE(info.Layer >= 1 && info.Layer <= 3);
    EXPECT_TRUE(info.Version == 0 || info.Version == 2 || info.Version == 3);
    EXPECT_EQ(info.Channels, info.ChannelMode == 3 ? 1 : 2);
    EXPECT_TRUE(kRates.contains(info.SampleRate));
    EXPECT_EQ(info.Bitrate % 1000, 0);
    EXPECT_TRUE(info.HeaderOffset >= 0 && info.HeaderOffset <= 16383);
    EXPECT_LT(static_cast<std::size_t>(info.HeaderOffset) + 1, size);
  }

  void CheckOne(const std::string& bytes) {
    constexpr std::size_t kLongestFrame = 1729;
    files_.Reads = 0;
    files_.Wanted = 0;
    fs::remove(folder_.Host() / "random.mp3");  // a new file isn't flushed, a truncated one may be
    const InfoMp3 info = Read("random.mp3", bytes);
    CheckRecord(info, bytes.size());
    EXPECT_LE(files_.Reads, 6);
    EXPECT_LE(files_.Wanted, 2 * 16384 + 1 + kLongestFrame + 3);
    EXPECT_EQ(files_.OpenFiles, 0);
    EXPECT_LE(reader_.Errori().size(), 16U);
    MostraInfoMp3(SchermoMp3::Ingressi, info, bytes.size(), Locale());
  }

  std::mt19937 random_{20041119};
};

TEST_F(RandomBytesTest, PureNoise) {
  for (int round = 0; round < 400; ++round) {
    std::string bytes(Below(20000), '\0');
    for (char& byte : bytes) byte = Byte();
    CheckOne(bytes);
  }
}

TEST_F(RandomBytesTest, AnyHeaderWithAnyTagAnywhere) {
  static const std::vector<std::string> kNames{"Xing", "Info", "VBRI", "ID3", "TAG"};
  for (int round = 0; round < 3000; ++round) {
    const std::size_t lead = Below(3) == 0 ? 16370 + Below(20) : Below(40);
    std::string bytes(lead, 'x');
    bytes += {'\xFF', static_cast<char>(0xE0 | Below(32)), Byte(), Byte()};
    const std::size_t rest = Below(2000);
    for (std::size_t i = 0; i < rest; ++i) bytes += Below(3) == 0 ? Byte() : '\0';
    for (std::size_t tags = Below(4); tags > 0; --tags) {
      const std::string& name = kNames[Below(kNames.size())];
      const std::size_t at = lead + Below(std::min<std::size_t>(rest, 200) + 1);
      bytes = With(bytes, std::min(at, bytes.size() - name.size()), name);
    }
    CheckOne(bytes);
  }
}

TEST_F(RandomBytesTest, RealFilesWithBytesChangedOrCutOff) {
  std::vector<fs::path> samples;
  for (const auto& entry : fs::recursive_directory_iterator(fs::path(KVR5_TEST_DATA) / "files")) {
    if (entry.is_regular_file()) samples.push_back(entry.path());
  }
  std::sort(samples.begin(), samples.end());
  ASSERT_FALSE(samples.empty());
  for (int round = 0; round < 2000; ++round) {
    std::ifstream in(samples[Below(samples.size())], std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (bytes.empty()) continue;
    for (std::size_t changes = Below(20); changes > 0; --changes) {
      const std::size_t reach =
          Below(2) == 0 ? std::min<std::size_t>(bytes.size(), 200) : bytes.size();
      bytes[Below(reach)] = Below(4) == 0 ? '\xFF' : Byte();
    }
    if (Below(4) == 0) bytes.resize(Below(bytes.size()) + 1);
    CheckOne(bytes);
  }
}

}  // namespace
}  // namespace kvr5::test
