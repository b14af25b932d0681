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

}  // namespace

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
  const std::string number = RiempiZeri(std::to_string(numero), 3);
  for (QWidget* control : form.findChildren<QWidget*>()) {
    const std::string tag = Std(control->property(kTag).toString());
    if (tag.empty() || !IsTranslated(Std(control->objectName()))) continue;
    const std::string text = TestoLingua(contesto, number + RiempiZeri(tag, 4));
    if (!text.empty()) ImpostaScritta(*control, Qs(text));
  }
  if (auto* help = form.findChild<QWidget*>(QStringLiteral("picHelp"))) {
    ImpostaScritta(*help, Qs(TestoLinguaO(contesto, "0130167", "Help (F1)")));
  }
  const std::string caption = TestoLingua(contesto, number + "0000");
  const std::string_view trimmed = Rifila(caption);
  if (!trimmed.empty()) form.setWindowTitle(Qs(trimmed));
}

}  // namespace kvr5
