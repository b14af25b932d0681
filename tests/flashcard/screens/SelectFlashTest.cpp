#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QPointer>
#include <QTest>
#include <map>

#include "core/screens/frmSiNo.h"
#include "flashcard/screens/VociScheda.h"
#include "flashcard/screens/frmSelectFlash.h"
#include "platform/Fold.h"
#include "support/screens/BancoSchermi.h"
#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"

// The dialog that says which drive is the card.

namespace kvr5 {
namespace {

using test::Pilota;

/// Drives of a test: each entry with its type and what listing its root fails with.
class DriveFinti : public SorgenteDrive {
 public:
  void Aggiungi(const std::string& voce, std::uint32_t tipo = tipo_drive::Rimovibile,
                int errore = 0) {
    voci_.push_back(voce);
    tipi_[FoldCase(voce.substr(0, 2) + "\\")] = tipo;
    errori_[FoldCase(voce.substr(0, 2) + "\\")] = errore;
  }
  std::vector<std::string> Voci() override { return voci_; }
  std::uint32_t Tipo(const std::string& radice) override { return tipi_.at(FoldCase(radice)); }
  Error Elenca(const std::string& radice) override {
    const int error = errori_.at(FoldCase(radice));
    return error == 0 ? Error() : Error(error);
  }
  std::vector<Drive> Fatti() override {
    ++Sguardi;
    std::vector<Drive> drives;
    for (const auto& entry : voci_) {
      Drive drive;
      drive.Letter = static_cast<char>(entry[0] - 'a' + 'A');
      drive.Label = std::string("CARD-") + drive.Letter;
      if (drive.Root() != Estratta) drives.push_back(drive);
    }
    return drives;
  }

  std::string Estratta;  ///< the root of a card that has been taken out
  int Sguardi = 0;       ///< how often the facts were asked for

 private:
  std::vector<std::string> voci_;
  std::map<std::string, std::uint32_t> tipi_;
  std::map<std::string, int> errori_;
};

class SelectFlash : public testing::Test {
 protected:
  ~SelectFlash() override { delete form; }
  /// Shows the dialog; `use` works on it while it waits.
  void Show(std::function<void(frmSelectFlash&)> use) {
    form = new frmSelectFlash(b.A, drives);
    form->FormChiamante = Schermata::Configurazione;
    const Pilota<frmSelectFlash> user(std::move(use));
    form->MostraModale();
  }
  /// Shows the dialog that finds no card, and takes its notice.
  void ShowWithoutCard() {
    form = new frmSelectFlash(b.A, drives);
    form->FormChiamante = Schermata::Configurazione;
    const Pilota<frmSiNo> notice([](frmSiNo& box) {
      EXPECT_EQ(box.windowTitle().toStdString(), "No memory card");
      EXPECT_EQ(box.lblNota->text().toStdString(),
                "No memory card was found. Put it into the reader, wait a moment, then repeat.");
      EXPECT_FALSE(box.cmdNo->isVisible());
      EXPECT_EQ(box.lblYes->text().toStdString(), "OK");
      test::Clicca(*box.cmdSi);
    });
    form->MostraModale();
    EXPECT_TRUE(form == nullptr || form->Scaricata());
    EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
  }
  static std::string Items(frmSelectFlash& dialog) {
    std::string all;
    for (int i = 0; i < dialog.cmdFlash->count(); ++i) {
      all += dialog.cmdFlash->itemText(i).toStdString();
    }
    return all;
  }

  test::BancoSchermi b;
  DriveFinti drives;
  QPointer<frmSelectFlash> form;
};

TEST_F(SelectFlash, WithoutAnyDriveSaysSoAndGoes) {
  ShowWithoutCard();
}

TEST_F(SelectFlash, WithFixedDisksAndAFloppyOnlySaysSoAndGoes) {
  drives.Aggiungi("a:");
  drives.Aggiungi("c: [SYSTEM]", 3);
  b.C.Stato.SelezioneFlashAnnullata = true;
  b.C.Stato.PercorsoMemoryCard = "F:\\";
  ShowWithoutCard();
  EXPECT_FALSE(b.C.Stato.SelezioneFlashAnnullata);
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "F:\\") << "the card from before stays";
}

TEST_F(SelectFlash, OffersReadersWithACardAndNeverAFloppyLetter) {
  drives.Aggiungi("b:");
  drives.Aggiungi("e:", tipo_drive::Rimovibile, errors::BadFileName);
  drives.Aggiungi("f: [SHOP]");
  drives.Aggiungi("g:", tipo_drive::Rimovibile, errors::DeviceIo);
  Show([](frmSelectFlash& dialog) {
    EXPECT_EQ(Items(dialog), "F:\\G:\\");
    EXPECT_EQ(dialog.cmdFlash->currentIndex(), 0);
    EXPECT_NE(dialog.lblFatti->text().indexOf(QStringLiteral("CARD-F")), -1);
    test::Clicca(dialog, "picCancel");
  });
}

TEST_F(SelectFlash, EnterOnTheListTakesTheSelectedCard) {
  drives.Aggiungi("e:");
  drives.Aggiungi("f:");
  Show([](frmSelectFlash& dialog) {
    ASSERT_TRUE(test::Pronta(dialog));
    test::Tasto(dialog, Qt::Key_Down);
    test::Tasto(dialog, Qt::Key_Return);
  });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "F:\\");
}

TEST_F(SelectFlash, OkTakesTheSelectedCardAndHasItShown) {
  drives.Aggiungi("e:");
  drives.Aggiungi("f:");
  Show([](frmSelectFlash& dialog) {
    QTest::keyClick(dialog.cmdFlash, Qt::Key_Down);
    EXPECT_NE(dialog.lblFatti->text().indexOf(QStringLiteral("CARD-F")), -1) << "its facts follow";
    test::Clicca(dialog, "picOk");
  });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "F:\\");
  EXPECT_FALSE(b.C.Stato.SelezioneFlashAnnullata);
  EXPECT_EQ(b.Schermi.PercorsiAggiornati, 1);
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
}

TEST_F(SelectFlash, ForAnotherScreenNoLabelIsRefreshed) {
  drives.Aggiungi("e:");
  Show([](frmSelectFlash& dialog) {
    dialog.FormChiamante = Schermata::ElencoProgetti;
    test::Clicca(dialog, "picOk");
  });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "E:\\");
  EXPECT_EQ(b.Schermi.PercorsiAggiornati, 0);
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::ElencoProgetti});
}

TEST_F(SelectFlash, CancelKeepsTheOldCardAndRaisesTheFlag) {
  drives.Aggiungi("e:");
  b.C.Stato.PercorsoMemoryCard = "F:\\";
  Show([](frmSelectFlash& dialog) { test::Clicca(dialog, "picCancel"); });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "F:\\");
  EXPECT_TRUE(b.C.Stato.SelezioneFlashAnnullata);
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
}

TEST_F(SelectFlash, EscAndTheWindowsOwnButtonCancel) {
  drives.Aggiungi("e:");
  b.C.Stato.PercorsoMemoryCard = "F:\\";
  Show([](frmSelectFlash& dialog) { test::Tasto(dialog, Qt::Key_Escape); });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "F:\\");
  EXPECT_TRUE(b.C.Stato.SelezioneFlashAnnullata);
  Show([](frmSelectFlash& dialog) { dialog.close(); });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "F:\\");
  EXPECT_TRUE(b.C.Stato.SelezioneFlashAnnullata)
      << "the work that asked goes on with no older card";
  EXPECT_EQ(b.Schermi.Mostrate.size(), 2U) << "the caller comes back each time";
}

TEST_F(SelectFlash, ExploreOpensTheCardAndStays) {
  drives.Aggiungi("e:");
  Show([this](frmSelectFlash& dialog) {
    test::Clicca(dialog, "picOpen");
    EXPECT_EQ(b.Documenti.Aperti, std::vector<std::string>{"E:\\"});
    EXPECT_TRUE(dialog.isVisible());
    test::Clicca(dialog, "picCancel");
  });
}

TEST_F(SelectFlash, F1OpensTheHelp) {
  drives.Aggiungi("e:");
  Show([this](frmSelectFlash& dialog) {
    test::Tasto(dialog, Qt::Key_F1);
    EXPECT_FALSE(test::PuntatoreOccupato());
    test::Clicca(dialog, "picCancel");
  });
  ASSERT_EQ(b.Documenti.Aperti.size(), 1U);
  EXPECT_TRUE(b.Documenti.Aperti[0].starts_with(b.Percorso("program/Help") + "\\"));
}

TEST_F(SelectFlash, EachItemOfTheListCarriesItsCardsFacts) {
  drives.Aggiungi("e:");
  drives.Aggiungi("f:");
  Show([](frmSelectFlash& dialog) {
    for (const int item : {0, 1}) {
      const auto facts = dialog.cmdFlash->itemData(item, VociScheda::Fatti).toString();
      EXPECT_TRUE(facts.startsWith(item == 0 ? "CARD-E" : "CARD-F")) << facts.toStdString();
      EXPECT_EQ(dialog.cmdFlash->itemData(item, Qt::AccessibleDescriptionRole).toString(), facts);
    }
    EXPECT_EQ(dialog.cmdFlash->itemText(1), "F:\\") << "the text stays the bare root";
    dialog.cmdFlash->showPopup();
    const auto* list = dialog.cmdFlash->view();
    EXPECT_GE(list->sizeHintForRow(0), 40) << "room for two lines";
    dialog.cmdFlash->hidePopup();
    test::Clicca(*dialog.picCancel);
  });
}

TEST_F(SelectFlash, AScreenReaderHearsTheFactsOfTheSelectedCardWithTheList) {
  drives.Aggiungi("e:");
  drives.Aggiungi("f:");
  Show([this](frmSelectFlash& dialog) {
    const auto heard = [&] { return dialog.cmdFlash->accessibleDescription().toStdString(); };
    EXPECT_TRUE(heard().starts_with("CARD-E")) << heard();
    EXPECT_TRUE(heard().ends_with(". No project is on it.")) << heard();
    QTest::keyClick(dialog.cmdFlash, Qt::Key_Down);
    EXPECT_TRUE(heard().starts_with("CARD-F")) << heard();
    drives.Estratta = "F:\\";
    EXPECT_TRUE(QTest::qWaitFor([&] { return heard() == "taken out: put it back in"; }, 6000));
    test::Clicca(dialog, "picCancel");
  });
}

TEST_F(SelectFlash, ACardThatIsTakenOutWhileTheDialogStandsSaysSoAndStaysChosen) {
  drives.Aggiungi("e:");
  Show([this](frmSelectFlash& dialog) {
    drives.Estratta = "E:\\";
    EXPECT_TRUE(QTest::qWaitFor(
        [&dialog] { return dialog.lblFatti->text() == "taken out: put it back in"; }));
    EXPECT_EQ(dialog.cmdFlash->currentText(), "E:\\");
    EXPECT_EQ(dialog.lblContenuto->text(), "") << "not that it holds no project";
    drives.Estratta.clear();
    EXPECT_TRUE(
        QTest::qWaitFor([&dialog] { return dialog.lblFatti->text().startsWith("CARD-E"); }));
    test::Clicca(*dialog.picCancel);
  });
}

TEST_F(SelectFlash, WatchesAllItsCardsByOneLookATime) {
  for (const char* entry : {"e:", "f:", "g:", "h:"}) drives.Aggiungi(entry);
  Show([this](frmSelectFlash& dialog) {
    EXPECT_EQ(drives.Sguardi, 1) << "the load";
    drives.Estratta = "G:\\";
    EXPECT_TRUE(QTest::qWaitFor([&dialog] { return dialog.cmdFlash->count() == 3; }));
    EXPECT_EQ(drives.Sguardi, 2) << "one beat";
    EXPECT_EQ(dialog.cmdFlash->itemText(2), "H:\\");
    EXPECT_EQ(dialog.cmdFlash->itemData(2, VociScheda::Fatti).toString().left(6), "CARD-H");
    test::Clicca(*dialog.picCancel);
  });
}

TEST_F(SelectFlash, ACardThatIsPutInWhileTheListIsOpenJoinsItAndTheChoiceStays) {
  for (const char* entry : {"f:", "g:"}) drives.Aggiungi(entry);
  Show([this](frmSelectFlash& dialog) {
    dialog.cmdFlash->setCurrentIndex(1);
    dialog.cmdFlash->showPopup();
    drives.Aggiungi("e:");
    EXPECT_TRUE(QTest::qWaitFor([&dialog] { return dialog.cmdFlash->count() == 3; }));
    EXPECT_EQ(dialog.cmdFlash->itemText(0), "E:\\");
    EXPECT_EQ(dialog.cmdFlash->currentText(), "G:\\");
    EXPECT_TRUE(dialog.cmdFlash->view()->isVisible());
    dialog.cmdFlash->hidePopup();
    test::Clicca(*dialog.picOk);
  });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "G:\\");
}

}  // namespace
}  // namespace kvr5
