#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace kvr5 {

/// The side of a numeral beside a title, in pixels, and the least height of a title.
inline constexpr int kLatoNumero = 20;

/// A frame with a title: a raised surface that holds controls. Its objectName is that of the frame
/// ("fraFileInfo"), its title the frame's caption.
class Riquadro : public QWidget {
 public:
  /// `tag` below 0: the title isn't translated. An empty title takes no room.
  Riquadro(const char* nome, const QString& titolo, int tag, QWidget* padre = nullptr);

  QString Titolo() const;
  void ImpostaTitolo(const QString& titolo);
  /// A step's numeral before the title, for those who do this the first time.
  void ImpostaNumero(int numero, const QString& passo);
  /// The line of the title, for what stands behind it.
  QHBoxLayout* Testata() const { return testata_; }
  QVBoxLayout* Corpo() const { return corpo_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* titolo_;
  QHBoxLayout* testata_;
  QVBoxLayout* corpo_;
};

/// A step's numeral in a disc.
QLabel* NumeroDiPasso(int numero, const QString& passo, QWidget* padre);

}  // namespace kvr5
