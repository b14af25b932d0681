#include <gtest/gtest.h>

#include <QListWidget>
#include <QTimer>

#include "core/screens/RiquadroMessaggio.h"
#include "road/screens/BancoGuasti.h"

// The hub's other controls live on while a recording is under way.

namespace kvr5 {
namespace {

class RecordingAtWork : public test::Guasti {
 protected:
  void SetUp() override {
    Guasti::SetUp();
    CreaHall();
    ScegliScheda();
    hub_ = &Hub();
  }
  /// Records onto a card without the files, and does something at that turn of the event loop;
  /// false when the recording was over before.
  bool RecordAnd(int beat, const std::function<void()>& something) {
    for (const char* file : {"card/1.mp3", "card/5.mp3"}) std::filesystem::remove(Host(file));
    int left = beat;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
      if (left-- != 0) return;
      hub_->activateWindow();  // as a click on it does; the progress window had come to the front
      something();
    });
    watch.start(0);
    told_ = Registra();
    return left < 0;
  }
  std::vector<std::string> Shown() {
    std::vector<std::string> rows;
    const QListWidget& list = *Hub().Assegnazioni->lstAssegnati;
    for (int row = 0; row < list.count(); ++row)
      rows.push_back(list.item(row)->text().toStdString());
    return rows;
  }

  frmPlayerConfig* hub_ = nullptr;
  std::string told_;  // the boxes of the last recording
};

TEST_F(RecordingAtWork, AFileConfirmedMeanwhileIsKeptAndShownOrNeither) {
  const std::vector<std::string> without{"1   IN1   a.mp3", "5   IN1+IN3   b.mp3"};
  const std::vector<std::string> with{"1   IN1   a.mp3", "2   IN2   c.mp3", "5   IN1+IN3   b.mp3"};
  int met = 0;
  for (int beat = 0; beat < 25; ++beat) {
    SCOPED_TRACE(beat);
    met += RecordAnd(beat, [this] { Assegna({2}, "c.mp3"); }) ? 1 : 0;
    EXPECT_EQ(told_, "");
    ASSERT_EQ(Shown(), Riga(2).empty() ? without : with);
    EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/b.mp3"));
    Assegna({2}, " ");
    ASSERT_EQ(Shown(), without);
  }
  EXPECT_GT(met, 5);
}

TEST_F(RecordingAtWork, ALookAtAnotherInputMeanwhileShowsItsFile) {
  for (int beat = 0; beat < 25; ++beat) {
    SCOPED_TRACE(beat);
    if (!Hub().fraIngressiLogici->chkIn[0]->isChecked()) test::Clicca(Hub(), "chkIn_1");
    RecordAnd(beat, [this] { test::Clicca(Hub(), "chkIn_3"); });
    EXPECT_EQ(told_, "");
    const bool both = Hub().fraIngressiLogici->chkIn[2]->isChecked();
    EXPECT_EQ(test::Scritta(Hub(), "lblFileAssociato"), both ? "Plays: b.mp3" : "Plays: a.mp3");
    EXPECT_EQ(Hub().fraFileName->Scelto(), both ? "b.mp3" : "a.mp3") << "what Confirm would take";
  }
}

TEST_F(RecordingAtWork, ListeningMeanwhilePlaysTheFileOrLeavesItSilent) {
  const auto play = [this] { test::Clicca(Hub(), "cmdMp3Preview_Play"); };
  const auto name = [this] {
    return Hub().fraIngressiLogici->cmdMp3Preview_Play->accessibleName();
  };
  if (!Hub().fraIngressiLogici->chkIn[0]->isChecked()) test::Clicca(Hub(), "chkIn_1");
  play();
  const QString played = name();
  ASSERT_EQ(played, "Listen, playing");
  int met = 0;
  for (int beat = 0; beat < 25; ++beat) {
    SCOPED_TRACE(beat);
    test::Clicca(Hub(), "cmdMp3Preview_Stop");
    ASSERT_EQ(name(), "Listen");
    met += RecordAnd(beat, play) ? 1 : 0;
    EXPECT_EQ(told_, "");
    EXPECT_TRUE(name() == "Listen" || name() == played) << name().toStdString();
    EXPECT_TRUE(b.Cartella.Same("card/1.mp3", "music/a.mp3"));
    EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/b.mp3"));
    play();
    EXPECT_EQ(name(), played) << "the row is found again";
  }
  EXPECT_GT(met, 5);
}

TEST_F(RecordingAtWork, AFileTakenAwayMeanwhileIsGoneOrStillShown) {
  const auto rows = [this] { return Riga(1).empty() ? 1U : 2U; };
  for (int beat = 0; beat < 12; ++beat) {
    SCOPED_TRACE(beat);
    RecordAnd(beat, [&] {
      Assegna({1}, " ");
      EXPECT_EQ(Hub().fraIngressiLogici->fraFileAssociato->isVisible(), !Riga(1).empty());
    });
    EXPECT_EQ(Shown().size(), rows());
    Assegna({1}, "a.mp3");
    ASSERT_EQ(Shown().size(), 2U);
  }
}

TEST_F(RecordingAtWork, LeavingMeanwhileComesAfterItAndTheCardIsWhole) {
  const test::Pilota<RiquadroMessaggio> yes([this](RiquadroMessaggio& box) {
    EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/b.mp3"));
    test::Clicca(box, "cmdYes");
  });
  int left = 3;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
    if (left-- != 0) return;
    hub_->activateWindow();
    test::Clicca(Hub(), "picEsci");
  });
  watch.start(0);
  Clic("frmPlayerConfig", "picRecordFlash");
  Schermo("frmMain");
}

TEST_F(RecordingAtWork, EveryButtonOfTheHubCanBePressedMeanwhile) {
  for (int beat = 0; beat < 8; ++beat) {
    SCOPED_TRACE(beat);
    RecordAnd(beat, [this] { PremiTutto(); });
    ASSERT_TRUE(Hub().isVisible() && Hub().isEnabled());
  }
  LasciaHall();
}

}  // namespace
}  // namespace kvr5
