#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "reports/browser/Browser.h"
#include "support/Banco.h"

namespace kvr5::test {

/// A project with inputs, playlists and a schedule whose files have difficult names, its reports as
/// the program writes them, and a browser to see them in.
class BancoPagine : public testing::Test {
 protected:
  void SetUp() override;

  /// The name of the project, as a person reads it.
  static const std::string& Progetto();
  /// Names of files that a page could take for something else, or that are hard to fit in.
  static const std::vector<std::string>& Nomi();

  /// A file of the project's folder, such as a report, in the host's form.
  std::filesystem::path File(const std::string& name) const;
  /// The report of a project.
  std::filesystem::path Pagina() const { return File(Progetto() + ".htm"); }
  /// Writes the three reports, each of the program's own template; that of the project has the
  /// other two in it.
  void ScriviReport();

  Banco b;

 private:
  void ScriviElenco(const std::string& name, const std::string& heading, bool segments);
};

}  // namespace kvr5::test
