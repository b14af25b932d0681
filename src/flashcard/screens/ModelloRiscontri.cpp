#include "flashcard/screens/ModelloRiscontri.h"

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/Icona.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "flashcard/ParoleVerifica.h"
#include "platform/Fold.h"

namespace kvr5 {
namespace {

const char* IconOf(Difetto kind) {
  switch (kind) {
    case Difetto::Mancante:
    case Difetto::VoceVuota:
      return "mancante";
    case Difetto::Diverso:
    case Difetto::Rifiutato:
      return "errore";
    default:
      return "avviso";
  }
}

}  // namespace

void ModelloRiscontri::Localizza() {
  titoli_ = {Qs(TestoLinguaO(contesto_, "0130298", "Finding")),
             Qs(TestoLinguaO(contesto_, "0130299", "File")),
             Qs(TestoLinguaO(contesto_, "0130300", "What to do"))};
  difetti_.clear();
  rimedi_.clear();
  propri_.clear();
  emit headerDataChanged(Qt::Horizontal, 0, Colonne - 1);
}

void ModelloRiscontri::Svuota() {
  beginResetModel();
  propri_.clear();
  righe_.clear();
  mancanti_.clear();
  endResetModel();
}

/// That a list names it as well tells nothing more of a file that isn't there.
bool ModelloRiscontri::SiSa(const Riscontro& riscontro) const {
  return riscontro.Tipo == Difetto::VoceVuota && mancanti_.contains(FoldCase(riscontro.File));
}

void ModelloRiscontri::Aggiungi(const Riscontro& riscontro) {
  if (SiSa(riscontro)) return;
  if (riscontro.Tipo == Difetto::Mancante) mancanti_.insert(FoldCase(riscontro.File));
  const int row = rowCount();
  beginInsertRows({}, row, row);
  righe_.push_back(riscontro);
  endInsertRows();
}

int ModelloRiscontri::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(righe_.size());
}

int ModelloRiscontri::columnCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(Colonne);
}

QString ModelloRiscontri::ParoleDi(Difetto tipo) const {
  QString& words = difetti_[static_cast<int>(tipo)];
  if (words.isEmpty()) words = Qs(DifettoInParole(contesto_, tipo));
  return words;
}

QString ModelloRiscontri::RimedioDi(const Riscontro& riga) const {
  const bool own = riga.Perche != Mancanza::Nessuna;
  QString& words =
      own ? propri_[QString::number(static_cast<int>(riga.Perche)) + Qs(riga.DelProgetto)]
          : rimedi_[static_cast<int>(riga.Tipo)];
  if (words.isEmpty()) words = Qs(RimedioInParole(contesto_, riga));
  return words;
}

QVariant ModelloRiscontri::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid()) return {};
  const Riscontro& row = righe_.at(static_cast<std::size_t>(indice.row()));
  if (ruolo == Qt::DecorationRole && indice.column() == Che) {
    return IconaDi(QLatin1String(IconOf(row.Tipo)), Tema::Corrente().Avviso);
  }
  if (ruolo != Qt::DisplayRole && ruolo != Qt::ToolTipRole) return {};
  QString text = indice.column() == File  ? Qs(SuUnaRiga(row.File))
                 : indice.column() == Che ? ParoleDi(row.Tipo)
                                          : RimedioDi(row);
  return ruolo == Qt::ToolTipRole ? Suggerimento(text) : text;
}

QVariant ModelloRiscontri::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  if (verso == Qt::Vertical || sezione >= titoli_.size()) return {};
  if (ruolo == Qt::DisplayRole) return titoli_[sezione];
  if (ruolo == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
  return {};
}

}  // namespace kvr5
