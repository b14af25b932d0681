#include <gtest/gtest.h>

#include "cli/Compagno.h"

// A program folder that no path of the system can name.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using test::Compagno;

TEST(ProgramFolder, OfANameThatCannotHoldTheProgramIsToldWithStatus3) {
  const Compagno k;
  for (const char* name : {"a|b", "a:b", "a\\b", "a*b", "a?b", "a|b/below", "a\xE0z"}) {
    fs::create_directories(k.Cartella.Host() / name);
    const auto run = k.Esegui({"--program", k.Host(name), "projects"});
    EXPECT_EQ(run.Stato, 3) << name;
    EXPECT_EQ(run.Uscita, "") << name;
    EXPECT_NE(run.Errori.find("a folder of this name can't hold the program"), std::string::npos)
        << run.Errori;
    EXPECT_NE(run.Errori.find(k.Host(name)), std::string::npos) << run.Errori;
    EXPECT_EQ(run.Righe().size(), 0U);
    EXPECT_TRUE(fs::is_empty(k.Cartella.Host() / name)) << name;
    const auto told = k.EseguiJson({"--program", k.Host(name), "projects"});
    EXPECT_EQ(told.Box().size(), 1U) << name;
  }
}

TEST(ProgramFolder, IsToldSoWhereTheCompanionItselfLiesInOne) {
  Compagno k;
  const fs::path folder = k.Cartella.Host() / "a|b";
  fs::create_directories(folder);
  fs::copy_file(k.Inizio[0], folder / "kvr5card");
  k.Inizio = {(folder / "kvr5card").string()};
  const auto run = k.Esegui({"projects"});
  EXPECT_EQ(run.Stato, 3);
  EXPECT_NE(run.Errori.find(folder.string() + ": a folder of this name can't hold the program"),
            std::string::npos)
      << run.Errori;
}

}  // namespace
}  // namespace kvr5
