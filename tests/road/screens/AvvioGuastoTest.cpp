#include <filesystem>

#include "core/screens/RiquadroMessaggio.h"
#include "road/screens/BancoProgramma.h"

// Starts that can't come to a screen, and a settings file that goes while the program runs.

namespace kvr5 {
namespace {

using namespace test;
namespace fs = std::filesystem;

class AvvioGuasto : public BancoProgramma {
 protected:
  /// Starts a program that lies in a folder of this name, and reads the one box that it shows.
  std::string DiceDa(const std::string& name) {
    const fs::path folder = b.Cartella.Host() / name;
    fs::create_directories(folder);
    std::string said;
    const Pilota<RiquadroMessaggio> pilot([&said](RiquadroMessaggio& box) {
      said = Scritta(box, "lblTitolo") + "\n" + Scritta(box, "lblTesto");
      Clicca(box, "cmdOk");
    });
    Programma start(folder.string(), fine);
    EXPECT_FALSE(start.Avvia({}));
    EXPECT_EQ(Viste(), std::vector<std::string>());
    EXPECT_TRUE(fs::is_empty(folder)) << "nothing was made";
    return said;
  }
};

TEST_F(AvvioGuasto, InAFolderThatNoPathCanNameItSaysSoInOneBoxAndDoesNotBegin) {
  for (const char* name : {"pro|gram", "pro:gram", "pro\\gram", "pro*gram", "pro?gram"}) {
    const std::string said = DiceDa(name);
    EXPECT_TRUE(said.starts_with("The program can't work in this folder\n")) << said;
    EXPECT_NE(said.find("| : \\ * ?"), std::string::npos) << said;
    EXPECT_NE(said.find((b.Cartella.Host() / name).string()), std::string::npos) << said;
  }
}

TEST_F(AvvioGuasto, SoItDoesInAFolderBelowOne) {
  const std::string said = DiceDa("a|b/program");
  EXPECT_NE(said.find("a|b/program"), std::string::npos) << said;
}

TEST_F(AvvioGuasto, AndInOneWhoseNameIsNoUtf8) {
  const std::string said = DiceDa("pro\xE0gram");
  EXPECT_TRUE(said.starts_with("The program can't work in this folder\n")) << said;
}

TEST_F(AvvioGuasto, AndInOneWhoseNameTheToolkitCouldNotRead) {
  fs::create_directories(b.Cartella.Host() / "pro\xE0gram");
  const Pilota<RiquadroMessaggio> pilot([](RiquadroMessaggio& box) { Clicca(box, "cmdOk"); });
  Programma start((b.Cartella.Host() / "pro\xEF\xBF\xBDgram").string(), fine);
  EXPECT_FALSE(start.Avvia({})) << "the sign of an unreadable letter stands in its name";
}

TEST_F(AvvioGuasto, SettingsDeletedWhileTheirScreenIsOpenAreMadeAfreshWhenItIsLeft) {
  ScriviImpostazioni();
  Avvia("/C");
  PassaLoSplash();
  auto& settings = Attendi<frmConfig>();
  fs::remove(b.Cartella.Host() / "program/KVR5Software.ini");
  Clicca(*settings.optExternal);
  {
    const Pilota<RiquadroMessaggio> pilot([](RiquadroMessaggio& box) { Clicca(box, "cmdOk"); });
    Clicca(*settings.cmdSave);
  }
  EXPECT_FALSE(b.Cartella.Exists("program/KVR5Software.ini")) << "a write makes no file";
  {
    const Pilota<RiquadroMessaggio> pilot([](RiquadroMessaggio& box) {
      EXPECT_EQ(Scritta(box, "lblTitolo"), "Configuration file not found");
      Clicca(box, "cmdOk");
    });
    Clicca(*settings.cmdExit);
  }
  PassaLoSplash();
  Attendi<frmMain>();
  const std::string made = b.Cartella.Read("program/KVR5Software.ini");
  EXPECT_TRUE(made.starts_with("[Config]")) << made;
  EXPECT_NE(made.find("UseExternalPlayer=0"), std::string::npos) << "what was chosen is lost";
}

using AvvioGuastoDeathTest = AvvioGuasto;

TEST_F(AvvioGuastoDeathTest, WhereNoSettingsCanBeMadeItSaysSoTwiceAndEndsBeforeAnyScreen) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  fs::create_directories(b.Cartella.Host() / "program/KVR5Software.ini");
  const auto start = [this] {
    const auto read = [](RiquadroMessaggio& box) {
      std::fputs((Scritta(box, "lblTesto") + ";").c_str(), stderr);
      Clicca(box, "cmdOk");
    };
    const Pilota<RiquadroMessaggio> first(read);
    const Pilota<RiquadroMessaggio> second(read);
    Avvia();
  };
  EXPECT_EXIT(
      start(),
      testing::ExitedWithCode(ProcessoCheFinisce::Codice(MotivoFine::ImpostazioniNonCreabili)),
      "File will be created;.*Program will be ended;the program ended at once");
}

}  // namespace
}  // namespace kvr5
