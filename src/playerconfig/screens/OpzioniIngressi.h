#pragma once

#include <QLineEdit>
#include <QWidget>
#include <functional>
#include <optional>

#include "core/screens/Coppia.h"
#include "core/screens/Segmento.h"
#include "playerconfig/CasellaPersistenza.h"
#include "playerconfig/ConfigTxt.h"
#include "playerconfig/LayoutHub.h"
#include "playerconfig/screens/CasellaCifre.h"

class QLabel;
class QToolButton;
class QVBoxLayout;

namespace kvr5 {

/// The options of the hub as rows of one stack, so that any of them can be missing without a hole:
/// fraIMOD, fraMICP, fraMirs, fraTPCM, fraMonitor, fraExtra, fraMPLL, fraFADE, and fraAnalyzer,
/// which no model shows.
class OpzioniIngressi : public QWidget {
 public:
  OpzioniIngressi(Contesto& contesto, QWidget* padre);

  QWidget *fraIMOD, *fraMICP, *fraMirs, *fraTPCM, *fraMonitor, *fraExtra, *fraMPLL, *fraFADE,
      *fraAnalyzer;
  Segmento *optIMOD_ActiveHigh, *optIMOD_ActiveLow;
  Segmento *optMICP_Zero, *optMICP_ContinuosPlay;
  Segmento *optMirs_Zero, *optMIRS_Restart;
  Segmento *optTPCM_On, *optTPCM_Off;
  QLineEdit* lstTPCM;
  QToolButton *u_dTPCM_su, *u_dTPCM_giu;
  QLabel* lblMillisecondi;
  Segmento *optMonitor_On, *optMonitor_Off;
  Segmento *optMPLL_loop, *optMPLL_NoLoop;
  Segmento *opt_Analizer_On, *optAlalizer_Off;
  Coppia* cmdConfigureExtra;
  Coppia* picConfiguraFade;

  void Mostra(const ControlliHub& controlli);
  void Raccogli(ControlliHub& controlli) const;
  void ImpostaAnalyzer(bool acceso);
  void Disponi(const LayoutHub& layout);
  void Localizza();
  /// Called after each change.
  std::function<void()> SuCambio;

 private:
  QWidget* NuovaRiga(const char* nome, const char* descrizione, const char* scritta, int tag,
                     QWidget* scelte);
  Striscia* NuovaStriscia(Segmento*& primo, Segmento*& secondo, const char* nome1,
                          const char* scritta1, int tag1, const char* nome2, const char* scritta2,
                          int tag2);
  void CostruisciIngressi();
  void CostruisciTpcm();
  void CostruisciAltre();
  void Collega();
  void MostraTpcm();
  void NominaScelte();
  void Cambiato() const {
    if (SuCambio) SuCambio();
  }

  Contesto& contesto_;
  QVBoxLayout* pila_;
  CasellaPersistenza* tpcm_;  ///< in casella_
  CasellaCifre* casella_;     ///< lstTPCM and its arrows
  bool mostra_ = false;       ///< the controls are being set by code
};

}  // namespace kvr5
