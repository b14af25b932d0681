// What lies beside a database that is taken over, and what goes on around it.
#include <unistd.h>

#include "projects/BancoSubentro.h"
#include "support/ScriviJet.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using jet::Fault;

/// All samples that are sound, or all others.
std::vector<std::string> Samples(bool sound) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(test::CampioneJet({}))) {
    fs::path partner = entry.path();
    if (partner.extension() != ".mdb") continue;
    const bool told = fs::exists(partner.replace_extension(".json"));
    if (told == sound) names.push_back(entry.path().stem().string());
  }
  return names;
}

class SubentroDintorni : public test::BancoSubentro {
 protected:
  fs::path Host(const std::string& file) const { return b.Cartella.Host() / Project(file); }
  void PutInputs() { Put("a_inputs", "inputcfg.mdb"); }
  void ExpectTakenOver() {
    EXPECT_EQ(SubentraNeiDatabase(b.C).Fine, FineSubentro::Compiuto);
    EXPECT_EQ(Rows("inputcfg.mdb"), 12U);
  }
  /// The first reason of a taking over that fails and leaves all as it was.
  int FailsWith() {
    const Names names = Nomi();
    const EsitoSubentro outcome = SubentraNeiDatabase(b.C);
    EXPECT_EQ(outcome.Fine, FineSubentro::Fallito);
    EXPECT_EQ(Nomi(), names);
    EXPECT_TRUE(IsSame(Project("inputcfg.mdb"), "a_inputs"));
    return outcome.Database.front().Causa.Number();
  }
};

TEST_F(SubentroDintorni, EverySoundSampleComesInAndEveryOtherIsRefusedWithoutAChange) {
  for (const std::string& sample : Samples(true)) {
    Put(sample, "inputcfg.mdb");
    EXPECT_EQ(SubentraNeiDatabase(b.C).Fine, FineSubentro::Compiuto) << sample;
    fs::remove_all(Host("Originals"));
  }
  for (const std::string& sample : Samples(false)) {
    Put(sample, "inputcfg.mdb");
    const Names names = Nomi();
    EXPECT_EQ(SubentraNeiDatabase(b.C).Fine, FineSubentro::Fallito) << sample;
    EXPECT_TRUE(IsSame(Project("inputcfg.mdb"), sample));
    ExpectNothingChanged(names);
  }
}

TEST_F(SubentroDintorni, AFileWithoutAnyMarkIsToldAsDamagedAndNotAsAnEarlierProgramsProject) {
  Put("x_zero_header", "inputcfg.mdb");
  EXPECT_EQ(SubentraEDillo(b.C), FineSubentro::Fallito);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Lists can't be read");
  EXPECT_EQ(box.Testo,
            "Nothing of this project was changed, because these lists can't be read:\r\n"
            "inputcfg.mdb: it is damaged; take it from a backup copy");
}

TEST_F(SubentroDintorni, CountersThatAreThereTwiceAreDamage) {
  const std::vector<DbValue> row{std::int64_t{7}, "a.mp3",         "D:\\",   DbValue(),
                                 std::int64_t{1}, std::int64_t{1}, DbValue()};
  b.Cartella.Write(Project("inputcfg.mdb"), test::FileJet({row, row}, {}));
  const EsitoSubentro outcome = SubentraNeiDatabase(b.C);
  EXPECT_EQ(outcome.Database.front().Guasto.What, Fault::Damaged);
  EXPECT_EQ(outcome.Database.front().File, 0U);
}

TEST_F(SubentroDintorni, TheJournalOfADatabaseThatLayHereOnceDoesNotReachTheNewOne) {
  for (int i = 0; i < 300; ++i) b.AggiungiRiga("inputcfg.mdb", 0, i, "a.mp3", "D:\\", "");
  b.InterrompiModifica("inputcfg.mdb");
  ASSERT_TRUE(fs::exists(Host("inputcfg.mdb-journal")));
  b.Cartella.Write(Project("inputcfg.mdb-wal"), "left");
  PutInputs();
  ExpectTakenOver();
  EXPECT_FALSE(fs::exists(Host("inputcfg.mdb-journal")));
  EXPECT_FALSE(fs::exists(Host("inputcfg.mdb-wal")));
}

TEST_F(SubentroDintorni, WhatACutOffTakingOverLeftIsSweptByTheNext) {
  PutInputs();
  b.Cartella.Write(Project("~abcdefg.kv5"), "half");
  b.Cartella.Write(Project("Originals/~bcdefgh.kv5"), "half");
  ASSERT_EQ(SubentraNeiDatabase(b.C, {.Prova = true}).Fine, FineSubentro::Compiuto);
  EXPECT_TRUE(fs::exists(Host("~abcdefg.kv5"))) << "a trial changes nothing";
  ExpectTakenOver();
  EXPECT_FALSE(fs::exists(Host("~abcdefg.kv5")));
  EXPECT_FALSE(fs::exists(Host("Originals/~bcdefgh.kv5")));
}

TEST_F(SubentroDintorni, AFileInTheFoldersPlaceStopsIt) {
  PutInputs();
  b.Cartella.Write(Project("Originals"), "mine");
  EXPECT_EQ(FailsWith(), errors::PathFileAccess);
  EXPECT_EQ(b.Cartella.Read(Project("Originals")), "mine");
}

TEST_F(SubentroDintorni, AFolderOfTheOriginalsNameIsGoneAround) {
  PutInputs();
  fs::create_directories(Host("Originals/inputcfg.mdb"));
  ExpectTakenOver();
  EXPECT_TRUE(IsSame(Project("Originals/(2) inputcfg.mdb"), "a_inputs"));
}

TEST_F(SubentroDintorni, AnEqualOriginalThatIsReadOnlyIsEnough) {
  PutInputs();
  fs::create_directory(Host("Originals"));
  fs::copy_file(Host("inputcfg.mdb"), Host("Originals/inputcfg.mdb"));
  fs::permissions(Host("Originals/inputcfg.mdb"), fs::perms::owner_read);
  ExpectTakenOver();
  EXPECT_FALSE(fs::exists(Host("Originals/(2) inputcfg.mdb")));
}

TEST_F(SubentroDintorni, AReadOnlyDatabaseIsTakenOverToo) {
  PutInputs();
  fs::permissions(Host("inputcfg.mdb"), fs::perms::owner_read);
  ExpectTakenOver();
}

TEST_F(SubentroDintorni, OriginalsKeepTheSpellingOfTheDisk) {
  fs::remove(Host("inputcfg.mdb"));
  Put("a_inputs", "INPUTCFG.MDB");
  ExpectTakenOver();
  EXPECT_TRUE(IsSame(Project("Originals/INPUTCFG.MDB"), "a_inputs"));
  EXPECT_TRUE(fs::exists(Host("INPUTCFG.MDB")));
}

TEST_F(SubentroDintorni, BehindALinkTheLinkStays) {
  fs::remove(Host("inputcfg.mdb"));
  fs::copy_file(test::CampioneJet("a_inputs.mdb"), b.Cartella.Host() / "shared.mdb");
  fs::create_symlink(b.Cartella.Host() / "shared.mdb", Host("inputcfg.mdb"));
  ExpectTakenOver();
  EXPECT_TRUE(fs::is_symlink(Host("inputcfg.mdb")));
  EXPECT_TRUE(IsSame(Project("Originals/inputcfg.mdb"), "a_inputs"));
}

TEST_F(SubentroDintorni, AProjectThatCanNotBeWrittenStaysAndIsTold) {
  PutInputs();
  faults->Protect(b.Percorso(Project("")));
  EXPECT_EQ(FailsWith(), errors::PermissionDenied);
  EXPECT_EQ(SubentraNeiDatabase(b.C, {.Prova = true}).Fine, FineSubentro::Compiuto);
}

TEST_F(SubentroDintorni, AFullDiskStopsItAtAnySize) {
  PutInputs();
  const auto size = fs::file_size(Host("inputcfg.mdb"));
  for (std::uintmax_t room = 0; room < 3 * size; room += size / 3) {
    std::uintmax_t held = 0;
    for (const auto& each : fs::directory_iterator(Host(""))) held += each.file_size();
    faults->LimitRoom(b.Percorso(Project("")), held + room);
    if (SubentraNeiDatabase(b.C).Fine == FineSubentro::Compiuto) {
      EXPECT_GT(room, size) << "the original and the new one lie beside each other";
      return;
    }
    EXPECT_EQ(FailsWith(), errors::DiskFull) << room;
    faults->Repair();
  }
  FAIL() << "room for three wasn't enough";
}

TEST_F(SubentroDintorni, AnOriginalThatAnotherProgramChangesMeanwhileStays) {
  PutInputs();
  constexpr int kExchange = 3 * 12 + 1;  // after its rows were read, copied and compared
  int asked = 0;
  const auto change = [&] {
    if (++asked == kExchange) {
      Put("k_inputs_nocompress", "inputcfg.mdb");
      fs::last_write_time(Host("inputcfg.mdb"),
                          fs::file_time_type::clock::now() - std::chrono::hours(1));
    }
    return false;
  };
  const EsitoSubentro outcome = SubentraNeiDatabase(b.C, {.Annulla = change});
  EXPECT_EQ(asked, kExchange);
  EXPECT_EQ(outcome.Fine, FineSubentro::Fallito);
  EXPECT_TRUE(IsSame(Project("inputcfg.mdb"), "k_inputs_nocompress"));
}

TEST_F(SubentroDintorni, ACancelAtAnyMomentChangesNothing) {
  PutInputs();
  const Names names = Nomi();
  int moment = 0;
  for (FineSubentro end = FineSubentro::Annullato; end == FineSubentro::Annullato; ++moment) {
    int asked = 0;
    end = SubentraNeiDatabase(b.C, {.Annulla = [&] { return asked++ == moment; }}).Fine;
    if (end == FineSubentro::Annullato) ExpectNothingChanged(names);
  }
  EXPECT_EQ(moment, 3 * 12 + 2);
  EXPECT_EQ(Rows("inputcfg.mdb"), 12U);
}

TEST_F(SubentroDintorni, WhereTheSecondExchangeFailsTheFirstIsToldAsTakenAndWhereItsOriginalIs) {
  PutInputs();
  Put("d_schedule", "scheduler.mdb");
  fs::create_directory(Host("scheduler.mdb-journal"));
  EXPECT_EQ(SubentraEDillo(b.C), FineSubentro::Fallito);
  EXPECT_EQ(Rows("inputcfg.mdb"), 12U);
  EXPECT_TRUE(IsSame(Project("Originals/inputcfg.mdb"), "a_inputs"));
  EXPECT_TRUE(IsSame(Project("scheduler.mdb"), "d_schedule"));
  EXPECT_EQ(b.Finestre.Prossimo().Testo,
            "Not all lists were taken over. Open the project again when this is mended:\r\n"
            "scheduler.mdb: Path/File access error\r\n"
            "Taken over: inputcfg.mdb\r\n"
            "The originals, as they were, are in " +
                Host("Originals").string());
}

TEST_F(SubentroDintorni, WithoutTheEmptyDatabaseOfTheProgramItSaysSo) {
  PutInputs();
  fs::remove(b.Cartella.Host() / "program/source.mdb");
  const Names names = Nomi();
  EXPECT_EQ(SubentraEDillo(b.C), FineSubentro::Fallito);
  ExpectNothingChanged(names);
  EXPECT_EQ(b.Finestre.Prossimo().Testo,
            "This project was made by an earlier program. Nothing of it was changed, because "
            "these lists can't be taken over:\r\n"
            "The program's file source.mdb is missing. Install the program again.");
  EXPECT_EQ(SubentraNeiDatabase(b.C, {.Prova = true}).Fine, FineSubentro::Compiuto);
}

TEST_F(SubentroDintorni, AfterTheFirstOfTwoTheNextOneGoesOnWithTheOther) {
  PutInputs();
  Put("d_schedule", "scheduler.mdb");
  SubentraNeiDatabase(b.C);
  Put("d_schedule", "scheduler.mdb");  // as if the power had gone before its exchange
  const EsitoSubentro outcome = SubentraNeiDatabase(b.C);
  EXPECT_EQ(outcome.Fine, FineSubentro::Compiuto);
  ASSERT_EQ(outcome.Database.size(), 1U);
  EXPECT_EQ(Rows("scheduler.mdb"), 72U);
  EXPECT_FALSE(fs::exists(Host("Originals/(2) scheduler.mdb")));
}

}  // namespace
}  // namespace kvr5
