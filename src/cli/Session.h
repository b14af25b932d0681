#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Options.h"
#include "cli/Output.h"
#include "cli/Terminal.h"
#include "core/Contesto.h"
#include "platform/Drives.h"
#include "platform/HostFileSystem.h"
#include "platform/Path.h"

namespace kvr5::cli {

/// The companion's counterpart of the program's composition root: the real disk, the terminal as
/// the user, and the state.
class Session {
 public:
  explicit Session(const Options& options);

  Output& Out() { return output_; }
  Contesto& Context() { return *context_; }
  TerminalCopy& Copy() { return copy_; }
  TerminalEvents& Events() { return events_; }
  ProgressLine& Line() { return line_; }

  /// The answer of the questions that follow, over that of the options; none are asked any more.
  void SetAnswer(FixedAnswer answer) { dialogs_.Answer(answer); }
  FixedAnswer GivenAnswer() const { return options_.Answer; }

  /// The removable drives; a look binds their letters.
  std::vector<Drive> ListDrives();
  /// The same, for whoever looks at them more than once.
  Drives& AllDrives() { return *drives_; }
  /// Reads language, options and projects folder, as every start of the program does. False when
  /// the language that was asked for isn't there (told).
  bool Start();
  /// Opens a project by name or folder. 0, or the status to end with (told). Databases that were
  /// not taken over yet are told, as no verb reads them; it goes on as with any unreadable one.
  int OpenProject(const std::string& project);
  /// The same without a word of them, for the taking over itself.
  int OpenAsItIs(const std::string& project);
  /// Whether a file of the open project can be read (told if not); a missing one counts as
  /// readable, as its routines have their own words for that.
  bool CanRead(std::string_view name);

 private:
  Options options_;
  Output output_;
  ProgressLine line_;
  PathMap paths_;
  HostFileSystem files_;
  TerminalDialogs dialogs_;
  TerminalEvents events_;
  TerminalCopy copy_;
  TerminalProcess process_;
  OrologioDiSistema clock_;
  std::unique_ptr<VolumeSource> volumes_ = HostVolumes();
  std::optional<kvr5::Drives> drives_;
  std::optional<Contesto> context_;
};

}  // namespace kvr5::cli
