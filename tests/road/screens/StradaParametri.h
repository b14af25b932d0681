#pragma once

#include <QAbstractButton>
#include <functional>
#include <map>
#include <string>

#include "core/screens/frmSiNo.h"
#include "road/screens/BancoProgramma.h"

class QComboBox;

namespace kvr5::test {

/// The whole program at the hub of a project named Bar, and the ways from there to the screens of
/// parameters.
class StradaParametri : public BancoProgramma {
 protected:
  /// Makes the project by the wizard: a KVR5 that inputs drive, or one with a schedule.
  frmPlayerConfig& Hub(bool palinsesto = false);
  /// Opens a project of another model, which the bench makes, from the list.
  frmPlayerConfig& HubDi(std::int16_t tipo, std::int16_t modo);
  /// The hub, which alone is seen and has the keyboard again.
  static frmPlayerConfig& DiNuovoAlloHub();

  /// Presses a button of the hub, and has `azione` work on the screen that comes.
  template <class T>
  void Su(QAbstractButton& pulsante, const std::function<void(T&)>& azione) {
    const Pilota<T> user(azione);
    pulsante.click();
    DiNuovoAlloHub();
  }
  /// The same on the serial screen of a KVR5, which begins with a notice.
  void SuSeriale(QAbstractButton& pulsante, const std::function<void(frmConfig485&)>& azione) {
    const Pilota<frmSiNo> notice([](frmSiNo& box) { Clicca(*box.cmdSi); });
    Su<frmConfig485>(pulsante, azione);
  }

  std::string Chiave(const char* chiave);
  std::string Config() const { return b.Cartella.Read("program/Projects/Bar/Config.txt"); }

  /// Goes to an item of a list by the arrow keys; by the mouse in its open list.
  static void Scegli(QComboBox& lista, int voce);
  static void ScegliColMouse(QComboBox& lista, int voce);

  /// What each control of a screen shows, by its name: sliders, lists, boxes and the labels of the
  /// levels.
  using Mostrati = std::map<std::string, std::string>;
  static Mostrati ControlliDi(const QWidget& schermo);
};

}  // namespace kvr5::test
