#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Contesto.h"

namespace kvr5 {

/// frmConfig without its pixels: the projects folder, the language and the player of previews, as
/// they stand in the settings file and as the user changes them.
class ModelloImpostazioni {
 public:
  explicit ModelloImpostazioni(Contesto& contesto) : contesto_(contesto) {}

  /// Load: reads the file afresh. Marks a change only where no language was ever stored, so that
  /// the one that is shown can be stored at once.
  void Carica();
  /// The form is visible from now on: changes count.
  void Mostra() { visibile_ = true; }

  /// txtProjectDir, in the system's form.
  const std::string& Cartella() const { return cartella_; }
  /// txtProjectDir and its tool tip, in the host's form.
  std::string CartellaPerPersone() const;
  /// The items of cmbLanguage: the language files without their extension, by name; where none is
  /// stored yet the one in use comes first.
  const std::vector<std::string>& Lingue() const { return lingue_; }
  /// The selected item; nothing where there is no language file.
  std::optional<std::size_t> LinguaScelta() const { return scelta_; }
  /// The language in use, where another one is selected; "" else.
  std::string AltraInUso() const;
  /// True of a folder that the settings can't keep whole: it comes back cut.
  bool CartellaTroppoLunga() const;
  /// optExternal is on; else optInternal.
  bool PlayerEsterno() const { return esterno_; }
  /// cmdSave is enabled and lblSave visible.
  bool Modificato() const { return modificato_; }

  /// A new text of txtProjectDir (system form). The same text is no change.
  void CambiaCartella(std::string_view cartella);
  /// A click in cmbLanguage, also on the item that is selected. Past the items nothing happens.
  void ScegliLingua(std::size_t indice);
  /// A click on optExternal or optInternal, also on the one that is on.
  void ScegliPlayer(bool esterno);
  /// cmdSelPrjDir, and any key but Tab in the folder box: browses for a folder, and takes one that
  /// exists.
  void Sfoglia();
  /// cmdSave: stores all three and says how it went. A folder that isn't there is told by a box
  /// and nothing is stored.
  void Salva();
  /// cmdExit: true when the form may go; asks where something is unsaved.
  bool ChiedeUscita();

 private:
  void ImpostaModificato(bool flag) { modificato_ = flag; }
  void Tocca() {
    if (visibile_) ImpostaModificato(true);
  }
  void CaricaLingue();
  std::string InUso() const;
  void DiciEsito();

  Contesto& contesto_;
  std::string cartella_;
  std::vector<std::string> lingue_;
  std::optional<std::size_t> scelta_;
  bool esterno_ = false;
  bool modificato_ = false;
  bool visibile_ = false;
};

}  // namespace kvr5
