#include <gtest/gtest.h>

#include <QListWidget>
#include <QTextDocument>

#include "core/screens/frmSiNo.h"
#include "road/screens/BancoGuasti.h"

// Music whose names few would choose, from its choice to the card and back.

namespace kvr5 {
namespace {

class OddNames : public test::Guasti, public testing::WithParamInterface<const char*> {
 protected:
  static std::string Name() {
    const std::string name = GetParam();
    return (name == "long" ? std::string(246, 'w') : name) + ".mp3";
  }
  void SetUp() override {
    Guasti::SetUp();
    b.ScriviMp3("music/" + Name(), 9, 40);
    NuovoProgetto(QStringLiteral("Hall"));
  }
};

TEST_P(OddNames, AreShownAsTheyAre) {
  const int width = Hub().minimumSizeHint().width();
  Assegna({1, 3}, Name());
  EXPECT_EQ(test::Scritta(Hub(), "lblFileAssociato"), "Plays: " + Name());
  const QListWidgetItem& row = *Hub().Assegnazioni->lstAssegnati->item(0);
  EXPECT_EQ(row.text().toStdString(), "5   IN1+IN3   " + Name());
  EXPECT_EQ(Hub().minimumSizeHint().width(), width);
}

TEST_P(OddNames, AreToolTipsWithoutMarkup) {
  Assegna({1, 3}, Name());
  const QString label = Hub().fraIngressiLogici->lblFileAssociato->toolTip();
  const QString row = Hub().Assegnazioni->lstAssegnati->item(0)->toolTip();
  for (const QString& tip : {label, row}) {
    QTextDocument shown;
    shown.setHtml(tip);
    const QString words = Qt::mightBeRichText(tip) ? shown.toPlainText() : tip;
    EXPECT_TRUE(words.contains(QString::fromStdString(Name()))) << words.toStdString();
  }
}

TEST_P(OddNames, ComeToTheCardAndAreFoundAgainLater) {
  Assegna({1, 3}, Name());
  EXPECT_EQ(Riga(5), Name());
  ScegliScheda();
  EXPECT_EQ(Registra(), "");
  EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/" + Name()));
  TornaAlMenu();
  ApriHall();
  VaiAllaMusica();
  test::Clicca(Hub(), "chkIn_1");
  test::Clicca(Hub(), "chkIn_3");
  EXPECT_EQ(Hub().fraFileName->cmbFileMp3->currentText().toStdString(), Name());
  Assegna({1, 3}, " ");
  EXPECT_EQ(Riga(5), "");
}

TEST_P(OddNames, AreNamedByTheBoxThatStopsARecording) {
  Assegna({1}, Name());
  Assegna({2}, Name());
  ScegliScheda();
  const test::Pilota<frmSiNo> box([](frmSiNo& notice) {
    QString text = notice.lblNota->text();
    text.remove(QChar(0x200B));  // where a name without blanks may be broken
    EXPECT_TRUE(text.contains(QString::fromStdString(Name())));
    EXPECT_EQ(notice.lblNota->textFormat(), Qt::PlainText);
    test::Clicca(*notice.cmdSi);
  });
  Clic("frmPlayerConfig", "picRecordFlash");
}

INSTANTIATE_TEST_SUITE_P(Names, OddNames,
                         testing::Values("long", "it's", "<b>bold", "R&B &amp; co", "100% [x] #1",
                                         " blank", "\xE6\xBC\xA2\xE5\xAD\x97"));

}  // namespace
}  // namespace kvr5
