#include "road/screens/BancoStrada.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QTableView>
#include <QTest>
#include <algorithm>

#include "core/screens/RiquadroMessaggio.h"
#include "road/Encoder.h"
#include "support/screens/Scelte.h"

namespace kvr5::test {

void Strada::SetUp() {
  const std::string music = (b.Cartella.Host() / "music").string();
  std::filesystem::create_directories(music);
  if (!EncodeMp3(music + "/welcome.mp3", "-b 128 --cbr", 440)) GTEST_SKIP() << "lame is missing";
  ASSERT_TRUE(EncodeMp3(music + "/L'été.mp3", "--abr 160", 660));
  ASSERT_TRUE(EncodeMp3(music + "/48k.mp3", "-b 128 --cbr --resample 48", 880));
  b.Cartella.Write("program/KVR5Software.ini",
                   "[Config]\r\nLanguageFile=English.lan\r\n[Path]\r\n"
                   "LastMp3Dir=" +
                       b.Percorso("music") + "\r\n");
  b.Cartella.Write("program/Drives.ini",
                   "[Removable]\r\nE=" + (b.Cartella.Host() / "card").string() + "\r\n");
  programma = std::make_unique<Programma>((b.Cartella.Host() / "program").string(), fine);
}

void Strada::Avvia() {
  programma->Avvia({});
  Schermo("frmMain");
}

QWidget& Strada::Schermo(const char* name) {
  QWidget* found = nullptr;
  const auto there = [&] {
    const auto windows = QApplication::topLevelWidgets();
    const auto at = std::ranges::find_if(windows, [name](QWidget* each) {
      return each->isVisible() && each->objectName() == QLatin1String(name);
    });
    found = at == windows.end() ? nullptr : *at;
    return found != nullptr;
  };
  const bool came = QTest::qWaitFor(there);
  // Without a display nobody gives the keyboard back to the window behind one that has gone.
  if (came && QApplication::activeWindow() == nullptr) found->activateWindow();
  if (!came || !Pronta(*found)) {
    throw std::logic_error(std::string(name) + " doesn't come");
  }
  return *found;
}

void Strada::NuovoProgetto(const QString& name) {
  Clic("frmMain", "picNuovoProgetto");
  QWidget& wizard = Schermo("frmWizardPanel1");
  Riscrivi(Controllo(wizard, "txtNomeProgetto"), name);
  Clicca(wizard, "optPanel_1");
  Clicca(wizard, "picGoOn");
  Schermo("frmPlayerConfig");
}

void Strada::ApriProgetto(int row) {
  Clic("frmMain", "picCaricaDaDisco");
  QWidget& list = Schermo("frmCaricaProgetto");
  auto& rows = Controllo<QTableView>(list, "lstProgetti");
  rows.selectRow(row);
  Clicca(list, "picOpen");
  Schermo("frmPlayerConfig");
}

void Strada::TornaAlMenu() {
  const Pilota<RiquadroMessaggio> yes([](RiquadroMessaggio& box) { Clicca(box, "cmdYes"); });
  Clic("frmPlayerConfig", "picEsci");
  Schermo("frmMain");
}

void Strada::Assegna(std::initializer_list<int> ingressi, const std::string& file) {
  QWidget& hub = Schermo("frmPlayerConfig");
  for (int input = 1; input <= 8; ++input) {
    auto& box = Controllo<QCheckBox>(hub, ("chkIn_" + std::to_string(input)).c_str());
    const bool wanted = std::ranges::find(ingressi, input) != ingressi.end();
    if (box.isChecked() != wanted) Clicca(box);
  }
  ScegliVoce(Controllo<QComboBox>(hub, "cmbFileMp3"), file);
  Clicca(hub, "cmdOkFileMp3");
}

void Strada::VaiAllaMusica() {
  const QString music = QString::fromStdString((b.Cartella.Host() / "music").string());
  const Pilota<QFileDialog> browser([music](QFileDialog& box) {
    box.setDirectory(music);
    static_cast<QDialog&>(box).accept();
  });
  Clic("frmPlayerConfig", "picDisk");
}

}  // namespace kvr5::test
