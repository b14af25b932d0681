#include "playlists/screens/BancoEditor.h"

#include <QAbstractItemView>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <QWindow>
#include <algorithm>
#include <set>
#include <utility>

#include "core/Impostazioni.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"
#include "support/RigheDelDatabase.h"

namespace kvr5::test {

BancoEditor::BancoEditor(Boxes boxes) : b(boxes) {
  std::filesystem::create_directories(b.Cartella.Host() / "music");
  b.Cartella.Write("program/KVR5Software.ini",
                   "[Path]\r\nLastMp3Dir=" + b.Percorso("music") + "\r\n");
}

void BancoEditor::Progetto(std::int16_t playerType, std::int16_t playerMode) {
  const std::filesystem::path folder = b.Cartella.Host() / "program/Projects/Hall";
  std::filesystem::remove_all(folder);
  // A KVR5 of mode 4 can't be made any more; old projects have it.
  constexpr std::int16_t kKvr5 = 4;
  const bool old = playerType == kKvr5 && playerMode == 4;
  b.CreaProgetto("Hall", playerType, old ? std::int16_t{5} : playerMode);
  b.C.Stato.PlayerMode = playerMode;
  // Not every kind of project is made with one.
  if (!Ha("playlist.mdb")) {
    std::filesystem::copy(b.Cartella.Host() / "program/source.mdb", folder / "playlist.mdb");
  }
}

void BancoEditor::Brano(int nPlaylist, int pos, const std::string& nome) {
  b.ScriviMp3("music/" + nome, nome.front());
  b.AggiungiRiga("playlist.mdb", nPlaylist, pos, nome, Music(), "");
}

void BancoEditor::Brani(int nPlaylist, int quanti, const std::string& nome) {
  Connection real(b.Disco);
  ASSERT_FALSE(real.Open(FileDelProgetto(b.C, "playlist.mdb")));
  const Transaction all(real);
  for (int pos = 1; pos <= quanti; ++pos) {
    ASSERT_FALSE(
        real.Execute("INSERT INTO [List] ([FileName],[FilePath],[Pos],[NPlaylist]) "
                     "VALUES('" +
                     nome + "','" + Music() + "'," + std::to_string(pos) + "," +
                     std::to_string(nPlaylist) + ")"));
  }
}

void BancoEditor::Nome(const std::string& nome, int numero) {
  Connection real(b.Disco);
  ASSERT_FALSE(real.Open(FileDelProgetto(b.C, "playlist.mdb")));
  ASSERT_FALSE(real.Execute("INSERT INTO [HEAD] ([Descript],[NScheduler]) VALUES('" + nome + "'," +
                            std::to_string(numero) + ")"));
}

void BancoEditor::Musica(std::initializer_list<const char*> nomi) const {
  for (const char* each : nomi) b.ScriviMp3(std::string("music/") + each, each[0]);
}

void BancoEditor::Musica(int quanti) const {
  for (int i = 1; i <= quanti; ++i) {
    const std::string number = std::to_string(1000 + i).substr(1);
    b.ScriviMp3("music/" + number + ".mp3", i);
  }
}

void BancoEditor::Flusso(const std::string& nome, const std::string& testa,
                         std::size_t byte) const {
  std::string bytes;
  constexpr int kFrames = 40;
  for (int i = 0; i < kFrames; ++i) {
    std::string frame = testa;
    frame.resize(byte, 'U');
    bytes += frame;
  }
  b.Cartella.Write("music/" + nome, bytes);
}

std::string BancoEditor::UltimaCartella() {
  return LeggiParametroIni(b.C, FileImpostazioni(b.C), "Path", "LastMp3Dir", "");
}

void BancoEditor::Apri() {
  form = new frmPlaylistEditor(b.A, progresso);
  form->FormSuccessivo = Schermata::Configurazione;
  form->Mostra();
  ASSERT_TRUE(Pronta(*form));
  QCoreApplication::processEvents();  // nobody acts before it has come up
}

bool BancoEditor::SiChiude() {
  return QTest::qWaitFor([this] { return Chiuso(); });
}

void BancoEditor::Attiva() {
  QEvent activation(QEvent::WindowActivate);
  QCoreApplication::sendEvent(form, &activation);
}

BancoEditor::Righe BancoEditor::Pannello() const {
  Righe names;
  for (int row = 0; row < Pane().count(); ++row) {
    names.push_back(Pane().item(row)->text().toStdString());
  }
  return names;
}

QPoint BancoEditor::PostoFile(const std::string& nome) const {
  const auto found = Pane().findItems(QString::fromStdString(nome), Qt::MatchExactly);
  if (found.size() != 1) {
    ADD_FAILURE() << "not in the pane: " << nome;
    return {};
  }
  Pane().scrollToItem(found.front());
  return Pane().visualItemRect(found.front()).center();
}

void BancoEditor::ClicFile(const std::string& nome, Qt::KeyboardModifiers modi) const {
  QTest::mouseClick(Pane().viewport(), Qt::LeftButton, modi, PostoFile(nome));
}

void BancoEditor::DoppioFile(const std::string& nome) const {
  CliccaDoppio(*Pane().viewport(), PostoFile(nome));
}

void BancoEditor::Analizza(const std::string& nome) {
  ClicFile(nome);
  ASSERT_TRUE(Attesa()) << nome;
}

bool BancoEditor::Attesa() {
  return QTest::qWaitFor([this] { return !form->fraFileInfo->tmrInfoMp3.isActive(); });
}

std::string BancoEditor::Cifre() {
  return Testo("lblVersioneMpeg") + "|" + Testo("lblBitrate") + "|" + Testo("lblFreq");
}

BancoEditor::Righe BancoEditor::Griglia() const {
  Righe rows;
  for (int row = 0; row < Grid().model()->rowCount(); ++row) {
    rows.push_back(
        (Cella(row, ModelloBrani::Posto) + " " + Cella(row, ModelloBrani::Nome)).toStdString());
  }
  return rows;
}

BancoEditor::Righe BancoEditor::Nomi() const {
  Righe names;
  for (int row = 0; row < Grid().model()->rowCount(); ++row) {
    names.push_back(Cella(row, ModelloBrani::Nome).toStdString());
  }
  return names;
}

void BancoEditor::ClicRiga(int riga, Qt::KeyboardModifiers modi) const {
  const QModelIndex item = Grid().model()->index(riga, ModelloBrani::Nome);
  ASSERT_TRUE(item.isValid()) << riga;
  Grid().scrollTo(item);
  QTest::mouseClick(Grid().viewport(), Qt::LeftButton, modi, Grid().visualRect(item).center());
}

std::vector<int> BancoEditor::Scelte() const {
  std::set<int> rows;
  for (const QModelIndex& each : Grid().selectionModel()->selectedRows()) rows.insert(each.row());
  return {rows.begin(), rows.end()};
}

QString BancoEditor::Cella(int riga, int colonna, int ruolo) const {
  return Grid().model()->index(riga, colonna).data(ruolo).toString();
}

bool BancoEditor::Contato() {
  return QTest::qWaitFor([this] {
    const bool rows = Grid().model()->rowCount() > 0;
    return rows != Testo("lblTotali").empty();
  });
}

BancoEditor::Righe BancoEditor::Tutti(const char* database) {
  return TuttiIBrani(b, database);
}

BancoEditor::Righe BancoEditor::Testate(const char* database) {
  return RigheDelDatabase(
      b, database, "SELECT * FROM [HEAD] ORDER BY [NScheduler] ASC",
      [](const Recordset& row) { return row.Text("NScheduler") + " " + row.Text("Descript"); });
}

void BancoEditor::Lascia(QWidget& dove, const QList<QUrl>& file) {
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

void BancoEditor::Lascia(QWidget& dove, std::initializer_list<std::string> file) {
  QList<QUrl> urls;
  for (const std::string& each : file)
    urls.append(QUrl::fromLocalFile(QString::fromStdString(each)));
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

}  // namespace kvr5::test
