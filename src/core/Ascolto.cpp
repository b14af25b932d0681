#include "core/Ascolto.h"

#include "platform/FileOps.h"

namespace kvr5 {

void Ascolto::ApriFuori(Esecutore& documenti, const std::string& file) {
  documenti.Apri(file, " /PLAY");
}

bool Ascolto::Suona(Anteprima& player, const std::string& file) {
  const Error opened = player.Open(file);
  const Error played = player.Play();
  return !opened && !played;
}

void Ascolto::Zittisci(Anteprima& player) {
  player.Stop();
  player.Close();
}

bool Ascolto::Esiste(const std::string& cartella, const std::string& nome) const {
  return !nome.empty() && FileExists(contesto_.Files, cartella + nome);
}

}  // namespace kvr5
