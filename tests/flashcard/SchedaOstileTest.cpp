// Cards that somebody prepared to do harm, on the whole way: read back, opened, verified, recorded.
// Whatever they hold, nothing outside of the project's folder and the card that is recorded
// changes.
#include <sqlite3.h>

#include <random>

#include "BancoVerifica.h"
#include "playerconfig/RientroDaScheda.h"
#include "projects/ApriProgetto.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using namespace test;  // the models
using Names = std::vector<std::string>;

class SchedaOstile : public test::Verifica {
 protected:
  void SetUp() override {
    test::Verifica::SetUp();
    b.Cartella.Write("victim.txt", "a user's own");
    b.Cartella.Write("victim.mp3", "a user's own");
    b.Cartella.Write("program/Projects/Other/Config.txt", "another project");
    fs::create_directories(b.Cartella.Host() / "blank");
  }

  /// A card of a good recording, and no project any more.
  void GoodCard(const Modello& model) {
    b.Copia.Guasti.clear();  // of the way before
    EmptyCard();
    fs::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    Recorded(model);
    fs::remove_all(b.Cartella.Host() / "program/Projects/Hall");
  }
  /// Changes a database of the card as any program can.
  void Sql(const std::string& database, const std::string& statements) const {
    sqlite3* raw = nullptr;
    ASSERT_EQ(sqlite3_open(Card(database).c_str(), &raw), SQLITE_OK);
    ASSERT_EQ(sqlite3_create_collation(raw, "KVR5NOCASE", SQLITE_UTF8, nullptr,
                                       [](void*, int, const void*, int, const void*) { return 0; }),
              SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(raw, statements.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(raw);
    EXPECT_EQ(sqlite3_close(raw), SQLITE_OK);
  }
  void Row(const std::string& database, const std::string& alias, const std::string& path,
           const std::string& file) const {
    Sql(database, "INSERT INTO List (Pos,NPlaylist,Alias,FilePath,FileName) VALUES(77,1,'" + alias +
                      "','" + path + "','" + file + "')");
  }
  /// Puts the card's database and journal as a change that never ended left them, and a further
  /// file's name behind the journal.
  void LeaveSuperJournal(const std::string& database, const fs::path& named) const {
    sqlite3* raw = nullptr;
    ASSERT_EQ(sqlite3_open(Card(database).c_str(), &raw), SQLITE_OK);
    const std::string fill = "INSERT INTO HEAD (Descript) VALUES('" + std::string(300, 'x') + "')";
    sqlite3_exec(raw, "PRAGMA cache_size=1; BEGIN", nullptr, nullptr, nullptr);
    for (int i = 0; i < 400; ++i) sqlite3_exec(raw, fill.c_str(), nullptr, nullptr, nullptr);
    const std::string half = b.Cartella.Read("card/" + database);
    const std::string journal = b.Cartella.Read("card/" + database + "-journal");
    sqlite3_close(raw);
    OnCard(database, half);
    OnCard(database + "-journal", journal + Naming(named.string()));
  }
  static std::string Naming(const std::string& file) {
    const auto number = [](std::uint32_t value) {
      std::string bytes;
      for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift);
      return bytes;
    };
    std::uint32_t sum = 0;
    for (const char c : file) sum += static_cast<std::uint32_t>(static_cast<signed char>(c));
    return number(1) + file + number(static_cast<std::uint32_t>(file.size())) + number(sum) +
           std::string("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8);
  }

  /// Reads the card back, opens the copy as the hub does, verifies it against its own card and
  /// records it onto an empty one. Nothing else may change. True where it came to the opening.
  bool WholeWay() {
    const std::string card = s.PercorsoMemoryCard;
    const Albero before = Outside();
    SceltaDaProva choice(s);
    choice.Card = card;
    SchermoDaProva screen(s);
    FinestraProgresso progress(b.C);
    const auto read = CaricaDaFlash(b.C, choice, screen, progress);
    const bool opened = read.Fine == FineLettura::Copiata &&
                        ApriProgetto(b.C, read.Cartella) == EsitoApertura::Aperto;
    if (opened) {
      TabellaIngressi inputs(b.C);
      inputs.ApriSeCiSono();
      RientroDaScheda(b.C, inputs);
      inputs.Chiudi();
      Verify();
      s.PercorsoMemoryCard = b.Percorso("blank") + "\\";
      Record();
      s.PercorsoMemoryCard = card;
    }
    while (!b.Finestre.Silenzio()) b.Finestre.Prossimo();
    EXPECT_EQ(Cambiati(before, Outside()), Names{});
    return opened;
  }
  Albero Outside() const {
    return Senza(AlberoDi(b.Cartella.Host(), false), {"program/Projects/Hall", "blank"});
  }
  Names Blank() const { return b.Nomi("blank"); }
};

TEST_F(SchedaOstile, AJournalThatNamesAFurtherFileLeavesItAlone) {
  for (const Modello& model : {kInputs, kPlaylists, kSchedule, kBoth}) {
    GoodCard(model);
    for (const auto& database : DatabaseDelProgetto(model.Type, model.Config, model.Mode)) {
      LeaveSuperJournal(database, b.Cartella.Host() / "victim.txt");
    }
    EXPECT_TRUE(WholeWay());
    EXPECT_EQ(b.Cartella.Read("victim.txt"), "a user's own") << model.Type << ", " << model.Mode;
  }
}

TEST_F(SchedaOstile, AJournalOnTheCardIsNoMatterOfAVerification) {
  Recorded(kPlaylists);
  LeaveSuperJournal("playlist.mdb", b.Cartella.Host() / "victim.txt");
  const Albero before = AlberoDi(b.Cartella.Host(), true);
  EXPECT_EQ(Verify(), (Names{"different playlist.mdb", "stray playlist.mdb-journal"}));
  EXPECT_EQ(Cambiati(before, AlberoDi(b.Cartella.Host(), true)), Names{});
}

TEST_F(SchedaOstile, AHotJournalOfTheCardIsPlayedBackInTheCopyAlone) {
  GoodCard(kPlaylists);
  LeaveSuperJournal("playlist.mdb", b.Cartella.Host() / "victim.txt");
  std::string journal = b.Cartella.Read("card/playlist.mdb-journal");
  journal += std::string(64, '\0');  // its end no more names a file
  OnCard("playlist.mdb-journal", journal);
  EXPECT_TRUE(WholeWay());
  EXPECT_FALSE(b.Cartella.Exists("program/Projects/Hall/playlist.mdb-journal"));
  EXPECT_TRUE(std::ranges::count(Blank(), "P01-001.mp3") == 1) << "the rows are there again";
}

TEST_F(SchedaOstile, NamesThatLeadOutOfTheFolderReachNothing) {
  const std::string victim = b.Percorso("victim.mp3");
  const std::string host = (b.Cartella.Host() / "victim.mp3").string();
  int round = 0;
  for (const std::string& name :
       {std::string("..\\victim.mp3"), std::string("..\\..\\..\\victim.mp3"), victim, host,
        std::string("../../../victim.mp3"), std::string("C:victim.mp3"), std::string(".."),
        std::string("."), std::string("*.*"), std::string("?.mp3"), std::string("a|b"),
        std::string("NUL"), std::string("\\victim.mp3"), std::string("sub\\x.mp3"),
        std::string("x.mp3\\"), std::string("con.mp3"), std::string(5000, 'n'),
        std::string("line\r\nbreak.mp3"), std::string("..\\Other\\Config.txt")}) {
    SCOPED_TRACE(name.substr(0, 40));
    const Modello& model = ++round % 2 == 0 ? kBoth : kInputs;
    GoodCard(model);
    OnCard("9.mp3", "music");
    for (const auto& database : DatabaseDelProgetto(model.Type, model.Config, model.Mode)) {
      Row(database, name, Music(), "a.mp3");
      Row(database, "9.mp3", "C:\\x\\", name);
      Row(database, name, "", name);
    }
    EXPECT_TRUE(WholeWay());
  }
}

TEST_F(SchedaOstile, AnInputsFileNameCannotTakeTheFileOutOfTheProject) {
  GoodCard(kInputs);
  Sql("inputcfg.mdb", "UPDATE List SET FileName='..\\..\\..\\out.mp3'");
  EXPECT_TRUE(WholeWay());
  EXPECT_FALSE(b.Cartella.Exists("out.mp3"));
  EXPECT_TRUE(b.Cartella.Exists("program/Projects/Hall/5.mp3")) << "it keeps its alias";
}

TEST_F(SchedaOstile, TriggersOfACardDoNothing) {
  GoodCard(kInputs);
  Sql("inputcfg.mdb",
      "CREATE TRIGGER t1 AFTER INSERT ON List BEGIN DELETE FROM List; END;"
      "CREATE TRIGGER t2 AFTER UPDATE ON List BEGIN DELETE FROM List; END;");
  ASSERT_TRUE(WholeWay());
  TabellaIngressi inputs(b.C);
  inputs.Apri();
  inputs.Assegna(5, "b.mp3", Music());
  inputs.Assegna(9, "c.mp3", Music());
  EXPECT_EQ(inputs.Righe().size(), 3U);
}

TEST_F(SchedaOstile, AViewInThePlaceOfATableIsNoTable) {
  GoodCard(kInputs);
  Sql("inputcfg.mdb",
      "ALTER TABLE List RENAME TO Real; CREATE VIEW List AS WITH RECURSIVE r(ID) AS (SELECT 1 "
      "UNION "
      "ALL SELECT ID+1 FROM r) SELECT ID, ID||'.mp3' AS FileName, 'C:\\' AS FilePath, ID||'.mp3' "
      "AS "
      "Alias, ID AS Pos, 1 AS NPlaylist, 0 AS IDSched FROM r");
  EXPECT_TRUE(WholeWay());
  EXPECT_EQ(Blank(), (Names{"Config.cfg", "Config.txt", "Report.htm", "inputcfg.mdb"}))
      << "its pass is skipped";
}

TEST_F(SchedaOstile, RowsBeyondAllMeasureAreNotTakenIn) {
  for (const Modello& model : {kInputs, kPlaylists, kSchedule}) {
    GoodCard(model);
    const std::string database = DatabaseDelProgetto(model.Type, 0, model.Mode).front();
    Sql(database,
        "INSERT INTO List (Pos,NPlaylist,Alias,FilePath,FileName) VALUES(1,1,"
        "replace(hex(zeroblob(20000000)),'0','n'),'C:\\','n.mp3')");
    EXPECT_TRUE(WholeWay());
  }
}

TEST_F(SchedaOstile, ValuesOfOtherKindsAreTakenAsTheyCome) {
  GoodCard(kBoth);
  for (const char* database : {"inputcfg.mdb", "playlist.mdb"}) {
    Sql(database,
        "INSERT INTO List (Pos,NPlaylist,Alias,FilePath,FileName) VALUES"
        "(9223372036854775807,-9223372036854775808,1.5e300,x'00FF00',NULL),"
        "('text',NULL,x'2E2E5C2E2E',3,4),(NULL,NULL,NULL,NULL,NULL),"
        "(-1,1e9,'a' || char(0) || 'b.mp3','C:\\','c' || char(0)),"
        "(2,1,char(55296) || '.mp3','C:\\',cast(x'FFFE' AS TEXT))");
  }
  EXPECT_TRUE(WholeWay());
}

TEST_F(SchedaOstile, FilesOfTheCardWithTheNamesOfTheProgramsOwnHarmNothing) {
  GoodCard(kPlaylists);
  for (const char* name : {"KVR5Software.ini", "Drives.ini", "source.mdb", "tmpPlaylist.mdb",
                           "tmpPlaylist.mdb-journal", "Language/English.lan", "Projects/x"}) {
    OnCard(name, "of the card");
  }
  EXPECT_TRUE(WholeWay());
}

TEST_F(SchedaOstile, ACardMadeOfLinksBringsNothingOfTheHost) {
  GoodCard(kPlaylists);
  b.Cartella.Write("secret/Config.txt", "a user's own");
  b.Cartella.Write("secret/P01-001.mp3", "a user's own");
  for (const char* name : {"Config.txt", "P01-001.mp3"}) {
    fs::remove(Card(name));
    fs::create_symlink(std::string("../secret/") + name, Card(name));
  }
  EXPECT_FALSE(WholeWay()) << "without Config.txt it is no project";
  for (const auto& [name, what] : AlberoDi(b.Cartella.Host() / "program/Projects/Hall")) {
    EXPECT_EQ(what.find("a user's own"), std::string::npos) << name;
  }
}

TEST_F(SchedaOstile, DatabasesThatAreCutOrChangedAtRandomHarmNothing) {
  std::mt19937 dice(31);
  GoodCard(kBoth);
  const std::string good = b.Cartella.Read("card/inputcfg.mdb");
  const std::string lists = b.Cartella.Read("card/playlist.mdb");
  int opened = 0;
  for (int round = 0; round < 60; ++round) {
    SCOPED_TRACE(round);
    fs::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    for (const auto& [name, whole] : {std::pair{"inputcfg.mdb", good}, {"playlist.mdb", lists}}) {
      std::string bytes = whole;
      for (auto flips = dice() % 40; flips > 0; --flips) {
        const std::size_t at = dice() % (dice() % 2 == 0 ? 200 : bytes.size());
        bytes[at] = static_cast<char>(dice());
      }
      if (dice() % 3 == 0) bytes.resize(dice() % bytes.size());
      OnCard(name, bytes);
    }
    if (WholeWay()) ++opened;
  }
  EXPECT_EQ(opened, 60) << "a damaged database is no missing file";
}

TEST_F(SchedaOstile, DescriptorsAndDeviceFilesOfRandomBytesHarmNothing) {
  std::mt19937 dice(77);
  GoodCard(kBoth);
  const std::string descriptor = b.Cartella.Read("card/Config.cfg");
  for (int round = 0; round < 60; ++round) {
    SCOPED_TRACE(round);
    fs::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    std::string bytes = descriptor;
    const std::size_t name = bytes.find("Hall");
    ASSERT_NE(name, std::string::npos);
    for (auto flips = dice() % 6; flips > 0; --flips) {
      const std::size_t at = dice() % bytes.size();
      if (at < name - 12 || at > name + 5) bytes[at] = static_cast<char>(dice());
    }
    OnCard("Config.cfg", bytes);
    std::string noise;
    for (auto left = dice() % 3000; left > 0; --left) noise += static_cast<char>(dice());
    OnCard("Config.txt", noise);
    OnCard("PLAYLIST.m3u", noise);
    const Albero before = Outside();
    WholeWay();
    EXPECT_EQ(Cambiati(before, Outside()), Names{});
  }
}

}  // namespace
}  // namespace kvr5
