#include "projects/ListeDiTesto.h"

#include <algorithm>

#include "core/Aiuti.h"
#include "core/ParoleCopia.h"
#include "platform/CodePage.h"
#include "platform/Fold.h"
#include "platform/Path.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

/// A name may hold the end of a line outside Windows; it would make two of one.
std::string SenzaFineRiga(std::string testo) {
  for (char& each : testo) {
    if (each == '\r' || each == '\n') each = '?';
  }
  return testo;
}

}  // namespace

ListeDiTesto::UnaLista& ListeDiTesto::Lista(const std::string& nome) {
  // The last one first: rows come by playlist.
  const auto found = std::find_if(liste_.rbegin(), liste_.rend(),
                                  [&](const UnaLista& each) { return EqualFold(each.Nome, nome); });
  return found != liste_.rend() ? *found : liste_.emplace_back(UnaLista{nome, {}, false});
}

void ListeDiTesto::Aggiungi(const std::string& nome, const std::string& riga) {
  (Lista(nome).Testo += SenzaFineRiga(riga)) += "\r\n";
}

void ListeDiTesto::AggiungiPercorso(const std::string& nome, const std::string& percorso) {
  UnaLista& list = Lista(nome);
  list.PerIlComputer = true;
  (list.Testo += SenzaFineRiga(PerIlComputer(percorso))) += "\r\n";
}

ListeDiTesto::CartellaVista& ListeDiTesto::Vista(const std::string& cartella) {
  const auto [place, isNew] = cartelle_.try_emplace(cartella);
  if (!isNew) return place->second;
  if (const auto entries = contesto_.Files.List(cartella)) {
    for (const FileInfo& each : entries.Value()) place->second.Nomi.insert(each.Name);
  }
  return place->second;
}

std::string ListeDiTesto::PerIlComputer(const std::string& percorso) {
  const std::string folder = EstraiCartella(percorso);
  const std::string name = EstraiNomeFile(percorso);
  CartellaVista& seen = Vista(folder);
  const bool spelledSo = seen.Nomi.contains(name);
  if (spelledSo && !seen.Davanti.empty()) return seen.Davanti + name;
  std::string path = PercorsoPerPersone(contesto_, percorso);
  if (spelledSo && path.ends_with(name)) seen.Davanti = path.substr(0, path.size() - name.size());
  return path;
}

void ListeDiTesto::Scrivi() {
  for (const UnaLista& each : liste_) contesto_.Errore.Record(Scrivi(each));
}

Error ListeDiTesto::Scrivi(const UnaLista& lista) const {
  if (!CardCanHold(lista.Nome)) return Error(errors::BadFileName);
  // Written anew: what an old one that couldn't be deleted holds must not come twice.
  auto file = contesto_.Files.Open(FileDelProgetto(contesto_, lista.Nome), OpenMode::Write);
  if (!file) return file.Err();
  const CodePage page(contesto_.Luogo.AnsiCodePage);
  const bool marked = lista.PerIlComputer && !page.CanEncode(lista.Testo);
  const Error written =
      file.Value()->Write(marked ? "\xEF\xBB\xBF" + lista.Testo : page.Encode(lista.Testo));
  const Error closed = file.Value()->Close();
  return written ? written : closed;
}

std::string SenzaMp3(std::string_view testo, bool maiuscole) {
  constexpr std::string_view kEnding = ".mp3";
  std::string rest;
  for (std::size_t at = 0; at < testo.size();) {
    const std::string_view here = testo.substr(at, kEnding.size());
    if (maiuscole ? here == kEnding : EqualFold(here, kEnding)) {
      at += kEnding.size();
    } else {
      rest += testo[at++];
    }
  }
  return rest;
}

}  // namespace kvr5
