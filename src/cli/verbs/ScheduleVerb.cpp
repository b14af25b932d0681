#include <array>

#include "cli/EditingSession.h"
#include "cli/FileGiven.h"
#include "cli/verbs/Verb.h"
#include "core/Aiuti.h"
#include "core/ParoleCopia.h"
#include "mp3/Accettazione.h"
#include "platform/FileOps.h"
#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"
#include "projects/OraDelSegmento.h"
#include "schedule/OrarioSegmento.h"
#include "schedule/SalvaPalinsesto.h"
#include "schedule/Segmenti.h"
#include "schedule/Spot.h"

namespace kvr5::cli {
namespace {

using Words = std::vector<std::string>;

constexpr const char* kNoSegment = "no segment is selected";
constexpr const char* kNotWritten = "the working copy can't be written";

class ScheduleSession : public EditingCommands {
 public:
  explicit ScheduleSession(Session& session)
      : EditingCommands(session), editor_(session.Context()), reader_(session.Context().Files) {
    editor_.Carica();
    editor_.PrimoGiorno();
  }
  bool IsOpen() { return editor_.rsSegmenti().IsOpen(); }

 protected:
  Outcome Run(const Words& words) override;

 private:
  using Command = EditingCommand<ScheduleSession>;

  Contesto& Context() { return session_.Context(); }
  bool HasSegment() const { return editor_.SegmentoCorrente() > 0; }
  /// What `work` does with a slot, counted from 0; refused where there is no such slot. `occupied`:
  /// one that holds a spot.
  template <typename Work>
  Outcome WithSlot(const std::string& word, bool occupied, Work work);
  /// Runs a command that changes something; refused where nothing was.
  template <typename Work>
  Outcome Changing(Work work);
  /// The current row of the grid, and its spots.
  void ListSegment();
  Json SpotsOfCurrent();
  template <typename Visit>
  void WalkSpots(Visit visit);

  Outcome Day(const Words& words);
  Outcome List(const Words& words);
  Outcome SegmentAdd(const Words& words);
  Outcome SegmentSelect(const Words& words);
  Outcome SegmentCopy(const Words& words);
  Outcome SegmentRemove(const Words& words);
  Outcome Time(const Words& words);
  Outcome SpotAdd(const Words& words);
  Outcome SpotRemove(const Words& words);
  Outcome SpotUp(const Words& words);
  Outcome SpotDown(const Words& words);
  Outcome Report(const Words& words);
  Outcome Save(const Words& words);

  EditorPalinsesto editor_;
  modMp3Infos reader_;
};

Outcome ScheduleSession::Run(const Words& words) {
  using S = ScheduleSession;
  static constexpr std::array kCommands{Command{"day", 1, 1, &S::Day},
                                        Command{"list", 0, 0, &S::List},
                                        Command{"segment add", 0, 0, &S::SegmentAdd},
                                        Command{"segment select", 1, 1, &S::SegmentSelect},
                                        Command{"segment copy", 0, 0, &S::SegmentCopy},
                                        Command{"segment remove", 0, 0, &S::SegmentRemove},
                                        Command{"time", 2, 2, &S::Time},
                                        Command{"spot add", 2, 2, &S::SpotAdd},
                                        Command{"spot remove", 1, 1, &S::SpotRemove},
                                        Command{"spot up", 1, 1, &S::SpotUp},
                                        Command{"spot down", 1, 1, &S::SpotDown},
                                        Command{"report", 0, 0, &S::Report},
                                        Command{"save", 0, 0, &S::Save}};
  return RunCommand(*this, kCommands, words);
}

template <typename Work>
Outcome ScheduleSession::WithSlot(const std::string& word, bool occupied, Work work) {
  if (!IsWholeNumber(word)) return Outcome::Unknown;
  const auto slot = NumberOf(word, SlotSpot::kPosti);
  if (!slot || *slot < 1) return Refuse("a segment has the slots 1 to 8");
  if (!HasSegment()) return Refuse(kNoSegment);
  const int index = static_cast<int>(*slot) - 1;
  const bool used = index < editor_.QuantiSpot();
  if (occupied && !used) return Refuse("this slot is empty");
  // The routines go by Pos, which damage, or a duplicate's hidden spots, may have led astray.
  if (used && !VaiAlloSlot(editor_, index)) return Refuse("no spot of this segment has this place");
  return work(index);
}

template <typename Work>
Outcome ScheduleSession::Changing(Work work) {
  const int before = editor_.Modifiche();
  work();
  return editor_.Modifiche() > before ? Outcome::Done : Refuse(kNotWritten);
}

Outcome ScheduleSession::Day(const Words& words) {
  if (!IsWholeNumber(words[1])) return Outcome::Unknown;
  constexpr std::uint32_t kSunday = 7;
  const auto day = NumberOf(words[1], kSunday);
  if (!editor_.Disposizione().picFraDay) return Refuse("this project has one schedule");
  if (!day || *day < 1) return Refuse("the days are 1 (Monday) to 7 (Sunday)");
  editor_.ScegliGiorno(static_cast<std::int16_t>(*day));
  return Outcome::Done;
}

template <typename Visit>
void ScheduleSession::WalkSpots(Visit visit) {
  const Error failure = WalkRows(editor_.rsDettaglio(), [&] {
    visit();
    return true;
  });
  if (failure) session_.Out().Say("scheduler.mdb: " + failure.Description());
}

Json ScheduleSession::SpotsOfCurrent() {
  Json all = Json::array();
  auto& spots = editor_.rsDettaglio();
  WalkSpots([&] {
    Json spot;
    for (const char* column : {"ID", "Pos", "NPlaylist", "FileName", "FilePath", "Alias"}) {
      spot[column] = ValueOf(spots, column);
    }
    all.push_back(std::move(spot));
  });
  return all;
}

void ScheduleSession::ListSegment() {
  auto& out = session_.Out();
  auto& rows = editor_.rsSegmenti();
  const std::string time = OraConDuePunti(OraDa(rows.Text("StartTime")));
  if (out.IsJson()) {
    out.Object({{"ID", rows.Number("ID")},
                {"NScheduler", editor_.GiornoCorrente()},
                {"StartTime", time.empty() ? Json(nullptr) : Json(time)},
                {"Spots", SpotsOfCurrent()}});
    return;
  }
  out.Line((time.empty() ? "--:--" : time) + "  segment " + rows.Text("ID"));
  auto& spots = editor_.rsDettaglio();
  WalkSpots([&] {
    const std::string pos = spots.Text("Pos");
    const std::string path = AggiungiBarra(spots.Text("FilePath")) + spots.Text("FileName");
    out.Line("    " + (pos.empty() ? "-" : pos) + "  " + PercorsoPerPersone(Context(), path));
  });
}

Outcome ScheduleSession::List(const Words& /*words*/) {
  auto& rows = editor_.rsSegmenti();
  const std::int64_t current = editor_.SegmentoCorrente();
  int listed = 0;
  const Error failure = WalkRows(rows, [&] {
    editor_.RigaCambiata();
    ListSegment();
    ++listed;
    return true;
  });
  if (failure) session_.Out().Say("scheduler.mdb: " + failure.Description());
  editor_.VaiAlSegmento(current);
  if (session_.Out().IsJson()) {
    session_.Out().Object({{"end", "list"}, {"rows", listed}});
  }
  return Outcome::Done;
}

Outcome ScheduleSession::SegmentAdd(const Words& /*words*/) {
  const int before = editor_.QuantiSegmenti();
  if (before <= kSegmentiOltreCui && !IsOpen()) return Refuse("scheduler.mdb can't be read");
  AggiungiSegmento(editor_);
  const bool told = before > kSegmentiOltreCui;
  if (told || editor_.QuantiSegmenti() > before) return Outcome::Done;
  return Refuse(kNotWritten);
}

Outcome ScheduleSession::SegmentSelect(const Words& words) {
  if (!IsWholeNumber(words[2])) return Outcome::Unknown;
  const auto id = NumberOf(words[2], kHighestNumber);
  const std::int64_t current = editor_.SegmentoCorrente();
  if (id && editor_.VaiAlSegmento(*id)) return Outcome::Done;
  editor_.VaiAlSegmento(current);
  return Refuse("the day has no segment with this number");
}

Outcome ScheduleSession::SegmentCopy(const Words& /*words*/) {
  if (!HasSegment()) return Refuse(kNoSegment);
  return Changing([this] { DuplicaSegmento(editor_); });
}

Outcome ScheduleSession::SegmentRemove(const Words& /*words*/) {
  if (!HasSegment()) return Refuse(kNoSegment);
  constexpr std::uint8_t kYes = 1;
  const int before = editor_.Modifiche();
  RimuoviSegmento(editor_);
  const bool kept = editor_.Modifiche() == before && Context().Stato.RispostaSiNo == kYes;
  return kept ? Refuse(kNotWritten) : Outcome::Done;
}

Outcome ScheduleSession::Time(const Words& words) {
  if (!HasSegment()) return Refuse(kNoSegment);
  if (!editor_.Disposizione().OreBloccate) {
    editor_.txtOre = DigitatoSopra(editor_.txtOre, words[1]);
    LasciaOre(editor_);
  }
  editor_.txtMin = DigitatoSopra(editor_.txtMin, words[2]);
  return LasciaMin(editor_) ? Outcome::Done : Refuse(kNotWritten);
}

Outcome ScheduleSession::SpotAdd(const Words& words) {
  return WithSlot(words[2], false, [&](int slot) {
    if (slot > editor_.QuantiSpot()) return Refuse("a slot before this one is free");
    const FileGiven given = LookAtFile(session_, reader_, words[3], BuonoPerEditor, "0140040");
    if (!given.Why.empty()) return Refuse(words[3] + ": " + given.Why);
    editor_.FileMp3Valido = true;  // the rule of the panel has passed it
    const auto end =
        AggiungiSpot(editor_, slot, EstraiCartella(given.Path), EstraiNomeFile(given.Path));
    if (end != EsitoSpot::NonScritto) return Outcome::Done;
    return Refuse(kNotWritten);
  });
}

Outcome ScheduleSession::SpotRemove(const Words& words) {
  return WithSlot(words[2], true,
                  [this](int slot) { return Changing([&] { RimuoviSpot(editor_, slot); }); });
}

Outcome ScheduleSession::SpotUp(const Words& words) {
  return WithSlot(words[2], true, [this](int slot) {
    if (editor_.rsDettaglio().AbsolutePosition() == 1) return Refuse("this is the first spot");
    return Changing([&] { SpostaSpot(editor_, slot, false); });
  });
}

Outcome ScheduleSession::SpotDown(const Words& words) {
  return WithSlot(words[2], true, [this](int slot) {
    const bool last = editor_.rsDettaglio().AbsolutePosition() == editor_.QuantiSpot();
    if (last) return Refuse("this is the last spot");
    return Changing([&] { SpostaSpot(editor_, slot, true); });
  });
}

Outcome ScheduleSession::Report(const Words& /*words*/) {
  ScriviReport(editor_);
  return Context().Stato.ReportIntero ? Outcome::Done : Refuse("Scheduler.htm can't be written");
}

Outcome ScheduleSession::Save(const Words& /*words*/) {
  return SaveBy([this](FinestraProgresso& progress) { SalvaPalinsesto(editor_, progress); });
}

}  // namespace

int RunSchedule(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.size() != 1) return kUsage;
  if (const int status = session.OpenProject(arguments.front()); status != kDone) return status;
  auto& context = session.Context();
  if (!FileExists(context.Files, FileDelProgetto(context, "scheduler.mdb"))) {
    session.Out().Say("this project has no scheduler.mdb");
    return kMissing;
  }
  ScheduleSession editor(session);
  if (!editor.IsOpen()) {
    session.Out().Say("scheduler.mdb can't be read");
    return kRefused;
  }
  return editor.RunAll();
}

}  // namespace kvr5::cli
