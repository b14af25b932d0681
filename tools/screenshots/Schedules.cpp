#include <QApplication>
#include <QHeaderView>

#include "Photographer.h"
#include "core/Aiuti.h"
#include "projects/CartellaProgetto.h"

namespace shots {
namespace {

constexpr const char* kScheduleEditor = "frmPalinsesto";

void Run(kvr5::Connection& connection, const std::string& statement) {
  kvr5::Ignora(connection.Execute(statement));
}

/// A day with something of each kind: two segments that start together, one without spots, one with
/// a file that has gone, one with all its places used.
void FillDay(Photographer& camera, int day, int hour, bool whole) {
  kvr5::Connection connection(camera.C().Files);
  if (connection.Open(kvr5::FileDelProgetto(camera.C(), "scheduler.mdb"))) return;
  kvr5::Recordset newest;
  const std::string folder = camera.Music() + "\\";
  const auto segment = [&](const std::string& time, std::initializer_list<const char*> names) {
    Run(connection, "INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(" + std::to_string(day) +
                        ",#" + time + "#)");
    newest.Close();
    if (newest.Open(connection, "SELECT TOP 1 * FROM [HEAD] ORDER BY ID DESC")) return;
    int pos = 0;
    for (const char* name : names) {
      Run(connection,
          "INSERT INTO [List] ([Pos],[FileName],[FilePath],[NPlaylist],[IDSched]) VALUES(" +
              std::to_string(++pos) + ",'" + name + "','" + folder + "'," + std::to_string(day) +
              "," + newest.Text("ID") + ")");
    }
  };
  const auto at = [&](int hours, const char* minutes) {
    return kvr5::RiempiZeri(std::to_string(hour < 0 ? 0 : hour + hours), 2) + "." + minutes;
  };
  segment(at(0, "30"), {"welcome.mp3", "gong.mp3", "door.mp3"});
  if (!whole) return;
  segment(at(1, "00"), {"gone.mp3"});
  segment(at(1, "00"), {"welcome.mp3"});
  segment(at(2, "15"), {});
  segment(at(6, "45"), {"gong.mp3", "gong.mp3", "gong.mp3", "door.mp3", "door.mp3", "door.mp3",
                        "welcome.mp3", "gong.mp3"});
}

kvr5::frmPalinsesto& OpenScheduleEditor(Photographer& camera, bool filled) {
  camera.Program().ApriPalinsesto(kvr5::Schermata::Nessuna);
  auto& editor = OnScreen<kvr5::frmPalinsesto>();
  editor.fraFile->DirDirectoryMp3->ImpostaPercorso(camera.Music());
  WaitFor([&] {
    return filled ? editor.picDettaglio->lblTotaleSpot->text().contains(QLatin1Char(':'))
                  : editor.Segmenti->grdSegmenti->horizontalHeader()->sectionSize(0) > 0 &&
                        !editor.Segmenti->lblVociInElenco->text().isEmpty();
  });
  return editor;
}

void TakeScheduleStates(Photographer& camera, kvr5::frmPalinsesto& editor) {
  editor.fraFile->filMp3->setCurrentRow(3);
  WaitFor([&] { return editor.fraFileInfo->lblBadFileType->isVisible(); });
  editor.picDettaglio->SuFile(0, {camera.C().Files.HostPath(camera.Music() + "\\too-fast.mp3")});
  camera.Take(kScheduleEditor, QStringLiteral("frmPalinsesto-refused"));
  editor.resize(944, 500);  // what a screen of 1920x1080 has room for at 200 %
  camera.Take(kScheduleEditor, QStringLiteral("frmPalinsesto-small"));
  editor.resize(1200, 720);
}

}  // namespace

void TakeSchedules(Photographer& camera) {
  camera.Project("Clock", 4, 2);
  OpenScheduleEditor(camera, false);
  camera.Take(kScheduleEditor, QStringLiteral("frmPalinsesto-empty"));
  Leave<kvr5::frmPalinsesto>();
  FillDay(camera, 0, -1, true);
  OpenScheduleEditor(camera, true);
  camera.Take(kScheduleEditor, QStringLiteral("frmPalinsesto-4-2"));
  camera.TakeModal("frmSiNo", QStringLiteral("frmSiNo-segment"),
                   [] { OnScreen<kvr5::frmPalinsesto>().Segmenti->picRimuoviSegmento->click(); });
  Leave<kvr5::frmPalinsesto>();
  camera.Project("Station-day", 3, 2);
  FillDay(camera, 0, 8, true);
  OpenScheduleEditor(camera, true);
  camera.Take(kScheduleEditor, QStringLiteral("frmPalinsesto-3-2"));
  Leave<kvr5::frmPalinsesto>();
  camera.Project("Station-week", 3, 3);
  for (int day = 1; day <= 7; ++day) FillDay(camera, day, 6 + day, day % 2 == 1);
  auto& week = OpenScheduleEditor(camera, true);
  camera.Take(kScheduleEditor, QStringLiteral("frmPalinsesto-3-3"));
  TakeScheduleStates(camera, week);
  Leave<kvr5::frmPalinsesto>();
}

}  // namespace shots
