#include <gtest/gtest.h>

#include "reports/TestoHtml.h"

namespace kvr5 {
namespace {

TEST(TestoHtml, ShowsWhatLooksLikeMarkup) {
  EXPECT_EQ(TestoHtml("<b>\"Tom & 'Jerry'\"</b>.mp3"),
            "&lt;b&gt;&quot;Tom &amp; &#39;Jerry&#39;&quot;&lt;/b&gt;.mp3");
}

TEST(TestoHtml, ShowsAnEntityAsTheLettersThatItIsWrittenIn) {
  EXPECT_EQ(TestoHtml("&lt;"), "&amp;lt;");
}

TEST(TestoHtml, KeepsLettersAndMarksControlCharacters) {
  EXPECT_EQ(TestoHtml("Città\t日本"), "Città\t日本");
  EXPECT_EQ(TestoHtml(std::string("a\nb\x7F") + '\0'), "a\uFFFDb\uFFFD\uFFFD");
}

TEST(TestoHtml, KeepsEveryBlank) {
  EXPECT_EQ(TestoHtml(" a  b   c d"), "&nbsp;a &nbsp;b &nbsp;&nbsp;c d");
}

TEST(RigaInPagina, HasTheBytesOfTheDeclaredPage) {
  EXPECT_EQ(RigaInPagina("è€", CodePage(1252)), "\xE8\x80");
}

TEST(RigaInPagina, RefersToWhatThePageLacksByNumber) {
  EXPECT_EQ(RigaInPagina("ř😀", CodePage(1252)), "&#345;&#128512;");
  EXPECT_EQ(RigaInPagina("è", CodePage(1251)), "&#232;");
  EXPECT_EQ(RigaInPagina("я", CodePage(1251)), "&#1103;");
}

TEST(RigaInPagina, MarksWhatIsNoCharacter) {
  EXPECT_EQ(RigaInPagina("a\xFFz", CodePage(1252)), "a&#65533;z");
  EXPECT_EQ(RigaInPagina("\u0085", CodePage(1250)), "&#65533;") << "another page's dots otherwise";
}

}  // namespace
}  // namespace kvr5
