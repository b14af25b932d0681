#include "road/screens/StradaScheda.h"

#include <QComboBox>
#include <QSlider>
#include <algorithm>

#include "core/screens/RiquadroMessaggio.h"
#include "core/screens/frmSalva.h"
#include "flashcard/screens/frmSelectFlash.h"
#include "projects/screens/frmCaricaProgetto.h"
#include "projects/screens/frmRichiestaNomeForm.h"
#include "support/screens/Frattempo.h"
#include "support/screens/Scelte.h"

namespace kvr5::test {

namespace fs = std::filesystem;

void StradaScheda::SetUp() {
  StradaPalinsesto::SetUp();
  if (IsSkipped()) return;
  fs::create_directory(Host("card2"));
  b.Cartella.Write("program/Drives.ini", "[Removable]\r\nE=" + Host("card").string() +
                                             "\r\nF=" + Host("card2").string() + "\r\n");
}

void StradaScheda::ApriPrimo() {
  Avvia();
  PassaLoSplash();
  Clicca(*Attendi<frmMain>().picCaricaDaDisco);
  Tasto(Attendi<frmCaricaProgetto>(), Qt::Key_Return);
  Hub();
}

frmCaricaProgetto& StradaScheda::TornaAllElenco() {
  {
    const Pilota<RiquadroMessaggio> yes([](RiquadroMessaggio& box) { Clicca(box, "cmdYes"); });
    Clicca(*Hub().Barra->picEsci);
  }
  EXPECT_TRUE(QTest::qWaitFor([] { return Vista<frmMain>() != nullptr; }));
  if (QApplication::activeWindow() == nullptr) Vista<frmMain>()->activateWindow();
  Clicca(*Attendi<frmMain>().picCaricaDaDisco);
  return Attendi<frmCaricaProgetto>();
}

void StradaScheda::PrendiScheda(frmSelectFlash& dialogo, char lettera) {
  ScegliVoce(*dialogo.cmdFlash, std::string(1, lettera) + ":\\");
  Clicca(*dialogo.picOk);
}

void StradaScheda::PremiRileggi(char lettera) {
  const Pilota<frmSelectFlash> card(
      [lettera](frmSelectFlash& dialog) { PrendiScheda(dialog, lettera); });
  Clicca(*Attendi<frmCaricaProgetto>().picLoadFlash);
}

frmPlayerConfig& StradaScheda::Rileggi(char lettera, const std::string& nome) {
  const Pilota<frmSelectFlash> card(
      [lettera](frmSelectFlash& dialog) { PrendiScheda(dialog, lettera); });
  std::optional<Pilota<frmRichiestaNomeForm>> name;
  if (!nome.empty()) {
    name.emplace([&](frmRichiestaNomeForm& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "This project exists: give another name");
      EXPECT_FALSE(dialog.txtNomeProgetto->selectedText().isEmpty()) << "the card's own name";
      Scrivi(dialog, QString::fromStdString(nome));
      Clicca(*dialog.picGoOn);
    });
  }
  Clicca(*Attendi<frmCaricaProgetto>().picLoadFlash);
  return Hub();
}

void StradaScheda::ScegliScheda(char lettera) {
  const Pilota<frmSelectFlash> card(
      [lettera](frmSelectFlash& dialog) { PrendiScheda(dialog, lettera); });
  Clicca(*Hub().Scheda->cmdScegli);
}

std::string StradaScheda::Verifica() {
  std::string found;
  {
    const auto over = [] {
      const auto* window = Vista<frmVerifica>();
      return window != nullptr && window->picRipeti->isEnabled();
    };
    const Frattempo look(over, [&found] {
      auto& window = *Vista<frmVerifica>();
      const auto& rows = *window.grdRiscontri->model();
      for (int row = 0; row < rows.rowCount(); ++row) {
        found += rows.index(row, 0).data().toString().toStdString() + " " +
                 rows.index(row, 1).data().toString().toStdString() + "\n";
      }
      EXPECT_EQ(found.empty(), window.lblBuono->isVisible()) << Scritta(window, "lblEsito");
      window.picChiudi->click();
    });
    Clicca(*Hub().Barra->picVerifica);
  }
  Hub();
  return found;
}

void StradaScheda::CambiaVolumeESalva() {
  auto& hub = Hub();
  hub.fraOutputLevel->sliVolume->setFocus();
  Tasto(hub, hub.fraOutputLevel->sliVolume->value() > 0 ? Qt::Key_Down : Qt::Key_Up);
  EXPECT_TRUE(hub.lblNonSalvato->isVisible());
  std::optional<Pilota<frmSalva>> question;
  if (!TabellaIngressi::SenzaIngressi(S().PlayerType, S().PlayerMode)) {
    question.emplace([](frmSalva& form) {
      if (form.chkSaveMp3Inputs->isChecked()) Clicca(*form.lblSaveMp3Inputs);
      Clicca(*form.picSalva);
    });
  }
  const Pilota<RiquadroMessaggio> closing([](RiquadroMessaggio& box) { Clicca(box, "cmdOk"); });
  Clicca(*hub.Barra->picSave);
  EXPECT_FALSE(Hub().lblNonSalvato->isVisible());
}

std::vector<std::string> StradaScheda::Progetti() const {
  std::vector<std::string> names;
  for (const auto& each : fs::directory_iterator(Host("program/Projects"))) {
    names.push_back(each.path().filename().string());
  }
  std::ranges::sort(names);
  return names;
}

}  // namespace kvr5::test
