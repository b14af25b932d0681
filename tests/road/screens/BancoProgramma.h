#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "app/Programma.h"
#include "support/screens/BancoSchermi.h"
#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"

namespace kvr5::test {

/// The program as it is, in a staged folder of its own, with nothing faked but the end at once.
class BancoProgramma : public testing::Test {
 protected:
  BancoProgramma();
  ~BancoProgramma() override;

  /// The settings of a program that ran before.
  void ScriviImpostazioni(const std::string& language = "English.lan");
  void Avvia(const std::string& commandLine = {});
  /// Lets the splash's time be over, and waits until it is gone.
  void PassaLoSplash();
  /// Waits until a screen is on the screen and has the keyboard.
  template <class T>
  T& Attendi() {
    EXPECT_TRUE(QTest::qWaitFor([] { return Vista<T>() != nullptr; }))
        << "never came: " << typeid(T).name();
    T* form = Vista<T>();
    if (form == nullptr) throw std::logic_error("a screen never came");
    EXPECT_TRUE(Pronta(*form));
    return *form;
  }
  /// The screen of that kind that is seen; null for none.
  template <class T>
  static T* Vista() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* form = dynamic_cast<T*>(window);
      if (form != nullptr && form->isVisible()) return form;
    }
    return nullptr;
  }
  /// The classes of all screens that are seen, by their names.
  static std::vector<std::string> Viste();
  StatoApplicazione& S() { return programma->C().Stato; }

  Banco b;  ///< stages the folder; its ports are not used
  ProcessoCheFinisce fine;
  std::unique_ptr<Programma> programma;
};

}  // namespace kvr5::test
