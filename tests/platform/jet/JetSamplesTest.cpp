// The samples: NAME.mdb as another reader of the format wrote it, and NAME.json, what that
// reader finds in it. A file without a .json is no sound Jet 4 file.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "platform/HostFileSystem.h"
#include "platform/jet/Tabelle.h"
#include "support/CampioniJet.h"

namespace kvr5 {
namespace {

using jet::Fault;
using jet::Wanted;
using jet::WantedColumn;
using test::Rows;
using Json = nlohmann::json;

std::string Sample(const std::string& file) {
  return PathMap::FromHost(test::CampioneJet(file).string()).Value();
}

/// All samples, without it, that have or lack a partner.
std::vector<std::string> Samples(bool sound) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(test::CampioneJet({}))) {
    auto partner = entry.path();
    if (partner.extension() != ".mdb") continue;
    if (std::filesystem::exists(partner.replace_extension(".json")) == sound) {
      names.push_back(entry.path().stem().string());
    }
  }
  std::ranges::sort(names);
  return names;
}

DbValue ValueOf(const Json& value, Wanted kind) {
  if (value.is_null()) return {};
  if (value.is_number_integer()) return value.get<std::int64_t>();
  const std::string text = value;
  constexpr std::size_t kDay = 11;  // "1899-12-30T"
  return kind == Wanted::Time ? text.substr(kDay) : text;
}

Rows RowsOf(const Json& table, std::span<const WantedColumn> columns) {
  Rows rows;
  for (const Json& row : table["rows"]) {
    std::vector<DbValue> values;
    for (const auto& column : columns) values.push_back(ValueOf(row.at(column.Name), column.Kind));
    rows.push_back(std::move(values));
  }
  return rows;
}

class SoundSample : public testing::TestWithParam<std::string> {};

TEST_P(SoundSample, HoldsWhatAnotherReaderFinds) {
  const PathMap paths;
  HostFileSystem files(paths);
  const auto read = test::LeggiTutto(files, Sample(GetParam() + ".mdb"));
  ASSERT_EQ(read.Guasto.What, Fault::None);
  std::ifstream stream(test::CampioneJet(GetParam() + ".json"));
  const Json told = Json::parse(stream);
  EXPECT_EQ(read.Lista, RowsOf(told["tables"]["List"], test::kList));
  EXPECT_EQ(read.Testa, RowsOf(told["tables"]["HEAD"], test::kHead));
}

INSTANTIATE_TEST_SUITE_P(Jet, SoundSample, testing::ValuesIn(Samples(true)),
                         [](const auto& sample) { return sample.param; });

class UnsoundSample : public testing::TestWithParam<std::string> {};

TEST_P(UnsoundSample, IsRefused) {
  const PathMap paths;
  HostFileSystem files(paths);
  EXPECT_TRUE(test::LeggiTutto(files, Sample(GetParam() + ".mdb")).Guasto);
}

INSTANTIATE_TEST_SUITE_P(Jet, UnsoundSample, testing::ValuesIn(Samples(false)),
                         [](const auto& sample) { return sample.param; });

}  // namespace
}  // namespace kvr5
