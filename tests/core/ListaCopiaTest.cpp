#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "core/ListaCopia.h"
#include "platform/Fold.h"

namespace kvr5 {
namespace {

TEST(ListaCopia, PutsABarBeforeEachPath) {
  ListaCopia list;
  EXPECT_EQ(list.ListaSorgenti(), "");
  list.Aggiungi("C:\\a.mp3", "E:\\1.mp3");
  list.Aggiungi("C:\\b.mp3", "E:\\2.mp3");
  EXPECT_EQ(list.ListaSorgenti(), "|C:\\a.mp3|C:\\b.mp3");
  EXPECT_EQ(list.ListaDestinazioni(), "|E:\\1.mp3|E:\\2.mp3");
}

TEST(ListaCopia, FindsASourceWithoutRegardToCase) {
  ListaCopia list;
  list.Aggiungi("C:\\Città\\A.mp3", "E:\\1.mp3");
  EXPECT_TRUE(list.Contiene("c:\\CITTÀ\\a.MP3"));
  EXPECT_FALSE(list.Contiene("C:\\Citta\\A.mp3"));
  EXPECT_FALSE(list.Contiene("E:\\1.mp3")) << "destinations aren't looked at";
}

TEST(ListaCopia, FindsADestinationWithoutRegardToCaseAndByItsBeginning) {
  ListaCopia list;
  EXPECT_FALSE(list.ContieneDestinazione(""));
  list.Aggiungi("C:\\a.mp3", "C:\\Hall\\Città.mp3.mp3");
  EXPECT_TRUE(list.ContieneDestinazione("c:\\hall\\CITTÀ.mp3.MP3"));
  EXPECT_TRUE(list.ContieneDestinazione("C:\\Hall\\Città.mp3"));
  EXPECT_FALSE(list.ContieneDestinazione("C:\\a.mp3")) << "sources aren't looked at";
}

TEST(ListaCopia, ThePartOfAListedPathCountsAsListed) {
  ListaCopia list;
  list.Aggiungi("C:\\Music\\a.mp3.mp3", "E:\\1.mp3");
  EXPECT_TRUE(list.Contiene("C:\\Music\\a.mp3"));
  EXPECT_TRUE(list.Contiene("a.mp3"));
  EXPECT_TRUE(list.Contiene("Music\\A"));
  EXPECT_TRUE(list.Contiene("\\"));
  EXPECT_FALSE(list.Contiene("C:\\Music\\a.mp3.mp3x"));
}

TEST(ListaCopia, TheEmptyTextOccursInAnyListButAnEmptyOne) {
  ListaCopia list;
  EXPECT_FALSE(list.Contiene(""));
  list.Aggiungi("C:\\a.mp3", "E:\\1.mp3");
  EXPECT_TRUE(list.Contiene(""));
}

TEST(ListaCopia, AMatchMayReachOverABar) {
  ListaCopia list;
  list.Aggiungi("C:\\a", "E:\\1");
  list.Aggiungi("C:\\b", "E:\\2");
  EXPECT_TRUE(list.Contiene("a|C:\\b"));
  EXPECT_TRUE(list.Contiene("C:\\a|c:"));
}

TEST(ListaCopia, RandomListsAgreeWithAPlainSearchInTheText) {
  const std::vector<std::string> pieces = {"C:", "c:", "\\", "a", "A",    "b", ".mp3",
                                           "|",  ":",  "à",  "À", "D:\\", "x", "C:\\a"};
  for (unsigned seed = 1; seed <= 200; ++seed) {
    std::mt19937 random(seed);
    const auto text = [&] {
      std::string result = random() % 3 == 0 ? "" : "C:\\";
      for (auto n = random() % 4; n > 0; --n) result += pieces[random() % pieces.size()];
      return result;
    };
    ListaCopia list;
    std::string plain;
    for (int step = 0; step < 40; ++step) {
      const std::string wanted = text();
      const bool found = !plain.empty() && plain.find(FoldCase(wanted)) != std::string::npos;
      EXPECT_EQ(list.Contiene(wanted), found) << seed << ": " << wanted << " in " << plain;
      if (random() % 2 == 0) {
        const std::string added = text();
        list.Aggiungi(added, "E:\\1");
        plain += "|" + FoldCase(added);
      }
    }
  }
}

}  // namespace
}  // namespace kvr5
