#include "cli/CardGiven.h"

#include <sys/stat.h>

#include <cctype>

#include "cli/Status.h"
#include "core/Aiuti.h"
#include "platform/FileOps.h"

namespace kvr5::cli {
namespace {

/// A card given as a letter: "E:", "E:\\", "E:/" or "E" in either case; '\0' for anything else.
char LetterGiven(const std::string& card) {
  const bool letter =
      (card.size() == 1 && std::isalpha(static_cast<unsigned char>(card[0])) != 0) ||
      (card.size() == 2 && card[1] == ':') ||
      (card.size() == 3 && card[1] == ':' && (card[2] == '\\' || card[2] == '/'));
  return letter ? static_cast<char>(std::toupper(static_cast<unsigned char>(card[0]))) : '\0';
}

/// Which folder of which volume is at a path now; nothing where none is.
std::optional<std::pair<dev_t, ino_t>> FolderAt(const Contesto& context, const std::string& root) {
  struct stat status {};
  const std::string path = context.Files.HostPath(root);
  if (::stat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return std::nullopt;
  return std::pair(status.st_dev, status.st_ino);
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

std::string OfCard(const std::string& card, std::string_view words) {
  return card + (card.ends_with(':') ? " " : ": ") + std::string(words);
}

int NoSuchCard(Session& session, const std::string& card) {
  session.Out().Say(OfCard(card, "there is no such card"));
  return kRefused;
}

CardGiven::CardGiven(Contesto& context, std::string root)
    : context_(context), root_(std::move(root)), folder_(FolderAt(context_, root_)) {}

void CardGiven::Scegli() {
  auto& state = context_.Stato;
  state.SelezioneFlashAnnullata = false;
  state.PercorsoMemoryCard = root_;
}

bool CardGiven::Presente() const {
  // The folder that a card was mounted at may outlive it.
  return folder_ && FolderAt(context_, root_) == folder_;
}

}  // namespace kvr5::cli
