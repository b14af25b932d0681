#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <functional>
#include <string>

#include "core/ElencoMp3.h"
#include "core/screens/CasellaInvito.h"
#include "core/screens/Coppia.h"
#include "core/screens/ElencoCartelle.h"
#include "core/screens/PulsanteAscolto.h"
#include "core/screens/Riquadro.h"

namespace kvr5 {

/// fraFileName: the folder with the MP3 files, the file to assign, and its confirm button.
class PaneMp3 : public Riquadro {
 public:
  explicit PaneMp3(Contesto& contesto, QWidget* padre = nullptr);

  QLabel* lblfraFileName;
  Coppia* picDisk;
  QLabel* lblMp3_Dir;
  QLabel* lblPercorso;  ///< the folder, as a person reads it
  ElencoCartelle* DirDirectoryMp3;
  CasellaInvito* cmbFileMp3;
  Coppia* cmdPlayMp3;
  Coppia* cmdStopMp3;
  Coppia* cmdOkFileMp3;

  /// Fills cmbFileMp3 from the folder; the selection is that of a fresh list.
  void RiempiElencoMp3();
  /// To be called where what cmdOkFileMp3 does has changed in place, without the user: the button
  /// ignores the presses of the next moment, those that were on their way and the second half of a
  /// double click, and the keyboard leaves it.
  void OkCambiato();
  /// Whether cmdOkFileMp3 has the keyboard, or will have it when its window comes to the front.
  bool OkConTastiera() const { return window()->focusWidget() == cmdOkFileMp3; }
  /// Whether a press of cmdOkFileMp3 that has just ended is to be ignored.
  bool OkSospeso() const { return pressioneSospesa_ || Sospeso(); }
  /// Looks into the folder again; where it has changed, fills cmbFileMp3 and keeps what is selected
  /// there, or goes to " " where that is gone. Calls nobody. False when nothing has changed.
  bool Rileggi();
  /// The selected item; " " for no file.
  std::string Scelto() const;
  /// Whether the user picked it, and nothing has been ticked since. One whose confirm failed stays
  /// a pick.
  bool SceltoDallUtente() const { return sceltoDallUtente_; }
  void SegnaScelta(bool dallUtente) { sceltoDallUtente_ = dallUtente; }
  /// The user has chosen what cmdOkFileMp3 does now: it isn't held up any longer.
  void LiberaOk() { sospeso_.invalidate(); }
  /// Sets cmbFileMp3 to " " and then to this file, which stays at " " where the list lacks it.
  void Scegli(const std::string& nome);
  /// Has cmdOkFileMp3 say that it takes an assignment away, which the blank item does, or that it
  /// confirms a file.
  void MostraTogliere(bool toglie);
  /// Shows cmdOkFileMp3, ready to be pressed, or hides it; the keyboard goes to cmbFileMp3 then,
  /// and never to a button further on.
  void MostraOk(bool mostra);
  /// cmdPlayMp3 shows that the picked file plays, or that it doesn't.
  void MostraAscolto(bool on, bool muto = false);
  void Localizza();

  /// Called for every choice of an item, by the user or by code, the same one too.
  std::function<void()> SuScelta;
  /// Called when another folder is shown, before its files are.
  std::function<void()> SuCartella;
  /// Called for a double click on the label of the folder, or its picture.
  std::function<void()> SuSfoglia;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Costruisci();
  void MostraElenco();
  /// Has the list say what can be picked while nothing is.
  void Invita();
  /// cmdPlayMp3 is off while no file is picked; the keyboard goes to cmbFileMp3 then.
  void AggiornaPlay();
  bool Sospeso() const;
  void Clic() const {
    if (SuScelta) SuScelta();
  }

  Contesto& contesto_;
  QLabel* numero_;
  ElencoMp3 elenco_;
  bool sceltoDallUtente_ = false;
  StatoAscolto ascolto_;
  QElapsedTimer sospeso_;
  bool pressioneSospesa_ = false;
};

}  // namespace kvr5
