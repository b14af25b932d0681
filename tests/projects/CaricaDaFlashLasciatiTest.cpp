// What a reading of a card leaves: CartellaProgetto after a name was given, and the files whose
// names no card can hold.
#include <algorithm>
#include <fstream>

#include "BancoLettura.h"
#include "projects/NuovoProgetto.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using test::Lettura;
using Names = std::vector<std::string>;

/// A card whose name a project has; the dialog does what the real one does with the new name.
class LetturaConNome : public Lettura {
 protected:
  void SetUp() override {
    Lettura::SetUp();
    Descriptor("Hall");
    Put("1.mp3", "music");
    fs::create_directories(Host("program/Projects/Hall"));
    screen.Answer = "Foyer";
  }
  /// What happens right after the name was given.
  void AfterTheName(std::function<void()> what) {
    screen.Asking = [this, what = std::move(what)] {
      EXPECT_EQ(PreparaCartella(b.C, "Foyer", true), EsitoNuovo::SoloNome);
      EXPECT_EQ(s.CartellaProgetto, b.Percorso("program/Projects/Foyer")) << "as the dialog leaves";
      what();
    };
  }
};

TEST_F(LetturaConNome, AFolderThatCannotBeMadeForItLeavesTheFolderOfTheStateAtTheCard) {
  AfterTheName([this] { b.Cartella.Write("program/Projects/Foyer", "a file in its place"); });
  EXPECT_EQ(Read().Fine, FineLettura::SenzaCartella);
  ExpectNoFolder(errors::PathFileAccess);
  EXPECT_EQ(screen.Asked, Names{"Hall"});
  EXPECT_EQ(s.CartellaProgetto, Card());
}

TEST_F(LetturaConNome, ACardWithoutAProjectsFilesByThenLeavesTheFolderOfTheStateAtTheCard) {
  AfterTheName([this] {
    for (const char* name : {"Config.cfg", "1.mp3"}) fs::remove(Host("card") / name);
  });
  const auto outcome = Read();
  EXPECT_EQ(outcome.Fine, FineLettura::SchedaVuota);
  EXPECT_EQ(outcome.Cartella, b.Percorso("program/Projects/Foyer"));
  EXPECT_EQ(s.CartellaProgetto, Card());
  EXPECT_TRUE(fs::is_empty(Host("program/Projects/Foyer")));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

class LetturaLasciati : public Lettura {
 protected:
  void SetUp() override {
    Lettura::SetUp();
    Descriptor("Hall");
    Put("1.mp3", "music");
  }
  /// Tells of as many files, the first named "1".
  void Tell(std::size_t count) {
    EsitoLettura outcome;
    for (std::size_t i = 1; i <= count; ++i) outcome.Lasciati.push_back(std::to_string(i));
    AvvisaLasciati(b.C, outcome);
  }
  void ExpectTold(const std::string& title, const std::string& text) {
    const auto box = b.Finestre.Prossimo();
    EXPECT_FALSE(box.SiNo);
    EXPECT_TRUE(box.SoloOk);
    EXPECT_EQ(box.Segno, Icona::Avviso);
    EXPECT_EQ(box.Titolo, title);
    EXPECT_EQ(box.Testo, text);
    EXPECT_TRUE(b.Finestre.Silenzio());
  }
};

TEST_F(LetturaLasciati, NamesThatNoCardCanHoldAreLeftOutAndToldButNoLinks) {
  for (const char* name : {"Aux.mp3", "con.jpg", "more/LPT1.txt", "more/good.txt"}) Put(name);
  std::ofstream(Host("card") / "caf\xE8.mp3") << "latin";
  fs::create_directories(Host("card") / "d\xE9j\xE0");
  std::ofstream(Host("card") / "d\xE9j\xE0/inside.mp3") << "x";
  fs::create_symlink("1.mp3", Host("card/prn.mp3"));
  fs::create_symlink("1.mp3", Host("card/link.mp3"));
  auto outcome = Read();
  EXPECT_EQ(outcome.Fine, FineLettura::Copiata);
  std::ranges::sort(outcome.Lasciati);
  EXPECT_EQ(outcome.Lasciati,
            (Names{"Aux.mp3", "LPT1.txt", "caf\uFFFD.mp3", "con.jpg", "d\uFFFDj\uFFFD"}))
      << "of a folder its name alone";
  EXPECT_EQ(b.Nomi("program/Projects/Hall"), (Names{"1.mp3", "Config.cfg", "more/good.txt"}));
  EXPECT_TRUE(b.Copia.Guasti.empty()) << "the copy itself went on";
}

TEST_F(LetturaLasciati, WhereAllWasCopiedNothingIsTold) {
  fs::create_symlink("1.mp3", Host("card/prn.mp3"));
  Put("System Volume Information/x");
  const auto outcome = Read();
  EXPECT_EQ(outcome.Lasciati, Names{});
  AvvisaLasciati(b.C, outcome);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(LetturaLasciati, TheFirstTenAreNamed) {
  const std::string words =
      "These files of the card have names that no other card or computer may hold, so they "
      "weren't copied: ";
  const std::string ten = "1, 2, 3, 4, 5, 6, 7, 8, 9, 10";
  Tell(1);
  ExpectTold("Not all of the card was copied", words + "1");
  Tell(10);
  ExpectTold("Not all of the card was copied", words + ten);
  Tell(11);
  ExpectTold("Not all of the card was copied", words + ten + ", ...");
}

TEST_F(LetturaLasciati, ItIsToldInTheLanguageAndOnOneLine) {
  s.FileLingua = b.Percorso("program/Language/Italiano.lan");
  AvvisaLasciati(b.C, {FineLettura::Copiata, {}, {"a\nb.mp3"}});
  ExpectTold("Non tutta la scheda è stata copiata",
             "Questi file della scheda hanno nomi che altre schede o altri computer non possono "
             "contenere e non sono stati copiati: a\uFFFDb.mp3");
}

}  // namespace
}  // namespace kvr5
