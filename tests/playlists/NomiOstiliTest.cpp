#include <algorithm>
#include <filesystem>

#include "platform/Path.h"
#include "playlists/AliasPlaylist.h"
#include "playlists/BancoSalva.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/ImportaPlaylist.h"
#include "playlists/NomiPlaylist.h"
#include "playlists/RighePlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;

/// Names that a statement, a picture or a list might take for something else.
const std::vector<std::string> kHostile{
    "it's.mp3",         "''.mp3",         "a\"b.mp3", "100%.mp3",
    "%s%n%1.mp3",       "[List].mp3",     "]x[.mp3",  "'; DROP TABLE List; --.mp3",
    "x' OR '1'='1.mp3", "--.mp3",         "a;b.mp3",  "#12.30#.mp3",
    "<b>&amp;.mp3",     "😀 мир 日本.mp3", " a .mp3",  std::string(246, 'n') + ".mp3"};

class HostileNames : public test::BancoSalva {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    for (const std::string& name : kHostile) b.ScriviMp3("music/" + name, ++seed_);
    editor.Carica();
  }
  Righe Names() {
    Righe names;
    for (const RigaPlaylist& each : RigheDellaGriglia(editor)) names.push_back(each.Brano.FileName);
    return names;
  }
  /// Saves what the editor holds.
  void SaveOpen(Risposta answer) {
    b.Finestre.Rispondi(answer);
    SalvaPlaylist(editor, progress);
    editor.Chiudi();
    b.Finestre.Prossimo();
  }

  modMp3Infos reader{b.C.Files};

 private:
  int seed_ = 0;
};

TEST_F(HostileNames, AreAddedMovedAndRemovedAsAnyOther) {
  AggiungiTuttiFiles(editor, reader, Musica(), kHostile);
  EXPECT_EQ(Names(), kHostile);
  Va(8);
  SpostaSu(editor);
  EXPECT_EQ(Names().at(6), kHostile.at(7));
  SpostaGiu(editor);
  EXPECT_EQ(Names(), kHostile);
  Random(editor, CasoDaSeme(1));
  EXPECT_EQ(Names().size(), kHostile.size());
  while (editor.Quanti() > 0) RimuoviFile(editor);
  EXPECT_EQ(AggiungiFile(editor, Musica(), kHostile.at(7)), EsitoAggiunta::Aggiunto)
      << "the table is there";
}

TEST_F(HostileNames, AreSavedToListsAndBroughtIn) {
  Righe names = kHostile;
  std::erase_if(names, [](const std::string& name) { return !CardCanHold(name); });
  ASSERT_EQ(names.size(), kHostile.size() - 2);
  AggiungiTuttiFiles(editor, reader, Musica(), names);
  SaveOpen(Risposta::Si);
  EXPECT_THAT(b.Copia.Guasti, testing::IsEmpty());
  EXPECT_EQ(Column("FileName"), names);
  const Righe aliases = Column("Alias");
  for (std::size_t i = 0; i < aliases.size(); ++i) {
    EXPECT_EQ(aliases[i], AliasDelBrano(1, static_cast<std::int64_t>(i) + 1));
    EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/" + names.at(i), "music/" + names.at(i)))
        << names.at(i);
  }
}

TEST_F(HostileNames, ThatACardCantHoldAreSavedAndTheirCopyIsTold) {
  AggiungiTuttiFiles(editor, reader, Musica(), {"<b>&amp;.mp3", "a\"b.mp3"});
  SaveOpen(Risposta::Si);
  ASSERT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_EQ(b.Copia.Guasti[0].Cause.Number(), errors::BadFileName);
  EXPECT_FALSE(b.Copia.Guasti[0].Source);
  EXPECT_EQ(Read("1.m3u"), "P01-001\r\nP01-002\r\n");
  EXPECT_THAT(Column("FileName"), ElementsAre("<b>&amp;.mp3", "a\"b.mp3"));
}

TEST_F(HostileNames, ComeBackFromTheirList) {
  AggiungiTuttiFiles(editor, reader, Musica(), kHostile);
  SaveOpen(Risposta::No);
  editor.Carica();
  editor.ScegliVoce(1);
  ImportaPlaylist(editor, reader, FileDelProgetto(b.C, "1_LOCAL_.m3u"));
  EXPECT_EQ(Names(), kHostile);
}

TEST_F(HostileNames, OfFoldersAreJoinedAsTheyAre) {
  const std::vector<std::string> folders{"it's", "a;b", "'; DROP TABLE HEAD; --", "[x]", "100%"};
  for (const std::string& each : folders) {
    b.ScriviMp3(each + "/a.mp3");
    AggiungiFile(editor, b.Percorso(each), "a.mp3");
    AggiungiFile(editor, b.Percorso(each), "a.mp3");
  }
  SaveOpen(Risposta::No);
  EXPECT_THAT(
      Column("Alias"),
      ElementsAre("P01-001.mp3", "P01-002.mp3", "P01-003.mp3", "P01-003.mp3", "P01-005.mp3",
                  "P01-006.mp3", "P01-007.mp3", "P01-007.mp3", "P01-009.mp3", "P01-009.mp3"))
      << "those with an apostrophe have one each";
}

TEST_F(HostileNames, OfTwoHundredAndFiftyCharactersThatNoDiskHoldsAreKept) {
  std::string name;
  for (int i = 0; i < 246; ++i) name += "à";
  name += ".mp3";
  EXPECT_EQ(AggiungiFile(editor, Musica(), name), EsitoAggiunta::Aggiunto);
  SaveOpen(Risposta::Si);
  EXPECT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_THAT(Column("FileName"), ElementsAre(name));
  EXPECT_THAT(Column("Alias"), ElementsAre("P01-001.mp3"));
}

TEST_F(HostileNames, ABarInATrackOfElsewhereIsAFailedCopyThatIsTold) {
  editor.Chiudi();
  Brano(1, 1, "a|b.mp3", "C:\\x\\");
  editor.Carica();
  SaveOpen(Risposta::Si);
  EXPECT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall()));
}

TEST_F(HostileNames, OfTwoLinesAreOneLineOfAList) {
  const std::string name = "a\r\nb.mp3";
  b.ScriviMp3("music/" + name);
  AggiungiTuttiFiles(editor, reader, Musica(), {name, kHostile.front()});
  SaveOpen(Risposta::No);
  EXPECT_THAT(Column("FileName"), ElementsAre(name, kHostile.front()));
  const std::string list = Read("1_LOCAL_.m3u");
  EXPECT_EQ(std::ranges::count(list, '\n'), 2) << list;
}

/// Names of lists.
class HostileListNames : public test::BancoSalva {
 protected:
  void SetUp() override { Progetto(3, 9); }
  void Add(const std::string& name) {
    AggiungiPlaylist(editor, [&] { b.C.Stato.NomePlaylistScelta = name; });
  }
  Righe Names() const {
    Righe names;
    for (const VocePlaylist& each : editor.Voci()) names.push_back(each.Testo);
    return names;
  }
};

TEST_F(HostileListNames, AreAddedFoundAndRemoved) {
  editor.Carica();
  const Righe names{"it's", "100%", "[x]", "a;--", "😀"};
  for (const std::string& each : names) {
    Add(each);
    EXPECT_EQ(editor.Testo(), each);
    const bool quoted = each.find('\'') != std::string::npos;
    EXPECT_EQ(CercaPlaylistPerNome(editor, each) > 0, !quoted) << each;
  }
  EXPECT_THAT(Names(), testing::UnorderedElementsAreArray(names));
  for (std::size_t left = names.size(); left > 0; --left) {
    EliminaPlaylist(editor, editor.Voci().front().ItemData);
    CaricaNomiPlaylist(editor);
    EXPECT_EQ(Names().size(), left - 1);
  }
}

TEST_F(HostileListNames, ThatWouldEndAStatementDont) {
  editor.Carica();
  for (const char* name : {"'; DROP TABLE List; --", "x' UNION SELECT 1,2 --"}) {
    EXPECT_EQ(CercaPlaylistPerNome(editor, name), -1) << name;
    Add(name);
  }
  EXPECT_EQ(Names().size(), 2U);
  EXPECT_EQ(AggiungiFile(editor, "C:\\", "a.mp3"), EsitoAggiunta::Aggiunto);
}

TEST_F(HostileListNames, ThatNoFileCanHaveAreNotWrittenAndTheOthersAre) {
  int number = 0;
  for (const char* name : {"a*b", "CON", "../up", "x/y", "Good", "..", "it''s"})
    Nome(name, ++number);
  for (int i = 1; i <= number; ++i) Track(i, 1, "a.mp3");
  Save();
  EXPECT_EQ(Read("Good.m3u"), "a\r\n");
  EXPECT_EQ(Read("it's.m3u"), "a\r\n");
  Righe lists;
  for (const std::string& each : b.Nomi("program")) {
    if (each.ends_with(".m3u")) lists.push_back(each);
  }
  EXPECT_THAT(lists, ElementsAre("Projects/Hall/...m3u", "Projects/Hall/Good.m3u",
                                 "Projects/Hall/it's.m3u"));
}

TEST_F(HostileListNames, OfTwoListsOfOneNameTheFileHoldsBoth) {
  Nome("Music", 1);
  Nome("MUSIC", 2);
  Track(1, 1, "a.mp3");
  Track(2, 1, "b.mp3");
  Track(2, 2, "c.mp3");
  Save();
  EXPECT_EQ(Read("Music.m3u"), "a\r\nb\r\nc\r\n");
}

}  // namespace
}  // namespace kvr5
