#include "reports/browser/BrowserProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace kvr5::test {
namespace {

/// Where the browser reads and writes its messages, each closed by a zero byte.
constexpr int kItReads = 3;
constexpr int kItWrites = 4;
constexpr int kPatienceMs = 30'000;

std::vector<std::string> CommandLine(const std::string& folder) {
  return {*BrowserProcess::Executable(),
          "--headless",
          "--no-sandbox",
          "--disable-gpu",
          "--disable-dev-shm-usage",
          "--disable-background-networking",
          "--disable-component-update",
          "--disable-breakpad",
          "--no-first-run",
          "--remote-debugging-pipe",
          "--user-data-dir=" + folder + "/profile",
          "about:blank"};
}

/// In the child: the browser takes its place, with all that it keeps for a user in `folder`.
[[noreturn]] void Become(std::vector<std::string> words, const std::string& folder, int itReads,
                         int itWrites) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  setpgid(0, 0);
  // Out of the way first: either may lie where the other has to be.
  const int reads = fcntl(itReads, F_DUPFD_CLOEXEC, kItWrites + 1);
  const int writes = fcntl(itWrites, F_DUPFD_CLOEXEC, kItWrites + 1);
  dup2(reads, kItReads);
  dup2(writes, kItWrites);
  const int log = open((folder + "/browser.log").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  dup2(log, STDOUT_FILENO);
  dup2(log, STDERR_FILENO);
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
    setenv(name, folder.c_str(), 1);
  }
  std::vector<char*> arguments;
  for (auto& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  execv(arguments.front(), arguments.data());
  _exit(127);
}

}  // namespace

std::optional<std::string> BrowserProcess::Executable() {
  const char* path = getenv("PATH");
  std::istringstream folders(path == nullptr ? "" : path);
  for (std::string folder; std::getline(folders, folder, ':');) {
    for (const char* name : {"chromium", "chromium-browser", "google-chrome"}) {
      const std::string file = folder + "/" + name;
      if (access(file.c_str(), X_OK) == 0) return file;
    }
  }
  return std::nullopt;
}

BrowserProcess::BrowserProcess(const std::string& folder) {
  std::array<int, 2> there{};
  std::array<int, 2> back{};
  if (pipe2(there.data(), O_CLOEXEC) != 0 || pipe2(back.data(), O_CLOEXEC) != 0) {
    throw std::runtime_error("no pipes");
  }
  const auto words = CommandLine(folder);
  signal(SIGPIPE, SIG_IGN);
  process_ = fork();
  if (process_ == 0) Become(words, folder, there[0], back[1]);
  close(there[0]);
  close(back[1]);
  write_ = there[1];
  read_ = back[0];
  if (process_ < 0) throw std::runtime_error("no process");
}

BrowserProcess::~BrowserProcess() {
  Send(R"({"id":0,"method":"Browser.close"})");
  while (Receive()) {  // up to the end of the pipe, when the profile is written and at rest
  }
  kill(-process_, SIGKILL);
  waitpid(process_, nullptr, 0);
  close(write_);
  close(read_);
}

void BrowserProcess::Send(const std::string& message) {
  const char* next = message.c_str();
  std::size_t left = message.size() + 1;  // with the closing zero
  while (left > 0) {
    const ssize_t sent = write(write_, next, left);
    if (sent <= 0) return;
    next += sent;
    left -= static_cast<std::size_t>(sent);
  }
}

std::optional<std::string> BrowserProcess::Receive() {
  for (;;) {
    if (const auto end = received_.find('\0'); end != std::string::npos) {
      std::string message = received_.substr(0, end);
      received_.erase(0, end + 1);
      return message;
    }
    pollfd wait{read_, POLLIN, 0};
    if (poll(&wait, 1, kPatienceMs) <= 0) return std::nullopt;
    std::array<char, 65536> bytes{};
    const ssize_t count = read(read_, bytes.data(), bytes.size());
    if (count <= 0) return std::nullopt;
    received_.append(bytes.data(), static_cast<std::size_t>(count));
  }
}

}  // namespace kvr5::test
