#pragma once

#include <QPointF>
#include <QWidget>

class QPainter;

namespace kvr5 {

/// The side of a letter's disc, in logical pixels.
inline constexpr int kLatoLettera = 20;

/// Paints a letter in its disc, which ties a place of a drawing to the control beside the same one.
void DipingiLettera(QPainter& pittore, QPointF centro, QChar lettera);

/// The letter beside a control.
class Lettera : public QWidget {
 public:
  Lettera(QChar lettera, QWidget* padre);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QChar lettera_;
};

}  // namespace kvr5
