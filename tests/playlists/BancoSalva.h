#pragma once

#include <string>

#include "playlists/BancoPlaylist.h"
#include "playlists/SalvaPlaylist.h"
#include "support/ProgressoVisto.h"
#include "support/RigheDelDatabase.h"

namespace kvr5::test {

/// Playlists that are saved, with an answer to the question about the MP3 files.
class BancoSalva : public BancoPlaylist {
 protected:
  /// A track whose file is in the folder "music".
  void Track(int list, int pos, const std::string& name, const std::string& folder = "music") {
    b.ScriviMp3(folder + "/" + name, pos);
    Brano(list, pos, name, b.Percorso(folder) + "\\");
  }
  void Save(Risposta answer = Risposta::No) {
    editor.Carica();
    const bool asks = editor.Quanti() > 0 || !Tutti().empty();
    if (asks) b.Finestre.Rispondi(answer);
    SalvaPlaylist(editor, progress);
    editor.Chiudi();
    if (asks) {
      EXPECT_EQ(b.Finestre.Prossimo().Titolo, "MP3 files of the playlists");
    }
    EXPECT_TRUE(b.Finestre.Silenzio());
  }
  std::string Read(const std::string& name) const {
    return b.Cartella.Read("program/Projects/Hall/" + name);
  }
  bool Exists(const std::string& name) const {
    return b.Cartella.Exists("program/Projects/Hall/" + name);
  }
  /// A column of all tracks of playlist.mdb in their order.
  Righe Column(const char* column) { return ColonnaDeiBrani(b, column); }
  std::string Hall() const { return b.Percorso("program/Projects/Hall") + "\\"; }

  ProgressoVisto progress{b.C};
};

}  // namespace kvr5::test
