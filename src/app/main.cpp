#include <QApplication>
#include <QIcon>
#include <cstdlib>

#include "app/Programma.h"
#include "core/screens/Mnemonici.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace {

/// The fatal ends: the process ends at once, whatever is on the screen.
class FineDelProcesso : public kvr5::Processo {
 public:
  [[noreturn]] void Termina(kvr5::MotivoFine /*motivo*/) override { std::_Exit(EXIT_FAILURE); }
};

std::string CommandLine() {
  QStringList words = QCoreApplication::arguments();
  words.removeFirst();
  return kvr5::Std(words.join(QLatin1Char(' ')));
}

/// The drawing differs with the size: the small ones have fewer strokes.
QIcon WindowIcon() {
  QIcon icon;
  for (const int size : {16, 22, 24, 32, 48, 64, 128}) {
    icon.addFile(QStringLiteral(":/programma/%1.png").arg(size), QSize(size, size));
  }
  return icon;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("KVR5Software"));
  // By this name a desktop finds the menu entry that the windows belong to.
  QGuiApplication::setDesktopFileName(QStringLiteral("software.kvr5.KVR5Software"));
  // The end is that of the last loaded form; a box may well be the only window for a moment.
  QApplication::setQuitOnLastWindowClosed(false);
  kvr5::ApplicaTema(application);
  kvr5::InstallaMnemonici(application);
  QGuiApplication::setWindowIcon(WindowIcon());
  FineDelProcesso process;
  kvr5::Programma program(kvr5::Std(QCoreApplication::applicationDirPath()), process);
  return program.Avvia(CommandLine()) ? QApplication::exec() : EXIT_FAILURE;
}
