#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/Contesto.h"
#include "core/screens/ElencoModesto.h"

namespace kvr5 {

/// The list of folders beside a file pane: the folder above, and those inside the current one. A
/// double click or Enter goes there. Paths are in the system's form.
class ElencoCartelle : public ElencoModesto {
 public:
  ElencoCartelle(Contesto& contesto, const char* nome, QWidget* padre = nullptr);

  const std::string& Percorso() const { return percorso_; }
  /// What the last look into the folder found, files too: the pane beside needs no second look.
  const std::vector<FileInfo>& Voci() const { return voci_; }
  /// Goes to a folder; one that isn't there is refused, and the list keeps its place.
  void ImpostaPercorso(const std::string& percorso);
  /// Looks into the folder again, keeps its place in the list; false when nothing has changed.
  bool Rileggi();
  /// Called after each change of folder.
  std::function<void()> SuCambio;
  /// Called for a click, which stays in the folder.
  std::function<void()> SuClic;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::vector<FileInfo> Guarda() const;
  void Riempi();
  void Mostra();
  void Entra(const QListWidgetItem* voce);

  Contesto& contesto_;
  std::string percorso_;
  std::vector<FileInfo> voci_;
};

}  // namespace kvr5
