#pragma once

#include <QLabel>
#include <string>

#include "core/screens/Coppia.h"
#include "core/screens/Form.h"

namespace kvr5 {

/// The question box: a yes and a no side, or a notice with one button. The answer is RispostaSiNo:
/// 1 yes, 2 no; the window's own button leaves it as the caller cleared it.
class frmSiNo : public Form {
 public:
  explicit frmSiNo(Ambiente& ambiente);

  /// A notice with one button of this caption.
  void MostraSoloOk(const std::string& testo);
  /// A question whose yes takes something away: the keyboard begins on no.
  void MostraPericolo();
  /// Without effect.
  void Reimposta() {}
  void ImpostaNota(const QString& testo);
  /// A colour of the logic's own for the question (blue, green, red).
  void ColoraNota(std::uint32_t colore);

  QLabel* lblNota;
  Coppia* cmdSi;
  QWidget* picSi;
  QLabel* lblYes;
  Coppia* cmdNo;
  QWidget* picCancel;
  QLabel* lblNo;

 protected:
  void AlCaricamento() override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void Rispondi(std::uint8_t risposta);

  QLabel* segno_;
  QString nota_;  ///< the question as it came in
};

}  // namespace kvr5
