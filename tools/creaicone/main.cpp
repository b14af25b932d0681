// Renders a drawing as a picture: creaicone DRAWING SIZE TARGET. SIZE is the side of a square in
// pixels, from 1 to 4096, or width and height as 320x200; the target's suffix names its format. A
// target that exists is replaced.

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QSize>
#include <QString>
#include <QSvgRenderer>
#include <algorithm>
#include <iostream>

/// The size that a word tells; an empty one for any other word.
QSize SizeOf(const QByteArray& word) {
  constexpr int kLargest = 4096;
  const auto sides = word.split('x');
  const QSize size(sides.first().toInt(), sides.last().toInt());
  const bool fits = sides.size() <= 2 && std::max(size.width(), size.height()) <= kLargest;
  return fits ? size : QSize();
}

int main(int argc, char** argv) {
  const QSize size = argc == 4 ? SizeOf(argv[2]) : QSize();
  if (size.isEmpty()) {
    std::cerr << "usage: creaicone DRAWING SIZE|WIDTHxHEIGHT TARGET\n";
    return 2;
  }
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  if (!drawing.isValid()) {
    std::cerr << argv[1] << ": no drawing that can be read\n";
    return 1;
  }
  QImage picture(size, QImage::Format_ARGB32);
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
