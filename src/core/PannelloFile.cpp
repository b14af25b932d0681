#include "core/PannelloFile.h"

#include <algorithm>

#include "core/ElencoMp3.h"
#include "platform/NaturalOrder.h"

namespace kvr5 {

std::vector<FilePannello> FileDelPannello(const FileSystem& file, std::string_view cartella) {
  const auto entries = file.List(cartella);
  return FileDelPannello(entries ? entries.Value() : std::vector<FileInfo>{});
}

std::vector<FilePannello> FileDelPannello(const std::vector<FileInfo>& voci) {
  const ElencoMp3 list = RiempiElencoMp3(voci);
  std::vector<FilePannello> files;
  files.reserve(list.Voci.size());
  for (std::size_t i = 1; i < list.Voci.size(); ++i) {  // behind the blank
    files.push_back({list.Voci[i].Nome, list.Voci[i].Difetto});
  }
  std::ranges::sort(files, NaturalLess, &FilePannello::Nome);
  return files;
}

std::vector<std::string> NomiDa(const std::vector<FilePannello>& file) {
  std::vector<std::string> names;
  for (const FilePannello& each : file) {
    if (each.Difetto == NameFault::None) names.push_back(each.Nome);
  }
  return names;
}

std::vector<std::string> NomiDelPannello(const FileSystem& file, std::string_view cartella) {
  return NomiDa(FileDelPannello(file, cartella));
}

}  // namespace kvr5
