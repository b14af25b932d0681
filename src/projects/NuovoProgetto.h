#pragma once

#include <string>
#include <string_view>

#include "core/Contesto.h"

namespace kvr5 {

/// What came of an attempt to make a project.
enum class EsitoNuovo {
  Creato,
  CarattereVietato,   ///< nothing is said: the note on the screen names the characters
  NomeVuoto,          ///< told by a box
  CartellaEsistente,  ///< told by a box; ProjectName and CartellaProgetto hold the refused name
  CartellaNonCreata,  ///< told by a box; the same
  SoloNome,           ///< the name is good and stands in the state; nothing was made
};

/// The eight forbidden characters of a project's name. The asterisk is not among them.
inline constexpr std::string_view kCaratteriVietati = "\\/:?\"<>|";

/// The note about them: "0030002", `separatore`, and the characters as the screens show them.
std::string NotaCaratteriVietati(Contesto& contesto, std::string_view separatore);

/// The words of the three kinds of project as the wizard shows them.
struct ScritteWizard {
  std::string Ingressi;          ///< caption of optPanel(1)
  std::string Palinsesto;        ///< caption of optPanel(2)
  std::string Playlist;          ///< caption of optPanel(21)
  std::string VariantePlaylist;  ///< text of the selected item of cmbPlaylist
};

/// Text of the item of cmbPlaylist for mode 5, 6 or 7.
std::string TestoVariantePlaylist(Contesto& contesto, std::int16_t playerMode);
/// The captions in the current language, the item being that of `playerMode`.
ScritteWizard ScritteDelWizard(Contesto& contesto, std::int16_t playerMode);

/// PlayerConfigDesc of a new project of model 4: "KVR5 (Inputs)", "KVR5 (Playlist ...)".
std::string DescrizioneKvr5(std::int16_t playerMode, const ScritteWizard& scritte);

/// Why no folder of a name can be made and read back.
enum class DifettoNome {
  Nessuno,
  Carattere,  ///< one that no file or folder has, such as the asterisk
  Fine,       ///< a blank or a dot at its end
  Riservato,  ///< a device's name
  Lettera,    ///< one that the descriptor's code page lacks
  Lungo,      ///< more characters than the descriptor keeps
};

/// What is wrong with a name that isn't blank, if anything. A long one is made and comes back cut;
/// of the rest PreparaCartella tells the number alone.
DifettoNome DifettoDelNome(const Contesto& contesto, std::string_view nome);

/// The checks of a name and the making of the folder, the same for the wizard and for the name
/// dialog; with `soloNome` it ends before the folder is made and
/// leaves the pointer alone.
EsitoNuovo PreparaCartella(Contesto& contesto, const std::string& nome, bool soloNome);

/// Fills the folder of a new project of the model in PlayerType: the descriptor, the picture,
/// Config.txt from its template, the databases from source.mdb. A template or database that can't
/// be copied is told by a box and ends the program; the folder stays as far as it came.
void RiempiCartella(Contesto& contesto);

/// The wizard's button: a project of model 4 with the name as typed, untrimmed, and the mode
/// (1, 2, 5, 6 or 7).
EsitoNuovo CreaProgettoKvr5(Contesto& contesto, const std::string& nome, std::int16_t playerMode,
                            const ScritteWizard& scritte);

}  // namespace kvr5
