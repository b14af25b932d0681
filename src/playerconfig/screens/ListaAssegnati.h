#pragma once

#include <QLabel>
#include <QListWidget>
#include <functional>
#include <optional>

#include "core/screens/Avvisi.h"
#include "core/screens/Coppia.h"
#include "core/screens/Riquadro.h"
#include "playerconfig/Assegnati.h"

namespace kvr5 {

class VociAssegnati;

/// All combinations of inputs that have a file, what is wrong with any of them, and their figures.
class ListaAssegnati : public Riquadro {
 public:
  explicit ListaAssegnati(Contesto& contesto, QWidget* padre = nullptr);

  QListWidget* lstAssegnati;
  EtichettaAvviso* lblCifre;
  Coppia* picTrova;  ///< looks for the files that are missing; there only where some are
  /// How many the playlists miss, which have no place of their own here.
  EtichettaAvviso* lblBraniMancanti;

  /// False when these rows stand there already.
  bool Mostra(const ElencoAssegnati& elenco);
  /// Where the project lacks its table: nothing can be kept.
  void MostraSenzaTabella();
  /// Where the table is there and can't be read now.
  void MostraIlleggibile();
  /// How many files of the project's other lists are missing.
  void MostraBraniMancanti(std::size_t quanti);
  /// Selects the row of the combination that is ticked; none where it has no row.
  void Evidenzia(std::int64_t codice, bool inVista = true);
  void Localizza();
  /// Called when the user comes to a row, by a click or a key, with its code.
  std::function<void(std::int64_t)> SuScelta;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  /// Lays the rows out anew where their room has become another.
  void Adatta();
  void Svuota(const char* chiave);
  void OffriTrova();
  void Scegli(const QListWidgetItem& voce);
  void AggiungiRiga(const ParoleAssegnato& parole, const Assegnato& riga);

  Contesto& contesto_;
  std::optional<ElencoAssegnati> mostrato_;
  VociAssegnati* voci_;
  std::int64_t evidenziato_ = 0;
  std::size_t braniMancanti_ = 0;
};

}  // namespace kvr5
