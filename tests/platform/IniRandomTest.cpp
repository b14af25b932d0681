#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <vector>

#include "platform/IniCases.h"
#include "platform/IniFile.h"

namespace kvr5 {
namespace {

using test::kPage;
constexpr std::array<std::string_view, 3> kSections{"Main", "Citt\xE0", "x  y"};
constexpr std::array<std::string_view, 4> kKeys{"A", "Key", "perch\xE9", "B c"};
constexpr std::array<std::string_view, 6> kValues{"1", "due", "a = b", "x;y", "[z]", "\xE8\x80"};
constexpr std::array<std::string_view, 5> kBlanks{"", "", " ", "\t ", "\x1A\x0B"};
constexpr std::array<std::string_view, 4> kEnds{"\r\n", "\n", "\r", "\r\r\n"};

/// What a line means, apart from its bytes.
struct Item {
  enum class Kind { Nothing, Header, Key, NoValue } Kind = Kind::Nothing;
  std::size_t Name = 0;  ///< index of the section or key
  std::string Value;
};

/// A file whose meaning is known from how it was made, not from reading it.
class Model {
 public:
  explicit Model(unsigned seed) : random_(seed) {
    const std::size_t lines = Below(25);
    for (std::size_t i = 0; i < lines; ++i) AddLine();
    if (Below(3) == 0) bytes_ += ";no end";
  }

  const std::string& Bytes() const { return bytes_; }
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  template <typename Pool>
  std::string_view Any(const Pool& pool) {
    return pool[Below(pool.size())];
  }

  /// A name with the case of some letters changed.
  std::string Cased(std::string_view name) {
    std::string cased(name);
    for (char& c : cased) {
      const auto byte = static_cast<unsigned char>(c);
      const bool letter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                          byte == 0xE0 || byte == 0xC0 || byte == 0xE9 || byte == 0xC9;
      if (letter && Below(2) == 0) c = static_cast<char>(byte ^ 0x20U);
    }
    return cased;
  }

  /// Nothing where the default is given.
  std::optional<std::string> Value(std::size_t section, std::size_t key) const {
    const auto at = Find(section, key);
    if (at == items_.end() || at->Kind == Item::Kind::NoValue) return std::nullopt;
    return at->Value;
  }

  void Set(std::size_t section, std::size_t key, std::string_view value) {
    const Item item{Item::Kind::Key, key, std::string(value)};
    auto at = Find(section, key);
    if (at != items_.end()) {
      items_[static_cast<std::size_t>(at - items_.begin())] = item;
      return;
    }
    auto header = Header(section);
    if (header == items_.end()) {
      items_.push_back({Item::Kind::Header, section, ""});
      items_.push_back(item);
    } else {
      items_.insert(header + 1, item);  // where in the section makes no difference to reading
    }
  }

  void Drop(std::size_t section, std::size_t key) {
    const auto at = Find(section, key);
    if (at != items_.end()) items_.erase(at);
  }

 private:
  using Place = std::vector<Item>::const_iterator;

  static bool Is(const Item& item, enum Item::Kind kind, std::size_t name) {
    return item.Kind == kind && item.Name == name;
  }

  Place Header(std::size_t section) const {
    return std::find_if(items_.begin(), items_.end(), [section](const Item& item) {
      return Is(item, Item::Kind::Header, section);
    });
  }

  Place Find(std::size_t section, std::size_t key) const {
    auto at = Header(section);
    if (at == items_.end()) return at;
    for (++at; at != items_.end(); ++at) {
      if (at->Kind == Item::Kind::Header) return items_.end();
      if (Is(*at, Item::Kind::Key, key) || Is(*at, Item::Kind::NoValue, key)) return at;
    }
    return at;
  }

  std::string Between(std::string_view text) {
    return std::string(Any(kBlanks)).append(text).append(Any(kBlanks));
  }

  void AddLine() {
    Item item;
    std::string line;
    switch (Below(8)) {
      case 0:
        line = Between(";" + Cased(Any(kKeys)) + "=1");
        break;
      case 1:
        line = Between("");
        break;
      case 2:
      case 3:
        item = {Item::Kind::Header, Below(kSections.size()), ""};
        line = Between("[" + Between(Cased(kSections[item.Name])) + "]");
        if (Below(4) == 0) line += "x = [y]";
        break;
      case 4:
        item = {Item::Kind::NoValue, Below(kKeys.size()), ""};
        line = Between(Cased(kKeys[item.Name]));
        break;
      default:
        item = {Item::Kind::Key, Below(kKeys.size()), std::string(Any(kValues))};
        line = Between(Between(Cased(kKeys[item.Name])) + "=" + Between(item.Value));
    }
    bytes_.append(line).append(Any(kEnds));
    items_.push_back(item);
  }

  std::mt19937 random_;
  std::vector<Item> items_;
  std::string bytes_;
};

void ExpectAllValues(const std::string& bytes, const Model& model) {
  for (std::size_t section = 0; section < kSections.size(); ++section) {
    for (std::size_t key = 0; key < kKeys.size(); ++key) {
      EXPECT_EQ(ini::Read(bytes, kSections[section], kKeys[key], "none", 99, kPage),
                model.Value(section, key).value_or("none"))
          << kSections[section] << "/" << kKeys[key];
    }
  }
}

/// The comments and empty lines of a file, in order.
std::string Remarks(const std::string& bytes) {
  std::string remarks;
  for (std::size_t start = 0; start < bytes.size();) {
    const std::size_t end = std::min(bytes.find_first_of("\r\n", start), bytes.size());
    const std::string line = bytes.substr(start, end - start);
    const std::size_t first = line.find_first_not_of("\t\x0B\x1A ");
    if (first != std::string::npos && line[first] == ';') remarks += line + "\n";
    start = end + 1;
  }
  return remarks;
}

class IniRandom : public testing::TestWithParam<unsigned> {};

TEST_P(IniRandom, EveryReadAfterEveryWriteFollowsAModel) {
  for (unsigned round = 0; round < 100; ++round) {
    Model model(GetParam() * 1000 + round);
    std::string bytes = model.Bytes();
    const std::string remarks = Remarks(bytes);
    ExpectAllValues(bytes, model);
    for (int step = 0; step < 12; ++step) {
      const std::size_t section = model.Below(kSections.size());
      const std::size_t key = model.Below(kKeys.size());
      std::optional<std::string_view> value;
      if (model.Below(4) != 0) value = model.Any(kValues);
      const std::string before = bytes;
      bytes = ini::Changed(bytes, model.Cased(kSections[section]), model.Cased(kKeys[key]), value,
                           kPage)
                  .value_or(bytes);
      value ? model.Set(section, key, *value) : model.Drop(section, key);
      ExpectAllValues(bytes, model);
      EXPECT_EQ(Remarks(bytes), remarks);
      ASSERT_FALSE(HasFailure()) << "before: " << before << "\nafter: " << bytes;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seed, IniRandom, testing::Range(1U, 11U));

// Whatever the bytes are, a call ends quickly and a value that was written is read.
void ExpectToSurvive(const std::string& content) {
  EXPECT_EQ(ini::Read(content, "no such", "key", "none", 99, kPage), "none");
  EXPECT_LE(ini::Read(content, std::nullopt, std::nullopt, "", 99, kPage).size(), 97U);
  EXPECT_LE(ini::Read(content, "", std::nullopt, "", 99, kPage).size(), 97U);
  const auto written = ini::Changed(content, "no such", "key", "v", kPage);
  ASSERT_TRUE(written);
  EXPECT_TRUE(written->starts_with(content.substr(0, content.size() & ~std::size_t{1})));
  EXPECT_EQ(ini::Read(*written, "No Such", "KEY", "none", 99, kPage), "v");
  const auto dropped = ini::Changed(*written, "no such", std::nullopt, std::nullopt, kPage);
  ASSERT_TRUE(dropped);
  EXPECT_EQ(ini::Read(*dropped, "no such", "key", "none", 99, kPage), "none");
}

TEST(IniBadInput, SurvivesEmptyAndTinyFiles) {
  for (const std::string_view content :
       {"", "[", "]", "=", ";", "\r", "\n", " ", "\x1A", "\"", "[]", "[=", "=[", "\xFF", "\xFF\xFE",
        "\xFE\xFF", "\xEF\xBB\xBF", "\xFF\xFEx"}) {
    ExpectToSurvive(std::string(content));
  }
}

TEST(IniBadInput, SurvivesZeros) {
  ExpectToSurvive(std::string(1'000'000, '\0'));
}

TEST(IniBadInput, SurvivesRandomBytes) {
  std::mt19937 random(5);
  for (std::size_t round = 0; round < 500; ++round) {
    std::string content(round * 4, '\0');
    for (char& c : content) c = static_cast<char>(random());
    if (round % 5 == 0) content.insert(0, "\xFF\xFE");
    ExpectToSurvive(content);
  }
}

TEST(IniBadInput, SurvivesRandomPiecesOfGrammar) {
  std::mt19937 random(6);
  constexpr std::string_view kPieces(
      "[]=;\"' \t\r\n\0\x1A\xE0"
      "aA",
      15);
  for (int round = 0; round < 3000; ++round) {
    std::string content(random() % 60, '\0');
    for (char& c : content) c = kPieces[random() % kPieces.size()];
    ExpectToSurvive(content);
  }
}

TEST(IniBadInput, SurvivesOneLongLine) {
  for (const char c : {'a', '[', '=', ' ', '"', ';', '\x1A'}) {
    ExpectToSurvive(std::string(1'000'000, c));
  }
}

TEST(IniBadInput, SurvivesManyLines) {
  for (const std::string_view line : {"Key=v\r", "Key\n", "\r\n", "\n", "[a]\r", "=\r\n"}) {
    std::string content;
    for (int i = 0; i < 100'000; ++i) content += line;
    ExpectToSurvive(content);
  }
}

// These end within the time limit of a test only if the time grows with the length alone.

TEST(IniBadInput, ReadsAndWritesALineOfFiftyMegabytes) {
  const std::string file = std::string("[M]\nK=").append(50'000'000, 'v').append("\nL=2");
  EXPECT_EQ(ini::Read(file, "M", "K", "", 5, kPage), "vvvv");
  EXPECT_EQ(ini::Read(file, "M", "L", "", 5, kPage), "2");
  EXPECT_EQ(ini::Changed(file, "M", "K", "1", kPage), "[M]\nK=1\r\nL=2");
}

TEST(IniBadInput, ReadsAndWritesAMillionLines) {
  std::string file = "[M]\r";
  for (int i = 0; i < 1'000'000; ++i) file += "Key=value\r";
  const auto added = ini::Changed(file, "M", "New", "1", kPage);
  ASSERT_TRUE(added);
  EXPECT_EQ(ini::Read(*added, "M", "New", "", 5, kPage), "1");
  EXPECT_EQ(ini::Changed(*added, "M", std::nullopt, std::nullopt, kPage), "");
}

}  // namespace
}  // namespace kvr5
