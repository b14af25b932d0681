#include "flashcard/CancellaFlash.h"

#include "core/Lingua.h"
#include "core/ParoleCopia.h"
#include "platform/FileOps.h"

namespace kvr5 {
namespace {

bool Ask(Contesto& context, const std::string& text) {
  return context.Finestre.MostraMessaggio({TestoLingua(context, "0040027"), text, Icona::Domanda,
                                           Pulsanti::SiNo, Risposta::No}) == Risposta::Si;
}

void Tell(Contesto& context, const char* key) {
  context.Finestre.MostraMessaggio({TestoLingua(context, "0040028"), TestoLingua(context, key),
                                    Icona::Avviso, Pulsanti::Ok, Risposta::Ok});
}

/// A drive is shown as it was chosen, any other folder in the host's form.
std::string AsChosen(const Contesto& context, const std::string& card) {
  constexpr std::size_t kRoot = 3;  // "E:\"
  return card.size() == kRoot ? card : PercorsoPerPersone(context, card);
}

/// A failure as it is, but for 53: that number says that nothing was to be deleted.
Error Unlike53(const Error& error) {
  return error.Number() == errors::FileNotFound ? Error(errors::DeviceUnavailable) : error;
}

/// All plain files of the card's root but those that are read-only.
Error DeletePlainFiles(FileSystem& files, const std::string& card) {
  bool found = false;
  for (const FileInfo& file : ListMatching(files, card + "*.*")) {
    if (file.ReadOnly) continue;
    found = true;
    if (Error error = files.Delete(card + file.Name)) return Unlike53(error);
  }
  return found ? Error() : Error(errors::FileNotFound);
}

/// Deletes what is to be deleted, on the device too: a card that is pulled out afterwards mustn't
/// have it back.
Error Empty(FileSystem& files, const std::string& card) {
  Error error = DeletePlainFiles(files, card);
  const Error flushed = Unlike53(files.SyncVolume(card));
  return error ? error : flushed;
}

FineSvuotamento Report(Contesto& context, const Error& error) {
  if (!error) {
    Tell(context, "0040030");
    return FineSvuotamento::Svuotata;
  }
  if (error.Number() == errors::FileNotFound) {
    Tell(context, "0040034");
    return FineSvuotamento::GiaVuota;
  }
  Tell(context, "0040050");
  return FineSvuotamento::Fallita;
}

}  // namespace

FineSvuotamento CancellaFlash(Contesto& contesto, SelezioneFlash& scelta) {
  if (!ScegliSchedaSeManca(contesto, scelta)) return FineSvuotamento::SenzaScheda;
  const std::string card = contesto.Stato.PercorsoMemoryCard;
  const std::string shown = AsChosen(contesto, card);
  if (!Ask(contesto, TestoLingua(contesto, "0040024") + " " + shown + "  ?")) {
    return FineSvuotamento::Rinunciata;
  }
  if (!Ask(contesto, TestoLingua(contesto, "0040025") + " " + shown + "\r\n" +
                         TestoLingua(contesto, "0040026"))) {
    return FineSvuotamento::Rinunciata;
  }
  auto& error = contesto.Errore;
  error.Clear();
  error.Record(scelta.Presente() ? Empty(contesto.Files, card) : Error(errors::DeviceUnavailable));
  // What the user does while events run has errors of its own.
  const Error outcome = error.Last();
  contesto.Messaggi.LasciaCorrere();
  return Report(contesto, outcome);
}

}  // namespace kvr5
