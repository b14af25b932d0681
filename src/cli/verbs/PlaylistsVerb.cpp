#include <array>

#include "cli/EditingSession.h"
#include "cli/FileGiven.h"
#include "cli/LongCommand.h"
#include "cli/verbs/Verb.h"
#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/PannelloFile.h"
#include "core/ParoleCopia.h"
#include "mp3/Accettazione.h"
#include "platform/FileOps.h"
#include "platform/db/Walk.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/ImportaPlaylist.h"
#include "playlists/NomiPlaylist.h"
#include "playlists/SalvaPlaylist.h"
#include "projects/CartellaProgetto.h"
#include "reports/ReportPlaylist.h"

namespace kvr5::cli {
namespace {

using Words = std::vector<std::string>;

class PlaylistSession : public EditingCommands {
 public:
  explicit PlaylistSession(Session& session)
      : EditingCommands(session), editor_(session.Context()), reader_(session.Context().Files) {
    editor_.Carica();
  }
  bool IsOpen() { return editor_.rsList().IsOpen(); }

 protected:
  Outcome Run(const Words& words) override;

 private:
  using Command = EditingCommand<PlaylistSession>;
  static constexpr std::size_t kAny = static_cast<std::size_t>(-1);

  Contesto& Context() { return session_.Context(); }
  /// Goes to the first row with that Pos.
  bool GoTo(const std::string& pos);
  /// What `work` does with the row of a Pos; refused where there is none.
  template <typename Work>
  Outcome WithRow(const std::string& word, Work work);

  Outcome Select(const Words& words);
  Outcome Inputs(const Words& words);
  Outcome List(const Words& words);
  Outcome Add(const Words& words);
  Outcome AddAll(const Words& words);
  Outcome Remove(const Words& words);
  Outcome Clear(const Words& words);
  Outcome Up(const Words& words);
  Outcome Down(const Words& words);
  Outcome Shuffle(const Words& words);
  Outcome Import(const Words& words);
  Outcome New(const Words& words);
  Outcome Delete(const Words& words);
  Outcome Report(const Words& words);
  Outcome Save(const Words& words);

  EditorPlaylist editor_;
  modMp3Infos reader_;
};

Outcome PlaylistSession::Run(const Words& words) {
  using S = PlaylistSession;
  static constexpr std::array kCommands{
      Command{"select", 1, 1, &S::Select}, Command{"inputs", 1, 1, &S::Inputs},
      Command{"list", 0, 0, &S::List},     Command{"add", 1, kAny, &S::Add},
      Command{"addall", 1, 1, &S::AddAll}, Command{"remove", 1, 1, &S::Remove},
      Command{"clear", 0, 0, &S::Clear},   Command{"up", 1, 1, &S::Up},
      Command{"down", 1, 1, &S::Down},     Command{"shuffle", 0, 1, &S::Shuffle},
      Command{"import", 1, 1, &S::Import}, Command{"new", 1, 2, &S::New},
      Command{"delete", 0, 0, &S::Delete}, Command{"report", 0, 0, &S::Report},
      Command{"save", 0, 0, &S::Save}};
  return RunCommand(*this, kCommands, words);
}

bool PlaylistSession::GoTo(const std::string& pos) {
  auto& rows = editor_.rsList();
  return rows.RecordCount() > 0 && !rows.MoveFirst() && !rows.Find("Pos=" + pos) && !rows.Eof();
}

template <typename Work>
Outcome PlaylistSession::WithRow(const std::string& word, Work work) {
  if (!IsWholeNumber(word)) return Outcome::Unknown;
  if (!GoTo(word)) return Refuse("the list has no track with this number");
  return work();
}

Outcome PlaylistSession::Select(const Words& words) {
  if (!IsWholeNumber(words[1])) return Outcome::Unknown;
  const auto entry = NumberOf(words[1], kHighestNumber);
  if (!editor_.Disposizione().picfraSelezionePlaylist) {
    return Refuse("this project has no selector");
  }
  if (!entry || *entry >= editor_.Voci().size()) return Refuse("the selector has no such entry");
  editor_.ScegliVoce(static_cast<int>(*entry));
  return Outcome::Done;
}

Outcome PlaylistSession::Inputs(const Words& words) {
  const auto bits = NumberOf(words[1], 7);
  if (!bits) return Outcome::Unknown;
  if (!editor_.Disposizione().picFraIngresso) return Refuse("this project has no check boxes");
  for (int number = 1; number <= 3; ++number) {
    const bool on = (*bits >> static_cast<unsigned>(number - 1) & 1U) != 0;
    if (editor_.Ingresso(number) != on) editor_.SpuntaIngresso(number, on);
  }
  return Outcome::Done;
}

Outcome PlaylistSession::List(const Words& /*words*/) {
  auto& out = session_.Out();
  auto& rows = editor_.rsList();
  const Error failure = WalkRows(rows, [&] {
    if (out.IsJson()) {
      Json row;
      for (const char* column : {"ID", "Pos", "NPlaylist", "FileName", "FilePath", "Alias"}) {
        row[column] = ValueOf(rows, column);
      }
      out.Object(row);
    } else {
      const std::string path = AggiungiBarra(rows.Text("FilePath")) + rows.Text("FileName");
      out.Line(rows.Text("Pos") + "  " + PercorsoPerPersone(Context(), path));
    }
    return true;
  });
  if (failure) session_.Out().Say("playlist.mdb: " + failure.Description());
  if (out.IsJson()) out.Object({{"end", "list"}, {"rows", editor_.Quanti()}});
  return Outcome::Done;
}

Outcome PlaylistSession::Add(const Words& words) {
  LongCommand told(session_, "add", words.size() - 1);
  for (std::size_t i = 1; i < words.size(); ++i) {
    told.Turn();
    if (editor_.SelettoreVuoto()) return Refuse(TestoLingua(Context(), "0050040"));
    if (editor_.Piena()) return Refuse(TestoLingua(Context(), "0050027"));
    const FileGiven given = LookAtFile(session_, reader_, words[i], BuonoPerEditor, "0050005");
    if (!given.Why.empty()) {
      Refuse(words[i] + ": " + given.Why);
      continue;
    }
    const auto end = AggiungiFile(editor_, EstraiCartella(given.Path), EstraiNomeFile(given.Path));
    if (end == EsitoAggiunta::NonScritto) Refuse(words[i] + ": the working copy can't be written");
  }
  return Outcome::Done;
}

Outcome PlaylistSession::AddAll(const Words& words) {
  const auto folder = Context().Files.SystemPath(words[1]);
  if (!folder || !FolderExists(Context().Files, folder.Value())) {
    return Refuse("there is no such folder");
  }
  const auto names = NomiDelPannello(Context().Files, folder.Value());
  const LongCommand told(session_, "addall", names.size());
  AggiungiTuttiFiles(editor_, reader_, folder.Value(), names);
  return Outcome::Done;
}

Outcome PlaylistSession::Remove(const Words& words) {
  return WithRow(words[1], [this] {
    RimuoviFile(editor_);
    return Outcome::Done;
  });
}

Outcome PlaylistSession::Clear(const Words& /*words*/) {
  RimuoviTuttiFile(editor_);
  return Outcome::Done;
}

Outcome PlaylistSession::Up(const Words& words) {
  return WithRow(words[1], [this] {
    if (editor_.rsList().AbsolutePosition() == 1) return Refuse("this is the first track");
    SpostaSu(editor_);
    return Outcome::Done;
  });
}

Outcome PlaylistSession::Down(const Words& words) {
  return WithRow(words[1], [this] {
    if (editor_.rsList().AbsolutePosition() == editor_.Quanti()) {
      return Refuse("this is the last track");
    }
    SpostaGiu(editor_);
    return Outcome::Done;
  });
}

Outcome PlaylistSession::Shuffle(const Words& words) {
  if (words.size() == 1) {
    Random(editor_, CasoDallOrologio());
    return Outcome::Done;
  }
  const auto seed = NumberOf(words[1], kHighestNumber);
  if (!seed) return Outcome::Unknown;
  Random(editor_, CasoDaSeme(*seed));
  return Outcome::Done;
}

Outcome PlaylistSession::Import(const Words& words) {
  const auto list = Context().Files.SystemPath(words[1]);
  if (!list || !FileExists(Context().Files, list.Value())) return Refuse("there is no such file");
  const LongCommand told(session_, "import", 0);
  if (PuoImportare(editor_)) ImportaPlaylist(editor_, reader_, list.Value());
  return Outcome::Done;
}

Outcome PlaylistSession::New(const Words& words) {
  if (!editor_.Disposizione().NomiDaHead) return Refuse("this project has no named lists");
  const bool taken = CercaPlaylistPerNome(editor_, words[1]) > 0;
  const std::size_t typed = taken ? words.size() : 2;
  for (std::size_t i = 1; i < typed; ++i) {
    const std::string why = DifettoNomePlaylist(Context(), words[i]);
    if (!why.empty()) return Refuse(words[i] + ": " + why);
  }
  std::size_t next = 1;
  AggiungiPlaylist(editor_, [&] {
    Context().Stato.NomePlaylistScelta = next < words.size() ? words[next] : std::string();
    ++next;
  });
  return Outcome::Done;
}

Outcome PlaylistSession::Delete(const Words& /*words*/) {
  if (!editor_.Disposizione().NomiDaHead) return Refuse("this project has no named lists");
  RimuoviPlaylist(editor_);
  return Outcome::Done;
}

Outcome PlaylistSession::Report(const Words& /*words*/) {
  const bool begun = ScriviReport(editor_);  // without a track there is no page
  if (!begun || Context().Stato.ReportIntero) return Outcome::Done;
  return Refuse("Playlist.htm can't be written");
}

Outcome PlaylistSession::Save(const Words& /*words*/) {
  return SaveBy([this](FinestraProgresso& progress) { SalvaPlaylist(editor_, progress); });
}

}  // namespace

int RunPlaylists(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.size() != 1) return kUsage;
  if (const int status = session.OpenProject(arguments.front()); status != kDone) return status;
  auto& context = session.Context();
  if (!FileExists(context.Files, FileDelProgetto(context, "playlist.mdb"))) {
    session.Out().Say("this project has no playlist.mdb");
    return kMissing;
  }
  PlaylistSession editor(session);
  if (!editor.IsOpen()) {
    session.Out().Say("playlist.mdb can't be read");
    return kRefused;
  }
  return editor.RunAll();
}

}  // namespace kvr5::cli
