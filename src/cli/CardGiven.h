#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "cli/Session.h"
#include "core/SelezioneFlash.h"

namespace kvr5::cli {

/// The root of a card that was given as the letter of a removable drive or as a folder, system form
/// with its closing bar; "" where it can't be one. A letter means a drive that the card dialog
/// would offer, never the host's root.
std::string CardRoot(Session& session, const std::string& card);

/// What is said of a card as it was given: "E: not recorded whole", "/media/card: ...".
std::string OfCard(const std::string& card, std::string_view words);

/// Says that what was given is no card, and returns the status that goes with it.
int NoSuchCard(Session& session, const std::string& card);

/// The card dialog where the card is on the command line: it has answered before it is asked.
class CardGiven : public SelezioneFlash {
 public:
  /// `root` as CardRoot gives it.
  CardGiven(Contesto& context, std::string root);

  void Scegli() override;
  bool Presente() const override;

 private:
  Contesto& context_;
  std::string root_;
  std::optional<std::pair<dev_t, ino_t>> folder_;  ///< what was there to begin with
};

}  // namespace kvr5::cli
