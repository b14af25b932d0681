#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <memory>

#include "platform/db/Recordset.h"
#include "projects/CopiaDiLavoro.h"
#include "support/Banco.h"
#include "support/FaultyFileSystem.h"

namespace kvr5 {
namespace {

using test::Banco;

struct Editor {
  std::int16_t Mode;
  const char* Real;
  const char* Temp;
};

/// The databases of the two editors.
class WorkingCopy : public testing::TestWithParam<Editor> {
 protected:
  void SetUp() override {
    b.CreaProgetto("Hall", 4, GetParam().Mode);
    b.AggiungiRiga(GetParam().Real, 1, 1, "a.mp3", "C:\\m\\", "");
    before = b.Cartella.Read(Real());
  }
  std::string Real() const { return std::string("program/Projects/Hall/") + GetParam().Real; }
  std::string Temp() const { return std::string("program/Projects/Hall/") + GetParam().Temp; }
  static std::int64_t Rows(Connection& connection) {
    Recordset rows;
    EXPECT_FALSE(rows.Open(connection, "SELECT * FROM [List]"));
    return rows.RecordCount();
  }

  std::unique_ptr<test::FaultyFileSystem> faults;
  Banco b{[this](FileSystem& inner) -> FileSystem& {
    faults = std::make_unique<test::FaultyFileSystem>(inner);
    return *faults;
  }};
  std::string before;
};

TEST_P(WorkingCopy, LeavingWithoutSavingLeavesTheRealOneByteForByte) {
  {
    CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
    copy.Apri();
    ASSERT_TRUE(copy.Connessione().IsOpen());
    EXPECT_FALSE(copy.Connessione().Execute("DELETE * FROM [List]"));
    EXPECT_EQ(Rows(copy.Connessione()), 0);
    EXPECT_TRUE(b.Cartella.Exists(Temp()));
  }
  EXPECT_TRUE(b.Cartella.Read(Real()) == before);
  EXPECT_FALSE(b.Cartella.Exists(Temp()));
}

TEST_P(WorkingCopy, SavingPutsItInTheRealOnesPlace) {
  CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
  copy.Apri();
  EXPECT_FALSE(copy.Connessione().Execute("DELETE * FROM [List]"));
  copy.Salva();
  EXPECT_FALSE(copy.Connessione().IsOpen());
  copy.Lascia();
  Connection real(b.Disco);
  ASSERT_FALSE(real.Open(b.Percorso(Real())));
  EXPECT_EQ(Rows(real), 0);
  EXPECT_FALSE(b.Cartella.Exists(Temp()));
}

TEST_P(WorkingCopy, WhatACrashLeftIsThrownAwayWithItsJournal) {
  b.Cartella.Write(Temp(), "half a database");
  b.Cartella.Write(Temp() + "-journal", "of another copy");
  CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
  copy.Apri();
  EXPECT_EQ(Rows(copy.Connessione()), 1);
  copy.Lascia();
  EXPECT_FALSE(b.Cartella.Exists(Temp() + "-journal"));
}

TEST_P(WorkingCopy, OfADatabaseThatACrashLeftHalfChangedHoldsWhatWasThereBefore) {
  b.InterrompiModifica(GetParam().Real);
  CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
  copy.Apri();
  EXPECT_EQ(Rows(copy.Connessione()), 1);
  EXPECT_FALSE(b.Cartella.Exists(Real() + "-journal"));
  EXPECT_TRUE(b.Cartella.Read(Real()) == before);
}

TEST_P(WorkingCopy, OfAHalfChangedDatabaseBehindALinkHoldsWhatWasThereBefore) {
  b.InterrompiModifica(GetParam().Real);
  b.Cartella.Write("elsewhere/real.mdb", b.Cartella.Read(Real()));
  b.Cartella.Write("elsewhere/real.mdb-journal", b.Cartella.Read(Real() + "-journal"));
  for (const std::string& file : {Real(), Real() + "-journal"}) {
    std::filesystem::remove(b.Cartella.Host() / file);
  }
  std::filesystem::create_symlink(b.Cartella.Host() / "elsewhere/real.mdb",
                                  b.Cartella.Host() / Real());
  CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
  copy.Apri();
  EXPECT_EQ(Rows(copy.Connessione()), 1);
  EXPECT_FALSE(b.Cartella.Exists("elsewhere/real.mdb-journal"));
  EXPECT_TRUE(b.Cartella.Read("elsewhere/real.mdb") == before);
}

TEST_P(WorkingCopy, OfADatabaseThatAnotherProgramIsChangingStaysClosed) {
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open((b.Cartella.Host() / Real()).c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE; DELETE FROM List", nullptr, nullptr, nullptr),
            SQLITE_OK);
  ASSERT_TRUE(b.Cartella.Exists(Real() + "-journal"));
  {
    CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
    copy.Apri();
    EXPECT_FALSE(copy.Connessione().IsOpen());
    ASSERT_EQ(b.Copia.Guasti.size(), 1U);
    EXPECT_TRUE(b.Copia.Guasti[0].File.ends_with(GetParam().Real));
    EXPECT_TRUE(b.Copia.Guasti[0].Source);
    copy.Salva();  // none was made: nothing takes the real one's place
  }
  EXPECT_EQ(sqlite3_close(other), SQLITE_OK);
  EXPECT_TRUE(b.Cartella.Read(Real()) == before);
}

TEST_P(WorkingCopy, AJournalThatComesUpMeanwhileIsNotPlayedBackIntoWhatWasSaved) {
  CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
  copy.Apri();
  EXPECT_FALSE(copy.Connessione().Execute("DELETE * FROM [List]"));
  b.InterrompiModifica(GetParam().Real);
  copy.Salva();
  EXPECT_FALSE(b.Cartella.Exists(Real() + "-journal"));
  Connection real(b.Disco);
  ASSERT_FALSE(real.Open(b.Percorso(Real())));
  EXPECT_EQ(Rows(real), 0);
}

TEST_P(WorkingCopy, IsSavedAlsoWhereTheRealOneCanNoLongerBeReadBack) {
  CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
  copy.Apri();
  EXPECT_FALSE(copy.Connessione().Execute("DELETE * FROM [List]"));
  std::filesystem::remove(b.Cartella.Host() / Real());
  b.Cartella.Write(Real() + "-journal", "of a database that has gone");
  copy.Salva();
  EXPECT_TRUE(b.Copia.Guasti.empty());
  EXPECT_FALSE(b.Cartella.Exists(Real() + "-journal"));
  Connection real(b.Disco);
  ASSERT_FALSE(real.Open(b.Percorso(Real())));
  EXPECT_EQ(Rows(real), 0);
}

TEST_P(WorkingCopy, ACancelDoesNotStopTheCopyThatASaveIs) {
  CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
  copy.Apri();
  EXPECT_FALSE(copy.Connessione().Execute("DELETE * FROM [List]"));
  b.Copia.AnnullaAlla = 1;
  copy.Salva();
  EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente);
  Connection real(b.Disco);
  ASSERT_FALSE(real.Open(b.Percorso(Real())));
  EXPECT_EQ(Rows(real), 0);
}

TEST_P(WorkingCopy, ASaveWhoseCopyFailsLeavesTheProjectWithoutTheRealOne) {
  CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
  copy.Apri();
  EXPECT_FALSE(copy.Connessione().Execute("DELETE * FROM [List]"));
  faults->FailWritesAfter(b.Percorso("program/Projects"), 100, errors::DiskFull);
  copy.Salva();
  faults->Repair();
  ASSERT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_EQ(b.Copia.Guasti[0].Cause.Number(), errors::DiskFull);
  EXPECT_FALSE(b.Cartella.Exists(Real())) << "the old one had to go first";
}

TEST_P(WorkingCopy, ThatCouldNotBeMadeLeavesTheRealOneAlone) {
  faults->FailWritesAfter(b.Percorso("program/Projects"), 100, errors::DiskFull);
  CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
  copy.Apri();
  EXPECT_FALSE(copy.Connessione().IsOpen());
  faults->Repair();
  copy.Salva();
  EXPECT_TRUE(b.Cartella.Read(Real()) == before);
}

TEST_P(WorkingCopy, ThatWasLeftDoesNotTakeTheNextOneAlong) {
  CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
  copy.Apri();
  copy.Lascia();
  CopiaDiLavoro next(b.C, GetParam().Real, GetParam().Temp);
  next.Apri();
  copy.Lascia();
  EXPECT_TRUE(b.Cartella.Exists(Temp()));
  EXPECT_EQ(Rows(next.Connessione()), 1);
}

TEST_P(WorkingCopy, OnWhichAnotherProgramWorksStaysItsOwn) {
  CopiaDiLavoro first(b.C, GetParam().Real, GetParam().Temp);
  first.Apri();
  EXPECT_FALSE(first.Connessione().Execute("DELETE * FROM [List]"));
  {
    CopiaDiLavoro second(b.C, GetParam().Real, GetParam().Temp);
    second.Apri();
    EXPECT_FALSE(second.Connessione().IsOpen());
    ASSERT_EQ(b.Copia.Guasti.size(), 1U);
    EXPECT_EQ(b.Copia.Guasti[0].Cause.Number(), errors::PermissionDenied);
    second.Salva();
    EXPECT_TRUE(b.Cartella.Read(Real()) == before) << "it has nothing to save";
  }
  first.Salva();
  first.Lascia();
  Connection real(b.Disco);
  ASSERT_FALSE(real.Open(b.Percorso(Real())));
  EXPECT_EQ(Rows(real), 0) << "what the first one did is kept";
  CopiaDiLavoro third(b.C, GetParam().Real, GetParam().Temp);
  third.Apri();
  EXPECT_TRUE(third.Connessione().IsOpen());
}

TEST_P(WorkingCopy, OfADatabaseThatIsMissingStaysClosed) {
  std::filesystem::remove(b.Cartella.Host() / Real());
  CopiaDiLavoro copy(b.C, GetParam().Real, GetParam().Temp);
  copy.Apri();
  EXPECT_FALSE(copy.Connessione().IsOpen());
  copy.Salva();
  EXPECT_FALSE(b.Cartella.Exists(Real()));
  EXPECT_TRUE(b.Copia.Guasti.empty());
}

INSTANTIATE_TEST_SUITE_P(Editors, WorkingCopy,
                         testing::Values(Editor{5, "playlist.mdb", "tmpPlaylist.mdb"},
                                         Editor{2, "scheduler.mdb", "tmpScheduler.mdb"}),
                         [](const auto& each) {
                           return each.param.Mode == 5 ? "Playlists" : "Schedule";
                         });

}  // namespace
}  // namespace kvr5
