#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "reports/browser/BancoPagine.h"

namespace kvr5::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::StartsWith;

/// The lines that a reader sees.
std::vector<std::string> LinesOf(Browser& browser) {
  std::vector<std::string> lines;
  std::istringstream text(browser.Value("document.body.innerText").get<std::string>());
  for (std::string line; std::getline(text, line);) lines.push_back(line);
  return lines;
}

class ReportPage : public BancoPagine {
 protected:
  /// How many elements of the page a selector finds.
  static int Count(Browser& browser, const std::string& selector) {
    return browser.Value("document.querySelectorAll('" + selector + "').length");
  }
};

TEST_F(ReportPage, ShowsEveryNameAsItIs) {
  Browser browser;
  browser.Open(Pagina());
  const auto lines = LinesOf(browser);
  int number = 0;
  for (const auto& name : Nomi()) {
    ++number;
    EXPECT_THAT(lines, Contains(std::to_string(number) + ".mp3 " + name));
    EXPECT_EQ(std::ranges::count(lines, name), 16) << name << ": eight groups of either list";
  }
  EXPECT_THAT(lines, Contains("Project name: " + Progetto()));
  EXPECT_THAT(lines, Contains("KVR5 Player"));
  EXPECT_THAT(lines, Contains("File CONFIG.TXT"));
}

TEST_F(ReportPage, MakesNoElementOutOfAName) {
  Browser browser;
  browser.Open(Pagina());
  EXPECT_EQ(browser.Value("[...document.querySelectorAll('b')].filter("
                          "b => !b.querySelector('font') && !b.closest('center')).length"),
            0);
  EXPECT_EQ(Count(browser, "body"), 1);
  EXPECT_EQ(Count(browser, "img"), 2) << "the logo and the player";
  EXPECT_EQ(Count(browser, "script, [onerror]"), 0);
}

TEST_F(ReportPage, HasOneBandWhenOtherReportsAreMergedIntoIt) {
  Browser browser;
  browser.Open(Pagina());
  EXPECT_EQ(Count(browser, "div"), 1);
  EXPECT_EQ(Count(browser, "body > .band:first-child img"), 1);
  EXPECT_EQ(Count(browser, "center b"), 3) << "its own heading and those of the two others";
  EXPECT_EQ(Count(browser,
                  "body *:not(div):not(center):not(p):not(b):not(font):not(br):not(li)"
                  ":not(img)"),
            0)
      << "nothing of another page's head";
}

TEST_F(ReportPage, OfEachKindBeginsWithTheBand) {
  Browser browser;
  for (const auto& page : {Pagina(), File("Playlist.htm"), File("Scheduler.htm")}) {
    browser.Open(page);
    EXPECT_EQ(browser.Value("document.body.firstElementChild.className"), "band") << page;
    EXPECT_EQ(Count(browser, "div"), 1) << page;
    EXPECT_EQ(browser.Value("document.characterSet"), "windows-1252") << page;
    EXPECT_EQ(browser.Value("document.title"), "KVR5 Software") << page;
  }
}

TEST_F(ReportPage, ShowsItsPictures) {
  Browser browser;
  browser.Open(Pagina());
  EXPECT_THAT(
      browser.Value("[...document.images].map(i => i.naturalWidth)").get<std::vector<int>>(),
      ElementsAre(352, 320));
  const auto ground = browser.Value(
      "new Promise(done => {"
      "  const style = getComputedStyle(document.querySelector('.band'));"
      "  const image = new Image();"
      "  image.onload = () => done(image.naturalWidth);"
      "  image.onerror = () => done(0);"
      "  image.src = style.backgroundImage.match(/url\\(\"(.*)\"\\)/)[1];"
      "})");
  EXPECT_EQ(ground, 512);
}

TEST_F(ReportPage, AsksForNothingButFilesOfItsFolder) {
  Browser browser;
  browser.Open(Pagina());
  const std::string folder = browser.Value("new URL('.', document.URL).href");
  EXPECT_THAT(browser.Requests(), Contains(folder + "sf_menu.jpg"));
  EXPECT_THAT(browser.Requests(), Each(StartsWith(folder)));
}

TEST_F(ReportPage, SaysWhoseItIsWhereItsPicturesAreMissing) {
  for (const char* name : {"logo_menu.jpg", "sf_menu.jpg", "KVR5.gif"}) {
    std::filesystem::remove(File(name));
  }
  Browser browser;
  browser.Open(Pagina());
  EXPECT_EQ(browser.Value("document.querySelector('.band img').alt"), "KVR5");
  EXPECT_EQ(browser.Value("getComputedStyle(document.querySelector('.band')).backgroundColor"),
            "rgb(10, 102, 90)");
  EXPECT_LT(browser.Value("document.querySelector('center img').getBoundingClientRect().width"),
            24);
  EXPECT_EQ(browser.Value("getComputedStyle(document.querySelector('center img'), '::after')"
                          ".backgroundColor"),
            "rgb(255, 255, 255)")
      << "the sheet's own, over the browser's sign of a broken picture";
  EXPECT_THAT(LinesOf(browser), Contains("Project name: " + Progetto()));
}

}  // namespace
}  // namespace kvr5::test
