#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "playerconfig/CasellaNumero.h"

class QKeyEvent;
class QLineEdit;
class QToolButton;

namespace kvr5 {

/// The box of a whole number with its two arrows beside it: takes digits only, steps with the arrow
/// keys, and is checked by Enter and when it is left.
class CasellaCifre : public QWidget {
 public:
  /// `campo` is the name of the field; the arrows have that of `frecce` with "_su" and "_giu".
  CasellaCifre(std::unique_ptr<CasellaNumero> numero, const char* campo, const char* frecce,
               QWidget* padre);

  QLineEdit* Campo;
  QToolButton *Su, *Giu;

  CasellaNumero& Numero() { return *numero_; }
  /// Shows what the number holds, as it stands.
  void Mostra();
  /// The check that a box gets when it is left.
  void Controlla();
  /// The field's words for a screen reader, and its tool tip.
  void ImpostaNome(const QString& nome);
  /// Called after each change and each check by the user.
  std::function<void()> SuCambio;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool SuTasto(const QKeyEvent& tasto);
  void Cambiata();

  std::unique_ptr<CasellaNumero> numero_;
  bool mostra_ = false;  ///< the field is being set by code
};

}  // namespace kvr5
