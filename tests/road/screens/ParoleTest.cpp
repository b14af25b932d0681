#include <gtest/gtest.h>

#include <map>
#include <set>

#include "core/Aiuti.h"
#include "core/screens/LocalizzaForm.h"
#include "house/SourceTree.h"
#include "playerconfig/Parametri.h"
#include "road/screens/GiroSchermi.h"
#include "support/Lingue.h"

// The texts of the language files and the screens that ask for them by numbers.

namespace kvr5 {
namespace {

using Keys = std::set<std::string>;
using Texts = std::map<std::string, std::string>;

Texts TextsOf(const std::string& language) {
  return test::VociDiLingua(language, "Strings");
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

TEST(Words, OfEveryControlStandInTheLanguageFiles) {
  const Keys keys = KeysOfForms("English.lan");
  EXPECT_GT(keys.size(), 70U);
  for (const auto& language : test::FileDiLingua()) {
    const Texts texts = TextsOf(language);
    for (const auto& key : keys) {
      ASSERT_TRUE(texts.contains(key)) << language << ": " << key;
      EXPECT_FALSE(texts.at(key).empty()) << language << ": " << key;
    }
  }
}

/// Texts that are there before the screen that asks for them.
Keys WaitingKeys() {
  return {
      "0130155",  // giving copies their names back
      "0130196",  // what a recording leaves there
  };
}

TEST(Words, ThatNobodyAsksForAreNotShipped) {
  Keys asked;
  for (const auto& key : test::LiteralKeys()) asked.emplace(Rifila(key));  // one ends in a blank
  asked.merge(KeysOfForms("English.lan"));
  for (const auto& key : ChiaviDelleVoci()) asked.insert(key);
  const Keys waiting = WaitingKeys();
  const Texts texts = TextsOf("English.lan");
  for (const auto& [key, text] : texts) {
    EXPECT_TRUE(asked.contains(key) || waiting.contains(key)) << key;
  }
  for (const auto& key : waiting) {
    EXPECT_FALSE(asked.contains(key)) << key << " is asked for by now: it needs no exception";
    EXPECT_TRUE(texts.contains(key)) << key << " is gone: it needs no exception";
  }
}

}  // namespace
}  // namespace kvr5
