#include "playerconfig/screens/VociAssegnati.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "core/screens/Tema.h"

namespace kvr5 {
namespace {

constexpr int kSignWidth = 16;
constexpr int kPadding = 10;  // pixels before the sign, behind it and behind the file's name
constexpr int kGap = 14;      // pixels between two columns
constexpr int kName = 110;    // pixels that the name of a file has beside a column of inputs
constexpr int kLine = 28;     // height of a row
constexpr int kMark = 18;     // what a mark adds to it

/// A column of the row's first line, cut from the left of what is left of it.
QRect Cut(QRect& rest, int width) {
  const QRect column(rest.left(), rest.top(), std::min(width, rest.width()), rest.height());
  rest.setLeft(std::min(rest.left() + width + kGap, rest.right() + 1));
  return column;
}

void Write(QPainter& painter, const QRect& column, const QString& text, Qt::TextElideMode mode) {
  painter.drawText(column, Qt::AlignLeft | Qt::AlignVCenter,
                   painter.fontMetrics().elidedText(text, mode, column.width()));
}

/// A row that is marked keeps the colour of its mark, also where it is the ticked one.
QColor InkOf(const QStyleOptionViewItem& item, const QModelIndex& row) {
  const Tema& tema = Tema::Corrente();
  if (row.data(Qt::ForegroundRole).isValid()) return item.palette.color(QPalette::Text);
  if (item.state.testFlag(QStyle::State_Selected)) return tema.SuSelezione;
  return item.state.testFlag(QStyle::State_Enabled) ? tema.Testo : tema.Attenuato;
}

}  // namespace

void VociAssegnati::Misura(const QListWidget& elenco) {
  const QFontMetrics metrics(FontDi(Carattere::Corpo));
  codici_ = ingressi_ = 0;
  for (int row = 0; row < elenco.count(); ++row) {
    const QListWidgetItem& item = *elenco.item(row);
    codici_ = std::max(codici_, metrics.horizontalAdvance(item.data(Codice).toString()));
    ingressi_ = std::max(ingressi_, metrics.horizontalAdvance(item.data(Ingressi).toString()));
  }
}

QSize VociAssegnati::sizeHint(const QStyleOptionViewItem& /*opzione*/,
                              const QModelIndex& voce) const {
  return {0, voce.data(Segno).toString().isEmpty() ? kLine : kLine + kMark};
}

void VociAssegnati::paint(QPainter* pittore, const QStyleOptionViewItem& opzione,
                          const QModelIndex& voce) const {
  QStyleOptionViewItem item = opzione;
  initStyleOption(&item, voce);
  item.text.clear();
  const QIcon sign = std::exchange(item.icon, QIcon());
  QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &item, pittore, item.widget);
  QRect line = item.rect;
  sign.paint(pittore, QRect(line.left() + kPadding, line.top(), kSignWidth, line.height()));
  line.adjust(kPadding + kSignWidth + kPadding, 0, -kPadding, 0);
  const QRect below = line.adjusted(0, kLine - 6, 0, -4);
  line.setHeight(kLine);
  pittore->save();
  pittore->setPen(InkOf(item, voce));
  pittore->setFont(FontDi(Carattere::Corpo));
  Write(*pittore, Cut(line, codici_), voce.data(Codice).toString(), Qt::ElideRight);
  const QString inputs = voce.data(Ingressi).toString();
  // The inputs of a row may be all eight of them: the name of the file keeps half of the room, and
  // in a narrow list each row's name begins where its own inputs end.
  const bool roomy = line.width() >= 2 * kName;
  const int wanted = roomy ? ingressi_ : pittore->fontMetrics().horizontalAdvance(inputs);
  Write(*pittore, Cut(line, std::min(wanted, line.width() / 2)), inputs, Qt::ElideRight);
  Write(*pittore, line, voce.data(File).toString(), Qt::ElideMiddle);
  pittore->setFont(FontDi(Carattere::Suggerimento));
  Write(*pittore, below, voce.data(Segno).toString(), Qt::ElideRight);
  pittore->restore();
}

}  // namespace kvr5
