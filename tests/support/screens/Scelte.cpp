#include "support/screens/Scelte.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QTest>

namespace kvr5::test {

void ScegliVoce(QComboBox& elenco, const std::string& voce) {
  const int wanted = elenco.findText(QString::fromStdString(voce));
  ASSERT_GE(wanted, 0) << voce;
  const int now = elenco.currentIndex();
  QTest::keyClick(&elenco, wanted > now || (wanted == now && now > 0) ? Qt::Key_Up : Qt::Key_Down);
  while (elenco.currentIndex() != wanted) {
    const int before = elenco.currentIndex();
    QTest::keyClick(&elenco, wanted > before ? Qt::Key_Down : Qt::Key_Up);
    ASSERT_NE(elenco.currentIndex(), before) << voce << " can't be picked";
  }
}

Pilota<QFileDialog> RispondiCartella(const std::string& cartella) {
  return Pilota<QFileDialog>([cartella](QFileDialog& browser) {
    browser.setDirectory(QString::fromStdString(cartella));
    static_cast<QDialog&>(browser).accept();
  });
}

}  // namespace kvr5::test
