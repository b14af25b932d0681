// How long the analysis of an MP3 file takes, beside what the same calls to the host cost alone
// and beside TagLib's quickest reading. The page cache is warm, the contenders take turns every few
// files, and of each such batch the quickest round counts, so that what else runs on the machine
// cancels out.
//
//   mp3_bench [FOLDER]    FOLDER: the MP3 files to read; without it a few hundred are made

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "mp3/modMp3Infos.h"
#include "platform/HostFileSystem.h"
#ifdef KVR5_BENCH_TAGLIB
#include <fileref.h>
#include <mpegfile.h>
#endif

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kRounds = 60;
constexpr int kFiles = 300;
constexpr std::size_t kBatch = 20;

/// The sum of what was read, so that no reading can be left out.
std::int64_t checksum = 0;

std::string BigEndian(std::uint32_t value) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
  return bytes;
}

/// About 40 s of MPEG 1 Layer III at 44,100 Hz: whole frames, of one rate or of three in turn.
std::string MakeStream(bool vbr, std::mt19937& random) {
  struct Rate {
    char Header;
    std::size_t Length;
  };
  static constexpr std::array<Rate, 3> kRates{Rate{'\x90', 417}, Rate{'\xA0', 522},
                                              Rate{'\x80', 365}};
  constexpr std::uint32_t kFrames = 1500;
  std::string bytes;
  for (std::uint32_t frame = 0; frame < kFrames; ++frame) {
    const Rate& rate = vbr ? kRates[frame % 3] : kRates[0];
    const std::size_t start = bytes.size();
    bytes += {'\xFF', '\xFB', rate.Header, '\x44'};
    while (bytes.size() < start + rate.Length) bytes += static_cast<char>(random() & 0x7F);
  }
  const std::string tag = (vbr ? "Xing" : "Info") + BigEndian(3) + BigEndian(kFrames) +
                          BigEndian(static_cast<std::uint32_t>(bytes.size()));
  return bytes.replace(36, tag.size(), tag);
}

std::string MakeFile(int number, std::mt19937& random) {
  std::string bytes = MakeStream(number % 2 == 1, random);
  if (number % 3 == 1) bytes += "TAG" + std::string(125, ' ');
  if (number % 3 == 2) {
    bytes.insert(0, std::string("ID3\3\0\0\0\0\x0F\x76", 10) + std::string(2038, '\0'));
  }
  return bytes;
}

/// A folder of made-up files that goes with the object.
class MadeFolder {
 public:
  MadeFolder() {
    std::string pattern = (fs::temp_directory_path() / "mp3_bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    folder_ = pattern;
    std::mt19937 random(1);
    for (int number = 0; number < kFiles; ++number) {
      const std::string bytes = MakeFile(number, random);
      std::ofstream out(folder_ / (std::to_string(number) + ".mp3"), std::ios::binary);
      out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
  }
  ~MadeFolder() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }
  MadeFolder(const MadeFolder&) = delete;
  MadeFolder& operator=(const MadeFolder&) = delete;

  const fs::path& Path() const { return folder_; }

 private:
  fs::path folder_;
};

std::vector<std::string> FilesOf(const fs::path& folder) {
  std::vector<std::string> paths;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) paths.push_back(fs::absolute(entry.path()).string());
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

/// One way of reading a file, and the quickest time of each batch in microseconds.
struct Contender {
  std::string Name;
  std::function<void(std::size_t)> ReadFile;
  std::vector<double> Best;

  double Total() const { return std::accumulate(Best.begin(), Best.end(), 0.0); }
};

/// What the reader is told to do with a file, without a thought about it: look it up, open it,
/// read the buffer, one frame and the two places of the tags, close it.
void BareCalls(const std::string& path) {
  static std::array<char, 16384> buffer;
  std::array<char, 418> frame{};
  std::array<char, 3> probe{};
  struct stat found {};
  if (stat(path.c_str(), &found) != 0) return;
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return;
  checksum += pread(file, buffer.data(), buffer.size(), 0);
  checksum += pread(file, frame.data(), frame.size(), 0);
  checksum += pread(file, probe.data(), probe.size(), 0);
  checksum += pread(file, probe.data(), probe.size(), std::max<off_t>(found.st_size - 128, 0));
  close(file);
}

#ifdef KVR5_BENCH_TAGLIB
void TagLibFast(const std::string& path) {
  const TagLib::MPEG::File file(path.c_str(), true, TagLib::AudioProperties::Fast);
  const auto* properties = file.audioProperties();
  if (properties != nullptr) checksum += properties->bitrate() + properties->lengthInSeconds();
}
#endif

void RunBatch(Contender& contender, std::size_t batch, std::size_t files) {
  using Clock = std::chrono::steady_clock;
  const std::size_t end = std::min(files, (batch + 1) * kBatch);
  const auto start = Clock::now();
  for (std::size_t i = batch * kBatch; i < end; ++i) contender.ReadFile(i);
  const std::chrono::duration<double, std::micro> taken = Clock::now() - start;
  contender.Best[batch] = std::min(contender.Best[batch], taken.count());
}

void RunAll(std::vector<Contender>& contenders, std::size_t files) {
  const std::size_t batches = (files + kBatch - 1) / kBatch;
  for (Contender& contender : contenders) {
    contender.Best.assign(batches, std::numeric_limits<double>::max());
  }
  for (std::size_t round = 0; round < kRounds; ++round) {
    for (std::size_t batch = 0; batch < batches; ++batch) {
      // each comes first, second and third in turn: who follows finds the files in the cache
      for (std::size_t i = 0; i < contenders.size(); ++i) {
        RunBatch(contenders[(i + round) % contenders.size()], batch, files);
      }
    }
  }
}

void Report(const std::vector<Contender>& contenders, std::size_t files) {
  std::printf("%zu files, %zu rounds (sum %lld)\n", files, kRounds,
              static_cast<long long>(checksum));
  for (const Contender& contender : contenders) {
    std::printf("%-12s %8.2f us a file\n", contender.Name.c_str(),
                contender.Total() / static_cast<double>(files));
  }
  const double reader = contenders[0].Total();
  std::printf("reader / bare calls   %5.2f   (at most 1.25)\n", reader / contenders[1].Total());
  if (contenders.size() > 2) {
    std::printf("TagLib fast / reader  %5.2f   (at least 2)\n", contenders[2].Total() / reader);
  } else {
    std::printf("TagLib isn't installed: no comparison with it\n");
  }
}

void Run(const fs::path& folder) {
  const std::vector<std::string> paths = FilesOf(folder);
  std::vector<std::string> systemPaths;
  systemPaths.reserve(paths.size());
  PathMap map;
  HostFileSystem files(map);
  for (const auto& path : paths) {
    const auto mapped = PathMap::FromHost(path);
    systemPaths.push_back(mapped ? mapped.Value() : std::string());
  }
  modMp3Infos reader(files);
  std::vector<Contender> contenders;
  contenders.push_back(
      {"reader",
       [&](std::size_t i) { checksum += reader.LeggiInfoMp3(systemPaths[i]).Duration; },
       {}});
  contenders.push_back({"bare calls", [&](std::size_t i) { BareCalls(paths[i]); }, {}});
#ifdef KVR5_BENCH_TAGLIB
  contenders.push_back({"TagLib fast", [&](std::size_t i) { TagLibFast(paths[i]); }, {}});
#endif
  RunAll(contenders, paths.size());
  Report(contenders, paths.size());
}

}  // namespace
}  // namespace kvr5

int main(int argc, char** argv) {
  if (argc > 1) {
    kvr5::Run(argv[1]);
  } else {
    const kvr5::MadeFolder made;
    kvr5::Run(made.Path());
  }
  return 0;
}
