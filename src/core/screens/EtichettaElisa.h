#pragma once

#include <QLabel>

namespace kvr5 {

/// A label of one line that shows how much of its text there is room for, with "…" where it is cut,
/// and asks for none. The whole text is its tool tip.
class EtichettaElisa : public QLabel {
 public:
  EtichettaElisa(const char* nome, QWidget* padre, Qt::TextElideMode modo = Qt::ElideRight);
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  Qt::TextElideMode modo_;
};

}  // namespace kvr5
