#pragma once

#include "core/Contesto.h"
#include "core/FinestraProgresso.h"
#include "playerconfig/ConfigTxt.h"
#include "playerconfig/TabellaIngressi.h"

namespace kvr5 {

/// How the save of a project asks for its one decision.
class DomandaSalva {
 public:
  virtual ~DomandaSalva() = default;
  /// Asks whether the MP3 files of the inputs are copied too, into SalvaMp3Ingressi. True when the
  /// user gives the save up.
  virtual bool Annulla() = 0;
};

/// How a save ended.
enum class FineSalvataggio {
  Compiuto,
  Rinunciato,    ///< at the question: nothing was done, nothing said
  Annullato,     ///< in its course: told
  FileMancante,  ///< an MP3 isn't there: told, in place of any failure; nothing was copied
  ConErrori,     ///< a step failed: told, the others were done
};

/// What is saved beside the state: the controls of the hub, its table, and whether it shows the
/// analyser's frame.
struct DaSalvare {
  const ControlliHub& Controlli;
  TabellaIngressi& Ingressi;
  bool AnalyzerVisibile = false;
};

/// The box of a step that failed: the pending error by its number and words.
void DiciErrore(Contesto& contesto);

/// Brings the project's folder up to date: the descriptor, Config.txt, the report, and, where the
/// user wants it, copies of the MP3 files of the inputs; with the analyser on, its file. Each step
/// stays as it landed, whatever becomes of a later one. The pending error is cleared at the start
/// and looked at once, at the end; a copy's failure, which its own window tells, is not among it.
FineSalvataggio SalvaConfigurazione(Contesto& contesto, const DaSalvare& cosa,
                                    FinestraProgresso& progresso, DomandaSalva& domanda);

}  // namespace kvr5
