#include "road/screens/BancoGuasti.h"

#include <QApplication>
#include <QListWidget>
#include <QMenu>
#include <QPointer>

#include "core/screens/frmSplash.h"
#include "flashcard/screens/frmSelectFlash.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "projects/CartellaProgetto.h"

namespace kvr5::test {

void Guasti::SetUp() {
  for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) {
    b.ScriviMp3(std::string("music/") + name, name[0], 40);
  }
  b.Cartella.Write("program/KVR5Software.ini",
                   "[Config]\nLanguageFile=English.lan\nUseExternalPlayer=0\n[Path]\nLastMp3Dir=" +
                       b.Percorso("music") + "\nProjectsDir=" + b.Percorso("program/Projects") +
                       "\\\n");
  b.Cartella.Write("program/Drives.ini", "[Removable]\nE=" + Host("card").string() + "\n");
  programma = std::make_unique<Programma>(Host("program").string(), fine);
  programma->Avvia({});
  dynamic_cast<frmSplash&>(Schermo("frmSplash")).tmrChiusura.setInterval(0);
  Schermo("frmMain");
}

void Guasti::CreaHall() {
  NuovoProgetto(QStringLiteral("Hall"));
  Assegna({1}, "a.mp3");
  Assegna({1, 3}, "b.mp3");
}

void Guasti::ScegliScheda(const std::function<void()>& prima) {
  const Pilota<frmSelectFlash> card([&](frmSelectFlash& dialog) {
    if (prima) prima();
    Clicca(dialog, "picOk");
  });
  Clic("frmPlayerConfig", "cmdScegliScheda");
}

std::string Guasti::Registra() {
  const Risponditore boxes;
  Clic("frmPlayerConfig", "picRecordFlash");
  return boxes.Titoli();
}

void Guasti::PremiTutto() {
  const Risponditore boxes;
  frmPlayerConfig& hub = Hub();
  std::vector<QPointer<QAbstractButton>> buttons;
  for (auto* each : hub.findChildren<QAbstractButton*>()) buttons.emplace_back(each);
  for (const auto& each : buttons) {
    if (!each || !each->isVisible() || !each->isEnabled()) continue;
    const QString name = each->objectName();
    if (name == QLatin1String("picEsci") || name == QLatin1String("picDisk")) continue;
    // They read a file that is made where it is missing; where it can't be the program says so, and
    // ends.
    const bool reads =
        name == QLatin1String("picConfiguraFade") || name == QLatin1String("cmdConfigureExtra");
    if (reads && !b.Cartella.Exists(DelProgetto(""))) continue;
    if (name == QLatin1String("cmdScegliScheda")) {
      ScegliScheda();
      continue;
    }
    if (name.isEmpty() || each->visibleRegion().isEmpty()) continue;
    Clicca(*each);
    QCoreApplication::processEvents();
    for (QWidget* menu = QApplication::activePopupWidget(); menu != nullptr;
         menu = QApplication::activePopupWidget()) {
      menu->close();
    }
    ASSERT_TRUE(hub.isVisible() && hub.isEnabled()) << name.toStdString();
  }
}

void Guasti::LasciaHall() {
  frmPlayerConfig& hub = Hub();
  const std::string before = Scritta(hub, "lblfraFileName");
  Clicca(hub, "chkIn_7");
  EXPECT_NE(Scritta(hub, "lblfraFileName"), before);
  TornaAlMenu();
}

std::string Guasti::Riga(int codice) {
  Connection other(b.Disco);
  EXPECT_FALSE(other.Open(b.Percorso(DelProgetto("inputcfg.mdb"))));
  Recordset rows;
  EXPECT_FALSE(rows.Open(other, "SELECT * FROM [List] WHERE [Pos]=" + std::to_string(codice)));
  return rows.RecordCount() == 1 ? rows.Text("FileName") : std::string();
}

}  // namespace kvr5::test
