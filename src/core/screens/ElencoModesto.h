#pragma once

#include <QListWidget>

namespace kvr5 {

/// A list that asks for little and takes what room there is: its screen fits the window before it
/// scrolls.
class ElencoModesto : public QListWidget {
 public:
  using QListWidget::QListWidget;
  QSize sizeHint() const override { return {200, minimumHeight()}; }
};

}  // namespace kvr5
