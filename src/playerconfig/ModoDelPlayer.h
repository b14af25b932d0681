#pragma once

#include <string>
#include <string_view>

namespace kvr5 {

/// The texts of the six mode labels.
struct EtichetteModo {
  std::string lblModoPanel;
  std::string lblModoPanelBig;
  std::string lblModoOstrel;
  std::string lblModoOstrelBig;
  std::string lblModoZub;
  std::string lblModoZubBig;
};

/// The mode in a caption of lblTipoPlayer, without blanks at its ends: what stands between the
/// first "(" and the ")" that follows it; where there is no "(", what follows "Zub Player". "" for
/// any other caption, one whose bracket is never closed among them.
std::string_view ModoDelPlayer(std::string_view lblTipoPlayer);

/// The labels' texts for a caption of lblTipoPlayer: `modo` (the language's word for it), a colon
/// and the mode; on the two of model 2 the mode alone.
EtichetteModo EtichetteDelModo(std::string_view lblTipoPlayer, std::string_view modo);

}  // namespace kvr5
