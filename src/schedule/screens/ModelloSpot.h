#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "playerconfig/ContoBrani.h"
#include "schedule/AvvisiPalinsesto.h"
#include "schedule/RighePalinsesto.h"

namespace kvr5 {

/// The rows of grdDettaglio as they are shown: the spots of a segment, each with its length.
class ModelloSpot : public QAbstractTableModel {
 public:
  enum Colonna { Nome, Durata, Colonne };

  /// `conto` tells what the disk has of a spot.
  ModelloSpot(Contesto& contesto, const ContoBrani& conto, QObject* padre);

  void Imposta(std::vector<RigaSpot> righe);
  const std::vector<RigaSpot>& Righe() const { return righe_; }
  /// Shows what was learnt of the files.
  void FattiCambiati();
  /// Marks the spots that a recording would do wrong by.
  void ImpostaAvvisi(AvvisiPalinsesto avvisi);
  /// What stands for the length of a file that is missing.
  const QString& Mancante() const { return mancante_; }
  /// Takes its words from the language file.
  void Localizza();

  int rowCount(const QModelIndex& padre = {}) const override;
  int columnCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo) const override;

 private:
  QString Testo(const RigaSpot& riga, int colonna) const;
  QString Suggerisce(const RigaSpot& riga) const;
  QVariant Segno(const RigaSpot& riga) const;
  bool Manca(const RigaSpot& riga) const;
  bool Avvisa(const RigaSpot& riga) const;

  Contesto& contesto_;
  const ContoBrani& conto_;
  AvvisiPalinsesto avvisi_;
  std::vector<RigaSpot> righe_;
  QString mancante_, eraQui_;
};

}  // namespace kvr5
