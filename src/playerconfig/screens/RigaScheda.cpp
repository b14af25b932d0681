#include "playerconfig/screens/RigaScheda.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/Avvisi.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/Icona.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr int kSign = 18;

struct CardState {
  const char* Key;
  const char* Icon;
  Ruolo Role;
};

CardState StateOf(const std::string& root, const std::optional<Drive>& drive) {
  if (root.empty()) return {"0130140", "scheda", Ruolo::Attenuato};
  if (!drive || !drive->HasMedium) return {"0130143", "avviso", Ruolo::Avviso};
  if (drive->ReadOnly) return {"0130142", "blocco", Ruolo::Avviso};
  return {"0130141", "fatto", Ruolo::Buono};
}

}  // namespace

RigaScheda::RigaScheda(Contesto& contesto, QWidget* padre) : QWidget(padre), contesto_(contesto) {
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(spazi::kStretto);
  segno_ = SegnoDi("scheda", Tema::Corrente().Attenuato, kSign, this);
  lblPathMemoryCard = NuovaEtichetta("lblPathMemoryCard",
                                     QStringLiteral("Memory Card Path not selected"), 45, this);
  lblPathMemoryCard->setFocusPolicy(Qt::ClickFocus);  // by Tab the button beside it is reached
  lblPathMemoryCard->installEventFilter(this);
  lblStato = new EtichettaElisa("lblStatoScheda", this);
  cmdScegli = new Coppia("cmdScegliScheda", "lblScegliScheda", QStringLiteral("Choose..."),
                         "scheda", -1, this);
  cmdScegli->ImpostaGenere(Coppia::Genere::Quieto);
  line->addWidget(segno_);
  line->addWidget(lblPathMemoryCard);
  line->addWidget(lblStato, 1);
  line->addWidget(cmdScegli);
  connect(cmdScegli, &QAbstractButton::clicked, this, [this] {
    if (SuScegli) SuScegli();
  });
}

void RigaScheda::Mostra(const QString& percorso, const std::optional<Drive>& fatti) {
  lblPathMemoryCard->setText(percorso);
  MostraStato(fatti);
}

void RigaScheda::MostraStato(const std::optional<Drive>& fatti) {
  const CardState state = StateOf(contesto_.Stato.PercorsoMemoryCard, fatti);
  std::string words = TestoLingua(contesto_, state.Key);
  if (fatti && fatti->HasMedium) {
    words += ", " + (fatti->Label.empty() ? "" : SuUnaRiga(fatti->Label) + " ") +
             QuantitaInParole(fatti->Size, contesto_.Luogo);
  }
  lblStato->setText(contesto_.Stato.PercorsoMemoryCard.empty() ? QString() : Qs(words));
  Veste(*lblStato, Carattere::Corpo, state.Role);
  segno_->setPixmap(DisegnoDi(QLatin1String(state.Icon), {kSign, kSign},
                              lblStato->palette().color(QPalette::WindowText),
                              devicePixelRatioF()));
}

bool RigaScheda::eventFilter(QObject* object, QEvent* event) {
  if (object == lblPathMemoryCard && SuScegli) {
    const auto* key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    const bool enter =
        key != nullptr && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter);
    if (enter && key->isAutoRepeat()) return true;
    if (enter || event->type() == QEvent::MouseButtonDblClick) {
      SuScegli();
      return true;
    }
  }
  return QWidget::eventFilter(object, event);
}

void RigaScheda::Localizza() {
  cmdScegli->ImpostaScritta(Qs(TestoLinguaO(contesto_, "0130144", "Choose...")));
  cmdScegli->setToolTip(Qs(TestoLingua(contesto_, "0130145")));
  lblPathMemoryCard->setToolTip(cmdScegli->toolTip());
}

}  // namespace kvr5
