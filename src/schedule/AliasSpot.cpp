#include "schedule/AliasSpot.h"

#include "platform/Locale.h"

namespace kvr5 {

std::string AliasDelloSpot(std::string_view giorno, int segmento, std::string_view pos) {
  std::string alias("F");
  alias.append(giorno).append("-").append(FormatDigits(segmento, 3)).append(pos).append(".mp3");
  return alias;
}

int NumeroSegmento::Di(std::string_view giorno, std::string_view segmento) {
  if (numero_ == 0 || giorno != giorno_) {
    numero_ = 1;
  } else if (segmento != segmento_) {
    ++numero_;
  }
  giorno_ = giorno;
  segmento_ = segmento;
  return numero_;
}

}  // namespace kvr5
