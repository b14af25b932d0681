#include <gtest/gtest.h>

#include <map>
#include <string>

#include "playerconfig/LayoutHub.h"

namespace kvr5 {
namespace {

using Names = std::map<std::string, bool LayoutHub::*>;

#define CONTROL(name) \
  { #name, &LayoutHub::name }
/// Every control by its name.
const Names kControls{CONTROL(fraOutputLevel),
                      CONTROL(fraMonitor),
                      CONTROL(fraAnalyzer),
                      CONTROL(fraIMOD),
                      CONTROL(fraMICP),
                      CONTROL(fraMirs),
                      CONTROL(fraTPCM),
                      CONTROL(fraMPLL),
                      CONTROL(fraExtra),
                      CONTROL(fraFADE),
                      CONTROL(fra232),
                      CONTROL(fra232bis),
                      CONTROL(fra485),
                      CONTROL(fra485bis),
                      CONTROL(fraCopiaFilesFlash),
                      CONTROL(fraIngressiLogici),
                      CONTROL(fraFileAssociato),
                      CONTROL(lblEtichettaTroppoLunga),
                      CONTROL(fraFileName),
                      CONTROL(fraFileInfo),
                      CONTROL(lblBadFileType),
                      CONTROL(lblMp3_Dir),
                      CONTROL(picDisk),
                      CONTROL(DirDirectoryMp3),
                      CONTROL(cmdStopMp3),
                      CONTROL(cmdMp3Preview_Stop),
                      CONTROL(picPlaylist),
                      CONTROL(lblPlaylist),
                      CONTROL(picPalinsesto),
                      CONTROL(lblPalinsesto),
                      CONTROL(picPanel),
                      CONTROL(picPanelSmall),
                      CONTROL(picZub),
                      CONTROL(picZubSmall),
                      CONTROL(picOstrel),
                      CONTROL(picOstrelSmall),
                      CONTROL(picVeskadroSmall)};
#undef CONTROL

/// The controls that are on, by name with blanks between.
std::string Shown(const LayoutHub& hub) {
  std::string names;
  for (const auto& [name, control] : kControls) {
    if (hub.*control) names += (names.empty() ? "" : " ") + name;
  }
  return names;
}

// In the order of the map: capitals first.
const char* const kModel1 =
    "DirDirectoryMp3 cmdMp3Preview_Stop cmdStopMp3 fraFADE fraFileInfo fraFileName fraIMOD "
    "fraIngressiLogici fraMICP fraMirs fraMonitor fraOutputLevel fraTPCM lblMp3_Dir picDisk";
const char* const kModels2And3 =
    "DirDirectoryMp3 cmdMp3Preview_Stop cmdStopMp3 fraFADE fraFileInfo fraFileName fraIMOD "
    "fraIngressiLogici fraMICP fraMirs fraOutputLevel fraTPCM lblMp3_Dir lblPlaylist picDisk "
    "picPlaylist";
const char* const kInputs =
    "DirDirectoryMp3 cmdMp3Preview_Stop cmdStopMp3 fraExtra fraFADE fraFileInfo fraFileName "
    "fraIMOD fraIngressiLogici fraMICP fraMirs fraOutputLevel fraTPCM lblMp3_Dir picDisk";
const char* const kSchedule =
    "cmdMp3Preview_Stop cmdStopMp3 fraExtra fraFADE fraOutputLevel lblPalinsesto picPalinsesto "
    "picPanel";
const char* const kPlaylists =
    "cmdMp3Preview_Stop cmdStopMp3 fraExtra fraFADE fraOutputLevel fraTPCM lblPlaylist picPanel "
    "picPlaylist";

TEST(LayoutHub, TheFormItselfShowsWhatNoModelHides) {
  EXPECT_EQ(Shown(LayoutHub{}), kModels2And3);
  EXPECT_EQ(kControls.size(), 37U);
}

TEST(LayoutHub, EachModelShowsItsOwnControlsInEveryMode) {
  for (std::int16_t mode = 0; mode <= 9; ++mode) {
    EXPECT_EQ(Shown(LayoutDelHub(1, mode, false)), kModel1) << mode;
    EXPECT_EQ(Shown(LayoutDelHub(2, mode, false)), kModels2And3) << mode;
    EXPECT_EQ(Shown(LayoutDelHub(3, mode, false)), kModels2And3) << mode;
    const char* const kvr5 = mode == 1 ? kInputs : mode == 2 ? kSchedule : kPlaylists;
    EXPECT_EQ(Shown(LayoutDelHub(4, mode, false)), kvr5) << mode;
  }
}

TEST(LayoutHub, TheExternalPlayerHasNothingToStop) {
  for (std::int16_t type = 1; type <= 4; ++type) {
    for (std::int16_t mode = 0; mode <= 9; ++mode) {
      LayoutHub expected = LayoutDelHub(type, mode, false);
      expected.cmdStopMp3 = expected.cmdMp3Preview_Stop = false;
      EXPECT_EQ(LayoutDelHub(type, mode, true), expected) << type << " " << mode;
    }
  }
}

TEST(LayoutHub, TheSerialFramesAndTheAnalyzerAreOutOfSightInEveryModel) {
  for (std::int16_t type = 0; type <= 4; ++type) {
    for (std::int16_t mode = 0; mode <= 9; ++mode) {
      const LayoutHub hub = LayoutDelHub(type, mode, false);
      EXPECT_FALSE(hub.fra232 || hub.fra232bis || hub.fra485 || hub.fra485bis);
      EXPECT_FALSE(hub.fraAnalyzer || hub.fraMPLL || hub.fraCopiaFilesFlash);
      EXPECT_EQ(hub.picDisk, hub.lblMp3_Dir);
    }
  }
}

TEST(LayoutHub, WithoutAProjectTheFormIsAsItWasDrawn) {
  EXPECT_EQ(LayoutDelHub(0, 0, false), LayoutHub{});
}

}  // namespace
}  // namespace kvr5
