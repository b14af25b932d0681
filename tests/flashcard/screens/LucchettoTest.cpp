#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QTest>

#include "flashcard/screens/VociScheda.h"
#include "flashcard/screens/frmSelectFlash.h"
#include "support/screens/BancoSchermi.h"
#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"

// The padlock of a card that is write-protected.

namespace kvr5 {
namespace {

using test::Pilota;

/// Two cards, E and F, of which one is locked.
class DriveConLucchetto : public SorgenteDrive {
 public:
  std::vector<std::string> Voci() override { return {"e:", "f:"}; }
  std::uint32_t Tipo(const std::string& /*radice*/) override { return tipo_drive::Rimovibile; }
  Error Elenca(const std::string& /*radice*/) override { return {}; }
  std::vector<Drive> Fatti() override {
    std::vector<Drive> drives;
    for (const char letter : {'E', 'F'}) {
      Drive drive;
      drive.Letter = letter;
      drive.Label = std::string("CARD-") + letter;
      drive.ReadOnly = letter == Bloccata;
      drive.HasMedium = letter != Vuota;
      drives.push_back(drive);
    }
    return drives;
  }

  char Bloccata = 'F';
  char Vuota = '\0';  ///< a reader whose card is out
};

class Lucchetto : public testing::Test {
 protected:
  ~Lucchetto() override { delete form; }
  void Show(std::function<void(frmSelectFlash&)> use) {
    form = new frmSelectFlash(b.A, drives);
    const Pilota<frmSelectFlash> user([&use](frmSelectFlash& dialog) {
      use(dialog);
      test::Clicca(dialog, "picCancel");
    });
    form->MostraModale();
  }
  /// Whether a sign stands before the facts of the selected card.
  static bool HasSign(const frmSelectFlash& dialog) {
    const auto labels = dialog.findChildren<QLabel*>();
    return std::ranges::any_of(labels, [&dialog](const QLabel* label) {
      return label->isVisible() && !label->pixmap().isNull() &&
             label->geometry().right() < dialog.lblFatti->geometry().left();
    });
  }
  static bool IsLocked(const frmSelectFlash& dialog, int item) {
    return dialog.cmdFlash->itemData(item, VociScheda::Bloccata).toBool();
  }
  /// An item of the open list as it is painted.
  static QImage Painted(const frmSelectFlash& dialog, int item) {
    QImage image(400, 48, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = image.rect();
    option.widget = dialog.cmdFlash;
    const VociScheda delegate;
    delegate.paint(&painter, option, dialog.cmdFlash->model()->index(item, 0));
    return image;
  }

  test::BancoSchermi b;
  DriveConLucchetto drives;
  QPointer<frmSelectFlash> form;
};

TEST_F(Lucchetto, StandsBeforeTheFactsOfAProtectedCardAndOfNoOther) {
  Show([](frmSelectFlash& dialog) {
    EXPECT_FALSE(HasSign(dialog)) << "E";
    QTest::keyClick(dialog.cmdFlash, Qt::Key_Down);
    EXPECT_EQ(dialog.cmdFlash->currentText(), "F:\\");
    EXPECT_TRUE(HasSign(dialog)) << "F";
    QTest::keyClick(dialog.cmdFlash, Qt::Key_Up);
    EXPECT_FALSE(HasSign(dialog)) << "E again";
  });
}

TEST_F(Lucchetto, IsPaintedInTheItemOfAProtectedCardAndOfNoOther) {
  Show([](frmSelectFlash& dialog) {
    for (const int item : {0, 1}) EXPECT_EQ(IsLocked(dialog, item), item == 1) << item;
    const QImage locked = Painted(dialog, 1);
    dialog.cmdFlash->setItemData(1, false, VociScheda::Bloccata);
    const QImage open = Painted(dialog, 1);
    EXPECT_NE(locked, open);
    const QRect facts(0, 0, 340, 48);
    EXPECT_EQ(locked.copy(facts), open.copy(facts)) << "it covers nothing of root and facts";
  });
}

TEST_F(Lucchetto, FollowsTheLockThatIsOpenedWhileTheDialogStands) {
  Show([this](frmSelectFlash& dialog) {
    QTest::keyClick(dialog.cmdFlash, Qt::Key_Down);
    EXPECT_TRUE(HasSign(dialog));
    drives.Bloccata = '\0';
    EXPECT_TRUE(QTest::qWaitFor([&] { return !HasSign(dialog); }));
    EXPECT_FALSE(IsLocked(dialog, 1));
  });
}

TEST_F(Lucchetto, GoesWithTheCardThatIsTakenOut) {
  Show([this](frmSelectFlash& dialog) {
    QTest::keyClick(dialog.cmdFlash, Qt::Key_Down);
    EXPECT_TRUE(HasSign(dialog));
    drives.Vuota = 'F';
    EXPECT_TRUE(QTest::qWaitFor([&] { return !HasSign(dialog); }));
    EXPECT_EQ(dialog.cmdFlash->currentText(), "F:\\") << "it stays chosen";
    EXPECT_FALSE(IsLocked(dialog, 1));
  });
}

}  // namespace
}  // namespace kvr5
