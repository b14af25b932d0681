#pragma once

#include "core/Dialoghi.h"
#include "core/screens/Ambiente.h"
#include "core/screens/FormPredefinita.h"
#include "core/screens/frmSiNo.h"

class QFileDialog;

namespace kvr5 {

/// The boxes and choosers of the logic as windows.
class FinestreQt : public Dialoghi {
 public:
  FinestreQt() = default;
  /// What the boxes are made with; to be called once, before the first box.
  void Collega(Ambiente& ambiente) { ambiente_ = &ambiente; }

  Risposta MostraMessaggio(const Messaggio& messaggio) override;
  std::uint8_t MostraSiNo(const BoxSiNo& box) override;
  std::string SfogliaCartella(const std::string& titolo, const std::string& inizio) override;
  std::string ScegliFile(const std::string& titolo, const FiltroFile& filtro,
                         const std::string& inizio) override;

 private:
  /// Runs a chooser; the path in the system's form, "" for none.
  std::string Scegli(QFileDialog& box);
  /// A folder or file that no path of the system can name: the choice is told, not dropped in
  /// silence.
  void DiciCartellaInadatta();

  Ambiente* ambiente_ = nullptr;
  FormPredefinita<frmSiNo> frmSiNo_{[this] { return new frmSiNo(*ambiente_); }};
};

}  // namespace kvr5
