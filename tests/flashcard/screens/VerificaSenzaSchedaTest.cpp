#include <QPointer>
#include <QTest>
#include <filesystem>

#include "core/screens/Testo.h"
#include "flashcard/screens/ProvaVerifica.h"
#include "support/screens/Frattempo.h"

// The window of a verification whose card the host has no more, and where its keyboard is.

namespace kvr5 {
namespace {

using namespace test;
namespace fs = std::filesystem;

class VerificaSenzaScheda : public ProvaVerifica {
 protected:
  void SetUp() override {
    ProvaVerifica::SetUp();
    forma->SchedaPresente = [this] {
      ++asked;
      return !gone;
    };
  }
  /// A picture of the report that takes many pieces to compare and no room on the disk.
  void AddLarge() const {
    for (const char* folder : {"card", "program/Projects/Hall"}) {
      b.Cartella.Write(std::string(folder) + "/large.jpg", "");
      fs::resize_file(Host(folder) / "large.jpg", std::uintmax_t{64} << 20U);
    }
  }
  bool AtWork() { return !forma->picRipeti->isEnabled(); }
  /// Runs `what` amid the large file.
  Frattempo During(std::function<void()> what) {
    constexpr int kPieces = 30;
    return Frattempo([this, left = kPieces]() mutable { return AtWork() && left-- == 0; },
                     std::move(what));
  }
  void Finish() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return !AtWork(); }, 20000));
  }
  int Rows() { return forma->grdRiscontri->model()->rowCount(); }
  void ExpectNoCard() {
    EXPECT_FALSE(forma->lblBuono->isVisible());
    EXPECT_TRUE(forma->lblEsito->isVisible());
    EXPECT_EQ(forma->lblEsito->text().toStdString(),
              "The card can't be read. Put it in, then verify again.");
  }

  bool gone = false;
  int asked = 0;
};

TEST_F(VerificaSenzaScheda, ACardThatTheHostHasNoMoreIsToldThoughItsFolderIsThere) {
  gone = true;
  Apri();
  Finish();
  ExpectNoCard();
  EXPECT_EQ(Rows(), 0);
  gone = false;
  Clicca(*forma->picRipeti);
  Finish();
  EXPECT_TRUE(forma->lblBuono->isVisible()) << "back in, all is compared";
}

TEST_F(VerificaSenzaScheda, ACardThatGoesAmidTheWorkIsToldThoughItsFolderIsThere) {
  AddLarge();
  b.Cartella.Write("card/zz.txt", "a stray");
  const auto pulled = During([this] {
    gone = true;
    for (const std::string& name : b.Nomi("card")) fs::remove(Host("card") / name);
  });
  Apri();
  Finish();
  ExpectNoCard();
  EXPECT_TRUE(fs::is_directory(Host("card")));
  ASSERT_EQ(Rows(), 1) << "the first file that can't be read, and nothing after it";
  EXPECT_EQ(Std(forma->grdRiscontri->model()->index(0, ModelloRiscontri::File).data().toString()),
            "5.mp3");
}

TEST_F(VerificaSenzaScheda, AWindowThatIsClosedBeforeItWasDrawnBeginsNoVerification) {
  const QPointer<frmVerifica> window = &*forma;
  window->Mostra();
  window->Scarica();
  QCoreApplication::processEvents();
  ASSERT_FALSE(window.isNull()) << "its timer came before its end";
  EXPECT_TRUE(window->Scaricata());
  EXPECT_EQ(asked, 0);
}

TEST_F(VerificaSenzaScheda, TheListHasTheKeyboardWhileItWorksAndWhereItFoundSomething) {
  AddLarge();
  fs::remove(Host("card/Config.txt"));
  bool listAtWork = false;
  {
    const auto look = During([&] { listAtWork = forma->focusWidget() == forma->grdRiscontri; });
    Apri();
    Finish();
  }
  EXPECT_TRUE(listAtWork);
  EXPECT_EQ(forma->focusWidget(), forma->grdRiscontri);
  {
    const auto look = During([&] { listAtWork = forma->focusWidget() == forma->grdRiscontri; });
    listAtWork = false;
    Clicca(*forma->picRipeti);
    Finish();
  }
  EXPECT_TRUE(listAtWork) << "not the button that was pressed, nor the one that stops";
}

TEST_F(VerificaSenzaScheda, CloseHasTheKeyboardWhereNothingWasFound) {
  Apri();
  Finish();
  ASSERT_EQ(Rows(), 0);
  EXPECT_EQ(forma->focusWidget(), forma->picChiudi);
  Tasto(*forma, Qt::Key_Return);
  EXPECT_FALSE(forma.Caricata());
}

}  // namespace
}  // namespace kvr5
