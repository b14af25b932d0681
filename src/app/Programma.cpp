#include "app/Programma.h"

#include <QCoreApplication>
#include <QEventLoop>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/screens/Testo.h"
#include "flashcard/AvvisoNonLetti.h"
#include "flashcard/CancellaFlash.h"
#include "flashcard/Estranei.h"
#include "flashcard/ParoleEspulsione.h"
#include "flashcard/Registrazione.h"
#include "platform/FileOps.h"

namespace kvr5 {
namespace {

/// The dialog that a recording opens when no card is chosen.
class SceltaDalDialogo : public SelezioneFlash {
 public:
  explicit SceltaDalDialogo(Programma& programma) : programma_(programma) {}
  void Scegli() override { programma_.ScegliScheda(Schermata::Configurazione); }
  bool Presente() const override {
    // Of the card that the work began with, whatever is chosen meanwhile.
    if (scheda_.empty()) scheda_ = programma_.C().Stato.PercorsoMemoryCard;
    const auto facts = programma_.FattiDellaScheda(scheda_);
    return facts && facts->HasMedium;
  }

 private:
  Programma& programma_;
  mutable std::string scheda_;
};

}  // namespace

Programma::Programma(const std::string& cartella, Processo& processo)
    : cartella_(cartella),
      contesto_{files_, finestre_, eventi_, copia_, ora_, processo, {}, Locale::Host(), {}, {}},
      vita_([this] { TerminaProgramma(); }),
      ambiente_{contesto_, *this, documenti_, vita_, suono_},
      drives_(percorsi_, *volumi_, [this] { return TestoDrives(); }),
      progresso_(ambiente_) {
  const auto folder = files_.SystemPath(cartella);
  if (folder) contesto_.CartellaProgramma = folder.Value();
  finestre_.Collega(ambiente_);
  copia_.Collega(contesto_);
  QCoreApplication::installTranslator(&testi_);
  drives_.List();  // letters are bound before any path is looked at
}

Programma::~Programma() = default;

std::string Programma::TestoDrives() {
  const auto text = ReadWhole(files_, AggiungiBarra(contesto_.CartellaProgramma) + "Drives.ini");
  return text ? text.Value() : std::string();
}

bool Programma::Avvia(const std::string& rigaDiComando) {
  // A folder that no path can name is to be told as such, not as the first file that isn't found.
  if (!FolderExists(files_, contesto_.CartellaProgramma)) {
    DiciCartellaInadatta();
    return false;
  }
  Main(contesto_, *this, rigaDiComando);
  return true;
}

void Programma::DiciCartellaInadatta() {
  // In built-in words: the languages lie in that folder.
  finestre_.MostraMessaggio(
      {"The program can't work in this folder",
       "Its path holds one of | : \\ * ? or a character that can't be read.\r\n"
       "Move the program to another folder, then start it again.\r\n" +
           cartella_,
       Icona::Avviso, Pulsanti::Ok, Risposta::Ok});
}

void Programma::Mostra(Schermata schermata) {
  switch (schermata) {
    case Schermata::Splash:
      return splash_->Mostra();
    case Schermata::Menu:
      return menu_->Mostra();
    case Schermata::Impostazioni:
      return impostazioni_->Mostra();
    case Schermata::Wizard:
      return wizard_->Mostra();
    case Schermata::ElencoProgetti:
      return elenco_->Mostra();
    case Schermata::Configurazione:
      return hub_->Mostra();
    case Schermata::EditorPlaylist:
      return editorPlaylist_->Mostra();
    case Schermata::Palinsesto:
      return palinsesto_->Mostra();
    case Schermata::Nessuna:
      return;
  }
}

void Programma::MostraElencoProgetti(Schermata chiamante) {
  elenco_->FormChiamante = chiamante;
  elenco_->Mostra();
}

void Programma::ApriConfigurazione(std::int16_t apreDaFlash) {
  hub_->ApreDaFlash = apreDaFlash;
  hub_->Mostra();
}

void Programma::ApriPlaylist(Schermata chiamante) {
  if (editorPlaylist_.Caricata()) return;  // its load lets events run
  editorPlaylist_->FormSuccessivo = chiamante;
  editorPlaylist_->Mostra();
}

void Programma::ApriPalinsesto(Schermata chiamante) {
  if (palinsesto_.Caricata()) return;  // its load lets events run
  palinsesto_->FormSuccessivo = chiamante;
  palinsesto_->Mostra();
}

void Programma::ScegliScheda(Schermata chiamante) {
  if (scheda_.Caricata()) return;  // its load lets events run: a second press is one too many
  scheda_->FormChiamante = chiamante;
  scheda_->MostraModale();
  eventi_.LasciaCorrere();
}

void Programma::ChiediNomeProgetto(Schermata chiamante, const std::string& nome) {
  nomeProgetto_->Carica();
  nomeProgetto_->txtNomeProgetto->setText(Qs(nome));
  nomeProgetto_->txtNomeProgetto->selectAll();
  nomeProgetto_->setWindowTitle(Qs(TestoLingua(contesto_, "0030011")));
  nomeProgetto_->SoloNome = true;
  nomeProgetto_->FormSuccessivo = chiamante;
  nomeProgetto_->MostraModale();
}

void Programma::AggiornaPercorsoMemoryCard() {
  hub_->AggiornaPercorsoMemoryCard();
}

void Programma::ApriTempiFade() {
  if (!tempiFade_.Caricata()) tempiFade_->MostraModale();
}

void Programma::ApriPanelExtra() {
  if (!panelExtra_.Caricata()) panelExtra_->MostraModale();
}

void Programma::ApriConfig485(bool modoRS232) {
  if (config485_.Caricata()) return;  // its load shows a notice and lets events run
  config485_->ModoRS232 = modoRS232;
  config485_->MostraModale();
}

void Programma::ChiediSalvataggio(Schermata chiamante, std::function<void(bool)> annulla) {
  if (salva_.Caricata()) return;
  salva_->FormChiamante = chiamante;
  salva_->AnnullaSalvataggio = std::move(annulla);
  salva_->MostraModale();
}

void Programma::RiavviaMain() {
  Main(contesto_, *this, {});
}

void Programma::TerminaProgramma() {
  // quit() would first close each window, and the hub would ask its question once more.
  QCoreApplication::exit();
}

void Programma::MostraSplash(Schermata successivo) {
  splash_->FormSuccessivo = successivo;
  splash_->Mostra();
}

void Programma::AvviaTempoSplash() {
  splash_->tmrChiusura.start();
}

bool Programma::RegistraProgetto(TabellaIngressi& ingressi) {
  SceltaDalDialogo choice(*this);
  const auto end = RegistraProgettoSuFlash(contesto_, ingressi, progresso_, choice);
  registrataIntera_ = end.Intera();
  AvvisaNonLetti(contesto_, end);
  return end.Fine == FineRegistrazione::Annullata;
}

std::size_t Programma::EstraneiSullaScheda() {
  return ContaEstranei(contesto_, contesto_.Stato.PercorsoMemoryCard);
}

bool Programma::ChiediScheda() {
  SceltaDalDialogo choice(*this);
  return ScegliSchedaSeManca(contesto_, choice);
}

bool Programma::SvuotaScheda() {
  SceltaDalDialogo choice(*this);
  const FineSvuotamento end = CancellaFlash(contesto_, choice);
  return end != FineSvuotamento::Rinunciata && end != FineSvuotamento::SenzaScheda;
}

void Programma::VerificaScheda() {
  if (verifica_.Caricata()) return;
  verifica_->FormChiamante = Schermata::Configurazione;
  verifica_->SchedaPresente = [this] { return SceltaDalDialogo(*this).Presente(); };
  verifica_->MostraModale();
}

void Programma::ApriCopiaManuale() {
  copiaManuale_->FormChiamante = Schermata::Configurazione;
  copiaManuale_->Mostra();
  documenti_.Apri(contesto_.Stato.PercorsoMemoryCard);
}

bool Programma::PuoEspellere() {
  const auto drive = FattiDellaScheda();
  return drive && espulsore_.CanEject(*drive);
}

void Programma::EspelliScheda() {
  const auto drive = FattiDellaScheda();
  if (!drive) return;
  eventi_.ImpostaPuntatore(Puntatore::Attesa);
  std::optional<Error> outcome;
  QEventLoop wait;
  espulsore_.Eject(*drive, [&](const Error& error) {
    outcome = error;
    wait.quit();
  });
  // What is still in the host's memory may take a while to get onto the card.
  if (!outcome) wait.exec(QEventLoop::ExcludeUserInputEvents);
  eventi_.ImpostaPuntatore(Puntatore::Normale);
  finestre_.MostraMessaggio(
      BoxEspulsione(contesto_, drive->Root(), outcome.value_or(Error(errors::DeviceUnavailable))));
}

std::optional<Drive> Programma::FattiDellaScheda() {
  return FattiDellaScheda(contesto_.Stato.PercorsoMemoryCard);
}

std::optional<Drive> Programma::FattiDellaScheda(const std::string& radice) {
  for (const auto& drive : drives_.List()) {
    if (drive.Root() == radice) return drive;
  }
  return {};
}

}  // namespace kvr5
