#include "core/TurniEditor.h"

#include <utility>

namespace kvr5 {

void TurniEditor::Comando(const std::function<void()>& azione) {
  if (!ultimoChiesto_) Esegui(azione);
}

void TurniEditor::Ultimo(std::function<void()> azione) {
  if (std::exchange(ultimoChiesto_, true)) return;
  ultimo_ = std::move(azione);
  if (aperti_ == 0) Esegui(std::exchange(ultimo_, nullptr));
}

void TurniEditor::Esegui(const std::function<void()>& azione) {
  ++aperti_;
  azione();
  if (--aperti_ == 0 && ultimo_) Esegui(std::exchange(ultimo_, nullptr));
}

}  // namespace kvr5
