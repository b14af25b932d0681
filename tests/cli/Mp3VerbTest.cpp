#include <gtest/gtest.h>

#include "cli/Compagno.h"

namespace kvr5 {
namespace {

using nlohmann::json;
using test::Compagno;

TEST(Mp3Verb, AnalysesFilesInOrderFromWordsOrStandardInput) {
  const Compagno k;
  k.ScriviMp3("music/a.mp3", 1, 100);
  k.Cartella.Write("music/junk.mp3", "junk");
  const auto run = k.EseguiJson(
      {"mp3", k.Host("music/a.mp3"), k.Host("music/junk.mp3"), k.Host("music/gone.mp3")});
  EXPECT_EQ(run.Stato, 0);
  const auto objects = run.Oggetti();
  ASSERT_EQ(objects.size(), 3U);
  EXPECT_EQ(objects[0], (json{{"File", k.Host("music/a.mp3")},
                              {"Valid", true},
                              {"Version", 3},
                              {"Layer", 3},
                              {"Bitrate", 128000},
                              {"SampleRate", 44100},
                              {"Channels", 2},
                              {"ChannelMode", 1},
                              {"Emphasis", 0},
                              {"IsVbr", false},
                              {"HasId3v1", false},
                              {"HasId3v2", false},
                              {"Private", false},
                              {"Original", true},
                              {"Frames", 100},
                              {"FileBytes", 41699},
                              {"Duration", 3},
                              {"HeaderOffset", 0},
                              {"GoodPlaylist", true},
                              {"GoodInput", true},
                              {"Labels",
                               {"MPEG 1 Layer 3", "Bitrate: 128kbit (CBR)",
                                "44100 - 2 Ch (Joint Stereo)", "00.00.03  41 Kb"}}}));
  EXPECT_EQ(objects[1]["Valid"], false);
  EXPECT_EQ(objects[1]["Labels"], (json{"", "", "", ""}));
  EXPECT_EQ(objects[2]["Valid"], false);
  EXPECT_FALSE(k.Cartella.Exists("music/gone.mp3")) << "a missing file isn't made";

  const auto piped =
      k.EseguiJson({"mp3", "-"}, k.Host("music/a.mp3") + "\r\n\n" + k.Host("music/junk.mp3"));
  ASSERT_EQ(piped.Oggetti().size(), 2U);
  EXPECT_EQ(piped.Oggetti()[0], objects[0]);
}

TEST(Mp3Verb, FiguresAreCarriedFromFileToFileWithinOneCall) {
  const Compagno k;
  // A VBR tag of 100 frames and 60,000 bytes, and one whose flags say that it holds neither.
  const auto tagged = [](const std::string& flags, const std::string& figures) {
    std::string frame("\xFF\xFB\x90\x64", 4);
    frame.resize(36, '\0');
    frame += "Xing" + flags + figures;
    frame.resize(417, '\0');
    return frame + frame;
  };
  using namespace std::string_literals;
  k.Cartella.Write("full.mp3", tagged("\0\0\0\3"s, "\0\0\0\x64\0\0\xEA\x60"s));
  k.Cartella.Write("bare.mp3", tagged("\0\0\0\0"s, ""));
  const auto alone = k.EseguiJson({"mp3", k.Host("bare.mp3")}).Oggetti().at(0);
  const auto after = k.EseguiJson({"mp3", k.Host("full.mp3"), k.Host("bare.mp3")}).Oggetti().at(1);
  EXPECT_EQ(alone["IsVbr"], false);
  EXPECT_EQ(after["IsVbr"], true);
  EXPECT_EQ(after["Frames"], 100);
  const auto piped =
      k.EseguiJson({"mp3", "-"}, k.Host("full.mp3") + "\n" + k.Host("bare.mp3") + "\n").Oggetti();
  EXPECT_EQ(piped.at(1), after);
}

TEST(Mp3Verb, ARefusedFileOfLayer3ShowsItsFiguresAndOneOfLayer2None) {
  const Compagno k;
  std::string slow("\xFF\xFB\x40\x64", 4);  // 56 kbit/s
  slow.resize(183, '\0');
  k.Cartella.Write("slow.mp3", slow + slow);
  std::string layer2("\xFF\xFD\x80\x64", 4);
  layer2.resize(500, '\0');
  k.Cartella.Write("layer2.mp3", layer2);
  const auto objects = k.EseguiJson({"mp3", k.Host("slow.mp3"), k.Host("layer2.mp3")}).Oggetti();
  EXPECT_EQ(objects.at(0)["Labels"][1], "Bitrate: 56kbit (CBR)");
  EXPECT_EQ(objects.at(0)["GoodPlaylist"], false);
  EXPECT_EQ(objects.at(1)["Valid"], true);
  EXPECT_EQ(objects.at(1)["Labels"], (json{"", "", "", ""}));
  const auto text = k.Esegui({"mp3", k.Host("slow.mp3"), k.Host("layer2.mp3")}).Righe();
  EXPECT_TRUE(text.at(0).ends_with("refused")) << text.at(0);
  EXPECT_TRUE(text.at(1).ends_with("not an MP3 file that the player takes")) << text.at(1);
}

TEST(Mp3Verb, ANameThatCannotBeTakenIsToldAndIsStatus1) {
  const Compagno k;
  const auto run = k.EseguiJson({"mp3", k.Host("a|b.mp3"), "\xFF.mp3"});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Oggetti().size(), 2U);
  EXPECT_EQ(run.Box().size(), 2U);
}

TEST(Mp3Verb, TheAnalyzersFileThatComesWithTheProgramIsGood) {
  const auto program = std::filesystem::path(KVR5_CARD).parent_path();
  const auto run = Compagno().EseguiJson({"mp3", (program / "Analyzer.mp3").string()});
  EXPECT_EQ(run.Oggetti().at(0)["GoodInput"], true);
  EXPECT_EQ(run.Oggetti().at(0)["Duration"], 10);
}

TEST(Mp3Verb, NeedsNoProgramFolder) {
  const Compagno k;
  std::filesystem::remove_all(k.Host("program"));
  EXPECT_EQ(k.EseguiJson({"mp3", "x.mp3"}).Stato, 0);
  EXPECT_FALSE(k.Cartella.Exists("program"));
}

TEST(Mp3Verb, FiguresBearTheMarksOfTheLocale) {
  Compagno k;
  k.ScriviMp3("a.mp3", 1, 3000);
  const auto size = [&k](const std::string& locale) {
    k.Luogo = locale;
    return k.EseguiJson({"mp3", k.Host("a.mp3")}).Oggetti().at(0)["Labels"][3];
  };
  EXPECT_EQ(size("C"), "00.01.18  1,222 Kb");
  EXPECT_EQ(size("it_IT.UTF-8"), "00.01.18  1.222 Kb");
}

TEST(Mp3Verb, ARelativeNameStartsAtTheWorkingFolderAndIsShownAsGiven) {
  const Compagno k;
  k.ScriviMp3("music/a.mp3", 1);
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(k.Cartella.Host());
  const auto run = k.EseguiJson({"mp3", "music/a.mp3", "MUSIC\\A.MP3"});
  std::filesystem::current_path(before);
  EXPECT_EQ(run.Oggetti().at(0)["Valid"], true);
  EXPECT_EQ(run.Oggetti().at(0)["File"], "music/a.mp3");
  EXPECT_EQ(run.Oggetti().at(1)["Valid"], true);
  EXPECT_EQ(run.Oggetti().at(1)["File"], "MUSIC\\A.MP3");
}

TEST(Mp3Verb, ADashAmongOtherWordsIsAFilesName) {
  const Compagno k;
  k.ScriviMp3("a.mp3", 1);
  const auto run = k.EseguiJson({"mp3", k.Host("a.mp3"), "-"}, k.Host("a.mp3") + "\n");
  EXPECT_EQ(run.Stato, 0);
  ASSERT_EQ(run.Oggetti().size(), 2U);
  EXPECT_EQ(run.Oggetti()[1]["File"], "-");
  EXPECT_EQ(run.Oggetti()[1]["Valid"], false);
}

TEST(Mp3Verb, ForPeopleAMissingFileIsCalledMissing) {
  const Compagno k;
  const auto run = k.Esegui({"mp3", k.Host("none.mp3")});
  EXPECT_EQ(run.Uscita, k.Host("none.mp3") + ": there is no such file\n");
}

TEST(Mp3Verb, AnEndlessLineIsCutAndTheNextOneIsTaken) {
  const Compagno k;
  k.ScriviMp3("a.mp3", 1);
  const auto run =
      k.EseguiJson({"mp3", "-"}, std::string(3'000'000, 'x') + "\n" + k.Host("a.mp3") + "\n");
  ASSERT_EQ(run.Oggetti().size(), 2U);
  EXPECT_EQ(run.Oggetti()[0]["Valid"], false);
  EXPECT_EQ(run.Oggetti()[0]["File"].get<std::string>().size(), 65536U);
  EXPECT_EQ(run.Oggetti()[1]["Valid"], true);
}

TEST(Mp3Verb, AnEmptyNameCannotBeTaken) {
  const auto run = Compagno().EseguiJson({"mp3", ""});
  EXPECT_EQ(run.Stato, 1);
  ASSERT_EQ(run.Oggetti().size(), 1U);
  EXPECT_EQ(run.Oggetti()[0]["File"], "");
  EXPECT_EQ(run.Oggetti()[0]["Valid"], false);
}

TEST(Mp3Verb, AListMayBearAMarkEndItsLinesLikeEitherHostAndHoldBlankOnes) {
  const Compagno k;
  k.ScriviMp3("a.mp3", 1);
  const std::string name = k.Host("a.mp3");
  const auto run = k.EseguiJson({"mp3", "-"}, "\xEF\xBB\xBF" + name + "\r\n\n\r\n" + name);
  EXPECT_EQ(run.Stato, 0);
  ASSERT_EQ(run.Oggetti().size(), 2U);
  for (const auto& object : run.Oggetti()) EXPECT_EQ(object["File"], name);
}

TEST(Mp3Verb, SaysThatAFileIsMissingOnlyWhereNothingOfItsNameIsThere) {
  const Compagno k;
  k.Cartella.Write("music/.hidden.mp3", "junk");
  k.Cartella.Write("music/folder.mp3/inside", "");
  const std::string missing = ": there is no such file";
  const std::string refused = ": not an MP3 file that the player takes";
  const std::string unusable = k.Host("music/a|b.mp3");
  const auto run = k.Esegui({"mp3", k.Host("music/.hidden.mp3"), k.Host("music/folder.mp3"),
                             k.Host("music/gone.mp3"), k.Host("gone/gone.mp3"), unusable});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Righe(), (std::vector<std::string>{
                             k.Host("music/.hidden.mp3") + refused,
                             k.Host("music/folder.mp3") + refused,
                             k.Host("music/gone.mp3") + missing,
                             k.Host("gone/gone.mp3") + missing,
                             unusable + refused,
                         }));
}

}  // namespace
}  // namespace kvr5
