#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "platform/db/Recordset.h"
#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"
#include "projects/Subentro.h"
#include "support/Banco.h"
#include "support/CampioniJet.h"
#include "support/FaultyFileSystem.h"

namespace kvr5::test {

/// A project Hall, into which databases of the Jet engine are put, on a disk that can fail.
class BancoSubentro : public testing::Test {
 protected:
  using Names = std::vector<std::string>;

  void SetUp() override { b.CreaProgetto("Hall", 4, 1); }

  /// A sample as a database of the project.
  void Put(const std::string& sample, const std::string& database) {
    std::filesystem::copy_file(CampioneJet(sample + ".mdb"), b.Cartella.Host() / Project(database),
                               std::filesystem::copy_options::overwrite_existing);
  }
  static std::string Project(const std::string& file) { return "program/Projects/Hall/" + file; }
  std::size_t Rows(const std::string& database) {
    return Column(database, "SELECT * FROM [List]", "ID").size();
  }
  bool IsSame(const std::string& file, const std::string& sample) const {
    std::ifstream stream(CampioneJet(sample + ".mdb"), std::ios::binary);
    return b.Cartella.Read(file) == std::string(std::istreambuf_iterator<char>(stream), {});
  }
  /// All texts of a column of a database of ours.
  Names Column(const std::string& database, const std::string& statement, const char* column) {
    Names texts;
    Connection connection(b.C.Files);
    EXPECT_FALSE(connection.Open(FileDelProgetto(b.C, database)));
    Recordset rows;
    EXPECT_FALSE(rows.Open(connection, statement));
    EXPECT_FALSE(WalkRows(rows, [&] {
      texts.push_back(rows.Text(column));
      return true;
    }));
    return texts;
  }
  /// The names in the project's folder.
  Names Nomi() const { return b.Nomi("program/Projects/Hall"); }
  void ExpectNothingChanged(const Names& before) {
    EXPECT_EQ(b.Nomi("program/Projects/Hall"), before);
    EXPECT_FALSE(b.Cartella.Exists(Project("Originals")));
  }

  std::unique_ptr<FaultyFileSystem> faults;
  Banco b{[this](FileSystem& inner) -> FileSystem& {
    faults = std::make_unique<FaultyFileSystem>(inner);
    return *faults;
  }};
};

}  // namespace kvr5::test
