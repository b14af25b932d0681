// Makes a picture of every screen: screenshots FOLDER-OF-THE-PROGRAM LANGUAGE light|dark
// OUT-FOLDER. The program's folder is a copy that may be written to; nothing is shown on a display
// (QT_QPA_PLATFORM=offscreen).

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTimer>
#include <cstdlib>

#include "app/Programma.h"
#include "core/Aiuti.h"
#include "core/Impostazioni.h"
#include "core/Lingua.h"
#include "core/screens/FinestraCopia.h"
#include "core/screens/RiquadroMessaggio.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "core/screens/frmSalva.h"
#include "projects/CartellaProgetto.h"
#include "projects/NuovoProgetto.h"

namespace {

using kvr5::Programma;

class NoEnd : public kvr5::Processo {
 public:
  [[noreturn]] void Termina(kvr5::MotivoFine /*motivo*/) override { std::_Exit(EXIT_FAILURE); }
};

class Photographer {
 public:
  Photographer(Programma& program, QString out) : program_(program), out_(std::move(out)) {}

  /// A picture of the window of this name, as it stands on the screen now.
  void Take(const char* window, const QString& name) const {
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

  /// The same of a modal window, that goes away after it.
  void TakeModal(const char* window, const QString& name, const std::function<void()>& shows) {
    QTimer::singleShot(50, qApp, [this, window, name] {
      Take(window, name);
      for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String(window)) widget->close();
      }
    });
    shows();
  }

  kvr5::Contesto& C() { return program_.C(); }

  void Project(const std::string& name, std::int16_t type, std::int16_t mode,
               std::int16_t config = 0) {
    auto& state = C().Stato;
    state.PlayerType = type;
    state.PlayerMode = mode;
    state.PlayerConfig = config;
    state.PlayerName = kvr5::NomeModello(type);
    state.PlayerConfigDesc = type == 4
                                 ? kvr5::DescrizioneKvr5(mode, kvr5::ScritteDelWizard(C(), mode))
                                 : kvr5::NomeModello(type);
    if (kvr5::PreparaCartella(C(), name, false) == kvr5::EsitoNuovo::Creato)
      kvr5::RiempiCartella(C());
  }

 private:
  Programma& program_;
  QString out_;
};

/// The window of this name that is on the screen.
template <class T>
T* Find(const char* name) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == QLatin1String(name) && widget->isVisible()) {
      return dynamic_cast<T*>(widget);
    }
  }
  return nullptr;
}

void AssignFiles(kvr5::Contesto& context, const std::string& folder) {
  kvr5::TabellaIngressi inputs(context);
  inputs.Apri();
  inputs.Assegna(1, "welcome.mp3", folder);
  inputs.Assegna(5, "door.mp3", folder);
  inputs.Assegna(12, "gone.mp3", folder);
  inputs.Assegna(128, "welcome.mp3", folder);
}

void Hubs(Photographer& camera, Programma& program, const std::string& music) {
  struct Kind {
    const char* Name;
    std::int16_t Type, Mode;
  };
  for (const auto& kind : {Kind{"Museum-Hall-2", 4, 1}, Kind{"Station", 4, 2}, Kind{"Shop", 4, 5},
                           Kind{"Old-Gallery", 1, 0}, Kind{"Lift-A", 2, 0}, Kind{"Tower", 3, 2}}) {
    camera.Project(kind.Name, kind.Type, kind.Mode);
    if (kind.Type == 4 && kind.Mode == 1) AssignFiles(camera.C(), music);
    program.ApriConfigurazione(1);
    auto* hub = Find<kvr5::frmPlayerConfig>("frmPlayerConfig");
    if (hub != nullptr && kind.Mode < 2) {
      hub->fraFileName->DirDirectoryMp3->ImpostaPercorso(music);
      hub->fraIngressiLogici->chkIn[0]->click();
      hub->fraIngressiLogici->chkIn[2]->click();
    }
    camera.Take("frmPlayerConfig",
                QStringLiteral("frmPlayerConfig-%1-%2").arg(kind.Type).arg(kind.Mode));
    program.DimenticaConfigurazione();
  }
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList words = QApplication::arguments();
  if (words.size() != 5) return EXIT_FAILURE;
  kvr5::ApplicaTema(application, words[3] == QStringLiteral("dark"));
  QDir().mkpath(words[4]);
  NoEnd process;
  Programma program(kvr5::Std(words[1]), process);
  auto& context = program.C();
  Photographer camera(program, words[4]);
  kvr5::ScriviParametroIni(context, kvr5::FileImpostazioni(context), "Config", "LanguageFile",
                           kvr5::Std(words[2]) + ".lan");
  program.Avvia({});
  camera.Take("frmSplash", QStringLiteral("frmSplash"));
  program.Mostra(kvr5::Schermata::Menu);
  camera.Take("frmMain", QStringLiteral("frmMain"));
  program.Mostra(kvr5::Schermata::Wizard);
  camera.Take("frmWizardPanel1", QStringLiteral("frmWizardPanel1"));
  program.Mostra(kvr5::Schermata::Impostazioni);
  camera.Take("frmConfig", QStringLiteral("frmConfig"));
  const std::string music = context.CartellaProgramma + "\\Music";
  Hubs(camera, program, music);
  program.MostraElencoProgetti(kvr5::Schermata::Menu);
  camera.Take("frmCaricaProgetto", QStringLiteral("frmCaricaProgetto"));
  camera.TakeModal("frmSelectFlash", QStringLiteral("frmSelectFlash"),
                   [&] { program.ScegliScheda(kvr5::Schermata::Menu); });
  camera.TakeModal("frmSiNo", QStringLiteral("frmSiNo"), [&] {
    context.Finestre.MostraSiNo(
        {kvr5::TestoLingua(context, "0040027"), kvr5::TestoLingua(context, "0040026"), {}, {}});
  });
  camera.TakeModal("frmSiNo", QStringLiteral("frmSiNo-notice"), [&] {
    context.Finestre.MostraSiNo({kvr5::TestoLingua(context, "0070009"),
                                 kvr5::TestoLingua(context, "0070019") + ":\r\ngong.mp3",
                                 kvr5::TestoLingua(context, "0140022"), 33023});
  });
  camera.TakeModal("RiquadroMessaggio", QStringLiteral("message"), [&] {
    context.Finestre.MostraMessaggio(
        {kvr5::TestoLingua(context, "0040017"),
         kvr5::TestoLingua(context, "0040018") + "\r\n" + kvr5::TestoLingua(context, "0040019") +
             "\r\n" + kvr5::TestoLingua(context, "0040020") + "\r\n" +
             kvr5::TestoLingua(context, "0040021"),
         kvr5::Icona::Domanda, kvr5::Pulsanti::SiNoAnnulla, kvr5::Risposta::Annulla});
  });
  return EXIT_SUCCESS;
}
