#include <gtest/gtest.h>

#include <vector>

#include "core/Main.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

/// The screens of a start: what they were asked, and the look of the program at that moment.
class ScreensOfTest : public SchermateAvvio {
 public:
  explicit ScreensOfTest(Banco& bench) : b(bench) {}

  void MostraSplash(Schermata successivo) override {
    Next.push_back(successivo);
    Steps += "splash(" + State() + ") ";
  }
  void AvviaTempoSplash() override { Steps += "timer(" + State() + ") "; }

  std::string State() const {
    std::string state = b.C.Stato.FileLingua.empty() ? "" : "language";
    if (b.Messaggi.Volte > 0) state += "+events";
    if (b.Cartella.Exists("program/Logs")) state += "+log";
    if (!b.C.Stato.CartellaProgetti.empty()) state += "+options";
    return state;
  }

  Banco& b;
  std::vector<Schermata> Next;
  std::string Steps;
};

class MainRoutine : public testing::Test {
 protected:
  void SetUp() override {
    b.Cartella.Write("program/KVR5Software.ini", "[Config]\r\nEnableDebug=1\r\n");
    b.C.Stato.FileLingua.clear();
    b.C.Stato.CartellaProgetti.clear();
  }
  Schermata Run(std::string_view commandLine) {
    Main(b.C, screens, commandLine);
    return screens.Next.back();
  }

  Banco b;
  ScreensOfTest screens{b};
};

TEST_F(MainRoutine, RunsItsStepsInTheirOrder) {
  std::filesystem::remove(b.Cartella.Host() / "program/Projects");
  Run("");
  EXPECT_EQ(screens.Steps, "splash(language) timer(language+events+log) ");
  EXPECT_EQ(b.Messaggi.Volte, 1);
  EXPECT_EQ(b.C.Stato.CartellaProgetti, b.Percorso("program") + "\\Projects");
  EXPECT_TRUE(b.Cartella.Exists("program/Projects"));
  EXPECT_TRUE(b.C.Stato.MainGiaAvviato);
}

TEST_F(MainRoutine, WithTheSwitchLeadsToTheSettingsOnce) {
  EXPECT_EQ(Run("/C"), Schermata::Impostazioni);
  EXPECT_EQ(Run("/C"), Schermata::Menu) << "leaving the settings runs it again";
  EXPECT_EQ(screens.Next.size(), 2U) << "the splash is shown each time";
}

TEST_F(MainRoutine, TakesBlanksAroundTheSwitch) {
  EXPECT_EQ(Run("  /C "), Schermata::Impostazioni);
}

TEST_F(MainRoutine, PassesOverEveryOtherArgument) {
  for (const char* line : {"", "/c", "/C x", "C", "/CC", "/C\t", "\"/C\"", "-C", "project"}) {
    b.C.Stato.MainGiaAvviato = false;
    EXPECT_EQ(Run(line), Schermata::Menu) << line;
  }
}

TEST_F(MainRoutine, ThatRanWithAnotherArgumentDoesNotObeyTheSwitchLater) {
  EXPECT_EQ(Run(""), Schermata::Menu);
  EXPECT_EQ(Run("/C"), Schermata::Menu);
}

TEST_F(MainRoutine, WithoutSettingsWarnsMakesThemAndGoesOn) {
  std::filesystem::remove(b.Cartella.Host() / "program/KVR5Software.ini");
  EXPECT_EQ(Run(""), Schermata::Menu);
  EXPECT_EQ(b.Finestre.Prossimo().Testo, "Unable to find configuration file.File will be created");
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(b.Cartella.Read("program/KVR5Software.ini"),
            "[Config]\r\nUseExternalPlayer=0\r\n[Path]\r\nProjectsDir=" + b.Percorso("program") +
                "\\Projects\r\n");
}

TEST_F(MainRoutine, WithoutALanguageEndsTheProgramBeforeAnyScreen) {
  std::filesystem::remove_all(b.Cartella.Host() / "program/Language");
  EXPECT_THROW(Run(""), test::FineDelProgramma);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Language file not found");
  EXPECT_EQ(screens.Steps, "");
}

TEST_F(MainRoutine, TakesANewLanguageBeforeTheSecondSplash) {
  Run("");
  b.Cartella.Write("program/KVR5Software.ini", "[Config]\r\nLanguageFile=Italiano.lan\r\n");
  Run("");
  EXPECT_EQ(b.C.Stato.FileLingua, b.Percorso("program") + "\\Language\\Italiano.lan");
}

TEST_F(MainRoutine, GoesOnWithAProjectsFolderThatCannotBeMade) {
  b.Cartella.Write("program/KVR5Software.ini", "[Path]\r\nProjectsDir=C:\\no\\such\\folder\r\n");
  EXPECT_EQ(Run(""), Schermata::Menu);
  EXPECT_FALSE(b.C.Errore) << b.C.Errore.Last().Description();
  EXPECT_TRUE(b.Finestre.Silenzio());
}

}  // namespace
}  // namespace kvr5
