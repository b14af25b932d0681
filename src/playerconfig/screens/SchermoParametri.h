#pragma once

#include <QComboBox>
#include <QLabel>
#include <functional>
#include <vector>

#include "core/screens/Coppia.h"
#include "core/screens/Form.h"
#include "playerconfig/ValoriSchermo.h"
#include "playerconfig/screens/CasellaCifre.h"
#include "playerconfig/screens/Cursore.h"

class QCheckBox;
class QGridLayout;

namespace kvr5 {

/// A modal screen of the hub for parameters of Config.txt. It holds one table of keys and controls,
/// from which load, save and the defaults all walk; a save writes into the file at once and closes
/// as a cancel does. The window's own button is the cancel.
class SchermoParametri : public Form {
 public:
  Coppia* picHelp;
  Coppia* picSave;
  QLabel* lblSave;
  Coppia* picCancel;
  QLabel* lblCanc;

 protected:
  /// `numero`: that of the form's texts.
  SchermoParametri(Ambiente& ambiente, const char* nome, SchermoParametro schermo,
                   std::int16_t numero);

  /// The page of the screen: its title with the help, `sopra` (null for none), `corpo`, which
  /// scrolls where the screen is too small, and the buttons, `predefiniti` (null for none) among
  /// them.
  void CostruisciPagina(QWidget* sopra, QWidget* corpo, Coppia* predefiniti);
  /// Puts a row for a parameter into a grid: what it is (a label of this tag), its key, its
  /// control, which becomes the first label's buddy.
  QLabel* AggiungiRiga(QGridLayout& griglia, const char* chiave, const char* scritta, int tag,
                       QWidget* controllo);
  /// A list for a parameter, in the table under its key.
  QComboBox* NuovoElenco(const char* nome, const char* chiave, QWidget* padre);
  /// A list for a parameter on a row of its own, the grid being that of `padre`.
  QComboBox* RigaElenco(QGridLayout& griglia, const char* nome, const char* chiave,
                        const char* scritta, int tag, QWidget* padre);
  /// The button that puts the defaults back on the screen, with its label's tag.
  Coppia* NuoviPredefiniti(int tag);
  /// Has the table hold a parameter's control.
  void Lega(const char* chiave, QCheckBox& casella);
  void Lega(const Cursore& cursore);
  void Lega(const char* chiave, CasellaCifre& casella);

  /// The first steps of a load: the texts, and the items of the lists.
  void Localizza();
  void ImpostaTitolo(const QString& titolo);
  /// The walk of the load; what the file doesn't tell stands as the form gives it.
  void Leggi();
  /// What picDefaults does; nothing is written.
  void Predefinisci();
  /// The walk of the save.
  void Salva();
  /// What more a save writes, before the screen closes.
  virtual void SalvaAltro() {}
  ValoriSchermo& Valori() { return valori_; }

  void AlloScarico() override;

 private:
  /// A control of the table: how it shows a state, and what it holds.
  struct Legame {
    const Parametro* Che;
    std::function<void(const StatoParametro&)> Mostra;
    std::function<StatoParametro()> Raccogli;
  };
  struct Elenco {
    const Parametro* Che;
    QComboBox* Lista;
  };
  void MostraTutti();

  ValoriSchermo valori_;
  std::int16_t numero_;
  std::vector<Legame> legami_;
  std::vector<Elenco> elenchi_;
  QLabel* titolo_ = nullptr;
};

}  // namespace kvr5
