#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QTest>
#include <QTimer>

#include "playerconfig/screens/BancoHub.h"

// Listening to a file on the hub, before it is assigned and after.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

const Lines kStop = {"2 Stop", "2 Close", "1 Stop", "1 Close"};

class Listening : public test::HubConMusica {
 protected:
  /// Opens the hub with IN1 assigned to b.mp3, and nothing ticked.
  void ApriConAssegnato() {
    b.AggiungiRiga("inputcfg.mdb", 1, 1, "b.mp3", Music(), "1.mp3");
    b.AggiungiRiga("inputcfg.mdb", 1, 2, "a.mp3", Music(), "2.mp3");
    Apri(0);
  }
  Lines Told() { return std::exchange(b.Suono.Comandi, {}); }
  static Lines AfterStop(Lines more) {
    Lines all = kStop;
    all.insert(all.end(), more.begin(), more.end());
    return all;
  }
  Coppia& Play() { return Trova<Coppia>("cmdPlayMp3"); }
  Coppia& PlayAssigned() { return Trova<Coppia>("cmdMp3Preview_Play"); }
  static std::string Name(const Coppia& button) { return button.accessibleName().toStdString(); }
  static std::string Tip(const Coppia& button) { return button.toolTip().toStdString(); }
  bool Plays(const Coppia& button) const { return Name(button).ends_with(", playing"); }
};

TEST_F(Listening, ThePickedFileIsPlayedAndStopped) {
  Apri(0);
  ScegliFile("L'été.mp3");
  const QImage off = Play().grab().toImage();
  EXPECT_EQ(Name(Play()), "Play");
  EXPECT_EQ(Tip(Play()), "Plays the file that is picked");
  Told();
  Clic("cmdPlayMp3");
  EXPECT_EQ(Told(), AfterStop({"1 Open " + Music() + "L'été.mp3", "1 Play"}));
  EXPECT_EQ(Name(Play()), "Play, playing");
  EXPECT_EQ(Tip(Play()), "Playing. Press to start again, with the file that is chosen now.");
  EXPECT_NE(Play().grab().toImage(), off) << "another picture";
  EXPECT_FALSE(Plays(PlayAssigned()));
  Clic("cmdStopMp3");
  EXPECT_EQ(Told(), kStop);
  EXPECT_EQ(Name(Play()), "Play");
  EXPECT_FALSE(test::PuntatoreOccupato());
}

TEST_F(Listening, TheAssignedFileIsPlayedAndStopped) {
  ApriConAssegnato();
  Spunta(1);
  Told();
  EXPECT_EQ(Name(PlayAssigned()), "Listen");
  EXPECT_EQ(Tip(PlayAssigned()), "Plays the file of this combination of inputs");
  Clic("cmdMp3Preview_Play");
  EXPECT_EQ(Told(), AfterStop({"2 Open " + Music() + "b.mp3", "2 Play"}));
  EXPECT_EQ(Name(PlayAssigned()), "Listen, playing");
  EXPECT_EQ(Testo("lblPreview"), "Listen") << "its width stays";
  EXPECT_FALSE(Plays(Play()));
  Clic("cmdMp3Preview_Stop");
  EXPECT_EQ(Told(), kStop);
  EXPECT_EQ(Name(PlayAssigned()), "Listen");
}

TEST_F(Listening, AnyStopStopsBothAndAnotherPlayTakesTurns) {
  ApriConAssegnato();
  Spunta(1);
  Clic("cmdPlayMp3");
  Clic("cmdMp3Preview_Play");
  EXPECT_FALSE(Plays(Play()));
  EXPECT_TRUE(Plays(PlayAssigned()));
  Clic("cmdStopMp3");
  EXPECT_FALSE(Plays(PlayAssigned()));
}

TEST_F(Listening, TheKeyboardPlaysToo) {
  ApriConAssegnato();
  Spunta(1);
  for (Coppia* button : {&Play(), &PlayAssigned()}) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
      button->setFocus();
      test::Tasto(*hub, key);
      EXPECT_TRUE(Plays(*button)) << button->objectName().toStdString();
      EXPECT_EQ(hub->focusWidget(), button) << "the keyboard stays";
      Trova<QWidget>("cmdStopMp3").setFocus();
      test::Tasto(*hub, key);
      EXPECT_FALSE(Plays(*button));
    }
  }
}

TEST_F(Listening, AtTheEndOfTheFileThePictureFallsBackByItself) {
  ApriConAssegnato();
  Spunta(1);
  Clic("cmdPlayMp3");
  Told();
  b.Suono.Finisce(1, 2);
  EXPECT_TRUE(Plays(Play())) << "not at another notification";
  b.Suono.Finisce(1);
  EXPECT_EQ(Told(), kStop);
  EXPECT_FALSE(Plays(Play()));
  Clic("cmdMp3Preview_Play");
  b.Suono.Finisce(2);
  EXPECT_FALSE(Plays(PlayAssigned()));
  EXPECT_FALSE(test::PuntatoreOccupato());
}

TEST_F(Listening, TheExternalPlayerIsStartedAndForgotten) {
  b.C.Stato.UsaPlayerEsterno = true;
  ApriConAssegnato();
  Spunta(1);
  ScegliFile("a.mp3");
  EXPECT_EQ(Tip(Play()),
            "Opens the file that is picked with the player that the system uses for MP3 files");
  EXPECT_EQ(
      Tip(PlayAssigned()),
      "Opens the file of this combination with the player that the system uses for MP3 files");
  Clic("cmdPlayMp3");
  Clic("cmdMp3Preview_Play");
  EXPECT_THAT(b.Documenti.Aperti, ElementsAre(Music() + "a.mp3", Music() + "b.mp3"));
  EXPECT_THAT(b.Documenti.Parametri, ElementsAre(" /PLAY", " /PLAY"));
  EXPECT_FALSE(Plays(Play()));
  EXPECT_FALSE(Plays(PlayAssigned()));
  EXPECT_FALSE(SiVede("cmdStopMp3"));
  EXPECT_FALSE(SiVede("cmdMp3Preview_Stop"));
  Spunta(2);
  EXPECT_THAT(Told(), IsEmpty()) << "there is nothing to stop";
}

TEST_F(Listening, NothingPickedIsNothingToPlay) {
  Apri(0);
  EXPECT_TRUE(Play().isEnabled());
  Play().setFocus();
  ScegliFile(" ");
  EXPECT_FALSE(Play().isEnabled());
  EXPECT_EQ(Tip(Play()), "Pick a file to listen to");
  ScegliFile("a.mp3");
  EXPECT_TRUE(Play().isEnabled());
  Play().setFocus();
  std::filesystem::remove_all(b.Cartella.Host() / "music");
  Attiva();
  Attiva();
  EXPECT_FALSE(Play().isEnabled());
  EXPECT_EQ(hub->focusWidget(), &Trova<QWidget>("cmbFileMp3")) << "and no button further on";
}

TEST_F(Listening, AFileThatIsGoneStaysSilent) {
  Apri(0);
  ScegliFile("a.mp3");
  std::filesystem::remove(b.Cartella.Host() / "music/a.mp3");
  Told();
  Clic("cmdPlayMp3");
  EXPECT_THAT(Told(), IsEmpty());
  EXPECT_FALSE(Plays(Play()));
  EXPECT_FALSE(test::PuntatoreOccupato());
}

TEST_F(Listening, ATickStopsWhatPlaysBeforeTheCodeChanges) {
  ApriConAssegnato();
  Spunta(1);
  Clic("cmdMp3Preview_Play");
  Told();
  std::string title;
  bool shown = true;
  QTimer::singleShot(0, hub, [&] {
    title = Testo("lblfraFileName");
    shown = SiVede("fraFileAssociato");
  });
  Spunta(3);
  EXPECT_EQ(title, "File on the card - 1.mp3") << "while it stops";
  EXPECT_FALSE(shown) << "and can't be played anew";
  EXPECT_EQ(Told(), kStop);
  EXPECT_FALSE(Plays(PlayAssigned()));
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 5.mp3");
}

TEST_F(Listening, TheListOfAssignmentsStopsItAsTicksDo) {
  ApriConAssegnato();
  auto& list = Trova<QListWidget>("lstAssegnati");
  ClicRiga(list, 0);
  Clic("cmdMp3Preview_Play");
  Told();
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_THAT(Told(), IsEmpty()) << "no box changes";
  EXPECT_TRUE(Plays(PlayAssigned()));
  ClicRiga(list, 1);
  EXPECT_EQ(Told(), kStop);
  EXPECT_FALSE(Plays(PlayAssigned()));
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 2.mp3");
}

TEST_F(Listening, TheLinkThatTakesATickAwayStopsIt) {
  ApriConAssegnato();
  Attiva();
  Spunta(1);
  Spunta(5);
  Clic("cmdPlayMp3");
  Told();
  Attiva();
  EXPECT_THAT(Told(), IsEmpty()) << "coming back alone does nothing";
  b.C.Stato.Usa485 = true;
  Attiva();
  EXPECT_EQ(Told(), kStop);
  EXPECT_EQ(Testo("lblFileAssociato"), "Plays: b.mp3");
  Attiva();
  EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(Listening, TicksThatComeWhileOneStopsAllCount) {
  Apri(0);
  QTimer::singleShot(0, hub, [this] { Spunta(3); });
  Spunta(1);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 5.mp3");
  EXPECT_TRUE(Trova<QCheckBox>("chkIn_1").isChecked());
  EXPECT_TRUE(Trova<QCheckBox>("chkIn_3").isChecked());
}

TEST_F(Listening, OfTwoRowsThatAreClickedAtOnceTheSecondIsTicked) {
  ApriConAssegnato();
  auto& list = Trova<QListWidget>("lstAssegnati");
  QTimer::singleShot(0, hub, [&] { ClicRiga(list, 1); });
  ClicRiga(list, 0);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 2.mp3");
}

TEST_F(Listening, AConfirmThatComesWhileTheInputsChangeConfirmsNothing) {
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  QTimer::singleShot(0, hub, [this] { Conferma(); });
  Spunta(3);
  EXPECT_EQ(Righe(), 0) << "neither for the inputs before nor for the new ones";
  Conferma();
  EXPECT_EQ(Riga(5), "a.mp3|" + Music() + "|5.mp3|1");
}

TEST_F(Listening, LeavingTheProjectSilencesIt) {
  ApriConAssegnato();
  Spunta(1);
  Clic("cmdMp3Preview_Play");
  Told();
  {
    const auto stay = test::RispondiMessaggio("cmdCancel");
    Clic("picEsci");
  }
  EXPECT_TRUE(Plays(PlayAssigned()));
  EXPECT_THAT(Told(), IsEmpty());
  const auto leave = test::RispondiMessaggio("cmdYes");
  Clic("picEsci");
  EXPECT_THAT(Told(), ElementsAre("1 Stop", "1 Close", "2 Stop", "2 Close"));
}

TEST_F(Listening, EndingTheProgramSilencesItToo) {
  ApriConAssegnato();
  Spunta(1);
  Clic("cmdMp3Preview_Play");
  Told();
  const auto end = test::RispondiMessaggio("cmdNo");
  Clic("picEsci");
  EXPECT_THAT(Told(), ElementsAre("1 Stop", "1 Close", "2 Stop", "2 Close"));
}

TEST_F(Listening, AHubThatIsClosedWhileAPlayStopsIsAskedAboutAfterwards) {
  ApriConAssegnato();
  const auto leave = test::RispondiMessaggio("cmdYes");
  QTimer::singleShot(0, hub, [this] { hub->close(); });
  Clic("cmdPlayMp3");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !b.Schermi.Mostrate.empty(); }));
  const auto told = Told();
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.back(), "2 Close") << "nothing plays on";
}

TEST_F(Listening, GoesOnDuringARecording) {
  ApriConAssegnato();
  Spunta(1);
  Told();
  servizi.SuRegistra = [this] { Clic("cmdMp3Preview_Play"); };
  Clic("picRecordFlash");
  EXPECT_THAT(Told(), testing::Contains("2 Play"));
}

TEST_F(Listening, ARefusedFileIsSaidToBeSilent) {
  b.Suono.SuOpen = Error(errors::TypeMismatch);
  ApriConAssegnato();
  Clic("cmdPlayMp3");
  EXPECT_EQ(Play().accessibleName().toStdString(), "Play, silent");
  EXPECT_TRUE(Play().toolTip().startsWith(QStringLiteral("Nothing is heard"))) << "and why";
  b.Suono.SuOpen = {};
  Clic("cmdPlayMp3");
  EXPECT_EQ(Play().accessibleName().toStdString(), "Play, playing");
  ScegliFile(" ");
  EXPECT_EQ(Play().toolTip().toStdString(), "Pick a file to listen to");
}

TEST_F(Listening, AnAssignedFileOfWhichOnlyTheProjectsCopyIsLeftIsSaidToBeSilent) {
  ApriConAssegnato();
  Spunta(1);
  std::filesystem::rename(b.Cartella.Host() / "music/b.mp3",
                          b.Cartella.Host() / "program/Projects/Hall/b.mp3");
  b.Suono.SuOpen = Error(errors::FileNotFound);
  Told();
  Clic("cmdMp3Preview_Play");
  EXPECT_THAT(Told(), testing::Contains("2 Open " + Music() + "b.mp3")) << "where it came from";
  EXPECT_EQ(Name(PlayAssigned()), "Listen, silent");
}

TEST_F(Listening, ATickThatSilencesLeavesTheFocusOnTheButtonThatIsStillThere) {
  b.AggiungiRiga("inputcfg.mdb", 1, 3, "a.mp3", Music(), "3.mp3");
  ApriConAssegnato();
  Spunta(1);
  Clic("cmdMp3Preview_Play");
  ASSERT_TRUE(PlayAssigned().hasFocus());
  Clic("lblIn_2");  // which takes no focus
  EXPECT_EQ(Testo("lblFileAssociato"), "Plays: a.mp3");
  EXPECT_TRUE(PlayAssigned().hasFocus());
  auto& list = Trova<QWidget>("cmbFileMp3");
  QMetaObject::invokeMethod(
      &list, [&list] { list.setFocus(); }, Qt::QueuedConnection);
  Clic("lblIn_2");
  EXPECT_TRUE(list.hasFocus()) << "where the user went meanwhile";
  PlayAssigned().setFocus();
  Clic("lblIn_2");
  Clic("lblIn_3");  // these three have no file
  EXPECT_FALSE(PlayAssigned().isVisible());
  Clic("lblIn_3");
  EXPECT_FALSE(PlayAssigned().hasFocus()) << "it was taken elsewhere before";
}

TEST_F(Listening, AHostWithoutSoundLeavesEverythingUsable) {
  b.Suono.SuOpen = Error(errors::DeviceUnavailable);
  ApriConAssegnato();
  Clic("cmdPlayMp3");
  EXPECT_EQ(Name(Play()), "Play, silent") << "until the next stop";
  Clic("cmdStopMp3");
  EXPECT_FALSE(Plays(Play()));
  Spunta(1);
  Clic("cmdMp3Preview_Play");
  Spunta(2);
  EXPECT_FALSE(Plays(PlayAssigned()));
  ScegliFile("a.mp3");
  Conferma();
  EXPECT_EQ(Riga(3), "a.mp3|" + Music() + "|3.mp3|1");
}

}  // namespace
}  // namespace kvr5
