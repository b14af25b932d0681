// Makes the empty project database: creasource SCHEMA TARGET. A target that exists is replaced.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "platform/db/Connection.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: creasource SCHEMA TARGET\n";
    return 2;
  }
  const std::string schema = argv[1];
  const std::string target = argv[2];
  std::ifstream in(schema, std::ios::binary);
  const std::string sql{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  if (!in || sql.empty()) {
    std::cerr << schema << ": can't be read\n";
    return 1;
  }
  std::error_code error;
  std::filesystem::remove(target, error);
  if (const kvr5::Error outcome = kvr5::CreateProjectDatabase(target, sql)) {
    std::cerr << target << ": " << outcome.Description() << '\n';
    return 1;
  }
  return 0;
}
