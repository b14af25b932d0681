#include "core/screens/frmMain.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;

class Menu : public ProvaForm<frmMain> {};

TEST_F(Menu, ItsLoadForgetsProjectAndCardAndLeavesThePlainPointer) {
  b.C.Stato.PlayerType = 1;
  b.C.Stato.PercorsoMemoryCard = "D:\\";
  Apri();
  EXPECT_EQ(b.C.Stato.PlayerType, 0);
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "");
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(Menu, SpeaksTheLanguage) {
  frmMain& form = Apri();
  EXPECT_EQ(form.windowTitle(), "KVR5 Software Configuration");
  EXPECT_EQ(Scritta(form, "lblNuovoProgetto"), "New project");
  EXPECT_EQ(Scritta(form, "lblCaricaDaDisco"), "Open project");
  EXPECT_EQ(Scritta(form, "lblUscita"), "Exit");
  EXPECT_EQ(Scritta(form, "lblConfigurazione"), "Folders and settings");
}

TEST_F(Menu, WithoutALanguageItKeepsItsBuiltInCaptions) {
  b.C.Stato.FileLingua = b.Percorso("gone.lan");
  frmMain& form = Apri();
  EXPECT_EQ(form.windowTitle(), "KVR5 Software Configuration");
  EXPECT_EQ(Scritta(form, "lblNuovoProgetto"), "New Project");
  EXPECT_EQ(Scritta(form, "lblCaricaDaDisco"), "Open Project from disc");
  EXPECT_EQ(Scritta(form, "lblUscita"), "Exit");
  EXPECT_EQ(Scritta(form, "lblConfigurazione"), "Config");
}

TEST_F(Menu, ANewProjectIsAKvr5AndTheMenuStaysLoadedUnseen) {
  frmMain& form = Apri();
  b.Schermi.SuMostra = [&](Schermata) {
    EXPECT_TRUE(PuntatoreOccupato());
    EXPECT_EQ(b.C.Stato.PlayerType, 4);
    EXPECT_EQ(b.C.Stato.PlayerName, "KVR5");
  };
  Clicca(form, "picNuovoProgetto");
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Wizard});
  EXPECT_TRUE(forma.Caricata());
  EXPECT_FALSE(form.isVisible());
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(Menu, StaysWhenTheWizardIsLeftWhileItsEventsRun) {
  frmMain& form = Apri();
  b.Schermi.SuMostra = [&](Schermata) { forma->Mostra(); };  // as the wizard does when it goes
  Clicca(form, "picNuovoProgetto");
  EXPECT_TRUE(form.isVisible());
}

TEST_F(Menu, OpeningStandsOutOnceThereIsAProjectElseTheNewOne) {
  frmMain& form = Apri();
  const auto filled = [](const Coppia& card) {
    return card.GenereOra() == Coppia::Genere::CartaPrimaria;
  };
  EXPECT_TRUE(filled(*form.picNuovoProgetto));
  EXPECT_FALSE(filled(*form.picCaricaDaDisco));
  b.C.Stato.CartellaProgetti = b.Percorso("program/Projects");
  b.Cartella.Write("program/Projects/Hall/Config.cfg", "");
  b.Cartella.Write("program/Projects/Hall/Config.txt", "");
  form.Nascondi();
  form.Mostra();
  EXPECT_FALSE(filled(*form.picNuovoProgetto));
  EXPECT_TRUE(filled(*form.picCaricaDaDisco));
}

TEST_F(Menu, ShownAgainAfterAnAbandonedProjectItIsNotLoadedAndTheTypeStays) {
  Clicca(Apri(), "lblNuovoProgetto");
  Apri();
  EXPECT_EQ(b.C.Stato.PlayerType, 4);
  forma->Scarica();
  Apri();
  EXPECT_EQ(b.C.Stato.PlayerType, 0) << "loaded afresh";
}

TEST_F(Menu, OpeningNamesItselfAsCallerAndGoes) {
  Clicca(Apri(), "picCaricaDaDisco");
  EXPECT_EQ(b.Schermi.ElenchiPer, std::vector{Schermata::Menu});
  EXPECT_FALSE(forma.Caricata());
}

TEST_F(Menu, TheSettingsComeAndItGoes) {
  Clicca(Apri(), "lblConfigurazione");
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Impostazioni});
  EXPECT_FALSE(forma.Caricata());
}

TEST_F(Menu, ExitUnloadsItAndAsTheLastFormItEndsTheProcess) {
  Clicca(Apri(), "picEsci");
  EXPECT_FALSE(forma.Caricata());
  EXPECT_EQ(b.UltimeScaricate, 1);
  EXPECT_TRUE(b.Schermi.Mostrate.empty());
}

TEST_F(Menu, TheWindowsOwnButtonEndsTheProcessToo) {
  Apri().close();
  EXPECT_EQ(b.UltimeScaricate, 1);
}

TEST_F(Menu, F1AndThePictureOpenTheLanguagesHelp) {
  frmMain& form = Apri();
  Tasto(form, Qt::Key_F1);
  EXPECT_EQ(b.Documenti.Aperti, std::vector{b.Percorso("program\\Help\\English.htm")});
  Clicca(form, "picHelp");
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(Menu, ALanguageWithoutAHelpDocumentOpensTheFolder) {
  b.Cartella.Write("program/Language/Prova.lan", "[Strings]\r\n");
  b.C.Stato.FileLingua = b.Percorso("program/Language/Prova.lan");
  Tasto(Apri(), Qt::Key_F1);
  EXPECT_EQ(DocumentoDiAiuto(), b.Percorso("program\\Help\\"));
}

TEST_F(Menu, TheLogoDoesNothing) {
  frmMain& form = Apri();
  Clicca(form, "imgUpFrameLogo");
  EXPECT_TRUE(form.isVisible());
  EXPECT_TRUE(b.Schermi.Mostrate.empty());
  EXPECT_TRUE(b.Documenti.Aperti.empty());
}

TEST_F(Menu, EnterDoesWhatStandsOut) {
  frmMain& form = Apri();
  EXPECT_TRUE(form.picNuovoProgetto->hasFocus());
  Tasto(form, Qt::Key_Return);
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Wizard});
  b.CreaProgetto("Hall", 4, 1);
  Apri();
  EXPECT_EQ(form.focusWidget(), form.picCaricaDaDisco) << "it moved while the menu was hidden";
  forma->Scarica();
  Tasto(Apri(), Qt::Key_Return);
  EXPECT_EQ(b.Schermi.ElenchiPer, std::vector{Schermata::Menu}) << "at the load too";
  EXPECT_EQ(b.Schermi.Mostrate.size(), 1U);
}

TEST_F(Menu, ShownAgainItLeavesTheKeyboardWhereItWas) {
  frmMain& form = Apri();
  form.picConfig->setFocus();
  form.Nascondi();
  EXPECT_EQ(Apri().focusWidget(), form.picConfig);
}

}  // namespace
}  // namespace kvr5
