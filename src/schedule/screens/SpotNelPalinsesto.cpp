// The file pane of the editor of the schedule, what it tells of a file, and how files get into the
// slots of a segment.

#include "core/Aiuti.h"
#include "core/CartellaMp3.h"
#include "core/Lingua.h"
#include "core/screens/Testo.h"
#include "mp3/GiudizioFile.h"
#include "schedule/AggiungiSpotScelti.h"
#include "schedule/Spot.h"
#include "schedule/screens/frmPalinsesto.h"

namespace kvr5 {

void frmPalinsesto::CollegaPane() {
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
  fraFile->filMp3->SuDoppio = [this] {
    Comando([this] { AggiungiAlloSlot(PrimoSlotLibero(editor_)); });
  };
  connect(&fraFileInfo->tmrInfoMp3, &QTimer::timeout, this, [this] {
    Comando([this] {
      MostraInfoMp3();
      C().Messaggi.LasciaCorrere();
    });
  });
}

void frmPalinsesto::SfogliaMp3() {
  const std::string chosen =
      C().Finestre.SfogliaCartella(TestoLingua(C(), "50014"), fraFile->DirDirectoryMp3->Percorso());
  if (const auto folder = ScegliCartella(C(), chosen)) {
    fraFile->DirDirectoryMp3->ImpostaPercorso(*folder);
  }
}

void frmPalinsesto::CambiataCartella() {
  NienteFile();
  // The load only goes where the settings lead.
  if (isVisible()) TieniCartella(C(), fraFile->DirDirectoryMp3->Percorso());
}

void frmPalinsesto::RileggiFile() {
  const std::string before = fraFile->Corrente();
  if (!fraFile->Rileggi() || fraFile->Corrente() == before) return;
  NienteFile();
  if (!fraFile->Corrente().empty()) fraFileInfo->tmrInfoMp3.start();
}

void frmPalinsesto::NienteFile() {
  editor_.FileMp3Valido = false;
  fraFileInfo->tmrInfoMp3.stop();
  PulisciInfoMp3();
}

void frmPalinsesto::ClicFile() {
  NienteFile();
  picDettaglio->MostraEsito({});
  if (!fraFile->Corrente().empty()) fraFileInfo->tmrInfoMp3.start();
  ascolto_.Stop();  // last: it lets events run, and the second half of a double click is one
}

void frmPalinsesto::PulisciInfoMp3() {
  fraFileInfo->Mostra({}, {}, {}, {});
  fraFileInfo->MostraAvviso(false, {});
}

void frmPalinsesto::MostraInfoMp3() {
  const std::string name = fraFile->Corrente();
  if (name.empty()) return;
  editor_.FileMp3Valido = false;
  PulisciInfoMp3();
  C().Messaggi.LasciaCorrere();
  if (fraFile->Corrente() != name) return;  // another was picked meanwhile: its turn comes
  const std::string path = AggiungiBarra(fraFile->DirDirectoryMp3->Percorso()) + name;
  const GiudizioFile judged = GiudicaFile(C(), lettore_, path);
  const EtichetteMp3& labels = judged.Pannello.Etichette;
  fraFileInfo->Mostra(Qs(labels.lblVersioneMpeg), Qs(labels.lblBitrate), Qs(labels.lblFreq),
                      Qs(labels.lblDurata));
  fraFileInfo->MostraAvviso(judged.Pannello.lblBadFileType, Qs(judged.Perche));
  editor_.FileMp3Valido = !judged.Pannello.lblBadFileType;
}

void frmPalinsesto::GiudicaSubito() {
  if (!fraFileInfo->tmrInfoMp3.isActive()) return;
  fraFileInfo->tmrInfoMp3.stop();
  MostraInfoMp3();
}

void frmPalinsesto::AggiungiAlloSlot(int slot) {
  picDettaglio->MostraEsito({});
  const std::string folder = fraFile->DirDirectoryMp3->Percorso();
  std::vector<std::string> chosen = fraFile->Scelti();
  if (chosen.size() > 1 || slot >= SlotSpot::kPosti) {
    for (std::string& each : chosen) each.insert(0, AggiungiBarra(folder));
    return AggiungiFile(slot, chosen);
  }
  GiudicaSubito();
  const std::string name = fraFile->Corrente();
  if (name.empty()) picDettaglio->MostraEsito(Qs(TestoLingua(C(), "0140108")));
  slotVoluto_ = slot;
  AggiungiSpot(editor_, slot, folder, name);
}

void frmPalinsesto::AggiungiFile(int slot, const std::vector<std::string>& file) {
  if (editor_.SegmentoCorrente() < 1) return;
  const auto notTaken = AggiungiSpotScelti(editor_, lettore_, slot, file);
  slotVoluto_ = slot;
  picDettaglio->MostraEsito(Qs(ParoleNonPresi(C(), notTaken)));
}

void frmPalinsesto::CollegaSlot() {
  TabellaEditor* grid = picDettaglio->grdDettaglio;
  for (std::size_t i = 0; i < RiquadroSpot::kPosti; ++i) {
    const int slot = static_cast<int>(i);
    const auto does = [this](QAbstractButton* button, const std::function<void()>& action) {
      connect(button, &QAbstractButton::clicked, this, [this, action] { Comando(action); });
    };
    does(picDettaglio->picAggiungiSpot[i], [this, slot] { AggiungiAlloSlot(slot); });
    does(picDettaglio->picRimuoviSpot[i], [this, slot] { TogliSpot(slot); });
    does(picDettaglio->picPlay[i], [this, slot] { AscoltaSlot(slot); });
    picDettaglio->UpDownFile[i]->SuMuovi = [this, slot](bool down) {
      Comando([this, slot, down] { MuoviSpot(slot, down); });
    };
  }
  picDettaglio->SuFile = [this](int slot, const std::vector<std::string>& files) {
    LasciaIlCampo();  // files from another program take no keyboard with them
    Comando([this, slot, &files] { AggiungiFile(slot, files); });
  };
  grid->SuRimuovi = [this] {
    Comando([this] {
      if (SlotScelto() >= 0) TogliSpot(SlotScelto());
    });
  };
  const auto moves = [this](bool down) {
    Comando([this, down] {
      if (SlotScelto() >= 0) MuoviSpot(SlotScelto(), down);
    });
  };
  grid->SuSposta = [moves] { moves(false); };
  grid->SuSpostaGiu = [moves] { moves(true); };
  grid->SuAscolta = [this] {
    Comando([this] {
      const bool playing = suonaSlot_ >= 0 && suonaSlot_ == SlotScelto() &&
                           suonaSegmento_ == editor_.SegmentoCorrente();
      if (playing) {
        ascolto_.Stop();
      } else if (SlotScelto() >= 0) {
        AscoltaSlot(SlotScelto());
      }
    });
  };
}

void frmPalinsesto::TogliSpot(int slot) {
  picDettaglio->MostraEsito({});
  slotVoluto_ = slot;
  RimuoviSpot(editor_, slot);
}

void frmPalinsesto::MuoviSpot(int slot, bool giu) {
  picDettaglio->MostraEsito({});
  if (!C().Stato.UsaPlayerEsterno) ascolto_.Stop();
  const int other = giu ? slot + 1 : slot - 1;
  slotVoluto_ = other >= 0 && other < editor_.QuantiSpot() ? other : slot;
  SpostaSpot(editor_, slot, giu);
}

}  // namespace kvr5
