#include "support/screens/Pilota.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <algorithm>
#include <vector>

#include "core/screens/Form.h"

namespace kvr5::test {
namespace {

constexpr int kBeat = 10;        // milliseconds
constexpr int kPatience = 5000;  // milliseconds

/// A key that comes before the window has the keyboard is lost. Without a display nobody gives it
/// back to a window whose box has gone: it is asked for.
bool HasKeyboard(QWidget& window) {
  if (!window.isActiveWindow()) window.activateWindow();
  return window.isActiveWindow();
}

std::vector<PilotaBase*>& Alive() {
  static std::vector<PilotaBase*> all;
  return all;
}

}  // namespace

PilotaBase::PilotaBase() {
  Alive().push_back(this);
  QObject::connect(&battito_, &QTimer::timeout, &battito_, [this] { Guarda(); });
  battito_.start(kBeat);
}

PilotaBase::~PilotaBase() {
  std::erase(Alive(), this);
  EXPECT_TRUE(usato_) << "the expected window never came";
}

void PilotaBase::Guarda() {
  QWidget* window = QApplication::activeModalWidget();
  if (window == nullptr || !window->isVisible()) {
    attesa_.invalidate();
    return;
  }
  if (!attesa_.isValid()) attesa_.start();
  const auto turn = std::ranges::find_if(Alive(), [](auto* pilot) { return !pilot->Usato(); });
  if (!usato_ && turn != Alive().end() && *turn == this && HasKeyboard(*window)) {
    usato_ = true;  // before it acts: its own click may run the loop
    usato_ = Agisci(*window);
    if (usato_) attesa_.invalidate();
  }
  if (attesa_.isValid() && attesa_.elapsed() > kPatience) ChiudiAForza(*window);
}

void PilotaBase::ChiudiAForza(QWidget& finestra) {
  ADD_FAILURE() << "a window stayed: " << finestra.objectName().toStdString() << ", "
                << finestra.windowTitle().toStdString();
  if (auto* dialog = dynamic_cast<QDialog*>(&finestra)) {
    dialog->done(QDialog::Rejected);
  } else if (auto* form = dynamic_cast<Form*>(&finestra)) {
    form->Nascondi();
  } else {
    finestra.close();
  }
}

}  // namespace kvr5::test
