#include "playerconfig/screens/RigaScheda.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <ctime>

#include "core/Lingua.h"
#include "core/Parole.h"
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
  segno_->installEventFilter(this);
  lblPathMemoryCard = NuovaEtichetta("lblPathMemoryCard",
                                     QStringLiteral("Memory Card Path not selected"), 45, this);
  lblPathMemoryCard->setFocusPolicy(Qt::ClickFocus);  // by Tab the button beside it is reached
  Veste(*lblPathMemoryCard, Carattere::Corpo);
  lblPathMemoryCard->installEventFilter(this);
  lblStato = new EtichettaElisa("lblStatoScheda", this);
  lblStato->installEventFilter(this);
  cmdScegli = new Coppia("cmdScegliScheda", "lblScegliScheda", QStringLiteral("Choose..."),
                         "scheda", -1, this);
  cmdScegli->ImpostaGenere(Coppia::Genere::Quieto);
  line->addWidget(segno_);
  line->addWidget(lblPathMemoryCard);
  line->addWidget(lblStato, 1);
  picSpazio = new Barra(this);
  picSpazio->setObjectName(QStringLiteral("picSpazio"));
  picSpazio->setFixedSize(72, 10);
  picSpazio->installEventFilter(this);
  lblSpazio = new EtichettaAvviso("lblSpazio", {}, Carattere::Riquadro, this);
  lblSpazio->ImpostaAvviso(false);
  lblSpazio->installEventFilter(this);
  line->addWidget(picSpazio);
  line->addWidget(lblSpazio);
  MostraSpazio();
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
  const std::string& root = contesto_.Stato.PercorsoMemoryCard;
  CardState state = StateOf(root, fatti);
  const bool there = fatti && fatti->HasMedium;
  if (registrata_ && (!there || registrata_->Radice != root)) registrata_.reset();
  if (HaEstranei() && state.Role == Ruolo::Buono) state = {state.Key, "avviso", Ruolo::Avviso};
  std::string words = ParoleDelloStato(state.Key);
  // A card that was chosen before this project was opened isn't in the label: it is named here.
  if (!root.empty() && !Std(lblPathMemoryCard->text()).ends_with(root)) words = root + " " + words;
  if (there) {
    words += ", " + (fatti->Label.empty() ? "" : SuUnaRiga(fatti->Label) + ", ") +
             QuantitaInParole(fatti->Size, contesto_.Luogo) + ", " +
             ConValori(TestoLinguaO(contesto_, "0130022", "%1 free"),
                       {QuantitaInParole(fatti->Free, contesto_.Luogo)});
  }
  lblStato->setText(Qs(words));
  const QString strays = HaEstranei() ? Qs(TestoLingua(contesto_, "0130351")) : QString();
  // The line may be cut: the tip begins with all of it.
  lblStato->setToolTip(strays.isEmpty() ? strays : Suggerimento(lblStato->text() + '\n' + strays));
  lblStato->setAccessibleDescription(strays);
  SpiegaPercorso();
  Veste(*lblStato, Carattere::Corpo, state.Role);
  fatti_ = fatti;
  MostraSpazio();
  segno_->setPixmap(DisegnoDi(QLatin1String(state.Icon), {kSign, kSign},
                              lblStato->palette().color(QPalette::WindowText),
                              devicePixelRatioF()));
}

void RigaScheda::SpiegaPercorso() {
  // A letter says nothing where the system itself has none: its own path follows.
  const std::string& root = contesto_.Stato.PercorsoMemoryCard;
  QString tip = cmdScegli->toolTip();
  if (!root.empty()) tip = Suggerimento(Qs(contesto_.Files.HostPath(root)) + '\n' + tip);
  lblPathMemoryCard->setToolTip(tip);
  segno_->setToolTip(tip);
}

std::string RigaScheda::ParoleDelloStato(const char* chiave) const {
  std::string words = TestoLingua(contesto_, chiave);
  if (!registrata_) return words;
  words += ", " + ConValori(TestoLinguaO(contesto_, "0130345", "recorded %1"),
                            {QuandoInParole(contesto_, registrata_->Quando)});
  if (!HaEstranei()) return words;
  return words + ", " +
         ConValori(TestoLinguaO(contesto_, "0130350", "other files on it: %1"),
                   {std::to_string(registrata_->Estranei)});
}

void RigaScheda::SegnaRegistrata(std::size_t estranei) {
  std::tm now = contesto_.Ora.Adesso();
  now.tm_isdst = -1;
  registrata_ = {contesto_.Stato.PercorsoMemoryCard, std::mktime(&now), estranei};
}

void RigaScheda::ImpostaBisogno(std::uint64_t byte) {
  bisogno_ = byte;
  MostraSpazio();
}

void RigaScheda::MostraSpazio() {
  const bool shows = bisogno_ > 0 && fatti_ && fatti_->HasMedium;
  picSpazio->setVisible(shows);
  lblSpazio->setVisible(shows);
  if (!shows) return;
  // Against the whole card: what it holds of the project already is written anew, not besides.
  const auto room = static_cast<double>(fatti_->Size);
  const auto needed = static_cast<double>(bisogno_);
  picSpazio->ImpostaParte(needed >= room ? 1.0 : needed / room);
  const std::string words = needed > room
                                ? TestoLinguaO(contesto_, "0130349", "too small: %1 of %2")
                                : TestoLinguaO(contesto_, "0130148", "%1 of %2");
  lblSpazio->setText(Qs(ConValori(words, {QuantitaInParole(bisogno_, contesto_.Luogo),
                                          QuantitaInParole(fatti_->Size, contesto_.Luogo)})));
  lblSpazio->ImpostaAvviso(needed > room);
  picSpazio->setAccessibleDescription(lblSpazio->text());
}

bool RigaScheda::eventFilter(QObject* object, QEvent* event) {
  if (SuScegli) {
    const auto* key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    const bool enter =
        key != nullptr && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter);
    if (enter && key->isAutoRepeat()) return true;
    const bool twice = event->type() == QEvent::MouseButtonDblClick &&
                       static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (enter || twice) {
      SuScegli();
      return true;
    }
  }
  return QWidget::eventFilter(object, event);
}

void RigaScheda::Localizza() {
  cmdScegli->ImpostaScritta(Qs(TestoLinguaO(contesto_, "0130144", "Choose...")));
  cmdScegli->setToolTip(Qs(TestoLingua(contesto_, "0130145")));
  SpiegaPercorso();
  for (QWidget* each : {static_cast<QWidget*>(picSpazio), static_cast<QWidget*>(lblSpazio)}) {
    each->setToolTip(Qs(TestoLingua(contesto_, "0130149")));
    each->setAccessibleName(each->toolTip());
  }
}

}  // namespace kvr5
