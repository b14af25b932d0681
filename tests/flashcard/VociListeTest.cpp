#include <gtest/gtest.h>

#include "flashcard/VociListe.h"
#include "projects/BancoLettura.h"

namespace kvr5 {
namespace {

using Names = std::vector<std::string>;

class VociDelleListe : public testing::Test {
 protected:
  using Reader = Error (*)(Contesto&, std::string_view, const VoceListe&, const AvantiListe&);
  Names Read(Reader reader, const std::string& bytes) {
    b.Cartella.Write("list", bytes);
    Names names;
    const Error error = reader(b.C, b.Percorso("list"),
                               [&names](const std::string& name) { names.push_back(name); }, {});
    EXPECT_FALSE(error) << error.Description();
    return names;
  }
  Names Tracks(const std::string& bytes) { return Read(&LeggiListaBrani, bytes); }
  Names Spots(const std::string& bytes) { return Read(&LeggiPalinsesto, bytes); }

  test::BancoDiScheda bench;
  test::Banco& b = bench.B;
};

TEST_F(VociDelleListe, AListOfTracksNamesAFileALineInItsOrderAndAsOften) {
  EXPECT_EQ(Tracks("P01-002\r\nP01-001\r\nP01-002\r\n"), (Names{"P01-002", "P01-001", "P01-002"}));
  EXPECT_EQ(Tracks("P01-001\nP01-002"), (Names{"P01-001", "P01-002"}));
  EXPECT_EQ(Tracks(" a b .mp3\r\n"), Names{" a b .mp3"}) << "as it stands";
}

TEST_F(VociDelleListe, BlankLinesNameNothing) {
  EXPECT_EQ(Tracks(""), Names{});
  EXPECT_EQ(Tracks("\r\n\n   \r\n"), Names{});
  EXPECT_EQ(Tracks("\r\na\r\n\r\nb\r\n\r\n"), (Names{"a", "b"}));
}

TEST_F(VociDelleListe, LettersAreThoseOfTheHostsCodePage) {
  EXPECT_EQ(Tracks("caf\xE8\r\n"), Names{"cafè"});
  EXPECT_EQ(Spots("00:30\tcaf\xE8\t\r\n"), Names{"cafè"});
  b.C.Luogo.AnsiCodePage = 1251;
  EXPECT_EQ(Tracks("\xC7\xE0\xEB\r\n"), Names{"Зал"});
}

TEST_F(VociDelleListe, AScheduleNamesTheSpotsBehindEachTime) {
  EXPECT_EQ(Spots("00:30\tF0-0011\t\tF0-0012\t\r\n08:00\tF0-0021\t\r\n"),
            (Names{"F0-0011", "F0-0012", "F0-0021"}));
}

TEST_F(VociDelleListe, ATimeAloneNamesNothingWhateverItLooksLike) {
  EXPECT_EQ(Spots(""), Names{});
  EXPECT_EQ(Spots("00:30\r\n08:00\t\r\n09:00\t\t\t \t\r\nF0-0011\r\n"), Names{});
}

TEST_F(VociDelleListe, ALastLineWithoutItsEndsCountsToo) {
  EXPECT_EQ(Spots("00:30\tF0-0011\t\tF0-0012"), (Names{"F0-0011", "F0-0012"}));
}

TEST_F(VociDelleListe, AFileThatIsMissingOrNoneIsToldAsAnError) {
  b.Cartella.Write("folder/x", "");
  for (const Reader reader : {&LeggiListaBrani, &LeggiPalinsesto}) {
    const VoceListe none = [](const std::string& name) { ADD_FAILURE() << name; };
    EXPECT_EQ(reader(b.C, b.Percorso("gone"), none, {}).Number(), errors::FileNotFound);
    EXPECT_EQ(reader(b.C, b.Percorso("none/gone"), none, {}).Number(), errors::PathNotFound);
    EXPECT_EQ(reader(b.C, b.Percorso("folder"), none, {}).Number(), errors::PathFileAccess);
  }
}

TEST_F(VociDelleListe, AReadThatFailsOnTheWayIsToldAfterTheLinesBefore) {
  std::string lines;
  for (int i = 0; i < 50'000; ++i) lines += "P01-001\r\n";
  b.Cartella.Write("list", lines);
  bench.Guasto->FailReadsAfter(b.Percorso("list"), 300'000, errors::DeviceIo);
  std::size_t read = 0;
  const Error error = LeggiListaBrani(b.C, b.Percorso("list"), [&read](const std::string& name) {
    EXPECT_EQ(name, "P01-001");
    ++read;
  });
  EXPECT_EQ(error.Number(), errors::DeviceIo);
  EXPECT_LE(read, 300'000U / 9U);
}

TEST_F(VociDelleListe, AListOfManyLinesIsReadToItsEnd) {
  std::string lines;
  for (int i = 0; i < 100'000; ++i) lines += "P" + std::to_string(i) + "\r\n";
  const Names names = Tracks(lines);
  ASSERT_EQ(names.size(), 100'000U);
  EXPECT_EQ(names.back(), "P99999");
}

TEST_F(VociDelleListe, AFileBeyondAllMeasureIsNoList) {
  constexpr std::size_t kMost = std::size_t{4} << 20U;
  for (const Reader reader : {&LeggiListaBrani, &LeggiPalinsesto}) {
    const VoceListe any = [](const std::string&) {};
    b.Cartella.Write("list", std::string(kMost, ' '));
    EXPECT_EQ(reader(b.C, b.Percorso("list"), any, {}).Number(), 0);
    b.Cartella.Write("list", std::string(kMost + 1, ' '));
    EXPECT_EQ(reader(b.C, b.Percorso("list"), any, {}).Number(), errors::OutOfMemory);
  }
}

TEST_F(VociDelleListe, WhoIsAskedOnTheWayCanEndTheReadingWithoutAnError) {
  std::string lines;
  for (int i = 0; i < 10'000; ++i) lines += "a\tb\t\r\n";
  b.Cartella.Write("list", lines);
  for (const Reader reader : {&LeggiListaBrani, &LeggiPalinsesto}) {
    std::size_t read = 0;
    int asked = 0;
    const VoceListe count = [&read](const std::string&) { ++read; };
    EXPECT_FALSE(reader(b.C, b.Percorso("list"), count, [&asked] { return ++asked < 3; }));
    EXPECT_EQ(asked, 3) << "it is not asked again";
    EXPECT_LT(read, 5'000U);
    EXPECT_GT(read, 0U);
  }
}

}  // namespace
}  // namespace kvr5
