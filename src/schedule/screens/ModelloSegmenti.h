#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "playerconfig/ContoBrani.h"
#include "schedule/AvvisiPalinsesto.h"
#include "schedule/RighePalinsesto.h"

namespace kvr5 {

/// The rows of grdSegmenti as they are shown: start, what is in the segment, and the names of its
/// eight places.
class ModelloSegmenti : public QAbstractTableModel {
 public:
  enum Colonna { Inizio, Contenuto, Spot1, Colonne = Spot1 + SlotSpot::kPosti };

  /// `conto` tells what the disk has of a spot.
  ModelloSegmenti(Contesto& contesto, const ContoBrani& conto, QObject* padre);

  void Imposta(std::vector<RigaSegmento> righe);
  const std::vector<RigaSegmento>& Righe() const { return righe_; }
  /// The segment of an ID; null for none.
  const RigaSegmento* Riga(std::int64_t id) const;
  /// Shows what was learnt of the files.
  void FattiCambiati();
  /// Marks the segments with spots that a recording would do wrong by.
  void ImpostaAvvisi(AvvisiPalinsesto avvisi);
  /// What a segment holds: "3 spots, 2:14", the time once all its files were looked at; or "3
  /// spots, 1 missing".
  QString Contiene(const RigaSegmento& riga) const;
  /// Takes its words from the language file.
  void Localizza();

  int rowCount(const QModelIndex& padre = {}) const override;
  int columnCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo) const override;
  QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

 private:
  QString Testo(const RigaSegmento& riga, int colonna) const;
  QString Riassunto(const RigaSegmento& riga) const;
  /// "2:14"; "" until all files were looked at, and for none.
  std::string Durata(const RigaSegmento& riga) const;
  QString Suggerisce(const RigaSegmento& riga) const;
  QVariant Colore(const RigaSegmento& riga, int colonna) const;
  /// Whether something of it wants to be looked at.
  bool Avvisa(const RigaSegmento& riga) const;
  std::size_t Mancanti(const RigaSegmento& riga) const;

  Contesto& contesto_;
  const ContoBrani& conto_;
  AvvisiPalinsesto avvisi_;
  std::vector<RigaSegmento> righe_;
  QStringList titoli_;
  QString senzaSpot_, stessaOra_;
};

/// What a segment holds, in words: "3 spots", "no spots".
std::string ParoleSpot(Contesto& contesto, std::size_t quanti);

}  // namespace kvr5
