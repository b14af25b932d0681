#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <vector>

#include "playerconfig/ContoBrani.h"
#include "playlists/NomiDoppi.h"
#include "playlists/RighePlaylist.h"

namespace kvr5 {

/// The rows of grdPlaylist as they are shown: place, name, length and size, and what is missing.
class ModelloBrani : public QAbstractTableModel {
 public:
  enum Colonna { Posto, Nome, Durata, Grandezza, Colonne };

  /// `conto` tells what the disk has of a track.
  ModelloBrani(Contesto& contesto, const ContoBrani& conto, QObject* padre);

  void Imposta(std::vector<RigaPlaylist> righe);
  const std::vector<RigaPlaylist>& Righe() const { return righe_; }
  /// The row of an ID; -1 for none.
  int RigaDi(std::int64_t id) const;
  /// Shows what was learnt of the files.
  void FattiCambiati();
  /// Marks the rows whose name another file has.
  void ImpostaDoppi(NomiDoppi doppi);
  /// What stands for the length of a file that is missing.
  const QString& Mancante() const { return mancante_; }
  /// Takes its words from the language file.
  void Localizza();

  int rowCount(const QModelIndex& padre = {}) const override;
  int columnCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo) const override;
  QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

 private:
  QString Testo(const RigaPlaylist& riga, int colonna) const;
  QString Suggerisce(const RigaPlaylist& riga, bool manca) const;
  QVariant Segno(bool manca, bool doppio) const;

  Contesto& contesto_;
  const ContoBrani& conto_;
  NomiDoppi doppi_;
  std::vector<RigaPlaylist> righe_;
  QStringList titoli_;
  QString mancante_;
  QString eraQui_;
};

}  // namespace kvr5
