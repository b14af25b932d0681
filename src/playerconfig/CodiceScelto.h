#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/Contesto.h"
#include "playerconfig/TabellaIngressi.h"

namespace kvr5 {

/// A box of the logic inputs with its lamp and name: chkIn, shaIn, lblIn.
struct StatoIngresso {
  bool Spuntato = false;
  bool Abilitato = true;
  std::uint32_t ColoreTesto = 0;  ///< of lblIn, blue-green-red; A24000 (blue) for the link's
  std::uint32_t ColoreLampada = 0xFFFFFF;  ///< of shaIn: 0000FF (red) ticked, FFFFFF (white) not
};

/// The combination of inputs that the hub stands on, and the file assigned to it: the eight boxes,
/// fraFileAssociato and cmdOkFileMp3 without pixels. Inputs are counted from 1 to 8 as on the
/// screen; any other number does nothing.
class CodiceScelto {
 public:
  /// `lblfraFileName` is the caption of that label with its " - " at the end, in front of which it
  /// never changes. Both references must outlive it.
  CodiceScelto(Contesto& contesto, TabellaIngressi& ingressi, std::string_view lblfraFileName);

  /// Bit code of the ticked inputs, IN1 is bit 0; 0 when nothing is ticked.
  std::int16_t Codice() const;
  const StatoIngresso& Ingresso(int numero) const {
    return ingressi_.at(static_cast<std::size_t>(numero - 1));
  }

  /// A click on chkIn that leaves it in this state. The caller stops a preview before and refreshes
  /// the panel of file information behind it. A box that is disabled can't be clicked.
  void Spunta(int numero, bool spuntato);
  /// Ticks the boxes of a code as clicks would, such as for a row of lstAssegnati. False, and
  /// nothing is done, for a number that is no code (0 to 255) and for one with a disabled box.
  bool Scegli(std::int64_t codice);
  /// Each time the hub is activated: on model 4 the inputs IN5 and IN6 belong to an RS-485 link
  /// where there is one, and are unticked as by a click. True when one was, so that the caller
  /// refreshes what a click refreshes. Does nothing on other models.
  bool AbilitaIngressiRs485();

  /// Shows the state of the current code: looks its row up in the table.
  void AggiornaIngressoSelezionato();
  /// cmdOkFileMp3: a `file` of " " frees the code; one that isn't blank is assigned with its folder
  /// and shown. With no input ticked, and for a name that no path can
  /// hold, nothing happens. A failure is in the log and the pending
  /// error, nothing is shown.
  void Conferma(const std::string& file, const std::string& cartella);
  /// Whether cmdOkFileMp3 is shown for the blank item, so that an assignment can be removed.
  bool OkPerNessunFile() const { return Codice() > 0; }

  /// "FileName - 5.mp3"; nothing behind the blank without a code.
  const std::string& lblfraFileName() const { return titolo_; }
  bool fraFileAssociatoVisibile() const { return daScegliere_.has_value(); }
  /// The caption, which is the label's tooltip too.
  const std::string& lblFileAssociato() const { return etichetta_; }
  /// "..." is shown for a caption of 39 characters or more.
  bool lblEtichettaTroppoLungaVisibile() const;
  /// What the last look-up sets cmbFileMp3 to, after " "; nothing when it leaves the list alone.
  const std::optional<std::string>& DaScegliere() const { return daScegliere_; }
  /// The folder of that file, as its row has it; "" for none.
  const std::string& Cartella() const { return cartella_; }

 private:
  void Imposta(std::size_t indice, bool spuntato);

  Contesto& contesto_;
  TabellaIngressi& tabella_;
  std::array<StatoIngresso, 8> ingressi_;
  std::string prefisso_;  // of titolo_, up to and including "- "
  std::string titolo_;
  std::string etichetta_;
  std::optional<std::string> daScegliere_;
  std::string cartella_;
};

/// Whether a caption of lblFileAssociato is too long for its label: 39 characters or more.
bool EtichettaTroppoLunga(std::string_view testo);

}  // namespace kvr5
