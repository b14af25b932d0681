#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <cstdlib>
#include <filesystem>

#include "core/screens/Icona.h"

// The pictures of the models, which reports show, and the drawings of the screens.

namespace kvr5 {
namespace {

constexpr QSize kSize(320, 200);

std::filesystem::path Folder() {
  return std::filesystem::path(KVR5_STAGED_PROGRAM) / "Pictures";
}

QImage Drawing(const char* name) {
  QImage picture(kSize, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  DipingiIcona(painter, picture.rect(), QLatin1String(name), QColor(0x1A, 0x23, 0x28));
  return picture;
}

/// How far two pictures are apart on average: 0 for the same one, 255 for black and white.
double Distance(const QImage& one, const QImage& other) {
  double sum = 0;
  for (int y = 0; y < kSize.height(); ++y) {
    for (int x = 0; x < kSize.width(); ++x) {
      sum += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
    }
  }
  return sum / (kSize.width() * kSize.height());
}

TEST(Pictures, OfTheModelsAreTheDrawingsOfTheScreens) {
  struct Model {
    const char* File;
    const char* Drawing;
  };
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(Folder())) {
    EXPECT_EQ(entry.path().extension(), ".gif");
    ++files;
  }
  EXPECT_EQ(files, 4);
  for (const Model& model :
       {Model{"Veskadro.gif", "pannello-veskadro"}, Model{"Zub.gif", "pannello-zub"},
        Model{"Ostrel.gif", "pannello-ostrel"}, Model{"KVR5.gif", "pannello-kvr5"}}) {
    const QImage picture(QString::fromStdString((Folder() / model.File).string()));
    ASSERT_EQ(picture.size(), kSize) << model.File;
    EXPECT_LT(Distance(picture, Drawing(model.Drawing)), 2) << model.File << ": script/pictures";
  }
  const QImage zub(QString::fromStdString((Folder() / "Zub.gif").string()));
  EXPECT_GT(Distance(zub, Drawing("pannello-kvr5")), 4) << "each has its own";
}

}  // namespace
}  // namespace kvr5
