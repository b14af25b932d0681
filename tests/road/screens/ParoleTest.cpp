#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "core/Aiuti.h"
#include "core/screens/LocalizzaForm.h"
#include "house/SourceTree.h"
#include "playerconfig/Parametri.h"
#include "road/screens/GiroSchermi.h"

// The texts of the language files and the screens that ask for them by numbers.

namespace kvr5 {
namespace {

using Keys = std::set<std::string>;
using Texts = std::map<std::string, std::string>;

/// The texts of a language file as it is shipped, each in its bytes of Windows-1252.
Texts TextsOf(const std::string& language) {
  std::ifstream in(std::string(KVR5_STAGED_PROGRAM) + "/Language/" + language, std::ios::binary);
  Texts texts;
  bool inside = false;
  for (std::string line; std::getline(in, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (line.starts_with('[')) inside = line == "[Strings]";
    const auto equals = line.find('=');
    if (inside && equals != std::string::npos) {
      texts[line.substr(0, equals)] = line.substr(equals + 1);
    }
  }
  return texts;
}

/// The keys that a form of this number asks for: its own caption and each control's.
void AddKeysOf(const QWidget& form, std::int16_t number, Keys& keys) {
  constexpr std::int16_t kWizard = 16;
  if (number != kWizard) keys.insert(ChiaveTitolo(number));  // that has the program's name
  for (const QWidget* control : form.findChildren<QWidget*>()) {
    const std::string key = ChiaveScritta(number, *control);
    if (!key.empty()) keys.insert(key);
  }
}

/// The keys that all forms ask for by their number and the tags of their controls.
Keys KeysOfForms(const std::string& language) {
  Keys keys;
  std::set<int> numbers;
  test::GiroSchermi(language).Percorri([&](const test::SchermoVisto& screen) {
    const QVariant number = screen.Finestra.property(kNumero);
    if (!number.isValid()) return;
    numbers.insert(number.toInt());
    AddKeysOf(screen.Finestra, static_cast<std::int16_t>(number.toInt()), keys);
  });
  EXPECT_EQ(numbers, (std::set{2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 14, 15, 16, 17, 19}));
  return keys;
}

class Words : public testing::TestWithParam<const char*> {};

TEST_P(Words, OfEveryControlStandInTheLanguageFile) {
  const Texts texts = TextsOf(GetParam());
  const Keys keys = KeysOfForms(GetParam());
  EXPECT_GT(keys.size(), 70U);
  for (const auto& key : keys) {
    ASSERT_TRUE(texts.contains(key)) << key;
    EXPECT_FALSE(texts.at(key).empty()) << key;
    EXPECT_LE(texts.at(key).size(), 253U) << key;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Languages, Words, testing::Values("English.lan", "Italiano.lan"), [](const auto& each) {
      return std::string(each.param).substr(0, std::string(each.param).find('.'));
    });

/// Texts that are there before the screen that asks for them.
Keys WaitingKeys() {
  return {
      "0130155",             // giving copies their names back
      "0130196",             // what a recording leaves there
  };
}

TEST(Words, ThatNobodyAsksForAreNotShipped) {
  Keys asked;
  for (const auto& key : test::LiteralKeys()) asked.emplace(Rifila(key));  // one ends in a blank
  asked.merge(KeysOfForms("English.lan"));
  for (const auto& key : ChiaviDelleVoci()) asked.insert(key);
  const Keys waiting = WaitingKeys();
  for (const char* language : {"English.lan", "Italiano.lan"}) {
    for (const auto& [key, text] : TextsOf(language)) {
      EXPECT_TRUE(asked.contains(key) || waiting.contains(key)) << language << ": " << key;
      EXPECT_LE(text.size(), 253U) << language << ": " << key;
    }
  }
  const Texts texts = TextsOf("English.lan");
  for (const auto& key : waiting) {
    EXPECT_FALSE(asked.contains(key)) << key << " is asked for by now: it needs no exception";
    EXPECT_TRUE(texts.contains(key)) << key << " is gone: it needs no exception";
  }
}

}  // namespace
}  // namespace kvr5
