#include "core/Lingua.h"

#include "core/Aiuti.h"
#include "core/Impostazioni.h"
#include "core/LinguaLetta.h"
#include "platform/FileOps.h"

namespace kvr5 {

void ImpostaFileLingua(Contesto& contesto) {
  constexpr std::uint32_t kItalian = 1040;  // other locales of the language go to English
  const std::string folder = AggiungiBarra(contesto.CartellaProgramma) + "Language\\";
  auto& state = contesto.Stato;
  const std::string chosen =
      LeggiParametroIni(contesto, FileImpostazioni(contesto), "Config", "LanguageFile");
  if (!chosen.empty()) {
    state.FileLingua = folder + chosen;
    return;
  }
  state.LinguaUtente = contesto.Luogo.Lcid;
  const std::string italian = folder + "Italiano.lan";
  if (state.LinguaUtente == kItalian && FileExists(contesto.Files, italian)) {
    state.FileLingua = italian;
    return;
  }
  state.FileLingua = folder + "English.lan";
  if (FileExists(contesto.Files, state.FileLingua)) return;
  contesto.Finestre.MostraMessaggio({"Language file not found",
                                     "Unable to locate the language file 'English.lan'\r\n"
                                     "Copy the language file in the language directory\r\n"
                                     "and start the configuration program",
                                     Icona::Avviso, Pulsanti::Ok, Risposta::Ok});
  contesto.Programma.Termina(MotivoFine::LinguaMancante);
}

std::string TestoLingua(Contesto& contesto, std::string_view chiave) {
  if (const LinguaLetta* read = LinguaLetta::Per(contesto)) {
    if (auto text = read->Testo(chiave)) return *text;
  }
  if (!FileExists(contesto.Files, contesto.Stato.FileLingua)) return {};
  return LeggiIniSemplice(contesto, contesto.Stato.FileLingua, "Strings", chiave);
}

std::string TestoLinguaO(Contesto& contesto, std::string_view chiave, std::string_view scritta) {
  std::string text = TestoLingua(contesto, chiave);
  return text.empty() ? std::string(scritta) : text;
}

}  // namespace kvr5
