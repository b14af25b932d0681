#include <QApplication>
#include <QTimer>

#include "Photographer.h"
#include "core/Aiuti.h"
#include "projects/CartellaProgetto.h"

namespace shots {
namespace {

constexpr const char* kEditor = "frmPlaylistEditor";

kvr5::frmPlaylistEditor& Editor() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* editor = dynamic_cast<kvr5::frmPlaylistEditor*>(widget);
    if (editor != nullptr && editor->isVisible()) return *editor;
  }
  qFatal("the editor isn't on the screen");
}

/// A list with a file that has gone, and names for the mode that has them.
void FillLists(Photographer& camera) {
  kvr5::Connection connection(camera.C().Files);
  if (connection.Open(kvr5::FileDelProgetto(camera.C(), "playlist.mdb"))) return;
  const std::string folder = camera.Music() + "\\";
  int pos = 0;
  for (const char* name : {"welcome.mp3", "gone.mp3", "door.mp3", "gong.mp3", "welcome.mp3"}) {
    kvr5::Ignora(
        connection.Execute("INSERT INTO [List] ([Pos],[FileName],[FilePath],[NPlaylist]) VALUES(" +
                           std::to_string(++pos) + ",'" + name + "','" + folder + "',1)"));
  }
  for (const char* name : {"Morning", "Noon"}) {
    kvr5::Ignora(connection.Execute(std::string("INSERT INTO [HEAD] ([Descript],[NScheduler]) ") +
                                    "VALUES('" + name + "'," + (*name == 'M' ? "1)" : "2)")));
  }
}

kvr5::frmPlaylistEditor& Open(Photographer& camera) {
  camera.Program().ApriPlaylist(kvr5::Schermata::Nessuna);
  auto& editor = Editor();
  editor.fraFile->DirDirectoryMp3->ImpostaPercorso(camera.Music());
  return editor;
}

void Close() {
  Editor().Scarica();
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
}

void TakeStates(Photographer& camera) {
  auto& editor = Open(camera);
  editor.fraFile->filMp3->setCurrentRow(0);
  WaitFor([&] { return editor.cmdAggiungiFile->isVisible(); });
  editor.cmdAggiungiFile->click();
  WaitFor([&] { return !editor.Brani->lblTotali->text().isEmpty(); });
  camera.Take(kEditor, QStringLiteral("frmPlaylistEditor-4-5"));
  editor.fraFile->filMp3->setCurrentRow(3);
  WaitFor([&] { return editor.fraFileInfo->lblBadFileType->isVisible(); });
  editor.Brani->SuFile({camera.C().Files.HostPath(camera.Music() + "\\too-fast.mp3")});
  camera.Take(kEditor, QStringLiteral("frmPlaylistEditor-refused"));
  editor.resize(944, 500);  // what a screen of 1920x1080 has room for at 200 %
  camera.Take(kEditor, QStringLiteral("frmPlaylistEditor-small"));
  editor.resize(1200, 720);
  editor.Brani->Attesa(true);
  camera.Take(kEditor, QStringLiteral("frmPlaylistEditor-wait"));
  Close();
}

}  // namespace

void TakePlaylists(Photographer& camera) {
  camera.Project("Shop-5", 4, 5);
  FillLists(camera);
  TakeStates(camera);
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{4, 7, 9}) {
    camera.Project("Tower-" + std::to_string(mode), 3, mode);
    if (mode != 4) FillLists(camera);
    Open(camera);
    camera.Take(kEditor, QStringLiteral("frmPlaylistEditor-3-%1").arg(mode));
    if (mode == 9) {
      camera.TakeModal("frmPlaylistName", QStringLiteral("frmPlaylistName"),
                       [] { Editor().Fascia->picAggiungiPL->click(); });
      QTimer::singleShot(20, qApp, [] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
          auto* name = dynamic_cast<kvr5::frmPlaylistName*>(widget);
          if (name == nullptr || !name->isVisible()) continue;
          name->txtNomePlaylist->setText(QStringLiteral("A:B"));
          name->picOk->click();
        }
      });
      camera.TakeModal("frmPlaylistName", QStringLiteral("frmPlaylistName-warning"),
                       [] { Editor().Fascia->picAggiungiPL->click(); });
    }
    Close();
  }
}

}  // namespace shots
