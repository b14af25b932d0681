#pragma once

#include <QLabel>
#include <functional>
#include <string>
#include <vector>

#include "core/screens/CasellaCerca.h"
#include "core/screens/Coppia.h"
#include "core/screens/ElencoCartelle.h"
#include "core/screens/ElencoFile.h"
#include "core/screens/Riquadro.h"

namespace kvr5 {

/// The file pane of an editor: a folder, and its MP3 files, of which several may be selected.
class PaneFile : public Riquadro {
 public:
  /// `tag`: the number of lblMp3_Dir among the form's texts.
  PaneFile(Contesto& contesto, int tag, QWidget* padre);

  Coppia* picDisk;
  QLabel* lblMp3_Dir;
  QLabel* lblPercorso;  ///< the folder, as a person reads it
  ElencoCartelle* DirDirectoryMp3;
  CasellaCerca* txtCerca;
  ElencoFile* filMp3;
  QLabel* lblVuota;  ///< says that the folder holds no file

  /// The file that was clicked last, "" for none; the names of all that are selected; of all that
  /// can be taken, as the pane lists them.
  std::string Corrente() const { return filMp3->Corrente(); }
  std::vector<std::string> Scelti() const { return filMp3->Scelti(); }
  std::vector<std::string> Nomi() const;
  /// Looks into the folder again; the selection stays where its files do. False when nothing has
  /// changed.
  bool Rileggi();
  void Localizza();

  /// Called when another folder is shown; the list of files is new by then.
  std::function<void()> SuCartella;

 private:
  void Costruisci(int tag);
  void Riempi();
  void Cerca(bool prossimo);

  Contesto& contesto_;
  std::vector<FilePannello> file_;
};

}  // namespace kvr5
