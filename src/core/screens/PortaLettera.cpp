#include "core/screens/PortaLettera.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QShortcut>
#include <QVariant>
#include <algorithm>

#include "core/screens/Coppia.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/Segmento.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr const char* kLetter = "lettera";
constexpr const char* kShown = "letteraMostrata";

bool IsOption(const QWidget& control) {
  if (dynamic_cast<const Segmento*>(&control) != nullptr) return false;
  return qobject_cast<const QRadioButton*>(&control) != nullptr ||
         qobject_cast<const QCheckBox*>(&control) != nullptr;
}

/// The label of a field, or of a check box without words; one that shortens its text draws no
/// letter.
bool LeadsToField(const QWidget& control) {
  const auto* label = qobject_cast<const QLabel*>(&control);
  if (label == nullptr || label->buddy() == nullptr) return false;
  if (dynamic_cast<const EtichettaElisa*>(label) != nullptr) return false;
  const auto* button = qobject_cast<const QAbstractButton*>(label->buddy());
  return button == nullptr || qobject_cast<const QCheckBox*>(button) != nullptr;
}

void LeadTo(QWidget* field) {
  if (field == nullptr || !field->isEnabled()) return;
  field->setFocus(Qt::ShortcutFocusReason);
  if (auto* box = qobject_cast<QCheckBox*>(field)) box->click();
}

/// The label's own key; the toolkit has one only for a label whose text is marked.
QShortcut& KeyOf(QLabel& label) {
  if (auto* known = label.findChild<QShortcut*>()) return *known;
  auto* key = new QShortcut(&label);
  key->setAutoRepeat(false);  // a key that is held down is one press
  QObject::connect(key, &QShortcut::activated, &label, [&label] { LeadTo(label.buddy()); });
  return *key;
}

}  // namespace

bool PortaLettera(const QWidget& controllo) {
  if (const auto* button = dynamic_cast<const Coppia*>(&controllo)) return button->Etichetta();
  return (IsOption(controllo) || LeadsToField(controllo)) && !ParoleDi(controllo).isEmpty();
}

QString ParoleDi(const QWidget& controllo) {
  if (const auto* label = qobject_cast<const QLabel*>(&controllo)) return label->text();
  return static_cast<const QAbstractButton&>(controllo).text();
}

qsizetype PostoLettera(const QString& testo, QChar lettera) {
  const auto* at = std::ranges::find(testo, lettera, [](QChar each) { return each.toUpper(); });
  return lettera.isNull() || at == testo.end() ? -1 : at - testo.begin();
}

QKeySequence TastoDi(QChar lettera) {
  return lettera.isNull() ? QKeySequence() : QKeySequence(Qt::ALT | Qt::Key(lettera.unicode()));
}

QChar LetteraDi(const QWidget& controllo) {
  const auto* button = dynamic_cast<const Coppia*>(&controllo);
  return button != nullptr ? button->Mnemonico() : controllo.property(kLetter).toChar();
}

void DaiLettera(QWidget& controllo, QChar lettera) {
  if (auto* button = dynamic_cast<Coppia*>(&controllo)) return button->ImpostaMnemonico(lettera);
  controllo.setProperty(kLetter, lettera);
  if (auto* option = qobject_cast<QAbstractButton*>(&controllo))
    option->setShortcut(TastoDi(lettera));
  if (auto* label = qobject_cast<QLabel*>(&controllo)) KeyOf(*label).setKey(TastoDi(lettera));
}

void SottolineaLettera(QWidget& controllo, bool mostra) {
  if (auto* button = dynamic_cast<Coppia*>(&controllo)) return button->MostraMnemonico(mostra);
  if (controllo.property(kShown).toBool() == mostra) return;
  controllo.setProperty(kShown, mostra);
  controllo.update();
}

QString TestoSottolineato(const QWidget& controllo, const QString& testo) {
  if (!controllo.property(kShown).toBool()) return testo;
  // An option's text has the toolkit's marks already.
  const bool marked = qobject_cast<const QAbstractButton*>(&controllo) != nullptr;
  QString shown = marked ? testo : SenzaMnemonico(testo);
  const qsizetype at = PostoLettera(shown, LetteraDi(controllo));
  return at < 0 ? shown : shown.insert(at, QLatin1Char('&'));
}

}  // namespace kvr5
