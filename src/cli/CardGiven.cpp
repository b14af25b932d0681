#include "cli/CardGiven.h"

#include <cctype>

#include "core/Aiuti.h"
#include "platform/FileOps.h"

namespace kvr5::cli {
namespace {

/// A card given as a letter: "E:", "E:\\" or "E" in either case; '\0' for anything else.
char LetterGiven(const std::string& card) {
  const bool letter =
      (card.size() == 1 && std::isalpha(static_cast<unsigned char>(card[0])) != 0) ||
      (card.size() == 2 && card[1] == ':') || (card.size() == 3 && card.ends_with(":\\"));
  return letter ? static_cast<char>(std::toupper(static_cast<unsigned char>(card[0]))) : '\0';
}

}  // namespace

std::string CardRoot(Session& session, const std::string& card) {
  const auto folder = session.Context().Files.SystemPath(card);
  std::string root = folder && !card.empty() ? AggiungiBarra(folder.Value()) : std::string();
  const char letter = LetterGiven(card);
  const bool bare = card.size() == 1;  // may be a folder's name as well
  if (letter == '\0' || (bare && FolderExists(session.Context().Files, root))) return root;
  for (const auto& drive : session.ListDrives()) {
    if (drive.Letter == letter) return drive.Root();
  }
  return bare ? root : std::string();
}

void CardGiven::Scegli() {
  auto& state = context_.Stato;
  state.SelezioneFlashAnnullata = false;
  state.PercorsoMemoryCard = root_;
}

bool CardGiven::Presente() const {
  return FolderExists(context_.Files, root_);
}

}  // namespace kvr5::cli
