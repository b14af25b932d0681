#include <algorithm>
#include <cstdlib>
#include <random>
#include <set>

#include "cli/Verbi.h"

namespace kvr5 {
namespace {

/// A whole project whose files are damaged at random, byte by byte as a bad sector, a cut-off copy
/// or a stranger would. KVR5_MORE_DAMAGE sets the number of rounds.
class Damage : public test::Verbi {
 protected:
  void SetUp() override {
    New();
    for (const char* code : {"1", "5", "255"}) {
      k.ScriviMp3(std::string("music/") + code + ".mp3", code[0]);
      ASSERT_EQ(
          k.Esegui({"inputs", "Hall", "set", code, k.Host("music/" + std::string(code)) + ".mp3"})
              .Stato,
          0);
    }
    std::filesystem::copy(k.Host("program/source.mdb"), Project() + "/playlist.mdb");
    for (const auto& name : k.Nomi("program/Projects/Hall")) {
      whole_[name] = k.Cartella.Read("program/Projects/Hall/" + name);
    }
  }

  std::string Damaged(std::string bytes) {
    const auto place = [&] { return random_() % (bytes.size() + 1); };
    switch (random_() % 5) {
      case 0:
        return bytes.substr(0, place());
      case 1:
        return std::string(bytes.size(), '\0');
      case 2:
        std::ranges::generate(bytes, [&] { return static_cast<char>(random_()); });
        return bytes;
      case 3: {
        const std::size_t begin = place();
        std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(begin),
                  bytes.begin() + static_cast<std::ptrdiff_t>(std::min(begin + 512, bytes.size())),
                  '\xEE');
        return bytes;
      }
      default:
        for (auto n = 1 + random_() % 20; n > 0 && !bytes.empty(); --n) {
          bytes[random_() % bytes.size()] = static_cast<char>(random_());
        }
        return bytes;
    }
  }

  std::mt19937 random_{20061020};
  std::map<std::string, std::string> whole_;
};

int Rounds() {
  const char* more = std::getenv("KVR5_MORE_DAMAGE");
  return more != nullptr ? std::atoi(more) : 40;
}

// The settings stay whole here: a projects folder of random letters would be made outside the
// test's.
TEST_F(Damage, NoFileOfTheProgramBringsTheCompanionDown) {
  const std::set<int> ends{0, 1, 3};
  std::map<std::string, std::string> files;
  for (const char* name :
       {"Language/English.lan", "Defaults/41Config.txt", "source.mdb", "Drives.ini"}) {
    const std::string path = std::string("program/") + name;
    if (!k.Cartella.Exists(path)) k.Cartella.Write(path, "[Removable]\r\nE=/none\r\n");
    files[path] = k.Cartella.Read(path);
  }
  for (int round = 0; round < Rounds(); ++round) {
    for (const auto& [path, bytes] : files) k.Cartella.Write(path, bytes);
    auto victim = files.begin();
    std::advance(victim, random_() % files.size());
    k.Cartella.Write(victim->first, Damaged(victim->second));
    std::filesystem::remove_all(Project("New"));
    for (const auto& words :
         std::vector<std::vector<std::string>>{{"projects"},
                                               {"new", "New", "--mode", "1"},
                                               {"show", k.Host("program/Projects/Hall")}}) {
      const auto run = k.EseguiJson(words);
      EXPECT_TRUE(ends.contains(run.Stato)) << round << " " << victim->first;
      run.Oggetti();
      run.Box();
    }
  }
}

TEST_F(Damage, NoFileOfAProjectBringsTheCompanionDown) {
  const std::set<int> ends{0, 1, 3};
  for (int round = 0; round < Rounds(); ++round) {
    auto files = whole_;
    auto victim = files.begin();
    std::advance(victim, random_() % files.size());
    victim->second = Damaged(victim->second);
    for (const auto& [name, bytes] : files) {
      k.Cartella.Write("program/Projects/Hall/" + name, bytes);
    }
    for (const auto& words : std::vector<std::vector<std::string>>{
             {"show", "Hall"}, {"inputs", "Hall", "list"}, {"config", "Hall", "get"}}) {
      const auto run = k.EseguiJson(words);  // every line is an object still
      EXPECT_TRUE(ends.contains(run.Stato)) << round << " " << victim->first;
      EXPECT_EQ(run.Box().empty(), run.Stato == 0) << round << " " << victim->first;
      run.Oggetti();
    }
    EXPECT_TRUE(k.Cartella.Read("program/Projects/Hall/" + victim->first) == victim->second)
        << "looking changes nothing: " << round << " " << victim->first;
    EXPECT_TRUE(ends.contains(k.EseguiJson({"record", "Hall", k.Host("card")}).Stato));
  }
}

}  // namespace
}  // namespace kvr5
