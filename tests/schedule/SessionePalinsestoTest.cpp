#include <random>

#include "schedule/BancoSalvaPalinsesto.h"
#include "schedule/ModelloPalinsesto.h"
#include "schedule/OrarioSegmento.h"

namespace kvr5 {
namespace {

/// A session of a user who presses anything, on a project that holds something at its beginning.
struct Session {
  unsigned Seed;
  std::int16_t Type;
  std::int16_t Mode;
  int Segments;  ///< of its first day
  int Spots;     ///< of its first day, in no segment
};

class RandomScheduleSession : public test::BancoSalvaPalinsesto,
                              public testing::WithParamInterface<Session> {
 protected:
  void SetUp() override {
    Progetto(GetParam().Type, GetParam().Mode);
    MoltiSegmenti(model.day, GetParam().Segments);
    for (int i = 0; i < GetParam().Segments; ++i) model.NewSegment(model.day, i);
    MoltiSpot(model.day, kNowhere, GetParam().Spots);
    for (int i = 1; i <= GetParam().Spots; ++i) model.NewRow(model.day, kNowhere, i, "x.mp3");
    Apri();
    model.First();
  }
  bool ByDay() const { return GetParam().Mode == 3; }
  int Below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  bool OneIn(int n) { return Below(n) == 0; }

  void AddSegment() {
    const bool added = model.Add();
    AggiungiSegmento(editor);
    if (!added) {
      const std::string number = GetParam().Type == 3 ? " 128)" : " 60)";
      Avviso(Parola("0140025") + number, Parola("0140026"));
    }
  }
  void Duplicate() {
    if (model.selected == 0) return;
    model.Duplicate();
    DuplicaSegmento(editor);
    Avviso(Parola("0140038"), Parola("0140039"));
  }
  void Remove() {
    if (model.selected == 0) return;
    const bool yes = !OneIn(3);
    const std::string time = model.Clock(model.Selected()->Minutes, '.');
    if (yes) model.Remove();
    b.Finestre.Rispondi(yes ? Risposta::Si : Risposta::No);
    RimuoviSegmento(editor);
    EXPECT_EQ(b.Finestre.Prossimo().Testo, Parola("0140019") + " " + time + "?");
  }
  void ChangeTime() {
    if (model.selected == 0) return;
    const bool hours = GetParam().Type == 3 && OneIn(2);
    const int typed = Below(100);
    const bool noNumber = OneIn(9);
    int minutes = model.Selected()->Minutes;
    if (hours) {
      minutes = minutes % 60 + (noNumber || typed >= 24 ? 0 : typed * 60);
      editor.txtOre = noNumber ? "" : std::to_string(typed);
      LasciaOre(editor);
    } else {
      minutes = minutes / 60 * 60 + (noNumber || typed >= 60 ? 0 : typed);
      editor.txtMin = noNumber ? "x" : std::to_string(typed);
      LasciaMin(editor);
    }
    if (model.Time(minutes)) {
      Avviso(Parola("0140020"), Parola("0140021") + " (" + model.Clock(minutes, '.') + ")");
    }
  }
  void AddSpot() {
    const int slot = Below(8);
    const std::string name = "f" + std::to_string(Below(30)) + ".mp3";
    const bool valid = !OneIn(5);
    const int used = static_cast<int>(model.Detail().size());
    EsitoSpot expected = EsitoSpot::Pieno;
    if (model.OnDay() < 500) {
      expected = EsitoSpot::NonValido;
      if (valid && model.selected > 0 && slot <= used) {
        expected = model.Put(slot, name) ? EsitoSpot::Aggiunto : EsitoSpot::NonScritto;
      }
    }
    editor.FileMp3Valido = valid;
    EXPECT_EQ(AggiungiSpot(editor, slot, "C:\\Music", name), expected);
    if (expected == EsitoSpot::Pieno) Avviso(Parola("0140013"), Parola("0140014"));
  }
  void RemoveSpot() {
    const int slot = Below(8);
    if (model.selected > 0) model.Drop(slot);
    RimuoviSpot(editor, slot);
  }
  void MoveSpot() {
    const int slot = Below(8);
    const bool down = OneIn(2);
    model.Move(slot, down);
    SpostaSpot(editor, slot, down);
  }
  void ChangeDay() {
    const int day = 1 + Below(OneIn(4) ? 7 : 2);
    if (ByDay()) model.Day(day);
    editor.ScegliGiorno(static_cast<std::int16_t>(day));
  }
  void Select() {
    const auto segments = model.OfDay();
    if (segments.empty()) return;
    model.selected =
        segments.at(static_cast<std::size_t>(Below(static_cast<int>(segments.size())))).Id;
    EXPECT_TRUE(editor.VaiAlSegmento(model.selected));
  }
  void Step() {
    const int choice = Below(20);
    if (choice < 2) return AddSegment();
    if (choice == 2) return Duplicate();
    if (choice == 3) return OneIn(2) ? Remove() : Select();
    if (choice < 6) return ChangeTime();
    if (choice < 11) return AddSpot();
    if (choice < 13) return RemoveSpot();
    if (choice < 16) return MoveSpot();
    if (choice < 18) return Select();
    ChangeDay();
  }

  Righe ExpectedGrid() {
    Righe grid;
    for (const auto& segment : model.OfDay()) {
      std::string row = model.Clock(segment.Minutes, ':') + ":00";
      std::string gap;
      for (int place = 1; place <= 8; ++place) {
        const auto spot = std::find_if(model.rows.begin(), model.rows.end(), [&](const auto& each) {
          return each.Day == model.day && each.Of == segment.Id && each.Pos == place;
        });
        gap += spot == model.rows.end() ? " -" : " " + spot->Name;
        if (spot != model.rows.end()) row += std::exchange(gap, "");
      }
      grid.push_back(row);
    }
    return grid;
  }
  Righe ExpectedRows() const {
    Righe all;
    for (const auto& each : model.rows) {
      all.push_back(std::to_string(each.Id) + " " + std::to_string(each.Day) + "/" +
                    std::to_string(each.Of) + "/" + std::to_string(each.Pos) + " " + each.Name +
                    " " + each.Alias);
    }
    return all;
  }
  Righe Rows(const char* database) {
    return test::RigheDelDatabase(
        b, database, "SELECT * FROM [List] ORDER BY [ID]", [](const Recordset& row) {
          return row.Text("ID") + " " + row.Text("NPlaylist") + "/" + row.Text("IDSched") + "/" +
                 row.Text("Pos") + " " + row.Text("FileName") + " " + row.Text("Alias");
        });
  }
  Righe ExpectedSegments() const {
    Righe all;
    for (const auto& each : model.segs) {
      all.push_back(std::to_string(each.Id) + " " + std::to_string(each.Day) + " " +
                    model.Clock(each.Minutes, ':') + ":00");
    }
    return all;
  }
  void ExpectSame() {
    ASSERT_EQ(editor.SegmentoCorrente(), model.selected);
    ASSERT_EQ(editor.rsSegmenti().Number("ID"), model.selected);
    ASSERT_EQ(editor.GiornoCorrente(), model.day);
    const auto segments = static_cast<int>(model.OfDay().size());
    ASSERT_EQ(editor.lblVociInElenco(), Parola("0140024") + " : " + std::to_string(segments));
    if (model.selected > 0) {
      ASSERT_EQ(Orario(), model.Clock(model.Selected()->Minutes, '.'));
    }
    Righe detail;
    for (const auto* each : model.Detail())
      detail.push_back(std::to_string(each->Pos) + " " + each->Name);
    ASSERT_EQ(editor.Slot(), AggiornaSlotSpot(static_cast<int>(detail.size()), segments, false));
    ASSERT_EQ(editor.QuantiSpot(), static_cast<int>(detail.size()));
    if (model.selected > 0) {
      ASSERT_EQ(Dettaglio(), detail);
    }
    ASSERT_EQ(Griglia(), ExpectedGrid());
    ASSERT_TRUE(b.Finestre.Silenzio());
  }
  void ExpectSameDatabase(const char* database) {
    ASSERT_EQ(Segmenti(database), ExpectedSegments());
    ASSERT_EQ(Rows(database), ExpectedRows());
  }

  static constexpr std::int64_t kNowhere = 9999;
  test::ModelloPalinsesto model{GetParam().Mode == 3 ? 1 : 0, GetParam().Type == 4};

 private:
  std::mt19937 random_{GetParam().Seed};
};

TEST_P(RandomScheduleSession, AgreesWithAModelAndIsSavedAsTheModelSays) {
  for (int step = 0; step < 400; ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    Step();
    ASSERT_NO_FATAL_FAILURE(ExpectSame());
    if (step % 5 == 0) {
      ASSERT_NO_FATAL_FAILURE(ExpectSameDatabase("tmpScheduler.mdb"));
    }
  }
  SalvaAperto();
  model.Name();
  ExpectSameDatabase("scheduler.mdb");
  const auto lines = model.Lines(!ByDay());
  for (int day = ByDay() ? 1 : 0; day <= (ByDay() ? 7 : 0); ++day) {
    const auto found = lines.find(day);
    EXPECT_EQ(Leggi(ByDay() ? std::to_string(day) + ".pal" : "PALIN.TXT"),
              found == lines.end() ? "" : found->second)
        << day;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomScheduleSession,
                         testing::Values(Session{1, 3, 3, 0, 0}, Session{2, 3, 3, 5, 0},
                                         Session{3, 3, 2, 0, 0}, Session{4, 4, 2, 0, 0},
                                         Session{5, 4, 2, 60, 0}, Session{6, 3, 3, 60, 0},
                                         Session{7, 3, 2, 3, 490}, Session{8, 3, 3, 2, 499}),
                         [](const auto& each) {
                           return "Seed" + std::to_string(each.param.Seed) + "Model" +
                                  std::to_string(each.param.Type) + "Mode" +
                                  std::to_string(each.param.Mode);
                         });

}  // namespace
}  // namespace kvr5
