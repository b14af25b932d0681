#pragma once

#include <QElapsedTimer>
#include <QTranslator>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>

#include "core/Contesto.h"

namespace kvr5 {

/// The words that the toolkit brings along (the folder chooser, the menus of text boxes), from the
/// program's own language file: what this program draws speaks the language of its screens. The
/// file is read once a language, by the thread of the screens; the chooser asks from a thread of
/// its own, too.
class TestiQt : public QTranslator {
 public:
  explicit TestiQt(Contesto& contesto) : contesto_(&contesto) {}

  bool isEmpty() const override { return false; }

  /// The text of the language file for one of the toolkit's; null where the file has none, so that
  /// the toolkit's own stands. Shortcuts that the toolkit shows behind a tab stay.
  QString translate(const char* contesto, const char* testo, const char* disambigua,
                    int numero) const override;

 private:
  void LeggiSeCambiata() const;

  Contesto* contesto_;
  mutable std::mutex guardia_;
  mutable std::optional<std::string> letta_;  ///< the language file that testi_ come from
  mutable std::unordered_map<std::string, QString> testi_;
  mutable QElapsedTimer lettura_;  ///< since it was read
};

}  // namespace kvr5
