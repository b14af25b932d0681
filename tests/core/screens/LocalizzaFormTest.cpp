#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVariant>

#include "core/screens/Coppia.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Riquadro.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;

class FormConControlli : public Form {
 public:
  explicit FormConControlli(Ambiente& ambiente) : Form(ambiente, "frmProva") {
    setWindowTitle(QStringLiteral("built-in"));
  }
  template <class W>
  W& Nuovo(const char* name, const QVariant& tag) {
    auto* control = new W(QStringLiteral("built-in"), this);
    control->setObjectName(QLatin1String(name));
    control->setProperty(kTag, tag);
    return *control;
  }
};

class Localizzazione : public ProvaForm<FormConControlli> {
 protected:
  /// The only texts that there are: lines "KEY=text".
  void Lingua(const std::string& lines) {
    b.Cartella.Write("program/Language/Prova.lan", "[Strings]\r\n" + lines);
    b.C.Stato.FileLingua = b.Percorso("program/Language/Prova.lan");
  }
  void Passa(std::int16_t number = 2) { LocalizzaForm(b.C, number, *forma); }
  std::string Titolo() { return forma->windowTitle().toStdString(); }
};

TEST_F(Localizzazione, TheKeyIsTheFormsNumberAndTheTagBothWithZeros) {
  auto& label = forma->Nuovo<QLabel>("lblUscita", 3);
  Lingua("0020003=Exit\r\n0190003=other form\r\n");
  Passa(2);
  EXPECT_EQ(label.text(), "Exit");
  Passa(19);
  EXPECT_EQ(label.text(), "other form");
}

TEST_F(Localizzazione, ATagOfThreeDigitsGetsOneZero) {
  auto& label = forma->Nuovo<QLabel>("lblSeriale", "485");
  Lingua("0110485=Serial\r\n");
  Passa(11);
  EXPECT_EQ(label.text(), "Serial");
}

TEST_F(Localizzazione, ATagOfMoreThanFourDigitsStaysAsItIs) {
  auto& label = forma->Nuovo<QLabel>("lblLungo", "12345");
  Lingua("00212345=long\r\n0022345=cut\r\n");
  Passa();
  EXPECT_EQ(label.text(), "long");
}

TEST_F(Localizzazione, APictureKeepsItsCaptionWhereALabelOfTheSameTagIsTranslated) {
  auto& picture = forma->Nuovo<QLabel>("picCancel", 5);
  auto& label = forma->Nuovo<QLabel>("lblCancel", 5);
  Lingua("0020005=Cancel\r\n");
  Passa();
  EXPECT_EQ(picture.text(), "built-in");
  EXPECT_EQ(label.text(), "Cancel");
}

TEST_F(Localizzazione, FramesLabelsButtonsAndOptionsAloneAreTranslated) {
  auto& button = forma->Nuovo<QPushButton>("cmdProva", 5);
  auto& option = forma->Nuovo<QRadioButton>("optProva", 5);
  auto& box = forma->Nuovo<QCheckBox>("chkProva", 5);
  auto& shouted = forma->Nuovo<QLabel>("LBLProva", 5);
  Riquadro frame("fraProva", QStringLiteral("built-in"), 5, &*forma);
  Lingua("0020005=Text\r\n");
  Passa();
  EXPECT_EQ(button.text(), "Text");
  EXPECT_EQ(option.text(), "Text");
  EXPECT_EQ(frame.Titolo(), "Text");
  EXPECT_EQ(box.text(), "built-in");
  EXPECT_EQ(shouted.text(), "built-in") << "the prefix counts in its exact case";
}

TEST_F(Localizzazione, TheLabelOfAPairNamesItsPicture) {
  Coppia pair("picSalva", "lblSalva", QStringLiteral("built-in"), "salva", 5, &*forma);
  Lingua("0020005=Save\r\n");
  Passa();
  EXPECT_EQ(pair.Etichetta()->text(), "Save");
  EXPECT_EQ(pair.accessibleName(), "Save");
}

TEST_F(Localizzazione, AControlWithoutATagOrWithAnEmptyOneIsPassedOver) {
  auto& none = forma->Nuovo<QLabel>("lblSenza", {});
  auto& empty = forma->Nuovo<QLabel>("lblVuota", "");
  Lingua("0020000=Title\r\n002=short\r\n");
  Passa();
  EXPECT_EQ(none.text(), "built-in");
  EXPECT_EQ(empty.text(), "built-in");
}

TEST_F(Localizzazione, ATagOfZeroTakesTheTextOfTheFormsCaption) {
  auto& label = forma->Nuovo<QLabel>("lblTitolo", 0);
  Lingua("0020000=Title\r\n");
  Passa();
  EXPECT_EQ(label.text(), "Title");
}

TEST_F(Localizzazione, AMissingOrEmptyTextLeavesTheBuiltInCaption) {
  auto& missing = forma->Nuovo<QLabel>("lblA", 1);
  auto& empty = forma->Nuovo<QLabel>("lblB", 2);
  Lingua("0020002=\r\n");
  Passa();
  EXPECT_EQ(missing.text(), "built-in");
  EXPECT_EQ(empty.text(), "built-in");
  EXPECT_EQ(Titolo(), "built-in");
}

TEST_F(Localizzazione, ABlankTextIsTakenByAControlAndIgnoredByTheForm) {
  auto& label = forma->Nuovo<QLabel>("lblA", 1);
  Lingua("0020001=\"   \"\r\n0020000=\"   \"\r\n");
  Passa();
  EXPECT_EQ(label.text(), "   ");
  EXPECT_EQ(Titolo(), "built-in");
}

TEST_F(Localizzazione, TheFormsCaptionIsTrimmedAControlsTextIsNot) {
  auto& label = forma->Nuovo<QLabel>("lblA", 1);
  Lingua("0020001=\"  a  \"\r\n0020000=\"  Title  \"\r\n");
  Passa();
  EXPECT_EQ(label.text(), "  a  ");
  EXPECT_EQ(Titolo(), "Title");
}

TEST_F(Localizzazione, AnAmpersandIsATextNotAMnemonic) {
  auto& button = forma->Nuovo<QPushButton>("cmdProva", 1);
  Lingua("0020001=Save & close\r\n");
  Passa();
  EXPECT_EQ(button.text(), "Save && close");
}

TEST_F(Localizzazione, WithoutALanguageFileEveryCaptionStays) {
  auto& label = forma->Nuovo<QLabel>("lblA", 1);
  b.C.Stato.FileLingua = b.Percorso("program/Language/Gone.lan");
  Passa();
  EXPECT_EQ(label.text(), "built-in");
  EXPECT_EQ(Titolo(), "built-in");
}

}  // namespace
}  // namespace kvr5
