#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "cli/Compagno.h"
#include "cli/verbs/Verb.h"

namespace kvr5 {
namespace {

using test::Compagno;
using Words = std::vector<std::string>;

/// A command line in bash, and what the key for completion offers at its end.
class Completion : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::copy_file(KVR5_CARD, k.Host("program/kvr5card"));
    for (const char* name : {"it's", "My Hall", "$(touch PWNED)", "`touch PWNED`", "a*b"}) {
      ASSERT_EQ(k.Esegui({"new", name, "--mode", "1"}).Stato, name[1] == '*' ? 1 : 0);
    }
  }

  /// The words are split as bash does it at "="; the last one is being typed.
  Words Offered(const Words& line) {
    std::string script = "source " KVR5_COMPLETION "\nCOMP_WORDS=(" + Typed;
    for (const auto& word : line) script += " '" + Quoted(word) + "'";
    script += ")\nCOMP_CWORD=" + std::to_string(line.size()) +
              "\n_kvr5card\nprintf '%s\\n' \"${COMPREPLY[@]}\"\n";
    k.Cartella.Write("complete.sh", script);
    k.Inizio = {"/usr/bin/env",
                "-C",
                k.Cartella.Host().string(),
                "PATH=" + k.Host("program") + ":/usr/bin:/bin",
                "bash",
                k.Host("complete.sh")};
    auto offered = k.Esegui({}).Righe();
    if (offered == Words{""}) offered.clear();
    return offered;
  }

  Compagno k;
  /// The command as it stands in the line, a word of the shell.
  std::string Typed = "kvr5card";

 private:
  static std::string Quoted(const std::string& word) {
    std::string quoted;
    for (const char each : word)
      quoted += each == '\'' ? std::string("'\\''") : std::string(1, each);
    return quoted;
  }
};

TEST_F(Completion, NamesOfProjectsAreTextAndNothingElse) {
  EXPECT_EQ(Offered({"show", ""}), (Words{"$(touch PWNED)", "`touch PWNED`", "it's", "My Hall"}));
  EXPECT_EQ(Offered({"show", "it"}), Words{"it's"});
  EXPECT_EQ(Offered({"record", "My"}), Words{"My Hall"});
  EXPECT_FALSE(k.Cartella.Exists("PWNED"));
}

TEST_F(Completion, OffersVerbsAndOptions) {
  EXPECT_EQ(Offered({"pr"}), Words{"projects"});
  EXPECT_EQ(Offered({"--ye"}), Words{"--yes"});
  EXPECT_EQ(Offered({"--json", "sh"}), Words{"show"});
  EXPECT_EQ(Offered({"show", "--"}), Words{"--help"});
  EXPECT_EQ(Offered({"config", "it's", "g"}), Words{"get"});
  EXPECT_EQ(Offered({"inputs", "it's", "s"}), Words{"set"});
  EXPECT_EQ(Offered({"sa"}), Words{"save"});
  EXPECT_EQ(Offered({"save", "it's", "--"}), Words{"--copy-inputs"});
  EXPECT_EQ(Offered({"report", "My"}), Words{"My Hall"});
}

TEST_F(Completion, OffersValues) {
  EXPECT_EQ(Offered({"new", "Hall", "--mode", ""}), (Words{"1", "2", "5", "6", "7"}));
  EXPECT_EQ(Offered({"new", "Hall", "--mode", "=", "5"}), Words{"5"});
  EXPECT_EQ(Offered({"--lang", ""}), (Words{"Deutsch", "English", "Espa\xC3\xB1ol",
                                            "Fran\xC3\xA7"
                                            "ais",
                                            "Italiano"}));
  EXPECT_EQ(Offered({"--program", "=", k.Host("program"), "--lang", "It"}), Words{"Italiano"});
  EXPECT_EQ(Offered({"config", "it's", "get", "lo"}), Words{"LOUT"});
  EXPECT_TRUE(Offered({"config", "none", "get", "lo"}).empty());
  EXPECT_TRUE(Offered({"config", "it's", "set", "LOUT", "="}).empty()) << "a value, not a key";
  EXPECT_TRUE(Offered({"config", "it's", "set", "LOUT", "=", "L"}).empty());
}

TEST_F(Completion, AsksTheCommandThatWasTyped) {
  k.Cartella.Write("My Cards/keep", "");
  std::filesystem::create_directory_symlink(k.Host("program"), k.Host("My Cards/program"));
  for (const char* typed : {"./program/kvr5card", "\"'./My Cards/program/kvr5card'\"",
                            "'./My\\ Cards/program/kvr5card'"}) {
    Typed = typed;
    EXPECT_EQ(Offered({"record", "My"}), Words{"My Hall"}) << typed;
    EXPECT_EQ(Offered({"--lang", "It"}), Words{"Italiano"}) << typed;
  }
}

TEST_F(Completion, OffersNoLanguageOfAFolderThatHasNone) {
  EXPECT_TRUE(Offered({"--program", k.Host("music"), "--lang", ""}).empty());
}

/// A document of the companion.
std::string Document(const char* path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

TEST(Documents, NameEveryVerbAndOption) {
  std::string manual = Document(KVR5_MANUAL);
  std::erase(manual, '\\');
  const std::string completion = Document(KVR5_COMPLETION);
  for (const auto& verb : cli::Verbs()) {
    const std::string name(verb.Name);
    EXPECT_TRUE(manual.find("\n.B " + name) != std::string::npos ||
                manual.find("\n.BI " + name + " ") != std::string::npos)
        << name;
    EXPECT_NE(completion.find(" " + name), std::string::npos) << name;
  }
  for (const char* option :
       {"--program", "--lang", "--json", "--yes", "--no", "--help", "--version"}) {
    EXPECT_NE(manual.find(option), std::string::npos) << option;
    EXPECT_NE(completion.find(option), std::string::npos) << option;
  }
}

}  // namespace
}  // namespace kvr5
