#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "platform/Fold.h"
#include "support/Lingue.h"

// What holds of the help document of every language.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

fs::path HelpFolder() {
  return fs::path(KVR5_STAGED_PROGRAM) / "Help";
}

std::string DocumentOf(const std::string& language) {
  std::ifstream in(HelpFolder() / (language.substr(0, language.rfind('.')) + ".htm"),
                   std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// Every match of a pattern's first group.
std::vector<std::string> All(const std::string& text, const char* pattern) {
  const std::regex regex(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), regex); at != std::sregex_iterator();
       ++at) {
    found.push_back((*at)[1]);
  }
  return found;
}

void Replace(std::string& text, const std::string& what, const std::string& by) {
  for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
    text.replace(at, what.size(), by);
  }
}

/// A text of a document as it is read.
std::string Read(std::string text) {
  Replace(text, "&lt;", "<");
  Replace(text, "&gt;", ">");
  Replace(text, "&quot;", "\"");
  Replace(text, "&amp;", "&");
  return text;
}

/// An address of a document as a path: "Espa%C3%B1ol" has its letters back.
std::string Path(const std::string& address) {
  std::string path;
  for (std::size_t i = 0; i < address.size(); ++i) {
    const bool coded = address[i] == '%' && i + 2 < address.size();
    path +=
        coded ? static_cast<char>(std::stoi(address.substr(i + 1, 2), nullptr, 16)) : address[i];
    if (coded) i += 2;
  }
  return path;
}

class Help : public testing::TestWithParam<std::string> {
 protected:
  const std::string page = DocumentOf(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Languages, Help, testing::ValuesIn(test::FileDiLingua()),
                         test::NomeDiProva);

// Elements in their order, with the ids that links lead to and the classes that dress them.
constexpr const char* kElement = R"(<(/?[a-z0-9]+(?: (?:id|class)="[^"]*")*))";

/// Cuts the entries of the glossary out of a document: each language has them in its own order.
std::vector<std::string> CutTerms(std::string& page) {
  const std::string begin = "<dl class=\"terms\">";
  const auto from = page.find(begin);
  if (from == std::string::npos) return {};
  const auto to = page.find("</dl>", from);
  std::istringstream block(page.substr(from + begin.size(), to - from - begin.size()));
  page.erase(from, to - from);
  std::vector<std::string> entries;
  for (std::string line; std::getline(block, line);) {
    if (line.starts_with("<dt>")) entries.emplace_back();
    if (!entries.empty()) entries.back() += line;
  }
  return entries;
}

TEST_P(Help, IsBuiltAsTheEnglishOneIs) {
  const auto built = [](std::string document) {
    std::vector<std::vector<std::string>> parts;
    for (const auto& entry : CutTerms(document)) parts.push_back(All(entry, kElement));
    std::ranges::sort(parts);
    parts.push_back(All(document, kElement));
    return parts;
  };
  const auto parts = built(page);
  EXPECT_EQ(parts, built(DocumentOf("English.lan")));
  EXPECT_GT(parts.size(), 20U) << "the glossary's entries";
  EXPECT_GT(parts.back().size(), 1000U);
}

TEST_P(Help, HasItsGlossaryInTheOrderOfTheAlphabet) {
  std::string document = page;
  std::vector<std::string> terms;
  for (const auto& entry : CutTerms(document)) {
    std::string term = All(entry, "<dt>(.*?)</dt>").at(0);
    for (const auto& [accent, letter] :
         std::initializer_list<std::pair<const char*, const char*>>{{"à", "a"},
                                                                    {"á", "a"},
                                                                    {"ä", "a"},
                                                                    {"é", "e"},
                                                                    {"è", "e"},
                                                                    {"ê", "e"},
                                                                    {"É", "e"},
                                                                    {"í", "i"},
                                                                    {"ó", "o"},
                                                                    {"ö", "o"},
                                                                    {"ú", "u"},
                                                                    {"ü", "u"},
                                                                    {"ñ", "n"}}) {
      Replace(term, accent, letter);
    }
    terms.push_back(FoldCase(std::regex_replace(term, std::regex("<[^>]*>"), "")));
  }
  EXPECT_GT(terms.size(), 20U);
  EXPECT_TRUE(std::ranges::is_sorted(terms)) << testing::PrintToString(terms);
}

TEST_P(Help, ClosesWhatItOpens) {
  const std::set<std::string> bare{"meta", "link", "img", "path", "br"};
  std::vector<std::string> open;
  for (const auto& tag : All(page, "<(/?[a-z0-9]+)[^>]*>")) {
    if (bare.contains(tag)) continue;
    if (tag.front() != '/') {
      open.push_back(tag);
      continue;
    }
    ASSERT_FALSE(open.empty()) << tag;
    ASSERT_EQ("/" + open.back(), tag);
    open.pop_back();
  }
  EXPECT_THAT(open, testing::IsEmpty());
}

TEST_P(Help, HasEachPlaceOnceAndLinksToPlacesAlone) {
  const auto places = All(page, "id=\"([^\"]*)\"");
  const std::set<std::string> once(places.begin(), places.end());
  EXPECT_EQ(once.size(), places.size());
  for (const auto& link : All(page, "href=\"#([^\"]*)\"")) EXPECT_TRUE(once.contains(link)) << link;
}

TEST_P(Help, CallsWhatIsOnTheScreensAsTheScreensDo) {
  std::set<std::string> texts;
  for (const auto& [key, text] : test::VociDiLingua(GetParam(), "Strings")) texts.insert(text);
  const auto captions = All(page, "<b class=\"ui\">([^<]*)</b>");
  EXPECT_GT(captions.size(), 300U);
  for (const auto& caption : captions) EXPECT_TRUE(texts.contains(Read(caption))) << caption;
}

TEST_P(Help, ShowsPicturesAndSheetsThatLieBesideIt) {
  auto files = All(page, "src=\"([^\"]*)\"");
  EXPECT_EQ(files.size(), 10U);
  files.push_back("help.css");
  for (const auto& file : files) {
    EXPECT_TRUE(fs::is_regular_file(HelpFolder() / Path(file))) << file;
  }
  EXPECT_NE(page.find("<link rel=\"stylesheet\" href=\"help.css\">"), std::string::npos);
}

TEST_P(Help, NeedsNothingButItself) {
  EXPECT_EQ(page.find("<script"), std::string::npos);
  EXPECT_EQ(page.find("http://"), std::string::npos);
  EXPECT_EQ(page.find("https://"), std::string::npos);
}

}  // namespace
}  // namespace kvr5
