#include <gtest/gtest.h>

#include "platform/HostFileSystem.h"
#include "platform/TextLines.h"
#include "support/TempFolder.h"

namespace kvr5 {
namespace {

class Lines : public testing::Test {
 protected:
  std::vector<std::string> Read(std::string_view bytes) {
    folder_.Write("t.txt", bytes);
    auto file = files_.Open(folder_.System("t.txt"), OpenMode::Read);
    TextLines lines(*file.Value());
    std::vector<std::string> all;
    for (std::string line; lines.Next(line);) all.push_back(line);
    failure_ = lines.Failure();
    return all;
  }
  using Texts = std::vector<std::string>;

  test::TempFolder folder_;
  PathMap paths_;
  HostFileSystem files_{paths_};
  Error failure_;
};

TEST_F(Lines, EndAtLineFeedWithOrWithoutCarriageReturn) {
  EXPECT_EQ(Read("a\r\nb\nc"), (Texts{"a", "b", "c"}));
  EXPECT_EQ(Read("a\r\n\r\n\n"), (Texts{"a", "", ""}));
  EXPECT_EQ(Read("a\rb\r\n"), (Texts{"a\rb"}));
}

TEST_F(Lines, AnEmptyFileHasNone) {
  EXPECT_EQ(Read(""), Texts{});
  EXPECT_EQ(Read("\n"), (Texts{""}));
}

TEST_F(Lines, AreWholeAcrossThePiecesInWhichTheyAreRead) {
  std::string text;
  Texts wanted;
  for (std::size_t length = 0; length < 400; length += 3) {
    wanted.emplace_back(length * 7, 'x');
    text += wanted.back() + (length % 2 == 0 ? "\r\n" : "\n");
  }
  EXPECT_EQ(Read(text), wanted);
  // The end of a line that falls between two pieces.
  for (const std::size_t length : {65535U, 65534U, 65536U}) {
    const std::string line(length, 'y');
    EXPECT_EQ(Read(line + "\r\nz"), (Texts{line, "z"}));
  }
}

TEST_F(Lines, ALineBeyondAllMeasureEndsTheReading) {
  const std::string line(TextLines::kLongestLine + 1, 'x');
  EXPECT_EQ(Read("a\n" + line + "\nb\n"), (Texts{"a"}));
  EXPECT_EQ(failure_.Number(), errors::OutOfMemory);
}

}  // namespace
}  // namespace kvr5
