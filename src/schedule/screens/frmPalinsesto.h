#pragma once

#include <QComboBox>
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
#include "core/screens/PaneFile.h"
#include "core/screens/PannelloInfo.h"
#include "mp3/modMp3Infos.h"
#include "playerconfig/ContoBrani.h"
#include "schedule/EditorPalinsesto.h"
#include "schedule/screens/ModelloSegmenti.h"
#include "schedule/screens/ModelloSpot.h"
#include "schedule/screens/RiquadroSegmenti.h"
#include "schedule/screens/RiquadroSpot.h"
#include "schedule/screens/StrisciaSettimana.h"

namespace kvr5 {

/// The editor of the schedule of a project: files on the left, the segments of a day in the middle,
/// the selected one with its eight slots on the right. All is done in a copy of the database, which
/// a save puts in its place and everything else drops.
class frmPalinsesto : public Form {
 public:
  /// `progresso`: the window that a save shows.
  frmPalinsesto(Ambiente& ambiente, FinestraProgresso& progresso);

  /// The screen that is shown again when this one goes.
  Schermata FormSuccessivo = Schermata::Nessuna;

  QLabel* lblTipoPlayer;
  QLabel* lblProgetto;
  Coppia* picHelp;
  QWidget* picFraDay;
  QLabel* lblDay;
  QComboBox* cmbGiorno;
  StrisciaSettimana* picSettimana;
  PaneFile* fraFile;
  PannelloInfo* fraFileInfo;
  QLabel* lblFileInfo;
  Coppia *cmdPlayFileSx, *cmdStopFileSx;
  QLabel* lblAnteprimaSx;
  RiquadroSegmenti* Segmenti;
  RiquadroSpot* picDettaglio;
  Coppia *picAnnulla, *picReport, *picSave;
  QLabel *lblAnnulla, *lblReport, *lblSave;
  QLabel* lblModifiche;  ///< how many changes aren't saved
  /// One shot each, after the load: the day is shown, the columns get their room.
  QTimer tmrIniziale, tmrAggiornaLayout;
  std::unique_ptr<Anteprima> mci1 = ambiente_.Suono.Nuova();
  std::unique_ptr<Anteprima> mciPreview = ambiente_.Suono.Nuova();

  /// What the screen shows.
  const EditorPalinsesto& Editor() const { return editor_; }

 protected:
  void AlCaricamento() override;
  void AllAttivazione() override;
  void AlloScarico() override;

 private:
  void Costruisci();
  QLayout* CostruisciTestata();
  QLayout* CostruisciFascia();
  QWidget* CostruisciCorpo();
  QWidget* CostruisciSinistra(QWidget* corpo);
  QLayout* CostruisciComandi();
  void OrdinaTab();
  void Collega();
  void CollegaPane();
  void CollegaSegmenti();
  void CollegaOrario();
  void CollegaSlot();
  void CollegaAscolto();
  void Localizza();
  void RiempiGiorni();
  void AvvisaIlleggibile();

  /// Runs what a control asks for, after the checks of the fields that were left and the way to the
  /// segment that was clicked, amid the events of another as well, and shows what it changed.
  void Comando(const std::function<void()>& azione);
  /// The checks of the fields of the start time that were left.
  void ControllaLasciati();
  bool Lasciati() const { return lasciateOre_ || lasciatiMin_; }
  /// A field that has the keyboard is left, though it keeps it: something else changes the segment.
  void LasciaIlCampo();
  /// Has them run by themselves, once no button of the mouse is held: a box amid a click would
  /// swallow the rest of it.
  void ControllaPoi();
  void AggiornaVista();
  void MostraElenco();
  void MostraOrario();
  /// Leads the keyboard away from a control that is about to be hidden or disabled: by itself it
  /// might come to the button that leaves.
  void TieniFuoco();
  void MostraDettaglio();
  /// Learns about a few more of the files.
  void Conta();

  void SfogliaMp3();
  void CambiataCartella();
  /// Looks into the folder of the pane again.
  void RileggiFile();
  /// No file is picked that has been judged.
  void NienteFile();
  void ClicFile();
  void PulisciInfoMp3();
  void MostraInfoMp3();
  /// Has the picked file judged now where that is still to come.
  void GiudicaSubito();
  void AggiungiAlloSlot(int slot);
  void AggiungiFile(int slot, const std::vector<std::string>& file);
  void ScegliSegmento(std::int16_t giorno, std::int64_t segmento);
  void TogliSpot(int slot);
  void MuoviSpot(int slot, bool giu);
  void AscoltaSlot(int slot);
  void MostraAscolto();
  /// The slot of the current row of grdDettaglio; -1 for none.
  int SlotScelto() const { return picDettaglio->grdDettaglio->currentIndex().row(); }
  void MostraReport();
  void Salva();

  FinestraProgresso& progresso_;
  EditorPalinsesto editor_;
  modMp3Infos lettore_;
  ContoBrani conto_;
  ModelloSegmenti modelloSegmenti_;
  ModelloSpot modelloSpot_;
  SettimanaPalinsesto settimana_;
  CopieDegliSpot copie_;
  AvvisiPalinsesto avvisi_;
  AscoltoEditor ascolto_{C(), ambiente_.Documenti, *mci1, *mciPreview, RiquadroSpot::kPosti};
  QTimer conta_;
  QTimer tmrLasciati_;
  bool lasciateOre_ = false, lasciatiMin_ = false;
  bool elencoCambiato_ = false, dettaglioCambiato_ = false, fuocoOrario_ = false;
  bool settimanaLetta_ = false;
  bool daContare_ = false;           ///< once no run is under way
  int contate_ = -1;                 ///< the changes at the last look for warnings
  std::int64_t mostrato_ = -1;       ///< the segment that the detail shows
  std::int64_t segmentoVoluto_ = 0;  ///< clicked while a check waits
  int slotVoluto_ = -1;              ///< to be the current row of grdDettaglio
  int suonaSlot_ = -1;               ///< the slot that plays, and whose segment it is
  std::int64_t suonaSegmento_ = 0;
  bool suonaMuto_ = false;
  bool lasciata_ = false;
};

}  // namespace kvr5
