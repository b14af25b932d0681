#include "core/ElencoMp3.h"

#include "core/Lingua.h"
#include "platform/Fold.h"

namespace kvr5 {
namespace {

bool IsMp3(const FileInfo& entry) {
  constexpr std::string_view kEnding = ".mp3";
  const std::string_view name = entry.Name;
  return !entry.IsFolder && !entry.Hidden && !entry.System && name.size() >= kEnding.size() &&
         EqualFold(name.substr(name.size() - kEnding.size()), kEnding);
}

template <typename Match>
std::optional<std::size_t> FirstFile(const std::vector<VoceMp3>& items, Match match) {
  for (std::size_t i = 1; i < items.size(); ++i) {
    if (items[i].Difetto == NameFault::None && match(items[i].Nome)) return i;
  }
  return {};
}

}  // namespace

std::optional<std::size_t> ElencoMp3::Indice(std::string_view nome) const {
  if (const auto same = FirstFile(Voci, [&](const auto& each) { return each == nome; })) {
    return same;
  }
  return FirstFile(Voci, [&](const auto& each) { return EqualFold(each, nome); });
}

ElencoMp3 RiempiElencoMp3(const FileSystem& file, std::string_view cartella) {
  const auto entries = file.List(cartella);
  return RiempiElencoMp3(entries ? entries.Value() : std::vector<FileInfo>{});
}

ElencoMp3 RiempiElencoMp3(const std::vector<FileInfo>& voci) {
  ElencoMp3 list{{{" ", NameFault::None}}, 0};
  list.Voci.reserve(voci.size() + 1);
  for (const auto& entry : voci) {
    if (IsMp3(entry)) list.Voci.push_back({entry.Name, entry.Unusable});
  }
  list.Scelto = FirstFile(list.Voci, [](const auto&) { return true; }).value_or(0);
  return list;
}

std::string ParoleDifetto(Contesto& contesto, NameFault difetto) {
  switch (difetto) {
    case NameFault::NotUtf8:
      return TestoLinguaO(contesto, "0040065", "Rename this file: its name isn't readable.");
    case NameFault::Reserved:
      return TestoLinguaO(contesto, "0040066",
                          "Rename this file: its name holds one of | : \\ * ?");
    default:
      return {};
  }
}

}  // namespace kvr5
