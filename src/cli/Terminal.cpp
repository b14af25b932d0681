#include "cli/Terminal.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iostream>

#include "cli/CopyLine.h"
#include "cli/Interrupt.h"
#include "cli/Status.h"
#include "cli/TerminalText.h"
#include "core/Lingua.h"
#include "core/ParoleCopia.h"
#include "platform/Fold.h"

namespace kvr5::cli {
namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kRefresh = std::chrono::milliseconds(100);

std::string_view Kind(Icona icon) {
  switch (icon) {
    case Icona::Avviso:
      return "warning";
    case Icona::Domanda:
      return "question";
    default:
      return "info";
  }
}

std::string_view Word(Risposta answer) {
  switch (answer) {
    case Risposta::Si:
      return "yes";
    case Risposta::No:
      return "no";
    case Risposta::Annulla:
      return "cancel";
    default:
      return "ok";
  }
}

}  // namespace

ProgressLine::ProgressLine(bool json) : active_(!json && isatty(STDERR_FILENO) == 1) {}

void ProgressLine::Show(const std::string& text) {
  const auto now = Clock::now();
  if (!active_ || (shown_ && now - last_ < kRefresh)) return;
  last_ = now;
  shown_ = true;
  // the last column stays free: a terminal that wraps there would begin a new line each time
  std::cerr << "\r\033[K" << CutToWidth(text, TerminalColumns() - 1) << std::flush;
}

void ProgressLine::Clear() {
  if (shown_) std::cerr << "\r\033[K" << std::flush;
  shown_ = false;
}

void TerminalDialogs::Answer(FixedAnswer answer) {
  answer_ = answer;
  keyboard_ = false;
}

Risposta TerminalDialogs::MostraMessaggio(const Messaggio& messaggio) {
  line_.Clear();
  if (messaggio.Scelte != Pulsanti::Ok) {
    return Ask(messaggio.Titolo, messaggio.Testo, messaggio.Scelte == Pulsanti::SiNoAnnulla);
  }
  output_.Box(Kind(messaggio.Segno), messaggio.Titolo, messaggio.Testo, "ok");
  return Risposta::Ok;
}

std::uint8_t TerminalDialogs::MostraSiNo(const BoxSiNo& box) {
  line_.Clear();
  if (box.SoloOk) {
    output_.Box(box.ColoreNota ? "warning" : "info", box.Titolo, box.Nota, "ok");
    return 1;
  }
  return Ask(box.Titolo, box.Nota, false) == Risposta::Si ? 1 : 2;
}

Risposta TerminalDialogs::Ask(std::string_view title, std::string_view text, bool withCancel) {
  Risposta answer = withCancel ? Risposta::Annulla : Risposta::No;
  if (answer_ != FixedAnswer::None) {
    answer = answer_ == FixedAnswer::Yes ? Risposta::Si : Risposta::No;
  } else if (const auto typed = keyboard_ ? AskKeyboard(title, text, withCancel) : std::nullopt) {
    if (!output_.IsJson()) return *typed;  // the question stands on the terminal already
    answer = *typed;
  }
  output_.Box("question", title, text, Word(answer));
  return answer;
}

std::optional<Risposta> TerminalDialogs::AskKeyboard(std::string_view title, std::string_view text,
                                                     bool withCancel) {
  std::ofstream terminal("/dev/tty");
  if (isatty(STDIN_FILENO) != 1 || !terminal) return {};
  terminal << ShownOnTerminal(std::string(title) + ": " + WithPlainLineEnds(text)) << '\n'
           << (withCancel ? "[y/n/c] " : "[y/n] ") << std::flush;
  std::string typed;
  std::getline(std::cin, typed);
  if (EqualFold(typed, "y") || EqualFold(typed, "yes")) return Risposta::Si;
  if (EqualFold(typed, "n") || EqualFold(typed, "no")) return Risposta::No;
  return withCancel ? Risposta::Annulla : Risposta::No;
}

void TerminalEvents::LasciaCorrere() {
  if (OnTurn) OnTurn();
  if (window_ != nullptr && window_->Caricata() && Interrupt::Pressed()) window_->Annulla();
}

bool TerminalCopy::Progress(const CopyState& state) {
  if (state.BytesDone == 0 && state.FileNumber <= 1) start_ = Clock::now();
  const std::chrono::duration<double> elapsed = Clock::now() - start_;
  if (line_.IsActive()) {
    if (operation_.empty() && context_ != nullptr) {
      operation_ = TestoLinguaO(*context_, "0130001", "Copying files");
    }
    line_.Show(CopyLine(operation_, state, elapsed.count()));
  }
  if (state.BytesTotal > 0 && state.BytesDone == state.BytesTotal) line_.Clear();
  // A press amid a copy that nothing stops is for what follows it.
  return !state.Stoppable || !Interrupt::Pressed();
}

void TerminalCopy::Failed(const CopyFailure& failure) {
  line_.Clear();
  failed_ = true;
  if (context_ == nullptr) return;
  const Messaggio words = BoxGuastoCopia(*context_, failure);
  output_.Box("warning", words.Titolo, words.Testo, "ok");
}

bool TerminalCopy::TakeFailure() {
  const bool failed = failed_;
  failed_ = false;
  return failed;
}

void TerminalProgress::Ridisegna() {
  if (!Visibile()) {
    line_.Clear();
    return;
  }
  std::string text = TestoOperazione() + "  " + TestoPercento();
  if (NumFileVisibile() && FileTotali > 0) text += "  " + TestoNumFile();
  line_.Show(text);
}

void TerminalProcess::Termina(MotivoFine motivo) {
  std::exit(motivo == MotivoFine::ImpostazioniNonCreabili ? kRefused : kMissing);
}

}  // namespace kvr5::cli
