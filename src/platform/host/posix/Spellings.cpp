#include "platform/host/posix/Spellings.h"

#include <sys/stat.h>

#include <chrono>
#include <ctime>
#include <unordered_map>

#include "platform/Fold.h"
#include "platform/host/posix/Lookup.h"
#include "platform/host/posix/VolumeKind.h"

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

std::optional<Reading> g_reading;  // one thread, and runs ask one folder at a time
int g_held = 0;

bool SameState(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_mtim.tv_sec == b.st_mtim.tv_sec &&
         a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

/// How long after a change another one may leave the folder's time as it is: a few ticks of the
/// kernel on its own file systems, 2 s on FAT, and who knows how long behind a driver of its own.
std::chrono::nanoseconds GrainOf(const std::string& folder) {
  using namespace std::chrono_literals;
  return KindOf(folder) == VolumeKind::MindsCase ? std::chrono::nanoseconds(50ms) : 3s;
}

/// What was read so soon after a change that the next one might not show serves once only.
bool IsSettled(const std::string& folder, const struct stat& state) {
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME, &now);
  const auto age = std::chrono::seconds(now.tv_sec - state.st_mtim.tv_sec) +
                   std::chrono::nanoseconds(now.tv_nsec - state.st_mtim.tv_nsec);
  return age > GrainOf(folder);
}

bool Serves(const std::string& folder, const struct stat& state) {
  constexpr auto kMoment = std::chrono::seconds(2);
  if (!g_reading || g_reading->Folder != folder) return false;
  return g_held > 0 ||
         (SameState(g_reading->State, state) && Clock::now() - g_reading->Taken < kMoment);
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
    g_reading = Read(folder, state);
    if (!g_reading) return std::nullopt;
  }
  const auto found = g_reading->Names.find(FoldCase(name));
  std::optional<std::string> spelling;
  if (found != g_reading->Names.end()) spelling = found->second;
  if (g_held == 0 && !IsSettled(folder, state)) g_reading.reset();
  return spelling;
}

void ForgetSpellings() {
  g_reading.reset();
}

SpellingsHeld::SpellingsHeld() {
  if (g_held++ == 0) g_reading.reset();  // what was read before may be older than it says
}

SpellingsHeld::~SpellingsHeld() {
  if (--g_held == 0) g_reading.reset();
}

bool NoteRenamed(const std::string& folder, std::string_view from, std::string_view to) {
  if (g_held == 0 || !g_reading || g_reading->Folder != folder) return false;
  const auto old = g_reading->Names.find(FoldCase(from));
  if (old != g_reading->Names.end() && old->second == from) g_reading->Names.erase(old);
  const auto [place, isNew] = g_reading->Names.try_emplace(FoldCase(to), to);
  if (!isNew && to < place->second) place->second = to;
  return true;
}

}  // namespace kvr5::host
