#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "mp3/Accettazione.h"
#include "mp3/CountingFiles.h"
#include "mp3/EtichetteMp3.h"
#include "mp3/modMp3Infos.h"

// Real and made-up files with what the system has to say about each of them.

namespace kvr5::test {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

struct Samples {
  fs::path Files;
  json Expected;
};

Samples LoadSamples(const fs::path& folder) {
  std::ifstream in(folder / "expected.json");
  return {folder / "files", json::parse(in)};
}

/// The samples of the source tree, and those of a second folder of the same form if one is named.
std::vector<Samples> AllSamples() {
  std::vector<Samples> all;
  all.push_back(LoadSamples(KVR5_TEST_DATA));
  if (const char* more = std::getenv("KVR5_MORE_MP3_SAMPLES"); more != nullptr && *more != '\0') {
    all.push_back(LoadSamples(more));
  }
  return all;
}

std::map<std::string, int> Fields(const InfoMp3& info) {
  const auto flag = [](bool value) { return value ? -1 : 0; };
  return {{"Valid", flag(info.Valid)},
          {"Version", info.Version},
          {"Layer", info.Layer},
          {"Bitrate", info.Bitrate},
          {"SampleRate", info.SampleRate},
          {"Channels", info.Channels},
          {"ChannelMode", info.ChannelMode},
          {"Emphasis", info.Emphasis},
          {"IsVbr", flag(info.IsVbr)},
          {"HasId3v1", flag(info.HasId3v1)},
          {"HasId3v2", flag(info.HasId3v2)},
          {"Private", flag(info.Private)},
          {"Original", flag(info.Original)},
          {"Frames", info.Frames},
          {"FileBytes", info.FileBytes},
          {"Duration", info.Duration},
          {"HeaderOffset", info.HeaderOffset}};
}

void CompareFields(const InfoMp3& info, const json& expected) {
  auto got = Fields(info);
  auto wanted = expected.at("info").get<std::map<std::string, int>>();
  for (const auto& name : expected.at("meaningless")) {
    got.erase(name);
    wanted.erase(name);
  }
  EXPECT_EQ(got, wanted);
}

void CompareLabels(const EtichetteMp3& labels, const json& expected, bool exceptLength) {
  EXPECT_EQ(labels.lblVersioneMpeg, expected.at("lblVersioneMpeg"));
  EXPECT_EQ(labels.lblBitrate, expected.at("lblBitrate"));
  EXPECT_EQ(labels.lblFreq, expected.at("lblFreq"));
  if (!exceptLength) {
    EXPECT_EQ(labels.lblDurata, expected.at("lblDurata"));
  }
}

void CompareErrors(const ErroriMp3& failures, const json& expected) {
  std::vector<std::pair<std::string, int>> got;
  for (const auto& failure : failures) got.emplace_back(failure.Luogo, failure.Numero);
  EXPECT_EQ(got, (expected.get<std::vector<std::pair<std::string, int>>>()));
}

void CompareVerdicts(const InfoMp3& info, const modMp3Infos& reader, const json& expected) {
  EXPECT_EQ(BuonoPerEditor(info), expected.at("editor"));
  EXPECT_EQ(BuonoPerIngressi(info), expected.at("player"));
  EXPECT_EQ(BuonoInMassa(info, reader.Errori()), expected.at("bulk"));
  const RicercaMp3 search = reader.Ricerca();
  EXPECT_EQ(MotivoPerEditor(info, search) == RifiutoMp3::Nessuno, expected.at("editor"));
  EXPECT_EQ(MotivoPerIngressi(info, search) == RifiutoMp3::Nessuno, expected.at("player"));
  EXPECT_EQ(MotivoInMassa(info, search, reader.Errori()) == RifiutoMp3::Nessuno,
            expected.at("bulk"));
}

void CompareOne(modMp3Infos& reader, const fs::path& path, const json& expected) {
  const InfoMp3 info = reader.LeggiInfoMp3(CountingFiles::FromHost(path));
  CompareFields(info, expected);
  CompareErrors(reader.Errori(), expected.at("errors"));
  CompareVerdicts(info, reader, expected);
  const auto meaningless = expected.at("meaningless").get<std::set<std::string>>();
  const bool noLength = meaningless.contains("Duration");
  const std::uint64_t size = fs::file_size(path);
  for (const auto& [screen, key] : {std::pair{SchermoMp3::Editor, "labels_editor"},
                                    std::pair{SchermoMp3::Ingressi, "labels_player"}}) {
    const PannelloMp3 panel = MostraInfoMp3(screen, info, size, Locale());
    const bool cleared = panel.Etichette == EtichetteMp3();
    CompareLabels(panel.Etichette, expected.at(key), noLength && !cleared);
  }
}

TEST(Mp3Samples, ReadOneAfterTheOtherInOneProcess) {
  CountingFiles files;
  for (const Samples& samples : AllSamples()) {
    modMp3Infos reader(files);
    ASSERT_FALSE(samples.Expected.at("files").empty());
    for (const json& sample : samples.Expected.at("files")) {
      const fs::path path = samples.Files / sample.at("path").get<std::string>();
      SCOPED_TRACE(path);
      CompareOne(reader, path, sample.at("carried"));
    }
  }
  EXPECT_EQ(files.OpenFiles, 0);
}

TEST(Mp3Samples, EachReadFirstInItsProcess) {
  CountingFiles files;
  for (const Samples& samples : AllSamples()) {
    for (const json& sample : samples.Expected.at("files")) {
      const fs::path path = samples.Files / sample.at("path").get<std::string>();
      SCOPED_TRACE(path);
      modMp3Infos reader(files);
      CompareOne(reader, path, sample.at("fresh"));
    }
  }
}

TEST(Mp3Samples, WhatIsNoFileGivesARecordOfZerosAndIsNotMade) {
  CountingFiles files;
  for (const Samples& samples : AllSamples()) {
    modMp3Infos reader(files);
    for (const json& special : samples.Expected.at("meta").at("special")) {
      const fs::path path = samples.Files / special.at("path").get<std::string>();
      const bool before = fs::exists(path);
      EXPECT_EQ(reader.LeggiInfoMp3(CountingFiles::FromHost(path)), InfoMp3()) << path;
      EXPECT_EQ(fs::exists(path), before) << path;
    }
  }
}

}  // namespace
}  // namespace kvr5::test
