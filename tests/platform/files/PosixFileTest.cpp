#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>

#include "platform/host/posix/PosixFile.h"

namespace kvr5::host {
namespace {

TEST(PosixFile, TellsThatItsDeviceIsFull) {
  PosixFile file(open("/dev/full", O_WRONLY | O_CLOEXEC));
  EXPECT_EQ(file.Write("x").Number(), 61);
  EXPECT_EQ(file.Write("").Number(), 0);
}

TEST(PosixFile, TellsAFailedFlushAgain) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
  close(ends[0]);
  PosixFile file(ends[1]);  // has nothing to flush to
  const Error first = file.Flush();
  EXPECT_TRUE(first);
  EXPECT_EQ(file.Flush().Number(), first.Number());
  EXPECT_EQ(file.Failed().Number(), first.Number());
}

TEST(PosixFile, FailsAfterItsClose) {
  PosixFile file(open("/dev/null", O_RDWR | O_CLOEXEC));
  EXPECT_EQ(file.Close().Number(), 0);
  EXPECT_EQ(file.Close().Number(), 0);
  std::array<char, 4> buffer{};
  EXPECT_FALSE(file.Read(buffer));
  EXPECT_FALSE(file.ReadAt(0, buffer));
  EXPECT_FALSE(file.Size());
  EXPECT_TRUE(file.Write("x"));
  EXPECT_TRUE(file.SetModified(0));
}

}  // namespace
}  // namespace kvr5::host
