#include "road/screens/GiroSchermi.h"

#include <QCheckBox>
#include <QTest>
#include <filesystem>
#include <fstream>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/screens/Davanti.h"
#include "core/screens/RiquadroMessaggio.h"
#include "core/screens/frmConfig.h"
#include "core/screens/frmMain.h"
#include "core/screens/frmSalva.h"
#include "core/screens/frmSiNo.h"
#include "core/screens/frmSplash.h"
#include "flashcard/screens/frmCopiaManuale.h"
#include "flashcard/screens/frmProgress.h"
#include "flashcard/screens/frmSelectFlash.h"
#include "flashcard/screens/frmVerifica.h"
#include "playerconfig/screens/frmConfig485.h"
#include "playerconfig/screens/frmPanelExtra.h"
#include "playerconfig/screens/frmTempiFade.h"
#include "projects/NuovoProgetto.h"
#include "projects/screens/frmCaricaProgetto.h"
#include "projects/screens/frmRichiestaNomeForm.h"
#include "projects/screens/frmWizardPanel1.h"
#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"

namespace kvr5::test {
namespace {

/// The removable drives of the bench alone, whatever is plugged in.
class OnlyNamedDrives : public VolumeSource {
 public:
  std::vector<Volume> Removable() const override { return {}; }
  std::optional<VolumeRoom> Room(const std::string& folder) const override {
    return host_->Room(folder);
  }

 private:
  std::unique_ptr<VolumeSource> host_ = HostVolumes();
};

/// As long as a text of the language files can be.
std::string LongestText() {
  std::string text;
  while (text.size() < 253) text += "The file welcome-to-hall-2.mp3 can't be played here. ";
  return text.substr(0, 253);
}

std::string LongPath() {
  std::string path = "C:\\Users\\Restauro";
  for (int i = 0; i < 6; ++i) path += "\\Audio_guides_of_the_permanent_exhibition";
  return path + "\\welcome.mp3";
}

}  // namespace

GiroSchermi::GiroSchermi(const std::string& lingua) {
  b.Cartella.Write("program/KVR5Software.ini",
                   "[Config]\r\nLanguageFile=" + lingua +
                       "\r\n[Path]\r\nProjectsDir=" + b.Percorso("program/Projects") +
                       "\\\r\nLastMp3Dir=" + b.Percorso("music") + "\r\n");
  b.C.Stato.FileLingua = b.Percorso("program/Language/" + lingua);
  b.ScriviMp3("music/welcome.mp3", 1, 40);
  b.ScriviMp3("music/door.mp3", 2, 40);
  std::string frames;
  for (int i = 0; i < 40; ++i) {
    std::string frame("\xFF\xFB\x94\x64", 4);  // 48,000 Hz, which no player takes
    frame.resize(384, 'U');
    frames += frame;
  }
  b.Cartella.Write("music/48k.mp3", frames);
}

std::string GiroSchermi::Testo(const char* chiave) {
  return TestoLingua(b.C, chiave);
}

void GiroSchermi::Percorri(const Guarda& guarda) {
  guarda_ = guarda;
  NellElenco(false);
  AlMenu();
  NelWizard();
  NelleImpostazioni();
  AlNome();
  NelSalvataggio();
  NellEditor();
  NegliAltriEditor();
  AlNomeDellaPlaylist();
  NelPalinsesto();
  NelPalinsestoInUso();
  NegliAltriPalinsesti();
  NegliHub();
  NellHubInUso();
  NellHubColCollegamento();
  NellHubConScheda();
  NelleDissolvenze();
  NegliExtra();
  NelSeriale();
  NellElenco(true);
  NelleSchede();
  NellaVerifica();
  AllaCopiaManuale();
  NelLavoro();
  NellaCopia();
  NelleDomande();
  NeiMessaggi();
}

void GiroSchermi::Vedi(QWidget& finestra, const std::string& nome, bool piccolo,
                       bool attende) const {
  for (int i = 0; i < 8; ++i) QCoreApplication::processEvents();  // some words come later
  guarda_({finestra, nome, piccolo, attende});
}

void GiroSchermi::Mostra(Form& form, const std::string& nome, bool piccolo) {
  form.Mostra();
  ASSERT_TRUE(Pronta(form)) << nome;
  Vedi(form, nome, piccolo);
}

void GiroSchermi::AlMenu() {
  {
    frmSplash splash(b.A);
    splash.Mostra();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&splash));
    Vedi(splash, "frmSplash", true, true);
  }
  frmMain menu(b.A);
  Mostra(menu, "frmMain");
}

void GiroSchermi::NelWizard() {
  frmWizardPanel1 wizard(b.A);
  Mostra(wizard, "frmWizardPanel1", true);
  wizard.txtNomeProgetto->setText(QStringLiteral("Museum-Hall-2"));
  wizard.optPanel_21->click();
  Vedi(wizard, "frmWizardPanel1 with playlists", true);
  wizard.txtNomeProgetto->setText(QStringLiteral("Hall: 2"));
  Vedi(wizard, "frmWizardPanel1 with a warning", true);
}

void GiroSchermi::NelleImpostazioni() {
  frmConfig settings(b.A);
  Mostra(settings, "frmConfig", true);
  (settings.optInternal->isChecked() ? settings.optExternal : settings.optInternal)->click();
  Vedi(settings, "frmConfig changed", true);
  settings.cmbLanguage->setFocus();
  Tasto(settings, settings.cmbLanguage->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
  Vedi(settings, "frmConfig with a note", true);
}

void GiroSchermi::AlNome() {
  frmRichiestaNomeForm name(b.A);
  name.SoloNome = true;
  Mostra(name, "frmRichiestaNomeForm", true);
  name.txtNomeProgetto->setText(QStringLiteral("Hall: 2"));
  Vedi(name, "frmRichiestaNomeForm with a warning", true);
}

void GiroSchermi::NelSalvataggio() {
  frmSalva save(b.A);
  Mostra(save, "frmSalva", true);
}

void GiroSchermi::NellElenco(bool conProgetti) {
  FinestraProgresso work(b.C);
  frmCaricaProgetto list(b.A, work);
  Mostra(list, conProgetti ? "frmCaricaProgetto" : "frmCaricaProgetto empty", true);
  if (!conProgetti) return;
  list.txtCerca->setText(QStringLiteral("no such name"));
  Vedi(list, "frmCaricaProgetto, find fails", true);
}

void GiroSchermi::NelleSchede() {
  const OnlyNamedDrives volumes;
  std::string ini = "[Removable]\r\nE=" + (b.Cartella.Host() / "card").string() + "\r\n";
  Drives drives(b.Percorsi, volumes, [&ini] { return ini; });
  DriveDelComputer source(drives, b.Disco);
  {
    frmSelectFlash one(b.A, source);
    Mostra(one, "frmSelectFlash, one card", true);
  }
  std::filesystem::copy(b.Cartella.Host() / "program/Projects/Hall", b.Cartella.Host() / "card2");
  ini += "F=" + (b.Cartella.Host() / "card2").string() + "\r\n";
  frmSelectFlash two(b.A, source);
  Mostra(two, "frmSelectFlash, two cards", true);
  ASSERT_EQ(two.cmdFlash->count(), 2);
  const QString without = two.lblContenuto->text();
  two.cmdFlash->setCurrentIndex(1);
  ASSERT_NE(two.lblContenuto->text(), without) << "a project is on it";
  Vedi(two, "frmSelectFlash, the second card", true);
}

void GiroSchermi::NellaVerifica() {
  Progetto("Verified", 4, 1);
  const std::filesystem::path card = b.Cartella.Host() / "card3";
  std::filesystem::copy(b.Cartella.Host() / "program/Projects/Verified", card);
  b.C.Stato.PercorsoMemoryCard = b.Percorso("card3") + "\\";
  const auto verify = [this](const std::string& name, const char* shown) {
    frmVerifica window(b.A);
    window.Mostra();
    ASSERT_TRUE(Pronta(window)) << name;
    const QWidget* words = window.findChild<QWidget*>(QLatin1String(shown));
    ASSERT_TRUE(QTest::qWaitFor([words] { return words->isVisible(); })) << name;
    Vedi(window, name, true);
  };
  std::filesystem::remove(card / "KVR5.gif");
  verify("frmVerifica, all well", "lblBuono");
  std::filesystem::remove(card / "Config.txt");
  std::ofstream(card / "Config.cfg") << "other";
  std::ofstream(card / "5.mp3") << "left";
  std::ofstream(card / "1.m3u") << "P01-001\r\n";
  verify("frmVerifica with findings", "lblEsito");
  b.C.Stato.PercorsoMemoryCard = b.Percorso("nowhere") + "\\";
  verify("frmVerifica without a card", "lblEsito");
  b.C.Stato.PercorsoMemoryCard.clear();
}

void GiroSchermi::AllaCopiaManuale() {
  b.C.Stato.PercorsoMemoryCard = "E:\\";
  frmCopiaManuale bar(b.A);
  Mostra(bar, "frmCopiaManuale", true);
  b.C.Stato.PercorsoMemoryCard.clear();
}

void GiroSchermi::NelLavoro() {
  ProgressoQt work(b.A);
  work.Operazione(Testo("0070016"));
  work.ValoreMassimo = 7;
  work.FileTotali = 4999;
  work.Mostra();
  work.Step(4998, false);
  ASSERT_TRUE(Pronta(*work.Finestra()));
  Vedi(*work.Finestra(), "frmProgress counting", true, true);
  work.Step(0, false);
  work.Annulla();
  Vedi(*work.Finestra(), "frmProgress cancelled", true, true);
}

void GiroSchermi::NellaCopia() {
  RiquadroCopia window(b.C);
  MettiDavanti(window, nullptr);
  constexpr std::uint64_t kGiga = 1ULL << 30U;
  window.Aggiorna({LongPath(), 0, 4999, 0, 0}, 400);
  ASSERT_TRUE(Pronta(window));
  Vedi(window, "FinestraCopia counting", true, true);
  window.Aggiorna({LongPath(), 4998, 4999, 3 * kGiga, 1023 * kGiga}, 600000);
  Vedi(window, "FinestraCopia", true, true);
}

void GiroSchermi::Domanda(const std::string& nome, const BoxSiNo& box) {
  const Pilota<frmSiNo> user([&](frmSiNo& form) {
    Vedi(form, nome, true);
    form.Scarica();
  });
  b.C.Finestre.MostraSiNo(box);
}

void GiroSchermi::NelleDomande() {
  Domanda("frmSiNo", {Testo("0040027"), Testo("0040026"), {}, {}});
  constexpr std::uint32_t kOrange = 33023;
  Domanda("frmSiNo, removes", {Testo("0050024"), Testo("0050025"), {}, {}, true});
  Domanda("frmSiNo, a notice",
          {Testo("0070009"), Testo("0070019") + ":\r\ngong.mp3", Testo("0140022"), kOrange});
  Domanda("frmSiNo, long", {Testo("0040027"), LongestText(), {}, {}});
  Domanda("frmSiNo, a path", {Testo("0040027"), LongPath(), {}, kOrange});
}

void GiroSchermi::Messaggio(const std::string& nome, const kvr5::Messaggio& messaggio) {
  const Pilota<RiquadroMessaggio> user([&](RiquadroMessaggio& box) {
    Vedi(box, nome, true);
    box.reject();
  });
  b.C.Finestre.MostraMessaggio(messaggio);
}

void GiroSchermi::NeiMessaggi() {
  Messaggio("message",
            {Testo("0090010"), Testo("0090009"), Icona::Informazione, Pulsanti::Ok, Risposta::Ok});
  Messaggio("message of three buttons",
            {Testo("0040017"), Testo("0040018") + "\r\n" + Testo("0040019"), Icona::Domanda,
             Pulsanti::SiNoAnnulla, Risposta::Annulla});
  Messaggio("message with long words", {std::string(120, 'W'), LongPath() + std::string(200, 'm'),
                                        Icona::Avviso, Pulsanti::SiNoAnnulla, Risposta::Si});
}

void GiroSchermi::Progetto(const std::string& nome, std::int16_t tipo, std::int16_t modo) {
  b.CreaProgetto(nome, tipo, modo);
  constexpr std::int16_t kKvr5 = 4;
  b.C.Stato.PlayerConfigDesc =
      tipo == kKvr5 ? DescrizioneKvr5(modo, ScritteDelWizard(b.C, modo)) : NomeModello(tipo);
}

std::unique_ptr<frmPlayerConfig> GiroSchermi::Hub() {
  auto hub = std::make_unique<frmPlayerConfig>(b.A, servizi_);
  hub->ApreDaFlash = 1;
  hub->Mostra();
  EXPECT_TRUE(Pronta(*hub));
  return hub;
}

void GiroSchermi::NegliHub() {
  struct Model {
    const char* Name;
    std::int16_t Type;
    std::int16_t Mode;
  };
  for (const Model& model :
       {Model{"Inputs", 4, 1}, Model{"Schedule", 4, 2}, Model{"Lists by input", 4, 5},
        Model{"Lists by day", 4, 6}, Model{"Lists", 4, 7}, Model{"Veskadro", 1, 0},
        Model{"Zub", 2, 0}, Model{"Ostrel 1", 3, 1}, Model{"Ostrel 2", 3, 2},
        Model{"Ostrel 3", 3, 3}, Model{"Ostrel 4", 3, 4}, Model{"Ostrel 9", 3, 9}}) {
    Progetto(model.Name, model.Type, model.Mode);
    Vedi(*Hub(), std::string("frmPlayerConfig ") + model.Name);
  }
}

void GiroSchermi::Assegna(std::initializer_list<std::pair<std::int16_t, const char*>> file) {
  TabellaIngressi inputs(b.C);
  inputs.Apri();
  for (const auto& [code, name] : file) inputs.Assegna(code, name, b.Percorso("music") + "\\");
}

void GiroSchermi::NellHubInUso() {
  Progetto("Hall", 4, 1);
  Assegna({{1, "welcome.mp3"}, {5, "door.mp3"}, {12, "gone.mp3"}, {255, "welcome.mp3"}});
  const auto hub = Hub();
  hub->fraFileName->DirDirectoryMp3->ImpostaPercorso(b.Percorso("music"));
  hub->fraIngressiLogici->chkIn[0]->click();
  ASSERT_TRUE(hub->fraFileName->cmdOkFileMp3->isVisible());
  Vedi(*hub, "frmPlayerConfig with files");
  hub->fraFileName->Scegli("48k.mp3");
  ASSERT_TRUE(hub->fraFileInfo->lblBadFileType->isVisible());
  ASSERT_FALSE(hub->fraFileInfo->lblFreq->text().isEmpty());
  Vedi(*hub, "frmPlayerConfig with a refused file");
  hub->fraFileName->DirDirectoryMp3->ImpostaPercorso(b.Percorso(""));
  hub->fraIngressiLogici->chkIn[2]->click();
  ASSERT_TRUE(hub->fraIngressiLogici->cmdVaiAlFile->isVisible());
  Vedi(*hub, "frmPlayerConfig with a file elsewhere");
}

void GiroSchermi::NellHubColCollegamento() {
  Progetto("Linked", 4, 1);
  Assegna({{1, "welcome.mp3"}, {16, "welcome.mp3"}});
  b.Cartella.Write("program/Projects/Linked/Config.cfg", "[Config]\r\nUse485=1\r\n");
  const auto hub = Hub();
  const auto* row = hub->Assegnazioni->lstAssegnati->item(1);
  ASSERT_NE(row, nullptr);
  ASSERT_NE(row->text().indexOf(QLatin1Char(',')), -1) << "marked for two reasons";
  Vedi(*hub, "frmPlayerConfig with a link");
  b.C.Stato.Usa485 = false;
}

void GiroSchermi::NellHubConScheda() {
  constexpr std::uint64_t kGiga = 1ULL << 30U;
  Drive card;
  card.Letter = 'E';
  card.Label = "AUDIO-GUIDE";
  card.Size = 512 * kGiga;
  card.Free = 500 * kGiga;
  servizi_.Scheda = card;
  b.C.Stato.PercorsoMemoryCard = "E:\\";
  const auto hub = Hub();
  hub->AggiornaPercorsoMemoryCard();
  ASSERT_TRUE(QTest::qWaitFor([&hub] { return hub->Scheda->picSpazio->isVisible(); }));
  Vedi(*hub, "frmPlayerConfig with a card");
  hub->Scheda->SegnaRegistrata();
  hub->AggiornaPercorsoMemoryCard();
  Vedi(*hub, "frmPlayerConfig, its card recorded");
  hub->Scheda->SegnaRegistrata(7);
  hub->AggiornaPercorsoMemoryCard();
  Vedi(*hub, "frmPlayerConfig, its card recorded besides others' files");
  hub->Scheda->SegnaRegistrata();
  servizi_.Scheda->ReadOnly = true;
  hub->AggiornaPercorsoMemoryCard();
  Vedi(*hub, "frmPlayerConfig, its card locked");
  servizi_.Scheda->ReadOnly = false;
  servizi_.Scheda->Size = 4096;
  hub->AggiornaPercorsoMemoryCard();
  ASSERT_NE(hub->Scheda->lblSpazio->text().indexOf(QLatin1String("4 KB")), -1);
  Vedi(*hub, "frmPlayerConfig, its card too small");
  servizi_.Scheda = card;
  hub->AggiornaPercorsoMemoryCard();
  hub->fraOutputLevel->sliVolume->setValue(3);
  ASSERT_TRUE(hub->lblNonSalvato->isVisible());
  Vedi(*hub, "frmPlayerConfig unsaved");
  servizi_.Scheda.reset();
  hub->AggiornaPercorsoMemoryCard();
  Vedi(*hub, "frmPlayerConfig, its card gone");
  b.C.Stato.PercorsoMemoryCard.clear();
}

void GiroSchermi::NelleDissolvenze() {
  frmTempiFade fades(b.A);
  Mostra(fades, "frmTempiFade");
}

void GiroSchermi::NegliExtra() {
  b.C.Stato.PlayerMode = 1;
  {
    frmPanelExtra extras(b.A);
    Mostra(extras, "frmPanelExtra of inputs");
    extras.chkPonte->click();
    Vedi(extras, "frmPanelExtra in bridge mode");
  }
  b.C.Stato.PlayerMode = 2;
  frmPanelExtra extras(b.A);
  Mostra(extras, "frmPanelExtra of a schedule");
}

void GiroSchermi::NelSeriale() {
  constexpr std::int16_t kOstrel = 3;
  constexpr std::int16_t kKvr5 = 4;
  for (const bool rs232 : {false, true}) {
    for (const std::int16_t type : std::initializer_list<std::int16_t>{kOstrel, kKvr5}) {
      b.C.Stato.PlayerType = type;
      const std::string name = std::string("frmConfig485, ") + (rs232 ? "RS-232" : "RS-485") +
                               ", model " + std::to_string(type);
      frmConfig485 serial(b.A);
      serial.ModoRS232 = rs232;
      std::optional<Pilota<frmSiNo>> notice;
      if (type == kKvr5) notice.emplace([](frmSiNo& box) { box.Scarica(); });
      Mostra(serial, name);
      if (type == kKvr5) continue;
      serial.imgPagina2->click();
      Vedi(serial, name + ", page 2");
    }
  }
}

}  // namespace kvr5::test
