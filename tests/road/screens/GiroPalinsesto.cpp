// The walk past the editor of the schedule.

#include <QTest>

#include "platform/db/Connection.h"
#include "projects/CartellaProgetto.h"
#include "road/screens/GiroSchermi.h"
#include "road/screens/ManoPalinsesto.h"
#include "support/screens/Mano.h"

namespace kvr5::test {

std::unique_ptr<frmPalinsesto> GiroSchermi::Palinsesto() {
  auto editor = std::make_unique<frmPalinsesto>(b.A, servizi_.Progresso());
  editor->Mostra();
  EXPECT_TRUE(Pronta(*editor));
  // The day comes with the first timer, the figures of its files after that.
  const auto shown = [&editor] {
    const bool counted = editor->Editor().QuantiSpot() == 0 ||
                         editor->picDettaglio->lblTotaleSpot->text().contains(QLatin1Char(','));
    return !editor->tmrIniziale.isActive() && !editor->tmrAggiornaLayout.isActive() && counted;
  };
  EXPECT_TRUE(QTest::qWaitFor(shown)) << editor->picDettaglio->lblTotaleSpot->text().toStdString();
  return editor;
}

void GiroSchermi::Segmento(int giorno, const std::string& ora) {
  Connection real(b.Disco);
  ASSERT_FALSE(real.Open(FileDelProgetto(b.C, "scheduler.mdb")));
  ASSERT_FALSE(real.Execute("INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(" +
                            std::to_string(giorno) + ",#" + ora + "#)"));
}

void GiroSchermi::Spot(int giorno, int segmento, int pos, const std::string& nome) {
  b.AggiungiRiga("scheduler.mdb", giorno, pos, nome, b.Percorso("music") + "\\", "", segmento);
}

void GiroSchermi::NelPalinsesto() {
  Progetto("Schedule of days", 3, 3);
  Vedi(*Palinsesto(), "frmPalinsesto, empty");
  Segmento(1, "08.30");
  Vedi(*Palinsesto(), "frmPalinsesto, no spot yet");
  Spot(1, 1, 1, "welcome.mp3");
  Spot(1, 1, 2, "gone.mp3");
  Spot(1, 1, 3, std::string(200, 'W') + ".mp3");
  // Two that start together, behind the selected one: leaving its time tells nothing.
  Segmento(1, "23.59");
  Segmento(1, "23.59");
  Spot(1, 2, 1, "welcome.mp3");
  Segmento(7, "12.00");
  for (int pos = 1; pos <= 8; ++pos) Spot(7, 4, pos, "door.mp3");
  const auto editor = Palinsesto();
  ASSERT_TRUE(QTest::qWaitFor([&editor] { return editor->Segmenti->lblAvvisi->isVisible(); }))
      << "a file stands in several spots";
  Vedi(*editor, "frmPalinsesto");
  editor->picSettimana->SuSegmento(7, 4);
  ASSERT_EQ(editor->Editor().QuantiSpot(), 8);
  Vedi(*editor, "frmPalinsesto, all slots used");
}

void GiroSchermi::NelPalinsestoInUso() {
  Progetto("Schedule in use", 3, 2);
  Segmento(0, "08.30");
  Spot(0, 1, 1, "welcome.mp3");
  const auto editor = Palinsesto();
  CliccaFile(*editor, "door.mp3");
  ASSERT_TRUE(editor->Editor().FileMp3Valido);
  Vedi(*editor, "frmPalinsesto with a file picked");
  Clicca(*editor->picDettaglio->picAggiungiSpot[1]);
  ASSERT_FALSE(editor->lblModifiche->text().isEmpty());
  Vedi(*editor, "frmPalinsesto unsaved");
  CliccaFile(*editor, "48k.mp3");
  ASSERT_TRUE(editor->fraFileInfo->lblBadFileType->isVisible());
  Vedi(*editor, "frmPalinsesto with a refused file");
  editor->picDettaglio->SuFile(2, {(b.Cartella.Host() / "music/48k.mp3").string()});
  ASSERT_TRUE(editor->picDettaglio->lblEsito->isVisible());
  Vedi(*editor, "frmPalinsesto after a drop");
  Clicca(*editor->Segmenti->picAggiungiSegmento);
  ASSERT_TRUE(editor->picDettaglio->txtOre->hasFocus());
  Vedi(*editor, "frmPalinsesto with a new segment");
}

void GiroSchermi::NegliAltriPalinsesti() {
  Progetto("Schedule with copies", 3, 2);
  Segmento(0, "08.30");
  b.ScriviMp3("program/Projects/Schedule with copies/F0-0011.mp3", 1, 40);
  b.AggiungiRiga("scheduler.mdb", 0, 1, "welcome.mp3",
                 b.Percorso("program/Projects/Schedule with copies") + "\\", "F0-0011.mp3", 1);
  {
    const auto copies = Palinsesto();
    ASSERT_TRUE(QTest::qWaitFor([&copies] { return copies->Segmenti->picNomiCopie->isVisible(); }));
    Vedi(*copies, "frmPalinsesto with copies in the project");
  }
  Progetto("Schedule of one hour", 4, 2);
  Vedi(*Palinsesto(), "frmPalinsesto of a KVR5, empty");
  Segmento(0, "00.10");
  Spot(0, 1, 1, "welcome.mp3");
  Spot(0, 1, 2, "door.mp3");
  Vedi(*Palinsesto(), "frmPalinsesto of a KVR5");
  b.C.Stato.UsaPlayerEsterno = true;
  Vedi(*Palinsesto(), "frmPalinsesto with another player");
  b.C.Stato.UsaPlayerEsterno = false;
  b.Cartella.Write("program/Projects/Schedule of one hour/scheduler.mdb", "no database");
  const auto editor = Palinsesto();
  ASSERT_FALSE(editor->picSave->isEnabled());
  Vedi(*editor, "frmPalinsesto that can't be read");
}

}  // namespace kvr5::test
