#include "DatabaseTest.h"
#include "RawDatabase.h"
#include "platform/db/SuperJournal.h"

namespace kvr5::test {
namespace {

namespace fs = std::filesystem;

const std::string kMark("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8);

std::string BigEndian(std::uint32_t number) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(number >> shift);
  return bytes;
}

/// What SQLite writes behind a journal of a transaction over several databases.
std::string Naming(const std::string& file) {
  std::uint32_t sum = 0;
  for (const char c : file) sum += static_cast<std::uint32_t>(static_cast<signed char>(c));
  return BigEndian(0x40000001) + file + BigEndian(static_cast<std::uint32_t>(file.size())) +
         BigEndian(sum) + kMark;
}

/// A database beside a file that a journal names.
class SuperJournalTest : public DatabaseTest {
 protected:
  void SetUp() override {
    DatabaseTest::SetUp();
    AddTrack(1, 1, "a.mp3");
    connection.Close();
    folder.Write("victim.txt", "a user's own");
  }
  std::string Victim() const { return (folder.Host() / "victim.txt").string(); }

  /// The journal of a change of a.mdb that never ended, and a.mdb as it stood then.
  void LeaveHotJournal() {
    const fs::path path = folder.Host() / "a.mdb";
    RawDatabase raw(path);
    raw.Run("PRAGMA cache_size=1");
    raw.Run("BEGIN");
    for (int i = 0; i < 400; ++i) {
      raw.Run("INSERT INTO HEAD (Descript) VALUES('" + std::string(300, 'x') + "')");
    }
    const std::string half = folder.Read("a.mdb");
    const std::string journal = folder.Read("a.mdb-journal");
    ASSERT_GT(journal.size(), 512U);
    folder.Write("b.mdb", half);
    folder.Write("b.mdb-journal", journal);
  }
  bool Names(const std::string& journal) {
    folder.Write("c.mdb-journal", journal);
    return JournalNamesAFile(folder.Host() / "c.mdb");
  }
  int OpenError(const std::string& name) {
    Connection other(files);
    return other.Open(folder.System(name)).Number();
  }
};

TEST_F(SuperJournalTest, AJournalThatEndsInTheMarkNamesAFileAndNoOtherDoes) {
  EXPECT_FALSE(JournalNamesAFile(folder.Host() / "a.mdb")) << "there is none";
  EXPECT_TRUE(Names("some pages" + Naming("/victim")));
  EXPECT_TRUE(Names(kMark));
  EXPECT_FALSE(Names(""));
  EXPECT_FALSE(Names("seven b"));
  EXPECT_FALSE(Names(kMark.substr(1)));
  EXPECT_FALSE(Names("some pages" + Naming("/victim") + " "));
  EXPECT_FALSE(Names(kMark + std::string(504, '\0'))) << "at its start it marks a journal";
  for (std::size_t i = 0; i < kMark.size(); ++i) {
    std::string other = kMark;
    other[i] = static_cast<char>(other[i] ^ 1);
    EXPECT_FALSE(Names("some pages" + other)) << i;
  }
}

TEST_F(SuperJournalTest, WhatIsNoFileNamesNone) {
  fs::create_directories(folder.Host() / "c.mdb-journal");
  EXPECT_FALSE(JournalNamesAFile(folder.Host() / "c.mdb"));
}

TEST_F(SuperJournalTest, AJournalBehindALinkIsAJournalToo) {
  folder.Write("elsewhere", Naming("/victim"));
  fs::create_symlink("elsewhere", folder.Host() / "c.mdb-journal");
  EXPECT_TRUE(JournalNamesAFile(folder.Host() / "c.mdb"));
}

TEST_F(SuperJournalTest, PlainSqliteWouldDeleteTheFileThatSuchAJournalNames) {
  LeaveHotJournal();
  folder.Write("b.mdb-journal", folder.Read("b.mdb-journal") + Naming(Victim()));
  RawDatabase(folder.Host() / "b.mdb").Value("SELECT COUNT(*) FROM List");
  EXPECT_FALSE(fs::exists(Victim())) << "what the next tests guard against";
}

TEST_F(SuperJournalTest, ADatabaseWithSuchAJournalIsNotOpenedAndTheFileStays) {
  LeaveHotJournal();
  folder.Write("b.mdb-journal", folder.Read("b.mdb-journal") + Naming(Victim()));
  const std::string half = folder.Read("b.mdb");
  EXPECT_EQ(OpenError("b.mdb"), errors::CannotOpen);
  EXPECT_EQ(folder.Read("victim.txt"), "a user's own");
  EXPECT_TRUE(folder.Read("b.mdb") == half);
}

TEST_F(SuperJournalTest, ADatabaseReachedByALinkIsNotOpenedEither) {
  LeaveHotJournal();
  folder.Write("b.mdb-journal", folder.Read("b.mdb-journal") + Naming(Victim()));
  fs::create_symlink("b.mdb", folder.Host() / "link.mdb");
  OpenError("link.mdb");
  EXPECT_TRUE(fs::exists(Victim())) << "SQLite looks for the journal beside the file itself";
}

TEST_F(SuperJournalTest, AHotJournalOfItsOwnIsPlayedBackAsEver) {
  LeaveHotJournal();
  EXPECT_EQ(OpenError("b.mdb"), 0);
  EXPECT_EQ(RawDatabase(folder.Host() / "b.mdb").Value("SELECT COUNT(*) FROM HEAD"), "0");
  EXPECT_FALSE(fs::exists(folder.Host() / "b.mdb-journal"));
  EXPECT_TRUE(fs::exists(Victim()));
}

}  // namespace
}  // namespace kvr5::test
