#pragma once

#include <QAbstractTableModel>

#include "projects/RigheProgetti.h"

namespace kvr5 {

/// The rows of lstProgetti: name, player, last change. What lies in a project's files is read when
/// its row comes into sight.
class ListaProgetti : public QAbstractTableModel {
 public:
  enum Colonna { Nome, Player, Modifica, Colonne };

  explicit ListaProgetti(Contesto& contesto) : righe_(contesto), contesto_(contesto) {}

  void Carica();
  RigheProgetti& Righe() { return righe_; }

  int rowCount(const QModelIndex& padre = {}) const override;
  int columnCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo) const override;
  QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

 private:
  mutable RigheProgetti righe_;
  Contesto& contesto_;
};

}  // namespace kvr5
