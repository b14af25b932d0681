#pragma once

#include <QPointer>
#include <functional>
#include <utility>

#include "core/screens/Form.h"

namespace kvr5 {

/// The default instance of a form. The form is made at its first use, with its members and controls
/// as designed; once it has been unloaded the next use makes it afresh.
template <class T>
class FormPredefinita {
 public:
  explicit FormPredefinita(std::function<T*()> crea) : crea_(std::move(crea)) {}
  ~FormPredefinita() { delete forma_; }
  FormPredefinita(const FormPredefinita&) = delete;
  FormPredefinita& operator=(const FormPredefinita&) = delete;

  /// The form, not loaded by this alone.
  T* operator->() { return &**this; }
  T& operator*() {
    if (!forma_ || forma_->Scaricata()) forma_ = crea_();
    return *forma_;
  }
  /// True while the form is loaded.
  bool Caricata() const { return forma_ && forma_->Caricata(); }
  /// Unloads the form; one that isn't loaded is left alone.
  void Scarica() {
    if (Caricata()) forma_->Scarica();
  }
  /// Destroys the form as it is; nothing of its own runs.
  void Dimentica() { delete forma_; }

 private:
  std::function<T*()> crea_;
  QPointer<T> forma_;
};

}  // namespace kvr5
