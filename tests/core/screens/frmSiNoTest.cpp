#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWindow>

#include "core/screens/FinestreQt.h"
#include "core/screens/Testo.h"
#include "core/screens/frmSiNo.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;

/// The box as the logic opens it.
class SiNo : public testing::Test {
 protected:
  std::uint8_t Chiedi(const std::function<void(frmSiNo&)>& user,
                      std::optional<std::string> onlyOk = {}, const std::string& note = "Sure?") {
    const Pilota<frmSiNo> pilot([&](frmSiNo& box) {
      EXPECT_TRUE(Pronta(box));
      user(box);
    });
    return b.C.Finestre.MostraSiNo({"Title", note, std::move(onlyOk), {}});
  }

  BancoSchermi b;
};

TEST_F(SiNo, YesIsOneAndNoIsTwo) {
  EXPECT_EQ(Chiedi([](frmSiNo& box) { Clicca(box, "cmdSi"); }), 1);
  EXPECT_EQ(b.C.Stato.RispostaSiNo, 1);
  EXPECT_EQ(Chiedi([](frmSiNo& box) { Clicca(box, "cmdNo"); }), 2);
  EXPECT_EQ(b.C.Stato.RispostaSiNo, 2);
}

TEST_F(SiNo, AQuestionThatTakesAwayHasTheKeyboardOnNoAndAPlainOneOnYes) {
  const auto space = [](frmSiNo& box) { Tasto(box, Qt::Key_Space); };
  EXPECT_EQ(Chiedi(space), 1);
  const Pilota<frmSiNo> pilot([&](frmSiNo& box) {
    EXPECT_TRUE(Pronta(box));
    EXPECT_EQ(box.cmdSi->GenereOra(), Coppia::Genere::Pericolo);
    EXPECT_EQ(box.cmdNo->GenereOra(), Coppia::Genere::Primario);
    space(box);
  });
  EXPECT_EQ(b.C.Finestre.MostraSiNo({"Title", "Remove?", {}, {}, true}), 2);
}

TEST_F(SiNo, LabelsAndPicturesAnswerAsTheirButtons) {
  EXPECT_EQ(Chiedi([](frmSiNo& box) { Clicca(box, "lblYes"); }), 1);
  EXPECT_EQ(Chiedi([](frmSiNo& box) { Clicca(box, "picSi"); }), 1);
  EXPECT_EQ(Chiedi([](frmSiNo& box) { Clicca(box, "lblNo"); }), 2);
  EXPECT_EQ(Chiedi([](frmSiNo& box) { Clicca(box, "picCancel"); }), 2);
}

TEST_F(SiNo, ShowsItsTitleItsQuestionAndTheLanguagesAnswers) {
  Chiedi(
      [](frmSiNo& box) {
        EXPECT_EQ(box.windowTitle(), "Title");
        EXPECT_EQ(Scritta(box, "lblNota"), "First line\nsecond line");
        EXPECT_EQ(Scritta(box, "lblYes"), "Yes");
        EXPECT_EQ(Scritta(box, "lblNo"), "No");
        box.close();
      },
      {}, "First line\r\nsecond line");
}

TEST_F(SiNo, ClosedByTheWindowsOwnButtonTheAnswerStaysClear) {
  b.C.Stato.RispostaSiNo = 1;
  EXPECT_EQ(Chiedi([](frmSiNo& box) { box.close(); }), 0);
  EXPECT_EQ(b.C.Stato.RispostaSiNo, 0);
}

TEST_F(SiNo, EscActsAsTheWindowsOwnButton) {
  EXPECT_EQ(Chiedi([](frmSiNo& box) { Tasto(box, Qt::Key_Escape); }), 0);
}

TEST_F(SiNo, WithTwoButtonsEnterDoesNothingWhereverTheFocusIs) {
  EXPECT_EQ(Chiedi([](frmSiNo& box) {
              for (QWidget* control :
                   {static_cast<QWidget*>(box.cmdSi), static_cast<QWidget*>(box.cmdNo)}) {
                control->setFocus();
                Tasto(box, Qt::Key_Return);
                Tasto(box, Qt::Key_Enter);
                EXPECT_TRUE(box.isVisible());
              }
              Clicca(box, "cmdNo");
            }),
            2);
}

TEST_F(SiNo, AClickOnTheQuestionDoesNothing) {
  EXPECT_EQ(Chiedi([](frmSiNo& box) {
              Clicca(box, "lblNota");
              EXPECT_TRUE(box.isVisible());
              Clicca(box, "cmdSi");
            }),
            1);
}

TEST_F(SiNo, ANoticeHasOneButtonWithTheTextPassedAndEnterAnswersOne) {
  EXPECT_EQ(Chiedi(
                [](frmSiNo& box) {
                  EXPECT_FALSE(box.cmdNo->isVisible());
                  EXPECT_EQ(Scritta(box, "lblYes"), "Understood");
                  Tasto(box, Qt::Key_Return);
                },
                "Understood"),
            1);
}

TEST_F(SiNo, TheButtonOfANoticeStandsInTheMiddle) {
  Chiedi(
      [](frmSiNo& box) {
        const int middle = box.cmdSi->geometry().center().x();
        EXPECT_NEAR(middle, box.rect().center().x(), 2);
        box.close();
      },
      "OK");
}

TEST_F(SiNo, AfterANoticeAQuestionHasBothButtonsAgain) {
  Chiedi([](frmSiNo& box) { Clicca(box, "cmdSi"); }, "OK");
  EXPECT_EQ(Chiedi([](frmSiNo& box) {
              EXPECT_TRUE(box.cmdNo->isVisible());
              EXPECT_EQ(Scritta(box, "lblYes"), "Yes");
              Clicca(box, "cmdNo");
            }),
            2);
}

TEST_F(SiNo, WithoutALanguageItsButtonsKeepTheirBuiltInCaptions) {
  b.C.Stato.FileLingua = b.Percorso("gone.lan");
  Chiedi([](frmSiNo& box) {
    EXPECT_EQ(Scritta(box, "lblYes"), "Yes");
    EXPECT_EQ(Scritta(box, "lblNo"), "No");
    Clicca(box, "cmdSi");
  });
  Chiedi(
      [](frmSiNo& box) {
        EXPECT_EQ(Scritta(box, "lblYes"), "OK");
        Clicca(box, "cmdSi");
      },
      std::string());
}

TEST_F(SiNo, ALongTextShowsWhole) {
  std::string note;
  for (int i = 0; i < 60; ++i) note += "Quite a few words of a question. ";
  Chiedi(
      [](frmSiNo& box) {
        const int needed = box.lblNota->heightForWidth(box.lblNota->width());
        EXPECT_GE(box.lblNota->height(), needed);
        EXPECT_TRUE(box.rect().contains(box.cmdSi->geometry()));
        box.close();
      },
      {}, note);
}

TEST_F(SiNo, AColourOfTheLogicIsTheQuestionsOwn) {
  const Pilota<frmSiNo> pilot([](frmSiNo& box) {
    EXPECT_EQ(box.lblNota->palette().color(QPalette::WindowText), QColor(255, 128, 0));
    box.close();
  });
  b.C.Finestre.MostraSiNo({"Title", "Note", {}, 33023});
}

TEST_F(SiNo, ItsLoadTakesTheBusyPointerOffForTheCallerToo) {
  b.C.Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  Chiedi([](frmSiNo& box) {
    EXPECT_FALSE(PuntatoreOccupato());
    box.close();
  });
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(SiNo, ReimpostaChangesNothing) {
  Chiedi([](frmSiNo& box) {
    box.Reimposta();
    EXPECT_EQ(Scritta(box, "lblNota"), "Sure?");
    EXPECT_TRUE(box.cmdNo->isVisible());
    box.close();
  });
}

/// Enter in all the ways in which a keyboard sends it.
const std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>> kEnters{
    {Qt::Key_Return, Qt::NoModifier},      {Qt::Key_Return, Qt::ShiftModifier},
    {Qt::Key_Return, Qt::ControlModifier}, {Qt::Key_Return, Qt::AltModifier},
    {Qt::Key_Return, Qt::MetaModifier},    {Qt::Key_Enter, Qt::NoModifier},
    {Qt::Key_Enter, Qt::KeypadModifier},   {Qt::Key_Enter, Qt::KeypadModifier | Qt::ShiftModifier},
};

TEST_F(SiNo, NoEnterWithAnotherKeyHeldAnswersAQuestionEither) {
  EXPECT_EQ(
      Chiedi([](frmSiNo& box) {
        for (QWidget* control : {static_cast<QWidget*>(box.cmdSi), static_cast<QWidget*>(box.cmdNo),
                                 static_cast<QWidget*>(&box)}) {
          control->setFocus();
          for (const auto& [key, held] : kEnters) {
            Tasto(box, key, held);
            EXPECT_TRUE(box.isVisible()) << key << " with " << held.toInt();
          }
        }
        box.close();
      }),
      0);
}

TEST_F(SiNo, AKeyThatComesAfterTheAnswerChangesNothing) {
  const std::uint8_t answer = Chiedi([](frmSiNo& box) {
    box.cmdNo->click();
    QKeyEvent late(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QCoreApplication::sendEvent(box.windowHandle(), &late);
    QCoreApplication::sendEvent(&box, &late);
    box.cmdSi->click();
  });
  EXPECT_EQ(answer, 2);
  EXPECT_EQ(b.C.Stato.RispostaSiNo, 2);
}

TEST_F(SiNo, CopyTakesItsWords) {
  QGuiApplication::clipboard()->clear();
  Chiedi([](frmSiNo& box) {
    Tasto(box, Qt::Key_C, Qt::ControlModifier);
    box.close();
  });
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "Title\n\nSure?");
}

TEST_F(SiNo, EveryEnterAnswersANotice) {
  for (const auto& [key, held] : kEnters) {
    EXPECT_EQ(Chiedi([&](frmSiNo& box) { Tasto(box, key, held); }, "OK"), 1)
        << key << " with " << held.toInt();
    EXPECT_EQ(Chiedi(
                  [&](frmSiNo& box) {
                    box.setFocus();
                    Tasto(box, key, held);
                  },
                  "OK"),
              1)
        << "wherever the focus is";
  }
}

TEST_F(SiNo, AnEnterThatIsStillHeldDownFromBeforeAnswersNoNotice) {
  Chiedi(
      [](frmSiNo& box) {
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
        QCoreApplication::sendEvent(box.cmdSi, &again);
        EXPECT_TRUE(box.isVisible());
        Clicca(box, "cmdSi");
      },
      "OK");
}

}  // namespace
}  // namespace kvr5
