#pragma once

#include <gtest/gtest.h>

#include <QTimer>
#include <functional>
#include <utility>

namespace kvr5::test {

/// Does something once, as soon as a condition holds, from within whatever lets events run: a click
/// that comes amid a long routine.
class Frattempo {
 public:
  Frattempo(std::function<bool()> quando, std::function<void()> azione) {
    QObject::connect(&battito_, &QTimer::timeout, &battito_,
                     [this, when = std::move(quando), what = std::move(azione)] {
                       if (fatto_ || !when()) return;
                       fatto_ = true;  // before it acts: its own click may run the loop
                       battito_.stop();
                       what();
                     });
    battito_.start(0);
  }
  ~Frattempo() { EXPECT_TRUE(fatto_) << "the moment never came"; }
  Frattempo(const Frattempo&) = delete;
  Frattempo& operator=(const Frattempo&) = delete;

 private:
  QTimer battito_;
  bool fatto_ = false;
};

}  // namespace kvr5::test
