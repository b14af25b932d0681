#include "core/Aiuti.h"

#include <array>

namespace kvr5 {

std::string RiempiZeri(std::string_view testo, std::size_t lunghezza) {
  std::string result;
  if (testo.size() < lunghezza) result.assign(lunghezza - testo.size(), '0');
  return result.append(testo);
}

std::string AggiungiBarra(std::string_view percorso) {
  std::string result(percorso);
  if (!result.ends_with('\\')) result += '\\';
  return result;
}

std::string EstraiCartella(std::string_view percorso) {
  const auto bar = percorso.rfind('\\');
  return bar == std::string_view::npos ? std::string() : std::string(percorso.substr(0, bar + 1));
}

std::string EstraiNomeFile(std::string_view percorso) {
  const auto bar = percorso.rfind('\\');
  return std::string(bar == std::string_view::npos ? percorso : percorso.substr(bar + 1));
}

std::string TogliEstensione(std::string_view nome) {
  const auto dot = nome.rfind('.');
  return dot == std::string_view::npos ? std::string() : std::string(nome.substr(0, dot));
}

std::string NomeModello(std::int16_t tipo) {
  constexpr std::array<std::string_view, 4> kNames{"Veskadro", "Zub", "Ostrel", "KVR5"};
  if (tipo < 1 || tipo > static_cast<std::int16_t>(kNames.size())) return {};
  return std::string(kNames[static_cast<std::size_t>(tipo - 1)]);
}

std::string_view Rifila(std::string_view testo) {
  const auto first = testo.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return testo.substr(first, testo.find_last_not_of(' ') - first + 1);
}

}  // namespace kvr5
