// What years of use leave in a file, and what only a hostile one holds, made by the tests' own
// writer.
#include <gtest/gtest.h>

#include "platform/jet/Tabelle.h"
#include "support/ScriviJet.h"

namespace kvr5 {
namespace {

using jet::Fault;
using test::CampiHead;
using test::CampiList;
using test::CampoJet;
using test::DisposizioneJet;
using test::Read;
using test::Rows;
using test::ScrittoreJet;

Rows Tracks(std::int64_t count) {
  Rows rows;
  for (std::int64_t i = 1; i <= count; ++i) {
    rows.push_back({i, "Ä " + std::to_string(i) + ".mp3", "D:\\Музыка\\", DbValue(), i,
                    std::int64_t{1}, std::int64_t{0}});
  }
  return rows;
}

/// A file whose List has these columns and rows.
std::string FileOf(const std::vector<CampoJet>& fields, const Rows& rows) {
  ScrittoreJet file;
  file.Tabella("List", fields, rows);
  file.Tabella("HEAD", CampiHead(), {});
  return file.Prendi();
}

TEST(JetShapes, ADefinitionOverSeveralPagesWithColumnsOfAllTypesIsRead) {
  constexpr std::uint8_t kTypes[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 15};
  std::vector<CampoJet> fields = CampiList();
  Rows rows = Tracks(9);
  for (std::uint16_t i = 7; i < 120; ++i) {
    fields.push_back({"A column with a long name, the " + std::to_string(i) + "th",
                      kTypes[i % std::size(kTypes)], i});
    for (auto& row : rows) row.push_back(i % 3 == 0 ? DbValue() : DbValue(std::int64_t{i}));
  }
  const auto read = Read(FileOf(fields, rows));
  EXPECT_EQ(read.Guasto.What, Fault::None);
  EXPECT_EQ(read.Lista, Tracks(9));
}

TEST(JetShapes, ColumnsThatWereTakenAwayLeaveTheirNumbersFree) {
  std::vector<CampoJet> fields = CampiList();
  for (CampoJet& each : fields) each.Numero = static_cast<std::uint16_t>(3 * each.Numero + 2);
  const auto read = Read(FileOf(fields, Tracks(40)));
  EXPECT_EQ(read.Guasto.What, Fault::None);
  EXPECT_EQ(read.Lista, Tracks(40));
}

TEST(JetShapes, ARowOlderThanAColumnHasNothingInIt) {
  Rows rows = Tracks(3);
  rows[0].resize(5);
  rows[1].resize(1);
  const auto read = Read(FileOf(CampiList(), rows));
  EXPECT_EQ(read.Guasto.What, Fault::None);
  rows[0].resize(7);
  rows[1].resize(7);
  EXPECT_EQ(read.Lista, rows);
}

TEST(JetShapes, RowsThatMovedAgainAndAgainAreRead) {
  for (const int moves : {1, 3, 40}) {
    const auto read = Read(test::FileJet(Tracks(60), {}, {.Spostamenti = moves}));
    EXPECT_EQ(read.Guasto.What, Fault::None) << moves;
    EXPECT_EQ(read.Lista, Tracks(60)) << moves;
  }
}

TEST(JetShapes, ARowThatMovedMoreOftenThanAnyDoesIsDamage) {
  EXPECT_EQ(Read(test::FileJet(Tracks(2), {}, {.Spostamenti = 100})).Guasto.What, Fault::Damaged);
}

/// A file whose catalogue has many rows more.
std::string WithCatalogue(int rows, const DisposizioneJet& layout) {
  ScrittoreJet file;
  file.Tabella("List", CampiList(), Tracks(3));
  for (int i = 0; i < rows; ++i) file.Voce(std::string(250, 'n'));
  file.Catalogo(layout);
  return file.Prendi();
}

TEST(JetShapes, SlotsThatAllLeadToOneRowAreDamageAfterIt) {
  constexpr DisposizioneJet kFan{.Ventaglio = true};
  const auto list = Read(test::FileJet(Tracks(2'000), {}, kFan));
  EXPECT_EQ(list.Guasto.What, Fault::Damaged);
  EXPECT_EQ(list.Lista.size(), 1U);
  EXPECT_EQ(Read(WithCatalogue(2'000, kFan)).Guasto.What, Fault::Damaged);
}

TEST(JetShapes, RowsThatShareTheirBytesAreDamageBeforeTheFirst) {
  constexpr DisposizioneJet kOver{.Sovrapposte = true};
  const auto list = Read(test::FileJet(Tracks(100), {}, kOver));
  EXPECT_EQ(list.Guasto.What, Fault::Damaged);
  EXPECT_TRUE(list.Lista.empty());
  EXPECT_EQ(Read(WithCatalogue(100, kOver)).Guasto.What, Fault::Damaged);
}

TEST(JetShapes, PagesOfOthersInATablesMapHoldNoneOfItsRows) {
  constexpr char kMapPage = 5;
  std::string content = test::FileJet(Tracks(5), {});
  for (std::size_t at = 0; at < content.size(); at += jet::kPageSize) {
    if (content[at] != kMapPage) continue;
    content[at + 4] = static_cast<char>(content[at + 4] | 0b1110);  // of the system, definitions
  }
  const auto read = Read(content);
  EXPECT_EQ(read.Guasto.What, Fault::None);
  EXPECT_EQ(read.Lista, Tracks(5));
}

TEST(JetShapes, TablesAndColumnsAreFoundWhateverTheirCase) {
  std::vector<CampoJet> fields = CampiList();
  fields[1].Nome = "FILENAME";
  fields[3].Nome = "alias";
  ScrittoreJet file;
  file.Tabella("LIST", fields, Tracks(2));
  file.Tabella("Head", CampiHead(), {});
  EXPECT_EQ(Read(file.Prendi()).Lista, Tracks(2));
}

TEST(JetShapes, ATableThatIsThereTwiceIsDamage) {
  ScrittoreJet file;
  file.Tabella("HEAD", CampiHead(), {});
  file.Tabella("List", CampiList(), Tracks(2));
  file.Voce("List");
  EXPECT_EQ(Read(file.Prendi()).Guasto.What, Fault::Damaged);
}

TEST(JetShapes, ATableOrAColumnThatIsMissingOrOfAnotherTypeIsNamed) {
  ScrittoreJet lone;
  lone.Tabella("List", CampiList(), Tracks(1));
  EXPECT_EQ(Read(lone.Prendi()).Guasto.What, Fault::NoTable);
  std::vector<CampoJet> fields = CampiList();
  fields[3].Tipo = 12;  // a memo
  const auto read = Read(FileOf(fields, {}));
  EXPECT_EQ(read.Guasto.What, Fault::NoColumn);
  EXPECT_EQ(read.Guasto.Where, "List.Alias");
}

TEST(JetShapes, HalfOfAPairIsShownAsAnUnknownCharacter) {
  Rows rows = Tracks(1);
  rows[0][1] = "\xED\xA0\xBD.mp3";
  const auto read = Read(FileOf(CampiList(), rows));
  ASSERT_EQ(read.Guasto.What, Fault::None);
  EXPECT_EQ(read.Lista[0][1], DbValue("\uFFFD.mp3"));
}

}  // namespace
}  // namespace kvr5
