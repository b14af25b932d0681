#include "schedule/screens/BancoPalinsestoSchermo.h"

#include <QAbstractItemView>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QToolButton>
#include <QUrl>
#include <QWindow>
#include <algorithm>

#include "core/Impostazioni.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "projects/CartellaProgetto.h"
#include "support/RigheDelDatabase.h"

namespace kvr5::test {

BancoPalinsestoSchermo::BancoPalinsestoSchermo(Boxes boxes) : b(boxes) {
  std::filesystem::create_directories(b.Cartella.Host() / "music");
  b.Cartella.Write("program/KVR5Software.ini",
                   "[Path]\r\nLastMp3Dir=" + b.Percorso("music") + "\r\n");
}

void BancoPalinsestoSchermo::Progetto(std::int16_t playerType, std::int16_t playerMode) {
  const std::filesystem::path folder = b.Cartella.Host() / "program/Projects/Hall";
  std::filesystem::remove_all(folder);
  b.CreaProgetto("Hall", playerType, playerMode);
  // Not every kind of project is made with one.
  if (!Ha("scheduler.mdb")) {
    std::filesystem::copy(b.Cartella.Host() / "program/source.mdb", folder / "scheduler.mdb");
  }
}

void BancoPalinsestoSchermo::Esegui(const std::string& statement) {
  Connection real(b.Disco);
  ASSERT_FALSE(real.Open(FileDelProgetto(b.C, "scheduler.mdb")));
  ASSERT_FALSE(real.Execute(statement)) << statement;
}

std::int64_t BancoPalinsestoSchermo::Segmento(int giorno, const std::string& ora) {
  Esegui("INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(" + std::to_string(giorno) + "," +
         (ora.empty() ? "Null" : "#" + ora + "#") + ")");
  Connection real(b.Disco);
  Recordset newest;
  EXPECT_FALSE(real.Open(FileDelProgetto(b.C, "scheduler.mdb")));
  EXPECT_FALSE(newest.Open(real, "SELECT TOP 1 * FROM [HEAD] ORDER BY ID DESC"));
  return newest.Number("ID");
}

std::int64_t BancoPalinsestoSchermo::Segmento(int giorno, const std::string& ora,
                                              std::initializer_list<const char*> nomi) {
  const std::int64_t id = Segmento(giorno, ora);
  int pos = 0;
  for (const char* each : nomi) Spot(giorno, id, ++pos, each);
  return id;
}

void BancoPalinsestoSchermo::Spot(int giorno, std::int64_t segmento, int pos,
                                  const std::string& nome) {
  b.ScriviMp3("music/" + nome, nome.front());
  b.AggiungiRiga("scheduler.mdb", giorno, pos, nome, Music(), "", static_cast<int>(segmento));
}

void BancoPalinsestoSchermo::MoltiSegmenti(int giorno, int quanti) {
  constexpr int kMinuti = 60;
  Connection real(b.Disco);
  ASSERT_FALSE(real.Open(FileDelProgetto(b.C, "scheduler.mdb")));
  const Transaction all(real);
  for (int i = 0; i < quanti; ++i) {
    const std::string minute = std::to_string(100 + i % kMinuti).substr(1);
    ASSERT_FALSE(real.Execute("INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(" +
                              std::to_string(giorno) + ",#0" + std::to_string(i / kMinuti) + "." +
                              minute + "#)"));
  }
}

void BancoPalinsestoSchermo::MoltiSpot(int giorno, std::int64_t segmento, int quanti) {
  Connection real(b.Disco);
  ASSERT_FALSE(real.Open(FileDelProgetto(b.C, "scheduler.mdb")));
  const Transaction all(real);
  for (int i = 1; i <= quanti; ++i) {
    ASSERT_FALSE(real.Execute(
        "INSERT INTO [List] ([FileName],[FilePath],[Pos],[NPlaylist],[IDSched]) "
        "VALUES('x.mp3','C:\\'," +
        std::to_string(i) + "," + std::to_string(giorno) + "," + std::to_string(segmento) + ")"));
  }
}

void BancoPalinsestoSchermo::Musica(std::initializer_list<const char*> nomi) const {
  for (const char* each : nomi) b.ScriviMp3(std::string("music/") + each, each[0]);
}

std::string BancoPalinsestoSchermo::UltimaCartella() {
  return LeggiParametroIni(b.C, FileImpostazioni(b.C), "Path", "LastMp3Dir", "");
}

void BancoPalinsestoSchermo::Apri() {
  form = new frmPalinsesto(b.A, progresso);
  form->FormSuccessivo = Schermata::Configurazione;
  form->Mostra();
  ASSERT_TRUE(Pronta(*form));
  ASSERT_TRUE(QTest::qWaitFor(
      [this] { return !form->tmrIniziale.isActive() && !form->tmrAggiornaLayout.isActive(); }));
  QCoreApplication::processEvents();  // nobody acts before it has come up
}

bool BancoPalinsestoSchermo::SiChiude() {
  return QTest::qWaitFor([this] { return Chiuso(); });
}

void BancoPalinsestoSchermo::Attiva() {
  QEvent activation(QEvent::WindowActivate);
  QCoreApplication::sendEvent(form, &activation);
}

void BancoPalinsestoSchermo::ClicFreccia(int slot, bool giu) {
  const FrecceSpot& arrows = *form->picDettaglio->UpDownFile.at(static_cast<std::size_t>(slot));
  Clicca(giu ? *arrows.Giu : *arrows.Su);
}

QPoint BancoPalinsestoSchermo::PostoFile(const std::string& nome) const {
  const auto found = Pane().findItems(QString::fromStdString(nome), Qt::MatchExactly);
  if (found.size() != 1) {
    ADD_FAILURE() << "not in the pane: " << nome;
    return {};
  }
  Pane().scrollToItem(found.front());
  return Pane().visualItemRect(found.front()).center();
}

void BancoPalinsestoSchermo::ClicFile(const std::string& nome, Qt::KeyboardModifiers modi) const {
  CliccaA(*Pane().viewport(), PostoFile(nome), Qt::LeftButton, modi);
}

void BancoPalinsestoSchermo::DoppioFile(const std::string& nome) const {
  CliccaDoppio(*Pane().viewport(), PostoFile(nome));
}

void BancoPalinsestoSchermo::Analizza(const std::string& nome) {
  ClicFile(nome);
  ASSERT_TRUE(Attesa()) << nome;
}

bool BancoPalinsestoSchermo::Attesa() {
  return QTest::qWaitFor([this] { return !form->fraFileInfo->tmrInfoMp3.isActive(); });
}

BancoPalinsestoSchermo::Righe BancoPalinsestoSchermo::Griglia() const {
  Righe rows;
  for (int row = 0; row < Grid().model()->rowCount(); ++row) {
    std::string line = Cella(row, ModelloSegmenti::Inizio).toStdString();
    for (int column = ModelloSegmenti::Spot1; column < ModelloSegmenti::Colonne; ++column) {
      const std::string name = Cella(row, column).toStdString();
      if (!name.empty()) line += " " + name;
    }
    rows.push_back(line);
  }
  return rows;
}

QString BancoPalinsestoSchermo::Cella(int riga, int colonna, int ruolo) const {
  return Grid().model()->index(riga, colonna).data(ruolo).toString();
}

void BancoPalinsestoSchermo::ClicSegmento(int riga, Qt::MouseButton tasto) const {
  const QModelIndex item = Grid().model()->index(riga, ModelloSegmenti::Inizio);
  ASSERT_TRUE(item.isValid()) << riga;
  Grid().scrollTo(item);
  CliccaA(*Grid().viewport(), Grid().visualRect(item).center(), tasto);
}

int BancoPalinsestoSchermo::Scelto() const {
  const int row = Grid().currentIndex().row();
  const auto chosen = Grid().selectionModel()->selectedRows();
  EXPECT_EQ(chosen.size(), row < 0 ? 0 : 1);
  if (!chosen.isEmpty()) {
    EXPECT_EQ(chosen.front().row(), row);
  }
  EXPECT_EQ(form->Editor().SegmentoCorrente(), row < 0 ? 0 : Grid().IdCorrente());
  return row;
}

BancoPalinsestoSchermo::Righe BancoPalinsestoSchermo::Dettaglio() const {
  Righe names;
  if (!Spots().isVisible()) return names;
  for (int row = 0; row < Spots().model()->rowCount(); ++row) {
    names.push_back(Spots().model()->index(row, ModelloSpot::Nome).data().toString().toStdString());
  }
  return names;
}

void BancoPalinsestoSchermo::ClicSpot(int riga) const {
  const QModelIndex item = Spots().model()->index(riga, ModelloSpot::Nome);
  ASSERT_TRUE(item.isValid()) << riga;
  CliccaA(*Spots().viewport(), Spots().visualRect(item).center());
}

std::string BancoPalinsestoSchermo::Slot(int slot) {
  std::string shown;
  const std::pair<const char*, char> kButtons[] = {
      {"picPlay", 'P'}, {"picStop", 'S'}, {"picAggiungiSpot", 'A'}, {"picRimuoviSpot", 'R'}};
  for (const auto& [name, letter] : kButtons) {
    if (Elemento(name, slot).isVisible()) shown += letter;
  }
  const FrecceSpot& arrows = *form->picDettaglio->UpDownFile.at(static_cast<std::size_t>(slot));
  if (!arrows.isVisible()) return shown;
  return shown + (arrows.Su->isEnabled() ? 'U' : 'u') + (arrows.Giu->isEnabled() ? 'D' : 'd');
}

BancoPalinsestoSchermo::Righe BancoPalinsestoSchermo::SlotTutti() {
  Righe all;
  for (int i = 0; i < SlotSpot::kPosti; ++i) all.push_back(Slot(i));
  while (!all.empty() && all.back().empty()) all.pop_back();
  return all;
}

std::string BancoPalinsestoSchermo::Orario() const {
  return (Ore().text() + ":" + Min().text()).toStdString();
}

int BancoPalinsestoSchermo::Modifiche() {
  const std::string words = Testo("lblModifiche");
  return words.empty() ? 0 : std::stoi(words);
}

void BancoPalinsestoSchermo::Digita(CampoOra& campo, const char* tasti) {
  if (Fuoco() == &campo) {
    Premi(Qt::Key_A, Qt::ControlModifier);
  } else {
    Clicca(campo);
  }
  ASSERT_EQ(Fuoco(), &campo);
  ASSERT_TRUE(QTest::qWaitFor([&campo] { return campo.selectedText() == campo.text(); }));
  Scrivi(*form, QString::fromUtf8(tasti));
}

void BancoPalinsestoSchermo::DigitaOrario(const char* ore, const char* minuti) {
  Digita(Ore(), ore);
  Premi(Qt::Key_Return);
  ASSERT_EQ(Fuoco(), &Min());
  ASSERT_TRUE(QTest::qWaitFor([this] { return Min().selectedText() == Min().text(); }));
  Scrivi(*form, QString::fromUtf8(minuti));
  Premi(Qt::Key_Return);
  ASSERT_EQ(Fuoco(), &Spots());
  QCoreApplication::processEvents();
}

bool BancoPalinsestoSchermo::Orari(const Righe& attesi) const {
  return QTest::qWaitFor([&] {
    Righe times;
    for (int row = 0; row < Grid().model()->rowCount(); ++row) {
      times.push_back(Cella(row, ModelloSegmenti::Inizio).toStdString());
    }
    return times == attesi;
  });
}

BancoPalinsestoSchermo::Righe BancoPalinsestoSchermo::Teste(const char* database) {
  return RigheDelDatabase(
      b, database, "SELECT * FROM [HEAD] ORDER BY [ID]", [](const Recordset& row) {
        return row.Text("NScheduler") + " " + row.Text("StartTime").substr(0, 5);
      });
}

namespace {

constexpr const char* kSpots = "SELECT * FROM [List] ORDER BY [NPlaylist],[IDSched],[Pos] ASC";

}  // namespace

BancoPalinsestoSchermo::Righe BancoPalinsestoSchermo::Tutti(const char* database) {
  return RigheDelDatabase(b, database, kSpots, [](const Recordset& row) {
    return row.Text("NPlaylist") + "/" + row.Text("IDSched") + "/" + row.Text("Pos") + " " +
           row.Text("FileName");
  });
}

BancoPalinsestoSchermo::Righe BancoPalinsestoSchermo::Colonna(const char* colonna,
                                                              const char* database) {
  return RigheDelDatabase(b, database, kSpots,
                          [colonna](const Recordset& row) { return row.Text(colonna); });
}

void BancoPalinsestoSchermo::Avviso(const std::string& titolo, const std::string& testo) {
  const BoxVisto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, titolo);
  EXPECT_EQ(box.Testo, testo);
  EXPECT_TRUE(box.SiNo);
  EXPECT_TRUE(box.SoloOk);
  EXPECT_EQ(box.TestoOk, "OK");
}

void BancoPalinsestoSchermo::Lascia(QWidget& dove, const QList<QUrl>& file) {
  QMimeData data;
  data.setUrls(file);
  const QPoint place = dove.mapTo(form.data(), dove.rect().center());
  // The window finds the control that takes it, as with a real drag.
  QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                        Qt::NoModifier);
  QCoreApplication::sendEvent(form->windowHandle(), &enter);
  if (!enter.isAccepted()) return;
  QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(form->windowHandle(), &drop);
  QCoreApplication::processEvents();
}

void BancoPalinsestoSchermo::Lascia(QWidget& dove, std::initializer_list<std::string> file) {
  QList<QUrl> urls;
  for (const std::string& each : file) {
    urls.append(QUrl::fromLocalFile(QString::fromStdString(each)));
  }
  Lascia(dove, urls);
}

void ScegliColMouse(QComboBox& elenco, int voce) {
  Clicca(elenco);
  QAbstractItemView& view = *elenco.view();
  ASSERT_TRUE(QTest::qWaitFor([&view] { return view.isVisible(); }));
  const QModelIndex item = elenco.model()->index(voce, 0);
  view.scrollTo(item);
  const QPoint place = view.visualRect(item).center();
  // The release of the press that opened the list chooses nothing: the mouse moves on first.
  for (const QPoint step : {QPoint(1, 1), place}) QTest::mouseMove(view.viewport(), step);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
  EXPECT_TRUE(QTest::qWaitFor([&view] { return !view.isVisible(); }));
  EXPECT_EQ(elenco.currentIndex(), voce);
}

void CliccaA(QWidget& controllo, QPoint dove, Qt::MouseButton tasto, Qt::KeyboardModifiers modi) {
  EXPECT_TRUE(controllo.isVisible()) << controllo.objectName().toStdString() << " isn't seen";
  QTest::mouseClick(controllo.window()->windowHandle(), tasto, modi,
                    controllo.mapTo(controllo.window(), dove));
}

}  // namespace kvr5::test
