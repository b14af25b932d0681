#include "core/screens/SpuntaAlClic.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>

namespace kvr5 {
namespace {

/// Hears the label's mouse, and goes with the box.
class LabelClicks : public QObject {
 public:
  explicit LabelClicks(QCheckBox& box) : QObject(&box), box_(box) {}

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    const bool press =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (press && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) box_.click();
    return QObject::eventFilter(object, event);
  }

 private:
  QCheckBox& box_;
};

}  // namespace

void SpuntaAlClic(QLabel& etichetta, QCheckBox& casella) {
  etichetta.installEventFilter(new LabelClicks(casella));
}

}  // namespace kvr5
