#include "core/Lingua.h"
#include "core/screens/RiquadroMessaggio.h"
#include "core/screens/Testo.h"
#include "projects/screens/BancoRilettura.h"
#include "projects/screens/frmRichiestaNomeForm.h"

// The name dialog over the list of projects, while a card is read back whose name is taken.

namespace kvr5 {
namespace {

using namespace test;

class NomeSoltanto : public Rilettura {
 protected:
  void SetUp() override {
    for (const char* name : {"Hall", "Lobby"}) {
      std::filesystem::create_directory(b.Cartella.Host() / "program/Projects" / name);
    }
    b.Schermi.SuChiediNome = [this](const std::string& name) { ShowDialog(name); };
    Apri();
  }
  /// As the program shows it.
  void ShowDialog(const std::string& name) {
    dialog->Carica();
    dialog->txtNomeProgetto->setText(Qs(name));
    dialog->txtNomeProgetto->selectAll();
    dialog->setWindowTitle(Qs(TestoLingua(c, "0030011")));
    dialog->SoloNome = true;
    dialog->FormSuccessivo = Schermata::ElencoProgetti;
    dialog->MostraModale();
  }
  /// Reads the card; `use` works on the dialog while it waits.
  void Read(const std::function<void(frmRichiestaNomeForm&)>& use) {
    const Pilota<frmRichiestaNomeForm> user(use);
    Leggi();
  }
  /// Presses `on`, and takes the box of a refused name.
  static void Refused(const std::function<void()>& on) {
    const Pilota<RiquadroMessaggio> box([](RiquadroMessaggio& words) {
      EXPECT_EQ(words.windowTitle(), "Name already in use");
      EXPECT_EQ(Scritta(words, "lblTesto"),
                "A project folder of this name exists. Choose another name.");
      Clicca(words, "cmdOk");
    });
    on();
  }
  /// The list as it was, with the two folders alone.
  void ExpectGivenUp() {
    EXPECT_FALSE(dialog.Caricata());
    EXPECT_EQ(Progetti(), (Nomi{"Hall", "Lobby"}));
    EXPECT_EQ(c.Stato.ProjectName, "");
    EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::ElencoProgetti});
    b.Schermi.Mostrate.clear();
    AspettaElencoInUso();
  }

  FormPredefinita<frmRichiestaNomeForm> dialog{[this] { return new frmRichiestaNomeForm(a); }};
};

TEST_F(NomeSoltanto, TheCardsNameStandsInItSelectedSoThatAnotherOneIsTypedAtOnce) {
  Read([](frmRichiestaNomeForm& form) {
    EXPECT_EQ(form.txtNomeProgetto->text(), "Hall");
    EXPECT_EQ(form.txtNomeProgetto->selectedText(), "Hall");
    EXPECT_EQ(form.focusWidget(), form.txtNomeProgetto);
    Scrivi(form, "Foyer");
    EXPECT_EQ(form.txtNomeProgetto->text(), "Foyer");
    Clicca(*form.picGoOn);
  });
  EXPECT_EQ(c.Stato.CartellaProgetto, b.Percorso("program/Projects/Foyer"));
  EXPECT_EQ(b.Nomi("program/Projects/Foyer"), b.Nomi("card"));
}

TEST_F(NomeSoltanto, EnterTakesTheNameAndTheFolderIsMadeOnceByTheReading) {
  Read([this](frmRichiestaNomeForm& form) {
    Scrivi(form, "Foyer");
    Tasto(form, Qt::Key_Return);
    EXPECT_FALSE(b.Cartella.Exists("program/Projects/Foyer")) << "nothing is made by the dialog";
  });
  EXPECT_EQ(b.Schermi.Aperture, std::vector<std::int16_t>{2});
  EXPECT_TRUE(b.Cartella.Exists("program/Projects/Foyer/Config.cfg"));
}

TEST_F(NomeSoltanto, ATakenNameIsRefusedByItsBoxAndTheDialogStaysWithIt) {
  Read([](frmRichiestaNomeForm& form) {
    Refused([&] { Clicca(*form.picGoOn); });
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.txtNomeProgetto->text(), "Hall");
    Riscrivi(*form.txtNomeProgetto, "lobby");
    Refused([&] { Tasto(form, Qt::Key_Return); });
    EXPECT_EQ(form.txtNomeProgetto->text(), "lobby");
    Riscrivi(*form.txtNomeProgetto, "Foyer");
    Clicca(form, "lblOn");
  });
  EXPECT_EQ(c.Stato.CartellaProgetto, b.Percorso("program/Projects/Foyer"));
}

TEST_F(NomeSoltanto, AForbiddenCharacterStaysInTheDialogWithoutAWord) {
  Read([](frmRichiestaNomeForm& form) {
    for (const QChar each : QStringLiteral("\\/:?\"<>|")) {
      Riscrivi(*form.txtNomeProgetto, QStringLiteral("Foyer") + each);
      Clicca(*form.picGoOn);
      Tasto(form, Qt::Key_Return);
      EXPECT_TRUE(form.isVisible()) << each.toLatin1();
    }
    Clicca(*form.picGoBack);
  });
  ExpectGivenUp();
}

TEST_F(NomeSoltanto, BackItsLabelAndEscStopWithoutAFolderOrAWord) {
  for (const auto& leave : std::vector<std::function<void(frmRichiestaNomeForm&)>>{
           [](frmRichiestaNomeForm& form) { Clicca(*form.picGoBack); },
           [](frmRichiestaNomeForm& form) { Clicca(form, "lblIndietro"); },
           [](frmRichiestaNomeForm& form) { Tasto(form, Qt::Key_Escape); },
           [](frmRichiestaNomeForm& form) { form.close(); }}) {
    b.Schermi.Mostrate.clear();
    Apri();
    Read([&](frmRichiestaNomeForm& form) {
      Scrivi(form, "Foyer");
      leave(form);
    });
    ExpectGivenUp();
  }
}

TEST_F(NomeSoltanto, GivenUpAfterARefusalItStopsAllTheSame) {
  for (const bool byWindow : {false, true}) {
    b.Schermi.Mostrate.clear();
    Apri();
    Read([byWindow](frmRichiestaNomeForm& form) {
      Refused([&] { Clicca(*form.picGoOn); });
      if (byWindow) {
        form.close();
      } else {
        Clicca(*form.picGoBack);
      }
    });
    ExpectGivenUp();
  }
}

TEST_F(NomeSoltanto, AnEmptyNameIsAskedForAndABlankOneIsNotTakenByEnter) {
  Read([](frmRichiestaNomeForm& form) {
    Riscrivi(*form.txtNomeProgetto, "");
    {
      const Pilota<RiquadroMessaggio> box([](RiquadroMessaggio& words) { Clicca(words, "cmdOk"); });
      Clicca(*form.picGoOn);
    }
    ASSERT_TRUE(DiNuovoPronta(form));
    EXPECT_EQ(form.focusWidget(), form.txtNomeProgetto);
    Riscrivi(*form.txtNomeProgetto, "   ");
    Tasto(form, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    Tasto(form, Qt::Key_Escape);
  });
  ExpectGivenUp();
}

TEST_F(NomeSoltanto, F1OpensTheHelpAndTheDialogWaitsOn) {
  Read([this](frmRichiestaNomeForm& form) {
    Tasto(form, Qt::Key_F1);
    EXPECT_EQ(b.Documenti.Aperti.size(), 1U);
    EXPECT_TRUE(form.isVisible());
    Tasto(form, Qt::Key_Escape);
  });
  ExpectGivenUp();
}

TEST_F(NomeSoltanto, TheListBehindItTakesNoCommand) {
  Read([this](frmRichiestaNomeForm& form) {
    Clicca(*forma->picLoadFlash);
    Clicca(*forma->picindietro);
    forma->picLoadFlash->click();  // as one that was on its way
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(b.Schermi.SchedePer.size(), 1U);
    EXPECT_TRUE(b.Schermi.Mostrate.empty());
    Tasto(form, Qt::Key_Escape);
  });
  ExpectGivenUp();
}

TEST_F(NomeSoltanto, ANameThatNoFolderCanHaveIsToldByTheReadingAndTheListStays) {
  Read([](frmRichiestaNomeForm& form) {
    Scrivi(form, "CON");
    EXPECT_TRUE(form.txtNomeProgetto->accessibleDescription().startsWith("No folder"));
    Tasto(form, Qt::Key_Escape);
  });
  ExpectGivenUp();
}

TEST_F(NomeSoltanto, WhereTheFolderAppearsMeanwhileThatIsToldAndNothingIsCopiedIntoIt) {
  b.Schermi.SuMostra = [this](Schermata /*screen*/) {
    b.Cartella.Write("program/Projects/Foyer", "came meanwhile");
  };
  const Pilota<frmRichiestaNomeForm> user([](frmRichiestaNomeForm& form) {
    Scrivi(form, "Foyer");
    Tasto(form, Qt::Key_Return);
  });
  const Pilota<frmSiNo> box([](frmSiNo& notice) {
    EXPECT_EQ(notice.windowTitle(), "Project folder not created");
    Clicca(*notice.cmdSi);
  });
  Leggi();
  EXPECT_EQ(b.Cartella.Read("program/Projects/Foyer"), "came meanwhile");
}

}  // namespace
}  // namespace kvr5
