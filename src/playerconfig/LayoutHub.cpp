#include "playerconfig/LayoutHub.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string_view>

#include "playerconfig/TabellaIngressi.h"

namespace kvr5 {
namespace {

using Control = bool LayoutHub::*;

/// What one control does in the five columns: model 1, models 2 and 3, model 4 with inputs, with a
/// schedule, with playlists. "+" shows it, "-" hides it, "." leaves it as the form has it.
struct Row {
  Control Which;
  std::string_view Columns;
};

constexpr std::array kTable{
    Row{&LayoutHub::fraMonitor, "+----"},        Row{&LayoutHub::picPlaylist, "-.--+"},
    Row{&LayoutHub::lblPlaylist, "-.--+"},       Row{&LayoutHub::picPalinsesto, "...+-"},
    Row{&LayoutHub::lblPalinsesto, "...+-"},     Row{&LayoutHub::fraIMOD, "..+--"},
    Row{&LayoutHub::fraMICP, "..+--"},           Row{&LayoutHub::fraMirs, "..+--"},
    Row{&LayoutHub::fraTPCM, "..+-+"},           Row{&LayoutHub::picPanel, "..-++"},
    Row{&LayoutHub::picPanelSmall, "..-.."},     Row{&LayoutHub::fraExtra, "..+++"},
    Row{&LayoutHub::fraFADE, "..+++"},           Row{&LayoutHub::fra485, "..+++"},
    Row{&LayoutHub::fraIngressiLogici, "...--"}, Row{&LayoutHub::fraFileName, "...--"},
    Row{&LayoutHub::fraFileInfo, "...--"},       Row{&LayoutHub::lblMp3_Dir, "...--"},
    Row{&LayoutHub::picDisk, "...--"},
};

std::optional<std::size_t> ColumnOf(std::int16_t type, std::int16_t mode) {
  if (type == 1) return 0;
  if (type == 2 || type == 3) return 1;
  if (type != 4) return {};
  if (mode == 1) return 2;
  return mode == 2 ? 3 : 4;
}

void ApplyTable(LayoutHub& hub, std::int16_t type, std::int16_t mode) {
  const auto column = ColumnOf(type, mode);
  if (!column) return;
  for (const auto& row : kTable) {
    if (row.Columns[*column] != '.') hub.*row.Which = row.Columns[*column] == '+';
  }
}

void Hide(LayoutHub& hub, std::initializer_list<Control> controls) {
  for (const auto control : controls) hub.*control = false;
}

}  // namespace

LayoutHub LayoutDelHub(std::int16_t playerType, std::int16_t playerMode, bool usaPlayerEsterno) {
  LayoutHub hub;
  if (usaPlayerEsterno) Hide(hub, {&LayoutHub::cmdStopMp3, &LayoutHub::cmdMp3Preview_Stop});
  hub.fraMonitor = playerType == 1;
  ApplyTable(hub, playerType, playerMode);
  if (TabellaIngressi::SenzaIngressi(playerType, playerMode)) {
    Hide(hub, {&LayoutHub::lblMp3_Dir, &LayoutHub::DirDirectoryMp3, &LayoutHub::fraIngressiLogici,
               &LayoutHub::fraFileName, &LayoutHub::fraFileInfo});
  }
  hub.picDisk = hub.lblMp3_Dir;
  if (playerType == 2) hub.fraAnalyzer = false;
  // After the table, so that what it shows of the serial frames is undone in every model.
  Hide(hub, {&LayoutHub::fra485, &LayoutHub::fra485bis});
  return hub;
}

}  // namespace kvr5
