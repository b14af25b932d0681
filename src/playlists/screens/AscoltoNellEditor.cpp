// What is listened to in the editor of playlists: a file of the pane, a track of the list.

#include <utility>

#include "core/screens/PulsanteAscolto.h"
#include "playlists/screens/frmPlaylistEditor.h"

namespace kvr5 {

void frmPlaylistEditor::CollegaAscolto() {
  const auto shows = [this](Coppia* button, const StatoAscolto& state) {
    const bool outside = C().Stato.UsaPlayerEsterno;
    const bool row = button == Brani->cmdPlayMp3;
    const char* plays = row ? "0050125" : "0130268";
    const char* opens = row ? "0050126" : "0130270";
    ImpostaAscolto(C(), *button, state, outside ? opens : plays);
  };
  ascolto_.SuPlayFileSx = [this, shows](bool on) { shows(cmdPlayFileSx, {on, false}); };
  ascolto_.SuMutoFileSx = [this, shows] { shows(cmdPlayFileSx, {true, true}); };
  ascolto_.SuPlayRiga = [this, shows](std::size_t /*row*/, bool on) {
    rigaSuona_ = on;
    if (on) suona_ = ascoltata_;
    shows(Brani->cmdPlayMp3, {on, false});
  };
  ascolto_.SuMutoRiga = [this, shows](std::size_t /*row*/) {
    shows(Brani->cmdPlayMp3, {true, true});
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
  connect(Brani->cmdPlayMp3, &QAbstractButton::clicked, this,
          [this] { Comando([this] { AscoltaRiga(); }); });
  for (Coppia* each : {cmdStopFileSx, Brani->cmdStopMp3}) {
    connect(each, &QAbstractButton::clicked, this, [this] {
      const Impegno stays(*this);
      ascolto_.Stop();
    });
  }
}

void frmPlaylistEditor::AscoltaRiga() {
  if (editor_.rsList().AbsolutePosition() < 1) return;
  // Another row may be asked for amid the events of this one.
  const auto outer = std::exchange(ascoltata_, editor_.rsList().Number("ID", -1));
  ascolto_.PlayRiga(editor_.rsList());
  ascoltata_ = outer;
}

}  // namespace kvr5
