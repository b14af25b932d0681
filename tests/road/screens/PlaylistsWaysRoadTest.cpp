#include <QElapsedTimer>
#include <QTimer>

#include "core/Lingua.h"
#include "core/screens/FinestraCopia.h"
#include "flashcard/screens/frmProgress.h"
#include "projects/screens/frmCaricaProgetto.h"
#include "road/screens/Scrivania.h"
#include "road/screens/StradaPlaylist.h"

// What else happens on the road of the playlists: leaving without a save, copies that are
// cancelled, names that meet, and what the hub tells of it.

namespace kvr5 {
namespace {

using namespace test;
using Tracks = std::map<std::string, std::string>;

class PlaylistsWays : public StradaPlaylist {
 protected:
  static std::string InProject(const std::string& name) {
    return std::string(kProgetto) + "/" + name;
  }
  /// A session and a recording on the screens, then by the companion: each time the card holds
  /// these tracks, and both leave the same.
  void BothWays(const Passi& session, bool answer, const Tracks& tracks) {
    Ricorda();
    Sessione(session, answer);
    Registra();
    ExpectBrani(tracks);
    const Foto project = FotoDi(kProgetto);
    const Foto card = FotoDi("card");
    TornaIndietro();
    SessioneDelCompagno(session, answer);
    RegistraColCompagno();
    ExpectBrani(tracks);
    ExpectUguali(project, FotoDi(kProgetto));
    ExpectUguali(card, FotoDi("card"));
  }
  /// Records, and looks that it stops at this file and brings no music.
  void ExpectStopsAt(const std::string& file) {
    Registra([&](frmSiNo& notice) {
      EXPECT_EQ(notice.windowTitle(), "MP3 files not copied");
      constexpr char16_t kMayBreak = 0x200B;  // where a long path goes on in the next line
      const QString words = notice.lblNota->text().remove(QChar(kMayBreak));
      EXPECT_TRUE(words.endsWith(QString::fromStdString(":\n" + file))) << words.toStdString();
      EXPECT_FALSE(notice.cmdNo->isVisible());
      Clicca(*notice.cmdSi);
    });
    ExpectBrani({});
    EXPECT_TRUE(b.Cartella.Exists("card/playlist.mdb")) << "what the first stages copied stays";
  }
  /// The first of these files, in the order of the list, that the project lacks.
  std::string FirstMissing(const std::vector<std::string>& names) const {
    for (const std::string& each : names) {
      if (!b.Cartella.Exists(InProject(each))) return Host(InProject(each)).string();
    }
    return {};
  }
  /// What the hub says of the lists of a KVR5, once every file was looked for.
  std::string Counted(const char* begin) {
    QLabel& words = *Hub().Pannello->lblSommario;
    const auto there = [&] { return words.text().startsWith(QLatin1String(begin)); };
    EXPECT_TRUE(QTest::qWaitFor(there)) << words.text().toStdString();
    return words.text().toStdString();
  }
};

TEST_F(PlaylistsWays, LeavingTheEditorUnsavedKeepsTheProjectByteForByte) {
  CreaColWizard(5);
  Sessione({"add a/welcome.mp3", "add b/2.mp3"}, false);
  const Foto before = Byte(kProgetto);
  const std::vector<std::function<void(frmPlaylistEditor&)>> ways{
      [](frmPlaylistEditor& editor) { Clicca(*editor.picAnnulla); },
      [](frmPlaylistEditor& editor) { editor.close(); }};
  for (const auto& leave : ways) {
    frmPlaylistEditor& editor = ApriEditor();
    SessioneAMano(editor, Host("music"))
        .Esegui({"remove 1", "addall b", "select 3", "add a/song.mp3", "select 0", "down 1"});
    EXPECT_FALSE(editor.lblModifiche->text().isEmpty());
    leave(editor);
    Hub();
    EXPECT_TRUE(Byte(kProgetto) == before) << testing::PrintToString(b.Nomi(kProgetto));
  }
  Registra();
  ExpectBrani({{"P01-001.mp3", "a/welcome.mp3"}, {"P01-002.mp3", "b/2.mp3"}});
}

TEST_F(PlaylistsWays, TheHubCountsTheTracksOfASaveAndThoseThatAreMissing) {
  CreaColWizard(5);
  EXPECT_EQ(Counted("0 lists, 0 tracks"), "0 lists, 0 tracks");
  Sessione({"addall b", "select 2", "add a/welcome.mp3"}, false);
  Counted("2 lists, 5 tracks, ");
  EXPECT_FALSE(Hub().Pannello->lblMancanti->isVisible());
  ApriEditor();
  std::filesystem::remove(Host("music/b/10.mp3"));
  Clicca(*Vista<frmPlaylistEditor>()->picAnnulla);
  ASSERT_TRUE(QTest::qWaitFor([&] { return Hub().Pannello->lblMancanti->isVisible(); }));
  EXPECT_EQ(Hub().Pannello->lblMancanti->text(), "1 missing");
  ExpectStopsAt(Host("music/b/10.mp3").string());
  Sessione({"remove 2"}, false);
  Counted("2 lists, 4 tracks, ");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !Hub().Pannello->lblMancanti->isVisible(); }));
}

TEST_F(PlaylistsWays, TheProjectsReportTakesThatOfThePlaylistsIn) {
  CreaColWizard(6);
  Sessione({"select 1", "add a/L'été.mp3"}, false);
  const test::Scrivania desktop;
  Clicca(*Hub().Barra->picReport);
  EXPECT_EQ(desktop.Aperti, std::vector<std::string>{Host(InProject("Bar.htm")).string()});
  const std::string screens = b.Cartella.Read(InProject("Bar.htm"));
  EXPECT_NE(screens.find("Playlist 2.m3u - Tuesday"), std::string::npos) << screens;
  EXPECT_NE(screens.find(".mp3<BR>"), std::string::npos);
  EXPECT_EQ(Compagna({"report", "Bar"}).Stato, 0);
  EXPECT_EQ(b.Cartella.Read(InProject("Bar.htm")), screens);
  Registra();
  EXPECT_TRUE(b.Cartella.Same("card/Bar.htm", InProject("Bar.htm")));
}

TEST_F(PlaylistsWays, OfTwoFilesOfOneNameThatAreBroughtInTheLastStaysUnderTheFirstAlias) {
  CreaColWizard(5);
  BothWays({"add a/song.mp3", "add b/song.mp3", "add a/welcome.mp3"}, true,
           {{"P01-001.mp3", "b/song.mp3"}, {"P01-003.mp3", "a/welcome.mp3"}});
  EXPECT_EQ(Leggi("1.m3u"), "P01-001\r\nP01-002\r\nP01-003\r\n") << "the second has no file there";
}

TEST_F(PlaylistsWays, AFileWithAnApostropheInTwoListsHasTwoAliasesAndIsThereUnderTheFirst) {
  CreaColWizard(5);
  BothWays({"add a/L'été.mp3", "select 2", "add a/L'été.mp3", "add b/2.mp3"}, false,
           {{"P01-001.mp3", "a/L'été.mp3"}, {"P03-002.mp3", "b/2.mp3"}});
  EXPECT_EQ(Leggi("3.m3u"), "P03-001\r\nP03-002\r\n");
}

TEST_F(PlaylistsWays, WhereFilesKeepTheirNamesTheLaterOfOneNameIsOnTheCard) {
  Apri(3, 9);
  BothWays({"new Uno", "add b/song.mp3", "new Zero", "add a/song.mp3", "add b/2.mp3"}, false,
           {{"song.mp3", "a/song.mp3"}, {"2.mp3", "b/2.mp3"}});
  ExpectListeVere();
}

TEST_F(PlaylistsWays, TickedInputsLeadToTheListBehindTheirSum) {
  Apri(3, 7);
  BothWays({"inputs 3", "add a/welcome.mp3", "inputs 0", "add b/2.mp3", "inputs 7", "addall b"},
           false,
           {{"P01-001.mp3", "b/2.mp3"},
            {"P04-001.mp3", "a/welcome.mp3"},
            {"P08-002.mp3", "b/10.mp3"},
            {"P08-003.mp3", "b/Caffè.mp3"},
            {"P08-004.mp3", "b/song.mp3"}});
  ExpectListeVere();
}

TEST_F(PlaylistsWays, WithoutATrackThereIsNothingToAskAndNoListIsLeft) {
  CreaColWizard(5);
  Sessione({"add a/welcome.mp3"}, false);
  Sessione({"remove 1"}, {});
  EXPECT_FALSE(b.Cartella.Exists(InProject("1.m3u")));
  EXPECT_EQ(Righe(InProject("playlist.mdb"), "List"), "");
  Registra();
  ExpectBrani({});
  ExpectListeVere();
}

TEST_F(PlaylistsWays, AModelWithoutTheDatabaseHasAnEditorInWhichNothingIsKept) {
  b.CreaProgetto("Bar", 3, 2);
  ASSERT_FALSE(b.Cartella.Exists(InProject("playlist.mdb")));
  Avvia();
  PassaLoSplash();
  Clicca(*Attendi<frmMain>().picCaricaDaDisco);
  Tasto(Attendi<frmCaricaProgetto>(), Qt::Key_Return);
  Hub();
  const Foto before = Byte(kProgetto);
  for (const bool save : {false, true}) {
    frmPlaylistEditor& editor = ApriEditor();
    SessioneAMano(editor, Host("music")).Esegui({"addall a"});
    EXPECT_EQ(editor.Brani->grdPlaylist->model()->rowCount(), 0);
    Clicca(save ? *editor.picSave : *editor.picAnnulla);
    Hub();
    EXPECT_TRUE(Byte(kProgetto) == before) << testing::PrintToString(b.Nomi(kProgetto));
  }
  EXPECT_EQ(Compagna({"playlists", "Bar"}, "save\n").Stato, 3);
}

/// The same where the save's own copy is cancelled.
class CancelledCopies : public PlaylistsWays {
 protected:
  const Passi files_{"add a/welcome.mp3", "add a/L'été.mp3", "addall b"};
  const std::vector<std::string> names_{"welcome.mp3", "L'été.mp3", "2.mp3",
                                        "10.mp3",      "Caffè.mp3", "song.mp3"};

  /// Saves with a yes, while `watch` runs at each turn of the event loop.
  void SaveUnder(const std::function<void()>& watch) {
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, &beat, watch);
    beat.start(0);
    Sessione(files_, true);
  }
  /// What is left: every row in the project's folder, where not every file came.
  void ExpectToldOfWhatIsMissing() {
    const std::string missing = FirstMissing(names_);
    ASSERT_NE(missing, "") << "the copy was over before";
    const std::string rows = Righe(InProject("playlist.mdb"), "List");
    EXPECT_EQ(rows.find(b.Percorso("music")), std::string::npos) << rows;
    EXPECT_NE(rows.find("'" + b.Percorso(kProgetto) + "\\'"), std::string::npos) << rows;
    ExpectStopsAt(missing);
    const auto run = Compagna({"record", "Bar", Host("card").string()});
    EXPECT_EQ(run.Stato, 1);
    ASSERT_EQ(run.Box().size(), 1U);
    EXPECT_TRUE(run.Box()[0].value("text", "").ends_with(":\n" + missing)) << run.Errori;
  }
};

TEST_F(CancelledCopies, InTheProgressOfTheOneListAreToldByTheNextRecording) {
  Apri(2, 0);
  bool pressed = false;
  SaveUnder([&] {
    auto* progress = Vista<frmProgress>();
    if (pressed || progress == nullptr) return;
    const std::string writes = TestoLingua(programma->C(), "0070002");
    if (progress->lblOperazione->text().toStdString() != writes) return;
    pressed = true;
    Clicca(*progress->picAnnulla);
  });
  ASSERT_TRUE(pressed);
  const std::string list = b.Cartella.Read(InProject("PLAYLIST.TXT"));
  EXPECT_EQ(std::ranges::count(list, '\n'), 6) << "every line is written all the same";
  ExpectToldOfWhatIsMissing();
}

TEST_F(CancelledCopies, InTheWindowOfTheCopyAreToldByTheNextRecordingAndByTheHub) {
  CreaColWizard(5);
  bool held = false;
  bool pressed = false;
  SaveUnder([&] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (pressed || dynamic_cast<RiquadroCopia*>(window) == nullptr) continue;
      pressed = true;
      Clicca(*window, "cmdAnnulla");
    }
    // A slow disk: the copy, which begins when the lists are there, takes until its window comes.
    if (std::exchange(held, held || b.Cartella.Exists(InProject("1.m3u")))) return;
    QElapsedTimer copying;
    copying.start();
    const auto itsWindowIsDue = [&] { return !held || copying.hasExpired(500); };
    EXPECT_TRUE(QTest::qWaitFor(itsWindowIsDue));
  });
  ASSERT_TRUE(pressed);
  ExpectToldOfWhatIsMissing();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Hub().Pannello->lblMancanti->isVisible(); }));
}

}  // namespace
}  // namespace kvr5
