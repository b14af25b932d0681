#include "core/ModelloImpostazioni.h"

#include <algorithm>

#include "core/Aiuti.h"
#include "core/Impostazioni.h"
#include "core/Lingua.h"
#include "core/ParoleCopia.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/Path.h"

namespace kvr5 {
namespace {

std::string Setting(Contesto& contesto, std::string_view section, std::string_view key) {
  return LeggiParametroIni(contesto, FileImpostazioni(contesto), section, key);
}

void Store(Contesto& contesto, std::string_view section, std::string_view key,
           std::string_view value) {
  ScriviParametroIni(contesto, FileImpostazioni(contesto), section, key, value);
}

/// A folder may have been typed into the file in the host's form.
std::string InSystemForm(const Contesto& contesto, std::string folder) {
  if (folder.empty() || PathMap::IsSystemForm(folder)) return folder;
  const auto path = contesto.Files.SystemPath(folder);
  return path ? path.Value() : folder;
}

void Inform(Contesto& contesto, std::string_view titleKey, const std::string& text) {
  contesto.Finestre.MostraMessaggio(
      {TestoLingua(contesto, titleKey), text, Icona::Informazione, Pulsanti::Ok, Risposta::Ok});
}

}  // namespace

void ModelloImpostazioni::Carica() {
  visibile_ = false;
  modificato_ = false;
  cartella_ = InSystemForm(contesto_, Setting(contesto_, "Path", "ProjectsDir"));
  CaricaLingue();
  esterno_ = Setting(contesto_, "Config", "UseExternalPlayer") == "1";
}

void ModelloImpostazioni::CaricaLingue() {
  lingue_.clear();
  scelta_.reset();
  const std::string pattern = AggiungiBarra(contesto_.CartellaProgramma) + "Language\\*.lan";
  for (const auto& file : ListMatching(contesto_.Files, pattern)) {
    lingue_.push_back(TogliEstensione(file.Name));
  }
  if (!lingue_.empty()) scelta_ = 0;
  const std::string stored = Setting(contesto_, "Config", "LanguageFile");
  if (stored.empty()) {
    // The first one is what a save stores then: it mustn't be another than is being read.
    const auto used = std::ranges::find_if(
        lingue_, [name = InUso()](const auto& l) { return EqualFold(l, name); });
    if (used != lingue_.end()) std::rotate(lingue_.begin(), used, used + 1);
    ImpostaModificato(true);
    return;
  }
  // A language whose file is gone can't be shown: the first item stays.
  const auto found = std::ranges::find_if(
      lingue_, [name = TogliEstensione(stored)](const auto& l) { return EqualFold(l, name); });
  if (found != lingue_.end()) scelta_ = static_cast<std::size_t>(found - lingue_.begin());
}

std::string ModelloImpostazioni::CartellaPerPersone() const {
  return cartella_.empty() ? std::string() : PercorsoPerPersone(contesto_, cartella_);
}

std::string ModelloImpostazioni::InUso() const {
  return TogliEstensione(EstraiNomeFile(contesto_.Stato.FileLingua));
}

std::string ModelloImpostazioni::AltraInUso() const {
  if (!scelta_ || !FileExists(contesto_.Files, contesto_.Stato.FileLingua)) return {};
  return EqualFold(InUso(), lingue_.at(*scelta_)) ? std::string() : InUso();
}

bool ModelloImpostazioni::CartellaTroppoLunga() const {
  const CodePage page = PaginaDelFile(contesto_, FileImpostazioni(contesto_));
  constexpr std::size_t kBar = 1;  // the closing one is no loss
  return page.Length(page.Encode(AggiungiBarra(cartella_))) > kCaratteriImpostazione + kBar;
}

void ModelloImpostazioni::CambiaCartella(std::string_view cartella) {
  if (cartella_ == cartella) return;
  cartella_ = cartella;
  Tocca();
}

void ModelloImpostazioni::ScegliLingua(std::size_t indice) {
  if (indice >= lingue_.size()) return;
  scelta_ = indice;
  Tocca();
}

void ModelloImpostazioni::ScegliPlayer(bool esterno) {
  esterno_ = esterno;
  Tocca();
}

void ModelloImpostazioni::Sfoglia() {
  const std::string chosen =
      contesto_.Finestre.SfogliaCartella(TestoLingua(contesto_, "0090005"), cartella_);
  if (!Rifila(chosen).empty() && FolderExists(contesto_.Files, chosen)) CambiaCartella(chosen);
}

void ModelloImpostazioni::Salva() {
  contesto_.Errore.Clear();  // what is told below is of this save alone
  CambiaCartella(std::string(Rifila(cartella_)));
  const std::string folder = AggiungiBarra(cartella_);
  if (!FolderExists(contesto_.Files, folder)) {
    Inform(contesto_, "0090010", TestoLingua(contesto_, "0090015"));
    return;
  }
  Store(contesto_, "Path", "ProjectsDir", folder);
  Store(contesto_, "Config", "UseExternalPlayer", esterno_ ? "1" : "0");
  DiciEsito();
  if (scelta_) Store(contesto_, "Config", "LanguageFile", lingue_.at(*scelta_) + ".lan");
  ImpostaModificato(false);
}

void ModelloImpostazioni::DiciEsito() {
  if (!contesto_.Errore) {
    Inform(contesto_, "0090010", TestoLingua(contesto_, "0090009"));
    return;
  }
  const Error& error = contesto_.Errore.Last();
  Inform(contesto_, "0090011",
         TestoLingua(contesto_, "0090012") + "\r\nN°:" + std::to_string(error.Number()) + "\r\n" +
             error.Description());
}

bool ModelloImpostazioni::ChiedeUscita() {
  if (!modificato_) return true;
  return contesto_.Finestre.MostraMessaggio({TestoLingua(contesto_, "0090010"),
                                             TestoLingua(contesto_, "0090008"), Icona::Domanda,
                                             Pulsanti::SiNo, Risposta::Si}) == Risposta::Si;
}

}  // namespace kvr5
