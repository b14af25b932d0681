#include <QApplication>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "Photographer.h"
#include "core/screens/Davanti.h"
#include "core/screens/frmSalva.h"
#include "flashcard/ContenutoScheda.h"
#include "flashcard/screens/frmCopiaManuale.h"
#include "flashcard/screens/frmProgress.h"
#include "flashcard/screens/frmVerifica.h"
#include "projects/ParoleRitrovo.h"
#include "projects/ParoleSubentro.h"
#include "projects/screens/frmRichiestaNomeForm.h"

namespace shots {
namespace {

constexpr std::uint32_t kOrange = 33023;

void TakeQuestions(Photographer& camera) {
  auto& boxes = camera.C().Finestre;
  camera.TakeModal("frmSiNo", QStringLiteral("frmSiNo"), [&] {
    boxes.MostraSiNo({camera.Text("0040027"), camera.Text("0040026"), {}, {}});
  });
  camera.TakeModal("frmSiNo", QStringLiteral("frmSiNo-notice"), [&] {
    boxes.MostraSiNo({camera.Text("0070009"), camera.Text("0070019") + ":\r\ngong.mp3",
                      camera.Text("0140022"), kOrange});
  });
  camera.TakeModal("RiquadroMessaggio", QStringLiteral("message"), [&] {
    boxes.MostraMessaggio({camera.Text("0040017"),
                           camera.Text("0040018") + "\r\n" + camera.Text("0040019") + "\r\n" +
                               camera.Text("0040020") + "\r\n" + camera.Text("0040021"),
                           kvr5::Icona::Domanda, kvr5::Pulsanti::SiNoAnnulla,
                           kvr5::Risposta::Annulla});
  });
  camera.TakeModal("RiquadroMessaggio", QStringLiteral("message-path"), [&] {
    std::string path = camera.Music();
    for (int i = 0; i < 5; ++i) path += "\\Audio_guides_of_the_permanent_exhibition";
    boxes.MostraMessaggio({camera.Text("0130002"),
                           camera.Text("0130003") + "\r\n" + path + "\\welcome.mp3",
                           kvr5::Icona::Avviso, kvr5::Pulsanti::Ok, kvr5::Risposta::Ok});
  });
}

/// A card without a project, and one with.
void TakeCards(Photographer& camera) {
  const auto& files = camera.C().Files;
  const std::string project = camera.C().Stato.CartellaProgetti + "\\Museum-Hall-2";
  std::filesystem::copy(files.HostPath(project), files.HostPath("F:\\"));
  const auto choose = [&camera] { camera.Program().ScegliScheda(kvr5::Schermata::Nessuna); };
  camera.TakeModal("frmSelectFlash", QStringLiteral("frmSelectFlash"), choose);
  QTimer::singleShot(20, qApp, [] {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* dialog = dynamic_cast<kvr5::frmSelectFlash*>(widget);
      if (dialog != nullptr && dialog->isVisible()) dialog->cmdFlash->setCurrentIndex(1);
    }
  });
  camera.TakeModal("frmSelectFlash", QStringLiteral("frmSelectFlash-project"), choose);
}

void TakeVerified(Photographer& camera, kvr5::Ambiente& ambiente, const QString& name) {
  kvr5::frmVerifica window(ambiente);
  window.Mostra();
  WaitFor([&window] { return window.picRipeti->isEnabled(); });
  camera.Take("frmVerifica", name);
}

/// A card as the project is, one that isn't, and the bar of the copy by hand.
void TakeVerification(Photographer& camera, kvr5::Ambiente& ambiente) {
  namespace fs = std::filesystem;
  auto& state = camera.C().Stato;
  const auto& files = camera.C().Files;
  const kvr5::StatoApplicazione before = state;
  state.ProjectName = "Museum-Hall-2";
  state.CartellaProgetto = state.CartellaProgetti + "\\Museum-Hall-2";
  state.PercorsoMemoryCard = "F:\\";
  const fs::path card = files.HostPath("F:\\");
  fs::remove(card / "KVR5.gif");
  for (const auto& file : kvr5::ContenutoDellaScheda(camera.C()).File) {
    std::error_code missing;
    fs::copy(files.HostPath(file.Sorgente), card / file.Nome, fs::copy_options::overwrite_existing,
             missing);
  }
  TakeVerified(camera, ambiente, QStringLiteral("frmVerifica"));
  fs::remove(card / "Config.txt");
  std::ofstream(card / "Config.cfg") << "other";
  std::ofstream(card / "5.mp3") << "left";
  std::ofstream(card / "PLAYLIST.M3U") << "P01-001\r\n";
  TakeVerified(camera, ambiente, QStringLiteral("frmVerifica-findings"));
  kvr5::frmCopiaManuale bar(ambiente);
  bar.Mostra();
  camera.Take("frmCopiaManuale", QStringLiteral("frmCopiaManuale"));
  state = before;
}

void TakeWork(Photographer& camera, kvr5::Ambiente& ambiente) {
  kvr5::ProgressoQt work(ambiente);
  work.Operazione(camera.Text("0070016"));
  work.ValoreMassimo = 7;
  work.FileTotali = 4999;
  work.Mostra();
  for (int step = 0; step < 4; ++step) work.Step(1250, false);
  camera.Take("frmProgress", QStringLiteral("frmProgress"));
  work.Step(0, false);
  work.Annulla();
  camera.Take("frmProgress", QStringLiteral("frmProgress-cancelled"));
}

void TakeCopy(Photographer& camera) {
  kvr5::RiquadroCopia window(camera.C());
  kvr5::MettiDavanti(window, nullptr);
  constexpr std::uint64_t kMega = 1ULL << 20U;
  const std::string file =
      camera.Music() + "\\Audio guides of the permanent exhibition\\Hall 2\\welcome.mp3";
  window.Aggiorna({file, 14, 92, 310 * kMega, 742 * kMega}, 41000);
  camera.Take("FinestraCopia", QStringLiteral("copy"));
}

void TakeNames(Photographer& camera, kvr5::Ambiente& ambiente) {
  kvr5::frmRichiestaNomeForm name(ambiente);
  name.SoloNome = true;
  name.Mostra();
  camera.Take("frmRichiestaNomeForm", QStringLiteral("frmRichiestaNomeForm"));
  name.txtNomeProgetto->setText(QStringLiteral("Hall: 2"));
  camera.Take("frmRichiestaNomeForm", QStringLiteral("frmRichiestaNomeForm-warning"));
}

/// What is told of projects of earlier years, and of a search for missing files.
void TakeOldProjects(Photographer& camera) {
  const auto show = [&camera](const kvr5::Messaggio& box, const char* name) {
    camera.TakeModal("RiquadroMessaggio", QString::fromUtf8(name),
                     [&] { camera.C().Finestre.MostraMessaggio(box); });
  };
  kvr5::EsitoSubentro taken{
      .Fine = kvr5::FineSubentro::Compiuto,
      .Database = {{.Nome = "inputcfg.mdb", .DiJet = true, .File = 12, .Preso = true},
                   {.Nome = "playlist.mdb", .DiJet = true, .File = 240, .Segmenti = 7}},
      .Originali = camera.C().Stato.CartellaProgetti + "\\Museum-Hall-2\\Originals"};
  show(kvr5::BoxSubentro(camera.C(), taken), "message-takeover");
  taken.Fine = kvr5::FineSubentro::Fallito;
  taken.Database[1].Guasto = {kvr5::jet::Fault::Jet3};
  show(kvr5::BoxSubentro(camera.C(), taken), "message-takeover-refused");
  kvr5::EsitoRitrovo found;
  found.Righe = {{.Database = "playlist.mdb", .Nome = "welcome.mp3", .Ora = "C:\\Music\\"},
                 {.Database = "playlist.mdb", .Nome = "goodbye.mp3"},
                 {.Database = "playlist.mdb", .Nome = "gong.mp3", .Dubbia = true}};
  show(kvr5::BoxRitrovo(camera.C(), found), "message-found");
}

void TakeSave(Photographer& camera, kvr5::Ambiente& ambiente) {
  kvr5::frmSalva save(ambiente);
  save.Mostra();
  camera.Take("frmSalva", QStringLiteral("frmSalva"));
}

}  // namespace

void TakeBoxes(Photographer& camera) {
  // A life of their own: the program must not end with the last of these.
  kvr5::VitaForme life;
  kvr5::EsecutoreQt documents(camera.C());
  kvr5::Ambiente ambiente{camera.C(), camera.Program(), documents, life, camera.Program().Suono()};
  TakeCards(camera);
  TakeVerification(camera, ambiente);
  TakeQuestions(camera);
  TakeOldProjects(camera);
  TakeWork(camera, ambiente);
  TakeCopy(camera);
  TakeNames(camera, ambiente);
  TakeSave(camera, ambiente);
}

}  // namespace shots
