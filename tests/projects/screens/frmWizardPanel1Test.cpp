#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <algorithm>
#include <filesystem>

#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "projects/Descrittore.h"
#include "projects/screens/NomiSenzaCartella.h"
#include "projects/screens/frmWizardPanel1.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;

class Wizard : public ProvaForm<frmWizardPanel1> {
 protected:
  Wizard() {
    b.C.Stato.PlayerName = "KVR5";
    b.C.Stato.PlayerType = 4;
  }
  void Nome(const QString& name) { Riscrivi(*forma->txtNomeProgetto, name); }
  bool Esiste(const std::string& name) const {
    return b.Cartella.Exists("program/Projects/" + name);
  }
  StatoApplicazione& s = b.C.Stato;
};

TEST_F(Wizard, ItsLoadSetsTheStateAndChoosesInputs) {
  s.PlayerConfig = 3;
  s.PlayerMode = 6;
  frmWizardPanel1& form = Apri();
  EXPECT_EQ(s.PlayerConfig, 0);
  EXPECT_EQ(s.PlayerMode, 1);
  EXPECT_TRUE(form.optPanel_1->isChecked());
  EXPECT_FALSE(form.cmbPlaylist->isEnabled());
  EXPECT_FALSE(PuntatoreOccupato());
  EXPECT_EQ(form.focusWidget(), form.txtNomeProgetto);
}

TEST_F(Wizard, SpeaksTheLanguageUnderTheProgramsName) {
  frmWizardPanel1& form = Apri();
  EXPECT_EQ(form.windowTitle(), "KVR5 Software Configuration");
  EXPECT_EQ(Scritta(form, "lblNomeProgetto"), "Write the project's name");
  EXPECT_EQ(Scritta(form, "lblSelectType"), "Choose what drives the player");
  EXPECT_EQ(form.optPanel_2->text(), "Scheduled");
  EXPECT_EQ(Scritta(form, "lblOn"), "Create project");
  EXPECT_EQ(Scritta(form, "lblNota"), "A name can't hold these characters:  \\ / : ? \" < > |");
}

TEST_F(Wizard, TheListHasItsThreeItemsWithTheirModes) {
  frmWizardPanel1& form = Apri();
  ASSERT_EQ(form.cmbPlaylist->count(), 3);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(form.cmbPlaylist->itemData(i).toInt(), 5 + i);
  EXPECT_EQ(form.cmbPlaylist->currentIndex(), 0);
  EXPECT_EQ(form.cmbPlaylist->itemText(1), "by day of the week");
}

TEST_F(Wizard, WithoutALanguageNothingOnItIsBlank) {
  b.C.Stato.FileLingua = b.Percorso("gone.lan");
  frmWizardPanel1& form = Apri();
  EXPECT_FALSE(form.windowTitle().isEmpty());
  EXPECT_EQ(Scritta(form, "lblNomeProgetto"), "Write Project Name");
  for (int i = 0; i < form.cmbPlaylist->count(); ++i) {
    EXPECT_FALSE(form.cmbPlaylist->itemText(i).isEmpty());
  }
}

TEST_F(Wizard, TheListIsEnabledForPlaylistsAlone) {
  frmWizardPanel1& form = Apri();
  Clicca(*form.optPanel_21);
  EXPECT_TRUE(form.cmbPlaylist->isEnabled());
  Clicca(*form.optPanel_2);
  EXPECT_FALSE(form.cmbPlaylist->isEnabled());
  Clicca(*form.optPanel_21);
  Clicca(*form.optPanel_1);
  EXPECT_FALSE(form.cmbPlaylist->isEnabled());
}

TEST_F(Wizard, AnInputsProjectIsMadeAndTheHubFollows) {
  frmWizardPanel1& form = Apri();
  Nome("Museum-Hall-2");
  Clicca(*form.picGoOn);
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
  EXPECT_FALSE(forma.Caricata());
  EXPECT_FALSE(PuntatoreOccupato());
  EXPECT_EQ(s.ProjectName, "Museum-Hall-2");
  EXPECT_EQ(s.CartellaProgetto, b.Percorso("program/Projects/Museum-Hall-2"));
  EXPECT_EQ(s.PlayerConfigDesc, "KVR5 (Inputs)");
  EXPECT_EQ(b.Nomi("program/Projects/Museum-Hall-2"),
            (std::vector<std::string>{"Config.cfg", "Config.txt", "KVR5.gif", "inputcfg.mdb"}));
}

TEST_F(Wizard, TheSchedulesModeIsTwoWhateverTheListShows) {
  frmWizardPanel1& form = Apri();
  Clicca(*form.optPanel_21);
  form.cmbPlaylist->setFocus();
  Tasto(form, Qt::Key_Down);
  Clicca(*form.optPanel_2);
  Nome("Shop");
  Clicca(form, "lblOn");
  EXPECT_EQ(s.PlayerMode, 2);
  EXPECT_EQ(s.PlayerConfigDesc, "KVR5 (Scheduled)");
  EXPECT_TRUE(Esiste("Shop/scheduler.mdb"));
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Shop/Config.txt", "program/Defaults/42Config.txt"));
}

TEST_F(Wizard, TheSecondKindOfPlaylistIsModeSixWithItsTemplate) {
  frmWizardPanel1& form = Apri();
  Clicca(*form.optPanel_21);
  form.cmbPlaylist->setFocus();
  Tasto(form, Qt::Key_Down);
  EXPECT_TRUE(form.optPanel_21->isChecked());
  Nome("Bar");
  Clicca(*form.picGoOn);
  EXPECT_EQ(s.PlayerMode, 6);
  EXPECT_EQ(s.PlayerConfigDesc, "KVR5 (Playlist by day of the week)");
  EXPECT_TRUE(Esiste("Bar/playlist.mdb"));
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Bar/Config.txt", "program/Defaults/46Config.txt"));
}

TEST_F(Wizard, EachForbiddenCharacterEndsItWithoutAWordAndTheBusyPointerStays) {
  frmWizardPanel1& form = Apri();
  for (const char c : std::string("\\/:?\"<>|")) {
    b.C.Messaggi.ImpostaPuntatore(Puntatore::Normale);
    Nome(QStringLiteral("a%1b").arg(QLatin1Char(c)));
    Clicca(*form.picGoOn);
    EXPECT_TRUE(PuntatoreOccupato()) << c;
    EXPECT_TRUE(form.isVisible()) << c;
    EXPECT_EQ(Std(form.txtNomeProgetto->text()), std::string("a") + c + "b");
  }
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(s.ProjectName, "");
  Nome("corrected");
  Clicca(*form.picGoOn);
  EXPECT_FALSE(PuntatoreOccupato());
  EXPECT_TRUE(Esiste("corrected/Config.cfg"));
}

TEST_F(Wizard, TheNoteWarnsWhileTheNameHoldsOne) {
  frmWizardPanel1& form = Apri();
  const auto colour = [&] { return form.lblNota->palette().color(QPalette::WindowText); };
  EXPECT_EQ(colour(), Tema::Corrente().Attenuato);
  Nome("a|b");
  EXPECT_EQ(colour(), Tema::Corrente().Avviso);
  Nome("a*b");
  EXPECT_EQ(colour(), Tema::Corrente().Attenuato) << "the asterisk is not among them";
}

TEST_F(Wizard, TheFolderThatTheNameLeadsToIsShown) {
  frmWizardPanel1& form = Apri();
  EXPECT_EQ(Scritta(form, "lblCartella"), "");
  Nome("Bar");
  const std::string folder = (b.Cartella.Host() / "program/Projects/Bar").string();
  EXPECT_NE(Scritta(form, "lblCartella").find(folder), std::string::npos);
  Nome("a|b");
  EXPECT_EQ(Scritta(form, "lblCartella"), "");
}

TEST_F(Wizard, AnEmptyNameIsAskedForAndGetsTheFocus) {
  frmWizardPanel1& form = Apri();
  Clicca(*form.picGoOn);
  const BoxVisto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Name missing");
  EXPECT_EQ(box.Testo, "Write the project's name");
  EXPECT_EQ(box.Segno, Icona::Informazione);
  EXPECT_FALSE(PuntatoreOccupato());
  EXPECT_EQ(form.focusWidget(), form.txtNomeProgetto);
  EXPECT_TRUE(form.isVisible());
}

TEST_F(Wizard, EnterInTheNameGoesOnUnlessTheNameIsBlank) {
  frmWizardPanel1& form = Apri();
  Tasto(form, Qt::Key_Return);
  Nome("   ");
  Tasto(form, Qt::Key_Return);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_TRUE(form.isVisible());
  Nome("Bar");
  Tasto(form, Qt::Key_Enter);
  EXPECT_TRUE(Esiste("Bar/Config.cfg"));
}

TEST_F(Wizard, EnterOnAnOptionOrTheListGoesOn) {
  frmWizardPanel1& form = Apri();
  Nome("Bar");
  form.optPanel_2->setFocus();
  Tasto(form, Qt::Key_Return);
  EXPECT_TRUE(Esiste("Bar/Config.cfg"));
}

TEST_F(Wizard, ANameOfBlanksPassesTheButtonsTestAndFailsAtTheFolder) {
  frmWizardPanel1& form = Apri();
  Nome("   ");
  Clicca(*form.picGoOn);
  EXPECT_FALSE(b.Finestre.Silenzio());
  EXPECT_NE(b.Finestre.Prossimo().Titolo, "Name missing");
  EXPECT_TRUE(form.isVisible());
}

TEST_F(Wizard, AnAsteriskFailsAtTheFolderWithNumberAndWords) {
  frmWizardPanel1& form = Apri();
  Nome("a*b");
  Clicca(*form.picGoOn);
  const BoxVisto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Project folder not created: check the name and the projects folder");
  EXPECT_EQ(box.Testo, "This step could not be completed\r\nN°:52\r\nBad file name or number");
  EXPECT_EQ(box.Segno, Icona::Avviso);
  EXPECT_FALSE(PuntatoreOccupato());
  EXPECT_TRUE(form.isVisible());
  EXPECT_TRUE(form.txtNomeProgetto->hasFocus()) << "to be written anew";
}

TEST_F(Wizard, ALeadingBlankStaysInTheFoldersName) {
  frmWizardPanel1& form = Apri();
  Nome(" Bar");
  Clicca(*form.picGoOn);
  EXPECT_TRUE(Esiste(" Bar/Config.cfg"));
}

TEST_F(Wizard, AfterAnExistingNameWasRefusedACorrectedOneGoesOn) {
  b.Cartella.Write("program/Projects/Bar/x.txt", "");
  frmWizardPanel1& form = Apri();
  Nome("Bar");
  Clicca(*form.picGoOn);
  const BoxVisto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Name already in use");
  EXPECT_EQ(box.Testo, "A project folder of this name exists. Choose another name.");
  EXPECT_EQ(s.CartellaProgetto, b.Percorso("program/Projects/Bar"));
  EXPECT_FALSE(PuntatoreOccupato());
  Nome("Bar2");
  Clicca(*form.picGoOn);
  EXPECT_TRUE(Esiste("Bar2/Config.cfg"));
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
}

TEST_F(Wizard, BackEscAndTheWindowsOwnButtonLeadToTheMenuAndKeepTheType) {
  const std::function<void(frmWizardPanel1&)> ways[] = {
      [](auto& form) { Clicca(*form.picGoBack); },
      [](auto& form) { Clicca(form, "lblIndietro"); },
      [](auto& form) { Tasto(form, Qt::Key_Escape); },
      [](auto& form) { form.close(); },
  };
  for (const auto& way : ways) {
    b.Schermi.Mostrate.clear();
    frmWizardPanel1& form = Apri();
    b.Schermi.SuMostra = [&](Schermata) { EXPECT_FALSE(form.isVisible()); };
    way(form);
    EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Menu});
    EXPECT_FALSE(forma.Caricata());
    EXPECT_FALSE(PuntatoreOccupato());
    EXPECT_EQ(s.PlayerType, 4);
  }
}

TEST_F(Wizard, EscClosesTheOpenListOfModesBeforeItLeaves) {
  frmWizardPanel1& form = Apri();
  Nome("Bar");
  Clicca(*form.optPanel_21);
  form.cmbPlaylist->showPopup();
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(form.cmbPlaylist->view(), Qt::Key_Escape);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  ASSERT_TRUE(forma.Caricata());
  EXPECT_EQ(form.txtNomeProgetto->text(), QStringLiteral("Bar"));
  QTest::keyClick(&form, Qt::Key_Escape);
  EXPECT_FALSE(forma.Caricata());
}

TEST_F(Wizard, AnotherModelThanKvr5GetsItsFolderAndNothingMore) {
  s.PlayerType = 1;
  frmWizardPanel1& form = Apri();
  Nome("Odd");
  Clicca(*form.picGoOn);
  EXPECT_TRUE(Esiste("Odd"));
  EXPECT_FALSE(Esiste("Odd/Config.cfg"));
  EXPECT_TRUE(form.isVisible());
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(Wizard, F1AndThePictureOpenTheHelp) {
  frmWizardPanel1& form = Apri();
  Tasto(form, Qt::Key_F1);
  Clicca(*form.picHelp);
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
}

using WizardDeathTest = Wizard;

TEST_F(WizardDeathTest, AMissingTemplateOrDatabaseIsToldAndEndsTheProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto create = [this](const char* missing) {
    b.Finestre.SuBox = [](const BoxVisto& box) { std::fputs(box.Testo.c_str(), stderr); };
    std::filesystem::remove(b.Cartella.Host() / "program" / missing);
    Apri();
    Nome("Bar");
    Clicca(*forma->picGoOn);
  };
  const auto ended =
      testing::ExitedWithCode(ProcessoCheFinisce::Codice(MotivoFine::ModelloMancante));
  EXPECT_EXIT(create("Defaults/41Config.txt"), ended, "a program file is missing");
  EXPECT_EXIT(create("source.mdb"), ended, "the file source.mdb is missing");
}

TEST_F(Wizard, ANameThatNoFolderCanHaveIsToldWhileItStandsThere) {
  ProvaNomiSenzaCartella(Apri());
}

TEST_F(Wizard, OfANameOfBlanksNothingIsSaidUntilItIsTried) {
  frmWizardPanel1& form = Apri();
  Nome("   ");
  EXPECT_EQ(Scritta(form, "lblCartella"), "");
  EXPECT_EQ(form.txtNomeProgetto->accessibleDescription(), "");
}

TEST_F(Wizard, AForbiddenCharacterIsLeftToTheNote) {
  frmWizardPanel1& form = Apri();
  Nome("a|b.");
  EXPECT_EQ(Scritta(form, "lblCartella"), "");
  EXPECT_EQ(form.txtNomeProgetto->accessibleDescription(),
            "This name holds a character that isn't allowed");
}

TEST_F(Wizard, TheWarningAboutTheFolderShowsWholeInEachLanguage) {
  for (const char* language : {"English.lan", "Italiano.lan"}) {
    b.C.Stato.FileLingua = b.Percorso(std::string("program/Language/") + language);
    frmWizardPanel1& form = Apri();
    Nome("CON");
    EXPECT_LE(form.lblCartella->fontMetrics().horizontalAdvance(form.lblCartella->text()),
              form.lblCartella->width())
        << language;
    Clicca(*form.picGoBack);
  }
}

TEST_F(Wizard, AClickOnTheListSelectsPlaylistsOnceTheWindowIsThere) {
  forma->Carica();
  emit forma->cmbPlaylist->activated(1);
  EXPECT_TRUE(forma->optPanel_1->isChecked()) << "not while it is loaded";
  frmWizardPanel1& form = Apri();
  emit form.cmbPlaylist->activated(1);
  EXPECT_TRUE(form.optPanel_21->isChecked());
  EXPECT_TRUE(form.cmbPlaylist->isEnabled());
}

}  // namespace
}  // namespace kvr5
