#pragma once

#include <QLabel>
#include <QTimer>

#include "core/Schermata.h"
#include "core/screens/Form.h"

namespace kvr5 {

/// The first thing that is seen: the program's name for two seconds.
class frmSplash : public Form {
 public:
  explicit frmSplash(Ambiente& ambiente);

  /// The screen that comes when the splash goes.
  Schermata FormSuccessivo = Schermata::Nessuna;

  QLabel* lblNomePrj;
  QLabel* lblVersion;
  /// 2000 ms; Main starts it, not the form.
  QTimer tmrChiusura;

 protected:
  void AlCaricamento() override;
  bool PuoChiudere(Causa causa) override { return causa == Causa::Codice; }  // not sooner
  void AlloScarico() override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace kvr5
