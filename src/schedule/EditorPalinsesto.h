#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "core/Contesto.h"
#include "core/TurniEditor.h"
#include "platform/db/Recordset.h"
#include "projects/CopiaDiLavoro.h"
#include "schedule/DisposizionePalinsesto.h"
#include "schedule/SlotSpot.h"

namespace kvr5 {

/// frmPalinsesto without its pixels: the working copy of scheduler.mdb, the segments of the current
/// day and the spots of the selected one.
///
/// Every change goes into tmpScheduler.mdb as it is made; scheduler.mdb itself changes by a save
/// alone. Failures are swallowed: a database that is missing or damaged shows as an empty day.
class EditorPalinsesto {
 public:
  /// Nothing is opened before Carica.
  explicit EditorPalinsesto(Contesto& contesto);

  /// The load: makes the working copy and reads the layout of the model and mode. Nothing is shown
  /// before PrimoGiorno.
  void Carica();
  /// What tmrIniziale does once: shows the day on which the editor comes up.
  void PrimoGiorno() { AggiornaElencoSegmenti(-1); }
  /// Closes the rows and the connection and deletes the working copy: what wasn't saved is gone.
  /// Harmless on a closed editor, as is every routine.
  void Chiudi();

  Contesto& C() { return contesto_; }
  /// Keeps a failure as the pending error; false for one.
  bool Record(const Error& errore) { return contesto_.Errore.Record(errore); }
  /// The working copy; null while none is there.
  CopiaDiLavoro* Copia() { return copia_ ? &*copia_ : nullptr; }
  Connection& ConnessionePalinsesto() { return copia_ ? copia_->Connessione() : chiusa_; }
  /// The segments of the current day: ID, StartTime and the names Spot1 to Spot8, by time.
  Recordset& rsSegmenti() { return segmenti_; }
  /// The spots of the selected segment, by Pos.
  Recordset& rsDettaglio() { return dettaglio_; }
  const DisposizionePalinsesto& Disposizione() const { return disposizione_; }
  /// The day being edited: 0 where the project has one schedule, else 1 (Monday) to 7.
  std::int16_t GiornoCorrente() const { return giornoCorrente_; }
  /// The ID of the selected segment; 0 or less means none.
  std::int64_t SegmentoCorrente() const { return segmentoCorrente_; }
  /// Segments of the day, spots of the segment; 0 where there is no database.
  int QuantiSegmenti() const { return segmenti_.IsOpen() ? segmenti_.RecordCount() : 0; }
  int QuantiSpot() const { return dettaglio_.IsOpen() ? dettaglio_.RecordCount() : 0; }

  /// The file chosen in filMp3 passed the checks of the information panel.
  bool FileMp3Valido = false;
  /// What stands in the fields of the start time.
  std::string txtOre, txtMin;

  /// A click on an entry of cmbGiorno, 1 (Monday) to 7. Where the list is hidden it is never
  /// obeyed: the project has the one schedule of day 0.
  void ScegliGiorno(std::int16_t giorno);
  /// The query of the day's segments: a column for the name at each of the eight places.
  std::string IstruzioneSegmenti() const;
  /// The query of a segment's spots.
  std::string IstruzioneSpot(std::int64_t segmento) const;
  /// Reads the day anew and goes to a segment, or with -1 to the first.
  void AggiornaElencoSegmenti(std::int64_t daSelezionare);
  /// Goes to a segment of the day; false where it has none of this ID, and then it stays.
  bool VaiAlSegmento(std::int64_t id);
  /// What follows when rsSegmenti has come to another row: its spots and its time are shown.
  void RigaCambiata();
  /// Makes a segment that was just added the selected one.
  void SelezionaNuovo(std::int64_t id);

  /// The slots as they are now.
  const SlotSpot& Slot() const { return slot_; }
  void AggiornaSlotSpot();
  const std::string& lblVociInElenco() const { return conto_; }

  /// Called when the list of segments, or the segment's spots and slots, are to be shown afresh;
  /// and when the keyboard is to go to the start time.
  std::function<void()> SuElenco;
  std::function<void()> SuDettaglio;
  std::function<void()> SuFuocoOrario;
  /// Called when the fields of the time are to be shown, and all that has changed, at once: a box
  /// follows.
  std::function<void()> SuOrario;
  std::function<void()> SuMostra;

  /// How many changes were made since the load, as a person counts them.
  int Modifiche() const { return modifiche_; }
  void Modificato() { ++modifiche_; }

  /// Who may act on it, amid the events of its long routines.
  TurniEditor Turni;

 private:
  bool Trova(std::int64_t id);
  void MostraOrario();
  void AggiornaVociInElenco();

  Contesto& contesto_;
  Connection chiusa_;  ///< what there is without a working copy
  std::optional<CopiaDiLavoro> copia_;
  Recordset segmenti_;
  Recordset dettaglio_;
  DisposizionePalinsesto disposizione_;
  std::int16_t giornoCorrente_ = 0;
  std::int64_t segmentoCorrente_ = 0;
  SlotSpot slot_;
  std::string conto_;
  int modifiche_ = 0;
};

/// A notice of frmSiNo with its only button, by the keys of its caption and its text.
void DiciPalinsesto(Contesto& contesto, const std::string& titolo, const std::string& testo);

}  // namespace kvr5
