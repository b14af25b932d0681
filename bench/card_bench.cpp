// kvr5card on a large card, each against the host's own tool in the same run: recording 1,000 files
// against cp and a sync of the file system, verifying them against cmp, both past the cache; and
// the peak memory of a recording of 10 MB and of 1 GB. An argument is the size of the large card in
// MB (1000 without it).
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <vector>

#include "RecordingJob.h"

namespace {

using namespace kvr5;
namespace fs = std::filesystem;

constexpr std::size_t kMegabyte = 1'000'000;

/// A project for the companion, with a program folder of its own.
class CompanionJob : public bench::RecordingJob {
 public:
  CompanionJob(int count, std::size_t bytes) : RecordingJob(count, bytes) {
    fs::create_directories(Folder("program"));
    std::ofstream(Folder("program") / "KVR5Software.ini") << "[Path]\r\n";
    for (const auto& entry : fs::directory_iterator(KVR5_STAGED_PROGRAM)) {
      if (entry.path().extension() == ".ini") continue;
      fs::create_symlink(entry.path(), Folder("program") / entry.path().filename());
    }
  }

  /// "record" or "verify" of the project and the card.
  std::vector<std::string> Words(const std::string& verb) const {
    return {KVR5_STAGED_PROGRAM "/kvr5card", "--program",
            Folder("program").string(),      verb,
            Folder("projects/job").string(), Folder("card").string()};
  }

  std::string Command(const std::string& verb) const {
    std::string line;
    for (const auto& word : Words(verb)) line += "'" + word + "' ";
    return line + ">/dev/null";
  }

  double RecordIt() {
    Empty("card");
    return Run(Command("record"));
  }
  double VerifyIt() {
    DropCaches();
    return Run(Command("verify"));
  }
  double Cmp() {
    DropCaches();
    return Run("cd '" + Folder("music").string() +
               "' && for file in *.mp3; do cmp -s \"$file\" ../card/\"$file\" || exit 1; done");
  }

 private:
  /// Has the files of both sides read from the disk the next time.
  void DropCaches() const {
    sync();
    for (const char* side : {"music", "card"}) {
      for (const auto& entry : fs::directory_iterator(Folder(side))) {
        const int file = open(entry.path().c_str(), O_RDONLY);
        posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
        close(file);
      }
    }
  }
};

/// Seconds of two works, taken in turns so that what else the computer does meets both.
class Duel {
 public:
  template <typename Ours, typename Theirs>
  Duel(Ours ours, Theirs theirs) {
    constexpr int kRounds = 7;
    ours();  // what is loaded at the first run is none of either's
    theirs();
    for (int round = 0; round < kRounds; ++round) {
      const bool first = round % 2 == 0;
      double mine = first ? ours() : 0;
      const double other = theirs();
      if (!first) mine = ours();
      ours_.push_back(mine);
      theirs_.push_back(other);
    }
  }

  /// Noise only ever adds: the best round of each is nearest to what the work takes.
  void Print(const char* mine, const char* other, double limit) const {
    const double a = *std::ranges::min_element(ours_);
    const double b = *std::ranges::min_element(theirs_);
    std::printf("%s %.2f s, %s %.2f s: ratio %.2f, of the middle rounds %.2f (limit %.2f)\n", mine,
                a, other, b, a / b, Middle(ours_) / Middle(theirs_), limit);
    std::fflush(stdout);
  }

 private:
  static double Middle(std::vector<double> seconds) {
    std::ranges::sort(seconds);
    return seconds[seconds.size() / 2];
  }

  std::vector<double> ours_;
  std::vector<double> theirs_;
};

void CompareTimes(std::size_t megabytes) {
  constexpr int kFiles = 1000;
  constexpr double kLimit = 1.1;
  CompanionJob job(kFiles, megabytes * kMegabyte / kFiles);
  std::printf("%d files, %zu MB\n", kFiles, megabytes);
  const Duel recording([&] { return job.RecordIt(); }, [&] { return job.Copy(); });
  recording.Print("record", "cp and sync", kLimit);
  const Duel verification([&] { return job.VerifyIt(); }, [&] { return job.Cmp(); });
  verification.Print("verify", "cmp", kLimit);
}

/// Peak memory in MB of "kvr5card record" with that many files of 1 MB. A child's figure begins
/// with that of this process, which is less.
double PeakMemory(int files) {
  const CompanionJob job(files, kMegabyte);
  const std::vector<std::string> words = job.Words("record");
  const pid_t child = fork();
  if (child == 0) {
    std::vector<char*> arguments;
    for (const auto& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
    execv(arguments[0], arguments.data());
    _exit(127);
  }
  int status = -1;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) != child || status != 0) std::abort();
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

void CompareMemory(std::size_t megabytes) {
  constexpr double kLimit = 60;
  const double small = PeakMemory(10);
  const double large = PeakMemory(static_cast<int>(megabytes));
  std::printf("peak memory: 10 MB %.1f MB, %zu MB %.1f MB: ratio %.2f (limit %.0f MB)\n", small,
              megabytes, large, large / small, kLimit);
  std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
  const std::size_t megabytes = argc > 1 ? std::stoul(argv[1]) : 1000;
  CompareMemory(megabytes);
  CompareTimes(megabytes);
  return 0;
}
