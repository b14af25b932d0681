#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/Contesto.h"
#include "playerconfig/Parametri.h"

namespace kvr5 {

/// The keys of a screen in the order in which it reads them. For frmTempiFade, frmPanelExtra and
/// frmConfig485; the hub's are those of ControlliHub.
std::span<const std::string_view> OrdineDiLettura(SchermoParametro schermo);
/// The same keys in the order in which its save writes them.
std::span<const std::string_view> OrdineDiScrittura(SchermoParametro schermo);

/// What picDefaults puts into a control: the serial port as the players come, and the first item of
/// each list of the extra parameters. The fade screen has no such button: its form's own state.
StatoParametro StatoPredefinito(const Parametro& parametro);

/// What the controls of a screen of parameters hold, by their keys. Load and save both walk the
/// screen's table; what is out of its walk is neither read nor written.
class ValoriSchermo {
 public:
  /// The controls as the form gives them.
  explicit ValoriSchermo(SchermoParametro schermo);

  /// Takes a key out of both walks.
  void Escludi(std::string_view chiave) { esclusa_ = chiave; }
  /// Reads each key from Config.txt; a value that its control can't take leaves it as it was.
  void Leggi(Contesto& contesto);
  /// Writes each key into Config.txt, all in one rewrite of the file; a missing file stays missing,
  /// and a failure is the pending error.
  void Scrivi(Contesto& contesto) const;
  /// What picDefaults does; nothing is written.
  void Predefinisci();

  /// The control of a key of this screen, in the table's spelling; any other key is a mistake of
  /// the caller (std::out_of_range).
  StatoParametro& operator[](std::string_view chiave) { return stati_.at(std::string(chiave)); }
  const StatoParametro& operator[](std::string_view chiave) const {
    return stati_.at(std::string(chiave));
  }

 private:
  SchermoParametro schermo_;
  std::string esclusa_;
  std::map<std::string, StatoParametro> stati_;
};

}  // namespace kvr5
