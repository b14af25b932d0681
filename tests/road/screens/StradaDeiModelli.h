#pragma once

#include <map>
#include <string>

#include "road/screens/StradaScheda.h"

namespace kvr5::test {

/// A model and mode, and what its project is filled with.
struct Modello {
  const char* Name;
  std::int16_t Type, Mode, Config;
  bool Inputs = false;
  enum Editor { None, Playlists, Names, Schedule } Edit = None;
};

inline void PrintTo(const Modello& modello, std::ostream* out) {
  *out << modello.Name;
}

inline Passi Tracks(Modello::Editor editor) {
  if (editor == Modello::Names) return {"new L'alba", "add a/welcome.mp3", "add b/song.mp3"};
  if (editor == Modello::Schedule) {
    return {"segment add", "time 20 30", "spot add 1 a/welcome.mp3", "spot add 2 a/L'été.mp3"};
  }
  return {"add a/welcome.mp3", "add b/song.mp3", "add a/L'été.mp3"};
}

inline constexpr Modello kModelli[] = {
    {"Veskadro", 1, 0, 0, true},
    {"ZubWithInputsAndPlaylists", 2, 0, 0, true, Modello::Playlists},
    {"ZubWithPlaylists", 2, 0, 3, false, Modello::Playlists},
    {"OstrelOnInputs", 3, 1, 0, true},
    {"OstrelWithASchedule", 3, 2, 0, false, Modello::Schedule},
    {"OstrelWithAnotherSchedule", 3, 3, 0, false, Modello::Schedule},
    {"OstrelWithOneList", 3, 4, 0, false, Modello::Playlists},
    {"OstrelWithNames", 3, 9, 0, false, Modello::Names},
    {"Kvr5OnInputs", 4, 1, 0, true},
    {"Kvr5WithASchedule", 4, 2, 0, false, Modello::Schedule},
    {"Kvr5ByInput", 4, 5, 0, false, Modello::Playlists},
    {"Kvr5ByDay", 4, 6, 0, false, Modello::Playlists},
    {"Kvr5ByCombination", 4, 7, 0, false, Modello::Playlists}};

/// A project Bar of each model and mode, filled and recorded to the card E.
class StradaDeiModelli : public StradaScheda, public testing::WithParamInterface<Modello> {
 protected:
  /// Makes the project Bar with its files, opens it, and records it to the card E.
  void RecordFirst() {
    const Modello& modello = GetParam();
    b.CreaProgetto("Bar", modello.Type, modello.Mode, modello.Config);
    if (modello.Inputs) {
      for (const auto& [code, file] : kInputs) {
        b.AggiungiRiga("inputcfg.mdb", 1, code, file, b.Percorso("music/b") + "\\",
                       std::to_string(code) + ".mp3");
      }
    }
    ApriPrimo();
    if (modello.Edit == Modello::Schedule) Palinsesto(Tracks(modello.Edit), false);
    if (modello.Edit == Modello::Playlists || modello.Edit == Modello::Names) {
      Sessione(Tracks(modello.Edit), false);
    }
    ScegliScheda('E');
    Registra();
    EXPECT_EQ(Verifica(), "");
    first = Byte("card");
    ASSERT_TRUE(first.contains("Config.cfg"));
  }

  const std::map<int, std::string> kInputs{{1, "2.mp3"}, {5, "Caffè.mp3"}};
  Foto first;  ///< the card of the first recording
};

}  // namespace kvr5::test
