// Makes a picture of every screen, or with the last word those of the help alone: screenshots
// FOLDER-OF-THE-PROGRAM LANGUAGE light|dark OUT-FOLDER [guide]. The program's folder is a copy that
// may be written to; nothing is shown on a display (QT_QPA_PLATFORM=offscreen).

#include <QApplication>
#include <QDir>
#include <cstdio>
#include <cstdlib>

#include "Photographer.h"
#include "core/Impostazioni.h"
#include "core/screens/Mnemonici.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace {

using shots::Photographer;

class NoEnd : public kvr5::Processo {
 public:
  [[noreturn]] void Termina(kvr5::MotivoFine /*motivo*/) override { std::_Exit(EXIT_FAILURE); }
};

/// The platform without a display complains of each window; the rest is worth reading.
void Print(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
  if (!text.startsWith(QLatin1String("This plugin does not support"))) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
  }
}

template <class T>
T* Find() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* form = dynamic_cast<T*>(widget);
    if (form != nullptr && form->isVisible()) return form;
  }
  qFatal("a screen never came");
}

void TakeWizard(Photographer& camera) {
  camera.Program().Mostra(kvr5::Schermata::Wizard);
  camera.Take("frmWizardPanel1", QStringLiteral("frmWizardPanel1"));
  auto& wizard = *Find<kvr5::frmWizardPanel1>();
  wizard.txtNomeProgetto->setText(QStringLiteral("Museum-Hall-2"));
  wizard.optPanel_21->click();
  camera.Take("frmWizardPanel1", QStringLiteral("frmWizardPanel1-playlist"));
  wizard.txtNomeProgetto->setText(QStringLiteral("Hall: 2"));
  camera.Take("frmWizardPanel1", QStringLiteral("frmWizardPanel1-warning"));
}

void TakeList(Photographer& camera, const QString& name) {
  camera.Program().MostraElencoProgetti(kvr5::Schermata::Nessuna);
  camera.Take("frmCaricaProgetto", name);
  Find<kvr5::frmCaricaProgetto>()->Scarica();
}

void TakeSettings(Photographer& camera) {
  camera.Program().Mostra(kvr5::Schermata::Impostazioni);
  camera.Take("frmConfig", QStringLiteral("frmConfig"));
  Find<kvr5::frmConfig>()->optInternal->click();
  camera.Take("frmConfig", QStringLiteral("frmConfig-changed"));
  auto* languages = Find<kvr5::frmConfig>()->cmbLanguage;
  languages->setCurrentIndex((languages->currentIndex() + 1) % languages->count());
  emit languages->activated(languages->currentIndex());
  camera.Take("frmConfig", QStringLiteral("frmConfig-note"));
}

}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(Print);
  QApplication application(argc, argv);
  const QStringList words = QApplication::arguments();
  const bool guide = words.size() == 6 && words[5] == QStringLiteral("guide");
  if (words.size() != 5 && !guide) return EXIT_FAILURE;
  kvr5::ApplicaTema(application, words[3] == QStringLiteral("dark"));
  kvr5::InstallaMnemonici(application);
  QDir().mkpath(words[4]);
  NoEnd process;
  kvr5::Programma program(kvr5::Std(words[1]), process);
  auto& context = program.C();
  Photographer camera(program, words[4]);
  kvr5::ScriviParametroIni(context, kvr5::FileImpostazioni(context), "Config", "LanguageFile",
                           kvr5::Std(words[2]) + ".lan");
  program.Avvia({});
  if (guide) {
    TakeGuide(camera);
    return EXIT_SUCCESS;
  }
  camera.Take("frmSplash", QStringLiteral("frmSplash"));
  program.Mostra(kvr5::Schermata::Menu);
  camera.Take("frmMain", QStringLiteral("frmMain"));
  TakeList(camera, QStringLiteral("frmCaricaProgetto-empty"));
  TakeWizard(camera);
  TakeSettings(camera);
  TakeHubs(camera);
  TakeParameters(camera);
  TakePlaylists(camera);
  TakeSchedules(camera);
  TakeList(camera, QStringLiteral("frmCaricaProgetto"));
  TakeBoxes(camera);
  return EXIT_SUCCESS;
}
