#include <gtest/gtest.h>

#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTest>
#include <QVBoxLayout>

#include "core/screens/Coppia.h"
#include "core/screens/Mnemonici.h"
#include "core/screens/PortaLettera.h"
#include "core/screens/Segmento.h"
#include "support/screens/Mano.h"

// The letters that lead to controls together with Alt.

namespace kvr5 {
namespace {

class Letters : public testing::Test {
 protected:
  Letters() { new QVBoxLayout(&window); }

  Coppia* Button(const QString& words) {
    auto* button = new Coppia("pic", "lbl", words, "salva", -1, &window);
    window.layout()->addWidget(button);
    QObject::connect(button, &QAbstractButton::clicked, &window,
                     [this, words] { pressed += words; });
    return button;
  }
  void Show() {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(test::Pronta(window));
  }
  /// What was pressed until this word came.
  std::string PressedUpTo(const char* word) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return pressed.endsWith(QLatin1String(word)); }));
    return pressed.toStdString();
  }
  /// The letters of all buttons in the order in which they were made, "-" for none.
  QString Given() const {
    QString letters;
    for (auto* each : window.findChildren<QAbstractButton*>()) {
      const QChar letter = dynamic_cast<Coppia*>(each)->Mnemonico();
      letters += letter.isNull() ? QLatin1Char('-') : letter;
    }
    return letters;
  }

  QWidget window;
  QString pressed;
};

TEST_F(Letters, AreTheFirstOnesOfTheWordsWhereTheyAreFree) {
  Button(QStringLiteral("Save"));
  Button(QStringLiteral("Record card"));
  Button(QStringLiteral("Report"));
  Button(QStringLiteral("Erase card"));
  Show();
  EXPECT_EQ(Given(), "SREC") << "Report has no other first letter, so it takes its second one, and "
                                "Erase card its second word's";
}

TEST_F(Letters, AreChosenFirstByTheButtonThatSavesAndStayWhatIsFilled) {
  Button(QStringLiteral("Set"));
  Button(QStringLiteral("Open"));
  ImpostaTurno(*Button(QStringLiteral("Save")), TurnoLettera::SalvaERegistra);
  Coppia* last = Button(QStringLiteral("OK"));
  Show();
  EXPECT_EQ(Given(), "EOSK");
  last->ImpostaGenere(Coppia::Genere::Primario);
  AssegnaMnemonici(window);
  EXPECT_EQ(Given(), "EOSK");
}

TEST_F(Letters, StayWhenAButtonComesThatIsNotThereAtAllTimes) {
  Button(QStringLiteral("Report"));
  Coppia* find = Button(QStringLiteral("Erp"));
  ImpostaTurno(*find, TurnoLettera::VieneEVa);
  find->hide();
  Button(QStringLiteral("Erase"));
  Show();
  EXPECT_EQ(Given(), "R-E");
  find->show();
  AssegnaMnemonici(window);
  EXPECT_EQ(Given(), "RPE");
  find->ImpostaScritta(QStringLiteral("Er"));
  AssegnaMnemonici(window);
  EXPECT_EQ(Given(), "R-E") << "it has none before another one moves";
}

TEST_F(Letters, LeaveTheFieldThatWasBeingFilled) {
  auto* field = new QLineEdit(&window);
  window.layout()->addWidget(field);
  QObject::connect(field, &QLineEdit::editingFinished, &window, [this] { pressed += "left "; });
  Button(QStringLiteral("Save"));
  Show();
  field->setFocus();
  QTest::keyClicks(field, QStringLiteral("5"));
  QTest::keyClick(field, Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(PressedUpTo("Save"), "left Save");
}

TEST_F(Letters, MoveOnForAButtonThatHasNoOther) {
  Button(QStringLiteral("OK"));
  Button(QStringLiteral("O"));
  Button(QStringLiteral("O"));
  Show();
  EXPECT_EQ(Given(), "KO-");
}

TEST_F(Letters, AreNoneWithAnAccent) {
  Button(QStringLiteral("\u00C9ffacer"));
  Show();
  EXPECT_EQ(Given(), "F");
}

TEST_F(Letters, PressTheirButtonWithAlt) {
  Button(QStringLiteral("Save"));
  Button(QStringLiteral("Cancel"));
  Show();
  QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !pressed.isEmpty(); }));
  EXPECT_EQ(pressed, "Cancel");
}

TEST_F(Letters, DoNothingForAButtonThatIsDisabled) {
  Button(QStringLiteral("Save"))->setEnabled(false);
  Button(QStringLiteral("Cancel"));
  Show();
  QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
  QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !pressed.isEmpty(); }));
  EXPECT_EQ(pressed, "Cancel");
}

TEST_F(Letters, FollowWordsThatChange) {
  Coppia* button = Button(QStringLiteral("Play"));
  Show();
  button->ImpostaScritta(QStringLiteral("Stop"));
  EXPECT_EQ(Given(), "-");
  QTest::keyPress(&window, Qt::Key_Alt);
  EXPECT_EQ(Given(), "S");
}

TEST_F(Letters, AreUnderlinedWhileAltIsHeld) {
  Coppia* button = Button(QStringLiteral("Save"));
  Show();
  const QImage plain = button->grab().toImage();
  QTest::keyPress(&window, Qt::Key_Alt);
  EXPECT_NE(button->grab().toImage(), plain);
  QTest::keyRelease(&window, Qt::Key_Alt);
  EXPECT_EQ(button->grab().toImage(), plain);
}

TEST_F(Letters, LeadToTheFieldOfALabel) {
  auto* name = new QLabel(QStringLiteral("Project name"), &window);
  auto* field = new QLineEdit(&window);
  name->setBuddy(field);
  window.layout()->addWidget(name);
  window.layout()->addWidget(field);
  Coppia* button = Button(QStringLiteral("Play"));
  Show();
  button->setFocus();
  EXPECT_EQ(LetteraDi(*name), QLatin1Char('N')) << "the buttons choose first";
  QTest::keyPress(&window, Qt::Key_Alt);
  QTest::keyClick(&window, Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(field->hasFocus());
  QTest::keyRelease(&window, Qt::Key_Alt);
  EXPECT_EQ(name->text(), "Project name");
}

TEST_F(Letters, OfWhatIsCountedAreTheDigitsAndTickTheBox) {
  QList<QCheckBox*> inputs;
  for (const char* name : {"IN1", "IN2"}) {
    inputs += new QCheckBox(&window);
    auto* words = new QLabel(QLatin1String(name), &window);
    words->setBuddy(inputs.back());
    window.layout()->addWidget(words);
    window.layout()->addWidget(inputs.back());
  }
  Coppia* button = Button(QStringLiteral("Now"));
  Show();
  EXPECT_EQ(button->Mnemonico(), QLatin1Char('N')) << "no letter is lost to them";
  button->setFocus();
  QTest::keyPress(&window, Qt::Key_Alt);
  QTest::keyClick(&window, Qt::Key_2, Qt::AltModifier);
  QTest::keyRelease(&window, Qt::Key_Alt);
  EXPECT_TRUE(QTest::qWaitFor([&inputs] { return inputs.back()->isChecked(); }));
  EXPECT_FALSE(inputs.front()->isChecked());
}

TEST_F(Letters, ChooseAnOptionAndLeaveTheFieldThatWasBeingFilled) {
  auto* field = new QLineEdit(&window);
  auto* option = new QRadioButton(QStringLiteral("Bed && breakfast"), &window);
  QObject::connect(field, &QLineEdit::editingFinished, &window, [this] { pressed += "left "; });
  QObject::connect(option, &QAbstractButton::clicked, &window, [this] { pressed += "chosen"; });
  Show();
  field->setFocus();
  QTest::keyClicks(field, QStringLiteral("5"));
  QTest::keyClick(field, Qt::Key_B, Qt::AltModifier);
  EXPECT_EQ(PressedUpTo("chosen"), "left chosen");
  EXPECT_TRUE(option->isChecked());
}

TEST_F(Letters, OfOptionsAndLabelsAreUnderlinedWithoutAChangeOfTheirTexts) {
  auto* option = new QRadioButton(QStringLiteral("Bed && breakfast"), &window);
  auto* words = new QLabel(QStringLiteral("Dogs"), &window);
  words->setBuddy(new QLineEdit(&window));
  for (QWidget* each : {static_cast<QWidget*>(option), static_cast<QWidget*>(words)}) {
    window.layout()->addWidget(each);
  }
  Show();
  const auto seen = [&] { return std::pair(option->grab().toImage(), words->grab().toImage()); };
  const auto plain = seen();
  const QSize size = window.sizeHint();
  QTest::keyPress(&window, Qt::Key_Alt);
  EXPECT_NE(seen().first, plain.first);
  EXPECT_NE(seen().second, plain.second);
  EXPECT_EQ(option->text(), "Bed && breakfast") << "a project is described by it";
  EXPECT_EQ(words->text(), "Dogs");
  EXPECT_EQ(window.sizeHint(), size) << "nothing moves";
  QTest::keyRelease(&window, Qt::Key_Alt);
  EXPECT_EQ(seen(), plain);
}

TEST_F(Letters, AreUnderlinedNoLongerWhenAltIsLetGoInAMenu) {
  auto* option = new QCheckBox(QStringLiteral("Bridge"), &window);
  window.layout()->addWidget(option);
  Show();
  const QImage plain = option->grab().toImage();
  QTest::keyPress(&window, Qt::Key_Alt);
  QMenu menu;
  menu.addAction(QStringLiteral("Eject"));
  menu.popup(window.mapToGlobal(QPoint()));
  EXPECT_NE(option->grab().toImage(), plain);
  QTest::keyRelease(&menu, Qt::Key_Alt);
  EXPECT_EQ(option->grab().toImage(), plain);
}

TEST_F(Letters, AreThoseThatAWordReallyHas) {
  Button(QStringLiteral("\u00DF"));
  EXPECT_EQ(PostoLettera(QStringLiteral("Gr\u00F6\u00DFen"), QLatin1Char('N')), 5);
  EXPECT_EQ(PostoLettera(QStringLiteral("\u00DF"), QLatin1Char('S')), -1);
  Show();
  EXPECT_EQ(Given(), "-");
}

TEST_F(Letters, AreNoneForTheSegmentsOfAStrip) {
  const Segmento segment("optOff", QStringLiteral("Off"), -1, &window);
  Show();
  EXPECT_FALSE(PortaLettera(segment)) << "most strips say Off";
}

}  // namespace
}  // namespace kvr5
