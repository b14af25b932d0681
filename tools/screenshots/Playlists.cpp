#include <QApplication>
#include <QTimer>

#include "Photographer.h"
#include "core/Aiuti.h"
#include "projects/CartellaProgetto.h"

namespace shots {
namespace {

constexpr const char* kPlaylistEditor = "frmPlaylistEditor";

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

kvr5::frmPlaylistEditor& OpenPlaylistEditor(Photographer& camera) {
  camera.Program().ApriPlaylist(kvr5::Schermata::Nessuna);
  auto& editor = OnScreen<kvr5::frmPlaylistEditor>();
  editor.fraFile->DirDirectoryMp3->ImpostaPercorso(camera.Music());
  return editor;
}

void TakePlaylistStates(Photographer& camera) {
  auto& editor = OpenPlaylistEditor(camera);
  editor.fraFile->filMp3->setCurrentRow(0);
  WaitFor([&] { return editor.cmdAggiungiFile->isVisible(); });
  editor.cmdAggiungiFile->click();
  WaitFor([&] { return !editor.Brani->lblTotali->text().isEmpty(); });
  camera.Take(kPlaylistEditor, QStringLiteral("frmPlaylistEditor-4-5"));
  editor.fraFile->filMp3->setCurrentRow(3);
  WaitFor([&] { return editor.fraFileInfo->lblBadFileType->isVisible(); });
  editor.Brani->SuFile({camera.C().Files.HostPath(camera.Music() + "\\too-fast.mp3")});
  camera.Take(kPlaylistEditor, QStringLiteral("frmPlaylistEditor-refused"));
  editor.resize(944, 500);  // what a screen of 1920x1080 has room for at 200 %
  camera.Take(kPlaylistEditor, QStringLiteral("frmPlaylistEditor-small"));
  editor.resize(1200, 720);
  editor.Brani->Attesa(true);
  camera.Take(kPlaylistEditor, QStringLiteral("frmPlaylistEditor-wait"));
  Leave<kvr5::frmPlaylistEditor>();
}

}  // namespace

void TakePlaylists(Photographer& camera) {
  camera.Project("Shop-5", 4, 5);
  FillLists(camera);
  TakePlaylistStates(camera);
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{4, 7, 9}) {
    camera.Project("Tower-" + std::to_string(mode), 3, mode);
    if (mode != 4) FillLists(camera);
    OpenPlaylistEditor(camera);
    camera.Take(kPlaylistEditor, QStringLiteral("frmPlaylistEditor-3-%1").arg(mode));
    if (mode == 9) {
      camera.TakeModal("frmPlaylistName", QStringLiteral("frmPlaylistName"),
                       [] { OnScreen<kvr5::frmPlaylistEditor>().Fascia->picAggiungiPL->click(); });
      QTimer::singleShot(20, qApp, [] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
          auto* name = dynamic_cast<kvr5::frmPlaylistName*>(widget);
          if (name == nullptr || !name->isVisible()) continue;
          name->txtNomePlaylist->setText(QStringLiteral("A:B"));
          name->picOk->click();
        }
      });
      camera.TakeModal("frmPlaylistName", QStringLiteral("frmPlaylistName-warning"),
                       [] { OnScreen<kvr5::frmPlaylistEditor>().Fascia->picAggiungiPL->click(); });
    }
    Leave<kvr5::frmPlaylistEditor>();
  }
}

}  // namespace shots
