#pragma once

#include <QLabel>
#include <functional>
#include <optional>

#include "core/Contesto.h"
#include "core/screens/Avvisi.h"
#include "core/screens/Barra.h"
#include "core/screens/Coppia.h"
#include "platform/Drives.h"

namespace kvr5 {

/// The line of the chosen card: lblPathMemoryCard, its state in a word and a sign, its facts.
class RigaScheda : public QWidget {
 public:
  explicit RigaScheda(Contesto& contesto, QWidget* padre = nullptr);

  QLabel* lblPathMemoryCard;
  QLabel* lblStato;
  Barra* picSpazio;  ///< what the project takes of the card's room
  EtichettaAvviso* lblSpazio;
  Coppia* cmdScegli;

  /// The path as the form shows it, and what the host tells of the card now.
  void Mostra(const QString& percorso, const std::optional<Drive>& fatti);
  void MostraStato(const std::optional<Drive>& fatti);
  /// The chosen card was recorded whole just now, and so many files on it aren't the project's: its
  /// state tells so until another one is chosen or it goes away.
  void SegnaRegistrata(std::size_t estranei = 0);
  void DimenticaRegistrata() { registrata_.reset(); }
  /// The bytes that the project takes, for the gauge; 0: none is shown.
  void ImpostaBisogno(std::uint64_t byte);
  void Localizza();
  /// Called for a double click on the line, Enter on it, and the button.
  std::function<void()> SuScegli;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  Contesto& contesto_;
  void MostraSpazio();
  void SpiegaPercorso();
  std::string ParoleDelloStato(const char* chiave) const;
  bool HaEstranei() const { return registrata_ && registrata_->Estranei > 0; }

  QLabel* segno_;
  struct Registrata {
    std::string Radice;
    std::int64_t Quando = 0;  ///< in seconds since 1970-01-01 UTC
    std::size_t Estranei = 0;
  };
  std::optional<Drive> fatti_;
  std::optional<Registrata> registrata_;
  std::uint64_t bisogno_ = 0;
};

}  // namespace kvr5
