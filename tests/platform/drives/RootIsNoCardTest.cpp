#include <gtest/gtest.h>

#include "platform/Drives.h"

namespace kvr5 {
namespace {

TEST(RemovableFoldersRoot, IsPassedOverHoweverItIsWritten) {
  for (const char* root : {"/", "//", "/.", "/./", "/home/..", "/usr/../", "/../..", "/a/b/../..",
                           "C:\\", "c:\\", "C:\\\\", "C:\\.", "C:\\home\\..", "\"/\""}) {
    const auto folders = RemovableFolders(std::string("[Removable]\nE=") + root + "\nF=/card\n");
    EXPECT_EQ(folders, (std::map<char, std::string>{{'F', "/card"}})) << root;
  }
}

TEST(RemovableFoldersRoot, IsNotWhatAFolderBelowItIs) {
  for (const char* folder : {"/..card", "/card/.", "/home/../card", "/.card", "C:\\card"}) {
    const auto folders = RemovableFolders(std::string("[Removable]\nE=") + folder + "\n");
    EXPECT_EQ(folders.size(), 1U) << folder;
  }
}

}  // namespace
}  // namespace kvr5
