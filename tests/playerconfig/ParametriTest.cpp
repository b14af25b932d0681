#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "playerconfig/Parametri.h"

namespace kvr5 {
namespace {

const Parametro& Find(const char* key) {
  const auto* parameter = TrovaParametro(key);
  EXPECT_NE(parameter, nullptr) << key;
  return *parameter;
}

StatoParametro FromFile(const char* key, const char* text) {
  const auto& parameter = Find(key);
  return DalFile(parameter, text, StatoIniziale(parameter), Locale());
}

/// What the next save writes for a file's value.
std::string Saved(const char* key, const char* text) {
  return PerIlFile(Find(key), FromFile(key, text));
}

TEST(Parameters, AreFoundWithoutRegardToCase) {
  EXPECT_EQ(TrovaParametro("Momd"), TrovaParametro("MOMD"));
  EXPECT_EQ(TrovaParametro("XXXX"), nullptr);
  EXPECT_EQ(TrovaParametro(""), nullptr);
}

TEST(Parameters, AnAbsentKeyLeavesTheStateOfTheForm) {
  const std::pair<const char*, const char*> rows[] = {
      {"LOUT", "14"}, {"LLOU", "0"}, {"LTRE", "10"}, {"LBAS", "10"}, {"MOMN", "0"},  {"IMOD", "0"},
      {"TPCM", "0"},  {"MICP", "0"}, {"LMP3", "14"}, {"LLIN", "14"}, {"LLI2", "14"}, {"TAVC", "0"},
      {"CMAD", "31"}, {"CMCK", "0"}, {"CMCL", "0"},  {"CMBR", "0"},  {"CMPR", "0"},  {"CMSB", "1"},
      {"CMDB", "7"},  {"CMDR", "0"}, {"CMI3", "0"},  {"ORI3", "0"},  {"OMON", "0"},  {"INVR", "0"},
      {"PYDT", "0"},  {"PYDL", "0"}, {"TAPL", "0"},  {"RSPL", "1"},  {"MOMD", "0"}};
  for (const auto& [key, value] : rows) EXPECT_EQ(Saved(key, ""), value) << key;
  for (const auto* key : {"TFOU", "TFIN", "TADU"}) {
    EXPECT_EQ(StatoIniziale(Find(key)).Testo, "") << key;
  }
}

TEST(Parameters, SlidersTakeTheirPositionsAndKeepTheirStateOtherwise) {
  EXPECT_EQ(Saved("LOUT", "0"), "0");
  EXPECT_EQ(Saved("LOUT", "20"), "20");
  EXPECT_EQ(Saved("LOUT", "21"), "14");
  EXPECT_EQ(Saved("LOUT", "-1"), "14");
  EXPECT_EQ(Saved("LOUT", "abc"), "14");
  EXPECT_EQ(Saved("LOUT", "99999"), "14");
  EXPECT_EQ(Saved("LTRE", "3"), "3");
}

TEST(Parameters, MirsReadsAsRestartWhateverTheFileSays) {
  for (const auto* text : {"", "0", "1", "x"}) EXPECT_EQ(Saved("MIRS", text), "1") << text;
}

TEST(Parameters, MomnAndMicpAreOnForOneOnly) {
  for (const auto* key : {"MOMN", "MICP"}) {
    EXPECT_EQ(Saved(key, "1"), "1");
    for (const auto* text : {"", "0", "2", "on"}) EXPECT_EQ(Saved(key, text), "0") << text;
  }
}

TEST(Parameters, ImodIsActiveHighForZeroAndActiveLowForAnyOtherText) {
  EXPECT_EQ(Saved("IMOD", "0"), "0");
  for (const auto* text : {"1", "2", "00", "x"}) EXPECT_EQ(Saved("IMOD", text), "1") << text;
}

TEST(Parameters, TpcmIsOffForZeroAndANumberOtherwise) {
  EXPECT_EQ(FromFile("TPCM", "0"), (StatoParametro{0, "0"}));
  EXPECT_EQ(FromFile("TPCM", "50"), (StatoParametro{1, "50"}));
  EXPECT_EQ(FromFile("TPCM", "007"), (StatoParametro{1, "7"}));
  EXPECT_EQ(FromFile("TPCM", "300"), (StatoParametro{1, "300"})) << "no range on reading";
  EXPECT_EQ(FromFile("TPCM", "abc"), (StatoParametro{1, "0"})) << "the box stays";
}

TEST(Parameters, SecondsAreCheckedOnReading) {
  for (const auto* key : {"TFOU", "TFIN", "TADU"}) {
    EXPECT_EQ(Saved(key, ""), "1");
    EXPECT_EQ(Saved(key, "0"), "1");
    EXPECT_EQ(Saved(key, "1"), "1");
    EXPECT_EQ(Saved(key, "30"), "30");
    EXPECT_EQ(Saved(key, "31"), "30");
    EXPECT_EQ(Saved(key, "99"), "30");
    EXPECT_EQ(Saved(key, "abc"), "1");
    EXPECT_EQ(Saved(key, "1e1"), "10");
    EXPECT_EQ(Saved(key, "007"), "007") << "digits stay as they are written";
  }
}

TEST(Parameters, TheItemsOfAListStandForTheirValuesInOrder) {
  EXPECT_EQ(ValoriDelleVoci(Find("TAVC")), (std::vector{0, 1, 2, 3, 4}));
  EXPECT_EQ(ValoriDelleVoci(Find("CMDB")), (std::vector{7, 8}));
  EXPECT_EQ(ValoriDelleVoci(Find("PYDL")),
            (std::vector{0, 1, 2, 3, 4, 5, 10, 20, 30, 60, 120, 180, 240}));
  EXPECT_EQ(ValoriDelleVoci(Find("RSPL")).size(), 50U);
}

TEST(Parameters, ListsWithAnOffsetKeepTheirNumbers) {
  EXPECT_EQ(Saved("CMDB", "8"), "8");
  EXPECT_EQ(Saved("CMDB", "7"), "7");
  EXPECT_EQ(Saved("CMDB", "9"), "7");
  EXPECT_EQ(Saved("CMSB", "2"), "2");
  EXPECT_EQ(Saved("CMSB", "3"), "1");
  EXPECT_EQ(Saved("RSPL", "50"), "50");
  EXPECT_EQ(Saved("RSPL", "51"), "1");
}

TEST(Parameters, ListsOfOwnValuesTakeTheirItemsOnly) {
  EXPECT_EQ(Saved("PYDL", "240"), "240");
  EXPECT_EQ(Saved("PYDL", "15"), "0");
  EXPECT_EQ(Saved("TAPL", "18"), "18");
  EXPECT_EQ(Saved("TAPL", "20"), "0");
}

TEST(Parameters, InvrIsOnAboveZeroAndWrittenAsOne) {
  EXPECT_EQ(Saved("INVR", "2"), "1");
  EXPECT_EQ(Saved("INVR", "1"), "1");
  EXPECT_EQ(Saved("INVR", "0"), "0");
  EXPECT_EQ(Saved("INVR", "-1"), "0");
}

TEST(Parameters, FractionsAreRoundedToEvenWithTheLocalesMark) {
  EXPECT_EQ(Saved("LOUT", "14.5"), "14");
  EXPECT_EQ(Saved("LOUT", "15.5"), "16");
  Locale italian;
  italian.DecimalMark = ",";
  italian.GroupMark = ".";
  EXPECT_EQ(DalFile(Find("LTRE"), "3,5", StatoIniziale(Find("LTRE")), italian).Numero, 4);
  EXPECT_EQ(Saved("TFIN", "5.5"), "6") << "the file takes digits only";
  EXPECT_EQ(Saved("CMDB", "7.5"), "7") << "without the list's offset it is a half, which is even";
  EXPECT_EQ(Saved("RSPL", "2.5"), "3");
  EXPECT_EQ(Saved("PYDL", "4.5"), "0") << "no item's own value";
}

TEST(Parameters, AnEmptyValueLeavesWhatIsThereButForTheOnesThatReadItAsOff) {
  const auto kept = [](const char* key, StatoParametro before) {
    return DalFile(Find(key), "", before, Locale());
  };
  EXPECT_EQ(kept("MOMN", {1, {}}).Numero, 0);
  EXPECT_EQ(kept("MICP", {1, {}}).Numero, 0);
  EXPECT_EQ(kept("IMOD", {1, {}}).Numero, 1);
  EXPECT_EQ(kept("TPCM", {1, "50"}), (StatoParametro{1, "50"}));
  EXPECT_EQ(kept("INVR", {1, {}}).Numero, 1);
  EXPECT_EQ(DalFile(Find("INVR"), "x", {1, {}}, Locale()).Numero, 1);
  EXPECT_EQ(DalFile(Find("LOUT"), "x", {7, {}}, Locale()).Numero, 7);
}

TEST(Parameters, EveryControlEndsWhereItsValuesEnd) {
  const std::tuple<const char*, int, int> rows[] = {
      {"TAVC", 0, 4},  {"CMAD", 0, 31}, {"CMCK", 0, 1},  {"CMCL", 0, 1},  {"CMBR", 0, 3},
      {"CMPR", 0, 2},  {"CMSB", 1, 2},  {"CMDB", 7, 8},  {"CMDR", 0, 15}, {"CMI3", 0, 5},
      {"ORI3", 0, 1},  {"OMON", 0, 1},  {"PYDT", 0, 1},  {"RSPL", 1, 50}, {"MOMD", 0, 1},
      {"LOUT", 0, 20}, {"LLOU", 0, 20}, {"LTRE", 0, 20}, {"LBAS", 0, 20}, {"LMP3", 0, 20},
      {"LLIN", 0, 20}, {"LLI2", 0, 20}, {"MOMN", 0, 1},  {"IMOD", 0, 1},  {"MICP", 0, 1},
      {"MIRS", 0, 1},  {"INVR", 0, 1},  {"TFOU", 1, 30}, {"TFIN", 1, 30}, {"TADU", 1, 30}};
  for (const auto& [key, first, last] : rows) {
    for (int value = -1; value <= 60; ++value) {
      EXPECT_EQ(ValoreAccettato(Find(key), std::to_string(value)).has_value(),
                value >= first && value <= last)
          << key << "=" << value;
    }
  }
}

TEST(Parameters, ASliderKeepsItsPlaceWhereTheFileLiesOutsideItsScale) {
  for (const char* key : {"LOUT", "LLOU", "LTRE", "LBAS", "LMP3", "LLIN", "LLI2"}) {
    const StatoParametro form = StatoIniziale(Find(key));
    EXPECT_EQ(FromFile(key, "21"), form) << key;
    EXPECT_EQ(FromFile(key, "-1"), form) << key;
    EXPECT_EQ(FromFile(key, "20").Numero, 20) << key;
    EXPECT_EQ(FromFile(key, "0").Numero, 0) << key;
  }
}

TEST(Parameters, TheTableListsHoldTheirThirteenValues) {
  const std::set<int> pydl{0, 1, 2, 3, 4, 5, 10, 20, 30, 60, 120, 180, 240};
  const std::set<int> tapl{0, 1, 2, 3, 4, 5, 6, 12, 18, 30, 60, 180, 240};
  for (int value = 0; value <= 300; ++value) {
    const auto text = std::to_string(value);
    EXPECT_EQ(ValoreAccettato(Find("PYDL"), text).has_value(), pydl.contains(value)) << value;
    EXPECT_EQ(ValoreAccettato(Find("TAPL"), text).has_value(), tapl.contains(value)) << value;
  }
}

TEST(Parameters, ATpcmOfZerosTurnsTheOptionOnAndLeavesTheBox) {
  EXPECT_EQ(FromFile("TPCM", "00"), (StatoParametro{1, "0"}));
}

TEST(Parameters, EachModelReachesItsOwn) {
  const auto reach = [](const char* key, std::int16_t type, std::int16_t mode) {
    return Raggiungibile(Find(key), type, mode);
  };
  for (const std::int16_t type : std::initializer_list<std::int16_t>{1, 2, 3, 4}) {
    for (std::int16_t mode = 1; mode <= 9; ++mode) {
      for (const auto* key : {"LOUT", "LLOU", "LTRE", "LBAS", "LMP3", "LLIN", "LLI2", "TFOU",
                              "TFIN", "TADU", "TAVC"}) {
        EXPECT_TRUE(reach(key, type, mode)) << key;
      }
      EXPECT_EQ(reach("MOMN", type, mode), type == 1);
      for (const auto* key : {"IMOD", "MICP", "MIRS"}) {
        EXPECT_EQ(reach(key, type, mode), type != 4 || mode == 1) << key;
      }
      EXPECT_EQ(reach("TPCM", type, mode), type != 4 || mode != 2);
      for (const auto* key : {"OMON", "INVR", "MOMD"}) EXPECT_EQ(reach(key, type, mode), type == 4);
      for (const auto* key : {"PYDT", "PYDL", "TAPL", "RSPL"}) {
        EXPECT_EQ(reach(key, type, mode), type == 4 && mode == 1) << key;
      }
      for (const auto* key : {"MPLL", "CMAD", "CMCK", "CMCL", "CMBR", "CMPR", "CMSB", "CMDB",
                              "CMDR", "CMI3", "ORI3"}) {
        EXPECT_FALSE(reach(key, type, mode)) << key;
      }
    }
  }
  EXPECT_FALSE(reach("LOUT", 0, 1));
  EXPECT_FALSE(reach("LOUT", 5, 1));
}

TEST(Parameters, AGivenValueMustFitItsControl) {
  const auto accepted = [](const char* key, const char* value) {
    return ValoreAccettato(Find(key), value).value_or("refused");
  };
  EXPECT_EQ(accepted("LOUT", "0"), "0");
  EXPECT_EQ(accepted("LOUT", "20"), "20");
  EXPECT_EQ(accepted("LOUT", "05"), "5");
  for (const auto* bad : {"21", "-1", "", "x", "1.5", " 1", "+1", "99999999999999999999"}) {
    EXPECT_EQ(accepted("LOUT", bad), "refused") << bad;
  }
  EXPECT_EQ(accepted("TPCM", "007"), "007") << "the box holds its text as it stands";
  EXPECT_EQ(accepted("TPCM", "255"), "255");
  EXPECT_EQ(accepted("TPCM", "256"), "refused");
  EXPECT_EQ(accepted("TFIN", "30"), "30");
  EXPECT_EQ(accepted("TFIN", "0"), "refused");
  EXPECT_EQ(accepted("TFIN", "31"), "refused");
  EXPECT_EQ(accepted("PYDL", "240"), "240");
  EXPECT_EQ(accepted("PYDL", "15"), "refused");
  EXPECT_EQ(accepted("RSPL", "0"), "refused");
  EXPECT_EQ(accepted("IMOD", "1"), "1");
  EXPECT_EQ(accepted("IMOD", "2"), "refused");
}

}  // namespace
}  // namespace kvr5
