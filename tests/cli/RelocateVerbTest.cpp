#include "cli/Verbi.h"
#include "support/RigheDelDatabase.h"

namespace kvr5 {
namespace {

using nlohmann::json;

class RelocateVerb : public test::Verbi {
 protected:
  void SetUp() override {
    k.CreaProgetto("Hall", 4, 5);
    k.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", "D:\\Old\\", "");
    k.Cartella.Write("new/Jazz/a.mp3", "x");
  }
};

TEST_F(RelocateVerb, WritesWhereTheFilesAre) {
  const auto run = k.Esegui({"relocate", "Hall", k.Host("new")});
  EXPECT_EQ(run.Stato, 0) << run.Errori;
  EXPECT_EQ(run.Uscita, "found: " + k.Host("new/Jazz/a.mp3") + "\n");
  EXPECT_EQ(test::ColonnaDeiBrani(k, "FilePath"),
            std::vector<std::string>{k.Percorso("new/Jazz") + "\\"});
  EXPECT_EQ(k.Esegui({"relocate", "Hall", k.Host("new")}).Uscita, "") << "nothing is missing now";
}

TEST_F(RelocateVerb, ProgramsGetAnObjectForEachRow) {
  k.AggiungiRiga("playlist.mdb", 1, 2, "b.mp3", "D:\\Old\\", "");
  const auto run = k.EseguiJson({"relocate", "Hall", k.Host("new")});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Oggetti(), (std::vector<json>{{{"database", "playlist.mdb"},
                                               {"ID", 1},
                                               {"file", "a.mp3"},
                                               {"state", "found"},
                                               {"path", k.Host("new/Jazz/a.mp3")}},
                                              {{"database", "playlist.mdb"},
                                               {"ID", 2},
                                               {"file", "b.mp3"},
                                               {"state", "missing"},
                                               {"path", nullptr}}}));
}

TEST_F(RelocateVerb, PathsAreWholeWhateverTheRowNames) {
  k.AggiungiRiga("playlist.mdb", 1, 2, "b.mp3", "\\\\server\\share", "");
  k.AggiungiRiga("playlist.mdb", 1, 3, "c.mp3", "\\\\server\\share\\C.mp3", "");
  EXPECT_EQ(k.Esegui({"relocate", "Hall", k.Host("new")}).Uscita,
            "found: " + k.Host("new/Jazz/a.mp3") +
                "\nmissing: //server/share/b.mp3\nmissing: //server/share/C.mp3\n");
}

TEST_F(RelocateVerb, TakesAProjectAndAFolder) {
  EXPECT_EQ(k.Esegui({"relocate", "Hall"}).Stato, 2);
  EXPECT_EQ(k.Esegui({"relocate", "Hall", k.Host("nowhere")}).Stato, 1);
  EXPECT_EQ(k.Esegui({"relocate", "Nowhere", k.Host("new")}).Stato, 3);
}

}  // namespace
}  // namespace kvr5
