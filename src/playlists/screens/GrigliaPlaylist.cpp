#include "playlists/screens/GrigliaPlaylist.h"

#include <QHeaderView>
#include <algorithm>

namespace kvr5 {
namespace {

constexpr int kRow = 32;

}  // namespace

GrigliaPlaylist::GrigliaPlaylist(ModelloBrani& modello, QWidget* padre)
    : TabellaEditor("grdPlaylist", modello, kRow, padre), modello_(modello) {
  setSelectionMode(ExtendedSelection);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  horizontalHeader()->setSectionResizeMode(ModelloBrani::Nome, QHeaderView::Stretch);
}

std::vector<std::int64_t> GrigliaPlaylist::Scelti() const {
  QModelIndexList rows = selectionModel()->selectedRows();
  if (rows.isEmpty() && currentIndex().isValid()) rows.append(currentIndex());
  std::ranges::sort(rows, {}, [](const QModelIndex& each) { return each.row(); });
  std::vector<std::int64_t> chosen;
  for (const QModelIndex& each : rows) {
    chosen.push_back(modello_.Righe()[static_cast<std::size_t>(each.row())].ID);
  }
  return chosen;
}

void GrigliaPlaylist::Seleziona(const std::vector<std::int64_t>& id, std::int64_t corrente) {
  const Muta quiet(*this);
  QItemSelection rows;
  for (const std::int64_t each : id) {
    if (const int row = modello_.RigaDi(each); row >= 0) {
      rows.select(modello_.index(row, 0), modello_.index(row, ModelloBrani::Colonne - 1));
    }
  }
  const QModelIndex current = modello_.index(modello_.RigaDi(corrente), ModelloBrani::Nome);
  if (rows.isEmpty() && current.isValid()) {
    rows.select(current.siblingAtColumn(0), current.siblingAtColumn(ModelloBrani::Colonne - 1));
  }
  selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
  selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
  if (current.isValid()) scrollTo(current);
}

void GrigliaPlaylist::Misura() {
  constexpr int kEdges = 24;  // of a cell, both
  auto* header = horizontalHeader();
  const auto fits = [&](int column, const QString& longest) {
    const int text = fontMetrics().horizontalAdvance(longest) + kEdges;
    header->resizeSection(column, std::max(text, header->sectionSizeHint(column) + 8));
  };
  fits(ModelloBrani::Posto, QStringLiteral("500"));
  fits(ModelloBrani::Durata,
       std::max(modello_.Mancante(), QStringLiteral("12:34:56"),
                [](const auto& a, const auto& b) { return a.size() < b.size(); }));
  fits(ModelloBrani::Grandezza, QStringLiteral("999 MB"));
}

}  // namespace kvr5
