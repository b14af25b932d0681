#include "projects/CaricaDaFlash.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Aiuti.h"
#include "core/CopiaFileShell.h"
#include "core/Impostazioni.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "platform/FileOps.h"
#include "platform/IniFile.h"
#include "platform/Path.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

constexpr std::uint32_t kOrange = 33023;  // red 255, green 128, blue 0

/// What a card holds of a project.
constexpr std::array<std::string_view, 9> kProjectFiles{
    "*.txt", "*.cfg", "*.mdb", "*.htm", "*.html", "*.jpg", "*.pal", "*.m3u", "*.mp3"};

/// One reading back of a card; each method is one of its steps.
class ReadingBack {
 public:
  ReadingBack(Contesto& context, SchermoLettura& screen, FinestraProgresso& progress)
      : context_(context),
        screen_(screen),
        progress_(progress),
        card_(context.Stato.PercorsoMemoryCard) {}

  EsitoLettura Run();

 private:
  FineLettura ReadName();
  bool IsTaken() const;
  bool AskName();
  bool MakeFolder();
  bool CardHasFiles() const;
  std::vector<std::string> Copy();
  void Notice(const char* titleKey, const std::string& text, bool orange = false);
  std::string Text(const char* key) { return TestoLingua(context_, key); }

  Contesto& context_;
  SchermoLettura& screen_;
  FinestraProgresso& progress_;
  const std::string card_;  ///< the one it began on, whatever is chosen while events run
  std::string folder_;
};

EsitoLettura ReadingBack::Run() {
  auto& state = context_.Stato;
  state.CartellaProgetto = card_;
  if (const auto end = ReadName(); end != FineLettura::Copiata) return {end};
  if (IsTaken() && !AskName()) return {FineLettura::Rinunciata};
  if (!MakeFolder()) return {FineLettura::SenzaCartella};
  context_.Messaggi.LasciaCorrere();
  if (!CardHasFiles()) return {FineLettura::SchedaVuota, folder_};
  screen_.Disabilita();
  state.AnnullatoDaUtente = false;
  std::vector<std::string> left = Copy();
  progress_.Scarica();
  if (!state.AnnullatoDaUtente) return {FineLettura::Copiata, folder_, std::move(left)};
  Notice("0080005", Text("0080011"), true);
  screen_.Riabilita();
  return {FineLettura::Annullata, folder_};
}

FineLettura ReadingBack::ReadName() {
  if (!FileExists(context_.Files, FileDelProgetto(context_, "config.cfg"))) {
    Notice("0090017", Text("0090018") + "'config.cfg'\r\n" + Text("0090019"));
    return FineLettura::SenzaDescrittore;
  }
  // As any setting is read, but where the card goes away meanwhile no file is made in its place.
  const std::string path = FileDelProgetto(context_, "Config.cfg");
  const IniFile descriptor(context_.Files, path, PaginaDelFile(context_, path));
  auto& name = context_.Stato.ProjectName;
  name = descriptor.Read("CONFIG", "ProjectName", {}, kCaratteriImpostazione + 1);
  if (!name.empty()) return FineLettura::Copiata;
  Notice("0090017", Text("0090018") + "'config.cfg'");
  return FineLettura::SenzaNome;
}

/// Whether a project has the name of the card's. What the card says may be a path: a folder that it
/// leads to is none of the projects.
bool ReadingBack::IsTaken() const {
  const auto& state = context_.Stato;
  return CardCanHold(state.ProjectName) &&
         FolderExists(context_.Files, AggiungiBarra(state.CartellaProgetti) + state.ProjectName);
}

bool ReadingBack::AskName() {
  const std::string name = std::exchange(context_.Stato.ProjectName, {});
  screen_.ChiediNome(name);
  context_.Stato.CartellaProgetto = card_;  // a name that was tried has left its folder there
  return !context_.Stato.ProjectName.empty();
}

bool ReadingBack::MakeFolder() {
  context_.Messaggi.LasciaCorrere();
  const auto& state = context_.Stato;
  folder_ = AggiungiBarra(state.CartellaProgetti) + state.ProjectName;
  auto& error = context_.Errore;
  error.Clear();
  error.Record(CardCanHold(state.ProjectName) ? context_.Files.CreateFolder(folder_)
                                              : Error(errors::BadFileName));
  if (!error) return true;
  const Error failure = error.Last();
  Notice("0080006", Text("0080007") + "\r\n" + Text("0080008") + "\r\n" + Text("0080009") + ":" +
                        std::to_string(failure.Number()) + "\r\n" + failure.Description());
  return false;
}

bool ReadingBack::CardHasFiles() const {
  return std::ranges::any_of(kProjectFiles, [this](std::string_view pattern) {
    return FileExists(context_.Files, AggiungiBarra(card_).append(pattern));
  });
}

std::vector<std::string> ReadingBack::Copy() {
  return CopiaFileShell(context_, AggiungiBarra(card_) + "*.*", AggiungiBarra(folder_)).LeftOut;
}

void ReadingBack::Notice(const char* titleKey, const std::string& text, bool orange) {
  BoxSiNo box{Text(titleKey), text, Text("0140022"), {}};
  if (orange) box.ColoreNota = kOrange;
  context_.Finestre.MostraSiNo(box);
  context_.Messaggi.LasciaCorrere();
}

}  // namespace

EsitoLettura CaricaDaFlash(Contesto& contesto, SelezioneFlash& scelta, SchermoLettura& schermo,
                           FinestraProgresso& progresso) {
  if (!ScegliScheda(contesto, scelta)) return {FineLettura::SenzaScheda};
  return ReadingBack(contesto, schermo, progresso).Run();
}

void AvvisaLasciati(Contesto& contesto, const EsitoLettura& esito) {
  if (esito.Lasciati.empty()) return;
  constexpr std::size_t kNamed = 10;
  std::string names;
  for (std::size_t i = 0; i < std::min(kNamed, esito.Lasciati.size()); ++i) {
    names += (i == 0 ? "" : ", ") + SuUnaRiga(esito.Lasciati[i]);
  }
  if (esito.Lasciati.size() > kNamed) names += ", ...";
  contesto.Finestre.MostraMessaggio(
      {TestoLinguaO(contesto, "0130317", "Not all of the card was copied"),
       ConValori(TestoLinguaO(contesto, "0130318", "Not copied, for their names: %1"), {names}),
       Icona::Avviso, Pulsanti::Ok, Risposta::Ok});
}

}  // namespace kvr5
