#include "core/screens/SenzaRotella.h"

#include <QEvent>
#include <QWidget>

namespace kvr5 {
namespace {

class WheelGuard : public QObject {
 public:
  explicit WheelGuard(QWidget& control) : QObject(&control), control_(control) {}

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::Wheel || control_.hasFocus()) {
      return QObject::eventFilter(object, event);
    }
    event->ignore();  // goes on to the page
    return true;
  }

 private:
  QWidget& control_;
};

}  // namespace

void SenzaRotella(QWidget& controllo) {
  controllo.setFocusPolicy(Qt::StrongFocus);
  controllo.installEventFilter(new WheelGuard(controllo));
}

}  // namespace kvr5
