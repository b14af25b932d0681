#include <QCheckBox>
#include <filesystem>

#include "playerconfig/screens/BancoParametri.h"
#include "playerconfig/screens/frmConfig485.h"
#include "projects/Descrittore.h"

// The screen of the serial link, in both its forms. No button of the hub that a user can reach
// leads to it; it is complete all the same.

namespace kvr5 {
namespace {

using test::Clicca;
using Items = std::vector<std::string>;

using test::kDescriptor;

class Serial : public test::ProvaParametri<frmConfig485> {
 protected:
  /// Opens the screen over a device file with these lines; on a KVR5 the notice is taken away.
  frmConfig485& Open(const std::string& lines, std::int16_t type = 4, bool rs232 = false) {
    Progetto(type, type == 4 ? 1 : 2);
    ScriviConfig(lines);
    return Reopen(rs232);
  }
  frmConfig485& Reopen(bool rs232 = false) {
    forma->ModoRS232 = rs232;
    Apri();
    if (b.C.Stato.PlayerType == 4) b.Finestre.Prossimo();
    EXPECT_TRUE(b.Finestre.Silenzio());
    return *forma;
  }
  std::vector<QComboBox*> Lists() {
    return {forma->cmbCMAD, forma->cmbCMCK, forma->cmbCMCL, forma->cmbCMBR, forma->cmbCMPR,
            forma->cmbCMSB, forma->cmbCMDB, forma->cmbCMDR, forma->cmbCMI3, forma->cmbORI3};
  }
  std::vector<int> Indexes() {
    std::vector<int> indexes;
    for (const QComboBox* list : Lists()) indexes.push_back(list->currentIndex());
    return indexes;
  }
};

TEST_F(Serial, ShowsWhatTheFileHolds) {
  Open(
      "CMAD=7\r\nCMCK=1\r\nCMCL=1\r\nCMBR=2\r\nCMPR=2\r\nCMSB=2\r\nCMDB=7\r\nCMDR=15\r\nCMI3=5\r\n"
      "ORI3=1\r\n");
  EXPECT_EQ(Indexes(), (std::vector{7, 1, 1, 2, 2, 1, 0, 15, 5, 1}));
  EXPECT_EQ(Voce(*forma->cmbCMSB), "2 - 2 StopBits");
  EXPECT_EQ(Voce(*forma->cmbCMDB), "7 - 7 Bits");
  EXPECT_EQ(Voce(*forma->cmbCMDR), "15 - delay 150 ms");
}

TEST_F(Serial, ADescriptorThatIsMissingIsToldBeforeTheNoticeAndItsBoxStandsClear) {
  Progetto(4, 1);
  std::filesystem::remove(b.Cartella.Host() / kDescriptor);
  b.C.Stato.Usa485 = true;
  Apri();
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Configuration file not found");
  EXPECT_TRUE(b.Finestre.Prossimo().SoloOk);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(b.Cartella.Read(kDescriptor), "[Config]\r\n");
  EXPECT_FALSE(forma->chkUse485->isChecked());
  EXPECT_FALSE(b.C.Stato.Usa485);
}

TEST_F(Serial, StandsAsDesignedWhereTheFileIsSilentAndASaveCompletesIt) {
  Open("");
  EXPECT_EQ(Indexes(), (std::vector{31, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
  Salva();
  EXPECT_EQ(Config(),
            "[Config]\r\nCMAD=31\r\nCMCK=0\r\nCMCL=0\r\nCMBR=0\r\nCMPR=0\r\nCMSB=1\r\nCMDB=7\r\n"
            "CMDR=0\r\nCMI3=0\r\nORI3=0\r\n");
}

TEST_F(Serial, AValueThatCantBeTakenLeavesItsList) {
  Open("CMAD=32\r\nCMCK=2\r\nCMBR=9600\r\nCMSB=0\r\nCMDB=9\r\nCMDR=16\r\nCMI3=six\r\nORI3=-1\r\n");
  EXPECT_EQ(Indexes(), (std::vector{31, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(Serial, TheListsHaveTheirItems) {
  Open("");
  Items numbers;
  for (int i = 0; i < 32; ++i) numbers.push_back(std::to_string(i));
  EXPECT_EQ(Voci(*forma->cmbCMAD), numbers);
  EXPECT_EQ(Voci(*forma->cmbCMCK), (Items{"0 - Checksum off", "1 - Checksum on"}));
  EXPECT_EQ(Voci(*forma->cmbCMCL), (Items{"0 - CR LF off", "1 - CR LF on"}));
  EXPECT_EQ(Voci(*forma->cmbCMBR),
            (Items{"0 - 1200 bps", "1 - 2400 bps", "2 - 4800 bps", "3 - 9600 bps"}));
  EXPECT_EQ(Voci(*forma->cmbCMPR), (Items{"0 - no parity", "1 - odd parity", "2 - even parity"}));
  EXPECT_EQ(Voci(*forma->cmbCMSB), (Items{"1 - 1 StopBits", "2 - 2 StopBits"}));
  EXPECT_EQ(Voci(*forma->cmbCMDB), (Items{"7 - 7 Bits", "8 - 8 Bits"}));
  EXPECT_EQ(forma->cmbCMDR->count(), 16);
  EXPECT_EQ(forma->cmbCMI3->count(), 6);
  EXPECT_EQ(Voci(*forma->cmbORI3), (Items{"0 - normally open", "1 - normally closed"}));
}

TEST_F(Serial, EveryListIsWrittenUnderItsKeyWithItsOffset) {
  Open("WXYZ=9\r\n");
  for (QComboBox* list : Lists()) list->setCurrentIndex(1);
  Salva();
  EXPECT_EQ(Config(),
            "[Config]\r\nWXYZ=9\r\nCMAD=1\r\nCMCK=1\r\nCMCL=1\r\nCMBR=1\r\nCMPR=1\r\nCMSB=2\r\n"
            "CMDB=8\r\nCMDR=1\r\nCMI3=1\r\nORI3=1\r\n");
}

TEST_F(Serial, BesideEachListStandsItsKey) {
  Open("");
  for (const char* key :
       {"CMAD", "CMCK", "CMCL", "CMBR", "CMPR", "CMSB", "CMDB", "CMDR", "CMI3", "ORI3"}) {
    EXPECT_EQ(test::Scritta(*forma, (std::string("lbl") + key).c_str()), key);
    EXPECT_NE(test::Scritta(*forma, (std::string("lbl") + key + "_Descrizione").c_str()), "");
  }
}

TEST_F(Serial, TheRs232FormHasNoAddressAndLeavesItsLineAlone) {
  for (const std::int16_t type : std::initializer_list<std::int16_t>{3, 4}) {
    Open("CMAD=77\r\nCMBR=3\r\n", type, true);
    EXPECT_EQ(forma->windowTitle(), "RS-232 link");
    EXPECT_FALSE(forma->cmbCMAD->isVisible());
    EXPECT_EQ(forma->cmbCMAD->currentIndex(), 31) << "it isn't read either";
    Scegli(*forma->cmbCMBR, 1);
    Clicca(*forma->picDefaults);
    Salva();
    EXPECT_TRUE(Config().starts_with("[Config]\r\nCMAD=77\r\nCMBR=3\r\nCMCK=1\r\n")) << Config();
  }
}

TEST_F(Serial, TheRs485FormHasItsTitleAndItsAddress) {
  for (const std::int16_t type : std::initializer_list<std::int16_t>{3, 4}) {
    Open("CMAD=7\r\n", type);
    EXPECT_EQ(forma->windowTitle(), "RS-485 link");
    EXPECT_TRUE(forma->cmbCMAD->isVisible());
    Scegli(*forma->cmbCMAD, 12);
    Salva();
    EXPECT_EQ(Chiave("CMAD"), "12");
  }
}

TEST_F(Serial, WithoutTheAddressTheOtherListsMoveUp) {
  Open("");
  const int below = forma->picContenitore->mapTo(&*forma, QPoint()).y();
  EXPECT_GT(below, forma->cmbCMAD->mapTo(&*forma, QPoint()).y());
  Annulla();
  EXPECT_LT(Reopen(true).picContenitore->mapTo(&*forma, QPoint()).y(), below);
}

TEST_F(Serial, TheDefaultsResetTheListsAndNothingElse) {
  const std::string before = "CMAD=7\r\nCMPR=2\r\nCMSB=2\r\nCMDB=7\r\nCMDR=15\r\nORI3=1\r\n";
  Open(before);
  Clicca(*forma->chkUse485);
  Clicca(*forma->picDefaults);
  EXPECT_EQ(Indexes(), (std::vector{31, 1, 0, 3, 0, 0, 1, 0, 4, 0}));
  EXPECT_EQ(Voce(*forma->cmbCMAD), "31");
  EXPECT_TRUE(forma->chkUse485->isChecked()) << "it isn't touched";
  Annulla();
  EXPECT_EQ(Config(), "[Config]\r\n" + before) << "a cancel afterwards changes nothing";
  EXPECT_FALSE(b.C.Stato.Usa485);
}

TEST_F(Serial, AKvr5TellsAtTheLoadWhatTheLinkTakes) {
  Progetto(4, 1);
  for (const bool rs232 : {false, true}) {
    forma->ModoRS232 = rs232;
    bool seen = true;
    b.Finestre.SuBox = [&](const test::BoxVisto&) { seen = forma->isVisible(); };
    Apri();
    EXPECT_FALSE(seen) << "before the screen is there";
    const auto notice = b.Finestre.Prossimo();
    EXPECT_TRUE(notice.SiNo && notice.SoloOk);
    EXPECT_EQ(notice.Titolo, "Please note");
    EXPECT_TRUE(notice.Testo.starts_with("With \"Use 485\" ticked, IN5 and IN6"));
    EXPECT_EQ(notice.TestoOk, "OK");
    EXPECT_TRUE(forma->picUse485->isVisible());
    b.Finestre.SuBox = {};
    Annulla();
  }
}

TEST_F(Serial, OnlyAKvr5SaysWhetherItUsesTheLink) {
  for (const std::int16_t type : std::initializer_list<std::int16_t>{1, 2, 3}) {
    Open("", type);
    EXPECT_FALSE(forma->picUse485->isVisible());
    Salva();
    EXPECT_EQ(b.Cartella.Read(kDescriptor).find("Use485"), std::string::npos);
  }
}

TEST_F(Serial, TheLinkGoesThroughTheDescriptorAndTheState) {
  Open("");
  EXPECT_FALSE(forma->chkUse485->isChecked());
  Clicca(*forma->chkUse485);
  Salva();
  EXPECT_TRUE(b.C.Stato.Usa485);
  EXPECT_TRUE(LeggiUse485(b.C));
  b.C.Stato.Usa485 = false;
  EXPECT_TRUE(Reopen().chkUse485->isChecked());
  EXPECT_TRUE(b.C.Stato.Usa485) << "the load reads it into the state";
  Clicca(*forma->lblDescrizione);
  EXPECT_FALSE(forma->chkUse485->isChecked()) << "its words toggle it";
  Salva();
  EXPECT_FALSE(b.C.Stato.Usa485);
  EXPECT_FALSE(LeggiUse485(b.C));
}

TEST_F(Serial, SavingTheProjectDropsTheTickFromTheFileAndNotFromTheState) {
  Open("");
  Clicca(*forma->chkUse485);
  Salva();
  SalvaDescrittoreProgetto(b.C);
  EXPECT_TRUE(b.C.Stato.Usa485);
  EXPECT_FALSE(LeggiUse485(b.C));
  EXPECT_FALSE(Reopen().chkUse485->isChecked());
  EXPECT_FALSE(b.C.Stato.Usa485);
}

TEST_F(Serial, AnOstrelTurnsToTheSecondPageAndBack) {
  for (const bool rs232 : {false, true}) {
    Open("CMI3=2\r\n", 3, rs232);
    EXPECT_TRUE(forma->picPagina2->isVisible());
    EXPECT_FALSE(forma->picRele->isVisible());
    EXPECT_TRUE(forma->picContenitore->isVisible());
    const QPoint page = forma->picContenitore->parentWidget()->mapTo(&*forma, QPoint());
    Clicca(*forma->imgPagina2);
    EXPECT_TRUE(forma->picRele->isVisible());
    EXPECT_FALSE(forma->picContenitore->isVisible()) << "the second page lies over the first";
    EXPECT_EQ(forma->picRele->mapTo(&*forma, QPoint()), page);
    Scegli(*forma->cmbORI3, 1);
    Clicca(*forma->lblCambiaPagina);
    EXPECT_FALSE(forma->picRele->isVisible());
    Salva();
    EXPECT_EQ(Chiave("CMI3"), "2");
    EXPECT_EQ(Chiave("ORI3"), "1");
  }
}

TEST_F(Serial, NoOtherModelHasAWayToTheSecondPageAndAllWriteIt) {
  for (const std::int16_t type : std::initializer_list<std::int16_t>{1, 2, 4}) {
    Open("CMI3=3\r\nORI3=1\r\n", type);
    EXPECT_FALSE(forma->picPagina2->isVisible());
    EXPECT_FALSE(forma->picRele->isVisible());
    Salva();
    EXPECT_EQ(Chiave("CMI3"), "3");
    EXPECT_EQ(Chiave("ORI3"), "1");
  }
}

TEST_F(Serial, NamesTheModel) {
  Progetto(3, 2);
  b.C.Stato.PlayerConfigDesc = "Ostrel (Schedule)";
  EXPECT_EQ(Reopen().lblFunzionamento->text(), "Ostrel (Schedule)");
}

TEST_F(Serial, AVanishedFileStaysGoneAtTheSave) {
  Open("");
  std::filesystem::remove(b.Cartella.Host() / kConfig);
  std::filesystem::remove(b.Cartella.Host() / kDescriptor);
  Salva();
  EXPECT_FALSE(std::filesystem::exists(b.Cartella.Host() / kConfig));
  EXPECT_FALSE(std::filesystem::exists(b.Cartella.Host() / kDescriptor));
}

TEST_F(Serial, EveryItemHasRoomInItsList) {
  for (const char* language : {"English.lan", "Italiano.lan"}) {
    b.C.Stato.FileLingua = b.Percorso(std::string("program/Language/") + language);
    Open("");
    for (const QComboBox* list : Lists()) {
      ExpectRoom(*list);
    }
    Annulla();
  }
}

TEST_F(Serial, EscAndTheWindowsOwnButtonAreTheCancel) {
  for (const bool rs232 : {false, true}) {
    for (const bool esc : {false, true}) {
      Open("CMBR=2\r\n", 4, rs232);
      Scegli(*forma->cmbCMBR, 0);
      Clicca(*forma->chkUse485);
      if (esc) {
        test::Tasto(*forma, Qt::Key_Escape);
      } else {
        forma->close();
      }
      AttesoAlloHub();
      EXPECT_EQ(Config(), "[Config]\r\nCMBR=2\r\n");
      EXPECT_EQ(b.Cartella.Read(kDescriptor).find("Use485"), std::string::npos);
      EXPECT_FALSE(b.C.Stato.Usa485);
    }
  }
}

TEST_F(Serial, EscLeavesAnOpenListFirst) {
  Open("CMBR=2\r\n");
  forma->cmbCMBR->showPopup();
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  test::Tasto(*forma, Qt::Key_Escape);  // as the keyboard gives it: to the window in front
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_TRUE(forma.Caricata());
}

TEST_F(Serial, EscIsTheCancel) {
  Open("CMBR=2\r\n");
  forma->cmbCMBR->setFocus();
  test::Tasto(*forma, Qt::Key_Escape);
  AttesoAlloHub();
}

TEST_F(Serial, WithoutALanguageTheBuiltInCaptionsStand) {
  b.C.Stato.FileLingua = b.Percorso("program/Language/none.lan");
  for (const std::int16_t type : std::initializer_list<std::int16_t>{3, 4}) {
    Open("", type);
    EXPECT_EQ(forma->lblCambiaPagina->text(), "Cambia Pagina");
    EXPECT_EQ(forma->lblDescrizione->text(), "Use 485");
    EXPECT_EQ(forma->windowTitle(), "RS485");
    EXPECT_EQ(Voce(*forma->cmbCMAD), "31");
    EXPECT_EQ(test::Scritta(*forma, "lblCMBR"), "CMBR");
    Annulla();
  }
}

TEST_F(Serial, OfAKeyThatStandsTwiceTheFirstLineCounts) {
  Open("CMAD=7\r\nCMSB=2\r\nCMAD=9\r\nCMSB=1\r\n");
  EXPECT_EQ(Voce(*forma->cmbCMAD), "7");
  EXPECT_EQ(Voce(*forma->cmbCMSB), "2 - 2 StopBits");
  Scegli(*forma->cmbCMAD, 12);
  Salva();
  EXPECT_TRUE(Config().starts_with("[Config]\r\nCMAD=12\r\nCMSB=2\r\nCMAD=9\r\nCMSB=1\r\n"))
      << Config();
  EXPECT_EQ(Voce(*Reopen().cmbCMAD), "12");
}

TEST_F(Serial, KeysInOtherSectionsAreOthers) {
  const std::string others = "[Other]\r\nCMAD=7\r\nCMDB=8\r\n";
  Progetto(4, 1);
  b.Cartella.Write(kConfig, others + "[Config]\r\nCMBR=2\r\n[Last]\r\nCMBR=1\r\n");
  Reopen();
  EXPECT_EQ(Indexes(), (std::vector{31, 0, 0, 2, 0, 0, 0, 0, 0, 0}));
  Salva();
  EXPECT_EQ(Config(),
            others +
                "[Config]\r\nCMBR=2\r\nCMAD=31\r\nCMCK=0\r\nCMCL=0\r\nCMPR=0\r\nCMSB=1\r\n"
                "CMDB=7\r\nCMDR=0\r\nCMI3=0\r\nORI3=0\r\n[Last]\r\nCMBR=1\r\n");
}

TEST_F(Serial, AUse485InAnotherSectionIsAnother) {
  Progetto(4, 1);
  const std::string before = b.Cartella.Read(kDescriptor);
  b.Cartella.Write(kDescriptor, before + "[Other]\r\nUse485=1\r\n");
  EXPECT_FALSE(Reopen().chkUse485->isChecked());
  Salva();
  EXPECT_EQ(b.Cartella.Read(kDescriptor), before + "Use485=0\r\n[Other]\r\nUse485=1\r\n");
}

TEST_F(Serial, F1AndTheButtonOpenTheHelp) {
  Open("");
  test::Tasto(*forma, Qt::Key_F1);
  Clicca(*forma->picHelp);
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
}

}  // namespace
}  // namespace kvr5
