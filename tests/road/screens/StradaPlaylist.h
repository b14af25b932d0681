#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "cli/Compagno.h"
#include "road/screens/BancoProgramma.h"
#include "road/screens/ManoPlaylist.h"

namespace kvr5::test {

/// The files of a folder by their names: their bytes; of a database its rows with all columns.
using Foto = std::map<std::string, std::string>;

/// The whole program at the hub of a project named Bar that has playlists, with real MP3 files in
/// "music/a" and "music/b", and the folder "card" as the drive E; and kvr5card over the same
/// folders.
class StradaPlaylist : public BancoProgramma {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// To the hub: of a new project that the wizard makes (a KVR5 of mode 5, 6 or 7).
  void CreaColWizard(std::int16_t modo);
  /// To the hub of a project that the bench makes, by the list of projects; a KVR5 of mode 4 as
  /// older programs left it. `conDatabase`: its model has no playlists, and yet the database is
  /// there.
  void Apri(std::int16_t tipo, std::int16_t modo, bool conDatabase = false);
  /// The hub, which alone is seen.
  frmPlayerConfig& Hub();
  /// From the hub to the editor: by its button, or by the menu where that is hidden.
  frmPlaylistEditor& ApriEditor();
  /// Saves, answers whether the files are to be copied ({}: it isn't asked), and is back at the
  /// hub.
  void Salva(frmPlaylistEditor& editor, std::optional<bool> risposta);
  /// A whole session from the hub to the hub.
  void Sessione(const Passi& passi, std::optional<bool> risposta);
  /// Records onto the card, which is chosen in the dialog where none is yet. `avviso`: what is done
  /// with the notice that it ends with.
  void Registra(const std::function<void(frmSiNo&)>& avviso = {});

  /// The same sessions by kvr5card.
  void SessioneDelCompagno(const Passi& passi, bool risposta);
  void RegistraColCompagno();
  Corsa Compagna(const std::vector<std::string>& parole, const std::string& testo = {});
  /// Ends the program, and puts the project and the card back to where Ricorda was called.
  void Ricorda();
  void TornaIndietro();

  std::filesystem::path Host(const std::string& nome) const { return b.Cartella.Host() / nome; }
  std::string Leggi(const std::string& nome) const { return b.Cartella.Read("card/" + nome); }
  void SvuotaScheda() const;
  Foto Byte(const std::string& cartella) const;
  Foto FotoDi(const std::string& cartella);
  /// Each row of a table of a database, all columns.
  std::string Righe(const std::string& database, const std::string& tabella);

  /// The card holds these MP3 files and no other: name there, file of "music" whose bytes it has.
  void ExpectBrani(const std::map<std::string, std::string>& brani) const;
  /// Every list for the player names files that are on the card, and all of them.
  void ExpectListeVere() const;
  static void ExpectUguali(const Foto& schermi, const Foto& compagno);

  static constexpr const char* kProgetto = "program/Projects/Bar";
  Foto Musica;  ///< by "a/welcome.mp3"

 private:
  void AvviaEApri();

  Compagno k_;
};

}  // namespace kvr5::test
