#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>

#include "core/Dialoghi.h"

namespace kvr5::test {

/// A box that the logic showed.
struct BoxVisto {
  std::string Titolo;
  std::string Testo;
  bool SiNo = false;    ///< frmSiNo, not the plain box
  bool SoloOk = false;  ///< one button
  std::string TestoOk;  ///< caption of frmSiNo's only button
  Icona Segno = Icona::Nessuna;
  std::uint32_t Colore = 0;
};

/// The user of a test: answers questions from a script and remembers every box. A question without
/// an answer, and a box that the test never looked at, fail the test.
class DialoghiFinti : public Dialoghi {
 public:
  ~DialoghiFinti() override;

  Risposta MostraMessaggio(const Messaggio& messaggio) override;
  std::uint8_t MostraSiNo(const BoxSiNo& box) override;

  /// The answer to the next question.
  void Rispondi(Risposta risposta) { risposte_.push_back(risposta); }
  /// The first box that wasn't looked at yet; fails the test when there is none.
  BoxVisto Prossimo();
  bool Silenzio() const { return visti_.empty(); }

  /// What a test wants to look at while a box stands on the screen.
  std::function<void(const BoxVisto&)> SuBox;

 private:
  void Vedi(BoxVisto box);
  Risposta Risposta_(const std::string& titolo);

  std::deque<BoxVisto> visti_;
  std::deque<Risposta> risposte_;
};

}  // namespace kvr5::test
