#pragma once

#include <QLabel>
#include <QLineEdit>

#include "core/screens/Avvisi.h"
#include "core/screens/Coppia.h"
#include "core/screens/Form.h"

namespace kvr5 {

/// Asks for the name of a playlist, which becomes that of a file; the answer is NomePlaylistScelta,
/// "" for none.
class frmPlaylistName : public Form {
 public:
  explicit frmPlaylistName(Ambiente& ambiente);

  QLabel* lblNomePlaylist;
  QLineEdit* txtNomePlaylist;
  QLabel* lblCaratteriDisponibili;
  EtichettaAvviso* lblWarn;
  EtichettaAvviso* lblNota;  ///< a name that can be taken and can't be a file's
  Coppia *picOk, *picCancel, *picHelp;
  QLabel *lblOk, *lblCanc;

 protected:
  void AlCaricamento() override;
  bool PuoChiudere(Causa causa) override;

 private:
  void Costruisci();
  void Collega();
  void CambiaNome();
  void Conferma();
  void Annulla();

  QString prefisso_;
  QString avviso_;
};

}  // namespace kvr5
