// A card that is the project's own folder.
#include "BancoRegistrazione.h"
#include "projects/BancoLettura.h"

namespace kvr5 {
namespace {

using test::Albero;
using test::AlberoDi;
using test::Cambiati;
using test::Recording;
using Names = std::vector<std::string>;

class RecordingOntoItself : public Recording {
 protected:
  /// A project whose lists for the computer a recording takes from the card again.
  void NamedLists() {
    Project(3, 9);
    b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", Music(), "P01-001.mp3");
    Put("Morning.m3u", "P01-001\r\n");
    Put("Morning_LOCAL_.m3u", Music() + "a.mp3\r\n");
    Put("test.txt", "the user's own");
  }
};

TEST_F(RecordingOntoItself, IsToldAsNotWritableAndChangesNothingHoweverTheFolderIsNamed) {
  NamedLists();
  std::filesystem::create_directory_symlink(b.Cartella.Host() / "program/Projects/Hall",
                                            b.Cartella.Host() / "link");
  ASSERT_TRUE(b.Percorsi.Bind('E', (b.Cartella.Host() / "program/Projects/Hall").string()));
  const Albero before = AlberoDi(b.Cartella.Host(), true);
  for (const std::string& card :
       {s.CartellaProgetto + "\\", b.Percorso("PROGRAM/projects/HALL") + "\\",
        b.Percorso("link") + "\\", std::string("E:\\")}) {
    SCOPED_TRACE(card);
    s.PercorsoMemoryCard = card;
    EXPECT_EQ(Record(), FineRegistrazione::NonScrivibile);
    ExpectUnwritable();
    EXPECT_EQ(b.C.Errore.Last().Number(), errors::PathFileAccess);
    EXPECT_EQ(outcome.File, 0U);
    EXPECT_FALSE(progress.Caricata());
    EXPECT_EQ(Cambiati(before, AlberoDi(b.Cartella.Host(), true)), Names{});
  }
}

TEST_F(RecordingOntoItself, IsNotWhatAFolderInsideTheProjectOrBesideItIs) {
  NamedLists();
  for (const char* folder : {"program/Projects/Hall/card", "program/Projects/Hall2"}) {
    SCOPED_TRACE(folder);
    std::filesystem::create_directories(b.Cartella.Host() / folder);
    s.PercorsoMemoryCard = b.Percorso(folder) + "\\";
    EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
    EXPECT_TRUE(b.Cartella.Exists(std::string(folder) + "/P01-001.mp3"));
  }
}

}  // namespace
}  // namespace kvr5
