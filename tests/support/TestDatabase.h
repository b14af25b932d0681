#pragma once

#include <filesystem>
#include <string>

namespace kvr5::test {

/// The statements from which source.mdb is made.
std::string ProjectSchema();

/// Makes an empty project database, as source.mdb is, at a path of the host. A failure fails the
/// test.
void MakeProjectDatabase(const std::filesystem::path& hostPath);

}  // namespace kvr5::test
