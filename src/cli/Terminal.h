#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "cli/Options.h"
#include "cli/Output.h"
#include "core/Contesto.h"
#include "core/FinestraProgresso.h"

namespace kvr5::cli {

/// One line on standard error that is written over and over, where that is a terminal.
class ProgressLine {
 public:
  explicit ProgressLine(bool json);
  /// True where the line is seen at all.
  bool IsActive() const { return active_; }
  void Show(const std::string& text);
  void Clear();

 private:
  bool active_;
  bool shown_ = false;
  std::chrono::steady_clock::time_point last_{};
};

/// Boxes on the terminal: printed, and questions answered by --yes, --no, the keyboard, or, where
/// there is none, by no (by cancel where a box has it). For programs a question is an object like
/// any box, with the answer in it; what is typed is asked for on the terminal itself.
class TerminalDialogs : public Dialoghi {
 public:
  TerminalDialogs(Output& output, ProgressLine& line, FixedAnswer answer)
      : output_(output), line_(line), answer_(answer) {}

  /// The answer of the questions that follow; without the keyboard from here on.
  void Answer(FixedAnswer answer);

  Risposta MostraMessaggio(const Messaggio& messaggio) override;
  std::uint8_t MostraSiNo(const BoxSiNo& box) override;
  /// Folders and files are arguments here: nothing is chosen.
  std::string SfogliaCartella(const std::string& /*titolo*/,
                              const std::string& /*inizio*/) override {
    return {};
  }
  std::string ScegliFile(const std::string& /*titolo*/, const FiltroFile& /*filtro*/,
                         const std::string& /*inizio*/) override {
    return {};
  }

 private:
  Risposta Ask(std::string_view title, std::string_view text, bool withCancel);
  /// The answer of the keyboard; nothing where there is none.
  static std::optional<Risposta> AskKeyboard(std::string_view title, std::string_view text,
                                             bool withCancel);

  Output& output_;
  ProgressLine& line_;
  FixedAnswer answer_;
  bool keyboard_ = true;
};

/// Pending events of a terminal: Ctrl-C, which presses the cancel button of a loaded progress
/// window.
class TerminalEvents : public Eventi {
 public:
  /// The window whose cancel Ctrl-C presses; none to begin with.
  void Watch(FinestraProgresso* window) { window_ = window; }
  /// Called at each turn, so that a long command can tell how far it is.
  std::function<void()> OnTurn;
  void LasciaCorrere() override;
  void ImpostaPuntatore(Puntatore /*puntatore*/) override {}

 private:
  FinestraProgresso* window_ = nullptr;
};

/// The copy window on the terminal: a line with operation, percent, file, speed and time left.
class TerminalCopy : public CopyObserver {
 public:
  TerminalCopy(Output& output, ProgressLine& line) : output_(output), line_(line) {}
  /// Who words the failures; set once the context stands.
  void Speak(Contesto& context) { context_ = &context; }

  bool Progress(const CopyState& state) override;
  void Failed(const CopyFailure& failure) override;
  /// True when a copy failed since the last call.
  bool TakeFailure();

 private:
  Output& output_;
  ProgressLine& line_;
  Contesto* context_ = nullptr;
  std::string operation_;  ///< what the line begins with, once it was looked up
  bool failed_ = false;
  std::chrono::steady_clock::time_point start_{};
};

/// frmProgress on the terminal.
class TerminalProgress : public FinestraProgresso {
 public:
  TerminalProgress(Contesto& context, ProgressLine& line)
      : FinestraProgresso(context), line_(line) {}

 protected:
  void Ridisegna() override;

 private:
  ProgressLine& line_;
};

/// The fatal ends: the process ends with the status of their kind.
class TerminalProcess : public Processo {
 public:
  [[noreturn]] void Termina(MotivoFine motivo) override;
};

}  // namespace kvr5::cli
