#include "cli/Session.h"

#include <filesystem>

#include "cli/Status.h"
#include "core/Aiuti.h"
#include "core/Avvio.h"
#include "core/Lingua.h"
#include "platform/FileOps.h"
#include "projects/ApriProgetto.h"
#include "projects/CartellaProgetto.h"
#include "projects/Subentro.h"

namespace kvr5::cli {
namespace {

std::string ExecutableFolder() {
  std::error_code error;
  const auto path = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string(".") : path.parent_path().string();
}

std::string WithoutBar(std::string path) {
  constexpr std::size_t kRoot = 3;  // "C:\"
  while (path.size() > kRoot && path.ends_with('\\')) path.pop_back();
  return path;
}

}  // namespace

Session::Session(const Options& options)
    : options_(options),
      output_(options.Json),
      line_(options.Json),
      files_(paths_),
      dialogs_(output_, line_, options.Answer),
      copy_(output_, line_) {
  const std::string given = options.Program.empty() ? ExecutableFolder() : options.Program;
  const auto folder = files_.SystemPath(given);
  context_.emplace(Contesto{files_,
                            dialogs_,
                            events_,
                            copy_,
                            clock_,
                            process_,
                            folder ? WithoutBar(folder.Value()) : std::string(),
                            Locale::Host(),
                            {},
                            {}});
  copy_.Speak(*context_);
  drives_.emplace(paths_, *volumes_, [this] {
    const auto text = ReadWhole(files_, AggiungiBarra(context_->CartellaProgramma) + "Drives.ini");
    return text ? text.Value() : std::string();
  });
  drives_->List();  // binds the letters, so that every path may begin with one
}

std::vector<Drive> Session::ListDrives() {
  return drives_->List();
}

bool Session::Start() {
  auto& context = *context_;
  if (!FolderExists(files_, context.CartellaProgramma)) {
    const std::string tried = options_.Program.empty() ? ExecutableFolder() : options_.Program;
    output_.Say(context.CartellaProgramma.empty()
                    ? tried + ": a folder of this name can't hold the program"
                    : tried + ": there is no such folder");
    return false;
  }
  if (options_.Language.empty()) {
    AvviaSenzaSchermate(context);
  } else {
    std::string name = options_.Language;
    if (TogliEstensione(name).empty()) name += ".lan";
    context.Stato.FileLingua = AggiungiBarra(context.CartellaProgramma) + "Language\\" + name;
    const bool isName = options_.Language.find_first_of("*?|/\\:") == std::string::npos;
    if (!isName || !FileExists(files_, context.Stato.FileLingua)) {
      output_.Say("there is no language " + options_.Language);
      return false;
    }
    AvviaConLingua(context);
  }
  return true;
}

int Session::OpenProject(const std::string& project) {
  const int status = OpenAsItIs(project);
  if (status != kDone) return status;
  std::string names;
  for (const std::string& name : DatabaseDaSubentrare(*context_)) {
    if (!jet::HasSignature(files_, FileDelProgetto(*context_, name))) continue;  // merely damaged
    names += (names.empty() ? "" : ", ") + name;
  }
  if (!names.empty()) {
    output_.Say(names + ": made by an earlier program, and not read; run kvr5card takeover " +
                project);
  }
  return kDone;
}

int Session::OpenAsItIs(const std::string& project) {
  auto& context = *context_;
  const bool isFolder = project.find_first_of("/\\:") != std::string::npos;
  const auto folder = files_.SystemPath(
      isFolder ? project : AggiungiBarra(context.Stato.CartellaProgetti) + project);
  const auto outcome = folder && !project.empty()
                           ? ApriProgetto(context, WithoutBar(folder.Value()))
                           : EsitoApertura::NessunaCartella;
  if (outcome == EsitoApertura::Aperto) return CanRead("Config.cfg") ? kDone : kRefused;
  if (outcome == EsitoApertura::NessunaCartella) output_.Say("there is no project " + project);
  return kMissing;
}

bool Session::CanRead(std::string_view name) {
  const std::string path = AggiungiBarra(context_->Stato.CartellaProgetto).append(name);
  const auto file = files_.Open(path, OpenMode::Read);
  if (file || !FileExists(files_, path)) return true;
  output_.Say(files_.HostPath(path) + ": " + file.Err().Description());
  return false;
}

}  // namespace kvr5::cli
