#include "core/Impostazioni.h"

#include "core/Aiuti.h"
#include "core/Registro.h"
#include "platform/Fold.h"
#include "platform/IniFile.h"
#include "platform/Path.h"

namespace kvr5 {
namespace {

constexpr std::size_t kSettingBuffer = kCaratteriImpostazione + 1;  // the closing NUL
constexpr std::size_t kTextBuffer = kCaratteriTesto + 1;

Error MakeEmptySettings(Contesto& contesto, std::string_view file) {
  auto opened = contesto.Files.Open(file, OpenMode::Append);
  if (!opened) return opened.Err();
  if (auto error = opened.Value()->Write("[Config]\r\n")) return error;
  return opened.Value()->Close();
}

void Warn(Contesto& contesto, const std::string& text) {
  contesto.Finestre.MostraMessaggio(
      {"Configuration file not found", text, Icona::Avviso, Pulsanti::Ok, Risposta::Ok});
}

/// A hidden file is one too: nothing is made or added to in its place.
bool IsThere(const Contesto& contesto, std::string_view file) {
  const auto info = contesto.Files.Info(file);
  return info && !info.Value().IsFolder;
}

/// Makes the file where it is missing; where that can't be done the program ends.
void EnsureFile(Contesto& contesto, std::string_view file) {
  if (IsThere(contesto, file)) return;
  Warn(contesto, "Unable to find configuration file.File will be created");
  if (contesto.Stato.DebugAbilitato) {
    ScriviLog(contesto, "Read file " + std::string(file) + ": File non found.File will be crated");
  }
  Ignora(MakeEmptySettings(contesto, file));  // what counts is whether the file is there now
  if (IsThere(contesto, file)) return;
  Warn(contesto, "Unable to read configuration file.Program will be ended");
  contesto.Programma.Termina(MotivoFine::ImpostazioniNonCreabili);
}

std::string ReadValue(Contesto& contesto, std::string_view file, std::string_view section,
                      std::string_view key, std::string_view fallback, std::size_t buffer) {
  const IniFile ini(contesto.Files, std::string(file), PaginaDelFile(contesto, file));
  std::string value = ini.Read(section, key, {}, buffer);
  return value.empty() ? std::string(fallback) : value;
}

}  // namespace

std::string FileImpostazioni(const Contesto& contesto) {
  return AggiungiBarra(contesto.CartellaProgramma) + "KVR5Software.ini";
}

CodePage PaginaDelFile(const Contesto& contesto, std::string_view file) {
  constexpr int kUtf8 = 65001;
  constexpr int kLanguageFiles = 1252;
#ifndef _WIN32
  if (EqualFold(file, FileImpostazioni(contesto))) return CodePage(kUtf8);
#endif
  if (file.size() > 4 && EqualFold(file.substr(file.size() - 4), ".lan")) {
    return CodePage(kLanguageFiles);
  }
  return CodePage(contesto.Luogo.AnsiCodePage);
}

std::string LeggiParametroIni(Contesto& contesto, std::string_view file, std::string_view sezione,
                              std::string_view chiave, std::string_view predefinito) {
  EnsureFile(contesto, file);
  return ReadValue(contesto, file, sezione, chiave, predefinito, kSettingBuffer);
}

std::string LeggiIniSemplice(Contesto& contesto, std::string_view file, std::string_view sezione,
                             std::string_view chiave, std::string_view predefinito) {
  return ReadValue(contesto, file, sezione, chiave, predefinito, kTextBuffer);
}

void ScriviParametroIni(Contesto& contesto, std::string_view file, std::string_view sezione,
                        std::string_view chiave, std::string_view valore) {
  const IniValue one{chiave, std::string(valore)};
  ScriviParametriIni(contesto, file, sezione, std::span(&one, 1));
}

void ScriviParametriIni(Contesto& contesto, std::string_view file, std::string_view sezione,
                        std::span<const IniValue> valori) {
  if (IsThere(contesto, file)) {
    IniFile ini(contesto.Files, std::string(file), PaginaDelFile(contesto, file));
    contesto.Errore.Record(ini.Write(sezione, valori));
    return;
  }
  if (!contesto.Stato.DebugAbilitato) return;
  for (const IniValue& each : valori) {
    ScriviLog(contesto, "Scrittura file " + std::string(file) + "Sezione [" + std::string(sezione) +
                            "] Parametro=" + std::string(each.Key) + " Valore=" + each.Value +
                            " : Errore lettura parametri - errore:file inesistente");
  }
}

void LeggiOpzioniApplicazione(Contesto& contesto) {
  const std::string settings = FileImpostazioni(contesto);
  std::string folder = LeggiParametroIni(contesto, settings, "Path", "ProjectsDir");
  if (folder.empty()) {
    const std::string standard = AggiungiBarra(contesto.CartellaProgramma) + "Projects";
    ScriviParametroIni(contesto, settings, "Path", "ProjectsDir", standard);
    Ignora(contesto.Files.CreateFolder(standard));
    folder = LeggiParametroIni(contesto, settings, "Path", "ProjectsDir");
  }
  // A folder may have been typed into the file in the host's form.
  if (!folder.empty() && !PathMap::IsSystemForm(folder)) {
    if (auto path = contesto.Files.SystemPath(folder)) folder = path.Value();
  }
  contesto.Stato.CartellaProgetti = folder;

  const std::string external = LeggiParametroIni(contesto, settings, "Config", "UseExternalPlayer");
  if (external.empty()) {
    ScriviParametroIni(contesto, settings, "Config", "UseExternalPlayer", "0");
  }
  contesto.Stato.UsaPlayerEsterno = external == "1";
}

}  // namespace kvr5
