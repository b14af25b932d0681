#include "core/screens/frmMain.h"

#include <QPainter>
#include <QShowEvent>

#include "core/Aiuti.h"
#include "core/Avvio.h"
#include "core/Lingua.h"
#include "core/screens/Icona.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormMain = 2;

/// The plain logo.
class Logo : public QWidget {
 public:
  explicit Logo(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("imgUpFrameLogo"));
    setFixedSize(260, 56);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    DipingiIcona(painter, rect(), QStringLiteral("logo"), Tema::Corrente().Testo);
  }
};

}  // namespace

frmMain::frmMain(Ambiente& ambiente) : Form(ambiente, "frmMain") {
  setWindowTitle(QStringLiteral("KVR5 Software Configuration"));
  resize(820, 480);
  setMinimumSize(640, 400);
  auto* page = NuovaPagina(*this);
  imgUpFrameLogo = new Logo(this);
  picHelp = NuovoAiuto(this);
  auto* top = Riga({imgUpFrameLogo, nullptr, picHelp});
  top->setAlignment(picHelp, Qt::AlignTop);
  page->addLayout(top);

  picNuovoProgetto = new Coppia("picNuovoProgetto", "lblNuovoProgetto",
                                QStringLiteral("New Project"), "nuovo", 1, this);
  picCaricaDaDisco = new Coppia("picCaricaDaDisco", "lblCaricaDaDisco",
                                QStringLiteral("Open Project from disc"), "apri", 2, this);
  for (Coppia* card : {picNuovoProgetto, picCaricaDaDisco}) {
    card->ImpostaGenere(Coppia::Genere::Carta);
  }
  auto* cards = Riga({picNuovoProgetto, picCaricaDaDisco});
  cards->setSpacing(spazi::kMedio);
  page->addLayout(cards, 1);

  picConfig =
      new Coppia("picConfig", "lblConfigurazione", QStringLiteral("Config"), "opzioni", 4, this);
  picEsci = new Coppia("picEsci", "lblUscita", QStringLiteral("Exit"), "esci", 3, this);
  page->addLayout(Riga({picConfig, nullptr, picEsci}));
  lblNuovoProgetto = picNuovoProgetto->Etichetta();
  lblCaricaDaDisco = picCaricaDaDisco->Etichetta();
  lblConfigurazione = picConfig->Etichetta();
  lblUscita = picEsci->Etichetta();
  OrdineTab({picHelp, picNuovoProgetto, picCaricaDaDisco, picConfig, picEsci});

  connect(picNuovoProgetto, &QAbstractButton::clicked, this, [this] { NuovoProgetto(); });
  connect(picCaricaDaDisco, &QAbstractButton::clicked, this, [this] {
    ambiente_.Schermi.MostraElencoProgetti(Schermata::Menu);
    Scarica();
  });
  connect(picConfig, &QAbstractButton::clicked, this, [this] {
    ambiente_.Schermi.Mostra(Schermata::Impostazioni);
    Scarica();
  });
  connect(picEsci, &QAbstractButton::clicked, this, [this] { Scarica(); });
  connect(picHelp, &QAbstractButton::clicked, this, [this] { Aiuto(); });
  SuTasto(Qt::Key_F1, [this] { picHelp->click(); });
}

void frmMain::AlCaricamento() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  LocalizzaForm(C(), kFormMain, *this);
  picNuovoProgetto->setToolTip(Qs(TestoLingua(C(), "0130100")));
  picCaricaDaDisco->setToolTip(Qs(TestoLingua(C(), "0130101")));
  C().Stato.PlayerType = 0;
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
  C().Stato.PercorsoMemoryCard.clear();
}

void frmMain::Rilievo() {
  // What is most likely to be wanted: a project to go on with, where there is one.
  const bool some = HaProgetti(C());
  Coppia* primary = some ? picCaricaDaDisco : picNuovoProgetto;
  Coppia* other = some ? picNuovoProgetto : picCaricaDaDisco;
  if (primary->GenereOra() == Coppia::Genere::CartaPrimaria) return;
  primary->ImpostaGenere(Coppia::Genere::CartaPrimaria);
  other->ImpostaGenere(Coppia::Genere::Carta);
  primary->setFocus();  // what stands out is what Enter does
}

void frmMain::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) Rilievo();
  Form::showEvent(event);
}

void frmMain::NuovoProgetto() {
  const Impegno stays(*this);
  auto& events = C().Messaggi;
  events.ImpostaPuntatore(Puntatore::Attesa);
  events.LasciaCorrere();
  C().Stato.PlayerName = NomeModello(4);
  C().Stato.PlayerType = 4;  // the menu makes projects of this model only
  const int shown = Mostrata();
  ambiente_.Schermi.Mostra(Schermata::Wizard);
  events.ImpostaPuntatore(Puntatore::Normale);
  events.LasciaCorrere();
  // Stays loaded: the wizard brings it back as it is. One that was left while events ran has.
  if (Mostrata() == shown) Nascondi();
}

}  // namespace kvr5
