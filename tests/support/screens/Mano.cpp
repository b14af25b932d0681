#include "support/screens/Mano.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QWindow>
#include <stdexcept>

namespace kvr5::test {

QWidget& Controllo(QWidget& finestra, const char* nome) {
  auto* control = finestra.findChild<QWidget*>(QLatin1String(nome));
  if (control == nullptr) {
    ADD_FAILURE() << "no control is called " << nome;
    throw std::logic_error(nome);
  }
  return *control;
}

namespace {

/// Where a control takes a click, in its own coordinates.
QPoint PlaceOf(const QWidget& control) {
  const QRect seen = control.visibleRegion().boundingRect();
  EXPECT_FALSE(seen.isEmpty()) << qPrintable(control.objectName()) << " isn't to be seen";
  const bool ticks = dynamic_cast<const QRadioButton*>(&control) != nullptr ||
                     dynamic_cast<const QCheckBox*>(&control) != nullptr;
  constexpr int kMark = 8;  // beside its mark and text such a button takes none
  return ticks ? QPoint(seen.left() + kMark, seen.center().y()) : seen.center();
}

}  // namespace

bool Pronta(QWidget& finestra) {
  return QTest::qWaitForWindowExposed(&finestra) && QTest::qWaitForWindowActive(&finestra);
}

void Clicca(QWidget& controllo) {
  EXPECT_TRUE(controllo.isVisible()) << controllo.objectName().toStdString() << " isn't seen";
  const QPoint place = controllo.mapTo(controllo.window(), PlaceOf(controllo));
  QTest::mouseClick(controllo.window()->windowHandle(), Qt::LeftButton, {}, place);
}

void Clicca(QWidget& finestra, const char* nome) {
  Clicca(Controllo(finestra, nome));
}

void Clicca(QWidget& controllo, QPoint dove) {
  QTest::mouseClick(controllo.window()->windowHandle(), Qt::LeftButton, {},
                    controllo.mapTo(controllo.window(), dove));
}

void CliccaDoppio(QWidget& controllo, QPoint dove) {
  QTest::mouseDClick(controllo.window()->windowHandle(), Qt::LeftButton, {},
                     controllo.mapTo(controllo.window(), dove));
}

void Tasto(QWidget& finestra, Qt::Key tasto, Qt::KeyboardModifiers modi) {
  QTest::keyClick(finestra.window()->windowHandle(), tasto, modi);
}

void Scrivi(QWidget& finestra, const QString& testo) {
  QWidget* field = finestra.window()->focusWidget();
  ASSERT_NE(field, nullptr) << "no control has the focus";
  QTest::keyClicks(field, testo);
}

void Riscrivi(QWidget& campo, const QString& testo) {
  campo.setFocus();
  if (auto* line = dynamic_cast<QLineEdit*>(&campo)) line->selectAll();
  if (testo.isEmpty()) {
    QTest::keyClick(&campo, Qt::Key_Delete);
  } else {
    QTest::keyClicks(&campo, testo);
  }
}

void ScegliCartella(QFileDialog& scelta, const std::string& cartella) {
  // The chooser's list fills in the background; the typed path counts at once.
  Controllo<QLineEdit>(scelta, "fileNameEdit").setText(QString::fromStdString(cartella));
  auto& buttons = Controllo<QDialogButtonBox>(scelta, "buttonBox");
  QTest::mouseClick(buttons.button(QDialogButtonBox::Open), Qt::LeftButton);
}

QPoint PostoDi(QListWidget& elenco, const std::string& voce) {
  const auto found = elenco.findItems(QString::fromStdString(voce), Qt::MatchExactly);
  if (found.size() != 1) throw std::logic_error(voce + " isn't in the list");
  elenco.scrollToItem(found.front());
  return elenco.visualItemRect(found.front()).center();
}

std::string Scritta(QWidget& finestra, const char* nome) {
  return Controllo<QLabel>(finestra, nome).text().toStdString();
}

}  // namespace kvr5::test
