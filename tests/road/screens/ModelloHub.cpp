#include "road/screens/ModelloHub.h"

#include <algorithm>

namespace kvr5::test {
namespace {

constexpr int kLinkInputs = 0x30;  // IN5, IN6

std::string InputsOf(int code) {
  std::string names;
  for (int input = 1; input <= 8; ++input) {
    if ((code >> (input - 1) & 1) == 0) continue;
    names += (names.empty() ? "IN" : "+IN") + std::to_string(input);
  }
  return names;
}

/// Digits without the zeros in front.
std::string Plain(const std::string& digits) {
  const auto first = digits.find_first_not_of('0');
  return first == std::string::npos ? "0" : digits.substr(first);
}

}  // namespace

void ModelloHub::Apri(const std::string& cartella) {
  Codice = 0;
  for (const char* key : {"LOUT", "LLOU", "LTRE", "LBAS"}) Livelli[key] = std::stoi(Config[key]);
  for (const char* key : {"IMOD", "MICP"}) Opzioni[key] = Config[key] != "0";
  Opzioni["MIRS"] = true;  // whatever the file says
  Tempo = Config["TPCM"];
  TempoAcceso = Tempo != "0";
  Entra(cartella);
  RiempiElenco();
}

std::vector<std::string> ModelloHub::VociOra() {
  std::vector<std::string> now{" "};
  for (const auto& [name, good] : Dischi[Cartella]) now.push_back(name);
  return now;
}

void ModelloHub::Entra(const std::string& cartella) {
  Cartella = cartella;
  Voci = VociOra();
  Scelto = Voci.back() == " " ? " " : Voci[1];
  Valuta();
}

void ModelloHub::Spunta(int ingresso) {
  const int bit = 1 << (ingresso - 1);
  if (Linea485 && (bit & kLinkInputs) != 0) return;
  Codice ^= bit;
  Mostra();
}

void ModelloHub::ScegliCodice(int codice) {
  if (Linea485 && (codice & kLinkInputs) != 0) return;
  Codice = codice;
  Mostra();
}

void ModelloHub::Mostra() {
  if (Associato()) {
    const std::string& name = Righe[Codice].Nome;
    Scelto = std::ranges::find(Voci, name) == Voci.end() ? " " : name;
  }
  Valuta();
}

void ModelloHub::Torna() {
  RiempiElenco();
  if (Voci == VociOra()) return;
  Voci = VociOra();
  if (std::ranges::find(Voci, Scelto) == Voci.end()) Scelto = " ";
  Scelto == " " ? Mostra() : Valuta();
}

void ModelloHub::Scegli(const std::string& voce) {
  Scelto = voce;
  Valuta();
}

void ModelloHub::Valuta() {
  const auto& files = Dischi[Cartella];
  const auto file = files.find(Scelto);
  Ok = Codice > 0 && (Scelto == " " || (file != files.end() && file->second));
}

void ModelloHub::Conferma() {
  if (Scelto == " ") {
    Righe.erase(Codice);
  } else {
    Righe[Codice] = {Scelto, Cartella};
    Mostra();
  }
  RiempiElenco();
}

bool ModelloHub::Esiste(const Riga& riga) const {
  const auto folder = Dischi.find(riga.Cartella);
  return folder != Dischi.end() && folder->second.contains(riga.Nome);
}

bool ModelloHub::Rifiutato() const {
  const auto& files = Dischi.at(Cartella);
  const auto file = files.find(Scelto);
  return file != files.end() && !file->second;
}

void ModelloHub::RiempiElenco() {
  std::map<std::string, int> uses;
  for (const auto& [code, row] : Righe) ++uses[row.Cartella + "/" + row.Nome];
  Elenco.clear();
  for (const auto& [code, row] : Righe) {
    std::string mark = Esiste(row) ? "" : "missing";
    if (uses[row.Cartella + "/" + row.Nome] > 1) {
      mark += (mark.empty() ? "" : ", ") + std::string("same file: recording will stop");
    }
    if (Linea485 && (code & kLinkInputs) != 0) {
      mark += (mark.empty() ? "" : ", ") + std::string("in use by the RS-485 link");
    }
    Elenco.push_back(std::to_string(code) + "   " + InputsOf(code) + "   " + row.Nome +
                     (mark.empty() ? "" : "\n" + mark));
  }
}

bool ModelloHub::Registrabile() const {
  std::set<std::string> sources;
  return std::ranges::all_of(Righe, [&](const auto& row) {
    return Esiste(row.second) && sources.insert(row.second.Cartella + "/" + row.second.Nome).second;
  });
}

void ModelloHub::ScriviTempo(const std::string& cifre) {
  Tempo = cifre;
  TempoAcceso = cifre.empty() ? TempoAcceso : cifre != "0";
}

void ModelloHub::LasciaTempo() {
  if (Tempo.empty()) ScriviTempo("0");
  if (Plain(Tempo).size() > 3 || std::stoi(Tempo) > 255) ScriviTempo("255");
}

void ModelloHub::SpostaTempo(int passo) {
  ScriviTempo(std::to_string(std::clamp(std::stoi(Tempo) + passo, 0, 255)));
}

bool ModelloHub::DaSalvare() const {
  Valori saved;
  for (const auto& [key, value] : Livelli) saved[key] = std::to_string(value);
  for (const auto& [key, on] : Opzioni) saved[key] = on ? "1" : "0";
  saved["TPCM"] = Tempo;
  return std::ranges::any_of(saved, [this](const auto& each) {
    return Plain(Config.at(each.first)) != Plain(each.second);
  });
}

}  // namespace kvr5::test
