#include "playlists/EditorPlaylist.h"

#include <algorithm>
#include <utility>

#include "core/Lingua.h"
#include "platform/Fold.h"
#include "playlists/NomiPlaylist.h"

namespace kvr5 {

EditorPlaylist::EditorPlaylist(Contesto& contesto) : contesto_(contesto), chiusa_(contesto.Files) {}

void EditorPlaylist::Carica() {
  const auto& state = contesto_.Stato;
  ingressi_ = {};
  modifiche_ = 0;
  nota_ = {};
  testoPlaylistFile1_ = TestoLingua(contesto_, "0050016");
  testoPlaylistFile2_ = TestoLingua(contesto_, "0050017");
  copia_.emplace(contesto_, "playlist.mdb", "tmpPlaylist.mdb");
  copia_->Apri();
  disposizione_ = DisposizionePlaylistDi(contesto_, state.PlayerType, state.PlayerMode);
  playlistCorrente_ = disposizione_.PlaylistCorrente;
  if (disposizione_.NomiDaHead) {
    CaricaNomiPlaylist(*this);
    if (!voci_.empty()) ImpostaIndice(1);  // there may be no second one
  } else {
    CambiaVoci(disposizione_.Voci);
    ImpostaIndice(0);
  }
  AggiornaGrigliaPlaylist();
  if (disposizione_.picfraSelezionePlaylist) ImpostaIndice(indice_);
  AggiornaContatoreFile();
}

void EditorPlaylist::Chiudi() {
  righe_.Close();
  copia_.reset();
}

std::string EditorPlaylist::Testo() const {
  return indice_ < 0 ? std::string() : voci_.at(static_cast<std::size_t>(indice_)).Testo;
}

void EditorPlaylist::CambiaVoci(std::vector<VocePlaylist> voci) {
  voci_ = std::move(voci);
  indice_ = -1;
  if (SuSelettore) SuSelettore();
}

void EditorPlaylist::ImpostaTesto(const std::string& testo) {
  const auto found = std::ranges::find_if(
      voci_, [&](const VocePlaylist& each) { return EqualFold(each.Testo, testo); });
  if (found != voci_.end()) ImpostaIndice(static_cast<int>(found - voci_.begin()));
}

void EditorPlaylist::ImpostaIndice(int indice, Attivo attivo) {
  if (indice < -1 || indice >= static_cast<int>(voci_.size())) return;
  indice_ = indice;
  if (disposizione_.picFraIngresso && attivo == Attivo::cmbPlaylist) {
    for (std::size_t bit = 0; bit < ingressi_.size(); ++bit) {
      ingressi_.at(bit) = (static_cast<unsigned>(indice) >> bit & 1U) != 0;
    }
  }
  playlistCorrente_ = indice + (IndiceDaUno(contesto_.Stato.PlayerMode) ? 1 : 0);
  if (SuSelettore) SuSelettore();
  AggiornaGrigliaPlaylist();
}

void EditorPlaylist::SpuntaIngresso(int numero, bool spuntato) {
  ingressi_.at(static_cast<std::size_t>(numero - 1)) = spuntato;
  int sum = 0;
  for (std::size_t bit = 0; bit < ingressi_.size(); ++bit) {
    if (ingressi_.at(bit)) sum += 1 << bit;
  }
  playlistCorrente_ = sum;
  AggiornaGrigliaPlaylist();
  // Its handler has the last word on the number.
  if (disposizione_.picfraSelezionePlaylist) ImpostaIndice(sum);
}

std::string EditorPlaylist::IstruzioneGriglia() const {
  return "SELECT * FROM [List] WHERE [NPlaylist]=" + std::to_string(playlistCorrente_) +
         " ORDER BY [Pos] ASC";
}

void EditorPlaylist::AggiornaGrigliaPlaylist() {
  righe_.Close();
  Record(righe_.Open(ConnessionePlaylist(), IstruzioneGriglia()));
  MostraGriglia();
  Attesa(false);
  AggiornaContatoreFile();
}

bool EditorPlaylist::Concludi(Transaction& corsa) {
  if (Record(corsa.End())) return true;
  nota_ = {};
  return false;
}

std::optional<std::int32_t> EditorPlaylist::PosizioneNota() const {
  const bool same = nota_.Playlist == playlistCorrente_ && nota_.Modifiche == modifiche_;
  return same ? std::optional(nota_.Prossima) : std::nullopt;
}

void EditorPlaylist::MostraGriglia() {
  if (SuGriglia) SuGriglia();
}

void EditorPlaylist::AggiornaContatoreFile() {
  contatore_ = testoPlaylistFile1_ + "-" + testoPlaylistFile2_ + ": " + std::to_string(Quanti());
  if (SuContatore) SuContatore();
}

void EditorPlaylist::Attesa(bool attende) {
  if (SuAttesa) SuAttesa(attende);
}

}  // namespace kvr5
