// Why a file of the project can't be had, and the words for it.
#include <sqlite3.h>

#include "BancoVerifica.h"
#include "flashcard/ParoleVerifica.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using namespace test;  // the models
using Names = std::vector<std::string>;

class VerificaRimedi : public test::Verifica {
 protected:
  /// The only finding of that kind about a file.
  Riscontro Only(Difetto kind, const std::string& file) {
    Riscontro found;
    int count = 0;
    for (const Riscontro& each : outcome.Riscontri) {
      if (each.Tipo != kind || each.File != file) continue;
      found = each;
      ++count;
    }
    EXPECT_EQ(count, 1) << NomeDifetto(kind) << " " << file;
    return found;
  }
  /// What a finding says is missing of the project, and why.
  static void ExpectReason(const Riscontro& finding, Mancanza why, const std::string& what) {
    EXPECT_EQ(finding.Perche, why);
    EXPECT_EQ(finding.DelProgetto, what);
  }
  /// What to do about a finding, in both languages.
  void ExpectRemedy(const Riscontro& finding, const std::string& english,
                    const std::string& italian) {
    EXPECT_EQ(RimedioInParole(b.C, finding), english);
    s.FileLingua = b.Percorso("program/Language/Italiano.lan");
    EXPECT_EQ(RimedioInParole(b.C, finding), italian);
    s.FileLingua = b.Percorso("program/Language/English.lan");
  }
  /// Refuses one opening of a file; whatever else is asked of it works.
  void RefuseOpening(const std::string& path) {
    constexpr std::size_t kMost = 8;
    for (std::size_t i = 0; i < kMost && bench.Guasto->FailedOperation() != "Open"; ++i) {
      bench.Guasto->FailOperation(path, i, errors::PermissionDenied);
      Verify();
    }
    ASSERT_EQ(bench.Guasto->FailedOperation(), "Open");
  }
  std::string Host(const std::string& name) const { return (b.Cartella.Host() / name).string(); }
};

TEST_F(VerificaRimedi, TwoInputsWithOneFileAreToldAsThat) {
  Recorded(kInputs);
  b.AggiungiRiga("inputcfg.mdb", 1, 9, "a.mp3", Music(), "9.mp3");
  Verify();
  const Riscontro found = Only(Difetto::Mancante, "9.mp3");
  ExpectReason(found, Mancanza::Comune, "a.mp3");
  ExpectRemedy(
      found,
      "Two inputs share this file: give one of them a copy under another name, then record. a.mp3",
      "Due ingressi hanno lo stesso file: assegnare a uno una copia con altro nome, poi "
      "registrare. a.mp3");
  b.ScriviMp3("card/9.mp3", 1);
  Verify();
  ExpectReason(Only(Difetto::NonLetto, "9.mp3"), Mancanza::Comune, "a.mp3");
}

TEST_F(VerificaRimedi, ANameOrPathThatNoCardAndNoListCanHoldIsToldAsThat) {
  Recorded(kPlaylists);
  b.Cartella.Write("mu|sic/g.mp3", "x");
  b.AggiungiRiga("playlist.mdb", 2, 1, "e.mp3", Music(), "sub\\P02-001.mp3");
  b.AggiungiRiga("playlist.mdb", 2, 2, "f.mp3", Music(), "P02|002.mp3");
  b.AggiungiRiga("playlist.mdb", 2, 3, "g.mp3", b.Percorso("mu|sic") + "\\", "P02-003.mp3");
  Verify();
  ExpectReason(Only(Difetto::Mancante, "e.mp3"), Mancanza::Nome, Music() + "e.mp3");
  ExpectReason(Only(Difetto::Mancante, "f.mp3"), Mancanza::Nome, Music() + "f.mp3");
  ExpectReason(Only(Difetto::Mancante, "P02-003.mp3"), Mancanza::Nome,
               b.Percorso("mu|sic") + "\\g.mp3");
  ExpectRemedy(Only(Difetto::Mancante, "e.mp3"),
               "No card can hold this name: give the file another one and assign it again. " +
                   Host("music/e.mp3"),
               "Nessuna scheda può contenere questo nome: rinominare il file e assegnarlo di "
               "nuovo. " +
                   Host("music/e.mp3"));
}

TEST_F(VerificaRimedi, OfAnInputWithSuchAFolderTheFolderIsTold) {
  Recorded(kInputs);
  b.Cartella.Write("mu|sic/g.mp3", "x");
  b.AggiungiRiga("inputcfg.mdb", 0, 9, "g.mp3", b.Percorso("mu|sic") + "\\", "9.mp3");
  Verify();
  ExpectReason(Only(Difetto::Mancante, "9.mp3"), Mancanza::Nome, b.Percorso("mu|sic") + "\\g.mp3");
}

TEST_F(VerificaRimedi, WhatIsOnNoDriveHereOrIsAFolderIsToBeLookedFor) {
  Recorded(kInputs);
  fs::create_directories(b.Cartella.Host() / "music/9.mp3");
  for (const std::string& folder :
       {std::string("\\\\server\\share\\"), std::string("Q:\\Music\\"), Music()}) {
    SCOPED_TRACE(folder);
    EXPECT_EQ(PercheManca(b.C.Files, folder + "9.mp3"), Mancanza::Assente);
  }
  b.Cartella.Write("music/there.mp3", "x");
  EXPECT_EQ(PercheManca(b.C.Files, Music() + "there.mp3"), Mancanza::Nessuna);
  bench.Guasto->FailOperation(Music() + "there.mp3", 0, errors::PermissionDenied);
  EXPECT_EQ(PercheManca(b.C.Files, Music() + "there.mp3"), Mancanza::Illeggibile);
}

TEST_F(VerificaRimedi, ASourceThatIsGoneIsToldWithItsPath) {
  const std::string english =
      "This file of the project is missing on the computer: look for it first, then record. ";
  const std::string italian =
      "Sul computer manca questo file del progetto: prima cercarlo, poi registrare. ";
  for (const Modello& model : {kInputs, kPlaylists, kSchedule}) {
    SCOPED_TRACE(model.Mode);
    EmptyCard();
    fs::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    Recorded(model);
    const bool tracks = model.Mode == kPlaylists.Mode;
    const bool spots = model.Mode == kSchedule.Mode;
    const std::string source = tracks ? "c.mp3" : spots ? "e.mp3" : "a.mp3";
    const std::string name = tracks ? "P01-001.mp3" : spots ? "F0-0011.mp3" : "5.mp3";
    fs::remove(b.Cartella.Host() / "music" / source);
    Verify();
    const Riscontro unchecked = Only(Difetto::NonLetto, name);
    ExpectReason(unchecked, Mancanza::Assente, Music() + source);
    ExpectRemedy(unchecked, english + Host("music/" + source), italian + Host("music/" + source));
    fs::remove(Card(name));
    Verify();
    ExpectReason(Only(Difetto::Mancante, name), Mancanza::Assente, Music() + source);
  }
}

TEST_F(VerificaRimedi, AFileThatTheCardAloneLacksOrCannotGiveHasNoReasonInTheProject) {
  Recorded(kInputs);
  fs::remove(Card("5.mp3"));
  bench.Guasto->FailReadsAfter(b.Percorso("card/128.mp3"), 0, errors::DeviceIo);
  Verify();
  ExpectReason(Only(Difetto::Mancante, "5.mp3"), Mancanza::Nessuna, "");
  ExpectReason(Only(Difetto::NonLetto, "128.mp3"), Mancanza::Nessuna, "");
}

TEST_F(VerificaRimedi, ASourceThatIsThereButCannotBeOpenedOrReadIsToldAsThat) {
  Recorded(kInputs);
  RefuseOpening(b.Percorso("music/a.mp3"));
  const Riscontro found = Only(Difetto::NonLetto, "5.mp3");
  ExpectReason(found, Mancanza::Illeggibile, Music() + "a.mp3");
  ExpectRemedy(found,
               "This file of the project can't be read on the computer: look whether you may "
               "open it. " +
                   Host("music/a.mp3"),
               "Sul computer questo file del progetto non si legge: verificare se si ha il diritto "
               "di aprirlo. " +
                   Host("music/a.mp3"));
  bench.Guasto->FailReadsAfter(b.Percorso("music/b.mp3"), 100, errors::DeviceIo);
  Verify();
  ExpectReason(Only(Difetto::NonLetto, "128.mp3"), Mancanza::Illeggibile, Music() + "b.mp3");
}

TEST_F(VerificaRimedi, ADatabaseThatIsLockedOrDamagedIsToldAsThat) {
  Recorded(kPlaylists);
  const std::string path = Host(InProject("playlist.mdb"));
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  Verify();
  sqlite3_close(other);
  const Riscontro found = Only(Difetto::NonLetto, "playlist.mdb");
  ExpectReason(found, Mancanza::Database, FileDelProgetto(b.C, "playlist.mdb"));
  ExpectRemedy(found,
               "This database of the project can't be read: close other programs that use it; "
               "if it stays so, it is damaged. " +
                   path,
               "Questo database del progetto non si legge: chiudere gli altri programmi che lo "
               "usano; se resta così, è danneggiato. " +
                   path);
  for (const char* where : {"card/playlist.mdb", "program/Projects/Hall/playlist.mdb"}) {
    b.Cartella.Write(where, std::string(8192, '\0'));
  }
  Verify();
  ExpectReason(Only(Difetto::NonLetto, "playlist.mdb"), Mancanza::Database,
               FileDelProgetto(b.C, "playlist.mdb"));
}

TEST_F(VerificaRimedi, ARemedyIsOneLineWhateverTheNameHolds) {
  const Riscontro found{Difetto::Mancante, "5.mp3", Music() + "a\nb.mp3", Mancanza::Assente};
  EXPECT_EQ(RimedioInParole(b.C, found).find('\n'), std::string::npos);
}

TEST_F(VerificaRimedi, WhereAllTheProjectsFilesAreMissingTheCardIsToBeRecorded) {
  Recorded(kBoth);
  EmptyCard();
  OnCard("other.txt", "a stray");
  Verify();
  ASSERT_EQ(outcome.Quanti(Difetto::Mancante), outcome.Attesi);
  EXPECT_EQ(EsitoInParole(b.C, outcome, outcome.Riscontri.size()),
            "Nothing of this project is on the card. Record it.");
  s.FileLingua = b.Percorso("program/Language/Italiano.lan");
  EXPECT_EQ(EsitoInParole(b.C, outcome, outcome.Riscontri.size()),
            "Sulla scheda non c'è nulla di questo progetto. Registrarla.");
  s.FileLingua = b.Percorso("program/Language/English.lan");
  OnCard("Config.txt", "some other");
  Verify();
  EXPECT_EQ(EsitoInParole(b.C, outcome, 7), "The card isn't as the project. Findings: 7")
      << "one of them is there, whatever is in it";
}

}  // namespace
}  // namespace kvr5
