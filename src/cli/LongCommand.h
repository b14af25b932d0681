#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "cli/Session.h"

namespace kvr5::cli {

/// The progress line of a command that goes from file to file.
class LongCommand {
 public:
  /// `total` 0: unknown.
  LongCommand(Session& session, std::string name, std::size_t total)
      : session_(session), name_(std::move(name)), total_(total) {
    session_.Events().OnTurn = [this] { Turn(); };
  }
  ~LongCommand() {
    session_.Events().OnTurn = nullptr;
    session_.Line().Clear();
  }
  LongCommand(const LongCommand&) = delete;
  LongCommand& operator=(const LongCommand&) = delete;

  void Turn() {
    ++done_;
    if (!session_.Line().IsActive()) return;
    std::string text = name_;
    if (total_ > 0) {
      text += "  " + std::to_string(done_) + "/" + std::to_string(total_) + "  " +
              std::to_string(done_ * 100 / total_) + "%";
    }
    session_.Line().Show(text);
  }

 private:
  Session& session_;
  std::string name_;
  std::size_t total_;
  std::size_t done_ = 0;
};

}  // namespace kvr5::cli
