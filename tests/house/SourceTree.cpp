#include "house/SourceTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string_view>

namespace kvr5::test {
namespace {

namespace fs = std::filesystem;

/// Takes blanks, then `word`, off the start of a line; false when it isn't there.
bool Take(std::string_view& line, std::string_view word) {
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  if (!line.starts_with(word)) return false;
  line.remove_prefix(word.size());
  return true;
}

/// What the include lines of a text name between these marks, however the lines are spaced.
std::vector<std::string> Includes(const std::string& text, char open, char close) {
  std::vector<std::string> names;
  std::istringstream stream(text);
  for (std::string whole; std::getline(stream, whole);) {
    std::string_view line = whole;
    if (Take(line, "#") && Take(line, "include") && Take(line, std::string_view(&open, 1))) {
      names.emplace_back(line.substr(0, line.find(close)));
    }
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

bool IsKey(std::string text) {
  if (text.ends_with(' ')) text.pop_back();
  const bool digits =
      std::all_of(text.begin(), text.end(), [](char each) { return each >= '0' && each <= '9'; });
  return digits && (text.size() == 7 || text == "70008" || text == "50014");
}

std::set<std::string> LiteralKeys() {
  std::set<std::string> keys;
  for (const auto& file : SourceFiles()) {
    for (const auto& literal : Literals(file.Text)) {
      if (IsKey(literal)) keys.insert(literal);
    }
  }
  return keys;
}

}  // namespace kvr5::test
