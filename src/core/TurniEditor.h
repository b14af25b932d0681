#pragma once

#include <functional>

namespace kvr5 {

/// The commands of an editor's screen, one within the other: events run amid the long ones, so that
/// a button may be pressed while the work of another is under way.
class TurniEditor {
 public:
  /// A command: done at once, also within another. Nothing is done any more once the last one was
  /// asked for.
  void Comando(const std::function<void()>& azione);
  /// The command that ends the editing, the save: done alone, when all others have come to their
  /// end. A second one is passed over.
  void Ultimo(std::function<void()> azione);

  bool InCorso() const { return aperti_ > 0; }
  bool UltimoChiesto() const { return ultimoChiesto_; }

 private:
  void Esegui(const std::function<void()>& azione);

  int aperti_ = 0;
  bool ultimoChiesto_ = false;
  std::function<void()> ultimo_;
};

}  // namespace kvr5
