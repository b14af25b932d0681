#include "projects/screens/ListaProgetti.h"

#include <array>

#include "core/Lingua.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {

void ListaProgetti::Carica() {
  beginResetModel();
  righe_.Carica();
  endResetModel();
}

int ListaProgetti::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(righe_.Quante());
}

int ListaProgetti::columnCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : Colonne;
}

QVariant ListaProgetti::data(const QModelIndex& indice, int ruolo) const {
  const auto row = static_cast<std::size_t>(indice.row());
  if (row >= righe_.Quante()) return {};
  if (ruolo == Qt::FontRole && indice.column() == Nome) return FontDi(Carattere::Riquadro);
  if (ruolo == Qt::ToolTipRole) {
    if (indice.column() == Nome) return Suggerimento(Qs(righe_.Nome(row)));
    if (indice.column() == Player) return Suggerimento(Qs(righe_.Modello(row)));
  }
  if (ruolo != Qt::DisplayRole) return {};
  switch (indice.column()) {
    case Nome:
      return Qs(righe_.Nome(row));
    case Player:
      return Qs(righe_.Modello(row));
    case Modifica:
      return Qs(righe_.Quando(row));
    default:
      return {};
  }
}

QVariant ListaProgetti::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  constexpr std::array<const char*, Colonne> kKeys{"0130117", "0130118", "0130119"};
  if (verso != Qt::Horizontal || sezione < 0 || sezione >= Colonne) return {};
  if (ruolo == Qt::TextAlignmentRole) return {Qt::AlignLeft | Qt::AlignVCenter};
  if (ruolo != Qt::DisplayRole) return {};
  return Qs(TestoLingua(contesto_, kKeys.at(static_cast<std::size_t>(sezione))));
}

}  // namespace kvr5
