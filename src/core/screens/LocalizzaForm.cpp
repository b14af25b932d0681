#include "core/screens/LocalizzaForm.h"

#include <QAbstractButton>
#include <QLabel>
#include <QVariant>
#include <array>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/screens/Coppia.h"
#include "core/screens/Riquadro.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

bool IsTranslated(const std::string& name) {
  constexpr std::array<std::string_view, 4> kKinds{"fra", "lbl", "cmd", "opt"};
  return std::ranges::find(kKinds, std::string_view(name).substr(0, 3)) != kKinds.end();
}

std::string NumberOf(std::int16_t form) {
  return RiempiZeri(std::to_string(form), 3);
}

}  // namespace

std::string ChiaveScritta(std::int16_t numero, const QWidget& controllo) {
  const std::string tag = Std(controllo.property(kTag).toString());
  if (tag.empty() || !IsTranslated(Std(controllo.objectName()))) return {};
  return NumberOf(numero) + RiempiZeri(tag, 4);
}

std::string ChiaveTitolo(std::int16_t numero) {
  return NumberOf(numero) + "0000";
}

void ImpostaScritta(QWidget& controllo, const QString& testo) {
  if (auto* frame = dynamic_cast<Riquadro*>(&controllo)) {
    frame->ImpostaTitolo(testo);
  } else if (auto* pair = dynamic_cast<Coppia*>(&controllo)) {
    pair->ImpostaScritta(testo);
  } else if (auto* owner = dynamic_cast<Coppia*>(controllo.parentWidget())) {
    owner->ImpostaScritta(testo);
  } else if (auto* label = qobject_cast<QLabel*>(&controllo)) {
    label->setText(testo);
  } else if (auto* button = qobject_cast<QAbstractButton*>(&controllo)) {
    button->setText(SenzaMnemonico(testo));
  }
}

void LocalizzaForm(Contesto& contesto, std::int16_t numero, Form& form) {
  form.setProperty(kNumero, numero);
  for (QWidget* control : form.findChildren<QWidget*>()) {
    const std::string key = ChiaveScritta(numero, *control);
    if (key.empty()) continue;
    const std::string text = TestoLingua(contesto, key);
    if (!text.empty()) ImpostaScritta(*control, Qs(text));
  }
  if (auto* help = form.findChild<QWidget*>(QStringLiteral("picHelp"))) {
    ImpostaScritta(*help, Qs(TestoLinguaO(contesto, "0130167", "Help (F1)")));
  }
  const std::string caption = TestoLingua(contesto, ChiaveTitolo(numero));
  const std::string_view trimmed = Rifila(caption);
  if (!trimmed.empty()) form.setWindowTitle(Qs(trimmed));
}

}  // namespace kvr5
