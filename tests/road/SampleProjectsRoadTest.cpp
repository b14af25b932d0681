#include "platform/Path.h"
#include "projects/CartellaProgetto.h"
#include "road/StradaDeiGeneri.h"
#include "support/CampioniJet.h"
#include "support/ProgettoVecchio.h"

// Projects whose databases are the samples that another program wrote: taken over, their files
// found below another folder, edited, saved, recorded and verified.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

/// A kind of project, the samples that are its databases, and what is edited in it.
struct Old {
  const char* Name;
  std::int16_t Type, Mode, Config;
  std::map<std::string, std::string> Samples;  ///< by database
};

void PrintTo(const Old& old, std::ostream* out) {
  *out << old.Name;
}

class SampleProjectsRoad : public testing::TestWithParam<Old> {
 protected:
  static constexpr const char* kInputs = "inputcfg.mdb";

  test::Corsa Run(int status, const std::vector<std::string>& words,
                  const std::string& session = {}) const {
    auto run = k.EseguiJson(words, session);
    EXPECT_EQ(run.Stato, status) << testing::PrintToString(words) << run.Errori;
    return run;
  }
  static std::string InProject(const std::string& file) { return "program/Projects/Old/" + file; }
  bool Has(const std::string& database) const { return GetParam().Samples.contains(database); }
  test::RigheDb List(const std::string& database) {
    return test::RigheList(k.Disco, k.Percorso(InProject(database)));
  }
  static std::string Text(const DbValue& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? std::string() : *text;
  }
  /// A name that a file of a project can have.
  static bool IsUsable(const std::string& name) { return name.find('"') == std::string::npos; }
  /// Below "music", in folders like those of the row, which names the file itself as a rule.
  static std::string Place(const std::vector<DbValue>& row) {
    std::string folder(FolderOf(Text(row[2])));
    std::ranges::replace(folder, '\\', '/');
    std::erase(folder, ':');
    return "music/" + folder + "/" + Text(row[1]);
  }
  void MakeFiles(const std::string& database) {
    for (const auto& row : List(database)) {
      const std::string place = Place(row);
      if (!IsUsable(place) || k.Cartella.Exists(place)) continue;
      ++seed;
      k.ScriviMp3(place, seed, 40 + seed % 60);
    }
  }
  /// Confirms each input's file where it was found; one that wasn't gives its input free.
  void ConfirmInputs(const std::vector<nlohmann::json>& found) {
    for (const auto& row : List(kInputs)) {
      const std::string code = std::to_string(std::get<std::int64_t>(row[4]));
      const auto id = std::get<std::int64_t>(row[0]);
      const auto is = [id](const auto& each) {
        return each["database"] == kInputs && each["ID"] == id;
      };
      const auto& where = std::ranges::find_if(found, is)->at("path");
      if (where.is_null()) {
        Run(0, {"inputs", "Old", "clear", code});
      } else {
        Run(0, {"inputs", "Old", "set", code, where});
      }
    }
  }
  /// Adds a track of its own to the list that comes up, or a segment to the day.
  void Edit() {
    k.ScriviMp3("music/new.mp3", ++seed, 50);
    const std::string file = k.Host("music/new.mp3");
    if (Has("playlist.mdb")) Run(0, {"--no", "playlists", "Old"}, "add " + file + "\nsave\n");
    if (Has("scheduler.mdb")) {
      Run(0, {"--no", "schedule", "Old"},
          "segment add\ntime 0 45\nspot add 1 " + file + "\nsave\n");
    }
  }

  test::Compagno k;
  int seed = 0;
};

TEST_P(SampleProjectsRoad, IsTakenOverFoundEditedSavedRecordedAndVerified) {
  k.CreaProgetto("Old", GetParam().Type, GetParam().Mode, GetParam().Config);
  for (const auto& [database, sample] : GetParam().Samples) {
    fs::copy_file(test::CampioneJet(sample + ".mdb"), k.Host(InProject(database)),
                  fs::copy_options::overwrite_existing);
  }
  Run(0, {"takeover", "Old"});
  std::size_t rows = 0;
  for (const auto& [database, sample] : GetParam().Samples) {
    rows += List(database).size();
    MakeFiles(database);
  }
  const auto found = k.EseguiJson({"relocate", "Old", k.Host("music")}).Oggetti();
  EXPECT_EQ(found.size(), rows) << "nothing was where the other computer had it";
  for (const auto& each : found) {
    EXPECT_EQ(each["state"] == "found", IsUsable(each["file"])) << each;
  }
  if (Has(kInputs)) ConfirmInputs(found);
  Edit();
  Run(0, {"--no", "save", "Old"});
  Run(0, {"record", "Old", k.Host("card")});
  EXPECT_THAT(Run(0, {"verify", "Old", k.Host("card")}).Oggetti(), testing::IsEmpty());
  const auto onCard = k.Nomi("card");
  const auto music =
      std::ranges::count_if(onCard, [](const std::string& name) { return name.ends_with(".mp3"); });
  EXPECT_GE(music, 6) << "named lists keep one file of a name";
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, SampleProjectsRoad,
    testing::Values(
        Old{"Model1", 1, 0, 0, {{"inputcfg.mdb", "a_inputs"}}},
        Old{"Model1PlainText", 1, 0, 0, {{"inputcfg.mdb", "k_inputs_nocompress"}}},
        Old{"Model2", 2, 0, 0, {{"inputcfg.mdb", "p_password"}, {"playlist.mdb", "c_named"}}},
        Old{"Model2Playlists", 2, 0, 3, {{"playlist.mdb", "c_named"}}},
        Old{"Model3Inputs", 3, 1, 0, {{"inputcfg.mdb", "a_inputs"}}},
        Old{"Model3Day", 3, 2, 0, {{"scheduler.mdb", "d_schedule"}}},
        Old{"Model3Week", 3, 3, 0, {{"scheduler.mdb", "d_schedule"}}},
        Old{"Model3Named", 3, 9, 0, {{"playlist.mdb", "c_named"}}},
        Old{"Model4Inputs", 4, 1, 0, {{"inputcfg.mdb", "p_password"}}},
        Old{"Model4Day", 4, 2, 0, {{"scheduler.mdb", "d_schedule"}}},
        Old{"Model4Lists", 4, 5, 0, {{"playlist.mdb", "c_named"}}},
        Old{"Model4OneList", 4, 6, 0, {{"playlist.mdb", "c_named"}}},
        Old{"Model4Combinations", 4, 7, 0, {{"playlist.mdb", "c_named"}}}),
    [](const auto& old) { return std::string(old.param.Name); });

}  // namespace
}  // namespace kvr5
