// The controls of the hub and how they lie.

#include <QGridLayout>
#include <QVBoxLayout>
#include <QVariant>

#include "core/Lingua.h"
#include "core/screens/Avvisi.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/Icona.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Posto.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "platform/FileOps.h"
#include "playerconfig/screens/frmPlayerConfig.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

constexpr int kFileInfoDelay = 500;
constexpr int kCardWatch = 2000;

}  // namespace

void frmPlayerConfig::Costruisci() {
  auto* page = NuovaPagina(*this);
  page->setSpacing(12);
  page->addLayout(CostruisciTestata());
  page->addWidget(Scorrevole(CostruisciCorpo(), this), 1);
  Barra = new Comandi(C(), this);
  page->addWidget(Barra);
  CostruisciNascosti();
  guardia_.setInterval(kCardWatch);
}

QLayout* frmPlayerConfig::CostruisciTestata() {
  auto* head = new QVBoxLayout();
  head->setSpacing(2);
  lblTipoPlayer = NuovaEtichetta("lblTipoPlayer", QStringLiteral("Player"), -1, this);
  Veste(*lblTipoPlayer, Carattere::Riquadro);
  lblModello = NuovaEtichetta("lblModello", {}, -1, this);
  Veste(*lblModello, Carattere::Riquadro);
  lblProgetto = new EtichettaElisa("lblProgetto", this, Qt::ElideMiddle);
  Veste(*lblProgetto, Carattere::Progetto);
  lblNonSalvato = new EtichettaAvviso("lblNonSalvato", {}, Carattere::Riquadro, this);
  lblNonSalvato->hide();
  picHelp = NuovoAiuto(this);
  auto* top = Riga({lblProgetto, lblModello, lblTipoPlayer, lblNonSalvato, picHelp});
  top->setStretch(0, 1);
  top->setSpacing(spazi::kMedio);
  head->addLayout(top);
  Scheda = new RigaScheda(C(), this);
  head->addWidget(Scheda);
  return head;
}

QWidget* frmPlayerConfig::CostruisciCorpo() {
  auto* body = new QWidget(this);
  auto* columns = new QHBoxLayout(body);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(spazi::kMedio);
  auto* left = new QVBoxLayout();
  fraOutputLevel = new Livelli(C(), body);
  auto* options = new Riquadro("fraOpzioni", {}, -1, body);
  Opzioni = new OpzioniIngressi(C(), options);
  options->Corpo()->addWidget(Opzioni);
  left->addWidget(fraOutputLevel, 1);
  left->addWidget(options);
  columns->addLayout(left, 3);
  colonne_ = {new QWidget(body), new QWidget(body)};
  auto* centre = new QVBoxLayout(colonne_[0]);
  fraIngressiLogici = new IngressiLogici(C(), body);
  Assegnazioni = new ListaAssegnati(C(), body);
  centre->addWidget(fraIngressiLogici);
  centre->addWidget(Assegnazioni, 1);
  columns->addWidget(colonne_[0], 4);
  auto* right = new QVBoxLayout(colonne_[1]);
  for (auto* column : {centre, right}) column->setContentsMargins(0, 0, 0, 0);
  fraFileName = new PaneMp3(C(), body);
  fraFileInfo = new PannelloInfo(QStringLiteral("Mp3 info"), 35, 5, kFileInfoDelay, body);
  right->addWidget(fraFileName, 1);
  right->addWidget(fraFileInfo);
  columns->addWidget(colonne_[1], 4);
  Pannello = new PannelloModo(body);
  picPanel = Pannello->picPanel;
  lblModoPanelBig = Pannello->lblModoPanelBig;
  columns->addWidget(Pannello, 8);
  for (auto* column : {left, centre, right}) column->setSpacing(spazi::kMedio);
  return body;
}

void frmPlayerConfig::CostruisciNascosti() {
  // What no model shows; the controls are there all the same, with their texts.
  const auto hidden = [this](const char* name, const char* caption, int tag) {
    auto* label = NuovaEtichetta(name, QString::fromUtf8(caption), tag, this);
    label->hide();
    return label;
  };
  lblModoPanel = hidden("lblModoPanel", "Modalità", -1);
  lblModoZub = hidden("lblModoZub", "Modalità", -1);
  lblModoZubBig = hidden("lblModoZubBig", "Modalità", -1);
  lblModoOstrel = hidden("lblModoOstrel", "Modalità", -1);
  lblModoOstrelBig = hidden("lblModoOstrelBig", "Modalità", -1);
  for (const char* name : {"picPanelSmall", "picZub", "picZubSmall", "picOstrel", "picOstrelSmall",
                           "picVeskadroSmall"}) {
    hidden(name, "", -1);
  }
  Seriali = new CollegamentiSeriali(this);
}

void frmPlayerConfig::Disponi() {
  const bool noInputs = !layout_.fraIngressiLogici;
  fraOutputLevel->setVisible(layout_.fraOutputLevel);
  Opzioni->Disponi(layout_);
  fraIngressiLogici->setVisible(layout_.fraIngressiLogici);
  Assegnazioni->setVisible(layout_.fraIngressiLogici);
  fraFileName->setVisible(layout_.fraFileName);
  fraFileInfo->setVisible(layout_.fraFileInfo);
  for (QWidget* column : colonne_) column->setVisible(!noInputs);
  fraFileName->lblMp3_Dir->setVisible(layout_.lblMp3_Dir);
  fraFileName->picDisk->setVisible(layout_.picDisk);
  fraFileName->DirDirectoryMp3->setEnabled(layout_.DirDirectoryMp3);
  fraFileName->cmdStopMp3->setVisible(layout_.cmdStopMp3);
  fraIngressiLogici->cmdMp3Preview_Stop->setVisible(layout_.cmdMp3Preview_Stop);
  picPanel->setVisible(layout_.picPanel);
  Pannello->setVisible(noInputs);
  Pannello->ImpostaModello(C().Stato.PlayerType);
  picPanel->setAccessibleName(Qs(TestoLingua(C(), "0130181")));
  Barra->Disponi(layout_);
  constexpr std::int16_t kKvr5 = 4;
  if (noInputs && C().Stato.PlayerType == kKvr5) {
    for (Coppia* button : {Barra->picPlaylist, Barra->picPalinsesto}) {
      if (button->isHidden()) continue;
      Pannello->Accogli(button);
      OrdineTab({Opzioni->picConfiguraFade, button, Barra->picEsci});
    }
  }
}

void frmPlayerConfig::Collega() {
  fraIngressiLogici->SuSpunta = [this](int input, bool on) {
    CambiaCodice([this, input, on] { codice_->Spunta(input, on); });
  };
  fraIngressiLogici->SuVaiAlFile = [this] { VaiAlFile(); };
  for (Coppia* find : {Assegnazioni->picTrova, Pannello->picTrovaBrani}) {
    connect(find, &QAbstractButton::clicked, this, [this] { TrovaMancanti(); });
  }
  Assegnazioni->SuScelta = [this](std::int64_t code) {
    CambiaCodice([this, code] { codice_->Scegli(code); }, code != codice_->Codice());
  };
  fraFileName->SuScelta = [this] { SceltoFile(); };
  fraFileName->SuCartella = [this] { OffriCartella(); };
  fraFileName->SuSfoglia = [this] { SfogliaMp3(); };
  connect(fraFileName->cmdOkFileMp3, &QAbstractButton::clicked, this, [this] {
    // While the inputs change, a press was meant for those before.
    if (!fraFileName->OkSospeso() && cambi_.empty()) ConfermaFile();
  });
  connect(&fraFileInfo->tmrInfoMp3, &QTimer::timeout, this, [this] {
    const Impegno stays(*this);
    MostraInfoMp3();
    C().Messaggi.LasciaCorrere();
  });
  const auto changed = [this] {
    // Not while the load sets one control after the other: what isn't shown yet would be lost.
    if (letti_) AggiornaNonSalvato();
  };
  fraOutputLevel->SuCambio = [this, changed] {
    const Impegno stays(*this);
    C().Messaggi.LasciaCorrere();
    changed();
  };
  Opzioni->SuCambio = changed;
  Scheda->SuScegli = [this] {
    const Impegno stays(*this);
    const OwnError own(C().Errore);  // a save may be under way
    ambiente_.Schermi.ScegliScheda(Schermata::Configurazione);
  };
  connect(&conta_, &QTimer::timeout, this, [this] { Conta(); });
  connect(&guardia_, &QTimer::timeout, this, [this] {
    Ritenta();
    if (!C().Stato.PercorsoMemoryCard.empty()) Scheda->MostraStato(servizi_.FattiDellaScheda());
  });
}

void frmPlayerConfig::CollegaComandi() {
  CollegaAscolto();
  connect(Barra->picSave, &QAbstractButton::clicked, this, [this] { Salva(); });
  connect(Barra->picPlaylist, &QAbstractButton::clicked, this, [this] { ApriPlaylist(); });
  connect(Barra->picPalinsesto, &QAbstractButton::clicked, this, [this] { ApriPalinsesto(); });
  connect(Barra->picReport, &QAbstractButton::clicked, this, [this] { MostraReport(); });
  connect(Barra->picRecordFlash, &QAbstractButton::clicked, this, [this] { Registra(); });
  connect(Barra->picCancellaFlash, &QAbstractButton::clicked, this, [this] { Svuota(); });
  connect(Barra->picVerifica, &QAbstractButton::clicked, this, [this] { Verifica(); });
  connect(Seriali->cmdCopiaFileManuale, &QAbstractButton::clicked, this,
          [this] { CopiaManuale(); });
  connect(Barra->picEsci, &QAbstractButton::clicked, this, [this] { Scarica(); });
  connect(picHelp, &QAbstractButton::clicked, this, [this] { Aiuto(); });
  SuTasto(Qt::Key_F1, [this] { Aiuto(); });
  SuSalva(*Barra->picSave);
  CollegaParametri();
}

void frmPlayerConfig::CollegaParametri() {
  // A modal screen lets events run: the hub stays until it is gone.
  const auto leads = [this](QAbstractButton* button, void (*open)(Navigazione&)) {
    connect(button, &QAbstractButton::clicked, this, [this, open] {
      if (lavora_) return;  // it would hold the work up, out of reach of its cancel
      const Impegno stays(*this);
      const OwnError own(C().Errore);
      open(ambiente_.Schermi);
      AvvisaNonScritto();
    });
  };
  leads(Opzioni->picConfiguraFade, [](Navigazione& screens) { screens.ApriTempiFade(); });
  leads(Opzioni->cmdConfigureExtra, [](Navigazione& screens) { screens.ApriPanelExtra(); });
  for (auto* button : {Seriali->cmdConfigure232, Seriali->cmdConfigure232bis}) {
    leads(button, [](Navigazione& screens) { screens.ApriConfig485(true); });
  }
  for (auto* button : {Seriali->picConfig485, Seriali->picConfig485bis}) {
    leads(button, [](Navigazione& screens) { screens.ApriConfig485(false); });
  }
}

void frmPlayerConfig::RiempiAltro() {
  const auto text = [this](const char* key, const char* caption) {
    return SenzaMnemonico(Qs(TestoLinguaO(C(), key, caption)));
  };
  QMenu& menu = Barra->menuAltro;
  menu.setToolTipsVisible(true);
  const auto has = [this](const char* database) {
    return FileExists(C().Files, FileDelProgetto(C(), database));
  };
  if (!layout_.picPalinsesto && has("scheduler.mdb")) {
    connect(menu.addAction(text("0130151", "Schedule")), &QAction::triggered, this,
            [this] { ApriPalinsesto(); });
  }
  if (!layout_.picPlaylist && has("playlist.mdb")) {
    connect(menu.addAction(text("0130152", "Playlists")), &QAction::triggered, this,
            [this] { ApriPlaylist(); });
  }
  QAction* find = menu.addAction(text("0130154", "Find missing files"));
  connect(find, &QAction::triggered, this, [this] { TrovaMancanti(); });
  connect(&menu, &QMenu::aboutToShow, find, [this, find] {
    find->setVisible(conto_.Cifre().Completo && conto_.Cifre().Mancanti > 0);
  });
  connect(menu.addAction(text("0130156", "Copy by hand")), &QAction::triggered, this,
          [this] { Seriali->cmdCopiaFileManuale->click(); });
  QAction* eject = menu.addAction(text("0130158", "Eject card"));
  eject->setToolTip(text("0130147", ""));
  connect(eject, &QAction::triggered, this, [this] { Espelli(); });
  connect(&menu, &QMenu::aboutToShow, eject,
          [this, eject] { eject->setVisible(servizi_.PuoEspellere()); });
  QAction* open = menu.addAction(text("0130157", "Open project folder"));
  connect(open, &QAction::triggered, this,
          [this] { ambiente_.Documenti.Apri(C().Stato.CartellaProgetto); });
}

}  // namespace kvr5
