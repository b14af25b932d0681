// What is listened to on the hub, and the change of the ticked inputs, which silences it.

#include <utility>

#include "playerconfig/screens/frmPlayerConfig.h"

namespace kvr5 {

void frmPlayerConfig::CollegaAscolto() {
  ascolto_.SuPlayMp3 = [this](bool on) { fraFileName->MostraAscolto(on); };
  ascolto_.SuPlayAssegnato = [this](bool on) { fraIngressiLogici->MostraAscolto(on); };
  ascolto_.SuMutoMp3 = [this] { fraFileName->MostraAscolto(true, true); };
  ascolto_.SuMutoAssegnato = [this] { fraIngressiLogici->MostraAscolto(true, true); };
  for (Anteprima* each : {mPlayer.get(), mciPreview.get()}) {
    each->SuNotifica = [this](int code) {
      const Impegno stays(*this);  // events run
      ascolto_.Notifica(code);
    };
  }
  connect(fraFileName->cmdPlayMp3, &QAbstractButton::clicked, this, [this] {
    const Impegno stays(*this);
    ascolto_.PlayMp3(fraFileName->DirDirectoryMp3->Percorso(), fraFileName->Scelto());
  });
  connect(fraIngressiLogici->cmdMp3Preview_Play, &QAbstractButton::clicked, this,
          [this] { PlayAssegnato(); });
  for (Coppia* each : {fraFileName->cmdStopMp3, fraIngressiLogici->cmdMp3Preview_Stop}) {
    connect(each, &QAbstractButton::clicked, this, [this] {
      const Impegno stays(*this);
      ascolto_.Stop();
    });
  }
}

void frmPlayerConfig::PlayAssegnato() {
  const Impegno stays(*this);
  const OwnError own(C().Errore);
  ascolto_.PlayAssegnato(ingressi_, codice_->Codice());
}

void frmPlayerConfig::FineAscolto() {
  for (Anteprima* each : {mPlayer.get(), mciPreview.get()}) Ascolto::Zittisci(*each);
}

void frmPlayerConfig::ZittiscePerSpunta() {
  // The file of other inputs than the ticked ones isn't to be played nor changed meanwhile.
  fraIngressiLogici->NascondiFile();
  ascolto_.Stop();
}

void frmPlayerConfig::ZittiscePerRs485() {
  const auto& state = C().Stato;
  constexpr std::int16_t kKvr5 = 4;
  const bool ticked = codice_->Ingresso(5).Spuntato || codice_->Ingresso(6).Spuntato;
  if (state.PlayerType == kKvr5 && state.Usa485 && ticked) ZittiscePerSpunta();
}

void frmPlayerConfig::CambiaCodice(std::function<void()> cambia, bool spunta) {
  const Impegno stays(*this);
  cambi_.push_back(std::move(cambia));
  if (cambi_.size() > 1) return;  // the first one, whose stop lets events run, does this one too
  for (std::size_t stopped = 0; spunta && stopped != cambi_.size();) {
    stopped = cambi_.size();
    ZittiscePerSpunta();
  }
  for (const auto& each : std::exchange(cambi_, {})) EseguiCambio(each);
}

void frmPlayerConfig::EseguiCambio(const std::function<void()>& cambia) {
  const OwnError own(C().Errore);  // a save may be under way
  cambia();
  const bool failed{C().Errore};
  fraFileName->SegnaScelta(false);
  fraFileName->LiberaOk();
  MostraCodice();
  if (!failed) return;
  // Not from within the list's own signal: it is emptied where it can't be read.
  QMetaObject::invokeMethod(
      this,
      [this] {
        const Impegno there(*this);
        const OwnError none(C().Errore);
        if (Caricata()) AggiornaElenco();
      },
      Qt::QueuedConnection);
}

}  // namespace kvr5
