#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "cli/Compagno.h"

namespace kvr5::test {

using Renames = std::map<std::string, std::string>;  ///< own name by the name on the card

/// A model and mode, and what its projects hold.
struct Kind {
  const char* Name;
  std::int16_t Type;
  std::int16_t Mode;
  std::int16_t Config;
  bool Inputs;
  const char* Playlists;  ///< a session of the editor; null where the kind has no playlists
  const char* Schedule;   ///< the same for schedules
};

inline void PrintTo(const Kind& kind, std::ostream* out) {
  *out << kind.Name;
}

// "$" is the folder of music with its bar.
inline constexpr const char* kOneList = "add $c.mp3 $d.mp3 $e.mp3\n";
inline constexpr const char* kLists = "add $c.mp3 $d.mp3\nselect 2\nadd $e.mp3 $c.mp3\n";
inline constexpr const char* kNamed = "new Noon\nadd $c.mp3\nnew Night\nadd $d.mp3 $e.mp3\n";
inline constexpr const char* kDay =
    "segment add\ntime 0 30\nspot add 1 $c.mp3\nspot add 2 $d.mp3\n"
    "segment add\ntime 0 5\nspot add 1 $e.mp3\n";
inline constexpr const char* kWeek =
    "day 7\nsegment add\ntime 22 15\nspot add 1 $c.mp3\n"
    "day 1\nsegment add\ntime 8 0\nspot add 1 $d.mp3\nspot add 2 $e.mp3\n";

inline constexpr Kind kKinds[] = {
    {"Model1", 1, 0, 0, true, nullptr, nullptr},
    {"Model2Config0", 2, 0, 0, true, kOneList, nullptr},
    {"Model2Config1", 2, 0, 1, true, kOneList, nullptr},
    {"Model2Config2", 2, 0, 2, true, kOneList, nullptr},
    {"Model2Config3", 2, 0, 3, false, kOneList, nullptr},
    {"Model3Mode1", 3, 1, 0, true, nullptr, nullptr},
    {"Model3Mode2", 3, 2, 0, false, nullptr, kDay},
    {"Model3Mode3", 3, 3, 0, false, nullptr, kWeek},
    {"Model3Mode4", 3, 4, 0, false, kOneList, nullptr},
    {"Model3Mode9", 3, 9, 0, false, kNamed, nullptr},
    {"Model4Mode1", 4, 1, 0, true, nullptr, nullptr},
    {"Model4Mode2", 4, 2, 0, false, nullptr, kDay},
    {"Model4Mode5", 4, 5, 0, false, kLists, nullptr},
    {"Model4Mode6", 4, 6, 0, false, kOneList, nullptr},
    {"Model4Mode7", 4, 7, 0, false, kLists, nullptr},
};

/// A project of a kind on its road through kvr5card alone, with real MP3 files.
class StradaDeiGeneri : public testing::TestWithParam<Kind> {
 protected:
  using Names = std::vector<std::string>;

  void SetUp() override {
    int seed = 0;
    for (const char* name : {"a", "b", "c", "d", "e"}) {
      ++seed;
      k.ScriviMp3(std::string("music/") + name + ".mp3", seed, 40 + seed);
    }
    std::filesystem::create_directories(k.Host("second"));
  }
  Corsa Run(int status, const Names& words, const std::string& session = {}) const {
    auto run = k.EseguiJson(words, session);
    EXPECT_EQ(run.Stato, status) << testing::PrintToString(words) << run.Errori;
    return run;
  }
  std::string Copy() const { return k.Host("program/Projects/Copy"); }

  /// A project Hall with files in all that its kind has. `answer` is that of the question whether
  /// a save copies the files too.
  void MakeHall(const std::string& answer) {
    const Kind& kind = GetParam();
    k.CreaProgetto("Hall", kind.Type, kind.Mode, kind.Config);
    if (kind.Inputs) {
      Run(0, {"inputs", "Hall", "set", "1", k.Host("music/a.mp3")});
      Run(0, {"inputs", "Hall", "set", "3", k.Host("music/b.mp3")});
    }
    if (kind.Playlists != nullptr) Session("playlists", kind.Playlists, answer);
    if (kind.Schedule != nullptr) Session("schedule", kind.Schedule, answer);
    Run(0, {"report", "Hall"});
  }
  void Session(const char* editor, std::string commands, const std::string& answer) const {
    for (std::size_t at = 0; (at = commands.find('$', at)) != std::string::npos;) {
      commands.replace(at, 1, k.Host("music/"));
    }
    const auto run = Run(0, {answer, editor, "Hall"}, commands + "save\n");
    for (const auto& said : run.Box()) EXPECT_FALSE(said.contains("refused")) << said;
  }
  /// Own names by those on the card, of the files that get them back.
  static Renames OfTheInputs() {
    return GetParam().Inputs ? Renames{{"1.mp3", "a.mp3"}, {"3.mp3", "b.mp3"}} : Renames{};
  }
  void ExpectNothingFound(const std::string& project, const std::string& card) const {
    const auto run = Run(0, {"verify", project, k.Host(card)});
    EXPECT_THAT(run.Oggetti(), testing::IsEmpty()) << project << " and " << card;
  }
  void ReadBack() const {
    const auto run = Run(0, {"readback", k.Host("card"), "--name", "Copy"});
    EXPECT_EQ(run.Oggetti(), (std::vector<nlohmann::json>{{{"project", Copy()}}}));
    EXPECT_EQ(run.Errori, "");
  }
  /// The folder holds what the card holds, byte for byte, but for the names.
  void ExpectFolder(const std::string& folder, const std::string& card,
                    const Renames& renames) const {
    Names expected;
    for (const auto& name : k.Nomi(card)) {
      const auto found = renames.find(name);
      expected.push_back(found == renames.end() ? name : found->second);
      EXPECT_TRUE(k.Cartella.Same(card + "/" + name, folder + "/" + expected.back())) << name;
    }
    std::ranges::sort(expected);
    EXPECT_EQ(k.Nomi(folder), expected);
  }
  /// The names of the files that differ between the cards; both have the same files.
  Names Different() const {
    EXPECT_EQ(k.Nomi("card"), k.Nomi("second"));
    Names names = k.Nomi("card");
    std::erase_if(names, [this](const std::string& name) {
      return k.Cartella.Exists("second/" + name) &&
             k.Cartella.Same("card/" + name, "second/" + name);
    });
    return names;
  }
  std::size_t Music() const {
    const Names names = k.Nomi("card");
    return static_cast<std::size_t>(std::ranges::count_if(
        names, [](const std::string& name) { return name.ends_with(".mp3"); }));
  }

  Compagno k;
};

}  // namespace kvr5::test
