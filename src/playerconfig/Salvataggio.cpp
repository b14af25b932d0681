#include "playerconfig/Salvataggio.h"

#include <string>

#include "core/Aiuti.h"
#include "core/CopiaFileShell.h"
#include "core/Lingua.h"
#include "core/ListaCopia.h"
#include "core/ParoleCopia.h"
#include "platform/FileOps.h"
#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"
#include "projects/Descrittore.h"
#include "reports/ReportProgetto.h"

namespace kvr5 {
namespace {

/// One run of the save; each method is one of its steps.
class Saving {
 public:
  Saving(Contesto& context, const DaSalvare& what, FinestraProgresso& progress,
         DomandaSalva& question)
      : context_(context), what_(what), progress_(progress), question_(question) {}

  FineSalvataggio Run();

 private:
  bool WithoutInputs() const {
    return TabellaIngressi::SenzaIngressi(context_.Stato.PlayerType, context_.Stato.PlayerMode);
  }
  bool Cancelled() const { return context_.Stato.AnnullatoDaUtente; }
  void Begin();
  bool WriteFiles();
  bool ListInputs();
  bool ListRow();
  void ListAnalyzer();
  void Copy();
  void TellMissing();
  FineSalvataggio TellEnd();

  Contesto& context_;
  const DaSalvare& what_;
  FinestraProgresso& progress_;
  DomandaSalva& question_;
  ListaCopia list_;
  std::string missing_;
};

FineSalvataggio Saving::Run() {
  context_.Errore.Clear();
  if (!WithoutInputs() && question_.Annulla()) return FineSalvataggio::Rinunciato;
  context_.Stato.AnnullatoDaUtente = false;
  what_.Ingressi.RiapriRighe();
  Begin();
  const bool written = WriteFiles();
  progress_.Scarica();
  if (written) {
    if (!ListInputs()) {
      TellMissing();
      return FineSalvataggio::FileMancante;
    }
    if (!Cancelled()) {
      ListAnalyzer();
      Copy();
    }
    progress_.Scarica();
  }
  return TellEnd();
}

void Saving::Begin() {
  progress_.Operazione(TestoLingua(context_, "0070002"));
  progress_.ValoreMassimo = 2;
  progress_.Progresso(0);
  progress_.Mostra();
  context_.Messaggi.LasciaCorrere();
}

/// False when the user cancelled between two of the files.
bool Saving::WriteFiles() {
  SalvaDescrittoreProgetto(context_);
  if (Cancelled()) return false;
  what_.Controlli.AggiornaFile_ConfigTXT(context_);
  progress_.Operazione(TestoLingua(context_, "0070003"));
  progress_.Step(0, false);
  ScriviReportProgetto(context_, {&what_.Ingressi.Cursore(), what_.AnalyzerVisibile});
  return !Cancelled();
}

/// False when a file isn't there; what was listed before it is not copied then.
bool Saving::ListInputs() {
  auto& rows = what_.Ingressi.Cursore();
  if (WithoutInputs() || !context_.Stato.SalvaMp3Ingressi || rows.RecordCount() < 1) return true;
  context_.Errore.Record(WalkRows(rows, [&] {
    const bool there = ListRow();
    progress_.Step(rows.AbsolutePosition(), false);  // for nobody to see: its window is gone
    return there && !Cancelled();
  }));
  return missing_.empty();
}

bool Saving::ListRow() {
  const auto& rows = what_.Ingressi.Cursore();
  const std::string name = rows.Text("FileName");
  const std::string source = rows.Text("Filepath") + name;
  // A bar divides the lists; and a row without a name would stand for its whole folder.
  const bool usable = !name.empty() && source.find('|') == std::string::npos;
  if (!usable || !FileExists(context_.Files, source)) {
    missing_ = name.empty() ? PercorsoPerPersone(context_, source) : name;
    return false;
  }
  // By their places in the project: of two files of one name the first is copied.
  const std::string target = FileDelProgetto(context_, name);
  if (!list_.ContieneDestinazione(target)) list_.Aggiungi(source, target);
  return true;
}

void Saving::ListAnalyzer() {
  if (context_.Stato.Analyzer != 1) return;
  list_.Aggiungi(AggiungiBarra(context_.CartellaProgramma) + "Analyzer.mp3",
                 FileDelProgetto(context_, "Analyzer.mp3"));
}

void Saving::Copy() {
  if (Rifila(list_.ListaSorgenti()).empty()) return;
  CopiaFileShell(context_, list_.ListaSorgenti(), list_.ListaDestinazioni());
}

void Saving::TellMissing() {
  context_.Finestre.MostraSiNo({TestoLingua(context_, "0070009"),
                                TestoLingua(context_, "0070019") + ":\r\n" + missing_,
                                TestoLingua(context_, "0140022"),
                                {}});
}

FineSalvataggio Saving::TellEnd() {
  if (context_.Errore) {
    DiciErrore(context_);
    return FineSalvataggio::ConErrori;
  }
  const bool cancelled = Cancelled();
  context_.Finestre.MostraMessaggio({TestoLingua(context_, "0070005"),
                                     TestoLingua(context_, cancelled ? "0070010" : "0070006"),
                                     Icona::Informazione, Pulsanti::Ok, Risposta::Ok});
  return cancelled ? FineSalvataggio::Annullato : FineSalvataggio::Compiuto;
}

}  // namespace

void DiciErrore(Contesto& contesto) {
  const Error error = contesto.Errore.Last();  // what the user does under the box has others
  contesto.Finestre.MostraMessaggio({TestoLingua(contesto, "0070007"),
                                     TestoLingua(contesto, "0030005") +
                                         "\r\nN°:" + std::to_string(error.Number()) + "\r\n" +
                                         error.Description(),
                                     Icona::Avviso, Pulsanti::Ok, Risposta::Ok});
}

FineSalvataggio SalvaConfigurazione(Contesto& contesto, const DaSalvare& cosa,
                                    FinestraProgresso& progresso, DomandaSalva& domanda) {
  return Saving(contesto, cosa, progresso, domanda).Run();
}

}  // namespace kvr5
