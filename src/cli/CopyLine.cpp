#include "cli/CopyLine.h"

namespace kvr5::cli {
namespace {

/// Megabytes a second; a slow card's with a decimal.
std::string SpeedText(double bytesPerSecond) {
  constexpr double kMegabyte = 1e6;
  constexpr double kSlow = 10;
  const double speed = bytesPerSecond / kMegabyte;
  const auto tenths = static_cast<int>(speed * 10);
  std::string text = std::to_string(tenths / 10);
  if (speed < kSlow) text += "." + std::to_string(tenths % 10);
  return text + " MB/s";
}

}  // namespace

std::string CopyLine(const std::string& operation, const CopyState& state, double seconds) {
  const auto done = static_cast<double>(state.BytesDone);
  const auto total = static_cast<double>(state.BytesTotal);
  std::string text = operation + "  ";
  if (total > 0) text += std::to_string(static_cast<int>(done / total * 100)) + "%  ";
  text += std::to_string(state.FileNumber) + "/" + std::to_string(state.FileCount);
  if (seconds > 0.5 && done > 0) {
    const double speed = done / seconds;
    text += "  " + SpeedText(speed) + "  " +
            std::to_string(static_cast<int>((total - done) / speed)) + " s";
  }
  return text;
}

}  // namespace kvr5::cli
