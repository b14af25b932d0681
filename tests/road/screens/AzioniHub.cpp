// The actions on the hub's own controls.

#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <algorithm>

#include "road/screens/SessioneHub.h"
#include "support/screens/Scelte.h"

namespace kvr5::test {

void SessioneHub::Tick() {
  const int input = Any(0, 3) == 0 ? Any(1, 8) : Any(1, 2);  // codes that come again
  const std::string box = "chkIn_" + std::to_string(input);
  if (Coin()) {
    Clicca(Find(box));
  } else {
    QTest::keyClick(&Find(box), Qt::Key_Space);
  }
  m_.Spunta(input);
}

void SessioneHub::PickFile() {
  const std::string& item = OneOf(m_.Voci);
  if (m_.Voci.size() == 1) return;
  ScegliVoce(Find<QComboBox>("cmbFileMp3"), item);
  m_.Scegli(item);
}

void SessioneHub::Confirm() {
  if (!m_.Ok) return;
  if (Coin()) {
    Clicca(Find("cmdOkFileMp3"));
  } else {
    Find("cmdOkFileMp3").setFocus();
    QTest::keyClick(&Find("cmdOkFileMp3"), Qt::Key_Space);
  }
  m_.Conferma();
}

void SessioneHub::PickRow() {
  if (m_.Elenco.empty()) return;
  auto& list = Find<QListWidget>("lstAssegnati");
  const int row = Any(0, list.count() - 1);
  const int code = list.item(row)->data(Qt::UserRole).toInt();
  list.scrollToItem(list.item(row));
  const bool ticked = list.item(row)->flags().testFlag(Qt::ItemIsEnabled);
  if (Coin() || !ticked) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(row)).center());
  } else {
    list.setCurrentRow(row);
    QTest::keyClick(&list, Qt::Key_Return);
  }
  m_.ScegliCodice(code);
}

void SessioneHub::MoveLevel() {
  struct Level {
    const char* Key;
    const char* Slider;
  };
  struct Way {
    Qt::Key Key;
    int By;
  };
  constexpr std::array kLevels{Level{"LOUT", "sliVolume"}, Level{"LLOU", "sliLoudness"},
                               Level{"LTRE", "sliTreble"}, Level{"LBAS", "sliBass"}};
  constexpr std::array kWays{Way{Qt::Key_Up, 1},     Way{Qt::Key_Down, -1},
                             Way{Qt::Key_PageUp, 4}, Way{Qt::Key_PageDown, -4},
                             Way{Qt::Key_Home, -20}, Way{Qt::Key_End, 20}};
  const Level& level = OneOf(kLevels);
  const Way& way = OneOf(kWays);
  QTest::keyClick(&Find(level.Slider), way.Key);
  int& value = m_.Livelli[level.Key];
  value = std::clamp(value + way.By, 0, 20);
}

void SessioneHub::ToggleOption() {
  struct Option {
    const char* Key;
    const char* Off;
    const char* On;
  };
  constexpr std::array kOptions{Option{"IMOD", "optIMOD_ActiveHigh", "optIMOD_ActiveLow"},
                                Option{"MICP", "optMICP_Zero", "optMICP_ContinuosPlay"},
                                Option{"MIRS", "optMirs_Zero", "optMIRS_Restart"}};
  const Option& option = OneOf(kOptions);
  const bool on = Coin();
  const Risponditore boxes;
  Clicca(Find(on ? option.On : option.Off));
  bool& value = m_.Opzioni[option.Key];
  const bool warns = std::string(option.Key) == "IMOD" && on;  // each time
  EXPECT_EQ(boxes.Titoli(), warns ? "Please note" : "");
  value = on;
  hub_ = &Hub();
}

void SessioneHub::TypeTime() {
  std::string digits;
  for (int i = Any(0, 4); i > 0; --i) digits += static_cast<char>('0' + Any(0, 9));
  auto& field = Find<QLineEdit>("lstTPCM");
  QTest::mouseClick(&field, Qt::LeftButton);
  Riscrivi(field, QString::fromStdString(digits));
  m_.ScriviTempo(digits);
  if (Coin()) {
    QTest::keyClick(&field, Qt::Key_Return);
  } else {
    QTest::mouseClick(&Find("lblTipoPlayer"), Qt::LeftButton);
  }
  m_.LasciaTempo();
}

void SessioneHub::StepTime() {
  const bool up = Coin();
  Clicca(Find(up ? "u_dTPCM_su" : "u_dTPCM_giu"));
  m_.SpostaTempo(up ? 1 : -1);
}

void SessioneHub::SwitchTime() {
  const bool on = Coin();
  Clicca(Find(on ? "optTPCM_On" : "optTPCM_Off"));
  m_.TempoAcceso = on;
  if (!on) m_.Tempo = "0";
}

}  // namespace kvr5::test
