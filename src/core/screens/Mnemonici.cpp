#include "core/screens/Mnemonici.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QSet>
#include <algorithm>

#include "core/screens/Coppia.h"

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
TurnoLettera TurnOf(const Coppia* button) {
  const QVariant turn = button->property(kTurn);
  return turn.isValid() ? static_cast<TurnoLettera>(turn.toInt()) : TurnoLettera::Sempre;
}

/// Hands out letters so that as many buttons as can be have one: a button that finds all of its own
/// taken has another one of its turn move to a letter that is free.
class Hand {
 public:
  void Give(Coppia& button) {
    QSet<QChar> tried;
    Place(button, tried);
  }
  const QHash<QChar, Coppia*>& Given() const { return given_; }

 private:
  bool Place(Coppia& button, QSet<QChar>& tried) {
    const auto letters = Offered(button.text());
    for (const QChar letter : letters) {
      if (given_.contains(letter)) continue;
      given_.insert(letter, &button);
      return true;
    }
    for (const QChar letter : letters) {
      if (tried.contains(letter)) continue;
      tried.insert(letter);
      if (TurnOf(given_.value(letter)) < TurnOf(&button)) continue;  // that one keeps it
      if (!Place(*given_.value(letter), tried)) continue;
      given_.insert(letter, &button);
      return true;
    }
    return false;
  }

  QHash<QChar, Coppia*> given_;
};

QList<Coppia*> ButtonsOf(const QWidget& window) {
  QList<Coppia*> buttons;
  for (auto* each : window.findChildren<QAbstractButton*>()) {
    auto* button = dynamic_cast<Coppia*>(each);
    if (button == nullptr || button->Etichetta() == nullptr) continue;
    if (button->window() == &window && button->isVisible()) buttons.append(button);
  }
  std::ranges::stable_sort(buttons, {}, TurnOf);
  return buttons;
}

void Show(const QWidget* window, bool shown) {
  if (window == nullptr) return;
  for (Coppia* button : ButtonsOf(*window)) button->MostraMnemonico(shown);
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
    if (event.type() == QEvent::WindowActivate || (alt && event.type() == QEvent::KeyPress)) {
      AssegnaMnemonici(*window);
    }
    if (alt) Show(window, event.type() == QEvent::KeyPress);
    if (event.type() == QEvent::WindowDeactivate) Show(window, false);
  }
};

}  // namespace

void ImpostaTurno(QAbstractButton& pulsante, TurnoLettera turno) {
  pulsante.setProperty(kTurn, static_cast<int>(turno));
}

void AssegnaMnemonici(QWidget& finestra) {
  Hand hand;
  const auto buttons = ButtonsOf(finestra);
  for (Coppia* button : buttons) hand.Give(*button);
  for (Coppia* button : buttons) button->ImpostaMnemonico({});
  for (auto each = hand.Given().begin(); each != hand.Given().end(); ++each) {
    each.value()->ImpostaMnemonico(each.key());
  }
}

void InstallaMnemonici(QApplication& programma) {
  programma.installEventFilter(new Listener(&programma));
}

}  // namespace kvr5
