#pragma once

#include <QMenu>
#include <QWidget>

#include "core/Contesto.h"
#include "core/screens/Coppia.h"
#include "playerconfig/LayoutHub.h"

class QBoxLayout;

namespace kvr5 {

/// The command bar of the hub: what belongs to the project on the left, what goes to the card on
/// the right, or below where the window is too narrow for both.
class Comandi : public QWidget {
 public:
  explicit Comandi(Contesto& contesto, QWidget* padre = nullptr);

  Coppia *picEsci, *picReport, *picPlaylist, *picPalinsesto, *picAltro, *picCancellaFlash, *picSave,
      *picVerifica, *picRecordFlash;
  QMenu menuAltro;

  void Disponi(const LayoutHub& layout);
  void Localizza();
  /// Names the card that a recording goes to, "" for none, in the button's tool tip.
  void ImpostaScheda(const std::string& radice);
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  Contesto& contesto_;
  QWidget* progetto_;
  QWidget* scheda_;
  QBoxLayout* riga_;
};

}  // namespace kvr5
