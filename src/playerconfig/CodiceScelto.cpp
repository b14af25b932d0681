#include "playerconfig/CodiceScelto.h"

#include <algorithm>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "platform/Path.h"
#include "platform/Utf8.h"
#include "playerconfig/CodiceIngressi.h"

namespace kvr5 {
namespace {

constexpr std::uint32_t kRed = 0x0000FF;  // colours are blue-green-red
constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kBlack = 0;
constexpr std::uint32_t kLinkBlue = 0xA24000;
constexpr std::array<std::size_t, 2> kLinkInputs{4, 5};  // IN5, IN6

/// The caption up to its first "- ", all of it where it has none.
std::string UpToDash(std::string_view caption) {
  constexpr std::string_view kDash = "- ";
  const auto at = caption.find(kDash);
  return std::string(at == std::string_view::npos ? caption : caption.substr(0, at + kDash.size()));
}

}  // namespace

bool EtichettaTroppoLunga(std::string_view testo) {
  constexpr std::size_t kTooLong = 39;
  std::size_t characters = 0;
  for (; !testo.empty() && characters < kTooLong; ++characters) {
    testo.remove_prefix(utf8::Next(testo).Length);
  }
  return characters >= kTooLong;
}

CodiceScelto::CodiceScelto(Contesto& contesto, TabellaIngressi& ingressi,
                           std::string_view lblfraFileName)
    : contesto_(contesto),
      tabella_(ingressi),
      prefisso_(UpToDash(lblfraFileName)),
      titolo_(lblfraFileName) {}

std::int16_t CodiceScelto::Codice() const {
  std::array<bool, 8> ticked{};
  std::transform(ingressi_.begin(), ingressi_.end(), ticked.begin(),
                 [](const auto& each) { return each.Spuntato; });
  return CodiceIngressi(ticked);
}

void CodiceScelto::Imposta(std::size_t indice, bool spuntato) {
  ingressi_[indice].Spuntato = spuntato;
  ingressi_[indice].ColoreLampada = spuntato ? kRed : kWhite;
}

void CodiceScelto::Spunta(int numero, bool spuntato) {
  if (numero < 1 || numero > 8 || !Ingresso(numero).Abilitato) return;
  Imposta(static_cast<std::size_t>(numero - 1), spuntato);
  AggiornaIngressoSelezionato();
}

bool CodiceScelto::Scegli(std::int64_t codice) {
  if (codice < 0 || codice > 255) return false;
  const auto wanted = [codice](std::size_t i) { return (codice >> i & 1) != 0; };
  for (std::size_t i = 0; i < ingressi_.size(); ++i) {
    // Without one of its boxes another combination would be ticked, and its file be lost.
    if (wanted(i) && !ingressi_[i].Abilitato) return false;
  }
  for (std::size_t i = 0; i < ingressi_.size(); ++i) {
    if (ingressi_[i].Abilitato) Imposta(i, wanted(i));
  }
  AggiornaIngressoSelezionato();
  return true;
}

bool CodiceScelto::AbilitaIngressiRs485() {
  if (contesto_.Stato.PlayerType != 4) return false;
  const bool link = contesto_.Stato.Usa485;
  const std::int16_t before = Codice();
  for (const auto i : kLinkInputs) {
    ingressi_[i].Abilitato = !link;
    ingressi_[i].ColoreTesto = link ? kLinkBlue : kBlack;
    if (link) Imposta(i, false);
  }
  if (Codice() == before) return false;
  AggiornaIngressoSelezionato();
  return true;
}

void CodiceScelto::AggiornaIngressoSelezionato() {
  daScegliere_.reset();
  cartella_.clear();
  titolo_ = prefisso_;
  const std::int16_t code = Codice();
  if (code == 0) return;
  titolo_ += AliasIngresso(code);
  etichetta_ = TestoLingua(contesto_, "0040032");
  if (!tabella_.Cerca(code)) return;
  daScegliere_ = tabella_.Cursore().Text("FileName");
  cartella_ = tabella_.Cursore().Text("FilePath");
  etichetta_ += *daScegliere_;
}

void CodiceScelto::Conferma(const std::string& file, const std::string& cartella) {
  const std::int16_t code = Codice();
  if (code == 0 || FaultOf(file) != NameFault::None) return;
  if (file == " ") {
    tabella_.Libera(code);
    if (contesto_.Errore) return;  // it is still there
    daScegliere_.reset();
    cartella_.clear();
  } else if (!Rifila(file).empty()) {
    tabella_.Assegna(code, file, cartella);
    AggiornaIngressoSelezionato();
  }
}

bool CodiceScelto::lblEtichettaTroppoLungaVisibile() const {
  return EtichettaTroppoLunga(etichetta_);
}

}  // namespace kvr5
