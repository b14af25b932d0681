#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "playlists/screens/frmPlaylistEditor.h"

namespace kvr5::test {

/// The hand of a person at the editor of playlists.

/// Clicks a file of the pane; a missing one ends the test. The verdict on it comes at once.
void CliccaFile(frmPlaylistEditor& editor, const std::string& nome);
/// Clicks it twice.
void CliccaFileDueVolte(frmPlaylistEditor& editor, const std::string& nome);
/// The same with a row of the current list, counted from 0.
void CliccaBrano(frmPlaylistEditor& editor, int riga);

using Passi = std::vector<std::string>;

/// Carries out the commands of a session of kvr5card (select, add, addall, remove, up, down, new,
/// inputs) with mouse and keys. A command has one word behind its name at most; the files are
/// named below `radice`, a folder of the host.
class SessioneAMano {
 public:
  SessioneAMano(frmPlaylistEditor& editor, std::filesystem::path radice)
      : e_(editor), radice_(std::move(radice)) {}
  void Esegui(const Passi& passi);

 private:
  void UnComando(const std::string& parola, const std::string& resto);
  void VaiA(const std::filesystem::path& cartella);
  void Aggiungi(const std::filesystem::path& file);
  void VaiAlPosto(const std::string& pos);
  void Nuova(const std::string& nome);
  void Ingressi(int bit);

  frmPlaylistEditor& e_;
  std::filesystem::path radice_;
  int aggiunti_ = 0;
};

/// The same commands as a line each, for the standard input of kvr5card.
std::string TestoSessione(const Passi& passi, const std::filesystem::path& radice);

}  // namespace kvr5::test
