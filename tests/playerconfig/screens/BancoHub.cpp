#include "playerconfig/screens/BancoHub.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <utility>

#include "core/Impostazioni.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "projects/CartellaProgetto.h"
#include "support/screens/Scelte.h"

namespace kvr5::test {

void Hub::Parametro(const std::string& key, const std::string& value) {
  ScriviChiaveConfig(b.C, key, value);
}

void Hub::UltimaCartella(const std::string& name) {
  b.Cartella.Write("program/KVR5Software.ini", "[Path]\r\nLastMp3Dir=" + b.Percorso(name) + "\r\n");
}

void Hub::Apri(std::int16_t apreDaFlash) {
  hub = new frmPlayerConfig(b.A, servizi);
  hub->ApreDaFlash = apreDaFlash;
  hub->Mostra();
  ASSERT_TRUE(Pronta(*hub));
}

void Hub::Chiudi() {
  delete hub;
}

void Hub::ScegliFile(const std::string& name) {
  ScegliVoce(Trova<QComboBox>("cmbFileMp3"), name);
}

void Hub::ClicRiga(QListWidget& list, int row) {
  QListWidgetItem* item = list.item(row);
  list.scrollToItem(item);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
}

std::string Hub::Riga(int code) {
  Connection other(b.Disco);
  EXPECT_FALSE(other.Open(FileDelProgetto(b.C, "inputcfg.mdb")));
  Recordset rows;
  EXPECT_FALSE(rows.Open(other, "SELECT * FROM [List] WHERE [Pos]=" + std::to_string(code)));
  if (rows.RecordCount() != 1) return {};
  return rows.Text("FileName") + "|" + rows.Text("FilePath") + "|" + rows.Text("Alias") + "|" +
         std::to_string(rows.Number("NPlaylist"));
}

int Hub::Righe() {
  Connection other(b.Disco);
  EXPECT_FALSE(other.Open(FileDelProgetto(b.C, "inputcfg.mdb")));
  Recordset rows;
  EXPECT_FALSE(rows.Open(other, "SELECT * FROM [List] ORDER BY [Pos] ASC"));
  return static_cast<int>(rows.RecordCount());
}

void HubConMusica::SetUp() {
  Progetto(4, 1);
  for (const char* name : {"a.mp3", "b.mp3", "L'été.mp3"}) {
    b.ScriviMp3(std::string("music/") + name, name[0]);
  }
  UltimaCartella("music");
}

void HubConMusica::Attiva() {
  QEvent activation(QEvent::WindowActivate);
  QCoreApplication::sendEvent(hub, &activation);
}

Pilota<RiquadroMessaggio> RispondiMessaggio(const char* pulsante, Vede vede) {
  return Pilota<RiquadroMessaggio>([pulsante, vede = std::move(vede)](RiquadroMessaggio& box) {
    if (vede) vede(box.windowTitle(), Controllo<QLabel>(box, "lblTesto").text());
    Clicca(box, pulsante);
  });
}

Pilota<RiquadroMessaggio> RispondiMessaggioConTasto(Qt::Key tasto) {
  return Pilota<RiquadroMessaggio>([tasto](RiquadroMessaggio& box) { Tasto(box, tasto); });
}

Pilota<frmSiNo> RispondiSoloOk(Vede vede) {
  return Pilota<frmSiNo>([vede = std::move(vede)](frmSiNo& box) {
    EXPECT_FALSE(box.cmdNo->isVisible()) << "one button only";
    if (vede) vede(box.windowTitle(), box.lblNota->text());
    Clicca(*box.cmdSi);
  });
}

}  // namespace kvr5::test
