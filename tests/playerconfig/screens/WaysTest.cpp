#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QSlider>
#include <QTest>
#include <QTimer>

#include "core/screens/Mnemonici.h"
#include "playerconfig/screens/BancoHub.h"

// The ways from the hub to the screens of parameters and to the editor of playlists.

namespace kvr5 {
namespace {

class Ways : public test::Hub {
 protected:
  /// Presses each button that leads to a screen of parameters, seen or not.
  void PressAll() {
    for (const char* name : {"picConfiguraFade", "cmdConfigureExtra", "cmdConfigure232",
                             "cmdConfigure232bis", "picConfig485", "picConfig485bis"}) {
      ++pressed_;
      Trova<QAbstractButton>(name).click();
    }
  }
  void ExpectNoneOpened() const {
    EXPECT_EQ(pressed_, 6) << "they were pressed amid the work";
    EXPECT_EQ(b.Schermi.TempiFade, 0);
    EXPECT_EQ(b.Schermi.PannelliExtra, 0);
    EXPECT_TRUE(b.Schermi.Seriali.empty());
  }
  void ExpectOpenAgain() {
    PressAll();
    EXPECT_EQ(b.Schermi.TempiFade, 1);
    EXPECT_EQ(b.Schermi.PannelliExtra, 1);
    EXPECT_EQ(b.Schermi.Seriali.size(), 4U);
  }
  /// The button that stands out.
  std::string Filled() {
    std::string names;
    for (const char* name : {"picSave", "picRecordFlash", "picPlaylist", "picPalinsesto"}) {
      const auto& button = dynamic_cast<Coppia&>(Trova<QAbstractButton>(name));
      if (button.GenereOra() == Coppia::Genere::Primario) names += name;
    }
    return names;
  }
  /// What goes with Alt to save, to record and to the rest of the bar; "-" is a button without.
  std::string Letters() {
    AssegnaMnemonici(*hub);
    std::string all;
    for (const char* name : {"picSave", "picRecordFlash", "picVerifica", "picEsci", "picReport",
                             "picAltro", "picCancellaFlash"}) {
      const QChar letter = dynamic_cast<Coppia&>(Trova<QAbstractButton>(name)).Mnemonico();
      all += letter.isNull() ? '-' : letter.toLatin1();
    }
    return all;
  }

 private:
  int pressed_ = 0;
};

TEST_F(Ways, LeadToTheFadesOnEveryModel) {
  Progetto(1, 0);
  Apri();
  Clic("picConfiguraFade");
  EXPECT_EQ(b.Schermi.TempiFade, 1);
  test::Clicca(Trova<QWidget>("lblConfiguraFade"));
  EXPECT_EQ(b.Schermi.TempiFade, 2) << "its label does the same";
}

TEST_F(Ways, LeadToTheExtrasOfAKvr5) {
  Progetto(4, 2);
  Apri();
  Clic("cmdConfigureExtra");
  EXPECT_EQ(b.Schermi.PannelliExtra, 1);
}

TEST_F(Ways, OfAnEmptyScheduleStandOutBeforeTheCard) {
  Progetto(4, 2);
  Apri();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Filled() == "picPalinsesto"; })) << Filled();
}

TEST_F(Ways, OfEmptyPlaylistsStandOutBeforeTheCardUntilThereIsATrack) {
  Progetto(4, 5);
  Apri();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Filled() == "picPlaylist"; })) << Filled();
  Trova<QSlider>("sliBass").setValue(3);
  EXPECT_EQ(Filled(), "picSave") << "what is unsaved comes before anything";
  Chiudi();
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", b.Percorso("music") + "\\", "");
  Apri();
  EXPECT_TRUE(QTest::qWaitFor([&] { return SiVede("lblMancanti"); })) << "all is counted";
  EXPECT_EQ(Filled(), "picRecordFlash");
}

TEST_F(Ways, KeepTheirLettersWhateverElseIsFilledOrShown) {
  Progetto(4, 1);
  UltimaCartella("music");
  Apri();
  const std::string first = Letters();
  EXPECT_TRUE(first.starts_with("SR")) << first;
  EXPECT_EQ(first.find('-'), std::string::npos) << "each has one: " << first;
  Trova<QSlider>("sliBass").setValue(3);
  ASSERT_EQ(Filled(), "picSave");
  EXPECT_EQ(Letters(), first);
  Chiudi();
  b.ScriviMp3("music/a.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "gone.mp3", "C:\\gone\\", "1.mp3");
  Apri(0);
  ASSERT_TRUE(QTest::qWaitFor([this] { return SiVede("picTrova"); }));
  EXPECT_EQ(Letters(), first) << "Find… is there";
  Spunta(1);
  ASSERT_TRUE(SiVede("cmdMp3Preview_Play"));
  EXPECT_EQ(Letters(), first) << "Listen is there";
  ScegliFile("a.mp3");
  ScegliFile(" ");
  ASSERT_EQ(Testo("lblOkFileMp3"), "Remove file");
  EXPECT_EQ(Letters(), first) << "Remove file is there";
}

TEST_F(Ways, AreOpenToTheKeyboard) {
  Progetto(4, 1);
  Apri();
  for (const char* name : {"cmdConfigureExtra", "picConfiguraFade"}) {
    Trova<QWidget>(name).setFocus();
    test::Tasto(*hub, Qt::Key_Space);
  }
  EXPECT_EQ(b.Schermi.PannelliExtra, 1);
  EXPECT_EQ(b.Schermi.TempiFade, 1);
}

TEST_F(Ways, HiddenButtonsLeadToTheSerialLinkInItsTwoForms) {
  Progetto(4, 1);
  Apri();
  for (const char* name :
       {"cmdConfigure232", "cmdConfigure232bis", "picConfig485", "picConfig485bis"}) {
    EXPECT_FALSE(SiVede(name)) << name;
    Trova<QAbstractButton>(name).click();
  }
  EXPECT_EQ(b.Schermi.Seriali, (std::vector{true, true, false, false}));
}

TEST_F(Ways, AreShutWhileTheProjectIsSaved) {
  Progetto(4, 1);
  Apri();
  b.Schermi.SuDomanda = [this] { PressAll(); };
  {
    const auto closing = test::RispondiMessaggio("cmdOk");
    Clic("picSave");
  }
  ExpectNoneOpened();
  b.Schermi.SuDomanda = {};
  ExpectOpenAgain();
}

TEST_F(Ways, AreShutWhileTheProjectIsRecorded) {
  Progetto(4, 1);
  Apri();
  servizi.SuRegistra = [this] { PressAll(); };
  Clic("picRecordFlash");
  ExpectNoneOpened();
  ExpectOpenAgain();
}

class WayToPlaylists : public test::Hub {
 protected:
  std::string Copy() const { return "program/Projects/Hall/tmpPlaylist.mdb"; }
  void ExpectOpened() {
    EXPECT_EQ(b.Schermi.EditorPer, std::vector{Schermata::Configurazione});
    ASSERT_TRUE(hub);
    EXPECT_FALSE(hub->isVisible()) << "the hub is hidden";
    EXPECT_TRUE(hub->Caricata()) << "and stays loaded";
  }
};

TEST_F(WayToPlaylists, IsOpenByTheButtonOfEachProjectThatHasThem) {
  struct Kind {
    std::int16_t Type, Mode, Config;
  };
  for (const Kind& kind : {Kind{2, 0, 3}, Kind{4, 5, 0}, Kind{4, 6, 0}, Kind{4, 7, 0}}) {
    SCOPED_TRACE(std::to_string(kind.Type) + " " + std::to_string(kind.Mode));
    std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    b.Schermi.EditorPer.clear();
    Progetto(kind.Type, kind.Mode, kind.Config);
    Apri();
    const auto& button = Trova<QWidget>("picPlaylist");
    EXPECT_TRUE(button.isVisible());
    EXPECT_TRUE(button.isEnabled());
    EXPECT_EQ(button.toolTip().toStdString(), "Lists of tracks: what plays, in which order");
    Clic("picPlaylist");
    ExpectOpened();
    Chiudi();
  }
}

TEST_F(WayToPlaylists, IsOpenByTheButtonsLabelAndTheKeyboard) {
  Progetto(4, 5);
  Apri();
  test::Clicca(Trova<QWidget>("lblPlaylist"));
  ExpectOpened();
  Chiudi();
  b.Schermi.EditorPer.clear();
  Apri();
  Trova<QWidget>("picPlaylist").setFocus();
  test::Tasto(*hub, Qt::Key_Space);
  ExpectOpened();
}

TEST_F(WayToPlaylists, IsOpenByTheMenuWhereTheButtonIsHidden) {
  Progetto(4, 1);
  b.Cartella.Write("program/Projects/Hall/playlist.mdb", "");
  Apri();
  ASSERT_FALSE(SiVede("picPlaylist"));
  QAction* entry = hub->Barra->menuAltro.actions().front();
  ASSERT_EQ(entry->text(), "Playlists…");
  ASSERT_TRUE(entry->isEnabled());
  entry->trigger();
  ExpectOpened();
}

TEST_F(WayToPlaylists, ClearsTheCopyThatACrashLeftBeforeTheEditorComes) {
  Progetto(4, 5);
  b.Cartella.Write(Copy(), "stale");
  Apri();
  EXPECT_TRUE(b.Cartella.Exists(Copy()));
  Clic("picPlaylist");
  ExpectOpened();
  EXPECT_FALSE(b.Cartella.Exists(Copy()));
}

TEST_F(WayToPlaylists, SilencesWhatPlays) {
  Progetto(2, 0, 3);
  Apri();
  b.Suono.Comandi.clear();
  Clic("picPlaylist");
  EXPECT_EQ(b.Suono.Comandi, (std::vector<std::string>{"2 Stop", "2 Close", "1 Stop", "1 Close"}));
}

TEST_F(WayToPlaylists, IsShutWhileTheProjectIsSavedOrRecorded) {
  Progetto(4, 1);
  Apri();
  int pressed = 0;
  const auto press = [&] {
    ++pressed;
    Trova<QAbstractButton>("picPlaylist").click();  // hidden here, and there all the same
  };
  b.Schermi.SuDomanda = press;
  {
    const auto closing = test::RispondiMessaggio("cmdOk");
    Clic("picSave");
  }
  servizi.SuRegistra = press;
  Clic("picRecordFlash");
  EXPECT_EQ(pressed, 2);
  EXPECT_TRUE(b.Schermi.EditorPer.empty());
  EXPECT_TRUE(hub->isVisible());
  press();
  ExpectOpened();
}

TEST_F(WayToPlaylists, IsTakenOnceByTwoQuickPresses) {
  Progetto(4, 5);
  Apri();
  // The second one comes while the first stops what plays.
  QTimer::singleShot(0, hub, [this] { Trova<QAbstractButton>("picPlaylist").click(); });
  Clic("picPlaylist");
  ExpectOpened();
}

TEST_F(WayToPlaylists, LeadsBackToTheHubAsItWas) {
  Progetto(4, 5);
  Apri();
  Clic("picPlaylist");
  ExpectOpened();
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", "C:\\far\\", "");
  hub->Mostra();
  ASSERT_TRUE(test::Pronta(*hub));
  // The editor's window was in front.
  QEvent activation(QEvent::WindowActivate);
  QCoreApplication::sendEvent(hub, &activation);
  EXPECT_TRUE(QTest::qWaitFor([this] {
    return QString::fromStdString(Testo("lblSommario")).startsWith("1 list, 1 track");
  })) << Testo("lblSommario");
  Clic("picPlaylist");
  EXPECT_EQ(b.Schermi.EditorPer.size(), 2U);
}

}  // namespace
}  // namespace kvr5
