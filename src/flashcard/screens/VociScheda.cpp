#include "flashcard/screens/VociScheda.h"

#include <QApplication>
#include <QPainter>
#include <utility>

#include "core/screens/Icona.h"
#include "core/screens/Tema.h"

namespace kvr5 {
namespace {

constexpr int kHeight = 48;

}  // namespace

QSize VociScheda::sizeHint(const QStyleOptionViewItem& opzione, const QModelIndex& voce) const {
  return {QStyledItemDelegate::sizeHint(opzione, voce).width(), kHeight};
}

void VociScheda::paint(QPainter* pittore, const QStyleOptionViewItem& opzione,
                       const QModelIndex& voce) const {
  QStyleOptionViewItem item = opzione;
  initStyleOption(&item, voce);
  const QString root = std::exchange(item.text, QString());
  QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &item, pittore, item.widget);
  const Tema& tema = Tema::Corrente();
  const bool chosen = item.state.testFlag(QStyle::State_Selected);
  const QRect inside = item.rect.adjusted(12, 4, -12, -4);
  const int half = inside.height() / 2;
  pittore->save();
  pittore->setPen(chosen ? tema.SuSelezione : tema.Testo);
  pittore->setFont(FontDi(Carattere::Corpo));
  pittore->drawText(inside.adjusted(0, 0, 0, -half), Qt::AlignLeft | Qt::AlignVCenter, root);
  if (voce.data(Bloccata).toBool()) {
    const QRectF where(inside.right() - kLucchetto, inside.top(), kLucchetto, kLucchetto);
    DipingiIcona(*pittore, where, QStringLiteral("blocco"),
                 chosen ? tema.SuSelezione : tema.Avviso);
  }
  pittore->setPen(chosen ? tema.SuSelezione : tema.Attenuato);
  pittore->setFont(FontDi(Carattere::Suggerimento));
  const QString facts = pittore->fontMetrics().elidedText(voce.data(Fatti).toString(),
                                                          Qt::ElideMiddle, inside.width());
  pittore->drawText(inside.adjusted(0, half, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, facts);
  pittore->restore();
}

}  // namespace kvr5
