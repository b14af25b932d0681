#pragma once

#include <QLabel>

#include "core/screens/Coppia.h"
#include "core/screens/Form.h"

namespace kvr5 {

/// The main menu: a new project, an old one, the settings, the end.
class frmMain : public Form {
 public:
  explicit frmMain(Ambiente& ambiente);

  QWidget* imgUpFrameLogo;
  Coppia* picNuovoProgetto;
  QLabel* lblNuovoProgetto;
  Coppia* picCaricaDaDisco;
  QLabel* lblCaricaDaDisco;
  Coppia* picEsci;
  QLabel* lblUscita;
  Coppia* picConfig;
  QLabel* lblConfigurazione;
  Coppia* picHelp;

 protected:
  void AlCaricamento() override;
  void showEvent(QShowEvent* event) override;

 private:
  /// Has one of the two cards stand out; the keyboard goes with it when it changes.
  void Rilievo();
  void NuovoProgetto();
};

}  // namespace kvr5
