#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "mp3/modMp3Infos.h"
#include "playlists/EditorPlaylist.h"

namespace kvr5 {

/// The tracks of the current playlist: added, removed, put in order. The names of the routines are
/// those of the buttons.

/// What came of adding a file.
enum class EsitoAggiunta {
  Aggiunto,
  SenzaPlaylist,  ///< no playlist is there yet; told
  Piena,          ///< the playlist is full; told
  NonScritto,     ///< the database took it not; in the log
};

/// The Pos of a new row: one more than the tracks of the current playlist.
std::int32_t ProssimaPosizione(EditorPlaylist& editor);
/// Numbers the tracks of every playlist 1, 2, 3 ... in their order; rows that agree aren't written.
/// `traLeRighe` is called after each: no row may come or go in it.
void RiordinaPosizione(EditorPlaylist& editor, const std::function<void()>& traLeRighe = {});

/// Adds a file that the player takes, and goes to its row. The label of the count stays as it is.
EsitoAggiunta AggiungiFile(EditorPlaylist& editor, const std::string& cartella,
                           const std::string& nome);
/// Adds those of these files that the player takes, in their order, until the playlist is full
/// (told). True when all were looked at. Events run between the files.
bool AggiungiTuttiFiles(EditorPlaylist& editor, modMp3Infos& lettore, const std::string& cartella,
                        const std::vector<std::string>& nomi);
/// A file of a run over many.
struct FileDaAggiungere {
  std::string Cartella;  ///< where it is
  std::string FilePath;  ///< the folder that is stored; as a rule the same
  std::string FileName;
};
/// The step of such a run: analyses a file and adds it where the player takes it.
void AggiungiSeBuono(EditorPlaylist& editor, modMp3Infos& lettore, const FileDaAggiungere& file);
/// The end of such a run: the grid shows what has come; a playlist that is full is told, and its
/// last track is the current one.
void FineInMassa(EditorPlaylist& editor, bool piena);
/// Tells that the playlist is full, with the two texts the other way round than AggiungiFile.
void DiciPienaInMassa(EditorPlaylist& editor);

/// Removes the current row, without a question.
void RimuoviFile(EditorPlaylist& editor);
/// Empties the playlist after a question.
void RimuoviTuttiFile(EditorPlaylist& editor);

/// Change places with the neighbour; the track stays the current row. Nothing at the end.
void SpostaSu(EditorPlaylist& editor);
void SpostaGiu(EditorPlaylist& editor);

/// The same with several rows of the current playlist, given by their ID in the order of the grid:
/// removed one after another, or each moved by one place, where those at the end stay there.
void RimuoviRighe(EditorPlaylist& editor, const std::vector<std::int64_t>& id);
void SpostaRighe(EditorPlaylist& editor, const std::vector<std::int64_t>& id, bool su);

/// A source of uniform reals in [0, 1).
using Caso = std::function<double()>;
/// One that begins at the clock; one whose numbers are the same on every host.
Caso CasoDallOrologio();
Caso CasoDaSeme(std::uint32_t seme);
/// Gives the playlist a new random order: Pos 1 to N. Events run between the rows. A playlist of
/// more rows than a 16-bit number has keeps its order.
void Random(EditorPlaylist& editor, const Caso& caso);

}  // namespace kvr5
