#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <set>
#include <string>
#include <vector>

#include "core/Contesto.h"
#include "flashcard/Verifica.h"

namespace kvr5 {

/// The findings of a verification, a row each: what is wrong, with which file, what to do.
class ModelloRiscontri : public QAbstractTableModel {
 public:
  enum Colonna { Che, File, Rimedio, Colonne };

  explicit ModelloRiscontri(Contesto& contesto, QObject* padre = nullptr)
      : QAbstractTableModel(padre), contesto_(contesto) {}

  void Localizza();
  void Svuota();
  void Aggiungi(const Riscontro& riscontro);

  int rowCount(const QModelIndex& padre = {}) const override;
  int columnCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo) const override;
  QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

 private:
  bool SiSa(const Riscontro& riscontro) const;

  Contesto& contesto_;
  std::vector<Riscontro> righe_;
  std::set<std::string> mancanti_;  ///< their names, without regard to case
  QStringList titoli_;
};

}  // namespace kvr5
