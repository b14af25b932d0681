#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>

#include "core/screens/Coppia.h"
#include "core/screens/RiquadroMessaggio.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;

class Riquadri : public testing::Test {
 protected:
  Risposta Mostra(Pulsanti buttons, const std::function<void(RiquadroMessaggio&)>& user,
                  Risposta standard = Risposta::Ok) {
    const Pilota<RiquadroMessaggio> pilot([&](RiquadroMessaggio& box) {
      EXPECT_TRUE(Pronta(box));
      user(box);
    });
    return b.C.Finestre.MostraMessaggio({"Title", "One\r\ntwo", Icona::Domanda, buttons, standard});
  }

  BancoSchermi b;
};

TEST_F(Riquadri, ShowsTitleAndTextLineByLine) {
  Mostra(Pulsanti::Ok, [](RiquadroMessaggio& box) {
    EXPECT_EQ(box.windowTitle(), "Title");
    EXPECT_EQ(Scritta(box, "lblTitolo"), "Title");
    EXPECT_EQ(Scritta(box, "lblTesto"), "One\ntwo");
    box.close();
  });
}

TEST_F(Riquadri, HaveTheSizeOfTheirWordsAndKeepIt) {
  Mostra(Pulsanti::Ok, [](RiquadroMessaggio& box) {
    EXPECT_EQ(box.minimumSize(), box.size());
    EXPECT_EQ(box.maximumSize(), box.size());
    box.close();
  });
}

TEST_F(Riquadri, EachButtonGivesItsAnswer) {
  const auto press = [](const char* name) {
    return [name](RiquadroMessaggio& box) { Clicca(box, name); };
  };
  EXPECT_EQ(Mostra(Pulsanti::Ok, press("cmdOk")), Risposta::Ok);
  EXPECT_EQ(Mostra(Pulsanti::SiNo, press("cmdYes")), Risposta::Si);
  EXPECT_EQ(Mostra(Pulsanti::SiNo, press("cmdNo")), Risposta::No);
  EXPECT_EQ(Mostra(Pulsanti::SiNoAnnulla, press("cmdYes")), Risposta::Si);
  EXPECT_EQ(Mostra(Pulsanti::SiNoAnnulla, press("cmdNo")), Risposta::No);
  EXPECT_EQ(Mostra(Pulsanti::SiNoAnnulla, press("cmdCancel")), Risposta::Annulla);
}

TEST_F(Riquadri, TheWindowsOwnButtonAndEscAreTheCancelOrNoWhereThereIsNone) {
  const auto close = [](RiquadroMessaggio& box) { box.close(); };
  const auto escape = [](RiquadroMessaggio& box) { Tasto(box, Qt::Key_Escape); };
  EXPECT_EQ(Mostra(Pulsanti::Ok, close), Risposta::Ok);
  EXPECT_EQ(Mostra(Pulsanti::SiNo, close), Risposta::No);
  EXPECT_EQ(Mostra(Pulsanti::SiNoAnnulla, close), Risposta::Annulla);
  EXPECT_EQ(Mostra(Pulsanti::SiNo, escape), Risposta::No);
  EXPECT_EQ(Mostra(Pulsanti::SiNoAnnulla, escape), Risposta::Annulla);
}

TEST_F(Riquadri, EnterPressesTheButtonThatTheCallerMadeTheDefault) {
  const auto enter = [](RiquadroMessaggio& box) { Tasto(box, Qt::Key_Return); };
  EXPECT_EQ(Mostra(Pulsanti::Ok, enter), Risposta::Ok);
  EXPECT_EQ(Mostra(Pulsanti::SiNo, enter, Risposta::Si), Risposta::Si);
  EXPECT_EQ(Mostra(Pulsanti::SiNo, enter, Risposta::No), Risposta::No);
  EXPECT_EQ(Mostra(Pulsanti::SiNoAnnulla, enter, Risposta::Annulla), Risposta::Annulla);
}

TEST_F(Riquadri, CopyTakesTitleAndTextWithoutTheBreaksThatMakeThemFit) {
  const std::string path(300, 'x');
  const Pilota<RiquadroMessaggio> pilot([](RiquadroMessaggio& box) {
    EXPECT_TRUE(Pronta(box));
    Tasto(box, Qt::Key_C, Qt::ControlModifier);
    box.close();
  });
  QGuiApplication::clipboard()->clear();
  b.C.Finestre.MostraMessaggio(
      {"Title", "One\r\n" + path, Icona::Avviso, Pulsanti::Ok, Risposta::Ok});
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "Title\n\nOne\n" + path);
}

TEST_F(Riquadri, OnlyTheButtonsAskedForAreThere) {
  Mostra(Pulsanti::SiNo, [](RiquadroMessaggio& box) {
    EXPECT_EQ(box.findChildren<Coppia*>().size(), 2);
    EXPECT_EQ(box.findChild<Coppia*>("cmdCancel"), nullptr);
    box.close();
  });
}

TEST_F(Riquadri, WithoutALanguageTheButtonsSpeakEnglish) {
  b.C.Stato.FileLingua = b.Percorso("gone.lan");
  Mostra(Pulsanti::SiNoAnnulla, [](RiquadroMessaggio& box) {
    EXPECT_EQ(Controllo<Coppia>(box, "cmdYes").Scritta(), "Yes");
    EXPECT_EQ(Controllo<Coppia>(box, "cmdNo").Scritta(), "No");
    EXPECT_EQ(Controllo<Coppia>(box, "cmdCancel").Scritta(), "Cancel");
    box.close();
  });
}

TEST_F(Riquadri, ALongTextShowsWhole) {
  std::string text;
  for (int i = 0; i < 60; ++i) text += "Quite a few words of a message. ";
  const Pilota<RiquadroMessaggio> pilot([](RiquadroMessaggio& box) {
    const auto& label = Controllo<QLabel>(box, "lblTesto");
    EXPECT_GE(label.height(), label.heightForWidth(label.width()));
    EXPECT_TRUE(box.rect().contains(Controllo(box, "cmdOk").geometry()));
    box.close();
  });
  b.C.Finestre.MostraMessaggio({"Title", text, Icona::Avviso, Pulsanti::Ok, Risposta::Ok});
}

TEST_F(Riquadri, TheBusyPointerIsOffWhileTheBoxStands) {
  b.C.Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  Mostra(Pulsanti::Ok, [](RiquadroMessaggio& box) {
    EXPECT_FALSE(PuntatoreOccupato());
    box.close();
  });
  EXPECT_TRUE(PuntatoreOccupato());
}

}  // namespace
}  // namespace kvr5
