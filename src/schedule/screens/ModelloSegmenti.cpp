#include "schedule/screens/ModelloSegmenti.h"

#include <algorithm>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/Icona.h"
#include "core/screens/TabellaEditor.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "playerconfig/ParoleConto.h"

namespace kvr5 {

ModelloSegmenti::ModelloSegmenti(Contesto& contesto, const ContoBrani& conto, QObject* padre)
    : QAbstractTableModel(padre), contesto_(contesto), conto_(conto) {}

void ModelloSegmenti::Localizza() {
  titoli_ = {Qs(TestoLingua(contesto_, "0140042")), Qs(TestoLingua(contesto_, "0140106"))};
  const QString spot = Qs(TestoLinguaO(contesto_, "0140107", "Spot"));
  for (int place = 1; place <= SlotSpot::kPosti; ++place) {
    titoli_.append(spot + QLatin1Char(' ') + QString::number(place));
  }
  senzaSpot_ = Qs(TestoLinguaO(contesto_, "0140104", "no spots"));
  stessaOra_ = Qs(TestoLinguaO(contesto_, "0140105", "same time"));
  emit headerDataChanged(Qt::Horizontal, 0, Colonne - 1);
}

void ModelloSegmenti::Imposta(std::vector<RigaSegmento> righe) {
  beginResetModel();
  righe_ = std::move(righe);
  endResetModel();
}

const RigaSegmento* ModelloSegmenti::Riga(std::int64_t id) const {
  const auto found = std::ranges::find(righe_, id, &RigaSegmento::ID);
  return found == righe_.end() ? nullptr : &*found;
}

void ModelloSegmenti::ImpostaAvvisi(AvvisiPalinsesto avvisi) {
  avvisi_ = std::move(avvisi);
  FattiCambiati();
}

void ModelloSegmenti::FattiCambiati() {
  if (!righe_.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, Colonne - 1));
}

int ModelloSegmenti::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(righe_.size());
}

int ModelloSegmenti::columnCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(Colonne);
}

std::string ModelloSegmenti::Durata(const RigaSegmento& riga) const {
  std::int64_t seconds = 0;
  for (const RigaSpot& each : riga.Spot) {
    const FattiBrano* facts = conto_.Fatti(each.Brano);
    if (facts == nullptr) return {};
    seconds += facts->Secondi;
  }
  return riga.Spot.empty() ? std::string() : DurataInParole(seconds);
}

std::size_t ModelloSegmenti::Mancanti(const RigaSegmento& riga) const {
  return static_cast<std::size_t>(std::ranges::count_if(riga.Spot, [this](const RigaSpot& each) {
    const FattiBrano* facts = conto_.Fatti(each.Brano);
    return facts != nullptr && facts->Mancante;
  }));
}

QString ModelloSegmenti::Contiene(const RigaSegmento& riga) const {
  if (riga.Spot.empty()) return senzaSpot_;
  QString words = Qs(ParoleSpot(contesto_, riga.Spot.size()));
  if (const std::size_t missing = Mancanti(riga); missing > 0) {
    return words + QStringLiteral(", ") + Qs(ParoleMancanti(contesto_, missing));
  }
  const std::string length = Durata(riga);
  return length.empty() ? words : words + QStringLiteral(", ") + Qs(length);
}

QString ModelloSegmenti::Riassunto(const RigaSegmento& riga) const {
  return riga.StessaOra ? stessaOra_ + QStringLiteral(", ") + Contiene(riga) : Contiene(riga);
}

QString ModelloSegmenti::Testo(const RigaSegmento& riga, int colonna) const {
  if (colonna == Contenuto) return Riassunto(riga);
  if (colonna == Inizio) {
    return riga.Inizio ? Qs(OraConDuePunti(riga.Inizio)) : QStringLiteral("--:--");
  }
  const std::int64_t pos = colonna - Spot1 + 1;
  for (const RigaSpot& each : riga.Spot) {
    if (each.Brano.Pos == pos) return Qs(SuUnaRiga(each.Brano.FileName));
  }
  return {};
}

QString ModelloSegmenti::Suggerisce(const RigaSegmento& riga) const {
  QString tip = Testo(riga, Inizio) + QStringLiteral("  ") + Riassunto(riga);
  for (const RigaSpot& each : riga.Spot) {
    tip += QLatin1Char('\n') + QString::number(each.Brano.Pos) + QLatin1Char(' ') +
           Qs(SuUnaRiga(each.Brano.FileName));
  }
  return Suggerimento(tip);
}

bool ModelloSegmenti::Avvisa(const RigaSegmento& riga) const {
  return riga.StessaOra || riga.Spot.empty() ||
         std::ranges::any_of(riga.Spot, [this](const RigaSpot& each) {
           return avvisi_.CopiaVecchia(each.ID) || avvisi_.Ripetuto(each.ID);
         });
}

QVariant ModelloSegmenti::Colore(const RigaSegmento& riga, int colonna) const {
  const Tema& tema = Tema::Corrente();
  if (colonna == Contenuto && Mancanti(riga) > 0) return tema.Errore;
  const bool warns = colonna == Inizio ? riga.StessaOra : Avvisa(riga);
  if (colonna <= Contenuto && warns) return tema.Avviso;
  return colonna == Contenuto ? QVariant(tema.Attenuato) : QVariant();
}

QVariant ModelloSegmenti::data(const QModelIndex& indice, int ruolo) const {
  if (indice.row() < 0 || indice.row() >= rowCount()) return {};
  const RigaSegmento& row = righe_[static_cast<std::size_t>(indice.row())];
  const int column = indice.column();
  switch (ruolo) {
    case TabellaEditor::kRuoloId:
      return QVariant::fromValue<qlonglong>(row.ID);
    case Qt::DisplayRole:
      return Testo(row, column);
    case Qt::ToolTipRole:
      return Suggerisce(row);
    case Qt::ForegroundRole:
      return Colore(row, column);
    case Qt::DecorationRole:
      if (column != Contenuto || !Avvisa(row)) return {};
      return IconaDi(QStringLiteral("avviso"), Tema::Corrente().Avviso);
    default:
      return {};
  }
}

QVariant ModelloSegmenti::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  if (verso != Qt::Horizontal || sezione < 0 || sezione >= titoli_.size()) return {};
  if (ruolo == Qt::DisplayRole) return titoli_[sezione];
  return ruolo == Qt::TextAlignmentRole ? QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter)
                                        : QVariant();
}

std::string ParoleSpot(Contesto& contesto, std::size_t quanti) {
  if (quanti == 0) return TestoLinguaO(contesto, "0140104", "no spots");
  return Contati(contesto, quanti, {"0040073", "spot", "0040074", "spots"});
}

}  // namespace kvr5
