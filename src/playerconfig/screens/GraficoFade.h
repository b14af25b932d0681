#pragma once

#include <QLabel>
#include <QWidget>

namespace kvr5 {

/// picGrafico: the still drawing of what the fade times and levels mean. On the left the line input
/// gives way to an MP3 file and comes back; on the right a spot begins before the end of a track.
/// The letters A to D stand beside the controls, too. Nothing is computed from their values.
class GraficoFade : public QWidget {
 public:
  explicit GraficoFade(QWidget* padre);

  QLabel *lblTime, *lblAudioLevel, *lblLineInputMixed, *lblLineInput;
  /// What the other shapes are: the spot of each half, and the track that ends.
  QLabel *lblSpot, *lblSpotAnticipo, *lblBrano;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Disponi();
};

}  // namespace kvr5
