#pragma once

#include "core/Contesto.h"
#include "core/screens/TabellaEditor.h"
#include "schedule/screens/ModelloSegmenti.h"

namespace kvr5 {

/// grdSegmenti: the segments of a day. What doesn't fit beside the start and the contents, the
/// names of the eight places, comes by scrolling.
class GrigliaSegmenti : public TabellaEditor {
 public:
  GrigliaSegmenti(Contesto& contesto, ModelloSegmenti& modello, QWidget* padre);

  /// Gives the columns the room that their words need, and no column a part of its room: what
  /// tmrAggiornaLayout does once, and each change of size.
  void AggiornaLayout();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// Names of places are nothing to scroll to while there is no segment.
  void NascondiPosti();

  Contesto& contesto_;
};

}  // namespace kvr5
