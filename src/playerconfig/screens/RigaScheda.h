#pragma once

#include <QLabel>
#include <functional>
#include <optional>

#include "core/Contesto.h"
#include "core/screens/Coppia.h"
#include "platform/Drives.h"

namespace kvr5 {

/// The line of the chosen card: lblPathMemoryCard, its state in a word and a sign, its facts.
class RigaScheda : public QWidget {
 public:
  explicit RigaScheda(Contesto& contesto, QWidget* padre = nullptr);

  QLabel* lblPathMemoryCard;
  QLabel* lblStato;
  Coppia* cmdScegli;

  /// The path as the form shows it, and what the host tells of the card now.
  void Mostra(const QString& percorso, const std::optional<Drive>& fatti);
  void MostraStato(const std::optional<Drive>& fatti);
  void Localizza();
  /// Called for a double click on the line, Enter on it, and the button.
  std::function<void()> SuScegli;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  Contesto& contesto_;
  QLabel* segno_;
};

}  // namespace kvr5
