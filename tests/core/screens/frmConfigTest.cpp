#include <filesystem>

#include "core/Impostazioni.h"
#include "core/screens/frmConfig.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;

class Configura : public ProvaForm<frmConfig> {
 protected:
  Configura() {
    Scrivi("[Path]\r\nProjectsDir=" + b.Percorso("program\\Projects") +
           "\r\n[Config]\r\nLanguageFile=English.lan\r\nUseExternalPlayer=0\r\n");
  }
  void Scrivi(const std::string& text) { b.Cartella.Write("program/KVR5Software.ini", text); }
  std::string Valore(const char* section, const char* key) {
    return LeggiParametroIni(b.C, FileImpostazioni(b.C), section, key);
  }
  /// The changed state of the screen: button and label always agree.
  bool Modificato() {
    EXPECT_EQ(forma->cmdSave->isEnabled(), forma->lblSave->isVisible());
    return forma->cmdSave->isEnabled();
  }
  std::string Ospite(const char* name) const { return (b.Cartella.Host() / name).string(); }
  void SalvaBene() {
    Clicca(*forma->cmdSave);
    const BoxVisto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, "Folders and settings");
    EXPECT_EQ(box.Testo, "Saved. The changes count as soon as you close this screen.");
  }
};

TEST_F(Configura, ShowsWhatTheFileHoldsInTheLanguageAndNothingIsMarked) {
  frmConfig& form = Apri();
  EXPECT_EQ(form.windowTitle(), "Folders and settings");
  EXPECT_EQ(Scritta(form, "lblMp3_Dir"), "Projects folder");
  EXPECT_EQ(Scritta(form, "lblLanguage"), "Language");
  EXPECT_EQ(Scritta(form, "lblPlayer"), "Mp3 Player") << "without a tag";
  EXPECT_EQ(form.optInternal->text(), "Internal Player");
  EXPECT_EQ(form.txtProjectDir->text().toStdString(), Ospite("program/Projects"));
  EXPECT_EQ(form.txtProjectDir->toolTip(), form.txtProjectDir->text());
  EXPECT_EQ(form.cmdSelPrjDir->toolTip(), "Choose the projects folder");
  EXPECT_EQ(form.cmbLanguage->currentText(), "English");
  EXPECT_TRUE(form.optInternal->isChecked());
  EXPECT_FALSE(Modificato());
}

TEST_F(Configura, TheFolderIsTheFilesNotThatOfTheState) {
  b.C.Stato.CartellaProgetti = b.Percorso("elsewhere");
  EXPECT_EQ(Apri().txtProjectDir->text().toStdString(), Ospite("program/Projects"));
}

TEST_F(Configura, WithoutAStoredLanguageTheChoiceCanBeStoredAtOnce) {
  Scrivi("[Path]\r\nProjectsDir=" + b.Percorso("program\\Projects") + "\r\n[Config]\r\n");
  Apri();
  EXPECT_TRUE(Modificato());
  SalvaBene();
  EXPECT_EQ(Valore("Config", "LanguageFile"),
            forma->cmbLanguage->itemText(0).toStdString() + ".lan");
  EXPECT_EQ(Valore("Config", "LanguageFile"), "English.lan") << "the one that is being read";
}

TEST_F(Configura, ALanguageThatIsNotThereLeavesTheFirstItemShown) {
  Scrivi("[Config]\r\nLanguageFile=Esperanto.lan\r\n");
  b.C.Stato.FileLingua = b.Percorso("program/Language/Esperanto.lan");
  frmConfig& form = Apri();
  EXPECT_EQ(form.cmbLanguage->currentIndex(), 0);
  EXPECT_EQ(form.cmbLanguage->currentText(), form.cmbLanguage->itemText(0));
  EXPECT_EQ(form.lblNota->text(), "") << "no language is in use";
  EXPECT_FALSE(Modificato());
}

TEST_F(Configura, WithAnEmptyLanguageFolderTheListIsEmptyAndNoneIsStored) {
  std::filesystem::remove_all(b.Cartella.Host() / "program/Language");
  std::filesystem::create_directories(b.Cartella.Host() / "program/Language");
  frmConfig& form = Apri();
  EXPECT_EQ(form.cmbLanguage->count(), 0);
  Clicca(*form.optExternal);
  Clicca(*form.cmdSave);
  b.Finestre.Prossimo();
  EXPECT_EQ(Valore("Config", "LanguageFile"), "English.lan") << "as it was";
  EXPECT_EQ(Valore("Config", "UseExternalPlayer"), "1");
}

TEST_F(Configura, AClickOnEitherOptionMarksAChangeAlsoOnTheOneThatIsOn) {
  frmConfig& form = Apri();
  Clicca(*form.optInternal);
  EXPECT_TRUE(Modificato());
  SalvaBene();
  Clicca(*form.optExternal);
  EXPECT_TRUE(Modificato());
  SalvaBene();
  EXPECT_EQ(Valore("Config", "UseExternalPlayer"), "1");
}

TEST_F(Configura, ALanguageChosenByKeyIsMarkedAndStored) {
  frmConfig& form = Apri();
  form.cmbLanguage->setFocus();
  ASSERT_EQ(form.cmbLanguage->currentText(), "English");
  Tasto(form, Qt::Key_End);
  EXPECT_EQ(form.cmbLanguage->currentText(), "Italiano");
  EXPECT_TRUE(Modificato());
  SalvaBene();
  EXPECT_EQ(Valore("Config", "LanguageFile"), "Italiano.lan");
}

TEST_F(Configura, AFolderThatWasBrowsedForIsShownMarkedAndStoredWithItsBackslash) {
  frmConfig& form = Apri();
  b.Finestre.ScegliCartella(b.Percorso("card"));
  Clicca(*form.cmdSelPrjDir);
  EXPECT_EQ(b.Finestre.Sfogliate.back().Titolo, "Choose the projects folder");
  EXPECT_EQ(form.txtProjectDir->text().toStdString(), Ospite("card"));
  EXPECT_EQ(form.txtProjectDir->toolTip().toStdString(), Ospite("card"));
  EXPECT_TRUE(Modificato());
  SalvaBene();
  EXPECT_EQ(Valore("Path", "ProjectsDir"), b.Percorso("card") + "\\");
}

TEST_F(Configura, ACancelledOrMissingFolderChangesNothing) {
  frmConfig& form = Apri();
  for (const auto& chosen : {std::string(), std::string("  "), b.Percorso("gone")}) {
    b.Finestre.ScegliCartella(chosen);
    Clicca(*form.cmdSelPrjDir);
    EXPECT_EQ(form.txtProjectDir->text().toStdString(), Ospite("program/Projects"));
    EXPECT_FALSE(Modificato());
  }
}

TEST_F(Configura, AnyKeyButTabInTheFolderBoxBrowsesAndTypesNothing) {
  frmConfig& form = Apri();
  const QString before = form.txtProjectDir->text();
  std::size_t browsed = 0;
  for (const auto key : {Qt::Key_A, Qt::Key_Space, Qt::Key_Delete, Qt::Key_Backspace,
                         Qt::Key_Return, Qt::Key_Left}) {
    form.txtProjectDir->setFocus();
    b.Finestre.ScegliCartella({});
    Tasto(form, key);
    EXPECT_EQ(b.Finestre.Sfogliate.size(), ++browsed) << key;
    EXPECT_EQ(form.txtProjectDir->text(), before);
  }
}

TEST_F(Configura, KeysThatTypeNothingByThemselvesDoNotBrowse) {
  frmConfig& form = Apri();
  form.txtProjectDir->setFocus();
  for (const auto key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta,
                         Qt::Key_CapsLock, Qt::Key_NumLock}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(form.txtProjectDir, &press);
  }
  EXPECT_TRUE(b.Finestre.Sfogliate.empty());
}

TEST_F(Configura, ItsButtonSaysWhyItIsOffAndTheOptionsExplainThemselves) {
  frmConfig& form = Apri();
  ASSERT_FALSE(form.cmdSave->isEnabled());
  EXPECT_EQ(form.cmdSave->toolTip(), "Nothing to save");
  Clicca(form, "optExternal");
  EXPECT_TRUE(form.cmdSave->isEnabled());
  EXPECT_EQ(form.cmdSave->toolTip(), "Counts as soon as you close this screen");
  EXPECT_NE(form.optInternal->toolTip(), form.optExternal->toolTip());
  EXPECT_FALSE(form.optInternal->accessibleDescription().isEmpty());
}

TEST_F(Configura, AfterASaveByTheKeyboardTheFocusIsOnTheButtonThatLeaves) {
  frmConfig& form = Apri();
  Clicca(form, "optExternal");
  form.cmdSave->setFocus();
  Tasto(form, Qt::Key_Return);
  b.Finestre.Prossimo();  // "Saved"
  EXPECT_FALSE(form.cmdSave->isEnabled());
  EXPECT_TRUE(form.cmdExit->hasFocus());
}

TEST_F(Configura, PastingIntoTheFolderBoxBrowsesToo) {
  frmConfig& form = Apri();
  form.txtProjectDir->setFocus();
  const QString before = form.txtProjectDir->text();
  b.Finestre.ScegliCartella({});
  Tasto(form, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(b.Finestre.Sfogliate.size(), 1U);
  EXPECT_EQ(form.txtProjectDir->text(), before);
}

TEST_F(Configura, TabLeavesTheFolderBox) {
  frmConfig& form = Apri();
  form.txtProjectDir->setFocus();
  Tasto(form, Qt::Key_Tab);
  EXPECT_EQ(form.focusWidget(), form.cmdSelPrjDir);
  EXPECT_TRUE(b.Finestre.Sfogliate.empty());
}

TEST_F(Configura, AFolderThatIsGoneIsToldAndNothingIsWritten) {
  frmConfig& form = Apri();
  Clicca(*form.optExternal);
  std::filesystem::remove_all(b.Cartella.Host() / "program/Projects");
  const std::string before = b.Cartella.Read("program/KVR5Software.ini");
  Clicca(*form.cmdSave);
  const BoxVisto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Folders and settings");
  EXPECT_EQ(box.Testo, "Nothing was saved: this folder isn't there. Choose another one.");
  EXPECT_EQ(b.Cartella.Read("program/KVR5Software.ini"), before);
  EXPECT_TRUE(Modificato());
}

TEST_F(Configura, LeavingWithoutAChangeAsksNothingAndRunsMain) {
  Clicca(*Apri().cmdExit);
  EXPECT_FALSE(forma.Caricata());
  EXPECT_EQ(b.Schermi.Riavvii, 1);
}

TEST_F(Configura, LeavingAfterAChangeAsksAndNoStays) {
  frmConfig& form = Apri();
  Clicca(*form.optExternal);
  b.Finestre.Rispondi(Risposta::No);
  Clicca(form, "lblEsci");
  EXPECT_EQ(b.Finestre.Prossimo().Testo,
            "Leave without saving? Yes drops the changes; No stays here.");
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(b.Schermi.Riavvii, 0);
}

TEST_F(Configura, AnsweringYesLeavesWithoutStoring) {
  frmConfig& form = Apri();
  Clicca(*form.optExternal);
  b.Finestre.Rispondi(Risposta::Si);
  Clicca(*form.cmdExit);
  const BoxVisto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Segno, Icona::Domanda);
  EXPECT_TRUE(b.Finestre.Silenzio()) << "asked once";
  EXPECT_EQ(Valore("Config", "UseExternalPlayer"), "0");
  EXPECT_EQ(b.Schermi.Riavvii, 1);
}

TEST_F(Configura, TheWindowsOwnButtonActsAsItsCancel) {
  frmConfig& form = Apri();
  Clicca(*form.optExternal);
  b.Finestre.Rispondi(Risposta::No);
  form.close();
  b.Finestre.Prossimo();
  EXPECT_TRUE(form.isVisible());
  b.Finestre.Rispondi(Risposta::Si);
  form.close();
  b.Finestre.Prossimo();
  EXPECT_FALSE(forma.Caricata());
  EXPECT_EQ(b.Schermi.Riavvii, 1);
}

TEST_F(Configura, AfterASaveItStaysOpenUnmarkedAndLeavingAsksNothing) {
  frmConfig& form = Apri();
  Clicca(*form.optExternal);
  SalvaBene();
  EXPECT_TRUE(form.isVisible());
  EXPECT_FALSE(Modificato());
  Clicca(*form.cmdExit);
  EXPECT_EQ(b.Schermi.Riavvii, 1);
}

TEST_F(Configura, TheLabelSavesAsItsButton) {
  frmConfig& form = Apri();
  Clicca(*form.optExternal);
  Clicca(form, "lblSave");
  b.Finestre.Prossimo();
  EXPECT_EQ(Valore("Config", "UseExternalPlayer"), "1");
}

TEST_F(Configura, F1OpensTheHelpEvenFromTheFolderBox) {
  frmConfig& form = Apri();
  form.txtProjectDir->setFocus();
  Tasto(form, Qt::Key_F1);
  EXPECT_EQ(b.Documenti.Aperti.size(), 1U);
  Clicca(*form.picHelp);
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
}

TEST_F(Configura, ALanguageThatCannotBeStoredAfterTheWordOfTheSavePassesWithoutAnother) {
  frmConfig& form = Apri();
  form.cmbLanguage->setFocus();
  Tasto(form, form.cmbLanguage->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
  const auto settings = b.Cartella.Host() / "program/KVR5Software.ini";
  b.Finestre.SuBox = [&settings](const BoxVisto&) {
    std::filesystem::permissions(settings, std::filesystem::perms::owner_read);
  };
  SalvaBene();
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_FALSE(Modificato());
  EXPECT_EQ(Valore("Config", "LanguageFile"), "English.lan") << "it really failed";
}

TEST_F(Configura, SavingAfterTheSettingsFileWasDeletedMakesNoneAndLeavingAsksNothing) {
  frmConfig& form = Apri();
  Clicca(*form.optExternal);
  std::filesystem::remove(b.Cartella.Host() / "program/KVR5Software.ini");
  SalvaBene();
  EXPECT_FALSE(b.Cartella.Exists("program/KVR5Software.ini"));
  EXPECT_FALSE(Modificato());
  Clicca(*form.cmdExit);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(b.Schermi.Riavvii, 1);
}

TEST_F(Configura, ShowsTheExternalPlayerWhereItIsStored) {
  Scrivi("[Path]\r\nProjectsDir=" + b.Percorso("program\\Projects") +
         "\r\n[Config]\r\nLanguageFile=English.lan\r\nUseExternalPlayer=1\r\n");
  frmConfig& form = Apri();
  EXPECT_TRUE(form.optExternal->isChecked());
  EXPECT_FALSE(form.optInternal->isChecked());
  EXPECT_FALSE(Modificato());
}

TEST_F(Configura, TheLanguageInUseIsNamedWhereAnotherOneIsShown) {
  Scrivi("[Path]\r\nProjectsDir=" + b.Percorso("program\\Projects") + "\r\n[Config]\r\n");
  b.C.Stato.FileLingua = b.Percorso("program/Language/Italiano.lan");
  frmConfig& form = Apri();
  ASSERT_EQ(form.cmbLanguage->currentText(), "Italiano") << "it comes first";
  EXPECT_EQ(form.lblNota->text(), "");
  form.cmbLanguage->setFocus();
  Tasto(form, Qt::Key_Down);
  ASSERT_EQ(form.cmbLanguage->currentText(), "Deutsch") << "then the others, by name";
  EXPECT_EQ(form.lblNota->text(), "Lingua in uso ora: Italiano");
  EXPECT_EQ(form.cmbLanguage->accessibleDescription(), form.lblNota->text());
}

TEST_F(Configura, AFolderThatTheSettingsCannotKeepIsWarnedOf) {
  frmConfig& form = Apri();
  EXPECT_EQ(form.lblNota->text(), "");
  const std::string root = b.Percorso("x").substr(0, b.Percorso("x").size() - 1);
  for (const std::size_t length : {std::size_t{99}, std::size_t{100}}) {
    std::string name;
    for (std::size_t i = root.size(); i < length; ++i) name += "\u00E8";  // a character each
    std::filesystem::create_directories(b.Cartella.Host() / name);
    b.Finestre.ScegliCartella(root + name);
    Clicca(*form.cmdSelPrjDir);
    EXPECT_EQ(form.lblNota->text().isEmpty(), length == 99) << length;
  }
  EXPECT_TRUE(form.lblNota->text().startsWith("This path is longer than the settings can keep"));
  EXPECT_EQ(form.txtProjectDir->accessibleDescription(), form.lblNota->text());
}

}  // namespace
}  // namespace kvr5
