#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/Contesto.h"
#include "core/TurniEditor.h"
#include "platform/db/Recordset.h"
#include "playlists/DisposizionePlaylist.h"
#include "projects/CopiaDiLavoro.h"

namespace kvr5 {

/// frmPlaylistEditor without its pixels: the working copy of playlist.mdb, the rows of the current
/// playlist, and the selector that says which one that is.
///
/// Every change goes into tmpPlaylist.mdb as it is made; playlist.mdb itself changes by a save
/// alone. Failures are swallowed: a database that is missing or damaged shows as an empty list.
class EditorPlaylist {
 public:
  /// As many tracks as a playlist takes.
  static constexpr int kLimite = 500;

  /// Nothing is opened before Carica.
  explicit EditorPlaylist(Contesto& contesto);

  /// The load: makes the working copy, reads the layout of the model and mode, and comes up on its
  /// first list.
  void Carica();
  /// Closes the rows and the connection and deletes the working copy: what wasn't saved is gone.
  /// Harmless on a closed editor, as is every routine.
  void Chiudi();

  Contesto& C() { return contesto_; }
  /// Keeps a failure as the pending error; false for one.
  bool Record(const Error& errore) { return contesto_.Errore.Record(errore); }
  /// The working copy; null while none is there.
  CopiaDiLavoro* Copia() { return copia_ ? &*copia_ : nullptr; }
  Connection& ConnessionePlaylist() { return copia_ ? copia_->Connessione() : chiusa_; }
  /// The rows of the current playlist; during a save, those of all.
  Recordset& rsList() { return righe_; }
  const DisposizionePlaylist& Disposizione() const { return disposizione_; }
  std::int32_t PlaylistCorrente() const { return playlistCorrente_; }
  /// Rows of rsList; 0 when it is closed.
  int Quanti() const { return righe_.IsOpen() ? righe_.RecordCount() : 0; }
  bool Piena() const { return righe_.IsOpen() && righe_.RecordCount() >= kLimite; }

  /// cmbPlaylist: its entries, its index (-1 for none) and its text ("" for none).
  const std::vector<VocePlaylist>& Voci() const { return voci_; }
  int Indice() const { return indice_; }
  std::string Testo() const;
  /// True where a list has to be made first: the selector is shown and has no entries.
  bool SelettoreVuoto() const { return disposizione_.picfraSelezionePlaylist && voci_.empty(); }
  /// A click on an entry by the user.
  void ScegliVoce(int indice) { ImpostaIndice(indice, Attivo::cmbPlaylist); }
  /// The index, or the text, set by the program: the click's handler runs too. One that no entry
  /// has changes nothing.
  void ImpostaIndice(int indice) { ImpostaIndice(indice, Attivo::Altro); }
  void ImpostaTesto(const std::string& testo);
  /// Puts other entries in the place of all; none is selected then.
  void CambiaVoci(std::vector<VocePlaylist> voci);

  /// chkIn(1) to chkIn(3).
  bool Ingresso(int numero) const { return ingressi_.at(static_cast<std::size_t>(numero - 1)); }
  /// A click on a box by the user, with its new state.
  void SpuntaIngresso(int numero, bool spuntato);

  /// The query of the current playlist's rows.
  std::string IstruzioneGriglia() const;
  /// Reads the rows of the current playlist; ends the wait display.
  void AggiornaGrigliaPlaylist();
  void AggiornaContatoreFile();
  /// Has the grid show rsList afresh, and its current row.
  void MostraGriglia();
  const std::string& lblPlaylistFiles() const { return contatore_; }
  /// Hides the grid behind the wait display, or shows it again.
  void Attesa(bool attende);

  /// Called when the grid is to show rsList afresh, when the label of the count or the selector has
  /// changed, and when the wait display comes (true) or goes.
  std::function<void()> SuGriglia;
  std::function<void()> SuContatore;
  std::function<void()> SuSelettore;
  std::function<void(bool)> SuAttesa;

  /// How many changes were made since the load, as a person counts them.
  int Modifiche() const { return modifiche_; }
  void Modificato(int quante = 1) { modifiche_ += quante; }

  /// Ends a run; false where the device took none of it, and all is as it was before.
  bool Concludi(Transaction& corsa);
  /// The Pos of the next row, where nothing has changed since the last one was added: a run counts
  /// the rows once.
  std::optional<std::int32_t> PosizioneNota() const;
  void DimenticaPosizione() { nota_ = {}; }
  void AnnotaPosizione(std::int32_t prossima) { nota_ = {playlistCorrente_, modifiche_, prossima}; }

  /// Who may act on it, amid the events of its long routines.
  TurniEditor Turni;

 private:
  /// The control with the focus, as far as a handler asks for it.
  enum class Attivo { Altro, cmbPlaylist };
  void ImpostaIndice(int indice, Attivo attivo);

  Contesto& contesto_;
  Connection chiusa_;  ///< what there is without a working copy
  std::optional<CopiaDiLavoro> copia_;
  Recordset righe_;
  DisposizionePlaylist disposizione_;
  std::vector<VocePlaylist> voci_;
  int indice_ = -1;
  std::array<bool, 3> ingressi_{};
  std::int32_t playlistCorrente_ = 0;
  std::string testoPlaylistFile1_;
  std::string testoPlaylistFile2_;
  std::string contatore_;
  int modifiche_ = 0;
  struct Nota {
    std::int32_t Playlist = 0;
    int Modifiche = -1;
    std::int32_t Prossima = 0;
  } nota_;
};

}  // namespace kvr5
