#include "schedule/screens/GrigliaSegmenti.h"

#include <QHeaderView>
#include <algorithm>

#include "core/Lingua.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr int kSegmentRow = 32;

}  // namespace

GrigliaSegmenti::GrigliaSegmenti(Contesto& contesto, ModelloSegmenti& modello, QWidget* padre)
    : TabellaEditor("grdSegmenti", modello, kSegmentRow, padre), contesto_(contesto) {
  setSelectionMode(SingleSelection);
  setHorizontalScrollMode(ScrollPerPixel);
  setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&modello, &QAbstractItemModel::modelReset, this, [this] { NascondiPosti(); });
  NascondiPosti();
}

void GrigliaSegmenti::NascondiPosti() {
  const bool none = model()->rowCount() == 0;
  for (int column = ModelloSegmenti::Spot1; column < ModelloSegmenti::Colonne; ++column) {
    setColumnHidden(column, none);
  }
}

void GrigliaSegmenti::AggiornaLayout() {
  constexpr int kEdges = 24;  // of a cell, both
  constexpr int kSign = 32;   // with what stands between it and the words
  constexpr int kName = 110;
  auto* header = horizontalHeader();
  const auto text = [this](const char* key) { return Qs(TestoLingua(contesto_, key)); };
  const QString marked =
      text("0140105") + QStringLiteral(", 8 ") + text("0040074") + QStringLiteral(", 9:59");
  const int start = std::max(fontMetrics().horizontalAdvance(QStringLiteral("00:00")) + kEdges,
                             header->sectionSizeHint(ModelloSegmenti::Inizio) + 8);
  int contents = fontMetrics().horizontalAdvance(marked) + kSign + kEdges;
  const int rest = viewport()->width() - start - contents;
  const int names = std::max(0, rest / kName);
  // In a narrow list the words end in "…" rather than at the frame.
  if (names == 0) contents = std::max(kName, viewport()->width() - start);
  header->resizeSection(ModelloSegmenti::Inizio, start);
  header->resizeSection(ModelloSegmenti::Contenuto, contents);
  for (int column = ModelloSegmenti::Spot1; column < ModelloSegmenti::Colonne; ++column) {
    if (!isColumnHidden(column)) header->resizeSection(column, names == 0 ? kName : rest / names);
  }
}

void GrigliaSegmenti::resizeEvent(QResizeEvent* event) {
  TabellaEditor::resizeEvent(event);
  AggiornaLayout();
}

}  // namespace kvr5
