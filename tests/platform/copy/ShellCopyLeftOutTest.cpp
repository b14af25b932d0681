#include <fstream>

#include "CopyTest.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class ShellCopyLeavesOut : public test::CopyTest {
 protected:
  Names LeftOut(const std::string& source) {
    const CopyOutcome outcome = Copy({{source, Card()}});
    EXPECT_EQ(outcome.Result, 0) << source;
    Names left = outcome.LeftOut;
    std::ranges::sort(left);
    return left;
  }
};

TEST_F(ShellCopyLeavesOut, WhatNoCardCanHoldOfAWholeTreeAndTellsIt) {
  for (const char* name : {"good.mp3", "Aux.mp3", "sub/con.jpg", "nul/inside"}) {
    folder_.Write(std::string("from/") + name, "x");
  }
  std::ofstream(Host("from") / "caf\xE8.mp3") << "x";
  fs::create_symlink("good.mp3", Host("from/prn.mp3"));
  const Names left{"Aux.mp3", "caf\uFFFD.mp3", "con.jpg", "nul"};
  for (const std::string& source : {From("*.*"), From("*"), folder_.System("from")}) {
    EXPECT_EQ(LeftOut(source), left) << source;
  }
  EXPECT_EQ(OnCard("sub"), Names{});
  EXPECT_EQ(OnCard("from"), (Names{"good.mp3", "sub"}));
}

TEST_F(ShellCopyLeavesOut, NothingWhereAllIsCopied) {
  folder_.Write("from/sub/good.mp3", "x");
  folder_.Write("from/$Recycle.Bin/x", "the system's own");
  EXPECT_EQ(LeftOut(From("*.*")), Names{});
}

TEST_F(ShellCopyLeavesOut, AndNamesAHundredAtMost) {
  for (int i = 0; i < 130; ++i) folder_.Write("from/aux." + std::to_string(i), "x");
  folder_.Write("from/zz.mp3", "x");
  EXPECT_EQ(LeftOut(From("*.*")).size(), 100U);
  EXPECT_EQ(OnCard(), Names{"zz.mp3"}) << "the rest is left out all the same";
}

TEST_F(ShellCopyLeavesOut, NothingThatIsToldOfAnyOtherWildcard) {
  folder_.Write("from/good.mp3", "x");
  folder_.Write("from/aux.txt", "x");
  std::ofstream(Host("from") / "caf\xE8.mp3") << "x";
  for (const char* wildcard : {"*.mp3", "g*.*", "?ood.mp3"}) {
    EXPECT_EQ(LeftOut(From(wildcard)), Names{}) << wildcard;
  }
  EXPECT_EQ(OnCard(), Names{"good.mp3"});
}

}  // namespace
}  // namespace kvr5
