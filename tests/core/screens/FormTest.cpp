#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <functional>

#include "core/screens/Coppia.h"
#include "core/screens/Form.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;

class FormDiProva : public Form {
 public:
  explicit FormDiProva(Ambiente& ambiente) : Form(ambiente, "frmProva") {}

  int Membro = 7;
  static inline int Caricamenti = 0;
  static inline int Scarichi = 0;
  static inline int Attivazioni = 0;
  static inline std::vector<Causa> Cause;
  static inline std::function<void()> NelCaricamento;
  static inline std::function<void()> NelloScarico;
  bool Rifiuta = false;
  /// Closes itself in the middle of a handler that lets events run; true while it was still there.
  bool ChiudiNelMezzo() {
    const Impegno stays(*this);
    close();
    QCoreApplication::processEvents();
    return Caricata();
  }
  using Form::Aiuto;
  using Form::SuInvio;
  using Form::SuSalva;

 protected:
  void AlCaricamento() override {
    ++Caricamenti;
    if (NelCaricamento) NelCaricamento();
  }
  void AllAttivazione() override { ++Attivazioni; }
  bool PuoChiudere(Causa causa) override {
    Cause.push_back(causa);
    return !Rifiuta;
  }
  void AlloScarico() override {
    ++Scarichi;
    if (NelloScarico) NelloScarico();
  }
};

class VitaDiUnaForm : public ProvaForm<FormDiProva> {
 protected:
  VitaDiUnaForm() {
    FormDiProva::Caricamenti = FormDiProva::Scarichi = FormDiProva::Attivazioni = 0;
    FormDiProva::Cause.clear();
    FormDiProva::NelCaricamento = {};
    FormDiProva::NelloScarico = {};
  }
};

TEST_F(VitaDiUnaForm, SettingAPlainMemberDoesNotLoad) {
  forma->Membro = 3;
  EXPECT_FALSE(forma.Caricata());
  EXPECT_EQ(FormDiProva::Caricamenti, 0);
  EXPECT_EQ(b.Vita.Quante(), 0);
}

TEST_F(VitaDiUnaForm, TheFirstShowLoadsAndLaterOnesDoNot) {
  forma->Membro = 3;
  Apri();
  EXPECT_EQ(FormDiProva::Caricamenti, 1);
  EXPECT_EQ(forma->Membro, 3);
  forma->Mostra();
  EXPECT_EQ(FormDiProva::Caricamenti, 1);
  EXPECT_EQ(b.Vita.Quante(), 1);
}

TEST_F(VitaDiUnaForm, AskedToLoadItLoadsOnceAndStaysUnseen) {
  forma->Carica();
  forma->Carica();
  EXPECT_EQ(FormDiProva::Caricamenti, 1);
  EXPECT_FALSE(forma->isVisible());
  Apri();
  EXPECT_EQ(FormDiProva::Caricamenti, 1);
}

TEST_F(VitaDiUnaForm, HiddenItStaysLoadedAndIsShownWithoutALoad) {
  Apri().Membro = 9;
  forma->Nascondi();
  EXPECT_TRUE(forma.Caricata());
  EXPECT_EQ(b.Vita.Quante(), 1);
  EXPECT_EQ(Apri().Membro, 9);
  EXPECT_EQ(FormDiProva::Caricamenti, 1);
  EXPECT_EQ(FormDiProva::Scarichi, 0);
}

TEST_F(VitaDiUnaForm, UnloadedItIsMadeAfreshWithItsInitialMembers) {
  Apri().Membro = 9;
  const QPointer<FormDiProva> old = &*forma;
  forma->Scarica();
  EXPECT_FALSE(forma.Caricata());
  EXPECT_FALSE(old->isVisible());
  EXPECT_EQ(forma->Membro, 7);
  EXPECT_EQ(FormDiProva::Caricamenti, 1) << "the next one isn't loaded by being looked at";
  Apri();
  EXPECT_EQ(FormDiProva::Caricamenti, 2);
  EXPECT_TRUE(QTest::qWaitFor([&] { return old.isNull(); })) << "the old one is deleted";
}

TEST_F(VitaDiUnaForm, UnloadingAFormThatIsNotLoadedDoesNothing) {
  forma.Scarica();
  forma->Scarica();
  EXPECT_EQ(FormDiProva::Scarichi, 0);
  EXPECT_TRUE(FormDiProva::Cause.empty());
  EXPECT_EQ(b.UltimeScaricate, 0);
}

TEST_F(VitaDiUnaForm, CtrlSPressesTheSaveButtonOnceTheFieldIsLeft) {
  auto* save = new Coppia("picSave", "lblSave", "Save", "salva", -1, &*forma);
  auto* field = new QLineEdit(&*forma);
  std::string happened;
  QObject::connect(field, &QLineEdit::editingFinished, &*forma, [&] { happened += "left "; });
  QObject::connect(save, &QAbstractButton::clicked, &*forma, [&] { happened += "saved "; });
  forma->SuSalva(*save);
  ASSERT_TRUE(Pronta(Apri()));
  field->setFocus();
  QTest::keyClicks(field, QStringLiteral("5"));
  QTest::keyClick(field, Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(happened, "left saved ");
  EXPECT_EQ(field->text(), "5");
  save->setEnabled(false);
  QTest::keyClick(field, Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(happened, "left saved ") << "a button that is disabled can't be pressed";
}

/// Gives a form a button "Next" that Enter presses, and counts the presses.
void NextOnEnter(FormDiProva& form, int& pressed) {
  auto* next = new Coppia("cmdAvanti", "lblAvanti", "Next", "fatto", -1, &form);
  QObject::connect(next, &QAbstractButton::clicked, &form, [&pressed] { ++pressed; });
  form.SuInvio(*next);
}

/// A choice as on a desktop where Enter presses it, or opens it.
template <class T>
class Eager : public T {
 public:
  using T::T;
  bool Taken = false;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
      return T::keyPressEvent(event);
    }
    Taken = true;
  }
};

template <class T>
class EagerChoice : public VitaDiUnaForm {};

using Choices = testing::Types<QCheckBox, QRadioButton, QComboBox>;
TYPED_TEST_SUITE(EagerChoice, Choices);

TYPED_TEST(EagerChoice, LeavesEnterToTheButtonOfItsForm) {
  auto* choice = new Eager<TypeParam>(&*this->forma);
  int pressed = 0;
  NextOnEnter(*this->forma, pressed);
  FormDiProva& form = this->Apri();
  ASSERT_TRUE(Pronta(form));
  choice->setFocus();
  Tasto(form, Qt::Key_Return);
  EXPECT_EQ(pressed, 1);
  Tasto(form, Qt::Key_Enter);
  EXPECT_EQ(pressed, 2);
  EXPECT_FALSE(choice->Taken);
}

TEST_F(VitaDiUnaForm, EnterPressesItsButtonUnlessTheFocusIsOnOneThatTakesTheKey) {
  auto* option = new QRadioButton(&*forma);
  auto* text = new QLineEdit(&*forma);
  auto* other = new Coppia("cmdAltro", "lblAltro", "Other", "fatto", -1, &*forma);
  int pressed = 0;
  NextOnEnter(*forma, pressed);
  FormDiProva& form = Apri();
  ASSERT_TRUE(Pronta(form));
  const auto enterOn = [&](QWidget* control) {
    control->setFocus();
    Tasto(form, Qt::Key_Return);
    return pressed;
  };
  EXPECT_EQ(enterOn(option), 1);
  EXPECT_EQ(enterOn(text), 1) << "a line of text has its own use for it";
  EXPECT_EQ(enterOn(other), 1) << "that button is pressed instead";
  form.findChild<QAbstractButton*>("cmdAvanti")->setEnabled(false);
  EXPECT_EQ(enterOn(option), 1);
}

TEST_F(VitaDiUnaForm, WhatTheUserDidAfterItWentReachesNoControl) {
  auto* button = new Coppia("cmdAvanti", "lblAvanti", "Next", "fatto", -1, &*forma);
  button->resize(100, 40);
  int pressed = 0;
  QObject::connect(button, &QAbstractButton::clicked, &*forma, [&] { ++pressed; });
  FormDiProva& form = Apri();
  ASSERT_TRUE(Pronta(form));
  button->setFocus();
  const auto pressTwice = [&] {
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, button->geometry().center());
    QTest::keyClick(form.windowHandle(), Qt::Key_Space);
  };
  pressTwice();
  EXPECT_EQ(pressed, 2);
  form.Nascondi();
  pressTwice();
  EXPECT_EQ(pressed, 2);
  Apri();
  ASSERT_TRUE(Pronta(form));
  button->setFocus();
  pressTwice();
  EXPECT_EQ(pressed, 4) << "shown again it hears again";
}

TEST_F(VitaDiUnaForm, TheWindowsOwnButtonAsksAsTheUser) {
  Apri().close();
  EXPECT_EQ(FormDiProva::Cause, std::vector{Form::Causa::Utente});
  EXPECT_EQ(FormDiProva::Scarichi, 1);
  EXPECT_FALSE(forma.Caricata());
}

TEST_F(VitaDiUnaForm, UnloadedByCodeItIsAskedAsSuch) {
  Apri().Scarica();
  EXPECT_EQ(FormDiProva::Cause, std::vector{Form::Causa::Codice});
}

TEST_F(VitaDiUnaForm, ARefusalKeepsItOnTheScreen) {
  Apri().Rifiuta = true;
  forma->close();
  forma->Scarica();
  EXPECT_EQ(FormDiProva::Cause.size(), 2U);
  EXPECT_TRUE(forma->isVisible());
  EXPECT_TRUE(forma.Caricata());
  EXPECT_EQ(FormDiProva::Scarichi, 0);
}

TEST_F(VitaDiUnaForm, ClosedOnceMoreWhileItsUnloadLetsEventsRunItIsUnloadedOnce) {
  FormDiProva& form = Apri();
  FormDiProva::NelloScarico = [&form] {
    form.Scarica();
    form.close();
    QCoreApplication::processEvents();
  };
  form.Scarica();
  EXPECT_EQ(FormDiProva::Scarichi, 1);
  EXPECT_EQ(b.Vita.Quante(), 0);
  EXPECT_EQ(b.UltimeScaricate, 1);
}

TEST_F(VitaDiUnaForm, ClosedUnderAHandlerThatLetsEventsRunItGoesWhenThatHasEnded) {
  FormDiProva& form = Apri();
  EXPECT_TRUE(form.ChiudiNelMezzo());
  EXPECT_EQ(FormDiProva::Scarichi, 0);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !forma.Caricata(); }));
  EXPECT_EQ(FormDiProva::Scarichi, 1);
  EXPECT_EQ(FormDiProva::Cause, std::vector{Form::Causa::Utente});
}

TEST_F(VitaDiUnaForm, ClosedWhileItsHelpOpensItGoesWhenThatIsOpen) {
  FormDiProva& form = Apri();
  QMetaObject::invokeMethod(
      &form, [&form] { form.close(); }, Qt::QueuedConnection);
  form.Aiuto();
  EXPECT_EQ(b.Documenti.Aperti.size(), 1U);
  EXPECT_EQ(FormDiProva::Scarichi, 0);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !forma.Caricata(); }));
}

TEST_F(VitaDiUnaForm, ModalTheCallerWaitsUntilItIsUnloaded) {
  const Pilota<FormDiProva> pilot([](FormDiProva& form) {
    EXPECT_TRUE(form.isModal());
    form.close();
  });
  forma->MostraModale();
  EXPECT_EQ(FormDiProva::Scarichi, 1);
}

TEST_F(VitaDiUnaForm, ModalTheCallerWaitsUntilItIsHidden) {
  const Pilota<FormDiProva> pilot([](FormDiProva& form) { form.Nascondi(); });
  forma->MostraModale();
  EXPECT_TRUE(forma.Caricata());
}

TEST_F(VitaDiUnaForm, ModalOverAnotherFormItKeepsClicksFromThatOne) {
  FormDiProva below(b.A);
  below.Mostra();
  ASSERT_TRUE(Pronta(below));
  const Pilota<FormDiProva> pilot([&](FormDiProva& form) {
    EXPECT_NE(&form, &below);
    form.close();
  });
  forma->MostraModale();
  EXPECT_TRUE(below.isVisible());
  EXPECT_EQ(b.Vita.Quante(), 1);
}

TEST_F(VitaDiUnaForm, SentAwayByItsOwnLoadItIsNeverShown) {
  FormDiProva::NelCaricamento = [this] { forma->Scarica(); };
  FormDiProva& form = *forma;
  form.Mostra();
  EXPECT_FALSE(form.isVisible());
  EXPECT_FALSE(forma.Caricata());
  form.MostraModale();  // returns at once
  EXPECT_EQ(FormDiProva::Caricamenti, 1);
}

TEST_F(VitaDiUnaForm, ComingToTheFrontItIsActivated) {
  Apri();
  EXPECT_EQ(FormDiProva::Attivazioni, 1);
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(Pronta(other));
  forma->activateWindow();
  ASSERT_TRUE(Pronta(*forma));
  EXPECT_EQ(FormDiProva::Attivazioni, 2);
}

TEST_F(VitaDiUnaForm, TheProcessEndsWithTheLastLoadedFormHiddenOnesIncluded) {
  FormDiProva second(b.A);
  second.Carica();
  Apri();
  forma->Scarica();
  EXPECT_EQ(b.UltimeScaricate, 0) << "one is loaded still, unseen";
  second.Scarica();
  EXPECT_EQ(b.UltimeScaricate, 1);
}

}  // namespace
}  // namespace kvr5
