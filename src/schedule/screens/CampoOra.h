#pragma once

#include <QLineEdit>
#include <functional>

namespace kvr5 {

/// A field of a segment's start: hours or minutes. Takes digits only, is selected whole when it is
/// entered, and tells when it is left.
class CampoOra : public QLineEdit {
 public:
  CampoOra(const char* nome, QWidget* padre);

  /// Shows a text unless it stands there already.
  void Mostra(const QString& testo);
  /// Called when the field is left, for Enter, and before each key.
  std::function<void()> SuLascia, SuInvio, PrimaDelTasto;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace kvr5
