#pragma once

#include <QLabel>

#include "core/Schermata.h"
#include "core/screens/Coppia.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/Form.h"

namespace kvr5 {

/// The small bar, above all other windows, that stands for the program while the user copies files
/// to the card by hand; its one button brings the calling screen back.
class frmCopiaManuale : public Form {
 public:
  explicit frmCopiaManuale(Ambiente& ambiente);

  /// The screen that comes back.
  Schermata FormChiamante = Schermata::Nessuna;

  EtichettaElisa* lblScheda;
  Coppia* picTorna;
  QLabel* lblTorna;

 protected:
  void AlCaricamento() override;
  void AlloScarico() override;
};

}  // namespace kvr5
