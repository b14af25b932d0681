#include <filesystem>
#include <fstream>
#include <optional>
#include <random>

#include "schedule/BancoSalvaPalinsesto.h"
#include "schedule/OrarioSegmento.h"
#include "schedule/RighePalinsesto.h"

namespace kvr5 {
namespace {

using testing::IsEmpty;

/// Every command there is, in an editor that has no database.
class WithoutSchedule : public test::BancoSalvaPalinsesto {
 protected:
  std::filesystem::path Real() const {
    return b.Cartella.Host() / "program/Projects/Hall/scheduler.mdb";
  }
  void ExpectNothing() {
    EXPECT_FALSE(editor.rsSegmenti().IsOpen());
    EXPECT_FALSE(editor.rsDettaglio().IsOpen());
    EXPECT_EQ(editor.QuantiSegmenti(), 0);
    EXPECT_EQ(editor.QuantiSpot(), 0);
    EXPECT_EQ(editor.SegmentoCorrente(), 0);
    EXPECT_FALSE(editor.Slot().picDettaglio);
    EXPECT_EQ(editor.Modifiche(), 0);
    EXPECT_THAT(RigheDellaGriglia(editor), IsEmpty());
    EXPECT_FALSE(editor.VaiAlSegmento(1));
    EXPECT_FALSE(VaiAlloSlot(editor, 0));
    EXPECT_EQ(ContaBrani(editor), 0);
    EXPECT_EQ(UltimaOraPalinsesto(editor), (Ora{0, 0}));
  }
  void DoEverything() {
    ExpectNothing();
    AggiungiSegmento(editor);
    EXPECT_LT(AggiungiRigaHead(editor, Ora{1, 0}), 1);
    DuplicaSegmento(editor);
    RimuoviSegmento(editor);
    editor.txtOre = "12";
    editor.txtMin = "75";
    LasciaOre(editor);
    LasciaMin(editor);
    SalvaOrarioSegmento(editor, true);
    VerificaOrarioDoppio(editor, "12.00", 1);
    for (int slot = 0; slot < 8; ++slot) {
      EXPECT_NE(Aggiungi(slot, "a.mp3"), EsitoSpot::Aggiunto);
      RimuoviSpot(editor, slot);
      SpostaSpot(editor, slot, true);
      SpostaSpot(editor, slot, false);
    }
    RinumeraSpot(editor, -1);
    RinumeraSpot(editor, 1);
    for (std::int16_t day = 0; day <= 8; ++day) editor.ScegliGiorno(day);
    editor.AggiornaElencoSegmenti(1);
    editor.RigaCambiata();
    editor.AggiornaSlotSpot();
    SettimanaPalinsesto week;
    week.Leggi(editor);
    EXPECT_THAT(week.Del(1), IsEmpty());
    ExpectNothing();
  }
};

/// A scheduler.mdb that can't be read.
struct ScheduleDamage {
  const char* What;
  std::function<void(const std::filesystem::path&)> Make;
};

void Spoil(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

void MakeOther(const std::filesystem::path& path, const char* schema) {
  std::filesystem::remove(path);
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, schema, nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(other);
}

class DamagedSchedule : public WithoutSchedule, public testing::WithParamInterface<ScheduleDamage> {
 protected:
  void Prepare(std::int16_t type, std::int16_t mode) {
    Progetto(type, mode);
    MoltiSegmenti(1, 200);
    GetParam().Make(Real());
    before_.reset();
    if (std::filesystem::is_regular_file(Real())) before_ = Leggi("scheduler.mdb");
  }
  void ExpectUntouched() {
    EXPECT_EQ(std::filesystem::is_regular_file(Real()), before_.has_value());
    if (before_) {
      EXPECT_TRUE(Leggi("scheduler.mdb") == *before_);
    }
    EXPECT_FALSE(Ha("tmpScheduler.mdb"));
    EXPECT_FALSE(Ha("tmpScheduler.mdb-journal"));
  }

 private:
  std::optional<std::string> before_;
};

TEST_P(DamagedSchedule, ShowsNothingAndTakesNothingAndACancelLeavesItAsItWas) {
  for (const auto& [type, mode] :
       std::vector<std::pair<std::int16_t, std::int16_t>>{{3, 2}, {3, 3}, {4, 2}}) {
    Prepare(type, mode);
    Apri();
    DoEverything();
    ScriviReport(editor);
    editor.Chiudi();
    ExpectUntouched();
    EXPECT_TRUE(b.Finestre.Silenzio()) << "mode " << mode;
  }
}

TEST_P(DamagedSchedule, IsSavedAsItWasWithoutAQuestion) {
  Prepare(3, 3);
  Apri();
  SalvaPalinsesto(editor, progresso);
  editor.Chiudi();
  ExpectUntouched();
  EXPECT_FALSE(progresso.Caricata());
  EXPECT_TRUE(b.Finestre.Silenzio());
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, DamagedSchedule,
    testing::Values(
        ScheduleDamage{"Missing", [](const auto& path) { std::filesystem::remove(path); }},
        ScheduleDamage{"Empty", [](const auto& path) { Spoil(path, ""); }},
        ScheduleDamage{"Cut",
                       [](const auto& path) {
                         std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
                       }},
        ScheduleDamage{"Random",
                       [](const auto& path) {
                         std::mt19937 random(1);
                         std::string bytes(20000, '\0');
                         for (char& each : bytes) each = static_cast<char>(random());
                         Spoil(path, bytes);
                       }},
        ScheduleDamage{"Zeros", [](const auto& path) { Spoil(path, std::string(8192, '\0')); }},
        ScheduleDamage{
            "OfAnotherSchema",
            [](const auto& path) { MakeOther(path, "CREATE TABLE HEAD(ID INTEGER, X TEXT)"); }},
        ScheduleDamage{"WithoutTables",
                       [](const auto& path) { MakeOther(path, "CREATE TABLE T(X)"); }},
        ScheduleDamage{"AFolder",
                       [](const auto& path) {
                         std::filesystem::remove(path);
                         std::filesystem::create_directory(path);
                       }}),
    [](const auto& each) { return std::string(each.param.What); });

TEST_F(WithoutSchedule, OneThatAnotherProgramIsChangingIsLeftToItAndTold) {
  Progetto(3, 3);
  MoltiSegmenti(1, 3);
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(Real().c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE; DELETE FROM HEAD", nullptr, nullptr, nullptr),
            SQLITE_OK);
  Apri();
  ASSERT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_TRUE(b.Copia.Guasti[0].File.ends_with("scheduler.mdb"));
  DoEverything();
  SalvaPalinsesto(editor, progresso);
  editor.Chiudi();
  ASSERT_EQ(sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr), SQLITE_OK);
  ASSERT_EQ(sqlite3_close(other), SQLITE_OK);
  EXPECT_EQ(Segmenti("scheduler.mdb").size(), 3U);
}

TEST_F(WithoutSchedule, AnEditorThatWasNotLoadedTakesNothing) {
  Progetto(3, 3);
  MoltiSegmenti(1, 3);
  const std::string before = Leggi("scheduler.mdb");
  DoEverything();
  SalvaPalinsesto(editor, progresso);
  editor.Chiudi();
  EXPECT_TRUE(Leggi("scheduler.mdb") == before);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(WithoutSchedule, AnEditorThatWasClosedTakesNothing) {
  Progetto(3, 3);
  Segmento(1, "08.30");
  const std::string before = Leggi("scheduler.mdb");
  Apri();
  editor.Chiudi();
  AggiungiSegmento(editor);
  DuplicaSegmento(editor);

  LasciaOre(editor);
  LasciaMin(editor);
  for (int slot = 0; slot < 8; ++slot) {
    EXPECT_NE(Aggiungi(slot, "a.mp3"), EsitoSpot::Aggiunto);
    RimuoviSpot(editor, slot);
    SpostaSpot(editor, slot, true);
  }
  SalvaPalinsesto(editor, progresso);
  EXPECT_TRUE(Leggi("scheduler.mdb") == before);
  EXPECT_FALSE(Ha("1.pal"));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(WithoutSchedule, OneThatIsReadOnlyIsEditedAndSavedAsAnyOther) {
  Progetto(3, 3);
  Spot(1, Segmento(1, "08.30"), 1, "a.mp3");
  std::filesystem::permissions(Real(), std::filesystem::perms::owner_read);
  Apri();
  AggiungiSegmento(editor);
  EXPECT_EQ(editor.QuantiSegmenti(), 2);
  SalvaAperto();
  EXPECT_EQ(Segmenti("scheduler.mdb").size(), 2U);
  EXPECT_THAT(Tutti("scheduler.mdb"), testing::ElementsAre("1/1/1 a.mp3"));
}

TEST_F(WithoutSchedule, OneThatACrashLeftHalfChangedComesUpAsItWasBefore) {
  Progetto(3, 3);
  Spot(1, Segmento(1, "08.30"), 1, "a.mp3");
  const Righe before = Tutti("scheduler.mdb");
  b.InterrompiModifica("scheduler.mdb");
  Apri();
  EXPECT_EQ(Tutti(), before);
  EXPECT_THAT(Griglia(), testing::ElementsAre("08:30:00 a.mp3"));
  editor.Chiudi();
  EXPECT_EQ(Tutti("scheduler.mdb"), before);
}

TEST_F(WithoutSchedule, AProjectFolderThatVanishesIsNoHarm) {
  Progetto(3, 3);
  MoltiSegmenti(1, 3);
  Apri();
  std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/Hall");
  AggiungiSegmento(editor);
  Aggiungi(0, "a.mp3");
  editor.Chiudi();
  EXPECT_FALSE(Ha("scheduler.mdb"));
}

}  // namespace
}  // namespace kvr5
