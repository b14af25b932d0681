#include <gtest/gtest.h>

#include "platform/host/posix/Errno.h"

namespace kvr5::host {
namespace {

TEST(FromErrno, GivesTheRuntimesNumber) {
  struct Case {
    int Code;
    int Number;
  };
  for (const Case& c :
       {Case{0, 0},         Case{ENOENT, 53},       Case{ENOTDIR, 76}, Case{EISDIR, 75},
        Case{EACCES, 75},   Case{EPERM, 75},        Case{EROFS, 70},   Case{ENOSPC, 61},
        Case{EDQUOT, 61},   Case{EFBIG, 61},        Case{EIO, 57},     Case{ENODEV, 68},
        Case{ENXIO, 68},    Case{ENOMEDIUM, 71},    Case{EEXIST, 58},  Case{EBUSY, 70},
        Case{ETXTBSY, 70},  Case{ENAMETOOLONG, 52}, Case{EMFILE, 67},  Case{ENFILE, 67},
        Case{ENOTCONN, 68}, Case{ENOTEMPTY, 75}}) {
    EXPECT_EQ(FromErrno(c.Code).Number(), c.Number) << c.Code;
  }
  EXPECT_EQ(FromErrno(EMFILE).Description(), "Too many files");
}

}  // namespace
}  // namespace kvr5::host
