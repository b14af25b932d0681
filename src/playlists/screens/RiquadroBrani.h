#pragma once

#include <QLabel>
#include <QPointer>
#include <QStackedLayout>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "core/screens/Avvisi.h"
#include "core/screens/Coppia.h"
#include "core/screens/Riquadro.h"
#include "playlists/screens/GrigliaPlaylist.h"

namespace kvr5 {

/// The right half of the editor of playlists: the current list, its figures, and what is done with
/// its rows. Files that are dropped on it are handed on.
class RiquadroBrani : public Riquadro {
 public:
  RiquadroBrani(Contesto& contesto, ModelloBrani& modello, QWidget* padre);

  QLabel* lblPlaylistFiles;
  QLabel* lblTotali;  ///< time, megabytes and what is missing
  GrigliaPlaylist* grdPlaylist;
  QLabel* lblAttendere;  ///< lies where the grid is, while that is hidden
  QTimer tmrAttendere;
  EtichettaAvviso* lblCopie;  ///< copies with names of the card
  Coppia* picNomiCopie;       ///< gives them their own names
  EtichettaAvviso* lblDoppi;  ///< names that different files have
  EtichettaAvviso* lblEsito;  ///< files that were not taken
  Coppia *cmdPlayMp3, *cmdStopMp3, *cmdSpostaSu, *cmdSpostaGiu, *cmdRandom;
  QLabel *lblAnteprima, *lblRandom;

  /// Hides the grid behind the wait display, or shows it again.
  void Attesa(bool attende);
  /// Says what was not taken, and which name different files have; "" takes that away.
  void MostraEsito(const QString& testo) { Avvisa(*lblEsito, testo); }
  void MostraDoppi(const QString& testo) { Avvisa(*lblDoppi, testo); }
  /// What to do about copies with names of the card; "" where there are none.
  void MostraCopie(const QString& testo);
  void Localizza();

  /// Called with the files that were dropped, in the host's form.
  std::function<void(std::vector<std::string>)> SuFile;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void CostruisciAvvisi();
  static void Avvisa(QLabel& riga, const QString& testo);
  void Lampeggia();
  void Sopra(bool sopra);

  Contesto& contesto_;
  QStackedLayout* pila_;
  QWidget* attesa_;             ///< what holds lblAttendere
  std::uint32_t coloreAttesa_;  ///< of lblAttendere: blue-green-red value
  QPointer<QWidget> ripiego_;   ///< what got the keyboard when the grid was hidden
  bool sopra_ = false;          ///< files are being dragged over it
};

}  // namespace kvr5
