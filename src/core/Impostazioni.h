#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "core/Contesto.h"
#include "platform/CodePage.h"
#include "platform/IniFile.h"

namespace kvr5 {

/// As many characters as a value of an INI file comes back with, but for a language file's.
inline constexpr std::size_t kCaratteriImpostazione = 99;

/// As many as a text of a language file comes back with.
inline constexpr std::size_t kCaratteriTesto = 253;

/// Reads a value of an INI file: the settings, the descriptor, the device file, the help section
/// of a language file. At most kCaratteriImpostazione come back, the rest is lost without a word.
///
/// A file that isn't there is made with the one line "[Config]", after a warning in fixed English
/// words (no language is known yet at the first read); where that fails the program ends. An
/// empty or missing value gives `predefinito`.
std::string LeggiParametroIni(Contesto& contesto, std::string_view file, std::string_view sezione,
                              std::string_view chiave, std::string_view predefinito = {});

/// Reads a text of a language file: at most 253 characters, and nothing is made where the file is
/// missing.
std::string LeggiIniSemplice(Contesto& contesto, std::string_view file, std::string_view sezione,
                             std::string_view chiave, std::string_view predefinito = {});

/// Writes a value into an INI file that exists; a missing file stays missing and nothing is said.
/// A write that fails is the pending error.
void ScriviParametroIni(Contesto& contesto, std::string_view file, std::string_view sezione,
                        std::string_view chiave, std::string_view valore);

/// The same for several keys of one section, in this order and in one rewrite of the file.
void ScriviParametriIni(Contesto& contesto, std::string_view file, std::string_view sezione,
                        std::span<const IniValue> valori);

/// Full path of KVR5Software.ini, beside the program.
std::string FileImpostazioni(const Contesto& contesto);

/// The code page of an INI file: UTF-8 for the settings outside Windows (they hold paths of that
/// host), Windows-1252 for language files, the host's ANSI page for all others.
CodePage PaginaDelFile(const Contesto& contesto, std::string_view file);

/// ProjectsDir and UseExternalPlayer into the state, with their defaults written where missing.
void LeggiOpzioniApplicazione(Contesto& contesto);

}  // namespace kvr5
