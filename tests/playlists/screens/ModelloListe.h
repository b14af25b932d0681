#pragma once

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace kvr5::test {

/// The playlists of a project as plain lists of names: what a session in the editor is to come to.
struct ModelloListe {
  using Nomi = std::vector<std::string>;

  std::map<int, Nomi> Liste;
  std::map<std::string, int> Testate;  ///< the named lists, by name
  int Corrente = 0;                    ///< the number of the list that is edited
  int Indice = -1;                     ///< of the selector
  int Contati = 0;                     ///< what lblPlaylistFiles says
  int Modifiche = 0;

  Nomi& Lista() { return Liste[Corrente]; }
  int Quanti() { return static_cast<int>(Lista().size()); }
  bool Vuoto() const {
    return std::ranges::all_of(Liste, [](const auto& each) { return each.second.empty(); });
  }

  /// The grid is read afresh, which is what brings the count up to date.
  void Rileggi() { Contati = Quanti(); }
  void Seleziona(int indice, int daUno) {
    Indice = indice;
    Corrente = indice + daUno;
    Rileggi();
  }
  void Aggiungi(const std::string& nome) {
    Lista().push_back(nome);
    ++Modifiche;
  }
  void Rimuovi(std::vector<int> righe) {
    std::ranges::sort(righe, std::greater<>());
    for (const int each : righe) Lista().erase(Lista().begin() + each);
    Modifiche += static_cast<int>(righe.size());
    Rileggi();
  }
  /// Moves rows by one place, those at the end excepted; the rows' new places.
  std::vector<int> Sposta(std::vector<int> righe, bool su) {
    std::ranges::sort(righe);
    if (!su) std::ranges::reverse(righe);
    int limit = su ? 0 : Quanti() - 1;
    for (int& each : righe) {
      if (each == limit) {
        limit += su ? 1 : -1;
        continue;
      }
      const int other = each + (su ? -1 : 1);
      std::swap(Lista().at(static_cast<std::size_t>(each)),
                Lista().at(static_cast<std::size_t>(other)));
      each = other;
      ++Modifiche;
    }
    std::ranges::sort(righe);
    return righe;
  }
  void Svuota() {
    Lista().clear();
    ++Modifiche;
    Rileggi();
  }
  int PostoDi(const std::string& nome) const {
    return static_cast<int>(std::distance(Testate.begin(), Testate.find(nome)));
  }
  void AggiungiTestata(const std::string& nome) {
    int highest = 0;
    for (const auto& each : Testate) highest = std::max(highest, each.second);
    Testate[nome] = highest + 1;
    ++Modifiche;
    Seleziona(PostoDi(nome), 1);
  }
  /// Takes the list of the selector's place away, whatever name that shows.
  void RimuoviTestata() {
    Liste.erase(Corrente);
    std::erase_if(Testate, [this](const auto& each) { return each.second == Corrente; });
    ++Modifiche;
    if (Testate.empty()) {
      Indice = -1;
      Rileggi();
    } else {
      Seleziona(0, 1);
    }
  }

  /// The rows of the grid, "1 a.mp3".
  Nomi Griglia() {
    Nomi rows;
    for (const std::string& each : Lista()) {
      rows.push_back(std::to_string(rows.size() + 1) + " " + each);
    }
    return rows;
  }
  /// All rows of the saved database, "1-2 a.mp3".
  Nomi Tutti() const {
    Nomi rows;
    for (const auto& [number, names] : Liste) {
      int pos = 0;
      for (const std::string& each : names) {
        rows.push_back(std::to_string(number) + "-" + std::to_string(++pos) + " " + each);
      }
    }
    return rows;
  }
  /// The lines for the card of each list: names that a file has from the first row it stands in,
  /// or one for each row where its name holds an apostrophe.
  std::map<int, std::string> RigheDiScheda() const {
    std::map<int, std::string> lines;
    std::map<std::string, std::string> known;
    for (const auto& [number, names] : Liste) {
      int pos = 0;
      for (const std::string& each : names) {
        char own[16];
        std::snprintf(own, sizeof own, "P%02d-%03d", number, ++pos);
        const bool alone = each.find('\'') != std::string::npos;
        lines[number] += (alone ? own : known.try_emplace(each, own).first->second) + "\r\n";
      }
    }
    return lines;
  }
};

}  // namespace kvr5::test
