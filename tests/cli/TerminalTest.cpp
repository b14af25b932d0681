#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

#include "cli/Compagno.h"
#include "cli/Interrupt.h"
#include "cli/Terminal.h"
#include "cli/TerminalText.h"
#include "cli/Terminale.h"

namespace kvr5 {
namespace {

using test::Compagno;
using test::Terminale;

/// The longest stretch of the screen between two returns to the first column, less the order to
/// clear the line.
std::size_t LongestLine(const std::string& screen) {
  constexpr std::string_view kClear = "\033[K";
  std::size_t longest = 0;
  for (std::size_t begin = 0; begin < screen.size();) {
    const std::size_t end = std::min(screen.find_first_of("\r\n", begin), screen.size());
    std::string_view line = std::string_view(screen).substr(begin, end - begin);
    if (line.starts_with(kClear)) line.remove_prefix(kClear.size());
    longest = std::max(longest, line.size());
    begin = end + 1;
  }
  return longest;
}

class OnATerminal : public testing::Test {
 protected:
  void SetUp() override {
    k.ScriviMp3("music/a.mp3", 1);
    std::filesystem::create_directories(k.Host("card2"));
    ASSERT_EQ(k.Esegui({"new", "Hall", "--mode", "1"}).Stato, 0);
    ASSERT_EQ(k.Esegui({"inputs", "Hall", "set", "1", k.Host("music/a.mp3")}).Stato, 0);
  }
  Compagno k;
};

TEST_F(OnATerminal, CtrlCEndsTheCopyOfARecording) {
  // Seconds of work, so that the copy is met in the middle; none of it has to be read from a disk.
  std::filesystem::resize_file(k.Host("music/a.mp3"), std::uintmax_t{1} << 30U);
  Terminale terminal(k.Lavoro({"record", "Hall", k.Host("card"), k.Host("card2")}));
  ASSERT_TRUE(terminal.Aspetta("MB/s")) << terminal.Schermo();
  terminal.Scrivi("\x03");
  EXPECT_EQ(terminal.Fine(), 1) << terminal.Schermo();
  EXPECT_NE(terminal.Schermo().find("Not all was completed"), std::string::npos)
      << terminal.Schermo();
  EXPECT_TRUE(k.Nomi("card2").empty()) << "the other cards are not begun";
  EXPECT_NE(terminal.Schermo().find("card2: not recorded whole"), std::string::npos)
      << terminal.Schermo();
  EXPECT_FALSE(k.Cartella.Exists("card/1.mp3"));
  for (const auto& name : k.Nomi("card")) EXPECT_NE(name[0], '~') << name;
}

TEST_F(OnATerminal, CtrlCAtAStageLetsTheMp3CopyRunAndIsToldAtTheEnd) {
  // The copy of a stage takes long enough to be met; its cancel is the stage's.
  std::filesystem::resize_file(k.Host("program/Projects/Hall/KVR5.gif"), 1);
  k.Cartella.Write("program/Projects/Hall/big.htm", "x");
  std::filesystem::resize_file(k.Host("program/Projects/Hall/big.htm"), std::uintmax_t{1} << 30U);
  Terminale terminal(k.Lavoro({"record", "Hall", k.Host("card"), k.Host("card2")}));
  ASSERT_TRUE(terminal.Aspetta("MB/s")) << terminal.Schermo();
  terminal.Scrivi("\x03");
  EXPECT_EQ(terminal.Fine(), 1) << terminal.Schermo();
  EXPECT_NE(terminal.Schermo().find("Not all was completed"), std::string::npos);
  EXPECT_FALSE(k.Cartella.Exists("card/big.htm"));
  EXPECT_TRUE(k.Cartella.Exists("card/1.mp3")) << "later copies run, as they always did";
  EXPECT_TRUE(k.Nomi("card2").empty());
}

TEST_F(OnATerminal, CtrlCEndsTheCopyOfASave) {
  std::filesystem::resize_file(k.Host("music/a.mp3"), std::uintmax_t{1} << 30U);
  Terminale terminal(k.Lavoro({"save", "Hall", "--copy-inputs"}));
  ASSERT_TRUE(terminal.Aspetta("MB/s")) << terminal.Schermo();
  terminal.Scrivi("\x03");
  EXPECT_EQ(terminal.Fine(), 1) << terminal.Schermo();
  EXPECT_NE(terminal.Schermo().find("not everything was saved"), std::string::npos)
      << terminal.Schermo();
  EXPECT_FALSE(k.Cartella.Exists("program/Projects/Hall/a.mp3"));
  EXPECT_TRUE(k.Cartella.Exists("program/Projects/Hall/Hall.htm"));
}

TEST_F(OnATerminal, TheProgressLineFitsItsWidth) {
  constexpr unsigned short kNarrow = 12;
  Terminale terminal(k.Lavoro({"record", "Hall", k.Host("card")}, k.Host("out")), kNarrow);
  EXPECT_EQ(terminal.Fine(), 0);
  EXPECT_EQ(LongestLine(terminal.Schermo()), kNarrow - 1) << "the last column stays free";
}

TEST_F(OnATerminal, ARecordingShowsItsStages) {
  Terminale terminal(k.Lavoro({"record", "Hall", k.Host("card")}));
  EXPECT_EQ(terminal.Fine(), 0) << terminal.Schermo();
  EXPECT_NE(terminal.Schermo().find("\r\033[K"), std::string::npos);
  EXPECT_NE(terminal.Schermo().find("%"), std::string::npos);
  EXPECT_NE(terminal.Schermo().find(": 4 files, "), std::string::npos);
}

TEST_F(OnATerminal, ProgramsGetNoProgressLine) {
  Terminale terminal(k.Lavoro({"--json", "record", "Hall", k.Host("card")}, k.Host("out")));
  EXPECT_EQ(terminal.Fine(), 0);
  EXPECT_EQ(terminal.Schermo(), "");
}

TEST_F(OnATerminal, CtrlCEndsMp3WhileItWaitsForTheNextLine) {
  Terminale terminal(k.Lavoro({"--json", "mp3", "-"}));
  terminal.Scrivi(k.Host("music/a.mp3") + "\n");
  ASSERT_TRUE(terminal.Aspetta("\"Valid\":true")) << terminal.Schermo();
  terminal.Scrivi("\x03");
  EXPECT_EQ(terminal.Fine(), 1);
  EXPECT_NE(terminal.Schermo().find("cancelled; files analysed: 1"), std::string::npos)
      << terminal.Schermo();
}

TEST_F(OnATerminal, CtrlCEndsAnEditingSessionUnsaved) {
  ASSERT_EQ(k.Esegui({"new", "Shop", "--mode", "5"}).Stato, 0);
  const std::string folder = "program/Projects/Shop/";
  const std::string before = k.Cartella.Read(folder + "playlist.mdb");
  Terminale terminal(k.Lavoro({"--json", "playlists", "Shop"}));
  terminal.Scrivi("add " + k.Host("music/a.mp3") + "\nlist\n");
  ASSERT_TRUE(terminal.Aspetta("\"end\":\"list\"")) << terminal.Schermo();
  terminal.Scrivi("save");  // half a line is no command
  terminal.Scrivi("\x03");
  EXPECT_EQ(terminal.Fine(), 1);
  EXPECT_EQ(k.Cartella.Read(folder + "playlist.mdb"), before);
  EXPECT_FALSE(k.Cartella.Exists(folder + "tmpPlaylist.mdb"));
}

TEST_F(OnATerminal, AnEditingSessionShowsHowFarALongCommandIs) {
  ASSERT_EQ(k.Esegui({"new", "Shop", "--mode", "5"}).Stato, 0);
  Terminale terminal(k.Lavoro({"playlists", "Shop"}, k.Host("out")));
  terminal.Scrivi("addall " + k.Host("music") + "\n");
  EXPECT_TRUE(terminal.Aspetta("addall  1/1")) << terminal.Schermo();
  terminal.Scrivi("add nowhere.mp3\n");
  EXPECT_TRUE(terminal.Aspetta("\033[Kadd nowhere.mp3: ")) << "in a line of its own\n"
                                                           << terminal.Schermo();
  terminal.Scrivi("cancel\n");
  EXPECT_EQ(terminal.Fine(), 0);
}

TEST_F(OnATerminal, Mp3ShowsHowFarItIsBesideAnOutputThatGoesElsewhere) {
  Terminale terminal(
      k.Lavoro({"mp3", k.Host("music/a.mp3"), k.Host("music/a.mp3")}, k.Host("out")));
  EXPECT_EQ(terminal.Fine(), 0);
  EXPECT_TRUE(terminal.Schermo().starts_with("\r\033[KAnalysing  1/2")) << terminal.Schermo();
  EXPECT_TRUE(terminal.Schermo().ends_with("\r\033[K")) << "the line goes at the end";
}

TEST_F(OnATerminal, ControlCharactersOfAFilesNameDoNotReachIt) {
  Terminale terminal(k.Lavoro({"mp3", k.Host("music/\033[2J\xC2\x9B.mp3")}));
  EXPECT_EQ(terminal.Fine(), 0);
  EXPECT_NE(terminal.Schermo().find("\uFFFD[2J\uFFFD.mp3"), std::string::npos);
  EXPECT_EQ(terminal.Schermo().find("\033[2J"), std::string::npos);
}

/// What a box asks and the person answers, in a process on a terminal.
int AnswerOf(Pulsanti buttons, std::string_view typed, cli::FixedAnswer fixed) {
  Terminale terminal([buttons, fixed] {
    cli::Output output(false);
    cli::ProgressLine line(false);
    cli::TerminalDialogs dialogs(output, line, fixed);
    Messaggio box;
    box.Titolo = "Erase";
    box.Testo = "Really?";
    box.Segno = Icona::Domanda;
    box.Scelte = buttons;
    return static_cast<int>(dialogs.MostraMessaggio(box));
  });
  if (fixed == cli::FixedAnswer::None) {
    EXPECT_TRUE(terminal.Aspetta("Erase: Really?"));
    EXPECT_TRUE(terminal.Aspetta(buttons == Pulsanti::SiNo ? "[y/n] " : "[y/n/c] "));
    terminal.Scrivi(typed);
  }
  return terminal.Fine();
}

TEST(QuestionOnATerminal, TakesTheAnswerOfTheKeyboard) {
  constexpr auto kNone = cli::FixedAnswer::None;
  EXPECT_EQ(AnswerOf(Pulsanti::SiNo, "y\n", kNone), static_cast<int>(Risposta::Si));
  EXPECT_EQ(AnswerOf(Pulsanti::SiNo, "YES\n", kNone), static_cast<int>(Risposta::Si));
  EXPECT_EQ(AnswerOf(Pulsanti::SiNo, "n\n", kNone), static_cast<int>(Risposta::No));
  EXPECT_EQ(AnswerOf(Pulsanti::SiNo, "perhaps\n", kNone), static_cast<int>(Risposta::No));
  EXPECT_EQ(AnswerOf(Pulsanti::SiNoAnnulla, "no\n", kNone), static_cast<int>(Risposta::No));
  EXPECT_EQ(AnswerOf(Pulsanti::SiNoAnnulla, "\n", kNone), static_cast<int>(Risposta::Annulla));
  EXPECT_EQ(AnswerOf(Pulsanti::SiNoAnnulla, "\x04", kNone), static_cast<int>(Risposta::Annulla))
      << "the end of input";
}

TEST(QuestionOnATerminal, ForProgramsIsAnObjectThatHoldsTheAnswer) {
  Terminale terminal([] {
    cli::Output output(true);
    cli::ProgressLine line(true);
    cli::TerminalDialogs dialogs(output, line, cli::FixedAnswer::None);
    return static_cast<int>(dialogs.MostraMessaggio(
        {"Erase", "Really?\r\nAll?", Icona::Domanda, Pulsanti::SiNo, Risposta::No}));
  });
  ASSERT_TRUE(terminal.Aspetta("Erase: Really?\r\nAll?\r\n[y/n] "));
  terminal.Scrivi("y\n");
  EXPECT_EQ(terminal.Fine(), static_cast<int>(Risposta::Si));
  EXPECT_TRUE(terminal.Schermo().ends_with(
      R"({"box":"question","title":"Erase","text":"Really?\nAll?","answer":"yes"})"
      "\r\n"))
      << terminal.Schermo();
}

TEST(QuestionOnATerminal, IsNotAskedWhereTheAnswerIsGiven) {
  EXPECT_EQ(AnswerOf(Pulsanti::SiNo, "", cli::FixedAnswer::Yes), static_cast<int>(Risposta::Si));
  EXPECT_EQ(AnswerOf(Pulsanti::SiNoAnnulla, "", cli::FixedAnswer::No),
            static_cast<int>(Risposta::No));
}

TEST(Interrupt, IsToldOnceAndEndsAWaitForInputThatComesLater) {
  Terminale terminal([] {
    const cli::Interrupt cancel;
    if (cli::Interrupt::Pressed()) return 1;
    raise(SIGINT);
    if (cli::Interrupt::WaitForInput()) return 2;  // whenever the press came
    if (!cli::Interrupt::Pressed()) return 3;
    if (cli::Interrupt::Pressed()) return 4;
    raise(SIGTERM);
    raise(SIGHUP);
    return cli::Interrupt::Pressed() && !cli::Interrupt::Pressed() ? 0 : 5;
  });
  EXPECT_EQ(terminal.Fine(), 0);
}

TEST(Interrupt, ThatWasToldLetsTheNextLineBeRead) {
  Terminale terminal([] {
    const cli::Interrupt cancel;
    raise(SIGINT);
    if (!cli::Interrupt::Pressed()) return 1;
    return cli::Interrupt::WaitForInput() ? 0 : 2;
  });
  terminal.Scrivi("line\n");
  EXPECT_EQ(terminal.Fine(), 0);
}

TEST(TerminalText, IsFreeOfControlCharactersAndBrokenBytes) {
  EXPECT_EQ(cli::ShownOnTerminal("plain, è\nnext"), "plain, è\nnext");
  EXPECT_EQ(cli::ShownOnTerminal("\a\r\t\x7F"), "\uFFFD\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(cli::ShownOnTerminal("a\xFFz"), "a\uFFFDz");
}

TEST(TerminalText, IsCutBetweenCharacters) {
  EXPECT_EQ(cli::CutToWidth("èèè", 2), "èè");
  EXPECT_EQ(cli::CutToWidth("ab", 5), "ab");
  EXPECT_EQ(cli::CutToWidth("ab", 0), "");
}

}  // namespace
}  // namespace kvr5
