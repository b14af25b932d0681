#include "projects/ParoleSubentro.h"

#include <algorithm>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/ParoleCopia.h"

namespace kvr5 {
namespace {

/// A text by its key, and what stands in where the language has none.
struct Words {
  const char* Key;
  const char* Fallback;
};

/// The title and the first line of a box.
struct Heading {
  Words Title;
  Words First;
};

constexpr Heading kTaken{{"0130319", "Project taken over"},
                         {"0130320", "Its lists were taken over:"}};
constexpr Heading kHalfTaken{{"0130321", "Project not taken over"},
                             {"0130330", "Not all lists were taken over:"}};
constexpr Heading kNotTaken{{"0130321", "Project not taken over"},
                            {"0130322", "Nothing was changed:"}};
constexpr Heading kUnreadable{{"0130340", "Lists can't be read"},
                              {"0130341", "Nothing was changed:"}};

Heading HeadingOf(const EsitoSubentro& outcome) {
  if (outcome.Fine == FineSubentro::Compiuto) return kTaken;
  if (outcome.Cambiato()) return kHalfTaken;
  const bool old = std::ranges::any_of(outcome.Database, &DatabaseSubentrato::DiJet);
  return old ? kNotTaken : kUnreadable;
}

Words WordsOf(jet::Fault fault) {
  switch (fault) {
    case jet::Fault::Jet3:
      return {"0130325", "made by a program that is too old (Access 97)"};
    case jet::Fault::Newer:
      return {"0130326", "made by a newer version of the database program"};
    case jet::Fault::NoTable:
    case jet::Fault::NoColumn:
      return {"0130327", "no project database (%1 is missing)"};
    case jet::Fault::Unreadable:
      return {"0130328", "it can't be read on this disk"};
    default:
      return {"0130329", "the file is damaged"};
  }
}

std::string TextOf(Contesto& contesto, const Words& words) {
  return TestoLinguaO(contesto, words.Key, words.Fallback);
}

/// "12 files", "7 lists, 35 tracks", "24 segments, 72 spots", by what the database is for.
std::string Counted(Contesto& contesto, const DatabaseSubentrato& database) {
  const auto count = [&](std::size_t many, const ParolaContata& word) {
    return Contati(contesto, many, word);
  };
  if (database.Nome == "scheduler.mdb") {
    return count(database.Segmenti, {"0040071", "segment", "0040072", "segments"}) + ", " +
           count(database.File, {"0040073", "spot", "0040074", "spots"});
  }
  if (database.Nome == "inputcfg.mdb") {
    return count(database.File, {"0040060", "file", "0040061", "files"});
  }
  const std::string tracks = count(database.File, {"0040069", "track", "0040070", "tracks"});
  if (database.Segmenti == 0) return tracks;
  return count(database.Segmenti, {"0040067", "list", "0040068", "lists"}) + ", " + tracks;
}

/// The names of the databases that are in their place, "inputcfg.mdb, playlist.mdb".
std::string Taken(const EsitoSubentro& outcome) {
  std::string names;
  for (const DatabaseSubentrato& each : outcome.Database) {
    if (each.Preso) names += (names.empty() ? "" : ", ") + each.Nome;
  }
  return names;
}

}  // namespace

std::string SubentroInParole(Contesto& contesto, const DatabaseSubentrato& database) {
  const std::string name = database.Nome + ": ";
  if (database.Guasto) {
    return name + ConValori(TextOf(contesto, WordsOf(database.Guasto.What)),
                            {SuUnaRiga(database.Guasto.Where)});
  }
  return name + (database.Causa ? database.Causa.Description() : Counted(contesto, database));
}

Messaggio BoxSubentro(Contesto& contesto, const EsitoSubentro& esito) {
  std::string lines;
  const bool done = esito.Fine == FineSubentro::Compiuto;
  for (const DatabaseSubentrato& each : esito.Database) {
    if (done || !each.Riuscito()) lines += "\r\n" + SubentroInParole(contesto, each);
  }
  if (esito.SenzaModello) {
    lines += "\r\n" + ConValori(TestoLinguaO(contesto, "0130343", "%1 is missing"), {"source.mdb"});
  }
  const Heading heading = HeadingOf(esito);
  if (!done && esito.Cambiato()) {
    lines +=
        "\r\n" + ConValori(TestoLinguaO(contesto, "0130344", "Taken over: %1"), {Taken(esito)});
  }
  if (esito.Cambiato()) {
    const std::string where = PercorsoPerPersone(contesto, esito.Originali);
    lines +=
        "\r\n" + ConValori(TestoLinguaO(contesto, "0130331", "The originals are in %1"), {where});
  }
  return {TextOf(contesto, heading.Title), TextOf(contesto, heading.First) + lines,
          done ? Icona::Informazione : Icona::Avviso, Pulsanti::Ok, Risposta::Ok};
}

FineSubentro SubentraEDillo(Contesto& contesto) {
  const EsitoSubentro outcome = SubentraNeiDatabase(contesto);
  if (outcome.Fine != FineSubentro::Nulla) {
    contesto.Finestre.MostraMessaggio(BoxSubentro(contesto, outcome));
  }
  return outcome.Fine;
}

}  // namespace kvr5
