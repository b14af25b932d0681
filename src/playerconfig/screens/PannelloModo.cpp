#include "playerconfig/screens/PannelloModo.h"

#include <QPainter>
#include <QVBoxLayout>

#include "core/screens/Icona.h"
#include "core/screens/Mnemonici.h"
#include "core/screens/Pagina.h"
#include "core/screens/Testo.h"
#include "playerconfig/ParoleConto.h"

namespace kvr5 {
namespace {

/// The drawing of a model.
class Disegno : public QWidget {
 public:
  Disegno(const char* name, QWidget* parent) : QWidget(parent) {
    setObjectName(QLatin1String(name));
    setMinimumSize(240, 150);
    setMaximumSize(480, 300);
  }
  void ImpostaNome(const QString& picture) {
    picture_ = picture;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    DipingiIcona(painter, rect(), picture_, Tema::Corrente().Testo);
  }

 private:
  QString picture_;
};

QString PictureOf(std::int16_t playerType) {
  switch (playerType) {
    case 1:
      return QStringLiteral("pannello-veskadro");
    case 2:
      return QStringLiteral("pannello-zub");
    case 3:
      return QStringLiteral("pannello-ostrel");
    default:
      return QStringLiteral("pannello-kvr5");
  }
}

}  // namespace

Coppia* NuovoTrova(const char* nome, const char* etichetta, QWidget* padre) {
  auto* button = new Coppia(nome, etichetta, QStringLiteral("Find"), "cerca", -1, padre);
  button->ImpostaGenere(Coppia::Genere::Quieto);
  ImpostaTurno(*button, TurnoLettera::VieneEVa);
  button->hide();
  return button;
}

void OffriTrova(Coppia& trova, bool offre) {
  if (!offre && trova.window()->focusWidget() == &trova) trova.clearFocus();
  trova.setVisible(offre);
}

PannelloModo::PannelloModo(QWidget* padre) : Riquadro("fraPannello", {}, -1, padre) {
  picPanel = new Disegno("picPanel", this);
  lblModoPanelBig = TestoLungo("lblModoPanelBig", QStringLiteral("Modalità"), this);
  Veste(*lblModoPanelBig, Carattere::Schermata);
  lblSommario = TestoLungo("lblSommario", {}, this);
  Veste(*lblSommario, Carattere::Corpo, Ruolo::Attenuato);
  for (QLabel* each : {lblModoPanelBig, lblSommario}) each->setAlignment(Qt::AlignCenter);
  lblMancanti = new EtichettaAvviso("lblMancanti", {}, Carattere::Riquadro, this);
  lblMancanti->hide();
  Corpo()->addStretch();
  auto* drawing = Riga({nullptr, picPanel, nullptr});
  drawing->setStretch(1, 4);
  Corpo()->addLayout(drawing, 4);
  Corpo()->addWidget(lblModoPanelBig);
  Corpo()->addWidget(lblSommario);
  picTrovaBrani = NuovoTrova("picTrovaBrani", "lblTrovaBrani", this);
  Corpo()->addWidget(lblMancanti, 0, Qt::AlignHCenter);
  Corpo()->addWidget(picTrovaBrani, 0, Qt::AlignHCenter);
  Corpo()->addStretch();
}

void PannelloModo::ImpostaModello(std::int16_t tipo) {
  static_cast<Disegno*>(picPanel)->ImpostaNome(PictureOf(tipo));
}

void PannelloModo::Accogli(Coppia* pulsante) {
  pulsante->setParent(this);
  Corpo()->insertWidget(Corpo()->count() - 1, pulsante, 0, Qt::AlignHCenter);
}

void PannelloModo::Mostra(Contesto& contesto, const CifreProgetto& cifre, bool palinsesto) {
  lblSommario->setText(Qs(ParoleConto(contesto, cifre, palinsesto)));
  const QString warning = Qs(AvvisoConto(contesto, cifre));
  lblMancanti->setText(warning);
  lblMancanti->setVisible(!warning.isEmpty());
  OffriTrova(*picTrovaBrani, cifre.Completo && cifre.Mancanti > 0);
}

}  // namespace kvr5
