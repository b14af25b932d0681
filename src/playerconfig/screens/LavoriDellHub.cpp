// What the hub's buttons do at length: recording, saving, the report, and the way to the editors.

#include "platform/FileOps.h"
#include "playerconfig/Salvataggio.h"
#include "playerconfig/screens/frmPlayerConfig.h"
#include "projects/CartellaProgetto.h"
#include "projects/ParoleRitrovo.h"
#include "reports/ReportProgetto.h"

namespace kvr5 {
namespace {

/// frmSalva, shown over the hub.
class DomandaDelSalva : public DomandaSalva {
 public:
  DomandaDelSalva(Navigazione& schermi, bool& annulla) : schermi_(schermi), annulla_(annulla) {}
  bool Annulla() override {
    annulla_ = true;
    schermi_.ChiediSalvataggio(Schermata::Configurazione,
                               [this](bool cancel) { annulla_ = cancel; });
    return annulla_;
  }

 private:
  Navigazione& schermi_;
  bool& annulla_;
};

}  // namespace

void frmPlayerConfig::Lavora(const std::function<void()>& lavoro) {
  if (lavora_) return;         // events run during a long work, these buttons among them
  const Impegno stays(*this);  // a close that is asked for meanwhile comes at the end
  lavora_ = true;
  conto_.Interrompi();  // no database is open while it is copied
  lavoro();
  lavora_ = false;
  const OkInPosto same(*this);
  const OwnError own(C().Errore);
  AggiornaElenco();
  RileggiCartella();
  CominciaConto();
}

void frmPlayerConfig::Registra() {
  Lavora([this] {
    const bool cancelled = servizi_.RegistraProgetto(ingressi_);
    if (servizi_.RegistrataIntera()) {
      Scheda->SegnaRegistrata(servizi_.EstraneiSullaScheda());
    } else {
      Scheda->DimenticaRegistrata();  // it may hold a part of another state
    }
    if (!cancelled) return;
    show();
    setEnabled(true);
  });
  Scheda->MostraStato(servizi_.FattiDellaScheda());
}

void frmPlayerConfig::TrovaMancanti() {
  Lavora([this] { RitrovaEDillo(C(), servizi_.Progresso()); });
}

void frmPlayerConfig::Svuota() {
  Lavora([this] {
    if (servizi_.SvuotaScheda()) Scheda->DimenticaRegistrata();
  });
  Scheda->MostraStato(servizi_.FattiDellaScheda());
}

void frmPlayerConfig::Verifica() {
  Lavora([this] {
    if (servizi_.ChiediScheda()) servizi_.VerificaScheda();
  });
  Scheda->MostraStato(servizi_.FattiDellaScheda());
}

void frmPlayerConfig::CopiaManuale() {
  if (lavora_) return;
  const Impegno stays(*this);
  const OwnError own(C().Errore);
  if (!servizi_.ChiediScheda()) return;
  ascolto_.Stop();
  Nascondi();
  guardia_.stop();
  conta_.stop();
  DimenticaChiusura();  // asked for while the dialog stood: the bar is what is left to close
  Scheda->DimenticaRegistrata();  // what is copied or deleted there isn't known here
  Scheda->MostraStato(servizi_.FattiDellaScheda());
  servizi_.ApriCopiaManuale();
}

void frmPlayerConfig::Espelli() {
  if (!lavora_) FineAscolto();  // what plays may lie on the card
  Lavora([this] { servizi_.EspelliScheda(); });
  Scheda->MostraStato(servizi_.FattiDellaScheda());
}

void frmPlayerConfig::Salva() {
  Lavora([this] {
    fraOutputLevel->Raccogli(controlli_);
    Opzioni->Raccogli(controlli_);
    DomandaDelSalva question(ambiente_.Schermi, AnnullaSalvataggio);
    SalvaConfigurazione(C(), {controlli_, ingressi_, layout_.fraAnalyzer}, servizi_.Progresso(),
                        question);
    modifiche_.Rileggi(C());
    AggiornaNonSalvato();
  });
}

void frmPlayerConfig::AvvisaNonScritto() {
  if (C().Errore) DiciErrore(C());
}

void frmPlayerConfig::MostraReport() {
  Lavora([this] {
    MostraReportProgetto(C(), ambiente_.Documenti, {&ingressi_.Cursore(), layout_.fraAnalyzer});
  });
}

void frmPlayerConfig::ApriPlaylist() {
  ApriEditor("tmpPlaylist.mdb",
             [](Navigazione& screens) { screens.ApriPlaylist(Schermata::Configurazione); });
}

void frmPlayerConfig::ApriPalinsesto() {
  ApriEditor("tmpScheduler.mdb",
             [](Navigazione& screens) { screens.ApriPalinsesto(Schermata::Configurazione); });
}

void frmPlayerConfig::ApriEditor(const char* copia, void (*apri)(Navigazione&)) {
  if (lavora_) return;
  const Impegno stays(*this);
  const OwnError own(C().Errore);
  lavora_ = true;  // events run on the way: a second press would delete the editor's copy
  ascolto_.Stop();
  conta_.stop();
  guardia_.stop();
  conto_.Interrompi();  // the editor copies the database
  const std::string stale = FileDelProgetto(C(), copia);
  if (FileExists(C().Files, stale) && !IsHeld(C().Files, stale)) {
    C().Errore.Record(C().Files.Delete(stale));
  }
  apri(ambiente_.Schermi);
  Nascondi();
  guardia_.stop();  // a box of the editor's load may have brought the hub to the front
  conta_.stop();
  DimenticaChiusura();  // asked for while the editor came up: it would be asked about over that
  lavora_ = false;
}

}  // namespace kvr5
