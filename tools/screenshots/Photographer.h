#pragma once

#include <QApplication>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>

#include "app/Programma.h"

namespace shots {

/// Stages what the pictures show, in the program as it is, and takes them.
class Photographer {
 public:
  /// `out`: the folder that the pictures go to, as NAME.png.
  Photographer(kvr5::Programma& program, QString out) : program_(program), out_(std::move(out)) {}

  kvr5::Programma& Program() { return program_; }
  kvr5::Contesto& C() { return program_.C(); }
  /// The program's own folder with music, in the system's form.
  std::string Music() { return C().CartellaProgramma + "\\Music"; }
  std::string Text(const char* key);

  /// A picture of the window of this name, as it stands on the screen now.
  void Take(const char* window, const QString& name) const;
  /// The same of a window that `shows` brings up and waits for; it goes away after it.
  void TakeModal(const char* window, const QString& name, const std::function<void()>& shows) const;
  /// Makes a project of this model and has it be the open one.
  void Project(const std::string& name, std::int16_t type, std::int16_t mode);

 private:
  kvr5::Programma& program_;
  QString out_;
};

/// The hub of each model, and that of inputs with a refused file, with a card, unsaved.
void TakeHubs(Photographer& camera);
/// The modal screens of parameters, in their forms and states.
void TakeParameters(Photographer& camera);
/// The editor of playlists, in its forms and states, and the dialog for a name.
void TakePlaylists(Photographer& camera);
/// The editor of the schedule, in its forms and states.
void TakeSchedules(Photographer& camera);
/// Waits for what a screen does by itself.
void WaitFor(const std::function<bool()>& done);
/// The window of a kind that is on the screen; nullptr where there is none.
template <class Window>
Window* Shown() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* window = dynamic_cast<Window*>(widget);
    if (window != nullptr && window->isVisible()) return window;
  }
  return nullptr;
}
/// The same where it has to be there.
template <class Window>
Window& OnScreen() {
  if (auto* window = Shown<Window>()) return *window;
  qFatal("the window isn't on the screen");
}
/// Leaves a window as its close button does.
template <class Window>
void Leave() {
  OnScreen<Window>().Scarica();
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
}
/// What the help shows, as a user would have it: projects in good order.
void TakeGuide(Photographer& camera);
/// The boxes and the windows that stand before others.
void TakeBoxes(Photographer& camera);

}  // namespace shots
