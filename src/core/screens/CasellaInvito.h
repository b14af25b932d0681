#pragma once

#include <QComboBox>

namespace kvr5 {

/// A list to choose from that says in faint words what to do while its blank item is chosen. The
/// words are no text of the list: nobody reads them back.
class CasellaInvito : public QComboBox {
 public:
  explicit CasellaInvito(QWidget* padre);
  void ImpostaInvito(const QString& parole);
  QString Invito() const { return invito_; }

 protected:
  void initStyleOption(QStyleOptionComboBox* option) const override;

 private:
  /// The words are heard while they are seen.
  void Descrivi();

  QString invito_;
};

}  // namespace kvr5
