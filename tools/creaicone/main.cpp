// Renders a drawing as a square picture: creaicone DRAWING SIZE TARGET. SIZE is the side in pixels,
// from 1 to 4096; the target's suffix names its format. A target that exists is replaced.

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <iostream>

int main(int argc, char** argv) {
  constexpr int kLargest = 4096;
  const int size = argc == 4 ? QByteArray(argv[2]).toInt() : 0;
  if (size < 1 || size > kLargest) {
    std::cerr << "usage: creaicone DRAWING SIZE TARGET\n";
    return 2;
  }
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  if (!drawing.isValid()) {
    std::cerr << argv[1] << ": no drawing that can be read\n";
    return 1;
  }
  QImage picture(size, size, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  drawing.render(&painter);
  painter.end();
  if (!picture.save(QString::fromLocal8Bit(argv[3]))) {
    std::cerr << argv[3] << ": can't be written\n";
    return 1;
  }
  return 0;
}
