// Cards that are changed at random, against a simple model of what must be found.
#include <random>
#include <set>
#include <sstream>

#include "BancoVerifica.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using namespace test;  // the models
using Names = std::vector<std::string>;
using Files = std::map<std::string, std::string>;

constexpr std::size_t kFrame = 417;  ///< bytes of each frame; the first four are its header

class VerificaCasuale : public test::Verifica {
 protected:
  Files OnCardNow() const {
    Files files;
    for (const auto& name : b.Nomi("card")) files[name] = b.Cartella.Read("card/" + name);
    return files;
  }
  std::size_t Dice(std::size_t sides) { return dice_() % sides; }

  /// One change of the card at random.
  void Change() {
    const Names names = b.Nomi("card");
    const std::string name = names[Dice(names.size())];
    const std::string bytes = b.Cartella.Read("card/" + name);
    const std::string fresh = "N" + std::to_string(Dice(1000));
    switch (Dice(7)) {
      case 0:
        return Flip(name, bytes);
      case 1:
        return OnCard(name, Dice(2) == 0 ? "" : bytes.substr(0, bytes.size() - bytes.size() / 9));
      case 2:
        return OnCard(name, bytes + std::string(1 + Dice(50), 'Q'));
      case 3:
        fs::remove(Card(name));
        return;
      case 4:
        return OnCard(fresh + (Dice(2) == 0 ? ".mp3" : ".m3u"),
                      "P01-00" + std::to_string(Dice(4)) + "\r\nQ\r\n");
      case 5:
        fs::rename(Card(name), Card(fresh + name.substr(name.rfind('.'))));
        return;
      default:
        fs::create_directories(Card("folder" + std::to_string(Dice(10))));
    }
  }
  /// Of music only what lies between two headers.
  void Flip(const std::string& name, std::string bytes) {
    if (bytes.empty()) return;
    std::size_t at = Dice(bytes.size());
    if (name.ends_with(".mp3") && at % kFrame < 4) at += 4;
    if (at >= bytes.size()) return;
    bytes[at] = static_cast<char>(bytes[at] ^ 0x10);
    OnCard(name, bytes);
  }

  /// What must be found, in any order.
  static std::multiset<std::string> Expected(const Files& recorded, const Files& now) {
    std::multiset<std::string> found;
    for (const auto& [name, bytes] : recorded) {
      const auto there = now.find(name);
      if (there == now.end()) {
        found.insert("missing " + name);
        continue;
      }
      if (there->second != bytes) found.insert("different " + name);
      const bool music = there->second.starts_with("\xFF\xFB");
      if (name.ends_with(".mp3") && !music) found.insert("refused " + name);
    }
    for (const auto& [name, bytes] : now) {
      if (!recorded.contains(name)) found.insert("stray " + name);
    }
    for (const auto& name : Entries(now)) {
      if (!now.contains(name)) found.insert("entry " + name);
    }
    return found;
  }
  /// The files that the lists of a card name.
  static std::set<std::string> Entries(const Files& now) {
    std::set<std::string> entries;
    const auto add = [&entries](std::string name) {
      if (name.find_first_not_of(' ') == std::string::npos) return;
      if (!name.ends_with(".mp3")) name += ".mp3";
      entries.insert(name);
    };
    for (const auto& [name, bytes] : now) {
      const bool tracks = name.ends_with(".m3u") && name.find("_LOCAL_") == std::string::npos;
      const bool schedule = name == "PALIN.TXT" || name.ends_with(".pal");
      std::istringstream in(bytes);
      for (std::string line; std::getline(in, line);) {
        if (line.ends_with('\r') && !in.eof()) line.pop_back();
        if (tracks) add(line);
        std::istringstream pieces(line);
        std::string piece;
        std::getline(pieces, piece, '\t');  // the time
        while (schedule && std::getline(pieces, piece, '\t')) add(piece);
      }
    }
    return entries;
  }

  std::mt19937 dice_{4711};
};

TEST_F(VerificaCasuale, WhatIsFoundOnChangedCardsIsWhatWasChanged) {
  std::map<std::string, int> kinds;
  for (const Modello& model : {kInputs, kSchedule, kPlaylists, kNamed, kBoth}) {
    fs::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    EmptyCard();
    Recorded(model);
    const Files recorded = OnCardNow();
    for (int round = 0; round < 60; ++round) {
      EmptyCard();
      for (const auto& [name, bytes] : recorded) OnCard(name, bytes);
      for (auto changes = 1 + Dice(4); changes > 0; --changes) Change();
      const auto expected = Expected(recorded, OnCardNow());
      const Names found = Verify();
      ASSERT_EQ(std::multiset<std::string>(found.begin(), found.end()), expected)
          << "model " << model.Type << ", mode " << model.Mode << ", round " << round;
      for (const auto& each : found) ++kinds[each.substr(0, each.find(' '))];
      EXPECT_EQ(outcome.File, recorded.size() - outcome.Quanti(Difetto::Mancante) -
                                  outcome.Quanti(Difetto::Diverso));
    }
  }
  for (const char* kind : {"missing", "different", "stray", "entry", "refused"}) {
    EXPECT_GT(kinds[kind], 5) << kind;
  }
}

}  // namespace
}  // namespace kvr5
