#include "core/screens/Mnemonici.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QSet>
#include <algorithm>

#include "core/screens/Coppia.h"
#include "core/screens/PortaLettera.h"

namespace kvr5 {
namespace {

bool IsNumbered(const QString& text) {
  const bool prefix =
      text.size() == 1 || (text.size() == 3 && text.startsWith(QLatin1String("IN")));
  return prefix && text.back() >= QLatin1Char('1') && text.back() <= QLatin1Char('9');
}

/// The letters that a text offers, the best first: the beginnings of its words, then the others.
/// A letter with an accent may be on no key. A terminal, "IN1", offers its digit alone.
QList<QChar> Offered(const QString& text) {
  if (IsNumbered(text)) return {text.back()};
  QList<QChar> initials;
  QList<QChar> others;
  bool inside = false;
  for (const QChar sign : text) {
    const QChar each = sign.toUpper();
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

void Show(const QWidget& window) {
  for (QWidget* control : ControlsOf(window)) SottolineaLettera(*control, true);
}

/// Also of what was hidden since Alt went down.
void Hide(const QWidget& window) {
  for (auto* each : window.findChildren<QWidget*>()) {
    if (PortaLettera(*each)) SottolineaLettera(*each, false);
  }
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
  /// An event is heard once more at each parent of its receiver, and may come to a menu that has
  /// opened since.
  void Hear(QWidget& widget, const QEvent& event) {
    if (event.type() == QEvent::WindowActivate && widget.isWindow()) AssegnaMnemonici(widget);
    if (event.type() == QEvent::WindowDeactivate && &widget == shown_) Release();
    if (IsAlt(event)) event.type() == QEvent::KeyPress ? Hold(*widget.window()) : Release();
    // A letter leaves the field that was being filled, as a click does.
    const bool pressed = event.type() == QEvent::Shortcut && widget.isEnabled();
    if (pressed && qobject_cast<QAbstractButton*>(&widget) != nullptr) {
      widget.setFocus(Qt::ShortcutFocusReason);
    }
  }
  static bool IsAlt(const QEvent& event) {
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::KeyRelease) return false;
    return static_cast<const QKeyEvent&>(event).key() == Qt::Key_Alt;
  }
  void Hold(QWidget& window) {
    if (shown_ == &window) return;
    Release();
    shown_ = &window;
    AssegnaMnemonici(window);
    Show(window);
  }
  void Release() {
    if (shown_ != nullptr) Hide(*shown_);
    shown_ = nullptr;
  }

  QPointer<QWidget> shown_;  ///< the window whose letters are underlined
};

}  // namespace

void ImpostaTurno(QAbstractButton& pulsante, TurnoLettera turno) {
  pulsante.setProperty(kTurn, static_cast<int>(turno));
}

void AssegnaMnemonici(QWidget& finestra) {
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
