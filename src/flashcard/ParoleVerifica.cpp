#include "flashcard/ParoleVerifica.h"

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

Words NameOf(Difetto kind) {
  switch (kind) {
    case Difetto::Mancante:
      return {"0130282", "Not on the card"};
    case Difetto::Diverso:
      return {"0130283", "Differs"};
    case Difetto::Estraneo:
      return {"0130284", "Not of this project"};
    case Difetto::VoceVuota:
      return {"0130285", "Named in a list, not there"};
    case Difetto::Rifiutato:
      return {"0130286", "Player refuses it"};
    case Difetto::NonLetto:
      return {"0130287", "Not checked"};
  }
  return {"", ""};
}

Words RemedyOf(Difetto kind) {
  switch (kind) {
    case Difetto::Mancante:
      return {"0130288", "Record the card again."};
    case Difetto::Diverso:
      return {"0130289", "Record the card again; if it stays so, use another card."};
    case Difetto::Estraneo:
      return {"0130290", "Delete it, or erase the card and record again."};
    case Difetto::VoceVuota:
      return {"0130291", "Save playlists or schedule, then record; give shared files copies."};
    case Difetto::Rifiutato:
      return {"0130292", "Pick another file, or convert it."};
    case Difetto::NonLetto:
      return {"0130293", "It can't be read on the card."};
  }
  return {"", ""};
}

/// What to do where the project's own file is what is missing; %1 stands for it.
Words RemedyOf(Mancanza why) {
  switch (why) {
    case Mancanza::Comune:
      return {"0130313", "Two inputs share this file: give one of them a copy. %1"};
    case Mancanza::Nome:
      return {"0130314", "No card can hold this name: pick another file. %1"};
    case Mancanza::Illeggibile:
      return {"0130315", "The project's own file can't be read. %1"};
    case Mancanza::Database:
      return {"0130316", "This database is in use, or damaged. %1"};
    case Mancanza::Assente:
    case Mancanza::Nessuna:
      break;
  }
  return {"0130310", "Look for this file of the project first: %1"};
}

std::string TextOf(Contesto& contesto, const Words& words) {
  return TestoLinguaO(contesto, words.Key, words.Fallback);
}

}  // namespace

std::string DifettoInParole(Contesto& contesto, Difetto difetto) {
  return TextOf(contesto, NameOf(difetto));
}

std::string RimedioInParole(Contesto& contesto, const Riscontro& riscontro) {
  if (riscontro.Perche == Mancanza::Nessuna) return TextOf(contesto, RemedyOf(riscontro.Tipo));
  return ConValori(TextOf(contesto, RemedyOf(riscontro.Perche)),
                   {SuUnaRiga(PercorsoPerPersone(contesto, riscontro.DelProgetto))});
}

std::string EsitoInParole(Contesto& contesto, const EsitoVerifica& esito, std::size_t mostrati) {
  if (esito.SenzaScheda || esito.Sparita) {
    return TestoLinguaO(contesto, "0130294", "The card can't be read. Put it in, then try again.");
  }
  const std::string findings = std::to_string(mostrati);
  if (esito.Annullata) {
    return ConValori(TestoLinguaO(contesto, "0130295", "Stopped: not all was compared. Found: %1"),
                     {findings});
  }
  if (esito.Attesi > 0 && esito.Quanti(Difetto::Mancante) == esito.Attesi) {
    return TestoLinguaO(contesto, "0130311", "Nothing of this project is on the card. Record it.");
  }
  if (!esito.Riscontri.empty()) {
    return ConValori(TestoLinguaO(contesto, "0130296", "Found: %1"), {findings});
  }
  return ConValori(TestoLinguaO(contesto, "0130297", "The card is as the project: %1 files, %2"),
                   {std::to_string(esito.File), QuantitaInParole(esito.Byte, contesto.Luogo)});
}

}  // namespace kvr5
