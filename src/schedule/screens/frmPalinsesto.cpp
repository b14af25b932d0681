#include "schedule/screens/frmPalinsesto.h"

#include <QGuiApplication>
#include <QSignalBlocker>
#include <utility>

#include "core/CartellaMp3.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Testo.h"
#include "platform/FileOps.h"
#include "projects/CartellaProgetto.h"
#include "schedule/CopieRipetuti.h"
#include "schedule/OrarioSegmento.h"
#include "schedule/SalvaPalinsesto.h"
#include "schedule/Segmenti.h"
#include "schedule/Spot.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormPalinsesto = 14;
constexpr std::size_t kFilesSeen = 8;  // at one time: a few milliseconds on a slow disk
constexpr int kPoll = 30;              // milliseconds

}  // namespace

frmPalinsesto::frmPalinsesto(Ambiente& ambiente, FinestraProgresso& progresso)
    : Form(ambiente, "frmPalinsesto"),
      progresso_(progresso),
      editor_(ambiente.C),
      lettore_(ambiente.C.Files),
      conto_(ambiente.C),
      modelloSegmenti_(ambiente.C, conto_, this),
      modelloSpot_(ambiente.C, conto_, this) {
  setWindowTitle(QStringLiteral("Editor Palinsesti"));
  resize(1200, 720);
  Costruisci();
  Collega();
}

void frmPalinsesto::Collega() {
  editor_.SuElenco = [this] { elencoCambiato_ = true; };
  editor_.SuDettaglio = [this] { dettaglioCambiato_ = true; };
  editor_.SuFuocoOrario = [this] { fuocoOrario_ = true; };
  editor_.SuOrario = [this] { MostraOrario(); };
  editor_.SuMostra = [this] { AggiornaVista(); };
  for (QTimer* each : {&tmrIniziale, &tmrAggiornaLayout, &tmrLasciati_}) each->setSingleShot(true);
  tmrLasciati_.setInterval(kPoll);
  connect(&tmrIniziale, &QTimer::timeout, this,
          [this] { Comando([this] { editor_.PrimoGiorno(); }); });
  connect(&tmrAggiornaLayout, &QTimer::timeout, this,
          [this] { Segmenti->grdSegmenti->AggiornaLayout(); });
  connect(&tmrLasciati_, &QTimer::timeout, this, [this] { ControllaPoi(); });
  connect(&conta_, &QTimer::timeout, this, [this] { Conta(); });
  connect(cmbGiorno, &QComboBox::activated, this, [this](int entry) {
    Comando([this, entry] {
      editor_.ScegliGiorno(static_cast<std::int16_t>(cmbGiorno->itemData(entry).toInt()));
    });
  });
  connect(picReport, &QAbstractButton::clicked, this,
          [this] { Comando([this] { MostraReport(); }); });
  connect(picSave, &QAbstractButton::clicked, this, [this] { Salva(); });
  connect(picAnnulla, &QAbstractButton::clicked, this, [this] {
    Comando([] {});  // a field that was left by the click
    Scarica();
  });
  connect(picHelp, &QAbstractButton::clicked, this, [this] { Aiuto(); });
  SuTasto(Qt::Key_F1, [this] { Aiuto(); });
  SuSalva(*picSave);
  CollegaPane();
  CollegaSegmenti();
  CollegaOrario();
  CollegaSlot();
  CollegaAscolto();
}

void frmPalinsesto::CollegaSegmenti() {
  const auto does = [this](QAbstractButton* button, void (*routine)(EditorPalinsesto&)) {
    connect(button, &QAbstractButton::clicked, this,
            [this, routine] { Comando([this, routine] { routine(editor_); }); });
  };
  does(Segmenti->picAggiungiSegmento, AggiungiSegmento);
  does(Segmenti->picCopiaSegmento, DuplicaSegmento);
  does(Segmenti->picRimuoviSegmento, RimuoviSegmento);
  const auto mends = [this](QAbstractButton* button, const std::function<void()>& action) {
    connect(button, &QAbstractButton::clicked, this, [this, action] {
      Comando([this, &action] {
        action();
        contate_ = -1;  // the disk has changed, perhaps no row
        daContare_ = true;
      });
    });
  };
  mends(Segmenti->picNomiCopie, [this] { copie_.RidaiNomi(editor_); });
  mends(Segmenti->picCopiaRipetuti,
        [this] { CopiaRipetuti(editor_, AvvisiPalinsesto(editor_, copie_)); });
  connect(Segmenti->mnuDuplicaRiga, &QAction::triggered, this,
          [this] { Comando([this] { DuplicaSegmento(editor_); }); });
  Segmenti->grdSegmenti->SuRiga = [this](std::int64_t id) {
    segmentoVoluto_ = id;
    // A list that is sorted anew under the pressed button would have the click select another row.
    if (!Lasciati() || QGuiApplication::mouseButtons() == Qt::NoButton) Comando([] {});
  };
  Segmenti->grdSegmenti->SuRimuovi = [this] { Comando([this] { RimuoviSegmento(editor_); }); };
  picSettimana->SuSegmento = [this](std::int16_t day, std::int64_t segment) {
    Comando([this, day, segment] { ScegliSegmento(day, segment); });
  };
}

void frmPalinsesto::CollegaOrario() {
  CampoOra* hours = picDettaglio->txtOre;
  CampoOra* minutes = picDettaglio->txtMin;
  connect(hours, &QLineEdit::textEdited, this,
          [this](const QString& text) { editor_.txtOre = Std(text); });
  connect(minutes, &QLineEdit::textEdited, this,
          [this](const QString& text) { editor_.txtMin = Std(text); });
  // A key may come before the check of the field that was left has had its turn.
  minutes->PrimaDelTasto = hours->PrimaDelTasto = [this] {
    if (Lasciati()) Comando([] {});
  };
  hours->SuInvio = [minutes] { minutes->setFocus(Qt::TabFocusReason); };
  minutes->SuInvio = [this] { picDettaglio->grdDettaglio->setFocus(Qt::TabFocusReason); };
  hours->SuLascia = [this] {
    lasciateOre_ = true;
    tmrLasciati_.start(0);
  };
  minutes->SuLascia = [this] {
    lasciatiMin_ = true;
    tmrLasciati_.start(0);
  };
}

void frmPalinsesto::ControllaLasciati() {
  const bool hours = std::exchange(lasciateOre_, false);
  const bool minutes = std::exchange(lasciatiMin_, false);
  if (hours && minutes) {
    LasciaOreEMin(editor_);
  } else if (hours) {
    LasciaOre(editor_);
  } else if (minutes) {
    LasciaMin(editor_);
  }
}

void frmPalinsesto::LasciaIlCampo() {
  lasciateOre_ = lasciateOre_ || focusWidget() == picDettaglio->txtOre;
  lasciatiMin_ = lasciatiMin_ || focusWidget() == picDettaglio->txtMin;
}

void frmPalinsesto::ControllaPoi() {
  if (!Lasciati()) return;
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    tmrLasciati_.start(kPoll);
    return;
  }
  Comando([] {});
}

void frmPalinsesto::RiempiGiorni() {
  constexpr int kDays = 7;
  cmbGiorno->clear();
  for (int day = 1; day <= kDays; ++day) {
    cmbGiorno->addItem(Qs(TestoLingua(C(), "014000" + std::to_string(day))), day);
  }
  cmbGiorno->setCurrentIndex(0);
}

void frmPalinsesto::Localizza() {
  const auto text = [this](const char* key) { return Qs(TestoLingua(C(), key)); };
  LocalizzaForm(C(), kFormPalinsesto, *this);
  lblProgetto->setText(Qs(C().Stato.ProjectName));
  constexpr int kTypeRoom = 420;
  const QString type = Qs(C().Stato.PlayerConfigDesc);
  lblTipoPlayer->setText(lblTipoPlayer->fontMetrics().elidedText(type, Qt::ElideRight, kTypeRoom));
  lblTipoPlayer->setToolTip(Suggerimento(type));
  lblTipoPlayer->setAccessibleName(type);
  const DisposizionePalinsesto layout =
      DisposizionePalinsestoDi(C().Stato.PlayerType, C().Stato.PlayerMode);
  const bool outside = C().Stato.UsaPlayerEsterno;
  picDettaglio->Disponi(outside, layout.OreBloccate);
  picDettaglio->Localizza(outside, layout.OreBloccate);
  Segmenti->Localizza();
  modelloSegmenti_.Localizza();
  modelloSpot_.Localizza();
  picSettimana->Localizza();
  fraFile->Localizza();
  cmdStopFileSx->ImpostaScritta(text("0130169"));
  cmdStopFileSx->setToolTip(text("0130269"));
  cmdStopFileSx->setVisible(!outside);
  ascolto_.SuPlayFileSx(false);
  cmbGiorno->setAccessibleName(text("0140017"));
  picAnnulla->setToolTip(text("0140119"));
  picReport->setToolTip(text("0140120"));
  picSave->setToolTip(text("0140121"));
}

void frmPalinsesto::AlCaricamento() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  Localizza();
  RiempiGiorni();
  Comando([this] {
    editor_.Carica();
    const DisposizionePalinsesto& layout = editor_.Disposizione();
    picFraDay->setVisible(layout.picFraDay);
    using Forma = StrisciaSettimana::Forma;
    picSettimana->ImpostaForma(layout.picFraDay     ? Forma::Settimana
                               : layout.OreBloccate ? Forma::OraSola
                                                    : Forma::Giorno);
    if (!editor_.ConnessionePalinsesto().IsOpen()) AvvisaIlleggibile();
    fraFile->DirDirectoryMp3->ImpostaPercorso(CartellaIniziale(C(), 0));
    dettaglioCambiato_ = true;  // no segment is shown before the first tick
  });
  fraFile->filMp3->setFocus();
  tmrIniziale.start(0);
  tmrAggiornaLayout.start(0);
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

void frmPalinsesto::AvvisaIlleggibile() {
  const QString words = Qs(TestoLingua(C(), "0140122"));
  Segmenti->grdSegmenti->ImpostaVuota(words);
  // A save would put nothing in the place of a database that may be whole.
  const bool there = FileExists(C().Files, FileDelProgetto(C(), "scheduler.mdb"));
  picSave->setEnabled(!there);
  if (there) picSave->setToolTip(words);
}

void frmPalinsesto::AllAttivazione() {
  // Files come and go while another window is in front. At the first time the load has just looked.
  if (!std::exchange(lasciata_, true) || editor_.Turni.InCorso()) return;
  Comando([this] {
    RileggiFile();
    conto_.Ricomincia();
    contate_ = -1;
    conta_.start(0);
  });
}

void frmPalinsesto::Comando(const std::function<void()>& azione) {
  if (!Caricata() || ChiusuraAttesa()) return;
  const Impegno stays(*this);
  const OwnError own(C().Errore);
  editor_.Turni.Comando([this, &azione] {
    ControllaLasciati();
    if (const auto id = std::exchange(segmentoVoluto_, 0); id > 0) editor_.VaiAlSegmento(id);
    azione();
  });
  if (!editor_.Turni.UltimoChiesto()) AggiornaVista();
}

void frmPalinsesto::AggiornaVista() {
  if (std::exchange(elencoCambiato_, false)) {
    MostraElenco();
    dettaglioCambiato_ = true;
  }
  if (std::exchange(dettaglioCambiato_, false)) MostraDettaglio();
  slotVoluto_ = -1;
  if (!editor_.Turni.InCorso() && std::exchange(daContare_, false)) conta_.start(0);
  if (std::exchange(fuocoOrario_, false)) {
    CampoOra* field =
        picDettaglio->txtOre->isEnabled() ? picDettaglio->txtOre : picDettaglio->txtMin;
    field->setFocus(Qt::OtherFocusReason);
    field->selectAll();
  }
  const auto changes = static_cast<std::size_t>(editor_.Modifiche());
  const std::string words =
      changes == 0
          ? std::string()
          : Contati(C(), changes, {"0050113", "change unsaved", "0050114", "changes unsaved"});
  lblModifiche->setText(Qs(words));
}

void frmPalinsesto::MostraElenco() {
  std::vector<RigaSegmento> rows = RigheDellaGriglia(editor_);
  if (!std::exchange(settimanaLetta_, true)) {
    settimana_.Leggi(editor_);
    copie_.Leggi(editor_);
  }
  settimana_.Rinnova(editor_.GiornoCorrente(), rows);
  std::vector<RigaProgetto> files;
  for (const RigaSegmento& segment : rows) {
    for (const RigaSpot& each : segment.Spot) files.push_back(each.Brano);
  }
  modelloSegmenti_.Imposta(std::move(rows));
  conto_.Imposta(std::move(files));
  daContare_ = true;
  Segmenti->lblVociInElenco->setText(Qs(editor_.lblVociInElenco()));
  const QSignalBlocker same(cmbGiorno);
  if (editor_.GiornoCorrente() > 0) cmbGiorno->setCurrentIndex(editor_.GiornoCorrente() - 1);
}

void frmPalinsesto::MostraDettaglio() {
  const std::int64_t id = editor_.SegmentoCorrente();
  const bool same = std::exchange(mostrato_, id) == id;
  const int slot = slotVoluto_ >= 0 ? slotVoluto_ : same ? SlotScelto() : 0;
  if (!same) picDettaglio->MostraEsito({});  // it told of another segment
  Segmenti->grdSegmenti->VaiA(id);
  picSettimana->Mostra(settimana_, editor_.GiornoCorrente(), id);
  const RigaSegmento* segment = modelloSegmenti_.Riga(id);
  modelloSpot_.Imposta(segment == nullptr ? std::vector<RigaSpot>{} : segment->Spot);
  const auto& spots = modelloSpot_.Righe();
  if (!spots.empty()) {
    const auto at = std::min(static_cast<std::size_t>(std::max(slot, 0)), spots.size() - 1);
    picDettaglio->grdDettaglio->VaiA(spots[at].ID);
  }
  MostraOrario();
  picDettaglio->lblTotaleSpot->setText(segment == nullptr ? QString()
                                                          : modelloSegmenti_.Contiene(*segment));
  TieniFuoco();
  picDettaglio->MostraSlot(editor_.Slot());
  for (QWidget* each : {Segmenti->picCopiaSegmento, Segmenti->picRimuoviSegmento}) {
    each->setEnabled(id > 0);
  }
  Segmenti->SpiegaPulsanti(id > 0);
  MostraAscolto();
}

void frmPalinsesto::MostraOrario() {
  picDettaglio->txtOre->Mostra(Qs(editor_.txtOre));
  picDettaglio->txtMin->Mostra(Qs(editor_.txtMin));
}

void frmPalinsesto::TieniFuoco() {
  QWidget* const focus = focusWidget();
  if (focus == nullptr) return;
  const bool inside = picDettaglio->isAncestorOf(focus);
  const bool buttons = focus == Segmenti->picCopiaSegmento || focus == Segmenti->picRimuoviSegmento;
  if (!editor_.Slot().picDettaglio) {
    if (inside || buttons) Segmenti->picAggiungiSegmento->setFocus(Qt::OtherFocusReason);
  } else if (inside && picDettaglio->Perde(*focus, editor_.Slot())) {
    picDettaglio->grdDettaglio->setFocus(Qt::OtherFocusReason);
  }
}

void frmPalinsesto::Conta() {
  const OwnError own(C().Errore);
  const bool more = conto_.Passo(kFilesSeen);
  modelloSegmenti_.FattiCambiati();
  modelloSpot_.FattiCambiati();
  if (const RigaSegmento* shown = modelloSegmenti_.Riga(mostrato_)) {
    picDettaglio->lblTotaleSpot->setText(modelloSegmenti_.Contiene(*shown));
  }
  if (more) return;
  conta_.stop();
  if (std::exchange(contate_, editor_.Modifiche()) == editor_.Modifiche()) return;
  avvisi_ = AvvisiPalinsesto(editor_, copie_);
  Segmenti->MostraAvvisi(Qs(avvisi_.Parole(C())), avvisi_.SenzaNome(), avvisi_.Copiabili());
  modelloSegmenti_.ImpostaAvvisi(avvisi_);
  modelloSpot_.ImpostaAvvisi(avvisi_);
}

void frmPalinsesto::ScegliSegmento(std::int16_t giorno, std::int64_t segmento) {
  if (giorno != editor_.GiornoCorrente()) editor_.ScegliGiorno(giorno);
  editor_.VaiAlSegmento(segmento);
}

void frmPalinsesto::MostraReport() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  ScriviReport(editor_);
  const std::string page = FileDelProgetto(C(), "Scheduler.htm");
  if (FileExists(C().Files, page)) ambiente_.Documenti.Apri(page);
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

void frmPalinsesto::Salva() {
  Comando([] {});  // a field that was left by the click
  if (!Caricata() || ChiusuraAttesa()) return;
  const Impegno stays(*this);
  editor_.Turni.Ultimo([this] {
    conta_.stop();
    SalvaPalinsesto(editor_, progresso_);
    Scarica();
  });
}

void frmPalinsesto::AlloScarico() {
  for (QTimer* each :
       {&conta_, &tmrLasciati_, &tmrIniziale, &tmrAggiornaLayout, &fraFileInfo->tmrInfoMp3}) {
    each->stop();
  }
  for (Anteprima* each : {mci1.get(), mciPreview.get()}) Ascolto::Zittisci(*each);
  editor_.Chiudi();
  hide();
  ambiente_.Schermi.Mostra(FormSuccessivo);
}

}  // namespace kvr5
