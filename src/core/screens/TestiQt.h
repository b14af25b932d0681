#pragma once

#include <QTranslator>

#include "core/Contesto.h"

namespace kvr5 {

/// The words that the toolkit brings along (the folder chooser, the menus of text boxes), from the
/// program's own language file: the language of a screen is never that of the desktop.
class TestiQt : public QTranslator {
 public:
  explicit TestiQt(Contesto& contesto) : contesto_(&contesto) {}

  bool isEmpty() const override { return false; }

  /// The text of the language file for one of the toolkit's; null where the file has none, so that
  /// the toolkit's own stands. Shortcuts that the toolkit shows behind a tab stay.
  QString translate(const char* contesto, const char* testo, const char* disambigua,
                    int numero) const override;

 private:
  Contesto* contesto_;
};

}  // namespace kvr5
