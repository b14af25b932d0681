#include "playerconfig/screens/frmPlayerConfig.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/Aiuti.h"
#include "core/CartellaMp3.h"
#include "core/Lingua.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "mp3/Accettazione.h"
#include "mp3/EtichetteMp3.h"
#include "mp3/ParoleRifiuto.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "playerconfig/ModoDelPlayer.h"
#include "playerconfig/RientroDaScheda.h"
#include "projects/CartellaProgetto.h"
#include "projects/Descrittore.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormPlayerConfig = 4;
constexpr std::int16_t kFromCard = 2;
constexpr int kTypeRoom = 420;
// What the count does at once: a few milliseconds on a slow disk.
constexpr std::size_t kRowsRead = 500;
constexpr std::size_t kFilesSeen = 100;
constexpr int kLongestPause = 15;  // rounds of the watch between two tries to read

/// Whether the rows have for a code what is shown of it.
bool IsShown(const std::vector<RigaIngresso>& rows, const CodiceScelto& code) {
  const auto row = std::find_if(rows.begin(), rows.end(), [&](const RigaIngresso& each) {
    return each.Pos == code.Codice();
  });
  if (code.Codice() == 0 || row == rows.end()) return !code.DaScegliere();
  return code.DaScegliere() == row->FileName.value_or("") &&
         code.Cartella() == row->FilePath.value_or("");
}

}  // namespace

frmPlayerConfig::frmPlayerConfig(Ambiente& ambiente, ServiziHub& servizi)
    : Form(ambiente, "frmPlayerConfig"),
      servizi_(servizi),
      ingressi_(ambiente.C),
      lettore_(ambiente.C.Files),
      conto_(ambiente.C) {
  setWindowTitle(QStringLiteral("KVR5"));
  resize(1200, 720);
  Costruisci();
  Collega();
  CollegaComandi();
}

void frmPlayerConfig::AlCaricamento() {
  auto& state = C().Stato;
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  Localizza();
  state.SalvaMp3Ingressi = true;
  fraOutputLevel->AggiornaTutti();
  layout_ = LayoutDelHub(state.PlayerType, state.PlayerMode, state.UsaPlayerEsterno);
  ApriIngressi();
  if (ApreDaFlash == kFromCard) RientroDaScheda(C(), ingressi_);
  const std::string folder = CartellaIniziale(C(), ApreDaFlash);
  fraFileInfo->tmrInfoMp3.start();
  LeggiControlli();
  Opzioni->ImpostaAnalyzer(state.Analyzer == 1);
  state.FileReport = AggiungiBarra(state.CartellaProgetto) + state.ProjectName + ".htm";
  MostraCodice();
  fraFileName->DirDirectoryMp3->ImpostaPercorso(folder);
  Disponi();
  MostraModo();
  constexpr std::int16_t kKvr5 = 4;
  if (state.PlayerType == kKvr5) state.Usa485 = LeggiUse485(C());
  AggiornaElenco();
  modifiche_.Rileggi(C());
  AggiornaNonSalvato();
  RiempiAltro();
  guardia_.start();
  CominciaConto();
  (layout_.fraIngressiLogici ? static_cast<QWidget*>(fraIngressiLogici->chkIn[0])
                             : fraOutputLevel->sliVolume)
      ->setFocus();
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

void frmPlayerConfig::Localizza() {
  LocalizzaForm(C(), kFormPlayerConfig, *this);
  setWindowTitle(QStringLiteral("KVR5 - ") + Qs(TestoLingua(C(), "0040000")) +
                 QStringLiteral(" - ") + Qs(C().Stato.ProjectName));
  fraFileName->lblfraFileName->setText(fraFileName->lblfraFileName->text() + QStringLiteral(" - "));
  // A copy of a project keeps its name: the folder tells the two apart.
  const std::string folder = EstraiNomeFile(C().Stato.CartellaProgetto);
  const bool same = EqualFold(folder, C().Stato.ProjectName);
  lblProgetto->setText(Qs(C().Stato.ProjectName + (same ? "" : " (" + folder + ")")));
  lblNonSalvato->setText(Qs(TestoLinguaO(C(), "0130120", "Settings unsaved")));
  lblNonSalvato->setToolTip(Qs(TestoLingua(C(), "0130121")));
  fraOutputLevel->Localizza();
  Opzioni->Localizza();
  fraIngressiLogici->Localizza();
  Assegnazioni->Localizza();
  for (Coppia* find : {Assegnazioni->picTrova, Pannello->picTrovaBrani}) {
    find->ImpostaScritta(SenzaMnemonico(Qs(TestoLinguaO(C(), "0130134", "Find"))));
    find->setToolTip(Qs(TestoLingua(C(), "0130339")));
  }
  fraFileName->Localizza();
  Scheda->Localizza();
  Barra->Localizza();
  Seriali->SegueScritte();
  Scheda->MostraStato(servizi_.FattiDellaScheda());
  Barra->ImpostaScheda(C().Stato.PercorsoMemoryCard);
}

void frmPlayerConfig::ApriIngressi() {
  codice_.emplace(C(), ingressi_, Std(fraFileName->lblfraFileName->text()));
  ingressi_.ApriSeCiSono();
}

void frmPlayerConfig::LeggiControlli() {
  controlli_.Leggi(C());
  fraOutputLevel->Mostra(controlli_);
  Opzioni->Mostra(controlli_);
  letti_ = true;
}

void frmPlayerConfig::MostraModo() {
  const QString type = Qs(C().Stato.PlayerConfigDesc);
  lblTipoPlayer->setText(lblTipoPlayer->fontMetrics().elidedText(type, Qt::ElideRight, kTypeRoom));
  lblTipoPlayer->setToolTip(Suggerimento(type));
  lblTipoPlayer->setAccessibleName(type);
  lblModello->setText(Qs(NomeModello(C().Stato.PlayerType)));
  lblModello->setVisible(type.trimmed().isEmpty());
  const EtichetteModo mode =
      EtichetteDelModo(C().Stato.PlayerConfigDesc, TestoLingua(C(), "0040047"));
  lblModoPanel->setText(Qs(mode.lblModoPanel));
  lblModoPanelBig->setText(Qs(mode.lblModoPanelBig));
  lblModoOstrel->setText(Qs(mode.lblModoOstrel));
  lblModoOstrelBig->setText(Qs(mode.lblModoOstrelBig));
  lblModoZub->setText(Qs(mode.lblModoZub));
  lblModoZubBig->setText(Qs(mode.lblModoZubBig));
}

void frmPlayerConfig::AllAttivazione() {
  if (!codice_) return;
  const Impegno stays(*this);
  const OwnError own(C().Errore);
  guardia_.start();
  const OkInPosto same(*this);  // the click that brings the hub to the front comes next
  {
    const OkInPosto link(*this);  // held up before the rereading below lets events run
    ZittiscePerRs485();
    if (codice_->AbilitaIngressiRs485()) {
      fraFileName->SegnaScelta(false);
      MostraCodice();
    }
  }
  fraIngressiLogici->Mostra(*codice_);
  // Files come and go while another window is in front. At the first time the load has just looked.
  if (std::exchange(lasciata_, true) && !lavora_) {
    AggiornaElenco();  // first: a button that has changed is held up before any event runs
    RileggiCartella();
    CominciaConto(false);
  }
}

void frmPlayerConfig::RileggiCartella() {
  const std::string before = fraFileName->Scelto();
  if (fraFileName->Rileggi()) {
    const auto& assigned = codice_->DaScegliere();
    const bool free = Rifila(fraFileName->Scelto()).empty() && !fraFileName->SceltoDallUtente();
    if (free && assigned) return fraFileName->Scegli(*assigned);
    if (fraFileName->Scelto() != before) return SceltoFile();
  }
  // The button stays meanwhile: the click that brings the hub to the front may be meant for it.
  fraFileInfo->tmrInfoMp3.stop();
  MostraInfoMp3();
}

frmPlayerConfig::OkInPosto::~OkInPosto() {
  if (hub_.OkFa() != prima_) hub_.fraFileName->OkCambiato();
}

frmPlayerConfig::FattoDaOk frmPlayerConfig::OkFa() const {
  return {!fraFileName->cmdOkFileMp3->isHidden(), fraFileName->Scelto(), codice_->Codice(),
          codice_->DaScegliere(), codice_->Cartella()};
}

void frmPlayerConfig::RivediCodice() {
  const OkInPosto same(*this);
  codice_->AggiornaIngressoSelezionato();
  MostraCodice(!fraFileName->SceltoDallUtente());
}

void frmPlayerConfig::NonSiLegge() {
  illeggibile_ = true;
  Assegnazioni->MostraIlleggibile();
}

void frmPlayerConfig::Ritenta() {
  if (lavora_ || conta_.isActive()) return;
  const bool unread = illeggibile_ || !conto_.Cifre().Illeggibile.empty();
  if (!unread) pausa_ = 1;
  // Each try may wait a while for a lock: they come less and less often.
  if (!unread || ++giri_ < pausa_) return;
  const Impegno stays(*this);
  const OwnError own(C().Errore);
  giri_ = 0;
  pausa_ = std::min(2 * pausa_, kLongestPause);
  if (illeggibile_) AggiornaElenco();
  if (!illeggibile_) CominciaConto(false);
}

void frmPlayerConfig::MostraCodice(bool scegli) {
  OffriCartella();
  fraIngressiLogici->Mostra(*codice_);
  Assegnazioni->Evidenzia(codice_->Codice());
  fraFileName->lblfraFileName->setText(Qs(codice_->lblfraFileName()));
  const auto& file = codice_->DaScegliere();
  if (scegli && file) return fraFileName->Scegli(*file);
  SceltoFile();
}

void frmPlayerConfig::AggiornaElenco(bool inVista) {
  if (lavora_ && !ingressi_.Aperta()) return;  // closed for the while that it is copied
  const bool none = TabellaIngressi::SenzaIngressi(C().Stato.PlayerType, C().Stato.PlayerMode);
  const bool there = !none && FileExists(C().Files, FileDelProgetto(C(), "inputcfg.mdb"));
  if (!ingressi_.Aperta() && there) ingressi_.Riapri();  // what held it may have let it go
  std::vector<RigaIngresso> rows;
  C().Errore.Clear();
  if (ingressi_.Aperta()) {
    rows = ingressi_.Righe();
  } else if (there) {
    C().Errore.Record(Error(errors::ObjectClosed));
  }
  if (ingressi_.Aperta() ? bool(C().Errore) : there) return NonSiLegge();
  illeggibile_ = false;
  if (!ingressi_.Aperta()) {
    Assegnazioni->MostraSenzaTabella();
  } else if (Assegnazioni->Mostra(Assegnati(C(), rows))) {
    Assegnazioni->Evidenzia(codice_->Codice(), inVista);
  }
  // What is ticked has another file by now, or could not be looked up before.
  if (!IsShown(rows, *codice_)) return RivediCodice();
  OffriCartella();
}

bool frmPlayerConfig::AncoraCosi() {
  const FattoDaOk shown = OkFa();
  if (lavora_ && !ingressi_.Aperta()) {
    C().Errore.Record(Error(errors::ObjectClosed));  // for the while that it is copied
    return false;
  }
  AggiornaElenco();
  return !illeggibile_ && OkFa() == shown;
}

void frmPlayerConfig::SceltoFile() {
  const Impegno stays(*this);
  const bool keyboard = fraFileName->OkConTastiera();
  fraFileName->MostraOk(false);
  ValutaScelta();
  if (keyboard && fraFileName->cmdOkFileMp3->isVisible()) fraFileName->cmdOkFileMp3->setFocus();
}

void frmPlayerConfig::OffriCartella() {
  if (!codice_) return;
  const std::string name = codice_->DaScegliere().value_or("");
  const std::string there = AggiungiBarra(codice_->Cartella());
  const std::string here = AggiungiBarra(fraFileName->DirDirectoryMp3->Percorso());
  const FileSystem& files = C().Files;
  const bool isName = !name.empty() && FaultOf(name) == NameFault::None;
  const bool away =
      isName && FileExists(files, there + name) && !files.SameFile(there + name, here + name);
  if (!away && focusWidget() == fraIngressiLogici->cmdVaiAlFile) {
    fraFileName->cmbFileMp3->setFocus();
  }
  fraIngressiLogici->OffriCartella(away ? there : "");
}

void frmPlayerConfig::VaiAlFile() {
  const Impegno stays(*this);
  OffriCartella();  // it may have gone since it was offered
  if (!fraIngressiLogici->OffreCartella()) return;
  fraFileName->LiberaOk();
  fraFileName->DirDirectoryMp3->ImpostaPercorso(codice_->Cartella());
  MostraCodice();
}

void frmPlayerConfig::ValutaScelta() {
  const std::string item = fraFileName->Scelto();
  if (Rifila(item).empty()) {
    const PannelloMp3 panel = PulisciInfoMp3();
    fraFileInfo->Mostra({}, {}, {}, {});
    fraFileInfo->MostraAvviso(panel.lblBadFileType, {});
    fraFileName->MostraTogliere(codice_ && codice_->fraFileAssociatoVisibile());
    fraFileName->MostraOk(codice_ && codice_->OkPerNessunFile());
    return;
  }
  fraFileName->MostraTogliere(false);
  fraFileInfo->tmrInfoMp3.stop();
  MostraInfoMp3();
  fraFileInfo->tmrInfoMp3.start();
}

void frmPlayerConfig::MostraInfoMp3() {
  if (Rifila(fraFileName->Scelto()).empty()) return;  // no file is picked
  fraFileInfo->Mostra({}, {}, {}, {});
  fraFileInfo->MostraAvviso(false, {});
  if (isVisible()) C().Messaggi.LasciaCorrere();
  // Another one may have been picked while events ran: that is the one to judge.
  const std::string item = fraFileName->Scelto();
  if (Rifila(item).empty()) return ValutaScelta();
  const std::string path = AggiungiBarra(fraFileName->DirDirectoryMp3->Percorso()) + item;
  const InfoMp3 info = lettore_.LeggiInfoMp3(path);
  const auto file = C().Files.Info(path);
  const std::uint64_t length = file ? file.Value().Size : 0;
  const PannelloMp3 panel = kvr5::MostraInfoMp3(SchermoMp3::Ingressi, info, length, C().Luogo);
  const EtichetteMp3& labels = panel.Etichette;
  fraFileInfo->Mostra(Qs(labels.lblVersioneMpeg), Qs(labels.lblBitrate), Qs(labels.lblFreq),
                      Qs(labels.lblDurata));
  fraFileInfo->MostraAvviso(panel.lblBadFileType,
                            panel.lblBadFileType ? Qs(Motivo(info, !file)) : QString());
  fraFileName->MostraOk(!panel.lblBadFileType && codice_ && codice_->Codice() >= 1);
}

std::string frmPlayerConfig::Motivo(const InfoMp3& info, bool manca) {
  return ParoleRifiutoDelFile(C(), lettore_, manca, MotivoPerIngressi(info, lettore_.Ricerca()),
                              info);
}

void frmPlayerConfig::ConfermaFile() {
  const Impegno stays(*this);
  const OwnError own(C().Errore);
  const std::string item = fraFileName->Scelto();
  const bool blank = Rifila(item).empty();
  if (blank && !AncoraCosi()) {
    return ingressi_.AnnotaErrore(item);  // nothing is taken away but what was shown
  }
  C().Errore.Clear();
  codice_->Conferma(item, fraFileName->DirDirectoryMp3->Percorso());
  const bool failed{C().Errore};
  if (!blank || !failed) fraFileName->SegnaScelta(failed);
  MostraCodice(!failed);  // what wasn't kept stays picked, to be confirmed once more
  if (!blank && Rifila(fraFileName->Scelto()).empty()) fraFileName->OkCambiato();
  AggiornaElenco(true);
  CominciaConto();
}

void frmPlayerConfig::CominciaConto(bool daCapo) {
  // The window is there first, with what it shows; then, whenever nothing else is to be done.
  constexpr int kBreath = 100;  // milliseconds
  daCapo_ = daCapo_ || daCapo;
  contoIniziato_ = false;
  conta_.start(kBreath);
}

void frmPlayerConfig::Conta() {
  if (lavora_) return conta_.stop();  // the disk is the recording's; its end counts anew
  if (!contoIniziato_) {
    contoIniziato_ = true;
    conta_.setInterval(0);
    return conto_.Comincia(std::exchange(daCapo_, false));
  }
  if (conto_.Leggi(kRowsRead)) return;
  // The old figures stand until the new ones are whole; at first those of the rows will do.
  const bool first = !std::exchange(contoMostrato_, true);
  if (!first && !conto_.Passo(kFilesSeen)) conta_.stop();
  const CifreProgetto& figures = conto_.Cifre();
  if (figures.Completo || first) Pannello->Mostra(C(), figures, layout_.picPalinsesto);
  if (figures.Completo) {
    MostraPrimario();
    Assegnazioni->MostraBraniMancanti(figures.Mancanti - figures.MancantiIngressi);
  }
  // What can't be read is no reason to say that less room is needed.
  if (figures.Completo && figures.Illeggibile.empty()) Scheda->ImpostaBisogno(figures.Byte);
}

void frmPlayerConfig::SfogliaMp3() {
  const Impegno stays(*this);
  const OwnError own(C().Errore);
  const std::string chosen = C().Finestre.SfogliaCartella(TestoLingua(C(), "50014"),
                                                          fraFileName->DirDirectoryMp3->Percorso());
  const auto folder = ScegliCartella(C(), chosen);
  if (folder) fraFileName->DirDirectoryMp3->ImpostaPercorso(*folder);
}

void frmPlayerConfig::AggiornaPercorsoMemoryCard() {
  Carica();
  Scheda->Mostra(Qs(TestoLingua(C(), "0040023") + ": " + C().Stato.PercorsoMemoryCard),
                 servizi_.FattiDellaScheda());
  Barra->ImpostaScheda(C().Stato.PercorsoMemoryCard);
}

void frmPlayerConfig::AggiornaNonSalvato() {
  fraOutputLevel->Raccogli(controlli_);
  Opzioni->Raccogli(controlli_);
  const bool unsaved = modifiche_.DaSalvare(controlli_);
  lblNonSalvato->setVisible(unsaved);
  MostraPrimario();
}

void frmPlayerConfig::MostraPrimario() {
  const CifreProgetto& figures = conto_.Cifre();
  const bool empty = figures.Completo && figures.Illeggibile.empty() &&
                     figures.Ingressi + figures.Brani + figures.Spot == 0;
  Coppia* next = Barra->picRecordFlash;
  // Of an empty project there is nothing to record: its editor comes first.
  for (Coppia* editor : {Barra->picPlaylist, Barra->picPalinsesto}) {
    if (empty && editor->parentWidget() == Pannello && !editor->isHidden()) next = editor;
  }
  if (!lblNonSalvato->isHidden()) next = Barra->picSave;
  for (Coppia* each :
       {Barra->picSave, Barra->picRecordFlash, Barra->picPlaylist, Barra->picPalinsesto}) {
    const auto kind = each == next ? Coppia::Genere::Primario : Coppia::Genere::Normale;
    if (each->GenereOra() != kind) each->ImpostaGenere(kind);
  }
}

bool frmPlayerConfig::PuoChiudere(Causa /*causa*/) {
  const std::string text = TestoLingua(C(), "0040018") + "\r\n" + TestoLingua(C(), "0040019") +
                           "\r\n" + TestoLingua(C(), "0040020") + "\r\n" +
                           TestoLingua(C(), "0040021");
  const Risposta answer =
      C().Finestre.MostraMessaggio({TestoLingua(C(), "0040017"), text, Icona::Domanda,
                                    Pulsanti::SiNoAnnulla, Risposta::Annulla});
  if (answer == Risposta::Annulla) return false;
  ingressi_.Chiudi();
  finePrograma_ = answer == Risposta::No;
  return true;
}

void frmPlayerConfig::AlloScarico() {
  guardia_.stop();
  FineAscolto();
  conta_.stop();
  conto_.Interrompi();
  fraFileInfo->tmrInfoMp3.stop();
  if (finePrograma_) {
    ambiente_.Schermi.TerminaProgramma();
    return;
  }
  hide();
  C().Stato.PlayerType = 1;
  ambiente_.Schermi.Mostra(Schermata::Menu);
}

}  // namespace kvr5
