#include <QApplication>
#include <QElapsedTimer>

#include "Photographer.h"
#include "platform/db/Connection.h"
#include "projects/CartellaProgetto.h"

namespace shots {
namespace {

constexpr const char* kHub = "frmPlayerConfig";

void AssignFiles(Photographer& camera) {
  const std::string folder = camera.Music() + "\\";
  kvr5::TabellaIngressi inputs(camera.C());
  inputs.Apri();
  inputs.Assegna(1, "welcome.mp3", folder);
  inputs.Assegna(5, "door.mp3", folder);
  inputs.Assegna(12, "gone.mp3", folder);
  inputs.Assegna(128, "welcome.mp3", folder);
}

void ShowInputs(Photographer& camera) {
  kvr5::frmPlayerConfig& hub = OnScreen<kvr5::frmPlayerConfig>();
  hub.fraFileName->DirDirectoryMp3->ImpostaPercorso(camera.Music());
  hub.fraIngressiLogici->chkIn[0]->click();
  hub.fraIngressiLogici->chkIn[2]->click();
}

/// What the hub counts while nothing else is to be done is there.
void LetItCount(const kvr5::frmPlayerConfig& hub) {
  constexpr qint64 kPatience = 5000;  // milliseconds
  QElapsedTimer watch;
  watch.start();
  while (!hub.Scheda->picSpazio->isVisible() && watch.elapsed() < kPatience) {
    QCoreApplication::processEvents();
  }
}

/// The project of inputs once more: a file that the player can't play, a card, a file that lies in
/// another folder, unsaved settings.
void TakeHubStates(Photographer& camera) {
  camera.Project("Museum-Hall-3", 4, 1);
  AssignFiles(camera);
  camera.C().Stato.PercorsoMemoryCard = "E:\\";
  camera.Program().ApriConfigurazione(1);
  kvr5::frmPlayerConfig& hub = OnScreen<kvr5::frmPlayerConfig>();
  ShowInputs(camera);
  hub.fraFileName->Scegli("too-fast.mp3");
  camera.Take(kHub, QStringLiteral("frmPlayerConfig-refused"));
  hub.fraIngressiLogici->chkIn[2]->click();
  camera.Program().AggiornaPercorsoMemoryCard();
  LetItCount(hub);
  camera.Take(kHub, QStringLiteral("frmPlayerConfig-card"));
  hub.fraFileName->DirDirectoryMp3->ImpostaPercorso(camera.Music() + "\\Jazz");
  hub.fraIngressiLogici->chkIn[2]->click();
  camera.Take(kHub, QStringLiteral("frmPlayerConfig-elsewhere"));
  hub.fraOutputLevel->sliVolume->setValue(3);
  camera.Take(kHub, QStringLiteral("frmPlayerConfig-unsaved"));
  hub.resize(944, 500);  // what a screen of 1920x1080 has room for at 200 %
  camera.Take(kHub, QStringLiteral("frmPlayerConfig-small"));
  camera.Program().DimenticaConfigurazione();
  camera.C().Stato.PercorsoMemoryCard.clear();
}

/// Playlists of another computer, whose files are to be found again.
void TakeMissing(Photographer& camera) {
  camera.Project("Shop-of-old", 4, 5);
  kvr5::Connection tracks(camera.C().Files);
  kvr5::Ignora(tracks.Open(kvr5::FileDelProgetto(camera.C(), "playlist.mdb")));
  for (const char* name : {"welcome.mp3", "gong.mp3", "door.mp3"}) {
    kvr5::Ignora(tracks.Execute(std::string("INSERT INTO [LIST] ([Pos],[FileName],[FilePath],"
                                            "[NPlaylist]) VALUES(1,'") +
                                name + "','D:\\Musica\\',1)"));
  }
  tracks.Close();
  camera.Program().ApriConfigurazione(1);
  const kvr5::frmPlayerConfig& hub = OnScreen<kvr5::frmPlayerConfig>();
  WaitFor([&hub] { return hub.Pannello->picTrovaBrani->isVisible(); });
  camera.Take(kHub, QStringLiteral("frmPlayerConfig-missing"));
  camera.Program().DimenticaConfigurazione();
}

}  // namespace

void TakeHubs(Photographer& camera) {
  struct Kind {
    const char* Name;
    std::int16_t Type, Mode;
  };
  for (const auto& kind : {Kind{"Museum-Hall-2", 4, 1}, Kind{"Station", 4, 2}, Kind{"Shop", 4, 5},
                           Kind{"Old-Gallery", 1, 0}, Kind{"Lift-A", 2, 0}, Kind{"Tower", 3, 2}}) {
    camera.Project(kind.Name, kind.Type, kind.Mode);
    if (kind.Type == 4 && kind.Mode == 1) AssignFiles(camera);
    camera.Program().ApriConfigurazione(1);
    if (kind.Mode < 2) ShowInputs(camera);
    camera.Take(kHub, QStringLiteral("frmPlayerConfig-%1-%2").arg(kind.Type).arg(kind.Mode));
    camera.Program().DimenticaConfigurazione();
  }
  TakeHubStates(camera);
  TakeMissing(camera);
}

}  // namespace shots
