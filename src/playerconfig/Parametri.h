#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/Contesto.h"

namespace kvr5 {

/// The screen that owns a parameter of Config.txt.
enum class SchermoParametro { Hub, Fade, Seriale, Extra };

/// The kind of control behind a parameter, which decides how a value is read and written.
enum class TipoParametro {
  Cursore,      ///< slider 0 to 20; the file holds the position
  Acceso,       ///< two options; "1" is on
  Polarita,     ///< IMOD: "0" is the first option, any other text the second
  Riavvio,      ///< MIRS: reads as on whatever the file holds
  MaiLetto,     ///< MPLL: two options, "5" and "6", that are never shown, read or written
  Persistenza,  ///< TPCM: a text of digits, 0 to 255, 0 is off
  Secondi,      ///< a text of digits, 1 to 30
  Lista,        ///< a list; the file holds its index plus an offset
  ListaDati,    ///< a list; the file holds the item's own value
  Ponte,        ///< INVR: a check box, true when greater than 0
};

/// Where the text of a parameter's value comes from.
enum class ParoleParametro {
  ScalaVolume,
  ScalaLoudness,
  ScalaToni,
  ScalaPercento,
  Monitor,
  Polarita,
  Continuo,
  Riavvio,
  Loop,
  Persistenza,
  Secondi,
  Reazione,      ///< TAVC
  Numero,        ///< the plain number
  Voci,          ///< items by a run of language keys, see Parametro::PrimaChiave
  VociNumerate,  ///< the same with "n - " in front
  Baud,
  BitStop,
  BitDati,
  Ritardo,
  Casella
};

/// One parameter of Config.txt: its control, the values that the control can hold and the state
/// that the form gives it.
struct Parametro {
  std::string_view Chiave;  ///< four letters, as the writer spells it
  SchermoParametro Schermo;
  TipoParametro Tipo;
  ParoleParametro Parole;
  int Minimo;  ///< least and greatest value in the file
  int Massimo;
  int Iniziale;  ///< value in the file's terms that the form's own state stands for
  std::string_view PrefissoVoce{};  ///< words in front of an item ("Checksum ")
  int PrimaChiave = 0;              ///< number of the first item's language key, such as 110012
  std::span<const int> Dati{};      ///< the items' own values, for ListaDati
};

/// All parameters in the order of the reference table.
std::span<const Parametro> Parametri();

/// The parameter of a key, without regard to case.
const Parametro* TrovaParametro(std::string_view chiave);

/// Whether a user of this model and mode can reach the parameter on a screen. The serial keys and
/// MPLL can't be reached on any.
bool Raggiungibile(const Parametro& parametro, std::int16_t playerType, std::int16_t playerMode);

/// What a control holds: a number in the file's terms, or the text of an edit box.
struct StatoParametro {
  int Numero = 0;
  std::string Testo;
  bool operator==(const StatoParametro&) const = default;
};

/// The control's state as its form gives it.
StatoParametro StatoIniziale(const Parametro& parametro);

/// The state after a read of `testo` ("" where the key is absent): a value that the control can't
/// take leaves `prima`.
StatoParametro DalFile(const Parametro& parametro, std::string_view testo,
                       const StatoParametro& prima, const Locale& luogo);

/// The text that a save writes for a state.
std::string PerIlFile(const Parametro& parametro, const StatoParametro& stato);

/// A value that a person gives, as the text that the owning screen would write for it; nothing
/// where the screen's control can't hold it.
std::optional<std::string> ValoreAccettato(const Parametro& parametro, std::string_view valore);

/// The values that the owning screen's control can hold, for people: "0 to 20", "0, 1, 5".
std::string LimitiDelValore(const Parametro& parametro);

/// The words for a value of Config.txt: those of the screen that owns it, after a read of the
/// value. MPLL, which no screen reads, has those of its number, or none.
std::string ParoleDelFile(Contesto& contesto, const Parametro& parametro, std::string_view testo);

/// The language keys of all parameters' items, seven digits each: those that Voci and VociNumerate
/// work out.
std::vector<std::string> ChiaviDelleVoci();

/// The values that the items of a parameter's list stand for, by list index, in the file's terms.
std::vector<int> ValoriDelleVoci(const Parametro& parametro);

/// The words that the screen shows for a state.
std::string ParoleDelValore(Contesto& contesto, const Parametro& parametro,
                            const StatoParametro& stato);

}  // namespace kvr5
