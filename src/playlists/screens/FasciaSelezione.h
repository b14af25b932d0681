#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <array>
#include <functional>

#include "core/screens/Coppia.h"
#include "core/screens/Lampada.h"
#include "playlists/EditorPlaylist.h"

namespace kvr5 {

/// The band above the panes, which says whose tracks are edited: the selector, the inputs that
/// choose the same in another way, and the named lists. It closes where the mode has one list.
class FasciaSelezione : public QWidget {
 public:
  FasciaSelezione(Contesto& contesto, QWidget* padre);

  QWidget* picfraSelezionePlaylist;
  QLabel* lblSelectPlaylist;
  QComboBox* cmbPlaylist;
  QWidget* picFraIngresso;
  QLabel* lblIngressi;
  std::array<QCheckBox*, 3> chkIn;
  std::array<Lampada*, 3> shaIn;
  std::array<QLabel*, 3> lblPlaylistNumber;
  QWidget* picfraAddRemovePL;
  QLabel* lblAddRemovePlaylist;
  Coppia *picAggiungiPL, *picRimuoviPL;
  QLabel *lblAggiungi, *lblRimuovi;

  /// Which of its groups the model and mode have.
  void Disponi(const DisposizionePlaylist& disposizione);
  /// Shows what is selected; calls nobody.
  void Mostra(const EditorPlaylist& editor);
  void Localizza();

  /// Called for a click on an entry, the same one too, and on a box: input and new state.
  std::function<void(int)> SuVoce;
  std::function<void(int, bool)> SuIngresso;

 private:
  QWidget* CostruisciIngressi();

  Contesto& contesto_;
  std::vector<VocePlaylist> voci_;  ///< as cmbPlaylist has them
};

}  // namespace kvr5
