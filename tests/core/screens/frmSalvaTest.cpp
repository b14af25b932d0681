#include "core/screens/frmSalva.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;

class Salva : public ProvaForm<frmSalva> {
 protected:
  frmSalva& Chiedi() {
    forma->FormChiamante = Schermata::Configurazione;
    forma->AnnullaSalvataggio = [this](bool flag) { annulla = flag; };
    return Apri();
  }
  bool Salvano() const { return b.C.Stato.SalvaMp3Ingressi; }

  std::optional<bool> annulla;
};

TEST_F(Salva, TheBoxComesUpAsTheLastChoiceWas) {
  b.C.Stato.SalvaMp3Ingressi = true;
  EXPECT_TRUE(Chiedi().chkSaveMp3Inputs->isChecked());
  forma->Scarica();
  b.C.Stato.SalvaMp3Ingressi = false;
  EXPECT_FALSE(Chiedi().chkSaveMp3Inputs->isChecked());
}

TEST_F(Salva, TheTextsAreThoseOfItsNumberAndTwoBlanksGoBeforeTheTitle) {
  frmSalva& form = Chiedi();
  EXPECT_EQ(form.windowTitle(), "  Save project");
  EXPECT_EQ(Scritta(form, "lblSalvaprogetto"), "Save project");
  EXPECT_EQ(Scritta(form, "lblSaveMp3Inputs"),
            "Copy the MP3 files of the inputs into the project too");
  EXPECT_EQ(Scritta(form, "lblIndietro"), "Cancel");
  EXPECT_EQ(Scritta(form, "lblSalva"), "Save");
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(Salva, TheTwoBlanksGoBeforeTheBuiltInTitleToo) {
  b.C.Stato.FileLingua = b.Percorso("gone.lan");
  EXPECT_EQ(Chiedi().windowTitle(), "    Save");
}

TEST_F(Salva, AClickOnTheLabelTogglesTheBox) {
  frmSalva& form = Chiedi();
  Clicca(form, "lblSaveMp3Inputs");
  EXPECT_TRUE(form.chkSaveMp3Inputs->isChecked());
  Clicca(form, "lblSaveMp3Inputs");
  EXPECT_FALSE(form.chkSaveMp3Inputs->isChecked());
}

TEST_F(Salva, SavingKeepsTheChoiceAndShowsTheCaller) {
  frmSalva& form = Chiedi();
  Clicca(*form.chkSaveMp3Inputs);
  Clicca(form, "picSalva");
  EXPECT_TRUE(Salvano());
  EXPECT_EQ(annulla, false);
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
  EXPECT_FALSE(forma.Caricata());
}

TEST_F(Salva, SavingWithTheBoxClearedTakesTheChoiceBack) {
  b.C.Stato.SalvaMp3Ingressi = true;
  frmSalva& form = Chiedi();
  Clicca(form, "lblSaveMp3Inputs");
  Clicca(form, "lblSalva");
  EXPECT_FALSE(Salvano());
  EXPECT_EQ(annulla, false);
}

TEST_F(Salva, CancelledTheChoiceStaysWhateverTheBoxShows) {
  frmSalva& form = Chiedi();
  Clicca(form, "lblSaveMp3Inputs");
  Clicca(form, "picGoBack");
  EXPECT_FALSE(Salvano());
  EXPECT_EQ(annulla, true);
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
}

TEST_F(Salva, ClosedByTheWindowsOwnButtonItActsAsItsCancel) {
  frmSalva& form = Chiedi();
  Clicca(form, "lblSaveMp3Inputs");
  form.close();
  EXPECT_FALSE(Salvano());
  EXPECT_EQ(annulla, true);
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
}

TEST_F(Salva, TheCallerIsShownWhenTheFormIsHiddenAlready) {
  frmSalva& form = Chiedi();
  b.Schermi.SuMostra = [&](Schermata) { EXPECT_FALSE(form.isVisible()); };
  Clicca(form, "picSalva");
}

TEST_F(Salva, F1AndThePictureOpenTheHelp) {
  frmSalva& form = Chiedi();
  Tasto(form, Qt::Key_F1);
  EXPECT_EQ(DocumentoDiAiuto(), b.Percorso("program\\Help\\English.htm"));
  Clicca(form, "picHelp");
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
}

}  // namespace
}  // namespace kvr5
