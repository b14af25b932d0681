#include <fstream>

#include "core/screens/RiquadroMessaggio.h"
#include "projects/screens/BancoRilettura.h"
#include "support/CampioniJet.h"

// Projects and cards of earlier years, whose databases are of the Jet engine, come in.

namespace kvr5 {
namespace {

using namespace test;

class TakeoverOnOpening : public Rilettura {
 protected:
  void Put(const std::string& sample, const std::string& file) const {
    std::filesystem::copy_file(CampioneJet(sample + ".mdb"), b.Cartella.Host() / file,
                               std::filesystem::copy_options::overwrite_existing);
  }
  /// Takes the box of a taking over.
  Pilota<RiquadroMessaggio> Box(const std::string& title, const std::string& words) {
    return Pilota<RiquadroMessaggio>([=, this](RiquadroMessaggio& box) {
      told = true;
      EXPECT_EQ(box.windowTitle().toStdString(), title);
      EXPECT_EQ(Scritta(box, "lblTesto"), words);
      EXPECT_TRUE(b.Schermi.Aperture.empty()) << "the hub isn't there yet";
      Clicca(box, "cmdOk");
    });
  }
  bool told = false;
};

TEST_F(TakeoverOnOpening, ACardIsTakenOverOnceItIsRead) {
  Put("c_named", "card/playlist.mdb");
  Apri();
  {
    const auto box = Box("Project taken over",
                         "This project was made by an earlier program. Its lists were taken over:\n"
                         "playlist.mdb: 7 lists, 35 tracks\n"
                         "The originals, as they were, are in " +
                             (b.Cartella.Host() / "program/Projects/Hall/Originals").string());
    Leggi();
  }
  EXPECT_TRUE(told);
  EXPECT_EQ(b.Schermi.Aperture, std::vector<std::int16_t>{2});
  EXPECT_TRUE(b.Cartella.Same("card/playlist.mdb", "program/Projects/Hall/Originals/playlist.mdb"));
  EXPECT_EQ(b.Cartella.Read("program/Projects/Hall/playlist.mdb").substr(0, 15), "SQLite format 3");
}

TEST_F(TakeoverOnOpening, ADamagedDatabaseIsToldAndTheProjectOpensAllTheSame) {
  Put("x_trunc_half", "card/playlist.mdb");
  Apri();
  {
    const auto box =
        Box("Project not taken over",
            "This project was made by an earlier program. Nothing of it was changed, because "
            "these lists can't be taken over:\n"
            "playlist.mdb: it is damaged; take it from a backup copy");
    Leggi();
  }
  EXPECT_TRUE(told);
  EXPECT_EQ(b.Schermi.Aperture, std::vector<std::int16_t>{2});
  EXPECT_TRUE(b.Cartella.Same("card/playlist.mdb", "program/Projects/Hall/playlist.mdb"));
}

}  // namespace
}  // namespace kvr5
