#include "core/screens/Icona.h"

#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <memory>

/// The drawings lie in a static library, where nothing else pulls them in.
static void PullInDrawings() {
  Q_INIT_RESOURCE(icone);
}

namespace kvr5 {
namespace {

using Renderer = std::shared_ptr<QSvgRenderer>;

/// The drawing in a colour, read once.
Renderer RendererOf(const QString& name, const QColor& colour) {
  static QHash<QString, Renderer> known;
  const QString key = name + colour.name();
  if (const auto found = known.find(key); found != known.end()) return *found;
  PullInDrawings();
  QFile file(QStringLiteral(":/icone/") + name + QStringLiteral(".svg"));
  Renderer renderer;
  if (file.open(QIODevice::ReadOnly)) {
    QByteArray text = file.readAll();
    text.replace("currentColor", colour.name().toLatin1());
    renderer = std::make_shared<QSvgRenderer>(text);
    renderer->setAspectRatioMode(Qt::KeepAspectRatio);
  }
  known.insert(key, renderer);
  return renderer;
}

/// Draws at whatever size and density is asked for.
class DrawingEngine : public QIconEngine {
 public:
  DrawingEngine(QString name, QColor colour) : name_(std::move(name)), colour_(colour) {}
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/,
             QIcon::State /*state*/) override {
    DipingiIcona(*painter, rect, name_, colour_);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect({}, size), mode, state);
    return picture;
  }
  QIconEngine* clone() const override { return new DrawingEngine(name_, colour_); }

 private:
  QString name_;
  QColor colour_;
};

}  // namespace

void DipingiIcona(QPainter& pittore, const QRectF& dove, const QString& nome,
                  const QColor& colore) {
  if (const Renderer renderer = RendererOf(nome, colore)) renderer->render(&pittore, dove);
}

QPixmap DisegnoDi(const QString& nome, const QSize& misura, const QColor& colore, qreal scala) {
  QPixmap picture(misura * scala);
  picture.setDevicePixelRatio(scala);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  DipingiIcona(painter, QRectF({}, misura), nome, colore);
  return picture;
}

QIcon IconaDi(const QString& nome, const QColor& colore) {
  return QIcon(new DrawingEngine(nome, colore));
}

QIcon IconaProgramma() {
  return IconaDi(QStringLiteral("app"), Qt::black);
}

}  // namespace kvr5
