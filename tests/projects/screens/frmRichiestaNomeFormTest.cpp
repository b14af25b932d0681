#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "projects/screens/NomiSenzaCartella.h"
#include "projects/screens/frmRichiestaNomeForm.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;

class NomeProgetto : public ProvaForm<frmRichiestaNomeForm> {
 protected:
  /// As a card that is read back asks for the name of its copy.
  frmRichiestaNomeForm& SoloIlNome() {
    forma->SoloNome = true;
    forma->FormSuccessivo = Schermata::ElencoProgetti;
    return Apri();
  }
  void Nome(const QString& name) { Riscrivi(*forma->txtNomeProgetto, name); }
  bool Esiste(const std::string& name) const {
    return b.Cartella.Exists("program/Projects/" + name);
  }
  StatoApplicazione& s = b.C.Stato;
};

TEST_F(NomeProgetto, ShowsTheNameOfTheStateAndTheCharactersOnALineOfTheirOwn) {
  s.ProjectName = "Bar";
  frmRichiestaNomeForm& form = SoloIlNome();
  EXPECT_EQ(form.txtNomeProgetto->text(), "Bar");
  EXPECT_EQ(form.windowTitle(), "Project name");
  EXPECT_EQ(Scritta(form, "lblNota"), "A name can't hold these characters:\n \\ / : ? \" < > |");
  EXPECT_EQ(Scritta(form, "lblOn"), "Continue");
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(NomeProgetto, TheNameAloneStandsInTheStateAndNothingIsMade) {
  frmRichiestaNomeForm& form = SoloIlNome();
  Nome("Bar");
  Clicca(*form.picGoOn);
  EXPECT_EQ(s.ProjectName, "Bar");
  EXPECT_EQ(s.CartellaProgetto, b.Percorso("program/Projects/Bar"));
  EXPECT_FALSE(Esiste("Bar"));
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::ElencoProgetti});
  EXPECT_FALSE(forma.Caricata());
}

TEST_F(NomeProgetto, AForbiddenCharacterEndsItWithoutAWordOrABusyPointer) {
  frmRichiestaNomeForm& form = SoloIlNome();
  for (const char c : std::string("\\/:?\"<>|")) {
    Nome(QStringLiteral("a%1b").arg(QLatin1Char(c)));
    Clicca(*form.picGoOn);
    EXPECT_TRUE(form.isVisible()) << c;
    EXPECT_FALSE(PuntatoreOccupato()) << c;
  }
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(s.ProjectName, "");
}

TEST_F(NomeProgetto, AnEmptyNameIsAskedForAndGetsTheFocus) {
  frmRichiestaNomeForm& form = SoloIlNome();
  Clicca(form, "lblOn");
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Name missing");
  EXPECT_EQ(form.focusWidget(), form.txtNomeProgetto);
}

TEST_F(NomeProgetto, AnExistingFolderIsRefusedAndACorrectedNameGoesOn) {
  b.Cartella.Write("program/Projects/Bar/x.txt", "");
  frmRichiestaNomeForm& form = SoloIlNome();
  Nome("bar");
  Tasto(form, Qt::Key_Return);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Name already in use");
  EXPECT_TRUE(form.isVisible());
  Nome("Bar 2");
  Tasto(form, Qt::Key_Return);
  EXPECT_FALSE(forma.Caricata());
  EXPECT_EQ(s.ProjectName, "Bar 2");
}

TEST_F(NomeProgetto, EnterDoesNothingOnABlankName) {
  frmRichiestaNomeForm& form = SoloIlNome();
  Nome("  ");
  Tasto(form, Qt::Key_Return);
  EXPECT_TRUE(form.isVisible());
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(NomeProgetto, BackAndEscLeaveTheNameAsTheCallerEmptiedIt) {
  Clicca(*SoloIlNome().picGoBack);
  EXPECT_FALSE(forma.Caricata());
  frmRichiestaNomeForm& form = SoloIlNome();
  Nome("typed");
  Tasto(form, Qt::Key_Escape);
  EXPECT_EQ(s.ProjectName, "");
  EXPECT_EQ(b.Schermi.Mostrate,
            (std::vector{Schermata::ElencoProgetti, Schermata::ElencoProgetti}));
}

TEST_F(NomeProgetto, TheWindowsOwnButtonReturnsToTheListOrElseToTheMenu) {
  SoloIlNome().close();
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::ElencoProgetti});
  b.Schermi.Mostrate.clear();
  forma->FormSuccessivo = Schermata::Configurazione;
  Apri().close();
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Menu});
}

TEST_F(NomeProgetto, ThePointerOfAPreparedProjectIsPlainAndTheHubFollows) {
  s.PlayerType = 1;
  s.PlayerName = "Veskadro";
  frmRichiestaNomeForm& form = Apri();
  Nome("Old");
  Clicca(*form.picGoOn);
  EXPECT_EQ(b.Nomi("program/Projects/Old"),
            (std::vector<std::string>{"Config.cfg", "Config.txt", "Veskadro.gif", "inputcfg.mdb"}));
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(NomeProgetto, AnOstrelOnInputsShowsItsNoticeAndHasNoPicture) {
  s.PlayerType = 3;
  s.PlayerMode = 1;
  s.PlayerName = "Ostrel";
  frmRichiestaNomeForm& form = Apri();
  Nome("Old");
  Clicca(*form.picGoOn);
  const BoxVisto box = b.Finestre.Prossimo();
  EXPECT_TRUE(box.SiNo);
  EXPECT_TRUE(box.SoloOk);
  EXPECT_EQ(b.Nomi("program/Projects/Old"),
            (std::vector<std::string>{"Config.cfg", "Config.txt", "inputcfg.mdb"}));
}

TEST_F(NomeProgetto, F1AndThePictureOpenTheHelp) {
  frmRichiestaNomeForm& form = SoloIlNome();
  Tasto(form, Qt::Key_F1);
  Clicca(*form.picHelp);
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
}

TEST_F(NomeProgetto, TheFolderThatTheNameLeadsToIsShown) {
  s.ProjectName = "Bar";
  frmRichiestaNomeForm& form = SoloIlNome();
  const std::string folder = (b.Cartella.Host() / "program/Projects/Bar").string();
  EXPECT_EQ(Scritta(form, "lblCartella"), "Project folder: " + folder);
  for (const char* name : {"", "   ", "a|b"}) {
    Nome(name);
    EXPECT_EQ(Scritta(form, "lblCartella"), "") << name;
  }
}

TEST_F(NomeProgetto, ANameThatNoFolderCanHaveIsToldWhileItStandsThere) {
  ProvaNomiSenzaCartella(SoloIlNome());
}

TEST_F(NomeProgetto, TheNameOfACardThatNoFolderCanHaveIsToldAtOnce) {
  s.ProjectName = "Hall.";
  EXPECT_FALSE(SoloIlNome().txtNomeProgetto->accessibleDescription().isEmpty());
}

TEST_F(NomeProgetto, TheWarningAboutTheFolderShowsWholeInEachLanguage) {
  for (const char* language : {"English.lan", "Italiano.lan"}) {
    s.FileLingua = b.Percorso(std::string("program/Language/") + language);
    frmRichiestaNomeForm& form = SoloIlNome();
    Nome("CON");
    EXPECT_LE(form.lblCartella->fontMetrics().horizontalAdvance(form.lblCartella->text()),
              form.lblCartella->width())
        << language;
    Clicca(*form.picGoBack);
  }
}

}  // namespace
}  // namespace kvr5
