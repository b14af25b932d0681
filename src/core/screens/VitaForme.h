#pragma once

#include <functional>

namespace kvr5 {

/// Counts the forms that are loaded, shown or hidden. The process ends with the last of them.
class VitaForme {
 public:
  /// `ultimaScaricata` is called when the last loaded form has been unloaded.
  explicit VitaForme(std::function<void()> ultimaScaricata = {})
      : ultimaScaricata_(std::move(ultimaScaricata)) {}

  void Caricata() { ++quante_; }
  void Scaricata() {
    if (--quante_ == 0 && ultimaScaricata_) ultimaScaricata_();
  }
  int Quante() const { return quante_; }

 private:
  std::function<void()> ultimaScaricata_;
  int quante_ = 0;
};

}  // namespace kvr5
