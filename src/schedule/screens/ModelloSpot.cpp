#include "schedule/screens/ModelloSpot.h"

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/ParoleCopia.h"
#include "core/screens/Icona.h"
#include "core/screens/TabellaEditor.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {

ModelloSpot::ModelloSpot(Contesto& contesto, const ContoBrani& conto, QObject* padre)
    : QAbstractTableModel(padre), contesto_(contesto), conto_(conto) {}

void ModelloSpot::Localizza() {
  mancante_ = Qs(TestoLinguaO(contesto_, "0040062", "missing"));
  eraQui_ = Qs(TestoLinguaO(contesto_, "0130129", "It was here:"));
}

void ModelloSpot::Imposta(std::vector<RigaSpot> righe) {
  beginResetModel();
  righe_ = std::move(righe);
  endResetModel();
}

void ModelloSpot::FattiCambiati() {
  if (!righe_.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, Colonne - 1));
}

void ModelloSpot::ImpostaAvvisi(AvvisiPalinsesto avvisi) {
  avvisi_ = std::move(avvisi);
  FattiCambiati();
}

int ModelloSpot::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(righe_.size());
}

int ModelloSpot::columnCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(Colonne);
}

bool ModelloSpot::Manca(const RigaSpot& riga) const {
  const FattiBrano* facts = conto_.Fatti(riga.Brano);
  return facts != nullptr && facts->Mancante;
}

bool ModelloSpot::Avvisa(const RigaSpot& riga) const {
  return avvisi_.CopiaVecchia(riga.ID) || avvisi_.Ripetuto(riga.ID);
}

QString ModelloSpot::Testo(const RigaSpot& riga, int colonna) const {
  if (colonna == Nome) return Qs(SuUnaRiga(riga.Brano.FileName));
  const FattiBrano* facts = conto_.Fatti(riga.Brano);
  if (facts == nullptr) return {};
  return facts->Mancante ? mancante_ : Qs(DurataInParole(facts->Secondi));
}

QString ModelloSpot::Suggerisce(const RigaSpot& riga) const {
  const std::string path = AggiungiBarra(riga.Brano.FilePath) + riga.Brano.FileName;
  const QString where = Qs(PercorsoPerPersone(contesto_, path));
  QString tip = Manca(riga) ? eraQui_ + QLatin1Char(' ') + where : where;
  const std::string& name = riga.Brano.FileName;
  if (avvisi_.CopiaVecchia(riga.ID)) {
    tip += QLatin1Char('\n') + Qs(AvvisiPalinsesto::ParoleCopiaDi(contesto_, name));
  }
  if (avvisi_.Ripetuto(riga.ID)) {
    tip += QLatin1Char('\n') + Qs(AvvisiPalinsesto::ParoleRipetutoDi(contesto_, name));
  }
  return Suggerimento(tip);
}

QVariant ModelloSpot::Segno(const RigaSpot& riga) const {
  const Tema& tema = Tema::Corrente();
  if (Manca(riga)) return IconaDi(QStringLiteral("mancante"), tema.Errore);
  return Avvisa(riga) ? QVariant(IconaDi(QStringLiteral("avviso"), tema.Avviso)) : QVariant();
}

QVariant ModelloSpot::data(const QModelIndex& indice, int ruolo) const {
  if (indice.row() < 0 || indice.row() >= rowCount()) return {};
  const RigaSpot& row = righe_[static_cast<std::size_t>(indice.row())];
  const bool name = indice.column() == Nome;
  switch (ruolo) {
    case TabellaEditor::kRuoloId:
      return QVariant::fromValue<qlonglong>(row.ID);
    case Qt::DisplayRole:
      return Testo(row, indice.column());
    case Qt::ToolTipRole:
      return Suggerisce(row);
    case Qt::TextAlignmentRole:
      return QVariant::fromValue((name ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    case Qt::ForegroundRole:
      if (Manca(row)) return Tema::Corrente().Errore;
      if (Avvisa(row)) return Tema::Corrente().Avviso;
      return name ? QVariant() : QVariant(Tema::Corrente().Attenuato);
    case Qt::DecorationRole:
      return name ? Segno(row) : QVariant();
    default:
      return {};
  }
}

}  // namespace kvr5
