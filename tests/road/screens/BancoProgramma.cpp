#include "road/screens/BancoProgramma.h"

#include <algorithm>

namespace kvr5::test {

BancoProgramma::BancoProgramma() = default;

BancoProgramma::~BancoProgramma() {
  programma.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EventiQt().ImpostaPuntatore(Puntatore::Normale);
}

void BancoProgramma::ScriviImpostazioni(const std::string& language) {
  b.Cartella.Write("program/KVR5Software.ini", "[Config]\nLanguageFile=" + language +
                                                   "\nUseExternalPlayer=0\n[Path]\nProjectsDir=" +
                                                   b.Percorso("program/Projects") + "\\\n");
}

void BancoProgramma::Avvia(const std::string& commandLine) {
  programma.reset();  // its windows too
  programma = std::make_unique<Programma>((b.Cartella.Host() / "program").string(), fine);
  programma->Avvia(commandLine);
}

void BancoProgramma::PassaLoSplash() {
  frmSplash* splash = Vista<frmSplash>();
  ASSERT_NE(splash, nullptr);
  EXPECT_EQ(Viste(), std::vector<std::string>{"frmSplash"});
  ASSERT_TRUE(splash->tmrChiusura.isActive()) << "Main starts it";
  splash->tmrChiusura.setInterval(0);
  ASSERT_TRUE(QTest::qWaitFor([] { return Vista<frmSplash>() == nullptr; }));
}

std::vector<std::string> BancoProgramma::Viste() {
  std::vector<std::string> names;
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && dynamic_cast<const Form*>(window) != nullptr) {
      names.push_back(window->objectName().toStdString());
    }
  }
  std::ranges::sort(names);
  return names;
}

}  // namespace kvr5::test
