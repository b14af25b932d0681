#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QTest>
#include <filesystem>
#include <string>

#include "playerconfig/ConfigTxt.h"
#include "support/screens/ProvaForm.h"
#include "support/screens/Scelte.h"

namespace kvr5::test {

/// The descriptor of the project named Hall.
inline constexpr const char* kDescriptor = "program/Projects/Hall/Config.cfg";

/// A screen of parameters over the project named Hall.
template <class T>
class ProvaParametri : public ProvaForm<T> {
 protected:
  using ProvaForm<T>::b;
  using ProvaForm<T>::forma;

  /// Makes the project, afresh where there is one.
  void Progetto(std::int16_t playerType, std::int16_t playerMode) {
    std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    b.CreaProgetto("Hall", playerType, playerMode);
  }
  /// The device file with these lines below its section.
  void ScriviConfig(const std::string& lines) { b.Cartella.Write(kConfig, "[Config]\r\n" + lines); }
  std::string Config() const { return b.Cartella.Read(kConfig); }
  std::string Chiave(const char* key) { return LeggiChiaveConfig(b.C, key); }

  /// Saves by the mouse; the screen is gone then and the hub has been shown.
  void Salva() {
    Clicca(*forma->picSave);
    AttesoAlloHub();
  }
  void Annulla() {
    Clicca(*forma->picCancel);
    AttesoAlloHub();
  }
  void AttesoAlloHub() {
    EXPECT_FALSE(forma.Caricata());
    EXPECT_EQ(b.Schermi.Mostrate, std::vector<Schermata>{Schermata::Configurazione});
    b.Schermi.Mostrate.clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  /// Goes to an item of a list by the keys.
  static void Scegli(QComboBox& list, int index) {
    ScegliVoce(list, list.itemText(index).toStdString());
    EXPECT_EQ(list.currentIndex(), index);
  }
  /// That a list is wide enough for each of its items, beside its arrow.
  static void ExpectRoom(const QComboBox& list) {
    constexpr int kFrameAndArrow = 40;
    for (int i = 0; i < list.count(); ++i) {
      EXPECT_LE(list.fontMetrics().horizontalAdvance(list.itemText(i)) + kFrameAndArrow,
                list.width())
          << list.itemText(i).toStdString();
    }
  }
  static std::string Voce(const QComboBox& list) { return list.currentText().toStdString(); }
  static std::vector<std::string> Voci(const QComboBox& list) {
    std::vector<std::string> items;
    for (int i = 0; i < list.count(); ++i) items.push_back(list.itemText(i).toStdString());
    return items;
  }

  static constexpr const char* kConfig = "program/Projects/Hall/Config.txt";
};

}  // namespace kvr5::test
