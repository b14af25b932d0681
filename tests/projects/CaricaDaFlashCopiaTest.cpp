// What of a card comes into the new folder, and what a cancel or a failure leaves of it.
#include <sys/stat.h>

#include <fstream>

#include "BancoLettura.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using test::Albero;
using test::AlberoDi;
using test::Cambiati;
using test::Lettura;
using Names = std::vector<std::string>;

class LetturaCopia : public Lettura {
 protected:
  /// A card with files and folders, named `project`.
  void FullCard(const std::string& project) {
    Descriptor(project);
    Put("Config.txt", "VOLU=1\r\n");
    Put("1.mp3", std::string(40'000, 'm'));
    Put("2.mp3", std::string(9'000, 'n'));
    Put("playlist.mdb", std::string(8192, 'd'));
    Put("photos/summer/1.jpg", "picture");
    Put("empty.txt", "");
  }
  /// Every file of the copy is that of the card, whole; nothing else lies there.
  void ExpectWholeFiles(const std::string& project) const {
    const Albero card = AlberoDi(Host("card"));
    for (const auto& [name, what] : Copy(project)) {
      const auto there = card.find(name);
      EXPECT_TRUE(there != card.end() && there->second == what) << project << ": " << name;
    }
  }
};

TEST_F(LetturaCopia, EverythingOnTheCardComesWithItsFoldersAndTimesAndTheCardStays) {
  FullCard("Hall");
  Put(".hidden");
  Put("notes.doc");
  Put("a/b/c/d/e/f/deep.bin");
  fs::create_directories(Host("card/nothing/in/here"));
  fs::permissions(Host("card/1.mp3"), fs::perms::owner_read);
  fs::last_write_time(Host("card/2.mp3"), fs::file_time_type::clock::now() - std::chrono::years(9));
  const Albero before = AlberoDi(Host("card"), true);
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  EXPECT_EQ(Cambiati(before, AlberoDi(Host("card"), true)), Names{});
  EXPECT_EQ(Cambiati(AlberoDi(Host("card")), Copy("Hall")), Names{});
  for (const char* name : {"1.mp3", "2.mp3", "photos/summer/1.jpg"}) {
    const auto seconds = [&](const std::string& folder) {
      return std::chrono::floor<std::chrono::seconds>(fs::last_write_time(Host(folder + name)));
    };
    EXPECT_EQ(seconds("card/"), seconds("program/Projects/Hall/")) << name;
  }
}

TEST_F(LetturaCopia, HiddenSystemAndReadOnlyFilesOfACardComeToo) {
  FullCard("Hall");
  bench.Attributi = {{"1.mp3", {.Hidden = true, .System = true, .ReadOnly = true}},
                     {"2.mp3", {.ReadOnly = true}},
                     {"Config.txt", {.Hidden = true}}};
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  EXPECT_EQ(Cambiati(AlberoDi(Host("card")), Copy("Hall")), Names{});
}

TEST_F(LetturaCopia, TheFoldersOfTheSystemAndWhatACopyLeftAreNoPartOfTheProject) {
  FullCard("Hall");
  const Albero wanted = AlberoDi(Host("card"));
  Put("System Volume Information/IndexerVolumeGuid");
  Put("$RECYCLE.BIN/x/desktop.ini");
  Put(".Trash-1000/files/old.mp3");
  Put("lost+found/#12");
  Put("~abcdefg.kv5");
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  EXPECT_EQ(Cambiati(wanted, Copy("Hall")), Names{});
  EXPECT_TRUE(b.Copia.Guasti.empty());
}

TEST_F(LetturaCopia, LinksPipesAndLoopsBringNothing) {
  FullCard("Hall");
  const Albero wanted = AlberoDi(Host("card"));
  b.Cartella.Write("secret/letter.mp3", "a user's own");
  fs::create_symlink("../secret/letter.mp3", Host("card/9.mp3"));
  fs::create_directory_symlink("../secret", Host("card/more"));
  fs::create_directory_symlink(".", Host("card/again"));
  fs::create_directory_symlink("../..", Host("card/photos/up"));
  fs::create_symlink("nowhere", Host("card/dangling.mp3"));
  ASSERT_EQ(mkfifo(Host("card/pipe.mp3").c_str(), 0600), 0);
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  EXPECT_EQ(Cambiati(wanted, Copy("Hall")), Names{});
  EXPECT_TRUE(b.Copia.Guasti.empty());
}

TEST_F(LetturaCopia, NamesThatNoPathOrCardCanHoldAreLeftOutAndTheOthersCome) {
  FullCard("Hall");
  const Albero wanted = AlberoDi(Host("card"));
  std::ofstream(Host("card") / "caf\xE8.mp3") << "latin";
  fs::create_directories(Host("card") / "\xFF\xFE");
  std::ofstream(Host("card") / "\xFF\xFE/in.mp3") << "x";
  std::ofstream(Host("card") / "a\\b.mp3") << "x";
  for (const char* name : {"a<b.mp3", "con.txt", "dot.", "blank ", "tab\t.mp3", "nul/in.mp3"}) {
    Put(name);
  }
  std::ofstream(Host("card") / "..\\..\\out.mp3") << "x";
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  EXPECT_EQ(Cambiati(wanted, Copy("Hall")), Names{});
  EXPECT_FALSE(b.Cartella.Exists("program/out.mp3"));
  EXPECT_TRUE(b.Copia.Guasti.empty());
}

TEST_F(LetturaCopia, AProjectsFolderOnTheCardDoesNotCopyItselfIntoItself) {
  FullCard("Hall");
  fs::create_directories(Host("card/Projects/Older"));
  Put("Projects/Older/Config.txt", "of an older one");
  const Albero before = AlberoDi(Host("card"));
  s.CartellaProgetti = b.Percorso("card/Projects");
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  Albero wanted = before;
  EXPECT_EQ(Cambiati(wanted, AlberoDi(Host("card/Projects/Hall"))), Names{});
  EXPECT_EQ(Cambiati(before, test::Senza(AlberoDi(Host("card")), {"Projects/Hall"})), Names{});
}

TEST_F(LetturaCopia, ACancelAtAnyPointIsToldAndKeepsWholeFilesOnly) {
  int cancelled = 0;
  for (int call = 1;; ++call) {
    SCOPED_TRACE(call);
    const std::string project = "P" + std::to_string(call);
    FullCard(project);
    b.Copia.Volte = 0;
    b.Copia.AnnullaAlla = call;
    const auto outcome = Read();
    ExpectWholeFiles(project);
    EXPECT_EQ(outcome.Cartella, b.Percorso("program/Projects/" + project));
    if (outcome.Fine == FineLettura::Copiata) break;
    ++cancelled;
    EXPECT_EQ(outcome.Fine, FineLettura::Annullata);
    ExpectCancelled();
    EXPECT_TRUE(screen.Enabled);
    EXPECT_TRUE(s.AnnullatoDaUtente);
    EXPECT_TRUE(Made(project)) << "nothing that was made is taken back";
    ASSERT_LT(call, 100);
  }
  EXPECT_GE(cancelled, 8) << "at each folder and each file";
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(LetturaCopia, TheScreenIsOutOfUseWhileTheBoxOfACancelStands) {
  FullCard("Hall");
  b.Copia.AnnullaAlla = 3;
  progress.Carica();
  bool looked = false;
  b.Finestre.SuBox = [&](const test::BoxVisto&) {
    looked = true;
    EXPECT_FALSE(screen.Enabled);
    EXPECT_FALSE(progress.Caricata());
  };
  EXPECT_EQ(Read().Fine, FineLettura::Annullata);
  ExpectCancelled();
  EXPECT_TRUE(looked);
}

TEST_F(LetturaCopia, WhatACancelLeftIsAskedAboutTheNextTime) {
  FullCard("Hall");
  b.Copia.AnnullaAlla = 5;
  EXPECT_EQ(Read().Fine, FineLettura::Annullata);
  ExpectCancelled();
  b.Copia.AnnullaAlla = 0;
  screen.Answer = "Foyer";
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  EXPECT_EQ(screen.Asked, Names{"Hall"});
  EXPECT_EQ(Cambiati(AlberoDi(Host("card")), Copy("Foyer")), Names{});
}

TEST_F(LetturaCopia, AFullDiskIsToldByTheCopyAloneAndLeavesWholeFiles) {
  for (const std::uint64_t room : {0U, 100U, 5'000U, 30'000U, 41'000U, 50'000U}) {
    SCOPED_TRACE(room);
    const std::string project = "P" + std::to_string(room);
    FullCard(project);
    b.Copia.Guasti.clear();
    bench.Guasto->LimitRoom(b.Percorso("program/Projects/" + project), room);
    EXPECT_EQ(Read().Fine, FineLettura::Copiata) << "only a cancel is looked at";
    ASSERT_EQ(b.Copia.Guasti.size(), 1U);
    EXPECT_EQ(b.Copia.Guasti[0].Cause.Number(), errors::DiskFull);
    EXPECT_TRUE(b.Finestre.Silenzio());
    ExpectWholeFiles(project);
    bench.Guasto->Repair();
  }
}

TEST_F(LetturaCopia, ACardPulledOutAfterAnyOperationLeavesWholeFilesAndIsToldAtMostOnce) {
  std::size_t whole = 0;
  for (std::size_t left = 0; left < 120; ++left) {
    SCOPED_TRACE(left);
    const std::string project = "P" + std::to_string(left);
    FullCard(project);
    b.Copia.Guasti.clear();
    bench.Guasto->VanishAfter(Card(), left);
    const auto outcome = Read();
    bench.Guasto->Repair();
    const std::size_t boxes = b.Finestre.Silenzio() ? 0 : 1;
    if (boxes == 1) b.Finestre.Prossimo();
    EXPECT_TRUE(b.Finestre.Silenzio());
    const bool told =
        outcome.Fine == FineLettura::SenzaDescrittore || outcome.Fine == FineLettura::SenzaNome;
    EXPECT_EQ(boxes, told ? 1U : 0U);
    EXPECT_EQ(Made(project),
              outcome.Fine == FineLettura::Copiata || outcome.Fine == FineLettura::SchedaVuota);
    if (Made(project)) ExpectWholeFiles(project);
    if (outcome.Fine != FineLettura::Copiata) continue;
    const bool all = Cambiati(AlberoDi(Host("card")), Copy(project)).empty();
    EXPECT_EQ(b.Copia.Guasti.empty(), all) << "what doesn't come is told";
    if (all) ++whole;
  }
  EXPECT_GT(whole, 0U) << "the card was there for a whole copy at last";
}

TEST_F(LetturaCopia, ACardThatGoesAwayBetweenTwoStepsEndsTheReadingThere) {
  const auto away = [this] { bench.Guasto->VanishAfter(Card(), 0); };
  FullCard("Hall");
  choice.Chosen = away;
  EXPECT_EQ(Read().Fine, FineLettura::SenzaDescrittore);
  ExpectNoDescriptor();
  choice.Chosen = nullptr;
  bench.Guasto->Repair();

  fs::create_directories(Host("program/Projects/Hall"));
  screen.Asking = away;
  screen.Answer = "Foyer";
  EXPECT_EQ(Read().Fine, FineLettura::SchedaVuota);
  EXPECT_TRUE(fs::is_empty(Host("program/Projects/Foyer")));
  screen.Asking = nullptr;
  bench.Guasto->Repair();

  screen.Answer = "Bar";
  screen.Disabling = away;
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  ASSERT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_TRUE(b.Copia.Guasti[0].Source);
  EXPECT_TRUE(fs::is_empty(Host("program/Projects/Bar")));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(LetturaCopia, AFileOrFolderThatCannotBeReadEndsTheCopyAndIsTold) {
  FullCard("Hall");
  bench.Guasto->FailReadsAfter(b.Percorso("card/1.mp3"), 4096, errors::DeviceIo);
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  ASSERT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_TRUE(b.Copia.Guasti[0].Source);
  EXPECT_TRUE(b.Copia.Guasti[0].File.ends_with("\\1.mp3"));
  EXPECT_FALSE(Made("Hall/1.mp3"));
  ExpectWholeFiles("Hall");

  bench.Guasto->Repair();
  FullCard("Foyer");
  bench.Guasto->VanishAfter(b.Percorso("card/photos"), 0);
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  ASSERT_EQ(b.Copia.Guasti.size(), 2U);
  EXPECT_TRUE(b.Copia.Guasti[1].File.ends_with("\\photos"));
}

}  // namespace
}  // namespace kvr5
