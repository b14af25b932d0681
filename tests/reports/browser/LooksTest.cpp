#include <gtest/gtest.h>

#include <string>

#include "reports/browser/BancoPagine.h"

namespace kvr5::test {
namespace {

using nlohmann::json;

/// What the other expressions stand on: `texts`, the pieces of text that are seen, each with the
/// element that it stands in; `light`, the luminance of a colour from 0 to 1; `ground`, the colour
/// behind an element.
constexpr const char* kPage = R"(
  const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  const texts = [];
  while (walker.nextNode()) {
    if (walker.currentNode.data.trim()) texts.push(walker.currentNode);
  }
  const parts = colour => colour.match(/[\d.]+/g).map(Number);
  const light = colour => {
    const [r, g, b] = parts(colour).slice(0, 3).map(each => each / 255)
        .map(each => each <= 0.04045 ? each / 12.92 : ((each + 0.055) / 1.055) ** 2.4);
    return 0.2126 * r + 0.7152 * g + 0.0722 * b;
  };
  const ground = element => {
    for (; element; element = element.parentElement) {
      const colour = getComputedStyle(element).backgroundColor;
      if (parts(colour)[3] !== 0) return colour;
    }
    return 'rgb(255, 255, 255)';
  };
)";

json Look(Browser& browser, const std::string& body) {
  return browser.Value("(() => {" + std::string(kPage) + body + "})()");
}

/// The texts that stand out from their ground by less than 4.5 : 1.
json Faint(Browser& browser) {
  return Look(browser, R"(
    return texts.filter(text => {
      const style = getComputedStyle(text.parentElement);
      const both = [light(style.color), light(ground(text.parentElement))];
      return (Math.max(...both) + 0.05) / (Math.min(...both) + 0.05) < 4.5;
    }).map(text => text.data);
  )");
}

/// The texts of which something lies beside the view, or that take no room at all.
json Outside(Browser& browser) {
  return Look(browser, R"(
    return texts.filter(text => {
      const range = document.createRange();
      range.selectNodeContents(text);
      const boxes = [...range.getClientRects()];
      return boxes.length == 0 || boxes.some(box => box.left < 0 || box.right > innerWidth);
    }).map(text => text.data);
  )");
}

double GroundOfTheSheet(Browser& browser) {
  return Look(browser, "return light(ground(document.body));");
}

class ReportLooks : public BancoPagine {};

TEST_F(ReportLooks, AreReadableInLightAndInDark) {
  Browser browser;
  browser.SetSize(1280);
  browser.Open(Pagina());
  for (const bool dark : {false, true}) {
    browser.SetMedia("screen", dark);
    EXPECT_EQ(GroundOfTheSheet(browser) < 0.1, dark);
    EXPECT_EQ(Look(browser, "return light(ground(document.documentElement)) < 0.1;"), dark);
    EXPECT_EQ(Faint(browser), json::array()) << (dark ? "dark" : "light");
  }
}

TEST_F(ReportLooks, FitEveryWidthFromATelephoneToAWall) {
  Browser browser;
  browser.Open(Pagina());
  for (const int width : {320, 500, 640, 641, 1280, 3840}) {
    browser.SetSize(width);
    EXPECT_LE(browser.Value("document.documentElement.scrollWidth").get<int>(), width);
    EXPECT_EQ(Outside(browser), json::array()) << width;
  }
}

TEST_F(ReportLooks, HaveTheBandFillTheSheet) {
  Browser browser;
  browser.Open(Pagina());
  for (const int width : {320, 1280, 3840}) {
    browser.SetSize(width);
    EXPECT_EQ(Look(browser, R"(
      const band = document.querySelector('.band');
      const sheet = document.body;
      return [band.getBoundingClientRect().left - sheet.getBoundingClientRect().left -
                  sheet.clientLeft,
              band.clientWidth - sheet.clientWidth];
    )"),
              json::array({0, 0}))
        << width;
  }
}

TEST_F(ReportLooks, KeepValuesInOneColumnWhereThereIsRoom) {
  Browser browser;
  browser.SetSize(1280);
  browser.Open(Pagina());
  EXPECT_EQ(Look(browser, R"(
    const left = text => {
      const range = document.createRange();
      range.setStart(text, text.data.length - text.data.trimStart().length);
      range.setEnd(text, text.data.length);
      return range.getBoundingClientRect().left;
    };
    const plain = texts.filter(text => text.parentElement == document.body).map(left);
    return Math.max(...plain) - Math.min(...plain) < 3;
  )"),
            true);
}

TEST_F(ReportLooks, OfPaperHaveNoDarkGroundInEitherTheme) {
  Browser browser;
  browser.Open(Pagina());
  for (const bool dark : {false, true}) {
    browser.SetMedia("print", dark);
    EXPECT_EQ(GroundOfTheSheet(browser), 1.0);
    EXPECT_EQ(Look(browser, "return light(ground(document.querySelector('.band')));"), 1.0);
    EXPECT_EQ(Look(browser, "return getComputedStyle(document.querySelector('.band img')).filter;"),
              "none");
    EXPECT_EQ(Faint(browser), json::array());
  }
}

TEST_F(ReportLooks, OfPaperDoNotTearAHeadingFromItsLines) {
  Browser browser;
  browser.SetMedia("print", false);
  browser.Open(Pagina());
  EXPECT_EQ(Look(browser, R"(
    return [...document.querySelectorAll('body > center, body > p, body > b, body > li')]
        .filter(each => getComputedStyle(each).breakAfter != 'avoid' ||
                        getComputedStyle(each).display != 'block').length;
  )"),
            0);
}

TEST_F(ReportLooks, ArePrintedOnSheetsOfA4) {
  Browser browser;
  browser.Open(Pagina());
  const std::string pdf = browser.Pdf();
  EXPECT_TRUE(pdf.starts_with("%PDF-"));
  EXPECT_NE(pdf.find("/MediaBox [0 0 594.95996 841.91998]"), std::string::npos)
      << pdf.substr(0, 2000);
}

}  // namespace
}  // namespace kvr5::test
