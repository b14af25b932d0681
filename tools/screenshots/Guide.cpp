#include <QApplication>
#include <QTimer>
#include <filesystem>
#include <string>
#include <vector>

#include "Photographer.h"
#include "flashcard/ContenutoScheda.h"
#include "flashcard/screens/frmVerifica.h"
#include "projects/CartellaProgetto.h"

namespace shots {
namespace {

void LetEventsRun() {
  for (int i = 0; i < 8; ++i) QCoreApplication::processEvents();
}

void TakeStart(Photographer& camera) {
  camera.Program().Mostra(kvr5::Schermata::Menu);
  camera.Take("frmMain", QStringLiteral("frmMain"));
  camera.Program().Mostra(kvr5::Schermata::Wizard);
  OnScreen<kvr5::frmWizardPanel1>().txtNomeProgetto->setText(QStringLiteral("Museum-Hall-2"));
  camera.Take("frmWizardPanel1", QStringLiteral("frmWizardPanel1"));
}

/// A project of inputs with its files, first while they are picked, then with its card.
void TakeInputs(Photographer& camera) {
  camera.Project("Museum-Hall-2", 4, 1);
  {
    const std::string folder = camera.Music() + "\\";
    kvr5::TabellaIngressi inputs(camera.C());
    inputs.Apri();
    inputs.Assegna(1, "welcome.mp3", folder);
    inputs.Assegna(2, "gallery.mp3", folder);
    inputs.Assegna(5, "door.mp3", folder);
    inputs.Assegna(128, "closing.mp3", folder);
  }
  camera.Program().ApriConfigurazione(1);
  auto& hub = OnScreen<kvr5::frmPlayerConfig>();
  hub.fraFileName->DirDirectoryMp3->ImpostaPercorso(camera.Music());
  hub.fraIngressiLogici->chkIn[0]->click();
  hub.fraIngressiLogici->chkIn[2]->click();
  camera.Take("frmPlayerConfig", QStringLiteral("hub"));
  camera.TakeModal("frmSelectFlash", QStringLiteral("frmSelectFlash"),
                   [&camera] { camera.Program().ScegliScheda(kvr5::Schermata::Nessuna); });
  camera.C().Stato.PercorsoMemoryCard = "E:\\";
  camera.Program().AggiornaPercorsoMemoryCard();
  WaitFor([&hub] { return hub.Scheda->picSpazio->isVisible(); });
  camera.Take("frmPlayerConfig", QStringLiteral("hub-card"));
}

/// The card as the project is, but for a file that a recording before left there.
void TakeVerification(Photographer& camera) {
  namespace fs = std::filesystem;
  const auto& files = camera.C().Files;
  const fs::path card = files.HostPath("E:\\");
  for (const auto& file : kvr5::ContenutoDellaScheda(camera.C()).File) {
    fs::copy(files.HostPath(file.Sorgente), card / file.Nome);
  }
  fs::copy(files.HostPath(camera.Music() + "\\gong.mp3"), card / "12.mp3");
  kvr5::VitaForme life;
  kvr5::EsecutoreQt documents(camera.C());
  kvr5::Ambiente place{camera.C(), camera.Program(), documents, life, camera.Program().Suono()};
  kvr5::frmVerifica window(place);
  window.Mostra();
  WaitFor([&window] { return window.picRipeti->isEnabled(); });
  camera.Take("frmVerifica", QStringLiteral("frmVerifica"));
  window.Scarica();
  camera.Program().DimenticaConfigurazione();
  camera.C().Stato.PercorsoMemoryCard.clear();
}

void Fill(Photographer& camera, const char* database, const std::vector<std::string>& statements) {
  kvr5::Connection connection(camera.C().Files);
  if (connection.Open(kvr5::FileDelProgetto(camera.C(), database))) return;
  for (const auto& statement : statements) kvr5::Ignora(connection.Execute(statement));
}

void TakePlaylist(Photographer& camera) {
  camera.Project("Shop", 4, 5);
  std::vector<std::string> rows;
  for (const char* name : {"morning-1.mp3", "morning-2.mp3", "gallery.mp3", "morning-3.mp3"}) {
    rows.push_back("INSERT INTO [List] ([Pos],[FileName],[FilePath],[NPlaylist]) VALUES(" +
                   std::to_string(rows.size() + 1) + ",'" + name + "','" + camera.Music() +
                   "\\',1)");
  }
  Fill(camera, "playlist.mdb", rows);
  camera.Program().ApriPlaylist(kvr5::Schermata::Nessuna);
  auto& editor = OnScreen<kvr5::frmPlaylistEditor>();
  editor.fraFile->DirDirectoryMp3->ImpostaPercorso(camera.Music());
  editor.fraFile->filMp3->setCurrentRow(0);
  WaitFor([&] {
    return editor.cmdAggiungiFile->isVisible() && !editor.Brani->lblTotali->text().isEmpty();
  });
  camera.Take("frmPlaylistEditor", QStringLiteral("editor-playlists"));
  editor.Scarica();
  LetEventsRun();
}

void TakeSchedule(Photographer& camera) {
  camera.Project("Station", 3, 3);
  const std::string folder = camera.Music() + "\\";
  std::vector<std::string> rows;
  int segment = 0;
  const auto add = [&](const char* time, std::initializer_list<const char*> names) {
    ++segment;
    rows.push_back(std::string("INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(1,#") + time +
                   "#)");
    int pos = 0;
    for (const char* name : names) {
      rows.push_back(
          "INSERT INTO [List] ([Pos],[FileName],[FilePath],[NPlaylist],[IDSched]) VALUES(" +
          std::to_string(++pos) + ",'" + name + "','" + folder + "',1," + std::to_string(segment) +
          ")");
    }
  };
  add("08.30", {"gong.mp3", "welcome.mp3"});
  add("10.00", {"morning-1.mp3"});
  add("12.15", {"door.mp3", "gallery.mp3"});
  add("17.45", {"closing.mp3"});
  Fill(camera, "scheduler.mdb", rows);
  camera.Program().ApriPalinsesto(kvr5::Schermata::Nessuna);
  auto& editor = OnScreen<kvr5::frmPalinsesto>();
  editor.fraFile->DirDirectoryMp3->ImpostaPercorso(camera.Music());
  editor.fraFile->filMp3->setCurrentRow(2);
  WaitFor([&] {
    return editor.picDettaglio->lblTotaleSpot->text().contains(QLatin1Char(':')) &&
           !editor.fraFileInfo->lblFreq->text().isEmpty();
  });
  camera.Take("frmPalinsesto", QStringLiteral("editor-schedule"));
  editor.Scarica();
  LetEventsRun();
}

}  // namespace

void TakeGuide(Photographer& camera) {
  TakeStart(camera);
  TakeInputs(camera);
  TakeVerification(camera);
  TakePlaylist(camera);
  TakeSchedule(camera);
  camera.TakeModal("frmTempiFade", QStringLiteral("frmTempiFade"),
                   [&camera] { camera.Program().ApriTempiFade(); });
  camera.Program().MostraElencoProgetti(kvr5::Schermata::Nessuna);
  camera.Take("frmCaricaProgetto", QStringLiteral("frmCaricaProgetto"));
}

}  // namespace shots
