#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QPointer>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "core/Lingua.h"
#include "schedule/screens/frmPalinsesto.h"
#include "support/ProgressoVisto.h"
#include "support/screens/BancoSchermi.h"
#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"
#include "support/screens/Scelte.h"

class QUrl;

namespace kvr5::test {

/// The editor of the schedule of a project named Hall, whose pane of files stands in the folder
/// "music".
class BancoPalinsestoSchermo : public testing::Test {
 protected:
  using Righe = std::vector<std::string>;

  explicit BancoPalinsestoSchermo(Boxes boxes = Boxes::Finti);
  ~BancoPalinsestoSchermo() override { Dimentica(); }

  /// Makes the project; its scheduler.mdb is empty.
  void Progetto(std::int16_t playerType, std::int16_t playerMode);
  /// A segment of scheduler.mdb, before the editor is opened; its ID. `ora` is "08.30", or "" for
  /// Null.
  std::int64_t Segmento(int giorno, const std::string& ora);
  /// A segment with these spots, whose files are made in "music"; its ID.
  std::int64_t Segmento(int giorno, const std::string& ora,
                        std::initializer_list<const char*> nomi);
  /// A spot of scheduler.mdb; its file is made in "music".
  void Spot(int giorno, std::int64_t segmento, int pos, const std::string& nome);
  /// Segments "00.00", "00.01" ... of scheduler.mdb.
  void MoltiSegmenti(int giorno, int quanti);
  /// Spots "x.mp3" of scheduler.mdb, Pos 1 to `quanti`, without a file each.
  void MoltiSpot(int giorno, std::int64_t segmento, int quanti);
  /// Good files in "music".
  void Musica(std::initializer_list<const char*> nomi) const;
  /// What no player takes, in "music".
  void Guasta(const std::string& nome) const {
    b.Cartella.Write("music/" + nome, std::string(3000, 'x'));
  }
  std::string Music() const { return b.Percorso("music") + "\\"; }
  std::string Host(const std::string& nome) const {
    return (b.Cartella.Host() / "music" / nome).string();
  }
  std::string Leggi(const std::string& nome) const {
    return b.Cartella.Read("program/Projects/Hall/" + nome);
  }
  bool Ha(const std::string& nome) const {
    return b.Cartella.Exists("program/Projects/Hall/" + nome);
  }
  void Togli(const std::string& nome) const {
    std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall" / nome);
  }
  std::string UltimaCartella();
  std::string Parola(const std::string& chiave) { return TestoLingua(b.C, chiave); }

  /// Opens the editor for the hub and waits until it shows its first day.
  void Apri();
  /// Drops the editor as it is.
  void Dimentica() { delete form; }
  bool Chiuso() const { return !form || form->Scaricata(); }
  bool SiChiude();
  /// What happens when another window was in front.
  void Attiva();

  template <class T>
  T& Trova(const char* nome) {
    return Controllo<T>(*form, nome);
  }
  /// An element of a control array.
  QWidget& Elemento(const char* nome, int indice) {
    return Controllo(*form, (std::string(nome) + "_" + std::to_string(indice)).c_str());
  }
  void Clic(const char* nome) { Clicca(*form, nome); }
  void Clic(const char* nome, int indice) { Clicca(Elemento(nome, indice)); }
  /// The arrow of a slot.
  void ClicFreccia(int slot, bool giu);
  std::string Testo(const char* etichetta) { return Scritta(*form, etichetta); }
  bool SiVede(const char* nome) { return Trova<QWidget>(nome).isVisible(); }
  void Premi(Qt::Key tasto, Qt::KeyboardModifiers modi = Qt::NoModifier) {
    Tasto(*form, tasto, modi);
  }
  QWidget* Fuoco() const { return form->focusWidget(); }

  ElencoFile& Pane() const { return *form->fraFile->filMp3; }
  GrigliaSegmenti& Grid() const { return *form->Segmenti->grdSegmenti; }
  TabellaEditor& Spots() const { return *form->picDettaglio->grdDettaglio; }
  QComboBox& Giorni() const { return *form->cmbGiorno; }
  CampoOra& Ore() const { return *form->picDettaglio->txtOre; }
  CampoOra& Min() const { return *form->picDettaglio->txtMin; }

  /// The place of a file's name in the pane, to be clicked.
  QPoint PostoFile(const std::string& nome) const;
  void ClicFile(const std::string& nome, Qt::KeyboardModifiers modi = Qt::NoModifier) const;
  void DoppioFile(const std::string& nome) const;
  /// Clicks a file and waits for what the panel says of it.
  void Analizza(const std::string& nome);
  bool Attesa();

  /// The segments of the grid, "08:30 a.mp3 b.mp3".
  Righe Griglia() const;
  QString Cella(int riga, int colonna, int ruolo = Qt::DisplayRole) const;
  void ClicSegmento(int riga, Qt::MouseButton tasto = Qt::LeftButton) const;
  /// The row of the segment that is selected, from 0; -1 for none. Current row, selection and
  /// segment of the editor are to agree.
  int Scelto() const;
  /// The names of the detail.
  Righe Dettaglio() const;
  void ClicSpot(int riga) const;
  /// What a slot shows, a letter each: Play, Stop, Add, Remove, Up and Down; "u" and "d" for arrows
  /// that are covered.
  std::string Slot(int slot);
  /// All slots with anything to be seen.
  Righe SlotTutti();
  /// What stands in the two fields of the time, "08:30".
  std::string Orario() const;
  /// The current day in the editor.
  int Giorno() const { return form->Editor().GiornoCorrente(); }
  int Modifiche();
  std::string Esito() { return SiVede("lblEsito") ? Testo("lblEsito") : ""; }
  std::string Avvisi() { return SiVede("lblAvvisi") ? Testo("lblAvvisi") : ""; }

  /// Types into a field in the place of what it holds, after a click where it has no focus yet.
  void Digita(CampoOra& campo, const char* tasti);
  /// Types a time and leaves its fields by Enter.
  void DigitaOrario(const char* ore, const char* minuti);
  /// Waits until the times of the list are these, in order.
  bool Orari(const Righe& attesi) const;

  /// All segments of a database, "day 08:30", by ID; all spots, "day/segment/Pos name".
  Righe Teste(const char* database = "tmpScheduler.mdb");
  Righe Tutti(const char* database = "tmpScheduler.mdb");
  Righe Colonna(const char* colonna, const char* database = "scheduler.mdb");

  /// Takes the next box, which is to be a notice of one button with these texts.
  void Avviso(const std::string& titolo, const std::string& testo);

  /// Drops these host paths or addresses at a place of a widget, by way of the window.
  void Lascia(QWidget& dove, const QList<QUrl>& file);
  void Lascia(QWidget& dove, std::initializer_list<std::string> file);
  void LasciaSulloSlot(int slot, std::initializer_list<std::string> file) {
    Lascia(Elemento("lblPos", slot), file);
  }

  BancoSchermi b;
  ProgressoVisto progresso{b.C};
  QPointer<frmPalinsesto> form;

 private:
  void Esegui(const std::string& statement);
};

/// Picks an entry of a list with the mouse.
void ScegliColMouse(QComboBox& elenco, int voce);
/// A click at a place of a widget, given to its window.
void CliccaA(QWidget& controllo, QPoint dove, Qt::MouseButton tasto = Qt::LeftButton,
             Qt::KeyboardModifiers modi = Qt::NoModifier);

}  // namespace kvr5::test
