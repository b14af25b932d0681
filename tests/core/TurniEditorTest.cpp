#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/TurniEditor.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;

class EditorTurns : public testing::Test {
 protected:
  /// A command that only says its name.
  std::function<void()> Says(const std::string& what) {
    return [this, what] { done.push_back(what); };
  }

  TurniEditor turns;
  std::vector<std::string> done;
};

TEST_F(EditorTurns, ACommandIsDoneAtOnceAlsoWithinAnother) {
  turns.Comando([&] {
    done.emplace_back("outer begins");
    turns.Comando(Says("inner"));
    done.emplace_back("outer ends");
  });
  EXPECT_THAT(done, ElementsAre("outer begins", "inner", "outer ends"));
}

TEST_F(EditorTurns, TheLastOneIsDoneAtOnceWhereNothingIsUnderWay) {
  turns.Comando(Says("add"));
  turns.Ultimo(Says("save"));
  EXPECT_THAT(done, ElementsAre("add", "save"));
}

TEST_F(EditorTurns, TheLastOneWaitsForTheEndOfAllOthers) {
  turns.Comando([&] {
    turns.Comando([&] {
      turns.Ultimo(Says("save"));
      done.emplace_back("inner ends");
    });
    done.emplace_back("outer ends");
  });
  EXPECT_THAT(done, ElementsAre("inner ends", "outer ends", "save"));
}

TEST_F(EditorTurns, NothingIsDoneOnceTheLastOneWasAskedFor) {
  turns.Comando([&] {
    turns.Ultimo([&] {
      turns.Comando(Says("amid the save"));
      turns.Ultimo(Says("a save amid the save"));
      done.emplace_back("save");
    });
    turns.Comando(Says("before the save"));
    turns.Ultimo(Says("another save"));
  });
  turns.Comando(Says("after the save"));
  turns.Ultimo(Says("a second save"));
  EXPECT_THAT(done, ElementsAre("save"));
}

TEST_F(EditorTurns, TellWhatIsUnderWayAndWhetherTheLastOneWasAskedFor) {
  EXPECT_FALSE(turns.InCorso());
  turns.Comando([&] {
    turns.Comando([] {});
    EXPECT_TRUE(turns.InCorso()) << "the outer one goes on";
    EXPECT_FALSE(turns.UltimoChiesto());
    turns.Ultimo([&] { EXPECT_TRUE(turns.InCorso()); });
    EXPECT_TRUE(turns.UltimoChiesto()) << "before it is done";
  });
  EXPECT_FALSE(turns.InCorso());
  EXPECT_TRUE(turns.UltimoChiesto());
}

TEST_F(EditorTurns, ALastOneThatDoesNothingEndsTheEditingToo) {
  turns.Ultimo([] {});
  turns.Comando(Says("add"));
  EXPECT_TRUE(done.empty());
}

}  // namespace
}  // namespace kvr5
