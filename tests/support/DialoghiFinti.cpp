#include "support/DialoghiFinti.h"

#include <gtest/gtest.h>

#include <utility>

namespace kvr5::test {

DialoghiFinti::~DialoghiFinti() {
  for (const auto& box : visti_) ADD_FAILURE() << "nobody looked at the box: " << box.Testo;
  EXPECT_TRUE(risposte_.empty()) << "answers were left over";
  EXPECT_TRUE(cartelle_.empty()) << "folders were left over";
  EXPECT_TRUE(file_.empty()) << "files were left over";
}

Risposta DialoghiFinti::Risposta_(const std::string& titolo) {
  if (risposte_.empty()) {
    ADD_FAILURE() << "nobody expected the question: " << titolo;
    return Risposta::No;
  }
  const Risposta answer = risposte_.front();
  risposte_.pop_front();
  return answer;
}

void DialoghiFinti::Vedi(BoxVisto box) {
  if (SuBox) SuBox(box);
  visti_.push_back(std::move(box));
}

Risposta DialoghiFinti::MostraMessaggio(const Messaggio& messaggio) {
  const bool onlyOk = messaggio.Scelte == Pulsanti::Ok;
  Vedi({messaggio.Titolo, messaggio.Testo, false, onlyOk, {}, messaggio.Segno, 0});
  return onlyOk ? Risposta::Ok : Risposta_(messaggio.Titolo);
}

std::uint8_t DialoghiFinti::MostraSiNo(const BoxSiNo& box) {
  Vedi({box.Titolo, box.Nota, true, box.SoloOk.has_value(), box.SoloOk.value_or(""), Icona::Nessuna,
        box.ColoreNota.value_or(0), box.Toglie});
  if (box.SoloOk) return 1;
  const Risposta answer = Risposta_(box.Titolo);
  if (answer == Risposta::Annulla) return 0;
  return answer == Risposta::Si ? 1 : 2;
}

std::string DialoghiFinti::SfogliaCartella(const std::string& titolo, const std::string& inizio) {
  return Scelto(cartelle_, titolo, inizio);
}

std::string DialoghiFinti::ScegliFile(const std::string& titolo, const FiltroFile& filtro,
                                      const std::string& inizio) {
  Filtri.push_back(filtro);
  return Scelto(file_, titolo, inizio);
}

std::string DialoghiFinti::Scelto(std::deque<std::string>& risposte, const std::string& titolo,
                                  const std::string& inizio) {
  Sfogliate.push_back({titolo, inizio});
  if (risposte.empty()) {
    ADD_FAILURE() << "nobody expected the chooser: " << titolo;
    return {};
  }
  std::string chosen = risposte.front();
  risposte.pop_front();
  return chosen;
}

BoxVisto DialoghiFinti::Prossimo() {
  if (visti_.empty()) {
    ADD_FAILURE() << "no box was shown";
    return {};
  }
  BoxVisto box = visti_.front();
  visti_.pop_front();
  return box;
}

}  // namespace kvr5::test
