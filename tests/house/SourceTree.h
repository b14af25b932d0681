#pragma once

#include <set>
#include <string>
#include <vector>

namespace kvr5::test {

/// One source file of the product.
struct SourceFile {
  std::string Path;       ///< below src/, with slashes
  std::string Subsystem;  ///< its first folder
  std::string Text;
};

/// All .h and .cpp files below src/.
std::vector<SourceFile> SourceFiles();

/// The quoted includes of a file.
std::vector<std::string> QuotedIncludes(const std::string& text);
/// The angle-bracket includes of a file.
std::vector<std::string> AngleIncludes(const std::string& text);
/// The texts in double quotes of a file, escapes as they stand.
std::vector<std::string> Literals(const std::string& text);
/// Whether a literal is the key of a text of the language files.
bool IsKey(std::string text);
/// The keys of texts of the language files that stand as literals in the sources.
std::set<std::string> LiteralKeys();

}  // namespace kvr5::test
