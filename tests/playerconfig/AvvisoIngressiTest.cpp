#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "playerconfig/AvvisoIngressi.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

/// A program whose language shows each key for itself.
class InputWarning : public testing::Test {
 protected:
  InputWarning() {
    std::string texts = "[Strings]\r\n";
    for (const char* key : {"0040051", "0040052", "0040053", "0040055", "0040056", "0140022"}) {
      texts += std::string(key) + "=<" + key + ">\r\n";
    }
    b.Cartella.Write("program/Language/Keys.lan", texts);
    b.C.Stato.FileLingua = b.Percorso("program/Language/Keys.lan");
  }
  void Warn(std::int16_t type, std::int16_t mode) {
    b.C.Stato.PlayerType = type;
    b.C.Stato.PlayerMode = mode;
    AvvisaIngressiBassi(b.C);
  }
  void ExpectBox(const char* text) {
    const auto box = b.Finestre.Prossimo();
    EXPECT_TRUE(box.SiNo && box.SoloOk);
    EXPECT_EQ(box.Titolo, "<0040051>");
    EXPECT_EQ(box.Testo, text);
    EXPECT_EQ(box.TestoOk, "<0140022>");
  }

  test::Banco b;
};

TEST_F(InputWarning, HasItsOwnTextsOnEachModelWhoseInputsCanBeWiredSo) {
  Warn(1, 0);
  ExpectBox("<0040052> <0040053>");
  Warn(4, 1);
  ExpectBox("<0040055> <0040056>");
}

TEST_F(InputWarning, IsShownOnNoOther) {
  using Kind = std::pair<std::int16_t, std::int16_t>;
  for (const auto& [type, mode] : {Kind{2, 0}, Kind{3, 1}, Kind{3, 4}, Kind{4, 2}, Kind{4, 5}}) {
    Warn(type, mode);
    EXPECT_TRUE(b.Finestre.Silenzio()) << type << " " << mode;
  }
}

}  // namespace
}  // namespace kvr5
