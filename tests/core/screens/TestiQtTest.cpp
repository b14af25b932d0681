#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QThread>
#include <set>

#include "core/screens/TestiQt.h"
#include "core/screens/Testo.h"
#include "support/screens/ProvaForm.h"

// The words of the toolkit's own windows.

namespace kvr5 {
namespace {

using namespace test;

/// Behind the program's own words: hears each text that these had none for.
class Listener : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char* /*d*/,
                    int /*n*/) const override {
    const std::string_view from = context;
    const bool seen = from == "QFileDialog" || from == "QLineEdit" || from == "QPlatformTheme" ||
                      from == "QFileSystemModel" || from == "QWidgetTextControl" ||
                      from == "QDialogButtonBox" || from == "QAbstractSpinBox";
    if (seen) Heard.insert(std::string(from) + ": " + text);
    return {};
  }
  mutable std::set<std::string> Heard;
};

class ToolkitWords : public testing::Test {
 protected:
  void SetUp() override {
    b.C.Stato.FileLingua = b.Percorso("program/Language/Italiano.lan");
    // The last one installed is asked first.
    QCoreApplication::installTranslator(&listener_);
    QCoreApplication::installTranslator(&words_);
  }
  std::string HeardAll() const {
    std::string all;
    for (const auto& each : listener_.Heard) all += each + "\n";
    return all;
  }

  BancoSchermi b;
  Listener listener_;
  TestiQt words_{b.C};
};

TEST_F(ToolkitWords, TheFolderChooserSpeaksTheLanguageOfTheScreens) {
  const Pilota<QFileDialog> pilot([](QFileDialog& chooser) {
    std::set<std::string> shown;
    for (const auto* button : chooser.findChildren<QAbstractButton*>())
      shown.insert(Std(button->text()));
    EXPECT_TRUE(shown.contains("&Scegli"));
    EXPECT_TRUE(shown.contains("Annulla"));
    chooser.reject();
  });
  b.C.Finestre.SfogliaCartella("Cartella", b.Percorso(""));
  // What it asks for before it knows that it chooses folders, and keys, which are none to read.
  for (const char* unseen :
       {"QFileDialog: &Open", "QFileDialog: All Files (*)", "QFileDialog: Alt+Left",
        "QFileDialog: Alt+Right", "QFileDialog: Alt+Up", "QFileDialog: File &name:",
        "QFileDialog: Show ", "QPlatformTheme: OK", "QPlatformTheme: Open"}) {
    listener_.Heard.erase(unseen);
  }
  EXPECT_EQ(HeardAll(), "");
}

TEST_F(ToolkitWords, TheMenuOfATextBoxDoesToo) {
  QLineEdit box;
  const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());
  std::vector<std::string> entries;
  for (const QAction* action : menu->actions()) {
    if (!action->isSeparator()) entries.push_back(Std(action->text().section('\t', 0, 0)));
  }
  EXPECT_EQ(entries, (std::vector<std::string>{"&Annulla", "&Ripeti", "&Taglia", "&Copia",
                                               "&Incolla", "&Elimina", "&Seleziona tutto"}));
  EXPECT_EQ(HeardAll(), "");
}

TEST_F(ToolkitWords, AKindOfRowIsNoLabelAndAMistypedFolderIsTold) {
  EXPECT_EQ(QCoreApplication::translate("QAbstractFileIconProvider", "Folder"), "Cartella");
  EXPECT_EQ(QCoreApplication::translate("QFileDialog", "Directory:"), "Cartella:");
  EXPECT_EQ(QCoreApplication::translate("QFileDialog",
                                        "%1\nDirectory not found.\nPlease verify the correct "
                                        "directory name was given."),
            "%1: questa cartella non esiste. Controllarne il nome.");
}

TEST_F(ToolkitWords, AnotherThreadGetsThemWithoutAReading) {
  EXPECT_EQ(QCoreApplication::translate("QLineEdit", "&Undo"), "&Annulla");
  b.Cartella.Write("program/Language/Italiano.lan", "");  // a reading would find nothing
  QString undo;
  const std::unique_ptr<QThread> other(
      QThread::create([&undo] { undo = QCoreApplication::translate("QLineEdit", "&Undo"); }));
  other->start();
  ASSERT_TRUE(other->wait());
  EXPECT_EQ(undo, "&Annulla");
}

TEST_F(ToolkitWords, ALanguageFileThatComesBackIsReadAgain) {
  const std::string file = "program/Language/Nuova.lan";
  const std::string whole = b.Cartella.Read("program/Language/Italiano.lan");
  b.Cartella.Write(file, "");
  b.C.Stato.FileLingua = b.Percorso(file);
  EXPECT_EQ(QCoreApplication::translate("QLineEdit", "&Undo"), "&Undo");
  b.Cartella.Write(file, whole);
  const auto read = [] {
    return QCoreApplication::translate("QLineEdit", "&Undo") == QLatin1String("&Annulla");
  };
  EXPECT_FALSE(read()) << "not for each of the many texts of a window";
  EXPECT_TRUE(QTest::qWaitFor(read));
}

TEST_F(ToolkitWords, FollowTheLanguage) {
  EXPECT_EQ(QCoreApplication::translate("QLineEdit", "&Undo"), "&Annulla");
  b.C.Stato.FileLingua = b.Percorso("program/Language/English.lan");
  EXPECT_EQ(QCoreApplication::translate("QLineEdit", "&Copy"), "&Copy");
}

TEST_F(ToolkitWords, TheChooserChangesNoFolder) {
  const Pilota<QFileDialog> pilot([](QFileDialog& chooser) {
    EXPECT_TRUE(chooser.testOption(QFileDialog::ReadOnly));
    chooser.reject();
  });
  b.C.Finestre.SfogliaCartella("Cartella", b.Percorso(""));
}

TEST_F(ToolkitWords, WithoutALanguageFileTheToolkitsOwnStand) {
  b.C.Stato.FileLingua = b.Percorso("gone.lan");
  EXPECT_EQ(QCoreApplication::translate("QLineEdit", "&Undo"), "&Undo");
}

}  // namespace
}  // namespace kvr5
