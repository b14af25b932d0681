#include "playerconfig/ModoDelPlayer.h"

#include "core/Aiuti.h"

namespace kvr5 {
namespace {

constexpr std::string_view kZubPlayer = "Zub Player";

std::string_view Behind(std::string_view text, std::string_view mark) {
  const auto at = text.find(mark);
  return at == std::string_view::npos ? std::string_view{} : text.substr(at + mark.size());
}

}  // namespace

std::string_view ModoDelPlayer(std::string_view lblTipoPlayer) {
  if (lblTipoPlayer.find('(') == std::string_view::npos) {
    return Rifila(Behind(lblTipoPlayer, kZubPlayer));
  }
  const auto inside = Behind(lblTipoPlayer, "(");
  const auto end = inside.find(')');
  return end == std::string_view::npos ? std::string_view{} : Rifila(inside.substr(0, end));
}

EtichetteModo EtichetteDelModo(std::string_view lblTipoPlayer, std::string_view modo) {
  const std::string mode(ModoDelPlayer(lblTipoPlayer));
  const std::string labelled = std::string(modo) + ":" + mode;
  return {labelled, labelled, labelled, labelled, mode, mode};
}

}  // namespace kvr5
