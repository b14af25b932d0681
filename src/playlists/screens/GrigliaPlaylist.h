#pragma once

#include <QTableView>
#include <cstdint>
#include <functional>
#include <vector>

#include "playlists/screens/ModelloBrani.h"

namespace kvr5 {

/// grdPlaylist: the current playlist, of which several rows may be selected.
class GrigliaPlaylist : public QTableView {
 public:
  GrigliaPlaylist(ModelloBrani& modello, QWidget* padre);

  /// The selected rows from the top; the current one where none is.
  std::vector<std::int64_t> Scelti() const;
  /// Selects these rows and makes one of them current, in view; calls nobody.
  void Seleziona(const std::vector<std::int64_t>& id, std::int64_t corrente);
  /// Gives the columns the room that their words need.
  void Misura();
  /// What an empty list says.
  void ImpostaVuota(const QString& testo);

  /// Called when the user comes to another row, with its ID.
  std::function<void(std::int64_t)> SuRiga;
  /// Called for Del, Alt+Up, Alt+Down and Space.
  std::function<void()> SuRimuovi, SuSposta, SuSpostaGiu, SuAscolta;
  QSize sizeHint() const override { return {320, 200}; }

 protected:
  void currentChanged(const QModelIndex& ora, const QModelIndex& prima) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  const std::function<void()>* Azione(const QKeyEvent& event) const;

  ModelloBrani& modello_;
  QString vuota_;
  bool muta_ = false;
};

}  // namespace kvr5
