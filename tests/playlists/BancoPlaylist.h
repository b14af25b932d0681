#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/db/Walk.h"
#include "playlists/EditorPlaylist.h"
#include "projects/CartellaProgetto.h"
#include "support/Banco.h"
#include "support/FaultyFileSystem.h"
#include "support/RigheDelDatabase.h"

namespace kvr5::test {

/// An editor of playlists over a project named Hall.
class BancoPlaylist : public testing::Test {
 protected:
  using Righe = std::vector<std::string>;

  /// Makes the project; its playlist.mdb is empty.
  void Progetto(std::int16_t playerType, std::int16_t playerMode) {
    std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    // Projects of these modes can't be made any more, if ever; old ones have them.
    constexpr std::int16_t kOstrel = 3;
    constexpr std::int16_t kKvr5 = 4;
    const bool old = (playerType == kOstrel && playerMode > 9) ||
                     (playerType == kKvr5 && (playerMode == 4 || playerMode > 7));
    b.CreaProgetto("Hall", playerType, old ? std::int16_t{5} : playerMode);
    b.C.Stato.PlayerMode = playerMode;
  }
  /// A track of playlist.mdb, before the editor is loaded.
  void Brano(int nPlaylist, int pos, const std::string& nome,
             const std::string& cartella = "C:\\Music\\") {
    b.AggiungiRiga("playlist.mdb", nPlaylist, pos, nome, cartella, "");
  }
  /// A named list of playlist.mdb.
  void Nome(const std::string& nome, int numero) {
    Connection real(b.Disco);
    ASSERT_FALSE(real.Open(FileDelProgetto(b.C, "playlist.mdb")));
    ASSERT_FALSE(real.Execute("INSERT INTO [HEAD] ([Descript],[NScheduler]) VALUES('" + nome +
                              "'," + std::to_string(numero) + ")"));
  }
  /// Tracks "x.mp3" of playlist.mdb, Pos 1 to `quanti`.
  void Riempi(int quanti, int nPlaylist = 1) {
    Connection real(b.Disco);
    ASSERT_FALSE(real.Open(FileDelProgetto(b.C, "playlist.mdb")));
    const Transaction all(real);
    for (int i = 1; i <= quanti; ++i) {
      ASSERT_FALSE(real.Execute(
          "INSERT INTO [List] ([FileName],[FilePath],[Pos],[NPlaylist]) VALUES('x.mp3','C:\\'," +
          std::to_string(i) + "," + std::to_string(nPlaylist) + ")"));
    }
  }
  /// The tracks of the current playlist, "1 a.mp3", as the grid shows them.
  Righe Griglia() {
    Righe rows;
    if (!editor.rsList().IsOpen()) return {"closed"};
    EXPECT_FALSE(WalkRows(editor.rsList(), [&] {
      rows.push_back(editor.rsList().Text("Pos") + " " + editor.rsList().Text("FileName"));
      return true;
    }));
    return rows;
  }
  /// All tracks of a database of the project, "1-2 a.mp3".
  Righe Tutti(const char* database = "tmpPlaylist.mdb") { return TuttiIBrani(b, database); }
  /// Goes to the row with that Pos.
  void Va(int pos) {
    ASSERT_FALSE(editor.rsList().MoveFirst());
    ASSERT_FALSE(editor.rsList().Find("Pos=" + std::to_string(pos)));
    ASSERT_FALSE(editor.rsList().Eof());
  }

  std::string Musica() const { return b.Percorso("music"); }

  std::unique_ptr<FaultyFileSystem> guasti;
  Banco b{[this](FileSystem& inner) -> FileSystem& {
    guasti = std::make_unique<FaultyFileSystem>(inner);
    return *guasti;
  }};
  EditorPlaylist editor{b.C};
};

}  // namespace kvr5::test
