#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>

#include "core/screens/Mnemonici.h"
#include "core/screens/Tema.h"

namespace {

/// The platform without a display complains of each window; the rest is worth reading.
void Print(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
  if (!text.startsWith(QLatin1String("This plugin does not support"))) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
  }
}

/// A program that ended in one test has told the event loop to end; without this no box of the next
/// test would wait.
class LoopAfresh : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo& /*test*/) override {
    QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    QApplication::exec();
  }
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qInstallMessageHandler(Print);
  // Listing the tests needs no display either. One that stands for a desk has room for each window;
  // the platform's own is a square that the large ones don't fit in.
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  if (platform.isEmpty() || platform == "offscreen") {
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" KVR5_TEST_SCREEN);
  }
  // What plays in a test is heard by nobody.
  if (qEnvironmentVariableIsEmpty("SDL_AUDIODRIVER")) qputenv("SDL_AUDIODRIVER", "dummy");
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  // The toolkit's chooser keeps the user's ways in his settings; a test's are none of them.
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  kvr5::ApplicaTema(application, false);
  kvr5::InstallaMnemonici(application);
  testing::UnitTest::GetInstance()->listeners().Append(new LoopAfresh);
  return RUN_ALL_TESTS();
}
