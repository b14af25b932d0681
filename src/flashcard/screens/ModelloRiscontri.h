#pragma once

#include <QAbstractTableModel>
#include <QHash>
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
  QString ParoleDi(Difetto tipo) const;
  QString RimedioDi(const Riscontro& riga) const;

  Contesto& contesto_;
  std::vector<Riscontro> righe_;
  std::set<std::string> mancanti_;  ///< their names, without regard to case
  QStringList titoli_;
  // Words that were read once: a list of thousands asks for the same again and again.
  mutable QHash<int, QString> difetti_, rimedi_;
  mutable QHash<QString, QString> propri_;  ///< remedies that name a file of the project
};

}  // namespace kvr5
