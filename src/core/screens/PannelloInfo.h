#pragma once

#include <QLabel>
#include <QTimer>

#include "core/screens/Riquadro.h"

namespace kvr5 {

/// The panel of three screens that tells of the MP3 file picked in the file pane: figures or the
/// warning that the player can't take it. All of its labels keep their places, so that nothing
/// jumps while the user goes through a list.
class PannelloInfo : public Riquadro {
 public:
  /// `tagAvviso`: the number of lblBadFileType among the form's texts. `millisecondi`: of the
  /// timer.
  /// `colonne`: how many figures stand side by side, 1 or 2.
  PannelloInfo(const QString& titolo, int tag, int tagAvviso, int millisecondi, QWidget* padre,
               int colonne = 1);

  QLabel* lblVersioneMpeg;
  QLabel* lblBitrate;
  QLabel* lblFreq;
  QLabel* lblDurata;
  QLabel* lblBadFileType;
  /// One shot; what it does is the screen's affair.
  QTimer tmrInfoMp3;

  void Mostra(const QString& versione, const QString& bitrate, const QString& frequenza,
              const QString& durata);
  /// The warning, with the reason as its tool tip.
  void MostraAvviso(bool visibile, const QString& motivo);
};

}  // namespace kvr5
