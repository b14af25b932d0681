#include "cli/Compagno.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sstream>

namespace kvr5::test {
namespace {

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::vector<nlohmann::json> Parse(const std::string& text) {
  std::vector<nlohmann::json> objects;
  for (const auto& line : Lines(text)) {
    auto object = nlohmann::json::parse(line, nullptr, false);
    EXPECT_TRUE(object.is_object()) << line;
    objects.push_back(std::move(object));
  }
  return objects;
}

void Connect(const std::string& path, int flags, int target) {
  const int fd = open(path.c_str(), flags, 0600);
  if (fd < 0 || dup2(fd, target) < 0) _exit(126);
}

constexpr int kToWrite = O_WRONLY | O_CREAT | O_TRUNC;

[[noreturn]] void Become(const std::vector<std::string>& words, const std::string& locale) {
  setenv("LC_ALL", locale.c_str(), 1);
  std::vector<char*> arguments;
  for (const auto& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  execv(arguments[0], arguments.data());
  _exit(127);
}

}  // namespace

std::vector<std::string> Corsa::Righe() const {
  return Lines(Uscita);
}
std::vector<nlohmann::json> Corsa::Oggetti() const {
  return Parse(Uscita);
}
std::vector<nlohmann::json> Corsa::Box() const {
  return Parse(Errori);
}

Compagno::Compagno() {
  Cartella.Write("program/KVR5Software.ini",
                 "[Config]\r\nUseExternalPlayer=0\r\n[Path]\r\nProjectsDir=" +
                     Percorso("program/Projects") + "\r\n");
}

void Compagno::SenzaDirittiDiRoot() {
  if (geteuid() != 0) return;
  namespace fs = std::filesystem;
  // Where the executable lies, and the temporary folder, may be closed to others.
  fs::permissions(Cartella.Host(), fs::perms::all);
  const std::string copy = Host("program/kvr5card");
  fs::copy_file(KVR5_CARD, copy);
  Inizio = {"/usr/bin/setpriv", "--reuid=65534", "--clear-groups", copy,
            "--program",        Host("program")};
}

Corsa Compagno::Esegui(std::vector<std::string> arguments, const std::string& input) const {
  const TempFolder streams;
  streams.Write("stdin", input);
  const std::vector<std::string> words = Parole(std::move(arguments));
  const std::string folder = streams.Host().string();
  const pid_t child = fork();
  if (child == 0) {
    Connect(folder + "/stdin", O_RDONLY, STDIN_FILENO);
    Connect(folder + "/stdout", kToWrite, STDOUT_FILENO);
    Connect(folder + "/stderr", kToWrite, STDERR_FILENO);
    Become(words, Luogo);
  }
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status)) << "kvr5card was ended by a signal";
  return {WEXITSTATUS(status), streams.Read("stdout"), streams.Read("stderr")};
}

std::vector<std::string> Compagno::Parole(std::vector<std::string> arguments) const {
  std::vector<std::string> words = Inizio;
  std::ranges::move(arguments, std::back_inserter(words));
  return words;
}

std::function<int()> Compagno::Lavoro(std::vector<std::string> arguments,
                                      std::string output) const {
  return
      [words = Parole(std::move(arguments)), output = std::move(output), locale = Luogo]() -> int {
        if (!output.empty()) Connect(output, kToWrite, STDOUT_FILENO);
        Become(words, locale);
      };
}

Corsa Compagno::EseguiJson(std::vector<std::string> arguments, const std::string& input) const {
  arguments.insert(arguments.begin(), "--json");
  return Esegui(std::move(arguments), input);
}

}  // namespace kvr5::test
