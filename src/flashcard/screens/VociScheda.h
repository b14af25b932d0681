#pragma once

#include <QStyledItemDelegate>

namespace kvr5 {

/// The items of the open list of cards: the root, and below it the card's facts, by which one
/// letter can be told from another.
class VociScheda : public QStyledItemDelegate {
 public:
  /// Where an item keeps its facts.
  static constexpr int Fatti = Qt::UserRole + 1;
  /// And whether it is write-protected, which a padlock shows.
  static constexpr int Bloccata = Qt::UserRole + 2;
  static constexpr int kLucchetto = 18;  ///< side of the padlock, in logical pixels

  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& opzione, const QModelIndex& voce) const override;
  void paint(QPainter* pittore, const QStyleOptionViewItem& opzione,
             const QModelIndex& voce) const override;
};

}  // namespace kvr5
