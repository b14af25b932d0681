#include <gtest/gtest.h>

#include "playerconfig/RientroDaScheda.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

/// A project as a card gave it back: files under their names on the card.
class BackFromACard : public testing::Test {
 protected:
  void Make(std::int16_t type, std::int16_t mode, std::int16_t config = 0) {
    b.CreaProgetto("Hall", type, mode, config);
  }
  void Input(int code, const std::string& name, const std::string& alias = "*") {
    b.AggiungiRiga("inputcfg.mdb", 1, code, name, "C:\\Music\\",
                   alias == "*" ? std::to_string(code) + ".mp3" : alias);
  }
  void Track(int playlist, int pos, const std::string& name) {
    b.AggiungiRiga("playlist.mdb", playlist, pos, name, "C:\\Music\\", "");
  }
  void Put(const std::string& name, const std::string& bytes = "x") {
    b.Cartella.Write("program/Projects/Hall/" + name, bytes);
  }
  std::string Read(const std::string& name) {
    return b.Cartella.Read("program/Projects/Hall/" + name);
  }
  bool There(const std::string& name) { return b.Cartella.Exists("program/Projects/Hall/" + name); }
  void Return() {
    TabellaIngressi inputs(b.C);
    if (!TabellaIngressi::SenzaIngressi(b.C.Stato.PlayerType, b.C.Stato.PlayerMode)) inputs.Apri();
    RientroDaScheda(b.C, inputs);
    EXPECT_TRUE(b.Finestre.Silenzio());
    EXPECT_FALSE(b.C.Errore);
  }

  Banco b;
};

TEST_F(BackFromACard, TheFilesOfTheInputsGetTheirNamesBack) {
  Make(4, 1);
  Input(5, "L'été.mp3");
  Input(7, "b.mp3");
  Put("5.mp3", "five");
  Put("7.MP3", "seven");
  Return();
  EXPECT_EQ(Read("L'été.mp3"), "five");
  EXPECT_EQ(Read("b.mp3"), "seven");
  EXPECT_FALSE(There("5.mp3") || There("7.MP3"));
}

TEST_F(BackFromACard, AMissingFileFailsWithoutAWordAndTheOthersFollow) {
  Make(1, 0);
  Input(1, "a.mp3");
  Input(2, "b.mp3");
  Put("2.mp3");
  Return();
  EXPECT_TRUE(There("b.mp3"));
  EXPECT_FALSE(There("a.mp3"));
}

TEST_F(BackFromACard, NothingIsOverwritten) {
  Make(4, 1);
  Input(1, "same.mp3");
  Input(2, "SAME.mp3");
  Input(3, "Config.txt");
  Put("1.mp3", "one");
  Put("2.mp3", "two");
  Put("3.mp3", "three");
  const auto config = Read("Config.txt");
  Return();
  EXPECT_EQ(Read("same.mp3"), "one");
  EXPECT_EQ(Read("2.mp3"), "two");
  EXPECT_EQ(Read("3.mp3"), "three");
  EXPECT_EQ(Read("Config.txt"), config);
}

TEST_F(BackFromACard, AFileThatGotANameMayBeTheNextOnesAlias) {
  Make(4, 1);
  Input(1, "2.mp3");
  Input(2, "b.mp3");
  Put("1.mp3", "one");
  Return();
  EXPECT_EQ(Read("b.mp3"), "one");
}

TEST_F(BackFromACard, NoNameLeadsOutOfTheProjectsFolder) {
  Make(4, 1);
  Input(1, "..\\out.mp3");
  Input(2, "in.mp3", "..\\victim.mp3");
  Input(3, "../up.mp3");
  Input(4, "");
  Input(5, "five.mp3", "");
  b.Cartella.Write("program/Projects/victim.mp3", "theirs");
  for (const char* name : {"1.mp3", "3.mp3", "4.mp3"}) Put(name);
  Return();
  EXPECT_EQ(b.Cartella.Read("program/Projects/victim.mp3"), "theirs");
  EXPECT_FALSE(b.Cartella.Exists("program/Projects/out.mp3"));
  EXPECT_FALSE(b.Cartella.Exists("program/Projects/up.mp3"));
  for (const char* name : {"1.mp3", "3.mp3", "4.mp3"}) EXPECT_TRUE(There(name)) << name;
}

TEST_F(BackFromACard, PlaylistsKeepTheAliasesThatASaveGives) {
  Make(4, 5);
  Track(1, 1, "a.mp3");
  Put("P1-1.mp3");
  Put("P01-001.mp3");
  Return();
  EXPECT_TRUE(There("P1-1.mp3") && There("P01-001.mp3"));
  EXPECT_FALSE(There("a.mp3"));
}

TEST_F(BackFromACard, NamesOfFourDigitsOfTheFirstPlaylistAreGivenBack) {
  Make(4, 5);
  Track(1, 1, "a.mp3");
  Track(1, 12, "b.mp3");
  Track(2, 1, "c.mp3");
  Put("P01-0001.mp3", "one");
  Put("p01-0012.mp3", "twelve");
  Put("P02-0001.mp3");
  Return();
  EXPECT_EQ(Read("a.mp3"), "one");
  EXPECT_EQ(Read("b.mp3"), "twelve");
  EXPECT_TRUE(There("P02-0001.mp3")) << "only playlist 1";
}

TEST_F(BackFromACard, OfModel2InputsAndPlaylistAreBothTried) {
  Make(2, 0);
  Input(1, "in.mp3");
  Track(1, 1, "a.mp3");
  Put("1.mp3");
  Put("P01-0001.mp3");
  Return();
  EXPECT_TRUE(There("in.mp3") && There("a.mp3"));
}

TEST_F(BackFromACard, ThePlaylistIsNotTouchedOnModels1And3NorInMode1) {
  using Kind = std::pair<std::int16_t, std::int16_t>;
  for (const auto& [type, mode] : {Kind{1, 0}, Kind{3, 5}, Kind{2, 1}, Kind{4, 1}}) {
    Make(2, 0);  // one with a playlist
    Track(1, 1, "a.mp3");
    Put("P01-0001.mp3");
    b.C.Stato.PlayerType = type;
    b.C.Stato.PlayerMode = mode;
    Return();
    EXPECT_TRUE(There("P01-0001.mp3")) << type << " " << mode;
    std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/Hall");
  }
}

TEST_F(BackFromACard, AScheduleProjectRunsOverThePlaylistButNotOverTheInputs) {
  Make(2, 0);  // one with both databases
  Input(1, "in.mp3");
  Track(1, 1, "a.mp3");
  Put("1.mp3");
  Put("P01-0001.mp3");
  b.C.Stato.PlayerType = 4;
  b.C.Stato.PlayerMode = 2;
  Return();
  EXPECT_TRUE(There("1.mp3")) << "no input block";
  EXPECT_TRUE(There("a.mp3"));
}

TEST_F(BackFromACard, MissingDatabasesAreNoFailure) {
  Make(4, 2);
  Return();
  std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/Hall");
  Return();
}

TEST_F(BackFromACard, APendingErrorStaysPending) {
  Make(4, 1);
  b.C.Errore.Record(Error(errors::DiskFull));
  TabellaIngressi inputs(b.C);
  RientroDaScheda(b.C, inputs);
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::DiskFull);
}

}  // namespace
}  // namespace kvr5
