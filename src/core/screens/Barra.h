#pragma once

#include <QWidget>

namespace kvr5 {

/// A bar that fills from the left.
class Barra : public QWidget {
 public:
  explicit Barra(QWidget* padre = nullptr);
  /// 0 to 1.
  void ImpostaParte(double parte);
  double Parte() const { return parte_; }
  QSize sizeHint() const override { return {200, 12}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double parte_ = 0;
};

}  // namespace kvr5
