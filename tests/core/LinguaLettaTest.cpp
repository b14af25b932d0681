#include <gtest/gtest.h>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/LinguaLetta.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

class LanguageReadOnce : public testing::Test {
 protected:
  void Language(const std::string& content) {
    b.Cartella.Write("program/Language/Odd.lan", content);
    b.C.Stato.FileLingua = b.Percorso("program/Language/Odd.lan");
  }
  /// A key's text by a reading of its own, and from one reading for all.
  void ExpectSame(std::string_view key) {
    const std::string alone = TestoLingua(b.C, key);
    const LinguaLetta once(b.C);
    EXPECT_EQ(TestoLingua(b.C, key), alone) << key;
  }
  test::Banco b;
};

TEST_F(LanguageReadOnce, GivesEachTextOfTheLanguagesAsAReadingOfItsOwnDoes) {
  for (const char* language : {"English.lan", "Italiano.lan"}) {
    b.C.Stato.FileLingua = b.Percorso(std::string("program/Language/") + language);
    for (const char* form : {"004", "011", "017", "019"}) {
      for (int tag = 0; tag <= 100; ++tag) ExpectSame(form + RiempiZeri(std::to_string(tag), 4));
    }
  }
}

TEST_F(LanguageReadOnce, KeepsTheRulesOfOddFiles) {
  Language(
      "0010001=before the section\r\n[Other]\r\n0010001=other\r\n[strings]\r\n; 0010002=no\r\n"
      "0010001=first\r\n0010001=second\r\n  0010003  =  \"quoted \"  \r\n0010004\r\n"
      "0010004=after a line without a value\r\n0010005=\r\n0010006='x'\n0010007=" +
      std::string(300, 'w') + "\r\n0010008=caf\xE9=\x80\r\n[Strings]\r\n0010009=twice\r\n");
  for (int i = 1; i <= 10; ++i) ExpectSame("00100" + RiempiZeri(std::to_string(i), 2));
  for (const char* key : {"", " 0010001 ", "0010001=", "x", "[Strings]"}) ExpectSame(key);
}

TEST_F(LanguageReadOnce, ReadsAFileOfUtf16AndOneWithoutTheSection) {
  Language(
      std::string("\xFF\xFE[\0S\0t\0r\0i\0n\0g\0s\0]\0\n\0"
                  "1\0=\0a\0",
                  28));
  ExpectSame("1");
  Language("nothing here\r\n");
  ExpectSame("0010001");
  b.C.Stato.FileLingua = b.Percorso("program/Language/none.lan");
  ExpectSame("0010001");
}

TEST_F(LanguageReadOnce, ForgetsTheFileWhenItGoes) {
  Language("[Strings]\r\n0010001=one\r\n");
  {
    const LinguaLetta once(b.C);
    EXPECT_EQ(TestoLingua(b.C, "0010001"), "one");
    b.Cartella.Write("program/Language/Odd.lan", "[Strings]\r\n0010001=two\r\n");
    EXPECT_EQ(TestoLingua(b.C, "0010001"), "one");
    b.C.Stato.FileLingua = b.Percorso("program/Language/English.lan");
    EXPECT_EQ(TestoLingua(b.C, "0110004"), "Use 485") << "another language is read";
    b.C.Stato.FileLingua = b.Percorso("program/Language/Odd.lan");
  }
  EXPECT_EQ(TestoLingua(b.C, "0010001"), "two");
  EXPECT_EQ(LinguaLetta::Per(b.C), nullptr);
}

}  // namespace
}  // namespace kvr5
