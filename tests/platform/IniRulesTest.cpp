#include <gtest/gtest.h>

#include "platform/IniCases.h"
#include "platform/IniFile.h"
#include "platform/Utf16.h"
#include "support/MemoryFileSystem.h"

namespace kvr5 {
namespace {

using test::IniCase;
using test::kPage;
using test::MemoryFileSystem;

constexpr const char* kTestIni = "C:\\Test.ini";

std::string Marked(std::string_view bytes) {
  return "\xFF\xFE" + utf16::FromUtf8(kPage.Decode(bytes));
}

std::string Name(const testing::TestParamInfo<IniCase>& info) {
  return info.param.Id;
}

bool CanBeUtf16(const IniCase& one) {
  return one.File && !utf16::HasMark(*one.File);
}

class IniReadCase : public testing::TestWithParam<IniCase> {};

TEST_P(IniReadCase, GivesWhatTheHostGives) {
  const IniCase& one = GetParam();
  const auto read = [&one](const std::optional<std::string>& content) {
    return ini::Read(content, one.Section, one.Key, one.Default, one.Size, kPage);
  };
  EXPECT_EQ(read(one.File), one.Result);
  if (CanBeUtf16(one)) {
    EXPECT_EQ(read(Marked(*one.File)), one.Result);
  }
  if (one.Section && one.Key) {  // a file on the disk is never asked for lists
    MemoryFileSystem files;
    if (one.File) files.AddFile(kTestIni, *one.File);
    EXPECT_EQ(IniFile(files, kTestIni, kPage)
                  .Read(kPage.Decode(*one.Section), kPage.Decode(*one.Key),
                        kPage.Decode(one.Default), one.Size),
              kPage.Decode(one.Result));
  }
}

class IniWriteCase : public testing::TestWithParam<IniCase> {};

TEST_P(IniWriteCase, LeavesTheBytesThatTheHostLeaves) {
  const IniCase& one = GetParam();
  const auto changed = [&one](const std::string& before) {
    return ini::Changed(before, one.Section, one.Key, one.Value, kPage);
  };
  const std::string before = one.File.value_or("");
  EXPECT_EQ(changed(before).value_or(before), one.Result);
  EXPECT_EQ(changed(before).has_value(), before != one.Result);
  if (CanBeUtf16(one)) {
    EXPECT_EQ(changed(Marked(before)).value_or(Marked(before)), Marked(one.Result));
  }
  if (one.Section && one.Key && one.Value) {  // nor are keys of a file dropped
    MemoryFileSystem files;
    if (one.File) files.AddFile(kTestIni, before);
    EXPECT_FALSE(
        IniFile(files, kTestIni, kPage)
            .Write(kPage.Decode(*one.Section), kPage.Decode(*one.Key), kPage.Decode(*one.Value)));
    EXPECT_EQ(files.Content(kTestIni), one.Result);
  }
}

INSTANTIATE_TEST_SUITE_P(Ini, IniReadCase, testing::ValuesIn(test::IniCases("read")), Name);
INSTANTIATE_TEST_SUITE_P(Ini, IniWriteCase, testing::ValuesIn(test::IniCases("write")), Name);
INSTANTIATE_TEST_SUITE_P(More, IniReadCase, testing::ValuesIn(test::MoreIniCases("read")), Name);
INSTANTIATE_TEST_SUITE_P(More, IniWriteCase, testing::ValuesIn(test::MoreIniCases("write")), Name);

TEST(IniRules, AreTriedOnAllRecordedCases) {
  EXPECT_EQ(test::IniCases("read").size(), 152U);
  EXPECT_EQ(test::IniCases("write").size(), 110U);
}

// Where two rules meet.

std::string ReadOf(std::string_view file, std::optional<std::string_view> section,
                   std::optional<std::string_view> key, std::string_view fallback = "",
                   std::size_t size = 254) {
  return ini::Read(file, section, key, fallback, size, kPage);
}

std::string Written(std::string_view file, std::string_view section,
                    std::optional<std::string_view> key, std::optional<std::string_view> value) {
  return ini::Changed(file, section, key, value, kPage).value_or("(nothing written)");
}

using namespace std::string_literals;
using namespace std::string_view_literals;

TEST(IniRead, EndsNamesAndValuesAtANulAndTrimsWhatIsLeft) {
  EXPECT_EQ(ReadOf("[Ma\0in]\nKe\0y=v \0w"sv, "Ma", "Ke"), "v");
  EXPECT_EQ(ReadOf("[Main\0\nKey=\"a\"\0b"sv, "Main", "Key"), "a");
  EXPECT_EQ(ReadOf("[Main]\nKey\0=v"sv, "Main", "Key"), "v");
  EXPECT_EQ(ReadOf("[Main]\nA=1\n\0[Main2]\nB=2"sv, "Main", "B"), "2");
}

TEST(IniRead, TakesCtrlZForABlankAtTheEndsOnly) {
  EXPECT_EQ(ReadOf("\x1A[\x1AMain\x1A]\n\x1AKey\x1A=\x1Av\x1Aw\x1A", "Main", "Key"), "v\x1Aw");
  EXPECT_EQ(ReadOf("[Main]\n\x1A;Key=1\nKey=2", "Main", "Key"), "2");
}

TEST(IniRead, TakesTheLineForAHeaderWhateverFollows) {
  EXPECT_EQ(ReadOf("[ Main  \r\nKey=v", "Main", "Key"), "v");
  EXPECT_EQ(ReadOf("[Main] Key=1\r\nKey=2", "Main", "Key"), "2");
  EXPECT_EQ(ReadOf(" \t[A=B]\nKey=v", "A=B", "Key"), "v");
  EXPECT_EQ(ReadOf("[Main]\n;[Main]\nKey=v", "Main", "Key"), "v");
}

TEST(IniRead, FindsTheEmptyNames) {
  EXPECT_EQ(ReadOf("Z=0\n[]\n=v\n", "", ""), "v");
  EXPECT_EQ(ReadOf("Z=0\n[  ]\nZ=1\n", "  ", "Z"), "1");
  EXPECT_EQ(ReadOf("Z=0\n", "", "Z", "none"), "none");
}

TEST(IniRead, HidesALaterKeyBehindALineWithoutAValue) {
  EXPECT_EQ(ReadOf("[M]\nKey\nKey=2", "M", "Key", "none"), "none");
  EXPECT_EQ(ReadOf("[M]\nKey=\nKey=2", "M", "Key", "none"), "");
  EXPECT_EQ(ReadOf("[M]\n=\nKey=2", "M", "", "none"), "");
}

TEST(IniRead, IgnoresCaseOfThePagesLettersOnly) {
  EXPECT_EQ(ReadOf("[M]\n\xC0\x8A\x9F\xD1=1", "m", "\xE0\x9A\xFF\xF1"), "1");
  for (const char* key : {"\xDF", "\xD7", "\xF7", "\xAA", "\xB5", "\x83"}) {
    EXPECT_EQ(ReadOf("[M]\n\xFF=1\n\xF7x=2", "M", key, "none"), "none");
  }
  // The same byte is another letter on another page: no pair on the Greek one.
  EXPECT_EQ(ini::Read("[M]\n\xC0=1", "M", "\xE0", "none", 9, CodePage(1253)), "none");
  EXPECT_EQ(ini::Read("[M]\n\xC1=1", "M", "\xE1", "none", 9, CodePage(1253)), "1");
}

TEST(IniRead, CutsAfterTheQuotesAreGone) {
  EXPECT_EQ(ReadOf("[M]\nK=\"  abc\"", "M", "K", "", 4), "  a");
  EXPECT_EQ(ReadOf("[M]\nK='abc", "M", "K", "", 4), "'ab");
  EXPECT_EQ(ReadOf("[M]\n", "M", "K", "'dflt '  ", 254), "dflt ");
  EXPECT_EQ(ReadOf("[M]\n", "M", "K", "'dflt'\t", 254), "'dflt'\t");
  EXPECT_EQ(ReadOf("[M]\n", "M", "K", "    ", 254), "");
  for (const std::size_t size : {0U, 1U}) {
    EXPECT_EQ(ReadOf("[M]\nK=v", "M", "K", "d", size), "");
    EXPECT_EQ(ReadOf("[M]\nK=v", "M", "X", "d", size), "");
    EXPECT_EQ(ReadOf("[M]\nK=v", "M", std::nullopt, "d", size), "");
  }
}

TEST(IniRead, CutsAListSoThatTwoNulsFitBehindIt) {
  const std::string file = "[M]\nAB=1\nCD=2\n[N]\n";
  const auto keys = [&](std::size_t size) { return ReadOf(file, "M", std::nullopt, "", size); };
  EXPECT_EQ(keys(9), "AB\0CD\0"s);
  EXPECT_EQ(keys(8), "AB\0CD\0"s);
  EXPECT_EQ(keys(7), "AB\0CD"s);
  EXPECT_EQ(keys(6), "AB\0C"s);
  EXPECT_EQ(keys(5), "AB\0"s);
  EXPECT_EQ(keys(4), "AB"s);
  EXPECT_EQ(keys(3), "A"s);
  EXPECT_EQ(keys(2), "");
  EXPECT_EQ(ReadOf(file, std::nullopt, std::nullopt, "", 5), "M\0N"s);
  EXPECT_EQ(ReadOf(file, std::nullopt, std::nullopt, "", 6), "M\0N\0"s);
}

TEST(IniRead, GivesTheDefaultOfAListOnlyWhereTheFileOrSectionIsMissing) {
  EXPECT_EQ(ReadOf("[M]\n", "M", std::nullopt, "d"), "");
  EXPECT_EQ(ReadOf("[M]\n", "N", std::nullopt, "d"), "d");
  EXPECT_EQ(ini::Read(std::nullopt, std::nullopt, std::nullopt, "d", 9, kPage), "d");
}

TEST(IniRead, ComparesNamesOfUtf16OutsideThePage) {
  const std::string file = "\xFF\xFE" + utf16::FromUtf8("[M]\r\nЖ=1\r\n?=2\r\nK=日a\r\n");
  EXPECT_EQ(ReadOf(file, "M", "?"), "2");
  EXPECT_EQ(ReadOf(file, "M", "K"), "?a");
  EXPECT_EQ(ini::Read(file, "M", "ж", "", 9, CodePage(65001)), "1");
}

TEST(IniWrite, TouchesNothingButTheLineInUtf16) {
  const std::string odd = "\xFF\xFE" + utf16::FromUtf8("[М]\r\nЖ=日\r\n") + "\x3D\xD8\n\0"s;
  EXPECT_EQ(Written(odd + "\x01", "M", "K", "v"), odd + utf16::FromUtf8("[M]\r\nK=v\r\n") + "\x01");
  EXPECT_EQ(Written("\xFF\xFE", "M", "K", "\xE8"), "\xFF\xFE" + utf16::FromUtf8("[M]\r\nK=è\r\n"));
  // A line end is a whole unit: U+0A0D is a letter.
  const std::string letter = "\xFF\xFE" + utf16::FromUtf8("[M]\nA=\u0A0D\nK=1\n");
  EXPECT_EQ(Written(letter, "M", "K", "2"), "\xFF\xFE" + utf16::FromUtf8("[M]\nA=\u0A0D\nK=2\r\n"));
}

TEST(IniWrite, GivesALineItsOwnEndAndTheNameOfTheFile) {
  EXPECT_EQ(Written("[M]\r  kEY  = old\rB=2\r", "m", "Key", "new"), "[M]\rkEY=new\r\nB=2\r");
  EXPECT_EQ(Written("[M]\nKey", "M", "KEY", ""), "[M]\nKey=\r\n");
  EXPECT_EQ(Written("[M]\nKe\0y=1"sv, "M", "ke", "2"), "[M]\nKe=2\r\n");
}

TEST(IniWrite, AddsBehindTheLastLineWithAValue) {
  EXPECT_EQ(Written("[M]\nA=1\njunk\n\n[N]\n", "M", "B", "2"), "[M]\nA=1\nB=2\r\njunk\n\n[N]\n");
  EXPECT_EQ(Written("[M] ;x", "M", "B", "2"), "[M] ;x\r\nB=2\r\n");
  EXPECT_EQ(Written("[M]\n[M]\nB=1\n", "M", "B", "2"), "[M]\nB=2\r\n[M]\nB=1\n");
  EXPECT_EQ(Written("[M]\nA=1\n\x1A", "M", "B", "2"), "[M]\nA=1\nB=2\r\n\x1A");
}

TEST(IniWrite, AddsASectionBehindWhateverEndsTheFile) {
  EXPECT_EQ(Written("A=1\r", "M", "B", "2"), "A=1\r[M]\r\nB=2\r\n");
  EXPECT_EQ(Written("A=1\n\x1A", "M", "B", "2"), "A=1\n\x1A\r\n[M]\r\nB=2\r\n");
  EXPECT_EQ(Written("", "[M]", "B", "2"), "[[M]]\r\nB=2\r\n");
}

TEST(IniWrite, WritesNothingWhereNothingChanges) {
  EXPECT_EQ(Written("[M]\nK= \"v\" ", "M", "K", "\"v\""), "(nothing written)");
  EXPECT_EQ(Written("[M]\nK= \"v\" ", "M", "K", "v"), "[M]\nK=v\r\n");
  EXPECT_EQ(Written("[M]\nK=v", "M", "K", "V"), "[M]\nK=V\r\n");
  EXPECT_EQ(Written("[M]\nK= v \r\n", "M", "K", " v "), "(nothing written)");
  EXPECT_EQ(Written("[M]\nK=v", "M", "X", std::nullopt), "(nothing written)");
  EXPECT_EQ(Written("[M]\nK=v", "X", std::nullopt, std::nullopt), "(nothing written)");
  EXPECT_EQ(Written("", "", std::nullopt, std::nullopt), "(nothing written)");
}

TEST(IniWrite, DropsASectionButItsCommentsAndBlankLines) {
  EXPECT_EQ(Written("a=0\n[M] x\n;c\nA=1\n\n=\njunk\n\x1A\n[N]\nB=2", "m", std::nullopt, "ignored"),
            "a=0\n;c\n\n\x1A\n[N]\nB=2");
  EXPECT_EQ(Written("[M]\nA=1", "M", std::nullopt, std::nullopt), "");
  EXPECT_EQ(Written("[M]\nA=1\nB=2", "M", "B", std::nullopt), "[M]\nA=1\n");
}

}  // namespace
}  // namespace kvr5
