#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/FileSystem.h"

namespace kvr5 {

/// The application state: one set for the whole process, read and written by every screen and
/// routine. It has no owner among the screens; it lives from the start to the end of the program.
struct StatoApplicazione {
  /// Model name of the current project: NomeModello(PlayerType).
  std::string PlayerName;
  /// Name of the current project; empty at descriptor time means the folder's last component.
  std::string ProjectName;
  /// Full path of the project's folder, as a rule without a closing backslash.
  std::string CartellaProgetto;
  /// Model: 1 Veskadro, 2 Zub, 3 Ostrel, 4 KVR5; 0 means no project.
  std::int16_t PlayerType = 0;
  /// Sub-configuration of model 2, 0 otherwise; 3 and more have no inputs.
  std::int16_t PlayerConfig = 0;
  /// The configuration in words, such as "KVR5 (Inputs)".
  std::string PlayerConfigDesc;
  /// How models 3 and 4 are driven: 1 inputs, 2 (model 3 also 3) schedule, 4 and more playlists.
  std::int16_t PlayerMode = 0;
  /// 1 when the analyser option is on, else 0.
  std::int16_t Analyzer = 0;
  /// The folder that holds all projects (ProjectsDir).
  std::string CartellaProgetti;
  /// Previews start the host's default player.
  bool UsaPlayerEsterno = false;
  /// The user cancelled a copy or a progress window; callers clear it before a copy.
  bool AnnullatoDaUtente = false;
  /// The card dialog was left by its cancel button.
  bool SelezioneFlashAnnullata = false;
  /// A save copies the MP3 files of the inputs into the project too.
  bool SalvaMp3Ingressi = false;
  /// Last answer of frmSiNo: 0 none yet, 1 yes, 2 no.
  std::uint8_t RispostaSiNo = 0;
  /// Name given in frmPlaylistName.
  std::string NomePlaylistScelta;
  /// Root of the chosen card with a closing backslash; empty when none. Never stored.
  std::string PercorsoMemoryCard;
  /// Mirrors the descriptor's Use485 for model 4.
  bool Usa485 = false;
  /// Main has run once: later runs don't obey the command line.
  bool MainGiaAvviato = false;
  /// Full path of the language file.
  std::string FileLingua;
  /// The user's default locale identifier.
  std::uint32_t LinguaUtente = 0;
  /// Gates the failure lines of the settings store; never becomes true, on purpose.
  bool DebugAbilitato = false;
  /// The report being written: its full path, its open file (shared, so that the state can be
  /// copied), and whether one is open.
  std::string FileReport;
  std::shared_ptr<File> CanaleReport;
  bool ReportAperto = false;
  /// Every line of it has got into its file; stays after the close.
  bool ReportIntero = false;
};

}  // namespace kvr5
