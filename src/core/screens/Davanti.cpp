#include "core/screens/Davanti.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <optional>

#include "core/screens/Form.h"

namespace kvr5 {
namespace {

/// What a window's frame takes of the screen; it isn't known before the window is shown.
constexpr QSize kFrame(16, 40);

QRect RoomFor(const QWidget& window, const QWidget* below) {
  const QScreen* screen = below != nullptr ? below->screen() : window.screen();
  return screen->availableGeometry();
}

/// The middle of the screen that went last.
std::optional<QPoint>& LastPlace() {
  static std::optional<QPoint> place;
  return place;
}

QPoint MiddleOf(const QWidget* below, const QRect& room) {
  if (below != nullptr) return below->frameGeometry().center();
  const auto& last = LastPlace();
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
  const QSize most = room.size() - kFrame;
  finestra.resize(finestra.size().boundedTo(most));
  QRect place({}, finestra.size() + kFrame);
  place.moveCenter(MiddleOf(sotto, room));
  place.moveLeft(std::clamp(place.left(), room.left(),
                            std::max(room.left(), room.right() + 1 - place.width())));
  place.moveTop(std::clamp(place.top(), room.top(),
                           std::max(room.top(), room.bottom() + 1 - place.height())));
  finestra.move(place.topLeft());
}

void RicordaPosto(const QWidget& finestra) {
  LastPlace() = finestra.frameGeometry().center();
}

void MettiDavanti(QWidget& riquadro, QWidget* sotto) {
  if (sotto == &riquadro) sotto = nullptr;
  const bool onTop = sotto != nullptr && sotto->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
  if (onTop) riquadro.setWindowFlag(Qt::WindowStaysOnTopHint);
  riquadro.ensurePolished();
  if (!riquadro.testAttribute(Qt::WA_Resized)) riquadro.adjustSize();
  CentraSu(riquadro, sotto);
  riquadro.winId();
  if (sotto == nullptr) return;
  sotto->window()->winId();
  riquadro.windowHandle()->setTransientParent(sotto->window()->windowHandle());
}

}  // namespace kvr5
