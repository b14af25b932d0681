#include "playlists/screens/GrigliaPlaylist.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "core/screens/Tabella.h"
#include "core/screens/Tema.h"

namespace kvr5 {

GrigliaPlaylist::GrigliaPlaylist(ModelloBrani& modello, QWidget* padre)
    : QTableView(padre), modello_(modello) {
  setObjectName(QStringLiteral("grdPlaylist"));
  setModel(&modello);
  setSelectionMode(ExtendedSelection);
  constexpr int kRow = 32;
  VestiTabella(*this, kRow);
  setIconSize({16, 16});
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerPixel);
  auto* header = horizontalHeader();
  header->setSectionResizeMode(QHeaderView::Fixed);
  header->setSectionResizeMode(ModelloBrani::Nome, QHeaderView::Stretch);
  header->setSectionsClickable(false);
  // What is dropped goes to the frame around it.
  setAcceptDrops(false);
  viewport()->setAcceptDrops(false);
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
  muta_ = true;
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
  muta_ = false;
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

void GrigliaPlaylist::ImpostaVuota(const QString& testo) {
  vuota_ = testo;
  viewport()->update();
}

void GrigliaPlaylist::currentChanged(const QModelIndex& ora, const QModelIndex& prima) {
  QTableView::currentChanged(ora, prima);
  const bool other = ora.isValid() && (!prima.isValid() || ora.row() != prima.row());
  if (!muta_ && other && SuRiga) SuRiga(modello_.Righe()[static_cast<std::size_t>(ora.row())].ID);
}

const std::function<void()>* GrigliaPlaylist::Azione(const QKeyEvent& event) const {
  const bool alt = event.modifiers().testFlag(Qt::AltModifier);
  switch (event.key()) {
    case Qt::Key_Delete:
      return &SuRimuovi;
    case Qt::Key_Up:
      return alt ? &SuSposta : nullptr;
    case Qt::Key_Down:
      return alt ? &SuSpostaGiu : nullptr;
    case Qt::Key_Space:
      return event.modifiers() == Qt::NoModifier ? &SuAscolta : nullptr;
    default:
      return nullptr;
  }
}

void GrigliaPlaylist::keyPressEvent(QKeyEvent* event) {
  const auto* action = Azione(*event);
  if (action == nullptr) return QTableView::keyPressEvent(event);
  // A key that is held down moves a track on; it must not empty the list.
  const bool moves = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  if (*action && (moves || !event->isAutoRepeat())) (*action)();
}

void GrigliaPlaylist::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (modello_.rowCount() > 0 || vuota_.isEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(Tema::Corrente().Attenuato);
  painter.setFont(FontDi(Carattere::Corpo));
  painter.drawText(viewport()->rect().adjusted(spazi::kLargo, 0, -spazi::kLargo, 0),
                   Qt::AlignCenter | Qt::TextWordWrap, vuota_);
}

}  // namespace kvr5
