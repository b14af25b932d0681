#include "playerconfig/screens/GraficoFade.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "playerconfig/screens/Lettera.h"

namespace kvr5 {
namespace {

constexpr int kTagAudioLevel = 13;
constexpr int kTagTime = 14;
constexpr int kTagLineInput = 15;
constexpr int kTagMixed = 16;
constexpr int kTagSpot = 17;
constexpr int kTagTrack = 18;

constexpr double kEdge = 16;   // from the card's edge to the axes
constexpr double kAbove = 32;  // the captions' line
constexpr double kBelow = 36;  // the line of the measures

/// Where the shapes of the drawing stand: what happens on the left and on the right half, from left
/// to right, and the levels.
struct Places {
  QRectF Plot;
  double FadeOut, Mixed, FadeIn, Back, EndOfLeft;
  double Track, Spot, EndOfTrack, EndOfSpot;
  double Full, Low;                      // of the line input
  double UpperTop, UpperFoot, LowerTop;  // the two lanes of the right half
};

Places PlacesIn(const QRectF& card) {
  Places at{};
  at.Plot = card.adjusted(kEdge, kAbove, -kEdge, -kBelow);
  const auto x = [&at](double share) { return at.Plot.left() + at.Plot.width() * share; };
  const auto y = [&at](double share) { return at.Plot.bottom() - at.Plot.height() * share; };
  at.FadeOut = x(0.15);
  at.Mixed = x(0.23);
  at.FadeIn = x(0.43);
  at.Back = x(0.51);
  at.EndOfLeft = x(0.60);
  at.Track = x(0.66);
  at.Spot = x(0.77);
  at.EndOfTrack = x(0.87);
  at.EndOfSpot = x(0.98);
  at.Full = y(0.84);
  at.Low = y(0.36);
  at.UpperTop = y(0.96);
  at.UpperFoot = y(0.52);
  at.LowerTop = y(0.44);
  return at;
}

QColor Faint(QColor colour, double strength) {
  colour.setAlphaF(static_cast<float>(strength));
  return colour;
}

/// A level that goes over into another one, evenly at both ends.
void Ease(QPainterPath& path, double x, double y) {
  const QPointF from = path.currentPosition();
  const double middle = (from.x() + x) / 2;
  path.cubicTo(middle, from.y(), middle, y, x, y);
}

void DrawLineInput(QPainter& painter, const Places& at) {
  const Tema& tema = Tema::Corrente();
  QPainterPath level(QPointF(at.Plot.left(), at.Full));
  level.lineTo(at.FadeOut, at.Full);
  Ease(level, at.Mixed, at.Low);
  level.lineTo(at.FadeIn, at.Low);
  Ease(level, at.Back, at.Full);
  level.lineTo(at.EndOfLeft, at.Full);
  QPainterPath area = level;
  area.lineTo(at.EndOfLeft, at.Plot.bottom());
  area.lineTo(at.Plot.bottomLeft());
  painter.fillPath(area, Faint(tema.Primario, 0.16));
  painter.strokePath(level, QPen(tema.Primario, 2.5, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
}

/// A sound as bars between two levels; always the same ones.
void DrawBars(QPainter& painter, const QRectF& area, const QColor& colour) {
  constexpr double kPitch = 6;
  constexpr double kBar = 3;
  const int bars = static_cast<int>(area.width() / kPitch);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  for (int i = 0; i < bars; ++i) {
    const double swing = 0.62 + 0.25 * std::sin(i * 1.7) + 0.13 * std::sin(i * 0.61 + 1);
    const double height = area.height() * swing;
    const double left = area.left() + i * kPitch + (area.width() - bars * kPitch + kBar) / 2;
    painter.drawRoundedRect(QRectF(left, area.bottom() - height, kBar, height), 1.5, 1.5);
  }
}

void DrawSound(QPainter& painter, const QRectF& area, const QColor& colour) {
  painter.fillRect(area, Faint(colour, 0.12));
  DrawBars(painter, area, colour);
}

void DrawArrowHead(QPainter& painter, QPointF tip, QPointF back, QPointF side) {
  painter.drawPolygon(QPolygonF{tip, tip + back + side, tip + back - side});
}

/// A time between two moments: what marks them, the arrows below the axis and the letter.
void DrawMeasure(QPainter& painter, double from, double to, double top, double axis, QChar letter) {
  const Tema& tema = Tema::Corrente();
  painter.setPen(QPen(tema.Linea, 1, Qt::DashLine));
  const double y = axis + kBelow / 2;
  for (const double x : {from, to}) painter.drawLine(QPointF(x, top), QPointF(x, y + 6));
  painter.setPen(QPen(tema.Testo, 1.25));
  painter.drawLine(QPointF(from, y), QPointF(to, y));
  painter.setPen(Qt::NoPen);
  painter.setBrush(tema.Testo);
  DrawArrowHead(painter, {from, y}, {7, 0}, {0, 3.5});
  DrawArrowHead(painter, {to, y}, {-7, 0}, {0, 3.5});
  DipingiLettera(painter, {(from + to) / 2, y}, letter);
}

void DrawAxes(QPainter& painter, const Places& at) {
  const Tema& tema = Tema::Corrente();
  const QRectF& plot = at.Plot;
  painter.setPen(QPen(tema.Testo, 1.5));
  painter.drawLine(plot.bottomLeft(), QPointF(plot.left(), plot.top() - 6));
  painter.drawLine(plot.bottomLeft(), QPointF(at.EndOfLeft, plot.bottom()));
  painter.drawLine(QPointF(at.Track, plot.bottom()), plot.bottomRight());
  painter.setPen(Qt::NoPen);
  painter.setBrush(tema.Testo);
  DrawArrowHead(painter, {plot.left(), plot.top() - 10}, {0, 8}, {4, 0});
  DrawArrowHead(painter, {plot.right() + 4, plot.bottom()}, {-8, 0}, {0, 4});
}

void PutCentred(QLabel& label, double x, double y) {
  label.adjustSize();
  label.move(static_cast<int>(x - label.width() / 2.0), static_cast<int>(y - label.height() / 2.0));
}

void PutLeft(QLabel& label, double x, double y) {
  label.adjustSize();
  label.move(static_cast<int>(x), static_cast<int>(y - label.height() / 2.0));
}

/// The same beside a letter: both are centred as one.
void PutBesideLetter(QLabel& label, double x, double y) {
  label.adjustSize();
  PutLeft(label, x - (label.width() - kLatoLettera - 6) / 2.0, y);
}

QPointF LetterOf(const QLabel& label) {
  return {label.x() - kLatoLettera / 2.0 - 6, label.y() + label.height() / 2.0};
}

}  // namespace

GraficoFade::GraficoFade(QWidget* padre) : QWidget(padre) {
  setObjectName(QStringLiteral("picGrafico"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  const auto caption = [this](const char* name, const char* text, int tag) {
    auto* label = NuovaEtichetta(name, QString::fromUtf8(text), tag, this);
    Veste(*label, Carattere::Suggerimento);
    return label;
  };
  lblAudioLevel = caption("lblAudioLevel", "Livello audio", kTagAudioLevel);
  lblTime = caption("lblTime", "TIME", kTagTime);
  lblLineInput = caption("lblLineInput", "Line Input", kTagLineInput);
  lblLineInputMixed = caption("lblLineInputMixed", "Line Input Mixed", kTagMixed);
  lblSpot = caption("lblSpot", "MP3 (spot)", kTagSpot);
  lblSpotAnticipo = caption("lblSpotAnticipo", "MP3 (spot)", kTagSpot);
  lblBrano = caption("lblBrano", "Track", kTagTrack);
}

QSize GraficoFade::sizeHint() const {
  return {812, 200};
}

QSize GraficoFade::minimumSizeHint() const {
  return {560, 150};
}

void GraficoFade::Disponi() {
  const Places at = PlacesIn(rect());
  const double captions = at.Plot.top() - 16;
  const double measures = at.Plot.bottom() + kBelow / 2;
  PutLeft(*lblAudioLevel, at.Plot.left() + 10, captions);
  lblTime->adjustSize();
  PutLeft(*lblTime, at.Plot.right() - lblTime->width(), measures);
  PutLeft(*lblLineInput, at.Plot.left() + 10, at.Full + 16);
  PutBesideLetter(*lblLineInputMixed, (at.Mixed + at.FadeIn) / 2, (at.Low + at.Plot.bottom()) / 2);
  PutBesideLetter(*lblSpot, (at.Mixed + at.FadeIn) / 2, captions);
  PutCentred(*lblSpotAnticipo, (at.Spot + at.EndOfSpot) / 2, captions);
  PutLeft(*lblBrano, at.Track + 2, at.LowerTop - 11);
}

bool GraficoFade::event(QEvent* event) {
  const bool done = QWidget::event(event);
  // Captions change their widths with the language.
  if (event->type() == QEvent::Resize || event->type() == QEvent::Show ||
      event->type() == QEvent::LayoutRequest) {
    Disponi();
  }
  return done;
}

void GraficoFade::paintEvent(QPaintEvent* /*event*/) {
  const Tema& tema = Tema::Corrente();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Faint(tema.Linea, 0.35));
  painter.setBrush(tema.Superficie);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), spazi::kAngolo,
                          spazi::kAngolo);
  const Places at = PlacesIn(rect());
  const double axis = at.Plot.bottom();
  DrawLineInput(painter, at);
  DrawSound(painter, {QPointF(at.Mixed, at.Plot.top()), QPointF(at.FadeIn, at.Low - 2)},
            tema.Fuoco);
  DrawSound(painter, {QPointF(at.Track, at.LowerTop), QPointF(at.EndOfTrack, axis)},
            tema.Attenuato);
  DrawSound(painter, {QPointF(at.Spot, at.UpperTop), QPointF(at.EndOfSpot, at.UpperFoot)},
            tema.Fuoco);
  DrawMeasure(painter, at.FadeOut, at.Mixed, at.Full, axis, QLatin1Char('B'));
  DrawMeasure(painter, at.FadeIn, at.Back, at.Full, axis, QLatin1Char('C'));
  DrawMeasure(painter, at.Spot, at.EndOfTrack, at.UpperTop, axis, QLatin1Char('D'));
  DrawAxes(painter, at);
  DipingiLettera(painter, LetterOf(*lblLineInputMixed), QLatin1Char('A'));
  DipingiLettera(painter, LetterOf(*lblSpot), QLatin1Char('A'));
}

}  // namespace kvr5
