#include <gtest/gtest.h>

#include "playerconfig/CodiceScelto.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

class ChosenCode : public testing::Test {
 protected:
  void SetUp() override {
    b.Cartella.Write("program/Language/Keys.lan", "[Strings]\r\n0040032=\"File: \"\r\n");
    b.CreaProgetto("Hall", 4, 1);
    b.C.Stato.FileLingua = b.Percorso("program/Language/Keys.lan");
    table.Apri();
  }
  void Tick(std::initializer_list<int> inputs) {
    for (const int input : inputs) chosen.Spunta(input, true);
  }

  Banco b;
  TabellaIngressi table{b.C};
  CodiceScelto chosen{b.C, table, "FileName - "};
};

TEST_F(ChosenCode, IsNoneAtFirst) {
  EXPECT_EQ(chosen.Codice(), 0);
  EXPECT_EQ(chosen.lblfraFileName(), "FileName - ");
  EXPECT_FALSE(chosen.fraFileAssociatoVisibile());
  EXPECT_FALSE(chosen.OkPerNessunFile());
}

TEST_F(ChosenCode, FollowsTheBoxesAndTheirLamps) {
  Tick({1, 3});
  EXPECT_EQ(chosen.Codice(), 5);
  EXPECT_EQ(chosen.Ingresso(1).ColoreLampada, 0x0000FFU);
  EXPECT_EQ(chosen.Ingresso(2).ColoreLampada, 0xFFFFFFU);
  EXPECT_TRUE(chosen.OkPerNessunFile());
  chosen.Spunta(1, false);
  EXPECT_EQ(chosen.Codice(), 4);
  EXPECT_EQ(chosen.Ingresso(1).ColoreLampada, 0xFFFFFFU);
  chosen.Spunta(0, true);
  chosen.Spunta(9, true);
  EXPECT_EQ(chosen.Codice(), 4);
}

TEST_F(ChosenCode, NamesTheFileOnTheCardBehindTheCaption) {
  Tick({1, 3});
  EXPECT_EQ(chosen.lblfraFileName(), "FileName - 5.mp3");
  Tick({8});
  EXPECT_EQ(chosen.lblfraFileName(), "FileName - 133.mp3");
  chosen.Scegli(0);
  EXPECT_EQ(chosen.lblfraFileName(), "FileName - ");
}

TEST_F(ChosenCode, AFreeCodeShowsTheWordsAlone) {
  Tick({1});
  EXPECT_FALSE(chosen.fraFileAssociatoVisibile());
  EXPECT_EQ(chosen.lblFileAssociato(), "File: ");
  EXPECT_EQ(chosen.DaScegliere(), std::nullopt);
}

TEST_F(ChosenCode, AnAssignedCodeShowsItsFileAndSelectsIt) {
  table.Assegna(5, "L'été.mp3", "C:\\");
  Tick({1, 3});
  EXPECT_TRUE(chosen.fraFileAssociatoVisibile());
  EXPECT_EQ(chosen.lblFileAssociato(), "File: L'été.mp3");
  EXPECT_EQ(chosen.DaScegliere(), "L'été.mp3");
  chosen.Spunta(3, false);
  EXPECT_FALSE(chosen.fraFileAssociatoVisibile());
  EXPECT_EQ(chosen.DaScegliere(), std::nullopt) << "the list of files is left alone";
}

TEST_F(ChosenCode, WithoutACodeTheFileIsHiddenAndItsCaptionStays) {
  table.Assegna(1, "a.mp3", "C:\\");
  Tick({1});
  chosen.Spunta(1, false);
  EXPECT_FALSE(chosen.fraFileAssociatoVisibile());
  EXPECT_EQ(chosen.lblFileAssociato(), "File: a.mp3");
}

TEST_F(ChosenCode, OfARowIsTickedAsByClicks) {
  table.Assegna(133, "a.mp3", "C:\\");
  Tick({2});
  chosen.Scegli(133);
  EXPECT_EQ(chosen.Codice(), 133);
  EXPECT_EQ(chosen.Ingresso(2).ColoreLampada, 0xFFFFFFU);
  EXPECT_EQ(chosen.DaScegliere(), "a.mp3");
  chosen.Scegli(300);
  chosen.Scegli(-1);
  EXPECT_EQ(chosen.Codice(), 133) << "no codes";
}

TEST_F(ChosenCode, ConfirmingAFileStoresAndShowsIt) {
  Tick({1, 3});
  chosen.Conferma("door.mp3", "C:\\Music");
  const auto rows = table.Righe();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].Pos, 5);
  EXPECT_EQ(rows[0].Alias, "5.mp3");
  EXPECT_EQ(rows[0].FilePath, "C:\\Music\\");
  EXPECT_TRUE(chosen.fraFileAssociatoVisibile());
  EXPECT_EQ(chosen.DaScegliere(), "door.mp3");
  chosen.Conferma("bell.mp3", "C:\\Music");
  EXPECT_EQ(table.Righe().size(), 1U) << "each code has one row";
  EXPECT_EQ(chosen.lblFileAssociato(), "File: bell.mp3");
}

TEST_F(ChosenCode, ConfirmingTheBlankFreesTheCode) {
  Tick({1});
  chosen.Conferma("door.mp3", "C:\\");
  chosen.Conferma(" ", "C:\\");
  EXPECT_TRUE(table.Righe().empty());
  EXPECT_FALSE(chosen.fraFileAssociatoVisibile());
  chosen.Conferma(" ", "C:\\");
  EXPECT_TRUE(table.Righe().empty()) << "a free code stays free";
  EXPECT_FALSE(b.C.Errore);
}

TEST_F(ChosenCode, ConfirmingNothingChangesNothing) {
  chosen.Conferma("door.mp3", "C:\\");
  EXPECT_TRUE(table.Righe().empty()) << "no input is ticked";
  Tick({1});
  for (const char* file : {"", "   ", "a|b.mp3", "..\\a.mp3"}) chosen.Conferma(file, "C:\\");
  EXPECT_TRUE(table.Righe().empty());
}

TEST_F(ChosenCode, AConfirmationThatFailsIsInTheLogAndShowsNoFile) {
  table.Chiudi();
  Tick({1});
  chosen.Conferma("door.mp3", "C:\\");
  EXPECT_TRUE(b.C.Errore);
  EXPECT_FALSE(chosen.fraFileAssociatoVisibile());
  EXPECT_NE(b.Cartella.Read("program/Logs/20061020.log").find("File: door.mp3"), std::string::npos);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(ChosenCode, TheLinkTakesInputs5And6) {
  table.Assegna(1, "a.mp3", "C:\\");
  Tick({1, 5, 6});
  b.C.Stato.Usa485 = true;
  EXPECT_TRUE(chosen.AbilitaIngressiRs485());
  EXPECT_EQ(chosen.Codice(), 1);
  EXPECT_EQ(chosen.lblfraFileName(), "FileName - 1.mp3");
  EXPECT_EQ(chosen.DaScegliere(), "a.mp3") << "as by clicks";
  for (const int input : {5, 6}) {
    EXPECT_FALSE(chosen.Ingresso(input).Abilitato);
    EXPECT_EQ(chosen.Ingresso(input).ColoreTesto, 0xA24000U);
    EXPECT_EQ(chosen.Ingresso(input).ColoreLampada, 0xFFFFFFU);
    chosen.Spunta(input, true);
  }
  EXPECT_FALSE(chosen.Scegli(255)) << "the file of another combination would be the one to change";
  EXPECT_EQ(chosen.Codice(), 1);
  EXPECT_TRUE(chosen.Scegli(255 - 48));
  EXPECT_EQ(chosen.Codice(), 255 - 48);
  EXPECT_FALSE(chosen.AbilitaIngressiRs485()) << "nothing was ticked there";
  EXPECT_TRUE(chosen.Ingresso(4).Abilitato);
  EXPECT_EQ(chosen.Ingresso(4).ColoreTesto, 0U);
}

TEST_F(ChosenCode, TheLinkGivesTheInputsBack) {
  b.C.Stato.Usa485 = true;
  chosen.AbilitaIngressiRs485();
  b.C.Stato.Usa485 = false;
  Tick({1});
  EXPECT_FALSE(chosen.AbilitaIngressiRs485());
  Tick({5});
  EXPECT_EQ(chosen.Codice(), 17);
  EXPECT_EQ(chosen.Ingresso(5).ColoreTesto, 0U);
}

TEST_F(ChosenCode, OtherModelsHaveNoLink) {
  b.C.Stato.Usa485 = true;
  for (const std::int16_t type : std::initializer_list<std::int16_t>{1, 2, 3}) {
    b.C.Stato.PlayerType = type;
    Tick({5, 6});
    EXPECT_FALSE(chosen.AbilitaIngressiRs485());
    EXPECT_EQ(chosen.Codice(), 48);
    EXPECT_TRUE(chosen.Ingresso(5).Abilitato);
  }
}

TEST_F(ChosenCode, ACaptionOf39CharactersIsTooLong) {
  EXPECT_FALSE(EtichettaTroppoLunga(""));
  EXPECT_FALSE(EtichettaTroppoLunga(std::string(38, 'a')));
  EXPECT_TRUE(EtichettaTroppoLunga(std::string(39, 'a')));
  std::string accents;
  for (int i = 0; i < 38; ++i) accents += "é";
  EXPECT_FALSE(EtichettaTroppoLunga(accents)) << "characters, not bytes";
  EXPECT_TRUE(EtichettaTroppoLunga(accents + "é"));
  table.Assegna(1, std::string(29, 'n') + ".mp3", "C:\\");  // "File: " and 33 characters
  Tick({1});
  EXPECT_TRUE(chosen.lblEtichettaTroppoLungaVisibile());
  chosen.Conferma(std::string(28, 'n') + ".mp3", "C:\\");
  EXPECT_FALSE(chosen.lblEtichettaTroppoLungaVisibile());
}

TEST_F(ChosenCode, ACaptionWithADashOfItsOwnIsCutBehindTheFirstOneWithABlank) {
  CodiceScelto dashed(b.C, table, "MP3-file - ");
  dashed.Spunta(1, true);
  dashed.Spunta(2, true);
  EXPECT_EQ(dashed.lblfraFileName(), "MP3-file - 3.mp3");
  CodiceScelto bare(b.C, table, "File");
  bare.Spunta(1, true);
  EXPECT_EQ(bare.lblfraFileName(), "File1.mp3");
}

TEST(ChosenCodeOfAnotherModel, WithoutADatabaseFindsNoFile) {
  Banco b;
  b.CreaProgetto("Hall", 2, 0, 3);
  TabellaIngressi table(b.C);
  table.Apri();
  CodiceScelto chosen(b.C, table, "FileName - ");
  chosen.Spunta(1, true);
  EXPECT_EQ(chosen.lblfraFileName(), "FileName - 1.mp3");
  EXPECT_FALSE(chosen.fraFileAssociatoVisibile());
}

}  // namespace
}  // namespace kvr5
