#include <gtest/gtest.h>

#include "core/Aiuti.h"
#include "playerconfig/Parametri.h"
#include "support/Banco.h"

// The words that the screens show for the parameters' values.

namespace kvr5 {
namespace {

using test::Banco;
using Items = std::vector<std::string>;

class ParameterWords : public testing::Test {
 protected:
  /// What is shown after `text` was read from the file.
  std::string Words(std::string_view key, std::string_view text) {
    const auto* parameter = TrovaParametro(key);
    EXPECT_NE(parameter, nullptr) << key;
    return ParoleDelValore(b.C, *parameter,
                           DalFile(*parameter, text, StatoIniziale(*parameter), Locale()));
  }
  /// What is shown for each value that a list or option can hold, in their order.
  Items All(std::string_view key) {
    Items items;
    const auto* parameter = TrovaParametro(key);
    for (int value = parameter->Minimo; value <= parameter->Massimo; ++value) {
      const auto text = std::to_string(value);
      if (ValoreAccettato(*parameter, text)) items.push_back(Words(key, text));
    }
    return items;
  }
  /// A language whose every text of a screen is its key in brackets.
  void LanguageOfKeys(std::string_view screen) {
    std::string texts = "[Strings]\r\n";
    for (int number = 1; number <= 99; ++number) {
      const auto key = std::string(screen) + RiempiZeri(std::to_string(number), 4);
      texts += key + "=<" + key + ">\r\n";
    }
    b.Cartella.Write("program/Language/Keys.lan", texts);
    b.C.Stato.FileLingua = b.Percorso("program/Language/Keys.lan");
  }
  /// A run of such texts, alone or behind a number that counts up with them.
  static Items Run(int first, int count, int numberedFrom = -1) {
    Items items;
    for (int i = 0; i < count; ++i) {
      const auto text = "<" + RiempiZeri(std::to_string(first + i), 7) + ">";
      items.push_back(numberedFrom < 0 ? text : std::to_string(numberedFrom + i) + " - " + text);
    }
    return items;
  }

  Banco b;
};

TEST_F(ParameterWords, LevelsAreThoseOfTheirScales) {
  EXPECT_EQ(Words("LOUT", "14"), "0 dB");
  EXPECT_EQ(Words("LOUT", "0"), "OFF");
  EXPECT_EQ(Words("LLOU", "1"), "+0.5 dB");
  EXPECT_EQ(Words("LTRE", "0"), "-12");
  EXPECT_EQ(Words("LBAS", "20"), "+12 dB");
  EXPECT_EQ(Words("LBAS", "10"), "0 dB");
  EXPECT_EQ(Words("LMP3", "20"), "200%");
  EXPECT_EQ(Words("LMP3", "0"), "OFF");
  EXPECT_EQ(Words("LLIN", "1"), "-55 dB");
  EXPECT_EQ(Words("LLI2", "20"), "+12 dB");
  EXPECT_EQ(Words("LLI2", "0"), "OFF");
}

TEST_F(ParameterWords, OptionsShowTheirCaptionsOnAndOff) {
  EXPECT_EQ(Words("MOMN", "1"), "ON");
  EXPECT_EQ(Words("MOMN", "0"), "OFF");
  EXPECT_EQ(Words("IMOD", "0"), "0 - active high");
  EXPECT_EQ(Words("IMOD", "1"), "1 - active low");
  EXPECT_EQ(Words("MICP", "1"), "1 - Continuos play / loop");
  EXPECT_EQ(Words("MICP", "0"), "0");
  EXPECT_EQ(Words("MIRS", "1"), "1 - Restart");
  EXPECT_EQ(Words("MIRS", "0"), "1 - Restart") << "what the screen shows";
  EXPECT_EQ(Words("INVR", "1"), "ON");
  EXPECT_EQ(Words("INVR", "0"), "OFF");
}

TEST_F(ParameterWords, LoopModesShowOtherNumbersThanTheFileHolds) {
  const auto& mpll = *TrovaParametro("MPLL");
  EXPECT_EQ(ParoleDelValore(b.C, mpll, {5, {}}), "8 - Loop");
  EXPECT_EQ(ParoleDelValore(b.C, mpll, {6, {}}), "9 - No loop");
}

TEST_F(ParameterWords, TimesShowTheirBoxAndUnit) {
  EXPECT_EQ(Words("TPCM", "0"), "OFF");
  EXPECT_EQ(Words("TPCM", "50"), "50 Millisecond");
  EXPECT_EQ(Words("TPCM", "255"), "255 Millisecond");
  EXPECT_EQ(Words("TFOU", "5"), "5 Sec");
  EXPECT_EQ(Words("TFIN", "1"), "1 Sec");
  EXPECT_EQ(Words("TADU", "30"), "30 Sec");
  EXPECT_EQ(Words("TADU", ""), "1 Sec") << "the check of an empty box";
}

TEST_F(ParameterWords, ReactionTimesDouble) {
  EXPECT_EQ(All("TAVC"),
            (Items{"0 - off", "2/10 of a second", "2 seconds", "4 seconds", "8 seconds"}));
}

TEST_F(ParameterWords, SerialPortListsNumberTheirItems) {
  EXPECT_EQ(Words("CMAD", "0"), "0");
  EXPECT_EQ(Words("CMAD", "7"), "7");
  EXPECT_EQ(Words("CMAD", "31"), "31");
  EXPECT_EQ(All("CMCK"), (Items{"0 - Checksum off", "1 - Checksum on"}));
  EXPECT_EQ(All("CMCL"), (Items{"0 - CR LF off", "1 - CR LF on"}));
  EXPECT_EQ(All("CMBR"), (Items{"0 - 1200 bps", "1 - 2400 bps", "2 - 4800 bps", "3 - 9600 bps"}));
  EXPECT_EQ(All("CMPR"), (Items{"0 - no parity", "1 - odd parity", "2 - even parity"}));
  EXPECT_EQ(All("CMSB"), (Items{"1 - 1 StopBits", "2 - 2 StopBits"}));
  EXPECT_EQ(All("CMDB"), (Items{"7 - 7 Bits", "8 - 8 Bits"}));
  EXPECT_EQ(Words("CMDR", "0"), "0 - shortest delay, 4 ms");
  EXPECT_EQ(Words("CMDR", "1"), "1 - delay 10 ms");
  EXPECT_EQ(Words("CMDR", "15"), "15 - delay 150 ms");
}

TEST_F(ParameterWords, SecondSerialPageNumbersItsItems) {
  EXPECT_EQ(All("CMI3"), (Items{"0 - not used", "1 - pulse at the start of a file",
                                "2 - pulse at the end of a file", "3 - closed while a file plays",
                                "4 - by serial command", "5 - closed while the player is on"}));
  EXPECT_EQ(All("ORI3"), (Items{"0 - normally open", "1 - normally closed"}));
}

TEST_F(ParameterWords, ExtraScreenNumbersItsOptionsAndNotItsTableValues) {
  EXPECT_EQ(All("OMON"), (Items{"0 - always on", "1 - on while a file plays"}));
  EXPECT_EQ(All("PYDT"), (Items{"0 - motion sensor off", "1 - motion sensor on"}));
  EXPECT_EQ(All("MOMD"), (Items{"0 - normal", "1 - mono"}));
  EXPECT_EQ(All("PYDL"), (Items{"no delay", "1 second", "2 seconds", "3 seconds", "4 seconds",
                                "5 seconds", "10 seconds", "20 seconds", "30 seconds", "60 seconds",
                                "120 seconds", "180 seconds", "240 seconds"}));
  EXPECT_EQ(All("TAPL"), (Items{"no pause", "1 second", "2 seconds", "3 seconds", "4 seconds",
                                "5 seconds", "6 seconds", "12 seconds", "18 seconds", "30 seconds",
                                "60 seconds", "180 seconds", "240 seconds"}));
  const Items detections = All("RSPL");
  ASSERT_EQ(detections.size(), 50U);
  EXPECT_EQ(detections[0], "1 detection");
  for (std::size_t i = 1; i < 50; ++i) {
    EXPECT_EQ(detections[i], std::to_string(i + 1) + " detections");
  }
}

TEST_F(ParameterWords, SerialListsTakeTheirOwnRunsOfTexts) {
  LanguageOfKeys("011");
  EXPECT_EQ(All("CMCK"), (Items{"0 - Checksum <0110012>", "1 - Checksum <0110013>"}));
  EXPECT_EQ(All("CMCL"), (Items{"0 - CR LF <0110012>", "1 - CR LF <0110013>"}));
  EXPECT_EQ(All("CMPR"), Run(110014, 3, 0));
  EXPECT_EQ(Words("CMDR", "0"), "0 - <0110017> 4 ms");
  EXPECT_EQ(Words("CMDR", "2"), "2 - <0110018> 20 ms");
  EXPECT_EQ(All("CMI3"), Run(110024, 6, 0));
  EXPECT_EQ(All("ORI3"), Run(110031, 2, 0));
}

TEST_F(ParameterWords, ExtraListsTakeTheirOwnRunsOfTexts) {
  LanguageOfKeys("019");
  EXPECT_EQ(All("OMON"), Run(190002, 2, 0));
  EXPECT_EQ(All("PYDT"), Run(190013, 2, 0));
  EXPECT_EQ(All("PYDL"), Run(190015, 13));
  EXPECT_EQ(All("TAPL"), Run(190028, 13));
  EXPECT_EQ(All("RSPL"), Run(190041, 50));
  EXPECT_EQ(All("MOMD"), Run(190091, 2, 0));
}

TEST_F(ParameterWords, ReactionTimesTakeTheirOwnTexts) {
  LanguageOfKeys("017");
  EXPECT_EQ(All("TAVC"), (Items{"0 - <0170005>", "2/10 <0170011>", "2 <0170010>", "4 <0170010>",
                                "8 <0170010>"}));
}

TEST_F(ParameterWords, EveryItemOfEveryListHasItsTextInBothLanguages) {
  for (const auto* language : {"English.lan", "Italiano.lan"}) {
    b.C.Stato.FileLingua = b.Percorso(std::string("program/Language/") + language);
    for (const auto& parameter : Parametri()) {
      for (int value = parameter.Minimo; value <= parameter.Massimo; ++value) {
        const auto text = std::to_string(value);
        if (!ValoreAccettato(parameter, text)) continue;
        const auto state = DalFile(parameter, text, StatoIniziale(parameter), Locale());
        const auto words = ParoleDelValore(b.C, parameter, state);
        EXPECT_FALSE(words.empty() || words.ends_with("- ") || words.ends_with(" "))
            << language << " " << parameter.Chiave << "=" << value << ": " << words;
      }
    }
  }
}

}  // namespace
}  // namespace kvr5
