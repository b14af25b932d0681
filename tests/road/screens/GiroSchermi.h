#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "core/screens/Form.h"
#include "playerconfig/screens/frmPlayerConfig.h"
#include "playlists/screens/frmPlaylistEditor.h"
#include "schedule/screens/frmPalinsesto.h"
#include "support/screens/BancoSchermi.h"

namespace kvr5::test {

/// A window as it stands on the screen.
struct SchermoVisto {
  QWidget& Finestra;
  std::string Nome;      ///< tells its state too
  bool Piccolo = false;  ///< a dialog, which has little room to take
  bool Attende = false;  ///< nothing to choose in it, but a work to wait for or to cancel
};

/// What the hub has done by others on a walk: nothing, and a card that is there as the walk says.
class ServiziDelGiro : public ServiziHub {
 public:
  explicit ServiziDelGiro(Contesto& contesto) : avanzamento_(contesto) {}
  bool RegistraProgetto(TabellaIngressi& /*ingressi*/) override { return false; }
  bool RegistrataIntera() const override { return false; }
  std::size_t EstraneiSullaScheda() override { return 0; }
  bool ChiediScheda() override { return false; }
  bool SvuotaScheda() override { return false; }
  void VerificaScheda() override {}
  void ApriCopiaManuale() override {}
  bool PuoEspellere() override { return true; }
  void EspelliScheda() override {}
  FinestraProgresso& Progresso() override { return avanzamento_; }
  std::optional<Drive> FattiDellaScheda() override { return Scheda; }
  std::optional<Drive> Scheda;

 private:
  FinestraProgresso avanzamento_;
};

/// A walk past every window of the program, in one language: each as it comes up, and in the states
/// in which it says more than that.
class GiroSchermi {
 public:
  using Guarda = std::function<void(const SchermoVisto&)>;

  /// `lingua`: the name of the language file.
  explicit GiroSchermi(const std::string& lingua);

  /// Shows one window after the other and runs `guarda` on each while it has the keyboard.
  void Percorri(const Guarda& guarda);

 private:
  void AlMenu();
  void NelWizard();
  void NelleImpostazioni();
  void AlNome();
  void NelSalvataggio();
  void NellElenco(bool conProgetti);
  void NelleSchede();
  void NellaVerifica();
  void AllaCopiaManuale();
  void NelLavoro();
  void NellaCopia();
  void NelleDomande();
  void NeiMessaggi();
  void NellEditor();
  void NegliAltriEditor();
  void AlNomeDellaPlaylist();
  void NelPalinsesto();
  void NelPalinsestoInUso();
  void NegliAltriPalinsesti();
  void NegliHub();
  /// Gives files of the folder "music" to codes of the open project.
  void Assegna(std::initializer_list<std::pair<std::int16_t, const char*>> file);
  void NellHubInUso();
  void NellHubColCollegamento();
  void NellHubConScheda();
  void NelleDissolvenze();
  void NegliExtra();
  void NelSeriale();

  void Mostra(Form& form, const std::string& nome, bool piccolo = false);
  void Vedi(QWidget& finestra, const std::string& nome, bool piccolo = false,
            bool attende = false) const;
  void Progetto(const std::string& nome, std::int16_t tipo, std::int16_t modo);
  std::unique_ptr<frmPlayerConfig> Hub();
  std::unique_ptr<frmPlaylistEditor> Editor();
  std::unique_ptr<frmPalinsesto> Palinsesto();
  /// A segment of the open project's schedule; `ora` is "08.30".
  void Segmento(int giorno, const std::string& ora);
  void Spot(int giorno, int segmento, int pos, const std::string& nome);
  void Domanda(const std::string& nome, const BoxSiNo& box);
  void Messaggio(const std::string& nome, const kvr5::Messaggio& messaggio);
  std::string Testo(const char* chiave);

  BancoSchermi b{Boxes::Veri};
  ServiziDelGiro servizi_{b.C};
  Guarda guarda_;
};

}  // namespace kvr5::test
