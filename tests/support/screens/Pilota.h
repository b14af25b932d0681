#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <utility>

namespace kvr5::test {

/// Looks every 10 ms whether a modal window is up and acts on it, once; see Pilota.
class PilotaBase {
 public:
  virtual ~PilotaBase();
  PilotaBase(const PilotaBase&) = delete;
  PilotaBase& operator=(const PilotaBase&) = delete;
  bool Usato() const { return usato_; }

 protected:
  PilotaBase();
  /// Acts if the window is of the expected kind.
  virtual bool Agisci(QWidget& finestra) = 0;

 private:
  void Guarda();
  static void ChiudiAForza(QWidget& finestra);

  QTimer battito_;
  QElapsedTimer attesa_;
  bool usato_ = false;
};

/// Answers one modal window of type T that comes up within its life, once it has the keyboard.
/// Several are used in the order in which they were made. A window that nobody answers, or that
/// stays after the answer, is closed after 5 s and fails the test, and so does a Pilota that never
/// found its window.
template <class T>
class Pilota final : public PilotaBase {
 public:
  explicit Pilota(std::function<void(T&)> azione) : azione_(std::move(azione)) {}

 protected:
  bool Agisci(QWidget& finestra) override {
    auto* expected = dynamic_cast<T*>(&finestra);
    if (expected != nullptr) azione_(*expected);
    return expected != nullptr;
  }

 private:
  std::function<void(T&)> azione_;
};

}  // namespace kvr5::test
