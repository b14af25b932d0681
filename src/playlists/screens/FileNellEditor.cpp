// The file pane of the editor of playlists, what it tells of a file, and how files get into the
// list.

#include "core/Aiuti.h"
#include "core/CartellaMp3.h"
#include "core/Lingua.h"
#include "core/screens/Testo.h"
#include "mp3/GiudizioFile.h"
#include "playlists/AggiungiScelti.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/ImportaPlaylist.h"
#include "playlists/screens/frmPlaylistEditor.h"

namespace kvr5 {

void frmPlaylistEditor::CollegaPane() {
  connect(fraFile->picDisk, &QAbstractButton::clicked, this,
          [this] { Comando([this] { SfogliaMp3(); }); });
  fraFile->DirDirectoryMp3->SuClic = [this] {
    Comando([this] {
      RileggiFile();
      TieniCartella(C(), fraFile->DirDirectoryMp3->Percorso());
    });
  };
  fraFile->SuCartella = [this] { Comando([this] { CambiataCartella(); }); };
  fraFile->filMp3->SuClic = [this] { Comando([this] { ClicFile(); }); };
  fraFile->filMp3->SuDoppio = [this] { Comando([this] { DoppioFile(); }); };
  connect(&fraFileInfo->tmrInfoMp3, &QTimer::timeout, this, [this] {
    Comando([this] {
      MostraInfoMp3();
      C().Messaggi.LasciaCorrere();
    });
  });
}

void frmPlaylistEditor::SfogliaMp3() {
  const std::string chosen =
      C().Finestre.SfogliaCartella(TestoLingua(C(), "50014"), fraFile->DirDirectoryMp3->Percorso());
  if (const auto folder = ScegliCartella(C(), chosen)) {
    fraFile->DirDirectoryMp3->ImpostaPercorso(*folder);
  }
}

void frmPlaylistEditor::CambiataCartella() {
  NienteFile();
  // The load only goes where the settings lead.
  if (isVisible()) TieniCartella(C(), fraFile->DirDirectoryMp3->Percorso());
}

void frmPlaylistEditor::RileggiFile() {
  const std::string before = fraFile->Corrente();
  if (!fraFile->Rileggi() || fraFile->Corrente() == before) return;
  NienteFile();
  if (!fraFile->Corrente().empty()) fraFileInfo->tmrInfoMp3.start();
}

void frmPlaylistEditor::NienteFile() {
  cmdAggiungiFile->hide();
  fraFileInfo->tmrInfoMp3.stop();
  PulisciInfoMp3();
}

void frmPlaylistEditor::ClicFile() {
  NienteFile();
  if (!fraFile->Corrente().empty()) fraFileInfo->tmrInfoMp3.start();
  ascolto_.Stop();  // last: it lets events run, and the second half of a double click is one
}

void frmPlaylistEditor::PulisciInfoMp3() {
  fraFileInfo->Mostra({}, {}, {}, {});
  fraFileInfo->MostraAvviso(false, {});
}

void frmPlaylistEditor::MostraInfoMp3() {
  const std::string name = fraFile->Corrente();
  if (name.empty()) return;
  PulisciInfoMp3();
  C().Messaggi.LasciaCorrere();
  if (fraFile->Corrente() != name) return;  // another was picked meanwhile: its turn comes
  const std::string path = AggiungiBarra(fraFile->DirDirectoryMp3->Percorso()) + name;
  const GiudizioFile judged = GiudicaFile(C(), lettore_, path);
  const PannelloMp3& panel = judged.Pannello;
  const EtichetteMp3& labels = panel.Etichette;
  fraFileInfo->Mostra(Qs(labels.lblVersioneMpeg), Qs(labels.lblBitrate), Qs(labels.lblFreq),
                      Qs(labels.lblDurata));
  fraFileInfo->MostraAvviso(panel.lblBadFileType, Qs(judged.Perche));
  if (panel.Verdetto == VerdettoMp3::NonLetto) cmdAggiungiFile->setEnabled(false);
  if (panel.Verdetto != VerdettoMp3::Buono) return;
  cmdAggiungiFile->show();
  cmdAggiungiFile->setEnabled(true);
}

void frmPlaylistEditor::AggiungiFile() {
  const std::string folder = fraFile->DirDirectoryMp3->Percorso();
  std::vector<std::string> chosen = fraFile->Scelti();
  if (chosen.size() == 1 && chosen.front() == fraFile->Corrente()) {  // the panel has passed it
    kvr5::AggiungiFile(editor_, folder, chosen.front());
    return;
  }
  for (std::string& each : chosen) each.insert(0, AggiungiBarra(folder));
  AggiungiTrascinati(chosen);
}

void frmPlaylistEditor::DoppioFile() {
  Brani->MostraEsito({});
  NienteFile();
  MostraInfoMp3();
  if (!cmdAggiungiFile->isHidden() && cmdAggiungiFile->isEnabled()) AggiungiFile();
}

void frmPlaylistEditor::AggiungiTutti() {
  AggiungiTuttiFiles(editor_, lettore_, fraFile->DirDirectoryMp3->Percorso(), fraFile->Nomi());
}

void frmPlaylistEditor::AggiungiTrascinati(const std::vector<std::string>& file) {
  Brani->MostraEsito({});
  const EsitoScelti outcome = AggiungiScelti(editor_, lettore_, file);
  Brani->MostraEsito(Qs(ParoleNonPresi(C(), outcome.NonPresi)));
}

void frmPlaylistEditor::Importa() {
  if (!PuoImportare(editor_)) return;
  const std::string list = C().Finestre.ScegliFile(TestoLingua(C(), "0050030"),
                                                   {"File TXT,M3U (*.txt,*.m3u)", "*.txt;*.m3u"},
                                                   fraFile->DirDirectoryMp3->Percorso());
  if (!list.empty()) ImportaPlaylist(editor_, lettore_, list);
}

}  // namespace kvr5
