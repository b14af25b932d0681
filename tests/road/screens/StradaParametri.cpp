#include "road/screens/StradaParametri.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include "playerconfig/ConfigTxt.h"
#include "projects/screens/frmCaricaProgetto.h"
#include "support/screens/Scelte.h"

namespace kvr5::test {

frmPlayerConfig& StradaParametri::Hub(bool palinsesto) {
  ScriviImpostazioni();
  Avvia();
  PassaLoSplash();
  Clicca(*Attendi<frmMain>().picNuovoProgetto);
  auto& wizard = Attendi<frmWizardPanel1>();
  Riscrivi(*wizard.txtNomeProgetto, QStringLiteral("Bar"));
  if (palinsesto) Clicca(wizard, "optPanel_2");
  Clicca(*wizard.picGoOn);
  return Attendi<frmPlayerConfig>();
}

frmPlayerConfig& StradaParametri::HubDi(std::int16_t tipo, std::int16_t modo) {
  b.CreaProgetto("Bar", tipo, modo);
  ScriviImpostazioni();
  Avvia();
  PassaLoSplash();
  Clicca(*Attendi<frmMain>().picCaricaDaDisco);
  Tasto(Attendi<frmCaricaProgetto>(), Qt::Key_Return);
  auto& hub = Attendi<frmPlayerConfig>();
  EXPECT_EQ(S().PlayerType, tipo);
  return hub;
}

frmPlayerConfig& StradaParametri::DiNuovoAlloHub() {
  auto* hub = Vista<frmPlayerConfig>();
  if (hub == nullptr) throw std::logic_error("the hub isn't there");
  EXPECT_EQ(Viste(), std::vector<std::string>{"frmPlayerConfig"});
  hub->activateWindow();
  EXPECT_TRUE(Pronta(*hub));
  return *hub;
}

std::string StradaParametri::Chiave(const char* chiave) {
  return LeggiChiaveConfig(programma->C(), chiave);
}

void StradaParametri::Scegli(QComboBox& lista, int voce) {
  ScegliVoce(lista, lista.itemText(voce).toStdString());
}

void StradaParametri::ScegliColMouse(QComboBox& lista, int voce) {
  Clicca(lista);
  QAbstractItemView& view = *lista.view();
  ASSERT_TRUE(QTest::qWaitFor([&view] { return view.isVisible(); }));
  const QModelIndex item = lista.model()->index(voce, 0);
  view.scrollTo(item);
  const QPoint place = view.visualRect(item).center();
  // The release of the press that opened the list chooses nothing: the mouse moves on first.
  for (const QPoint step : {QPoint(1, 1), place}) QTest::mouseMove(view.viewport(), step);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
  EXPECT_TRUE(QTest::qWaitFor([&view] { return !view.isVisible(); }));
  EXPECT_EQ(lista.currentIndex(), voce) << lista.objectName().toStdString();
}

StradaParametri::Mostrati StradaParametri::ControlliDi(const QWidget& schermo) {
  Mostrati shown;
  const auto note = [&shown](const QWidget& control, const QString& what) {
    shown[control.objectName().toStdString()] = what.toStdString();
  };
  for (const auto* each : schermo.findChildren<QSlider*>()) {
    note(*each, QString::number(each->value()));
  }
  for (const auto* each : schermo.findChildren<QComboBox*>()) note(*each, each->currentText());
  for (const auto* each : schermo.findChildren<QLineEdit*>()) note(*each, each->text());
  for (const auto* each : schermo.findChildren<QCheckBox*>()) {
    note(*each, each->isChecked() ? "on" : "off");
  }
  for (const auto* each : schermo.findChildren<QLabel*>()) {
    if (each->objectName().endsWith(QLatin1String("_DB"))) note(*each, each->text());
  }
  return shown;
}

}  // namespace kvr5::test
