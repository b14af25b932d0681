// The reading back of a card: its steps in their order, and how each of them can end it.
#include <sys/stat.h>

#include "BancoLettura.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using test::Albero;
using test::Cambiati;
using test::Lettura;
using Names = std::vector<std::string>;

/// Writes down what the steps find: where CartellaProgetto leads, whether the folder is made,
/// whether the screen takes commands.
class LetturaPassi : public Lettura {
 protected:
  void Watch(const std::string& folder) {
    choice.Chosen = [this, folder] { Note("choose", folder); };
    screen.Asking = [this, folder] { Note("ask", folder); };
    screen.Disabling = [this, folder] { Note("disable", folder); };
    b.Messaggi.Accade = [this, folder] { Note("events", folder); };
    b.Copia.SuProgresso = [this, folder](const CopyState&) { Note("copy", folder); };
    b.Finestre.SuBox = [this, folder](const test::BoxVisto& box) { Note(box.Titolo, folder); };
  }
  void Note(const std::string& what, const std::string& folder) {
    std::string line = what + (s.CartellaProgetto == Card() ? ", card" : ", old");
    if (Made(folder)) line += ", folder";
    if (!screen.Enabled) line += ", disabled";
    if (steps.empty() || steps.back() != line) steps.push_back(line);
  }

  Names steps;
};

TEST_F(LetturaPassi, ACardIsCopiedIntoAFolderOfItsProjectsNameStepByStep) {
  Descriptor("Hall");
  Put("1.mp3", "music");
  s.AnnullatoDaUtente = true;  // left over from an earlier work
  progress.Carica();
  s.AnnullatoDaUtente = true;
  Watch("Hall");
  const auto outcome = Read();
  EXPECT_EQ(outcome.Fine, FineLettura::Copiata);
  EXPECT_EQ(outcome.Cartella, b.Percorso("program/Projects/Hall"));
  EXPECT_EQ(steps, (Names{"choose, old", "events, old", "events, card", "events, card, folder",
                          "disable, card, folder, disabled", "copy, card, folder, disabled",
                          "events, card, folder, disabled"}));
  EXPECT_EQ(b.Nomi("program/Projects/Hall"), (Names{"1.mp3", "Config.cfg"}));
  EXPECT_FALSE(screen.Enabled) << "opening the copy takes the screen away";
  EXPECT_FALSE(progress.Caricata());
  EXPECT_FALSE(s.AnnullatoDaUtente);
  EXPECT_EQ(s.ProjectName, "Hall");
  EXPECT_EQ(s.CartellaProgetto, Card()) << "opening it is the caller's";
  EXPECT_TRUE(screen.Asked.empty());
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(LetturaPassi, WhereAProjectHasTheNameAnotherOneIsAskedBeforeAnythingIsMade) {
  Descriptor("Hall");
  fs::create_directories(Host("program/Projects/Hall"));
  screen.Answer = "Foyer";
  Watch("Foyer");
  EXPECT_EQ(Read().Cartella, b.Percorso("program/Projects/Foyer"));
  EXPECT_EQ(screen.Asked, Names{"Hall"});
  EXPECT_EQ(steps, (Names{"choose, old", "events, old", "ask, card", "events, card",
                          "events, card, folder", "disable, card, folder, disabled",
                          "copy, card, folder, disabled", "events, card, folder, disabled"}));
  EXPECT_TRUE(fs::is_empty(Host("program/Projects/Hall")));
  EXPECT_EQ(b.Nomi("program/Projects/Foyer"), Names{"Config.cfg"});
}

TEST_F(Lettura, ADialogThatIsLeftChangesNothing) {
  Descriptor("Hall");
  s.PercorsoMemoryCard = "E:\\";
  choice.Cancelled = true;
  const Albero before = Tree(true);
  EXPECT_EQ(Read().Fine, FineLettura::SenzaScheda);
  EXPECT_EQ(choice.Times, 1) << "it is asked also where a card is chosen already";
  EXPECT_EQ(s.CartellaProgetto, "C:\\old");
  EXPECT_EQ(s.ProjectName, "Old");
  EXPECT_EQ(Cambiati(before, Tree(true)), Names{});
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_TRUE(screen.Enabled);
}

TEST_F(Lettura, ADialogWithoutACardChangesNothing) {
  Descriptor("Hall");
  choice.Card.clear();
  EXPECT_EQ(Read().Fine, FineLettura::SenzaScheda);
  EXPECT_EQ(s.CartellaProgetto, "C:\\old");
  EXPECT_EQ(s.ProjectName, "Old");
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Lettura, ACardWithoutADescriptorIsToldAndLeavesTheOldName) {
  Put("Config.txt");
  const Albero before = Tree(true);
  const auto outcome = Read();
  EXPECT_EQ(outcome.Fine, FineLettura::SenzaDescrittore);
  EXPECT_EQ(outcome.Cartella, "");
  ExpectNoDescriptor();
  EXPECT_EQ(s.CartellaProgetto, Card());
  EXPECT_EQ(s.ProjectName, "Old");
  EXPECT_EQ(Cambiati(before, Tree(true)), Names{});
  EXPECT_TRUE(screen.Enabled);
}

TEST_F(Lettura, ACardThatIsNotThereHasNoDescriptor) {
  choice.Card = b.Percorso("gone") + "\\";
  EXPECT_EQ(Read().Fine, FineLettura::SenzaDescrittore);
  ExpectNoDescriptor();
  EXPECT_FALSE(b.Cartella.Exists("gone"));
}

TEST_F(Lettura, WhatIsNoFileIsNoDescriptor) {
  Put("Config.cfg/inside");
  EXPECT_EQ(Read().Fine, FineLettura::SenzaDescrittore);
  ExpectNoDescriptor();
  fs::remove_all(Host("card/Config.cfg"));
  ASSERT_EQ(mkfifo(Host("card/Config.cfg").c_str(), 0600), 0);
  EXPECT_EQ(Read().Fine, FineLettura::SenzaDescrittore);
  ExpectNoDescriptor();
}

TEST_F(Lettura, AHiddenDescriptorIsNone) {
  Descriptor("Hall");
  bench.Attributi["Config.cfg"] = {.Hidden = true};
  EXPECT_EQ(Read().Fine, FineLettura::SenzaDescrittore);
  ExpectNoDescriptor();
  bench.Attributi["Config.cfg"] = {.ReadOnly = true};
  EXPECT_EQ(Read().Fine, FineLettura::Copiata) << "a read-only one is as good as any";
}

TEST_F(Lettura, ADescriptorThatTellsNoNameIsTold) {
  const std::string none("\x00\xFF\x7F\r\n[[\n=\r", 10);
  for (const std::string& bytes :
       {std::string(), std::string("[CONFIG]\r\nPlayerType=4\r\n"), none,
        std::string("[OTHER]\r\nProjectName=Hall\r\n"), std::string("[CONFIG]\r\nProjectName=\r\n"),
        std::string("[CONFIG]\r\nProjectName=   \r\n"), std::string("ProjectName=Hall\r\n")}) {
    SCOPED_TRACE(bytes);
    Put("Config.cfg", bytes);
    s.ProjectName = "Old";
    const Albero before = Tree(true);
    const auto outcome = Read();
    EXPECT_EQ(outcome.Fine, FineLettura::SenzaNome);
    EXPECT_EQ(outcome.Cartella, "");
    ExpectNoName();
    EXPECT_EQ(s.ProjectName, "");
    EXPECT_EQ(s.CartellaProgetto, Card());
    EXPECT_EQ(Cambiati(before, Tree(true)), Names{});
  }
}

TEST_F(Lettura, ADescriptorBeyondAllMeasureTellsNoName) {
  Descriptor("Hall");
  fs::resize_file(Host("card/Config.cfg"), std::uintmax_t{100} << 20U);
  EXPECT_EQ(Read().Fine, FineLettura::SenzaNome);
  ExpectNoName();
}

TEST_F(Lettura, ADescriptorThatCannotBeReadTellsNoNameAndNoneIsMadeInItsPlace) {
  Descriptor("Hall");
  bench.Guasto->FailReadsAfter(b.Percorso("card/Config.cfg"), 0, errors::DeviceIo);
  const Albero before = Tree(true);
  EXPECT_EQ(Read().Fine, FineLettura::SenzaNome);
  ExpectNoName();
  EXPECT_EQ(Cambiati(before, Tree(true)), Names{});
}

TEST_F(Lettura, TheDescriptorIsFoundInAnyCaseAndInUtf16) {
  std::string wide("\xFF\xFE", 2);
  for (const char c : std::string("[config]\r\nPROJECTNAME=Hall\r\n")) (wide += c) += '\0';
  Put("CONFIG.CFG", wide);
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  EXPECT_TRUE(Made("Hall/CONFIG.CFG"));
}

TEST_F(Lettura, ANameDialogThatIsLeftMakesNoFolder) {
  Descriptor("Hall");
  fs::create_directories(Host("program/Projects/HALL"));
  screen.Asking = [this] { s.CartellaProgetto = "C:\\refused"; };  // as a refused name leaves it
  const Albero before = Tree(true);
  const auto outcome = Read();
  EXPECT_EQ(outcome.Fine, FineLettura::Rinunciata);
  EXPECT_EQ(outcome.Cartella, "");
  EXPECT_EQ(screen.Asked, Names{"Hall"}) << "names are compared without regard to case";
  EXPECT_EQ(s.ProjectName, "");
  EXPECT_EQ(s.CartellaProgetto, Card());
  EXPECT_EQ(Cambiati(before, Tree(true)), Names{});
  EXPECT_TRUE(screen.Enabled);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Lettura, AFolderThatCannotBeMadeIsToldWithTheHostsNumber) {
  Descriptor("Hall");
  b.Cartella.Write("program/Projects/Hall", "a file, so that no project has the name");
  EXPECT_EQ(Read().Fine, FineLettura::SenzaCartella);
  ExpectNoFolder(errors::PathFileAccess);
  EXPECT_TRUE(screen.Asked.empty());
  fs::remove(Host("program/Projects/Hall"));
  s.CartellaProgetti = b.Percorso("program/none");
  EXPECT_EQ(Read().Fine, FineLettura::SenzaCartella);
  ExpectNoFolder(errors::PathNotFound);
  s.CartellaProgetti = b.Percorso("program/Projects");
  bench.Guasto->Protect(b.Percorso("program"));
  EXPECT_EQ(Read().Fine, FineLettura::SenzaCartella);
  ExpectNoFolder(errors::PermissionDenied);
  EXPECT_EQ(s.CartellaProgetto, Card());
  EXPECT_EQ(s.ProjectName, "Hall");
  EXPECT_TRUE(screen.Enabled);
  EXPECT_TRUE(fs::is_empty(Host("program/Projects")));
}

TEST_F(Lettura, AnErrorOfBeforeIsNoFailureOfTheFolder) {
  Descriptor("Hall");
  b.C.Errore.Record(Error(errors::DiskFull));
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Lettura, AFolderThatSomebodyElseMakesMeanwhileIsNotFilled) {
  Descriptor("Hall");
  b.Messaggi.Accade = [this] {
    if (s.CartellaProgetto == Card()) fs::create_directories(Host("program/Projects/Hall"));
  };
  EXPECT_EQ(Read().Fine, FineLettura::SenzaCartella);
  ExpectNoFolder(errors::PathFileAccess);
  EXPECT_TRUE(fs::is_empty(Host("program/Projects/Hall")));
}

TEST_F(Lettura, ANameFromTheDialogThatAFolderHasIsToldToo) {
  Descriptor("Hall");
  fs::create_directories(Host("program/Projects/Hall"));
  fs::create_directories(Host("program/Projects/Foyer"));
  screen.Answer = "Foyer";
  EXPECT_EQ(Read().Fine, FineLettura::SenzaCartella);
  ExpectNoFolder(errors::PathFileAccess);
  screen.Answer = "..\\Foyer";
  EXPECT_EQ(Read().Fine, FineLettura::SenzaCartella);
  ExpectNoFolder(errors::BadFileName);
}

TEST_F(Lettura, ACardWhoseFilesGoMeanwhileEndsInSilenceWithAnEmptyFolder) {
  Descriptor("Hall");
  b.Messaggi.Accade = [this] {
    if (Made("Hall")) fs::remove(Host("card/Config.cfg"));
  };
  Put("notes.doc");
  Put(".hidden.mp3");
  Put("folder.mp3/inside.mp3");
  const auto outcome = Read();
  EXPECT_EQ(outcome.Fine, FineLettura::SchedaVuota) << "none of these is a project's";
  EXPECT_EQ(outcome.Cartella, b.Percorso("program/Projects/Hall"));
  EXPECT_TRUE(fs::is_empty(Host("program/Projects/Hall")));
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_TRUE(screen.Enabled);
  EXPECT_EQ(s.CartellaProgetto, Card());
  EXPECT_EQ(s.ProjectName, "Hall");
}

TEST_F(Lettura, AnyOneFileOfAProjectIsEnoughToBeCopied) {
  for (const char* kind :
       {"txt", "cfg", "mdb", "htm", "html", "jpg", "pal", "m3u", "mp3", "MP3", "M3U"}) {
    SCOPED_TRACE(kind);
    const std::string project = std::string("P") + kind;
    fs::remove_all(Host("card"));
    fs::remove_all(Host("program/Projects"));
    fs::create_directories(Host("program/Projects"));
    Descriptor(project);
    b.Messaggi.Accade = [&, this] {
      if (!Made(project) || !b.Cartella.Exists("card/Config.cfg")) return;
      fs::remove(Host("card/Config.cfg"));
      Put(std::string("a.") + kind);
    };
    EXPECT_EQ(Read().Fine, FineLettura::Copiata);
    EXPECT_EQ(b.Nomi("program/Projects/" + project), Names{std::string("a.") + kind});
  }
}

TEST_F(Lettura, ACardThatIsChosenMeanwhileIsTheNextOnes) {
  Descriptor("Hall");
  b.Cartella.Write("other/Config.cfg", "[CONFIG]\r\nProjectName=Other\r\n");
  b.Cartella.Write("other/other.mp3", "x");
  b.Messaggi.Accade = [this] {
    if (Made("Hall")) s.PercorsoMemoryCard = b.Percorso("other") + "\\";
  };
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  EXPECT_EQ(b.Nomi("program/Projects/Hall"), Names{"Config.cfg"});
}

}  // namespace
}  // namespace kvr5
