#include "projects/CartellaProgetto.h"
#include "road/StradaDeiGeneri.h"
#include "support/ProgettoVecchio.h"

// Each kind of project as an earlier program left it, from another computer: taken over, its files
// found again, edited, recorded.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

class OldProjectsRoad : public test::StradaDeiGeneri {
 protected:
  test::RigheDb List(const std::string& path) { return test::RigheList(k.Disco, k.Percorso(path)); }
  test::RigheDb Head(const std::string& path) { return test::RigheHead(k.Disco, k.Percorso(path)); }
  /// The project Hall as the earlier program has it, in a folder Old.
  void MakeOld() {
    fs::copy(k.Host("program/Projects/Hall"), k.Host(Old("")), fs::copy_options::recursive);
    for (const char* database : kDatabaseProgetto) {
      test::RendiVecchio(k.Disco, k.Cartella, Old(database));
    }
  }
  static std::string Old(const std::string& file) { return "program/Projects/Old/" + file; }
  static std::string Hall(const std::string& file) { return "program/Projects/Hall/" + file; }
};

TEST_P(OldProjectsRoad, IsTakenOverFoundAgainEditedAndRecorded) {
  MakeHall("--no");
  Run(0, {"record", "Hall", k.Host("card")});
  MakeOld();
  const auto taken = Run(0, {"takeover", "Old"});
  EXPECT_FALSE(taken.Oggetti().empty());
  for (const auto& each : taken.Oggetti()) EXPECT_EQ(each["state"], "taken") << each;
  Run(1, {"record", "Old", k.Host("second")});  // nothing of the other computer's is here
  Run(0, {"relocate", "Old", k.Host("music")});
  for (const char* database : kDatabaseProgetto) {
    if (!k.Cartella.Exists(Old(database))) continue;
    EXPECT_EQ(List(Old(database)), List(Hall(database))) << database;
    EXPECT_EQ(Head(Old(database)), Head(Hall(database))) << database;
  }
  if (GetParam().Playlists != nullptr) Run(0, {"--no", "playlists", "Old"}, "save\n");
  if (GetParam().Schedule != nullptr) Run(0, {"--no", "schedule", "Old"}, "save\n");
  Run(0, {"record", "Old", k.Host("second")});
  ExpectNothingFound("Old", "second");
  EXPECT_EQ(k.Nomi("second"), k.Nomi("card"));
  for (const std::string& name : Different()) EXPECT_TRUE(name.ends_with(".mdb")) << name;
}

INSTANTIATE_TEST_SUITE_P(EachKind, OldProjectsRoad, testing::ValuesIn(test::kKinds),
                         [](const auto& kind) { return std::string(kind.param.Name); });

}  // namespace
}  // namespace kvr5
