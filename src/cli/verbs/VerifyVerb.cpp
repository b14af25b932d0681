#include <array>
#include <chrono>

#include "cli/CardGiven.h"
#include "cli/CopyLine.h"
#include "cli/Interrupt.h"
#include "cli/verbs/Verb.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "flashcard/Verifica.h"

namespace kvr5::cli {
namespace {

/// Prints each finding as it is made, with the progress line below.
class TerminalVerification : public OsservatoreVerifica {
 public:
  TerminalVerification(Session& session, const std::string& root)
      : session_(session),
        card_(session.Context(), root),
        operation_(TestoLinguaO(session.Context(), "0130281", "Comparing files")) {}

  bool Avanza(const CopyState& stato) override {
    const std::chrono::duration<double> elapsed = Clock::now() - start_;
    if (session_.Line().IsActive()) {
      session_.Line().Show(CopyLine(operation_, stato, elapsed.count()));
    }
    session_.Context().Messaggi.LasciaCorrere();
    return !Interrupt::Pressed();
  }

  void Trovato(const Riscontro& riscontro) override {
    session_.Line().Clear();
    const std::string_view kind = NomeDifetto(riscontro.Tipo);
    if (session_.Out().IsJson()) {
      session_.Out().Object({{"kind", kind}, {"file", riscontro.File}});
    } else {
      session_.Out().Line(std::string(kind) + ": " + SuUnaRiga(riscontro.File));
    }
  }

  bool Presente() override { return card_.Presente(); }

 private:
  using Clock = std::chrono::steady_clock;

  Session& session_;
  CardGiven card_;
  std::string operation_;
  Clock::time_point start_ = Clock::now();
};

/// True when all was compared that there is to compare.
bool IsWhole(const EsitoVerifica& outcome) {
  return !outcome.Annullata && !outcome.Sparita;
}

/// "12 files compared, 52 MB; missing 1, stray 2"
std::string Counts(const EsitoVerifica& outcome, const Locale& locale) {
  constexpr std::array kKinds{Difetto::Mancante,  Difetto::Diverso,   Difetto::Estraneo,
                              Difetto::VoceVuota, Difetto::Rifiutato, Difetto::NonLetto};
  std::string text = std::to_string(outcome.File) + (outcome.File == 1 ? " file" : " files") +
                     " as in the project, " + QuantitaInParole(outcome.Byte, locale);
  std::string_view between = "; ";
  for (const Difetto kind : kKinds) {
    const std::size_t count = outcome.Quanti(kind);
    if (count == 0) continue;
    text.append(between).append(NomeDifetto(kind)).append(" ").append(std::to_string(count));
    between = ", ";
  }
  if (outcome.Riscontri.empty() && IsWhole(outcome)) text += "; nothing found";
  if (outcome.Annullata) text += "; cancelled, not all was compared";
  if (outcome.Sparita) text += "; the card went away, not all was compared";
  return text;
}

/// The last line; for programs it is a message, as their lines are the findings.
void TellCounts(Session& session, const EsitoVerifica& outcome) {
  const std::string text = Counts(outcome, session.Context().Luogo);
  if (session.Out().IsJson()) {
    session.Out().Box("info", "kvr5card", text, "ok");
  } else {
    session.Out().Line(text);
  }
}

}  // namespace

int RunVerify(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.size() != 2) return kUsage;
  if (const int status = session.OpenProject(arguments[0]); status != kDone) return status;
  const std::string root = CardRoot(session, arguments[1]);
  const Interrupt cancel;
  TerminalVerification watch(session, root);
  const auto outcome = root.empty() ? EsitoVerifica{.SenzaScheda = true}
                                    : VerificaScheda(session.Context(), root, watch);
  session.Line().Clear();
  if (outcome.SenzaScheda) return NoSuchCard(session, arguments[1]);
  TellCounts(session, outcome);
  return outcome.Riscontri.empty() && IsWhole(outcome) ? kDone : kRefused;
}

}  // namespace kvr5::cli
