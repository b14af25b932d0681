#include "playerconfig/Assegnati.h"

#include <utility>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "playerconfig/CodiceIngressi.h"
#include "playerconfig/NomiCartella.h"
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
    const bool missing = !copied && (name.empty() || !FileExists(context_.Files, path));
    const std::int64_t code = row.Pos.value_or(0);
    list_.Righe.push_back({code, NomeIngressi(code), name, path, missing, false});
    if (missing) ++list_.Mancanti;
    if (copied) {
      Note(FileDelProgetto(context_, alias));
    } else if (!alias.empty() && !name.empty()) {
      MarkSame(folder + name);
    }
  }

  ElencoAssegnati Take() { return std::move(list_); }

 private:
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

std::string Counted(Contesto& context, std::size_t count, const char* oneKey, const char* one,
                    const char* manyKey, const char* many) {
  const std::string word =
      count == 1 ? TestoLinguaO(context, oneKey, one) : TestoLinguaO(context, manyKey, many);
  return std::to_string(count) + " " + word;
}

}  // namespace

ElencoAssegnati Assegnati(const Contesto& contesto, const std::vector<RigaIngresso>& righe) {
  Collecting collecting(contesto);
  for (const auto& row : righe) collecting.Add(row);
  return collecting.Take();
}

std::string CifreAssegnati(Contesto& contesto, const ElencoAssegnati& elenco) {
  std::string figures =
      Counted(contesto, elenco.Righe.size(), "0040060", "file", "0040061", "files");
  if (elenco.Mancanti > 0) {
    figures +=
        ", " + Counted(contesto, elenco.Mancanti, "0040062", "missing", "0040063", "missing");
  }
  return figures;
}

ParoleAssegnato::ParoleAssegnato(Contesto& contesto)
    : Mancante(TestoLinguaO(contesto, "0040062", "missing")),
      StessoFile(TestoLinguaO(contesto, "0040064", "same file: recording will stop")),
      EraQui(TestoLinguaO(contesto, "0130129", "It was here:")),
      AltroIngresso(TestoLingua(contesto, "0130131")) {}

std::string SegnoAssegnato(const ParoleAssegnato& parole, const Assegnato& riga) {
  std::string mark;
  if (riga.Mancante) mark = parole.Mancante;
  if (!riga.StessoFile) return mark;
  if (!mark.empty()) mark += ", ";
  return mark + parole.StessoFile;
}

std::string SegnoAssegnato(Contesto& contesto, const Assegnato& riga) {
  return SegnoAssegnato(ParoleAssegnato(contesto), riga);
}

}  // namespace kvr5
