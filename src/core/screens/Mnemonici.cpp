#include "core/screens/Mnemonici.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QKeyEvent>
#include <QRadioButton>
#include <QSet>
#include <algorithm>

#include "core/screens/Coppia.h"
#include "core/screens/PortaLettera.h"

namespace kvr5 {
namespace {

/// The letters that a text offers, the best first: the beginnings of its words, then the others.
/// A letter with an accent may be on no key.
QList<QChar> Offered(const QString& text) {
  QList<QChar> initials;
  QList<QChar> others;
  bool inside = false;
  for (const QChar each : text.toUpper()) {
    if (each >= QLatin1Char('A') && each <= QLatin1Char('Z')) {
      (inside ? others : initials).append(each);
    }
    inside = each.isLetter();
  }
  return initials + others;
}

constexpr const char* kTurn = "turnoLettera";

/// What a button looks like doesn't count: that changes with the state.
TurnoLettera TurnOf(const QWidget* control) {
  const QVariant turn = control->property(kTurn);
  if (turn.isValid()) return static_cast<TurnoLettera>(turn.toInt());
  return dynamic_cast<const Coppia*>(control) == nullptr ? TurnoLettera::Scelte
                                                         : TurnoLettera::Sempre;
}

/// Hands out letters so that as many controls as can be have one: one that finds all of its own
/// taken has another one of its turn move to a letter that is free.
class Hand {
 public:
  void Give(QWidget& control) {
    QSet<QChar> tried;
    Place(control, tried);
  }
  const QHash<QChar, QWidget*>& Given() const { return given_; }

 private:
  bool Place(QWidget& control, QSet<QChar>& tried) {
    const auto letters = Offered(ParoleDi(control));
    for (const QChar letter : letters) {
      if (given_.contains(letter)) continue;
      given_.insert(letter, &control);
      return true;
    }
    for (const QChar letter : letters) {
      if (tried.contains(letter)) continue;
      tried.insert(letter);
      if (TurnOf(given_.value(letter)) < TurnOf(&control)) continue;  // that one keeps it
      if (!Place(*given_.value(letter), tried)) continue;
      given_.insert(letter, &control);
      return true;
    }
    return false;
  }

  QHash<QChar, QWidget*> given_;
};

QList<QWidget*> ControlsOf(const QWidget& window) {
  QList<QWidget*> controls;
  for (auto* each : window.findChildren<QWidget*>()) {
    if (each->window() == &window && each->isVisible() && PortaLettera(*each)) controls += each;
  }
  std::ranges::stable_sort(controls, {}, TurnOf);
  return controls;
}

/// Also of those that are hidden since Alt went down.
void Hide(const QWidget& window) {
  for (auto* each : window.findChildren<QWidget*>()) {
    if (PortaLettera(*each)) SottolineaLettera(*each, false);
  }
}

void Show(const QWidget& window) {
  for (QWidget* control : ControlsOf(window)) SottolineaLettera(*control, true);
}

class Listener : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget != nullptr) Hear(*widget, *event);
    return false;
  }

 private:
  static void Hear(QWidget& widget, const QEvent& event) {
    QWidget* window = widget.window();
    const bool key = event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease;
    const bool alt = key && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Alt;
    const bool held = alt && event.type() == QEvent::KeyPress;
    if (event.type() == QEvent::WindowActivate || held) AssegnaMnemonici(*window);
    if (held) Show(*window);
    if ((alt && !held) || event.type() == QEvent::WindowDeactivate) Hide(*window);
    // The letter of an option leaves the field that was being filled, as a click does.
    const bool option = qobject_cast<QRadioButton*>(&widget) || qobject_cast<QCheckBox*>(&widget);
    if (event.type() == QEvent::Shortcut && option) widget.setFocus(Qt::ShortcutFocusReason);
  }
};

}  // namespace

void ImpostaTurno(QAbstractButton& pulsante, TurnoLettera turno) {
  pulsante.setProperty(kTurn, static_cast<int>(turno));
}

void AssegnaMnemonici(QWidget& finestra) {
  Hide(finestra);
  Hand hand;
  const auto controls = ControlsOf(finestra);
  for (QWidget* control : controls) hand.Give(*control);
  for (QWidget* control : controls) DaiLettera(*control, {});
  for (auto each = hand.Given().begin(); each != hand.Given().end(); ++each) {
    DaiLettera(*each.value(), each.key());
  }
}

void InstallaMnemonici(QApplication& programma) {
  programma.installEventFilter(new Listener(&programma));
}

}  // namespace kvr5
