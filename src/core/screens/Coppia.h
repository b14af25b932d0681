#pragma once

#include <QAbstractButton>

class QLabel;
class QPainter;

namespace kvr5 {

/// A picture and its label as one button: one surface, one place in the tab order, one signal. The
/// surface is the picture (its objectName "picSave"), the label lies in it ("lblSave"), and its
/// text is what a screen reader says.
class Coppia : public QAbstractButton {
 public:
  enum class Genere {
    Normale,        ///< outlined
    Primario,       ///< filled: the one thing to do on a screen
    Quieto,         ///< no frame until the pointer is over it
    Pericolo,       ///< outlined in the colour of errors
    Carta,          ///< large, picture above its text
    CartaPrimaria,  ///< the same, filled
  };

  /// `nomeLbl` may be empty: a picture without a label. `tag` below 0: the label isn't translated.
  Coppia(const char* nomePic, const char* nomeLbl, const QString& scritta, const char* icona,
         int tag, QWidget* padre = nullptr);

  /// The label inside; null where there is none.
  QLabel* Etichetta() const { return etichetta_; }
  QString Scritta() const { return text(); }
  void ImpostaScritta(const QString& testo);
  void ImpostaGenere(Genere genere);
  void ImpostaIcona(const char* icona);
  /// The letter of the label that presses the button together with Alt; null for none.
  void ImpostaMnemonico(QChar lettera);
  QChar Mnemonico() const { return mnemonico_; }
  /// Whether the letter is underlined.
  void MostraMnemonico(bool mostra);
  Genere GenereOra() const { return genere_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool Carta() const { return genere_ == Genere::Carta || genere_ == Genere::CartaPrimaria; }
  void Disponi();
  void Colora();
  QColor ColoreTesto() const;
  int LatoIcona() const;
  QRect PostoIcona(bool sola) const;
  void Sottolinea(QPainter& painter) const;

  QLabel* etichetta_ = nullptr;
  QString icona_;
  Genere genere_ = Genere::Normale;
  QChar mnemonico_;
  bool sottolineato_ = false;
};

}  // namespace kvr5
