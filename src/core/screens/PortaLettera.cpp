#include "core/screens/PortaLettera.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QVariant>

#include "core/screens/Coppia.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/Segmento.h"

namespace kvr5 {
namespace {

constexpr const char* kLetter = "lettera";
constexpr const char* kPlain = "testoSenzaLettera";  // there while the letter is underlined

const Coppia* ButtonOf(const QWidget& control) {
  return dynamic_cast<const Coppia*>(&control);
}

bool IsOption(const QWidget& control) {
  if (dynamic_cast<const Segmento*>(&control) != nullptr) return false;
  return qobject_cast<const QRadioButton*>(&control) != nullptr ||
         qobject_cast<const QCheckBox*>(&control) != nullptr;
}

/// The label of a field; one that shortens its text draws no letter.
bool LeadsToField(const QWidget& control) {
  const auto* label = qobject_cast<const QLabel*>(&control);
  if (label == nullptr || label->buddy() == nullptr) return false;
  return qobject_cast<const QAbstractButton*>(label->buddy()) == nullptr &&
         dynamic_cast<const EtichettaElisa*>(label) == nullptr;
}

void Write(QWidget& control, const QString& text) {
  if (auto* label = qobject_cast<QLabel*>(&control)) label->setText(text);
  if (auto* option = qobject_cast<QAbstractButton*>(&control)) option->setText(text);
}

/// The text with the toolkit's mark before the letter, which underlines it and has it work.
QString Marked(QString text, QChar letter) {
  const qsizetype at = text.indexOf(letter, 0, Qt::CaseInsensitive);
  return at < 0 ? text : text.insert(at, QLatin1Char('&'));
}

}  // namespace

bool PortaLettera(const QWidget& controllo) {
  if (const Coppia* button = ButtonOf(controllo)) return button->Etichetta() != nullptr;
  return (IsOption(controllo) || LeadsToField(controllo)) && !ParoleDi(controllo).isEmpty();
}

QString ParoleDi(const QWidget& controllo) {
  if (const auto* label = qobject_cast<const QLabel*>(&controllo)) return label->text();
  return static_cast<const QAbstractButton&>(controllo).text();
}

QChar LetteraDi(const QWidget& controllo) {
  const Coppia* button = ButtonOf(controllo);
  return button != nullptr ? button->Mnemonico() : controllo.property(kLetter).toChar();
}

void DaiLettera(QWidget& controllo, QChar lettera) {
  if (auto* button = dynamic_cast<Coppia*>(&controllo)) return button->ImpostaMnemonico(lettera);
  controllo.setProperty(kLetter, lettera);
}

void SottolineaLettera(QWidget& controllo, bool mostra) {
  if (auto* button = dynamic_cast<Coppia*>(&controllo)) return button->MostraMnemonico(mostra);
  const QVariant plain = controllo.property(kPlain);
  if (mostra == plain.isValid()) return;
  if (mostra) {
    const QString words = ParoleDi(controllo);
    controllo.setProperty(kPlain, words);
    Write(controllo, Marked(words, LetteraDi(controllo)));
    return;
  }
  // What was written meanwhile, in another language, stays.
  if (ParoleDi(controllo) == Marked(plain.toString(), LetteraDi(controllo))) {
    Write(controllo, plain.toString());
  }
  controllo.setProperty(kPlain, {});
}

}  // namespace kvr5
