// The samples: NAME.mdb as another reader of the format wrote it, and NAME.json, what that
// reader finds in it. A file without a .json is no sound Jet 4 file.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "platform/HostFileSystem.h"
#include "platform/jet/JetFile.h"
#include "support/CampioniJet.h"

namespace kvr5 {
namespace {

using jet::Fault;
using jet::JetFile;
using jet::Wanted;
using jet::WantedColumn;
using Json = nlohmann::json;
using Rows = std::vector<std::vector<DbValue>>;

constexpr std::array<WantedColumn, 7> kList{{{"ID", Wanted::Counter},
                                             {"FileName", Wanted::Text},
                                             {"FilePath", Wanted::Text},
                                             {"Alias", Wanted::Text},
                                             {"Pos", Wanted::Integer},
                                             {"NPlaylist", Wanted::Integer},
                                             {"IDSched", Wanted::Integer}}};
constexpr std::array<WantedColumn, 4> kHead{{{"ID", Wanted::Counter},
                                             {"NScheduler", Wanted::Integer},
                                             {"Descript", Wanted::Text},
                                             {"StartTime", Wanted::Time}}};

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

jet::Trouble ReadAll(JetFile& file, const char* table, std::span<const WantedColumn> columns,
                     Rows& rows) {
  return file.Read(table, columns, [&](const std::vector<DbValue>& row) {
    rows.push_back(row);
    return true;
  });
}

class SoundSample : public testing::TestWithParam<std::string> {};

TEST_P(SoundSample, HoldsWhatAnotherReaderFinds) {
  const PathMap paths;
  HostFileSystem files(paths);
  JetFile file;
  ASSERT_EQ(file.Open(files, Sample(GetParam() + ".mdb")).What, Fault::None);
  std::ifstream stream(test::CampioneJet(GetParam() + ".json"));
  const Json told = Json::parse(stream);
  Rows list;
  Rows head;
  EXPECT_EQ(ReadAll(file, "List", kList, list).What, Fault::None);
  EXPECT_EQ(ReadAll(file, "HEAD", kHead, head).What, Fault::None);
  EXPECT_EQ(list, RowsOf(told["tables"]["List"], kList));
  EXPECT_EQ(head, RowsOf(told["tables"]["HEAD"], kHead));
}

INSTANTIATE_TEST_SUITE_P(Jet, SoundSample, testing::ValuesIn(Samples(true)),
                         [](const auto& sample) { return sample.param; });

class UnsoundSample : public testing::TestWithParam<std::string> {};

TEST_P(UnsoundSample, IsRefused) {
  const PathMap paths;
  HostFileSystem files(paths);
  JetFile file;
  jet::Trouble trouble = file.Open(files, Sample(GetParam() + ".mdb"));
  Rows rows;
  if (!trouble) trouble = ReadAll(file, "List", kList, rows);
  if (!trouble) trouble = ReadAll(file, "HEAD", kHead, rows);
  EXPECT_TRUE(trouble);
}

INSTANTIATE_TEST_SUITE_P(Jet, UnsoundSample, testing::ValuesIn(Samples(false)),
                         [](const auto& sample) { return sample.param; });

}  // namespace
}  // namespace kvr5
