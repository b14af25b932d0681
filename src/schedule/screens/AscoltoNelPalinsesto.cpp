// What is listened to in the editor of the schedule: a file of the pane, a spot of the segment.

#include <utility>

#include "core/Lingua.h"
#include "core/screens/PulsanteAscolto.h"
#include "core/screens/Testo.h"
#include "schedule/screens/frmPalinsesto.h"

namespace kvr5 {

void frmPalinsesto::CollegaAscolto() {
  const auto shows = [this](const StatoAscolto& state) {
    const bool outside = C().Stato.UsaPlayerEsterno;
    ImpostaAscolto(C(), *cmdPlayFileSx, state, outside ? "0130270" : "0130268");
  };
  ascolto_.SuPlayFileSx = [shows](bool on) { shows({on, false}); };
  ascolto_.SuMutoFileSx = [shows] { shows({true, true}); };
  ascolto_.SuPlayRiga = [this](std::size_t row, bool on) {
    const int slot = static_cast<int>(row);
    if (on) {
      suonaSlot_ = slot;
      suonaSegmento_ = editor_.SegmentoCorrente();
      suonaMuto_ = false;
    } else if (suonaSlot_ == slot) {
      suonaSlot_ = -1;
    }
    MostraAscolto();
  };
  ascolto_.SuMutoRiga = [this](std::size_t /*row*/) {
    suonaMuto_ = true;
    MostraAscolto();
  };
  for (Anteprima* each : {mci1.get(), mciPreview.get()}) {
    each->SuNotifica = [this](int code) {
      const Impegno stays(*this);  // events run
      ascolto_.Notifica(code);
    };
  }
  connect(cmdPlayFileSx, &QAbstractButton::clicked, this, [this] {
    Comando([this] {
      const std::string file = fraFile->Corrente();
      if (!file.empty()) ascolto_.PlayFileSx(fraFile->DirDirectoryMp3->Percorso(), file);
    });
  });
  const auto stops = [this](Coppia* button) {
    connect(button, &QAbstractButton::clicked, this, [this] {
      const Impegno stays(*this);
      ascolto_.Stop();
    });
  };
  stops(cmdStopFileSx);
  for (Coppia* each : picDettaglio->picStop) stops(each);
}

void frmPalinsesto::AscoltaSlot(int slot) {
  slotVoluto_ = slot;
  dettaglioCambiato_ = true;
  ascolto_.PlaySpot(static_cast<std::size_t>(slot), editor_.rsDettaglio(),
                    fraFile->DirDirectoryMp3->Percorso(), fraFile->Corrente());
  // The external player gets the pane's file, whatever the spot's is.
  const bool nothing = C().Stato.UsaPlayerEsterno && fraFile->Corrente().empty();
  if (nothing) picDettaglio->MostraEsito(Qs(TestoLingua(C(), "0140108")));
}

void frmPalinsesto::MostraAscolto() {
  const bool here = suonaSegmento_ == editor_.SegmentoCorrente();
  const char* tip = C().Stato.UsaPlayerEsterno ? "0140118" : "0140117";
  for (std::size_t i = 0; i < RiquadroSpot::kPosti; ++i) {
    const bool on = here && suonaSlot_ == static_cast<int>(i);
    ImpostaAscolto(C(), *picDettaglio->picPlay[i], {on, on && suonaMuto_}, tip);
  }
}

}  // namespace kvr5
