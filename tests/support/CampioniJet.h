#pragma once

#include <filesystem>

namespace kvr5::test {

/// A file of tests/support/jet: NAME.mdb is a database as the Jet 4 engine lays it out, written by
/// another program, and NAME.json what that program finds in it. An NAME.mdb alone is damaged.
inline std::filesystem::path CampioneJet(const std::string& file) {
  return std::filesystem::path(__FILE__).parent_path() / "jet" / file;
}

}  // namespace kvr5::test
