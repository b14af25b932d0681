#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

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
  bool Toglie = false;  ///< frmSiNo whose keyboard begins on no
};

/// A folder chooser that the logic opened.
struct SfogliaVisto {
  std::string Titolo;
  std::string Inizio;
};

/// The user of a test: answers questions from a script and remembers every box. A question or a
/// folder chooser without an answer, and a box that the test never looked at, fail the test.
class DialoghiFinti : public Dialoghi {
 public:
  ~DialoghiFinti() override;

  Risposta MostraMessaggio(const Messaggio& messaggio) override;
  std::uint8_t MostraSiNo(const BoxSiNo& box) override;
  std::string SfogliaCartella(const std::string& titolo, const std::string& inizio) override;
  std::string ScegliFile(const std::string& titolo, const FiltroFile& filtro,
                         const std::string& inizio) override;

  /// The answer to the next question.
  void Rispondi(Risposta risposta) { risposte_.push_back(risposta); }
  /// The folder that the next chooser gives; "" is a cancel.
  void ScegliCartella(std::string cartella) { cartelle_.push_back(std::move(cartella)); }
  /// The file that the next chooser of files gives; "" is a cancel.
  void ScegliFile(std::string file) { file_.push_back(std::move(file)); }
  /// The kinds of files that were offered so far.
  std::vector<FiltroFile> Filtri;
  /// The choosers so far.
  std::vector<SfogliaVisto> Sfogliate;
  /// The first box that wasn't looked at yet; fails the test when there is none.
  BoxVisto Prossimo();
  bool Silenzio() const { return visti_.empty(); }

  /// What a test wants to look at while a box stands on the screen.
  std::function<void(const BoxVisto&)> SuBox;

 private:
  void Vedi(BoxVisto box);
  std::string Scelto(std::deque<std::string>& risposte, const std::string& titolo,
                     const std::string& inizio);
  Risposta Risposta_(const std::string& titolo);

  std::deque<BoxVisto> visti_;
  std::deque<Risposta> risposte_;
  std::deque<std::string> cartelle_;
  std::deque<std::string> file_;
};

}  // namespace kvr5::test
