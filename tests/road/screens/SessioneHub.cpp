#include "road/screens/SessioneHub.h"

#include <QApplication>
#include <QTest>
#include <algorithm>

namespace kvr5::test {

namespace fs = std::filesystem;

void SessioneHub::WriteMusic() {
  for (const char* name : {"music/more/c.mp3", "music/more/d.mp3", "music/more/l'été.mp3"}) {
    b.ScriviMp3(name, name[11], 40);
  }
  b.Cartella.Write("music/noise.mp3", std::string(3000, 'n'));
  m_.Dischi["music"] = {{"a.mp3", true}, {"b.mp3", true}, {"c.mp3", true}, {"noise.mp3", false}};
  m_.Dischi["music/more"] = {{"c.mp3", true}, {"d.mp3", true}, {"l'été.mp3", true}};
  m_.Dischi[DelProgetto("")];
}

void SessioneHub::WriteSettings() {
  m_.Config = {{"LOUT", "14"}, {"LLOU", "0"}, {"LTRE", "10"}, {"LBAS", "10"},
               {"IMOD", "0"},  {"MICP", "0"}, {"MIRS", "1"},  {"TPCM", "0"}};
  config_ = "[Config]\r\nMOMN=0\r\n";
  for (auto& [key, value] : m_.Config) {
    if (key[0] == 'L') value = std::to_string(Any(0, 20));
    if (key[0] == 'I' || key[0] == 'M') value = std::to_string(Any(0, 1));
    if (key[0] == 'T') value = std::to_string(Any(0, 1) * Any(0, 255));
    config_ += key + "=" + value + "\r\n";
  }
  b.Cartella.Write(DelProgetto("Config.txt"), config_);
  m_.Linea485 = Any(0, 3) == 0;
  if (!m_.Linea485) return;
  const std::string descriptor = b.Cartella.Read(DelProgetto("Config.cfg"));
  b.Cartella.Write(DelProgetto("Config.cfg"), descriptor + "Use485=1\r\n");
}

void SessioneHub::Inizia(unsigned seme) {
  random_.seed(seme);
  WriteMusic();
  NuovoProgetto(QStringLiteral("Hall"));
  TornaAlMenu();
  WriteSettings();
  ApriHall();
  hub_ = &Hub();
  m_.Apri(DelProgetto(""));
}

void SessioneHub::ChangeFolder() {
  auto& folders = Find<QListWidget>("DirDirectoryMp3");
  if (m_.Cartella == "music/more") {
    QTest::keyClick(&folders, Qt::Key_Backspace);
    m_.Entra("music");
  } else if (m_.Cartella == "music") {
    folders.setCurrentRow(1);
    QTest::keyClick(&folders, Qt::Key_Return);
    m_.Entra("music/more");
  } else {
    VaiAllaMusica();
    m_.Entra("music");
  }
  hub_ = &Hub();
}

void SessioneHub::ChangeDisk() {
  const std::string folder = Coin() ? "music" : "music/more";
  const std::string name = "c.mp3";
  // Whether a file that is picked is looked at again before or after this is a matter of luck.
  if (m_.Cartella == folder && m_.Scelto == name) return;
  const std::string path = folder + "/" + name;
  auto& files = m_.Dischi[folder];
  if (files.erase(name) > 0) {
    fs::remove(Host(path));
  } else {
    b.ScriviMp3(path, static_cast<int>(folder.size()), 40);
    files[name] = true;
  }
}

void SessioneHub::Wait() {
  // The look at the file that was picked comes later; now is as good as any time.
  QTimer& timer = hub_->fraFileInfo->tmrInfoMp3;
  if (timer.isActive()) timer.start(0);
  QTest::qWait(1);
}

void SessioneHub::Record() {
  if (programma->C().Stato.PercorsoMemoryCard.empty()) ScegliScheda();
  const std::string told = Registra();
  hub_ = &Hub();
  EXPECT_TRUE(hub_->isEnabled());
  EXPECT_EQ(told.empty(), m_.Registrabile()) << told;
  EXPECT_TRUE(b.Cartella.Same("card/Config.txt", DelProgetto("Config.txt")));
  EXPECT_TRUE(b.Cartella.Same("card/inputcfg.mdb", DelProgetto("inputcfg.mdb")));
  programma->C().Messaggi.ImpostaPuntatore(Puntatore::Normale);  // a refused file leaves it busy
  if (!m_.Registrabile()) return;
  recorded_ += m_.Righe.empty() ? 0 : 1;
  for (const auto& [code, row] : m_.Righe) {
    EXPECT_TRUE(
        b.Cartella.Same("card/" + std::to_string(code) + ".mp3", row.Cartella + "/" + row.Nome));
  }
}

void SessioneHub::Stay() {
  {
    const Risponditore boxes;
    Clicca(Find("picEsci"));
    EXPECT_EQ(boxes.Titoli(), "Leave project");
  }
  hub_ = &Hub();
}

void SessioneHub::Reopen() {
  TornaAlMenu();
  ApriHall();
  hub_ = &Hub();
  m_.Apri(DelProgetto(""));
}

void SessioneHub::Act() {
  struct Action {
    int Weight;
    void (SessioneHub::*Do)();
  };
  constexpr std::array kActions{
      Action{30, &SessioneHub::Tick},      Action{20, &SessioneHub::PickFile},
      Action{20, &SessioneHub::Confirm},   Action{10, &SessioneHub::PickRow},
      Action{10, &SessioneHub::MoveLevel}, Action{6, &SessioneHub::ToggleOption},
      Action{4, &SessioneHub::TypeTime},   Action{4, &SessioneHub::StepTime},
      Action{3, &SessioneHub::SwitchTime}, Action{6, &SessioneHub::ChangeFolder},
      Action{4, &SessioneHub::ChangeDisk}, Action{4, &SessioneHub::Wait},
      Action{2, &SessioneHub::Record},     Action{1, &SessioneHub::Stay},
      Action{1, &SessioneHub::Reopen}};
  int whole = 0;
  for (const Action& each : kActions) whole += each.Weight;
  int chosen = Any(0, whole - 1);
  for (const Action& each : kActions) {
    chosen -= each.Weight;
    if (chosen < 0) return (this->*each.Do)();
  }
}

}  // namespace kvr5::test
