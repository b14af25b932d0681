#include "platform/host/posix/Spellings.h"

#include <sys/stat.h>

#include <chrono>
#include <ctime>
#include <unordered_map>

#include "platform/Fold.h"
#include "platform/host/posix/Lookup.h"

namespace kvr5::host {
namespace {

using Clock = std::chrono::steady_clock;

/// A folder's names by their folded form, as they were read.
struct Reading {
  std::string Folder;
  struct stat State {};
  Clock::time_point Taken;
  std::unordered_map<std::string, std::string> Names;
};

std::optional<Reading> g_last;  // one thread, and runs ask one folder at a time

bool SameState(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_mtim.tv_sec == b.st_mtim.tv_sec &&
         a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

/// A change within the grain of the disk's clock (2 s on FAT) wouldn't show in the folder's time;
/// what was read so soon after a change serves once only.
bool IsSettled(const struct stat& state) {
  constexpr std::time_t kGrain = 3;
  return std::time(nullptr) - state.st_mtim.tv_sec > kGrain;
}

bool Serves(const std::string& folder, const struct stat& state) {
  constexpr auto kMoment = std::chrono::seconds(2);
  return g_last && g_last->Folder == folder && SameState(g_last->State, state) &&
         Clock::now() - g_last->Taken < kMoment;
}

std::optional<Reading> Read(const std::string& folder, const struct stat& state) {
  const OpenFolder entries(::opendir(folder.c_str()));
  if (!entries) return std::nullopt;
  Reading reading{folder, state, Clock::now(), {}};
  while (const dirent* entry = ::readdir(entries.get())) {
    const auto [place, isNew] = reading.Names.try_emplace(FoldCase(entry->d_name), entry->d_name);
    if (!isNew && entry->d_name < place->second) place->second = entry->d_name;
  }
  return reading;
}

}  // namespace

std::optional<std::string> OtherSpelling(const std::string& folder, std::string_view name) {
  struct stat state {};
  if (::stat(folder.c_str(), &state) != 0) return std::nullopt;
  if (!Serves(folder, state)) {
    g_last = Read(folder, state);
    if (!g_last) return std::nullopt;
  }
  const auto found = g_last->Names.find(FoldCase(name));
  std::optional<std::string> spelling;
  if (found != g_last->Names.end()) spelling = found->second;
  if (!IsSettled(state)) g_last.reset();
  return spelling;
}

void ForgetSpellings() {
  g_last.reset();
}

}  // namespace kvr5::host
