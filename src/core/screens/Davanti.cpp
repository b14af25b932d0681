#include "core/screens/Davanti.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <optional>

#include "core/screens/Form.h"

namespace kvr5 {
namespace {

/// Where the last window was: the middle of what it showed, and what its frame took of the screen.
struct Place {
  std::optional<QPoint> Middle;
  QMargins Frame{8, 32, 8, 8};  ///< until one has been seen
};

Place& LastPlace() {
  static Place place;
  return place;
}

QMargins FrameOf(const QWidget& window) {
  const QRect inside = window.geometry();
  const QRect outside = window.frameGeometry();
  if (!window.isVisible() || inside == outside) return LastPlace().Frame;
  return {inside.left() - outside.left(), inside.top() - outside.top(),
          outside.right() - inside.right(), outside.bottom() - inside.bottom()};
}

QRect RoomFor(const QWidget& window, const QWidget* below) {
  const QScreen* screen = below != nullptr ? below->screen() : window.screen();
  const auto& middle = LastPlace().Middle;
  if (below == nullptr && middle) {
    // The monitor that the user was looking at, not the first one of the desk.
    if (const QScreen* last = QGuiApplication::screenAt(*middle)) screen = last;
  }
  return screen->availableGeometry();
}

QPoint MiddleOf(const QWidget* below, const QRect& room) {
  if (below != nullptr) return below->geometry().center();
  const auto& last = LastPlace().Middle;
  return last && room.contains(*last) ? *last : room.center();
}

}  // namespace

QWidget* FinestraSotto() {
  QWidget* last = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || dynamic_cast<Form*>(window) == nullptr) continue;
    if (window->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) return window;
    last = window;
  }
  QWidget* active = QApplication::activeWindow();
  return active != nullptr ? active : last;
}

void CentraSu(QWidget& finestra, const QWidget* sotto) {
  const QRect room = RoomFor(finestra, sotto);
  QMargins frame = sotto != nullptr ? FrameOf(*sotto) : LastPlace().Frame;
  if (finestra.windowFlags().testFlag(Qt::FramelessWindowHint)) frame = {};
  if (!finestra.testAttribute(Qt::WA_Resized)) finestra.adjustSize();
  finestra.resize(finestra.size().boundedTo(room.marginsRemoved(frame).size()));
  // Middle over middle of what is shown: with the frames counted in, windows would wander.
  QRect inside({}, finestra.size());
  inside.moveCenter(MiddleOf(sotto, room));
  QRect place = inside.marginsAdded(frame);
  place.moveLeft(std::clamp(place.left(), room.left(),
                            std::max(room.left(), room.right() + 1 - place.width())));
  place.moveTop(std::clamp(place.top(), room.top(),
                           std::max(room.top(), room.bottom() + 1 - place.height())));
  finestra.move(place.topLeft());
}

void RicordaPosto(const QWidget& finestra) {
  LastPlace() = {finestra.geometry().center(), FrameOf(finestra)};
}

void MettiAccanto(QWidget& finestra, const QWidget& altra) {
  const QRect room = altra.screen()->availableGeometry();
  const QRect other = altra.frameGeometry();
  const QMargins frame = FrameOf(altra);
  const int height = finestra.height() + frame.top() + frame.bottom();
  const bool below = other.bottom() + 1 + height <= room.bottom() + 1;
  finestra.move(finestra.x(),
                below ? other.bottom() + 1 : std::max(room.top(), other.top() - height));
}

void MettiDavanti(QWidget& riquadro, QWidget* sotto) {
  if (sotto == &riquadro) sotto = nullptr;
  const bool onTop = sotto != nullptr && sotto->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
  if (onTop) riquadro.setWindowFlag(Qt::WindowStaysOnTopHint);
  riquadro.ensurePolished();
  CentraSu(riquadro, sotto);
  riquadro.winId();
  if (sotto == nullptr) return;
  sotto->window()->winId();
  riquadro.windowHandle()->setTransientParent(sotto->window()->windowHandle());
}

}  // namespace kvr5
