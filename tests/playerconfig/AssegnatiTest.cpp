#include <gtest/gtest.h>

#include "playerconfig/Assegnati.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

class Assigned : public testing::Test {
 protected:
  void SetUp() override {
    b.CreaProgetto("Hall", 4, 1);
    b.C.Stato.FileLingua = b.Percorso("program/Language/None.lan");  // the built-in words
    table.Apri();
  }
  /// A file of the folder "music" for a code.
  void Assign(std::int16_t code, const std::string& name) {
    table.Assegna(code, name, b.Percorso("music"));
  }
  void Music(const std::string& name) { b.Cartella.Write("music/" + name, "x"); }
  void Project(const std::string& name) { b.Cartella.Write("program/Projects/Hall/" + name, "x"); }
  ElencoAssegnati List() { return Assegnati(b.C, table.Righe()); }
  /// The codes of the rows that are marked as the same file.
  std::vector<std::int64_t> Same() {
    std::vector<std::int64_t> codes;
    for (const auto& row : List().Righe) {
      if (row.StessoFile) codes.push_back(row.Codice);
    }
    return codes;
  }

  using Codes = std::vector<std::int64_t>;
  Banco b;
  TabellaIngressi table{b.C};
};

TEST_F(Assigned, AreListedByCodeWithTheirInputsAndFiles) {
  Music("door.mp3");
  Assign(12, "gone.mp3");
  Assign(5, "door.mp3");
  const auto list = List();
  ASSERT_EQ(list.Righe.size(), 2U);
  EXPECT_EQ(list.Righe[0], (Assegnato{5, "IN1+IN3", "door.mp3", b.Percorso("music") + "\\door.mp3",
                                      false, false}));
  EXPECT_EQ(list.Righe[1], (Assegnato{12, "IN3+IN4", "gone.mp3", b.Percorso("music") + "\\gone.mp3",
                                      true, false}));
  EXPECT_EQ(list.Mancanti, 1U);
  EXPECT_EQ(CifreAssegnati(b.C, list), "2 files, 1 missing");
  EXPECT_EQ(SegnoAssegnato(b.C, list.Righe[0]), "");
  EXPECT_EQ(SegnoAssegnato(b.C, list.Righe[1]), "missing");
}

TEST_F(Assigned, FiguresAndMarksSpeakTheUsersLanguage) {
  b.Cartella.Write("program/Language/Keys.lan",
                   "[Strings]\r\n0040060=uno\r\n0040061=molti\r\n0040062=manca\r\n"
                   "0040063=mancano\r\n0040064=uguale\r\n");
  b.C.Stato.FileLingua = b.Percorso("program/Language/Keys.lan");
  Assign(1, "a.mp3");
  EXPECT_EQ(CifreAssegnati(b.C, List()), "1 uno, 1 manca");
  Assign(2, "a.mp3");
  EXPECT_EQ(CifreAssegnati(b.C, List()), "2 molti, 2 mancano");
  EXPECT_EQ(SegnoAssegnato(b.C, List().Righe[1]), "manca, uguale");
}

TEST_F(Assigned, FiguresSayNothingOfMissingFilesWhereThereAreNone) {
  EXPECT_EQ(CifreAssegnati(b.C, List()), "0 files");
  Music("door.mp3");
  Assign(5, "door.mp3");
  EXPECT_EQ(CifreAssegnati(b.C, List()), "1 file");
}

TEST_F(Assigned, ACopyUnderTheNameOnTheCardMakesUpForAMissingSource) {
  Assign(5, "gone.mp3");
  EXPECT_TRUE(List().Righe[0].Mancante);
  Project("5.MP3");
  EXPECT_FALSE(List().Righe[0].Mancante);
}

TEST_F(Assigned, TwoInputsOfOneSourceAreBothMarked) {
  Music("gong.mp3");
  Assign(1, "gong.mp3");
  Assign(2, "other.mp3");
  Assign(4, "GONG.MP3");
  EXPECT_EQ(Same(), (Codes{1, 4}));
  EXPECT_EQ(SegnoAssegnato(b.C, List().Righe[0]), "same file: recording will stop");
  Assign(8, "gong.mp3");
  EXPECT_EQ(Same(), (Codes{1, 4, 8}));
}

TEST_F(Assigned, AMissingSourceOfTwoInputsHasBothMarks) {
  Assign(1, "gong.mp3");
  Assign(2, "gong.mp3");
  EXPECT_EQ(SegnoAssegnato(b.C, List().Righe[1]), "missing, same file: recording will stop");
}

TEST_F(Assigned, TheSameNameInTwoFoldersIsNoSameFile) {
  table.Assegna(1, "a.mp3", b.Percorso("music"));
  table.Assegna(2, "a.mp3", b.Percorso("other"));
  EXPECT_EQ(Same(), Codes{});
}

TEST_F(Assigned, AnInputWithACopyOfItsOwnStopsNoRecording) {
  Music("gong.mp3");
  Assign(1, "gong.mp3");
  Assign(2, "gong.mp3");
  Project("2.mp3");
  EXPECT_EQ(Same(), Codes{});
  Project("1.mp3");
  EXPECT_EQ(Same(), Codes{});
}

TEST_F(Assigned, ASourceThatIsAnotherInputsCopyIsTheSameFile) {
  Project("1.mp3");
  Assign(1, "a.mp3");
  table.Assegna(2, "1.mp3", b.C.Stato.CartellaProgetto);
  EXPECT_EQ(Same(), (Codes{1, 2}));
}

TEST_F(Assigned, ALongerPathInFrontThatBeginsAlikeStopsARecordingToo) {
  Music("a.mp3.mp3");
  Music("a.mp3");
  Assign(1, "a.mp3.mp3");
  Assign(2, "a.mp3");
  EXPECT_EQ(Same(), (Codes{1, 2}));
  Assign(1, "a.mp3");
  Assign(2, "a.mp3.mp3");
  EXPECT_EQ(Same(), Codes{}) << "the other way round it doesn't";
}

TEST_F(Assigned, RowsOfADamagedDatabaseAreListedAsTheyAre) {
  const std::vector<RigaIngresso> rows{
      {{}, {}, {}, {}}, {300, "", "x.mp3", "C:\\"}, {0, {}, "", ""}};
  const auto list = Assegnati(b.C, rows);
  ASSERT_EQ(list.Righe.size(), 3U);
  EXPECT_EQ(list.Mancanti, 3U);
  EXPECT_EQ(list.Righe[0].Codice, 0);
  EXPECT_EQ(list.Righe[1].Ingressi, "300");
  for (const auto& row : list.Righe) EXPECT_FALSE(row.StessoFile);
}

TEST_F(Assigned, AllCombinationsAreListed) {
  for (std::int16_t code = 1; code <= 255; ++code) {
    b.AggiungiRiga("inputcfg.mdb", 1, code, std::to_string(code) + "x.mp3", "C:\\nowhere\\",
                   std::to_string(code) + ".mp3");
  }
  const auto list = List();
  EXPECT_EQ(list.Righe.size(), 255U);
  EXPECT_EQ(CifreAssegnati(b.C, list), "255 files, 255 missing");
}

}  // namespace
}  // namespace kvr5
