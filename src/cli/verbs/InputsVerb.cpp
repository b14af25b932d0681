#include "cli/FileGiven.h"
#include "cli/verbs/Verb.h"
#include "core/Aiuti.h"
#include "core/ParoleCopia.h"
#include "mp3/Accettazione.h"
#include "platform/FileOps.h"
#include "playerconfig/CodiceIngressi.h"
#include "playerconfig/TabellaIngressi.h"
#include "projects/CartellaProgetto.h"
#include "projects/Descrittore.h"

namespace kvr5::cli {
namespace {

int Finish(Session& session) {
  const auto& error = session.Context().Errore;
  if (!error) return kDone;
  session.Out().Say("inputcfg.mdb: " + error.Last().Description());
  return kRefused;
}

template <typename T>
Json OrNull(const std::optional<T>& value) {
  return value ? Json(*value) : Json();
}

std::string ForPeople(const Contesto& context, const RigaIngresso& row) {
  const std::string path = AggiungiBarra(row.FilePath.value_or("")) + row.FileName.value_or("");
  return row.Alias.value_or("") + "  " + NomeIngressi(row.Pos.value_or(0)) + "  " +
         PercorsoPerPersone(context, path);
}

int List(Session& session, TabellaIngressi& inputs) {
  for (const auto& row : inputs.Righe()) {
    if (session.Out().IsJson()) {
      session.Out().Object({{"Pos", OrNull(row.Pos)},
                            {"Alias", OrNull(row.Alias)},
                            {"FileName", OrNull(row.FileName)},
                            {"FilePath", OrNull(row.FilePath)}});
    } else {
      session.Out().Line(ForPeople(session.Context(), row));
    }
  }
  return Finish(session);  // a table that ends in the middle must not pass for a whole one
}

int Assign(Session& session, TabellaIngressi& inputs, std::int16_t code, const std::string& file) {
  modMp3Infos reader(session.Context().Files);
  const FileGiven given = LookAtFile(session, reader, file, BuonoPerIngressi, "0040005");
  if (!given.Why.empty()) {
    session.Out().Say(file + ": " + given.Why);
    return kRefused;
  }
  inputs.Assegna(code, EstraiNomeFile(given.Path), EstraiCartella(given.Path));
  return Finish(session);
}

}  // namespace

int RunInputs(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.size() < 2) return kUsage;
  const std::string& action = arguments[1];
  const bool list = action == "list" && arguments.size() == 2;
  const bool set = action == "set" && arguments.size() == 4;
  const bool clear = action == "clear" && arguments.size() == 3;
  if (!list && !set && !clear) return kUsage;
  std::int16_t code = 0;
  if (!list) {
    const auto given = CodiceDaTesto(arguments[2]);
    if (!given) return kUsage;
    code = *given;
  }
  if (const int status = session.OpenProject(arguments[0]); status != kDone) return status;
  auto& context = session.Context();
  if (!FileExists(context.Files, FileDelProgetto(context, "inputcfg.mdb"))) {
    session.Out().Say("this project has no inputcfg.mdb");
    return kMissing;
  }
  context.Stato.Usa485 = context.Stato.PlayerType == 4 && LeggiUse485(context);
  TabellaIngressi inputs(context);
  inputs.Apri();
  if (!inputs.Aperta()) {
    session.Out().Say("inputcfg.mdb can't be read");
    return kRefused;
  }
  if (list) return List(session, inputs);
  if (context.Stato.Usa485 && UsaIngressiRs485(code)) {
    session.Out().Say("the RS-485 link of this project uses IN5 and IN6");
    return kRefused;
  }
  if (set) return Assign(session, inputs, code, arguments[3]);
  inputs.Libera(code);
  return Finish(session);
}

}  // namespace kvr5::cli
