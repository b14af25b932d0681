#pragma once

#include <QLabel>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/AscoltoEditor.h"
#include "core/FinestraProgresso.h"
#include "core/Schermata.h"
#include "core/screens/Coppia.h"
#include "core/screens/Form.h"
#include "core/screens/FormPredefinita.h"
#include "core/screens/PaneFile.h"
#include "core/screens/PannelloInfo.h"
#include "mp3/modMp3Infos.h"
#include "playerconfig/ContoBrani.h"
#include "playlists/CopieDeiBrani.h"
#include "playlists/EditorPlaylist.h"
#include "playlists/screens/FasciaSelezione.h"
#include "playlists/screens/ModelloBrani.h"
#include "playlists/screens/RiquadroBrani.h"
#include "playlists/screens/frmPlaylistName.h"

namespace kvr5 {

/// The editor of the playlists of a project: files on the left, the current list on the right. All
/// is done in a copy of the database, which a save puts in its place and everything else drops.
class frmPlaylistEditor : public Form {
 public:
  /// `progresso`: the window that a save shows.
  frmPlaylistEditor(Ambiente& ambiente, FinestraProgresso& progresso);

  /// The screen that is shown again when this one goes.
  Schermata FormSuccessivo = Schermata::Nessuna;

  QLabel* lblTipoPlayer;
  QLabel* lblProgetto;
  Coppia* picHelp;
  FasciaSelezione* Fascia;
  PaneFile* fraFile;
  PannelloInfo* fraFileInfo;
  QLabel* lblFileInfo;
  Coppia *cmdPlayFileSx, *cmdStopFileSx;
  QLabel* lblAnteprimaSx;
  Coppia *cmdAggiungiFile, *cmdAggiungiTuttiFiles, *cmdRimuoviFile, *cmdRimuoviTuttiFile;
  RiquadroBrani* Brani;
  Coppia *picAnnulla, *picImporta, *picReport, *picSave;
  QLabel *lblAnnulla, *lblImporta, *lblReport, *lblSave;
  QLabel* lblModifiche;  ///< how many changes aren't saved
  std::unique_ptr<Anteprima> mci1 = ambiente_.Suono.Nuova();
  std::unique_ptr<Anteprima> mciPreview = ambiente_.Suono.Nuova();

  /// What the screen shows.
  const EditorPlaylist& Editor() const { return editor_; }

 protected:
  void AlCaricamento() override;
  void AllAttivazione() override;
  void AlloScarico() override;

 private:
  using Id = std::vector<std::int64_t>;

  void Costruisci();
  QLayout* CostruisciTestata();
  QWidget* CostruisciCorpo();
  QWidget* CostruisciSinistra(QWidget* corpo);
  QWidget* CostruisciFrecce(QWidget* corpo);
  QLayout* CostruisciComandi();
  void Collega();
  void CollegaPane();
  void CollegaBrani();
  void CollegaAscolto();
  void Localizza();

  /// Runs what a control asks for, amid the events of another as well, and shows what it changed.
  void Comando(const std::function<void()>& azione);
  void AggiornaVista();
  void MostraRighe();
  /// Learns about a few more of the files.
  void Conta();
  void CominciaConto();

  void SfogliaMp3();
  void CambiataCartella();
  /// Looks into the folder of the pane again.
  void RileggiFile();
  /// No file is picked that has been judged.
  void NienteFile();
  void ClicFile();
  void PulisciInfoMp3();
  void MostraInfoMp3();
  void AggiungiFile();
  void DoppioFile();
  void AggiungiTutti();
  void AggiungiTrascinati(const std::vector<std::string>& file);
  void Importa();
  void Rimuovi();
  void Sposta(bool su);
  void Mescola();
  void AscoltaRiga();
  void MostraReport();
  void Salva();

  FinestraProgresso& progresso_;
  EditorPlaylist editor_;
  modMp3Infos lettore_;
  ContoBrani conto_;
  CopieDeiBrani copie_;
  ModelloBrani modello_;
  AscoltoEditor ascolto_{C(), ambiente_.Documenti, *mci1, *mciPreview};
  FormPredefinita<frmPlaylistName> nome_{[this] { return new frmPlaylistName(ambiente_); }};
  QTimer conta_;
  bool grigliaCambiata_ = false;
  int contate_ = -1;            ///< the changes at the last look for names of several files
  bool daContare_ = false;      ///< once no run is under way
  std::int32_t mostrata_ = -1;  ///< whose rows the grid shows
  bool rigaSuona_ = false;
  std::int64_t ascoltata_ = -1;  ///< the row that was to be played last
  std::int64_t suona_ = -1;      ///< the one that plays
  Id scelti_;                    ///< the rows to select when they are shown anew
  int posto_ = -1;               ///< else the one at this place, from 0
  bool lasciata_ = false;
};

}  // namespace kvr5
