// Files that were changed at random, cut, or made to lead round in circles: reading comes to an
// end, with or without rows, whatever they hold.
#include <gtest/gtest.h>

#include <random>

#include "platform/jet/Codificato.h"
#include "platform/jet/Tabelle.h"

namespace kvr5 {
namespace {

using jet::Fault;
using test::Content;
using test::Encoded;
using test::Letto;
using test::Put32;
using test::Read;

constexpr std::size_t kPage = jet::kPageSize;

std::uint32_t Get32(const std::string& content, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i > 0; --i) {
    value = value << 8U | static_cast<unsigned char>(content[at + i - 1]);
  }
  return value;
}

/// The page of the definition of a sample's table List.
std::size_t ListPage(const std::string& content) {
  for (std::size_t page = 3; page < content.size() / kPage; ++page) {
    const std::size_t at = page * kPage;
    const bool isList = content[at] == 2 && content[at + 40] == 'N' && content[at + 45] == 7;
    if (isList) return page;
  }
  return 0;
}

TEST(JetDamage, EncodedPagesReadAsPlainOnes) {
  const std::string plain = Content("i_edited");
  for (const std::uint32_t key : {1U, 0xDEADBEEFU, 0x80000000U}) {
    const Letto read = Read(Encoded(plain, key));
    EXPECT_EQ(read.Guasto.What, Fault::None);
    EXPECT_EQ(read.Lista, Read(plain).Lista);
  }
}

TEST(JetDamage, AFileThatIsCutAnywhereIsRefused) {
  const std::string whole = Content("a_inputs");
  for (std::size_t length = 0; length < whole.size(); length += 509) {
    EXPECT_TRUE(Read(whole.substr(0, length)).Guasto) << length;
  }
  EXPECT_FALSE(Read(whole).Guasto);
}

TEST(JetDamage, ChangedBytesNeverMakeMoreThanTheFileHolds) {
  std::mt19937 random(20061020);
  std::size_t refused = 0;
  for (const char* sample : {"a_inputs", "i_edited", "d_schedule", "h_edges"}) {
    const std::string whole = Content(sample);
    for (int round = 0; round < 400; ++round) {
      std::string content = whole;
      const int changes = 1 + static_cast<int>(random() % 40);
      for (int i = 0; i < changes; ++i) {
        content[random() % content.size()] = static_cast<char>(random());
      }
      const Letto read = Read(content);
      if (read.Guasto) ++refused;
      EXPECT_LT(read.Lista.size() + read.Testa.size(), content.size() / 8);
    }
  }
  EXPECT_GT(refused, 200U);
}

TEST(JetDamage, ADefinitionThatGoesRoundInACircleIsRefused) {
  std::string content = Content("a_inputs");
  const std::size_t page = ListPage(content);
  ASSERT_NE(page, 0U);
  Put32(content, page * kPage + 4, static_cast<std::uint32_t>(page));
  EXPECT_EQ(Read(content).Guasto.What, Fault::Damaged);
}

TEST(JetDamage, ARowThatMovedInACircleIsRefused) {
  std::string content = Content("i_edited");
  const auto list = static_cast<std::uint32_t>(ListPage(content));
  for (std::size_t page = 1; page < content.size() / kPage; ++page) {
    const std::size_t at = page * kPage;
    if (content[at] != 1 || Get32(content, at + 4) != list) continue;
    const std::size_t slots = Get32(content, at + 12) & 0xFFFFU;
    for (std::size_t slot = 0; slot < slots; ++slot) {
      const std::uint32_t entry = Get32(content, at + 14 + 2 * slot) & 0xFFFFU;
      if ((entry & 0xC000U) != 0x4000U) continue;
      // Moved from here to itself: a target that has moved on.
      Put32(content, at + (entry & 0x1FFFU), static_cast<std::uint32_t>(page << 8U | slot));
      EXPECT_EQ(Read(content).Guasto.What, Fault::Damaged);
      return;
    }
  }
  FAIL() << "the sample has no row that moved";
}

TEST(JetDamage, ACounterThatIsThereTwiceIsRefused) {
  std::string content = Content("a_inputs");
  const Letto whole = Read(content);
  ASSERT_EQ(whole.Lista.size(), 12U);
  const auto list = static_cast<std::uint32_t>(ListPage(content));
  for (std::size_t page = 1; page < content.size() / kPage; ++page) {
    const std::size_t at = page * kPage;
    if (content[at] != 1 || Get32(content, at + 4) != list) continue;
    const std::size_t first = at + (Get32(content, at + 14) & 0x1FFFU);
    const std::size_t second = at + (Get32(content, at + 16) & 0x1FFFU);
    Put32(content, first + 2, Get32(content, second + 2));
    EXPECT_EQ(Read(content).Guasto.What, Fault::Damaged);
    return;
  }
  FAIL() << "the table has no rows";
}

TEST(JetDamage, ARowMoreOrLessThanTheDefinitionSaysIsRefused) {
  const std::string whole = Content("a_inputs");
  for (const std::uint32_t rows : {0U, 11U, 13U, 0xFFFFFFFFU}) {
    std::string content = whole;
    Put32(content, ListPage(content) * kPage + 16, rows);
    EXPECT_EQ(Read(content).Guasto.What, Fault::Damaged) << rows;
  }
}

}  // namespace
}  // namespace kvr5
