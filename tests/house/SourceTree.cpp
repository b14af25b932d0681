#include "house/SourceTree.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace kvr5::test {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Includes(const std::string& text, char open, char close) {
  std::vector<std::string> names;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (!line.starts_with("#include ")) continue;
    const auto begin = line.find(open);
    const auto end = line.find(close, begin + 1);
    if (begin == std::string::npos || end == std::string::npos) continue;
    names.push_back(line.substr(begin + 1, end - begin - 1));
  }
  return names;
}

}  // namespace

std::vector<SourceFile> SourceFiles() {
  std::vector<SourceFile> files;
  const fs::path root = fs::path(KVR5_SOURCE_TREE) / "src";
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    const auto extension = entry.path().extension();
    if (extension != ".cpp" && extension != ".h") continue;
    std::ifstream in(entry.path(), std::ios::binary);
    const fs::path below = fs::relative(entry.path(), root);
    files.push_back({below.generic_string(),
                     below.begin()->string(),
                     {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()}});
  }
  EXPECT_GT(files.size(), 50U);
  return files;
}

std::vector<std::string> QuotedIncludes(const std::string& text) {
  return Includes(text, '"', '"');
}

std::vector<std::string> AngleIncludes(const std::string& text) {
  return Includes(text, '<', '>');
}

std::vector<std::string> Literals(const std::string& text) {
  std::vector<std::string> literals;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.compare(i, 2, "//") == 0) i = text.find('\n', i);
    if (i == std::string::npos) break;
    if (text[i] == '\'' && i + 2 < text.size() && text[i + 1] == '"') i += 2;
    if (text[i] != '"') continue;
    std::string literal;
    for (++i; i < text.size() && text[i] != '"' && text[i] != '\n'; ++i) {
      if (text[i] == '\\') literal += text[i++];
      literal += text[i];
    }
    literals.push_back(literal);
  }
  return literals;
}

}  // namespace kvr5::test
