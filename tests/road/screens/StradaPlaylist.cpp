#include "road/screens/StradaPlaylist.h"

#include <QComboBox>
#include <QMenu>
#include <algorithm>
#include <set>
#include <sstream>

#include "flashcard/screens/frmSelectFlash.h"
#include "platform/CodePage.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"
#include "projects/screens/frmCaricaProgetto.h"
#include "road/Encoder.h"
#include "support/screens/Scelte.h"

namespace kvr5::test {

namespace fs = std::filesystem;

namespace {

std::vector<std::string> LinesOf(const std::string& bytes) {
  std::vector<std::string> lines;
  std::istringstream in(CodePage(1252).Decode(bytes));
  for (std::string line; std::getline(in, line);) {
    EXPECT_TRUE(line.ends_with('\r')) << line;
    lines.push_back(line.substr(0, line.find('\r')));
  }
  return lines;
}

}  // namespace

void StradaPlaylist::SetUp() {
  // Both programs have the locale whose code page has the letters of the names below.
  constexpr const char* kLocale = "C.UTF-8";
  setenv("LC_ALL", kLocale, 1);
  k_.Luogo = kLocale;
  int hertz = 300;
  for (const char* name : {"a/welcome.mp3", "a/L'été.mp3", "a/song.mp3", "b/song.mp3", "b/2.mp3",
                           "b/10.mp3", "b/Caffè.mp3"}) {
    const fs::path file = Host(std::string("music/") + name);
    fs::create_directories(file.parent_path());
    if (!EncodeMp3(file.string(), "-b 128 --cbr", hertz += 50)) GTEST_SKIP() << "lame is missing";
    Musica[name] = b.Cartella.Read(std::string("music/") + name);
  }
  ASSERT_TRUE(EncodeMp3(Host("music/b/48k.mp3").string(), "-b 128 --cbr --resample 48"));
  ScriviImpostazioni();
  b.Cartella.Write("program/Drives.ini", "[Removable]\r\nE=" + Host("card").string() + "\r\n");
  k_.Inizio = {KVR5_CARD, "--program", Host("program").string()};
}

void StradaPlaylist::TearDown() {
  EXPECT_FALSE(b.Cartella.Exists("program/Logs")) << "there is something in the log";
}

void StradaPlaylist::CreaColWizard(std::int16_t modo) {
  Avvia();
  PassaLoSplash();
  Clicca(*Attendi<frmMain>().picNuovoProgetto);
  auto& wizard = Attendi<frmWizardPanel1>();
  Riscrivi(*wizard.txtNomeProgetto, QStringLiteral("Bar"));
  Clicca(*wizard.optPanel_21);
  const int item = wizard.cmbPlaylist->findData(modo);
  ScegliVoce(*wizard.cmbPlaylist, wizard.cmbPlaylist->itemText(item).toStdString());
  Clicca(*wizard.picGoOn);
  Hub();
  ASSERT_EQ(S().PlayerMode, modo);
}

void StradaPlaylist::Apri(std::int16_t tipo, std::int16_t modo, bool conDatabase) {
  constexpr std::int16_t kKvr5 = 4;
  const bool old = tipo == kKvr5 && modo == 4;  // no wizard makes it any more
  b.CreaProgetto("Bar", tipo, old ? std::int16_t{5} : modo);
  const std::string project = kProgetto;
  if (old) {
    std::string cfg = b.Cartella.Read(project + "/Config.cfg");
    const std::size_t at = cfg.find("PlayerMode=5");
    ASSERT_NE(at, std::string::npos);
    b.Cartella.Write(project + "/Config.cfg", cfg.replace(at, 12, "PlayerMode=4"));
  }
  ASSERT_EQ(b.Cartella.Exists(project + "/playlist.mdb"), !conDatabase);
  if (conDatabase) fs::copy(Host("program/source.mdb"), Host(project + "/playlist.mdb"));
  AvviaEApri();
  ASSERT_EQ(S().PlayerType, tipo);
  ASSERT_EQ(S().PlayerMode, modo);
}

void StradaPlaylist::AvviaEApri() {
  Avvia();
  PassaLoSplash();
  Clicca(*Attendi<frmMain>().picCaricaDaDisco);
  Tasto(Attendi<frmCaricaProgetto>(), Qt::Key_Return);
  Hub();
}

frmPlayerConfig& StradaPlaylist::Hub() {
  EXPECT_TRUE(QTest::qWaitFor([] { return Vista<frmPlayerConfig>() != nullptr; }));
  // Without a display nobody gives the keyboard back to the window behind one that has gone.
  if (QApplication::activeWindow() == nullptr && Vista<frmPlayerConfig>() != nullptr) {
    Vista<frmPlayerConfig>()->activateWindow();
  }
  auto& hub = Attendi<frmPlayerConfig>();
  EXPECT_EQ(Viste(), std::vector<std::string>{"frmPlayerConfig"});
  return hub;
}

frmPlaylistEditor& StradaPlaylist::ApriEditor() {
  frmPlayerConfig& hub = Hub();
  if (hub.Barra->picPlaylist->isVisible()) {
    Clicca(*hub.Barra->picPlaylist);
  } else {
    Clicca(*hub.Barra->picAltro);
    QMenu& menu = hub.Barra->menuAltro;
    EXPECT_TRUE(QTest::qWaitFor([&menu] { return menu.isVisible(); }));
    const auto entries = menu.actions();
    const auto at = std::ranges::find(entries, QStringLiteral("Playlists…"), &QAction::text);
    if (at == entries.end()) throw std::logic_error("no way leads to the playlists");
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(*at).center());
  }
  auto& editor = Attendi<frmPlaylistEditor>();
  EXPECT_EQ(Viste(), std::vector<std::string>{"frmPlaylistEditor"});
  return editor;
}

void StradaPlaylist::Salva(frmPlaylistEditor& editor, std::optional<bool> risposta) {
  std::optional<Pilota<frmSiNo>> question;
  if (risposta) {
    question.emplace([risposta](frmSiNo& box) { Clicca(*risposta ? *box.cmdSi : *box.cmdNo); });
  }
  Clicca(*editor.picSave);
  Hub();
}

void StradaPlaylist::Sessione(const Passi& passi, std::optional<bool> risposta) {
  frmPlaylistEditor& editor = ApriEditor();
  SessioneAMano(editor, Host("music")).Esegui(passi);
  Salva(editor, risposta);
}

void StradaPlaylist::Registra(const std::function<void(frmSiNo&)>& avviso) {
  frmPlayerConfig& hub = Hub();
  std::optional<Pilota<frmSelectFlash>> card;
  if (S().PercorsoMemoryCard.empty()) {
    card.emplace([](frmSelectFlash& dialog) { Clicca(dialog, "picOk"); });
  }
  std::optional<Pilota<frmSiNo>> notice;
  if (avviso) notice.emplace(avviso);
  Clicca(*hub.Barra->picRecordFlash);
  Hub();
}

Corsa StradaPlaylist::Compagna(const std::vector<std::string>& parole, const std::string& testo) {
  return k_.EseguiJson(parole, testo);
}

void StradaPlaylist::SessioneDelCompagno(const Passi& passi, bool risposta) {
  const auto run = Compagna({risposta ? "--yes" : "--no", "playlists", "Bar"},
                            TestoSessione(passi, Host("music")) + "save\n");
  EXPECT_EQ(run.Stato, 0) << run.Errori;
  for (const auto& each : run.Box()) EXPECT_EQ(each.value("box", ""), "question") << each;
}

void StradaPlaylist::RegistraColCompagno() {
  const auto run = Compagna({"record", "Bar", Host("card").string()});
  EXPECT_EQ(run.Stato, 0) << run.Errori;
  EXPECT_EQ(run.Errori, "");
}

void StradaPlaylist::Ricorda() {
  fs::copy(Host(kProgetto), Host("before"), fs::copy_options::recursive);
}

void StradaPlaylist::TornaIndietro() {
  programma.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  fs::remove_all(Host(kProgetto));
  fs::copy(Host("before"), Host(kProgetto), fs::copy_options::recursive);
  SvuotaScheda();
}

void StradaPlaylist::SvuotaScheda() const {
  for (const auto& each : fs::directory_iterator(Host("card"))) fs::remove_all(each);
}

Foto StradaPlaylist::Byte(const std::string& cartella) const {
  Foto files;
  for (const std::string& each : b.Nomi(cartella)) {
    files[each] = b.Cartella.Read(cartella + "/" + each);
  }
  return files;
}

Foto StradaPlaylist::FotoDi(const std::string& cartella) {
  Foto files = Byte(cartella);
  for (auto& [name, bytes] : files) {
    if (!name.ends_with(".mdb")) continue;
    const std::string database = cartella + "/" + name;
    bytes = Righe(database, "List") + Righe(database, "HEAD");
  }
  return files;
}

std::string StradaPlaylist::Righe(const std::string& database, const std::string& tabella) {
  const std::vector<std::string> columns =
      tabella == "HEAD" ? std::vector<std::string>{"ID", "NScheduler", "Descript", "StartTime"}
                        : std::vector<std::string>{"ID",  "FileName",  "FilePath", "Alias",
                                                   "Pos", "NPlaylist", "IDSched"};
  Connection connection(b.Disco);
  EXPECT_FALSE(connection.Open(b.Percorso(database))) << database;
  Recordset rows;
  EXPECT_FALSE(rows.Open(connection, "SELECT * FROM [" + tabella + "] ORDER BY [ID]"));
  std::string text;
  EXPECT_FALSE(WalkRows(rows, [&] {
    for (const std::string& each : columns) {
      const auto value = rows.Get(each);
      const bool null = value && std::holds_alternative<std::monostate>(value.Value());
      text += each + "=" + (null ? "NULL" : "'" + rows.Text(each) + "'") + " ";
    }
    text += "\n";
    return true;
  }));
  return text;
}

void StradaPlaylist::ExpectBrani(const std::map<std::string, std::string>& brani) const {
  std::map<std::string, std::string> found;
  for (const auto& [name, bytes] : Byte("card")) {
    if (!name.ends_with(".mp3")) continue;
    const auto source = std::ranges::find(Musica, bytes, &Foto::value_type::second);
    found[name] = source == Musica.end() ? "of no source" : source->first;
  }
  EXPECT_EQ(found, brani);
}

void StradaPlaylist::ExpectListeVere() const {
  std::set<std::string> named;
  std::set<std::string> there;
  for (const std::string& each : b.Nomi("card")) {
    if (each.ends_with(".mp3")) there.insert(each);
    const bool list = each.ends_with(".m3u") || each.ends_with(".M3U");
    if (!list || each.find("_LOCAL_") != std::string::npos) continue;
    for (const std::string& line : LinesOf(Leggi(each))) named.insert(line + ".mp3");
  }
  EXPECT_EQ(named, there);
}

void StradaPlaylist::ExpectUguali(const Foto& schermi, const Foto& compagno) {
  std::vector<std::string> names;
  for (const auto& [name, bytes] : schermi) {
    names.push_back(name);
    const auto other = compagno.find(name);
    if (other == compagno.end()) continue;
    const bool music = name.ends_with(".mp3") || name.ends_with(".jpg") || name.ends_with(".gif");
    if (!music) {
      EXPECT_EQ(bytes, other->second) << name;
    } else {
      EXPECT_TRUE(bytes == other->second) << name;
    }
  }
  std::vector<std::string> others;
  for (const auto& [name, bytes] : compagno) others.push_back(name);
  EXPECT_EQ(names, others);
}

}  // namespace kvr5::test
