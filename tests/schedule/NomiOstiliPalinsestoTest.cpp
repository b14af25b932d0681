#include <algorithm>

#include "platform/Path.h"
#include "schedule/BancoSalvaPalinsesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Names that a statement, a picture or a list might take for something else.
const std::vector<std::string> kHostile{
    "it's.mp3",         "''.mp3",         "a\"b.mp3", "100%.mp3",
    "%s%n%1.mp3",       "[List].mp3",     "]x[.mp3",  "'; DROP TABLE List; --.mp3",
    "x' OR '1'='1.mp3", "--.mp3",         "a;b.mp3",  "#12.30#.mp3",
    "<b>&amp;.mp3",     "😀 мир 日本.mp3", " a .mp3",  std::string(246, 'n') + ".mp3"};

class HostileSpotNames : public test::BancoSalvaPalinsesto {
 protected:
  void SetUp() override { Progetto(3, 3); }
  /// Opens with two segments on Monday that hold all the names, each with a file.
  void Fill() {
    for (const std::string& name : kHostile) b.ScriviMp3("music/" + name, ++seed_);
    Apri();
    for (std::size_t i = 0; i < kHostile.size(); ++i) {
      if (i % 8 == 0) AggiungiSegmento(editor);
      ASSERT_EQ(Aggiungi(static_cast<int>(i % 8), kHostile[i], b.Percorso("music")),
                EsitoSpot::Aggiunto)
          << kHostile[i];
    }
  }
  Righe Names() {
    Righe names;
    for (const std::string& row : Tutti()) names.push_back(row.substr(row.find(' ') + 1));
    return names;
  }

 private:
  int seed_ = 0;
};

TEST_F(HostileSpotNames, AreAddedAndShownAsAnyOther) {
  Fill();
  EXPECT_EQ(Names(), kHostile);
  editor.VaiAlSegmento(1);
  std::string row = "00:00:00";
  for (std::size_t i = 0; i < 8; ++i) row += " " + kHostile[i];
  EXPECT_EQ(Griglia().front(), row);
}

TEST_F(HostileSpotNames, AreReplacedMovedAndRemovedAsAnyOther) {
  Fill();
  editor.VaiAlSegmento(1);
  SpostaSpot(editor, 0, true);
  EXPECT_EQ(Dettaglio().at(1), "2 it's.mp3");
  for (const std::string& name : kHostile) {
    EXPECT_EQ(Aggiungi(3, name), EsitoSpot::Aggiunto);
    EXPECT_EQ(Dettaglio().at(3), "4 " + name);
  }
  for (const std::int64_t id : {1, 2}) {
    editor.VaiAlSegmento(id);
    while (editor.QuantiSpot() > 0) RimuoviSpot(editor, editor.QuantiSpot() - 1);
  }
  EXPECT_THAT(Tutti(), IsEmpty());
  EXPECT_EQ(Aggiungi(0, kHostile.at(7)), EsitoSpot::Aggiunto) << "the table is there";
}

TEST_F(HostileSpotNames, AreSavedWithFilesThatHoldNoneOfThem) {
  Fill();
  SalvaAperto();
  EXPECT_EQ(Colonna("FileName"), kHostile);
  EXPECT_EQ(Giorni(),
            "1: 00:00\tF1-0011\t\tF1-0012\t\tF1-0013\t\tF1-0014\t\tF1-0015\t\tF1-0016\t\tF1-0017\t"
            "\tF1-0018\t\r\n00:01\tF1-0021\t\tF1-0022\t\tF1-0023\t\tF1-0024\t\tF1-0025\t\tF1-0026\t"
            "\tF1-0027\t\tF1-0028\t\r\n");
}

TEST_F(HostileSpotNames, AreBroughtInUnderNamesThatAnyCardHolds) {
  Fill();
  SalvaAperto(Risposta::Si);
  EXPECT_THAT(b.Copia.Guasti, IsEmpty());
  const Righe aliases = Alias();
  ASSERT_EQ(aliases.size(), kHostile.size());
  for (std::size_t i = 0; i < kHostile.size(); ++i) {
    EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/" + aliases[i], "music/" + kHostile[i]))
        << kHostile[i];
  }
}

TEST_F(HostileSpotNames, WithAnApostropheAreLostToADuplicateAndNoOthers) {
  Fill();
  editor.VaiAlSegmento(2);
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  for (std::size_t i = 8; i < kHostile.size(); ++i) {
    const std::string copy = "0/3/" + std::to_string(i - 7) + " " + kHostile[i];
    const bool quoted = kHostile[i].find('\'') != std::string::npos;
    EXPECT_EQ(std::ranges::count(Tutti(), copy), quoted ? 0 : 1) << kHostile[i];
  }
  editor.VaiAlSegmento(1);
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  EXPECT_THAT(Names(), testing::IsSupersetOf(kHostile)) << "the sources are whole";
  EXPECT_EQ(Segmenti().size(), 4U);
}

TEST_F(HostileSpotNames, DoubledApostrophesAreOneInADuplicate) {
  Progetto(3, 2);
  Spot(0, Segmento(0, "08.30"), 1, "a''b.mp3");
  Apri();
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  EXPECT_THAT(Dettaglio(), ElementsAre("1 a'b.mp3")) << "joined as they stand";
}

TEST_F(HostileSpotNames, ABarIsAFailedCopyThatIsToldAndTheRestIsSaved) {
  Spot(1, Segmento(1, "08.30"), 1, "a|b.mp3", "C:\\x\\");
  Salva(Risposta::Si);
  EXPECT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_THAT(Colonna("FilePath"), ElementsAre(Hall()));
  EXPECT_EQ(Leggi("1.pal"), "08:30\tF1-0011\t\r\n");
}

TEST_F(HostileSpotNames, OfTwoLinesOrWithControlCharactersAreKept) {
  const Righe names{"a\r\nb.mp3", "t\tb.mp3", "\x01\x1F.mp3"};
  const auto segment = Segmento(1, "08.30");
  for (int i = 0; i < 3; ++i) Spot(1, segment, i + 1, names.at(static_cast<std::size_t>(i)));
  Salva();
  EXPECT_EQ(Colonna("FileName"), names);
  EXPECT_EQ(Leggi("1.pal"), "08:30\tF1-0011\t\tF1-0012\t\tF1-0013\t\r\n");
  EXPECT_NE(Leggi("Scheduler.htm").find("\r\na&#65533;&#65533;b.mp3<BR>\r\n"), std::string::npos);
}

TEST_F(HostileSpotNames, OfAThousandCharactersThatNoDiskHoldsAreKept) {
  std::string name;
  for (int i = 0; i < 1000; ++i) name += "à";
  name += ".mp3";
  Apri();
  AggiungiSegmento(editor);
  EXPECT_EQ(Aggiungi(0, name), EsitoSpot::Aggiunto);
  SalvaAperto(Risposta::Si);
  EXPECT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_THAT(Colonna("FileName"), ElementsAre(name));
  EXPECT_THAT(Alias(), ElementsAre("F1-0011.mp3"));
}

TEST_F(HostileSpotNames, ThatAreNoUtf8AreSaved) {
  Spot(1, Segmento(1, "08.30"), 1, "a\xFF\xC3.mp3");
  Salva();
  EXPECT_EQ(Leggi("1.pal"), "08:30\tF1-0011\t\r\n");
  EXPECT_EQ(Tutti("scheduler.mdb").size(), 1U);
}

TEST_F(HostileSpotNames, OfFoldersAreJoinedAsTheyAre) {
  const Righe folders{"it's", "a;b", "'; DROP TABLE HEAD; --", "[x]", "100%"};
  Apri();
  AggiungiSegmento(editor);
  int slot = 0;
  for (const std::string& each : folders) {
    b.ScriviMp3(each + "/a.mp3", slot);
    EXPECT_EQ(Aggiungi(slot++, "a.mp3", b.Percorso(each)), EsitoSpot::Aggiunto);
  }
  SalvaAperto(Risposta::Si);
  EXPECT_THAT(b.Copia.Guasti, IsEmpty());
  for (std::size_t i = 0; i < folders.size(); ++i) {
    EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/F1-001" + std::to_string(i + 1) + ".mp3",
                                folders[i] + "/a.mp3"));
  }
}

TEST_F(HostileSpotNames, AnApostropheInTheProjectsPathKeepsTheFoldersOfTheRows) {
  b.CreaProgetto("It's", 3, 3);
  Connection real(b.Disco);
  ASSERT_FALSE(real.Open(FileDelProgetto(b.C, "scheduler.mdb")));
  ASSERT_FALSE(real.Execute("INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(1,#08.30#)"));
  real.Close();
  b.ScriviMp3("music/a.mp3");
  Spot(1, 1, 1, "a.mp3", In("music"));
  Apri();
  b.Finestre.Rispondi(Risposta::Si);
  SalvaPalinsesto(editor, progresso);
  editor.Chiudi();
  b.Finestre.Prossimo();
  EXPECT_TRUE(b.Cartella.Exists("program/Projects/It's/F1-0011.mp3")) << "copied all the same";
  EXPECT_THAT(Colonna("FilePath"), ElementsAre(In("music")));
  EXPECT_THAT(Colonna("Alias"), ElementsAre("F1-0011.mp3"));
  EXPECT_EQ(b.Cartella.Read("program/Projects/It's/1.pal"), "08:30\tF1-0011\t\r\n");
}

}  // namespace
}  // namespace kvr5
