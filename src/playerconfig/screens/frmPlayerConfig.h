#pragma once

#include <QLabel>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/Anteprima.h"
#include "core/screens/Form.h"
#include "core/screens/PannelloInfo.h"
#include "mp3/modMp3Infos.h"
#include "playerconfig/AscoltoHub.h"
#include "playerconfig/CodiceScelto.h"
#include "playerconfig/LayoutHub.h"
#include "playerconfig/ModificheHub.h"
#include "playerconfig/screens/CollegamentiSeriali.h"
#include "playerconfig/screens/Comandi.h"
#include "playerconfig/screens/IngressiLogici.h"
#include "playerconfig/screens/ListaAssegnati.h"
#include "playerconfig/screens/Livelli.h"
#include "playerconfig/screens/OpzioniIngressi.h"
#include "playerconfig/screens/PaneMp3.h"
#include "playerconfig/screens/PannelloModo.h"
#include "playerconfig/screens/RigaScheda.h"
#include "playerconfig/screens/ServiziHub.h"

namespace kvr5 {

/// The hub of an open project: its levels, options and inputs, and the way to everything else.
class frmPlayerConfig : public Form {
 public:
  frmPlayerConfig(Ambiente& ambiente, ServiziHub& servizi);

  /// 0 the project was just made, 1 it came from the list or a folder, 2 from a card.
  std::int16_t ApreDaFlash = 0;
  /// What frmSalva answered.
  bool AnnullaSalvataggio = false;

  /// Shows the chosen card in lblPathMemoryCard.
  void AggiornaPercorsoMemoryCard();

  QLabel* lblTipoPlayer;
  QLabel* lblModello;  ///< stands in for it where the project describes itself by nothing
  QLabel* lblProgetto;
  QLabel* lblNonSalvato;
  Coppia* picHelp;
  RigaScheda* Scheda;
  Livelli* fraOutputLevel;
  OpzioniIngressi* Opzioni;
  IngressiLogici* fraIngressiLogici;
  ListaAssegnati* Assegnazioni;
  PaneMp3* fraFileName;
  PannelloInfo* fraFileInfo;
  PannelloModo* Pannello;
  QWidget* picPanel;
  QLabel *lblModoPanel, *lblModoPanelBig, *lblModoZub, *lblModoZubBig, *lblModoOstrel,
      *lblModoOstrelBig;
  CollegamentiSeriali* Seriali;
  Comandi* Barra;
  /// The players of the picked file and of the assigned one.
  std::unique_ptr<Anteprima> mPlayer = ambiente_.Suono.Nuova();
  std::unique_ptr<Anteprima> mciPreview = ambiente_.Suono.Nuova();

 protected:
  void AlCaricamento() override;
  void AllAttivazione() override;
  bool PuoChiudere(Causa causa) override;
  void AlloScarico() override;

 private:
  /// What a press of cmdOkFileMp3 would do.
  struct FattoDaOk {
    bool SiVede = false;
    std::string File;  ///< " " takes away
    std::int16_t Codice = 0;
    std::optional<std::string> Assegnato;  ///< what the code has by now, and its folder
    std::string Cartella;
    bool operator==(const FattoDaOk&) const = default;
  };

  /// Watches over cmdOkFileMp3 while what is shown changes without the user: where a press would do
  /// something else afterwards, the button is held up, and the keyboard leaves it.
  class OkInPosto {
   public:
    explicit OkInPosto(frmPlayerConfig& hub) : hub_(hub), prima_(hub.OkFa()) {}
    ~OkInPosto();
    OkInPosto(const OkInPosto&) = delete;
    OkInPosto& operator=(const OkInPosto&) = delete;

   private:
    frmPlayerConfig& hub_;
    FattoDaOk prima_;
  };

  FattoDaOk OkFa() const;
  void Costruisci();
  QLayout* CostruisciTestata();
  QWidget* CostruisciCorpo();
  void CostruisciNascosti();
  void Collega();
  void CollegaComandi();
  /// The ways to the screens of parameters.
  void CollegaParametri();
  void CollegaAscolto();
  void Localizza();
  void ApriIngressi();
  void LeggiControlli();
  void Disponi();
  void MostraModo();
  /// Shows what the folder of the MP3 files holds by now.
  void RileggiCartella();
  /// Has `cambia` tick other inputs, and shows what they have. `spunta`: boxes change, and what
  /// plays falls silent before.
  void CambiaCodice(std::function<void()> cambia, bool spunta = true);
  void EseguiCambio(const std::function<void()>& cambia);
  void PlayAssegnato();
  void ZittiscePerSpunta();
  /// Before the link takes a tick away.
  void ZittiscePerRs485();
  /// Nothing plays on.
  void FineAscolto();
  /// Shows the ticked inputs and judges the picked file; `scegli`: picks theirs before, where they
  /// have one.
  void MostraCodice(bool scegli = true);
  /// Shows the table as it is now; `inVista` brings the ticked inputs' row into view.
  void AggiornaElenco(bool inVista = false);
  /// Looks the ticked inputs up once more.
  void RivediCodice();
  /// Whether the table still has for them what is shown; shows what it has where not.
  bool AncoraCosi();
  void NonSiLegge();
  /// Reads again what could not be read; called every other second.
  void Ritenta();
  void SceltoFile();
  /// Offers the way to the ticked inputs' file where it is there, in another folder.
  void OffriCartella();
  /// Shows that folder, with the file picked.
  void VaiAlFile();
  void ValutaScelta();
  void MostraInfoMp3();
  /// Why the picked file is refused.
  std::string Motivo(const InfoMp3& info, bool manca);
  void ConfermaFile();
  void SfogliaMp3();
  /// Runs a long work that lets events run, one at a time, and shows then what it has changed.
  void Lavora(const std::function<void()>& lavoro);
  void Registra();
  /// Deletes the card's files.
  void Svuota();
  void TrovaMancanti();
  void Verifica();
  /// Leaves the card to the user: the hub hides until the bar that takes its place is closed.
  void CopiaManuale();
  void Espelli();
  void Salva();
  void MostraReport();
  /// Hands over to the editor of playlists.
  void ApriPlaylist();
  void ApriPalinsesto();
  /// Hands over to an editor; `copia` is its working copy, of which a crash may have left one.
  void ApriEditor(const char* copia, void (*apri)(Navigazione&));
  /// Tells of what a screen of parameters couldn't write, which closes all the same.
  void AvvisaNonScritto();
  void AggiornaNonSalvato();
  /// Fills the button of what is to be done next.
  void MostraPrimario();
  /// Counts the project at the next free moment; not `daCapo`: rows that haven't changed since the
  /// last count aren't read again.
  void CominciaConto(bool daCapo = true);
  void Conta();
  void RiempiAltro();

  ServiziHub& servizi_;
  TabellaIngressi ingressi_;
  std::optional<CodiceScelto> codice_;
  AscoltoHub ascolto_{C(), ambiente_.Documenti, *mPlayer, *mciPreview};
  std::vector<std::function<void()>> cambi_;  ///< of the ticked inputs, to be made after a stop
  ControlliHub controlli_;
  ModificheHub modifiche_;
  modMp3Infos lettore_;
  LayoutHub layout_;
  std::array<QWidget*, 2> colonne_{};  ///< those of the inputs and of their files
  bool letti_ = false;                 ///< the controls show what Config.txt holds
  QTimer guardia_;                     ///< looks at the card
  ContoProgetto conto_;
  bool contoIniziato_ = false;
  bool contoMostrato_ = false;
  bool daCapo_ = true;
  bool illeggibile_ = false;  ///< the table was there and couldn't be read
  QTimer conta_;              ///< counts a little whenever nothing else is to be done
  bool lasciata_ = false;     ///< it was in front before
  bool lavora_ = false;       ///< a recording, a save or a report is under way
  int pausa_ = 1;             ///< rounds of the watch between two tries to read, and those since
  int giri_ = 0;
  bool finePrograma_ = false;
};

}  // namespace kvr5
