#pragma once

#include <QLabel>
#include <QTimer>
#include <memory>
#include <string>

#include "core/FinestraProgresso.h"
#include "core/screens/Barra.h"
#include "core/screens/Coppia.h"
#include "core/screens/Form.h"

namespace kvr5 {

class frmProgress;

/// frmProgress as a window: what the operation drives, drawn.
class ProgressoQt : public FinestraProgresso {
 public:
  explicit ProgressoQt(Ambiente& ambiente) : FinestraProgresso(ambiente.C), ambiente_(ambiente) {}
  ~ProgressoQt() override;
  /// The window; null while it isn't loaded.
  frmProgress* Finestra() const { return finestra_; }

 protected:
  void Ridisegna() override;

 private:
  Ambiente& ambiente_;
  frmProgress* finestra_ = nullptr;
};

/// The small window, always on top, of a long operation.
class frmProgress : public Form {
 public:
  frmProgress(Ambiente& ambiente, ProgressoQt& progresso);

  QLabel* lblOperazione;
  QLabel* lblPerc;
  QWidget* picCont;
  Barra* picBar;
  QLabel* lblNumFile;
  QLabel* lblFase;  ///< the stage, where lblNumFile is hidden
  Coppia* picAnnulla;
  QLabel* lblAnnulla;
  QTimer tmrCicla;

  /// Draws the operation's state.
  void Disegna();

 protected:
  void AlCaricamento() override;
  bool PuoChiudere(Causa causa) override;
  void AlloScarico() override;
  void showEvent(QShowEvent* event) override;

 private:
  ProgressoQt& progresso_;
  std::string fase_;  ///< the language's words for the stage
};

}  // namespace kvr5
