#include "core/LinguaLetta.h"

#include <algorithm>

#include "core/Impostazioni.h"
#include "platform/FileOps.h"
#include "platform/IniFile.h"
#include "platform/IniLines.h"

namespace kvr5 {
namespace {

constexpr const char* kSection = "Strings";

LinguaLetta* g_ultima = nullptr;

/// A key that is compared byte by byte; all of the program's are such.
bool IsPlain(std::string_view key) {
  return !key.empty() &&
         std::ranges::all_of(key, [](char each) { return each >= '0' && each <= '9'; });
}

}  // namespace

LinguaLetta::LinguaLetta(Contesto& contesto)
    : contesto_(contesto),
      file_(contesto.Stato.FileLingua),
      pagina_(PaginaDelFile(contesto, file_)),
      prima_(g_ultima) {
  g_ultima = this;
  auto content = ReadWhole(contesto.Files, file_);
  if (!content) return;
  contenuto_ = std::move(content.Value());
  ordinaria_ = !contenuto_.starts_with("\xFF\xFE");  // the mark of UTF-16
  if (ordinaria_) Indicizza();
}

LinguaLetta::~LinguaLetta() {
  g_ultima = prima_;
}

const LinguaLetta* LinguaLetta::Per(const Contesto& contesto) {
  const bool holds = g_ultima != nullptr && &g_ultima->contesto_ == &contesto &&
                     g_ultima->file_ == contesto.Stato.FileLingua;
  return holds ? g_ultima : nullptr;
}

void LinguaLetta::Indicizza() {
  ini::LineReader reader(contenuto_);
  ini::Line line;
  if (!ini::FindSection(reader, ini::Wanted(kSection, pagina_), line)) return;
  while (ini::NextInSection(reader, line)) {
    if (line.Kind != ini::LineKind::Key && line.Kind != ini::LineKind::Other) continue;
    // The first line of a name counts.
    righe_.emplace(line.Name,
                   std::string_view(contenuto_).substr(line.Start, line.End - line.Start));
  }
}

std::optional<std::string> LinguaLetta::Testo(std::string_view chiave) const {
  if (!ordinaria_ || !IsPlain(chiave)) return std::nullopt;
  const auto found = righe_.find(chiave);
  if (found == righe_.end()) return std::string();
  // By the rules of a reading, on a file of this line alone.
  const std::string alone = std::string("[") + kSection + "]\r\n" + std::string(found->second);
  return pagina_.Decode(ini::Read(alone, kSection, chiave, "", kCaratteriTesto + 1, pagina_));
}

}  // namespace kvr5
