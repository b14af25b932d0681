#include <sqlite3.h>

#include <QTest>
#include <map>

#include "platform/db/Connection.h"
#include "schedule/screens/BancoPalinsestoSchermo.h"

// What the editor of the schedule shows when it comes up.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Case {
  std::int16_t Type, Mode;
  int Day;
  bool Days, Hours;
};

class ScheduleComesUp : public test::BancoPalinsestoSchermo,
                        public testing::WithParamInterface<Case> {};

TEST_P(ScheduleComesUp, AsModelAndModeTell) {
  const Case& c = GetParam();
  Progetto(c.Type, c.Mode);
  for (int day = 0; day <= 7; ++day) {
    Segmento(day, "00.1" + std::to_string(day), {("d" + std::to_string(day) + ".mp3").c_str()});
  }
  Apri();
  EXPECT_EQ(Giorno(), c.Day);
  EXPECT_EQ(SiVede("picFraDay"), c.Days);
  EXPECT_EQ(SiVede("cmbGiorno"), c.Days);
  EXPECT_EQ(Ore().isEnabled(), c.Hours);
  EXPECT_EQ(Ore().isReadOnly(), !c.Hours);
  EXPECT_TRUE(Min().isEnabled());
  const std::string day = std::to_string(c.Day);
  EXPECT_THAT(Griglia(), ElementsAre("00:1" + day + " d" + day + ".mp3"));
  EXPECT_EQ(Scelto(), 0) << "the first segment is selected";
  EXPECT_THAT(Dettaglio(), ElementsAre("d" + day + ".mp3"));
  EXPECT_EQ(Orario(), "00:1" + day);
  EXPECT_EQ(Testo("lblVociInElenco"), "Segments : 1");
  EXPECT_EQ(Testo("lblModifiche"), "");
  EXPECT_FALSE(test::PuntatoreOccupato());
  EXPECT_FALSE(form->Editor().FileMp3Valido);
}

TEST_P(ScheduleComesUp, WithSevenDaysAndTheirNumbers) {
  Progetto(GetParam().Type, GetParam().Mode);
  Apri();
  Righe entries;
  std::vector<int> data;
  for (int i = 0; i < Giorni().count(); ++i) {
    entries.push_back(Giorni().itemText(i).toStdString());
    data.push_back(Giorni().itemData(i).toInt());
  }
  EXPECT_THAT(entries, ElementsAre("Monday", "Tuesday", "Wednesday", "Thursday", "Friday",
                                   "Saturday", "Sunday"));
  EXPECT_THAT(data, ElementsAre(1, 2, 3, 4, 5, 6, 7));
  EXPECT_EQ(Giorni().currentIndex(), 0);
}

INSTANTIATE_TEST_SUITE_P(All, ScheduleComesUp,
                         testing::Values(Case{3, 2, 0, false, true}, Case{3, 3, 1, true, true},
                                         Case{3, 5, 1, true, true}, Case{4, 2, 0, false, false}),
                         [](const auto& each) {
                           return "Type" + std::to_string(each.param.Type) + "Mode" +
                                  std::to_string(each.param.Mode);
                         });

class LoadedSchedule : public test::BancoPalinsestoSchermo {
 protected:
  void SetUp() override { Progetto(3, 3); }
  /// Each text of the screen that has a key of its own.
  void ExpectWords() {
    EXPECT_EQ(form->windowTitle().toStdString(), Parola("0140000"));
    const std::map<const char*, const char*> keys = {{"lblAggiungi", "0140008"},
                                                     {"lblRimuovi", "0140009"},
                                                     {"lblDuplicaSegmento", "0140010"},
                                                     {"lblSave", "0140011"},
                                                     {"lblReport", "0140012"},
                                                     {"lblAnnulla", "0140015"},
                                                     {"lblMp3_Dir", "0140016"},
                                                     {"lblDay", "0140017"},
                                                     {"lblDettaglioPalinsesto", "0140027"},
                                                     {"lblAnteprimaSx", "0140028"},
                                                     {"lblFileInfo", "0140041"},
                                                     {"lblOrario", "0140042"}};
    for (const auto& [name, key] : keys) EXPECT_EQ(Testo(name), Parola(key)) << name;
    EXPECT_EQ(Testo("lblVociInElenco"), Parola("0140024") + " : 0");
    EXPECT_EQ(form->Segmenti->mnuDuplicaRiga->text().toStdString(), Parola("0140038"));
    for (int day = 1; day <= 7; ++day) {
      EXPECT_EQ(Giorni().itemText(day - 1).toStdString(), Parola("014000" + std::to_string(day)));
    }
  }
};

TEST_F(LoadedSchedule, HasEveryControlUnderItsName) {
  Apri();
  for (const char* name : {"grdSegmenti",
                           "picAggiungiSegmento",
                           "lblAggiungi",
                           "picRimuoviSegmento",
                           "lblRimuovi",
                           "picCopiaSegmento",
                           "lblDuplicaSegmento",
                           "lblVociInElenco",
                           "cmbGiorno",
                           "lblDay",
                           "picFraDay",
                           "picDettaglio",
                           "lblDettaglioPalinsesto",
                           "lblOrario",
                           "txtOre",
                           "lblDuePunti",
                           "txtMin",
                           "grdDettaglio",
                           "DirDirectoryMp3",
                           "picDisk",
                           "filMp3",
                           "lblMp3_Dir",
                           "cmdPlayFileSx",
                           "cmdStopFileSx",
                           "lblAnteprimaSx",
                           "lblFileInfo",
                           "lblBitrate",
                           "lblFreq",
                           "lblDurata",
                           "lblVersioneMpeg",
                           "lblBadFileType",
                           "picSave",
                           "lblSave",
                           "picReport",
                           "lblReport",
                           "picAnnulla",
                           "lblAnnulla",
                           "picSettimana"}) {
    EXPECT_NE(form->findChild<QWidget*>(QLatin1String(name)), nullptr) << name;
  }
  for (int i = 0; i < 8; ++i) {
    for (const char* name :
         {"picAggiungiSpot", "picRimuoviSpot", "picPlay", "picStop", "UpDownFile", "lblPos"}) {
      EXPECT_NO_THROW(Elemento(name, i));
    }
  }
  EXPECT_EQ(form->objectName(), "frmPalinsesto");
}

TEST_F(LoadedSchedule, HasTheCaptionsOfItsDesignBefore) {
  form = new frmPalinsesto(b.A, progresso);
  EXPECT_EQ(form->windowTitle(), "Editor Palinsesti");
  const std::map<const char*, const char*> captions = {
      {"lblAggiungi", "Add"},
      {"lblRimuovi", "Remove"},
      {"lblDuplicaSegmento", "Copy"},
      {"lblVociInElenco", "Voci in elenco"},
      {"lblDay", "Day"},
      {"lblDettaglioPalinsesto", "Dettaglio Palinsesto"},
      {"lblMp3_Dir", "MP3 Directory"},
      {"lblAnteprimaSx", "Preview"},
      {"lblSave", "Save"},
      {"lblReport", "Report"},
      {"lblAnnulla", "Cancel"}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(Testo(name), caption) << name;
  EXPECT_FALSE(Ha("tmpScheduler.mdb")) << "nothing is opened yet";
}

TEST_F(LoadedSchedule, SpeaksEnglish) {
  Apri();
  ExpectWords();
  EXPECT_EQ(Testo("lblAggiungi"), "Add");
  EXPECT_EQ(Testo("lblAnnulla"), "Leave without saving");
  EXPECT_EQ(Testo("lblProgetto"), "Hall");
}

TEST_F(LoadedSchedule, SpeaksItalian) {
  const std::string english = Parola("0140015");
  b.C.Stato.FileLingua = b.Percorso("program/Language/Italiano.lan");
  ASSERT_NE(Parola("0140015"), english);
  Apri();
  ExpectWords();
  EXPECT_EQ(Giorni().itemText(0).toStdString().substr(0, 3), "Lun");
}

TEST_F(LoadedSchedule, ShowsTheFolderThatWasUsedLastAndLeavesTheSettingAlone) {
  Musica({"10.mp3", "2.mp3", "a.mp3"});
  b.Cartella.Write("music/no.txt", "");
  const std::string settings = b.Cartella.Read("program/KVR5Software.ini");
  Apri();
  EXPECT_EQ(form->fraFile->DirDirectoryMp3->Percorso(), b.Percorso("music"));
  EXPECT_THAT(form->fraFile->Nomi(), ElementsAre("2.mp3", "10.mp3", "a.mp3"));
  EXPECT_EQ(b.Cartella.Read("program/KVR5Software.ini"), settings);
}

TEST_F(LoadedSchedule, FillsTheScreenAtTheFirstTickAlone) {
  Segmento(1, "08.30", {"a.mp3"});
  form = new frmPalinsesto(b.A, progresso);
  form->Carica();
  EXPECT_TRUE(form->tmrIniziale.isActive());
  EXPECT_TRUE(form->tmrIniziale.isSingleShot());
  EXPECT_TRUE(form->tmrAggiornaLayout.isSingleShot());
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_FALSE(form->picDettaglio->isVisibleTo(form)) << "nor does an empty detail flash up";
  form->Mostra();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !form->tmrIniziale.isActive(); }));
  EXPECT_THAT(Griglia(), ElementsAre("08:30 a.mp3"));
  EXPECT_TRUE(SiVede("picDettaglio"));
}

TEST_F(LoadedSchedule, WorksOnACopyAndThrowsAwayWhatACrashLeft) {
  Segmento(1, "08.30");
  std::filesystem::copy(b.Cartella.Host() / "program/Projects/Hall/scheduler.mdb",
                        b.Cartella.Host() / "program/Projects/Hall/TMPSCHEDULER.MDB");
  Segmento(1, "09.30");
  const std::string before = Leggi("scheduler.mdb");
  Apri();
  EXPECT_FALSE(Ha("TMPSCHEDULER.MDB")) << "by its name without regard to case";
  EXPECT_THAT(Teste("tmpScheduler.mdb"), ElementsAre("1 08:30", "1 09:30"));
  EXPECT_TRUE(Leggi("scheduler.mdb") == before);
}

TEST_F(LoadedSchedule, OfAMissingDatabaseIsEmptyAndCanBeLeftOrSaved) {
  Togli("scheduler.mdb");
  Musica({"a.mp3"});
  Apri();
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_FALSE(SiVede("picDettaglio"));
  EXPECT_TRUE(form->picSave->isEnabled());
  Clic("picAggiungiSegmento");
  DoppioFile("a.mp3");
  test::ScegliVoce(Giorni(), "Tuesday");
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_EQ(Testo("lblModifiche"), "") << "nothing was changed";
  Clic("picSave");
  EXPECT_TRUE(SiChiude());
  EXPECT_FALSE(Ha("tmpScheduler.mdb"));
  EXPECT_FALSE(Ha("scheduler.mdb"));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(LoadedSchedule, OfADatabaseThatCannotBeReadSaysSoAndCannotBeSaved) {
  Apri();
  const QImage none = Grid().grab().toImage();
  for (const char* bytes : {"", "no database", "SQLite format 3"}) {
    SCOPED_TRACE(bytes);
    Dimentica();
    b.Cartella.Write("program/Projects/Hall/scheduler.mdb", bytes);
    Apri();
    EXPECT_THAT(Griglia(), IsEmpty());
    EXPECT_NE(Grid().grab().toImage(), none) << "other words than those of an empty day";
    EXPECT_FALSE(form->picSave->isEnabled());
    EXPECT_EQ(form->picSave->toolTip().toStdString(), Parola("0140122"));
    EXPECT_FALSE(form->Segmenti->picCopiaSegmento->isEnabled());
    EXPECT_FALSE(form->Segmenti->picRimuoviSegmento->isEnabled());
    Clic("picAggiungiSegmento");
    EXPECT_EQ(Testo("lblModifiche"), "");
    Clic("picAnnulla");
    EXPECT_TRUE(SiChiude());
    EXPECT_EQ(Leggi("scheduler.mdb"), bytes);
    EXPECT_FALSE(Ha("tmpScheduler.mdb"));
  }
}

TEST_F(LoadedSchedule, OfAnotherSchemaDoesNothingHarmful) {
  Togli("scheduler.mdb");
  sqlite3* strange = nullptr;
  const std::string path = (b.Cartella.Host() / "program/Projects/Hall/scheduler.mdb").string();
  ASSERT_EQ(sqlite3_open(path.c_str(), &strange), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(strange, "CREATE TABLE other(x)", nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(strange);
  const std::string before = Leggi("scheduler.mdb");
  Apri();
  EXPECT_THAT(Griglia(), IsEmpty());
  Clic("picAggiungiSegmento");
  test::ScegliVoce(Giorni(), "Sunday");
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_EQ(Testo("lblModifiche"), "");
  Clic("picAnnulla");
  EXPECT_TRUE(SiChiude());
  EXPECT_TRUE(Leggi("scheduler.mdb") == before);
}

TEST_F(LoadedSchedule, OfALockedDatabaseComesUpAndLeavesItAlone) {
  Segmento(1, "08.30");
  const std::string before = Leggi("scheduler.mdb");
  Connection other(b.Disco);
  ASSERT_FALSE(other.Open(b.Percorso("program/Projects/Hall/scheduler.mdb")));
  ASSERT_EQ(sqlite3_exec(other.Handle(), "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  Apri();
  Clic("picAggiungiSegmento");
  Clic("picAnnulla");
  EXPECT_TRUE(SiChiude());
  other.Close();
  EXPECT_TRUE(Leggi("scheduler.mdb") == before);
}

TEST_F(LoadedSchedule, SortsByTimeAndKeepsASegmentWithoutOne) {
  Segmento(1, "22.00");
  Segmento(1, "08.30");
  Segmento(1, "");
  Apri();
  EXPECT_THAT(Griglia(), ElementsAre("--:--", "08:30", "22:00"));
  EXPECT_EQ(Orario(), ":");
}

TEST_F(LoadedSchedule, OpensItsHelpByKeyAndButton) {
  Apri();
  Premi(Qt::Key_F1);
  Clic("picHelp");
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
  EXPECT_THAT(b.Documenti.Aperti, testing::Each(b.Percorso("program\\Help\\English.htm")));
}

TEST_F(LoadedSchedule, ShowsItsReportAtTheButton) {
  Segmento(1, "08.30", {"a.mp3"});
  Apri();
  Clic("picReport");
  EXPECT_THAT(b.Documenti.Aperti,
              ElementsAre(b.Percorso("program\\Projects\\Hall\\Scheduler.htm")));
  EXPECT_TRUE(Ha("Scheduler.htm"));
  EXPECT_TRUE(form->isVisible());
  EXPECT_FALSE(test::PuntatoreOccupato());
}

}  // namespace
}  // namespace kvr5
