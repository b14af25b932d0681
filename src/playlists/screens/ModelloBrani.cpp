#include "playlists/screens/ModelloBrani.h"

#include <algorithm>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/ParoleCopia.h"
#include "core/screens/Icona.h"
#include "core/screens/TabellaEditor.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {

ModelloBrani::ModelloBrani(Contesto& contesto, const ContoBrani& conto, QObject* padre)
    : QAbstractTableModel(padre), contesto_(contesto), conto_(conto) {}

void ModelloBrani::Localizza() {
  const auto text = [this](const char* key) { return Qs(TestoLingua(contesto_, key)); };
  titoli_ = {QStringLiteral("#"), text("0050012"), text("0050104"), text("0050105")};
  mancante_ = Qs(TestoLinguaO(contesto_, "0040062", "missing"));
  eraQui_ = Qs(TestoLinguaO(contesto_, "0130129", "It was here:"));
  emit headerDataChanged(Qt::Horizontal, 0, Colonne - 1);
}

void ModelloBrani::Imposta(std::vector<RigaPlaylist> righe) {
  beginResetModel();
  righe_ = std::move(righe);
  endResetModel();
}

int ModelloBrani::RigaDi(std::int64_t id) const {
  const auto found = std::ranges::find(righe_, id, &RigaPlaylist::ID);
  return found == righe_.end() ? -1 : static_cast<int>(found - righe_.begin());
}

void ModelloBrani::FattiCambiati() {
  if (!righe_.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, Colonne - 1));
}

void ModelloBrani::ImpostaDoppi(NomiDoppi doppi) {
  doppi_ = std::move(doppi);
  FattiCambiati();
}

int ModelloBrani::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(righe_.size());
}

int ModelloBrani::columnCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : Colonne;
}

QString ModelloBrani::Testo(const RigaPlaylist& riga, int colonna) const {
  if (colonna == Posto) return QString::number(riga.Brano.Pos);
  if (colonna == Nome) return Qs(SuUnaRiga(riga.Brano.FileName));
  const FattiBrano* facts = conto_.Fatti(riga.Brano);
  if (facts == nullptr) return {};
  if (facts->Mancante) return colonna == Durata ? mancante_ : QString();
  return Qs(colonna == Durata ? DurataInParole(facts->Secondi)
                              : QuantitaInParole(facts->Byte, contesto_.Luogo));
}

QString ModelloBrani::Suggerisce(const RigaPlaylist& riga, bool manca) const {
  const std::string path = AggiungiBarra(riga.Brano.FilePath) + riga.Brano.FileName;
  const QString where = Qs(PercorsoPerPersone(contesto_, path));
  QString tip = manca ? eraQui_ + QLatin1Char(' ') + where : where;
  if (doppi_.Contiene(riga.Brano.FileName)) {
    tip += QLatin1Char('\n') + Qs(NomiDoppi::ParoleDi(contesto_, riga.Brano.FileName));
  }
  return Suggerimento(tip);
}

QVariant ModelloBrani::Segno(bool manca, bool doppio) const {
  const Tema& tema = Tema::Corrente();
  if (manca) return IconaDi(QStringLiteral("mancante"), tema.Errore);
  return doppio ? QVariant(IconaDi(QStringLiteral("avviso"), tema.Avviso)) : QVariant();
}

QVariant ModelloBrani::data(const QModelIndex& indice, int ruolo) const {
  if (indice.row() < 0 || indice.row() >= rowCount()) return {};
  const RigaPlaylist& row = righe_[static_cast<std::size_t>(indice.row())];
  const FattiBrano* facts = conto_.Fatti(row.Brano);
  const bool missing = facts != nullptr && facts->Mancante;
  const bool twice = doppi_.Contiene(row.Brano.FileName);
  switch (ruolo) {
    case TabellaEditor::kRuoloId:
      return QVariant::fromValue<qlonglong>(row.ID);
    case Qt::DisplayRole:
      return Testo(row, indice.column());
    case Qt::ToolTipRole:
      return Suggerisce(row, missing);
    case Qt::TextAlignmentRole:
      return QVariant::fromValue((indice.column() == Nome ? Qt::AlignLeft : Qt::AlignRight) |
                                 Qt::AlignVCenter);
    case Qt::ForegroundRole:
      if (missing) return Tema::Corrente().Errore;
      if (twice) return Tema::Corrente().Avviso;
      return indice.column() == Nome ? QVariant() : QVariant(Tema::Corrente().Attenuato);
    case Qt::DecorationRole:
      return indice.column() == Nome ? Segno(missing, twice) : QVariant();
    default:
      return {};
  }
}

QVariant ModelloBrani::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  if (verso != Qt::Horizontal || sezione < 0 || sezione >= titoli_.size()) return {};
  if (ruolo == Qt::DisplayRole) return titoli_[sezione];
  if (ruolo != Qt::TextAlignmentRole) return {};
  return QVariant::fromValue((sezione == Nome ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
}

}  // namespace kvr5
