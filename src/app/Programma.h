#pragma once

#include <memory>
#include <string>

#include "core/Main.h"
#include "core/Orologio.h"
#include "core/screens/AnteprimeAudio.h"
#include "core/screens/EsecutoreQt.h"
#include "core/screens/EventiQt.h"
#include "core/screens/FinestraCopia.h"
#include "core/screens/FinestreQt.h"
#include "core/screens/Navigazione.h"
#include "core/screens/TestiQt.h"
#include "core/screens/frmConfig.h"
#include "core/screens/frmMain.h"
#include "core/screens/frmSalva.h"
#include "core/screens/frmSplash.h"
#include "flashcard/screens/frmCopiaManuale.h"
#include "flashcard/screens/frmProgress.h"
#include "flashcard/screens/frmSelectFlash.h"
#include "flashcard/screens/frmVerifica.h"
#include "platform/Drives.h"
#include "platform/HostFileSystem.h"
#include "platform/udisks/UDisks.h"
#include "platform/udisks/VolumesWithLabels.h"
#include "playerconfig/screens/frmConfig485.h"
#include "playerconfig/screens/frmPanelExtra.h"
#include "playerconfig/screens/frmPlayerConfig.h"
#include "playerconfig/screens/frmTempiFade.h"
#include "playlists/screens/frmPlaylistEditor.h"
#include "projects/screens/frmCaricaProgetto.h"
#include "projects/screens/frmRichiestaNomeForm.h"
#include "projects/screens/frmWizardPanel1.h"
#include "schedule/screens/frmPalinsesto.h"

namespace kvr5 {

/// The composition root: the host, the state, the ports as windows, and every screen.
class Programma : public Navigazione, public SchermateAvvio, public ServiziHub {
 public:
  /// `cartella`: the program's folder, in the host's form. The process that ends at once and the
  /// opener of documents are given.
  Programma(const std::string& cartella, Processo& processo);
  ~Programma() override;

  /// Runs Main with the command line (without the program's name). False when the program can't
  /// work in its folder: that was told, and nothing has begun.
  bool Avvia(const std::string& rigaDiComando);
  Contesto& C() { return contesto_; }
  Anteprime& Suono() { return suono_; }
  /// Drops the hub without its question, so that the next project opens in a fresh one.
  void DimenticaConfigurazione() { hub_.Dimentica(); }

  void Mostra(Schermata schermata) override;
  void MostraElencoProgetti(Schermata chiamante) override;
  void ApriConfigurazione(std::int16_t apreDaFlash) override;
  void ApriPlaylist(Schermata chiamante) override;
  void ApriPalinsesto(Schermata chiamante) override;
  void ScegliScheda(Schermata chiamante) override;
  void ChiediNomeProgetto(Schermata chiamante, const std::string& nome) override;
  void AggiornaPercorsoMemoryCard() override;
  void ApriTempiFade() override;
  void ApriPanelExtra() override;
  void ApriConfig485(bool modoRS232) override;
  void ChiediSalvataggio(Schermata chiamante, std::function<void(bool)> annulla) override;
  void RiavviaMain() override;
  void TerminaProgramma() override;

  void MostraSplash(Schermata successivo) override;
  void AvviaTempoSplash() override;

  bool RegistraProgetto(TabellaIngressi& ingressi) override;
  bool RegistrataIntera() const override { return registrataIntera_; }
  std::size_t EstraneiSullaScheda() override;
  bool ChiediScheda() override;
  bool SvuotaScheda() override;
  void VerificaScheda() override;
  void ApriCopiaManuale() override;
  bool PuoEspellere() override;
  void EspelliScheda() override;
  FinestraProgresso& Progresso() override { return progresso_; }
  std::optional<Drive> FattiDellaScheda() override;
  /// What the host tells of the drive with this root; nothing when it isn't there.
  std::optional<Drive> FattiDellaScheda(const std::string& radice);

 private:
  std::string TestoDrives();
  void DiciCartellaInadatta();

  std::string cartella_;  ///< as it was given
  PathMap percorsi_;
  HostFileSystem files_{percorsi_};
  FinestreQt finestre_;
  EventiQt eventi_;
  FinestraCopia copia_;
  OrologioDiSistema ora_;
  Contesto contesto_;
  EsecutoreQt documenti_{contesto_};
  TestiQt testi_{contesto_};
  VitaForme vita_;
  AnteprimeAudio suono_{contesto_};
  Ambiente ambiente_;
  UDisks espulsore_;
  std::unique_ptr<VolumeSource> volumi_ =
      std::make_unique<VolumesWithLabels>(HostVolumes(), espulsore_);
  Drives drives_;
  DriveDelComputer driveDelComputer_{drives_, files_};
  ProgressoQt progresso_;
  bool registrataIntera_ = false;

  FormPredefinita<frmSplash> splash_{[this] { return new frmSplash(ambiente_); }};
  FormPredefinita<frmMain> menu_{[this] { return new frmMain(ambiente_); }};
  FormPredefinita<frmConfig> impostazioni_{[this] { return new frmConfig(ambiente_); }};
  FormPredefinita<frmWizardPanel1> wizard_{[this] { return new frmWizardPanel1(ambiente_); }};
  FormPredefinita<frmCaricaProgetto> elenco_{
      [this] { return new frmCaricaProgetto(ambiente_, progresso_); }};
  FormPredefinita<frmRichiestaNomeForm> nomeProgetto_{
      [this] { return new frmRichiestaNomeForm(ambiente_); }};
  FormPredefinita<frmPlayerConfig> hub_{[this] { return new frmPlayerConfig(ambiente_, *this); }};
  FormPredefinita<frmPlaylistEditor> editorPlaylist_{
      [this] { return new frmPlaylistEditor(ambiente_, progresso_); }};
  FormPredefinita<frmPalinsesto> palinsesto_{
      [this] { return new frmPalinsesto(ambiente_, progresso_); }};
  FormPredefinita<frmTempiFade> tempiFade_{[this] { return new frmTempiFade(ambiente_); }};
  FormPredefinita<frmPanelExtra> panelExtra_{[this] { return new frmPanelExtra(ambiente_); }};
  FormPredefinita<frmConfig485> config485_{[this] { return new frmConfig485(ambiente_); }};
  FormPredefinita<frmSalva> salva_{[this] { return new frmSalva(ambiente_); }};
  FormPredefinita<frmVerifica> verifica_{[this] { return new frmVerifica(ambiente_); }};
  FormPredefinita<frmCopiaManuale> copiaManuale_{[this] { return new frmCopiaManuale(ambiente_); }};
  FormPredefinita<frmSelectFlash> scheda_{
      [this] { return new frmSelectFlash(ambiente_, driveDelComputer_); }};
};

}  // namespace kvr5
