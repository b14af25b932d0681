#include <sqlite3.h>

#include <random>

#include "playlists/BancoPlaylist.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/ImportaPlaylist.h"
#include "playlists/RighePlaylist.h"

namespace kvr5 {
namespace {

/// Long sessions of a user who presses buttons amid everything, also amid what these began.
class RestlessUser : public test::BancoPlaylist, public testing::WithParamInterface<unsigned> {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    for (const char* name : {"music/a.mp3", "music/b.mp3"}) b.ScriviMp3(name);
    b.Cartella.Write("music/l.m3u", "a.mp3\r\nb.mp3\r\na.mp3\r\n");
    Riempi(494, 3);
    editor.Carica();
    b.Messaggi.Accade = [this] {
      const int oneIn = shuffles ? 60 : 4;  // a shuffle of a long list has an event for each row
      if (depth_ < 3 && Below(oneIn) == 0) Press();
    };
  }
  int Below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  /// One button or another; how many tracks there are to be then is left to the database.
  void Press() {
    ++depth_;
    editor.Turni.Comando([this] { Act(Below(shuffles ? 9 : 8)); });
    --depth_;
  }
  void Act(int button) {
    if (button == 0) editor.ScegliVoce(Below(4));
    if (button == 1) AggiungiFile(editor, Musica(), "a.mp3");
    if (button == 2) AggiungiTuttiFiles(editor, reader_, Musica(), {"a.mp3", "no.mp3", "b.mp3"});
    if (button == 3) ImportaPlaylist(editor, reader_, b.Percorso("music\\l.m3u"));
    if (button == 4) RimuoviFile(editor);
    if (button == 5) SpostaSu(editor);
    if (button == 6) SpostaRighe(editor, Some(), Below(2) == 0);
    if (button == 7) RimuoviRighe(editor, Some());
    if (button == 8) Random(editor, CasoDaSeme(static_cast<std::uint32_t>(Below(1000))));
    while (!b.Finestre.Silenzio()) b.Finestre.Prossimo();  // that the playlist is full
  }
  /// Two rows of the grid, as far as there are so many.
  std::vector<std::int64_t> Some() {
    std::vector<std::int64_t> ids;
    for (const RigaPlaylist& each : RigheDellaGriglia(editor)) {
      if (ids.size() < 2 && Below(3) == 0) ids.push_back(each.ID);
    }
    return ids;
  }
  /// Each list is numbered from 1, is no longer than it may be, and shows as it is stored.
  void ExpectOrder() {
    ASSERT_NE(sqlite3_get_autocommit(editor.ConnessionePlaylist().Handle()), 0) << "no run is open";
    if (shuffles) RiordinaPosizione(editor);
    for (int list = 0; list < 4; ++list) {
      editor.ScegliVoce(list);
      const Righe rows = Griglia();
      ASSERT_LE(rows.size(), 500U);
      for (std::size_t i = 0; i < rows.size(); ++i) {
        ASSERT_TRUE(rows[i].starts_with(std::to_string(i + 1) + " ")) << list << ": " << rows[i];
      }
    }
    editor.ScegliVoce(Below(4));
  }

  bool shuffles = false;

 private:
  std::mt19937 random_{GetParam()};
  int depth_ = 0;
  modMp3Infos reader_{b.C.Files};
};

TEST_P(RestlessUser, LeavesEachListInOrder) {
  for (int step = 0; step < 60; ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    Press();
    ASSERT_NO_FATAL_FAILURE(ExpectOrder());
  }
}

TEST_P(RestlessUser, WhoShufflesLeavesEachListInOrderOnceItIsNumbered) {
  shuffles = true;
  for (int step = 0; step < 60; ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    Press();
    ASSERT_NO_FATAL_FAILURE(ExpectOrder());
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RestlessUser, testing::Values(1U, 2U, 3U, 4U));

}  // namespace
}  // namespace kvr5
