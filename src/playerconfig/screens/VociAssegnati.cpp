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
constexpr int kSecond = 20;   // what a second line adds to it
constexpr int kMark = 4;      // what a mark adds to it besides its own lines
constexpr int kAround = kPadding + kSignWidth + kPadding + kPadding;  // beside the words of a row

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
  const QFontMetrics metrics(FontDi(Carattere::Corpo), &elenco);
  codici_ = ingressi_ = 0;
  for (int row = 0; row < elenco.count(); ++row) {
    const QListWidgetItem& item = *elenco.item(row);
    codici_ = std::max(codici_, metrics.horizontalAdvance(item.data(Codice).toString()));
    ingressi_ = std::max(ingressi_, metrics.horizontalAdvance(item.data(Ingressi).toString()));
  }
}

bool VociAssegnati::InColonne() const {
  return larghezza_ - kAround - codici_ - kGap >= 2 * kName;
}

bool VociAssegnati::AdattaA(int larghezza) {
  return std::exchange(larghezza_, larghezza) != larghezza;
}

QSize VociAssegnati::sizeHint(const QStyleOptionViewItem& opzione, const QModelIndex& voce) const {
  const int lines = InColonne() ? kLine : kLine + kSecond;
  const QString mark = voce.data(Segno).toString();
  if (mark.isEmpty()) return {0, lines};
  const QRect room(0, 0, std::max(1, larghezza_ - kAround), 1 << 16);
  const QFontMetrics metrics(FontDi(Carattere::Suggerimento), opzione.widget);
  return {0, lines + metrics.boundingRect(room, Qt::TextWordWrap, mark).height() + kMark};
}

/// Writes code, inputs and file, and gives what is left for the mark.
QRect VociAssegnati::Scrivi(QPainter& pittore, QRect riga, const QModelIndex& voce) const {
  QRect line(riga.left(), riga.top(), riga.width(), kLine);
  const QString inputs = voce.data(Ingressi).toString();
  const QString file = voce.data(File).toString();
  Write(pittore, Cut(line, codici_), voce.data(Codice).toString(), Qt::ElideRight);
  int used = kLine;
  if (InColonne()) {
    // The inputs of a row may be all eight of them: the name of the file keeps half of the room.
    Write(pittore, Cut(line, std::min(ingressi_, line.width() / 2)), inputs, Qt::ElideRight);
    Write(pittore, line, file, Qt::ElideMiddle);
  } else {
    Write(pittore, line, inputs, Qt::ElideRight);
    Write(pittore, {riga.left(), riga.top() + kLine - 4, riga.width(), kSecond}, file,
          Qt::ElideMiddle);
    used += kSecond;
  }
  return riga.adjusted(0, used - kMark, 0, 0);
}

void VociAssegnati::paint(QPainter* pittore, const QStyleOptionViewItem& opzione,
                          const QModelIndex& voce) const {
  QStyleOptionViewItem item = opzione;
  initStyleOption(&item, voce);
  item.text.clear();
  const QIcon sign = std::exchange(item.icon, QIcon());
  QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &item, pittore, item.widget);
  const QRect row = item.rect;
  sign.paint(pittore, QRect(row.left() + kPadding, row.top(), kSignWidth, row.height()));
  pittore->save();
  pittore->setPen(InkOf(item, voce));
  pittore->setFont(FontDi(Carattere::Corpo));
  const QRect below =
      Scrivi(*pittore, row.adjusted(kPadding + kSignWidth + kPadding, 0, -kPadding, 0), voce);
  pittore->setFont(FontDi(Carattere::Suggerimento));
  pittore->drawText(below, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                    voce.data(Segno).toString());
  pittore->restore();
}

}  // namespace kvr5
