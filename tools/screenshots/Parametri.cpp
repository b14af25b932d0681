#include <QApplication>
#include <QCheckBox>
#include <QTimer>

#include "Photographer.h"

namespace shots {
namespace {

/// Has something be done to a screen that is about to come up, before its picture is taken.
template <class T>
void Before(void (*act)(T&)) {
  QTimer::singleShot(20, qApp, [act] {
    if (T* form = Shown<T>()) act(*form);
  });
}

void TakeExtra(Photographer& camera) {
  const auto open = [&camera] { camera.Program().ApriPanelExtra(); };
  camera.TakeModal("frmPanelExtra", QStringLiteral("frmPanelExtra-1"), open);
  Before<kvr5::frmPanelExtra>([](kvr5::frmPanelExtra& form) { form.chkPonte->click(); });
  camera.TakeModal("frmPanelExtra", QStringLiteral("frmPanelExtra-bridge"), open);
  camera.C().Stato.PlayerMode = 2;
  camera.TakeModal("frmPanelExtra", QStringLiteral("frmPanelExtra-2"), open);
  camera.C().Stato.PlayerMode = 1;
}

void TakeSerial(Photographer& camera) {
  for (const bool rs232 : {false, true}) {
    for (const std::int16_t type : std::initializer_list<std::int16_t>{4, 3}) {
      camera.C().Stato.PlayerType = type;
      // The load of a KVR5 begins with a notice.
      Before<kvr5::frmSiNo>([](kvr5::frmSiNo& notice) { notice.Scarica(); });
      const QString name = QStringLiteral("frmConfig485-%1-%2").arg(rs232 ? 232 : 485).arg(type);
      camera.TakeModal("frmConfig485", name, [&] { camera.Program().ApriConfig485(rs232); });
    }
  }
  Before<kvr5::frmConfig485>([](kvr5::frmConfig485& form) { form.imgPagina2->click(); });
  camera.TakeModal("frmConfig485", QStringLiteral("frmConfig485-page2"),
                   [&camera] { camera.Program().ApriConfig485(false); });
}

}  // namespace

void TakeParameters(Photographer& camera) {
  camera.Project("Museum-Hall-4", 4, 1);
  camera.Program().ApriConfigurazione(1);
  const auto fades = [&camera] { camera.Program().ApriTempiFade(); };
  camera.TakeModal("frmTempiFade", QStringLiteral("frmTempiFade"), fades);
  Before<kvr5::frmTempiFade>([](kvr5::frmTempiFade& form) {
    form.resize(944, 500);  // what a screen of 1920x1080 has room for at 200 %
  });
  camera.TakeModal("frmTempiFade", QStringLiteral("frmTempiFade-small"), fades);
  TakeExtra(camera);
  TakeSerial(camera);
  camera.Program().DimenticaConfigurazione();
}

}  // namespace shots
