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
  void Chiudi();

  Contesto& C() { return contesto_; }
  /// Keeps a failure as the pending error; false for one.
  bool Record(Error errore) { return contesto_.Errore.Record(std::move(errore)); }
  CopiaDiLavoro& Copia() { return *copia_; }
  Connection& ConnessionePlaylist() { return copia_->Connessione(); }
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

  /// Reads the rows of the current playlist; ends the wait display.
  void AggiornaGrigliaPlaylist();
  void AggiornaContatoreFile();
  const std::string& lblPlaylistFiles() const { return contatore_; }
  /// Hides the grid behind the wait display, or shows it again.
  void Attesa(bool attende);

  /// Called when the grid is to show rsList afresh, when the label of the count or the selector has
  /// changed, and when the wait display comes (true) or goes.
  std::function<void()> SuGriglia;
  std::function<void()> SuContatore;
  std::function<void()> SuSelettore;
  std::function<void(bool)> SuAttesa;

  /// A run over many rows as one transaction. Events run between its rows, so that another may be
  /// started within it, which joins it; what has to wait for the end of all is done then.
  class Corsa {
   public:
    explicit Corsa(EditorPlaylist& editor);
    ~Corsa();
    Corsa(const Corsa&) = delete;
    Corsa& operator=(const Corsa&) = delete;

   private:
    EditorPlaylist& editor_;
    std::optional<Transaction> tutto_;
  };
  bool InCorsa() const { return corse_ > 0; }
  /// Does it at once, or at the end of the runs under way.
  void QuandoFermo(std::function<void()> azione);

 private:
  /// The control with the focus, as far as a handler asks for it.
  enum class Attivo { Altro, cmbPlaylist };
  void ImpostaIndice(int indice, Attivo attivo);

  Contesto& contesto_;
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
  int corse_ = 0;
  std::vector<std::function<void()>> rimandate_;
};

}  // namespace kvr5
