#pragma once

#include <QComboBox>
#include <QLabel>
#include <QTimer>

#include "core/Schermata.h"
#include "core/screens/Coppia.h"
#include "core/screens/Form.h"
#include "flashcard/ElencoSchede.h"

namespace kvr5 {

/// The dialog that says which drive is the card. The text of cmdFlash is the bare root; what else
/// is known of the card stands beside it.
class frmSelectFlash : public Form {
 public:
  frmSelectFlash(Ambiente& ambiente, SorgenteDrive& drive);

  /// The screen that opened the dialog, shown again at its end.
  Schermata FormChiamante = Schermata::Nessuna;

  QLabel* lblMp3_Dir;
  QComboBox* cmdFlash;
  QLabel* lblFatti;
  QLabel* lblContenuto;
  Coppia* picOk;
  QLabel* lblOk;
  Coppia* picCancel;
  QLabel* lblCancel;
  Coppia* picOpen;
  QLabel* lblExplore;

 protected:
  void AlCaricamento() override;
  bool PuoChiudere(Causa causa) override;
  void AlloScarico() override;

 private:
  void Costruisci();
  void MostraSchede();
  void MostraFatti();
  void DescriviVoce(int indice);
  std::string FattiOUscita(const SchedaTrovata& scheda) const;

  ElencoSchede elenco_;
  QLabel* segno_;   ///< the padlock of a card that is write-protected
  QTimer guardia_;  ///< looks which cards are there
};

}  // namespace kvr5
