#include "Photographer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "projects/CartellaProgetto.h"
#include "projects/NuovoProgetto.h"

namespace shots {

std::string Photographer::Text(const char* key) {
  return kvr5::TestoLingua(C(), key);
}

void Photographer::Take(const char* window, const QString& name) const {
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() != QLatin1String(window) || !widget->isVisible()) continue;
    if (!widget->grab().save(out_ + QLatin1Char('/') + name + QStringLiteral(".png"))) {
      qWarning("%s was not written", qPrintable(name));
    }
    return;
  }
  qWarning("%s isn't on the screen", window);
}

void Photographer::TakeModal(const char* window, const QString& name,
                             const std::function<void()>& shows) const {
  QTimer::singleShot(50, qApp, [this, window, name] {
    Take(window, name);
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == QLatin1String(window)) widget->close();
    }
  });
  shows();
}

void Photographer::Project(const std::string& name, std::int16_t type, std::int16_t mode) {
  constexpr std::int16_t kKvr5 = 4;
  auto& state = C().Stato;
  state.PlayerType = type;
  state.PlayerMode = mode;
  state.PlayerConfig = 0;
  state.PlayerName = kvr5::NomeModello(type);
  state.PlayerConfigDesc = type == kKvr5
                               ? kvr5::DescrizioneKvr5(mode, kvr5::ScritteDelWizard(C(), mode))
                               : kvr5::NomeModello(type);
  if (kvr5::PreparaCartella(C(), name, false) == kvr5::EsitoNuovo::Creato) {
    kvr5::RiempiCartella(C());
  }
}

void WaitFor(const std::function<bool()>& done) {
  constexpr qint64 kPatience = 5000;  // milliseconds
  QElapsedTimer watch;
  watch.start();
  while (!done() && watch.elapsed() < kPatience) QCoreApplication::processEvents();
}

}  // namespace shots
