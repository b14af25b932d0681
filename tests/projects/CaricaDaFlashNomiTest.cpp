// The name that a card gives its project, and what no name can do.
#include <random>

#include "BancoLettura.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using test::Albero;
using test::Cambiati;
using test::Lettura;
using Names = std::vector<std::string>;

class LetturaNomi : public Lettura {
 protected:
  /// A card with this name is refused with error 52, asks nothing and makes nothing.
  void ExpectRefused(const std::string& name) {
    SCOPED_TRACE(testing::PrintToString(name));
    Descriptor(name);
    const Albero before = Tree(true);
    const auto outcome = Read();
    EXPECT_EQ(outcome.Fine, FineLettura::SenzaCartella);
    EXPECT_EQ(outcome.Cartella, "");
    ExpectNoFolder(errors::BadFileName);
    EXPECT_TRUE(screen.Asked.empty());
    EXPECT_TRUE(screen.Enabled);
    EXPECT_EQ(Cambiati(before, Tree(true)), Names{});
  }
};

TEST_F(LetturaNomi, ALetterOfTheCodePageIsOneOfTheFolder) {
  Descriptor("Caff\xE8 \xDF \x80");
  EXPECT_EQ(Read().Cartella, b.Percorso("program/Projects/Caffè ß €"));
  EXPECT_TRUE(Made("Caffè ß €/Config.cfg"));
  EXPECT_EQ(s.ProjectName, "Caffè ß €");
}

TEST_F(LetturaNomi, TheCodePageIsTheHosts) {
  b.C.Luogo.AnsiCodePage = 1251;
  Descriptor("\xC7\xE0\xEB");
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  EXPECT_TRUE(Made("Зал/Config.cfg"));
}

TEST_F(LetturaNomi, OfALongNameNinetyNineCharactersCount) {
  Descriptor(std::string(98, 'n') + "\xE8" + std::string(201, 'm'));
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  EXPECT_TRUE(Made(std::string(98, 'n') + "è/Config.cfg"));
  EXPECT_EQ(s.ProjectName, std::string(98, 'n') + "è");
}

TEST_F(LetturaNomi, APathIsNoName) {
  b.Cartella.Write("x/Config.txt", "a project beside the projects folder");
  for (const char* name :
       {"..", ".", "...", "..\\..\\x", "..\\Projects", "..\\..\\card", "a/b", "a\\b", "/etc", "\\x",
        "C:\\x", "C:x", "C:", "../../x", "\\\\server\\share", "..\\..\\new", "\\\\?\\C:\\x"}) {
    ExpectRefused(name);
  }
  ExpectRefused(b.Percorso("new"));
  ExpectRefused((b.Cartella.Host() / "new").string());
}

TEST_F(LetturaNomi, ADeviceIsNoName) {
  for (const char* name : {"NUL", "con", "con.txt", "AUX", "prn.x.y", "COM1", "lpt9.cfg", "com\xB9",
                           "CONIN$", "nul .txt"}) {
    ExpectRefused(name);
  }
}

TEST_F(LetturaNomi, WhatAFolderCannotEndInIsNoName) {
  for (const char* name : {"Hall.", "Hall..", "\"Hall \"", "\"Hall .\"", "\" \""}) {
    ExpectRefused(name);
  }
}

TEST_F(LetturaNomi, ACharacterThatNoFolderHasIsNoName) {
  for (const char* name : {"a*b", "a?b", "a|b", "a<b", "a>b", "a:b", "a\"b", "*.*", "?"}) {
    ExpectRefused(name);
  }
  for (char c = 1; c < 0x20; ++c) {
    if (c != '\n' && c != '\r') ExpectRefused(std::string("a") + c + "b");
  }
}

TEST_F(LetturaNomi, ALineEndsAtItsEndWhateverFollows) {
  Descriptor("Hall\nProjectName=..\\x");
  EXPECT_EQ(Read().Fine, FineLettura::Copiata);
  EXPECT_TRUE(Made("Hall"));
}

TEST_F(LetturaNomi, NamesWithOddButGoodCharactersAreKept) {
  for (const char* name : {"a'b;c", "%TEMP%", "$(x)", "~", "-rf", ".hidden", "a b", "CONSOLE",
                           "com", "com0x", "a..b"}) {
    SCOPED_TRACE(name);
    Descriptor(name);
    EXPECT_EQ(Read().Fine, FineLettura::Copiata);
    EXPECT_TRUE(Made(std::string(name) + "/Config.cfg"));
  }
}

TEST_F(LetturaNomi, NoNameAtAllReachesOutOfTheProjectsFolder) {
  std::mt19937 dice(20061020);
  const std::string letters = "..\\\\//:C aN|*?\"\x01\xE8\x7F-~";
  for (int i = 0; i < 200; ++i) {
    std::string name;
    for (auto left = 1 + dice() % 12; left > 0; --left) name += letters[dice() % letters.size()];
    SCOPED_TRACE(testing::PrintToString(name));
    Descriptor(name);
    const Albero before = test::Senza(Tree(), {"program/Projects"});
    const auto outcome = Read();
    while (!b.Finestre.Silenzio()) b.Finestre.Prossimo();
    EXPECT_EQ(Cambiati(before, test::Senza(Tree(), {"program/Projects"})), Names{});
    const auto made = std::distance(fs::directory_iterator(Host("program/Projects")), {});
    EXPECT_EQ(made, outcome.Fine == FineLettura::Copiata ? 1 : 0);
    fs::remove_all(Host("program/Projects"));
    fs::create_directories(Host("program/Projects"));
  }
}

}  // namespace
}  // namespace kvr5
