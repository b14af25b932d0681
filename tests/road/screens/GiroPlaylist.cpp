// The walk past the editor of playlists and the dialog for a name.

#include <QTest>
#include <filesystem>

#include "platform/db/Connection.h"
#include "projects/CartellaProgetto.h"
#include "road/screens/GiroSchermi.h"
#include "road/screens/ManoPlaylist.h"
#include "support/screens/Mano.h"

namespace kvr5::test {

std::unique_ptr<frmPlaylistEditor> GiroSchermi::Editor() {
  auto editor = std::make_unique<frmPlaylistEditor>(b.A, servizi_.Progresso());
  editor->Mostra();
  EXPECT_TRUE(Pronta(*editor));
  // The figures of the list come last.
  const auto counted = [&editor] {
    return editor->Editor().Quanti() == 0 || !editor->Brani->lblTotali->text().isEmpty();
  };
  EXPECT_TRUE(QTest::qWaitFor(counted));
  return editor;
}

void GiroSchermi::NellEditor() {
  Progetto("Lists of days", 4, 5);
  Vedi(*Editor(), "frmPlaylistEditor, empty");
  const std::string music = b.Percorso("music") + "\\";
  b.AggiungiRiga("playlist.mdb", 1, 1, "welcome.mp3", music, "");
  b.AggiungiRiga("playlist.mdb", 1, 2, "gone.mp3", music, "");
  b.AggiungiRiga("playlist.mdb", 1, 3, std::string(200, 'W') + ".mp3", music, "");
  {
    b.AggiungiRiga("playlist.mdb", 1, 4, "gong.mp3", "D:\\Old\\", "P01-004.mp3");
    b.Cartella.Write("program/Projects/Lists of days/P01-004.mp3", "of a card");
    const auto fromCard = Editor();
    ASSERT_TRUE(fromCard->Brani->picNomiCopie->isVisible());
    Vedi(*fromCard, "frmPlaylistEditor with copies of a card");
    Clicca(*fromCard->Brani->picNomiCopie);
    ASSERT_FALSE(fromCard->Brani->picNomiCopie->isVisible());
  }
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Lists of days/P01-004.mp3");
  const auto editor = Editor();
  Vedi(*editor, "frmPlaylistEditor");
  CliccaFile(*editor, "door.mp3");
  ASSERT_TRUE(editor->cmdAggiungiFile->isVisible());
  Vedi(*editor, "frmPlaylistEditor with a file picked");
  Clicca(*editor->cmdAggiungiFile);
  ASSERT_FALSE(editor->lblModifiche->text().isEmpty());
  CliccaFile(*editor, "48k.mp3");
  ASSERT_TRUE(editor->fraFileInfo->lblBadFileType->isVisible());
  Vedi(*editor, "frmPlaylistEditor with a refused file");
  editor->Brani->SuFile({(b.Cartella.Host() / "music/48k.mp3").string()});
  ASSERT_TRUE(editor->Brani->lblEsito->isVisible());
  Vedi(*editor, "frmPlaylistEditor after a drop");
  editor->Brani->Attesa(true);
  ASSERT_TRUE(editor->Brani->lblAttendere->isVisible());
  Vedi(*editor, "frmPlaylistEditor at work");
}

void GiroSchermi::NegliAltriEditor() {
  struct Model {
    const char* Name;
    std::int16_t Type;
    std::int16_t Mode;
  };
  for (const Model& model : {Model{"one list", 2, 0}, Model{"days", 3, 6}, Model{"inputs", 3, 7},
                             Model{"more lists", 3, 8}, Model{"no name yet", 3, 9}}) {
    Progetto(std::string("With ") + model.Name, model.Type, model.Mode);
    Vedi(*Editor(), std::string("frmPlaylistEditor, ") + model.Name);
  }
  Connection names(b.Disco);
  ASSERT_FALSE(names.Open(FileDelProgetto(b.C, "playlist.mdb")));
  ASSERT_FALSE(names.Execute("INSERT INTO [HEAD] ([Descript],[NScheduler]) VALUES('WWWWWWWW',1)"));
  names.Close();
  Vedi(*Editor(), "frmPlaylistEditor, named lists");
}

void GiroSchermi::AlNomeDellaPlaylist() {
  frmPlaylistName name(b.A);
  Mostra(name, "frmPlaylistName", true);
  Riscrivi(*name.txtNomePlaylist, QStringLiteral("A:B"));
  Clicca(*name.picOk);
  ASSERT_TRUE(name.lblWarn->isVisible());
  Vedi(name, "frmPlaylistName with a warning", true);
  Riscrivi(*name.txtNomePlaylist, QStringLiteral("CON"));
  ASSERT_TRUE(name.lblNota->isVisible());
  Vedi(name, "frmPlaylistName with a note", true);
}

}  // namespace kvr5::test
