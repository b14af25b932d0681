#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>

#include "core/Contesto.h"
#include "platform/IniFile.h"
#include "playerconfig/Parametri.h"

namespace kvr5 {

/// A key of the open project's Config.txt as text; "" when it is absent or empty (INVR: "0").
std::string LeggiChiaveConfig(Contesto& contesto, std::string_view chiave);

/// Writes a key into the open project's Config.txt; a missing file stays missing.
void ScriviChiaveConfig(Contesto& contesto, std::string_view chiave, std::string_view valore);

/// Writes several keys in this order, in one rewrite of the file; a missing file stays missing, a
/// failure is the pending error and leaves all values as they were.
void ScriviChiaviConfig(Contesto& contesto, std::span<const IniValue> valori);

/// The controls of the hub that stand for parameters, as a save finds them.
class ControlliHub {
 public:
  /// The controls as the form gives them.
  ControlliHub();
  /// Reads LOUT, LLOU, LTRE, LBAS, MOMN, IMOD, TPCM, MICP, MIRS from Config.txt, in this order.
  void Leggi(Contesto& contesto);
  /// Writes the same keys in the same order, whatever the model shows; MPLL is last and only
  /// where its frame is visible, which no code makes it.
  void AggiornaFile_ConfigTXT(Contesto& contesto) const;

  /// The control of a parameter that the table gives to the hub, in the table's spelling; any other
  /// key is a mistake of the caller (std::out_of_range).
  StatoParametro& operator[](std::string_view chiave) { return stati_.at(std::string(chiave)); }
  const StatoParametro& operator[](std::string_view chiave) const {
    return stati_.at(std::string(chiave));
  }

  /// Visibility of fraMPLL.
  bool MpllVisibile = false;

 private:
  std::map<std::string, StatoParametro> stati_;
};

}  // namespace kvr5
