#pragma once

#include <QLineEdit>

class QAction;

namespace kvr5 {

/// A box in which a part of a name is typed that a list beside it jumps to. Where nothing has such
/// a name it says so: by a sign, by words beside it and to a screen reader, and by its colour.
class CasellaCerca : public QLineEdit {
 public:
  explicit CasellaCerca(QWidget* padre);
  /// `invito` stands in the empty box, `spiega` is its tool tip, `niente` says that nothing is
  /// found.
  void ImpostaParole(const QString& invito, const QString& spiega, const QString& niente);
  void MostraEsito(bool trovato);
  bool SenzaEsito() const;

 private:
  QAction* segno_;
  QString spiega_, niente_;
};

}  // namespace kvr5
