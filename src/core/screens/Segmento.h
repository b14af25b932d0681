#pragma once

#include <QRadioButton>

namespace kvr5 {

/// One of a few options that stand side by side in one strip. An option button in every respect but
/// its looks; those with the same parent exclude each other.
class Segmento : public QRadioButton {
 public:
  /// `tag` below 0: the caption isn't translated.
  Segmento(const char* nome, const QString& scritta, int tag, QWidget* padre = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& punto) const override { return rect().contains(punto); }
};

/// A strip of segments without gaps.
class Striscia : public QWidget {
 public:
  explicit Striscia(QWidget* padre = nullptr);
  void Aggiungi(Segmento* segmento);
};

}  // namespace kvr5
