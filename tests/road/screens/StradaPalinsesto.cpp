#include "road/screens/StradaPalinsesto.h"

#include <QMenu>
#include <algorithm>

#include "projects/screens/frmCaricaProgetto.h"
#include "support/RigheDelDatabase.h"

namespace kvr5::test {
namespace {

constexpr std::int16_t kOstrel = 3;
constexpr std::int16_t kKvr5 = 4;

}  // namespace

void StradaPalinsesto::SetUp() {
  StradaPlaylist::SetUp();
  if (IsSkipped()) return;
  int seed = 1;
  for (const char* name : {"uno", "due", "tre", "quattro", "cinque", "sei", "sette", "otto"}) {
    const std::string file = std::string("c/") + name + ".mp3";
    b.ScriviMp3("music/" + file, seed++, 40);
    Musica[file] = b.Cartella.Read("music/" + file);
  }
}

void StradaPalinsesto::CreaKvr5() {
  Avvia();
  PassaLoSplash();
  Clicca(*Attendi<frmMain>().picNuovoProgetto);
  auto& wizard = Attendi<frmWizardPanel1>();
  Riscrivi(*wizard.txtNomeProgetto, QStringLiteral("Bar"));
  Clicca(*wizard.optPanel_2);
  Clicca(*wizard.picGoOn);
  Hub();
  ASSERT_EQ(S().PlayerType, kKvr5);
  ASSERT_EQ(S().PlayerMode, 2);
}

void StradaPalinsesto::ApriOstrel(std::int16_t modo) {
  b.CreaProgetto("Bar", kOstrel, modo);
  ASSERT_TRUE(b.Cartella.Exists(NelProgetto("scheduler.mdb")));
  Avvia();
  PassaLoSplash();
  Clicca(*Attendi<frmMain>().picCaricaDaDisco);
  Tasto(Attendi<frmCaricaProgetto>(), Qt::Key_Return);
  Hub();
  ASSERT_EQ(S().PlayerType, kOstrel);
  ASSERT_EQ(S().PlayerMode, modo);
}

void StradaPalinsesto::Apri(std::int16_t tipo, std::int16_t modo) {
  if (tipo == kKvr5) return CreaKvr5();
  ApriOstrel(modo);
}

frmPalinsesto& StradaPalinsesto::ApriPalinsesto() {
  frmPlayerConfig& hub = Hub();
  const bool button = hub.Barra->picPalinsesto->isVisible();
  EXPECT_EQ(button, S().PlayerType == kKvr5);
  if (button) {
    Clicca(*hub.Barra->picPalinsesto);
  } else {
    Clicca(*hub.Barra->picAltro);
    QMenu& menu = hub.Barra->menuAltro;
    EXPECT_TRUE(QTest::qWaitFor([&menu] { return menu.isVisible(); }));
    const auto entries = menu.actions();
    const auto at = std::ranges::find(entries, QStringLiteral("Schedule…"), &QAction::text);
    if (at == entries.end()) throw std::logic_error("no way leads to the schedule");
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(*at).center());
  }
  auto& editor = Attendi<frmPalinsesto>();
  EXPECT_EQ(Viste(), std::vector<std::string>{"frmPalinsesto"});
  EXPECT_TRUE(QTest::qWaitFor([&editor] { return !editor.tmrIniziale.isActive(); }));
  return editor;
}

void StradaPalinsesto::SalvaPalinsesto(frmPalinsesto& editor, std::optional<bool> risposta) {
  std::optional<Pilota<frmSiNo>> question;
  if (risposta) {
    question.emplace([risposta](frmSiNo& box) { Clicca(*risposta ? *box.cmdSi : *box.cmdNo); });
  }
  Clicca(*editor.picSave);
  Hub();
}

void StradaPalinsesto::Palinsesto(const Passi& passi, std::optional<bool> risposta) {
  frmPalinsesto& editor = ApriPalinsesto();
  PalinsestoAMano(editor, Host("music")).Esegui(passi);
  SalvaPalinsesto(editor, risposta);
}

void StradaPalinsesto::PalinsestoDelCompagno(const Passi& passi, bool risposta) {
  const auto run = Compagna({"schedule", "Bar"}, TestoPalinsesto(passi, Host("music")) +
                                                     (risposta ? "yes" : "no") + "\nsave\n");
  EXPECT_EQ(run.Stato, 0) << run.Errori;
  for (const auto& each : run.Box()) EXPECT_TRUE(each.contains("box")) << each;
}

std::vector<std::string> StradaPalinsesto::Segmenti() {
  b.C.Stato.CartellaProgetto = b.Percorso(kProgetto);
  return RigheDelDatabase(
      b, "scheduler.mdb", "SELECT * FROM [HEAD] ORDER BY [ID]", [](const Recordset& row) {
        return row.Text("ID") + " " + row.Text("NScheduler") + " " + row.Text("StartTime");
      });
}

std::vector<std::string> StradaPalinsesto::Spot() {
  b.C.Stato.CartellaProgetto = b.Percorso(kProgetto);
  return RigheDelDatabase(
      b, "scheduler.mdb", "SELECT * FROM [List] ORDER BY [ID]", [](const Recordset& row) {
        return row.Text("ID") + " " + row.Text("NPlaylist") + "/" + row.Text("IDSched") + "/" +
               row.Text("Pos") + " " + row.Text("FileName") + " " + row.Text("Alias");
      });
}

}  // namespace kvr5::test
