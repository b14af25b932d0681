#include <gtest/gtest.h>

#include <map>
#include <random>

#include "playerconfig/CodiceIngressi.h"
#include "playerconfig/TabellaIngressi.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

TEST(CodiceIngressi, IsTheSumOfTheTickedInputsBits) {
  EXPECT_EQ(CodiceIngressi({}), 0);
  EXPECT_EQ(CodiceIngressi({true, false, true}), 5);
  EXPECT_EQ(CodiceIngressi({false, false, false, false, false, false, false, true}), 128);
  EXPECT_EQ(CodiceIngressi({true, true, true, true, true, true, true, true}), 255);
}

TEST(CodiceIngressi, NamesTheFileOnTheCard) {
  EXPECT_EQ(AliasIngresso(5), "5.mp3");
  EXPECT_EQ(AliasIngresso(255), "255.mp3");
}

TEST(CodiceIngressi, ReadsBackEveryNameOfEveryCode) {
  for (std::int16_t code = 1; code <= 255; ++code) {
    EXPECT_EQ(CodiceDaTesto(NomeIngressi(code)), code);
    EXPECT_EQ(CodiceDaTesto(std::to_string(code)), code);
  }
  EXPECT_EQ(NomeIngressi(5), "IN1+IN3");
  EXPECT_EQ(CodiceDaTesto("in3+IN1"), 5);
}

TEST(CodiceIngressi, RefusesAnythingElse) {
  for (const auto* text : {"0", "256", "-1", "", "IN", "IN0", "IN9", "IN1+", "+IN1", "IN1+IN",
                           "1.5", "5 ", "IN1,IN3", "99999999999999"}) {
    EXPECT_EQ(CodiceDaTesto(text), std::nullopt) << text;
  }
}

TEST(CodiceIngressi, KnowsTheInputsOfTheSerialLink) {
  EXPECT_TRUE(UsaIngressiRs485(16));
  EXPECT_TRUE(UsaIngressiRs485(32 + 1));
  EXPECT_FALSE(UsaIngressiRs485(255 - 48));
}

class InputTable : public testing::Test {
 protected:
  void SetUp() override {
    b.CreaProgetto("Hall", 4, 1);
    table.Apri();
  }

  Banco b;
  TabellaIngressi table{b.C};
};

TEST_F(InputTable, TellsWhichProjectsHaveNoInputBlock) {
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{0, 1, 2, 5, 9}) {
    EXPECT_FALSE(TabellaIngressi::SenzaIngressi(1, mode));
    EXPECT_FALSE(TabellaIngressi::SenzaIngressi(2, mode));
    EXPECT_FALSE(TabellaIngressi::SenzaIngressi(3, mode));
    EXPECT_EQ(TabellaIngressi::SenzaIngressi(4, mode), mode != 1);
  }
}

TEST_F(InputTable, AnAssignmentIsStoredAtOnceInItsFiveColumns) {
  table.Assegna(5, "door.mp3", "C:\\Music");
  EXPECT_FALSE(b.C.Errore);
  Connection other(b.C.Files);
  ASSERT_FALSE(other.Open(b.Percorso("program/Projects/Hall/inputcfg.mdb")));
  Recordset rows;
  ASSERT_FALSE(rows.Open(other, "SELECT * FROM [List] ORDER BY [Pos] ASC"));
  ASSERT_EQ(rows.RecordCount(), 1);
  EXPECT_EQ(rows.Number("Pos"), 5);
  EXPECT_EQ(rows.Text("Alias"), "5.mp3");
  EXPECT_EQ(rows.Text("FileName"), "door.mp3");
  EXPECT_EQ(rows.Text("FilePath"), "C:\\Music\\");
  EXPECT_EQ(rows.Number("NPlaylist"), 1);
}

TEST_F(InputTable, ASecondFileForACodeOverwritesItsRow) {
  table.Assegna(5, "a.mp3", "C:\\Music\\");
  table.Assegna(7, "b.mp3", "C:\\Music\\");
  table.Assegna(5, "c.mp3", "C:\\Other\\");
  const auto rows = table.Righe();
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].FileName, "c.mp3");
  EXPECT_EQ(rows[0].FilePath, "C:\\Other\\");
  EXPECT_EQ(rows[1].FileName, "b.mp3");
}

TEST_F(InputTable, AStaleCursorNeverOverwritesAnotherInput) {
  table.Assegna(1, "a.mp3", "C:\\");
  table.Assegna(2, "b.mp3", "C:\\");
  Ignora(table.Cursore().MoveFirst());  // a save or a recording has moved it
  table.Assegna(3, "c.mp3", "C:\\");
  EXPECT_EQ(table.Righe().size(), 3U);
  EXPECT_EQ(table.Righe()[0].FileName, "a.mp3");
}

TEST_F(InputTable, FreeingARowDeletesItAndFreeingAFreeCodeChangesNothing) {
  table.Assegna(5, "a.mp3", "C:\\");
  table.Libera(6);
  EXPECT_EQ(table.Righe().size(), 1U);
  table.Libera(5);
  EXPECT_TRUE(table.Righe().empty());
  table.Libera(5);
  EXPECT_FALSE(b.C.Errore);
}

TEST_F(InputTable, RowsComeByCode) {
  for (const std::int16_t code : std::initializer_list<std::int16_t>{255, 1, 128, 3})
    table.Assegna(code, "a.mp3", "C:\\");
  std::vector<std::int64_t> codes;
  for (const auto& row : table.Righe()) codes.push_back(*row.Pos);
  EXPECT_EQ(codes, (std::vector<std::int64_t>{1, 3, 128, 255}));
}

TEST_F(InputTable, NamesWithApostrophesAndAccentsAreKept) {
  table.Assegna(9, "L'été d'Anaïs.mp3", "C:\\Mu'sic\\");
  EXPECT_EQ(table.Righe()[0].FileName, "L'été d'Anaïs.mp3");
}

TEST_F(InputTable, AMissingDatabaseDoesNothingAndLogsBothConfirmations) {
  table.Chiudi();
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall/inputcfg.mdb");
  table.Apri();
  EXPECT_FALSE(table.Aperta());
  EXPECT_FALSE(table.Cerca(5));
  table.Assegna(5, "door.mp3", "C:\\");
  table.Libera(5);
  EXPECT_TRUE(table.Righe().empty());
  EXPECT_TRUE(b.Finestre.Silenzio());
  const auto log = b.Cartella.Read("program/Logs/20061020.log");
  EXPECT_TRUE(
      log.starts_with("08:05:09 frmPlayerConfig/Routine cmdOKFileMp3: err n\xB0"
                      "3704:"))
      << log;
  EXPECT_NE(log.find("08:05:09 File: door.mp3\r\n"), std::string::npos) << log;
  EXPECT_TRUE(log.ends_with("08:05:09 File:  \r\n")) << log;
}

TEST_F(InputTable, AnotherProjectsTableIsNeverReopened) {
  table.Assegna(5, "a.mp3", "C:\\");
  b.CreaProgetto("Lift", 4, 1);
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Lift/inputcfg.mdb");
  table.Apri();
  EXPECT_FALSE(table.Aperta());
  table.Riapri();
  EXPECT_FALSE(table.Aperta());
}

TEST_F(InputTable, RowsThatOthersAddedToAnEmptyTableAreSeen) {
  EXPECT_TRUE(table.Righe().empty());
  b.AggiungiRiga("inputcfg.mdb", 1, 6, "b.mp3", "C:\\", "6.mp3");
  EXPECT_EQ(table.Righe().size(), 1U);
}

TEST_F(InputTable, ALockedTableKeepsItsRowsAndTheLogSaysWhy) {
  table.Assegna(5, "a.mp3", "C:\\");
  Connection other(b.C.Files);
  ASSERT_FALSE(other.Open(b.Percorso("program/Projects/Hall/inputcfg.mdb")));
  {
    const Transaction lock(other);
    ASSERT_FALSE(other.Execute("UPDATE [List] SET [FileName]='theirs.mp3' WHERE [Pos]=5"));
    table.Assegna(5, "b.mp3", "C:\\");
    EXPECT_EQ(b.C.Errore.Last().Number(), errors::CannotOpen);
    table.Assegna(6, "c.mp3", "C:\\");
    EXPECT_EQ(b.C.Errore.Last().Number(), errors::CannotOpen);
    table.Libera(5);
    EXPECT_EQ(b.C.Errore.Last().Number(), errors::CannotOpen);
  }
  const auto rows = table.Righe();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].FileName, "theirs.mp3");
  const auto log = b.Cartella.Read("program/Logs/20061020.log");
  EXPECT_NE(log.find("-2147467259"), std::string::npos) << log;
  EXPECT_NE(log.find("File:  \r\n"), std::string::npos) << "freeing a code has no file";
}

TEST_F(InputTable, ADamagedPageNeverPassesForTheRowThatWasAskedFor) {
  for (std::int16_t code = 1; code <= 255; ++code) {
    b.AggiungiRiga("inputcfg.mdb", 1, code, std::string(80, 'n') + std::to_string(code) + ".mp3",
                   "C:\\Music\\", std::to_string(code) + ".mp3");
  }
  table.Chiudi();
  const std::string path = "program/Projects/Hall/inputcfg.mdb";
  const std::string whole = b.Cartella.Read(path);
  for (std::size_t page = 2; page < whole.size() / 4096; ++page) {
    std::string bytes = whole;
    for (std::size_t i = 0; i < 4096; ++i) bytes[page * 4096 + i] = '\xEE';
    b.Cartella.Write(path, bytes);
    table.Apri();
    for (const std::int16_t code : std::initializer_list<std::int16_t>{3, 130, 250}) {
      if (table.Cerca(code)) {
        EXPECT_EQ(table.Cursore().Number("Pos"), code) << "page " << page;
      }
    }
    EXPECT_LE(table.Righe().size(), 255U);
    table.Chiudi();
  }
}

TEST_F(InputTable, ReopeningReadsTheTableAsItIsNow) {
  table.Assegna(5, "a.mp3", "C:\\");
  table.Chiudi();
  b.AggiungiRiga("inputcfg.mdb", 1, 6, "b.mp3", "C:\\", "6.mp3");
  table.Riapri();
  EXPECT_TRUE(table.Aperta());
  EXPECT_TRUE(table.Cerca(6));
}

TEST_F(InputTable, RandomSessionsAgreeWithAMapOfCodes) {
  for (unsigned seed = 1; seed <= 8; ++seed) {
    std::mt19937 random(seed);
    std::map<std::int64_t, std::string> model;
    for (const auto& row : table.Righe()) table.Libera(static_cast<std::int16_t>(*row.Pos));
    for (int step = 0; step < 40; ++step) {
      const auto code = static_cast<std::int16_t>(1 + random() % 12);
      if (random() % 3 == 0) {
        table.Libera(code);
        model.erase(code);
      } else {
        const std::string name = "f" + std::to_string(random() % 5) + "'.mp3";
        table.Assegna(code, name, "C:\\Music");
        model[code] = name;
      }
      if (random() % 4 == 0) Ignora(table.Cursore().MoveLast());
      if (random() % 10 == 0) table.Riapri();
    }
    std::map<std::int64_t, std::string> found;
    for (const auto& row : table.Righe()) found[*row.Pos] = *row.FileName;
    EXPECT_EQ(found, model) << "seed " << seed;
    EXPECT_EQ(table.Righe().size(), model.size());
  }
}

}  // namespace
}  // namespace kvr5
