#pragma once

#include <QWidget>
#include <functional>

class QToolButton;

namespace kvr5 {

/// UpDownFile(i): the two arrows that move a spot. One that has nothing to move to is covered.
class FrecceSpot : public QWidget {
 public:
  FrecceSpot(int indice, QWidget* padre);

  QToolButton *Su, *Giu;
  /// Called with true for the arrow down.
  std::function<void(bool giu)> SuMuovi;
  /// Hands over the two arrows in their order on the keyboard.
  void InOrdine(const std::function<void(QWidget*)>& visita) const;
  /// What picCopriUp and picCopriDown do.
  void Copri(bool su, bool giu);
};

}  // namespace kvr5
