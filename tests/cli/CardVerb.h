#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "cli/Verbi.h"

namespace kvr5::test {

/// What a test can tell of a file or folder: whoever touched it left something different.
struct Traccia {
  std::string Bytes;
  std::filesystem::file_time_type Changed;
  std::filesystem::perms Rights{};

  bool operator==(const Traccia&) const = default;
};

/// A folder (host path) and all below it, by the path within; "." is the folder itself.
using Foto = std::map<std::string, Traccia>;

inline Traccia TracciaDi(const std::filesystem::path& path) {
  namespace fs = std::filesystem;
  Traccia trace{{}, fs::last_write_time(path), fs::status(path).permissions()};
  std::ifstream file(path, std::ios::binary);
  if (!fs::is_directory(path)) trace.Bytes.assign(std::istreambuf_iterator<char>(file), {});
  return trace;
}

inline Foto Fotografa(const std::filesystem::path& folder) {
  Foto photo{{".", TracciaDi(folder)}};
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    photo.emplace(std::filesystem::relative(entry.path(), folder).string(),
                  TracciaDi(entry.path()));
  }
  return photo;
}

/// The names at which two folders differ, in whatever way.
inline std::vector<std::string> Differenze(const Foto& before, const Foto& after) {
  std::vector<std::string> names;
  for (const auto& [name, trace] : before) {
    const auto found = after.find(name);
    if (found == after.end() || !(found->second == trace)) names.push_back(name);
  }
  for (const auto& [name, trace] : after) {
    if (!before.contains(name)) names.push_back(name);
  }
  return names;
}

/// A project of inputs named Hall, two files of music, and an empty card.
class CardVerb : public Verbi {
 protected:
  using Names = std::vector<std::string>;
  using Objects = std::vector<nlohmann::json>;

  /// Makes Hall: input 1 is b.mp3, inputs 1 and 3 are a.mp3.
  void MakeHall() {
    k.ScriviMp3("music/a.mp3", 1);
    k.ScriviMp3("music/b.mp3", 2);
    New("1");
    ASSERT_EQ(k.Esegui({"inputs", "Hall", "set", "5", k.Host("music/a.mp3")}).Stato, 0);
    ASSERT_EQ(k.Esegui({"inputs", "Hall", "set", "1", k.Host("music/b.mp3")}).Stato, 0);
  }
  /// The same, recorded on the card.
  void RecordHall() {
    MakeHall();
    ASSERT_EQ(k.Esegui({"record", "Hall", k.Host("card")}).Stato, 0);
  }
  /// Writes Drives.ini: lines such as "E=/path" of its section of removable drives.
  void Drives(const Names& lines) const {
    std::string text = "[Removable]\r\n";
    for (const auto& line : lines) text += line + "\r\n";
    k.Cartella.Write("program/Drives.ini", text);
  }
  /// Has the runs from now on begin in a folder of the test's.
  void GoTo(const std::string& folder) {
    std::filesystem::create_directories(k.Host(folder));
    k.Inizio = {"/usr/bin/env", "-C", k.Host(folder), KVR5_CARD, "--program", k.Host("program")};
  }
  /// The names of the projects folder, hidden ones too.
  Names Projects() const {
    Names names;
    for (const auto& entry : std::filesystem::directory_iterator(k.Host("program/Projects"))) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }
  static nlohmann::json Told(const std::string& kind, const std::string& title,
                             const std::string& text, const std::string& answer = "ok") {
    return {{"box", kind}, {"title", title}, {"text", text}, {"answer", answer}};
  }
  /// A message of the companion's own.
  static nlohmann::json Said(const std::string& text) { return Told("warning", "kvr5card", text); }
  /// A run with --json that said that a word is no card, and nothing else.
  static void ExpectNoSuchCard(const Corsa& run, const std::string& card) {
    EXPECT_EQ(run.Stato, 1) << card;
    EXPECT_EQ(run.Uscita, "") << card;
    ASSERT_EQ(run.Box().size(), 1U) << card << run.Errori;
    const std::string text = run.Box()[0]["text"];
    EXPECT_TRUE(text.starts_with(card) && text.ends_with("there is no such card")) << text;
  }

  /// Wrong usage, in both forms: the verb's help, and nothing else.
  void ExpectUsage(const Names& words, const std::string& line) const {
    const auto text = k.Esegui(words);
    EXPECT_EQ(text.Stato, 2) << testing::PrintToString(words);
    EXPECT_EQ(text.Uscita, "");
    EXPECT_NE(text.Errori.find("usage: kvr5card [OPTION...] " + line + "\n\n"), std::string::npos)
        << text.Errori;
    const auto told = k.EseguiJson(words);
    EXPECT_EQ(told.Stato, 2) << testing::PrintToString(words);
    EXPECT_EQ(told.Uscita, "");
    EXPECT_EQ(told.Box().size(), 1U) << told.Errori;
  }
};

}  // namespace kvr5::test
