#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "playerconfig/screens/BancoHub.h"

namespace kvr5 {
namespace {

using test::RispondiMessaggio;
using test::RispondiSoloOk;

/// The hub of a KVR5 with music, whose "Save" and "Report" are pressed.
class SavingHub : public test::HubConMusica {
 protected:
  /// Answers the closing message, and remembers it.
  auto Closing() {
    return RispondiMessaggio("cmdOk", [this](const QString& title, const QString& text) {
      closing_ = title.toStdString() + ": " + text.toStdString();
    });
  }
  Coppia::Genere Kind(const char* name) { return Trova<Coppia>(name).GenereOra(); }
  void ChangeVolume() {
    Trova<QSlider>("sliVolume").setFocus();
    test::Tasto(*hub, Qt::Key_Up);
  }
  std::filesystem::path Project() const { return b.Cartella.Host() / "program/Projects/Hall"; }
  std::string closing_;
};

TEST_F(SavingHub, WritesWhatTheControlsShowAndTheSignOfUnsavedSettingsGoes) {
  Apri();
  ChangeVolume();
  EXPECT_TRUE(SiVede("lblNonSalvato"));
  EXPECT_EQ(Kind("picSave"), Coppia::Genere::Primario);
  EXPECT_EQ(Kind("picRecordFlash"), Coppia::Genere::Normale);
  {
    const auto box = Closing();
    Clic("picSave");
  }
  EXPECT_EQ(b.Schermi.Domande, 1);
  EXPECT_EQ(closing_, "Project: Saved.");
  EXPECT_NE(Config().find("LOUT=15\r\n"), std::string::npos);
  EXPECT_TRUE(std::filesystem::exists(Project() / "Hall.htm"));
  EXPECT_FALSE(SiVede("lblNonSalvato"));
  EXPECT_EQ(Kind("picSave"), Coppia::Genere::Normale);
  EXPECT_EQ(Kind("picRecordFlash"), Coppia::Genere::Primario);
}

TEST_F(SavingHub, IsAtRestAfterASaveThatWasGivenUp) {
  Apri();
  ChangeVolume();
  const std::string before = Config();
  b.Schermi.AnnullaSalvataggio = true;
  Clic("picSave");
  EXPECT_TRUE(hub->AnnullaSalvataggio);
  EXPECT_EQ(Config(), before);
  EXPECT_TRUE(SiVede("lblNonSalvato"));
  b.Schermi.AnnullaSalvataggio = false;
  const auto box = Closing();
  Clic("picSave");
  EXPECT_FALSE(hub->AnnullaSalvataggio);
}

TEST_F(SavingHub, LeavesTheBoxOfThePersistenceTimeFirst) {
  Apri();
  auto& field = Trova<QLineEdit>("lstTPCM");
  field.setFocus();
  field.selectAll();
  test::Scrivi(*hub, QStringLiteral("300"));
  const auto box = Closing();
  Clic("picSave");
  EXPECT_NE(Config().find("TPCM=255\r\n"), std::string::npos) << Config();
}

TEST_F(SavingHub, CopiesTheFilesOfTheInputsWhereTheQuestionIsAnsweredSo) {
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  Conferma();
  b.C.Stato.SalvaMp3Ingressi = true;
  const auto box = Closing();
  Clic("picSave");
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/a.mp3", "music/a.mp3"));
}

TEST_F(SavingHub, AMissingFileIsNamedAndTheRestIsSaved) {
  Apri(0);
  Spunta(1);
  ScegliFile("b.mp3");
  Conferma();
  std::filesystem::remove(b.Cartella.Host() / "music/b.mp3");
  ChangeVolume();
  QString told;
  {
    const auto box = RispondiSoloOk([&](const QString&, const QString& text) { told = text; });
    Clic("picSave");
  }
  EXPECT_TRUE(told.endsWith(QStringLiteral(":\nb.mp3"))) << told.toStdString();
  EXPECT_FALSE(SiVede("lblNonSalvato"));
}

TEST_F(SavingHub, AsksNothingOnAPlayerWithoutInputs) {
  b.CreaProgetto("Lists", 4, 5);
  Apri();
  const auto box = Closing();
  Clic("picSave");
  EXPECT_EQ(b.Schermi.Domande, 0);
}

TEST_F(SavingHub, IsNotBegunTwice) {
  Apri();
  b.Schermi.SuDomanda = [this] {
    Clic("picSave");
    Clic("picReport");
    Clic("picRecordFlash");
  };
  const auto box = Closing();
  Clic("picSave");
  EXPECT_EQ(b.Schermi.Domande, 1);
  EXPECT_EQ(servizi.Registrazioni, 0);
  EXPECT_TRUE(b.Documenti.Aperti.empty());
}

TEST_F(SavingHub, AFailureIsToldWhateverTheUserDoesMeanwhile) {
  b.Schermi.SuScegliScheda = [this] { b.C.Errore.Clear(); };  // as a look at a drive does
  const std::vector<std::function<void()>> deeds{
      [this] { Spunta(1); },  // which looks a row up, with an error of its own
      [this] { Clic("cmdScegliScheda"); }};
  std::filesystem::permissions(Project() / "Config.txt", std::filesystem::perms::owner_read);
  Apri();
  for (const auto& deed : deeds) {
    ChangeVolume();
    bool done = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, hub, [&] {
      if (done || !b.C.Errore) return;
      done = true;
      deed();
    });
    b.Schermi.SuDomanda = [&] { watch.start(0); };
    const auto box = RispondiMessaggio(
        "cmdOk", [&](const QString&, const QString& text) { closing_ = text.toStdString(); });
    Clic("picSave");
    EXPECT_TRUE(done);
    EXPECT_EQ(std::exchange(closing_, {}),
              "This step could not be completed\nN°:75\nPath/File access error");
  }
}

TEST_F(SavingHub, ShowsTheReportOfWhatIsSaved) {
  Apri();
  ChangeVolume();
  Clic("picReport");
  ASSERT_EQ(b.Documenti.Aperti.size(), 1U);
  EXPECT_EQ(b.Documenti.Aperti[0], b.Percorso("program/Projects/Hall/Hall.htm"));
  EXPECT_NE(b.Cartella.Read("program/Projects/Hall/Hall.htm").find("LOUT=14<BR>"),
            std::string::npos);
  EXPECT_FALSE(test::PuntatoreOccupato());
  EXPECT_TRUE(SiVede("lblNonSalvato")) << "a report saves nothing";
}

TEST_F(SavingHub, KeepsTheInputsThatAreTickedThroughSaveAndReport) {
  Apri(0);
  Spunta(1);
  ScegliFile("a.mp3");
  Conferma();
  Spunta(3);
  ScegliFile("b.mp3");
  Conferma();
  b.C.Stato.SalvaMp3Ingressi = false;
  {
    const auto box = Closing();
    Clic("picSave");
  }
  Clic("picReport");
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 5.mp3");
  EXPECT_EQ(Testo("lblFileAssociato"), "Plays: b.mp3");
  ScegliFile("L'été.mp3");
  Conferma();
  EXPECT_EQ(Righe(), 2) << "the row of the ticked inputs was overwritten, not another one";
  EXPECT_TRUE(Riga(5).starts_with("L'été.mp3|"));
}

}  // namespace
}  // namespace kvr5
