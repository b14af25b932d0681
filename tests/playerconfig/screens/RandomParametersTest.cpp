#include <QCheckBox>
#include <QLineEdit>
#include <cstdlib>
#include <map>
#include <random>

#include "playerconfig/Parametri.h"
#include "playerconfig/screens/BancoParametri.h"
#include "playerconfig/screens/frmConfig485.h"
#include "playerconfig/screens/frmPanelExtra.h"
#include "playerconfig/screens/frmTempiFade.h"

// Sessions in which the controls of a screen are changed in any order, saved or cancelled, and
// looked at again: after each the file is what a plain model says, and so is the screen that comes
// up next. KVR5_SEED runs one session of one's own, KVR5_STEPS makes all of them longer or shorter.

namespace kvr5 {
namespace {

using ShownValues = std::map<std::string, std::string>;

int FromEnvironment(const char* name, int otherwise) {
  const char* text = std::getenv(name);
  return text == nullptr ? otherwise : std::atoi(text);
}

/// What each control of a screen shows, in the file's terms.
std::string Shown(const QWidget& control) {
  if (const auto* list = qobject_cast<const QComboBox*>(&control)) {
    return list->currentData().toString().toStdString();
  }
  if (const auto* slider = qobject_cast<const QSlider*>(&control)) {
    return std::to_string(slider->value());
  }
  if (const auto* box = qobject_cast<const QCheckBox*>(&control)) {
    return box->isChecked() ? "1" : "0";
  }
  return dynamic_cast<const QLineEdit&>(control).text().toStdString();
}

template <class T>
class Session : public test::ProvaParametri<T>, public testing::WithParamInterface<int> {
 protected:
  using Controls = std::vector<std::pair<std::string, QWidget*>>;
  using test::ProvaParametri<T>::b;
  using test::ProvaParametri<T>::forma;

  virtual Controls All() = 0;
  /// Has the model follow what a change of a control does besides.
  virtual void Follow(const std::string& /*key*/, ShownValues& /*shown*/) {}
  virtual void BeforeOpening() {}
  virtual void AfterOpening() {}

  int Dice(int sides) { return static_cast<int>(random_() % static_cast<unsigned>(sides)); }

  void Change(const std::string& key, QWidget& control, ShownValues& shown) {
    if (!control.isVisible() || !control.isEnabled()) return;
    if (auto* list = qobject_cast<QComboBox*>(&control)) {
      const int index = Dice(list->count());
      this->Scegli(*list, index);
      shown[key] = list->itemData(index).toString().toStdString();
    } else if (auto* slider = qobject_cast<QSlider*>(&control)) {
      const int value = std::stoi(shown[key]) + (Dice(2) == 0 ? 4 : -4);
      const bool up = value > std::stoi(shown[key]);
      QTest::keyClick(slider, up ? Qt::Key_PageUp : Qt::Key_PageDown);
      shown[key] = std::to_string(std::clamp(value, 0, 20));
    } else if (qobject_cast<QCheckBox*>(&control) != nullptr) {
      test::Clicca(control);
      shown[key] = shown[key] == "1" ? "0" : "1";
    } else {
      const int value = Dice(60);
      test::Riscrivi(control, QString::number(value));
      this->forma->picCancel->setFocus();
      shown[key] = std::to_string(std::clamp(value, 1, 30));
    }
    Follow(key, shown);
  }

  void Compare(const ShownValues& shown) {
    for (const auto& [key, control] : All()) EXPECT_EQ(Shown(*control), shown.at(key)) << key;
  }

  void OneRound(ShownValues& file) {
    BeforeOpening();
    this->Apri();
    AfterOpening();
    Compare(file);
    ShownValues shown = file;
    for (int i = Dice(8); i > 0; --i) {
      const auto controls = All();
      const auto& [key, control] =
          controls.at(static_cast<std::size_t>(Dice(static_cast<int>(controls.size()))));
      Change(key, *control, shown);
      Compare(shown);
    }
    if (Dice(3) == 0) return this->Annulla();
    this->Salva();
    file = shown;
  }

  void Run() {
    random_.seed(static_cast<unsigned>(this->GetParam()));
    this->Progetto(4, 1);
    BeforeOpening();
    this->Apri();
    AfterOpening();
    ShownValues file;
    for (const auto& [key, control] : All()) file[key] = Shown(*control);
    this->Salva();
    const int steps = FromEnvironment("KVR5_STEPS", 15);
    for (int step = 0; step < steps && !this->HasFailure(); ++step) {
      SCOPED_TRACE("KVR5_SEED=" + std::to_string(this->GetParam()) + ", round " +
                   std::to_string(step));
      OneRound(file);
      for (const auto& [key, value] : file) {
        if (key == "Use485") continue;  // lies in the descriptor
        EXPECT_EQ(this->Chiave(key.c_str()), value) << key;
      }
    }
  }

 private:
  std::mt19937 random_;
};

class FadeSession : public Session<frmTempiFade> {
 protected:
  Controls All() override {
    return {{"LMP3", forma->sliLMP3}, {"LLIN", forma->sliLLIN}, {"LLI2", forma->sliLLI2},
            {"TFOU", forma->txtTFOU}, {"TFIN", forma->txtTFIN}, {"TADU", forma->txtTADU},
            {"TAVC", forma->cmbTAVC}};
  }
};

TEST_P(FadeSession, AgreesWithItsModel) {
  Run();
}

class ExtraSession : public Session<frmPanelExtra> {
 protected:
  Controls All() override {
    return {{"OMON", forma->cmbOMON}, {"INVR", forma->chkPonte}, {"PYDT", forma->cmbPYDT},
            {"PYDL", forma->cmbPYDL}, {"TAPL", forma->cmbTAPL},  {"RSPL", forma->cmbRSPL},
            {"MOMD", forma->cmbMomd}};
  }
  void AfterOpening() override { before_ = Shown(*forma->cmbOMON); }
  void Follow(const std::string& key, ShownValues& shown) override {
    if (key == "OMON") before_ = shown["OMON"];
    if (key != "INVR") return;
    if (shown["INVR"] == "1") before_ = std::exchange(shown["OMON"], "1");
    if (shown["INVR"] == "0") shown["OMON"] = before_;
    EXPECT_EQ(forma->cmbOMON->isEnabled(), shown["INVR"] == "0");
  }

 private:
  std::string before_;  ///< what unticking bridge mode gives back
};

TEST_P(ExtraSession, AgreesWithItsModel) {
  Run();
}

class SerialSession : public Session<frmConfig485> {
 protected:
  Controls All() override {
    return {{"CMAD", forma->cmbCMAD}, {"CMCK", forma->cmbCMCK},    {"CMCL", forma->cmbCMCL},
            {"CMBR", forma->cmbCMBR}, {"CMPR", forma->cmbCMPR},    {"CMSB", forma->cmbCMSB},
            {"CMDB", forma->cmbCMDB}, {"CMDR", forma->cmbCMDR},    {"CMI3", forma->cmbCMI3},
            {"ORI3", forma->cmbORI3}, {"Use485", forma->chkUse485}};
  }
  void AfterOpening() override { b.Finestre.Prossimo(); }
};

TEST_P(SerialSession, AgreesWithItsModel) {
  Run();
}

std::vector<int> Seeds() {
  const int own = FromEnvironment("KVR5_SEED", -1);
  return own < 0 ? std::vector{1, 2, 3} : std::vector{own};
}

INSTANTIATE_TEST_SUITE_P(Seeds, FadeSession, testing::ValuesIn(Seeds()));
INSTANTIATE_TEST_SUITE_P(Seeds, ExtraSession, testing::ValuesIn(Seeds()));
INSTANTIATE_TEST_SUITE_P(Seeds, SerialSession, testing::ValuesIn(Seeds()));

}  // namespace
}  // namespace kvr5
