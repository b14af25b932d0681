#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "Machine.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Samples() {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(KVR5_TEST_DATA)) {
    names.insert(entry.path().stem().string());
  }
  return {names.begin(), names.end()};
}

class Machines : public testing::TestWithParam<std::string> {};

TEST_P(Machines, OfferTheirCardsAndNothingElse) {
  const test::Machine machine(fs::path(KVR5_TEST_DATA) / (GetParam() + ".txt"));
  std::vector<std::string> offered;
  for (const Volume& volume : machine.Volumes()) {
    offered.push_back(volume.Device + "|" + volume.Label + "|" + volume.FileSystem + "|" +
                      volume.Mount);
  }
  EXPECT_EQ(offered, machine.Expected());
}

INSTANTIATE_TEST_SUITE_P(All, Machines, testing::ValuesIn(Samples()), [](const auto& sample) {
  std::string name = sample.param;
  std::ranges::replace(name, '-', '_');
  return name;
});

}  // namespace
}  // namespace kvr5
