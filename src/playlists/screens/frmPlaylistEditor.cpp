#include "playlists/screens/frmPlaylistEditor.h"

#include <algorithm>
#include <utility>

#include "core/CartellaMp3.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Testo.h"
#include "platform/FileOps.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/NomiPlaylist.h"
#include "playlists/SalvaPlaylist.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormPlaylistEditor = 5;
constexpr std::size_t kFilesSeen = 8;  // at one time: a few milliseconds on a slow disk

}  // namespace

frmPlaylistEditor::frmPlaylistEditor(Ambiente& ambiente, FinestraProgresso& progresso)
    : Form(ambiente, "frmPlaylistEditor"),
      progresso_(progresso),
      editor_(ambiente.C),
      lettore_(ambiente.C.Files),
      conto_(ambiente.C),
      modello_(ambiente.C, conto_, this) {
  setWindowTitle(QStringLiteral("Playlist Editor"));
  resize(1200, 720);
  Costruisci();
  Collega();
}

void frmPlaylistEditor::Collega() {
  editor_.SuGriglia = [this] { grigliaCambiata_ = true; };
  editor_.SuContatore = [this] {
    Brani->lblPlaylistFiles->setText(Qs(editor_.lblPlaylistFiles()));
  };
  editor_.SuSelettore = [this] { Fascia->Mostra(editor_); };
  editor_.SuAttesa = [this](bool waits) {
    if (waits) conta_.stop();  // the disk is the run's
    daContare_ = daContare_ || !waits;
    Brani->Attesa(waits);
  };
  const auto selects = [this](const std::function<void()>& action) {
    Comando([this, &action] {
      Brani->MostraEsito({});
      action();
    });
    Fascia->Mostra(editor_);  // also where it came amid a save, and nothing was done
  };
  Fascia->SuVoce = [this, selects](int entry) {
    selects([this, entry] { editor_.ScegliVoce(entry); });
  };
  Fascia->SuIngresso = [this, selects](int input, bool on) {
    selects([this, input, on] { editor_.SpuntaIngresso(input, on); });
  };
  const auto does = [this](QAbstractButton* button, const std::function<void()>& action) {
    connect(button, &QAbstractButton::clicked, this, [this, action] {
      Comando([this, &action] {
        Brani->MostraEsito({});
        action();
      });
    });
  };
  does(Fascia->picAggiungiPL,
       [this] { AggiungiPlaylist(editor_, [this] { nome_->MostraModale(); }); });
  does(Fascia->picRimuoviPL, [this] { RimuoviPlaylist(editor_); });
  does(cmdAggiungiFile, [this] { AggiungiFile(); });
  does(cmdAggiungiTuttiFiles, [this] { AggiungiTutti(); });
  does(cmdRimuoviFile, [this] { Rimuovi(); });
  does(cmdRimuoviTuttiFile, [this] { RimuoviTuttiFile(editor_); });
  does(picImporta, [this] { Importa(); });
  does(picReport, [this] { MostraReport(); });
  connect(picSave, &QAbstractButton::clicked, this, [this] { Salva(); });
  connect(picAnnulla, &QAbstractButton::clicked, this, [this] { Scarica(); });
  connect(picHelp, &QAbstractButton::clicked, this, [this] { Aiuto(); });
  SuTasto(Qt::Key_F1, [this] { Aiuto(); });
  SuSalva(*picSave);
  connect(&conta_, &QTimer::timeout, this, [this] { Conta(); });
  CollegaPane();
  CollegaBrani();
  CollegaAscolto();
}

void frmPlaylistEditor::CollegaBrani() {
  const auto moves = [this](bool up) { Comando([this, up] { Sposta(up); }); };
  Brani->SuFile = [this](const std::vector<std::string>& files) {
    Comando([this, &files] { AggiungiTrascinati(files); });
  };
  Brani->grdPlaylist->SuRiga = [this](std::int64_t id) {
    Comando([this, id] { VaiAllaRiga(editor_, id); });
  };
  Brani->grdPlaylist->SuRimuovi = [this] { Comando([this] { Rimuovi(); }); };
  Brani->grdPlaylist->SuSposta = [moves] { moves(true); };
  Brani->grdPlaylist->SuSpostaGiu = [moves] { moves(false); };
  Brani->grdPlaylist->SuAscolta = [this] {
    Comando([this] {
      const bool same = rigaSuona_ && suona_ == editor_.rsList().Number("ID", -1);
      same ? ascolto_.Stop() : AscoltaRiga();
    });
  };
  connect(Brani->picNomiCopie, &QAbstractButton::clicked, this, [this] {
    Comando([this] {
      copie_.RidaiNomi(editor_);
      Brani->MostraCopie(Qs(copie_.Parole(C())));
    });
  });
  connect(Brani->cmdSpostaSu, &QAbstractButton::clicked, this, [moves] { moves(true); });
  connect(Brani->cmdSpostaGiu, &QAbstractButton::clicked, this, [moves] { moves(false); });
  connect(Brani->cmdRandom, &QAbstractButton::clicked, this,
          [this] { Comando([this] { Mescola(); }); });
}

void frmPlaylistEditor::Localizza() {
  const auto text = [this](const char* key) { return Qs(TestoLingua(C(), key)); };
  LocalizzaForm(C(), kFormPlaylistEditor, *this);
  lblProgetto->setText(Qs(C().Stato.ProjectName));
  constexpr int kTypeRoom = 420;
  const QString type = Qs(C().Stato.PlayerConfigDesc);
  lblTipoPlayer->setText(lblTipoPlayer->fontMetrics().elidedText(type, Qt::ElideRight, kTypeRoom));
  lblTipoPlayer->setToolTip(Suggerimento(type));
  lblTipoPlayer->setAccessibleName(type);
  Fascia->Localizza();
  fraFile->Localizza();
  modello_.Localizza();
  Brani->Localizza();
  cmdStopFileSx->ImpostaScritta(text("0130169"));
  cmdStopFileSx->setToolTip(text("0130269"));
  ascolto_.SuPlayFileSx(false);
  ascolto_.SuPlayRiga(0, false);
  cmdAggiungiFile->setToolTip(text("0050115"));
  cmdAggiungiTuttiFiles->setToolTip(text("0050116"));
  cmdRimuoviFile->setToolTip(text("0050117"));
  cmdRimuoviTuttiFile->setToolTip(text("0050118"));
  picAnnulla->setToolTip(text("0050119"));
  picImporta->setToolTip(text("0050120"));
  picReport->setToolTip(text("0050121"));
  picSave->setToolTip(text("0050122"));
}

void frmPlaylistEditor::AlCaricamento() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  Localizza();
  const bool outside = C().Stato.UsaPlayerEsterno;
  cmdStopFileSx->setVisible(!outside);
  Brani->cmdStopMp3->setVisible(!outside);
  Comando([this] {
    editor_.Carica();
    Fascia->Disponi(editor_.Disposizione());
    if (!editor_.rsList().IsOpen()) {
      const QString words = Qs(TestoLingua(C(), "0050123"));
      Brani->grdPlaylist->ImpostaVuota(words);
      // A save would delete the lists of a database that may be whole.
      const bool there = FileExists(C().Files, FileDelProgetto(C(), "playlist.mdb"));
      picSave->setEnabled(!there);
      if (there) picSave->setToolTip(words);
    }
    copie_.Leggi(editor_);
    Brani->MostraCopie(Qs(copie_.Parole(C())));
    fraFile->DirDirectoryMp3->ImpostaPercorso(CartellaIniziale(C(), 0));
  });
  fraFile->filMp3->setFocus();
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

void frmPlaylistEditor::AllAttivazione() {
  // Files come and go while another window is in front. At the first time the load has just looked.
  if (!std::exchange(lasciata_, true) || editor_.Turni.InCorso()) return;
  Comando([this] {
    RileggiFile();
    conto_.Ricomincia();
    CominciaConto();
  });
}

void frmPlaylistEditor::Comando(const std::function<void()>& azione) {
  if (!Caricata() || ChiusuraAttesa()) return;
  const Impegno stays(*this);
  const OwnError own(C().Errore);
  editor_.Turni.Comando(azione);
  if (!editor_.Turni.UltimoChiesto()) AggiornaVista();
}

void frmPlaylistEditor::AggiornaVista() {
  if (std::exchange(grigliaCambiata_, false)) MostraRighe();
  if (!editor_.Turni.InCorso() && std::exchange(daContare_, false)) CominciaConto();
  scelti_.clear();  // of a command that came to nothing
  posto_ = -1;
  const auto changes = static_cast<std::size_t>(editor_.Modifiche());
  const std::string words =
      changes == 0
          ? std::string()
          : Contati(C(), changes, {"0050113", "change unsaved", "0050114", "changes unsaved"});
  lblModifiche->setText(Qs(words));
}

void frmPlaylistEditor::MostraRighe() {
  if (std::exchange(mostrata_, editor_.PlaylistCorrente()) != editor_.PlaylistCorrente()) {
    Brani->lblTotali->clear();
  }
  modello_.Imposta(RigheDellaGriglia(editor_));
  const auto& rows = modello_.Righe();
  if (const int place = std::exchange(posto_, -1); place >= 0 && !rows.empty()) {
    const auto at = std::min(static_cast<std::size_t>(place), rows.size() - 1);
    VaiAllaRiga(editor_, rows[at].ID);
  }
  Brani->grdPlaylist->Seleziona(std::exchange(scelti_, {}), editor_.rsList().Number("ID", -1));
  std::vector<RigaProgetto> files;
  for (const RigaPlaylist& each : rows) files.push_back(each.Brano);
  conto_.Imposta(std::move(files));
  daContare_ = true;
}

void frmPlaylistEditor::CominciaConto() {
  conta_.start(0);
}

void frmPlaylistEditor::Conta() {
  const OwnError own(C().Errore);
  const bool more = conto_.Passo(kFilesSeen);
  modello_.FattiCambiati();
  if (more) return;
  conta_.stop();
  if (std::exchange(contate_, editor_.Modifiche()) != editor_.Modifiche()) {
    const NomiDoppi twice(editor_);
    Brani->MostraDoppi(Qs(twice.Parole(C())));
    modello_.ImpostaDoppi(twice);
  }
  Brani->lblTotali->setText(Qs(conto_.Parole()));
  Veste(*Brani->lblTotali, Carattere::Corpo,
        conto_.Mancanti() > 0 ? Ruolo::Errore : Ruolo::Attenuato);
}

void frmPlaylistEditor::Rimuovi() {
  Brani->MostraEsito({});
  const Id chosen = Brani->grdPlaylist->Scelti();
  if (chosen.empty()) return;
  posto_ = modello_.RigaDi(chosen.front());
  if (chosen.size() == 1) {
    if (VaiAllaRiga(editor_, chosen.front())) RimuoviFile(editor_);
  } else {
    RimuoviRighe(editor_, chosen);
  }
}

void frmPlaylistEditor::Sposta(bool su) {
  Brani->MostraEsito({});
  scelti_ = Brani->grdPlaylist->Scelti();
  if (scelti_.size() > 1) {
    const std::int64_t current = editor_.rsList().Number("ID", -1);
    SpostaRighe(editor_, scelti_, su);
    VaiAllaRiga(editor_, current);
  } else if (!scelti_.empty() && VaiAllaRiga(editor_, scelti_.front())) {
    su ? SpostaSu(editor_) : SpostaGiu(editor_);
  }
}

void frmPlaylistEditor::Mescola() {
  Brani->MostraEsito({});
  Random(editor_, CasoDallOrologio());
}

void frmPlaylistEditor::MostraReport() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  ScriviReport(editor_);
  const std::string page = FileDelProgetto(C(), "Playlist.htm");
  if (FileExists(C().Files, page)) ambiente_.Documenti.Apri(page);
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

void frmPlaylistEditor::Salva() {
  if (!Caricata() || ChiusuraAttesa()) return;
  const Impegno stays(*this);
  editor_.Turni.Ultimo([this] {
    conta_.stop();
    SalvaPlaylist(editor_, progresso_);
    copie_.TogliSuperate(C());
    Scarica();
  });
}

void frmPlaylistEditor::AlloScarico() {
  conta_.stop();
  fraFileInfo->tmrInfoMp3.stop();
  Brani->tmrAttendere.stop();
  for (Anteprima* each : {mci1.get(), mciPreview.get()}) Ascolto::Zittisci(*each);
  editor_.Chiudi();
  hide();
  ambiente_.Schermi.Mostra(FormSuccessivo);
}

}  // namespace kvr5
