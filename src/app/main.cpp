#include <QApplication>
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

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("KVR5Software"));
  // The end is that of the last loaded form; a box may well be the only window for a moment.
  QApplication::setQuitOnLastWindowClosed(false);
  kvr5::ApplicaTema(application);
  kvr5::InstallaMnemonici(application);
  FineDelProcesso process;
  kvr5::Programma program(kvr5::Std(QCoreApplication::applicationDirPath()), process);
  return program.Avvia(CommandLine()) ? QApplication::exec() : EXIT_FAILURE;
}
