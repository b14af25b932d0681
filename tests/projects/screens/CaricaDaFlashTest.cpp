#include <QTest>
#include <utility>

#include "core/screens/RiquadroMessaggio.h"
#include "projects/screens/BancoRilettura.h"

// The list of projects reads a card back.

namespace kvr5 {
namespace {

using namespace test;

class CaricaDaFlash : public Rilettura {
 protected:
  /// Does something at the first look of the copy window, with the events that it lets run.
  void DuranteLaCopia(std::function<void()> what) {
    b.Copia.SuProgresso = [this, what = std::move(what)](const CopyState& /*state*/) {
      if (std::exchange(met, true)) return;
      what();
      QCoreApplication::processEvents();
    };
  }
  void AnnullaLaCopia() { b.Copia.AnnullaAlla = 1; }
  /// No card dialog or name dialog, no folder, no word beyond those of the test.
  void AspettaNienteFatto() {
    EXPECT_EQ(Progetti(), Nomi{});
    EXPECT_TRUE(b.Schermi.NomiPer.empty());
    AspettaElencoInUso();
  }

  bool met = false;
};

TEST_F(CaricaDaFlash, TheButtonItsLabelAndTheKeysAskForTheCardOnBehalfOfTheList) {
  b.Schermi.SuScegliScheda = [this] { c.Stato.SelezioneFlashAnnullata = true; };
  frmCaricaProgetto& form = Apri();
  Clicca(form, "picLoadFlash");
  Clicca(form, "lblCaricaDaFlash");
  form.picLoadFlash->setFocus();
  Tasto(form, Qt::Key_Space);
  Tasto(form, Qt::Key_Return);
  EXPECT_EQ(b.Schermi.SchedePer, std::vector(4, Schermata::ElencoProgetti));
}

TEST_F(CaricaDaFlash, TheButtonSaysWhatItDoesAndThatTheCardStaysAsItIs) {
  EXPECT_EQ(Apri().picLoadFlash->toolTip().toStdString(),
            "Opens a copy of the card's project in the projects folder; the card stays as it is");
  EXPECT_EQ(forma->picLoadFlash->text().toStdString(), "Open from card");
}

TEST_F(CaricaDaFlash, LeavingTheCardDialogChangesNothing) {
  c.Stato.CartellaProgetto = "before";
  c.Stato.ProjectName = "name before";
  Apri();
  // By its button, by Esc or by the window's own.
  b.Schermi.SuScegliScheda = [this] { c.Stato.SelezioneFlashAnnullata = true; };
  c.Stato.PercorsoMemoryCard = b.Percorso("card") + "\\";  // chosen before
  Leggi();
  // Where there is no drive at all the dialog goes by itself, which is no cancel.
  b.Schermi.SuScegliScheda = [this] { c.Stato.SelezioneFlashAnnullata = false; };
  c.Stato.PercorsoMemoryCard.clear();
  Leggi();
  EXPECT_EQ(c.Stato.CartellaProgetto, "before");
  EXPECT_EQ(c.Stato.ProjectName, "name before");
  EXPECT_EQ(b.Schermi.SchedePer.size(), 2U);
  AspettaNienteFatto();
}

TEST_F(CaricaDaFlash, ACardWithoutItsDescriptorIsToldAndTheListStays) {
  std::filesystem::remove(b.Cartella.Host() / "card/Config.cfg");
  Apri();
  const auto box =
      Avviso("Project not complete",
             "Missing or incomplete: the file 'config.cfg' The folder can't be opened as a "
             "project. Choose another one.");
  Leggi();
  EXPECT_EQ(c.Stato.CartellaProgetto, b.Percorso("card") + "\\") << "until the next one is opened";
  AspettaNienteFatto();
}

TEST_F(CaricaDaFlash, ACardWithoutANameIsToldAndTheListStays) {
  Descrittore("");
  c.Stato.ProjectName = "name before";
  Apri();
  const auto box = Avviso("Project not complete", "Missing or incomplete: the file 'config.cfg'");
  Leggi();
  EXPECT_EQ(c.Stato.ProjectName, "");
  AspettaNienteFatto();
}

TEST_F(CaricaDaFlash, AFolderThatCannotBeMadeIsToldWithItsNumber) {
  b.Cartella.Write("program/Projects/Hall", "a file in its place");
  Apri();
  {
    const Pilota<frmSiNo> box([](frmSiNo& notice) {
      EXPECT_EQ(notice.windowTitle(), "Project folder not created");
      const QString words = notice.lblNota->text().replace(QLatin1Char('\n'), QLatin1Char(' '));
      EXPECT_TRUE(words.startsWith(
          QLatin1String("Nothing was copied: the folder for this card's project can't be made. "
                        "Check the projects folder in Folders and settings, then repeat. "
                        "System code:75 ")))
          << words.toStdString();
      EXPECT_FALSE(notice.cmdNo->isVisible());
      EXPECT_FALSE(notice.lblNota->autoFillBackground());
      Clicca(*notice.cmdSi);
    });
    Leggi();
  }
  EXPECT_EQ(b.Cartella.Read("program/Projects/Hall"), "a file in its place");
  AspettaElencoInUso();
}

TEST_F(CaricaDaFlash, ANameThatNoFolderCanHaveIsToldAsErrorAndMakesNoneAnywhere) {
  for (const char* name : {"..\\..\\card\\more", "..", "a:b", "CON"}) {
    Descrittore(name);
    Apri();
    const Pilota<frmSiNo> box([name](frmSiNo& notice) {
      EXPECT_TRUE(notice.lblNota->text().contains(QLatin1String("System code:52"))) << name;
      Clicca(*notice.cmdSi);
    });
    Leggi();
    EXPECT_EQ(Progetti(), Nomi{}) << name;
    EXPECT_TRUE(b.Schermi.NomiPer.empty()) << name;
  }
}

TEST_F(CaricaDaFlash, WhatTheCardHoldsIsOpenedFromACopyAndTheCardStaysAsItWas) {
  const auto before = FotoScheda();
  frmCaricaProgetto& form = Apri();
  form.picLoadFlash->setFocus();
  Tasto(form, Qt::Key_Return);
  EXPECT_FALSE(forma.Caricata());
  EXPECT_EQ(b.Schermi.Aperture, std::vector<std::int16_t>{2});
  EXPECT_TRUE(b.Schermi.Mostrate.empty()) << "the menu isn't shown";
  EXPECT_EQ(c.Stato.CartellaProgetto, b.Percorso("program/Projects/Hall"));
  EXPECT_EQ(c.Stato.ProjectName, "Hall");
  EXPECT_EQ(c.Stato.PlayerMode, 5);
  EXPECT_EQ(b.Nomi("program/Projects/Hall"), b.Nomi("card"));
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/P01-001.mp3", "card/P01-001.mp3"));
  EXPECT_TRUE(FotoScheda() == before);
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(CaricaDaFlash, ATakenNameIsAskedForAndTheCopyKeepsTheCardsOwnInItsState) {
  std::filesystem::create_directory(b.Cartella.Host() / "program/Projects/HALL");
  std::string offered;
  b.Schermi.SuChiediNome = [&](const std::string& name) {
    EXPECT_EQ(c.Stato.ProjectName, "") << "emptied before it is asked for";
    offered = name;
    c.Stato.ProjectName = "Hall 2";
  };
  Apri();
  Leggi();
  EXPECT_EQ(offered, "Hall");
  EXPECT_EQ(b.Schermi.NomiPer, std::vector{Schermata::ElencoProgetti});
  EXPECT_EQ(c.Stato.CartellaProgetto, b.Percorso("program/Projects/Hall 2"));
  EXPECT_EQ(c.Stato.ProjectName, "Hall") << "read from the copy's descriptor";
  EXPECT_EQ(Progetti(), (Nomi{"HALL", "Hall 2"}));
  EXPECT_TRUE(b.Nomi("program/Projects/HALL").empty());
}

TEST_F(CaricaDaFlash, WithoutAnotherNameItStopsWithoutAWordOrAFolder) {
  std::filesystem::create_directory(b.Cartella.Host() / "program/Projects/Hall");
  Apri();
  Leggi();
  EXPECT_EQ(Progetti(), Nomi{"Hall"});
  EXPECT_EQ(b.Schermi.NomiPer.size(), 1U);
  AspettaElencoInUso();
}

TEST_F(CaricaDaFlash, ACardThatIsEmptyByThenLeavesAnEmptyFolderWithoutAWord) {
  std::filesystem::create_directory(b.Cartella.Host() / "program/Projects/Hall");
  b.Schermi.SuChiediNome = [this](const std::string& /*name*/) {
    for (const char* file : {"Config.cfg", "Config.txt", "1.m3u", "P01-001.mp3"}) {
      std::filesystem::remove(b.Cartella.Host() / "card" / file);
    }
    c.Stato.ProjectName = "Hall 2";
  };
  Apri();
  Leggi();
  EXPECT_EQ(Progetti(), (Nomi{"Hall", "Hall 2"}));
  EXPECT_TRUE(std::filesystem::is_empty(b.Cartella.Host() / "program/Projects/Hall 2"));
  AspettaElencoInUso();
}

TEST_F(CaricaDaFlash, DuringTheCopyTheListTakesNoCommand) {
  frmCaricaProgetto& form = Apri();
  DuranteLaCopia([&] {
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.isEnabled());
    for (const char* name : {"picLoadFlash", "lblCaricaDaFlash", "picLoad", "picindietro"}) {
      Clicca(form, name);
    }
    for (const auto key : {Qt::Key_Escape, Qt::Key_F1, Qt::Key_Return, Qt::Key_Space}) {
      Tasto(form, key);
    }
  });
  Leggi();
  ASSERT_TRUE(met);
  EXPECT_EQ(b.Schermi.SchedePer.size(), 1U);
  EXPECT_TRUE(b.Documenti.Aperti.empty());
  EXPECT_TRUE(b.Schermi.Mostrate.empty());
  EXPECT_EQ(b.Schermi.Aperture, std::vector<std::int16_t>{2}) << "once";
}

TEST_F(CaricaDaFlash, ASecondPressWhileTheCardIsChosenDoesNothing) {
  frmCaricaProgetto& form = Apri();
  b.Schermi.SuScegliScheda = [&] {
    if (std::exchange(met, true)) return;
    for (Coppia* each : {form.picLoadFlash, form.picLoad, form.picOpen}) each->click();
    DaiScheda();
  };
  Leggi();
  EXPECT_EQ(b.Schermi.SchedePer.size(), 1U);
  EXPECT_EQ(b.Schermi.Aperture.size(), 1U);
}

TEST_F(CaricaDaFlash, ACancelledCopyIsToldInOrangeAndWhatWasCopiedStays) {
  AnnullaLaCopia();
  Apri();
  {
    const auto box = AvvisoAnnullata();
    Leggi();
  }
  EXPECT_EQ(Progetti(), Nomi{"Hall"});
  EXPECT_NE(b.Nomi("program/Projects/Hall"), b.Nomi("card"));
  AspettaElencoInUso();
}

TEST_F(CaricaDaFlash, AfterTheCancelAListThatWasHiddenIsSeenAgain) {
  AnnullaLaCopia();
  frmCaricaProgetto& form = Apri();
  DuranteLaCopia([&] { form.hide(); });
  const auto box = AvvisoAnnullata();
  Leggi();
  ASSERT_TRUE(met);
  EXPECT_TRUE(form.isVisible());
  EXPECT_TRUE(form.isEnabled());
}

TEST_F(CaricaDaFlash, AfterTheCancelTheKeyboardIsWhereItWasAndTheCardCanBeReadOnceMore) {
  AnnullaLaCopia();
  frmCaricaProgetto& form = Apri();
  form.picLoadFlash->setFocus();
  {
    const auto box = AvvisoAnnullata();
    Tasto(form, Qt::Key_Return);
  }
  ASSERT_TRUE(DiNuovoPronta(form));
  ASSERT_NE(form.focusWidget(), nullptr);
  EXPECT_EQ(form.focusWidget()->objectName(), "picLoadFlash") << "who works by keys goes on there";
  form.picLoadFlash->setFocus();
  b.Copia.AnnullaAlla = 0;
  b.Schermi.SuChiediNome = [this](const std::string& /*name*/) { c.Stato.ProjectName = "Again"; };
  Tasto(form, Qt::Key_Return);
  EXPECT_EQ(c.Stato.CartellaProgetto, b.Percorso("program/Projects/Again"));
  EXPECT_EQ(b.Nomi("program/Projects/Again"), b.Nomi("card"));
}

TEST_F(CaricaDaFlash, AStaleCancelDoesNotCountAsOneOfThisCopy) {
  c.Stato.AnnullatoDaUtente = true;
  Apri();
  Leggi();
  EXPECT_EQ(b.Schermi.Aperture, std::vector<std::int16_t>{2});
}

TEST_F(CaricaDaFlash, AWindowThatIsClosedDuringTheCopyGivesWayToTheHub) {
  frmCaricaProgetto& form = Apri();
  DuranteLaCopia([&] { form.close(); });
  Leggi();
  ASSERT_TRUE(met);
  QCoreApplication::processEvents();
  EXPECT_EQ(b.Schermi.Aperture, std::vector<std::int16_t>{2});
  EXPECT_TRUE(b.Schermi.Mostrate.empty()) << "the menu would lie over the hub";
  EXPECT_FALSE(forma.Caricata());
}

TEST_F(CaricaDaFlash, AWindowThatIsClosedDuringACopyThatIsCancelledGoesBackToTheMenu) {
  AnnullaLaCopia();
  frmCaricaProgetto& form = Apri();
  DuranteLaCopia([&] { form.close(); });
  {
    const auto box = AvvisoAnnullata();
    Leggi();
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return !forma.Caricata(); }));
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Menu});
  EXPECT_TRUE(b.Schermi.Aperture.empty());
}

TEST_F(CaricaDaFlash, WhatIsNoProjectIsToldAndTheListIsToBeUsedAgain) {
  std::filesystem::remove(b.Cartella.Host() / "card/Config.txt");
  frmCaricaProgetto& form = Apri();
  {
    const Pilota<RiquadroMessaggio> box([](RiquadroMessaggio& words) {
      EXPECT_EQ(words.windowTitle(), "Project not complete");
      EXPECT_TRUE(QString::fromStdString(Scritta(words, "lblTesto"))
                      .startsWith(QLatin1String("Missing or incomplete: the file 'Config.txt'")));
      Clicca(words, "cmdOk");
    });
    Leggi();
  }
  EXPECT_EQ(form.ModoScelto, 2);
  EXPECT_EQ(b.Nomi("program/Projects/Hall"), b.Nomi("card")) << "nothing is taken back";
  AspettaElencoInUso();
}

TEST_F(CaricaDaFlash, TheProgressWindowOfTheProgramIsUnloadedInCaseItIsThere) {
  avanzamento.ValoreMassimo = 7;
  avanzamento.Mostra();
  ASSERT_TRUE(avanzamento.Caricata());
  Apri();
  Leggi();
  EXPECT_FALSE(avanzamento.Caricata());
}

TEST_F(CaricaDaFlash, AProjectThatCameFromACardIsInTheListTheNextTime) {
  Apri();
  Leggi();
  frmCaricaProgetto& form = Apri();
  const auto* rows = form.lstProgetti->model();
  ASSERT_EQ(rows->rowCount(), 1);
  EXPECT_EQ(rows->index(0, ListaProgetti::Nome).data().toString(), "Hall");
}

}  // namespace
}  // namespace kvr5
