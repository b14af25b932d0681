#include "core/screens/Tabella.h"

#include <QHeaderView>
#include <QTableView>

namespace kvr5 {

void VestiTabella(QTableView& tabella, int altezza) {
  tabella.setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella.setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabella.setShowGrid(false);
  tabella.setTabKeyNavigation(false);
  tabella.setWordWrap(false);
  tabella.verticalHeader()->hide();
  tabella.verticalHeader()->setDefaultSectionSize(altezza);
  tabella.horizontalHeader()->setHighlightSections(false);
}

}  // namespace kvr5
