#include "support/Lingue.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "platform/CodePage.h"

namespace kvr5::test {
namespace {

std::filesystem::path LanguageFolder() {
  return std::filesystem::path(KVR5_STAGED_PROGRAM) / "Language";
}

std::string Unquoted(const std::string& text) {
  const bool quoted = text.size() >= 2 && text.front() == '"' && text.back() == '"';
  return quoted ? text.substr(1, text.size() - 2) : text;
}

}  // namespace

std::vector<std::string> FileDiLingua() {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(LanguageFolder())) {
    files.push_back(entry.path().filename().string());
  }
  std::ranges::sort(files);
  return files;
}

std::string LinguaSpedita(const std::string& file) {
  std::ifstream in(LanguageFolder() / file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::map<std::string, std::string> VociDiLingua(const std::string& file,
                                                const std::string& sezione) {
  std::map<std::string, std::string> texts;
  std::istringstream lines(CodePage(1252).Decode(LinguaSpedita(file)));
  bool inside = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (line.starts_with('[')) inside = line == "[" + sezione + "]";
    const auto sign = line.find('=');
    if (!inside || sign == std::string::npos) continue;
    // A key may end in a blank, which counts for nobody who asks.
    texts[line.substr(0, line.find_last_not_of(' ', sign - 1) + 1)] =
        Unquoted(line.substr(sign + 1));
  }
  return texts;
}

std::string NomeDiProva(const testing::TestParamInfo<std::string>& lingua) {
  std::string name = lingua.param.substr(0, lingua.param.find('.'));
  std::erase_if(name,
                [](char each) { return std::isalpha(static_cast<unsigned char>(each)) == 0; });
  return name;
}

}  // namespace kvr5::test
