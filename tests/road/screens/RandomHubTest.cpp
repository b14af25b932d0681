#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSlider>
#include <cstdlib>

#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "playerconfig/Scale.h"
#include "road/screens/SessioneHub.h"

// A session of the hub in which everything is done in any order: after each action the screen is
// what a plain model says, and so are the database, the device file and the card.
// KVR5_SEED runs one session of one's own, KVR5_STEPS makes all of them longer or shorter.

namespace kvr5 {
namespace {

int FromEnvironment(const char* name, int otherwise) {
  const char* text = std::getenv(name);
  return text == nullptr ? otherwise : std::atoi(text);
}

class RandomHub : public test::SessioneHub, public testing::WithParamInterface<int> {
 protected:
  void CompareInputs();
  void CompareFiles();
  void CompareSettings();
  void CompareTable();
};

void RandomHub::CompareInputs() {
  for (int input = 1; input <= 8; ++input) {
    const auto& box = Find<QCheckBox>("chkIn_" + std::to_string(input));
    EXPECT_EQ(box.isChecked(), (m_.Codice >> (input - 1) & 1) != 0) << input;
    EXPECT_EQ(box.isEnabled(), !m_.Linea485 || (input != 5 && input != 6)) << input;
  }
  EXPECT_EQ(Text("lblfraFileName"),
            "File on the card - " + (m_.Codice == 0 ? "" : std::to_string(m_.Codice) + ".mp3"));
  EXPECT_EQ(Find("fraFileAssociato").isVisible(), m_.Associato());
  if (m_.Associato()) {
    EXPECT_EQ(Text("lblFileAssociato"), "Plays: " + m_.Righe[m_.Codice].Nome);
  }
}

void RandomHub::CompareFiles() {
  QEvent activation(QEvent::WindowActivate);  // the hub looks at the disk whenever one comes back
  QCoreApplication::sendEvent(&Hub(), &activation);
  m_.Torna();
  const auto& files = Find<QComboBox>("cmbFileMp3");
  EXPECT_EQ(files.currentText().toStdString(), m_.Scelto);
  EXPECT_EQ(files.count(), static_cast<int>(m_.Voci.size()));
  EXPECT_EQ(Find("cmdOkFileMp3").isVisible(), m_.Ok);
  if (m_.Scelto == " " || m_.Esiste({m_.Scelto, m_.Cartella})) {
    EXPECT_EQ(Find("lblBadFileType").isVisible(), m_.Rifiutato());
  }
  const auto& list = Find<QListWidget>("lstAssegnati");
  std::vector<std::string> rows;
  for (int row = 0; row < list.count(); ++row) rows.push_back(list.item(row)->text().toStdString());
  EXPECT_EQ(rows, m_.Elenco);
}

void RandomHub::CompareSettings() {
  EXPECT_EQ(Find<QSlider>("sliVolume").value(), m_.Livelli["LOUT"]);
  EXPECT_EQ(Find<QSlider>("sliLoudness").value(), m_.Livelli["LLOU"]);
  EXPECT_EQ(Find<QSlider>("sliTreble").value(), m_.Livelli["LTRE"]);
  EXPECT_EQ(Find<QSlider>("sliBass").value(), m_.Livelli["LBAS"]);
  EXPECT_EQ(Text("lblVolume_DB"), TestoScalaVolume(m_.Livelli["LOUT"]));
  EXPECT_EQ(Text("lblLoudness_dB"), TestoScalaLoudness(m_.Livelli["LLOU"]));
  EXPECT_EQ(Text("lblTreble_dB"), TestoScalaToni(m_.Livelli["LTRE"]));
  EXPECT_EQ(Text("lblBass_dB"), TestoScalaToni(m_.Livelli["LBAS"]));
  EXPECT_EQ(Find<QAbstractButton>("optIMOD_ActiveLow").isChecked(), m_.Opzioni["IMOD"]);
  EXPECT_EQ(Find<QAbstractButton>("optMICP_ContinuosPlay").isChecked(), m_.Opzioni["MICP"]);
  EXPECT_EQ(Find<QAbstractButton>("optMIRS_Restart").isChecked(), m_.Opzioni["MIRS"]);
  EXPECT_EQ(Find<QLineEdit>("lstTPCM").text().toStdString(), m_.Tempo);
  EXPECT_EQ(Find<QAbstractButton>("optTPCM_On").isChecked(), m_.TempoAcceso);
  EXPECT_EQ(Find("lblNonSalvato").isVisible(), m_.DaSalvare());
}

void RandomHub::CompareTable() {
  Connection other(b.Disco);
  ASSERT_FALSE(other.Open(b.Percorso(DelProgetto("inputcfg.mdb"))));
  Recordset rows;
  ASSERT_FALSE(rows.Open(other, "SELECT * FROM [List] ORDER BY [Pos] ASC"));
  ASSERT_EQ(rows.RecordCount(), static_cast<int>(m_.Righe.size()));
  for (const auto& [code, row] : m_.Righe) {
    EXPECT_EQ(rows.Number("Pos"), code);
    EXPECT_EQ(rows.Text("FileName"), row.Nome);
    EXPECT_EQ(rows.Text("FilePath"), b.Percorso(row.Cartella) + "\\");
    EXPECT_EQ(rows.Text("Alias"), std::to_string(code) + ".mp3");
    EXPECT_EQ(rows.Number("NPlaylist"), 1);
    Ignora(rows.MoveNext());
  }
  EXPECT_EQ(b.Cartella.Read(DelProgetto("Config.txt")), config_) << "nothing was saved";
}

TEST_P(RandomHub, AgreesWithItsModelAfterEachAction) {
  const int steps = FromEnvironment("KVR5_STEPS", 200);
  Inizia(static_cast<unsigned>(GetParam()));
  for (int step = 0; step < steps; ++step) {
    SCOPED_TRACE("KVR5_SEED=" + std::to_string(GetParam()) + ", step " + std::to_string(step));
    Act();
    CompareInputs();
    CompareFiles();
    CompareSettings();
    if (step % 50 == 49) CompareTable();
    if (HasFailure()) return;
  }
  CompareTable();
  RecordProperty("recorded", recorded_);
}

std::vector<int> Seeds() {
  const int own = FromEnvironment("KVR5_SEED", -1);
  return own < 0 ? std::vector{1, 2, 3, 4} : std::vector{own};
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomHub, testing::ValuesIn(Seeds()));

}  // namespace
}  // namespace kvr5
