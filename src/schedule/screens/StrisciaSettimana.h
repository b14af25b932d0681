#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>
#include <vector>

#include "schedule/RighePalinsesto.h"

namespace kvr5 {

/// picSettimana: the schedule at a glance, read-only. The days of the week by their hours, or one
/// day by its hours, or the one hour of a KVR5 by its minutes; a field shows how many spots start
/// in it, and whether something is wrong there. A click selects a segment.
class StrisciaSettimana : public QWidget {
 public:
  enum class Forma { Settimana, Giorno, OraSola };

  StrisciaSettimana(Contesto& contesto, QWidget* padre);

  void ImpostaForma(Forma forma);
  /// What is to be seen, and which segment is selected.
  void Mostra(const SettimanaPalinsesto& settimana, std::int16_t giorno, std::int64_t segmento);
  void Localizza();

  /// Called when a segment is clicked, with its day (0: the one schedule).
  std::function<void(std::int16_t giorno, std::int64_t segmento)> SuSegmento;

  /// The field in which a segment stands; empty for one without a time.
  QRect Campo(const SegmentoVisto& segmento) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {320, sizeHint().height()}; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  int Righe() const;
  int Colonne() const;
  int Margine() const;
  int Altezza() const;
  QRect Campo(int riga, int colonna) const;
  int Colonna(const SegmentoVisto& segmento) const;
  /// The segments of the field at a place.
  std::vector<SegmentoVisto> A(const QPoint& dove) const;
  const std::vector<SegmentoVisto>& Riga(int riga) const;
  void DipingiAssi(QPainter& pittore) const;
  void DipingiCampo(QPainter& pittore, int riga, int colonna) const;
  QString Suggerisce(const std::vector<SegmentoVisto>& segmenti) const;

  Contesto& contesto_;
  Forma forma_ = Forma::Settimana;
  SettimanaPalinsesto settimana_;
  std::int16_t giorno_ = 0;
  std::int64_t segmento_ = 0;
  QStringList giorni_;
};

}  // namespace kvr5
