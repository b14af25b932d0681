#include <array>

#include "platform/CodePage.h"
#include "road/screens/StradaPlaylist.h"

// Playlists from the start of the program to the finished card, for every model and mode that leads
// to their editor; and the same session through kvr5card, which leaves the same behind.

namespace kvr5 {
namespace {

using test::Passi;
using Tracks = std::map<std::string, std::string>;  // name on the card, file of the music
using Lists = std::map<std::string, Passi>;         // name of the list, its lines

/// A model and mode, and how its lists are told apart.
struct Kind {
  const char* Name;
  std::int16_t Type, Mode;
  enum Way { Selector, OneFile, NoSelector, Named } Lists;
  int First = 0, Second = 0;  ///< the numbers of the lists at entry 0 and 2 of the selector
  bool Wizard = false;        ///< it is made by the wizard, else by the bench
  bool Foreign = false;       ///< the model has no playlists; the database came from elsewhere
};

void PrintTo(const Kind& kind, std::ostream* out) {
  *out << kind.Name;
}

std::string Alias(int list, int pos) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "P%02d-%03d", list, pos);
  return text.data();
}

/// Two lists where there can be two: one file twice in one list or in both, one name from two
/// folders, accents, an apostrophe.
Passi SessionOf(const Kind& kind) {
  Passi session;
  const auto begin = [&](const char* select, const char* name) {
    if (kind.Lists == Kind::Selector) session.emplace_back(select);
    if (kind.Lists == Kind::Named) session.emplace_back(name);
  };
  begin("select 0", "new L'alba");
  session.insert(session.end(), {"add a/welcome.mp3", "add a/L'été.mp3", "add b/song.mp3"});
  begin("select 2", "new Sera");
  session.emplace_back("addall b");
  // Where files keep their names the card has room for one of a name.
  if (kind.Lists != Kind::Named) session.emplace_back("add a/song.mp3");
  session.emplace_back("add a/welcome.mp3");
  return session;
}

Tracks TracksOf(const Kind& kind) {
  const Passi files{"a/welcome.mp3", "a/L'été.mp3", "b/song.mp3", "b/2.mp3",
                    "b/10.mp3",      "b/Caffè.mp3", "a/song.mp3"};
  Tracks tracks;
  const bool two = kind.Lists == Kind::Selector;
  const std::array alias{Alias(kind.First, 1),
                         Alias(kind.First, 2),
                         Alias(kind.First, 3),
                         two ? Alias(kind.Second, 1) : Alias(kind.First, 4),
                         two ? Alias(kind.Second, 2) : Alias(kind.First, 5),
                         two ? Alias(kind.Second, 3) : Alias(kind.First, 6),
                         two ? Alias(kind.Second, 5) : Alias(kind.First, 8)};
  for (std::size_t i = 0; i < files.size(); ++i) {
    if (kind.Lists != Kind::Named) {
      tracks[alias.at(i) + ".mp3"] = files[i];
    } else if (files[i] != "a/song.mp3") {
      tracks[files[i].substr(2)] = files[i];
    }
  }
  return tracks;
}

Lists ListsOf(const Kind& kind) {
  const auto one = [&](int pos) { return Alias(kind.First, pos); };
  const auto two = [&](int pos) { return Alias(kind.Second, pos); };
  const Passi all{one(1), one(2), one(3), one(4), one(5), one(6), one(3), one(8), one(1)};
  switch (kind.Lists) {
    case Kind::Selector:
      return {
          {std::to_string(kind.First) + ".m3u", {one(1), one(2), one(3)}},
          {std::to_string(kind.Second) + ".m3u", {two(1), two(2), two(3), one(3), two(5), one(1)}}};
    case Kind::OneFile:
      return {{"PLAYLIST.M3U", all}};
    case Kind::NoSelector:
      return {{std::to_string(kind.First) + ".m3u", all}};
    case Kind::Named:
      break;
  }
  return {{"L'alba.m3u", {"welcome", "L'été", "song"}},
          {"Sera.m3u", {"2", "10", "Caffè", "song", "welcome"}}};
}

class PlaylistsRoad : public test::StradaPlaylist, public testing::WithParamInterface<Kind> {
 protected:
  void ToTheHub() {
    const Kind& kind = GetParam();
    if (kind.Wizard) return CreaColWizard(kind.Mode);
    Apri(kind.Type, kind.Mode, kind.Foreign);
  }
  /// What every recording brings, beside the music.
  void ExpectTheProjectOnTheCard() const {
    for (const char* name : {"playlist.mdb", "Config.txt", "Config.cfg", "Playlist.htm"}) {
      EXPECT_TRUE(b.Cartella.Same(std::string("card/") + name, std::string(kProgetto) + "/" + name))
          << name;
    }
    EXPECT_EQ(b.Cartella.Exists("card/inputcfg.mdb"),
              b.Cartella.Exists(std::string(kProgetto) + "/inputcfg.mdb"));
    EXPECT_FALSE(b.Cartella.Exists("card/PLAYLIST.TXT")) << "it stays in the project";
    const Lists lists = ListsOf(GetParam());
    for (const auto& [name, lines] : lists) {
      std::string text;
      for (const std::string& line : lines) text += line + "\r\n";
      EXPECT_EQ(Leggi(name), CodePage(1252).Encode(text)) << name;
    }
    int others = 0;
    for (const std::string& each : b.Nomi("card")) {
      const bool list = each.ends_with(".m3u") || each.ends_with(".M3U");
      if (list && each.find("_LOCAL_") == std::string::npos) others += lists.contains(each) ? 0 : 1;
    }
    EXPECT_EQ(others, 0) << testing::PrintToString(b.Nomi("card"));
  }
  /// The lists for use on the computer: one beside each of the player's, and none for names.
  void ExpectTheListsForTheComputer() const {
    const Tracks tracks = TracksOf(GetParam());
    for (const auto& [name, lines] : ListsOf(GetParam())) {
      std::string local = name;
      local.insert(local.find('.'), "_LOCAL_");
      const bool there = b.Cartella.Exists("card/" + local);
      EXPECT_EQ(there, GetParam().Lists != Kind::Named) << local;
      if (!there) continue;
      std::string paths;
      for (const std::string& line : lines) {
        paths += Host("music/" + tracks.at(line + ".mp3")).string() + "\r\n";
      }
      EXPECT_EQ(Leggi(local), CodePage(1252).Encode(paths)) << local;
    }
  }
  /// All that a session and a recording leave.
  struct Left {
    test::Foto Project, Card;
  };
  Left Look() { return {FotoDi(kProgetto), FotoDi("card")}; }
  static void ExpectSame(const Left& screens, const Left& companion) {
    ExpectUguali(screens.Project, companion.Project);
    ExpectUguali(screens.Card, companion.Card);
  }
  /// The second session: what can't live under one name beside its namesake goes.
  static Passi WithoutTheNamesake() {
    switch (GetParam().Lists) {
      case Kind::Selector:
        return {"select 2", "remove 5"};
      case Kind::Named:
        return {};
      default:
        return {"remove 8"};
    }
  }
  static Tracks TracksWithoutTheNamesake() {
    Tracks tracks = TracksOf(GetParam());
    std::erase_if(tracks, [](const auto& each) { return each.second == "a/song.mp3"; });
    return tracks;
  }
};

TEST_P(PlaylistsRoad, LeadsToACardWithEveryTrackUnderItsNameAndTheCompanionToTheSame) {
  ToTheHub();
  Ricorda();
  Sessione(SessionOf(GetParam()), false);
  EXPECT_FALSE(b.Cartella.Exists(std::string(kProgetto) + "/welcome.mp3")) << "it was a no";
  EXPECT_FALSE(b.Cartella.Exists(std::string(kProgetto) + "/tmpPlaylist.mdb"));
  Registra();
  ExpectBrani(TracksOf(GetParam()));
  ExpectListeVere();
  ExpectTheProjectOnTheCard();
  ExpectTheListsForTheComputer();
  const Left screens = Look();
  TornaIndietro();

  SessioneDelCompagno(SessionOf(GetParam()), false);
  RegistraColCompagno();
  ExpectSame(screens, Look());
}

TEST_P(PlaylistsRoad, FilesThatWereBroughtInAreRecordedWhenTheirSourceIsGone) {
  const auto record = [this](const auto& how) {
    std::filesystem::rename(Host("music"), Host("away"));
    SvuotaScheda();
    how();
    std::filesystem::rename(Host("away"), Host("music"));
    ExpectBrani(TracksWithoutTheNamesake());
    ExpectListeVere();
  };
  ToTheHub();
  Ricorda();
  Sessione(SessionOf(GetParam()), false);
  Registra();
  Sessione(WithoutTheNamesake(), true);
  record([this] { Registra(); });
  const Left screens = Look();
  EXPECT_TRUE(screens.Project.at("L'été.mp3") == Musica.at("a/L'été.mp3"));
  TornaIndietro();

  SessioneDelCompagno(SessionOf(GetParam()), false);
  RegistraColCompagno();
  SessioneDelCompagno(WithoutTheNamesake(), true);
  record([this] { RegistraColCompagno(); });
  ExpectSame(screens, Look());
}

INSTANTIATE_TEST_SUITE_P(
    Models, PlaylistsRoad,
    testing::Values(Kind{"Veskadro", 1, 0, Kind::NoSelector, 0, 0, false, true},
                    Kind{"Zub", 2, 0, Kind::OneFile, 1},
                    Kind{"OstrelOnInputs", 3, 1, Kind::NoSelector, 0, 0, false, true},
                    Kind{"OstrelWithASchedule", 3, 2, Kind::NoSelector, 0, 0, false, true},
                    Kind{"OstrelWithAnotherSchedule", 3, 3, Kind::NoSelector, 0, 0, false, true},
                    Kind{"OstrelWithOneList", 3, 4, Kind::OneFile, 1},
                    Kind{"OstrelWithLists", 3, 5, Kind::Selector, 1, 3},
                    Kind{"OstrelWithDays", 3, 6, Kind::Selector, 1, 3},
                    Kind{"OstrelWithInputs", 3, 7, Kind::Selector, 1, 3},
                    Kind{"OstrelWithMoreLists", 3, 8, Kind::Selector, 0, 2},
                    Kind{"OstrelWithNames", 3, 9, Kind::Named},
                    Kind{"Kvr5OnInputs", 4, 1, Kind::NoSelector, 0, 0, false, true},
                    Kind{"Kvr5WithASchedule", 4, 2, Kind::NoSelector, 0, 0, false, true},
                    Kind{"Kvr5WithOneList", 4, 4, Kind::OneFile, 1},
                    Kind{"Kvr5ByInput", 4, 5, Kind::Selector, 1, 3, true},
                    Kind{"Kvr5ByDay", 4, 6, Kind::Selector, 1, 3, true},
                    Kind{"Kvr5ByCombination", 4, 7, Kind::Selector, 1, 3, true}),
    [](const auto& each) { return std::string(each.param.Name); });

}  // namespace
}  // namespace kvr5
