#pragma once

#include <functional>
#include <vector>

#include "platform/ShellCopy.h"

namespace kvr5::test {

/// Writes down what a copy tells, and cancels where a test wants it.
class Watcher : public CopyObserver {
 public:
  bool Progress(const CopyState& state) override {
    States.push_back(state);
    return !OnProgress || OnProgress(state);
  }
  void Failed(const CopyFailure& failure) override { Failures.push_back(failure); }

  std::vector<CopyState> States;
  std::vector<CopyFailure> Failures;
  std::function<bool(const CopyState&)> OnProgress;
};

}  // namespace kvr5::test
