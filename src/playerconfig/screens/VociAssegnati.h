#pragma once

#include <QListWidget>
#include <QRect>
#include <QStyledItemDelegate>

namespace kvr5 {

/// The rows of lstAssegnati in columns, so that the eye can run down the codes, the inputs or the
/// files; what a row is marked with stands below them. Where there is no room for columns a row has
/// its file in a second line.
class VociAssegnati : public QStyledItemDelegate {
 public:
  /// What an item keeps besides its text, which is the whole row in words.
  enum Dato { Codice = Qt::UserRole, Ingressi, File, Segno };

  using QStyledItemDelegate::QStyledItemDelegate;

  /// Makes the columns as wide as the rows of the list need; to be called when they are new.
  void Misura(const QListWidget& elenco);
  /// Has the rows fit into so many pixels; true when those are others than before.
  bool AdattaA(int larghezza);

  QSize sizeHint(const QStyleOptionViewItem& opzione, const QModelIndex& voce) const override;
  void paint(QPainter* pittore, const QStyleOptionViewItem& opzione,
             const QModelIndex& voce) const override;

 private:
  bool InColonne() const;
  QRect Scrivi(QPainter& pittore, QRect riga, const QModelIndex& voce) const;

  int larghezza_ = 0;  ///< of a row, pixels
  int codici_ = 0;     ///< pixels
  int ingressi_ = 0;   ///< pixels
};

}  // namespace kvr5
