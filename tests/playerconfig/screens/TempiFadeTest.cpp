#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QToolButton>
#include <filesystem>

#include "playerconfig/screens/BancoParametri.h"
#include "playerconfig/screens/frmTempiFade.h"

// The screen of fade times and mix levels.

namespace kvr5 {
namespace {

using test::Clicca;

class Fades : public test::ProvaParametri<frmTempiFade> {
 protected:
  /// Opens the screen over a device file with these lines.
  frmTempiFade& Open(const std::string& lines) {
    Progetto(4, 1);
    ScriviConfig(lines);
    return Apri();
  }
  static std::string Text(const QLineEdit* box) { return box->text().toStdString(); }
  static void Type(QLineEdit* box, const char* text) {
    QTest::mouseClick(box, Qt::LeftButton);
    box->selectAll();
    QTest::keyClicks(box, QLatin1String(text));
  }
};

TEST_F(Fades, ShowWhatTheFileHolds) {
  frmTempiFade& form =
      Open("LMP3=0\r\nLLIN=20\r\nLLI2=1\r\nTFOU=2\r\nTFIN=30\r\nTADU=7\r\nTAVC=3\r\n");
  EXPECT_EQ(form.sliLMP3->value(), 0);
  EXPECT_EQ(form.lblLMP3_DB->text(), "OFF");
  EXPECT_EQ(form.sliLLIN->value(), 20);
  EXPECT_EQ(form.lblLLIN_DB->text(), "+12 dB");
  EXPECT_EQ(form.sliLLI2->value(), 1);
  EXPECT_EQ(form.lblLLI2_DB->text(), "-55 dB");
  EXPECT_EQ(Text(form.txtTFOU), "2");
  EXPECT_EQ(Text(form.txtTFIN), "30");
  EXPECT_EQ(Text(form.txtTADU), "7");
  EXPECT_EQ(Voce(*form.cmbTAVC), "4 seconds");
}

TEST_F(Fades, StandAsDesignedWhereTheFileIsSilent) {
  frmTempiFade& form = Open("");
  for (const QSlider* slider : {form.sliLMP3, form.sliLLIN, form.sliLLI2}) {
    EXPECT_EQ(slider->value(), 14);
    EXPECT_EQ(slider->minimum(), 0);
    EXPECT_EQ(slider->maximum(), 20);
  }
  EXPECT_EQ(form.lblLMP3_DB->text(), "100%");
  EXPECT_EQ(form.lblLLIN_DB->text(), "0 dB");
  EXPECT_EQ(form.lblLLI2_DB->text(), "0 dB");
  for (const QLineEdit* box : {form.txtTFOU, form.txtTFIN, form.txtTADU}) {
    EXPECT_EQ(Text(box), "1") << "an empty box is checked at the load";
  }
  EXPECT_EQ(form.cmbTAVC->currentIndex(), 0);
}

TEST_F(Fades, KeepTheirStateWhereTheFileHoldsAnImpossibleValue) {
  frmTempiFade& form =
      Open("LMP3=21\r\nLLIN=-1\r\nLLI2=loud\r\nTFOU=0\r\nTFIN=99\r\nTADU=soon\r\nTAVC=5\r\n");
  for (const QSlider* slider : {form.sliLMP3, form.sliLLIN, form.sliLLI2}) {
    EXPECT_EQ(slider->value(), 14);
  }
  EXPECT_EQ(Text(form.txtTFOU), "1");
  EXPECT_EQ(Text(form.txtTFIN), "30");
  EXPECT_EQ(Text(form.txtTADU), "1");
  EXPECT_EQ(form.cmbTAVC->currentIndex(), 0);
  Salva();
  EXPECT_EQ(
      Config(),
      "[Config]\r\nLMP3=14\r\nLLIN=14\r\nLLI2=14\r\nTFOU=1\r\nTFIN=30\r\nTADU=1\r\nTAVC=0\r\n");
}

TEST_F(Fades, TheListOfReactionTimesHasItsFiveItems) {
  EXPECT_EQ(Voci(*Open("").cmbTAVC),
            (std::vector<std::string>{"0 - off", "2/10 of a second", "2 seconds", "4 seconds",
                                      "8 seconds"}));
}

TEST_F(Fades, ASaveWritesEachKeyInItsOrderAndNothingElse) {
  Open("WXYZ=9\r\n");
  forma->sliLMP3->setValue(3);
  Type(forma->txtTFOU, "12");
  Scegli(*forma->cmbTAVC, 4);
  Salva();
  EXPECT_EQ(Config(),
            "[Config]\r\nWXYZ=9\r\nLMP3=3\r\nLLIN=14\r\nLLI2=14\r\nTAVC=4\r\nTFOU=12\r\nTFIN=1\r\n"
            "TADU=1\r\n");
}

TEST_F(Fades, ACancelWritesNothing) {
  const std::string before = "LMP3=1\r\nTFIN=99\r\n";
  Open(before);
  forma->sliLMP3->setValue(3);
  Type(forma->txtTFOU, "12");
  Annulla();
  EXPECT_EQ(Config(), "[Config]\r\n" + before);
}

TEST_F(Fades, TheWindowsOwnButtonAndEscAreTheCancel) {
  Open("LMP3=1\r\n");
  forma->sliLMP3->setValue(3);
  forma->close();
  AttesoAlloHub();
  Apri().sliLMP3->setValue(4);
  test::Tasto(*forma, Qt::Key_Escape);
  AttesoAlloHub();
  EXPECT_EQ(Config(), "[Config]\r\nLMP3=1\r\n");
}

TEST_F(Fades, EnterSavesButInABox) {
  Open("LMP3=1\r\n");
  Type(forma->txtTFIN, "45");
  test::Tasto(*forma, Qt::Key_Return);
  EXPECT_TRUE(forma.Caricata());
  EXPECT_EQ(Text(forma->txtTFIN), "30") << "there it runs the check";
  forma->sliLLIN->setFocus();
  test::Tasto(*forma, Qt::Key_Return);
  AttesoAlloHub();
  EXPECT_EQ(Chiave("TFIN"), "30");
}

TEST_F(Fades, TheTimesTakeDigitsOnly) {
  Open("");
  for (QLineEdit* box : {forma->txtTFOU, forma->txtTFIN, forma->txtTADU}) {
    Type(box, "a1-.2 b");
    EXPECT_EQ(Text(box), "12");
    QTest::keyClick(box, Qt::Key_Backspace);
    EXPECT_EQ(Text(box), "1");
  }
}

TEST_F(Fades, ATimeIsCheckedWhenItIsLeft) {
  Open("");
  Type(forma->txtTFOU, "45");
  EXPECT_EQ(Text(forma->txtTFOU), "45") << "it is free while one types";
  Type(forma->txtTFIN, "0");
  EXPECT_EQ(Text(forma->txtTFOU), "30");
  Clicca(*forma->lblTADU);
  EXPECT_EQ(Text(forma->txtTFIN), "1") << "by a click beside it, too";
  QApplication::clipboard()->setText(QStringLiteral("1e1"));
  Type(forma->txtTADU, "");
  QTest::keyClick(forma->txtTADU, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text(forma->txtTADU), "1e1");
  Salva();
  EXPECT_EQ(Chiave("TADU"), "10") << "the file takes digits only";
}

TEST_F(Fades, APressWithoutTheMouseChecksTheBoxesToo) {
  Open("");
  Type(forma->txtTFOU, "77");
  forma->picSave->click();  // as a screen reader presses it: the focus stays
  AttesoAlloHub();
  EXPECT_EQ(Chiave("TFOU"), "30");
}

TEST_F(Fades, TheArrowsStepBetween1And30) {
  Open("TFOU=29\r\nTFIN=2\r\nTADU=5\r\n");
  Clicca(*forma->u_dTFOU_su);
  Clicca(*forma->u_dTFOU_su);
  EXPECT_EQ(Text(forma->txtTFOU), "30");
  Clicca(*forma->u_dTFIN_giu);
  Clicca(*forma->u_dTFIN_giu);
  EXPECT_EQ(Text(forma->txtTFIN), "1");
  QTest::keyClick(forma->txtTADU, Qt::Key_Up);
  EXPECT_EQ(Text(forma->txtTADU), "6");
  QTest::keyClick(forma->txtTADU, Qt::Key_Down);
  EXPECT_EQ(Text(forma->txtTADU), "5");
}

TEST_F(Fades, APressOnAnotherTimesArrowLeavesTheBoxFirst) {
  frmTempiFade& form = Open("TFOU=2\r\nTFIN=2\r\n");
  form.txtTFOU->setFocus();
  form.txtTFOU->selectAll();
  test::Scrivi(form, QStringLiteral("45"));
  Clicca(*form.u_dTFIN_su);
  EXPECT_EQ(Text(form.txtTFOU), "30");
  EXPECT_EQ(Text(form.txtTFIN), "3");
  EXPECT_TRUE(form.txtTFIN->hasFocus());
}

TEST_F(Fades, TheTimesAreReadOutWithTheLetterOfTheDrawingAndTheirUnit) {
  const frmTempiFade& form = Open("");
  EXPECT_EQ(form.txtTFIN->accessibleName().left(3), "C: ");
  EXPECT_TRUE(form.txtTFIN->accessibleName().endsWith(QStringLiteral(", Sec")));
  EXPECT_EQ(form.u_dTADU_giu->accessibleName(), form.txtTADU->accessibleName() + ": -1");
}

TEST_F(Fades, TheSlidersFollowTheKeysAndAreReadOutByTheirScale) {
  frmTempiFade& form = Open("");
  QTest::keyClick(form.sliLMP3, Qt::Key_Up);
  EXPECT_EQ(form.lblLMP3_DB->text(), "112%");
  EXPECT_EQ(form.sliLMP3->accessibleDescription(), "112%");
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(form.sliLMP3);
  EXPECT_EQ(spoken->text(QAccessible::Value), "112%");
  EXPECT_EQ(spoken->role(), QAccessible::Slider);
  EXPECT_EQ(spoken->valueInterface()->currentValue().toInt(), 15);
  QTest::keyClick(form.sliLMP3, Qt::Key_PageDown);
  EXPECT_EQ(form.sliLMP3->value(), 11) << "a page is four steps";
  EXPECT_EQ(form.lblLMP3_DB->text(), "66%");
  QTest::keyClick(form.sliLLIN, Qt::Key_End);
  EXPECT_EQ(form.lblLLIN_DB->text(), "+12 dB") << "the top";
  QTest::keyClick(form.sliLLI2, Qt::Key_Home);
  EXPECT_EQ(form.lblLLI2_DB->text(), "OFF");
  EXPECT_EQ(form.sliLLI2->accessibleName(), "A: Line input 2");
}

TEST_F(Fades, AnItalianScreenSaysWhatEachIs) {
  b.C.Stato.FileLingua = b.Percorso("program/Language/Italiano.lan");
  frmTempiFade& form = Open("");
  EXPECT_EQ(form.windowTitle(), "Dissolvenze e mix");
  EXPECT_EQ(form.lblTADU->text(), "Anticipo di uno spot sulla fine del brano");
  EXPECT_EQ(form.picGrafico->lblTime->text(), "Tempo");
  EXPECT_EQ(form.lblMillisecondi[2]->text(), "Sec");
  EXPECT_EQ(form.lbl_TADU->text(), "TADU");
}

TEST_F(Fades, WithoutALanguageTheBuiltInCaptionsStand) {
  b.C.Stato.FileLingua = b.Percorso("program/Language/none.lan");
  frmTempiFade& form = Open("");
  EXPECT_EQ(form.lblTFOU->text(),
            "Tempo dissolvenza line input prima della riproduzione del file MP3 (spot)");
  EXPECT_EQ(form.lblTAVC->text(),
            "Impostazione tempo reazione controllo automatico volume in uscita");
  EXPECT_EQ(form.picGrafico->lblTime->text(), "TIME");
  EXPECT_EQ(form.picGrafico->lblAudioLevel->text(), "Livello audio");
  EXPECT_EQ(form.picGrafico->lblLineInputMixed->text(), "Line Input Mixed");
  EXPECT_EQ(form.picGrafico->lblLineInput->text(), "Line Input");
  EXPECT_EQ(form.lblLMP3->text(), "LMP3");
}

TEST_F(Fades, F1AndTheButtonOpenTheHelp) {
  Open("");
  test::Tasto(*forma, Qt::Key_F1);
  Clicca(*forma->picHelp);
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
}

TEST_F(Fades, ThePointerIsBackAfterTheLoad) {
  Open("");
  EXPECT_FALSE(test::PuntatoreOccupato());
}

TEST_F(Fades, AFileThatVanishesMeanwhileStaysGone) {
  Open("");
  std::filesystem::remove(b.Cartella.Host() / kConfig);
  Salva();
  EXPECT_FALSE(std::filesystem::exists(b.Cartella.Host() / kConfig));
}

TEST_F(Fades, AMissingFileIsMadeAtTheLoadAndToldOnce) {
  Progetto(4, 1);
  std::filesystem::remove(b.Cartella.Host() / kConfig);
  Apri();
  b.Finestre.Prossimo();
  EXPECT_TRUE(b.Finestre.Silenzio());
  Salva();
  EXPECT_EQ(Chiave("LMP3"), "14");
}

TEST_F(Fades, AFileOfAMillionLinesIsReadAndKept) {
  std::string lines;
  for (int i = 0; i < 1000000; ++i) lines += "K" + std::to_string(i) + "=1\r\n";
  frmTempiFade& form = Open(lines + "LMP3=5\r\n");
  EXPECT_EQ(form.sliLMP3->value(), 5);
  form.sliLMP3->setValue(6);
  Salva();
  EXPECT_EQ(Config().substr(0, lines.size() + 20), "[Config]\r\n" + lines + "LMP3=6\r\n" + "LL");
}

}  // namespace
}  // namespace kvr5
