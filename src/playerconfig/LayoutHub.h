#pragma once

#include <cstdint>

namespace kvr5 {

/// What the hub shows at the end of its load, a member for each control that a model, a mode or the
/// load itself shows, hides or enables. True is visible, but for DirDirectoryMp3, where it is
/// enabled. The members' own values are those of the form. Controls that work shows and hides later
/// (fraFileAssociato, the two labels) have the state that work starts from.
struct LayoutHub {
  bool fraOutputLevel = true;
  bool fraMonitor = false;
  bool fraAnalyzer = false;
  bool fraIMOD = true;
  bool fraMICP = true;
  bool fraMirs = true;
  bool fraTPCM = true;
  bool fraMPLL = false;
  bool fraExtra = false;
  bool fraFADE = true;
  bool fra232 = false;
  bool fra232bis = false;
  bool fra485 = false;
  bool fra485bis = false;
  bool fraCopiaFilesFlash = false;

  bool fraIngressiLogici = true;
  bool fraFileAssociato = false;
  bool lblEtichettaTroppoLunga = false;
  bool fraFileName = true;
  bool fraFileInfo = true;
  bool lblBadFileType = false;
  bool lblMp3_Dir = true;
  bool picDisk = true;
  bool DirDirectoryMp3 = true;  ///< enabled
  bool cmdStopMp3 = true;
  bool cmdMp3Preview_Stop = true;

  bool picPlaylist = true;
  bool lblPlaylist = true;
  bool picPalinsesto = false;
  bool lblPalinsesto = false;

  bool picPanel = false;
  bool picPanelSmall = false;
  bool picZub = false;
  bool picZubSmall = false;
  bool picOstrel = false;
  bool picOstrelSmall = false;
  bool picVeskadroSmall = false;

  bool operator==(const LayoutHub&) const = default;
};

/// The hub of a model (1 to 4; any other has the form's own state) and mode. With the external
/// player (`usaPlayerEsterno`) there is nothing to stop: both stop buttons are hidden.
LayoutHub LayoutDelHub(std::int16_t playerType, std::int16_t playerMode, bool usaPlayerEsterno);

}  // namespace kvr5
