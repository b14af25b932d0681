#include "playerconfig/screens/VoceCursore.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QSlider>
#include <QVariant>

namespace kvr5 {
namespace {

constexpr const char* kWords = "parole";

/// The toolkit's own speaks of the position alone.
class SpokenSlider : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit SpokenSlider(QSlider& slider)
      : QAccessibleWidget(&slider, QAccessible::Slider), slider_(slider) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  QString text(QAccessible::Text what) const override {
    if (what == QAccessible::Value) return slider_.property(kWords).toString();
    return QAccessibleWidget::text(what);
  }
  QVariant currentValue() const override { return slider_.value(); }
  void setCurrentValue(const QVariant& value) override { slider_.setValue(value.toInt()); }
  QVariant maximumValue() const override { return slider_.maximum(); }
  QVariant minimumValue() const override { return slider_.minimum(); }
  QVariant minimumStepSize() const override { return slider_.singleStep(); }

 private:
  QSlider& slider_;
};

QAccessibleInterface* NewSpokenSlider(const QString& /*type*/, QObject* object) {
  auto* slider = qobject_cast<QSlider*>(object);
  if (slider == nullptr || !slider->property(kWords).isValid()) return nullptr;
  return new SpokenSlider(*slider);
}

}  // namespace

void ImpostaVoce(QSlider& cursore, const QString& parole) {
  static const bool installed = [] {
    QAccessible::installFactory(NewSpokenSlider);
    return true;
  }();
  static_cast<void>(installed);
  cursore.setProperty(kWords, parole);
  cursore.setAccessibleDescription(parole);
  // The toolkit's event came before the words were these.
  QAccessibleValueChangeEvent event(&cursore, cursore.value());
  QAccessible::updateAccessibility(&event);
}

}  // namespace kvr5
