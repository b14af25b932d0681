#include "cli/CardGiven.h"
#include "cli/verbs/Verb.h"
#include "flashcard/CancellaFlash.h"

namespace kvr5::cli {

int RunErase(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.size() != 1) return kUsage;
  const std::string root = CardRoot(session, arguments[0]);
  if (root.empty()) return NoSuchCard(session, arguments[0]);
  CardGiven card(session.Context(), root);
  const auto end = CancellaFlash(session.Context(), card);
  const bool empty = end == FineSvuotamento::Svuotata || end == FineSvuotamento::GiaVuota;
  return empty ? kDone : kRefused;
}

}  // namespace kvr5::cli
