#include "platform/IniCases.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "platform/Utf8.h"

namespace kvr5::test {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

/// In the files a character up to U+00FF is one byte.
std::string Bytes(const std::string& utf8) {
  std::string bytes;
  for (std::string_view rest = utf8; !rest.empty();) {
    const utf8::Step step = utf8::Next(rest);
    bytes += static_cast<char>(step.Value);
    rest.remove_prefix(step.Length);
  }
  return bytes;
}

std::optional<std::string> Optional(const Json& object, const char* name) {
  const auto found = object.find(name);
  if (found == object.end() || found->is_null()) return std::nullopt;
  return Bytes(found->get<std::string>());
}

IniCase ToCase(const Json& object) {
  IniCase one;
  one.Id = object.at("id").get<std::string>();
  one.What = object.value("what", "");
  one.Section = Optional(object, "section");
  one.Key = Optional(object, "key");
  if (object.contains("after")) {
    one.File = Optional(object, "before");
    one.Value = Optional(object, "value");
    one.Result = Optional(object, "after").value_or("");
  } else {
    one.File = Optional(object, "file");
    one.Default = Optional(object, "default").value_or("");
    one.Size = object.at("size").get<std::size_t>();
    one.Result = Bytes(object.at("value").get<std::string>());
  }
  return one;
}

std::vector<IniCase> Load(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return {};
  std::vector<IniCase> cases;
  for (const Json& object : Json::parse(in)) cases.push_back(ToCase(object));
  return cases;
}

}  // namespace

std::vector<IniCase> IniCases(const std::string& kind) {
  return Load(fs::path(KVR5_TEST_DATA) / "ini" / (kind + ".json"));
}

std::vector<IniCase> MoreIniCases(const std::string& kind) {
  const char* const folder = std::getenv("KVR5_MORE_INI_CASES");
  if (folder == nullptr || *folder == '\0') return {};
  std::vector<IniCase> cases;
  for (const auto& entry : fs::directory_iterator(folder)) {
    const std::string name = entry.path().stem().string();
    if (!name.starts_with(kind) || entry.path().extension() != ".json") continue;
    for (IniCase& one : Load(entry.path())) {
      one.Id = name + "_" + one.Id;
      std::ranges::replace_if(
          one.Id, [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
      cases.push_back(std::move(one));
    }
  }
  return cases;
}

}  // namespace kvr5::test
