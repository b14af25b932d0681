#include <gtest/gtest.h>

#include "core/ElencoMp3.h"
#include "support/Banco.h"
#include "support/FaultyFileSystem.h"

namespace kvr5 {
namespace {

using test::Banco;

class Mp3List : public testing::Test {
 protected:
  void Put(const std::string& name) { b.Cartella.Write("music/" + name, "x"); }
  ElencoMp3 Fill() { return RiempiElencoMp3(b.C.Files, b.Percorso("music")); }
  /// The names of the items with "/" between; those that can't be taken in brackets.
  static std::string Text(const ElencoMp3& list) {
    std::string names;
    for (const auto& item : list.Voci) {
      if (!names.empty()) names += '/';
      names += item.Difetto == NameFault::None ? item.Nome : "[" + item.Nome + "]";
    }
    return names;
  }

  Banco b;
};

TEST_F(Mp3List, BeginsWithABlankAndHoldsTheMp3FilesByNameWhateverTheirCase) {
  for (const char* name : {"b.MP3", "A.mp3", "c.Mp3", "a.txt", "mp3", "d.mp3.bak", "È.mp3"}) {
    Put(name);
  }
  std::filesystem::create_directory(b.Cartella.Host() / "music/folder.mp3");
  EXPECT_EQ(Text(Fill()), " /A.mp3/b.MP3/c.Mp3/È.mp3");
  EXPECT_EQ(Fill().Scelto, 1U);
}

TEST_F(Mp3List, AFolderWithoutMp3FilesGivesTheBlankAlone) {
  Put("a.txt");
  EXPECT_EQ(Fill(), (ElencoMp3{{{" ", NameFault::None}}, 0}));
}

TEST_F(Mp3List, AFolderThatIsGoneGivesTheBlankAlone) {
  EXPECT_EQ(Text(Fill()), " ");
  EXPECT_EQ(Text(RiempiElencoMp3(b.C.Files, "Q:\\nowhere")), " ");
  EXPECT_EQ(Text(RiempiElencoMp3(b.C.Files, "")), " ");
}

TEST_F(Mp3List, HiddenFilesAreLeftOut) {
  Put(".hidden.mp3");
  Put("a.mp3");
  EXPECT_EQ(Text(Fill()), " /a.mp3");
}

TEST_F(Mp3List, NamesThatNoPathCanHoldAreShownButNeverSelected) {
  Put("A?.mp3");
  Put("b|c.mp3");
  Put(std::string("d\xFF.mp3"));
  EXPECT_EQ(Fill().Scelto, 0U) << "none can be taken";
  Put("z.mp3");
  const auto list = Fill();
  EXPECT_EQ(Text(list), " /[A?.mp3]/[b|c.mp3]/[d\xEF\xBF\xBD.mp3]/z.mp3");
  EXPECT_EQ(list.Voci[1].Difetto, NameFault::Reserved);
  EXPECT_EQ(list.Voci[3].Difetto, NameFault::NotUtf8);
  EXPECT_EQ(list.Scelto, 4U);
  EXPECT_EQ(list.Indice("A?.mp3"), std::nullopt);
}

TEST_F(Mp3List, TheReasonsHaveTheirWords) {
  EXPECT_EQ(ParoleDifetto(b.C, NameFault::None), "");
  EXPECT_NE(ParoleDifetto(b.C, NameFault::Reserved), "");
  EXPECT_NE(ParoleDifetto(b.C, NameFault::NotUtf8), ParoleDifetto(b.C, NameFault::Reserved));
}

TEST_F(Mp3List, FindsAFileAsItIsSpelledAndElseInAnyCase) {
  const ElencoMp3 list{{{" "}, {"A.mp3"}, {"a.mp3"}, {"È.mp3"}}, 1};
  EXPECT_EQ(list.Indice("a.mp3"), 2U);
  EXPECT_EQ(list.Indice("A.MP3"), 1U);
  EXPECT_EQ(list.Indice("è.mp3"), 3U);
  EXPECT_EQ(list.Indice(" "), std::nullopt) << "the blank is no file";
  EXPECT_EQ(list.Indice("b.mp3"), std::nullopt);
}

TEST(Mp3ListOfALargeFolder, AsksTheDiskOnceHoweverManyFilesThereAre) {
  std::unique_ptr<test::FaultyFileSystem> disk;
  Banco b([&](FileSystem& real) -> FileSystem& {
    disk = std::make_unique<test::FaultyFileSystem>(real);
    return *disk;
  });
  for (int i = 0; i < 300; ++i) b.Cartella.Write("music/" + std::to_string(i) + ".mp3", "x");
  disk->FailOperation(b.Percorso("music"), 1, errors::DeviceIo);  // any after the first
  EXPECT_EQ(RiempiElencoMp3(b.C.Files, b.Percorso("music")).Voci.size(), 301U);
  EXPECT_EQ(disk->FailedOperation(), "");
}

}  // namespace
}  // namespace kvr5
