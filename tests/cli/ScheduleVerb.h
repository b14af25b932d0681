#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "cli/Verbi.h"
#include "core/Lingua.h"
#include "support/RigheDelDatabase.h"

namespace kvr5::test {

/// Sessions of the schedule of a project named Hall, with the MP3 files a to j.
class ScheduleVerb : public Verbi {
 protected:
  using Texts = std::vector<std::string>;

  static constexpr std::int16_t kOstrel = 3;
  static constexpr std::int16_t kKvr5 = 4;
  static constexpr std::int16_t kOneSchedule = 2;
  static constexpr std::int16_t kByDay = 3;

  void SetUp() override {
    for (char name = 'a'; name <= 'j'; ++name) k.ScriviMp3("music/" + File(name), name);
    Make(kKvr5, kOneSchedule);
  }
  /// The project anew.
  void Make(std::int16_t type, std::int16_t mode) {
    std::filesystem::remove_all(Project());
    k.CreaProgetto("Hall", type, mode);
  }
  Corsa Run(const std::string& commands, Texts options = {}) const {
    options.insert(options.end(), {"schedule", "Hall"});
    return k.EseguiJson(options, commands);
  }
  /// Runs commands and a save, with a no to its question.
  void Saved(const std::string& commands) const {
    const auto run = Run(commands + "no\nsave\n");
    EXPECT_EQ(run.Stato, 0) << run.Errori;
    EXPECT_EQ(Read("scheduler.mdb").empty(), false);
  }
  static std::string File(char name) { return std::string(1, name) + ".mp3"; }
  /// The path of one of the files, for people.
  std::string Music(char name) const { return k.Host("music/" + File(name)); }
  /// "spot add SLOT FILE".
  std::string Add(int slot, char name) const {
    return "spot add " + std::to_string(slot) + " " + Music(name) + "\n";
  }
  /// The spots of a segment, one letter each, into its slots from the first.
  std::string AddAll(const std::string& names) const {
    std::string commands;
    for (std::size_t i = 0; i < names.size(); ++i) {
      commands += Add(static_cast<int>(i) + 1, names[i]);
    }
    return commands;
  }
  /// The segments of each list of a run, "ID HH:MM abc" with a letter for each spot.
  static std::vector<Texts> Lists(const Corsa& run) {
    std::vector<Texts> lists(1);
    for (const auto& each : run.Oggetti()) {
      if (each.contains("end")) {
        EXPECT_EQ(each["rows"], lists.back().size());
        lists.emplace_back();
        continue;
      }
      std::string names;
      for (const auto& spot : each["Spots"]) names += spot["FileName"].get<std::string>()[0];
      const std::string time = each["StartTime"].get<std::string>();
      lists.back().push_back(std::to_string(each["ID"].get<int>()) + " " + time +
                             (names.empty() ? "" : " " + names));
    }
    EXPECT_TRUE(lists.back().empty()) << "a list without its end";
    lists.pop_back();
    return lists;
  }
  /// The segments of the only list of a run.
  static Texts Rows(const Corsa& run) {
    const auto lists = Lists(run);
    EXPECT_EQ(lists.size(), 1U) << run.Errori;
    return lists.empty() ? Texts{} : lists.front();
  }
  /// The same for the commands, followed by a list.
  Texts After(const std::string& commands) const { return Rows(Run(commands + "list\n")); }
  std::string Read(const std::string& name) const {
    return k.Cartella.Read("program/Projects/Hall/" + name);
  }
  bool Exists(const std::string& name) const {
    return k.Cartella.Exists("program/Projects/Hall/" + name);
  }
  /// The spots of scheduler.mdb by ID, "day/segment/Pos a".
  Texts Spots() {
    return RigheDelDatabase(k, "scheduler.mdb", "SELECT * FROM [List] ORDER BY [ID]",
                            [](const Recordset& row) {
                              return row.Text("NPlaylist") + "/" + row.Text("IDSched") + "/" +
                                     row.Text("Pos") + " " + row.Text("FileName").substr(0, 1);
                            });
  }
  /// A column of the same.
  Texts Column(const char* column) {
    return RigheDelDatabase(k, "scheduler.mdb", "SELECT * FROM [List] ORDER BY [ID]",
                            [column](const Recordset& row) { return row.Text(column); });
  }
  std::string Word(const char* key) { return TestoLingua(k.C, key); }
};

}  // namespace kvr5::test
