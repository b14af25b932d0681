#include <QAbstractButton>
#include <QTest>
#include <algorithm>
#include <cstdlib>
#include <random>

#include "playlists/screens/BancoEditor.h"
#include "playlists/screens/ModelloListe.h"
#include "support/screens/Scelte.h"

// Sessions in which everything is done in any order by mouse and keys, then saved or dropped, and
// opened again: after each step the screen shows what a plain model says, and after each save the
// project holds it. KVR5_SEED runs one session of one's own, KVR5_STEPS makes all of them longer or
// shorter.

namespace kvr5 {
namespace {

using Model = test::ModelloListe;
using Rows = std::vector<int>;

const std::vector<std::string> kMusic = {"a.mp3", "b 2.mp3", "B 10.mp3", "it's.mp3", "z.mp3.mp3"};

int FromEnvironment(const char* name, int otherwise) {
  const char* text = std::getenv(name);
  return text == nullptr ? otherwise : std::atoi(text);
}

/// The lines for the card of a list by name, which keep the names of the files.
std::string OwnNames(const Model::Nomi& names) {
  std::string lines;
  for (std::string each : names) {
    for (auto at = each.find(".mp3"); at != std::string::npos; at = each.find(".mp3")) {
      each.erase(at, 4);
    }
    lines += each + "\r\n";
  }
  return lines;
}

struct Kind {
  std::int16_t Type, Mode;
  int Seed;
};

class EditorSession : public test::BancoEditor, public testing::WithParamInterface<Kind> {
 protected:
  void SetUp() override {
    random_.seed(static_cast<unsigned>(GetParam().Seed));
    Progetto(GetParam().Type, GetParam().Mode);
    for (const std::string& each : kMusic) b.ScriviMp3("music/" + each, each[0]);
    std::string list;
    for (const std::string& each : kMusic) list += Host(each) + "\r\n";
    b.Cartella.Write("lists/all.m3u", list);
  }
  int Dice(int sides) { return static_cast<int>(random_() % static_cast<unsigned>(sides)); }
  const std::string& File() { return kMusic.at(static_cast<std::size_t>(Dice(5))); }
  bool Named() const { return GetParam().Mode == 9; }
  bool Inputs() const { return GetParam().Mode == 7; }
  int FromOne() const { return GetParam().Mode == 8 ? 0 : 1; }

  /// What the screen comes up on.
  void Begin() {
    Apri();
    model_.Modifiche = 0;
    if (Named()) {
      const int names = static_cast<int>(model_.Testate.size());
      model_.Seleziona(std::min(names, 2) - 1, 1);
    } else if (GetParam().Type == 2) {
      model_.Corrente = 1;
      model_.Rileggi();
    } else {
      model_.Seleziona(0, FromOne());
    }
  }

  /// Selects up to three rows with the mouse; their places.
  Rows Select() {
    Rows rows;
    for (int i = 1 + Dice(3); i > 0 && model_.Quanti() > 0; --i) {
      const int row = Dice(model_.Quanti());
      if (std::ranges::find(rows, row) != rows.end()) continue;
      ClicRiga(row, rows.empty() ? Qt::NoModifier : Qt::ControlModifier);
      rows.push_back(row);
    }
    std::ranges::sort(rows);
    EXPECT_EQ(Scelte(), rows);
    return rows;
  }
  bool Full(int more) { return model_.Quanti() + more > 60; }

  void AddOne() {
    const std::string file = File();
    if (Full(1)) return;
    DoppioFile(file);
    if (Named() && model_.Testate.empty()) {
      EXPECT_EQ(b.Finestre.Prossimo().Titolo, "No playlist yet");
    } else {
      model_.Aggiungi(file);
      EXPECT_EQ(Corrente(), model_.Quanti() - 1);
    }
  }
  void AddTwo(bool dropped) {
    const std::size_t first = static_cast<std::size_t>(Dice(4));
    if (Full(2) || (Named() && model_.Testate.empty())) return;
    if (dropped) {
      Lascia(Grid(), {Host(kMusic[first + 1]), Host(kMusic[first])});
      model_.Aggiungi(kMusic[first + 1]);
      model_.Aggiungi(kMusic[first]);
      return;
    }
    ClicFile(kMusic[first + 1]);
    ClicFile(kMusic[first], Qt::ControlModifier);
    Premi(Qt::Key_Return);
    model_.Aggiungi(kMusic[first]);
    model_.Aggiungi(kMusic[first + 1]);
  }
  void AddAll(bool import) {
    if (Full(5) || (Named() && import && model_.Testate.empty())) return;
    if (import) {
      b.Finestre.ScegliFile(b.Percorso("lists\\all.m3u"));
      Clic("picImporta");
    } else {
      Clic("cmdAggiungiTuttiFiles");
    }
    for (const std::string& each : kMusic) model_.Aggiungi(each);
    model_.Rileggi();
  }
  void Remove() {
    const Rows rows = Select();
    if (rows.empty()) return;
    Dice(2) == 0 ? Clic("cmdRimuoviFile") : Premi(Qt::Key_Delete);
    model_.Rimuovi(rows);
    if (model_.Quanti() > 0) {
      EXPECT_EQ(Corrente(), std::min(rows.front(), model_.Quanti() - 1));
    }
  }
  void Move() {
    Rows rows = Select();
    if (rows.empty()) return;
    for (int i = 1 + Dice(3); i > 0; --i) {
      const bool up = Dice(2) == 0;
      if (Dice(2) == 0) {
        Clic(up ? "cmdSpostaSu" : "cmdSpostaGiu");
        Grid().setFocus();
      } else {
        Premi(up ? Qt::Key_Up : Qt::Key_Down, Qt::AltModifier);
      }
      rows = model_.Sposta(rows, up);
      EXPECT_EQ(Scelte(), rows) << "the selection goes with them";
    }
  }
  void Shuffle() {
    Clic("cmdRandom");
    Righe now = Nomi();
    Righe sorted = now;
    Righe before = model_.Lista();
    std::ranges::sort(sorted);
    std::ranges::sort(before);
    EXPECT_EQ(sorted, before);
    if (!before.empty()) ++model_.Modifiche;
    model_.Lista() = now;
  }
  void Clear() {
    if (model_.Quanti() == 0) return;
    const bool yes = Dice(2) == 0;
    b.Finestre.Rispondi(yes ? Risposta::Si : Risposta::No);
    Clic("cmdRimuoviTuttiFile");
    b.Finestre.Prossimo();
    if (yes) model_.Svuota();
  }
  void ChooseList() {
    if (Selettore().count() == 0) return;
    const int entry = Dice(Selettore().count());
    const bool mouse = Dice(4) == 0 || Selettore().count() == 1;  // no neighbour to come from
    mouse ? test::ScegliColMouse(Selettore(), entry)
          : test::ScegliVoce(Selettore(), Selettore().itemText(entry).toStdString());
    model_.Seleziona(entry, FromOne());
  }
  void TickInput() {
    const int bit = Dice(3);
    test::Clicca(Trova<QWidget>(("chkIn_" + std::to_string(bit + 1)).c_str()));
    model_.Seleziona(model_.Indice ^ (1 << bit), 1);
  }
  void ChangeNames() {
    if (Dice(3) == 0 && !model_.Testate.empty()) {
      const bool yes = Dice(3) > 0;
      b.Finestre.Rispondi(yes ? Risposta::Si : Risposta::No);
      Clic("picRimuoviPL");
      b.Finestre.Prossimo();
      if (yes) model_.RimuoviTestata();
      return;
    }
    const std::string name = "n" + std::to_string(Dice(1000));
    if (model_.Testate.contains(name)) return;
    const test::Pilota<frmPlaylistName> types([&](frmPlaylistName& box) {
      test::Scrivi(box, QString::fromStdString(name));
      test::Tasto(box, Qt::Key_Return);
    });
    Clic("picAggiungiPL");
    model_.AggiungiTestata(name);
  }

  void OneStep() {
    switch (Dice(13)) {
      case 0:
      case 1:
        return AddOne();
      case 2:
        return AddTwo(Dice(2) == 0);
      case 3:
        return AddAll(Dice(2) == 0);
      case 4:
      case 5:
        return Remove();
      case 6:
      case 7:
        return Move();
      case 8:
        return Shuffle();
      case 9:
        return Clear();
      case 10:
        return Attiva();
      case 11:
        return Inputs() ? TickInput() : ChooseList();
      default:
        return Named() ? ChangeNames() : ChooseList();
    }
  }

  void Compare() {
    EXPECT_EQ(Griglia(), model_.Griglia());
    EXPECT_EQ(form->Editor().PlaylistCorrente(), model_.Corrente);
    EXPECT_EQ(Selettore().currentIndex(), model_.Indice);
    EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: " + std::to_string(model_.Contati));
    const std::string changes = Testo("lblModifiche");
    EXPECT_EQ(changes.empty() ? 0 : std::atoi(changes.c_str()), model_.Modifiche) << changes;
    for (int bit = 0; bit < 3 && Inputs(); ++bit) {
      const std::string name = "chkIn_" + std::to_string(bit + 1);
      EXPECT_EQ(Trova<QAbstractButton>(name.c_str()).isChecked(), (model_.Indice >> bit & 1) == 1);
    }
    EXPECT_TRUE(SiVede("grdPlaylist"));
  }

  /// The playlist files of the project that the model asks for.
  std::map<std::string, std::string> Files() const {
    std::map<std::string, std::string> files;
    if (Named()) {
      for (const auto& [name, number] : model_.Testate) {
        const auto list = model_.Liste.find(number);
        if (list == model_.Liste.end() || list->second.empty()) continue;
        files[name + ".m3u"] = OwnNames(list->second);
      }
      return files;
    }
    for (const auto& [number, lines] : model_.RigheDiScheda()) {
      std::string local;
      for (const std::string& each : model_.Liste.at(number)) local += Host(each) + "\r\n";
      if (GetParam().Type == 2) {
        files["PLAYLIST.M3U"] += lines;
        files["PLAYLIST_LOCAL_.M3U"] += local;
      } else {
        files[std::to_string(number) + ".m3u"] = lines;
        files[std::to_string(number) + "_LOCAL_.m3u"] = local;
      }
    }
    if (GetParam().Type == 2) files.insert({{"PLAYLIST.M3U", ""}, {"PLAYLIST_LOCAL_.M3U", ""}});
    return files;
  }
  void CompareFiles() {
    EXPECT_EQ(Tutti("playlist.mdb"), model_.Tutti());
    std::map<std::string, std::string> found;
    for (const std::string& each : b.Nomi("program/Projects/Hall")) {
      if (QString::fromStdString(each).endsWith(".m3u", Qt::CaseInsensitive)) {
        found[each] = Leggi(each);
      }
    }
    EXPECT_EQ(found, Files());
    EXPECT_EQ(Testate("playlist.mdb").size(), model_.Testate.size());
  }

  void EndByASave() {
    if (!model_.Vuoto()) b.Finestre.Rispondi(Risposta::No);
    Clic("picSave");
    ASSERT_TRUE(SiChiude());
    if (!model_.Vuoto()) b.Finestre.Prossimo();
    CompareFiles();
  }
  void EndByACancel(const Model& saved, const std::string& before) {
    Dice(2) == 0 ? Clic("picAnnulla") : static_cast<void>(form->close());
    ASSERT_TRUE(SiChiude());
    EXPECT_TRUE(Leggi("playlist.mdb") == before);
    model_ = saved;
  }

  Model model_;

 private:
  std::mt19937 random_;
};

TEST_P(EditorSession, AgreesWithItsModel) {
  const int steps = FromEnvironment("KVR5_STEPS", 80);
  constexpr int kRounds = 3;
  for (int round = 0; round < kRounds && !HasFailure(); ++round) {
    const Model saved = model_;
    const std::string before = Leggi("playlist.mdb");
    Begin();
    Compare();
    for (int step = 0; step < steps && !HasFailure(); ++step) {
      SCOPED_TRACE("KVR5_SEED=" + std::to_string(GetParam().Seed) + ", round " +
                   std::to_string(round) + ", step " + std::to_string(step));
      OneStep();
      Compare();
    }
    if (HasFailure()) return;
    round == 1 ? EndByACancel(saved, before) : EndByASave();
    Dimentica();
    EXPECT_FALSE(Ha("tmpPlaylist.mdb"));
    EXPECT_TRUE(b.Finestre.Silenzio());
  }
}

std::vector<Kind> Kinds() {
  const int own = FromEnvironment("KVR5_SEED", -1);
  const std::vector<int> seeds = own < 0 ? std::vector{1, 2, 3} : std::vector{own};
  std::vector<Kind> all;
  for (const int seed : seeds) {
    for (const Kind& each :
         {Kind{2, 0, 0}, Kind{3, 7, 0}, Kind{3, 8, 0}, Kind{3, 9, 0}, Kind{4, 5, 0}}) {
      all.push_back({each.Type, each.Mode, seed});
    }
  }
  return all;
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditorSession, testing::ValuesIn(Kinds()), [](const auto& each) {
  return "Type" + std::to_string(each.param.Type) + "Mode" + std::to_string(each.param.Mode) +
         "Seed" + std::to_string(each.param.Seed);
});

}  // namespace
}  // namespace kvr5
