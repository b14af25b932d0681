#include <QComboBox>
#include <algorithm>

#include "road/screens/StradaDeiModelli.h"
#include "support/screens/Risponditore.h"
#include "support/screens/Scelte.h"

// A project of each model and mode goes to a card, comes back from it under another name, is
// changed, and goes to another card; the cards are compared byte for byte, and by Verify.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using test::Clicca;

class ReadbackRoad : public test::StradaDeiModelli {
 protected:
  /// What the copy's folder has to hold: the card's files, where the inputs' own have their names.
  std::vector<std::string> Expected() const {
    std::vector<std::string> names;
    for (const auto& [name, bytes] : first) names.push_back(OwnName(name));
    std::ranges::sort(names);
    return names;
  }
  std::string OwnName(const std::string& onCard) const {
    for (const auto& [code, file] : kInputs) {
      if (GetParam().Inputs && onCard == std::to_string(code) + ".mp3") return file;
    }
    return onCard;
  }
  void ReadBack() {
    TornaAllElenco();
    frmPlayerConfig& hub = Rileggi('E', "Bar 2");
    EXPECT_EQ(hub.ApreDaFlash, 2);
    EXPECT_EQ(test::Scritta(hub, "lblProgetto"), "Bar (Bar 2)") << "the card's own name";
    EXPECT_EQ(S().ProjectName, "Bar");
    EXPECT_EQ(S().CartellaProgetto, b.Percorso("program/Projects/Bar 2"));
    EXPECT_EQ(S().PlayerType, GetParam().Type);
    EXPECT_EQ(S().PlayerMode, GetParam().Mode);
    EXPECT_TRUE(Stato().starts_with("E:\\ ready")) << Stato();
    EXPECT_EQ(hub.Barra->picRecordFlash->toolTip(), "Writes the saved project to E:\\");
    EXPECT_EQ(Progetto("Bar 2"), Expected());
    for (const auto& [name, bytes] : first) {
      EXPECT_TRUE(b.Cartella.Read("program/Projects/Bar 2/" + OwnName(name)) == bytes) << name;
    }
    EXPECT_TRUE(Byte("card") == first) << "the card stays as it was";
  }
  /// The hub shows the inputs with their files.
  void ExpectInputsShown() {
    if (!GetParam().Inputs) return;
    const auto& list = *Hub().Assegnazioni->lstAssegnati;
    ASSERT_EQ(list.count(), 2);
    EXPECT_TRUE(list.item(0)->text().contains(QLatin1String("IN1   2.mp3")));
    EXPECT_TRUE(list.item(1)->text().contains(QString::fromUtf8("IN1+IN3   Caffè.mp3")));
  }
  /// The rows of the inputs go on naming the folder that is gone: a recording tells of it, and
  /// leaves them off the card. The files are in the copy, where they are confirmed once more.
  void AssignFromTheCopy() {
    ScegliScheda('F');
    {
      const test::Risponditore boxes;
      Clicca(*Hub().Barra->picRecordFlash);
      EXPECT_EQ(boxes.Titoli(), "Copy stopped");
    }
    EXPECT_NE(Verifica().find("1.mp3"), std::string::npos);
    EXPECT_FALSE(b.Cartella.Exists("card2/1.mp3"));
    Confirm({1}, "2.mp3");
    Confirm({1, 3}, "Caffè.mp3");
    Registra();
    EXPECT_EQ(Verifica(), "");
    for (const char* name : {"1.mp3", "5.mp3"}) {
      EXPECT_TRUE(b.Cartella.Read(std::string("card2/") + name) == first.at(name)) << name;
    }
  }
  void Confirm(std::initializer_list<int> inputs, const std::string& file) {
    auto& hub = Hub();
    for (int input = 1; input <= 8; ++input) {
      auto& box = *hub.fraIngressiLogici->chkIn.at(static_cast<std::size_t>(input - 1));
      if (box.isChecked() != (std::ranges::find(inputs, input) != inputs.end())) Clicca(box);
    }
    test::ScegliVoce(*hub.fraFileName->cmbFileMp3, file);
    EXPECT_TRUE(QTest::qWaitFor([&] { return hub.fraFileName->cmdOkFileMp3->isVisible(); }));
    Clicca(*hub.fraFileName->cmdOkFileMp3);
  }
  void DropSources() { fs::rename(Host("music"), Host("away")); }
};

TEST_P(ReadbackRoad, UnchangedItMakesTheSameCardOnceMoreAndChangedAVerifiedOne) {
  RecordFirst();
  ReadBack();
  ExpectInputsShown();
  ScegliScheda('F');
  Registra();
  ExpectUguali(first, Byte("card2"));
  EXPECT_EQ(Verifica(), "");
  CambiaVolumeESalva();
  EXPECT_NE(Verifica(), "") << "the settings aren't those of the card";
  Registra();
  EXPECT_EQ(Verifica(), "");
  EXPECT_FALSE(b.Cartella.Same("card/Config.txt", "card2/Config.txt"));
  EXPECT_TRUE(Byte("card") == first);
}

TEST_P(ReadbackRoad, WhatTheCardHeldComesBackAfterItsSourcesAreGone) {
  RecordFirst();
  DropSources();
  ReadBack();
  ExpectInputsShown();
  if (GetParam().Inputs) {
    AssignFromTheCopy();
  } else {
    ScegliScheda('F');
    Registra();
    ExpectUguali(first, Byte("card2"));
    EXPECT_EQ(Verifica(), "");
  }
  CambiaVolumeESalva();
  Registra();
  EXPECT_EQ(Verifica(), "");
}

INSTANTIATE_TEST_SUITE_P(Models, ReadbackRoad, testing::ValuesIn(test::kModelli),
                         [](const auto& each) { return std::string(each.param.Name); });

}  // namespace
}  // namespace kvr5
