#include "core/screens/TabellaEditor.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include "core/screens/Tabella.h"
#include "core/screens/Tema.h"

namespace kvr5 {

TabellaEditor::TabellaEditor(const char* nome, QAbstractItemModel& modello, int altezza,
                             QWidget* padre)
    : QTableView(padre) {
  setObjectName(QLatin1String(nome));
  setModel(&modello);
  VestiTabella(*this, altezza);
  setIconSize({16, 16});
  setVerticalScrollMode(ScrollPerPixel);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionsClickable(false);
  // What is dropped goes to the frame around it.
  setAcceptDrops(false);
  viewport()->setAcceptDrops(false);
}

std::int64_t TabellaEditor::IdCorrente() const {
  return currentIndex().isValid() ? currentIndex().data(kRuoloId).toLongLong() : -1;
}

int TabellaEditor::RigaDi(std::int64_t id) const {
  for (int row = 0; row < model()->rowCount(); ++row) {
    if (model()->index(row, 0).data(kRuoloId).toLongLong() == id) return row;
  }
  return -1;
}

void TabellaEditor::VaiA(std::int64_t id) {
  const Muta quiet(*this);
  const int row = RigaDi(id);
  if (row < 0) {
    selectionModel()->clear();
    return;
  }
  const QModelIndex first = model()->index(row, 0);
  const int sideways = horizontalScrollBar()->value();  // the user looks at other columns
  selectionModel()->setCurrentIndex(
      first, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  scrollTo(first);
  horizontalScrollBar()->setValue(sideways);
}

QItemSelectionModel::SelectionFlags TabellaEditor::selectionCommand(const QModelIndex& indice,
                                                                    const QEvent* evento) const {
  if (selectionMode() != SingleSelection) return QTableView::selectionCommand(indice, evento);
  // The current row is the selected one, whatever keys are held.
  return indice.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                          : QItemSelectionModel::NoUpdate;
}

void TabellaEditor::ImpostaVuota(const QString& testo) {
  vuota_ = testo;
  viewport()->update();
}

void TabellaEditor::currentChanged(const QModelIndex& ora, const QModelIndex& prima) {
  QTableView::currentChanged(ora, prima);
  const bool other = ora.isValid() && (!prima.isValid() || ora.row() != prima.row());
  if (!muta_ && other && SuRiga) SuRiga(ora.data(kRuoloId).toLongLong());
}

const std::function<void()>* TabellaEditor::Azione(const QKeyEvent& event) const {
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

void TabellaEditor::keyPressEvent(QKeyEvent* event) {
  const auto* action = Azione(*event);
  if (action == nullptr) return QTableView::keyPressEvent(event);
  // A key that is held down moves a row on; it must not empty the list.
  const bool moves = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  if (*action && (moves || !event->isAutoRepeat())) (*action)();
}

void TabellaEditor::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (frameShape() == NoFrame && hasFocus()) {  // no frame shows it
    QPainter ring(viewport());
    ring.setPen(QPen(Tema::Corrente().Fuoco, 2));
    ring.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
  }
  if (model()->rowCount() > 0 || vuota_.isEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(Tema::Corrente().Attenuato);
  painter.setFont(FontDi(Carattere::Corpo));
  painter.drawText(viewport()->rect().adjusted(spazi::kLargo, 0, -spazi::kLargo, 0),
                   Qt::AlignCenter | Qt::TextWordWrap, vuota_);
}

}  // namespace kvr5
