#pragma once

#include <QColor>
#include <QWidget>
#include <cstdint>

namespace kvr5 {

/// The lamp of a logic input, "shaIn_3": outlined, red with a dot while its input is ticked.
class Lampada : public QWidget {
 public:
  Lampada(int numero, QWidget* padre);
  void Imposta(std::uint32_t coloreBgr, bool accesa);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor colore_ = Qt::white;
  bool accesa_ = false;
};

/// The objectName of an element of a control array, "chkIn_3".
QString NomeElemento(const char* nome, int numero);

}  // namespace kvr5
