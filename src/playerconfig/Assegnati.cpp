#include "playerconfig/Assegnati.h"

#include <utility>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "playerconfig/CodiceIngressi.h"
#include "playerconfig/NomiCartella.h"
#include "playerconfig/ParoleConto.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

/// Walks the rows like the collecting of a recording does, without its end at the first fault.
class Collecting {
 public:
  explicit Collecting(const Contesto& context)
      : context_(context), project_(context.Files, context.Stato.CartellaProgetto) {}

  void Add(const RigaIngresso& row) {
    const std::string name = row.FileName.value_or("");
    const std::string folder = row.FilePath.value_or("");
    const std::string alias = row.Alias.value_or("");
    const std::string path = AggiungiBarra(folder) + name;
    const bool copied = !alias.empty() && project_.Contiene(alias);
    const bool missing = !copied && (name.empty() || !FileExists(context_.Files, folder + name));
    const std::int64_t code = row.Pos.value_or(0);
    list_.Righe.push_back({code, NomeIngressi(code), name, path, missing, false, OfTheLink(code)});
    if (missing) ++list_.Mancanti;
    if (copied) {
      Note(FileDelProgetto(context_, alias));
    } else if (!alias.empty() && !name.empty()) {
      MarkSame(folder + name);
    }
  }

  ElencoAssegnati Take() { return std::move(list_); }

 private:
  bool OfTheLink(std::int64_t code) const {
    constexpr std::int64_t kIn5And6 = 0x30;
    constexpr std::int16_t kKvr5 = 4;
    const auto& state = context_.Stato;
    return state.PlayerType == kKvr5 && state.Usa485 && (code & kIn5And6) != 0;
  }

  struct Listed {
    std::string Source;  // folded
    std::size_t Row;
  };

  void Note(const std::string& path) {
    listed_.push_back({FoldCase(path), list_.Righe.size() - 1});
  }

  void MarkSame(const std::string& path) {
    const std::string source = FoldCase(path);
    auto& rows = list_.Righe;
    for (const auto& earlier : listed_) {
      if (!earlier.Source.starts_with(source)) continue;
      rows[earlier.Row].StessoFile = rows.back().StessoFile = true;
      return;
    }
    Note(path);
  }

  const Contesto& context_;
  NomiCartella project_;
  ElencoAssegnati list_;
  std::vector<Listed> listed_;
};

}  // namespace

ElencoAssegnati Assegnati(const Contesto& contesto, const std::vector<RigaIngresso>& righe) {
  Collecting collecting(contesto);
  for (const auto& row : righe) collecting.Add(row);
  return collecting.Take();
}

std::string CifreAssegnati(Contesto& contesto, const ElencoAssegnati& elenco) {
  std::string figures =
      Contati(contesto, elenco.Righe.size(), {"0040060", "file", "0040061", "files"});
  if (elenco.Mancanti > 0) figures += ", " + ParoleMancanti(contesto, elenco.Mancanti);
  return figures;
}

ParoleAssegnato::ParoleAssegnato(Contesto& contesto)
    : Mancante(TestoLinguaO(contesto, "0040062", "missing")),
      StessoFile(TestoLinguaO(contesto, "0040064", "same file: recording will stop")),
      EraQui(TestoLinguaO(contesto, "0130129", "It was here:")),
      AltroIngresso(TestoLingua(contesto, "0130131")),
      Collegamento(TestoLinguaO(contesto, "0130133", "in use by the RS-485 link")),
      LiberaCollegamento(TestoLingua(contesto, "0130232")) {}

std::string SegnoAssegnato(const ParoleAssegnato& parole, const Assegnato& riga) {
  std::string mark;
  const auto add = [&mark](bool holds, const std::string& words) {
    if (holds) mark += (mark.empty() ? "" : ", ") + words;
  };
  add(riga.Mancante, parole.Mancante);
  add(riga.StessoFile, parole.StessoFile);
  add(riga.DelCollegamento, parole.Collegamento);
  return mark;
}

std::string SegnoAssegnato(Contesto& contesto, const Assegnato& riga) {
  return SegnoAssegnato(ParoleAssegnato(contesto), riga);
}

}  // namespace kvr5
