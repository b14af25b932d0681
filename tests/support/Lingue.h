#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace kvr5::test {

/// The language files of the staged program, such as "English.lan", by name.
std::vector<std::string> FileDiLingua();

/// What stands in a language file as it is shipped: bytes of Windows-1252, CR LF.
std::string LinguaSpedita(const std::string& file);

/// Key and text of one section, "Strings" or "HelpFiles", of a language file, in UTF-8, without the
/// quotes that keep blanks at their ends.
std::map<std::string, std::string> VociDiLingua(const std::string& file,
                                                const std::string& sezione);

/// A language's name as the end of a test's name, which takes ASCII letters alone.
std::string NomeDiProva(const testing::TestParamInfo<std::string>& lingua);

}  // namespace kvr5::test
