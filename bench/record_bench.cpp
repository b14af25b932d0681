// Recording 200 files of 5 MB to a folder on the same disk, against cp of the same files followed
// by a sync of the file system; and the peak memory of a recording for small and large files.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "RecordingJob.h"

namespace {

using namespace kvr5;

void CompareWithCp() {
  constexpr int kRounds = 5;
  bench::RecordingJob job(200, 5'000'000);
  double record = job.Record();
  double copy = job.Copy();
  for (int round = 1; round < kRounds; ++round) {
    record = std::min(record, job.Record());
    copy = std::min(copy, job.Copy());
  }
  std::printf("200 files of 5 MB: recording %.2f s, cp and sync %.2f s: ratio %.2f (limit 1.15)\n",
              record, copy, record / copy);
}

/// Peak memory in MB of a recording of its own process.
double PeakMemory(int count, std::size_t bytes) {
  int pipes[2];
  if (pipe(pipes) != 0) std::abort();
  const pid_t child = fork();
  if (child == 0) {
    {
      bench::RecordingJob job(count, bytes);
      job.Record();
      rusage usage{};
      getrusage(RUSAGE_SELF, &usage);
      if (write(pipes[1], &usage.ru_maxrss, sizeof usage.ru_maxrss) < 0) _exit(1);
    }
    _exit(0);
  }
  long kilobytes = 0;
  if (read(pipes[0], &kilobytes, sizeof kilobytes) != sizeof kilobytes) std::abort();
  waitpid(child, nullptr, 0);
  close(pipes[0]);
  close(pipes[1]);
  return static_cast<double>(kilobytes) / 1024;
}

void CompareMemory() {
  const double small = PeakMemory(20, 100'000);
  const double large = PeakMemory(20, 50'000'000);
  std::printf("peak memory: files of 0.1 MB %.1f MB, of 50 MB %.1f MB: ratio %.2f\n", small, large,
              large / small);
}

}  // namespace

int main() {
  CompareMemory();
  CompareWithCp();
  return 0;
}
