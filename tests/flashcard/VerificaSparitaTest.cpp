// A card that isn't there when a verification begins, or goes away amid it.
#include "BancoVerifica.h"
#include "flashcard/ParoleVerifica.h"

namespace kvr5 {
namespace {

using namespace test;  // the models
using Names = std::vector<std::string>;

/// The watcher of a test that knows whether the host has the card.
class OsservatoreConScheda : public OsservatoreFinto {
 public:
  bool Presente() override {
    ++Asked;
    return !Gone;
  }

  bool Gone = false;
  int Asked = 0;
};

class VerificaSparita : public test::Verifica {
 protected:
  /// Verifies; the findings as "missing 5.mp3" in their order.
  Names Look() {
    watcher.States.clear();
    outcome = VerificaScheda(b.C, s.PercorsoMemoryCard, watcher);
    Names found;
    for (const Riscontro& each : outcome.Riscontri) {
      found.push_back(std::string(NomeDifetto(each.Tipo)) + " " + each.File);
    }
    return found;
  }
  /// The card goes away when the file is come to for the time that is said: its folder can still
  /// be listed, its files can't be read.
  void GoesAt(const std::string& name, int time = 1) {
    watcher.OnState = [this, path = s.PercorsoMemoryCard + name, time](const CopyState& state) {
      if (state.File == path) ++seen_;
      if (seen_ < time || watcher.Gone) return;
      watcher.Gone = true;
      bench.Guasto->FailReadsAfter(b.Percorso("card"), 0, errors::DeviceIo);
    };
  }
  void ExpectWordsOfNoCard() {
    for (const std::size_t shown : {std::size_t{0}, outcome.Riscontri.size()}) {
      EXPECT_EQ(EsitoInParole(b.C, outcome, shown),
                "The card can't be read. Put it in, then verify again.");
    }
    s.FileLingua = b.Percorso("program/Language/Italiano.lan");
    EXPECT_EQ(EsitoInParole(b.C, outcome, 0),
              "La scheda non si legge. Inserirla, poi verificare di nuovo.");
  }

  OsservatoreConScheda watcher;

 private:
  int seen_ = 0;
};

TEST_F(VerificaSparita, ACardThatTheHostDoesNotHaveIsNeitherSyncedNorRead) {
  Recorded(kBoth);
  watcher.Gone = true;
  bench.Guasto->FailOperation(b.Percorso("card"), 0, errors::DeviceIo);
  EXPECT_EQ(Look(), Names{});
  EXPECT_TRUE(outcome.SenzaScheda);
  EXPECT_FALSE(outcome.Sparita);
  EXPECT_EQ(bench.Guasto->FailedOperation(), "") << "nothing was asked of its folder";
  EXPECT_TRUE(watcher.States.empty());
  EXPECT_EQ(outcome.File, 0U);
  ExpectWordsOfNoCard();
}

TEST_F(VerificaSparita, ACardWhoseFolderOutlivesItEndsItAtTheFirstFileThatCannotBeRead) {
  Recorded(kBoth);
  OnCard("PLAYLIST.m3u", "P01-001\r\nX1\r\n");
  OnCard("zz.txt", "a stray");
  GoesAt("Config.cfg");
  EXPECT_EQ(Look(), Names{"unchecked Config.cfg"}) << "no entries, no strays, no other file";
  EXPECT_TRUE(outcome.Sparita);
  EXPECT_FALSE(outcome.SenzaScheda || outcome.Annullata);
  EXPECT_TRUE(b.C.Files.List(b.Percorso("card"))) << "its folder is there";
  EXPECT_EQ(watcher.States.back().File, s.PercorsoMemoryCard + "Config.cfg");
  ExpectWordsOfNoCard();
}

TEST_F(VerificaSparita, AmidTheListsItEndsAtTheFirstListThatCannotBeRead) {
  Recorded(kPlaylists);
  for (const char* list : {"A.m3u", "Z.m3u"}) OnCard(list, std::string("X") + list[0] + "\r\n");
  OnCard("zz.txt", "a stray");
  GoesAt("A.m3u");
  EXPECT_EQ(Look(), Names{"unchecked A.m3u"});
  EXPECT_TRUE(outcome.Sparita);
  EXPECT_EQ(outcome.File, outcome.Attesi) << "the files had been compared";
  ExpectWordsOfNoCard();
}

TEST_F(VerificaSparita, AmidTheListsItEndsAlsoAtAListThatWasToldAlready) {
  Recorded(kPlaylists);
  OnCard("A.m3u", "X1\r\n");
  OnCard("zz.txt", "a stray");
  bench.Guasto->FailReadsAfter(b.Percorso("card/PLAYLIST.m3u"), 0, errors::DeviceIo);
  GoesAt("PLAYLIST.m3u", 2);
  EXPECT_EQ(Look(), (Names{"unchecked PLAYLIST.m3u", "entry X1.mp3"})) << "no strays";
  EXPECT_TRUE(outcome.Sparita);
}

TEST_F(VerificaSparita, OneFileThatCannotBeReadOnACardThatStaysEndsNothing) {
  Recorded(kInputs);
  OnCard("zz.txt", "a stray");
  bench.Guasto->FailReadsAfter(b.Percorso("card/Config.cfg"), 0, errors::DeviceIo);
  EXPECT_EQ(Look(), (Names{"unchecked Config.cfg", "stray zz.txt"}));
  EXPECT_FALSE(outcome.Sparita);
}

TEST_F(VerificaSparita, TheHostIsAskedOncePerFileThatCannotBeReadAndNotForThoseAfterIt) {
  Recorded(kBoth);
  bench.Guasto->FailReadsAfter(b.Percorso("card/inputcfg.mdb"), 0, errors::DeviceIo);
  EXPECT_EQ(Look(), Names{"unchecked inputcfg.mdb"});
  EXPECT_EQ(watcher.Asked, 2) << "before all, and where something can't be read; a look at a card "
                                 "of many files takes long";
}

TEST_F(VerificaSparita, ForFilesThatTheProjectLacksTheHostIsNotAskedAgain) {
  Recorded(kBoth);
  std::filesystem::remove_all(b.Cartella.Host() / "music");
  EXPECT_FALSE(Look().empty());
  EXPECT_EQ(watcher.Asked, 1);
}

}  // namespace
}  // namespace kvr5
