#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "playlists/EditorPlaylist.h"

namespace kvr5 {

/// The named playlists of mode 9: rows of HEAD, whose NScheduler is the number of the list and
/// Descript its name. The name becomes that of a file.

/// As many characters as a name takes.
inline constexpr std::size_t kCaratteriNomePlaylist = 8;
/// What no name may hold. The asterisk is not among them.
inline constexpr std::string_view kVietatiNomePlaylist = "\\/:?\"<>|";

/// Why a name can't be taken, in the user's language: a blank one, one with a forbidden character,
/// one that is longer than the box takes; "" for one that can.
std::string DifettoNomePlaylist(Contesto& contesto, std::string_view nome);

/// Fills cmbPlaylist with the names, by name, and selects the first.
void CaricaNomiPlaylist(EditorPlaylist& editor);

/// The number of a name, the first of several; -1 where there is none, for a blank one, and for one
/// with an apostrophe, which goes into the statement as it is.
std::int32_t CercaPlaylistPerNome(EditorPlaylist& editor, const std::string& nome);

/// The number for a new list: one above the highest, 1 where there is none.
std::int32_t ProssimoNScheduler(EditorPlaylist& editor);

/// Adds a name with its number.
void AggiungiTestata(EditorPlaylist& editor, const std::string& nome, std::int32_t numero);

/// Deletes the tracks and the name of a list.
void EliminaPlaylist(EditorPlaylist& editor, std::int32_t numero);

/// How many numbers have tracks.
int ContaPlaylist(EditorPlaylist& editor);

/// picAggiungiPL. `chiedi` shows the dialog, which puts a name into NomePlaylistScelta, or "" when
/// it is cancelled. A name that is taken is told and asked for once more; the second one isn't
/// looked up and may stand there twice.
void AggiungiPlaylist(EditorPlaylist& editor, const std::function<void()>& chiedi);

/// picRimuoviPL: asks, and deletes the list of PlaylistCorrente, which is not always the one whose
/// name is shown.
void RimuoviPlaylist(EditorPlaylist& editor);

}  // namespace kvr5
