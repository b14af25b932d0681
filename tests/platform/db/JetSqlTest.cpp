#include <gtest/gtest.h>

#include <string>

#include "platform/db/JetSql.h"
#include "platform/db/TimeOfDay.h"

namespace kvr5 {
namespace {

std::string Translated(std::string_view statement) {
  const Result<std::string> sql = TranslateJetSql(statement);
  return sql ? sql.Value() : std::to_string(sql.Err().Number());
}

constexpr std::string_view kBad = "-2147217900";

TEST(JetSql, PutsTheLimitBehindTheSelectItBelongsTo) {
  EXPECT_EQ(Translated("SELECT TOP 1 * FROM [HEAD] ORDER BY ID DESC"),
            R"(SELECT * FROM "HEAD" ORDER BY "ID" DESC, "HEAD"."ID" LIMIT 1)");
  EXPECT_EQ(Translated("SELECT TOP 3 ID,(SELECT TOP 1 [Filename] FROM [List] WHERE Pos=2) AS Spot2 "
                       "FROM [HEAD]"),
            R"(SELECT "ID" AS "ID", (SELECT "Filename" AS "Filename" FROM "List" WHERE )"
            R"(("Pos" = 2) ORDER BY "List"."ID" LIMIT 1) AS "Spot2" )"
            R"(FROM "HEAD" ORDER BY "HEAD"."ID" LIMIT 3)");
}

TEST(JetSql, KeepsTheOrderOfAddingAmongEqualRows) {
  EXPECT_EQ(Translated("SELECT * FROM [List] WHERE [NPlaylist]=4"),
            R"(SELECT * FROM "List" WHERE ("NPlaylist" = 4) ORDER BY "List"."ID")");
  EXPECT_EQ(Translated("SELECT DISTINCT [NPlaylist] FROM [LIST]"),
            R"(SELECT DISTINCT "NPlaylist" AS "NPlaylist" FROM "List")");
  EXPECT_EQ(Translated("SELECT MAX ([NScheduler]) AS ValoreMax FROM [HEAD]"),
            R"(SELECT MAX("NScheduler") AS "ValoreMax" FROM "HEAD")");
}

TEST(JetSql, TakesDeleteWithAndWithoutTheAsterisk) {
  EXPECT_EQ(Translated("DELETE * FROM [List]"), R"(DELETE FROM "List")");
  EXPECT_EQ(Translated("delete from LIST where pos=1;"), R"(DELETE FROM "List" WHERE ("pos" = 1))");
}

TEST(JetSql, TurnsTimesIntoStoredOnes) {
  for (const std::string_view time : {"#08.30#", "#08:30#", "#08:30:00#"}) {
    EXPECT_EQ(Translated("UPDATE [HEAD] SET [StartTime]=" + std::string(time)),
              R"(UPDATE "HEAD" SET "StartTime" = '08:30:00')");
  }
  EXPECT_EQ(StoredTime("23:59:59"), "23:59:59");
  EXPECT_EQ(StoredTime("00.00"), "00:00:00");
}

TEST(JetSql, RefusesWhatIsNoTime) {
  for (const std::string_view time :
       {"24.00", "12.60", "12:30:60", "1.30", "12.3", "12-30", "12.30.15", "12:30.15", "", "noon",
        "-1.30", "12.30 ", "012.30", "1a.30"}) {
    EXPECT_EQ(StoredTime(time), std::nullopt) << time;
    EXPECT_EQ(Translated("UPDATE [HEAD] SET [StartTime]=#" + std::string(time) + "#"), kBad)
        << time;
  }
  EXPECT_EQ(Translated("UPDATE [HEAD] SET [StartTime]=#12.30"), kBad);
}

TEST(JetSql, TurnsIsNullIntoATestWithParenthesesWithin) {
  EXPECT_EQ(Translated("DELETE * FROM [List] WHERE ISNULL([Alias])"),
            R"(DELETE FROM "List" WHERE (("Alias") IS NULL))");
  EXPECT_EQ(Translated("DELETE * FROM [List] WHERE NOT isnull (([Pos]+(1)))"),
            R"(DELETE FROM "List" WHERE (NOT (((("Pos" + (1)))) IS NULL)))");
  EXPECT_EQ(Translated("DELETE * FROM [List] WHERE [Alias] IS NOT NULL"),
            R"(DELETE FROM "List" WHERE ("Alias" IS NOT NULL))");
}

TEST(JetSql, BindsOperatorsAsTheDialectDoes) {
  EXPECT_EQ(Translated("DELETE * FROM List WHERE NOT Pos=1 OR Pos=2 AND ID<>3+4*-5"),
            R"(DELETE FROM "List" WHERE ((NOT ("Pos" = 1)) OR )"
            R"((("Pos" = 2) AND ("ID" <> (3 + (4 * (- 5)))))))");
  EXPECT_EQ(Translated("DELETE * FROM List WHERE (Pos=1 OR Pos=2) AND ID>=3"),
            R"(DELETE FROM "List" WHERE (((("Pos" = 1) OR ("Pos" = 2))) AND ("ID" >= 3)))");
}

TEST(JetSql, ReadsTextsInBothQuotesWithDoubledOnes) {
  EXPECT_EQ(Translated("UPDATE List SET Alias='don''t'"),
            R"(UPDATE "List" SET "Alias" = 'don''t')");
  EXPECT_EQ(Translated(R"(UPDATE List SET Alias="it's ""so""")"),
            R"(UPDATE "List" SET "Alias" = 'it''s "so"')");
  EXPECT_EQ(Translated(R"(UPDATE List SET Alias='C:\a\')"),
            R"(UPDATE "List" SET "Alias" = 'C:\a\')");
  EXPECT_EQ(Translated("UPDATE List SET Alias='-- /* ; [ # \"'"),
            "UPDATE \"List\" SET \"Alias\" = '-- /* ; [ # \"'");
}

TEST(JetSql, RefusesATextBrokenByAnApostrophe) {
  for (const std::string_view name :
       {"Rock'n'Roll.mp3", "don't.mp3", "'", "''", "a' b", "x'y'z'.mp3", "'Round Midnight.mp3"}) {
    const std::string value(name);
    EXPECT_EQ(Translated("UPDATE [List] SET [Alias]='a' WHERE [Filename]='" + value +
                         "' AND [Filepath]='C:\\' AND ISNULL([Alias])"),
              name == "''" ? R"(UPDATE "List" SET "Alias" = 'a' WHERE ((("Filename" = '''') AND )"
                             R"(("Filepath" = 'C:\')) AND (("Alias") IS NULL)))"
                           : std::string(kBad))
        << name;
  }
}

TEST(JetSql, RefusesCalculatingWithTexts) {
  for (const std::string_view condition :
       {"FileName='A'+'B'", "FileName='A'-'B'", "FileName='A'*2", "Pos=-'1'", "FileName=('A')+'B'",
        "FileName='A'&'B'", "FileName='A'||'B'"}) {
    EXPECT_EQ(Translated("DELETE * FROM List WHERE " + std::string(condition)), kBad) << condition;
  }
}

TEST(JetSql, RefusesCommentsAndFurtherStatements) {
  for (const std::string_view statement :
       {"SELECT * FROM List -- all", "SELECT * FROM List --", "SELECT * /* all */ FROM List",
        "SELECT * FROM List; DELETE FROM List", "SELECT * FROM List;;", "; SELECT * FROM List",
        "SELECT * FROM List; x", "SELECT * FROM List DELETE FROM List", ";", "", "  \t\r\n"}) {
    EXPECT_EQ(Translated(statement), kBad) << statement;
  }
  EXPECT_NE(Translated(" SELECT\t*\r\nFROM List ; \r\n"), kBad);
}

TEST(JetSql, RefusesWhatIsUnclosedOrNoSignOfTheDialect) {
  for (const std::string_view statement : {"SELECT * FROM [List",
                                           "SELECT * FROM []",
                                           "SELECT * FROM [Li[st]",
                                           "SELECT [ID FROM List",
                                           "SELECT * FROM List WHERE Alias='a",
                                           "SELECT * FROM List WHERE Alias=\"a",
                                           "SELECT * FROM List WHERE (Pos=1",
                                           "SELECT * FROM List WHERE Pos=1)",
                                           "SELECT * FROM List WHERE Pos==1",
                                           "SELECT * FROM List WHERE Pos!=1",
                                           "SELECT * FROM List WHERE Pos=?",
                                           "SELECT * FROM List WHERE Pos=:a",
                                           "SELECT * FROM List WHERE Pos=@a",
                                           "SELECT * FROM List WHERE Pos=$a",
                                           "SELECT * FROM `List`",
                                           "SELECT * FROM List WHERE Pos=1|2",
                                           "SELECT * FROM List WHERE Pos%2",
                                           "SELECT * FROM List WHERE Pos=~1",
                                           "SELECT * FROM List WHERE Pos=1<<2",
                                           "SELECT * FROM List WHERE Pos=0x1F",
                                           "SELECT * FROM List WHERE Pos=1e3",
                                           "SELECT * FROM List WHERE Pos=.5",
                                           "SELECT * FROM List WHERE Pos=",
                                           "SELECT 1,2",
                                           "SELECT * FROM List WHERE Pos=6/2"}) {
    EXPECT_EQ(Translated(statement), kBad) << statement;
  }
  std::string zero = "SELECT * FROM List WHERE Pos=1";
  zero[18] = 0;
  EXPECT_EQ(Translated(zero), kBad);
}

TEST(JetSql, RefusesEverythingElseThatSqliteKnows) {
  for (const std::string_view statement : {"PRAGMA journal_mode=WAL",
                                           "ATTACH 'a.db' AS a",
                                           "VACUUM",
                                           "BEGIN",
                                           "COMMIT",
                                           "ROLLBACK",
                                           "CREATE TABLE x (a)",
                                           "DROP TABLE List",
                                           "ALTER TABLE List ADD x",
                                           "REINDEX",
                                           "ANALYZE",
                                           "EXPLAIN SELECT * FROM List",
                                           "REPLACE INTO List (Pos) VALUES (1)",
                                           "VALUES (1)",
                                           "WITH a AS (SELECT 1) SELECT * FROM a",
                                           "INSERT OR REPLACE INTO List (Pos) VALUES (1)",
                                           "INSERT INTO List DEFAULT VALUES",
                                           "INSERT INTO List (Pos) VALUES (1),(2)",
                                           "INSERT INTO List (Pos) SELECT Pos FROM List",
                                           "INSERT INTO List (Pos) VALUES (1) RETURNING ID",
                                           "UPDATE OR IGNORE List SET Pos=1",
                                           "UPDATE List SET (Pos)=1",
                                           "UPDATE List SET 'Pos'=1",
                                           "UPDATE List SET Pos=1 FROM HEAD",
                                           "UPDATE List SET Pos=1 LIMIT 1",
                                           "DELETE FROM List ORDER BY ID LIMIT 1",
                                           "DELETE FROM List INDEXED BY List_Place",
                                           "SELECT * FROM List LIMIT 1",
                                           "SELECT * FROM List LIMIT 1 OFFSET 2",
                                           "SELECT * FROM List GROUP BY Pos",
                                           "SELECT * FROM List UNION SELECT * FROM List",
                                           "SELECT * FROM 'List'",
                                           "SELECT * FROM \"List\"",
                                           "SELECT * FROM main.List",
                                           "SELECT * FROM List l",
                                           "SELECT * FROM List AS l",
                                           "SELECT * FROM List, HEAD",
                                           "SELECT * FROM List JOIN HEAD",
                                           "SELECT * FROM List CROSS JOIN HEAD",
                                           "SELECT * FROM List INNER JOIN HEAD",
                                           "SELECT * FROM List LEFT JOIN HEAD ON 1=1",
                                           "SELECT * FROM sqlite_master",
                                           "SELECT * FROM sqlite_sequence",
                                           "SELECT * FROM dbstat",
                                           "SELECT * FROM pragma_table_info",
                                           "SELECT * FROM (SELECT * FROM List)",
                                           "SELECT rowid FROM List",
                                           "SELECT [_ROWID_] FROM List",
                                           "SELECT List.oid FROM List",
                                           "SELECT Pos 'p' FROM List",
                                           "SELECT Pos AS 'p' FROM List",
                                           "SELECT x'41' FROM List",
                                           "SELECT * FROM List WHERE Alias LIKE 'a%'",
                                           "SELECT * FROM List WHERE Alias GLOB 'a*'",
                                           "SELECT * FROM List WHERE Pos IN (1,2)",
                                           "SELECT * FROM List WHERE Pos BETWEEN 1 AND 2",
                                           "SELECT * FROM List WHERE Alias ISNULL",
                                           "SELECT * FROM List WHERE Alias NOTNULL",
                                           "SELECT * FROM List WHERE Alias IS 'a'",
                                           "SELECT * FROM List WHERE Alias='a' COLLATE BINARY",
                                           "SELECT * FROM List WHERE EXISTS (SELECT * FROM HEAD)",
                                           "SELECT CAST(Pos AS TEXT) FROM List",
                                           "SELECT CASE Pos WHEN 1 THEN 2 END FROM List",
                                           "SELECT load_extension('x') FROM List",
                                           "SELECT randomblob(9) FROM List",
                                           "SELECT writefile('a','b') FROM List",
                                           "SELECT upper(Alias) FROM List",
                                           "SELECT typeof(Pos) FROM List",
                                           "SELECT max(1,2) FROM List",
                                           "SELECT count(DISTINCT Pos) FROM List",
                                           "SELECT COUNT() FROM List"}) {
    EXPECT_EQ(Translated(statement), kBad) << statement;
  }
}

TEST(JetSql, RefusesAggregatesWhereTheDialectHasNone) {
  for (const std::string_view statement :
       {"SELECT Pos,COUNT(*) FROM List", "SELECT MAX(Pos)+Pos FROM List",
        "SELECT MAX(COUNT(Pos)) FROM List", "SELECT COUNT(Pos) FROM List ORDER BY Pos",
        "SELECT * FROM List WHERE Pos=MAX(Pos)", "UPDATE List SET Pos=MAX(Pos)",
        "INSERT INTO List (Pos) VALUES (MAX(Pos))", "SELECT * FROM List ORDER BY MAX(Pos)"}) {
    EXPECT_EQ(Translated(statement), kBad) << statement;
  }
}

TEST(JetSql, LeavesTheCounterToTheDatabase) {
  EXPECT_EQ(Translated("UPDATE [List] SET [ID]=7"), kBad);
  EXPECT_EQ(Translated("INSERT INTO [HEAD] (id,NScheduler) VALUES (7,1)"), kBad);
}

TEST(JetSql, RefusesTopWithoutAWholeNumber) {
  for (const std::string_view top : {"TOP *", "TOP x *", "TOP 1.5 *", "TOP -1 *", "TOP '1' *",
                                     "TOP 12345678901 *", "TOP (1) *"}) {
    EXPECT_EQ(Translated("SELECT " + std::string(top) + " FROM List"), kBad) << top;
  }
}

TEST(JetSql, EndsEndlessNestingWithAnError) {
  const std::string deep = "SELECT * FROM List WHERE ";
  EXPECT_EQ(Translated(deep + std::string(100000, '(') + "1" + std::string(100000, ')')), kBad);
  EXPECT_EQ(Translated(deep + std::string(100000, '(')), kBad);
  std::string nots = deep;
  std::string signs = deep + "Pos=";
  for (int i = 0; i < 50000; ++i) {
    nots += "NOT ";
    signs += "- ";
  }
  EXPECT_EQ(Translated(nots + "1=1"), kBad);
  EXPECT_EQ(Translated(signs + "1"), kBad);
  EXPECT_NE(Translated(deep + std::string(20, '(') + "1" + std::string(20, ')')), kBad);
}

TEST(JetSql, TellsWhatIsWrong) {
  EXPECT_NE(TranslateJetSql("SELECT * FROM List WHERE Alias='a").Err().Description().find("text"),
            std::string::npos);
}

}  // namespace
}  // namespace kvr5
