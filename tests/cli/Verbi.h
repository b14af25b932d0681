#pragma once

#include <gtest/gtest.h>

#include <string>

#include "cli/Compagno.h"

namespace kvr5::test {

/// A staged program in which verbs are tried.
class Verbi : public testing::Test {
 protected:
  std::string Project(const std::string& name = "Hall") const {
    return k.Host("program/Projects/" + name);
  }
  void New(const std::string& mode = "1", const std::string& name = "Hall") {
    ASSERT_EQ(k.Esegui({"new", name, "--mode", mode}).Stato, 0);
  }

  Compagno k;
};

}  // namespace kvr5::test
