#include "playlists/PannelloFile.h"

#include <algorithm>

#include "platform/NaturalOrder.h"
#include "playerconfig/ElencoMp3.h"

namespace kvr5 {

std::vector<FilePannello> FileDelPannello(const FileSystem& file, std::string_view cartella) {
  const ElencoMp3 list = RiempiElencoMp3(file, cartella);
  std::vector<FilePannello> files;
  files.reserve(list.Voci.size());
  for (std::size_t i = 1; i < list.Voci.size(); ++i) {  // behind the blank
    files.push_back({list.Voci[i].Nome, list.Voci[i].Difetto});
  }
  std::ranges::sort(files, NaturalLess, &FilePannello::Nome);
  return files;
}

std::vector<std::string> NomiDelPannello(const FileSystem& file, std::string_view cartella) {
  std::vector<std::string> names;
  for (auto& each : FileDelPannello(file, cartella)) {
    if (each.Difetto == NameFault::None) names.push_back(std::move(each.Nome));
  }
  return names;
}

}  // namespace kvr5
