#pragma once

#include <QCheckBox>
#include <QLabel>
#include <array>
#include <functional>

#include "core/screens/Coppia.h"
#include "core/screens/Lampada.h"
#include "core/screens/Riquadro.h"
#include "playerconfig/CodiceScelto.h"

namespace kvr5 {

/// fraIngressiLogici with fraFileAssociato: the eight inputs as boxes with lamps and names, and the
/// file of the combination that is ticked. Inputs are counted from 1.
class IngressiLogici : public Riquadro {
 public:
  explicit IngressiLogici(Contesto& contesto, QWidget* padre = nullptr);

  std::array<QCheckBox*, 8> chkIn;
  std::array<QLabel*, 8> lblIn;
  std::array<Lampada*, 8> shaIn;
  QWidget* fraFileAssociato;
  QLabel* lblFileAssociato;
  QLabel* lblEtichettaTroppoLunga;
  Coppia* cmdMp3Preview_Play;
  Coppia* cmdMp3Preview_Stop;
  QLabel* lblPreview;
  Coppia* cmdVaiAlFile;

  /// Called for a click on a box: input and new state.
  std::function<void(int, bool)> SuSpunta;
  /// Called for a click on cmdVaiAlFile.
  std::function<void()> SuVaiAlFile;
  /// Hides fraFileAssociato until Mostra shows it again, with the focus where it was.
  void NascondiFile();
  /// Shows what the model tells.
  void Mostra(const CodiceScelto& codice);
  /// Offers the way to the folder of the combination's file, or doesn't where it is "".
  void OffriCartella(const std::string& cartella);
  bool OffreCartella() const { return !cmdVaiAlFile->isHidden(); }
  /// cmdMp3Preview_Play shows that the combination's file plays, or that it doesn't.
  void MostraAscolto(bool on, bool muto = false);
  void Localizza();

 protected:
  /// A click on a lamp or a name is one on its box.
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QWidget* CostruisciMorsettiera();
  QWidget* CostruisciAssociato();

  Contesto& contesto_;
  QWidget* fuoco_ = nullptr;    // what NascondiFile took the focus from
  QWidget* ripiego_ = nullptr;  // and what got it in its place
};

}  // namespace kvr5
